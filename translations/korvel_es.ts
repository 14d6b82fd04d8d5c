<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>PrinterDriver</name>
    <message>
        <source>Date:</source>
        <translation>Fecha:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Hora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Mesa:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Camarero:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Nota:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Crédito:</translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Ticket n.º </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Factura n.º</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Albarán n.º</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Teléfono:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>N.º de IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>NIF:</translation>
    </message>
    <message>
        <source>Num</source>
        <translation>Uds</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Precio</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Base imp.</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Tipo de IVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Cuota de IVA</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>payment</source>
        <translation>pago</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>factura</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>ticket</translation>
    </message>
    <message>
        <source>credit note</source>
        <translation>abono</translation>
    </message>
    <message>
        <source>deposit</source>
        <translation>señal</translation>
    </message>
    <message>
        <source>refund</source>
        <translation>devol.</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Pendiente: </translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RESÚMENES</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Desde: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Hasta: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translation>RESUMEN DE CUENTAS</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RESUMEN DE TICKETS</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Pendiente: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Efectivo: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Tarjeta de crédito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Tarjeta de débito: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Otros: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>TIPO</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>BASE</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>CUOTA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTE</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RESUMEN DE FACTURAS</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>DOCUMENTOS ANULADOS</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NÚMERO</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>Description</source>
        <comment>of a movement, in 6 characters</comment>
        <translation>Tipo</translation>
    </message>
</context>
</TS>
