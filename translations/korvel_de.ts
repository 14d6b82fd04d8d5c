<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PrinterDriver</name>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Uhrzeit:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Tisch:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Bedienung:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Hinweis:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Guthaben:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Beleg-Nr. </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Rechnung Nr.</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Lieferschein Nr.</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>KUNDE</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>USt-IdNr.:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>Steuernummer:</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Anz</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Nettobetrag</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>MwSt.-Satz</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>MwSt.</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>SUMME</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>Zahlung</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>Rechn.</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>Beleg</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>Gutschr</translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>Anzahlg</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>Erstatt</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Offener Betrag: </translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>ÜBERSICHT</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Von: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Bis: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>ZWISCHENRECHNUNGEN</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>BELEGE</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Offener Betrag: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Bar: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Kreditkarte: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Girocard: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Sonstige: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>SATZ</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>NETTO</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>MWST.</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>BETRAG</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RECHNUNGEN</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>STORNIERTE BELEGE</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Nummern</translation>
    </message>
    <message>
        <source>Description</source>
        <comment>of a movement, in 6 characters</comment>
        <translation>Art</translation>
    </message>
</context>
</TS>
