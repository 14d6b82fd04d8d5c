<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>PrinterDriver</name>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Ora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Tavolo:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Cameriere:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Note:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Credito:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Documento n. </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Fattura n.</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>DDT n.</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefono:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>Partita IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>Codice fiscale:</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Qtà</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prezzo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importo</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Imponibile</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Aliquota IVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTALE</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>pagam.</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>fattura</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>scontr.</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>n.cred.</translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>acconto</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>rimb.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Non pagato: </translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RIEPILOGHI</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Dal: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Al: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>RIEPILOGO PRECONTI</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RIEPILOGO SCONTRINI</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Non pagato: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Contanti: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Carta di credito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Bancomat: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Altro: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>ALIQ.</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>IMPONIBILE</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTO</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RIEPILOGO FATTURE</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>DOCUMENTI ANNULLATI</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMERO</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Numeri</translation>
    </message>
    <message>
        <source>Description</source>
        <comment>of a movement, in 6 characters</comment>
        <translation>Tipo</translation>
    </message>
</context>
</TS>
