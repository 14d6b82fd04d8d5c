<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>documents</name>
    <message>
        <source>kitchen order</source>
        <translation>comanda de cocina</translation>
    </message>
    <message>
        <source>full order</source>
        <translation>cuenta</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>ticket</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>factura</translation>
    </message>
    <message>
        <source>delivery note</source>
        <translation>albarán</translation>
    </message>
    <message>
        <source>fiscal receipt</source>
        <translation>ticket fiscal</translation>
    </message>
    <message>
        <source>summary order</source>
        <translation>comanda resumida</translation>
    </message>
    <message>
        <source>summary receipt</source>
        <translation>ticket resumido</translation>
    </message>
    <message>
        <source>summary invoice</source>
        <translation>factura resumida</translation>
    </message>
    <message>
        <source>summary fiscal receipt</source>
        <translation>ticket fiscal resumido</translation>
    </message>
    <message>
        <source>period report</source>
        <translation>resumen del periodo</translation>
    </message>
    <message>
        <source>sold items</source>
        <translation>artículos vendidos</translation>
    </message>
    <message>
        <source>statement of account</source>
        <translation>extracto de cuenta</translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>paper width</source>
        <translation>ancho del papel</translation>
    </message>
    <message>
        <source>quantity column</source>
        <translation>columna de cantidad</translation>
    </message>
    <message>
        <source>price column</source>
        <translation>columna de precio</translation>
    </message>
    <message>
        <source>amount column</source>
        <translation>columna de importe</translation>
    </message>
    <message>
        <source>length of names</source>
        <translation>longitud de los nombres</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>margen superior</translation>
    </message>
    <message>
        <source>lines of the top margin</source>
        <translation>líneas del margen superior</translation>
    </message>
    <message>
        <source>header lines</source>
        <translation>líneas de cabecera</translation>
    </message>
    <message>
        <source>company</source>
        <translation>empresa</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>time</source>
        <translation>hora</translation>
    </message>
    <message>
        <source>table</source>
        <translation>mesa</translation>
    </message>
    <message>
        <source>waiter</source>
        <translation>camarero</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>crédito</translation>
    </message>
    <message>
        <source>customer</source>
        <translation>cliente</translation>
    </message>
    <message>
        <source>delivery address</source>
        <translation>dirección de entrega</translation>
    </message>
    <message>
        <source>billing address</source>
        <translation>dirección de facturación</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>teléfono</translation>
    </message>
    <message>
        <source>license number</source>
        <translation>número de licencia</translation>
    </message>
    <message>
        <source>fiscal code</source>
        <translation>código fiscal</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>catálogo</translation>
    </message>
    <message>
        <source>folder of the catalogues</source>
        <translation>carpeta de los catálogos</translation>
    </message>
    <message>
        <source>rows of a page</source>
        <translation>filas de una página</translation>
    </message>
    <message>
        <source>style</source>
        <translation>estilo</translation>
    </message>
    <message>
        <source>logo</source>
        <translation>logotipo</translation>
    </message>
    <message>
        <source>cash drawer</source>
        <translation>cajón portamonedas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Top of the paper</source>
        <translation>Parte superior del papel</translation>
    </message>
    <message>
        <source>Order information</source>
        <translation>Información del pedido</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Language of the labels</source>
        <translation>Idioma de las etiquetas</translation>
    </message>
    <message>
        <source>Read, without effect on the paper</source>
        <translation>Se leen, sin efecto en el papel</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>sin definir</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::AddDialog</name>
    <message>
        <source>Add a group</source>
        <translation>Añadir un grupo</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Añadir un ajuste</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Grupo:</translation>
    </message>
    <message>
        <source>&amp;Setting:</source>
        <translation>&amp;Ajuste:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valor:</translation>
    </message>
</context>
<context>
    <name>korvel::settings::CatalogueBox</name>
    <message>
        <source>%1: labels in English</source>
        <translation>%1: etiquetas en inglés</translation>
    </message>
</context>
<context>
    <name>korvel::settings::ExpertPane</name>
    <message>
        <source>Add a se&amp;tting …</source>
        <translation>Añadir un aj&amp;uste …</translation>
    </message>
    <message>
        <source>Add a &amp;group …</source>
        <translation>Añadir un &amp;grupo …</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Rows of the settings file</source>
        <translation>Filas del archivo de ajustes</translation>
    </message>
    <message>
        <source>ConfigurationFile</source>
        <translation>Archivo de configuración</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FieldRow</name>
    <message>
        <source>Restore: %1</source>
        <translation>Restablecer: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>labels: %1</source>
        <translation>etiquetas: %1</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>As in the file: %1</source>
        <translation>Como en el archivo: %1</translation>
    </message>
    <message>
        <source>As in the sample: %1</source>
        <translation>Como en el ejemplo: %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FormPane</name>
    <message>
        <source>This document prints nothing.</source>
        <translation>Este documento no imprime nada.</translation>
    </message>
    <message>
        <source>The same settings lay out: %1.</source>
        <translation>Los mismos ajustes dan formato a: %1.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperPane</name>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La línea %1 es más ancha que el papel: %2 caracteres, de %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Trabajo:</translation>
    </message>
    <message>
        <source>Sample of the shop</source>
        <translation>Ejemplo de la tienda</translation>
    </message>
    <message>
        <source>Open a job file …</source>
        <translation>Abrir un archivo de trabajo …</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Lo que está mal</translation>
    </message>
    <message>
        <source>Choose a job</source>
        <translation>Elegir un trabajo de impresión</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Trabajos de impresión (*.xml);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Job, line %1: %2</source>
        <translation>Trabajo, línea %1: %2</translation>
    </message>
    <message>
        <source>Line %1 of the paper is made by no setting.</source>
        <translation>Ningún ajuste produce la línea %1 del papel.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperView</name>
    <message>
        <source>The renderer %1 cannot be started.</source>
        <translation>No se puede iniciar el programa de impresión %1.</translation>
    </message>
    <message>
        <source>The temporary folder cannot be written.</source>
        <translation>No se puede escribir en la carpeta temporal.</translation>
    </message>
    <message>
        <source>The renderer %1 ended with an error.</source>
        <translation>El programa de impresión %1 terminó con un error.</translation>
    </message>
    <message>
        <source>The renderer %1 wrote nothing.</source>
        <translation>El programa de impresión %1 no escribió nada.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Ruler</name>
    <message>
        <source>Ruler of the columns</source>
        <translation>Regla de las columnas</translation>
    </message>
    <message>
        <source>Drag the edge of a column to make it wider or narrower.</source>
        <translation>Arrastre el borde de una columna para ensancharla o estrecharla.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsDocument</name>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>Everything: nothing in the file could be read, and it would be emptied.</source>
        <translation>Todo: no se pudo leer nada del archivo, y quedaría vacío.</translation>
    </message>
    <message>
        <source>%1 would be &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>%1 sería &quot;%2&quot; en lugar de &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The group %1 has no settings.</source>
        <translation>El grupo %1 no tiene ajustes.</translation>
    </message>
    <message>
        <source>The group %1 stands beside %2; only the first group of a file is kept.</source>
        <translation>El grupo %1 está al lado de %2; de un archivo solo se conserva el primer grupo.</translation>
    </message>
    <message>
        <source>The group %1 would be moved to another place.</source>
        <translation>El grupo %1 cambiaría de lugar.</translation>
    </message>
    <message>
        <source>The setting %1 would be lost.</source>
        <translation>El ajuste %1 se perdería.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The previous file could not be kept as %1; nothing was saved.</source>
        <translation>No se pudo conservar el archivo anterior como %1; no se guardó nada.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be written whole; the previous file was put back.</source>
        <translation>No se pudo escribir %1 por completo; se restableció el archivo anterior.</translation>
    </message>
    <message>
        <source>The text at the end of the file is no setting.</source>
        <translation>El texto al final del archivo no es ningún ajuste.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation>&amp;Abrir …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Abrir ajustes</translation>
    </message>
    <message>
        <source>Settings (*.conf *.cfg);;All files (*)</source>
        <translation>Ajustes (*.conf *.cfg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened.</source>
        <translation>Otro programa ha modificado el archivo desde que se abrió.</translation>
    </message>
    <message>
        <source>Save all the same</source>
        <translation>Guardar de todos modos</translation>
    </message>
    <message>
        <source>Not everything can be saved.</source>
        <translation>No se puede guardar todo.</translation>
    </message>
    <message>
        <source>Save the rest</source>
        <translation>Guardar el resto</translation>
    </message>
    <message>
        <source>There are edits that are not saved.</source>
        <translation>Hay cambios sin guardar.</translation>
    </message>
    <message>
        <source>There are no settings yet in %1.
Begin with the sample settings?</source>
        <translation>Todavía no hay ajustes en %1.
¿Empezar con los ajustes de ejemplo?</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1[*] – Korvel settings</source>
        <translation>%1[*] – Ajustes de Korvel</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>The paper is too large for a picture; a PDF can hold it.</source>
        <translation>El papel es demasiado grande para una imagen; cabe en un PDF.</translation>
    </message>
    <message>
        <source>Save the settings as</source>
        <translation>Guardar los ajustes como</translation>
    </message>
    <message>
        <source>There is no paper.</source>
        <translation>No hay papel.</translation>
    </message>
    <message>
        <source>Export the paper</source>
        <translation>Exportar el papel</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png)</source>
        <translation>Archivo PDF (*.pdf);;Imagen PNG (*.png)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;The settings file</source>
        <translation>&amp;El archivo de ajustes</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Guardar &amp;como …</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;vertir</translation>
    </message>
    <message>
        <source>Open a &amp;job file …</source>
        <translation>Abrir un archivo de &amp;trabajo …</translation>
    </message>
    <message>
        <source>&amp;Export the paper …</source>
        <translation>&amp;Exportar el papel …</translation>
    </message>
    <message>
        <source>Field: &amp;not set</source>
        <translation>Campo: &amp;sin definir</translation>
    </message>
    <message>
        <source>Field: as in the &amp;file</source>
        <translation>Campo: como en el &amp;archivo</translation>
    </message>
    <message>
        <source>Field: as in the &amp;sample</source>
        <translation>Campo: como en el e&amp;jemplo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Paper &amp;larger</source>
        <translation>Papel más &amp;grande</translation>
    </message>
    <message>
        <source>Paper &amp;smaller</source>
        <translation>Papel más &amp;pequeño</translation>
    </message>
    <message>
        <source>Paper in its &amp;own size</source>
        <translation>Papel en su &amp;tamaño</translation>
    </message>
    <message>
        <source>Paper as &amp;wide as its pane</source>
        <translation>Papel al &amp;ancho del panel</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>The settings file</source>
        <translation>El archivo de ajustes</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Read by nothing</source>
        <translation>No lo lee nada</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>A&amp;justes</translation>
    </message>
    <message>
        <source>E&amp;xpert</source>
        <translation>E&amp;xperto</translation>
    </message>
    <message>
        <source>Read by nothing (%1)</source>
        <translation>No lo lee nada (%1)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::State</name>
    <message>
        <source>%1 on</source>
        <translation>%1 activado</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 desactivado</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>grupo %1</translation>
    </message>
    <message>
        <source>%1 not set</source>
        <translation>%1 sin definir</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>eliminación de %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SwitchBox</name>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>off (&quot;%1&quot;)</source>
        <translation>desactivado (&quot;%1&quot;)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::UnreadPane</name>
    <message>
        <source>Remove fr&amp;om the file</source>
        <translation>Quitar &amp;del archivo</translation>
    </message>
    <message>
        <source>No document reads these. They are kept when the file is saved.</source>
        <translation>Ningún documento los lee. Se conservan al guardar el archivo.</translation>
    </message>
    <message>
        <source>Settings and groups that nothing reads</source>
        <translation>Ajustes y grupos que nada lee</translation>
    </message>
</context>
<context>
    <name>korvel::settings::hints</name>
    <message>
        <source>No document reads this: the renderer passes it over.</source>
        <translation>Ningún documento lo lee: el programa de impresión lo pasa por alto.</translation>
    </message>
    <message>
        <source>Counts as off: only exactly &quot;true&quot; switches it on.</source>
        <translation>Cuenta como desactivado: solo &quot;true&quot;, exactamente así, lo activa.</translation>
    </message>
    <message>
        <source>Not a whole number: counts as 0.</source>
        <translation>No es un número entero: cuenta como 0.</translation>
    </message>
    <message>
        <source>Too wide for the paper: lines of more than 32 characters, or no room for the description.</source>
        <translation>Demasiado ancho para el papel: líneas de más de 32 caracteres o sin sitio para la descripción.</translation>
    </message>
    <message>
        <source>Nothing on the paper depends on it.</source>
        <translation>Nada en el papel depende de ello.</translation>
    </message>
    <message>
        <source>Read by: %1.</source>
        <translation>Leído por: %1.</translation>
    </message>
</context>
<context>
    <name>vocabulary</name>
    <message>
        <source>width of the quantity column</source>
        <translation>ancho de la columna de unidades</translation>
    </message>
    <message>
        <source>width of the unit price column; in a statement, of the amount</source>
        <translation>ancho de la columna del precio unitario; en un extracto, de la del importe</translation>
    </message>
    <message>
        <source>width of the last column, the amount</source>
        <translation>ancho de la última columna, la del importe</translation>
    </message>
    <message>
        <source>width of a line and of a separator. 0 is the printer&apos;s width. Centring always goes by the printer&apos;s 32</source>
        <translation>ancho de una línea y de un separador. 0 es el ancho de la impresora. El centrado se rige siempre por los 32 caracteres de la impresora</translation>
    </message>
    <message>
        <source>nothing depends on it</source>
        <translation>nada depende de ello</translation>
    </message>
    <message>
        <source>read and discarded</source>
        <translation>se lee y se descarta</translation>
    </message>
    <message>
        <source>empty lines that `geometry` prints; none when negative, 65536 at most</source>
        <translation>líneas vacías que imprime `geometry`; ninguna si el número es negativo, 65536 como máximo</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>caracteres del nombre de un artículo que se envían. 0 es el ancho de la impresora; un número negativo deja el nombre entero. El ticket fiscal resumido nunca recorta</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>el margen superior</translation>
    </message>
    <message>
        <source>the lines of `headers`. The printer&apos;s name after them has no switch</source>
        <translation>las líneas de `headers`. El nombre de la impresora que las sigue no tiene interruptor</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a logo</source>
        <translation>nada: se reserva para impresoras con logotipo</translation>
    </message>
    <message>
        <source>the company</source>
        <translation>la empresa</translation>
    </message>
    <message>
        <source>the customer&apos;s delivery address</source>
        <translation>la dirección de entrega del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s billing address</source>
        <translation>la dirección de facturación del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s telephone</source>
        <translation>el teléfono del cliente</translation>
    </message>
    <message>
        <source>the date of `orderinfo`</source>
        <translation>la fecha de `orderinfo`</translation>
    </message>
    <message>
        <source>the time of `orderinfo`</source>
        <translation>la hora de `orderinfo`</translation>
    </message>
    <message>
        <source>the table of `orderinfo`</source>
        <translation>la mesa de `orderinfo`</translation>
    </message>
    <message>
        <source>the whole customer block; the customer&apos;s other switches count only when it is on</source>
        <translation>todo el bloque del cliente; los demás interruptores del cliente solo cuentan si está activado</translation>
    </message>
    <message>
        <source>the customer&apos;s license number</source>
        <translation>el número de IVA del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s fiscal code</source>
        <translation>el NIF del cliente</translation>
    </message>
    <message>
        <source>the credit of `orderinfo`</source>
        <translation>el crédito de `orderinfo`</translation>
    </message>
    <message>
        <source>the waiter of `orderinfo`</source>
        <translation>el camarero de `orderinfo`</translation>
    </message>
    <message>
        <source>the note of `orderinfo`</source>
        <translation>la nota de `orderinfo`</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a drawer</source>
        <translation>nada: se reserva para impresoras con cajón</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>la carpeta de los catálogos de idioma</translation>
    </message>
    <message>
        <source>which catalogue; begins with `/`</source>
        <translation>qué catálogo; empieza por `/`</translation>
    </message>
</context>
</TS>
