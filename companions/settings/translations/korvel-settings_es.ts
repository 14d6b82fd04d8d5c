<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>buttons</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
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
        <source>language of the labels</source>
        <translation>idioma de las etiquetas</translation>
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
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
</context>
<context>
    <name>findings</name>
    <message>
        <source>%1: nothing behind %2 was checked</source>
        <translation>%1: detrás de %2 no se comprobó nada</translation>
    </message>
    <message>
        <source>no method: nothing is printed; %1</source>
        <translation>ningún método: no se imprime nada; %1</translation>
    </message>
    <message>
        <source>%1: the job ends here%2</source>
        <translation>%1: el trabajo termina aquí%2</translation>
    </message>
    <message>
        <source>most elements are those of the %1, not of the %2; did you mean &quot;%3&quot;?</source>
        <translation>la mayoría de los elementos son del documento %1, no del documento %2; ¿quería decir &quot;%3&quot;?</translation>
    </message>
    <message>
        <source>a second method: the section of the %1 is not closed; send one document per job</source>
        <translation>un segundo método: la sección del documento %1 no se cierra; envíe un documento por trabajo</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands before the method and is not printed; move it behind &lt;method&gt;</source>
        <translation>&lt;%1&gt; está antes del método y no se imprime; póngalo detrás de &lt;method&gt;</translation>
    </message>
    <message>
        <source>no document knows &lt;%1&gt;: nothing is printed%2</source>
        <translation>ningún documento conoce &lt;%1&gt;: no se imprime nada%2</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;%3%4</source>
        <translation>&lt;%1&gt; no imprime nada en el documento &quot;%2&quot;%3%4</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;: its figures are lost%3%4</source>
        <translation>&lt;%1&gt; no imprime nada en el documento &quot;%2&quot;: se pierden sus cifras%3%4</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt; in this document%3</source>
        <translation>nada lee &quot;%1&quot; de &lt;%2&gt; en este documento%3</translation>
    </message>
    <message>
        <source>nothing reads %1 of &lt;%2&gt; in the document &quot;%3&quot;: %4%5</source>
        <translation>nada lee %1 de &lt;%2&gt; en el documento &quot;%3&quot;: %4%5</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt;%3</source>
        <translation>nada lee &quot;%1&quot; de &lt;%2&gt;%3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2: %3</source>
        <translation>a &lt;%1&gt; le falta %2: %3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2, which the settings switch on: %3</source>
        <translation>a &lt;%1&gt; le falta %2, que los ajustes activan: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, no number; it prints as it is</source>
        <translation>&quot;%1&quot; es %2, que no es un número; se imprime tal cual</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, with parts of a hundredth; it prints as it is</source>
        <translation>&quot;%1&quot; es %2, con fracciones de centésima; se imprime tal cual</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; other amounts of this job have a %3 as their decimal mark</source>
        <translation>&quot;%1&quot; es %2; otros importes de este trabajo tienen como signo decimal: %3</translation>
    </message>
    <message>
        <source>the quantity %1 is no number and prints as &quot;-&quot;, something left out</source>
        <translation>la cantidad %1 no es un número y se imprime como &quot;-&quot;, algo que se quita</translation>
    </message>
    <message>
        <source>the sale row has no %1: %2</source>
        <translation>a la línea de venta le falta %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, %3</source>
        <translation>&quot;%1&quot; de una línea de venta es %2, %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with parts of a hundredth, which are sent</source>
        <translation>&quot;%1&quot; de una línea de venta es %2, con fracciones de centésima, que se envían</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, no number above 0</source>
        <translation>&quot;%1&quot; de una línea de venta es %2, que no es un número mayor que 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2; the printer takes a whole number from 1 on</source>
        <translation>&quot;%1&quot; de una línea de venta es %2; la impresora admite un número entero desde 1</translation>
    </message>
    <message>
        <source>%1 times %2 is %3, and &quot;%4&quot; is %5</source>
        <translation>%1 por %2 es %3, y &quot;%4&quot; es %5</translation>
    </message>
    <message>
        <source>the rows come to %1, and %2</source>
        <translation>las líneas suman %1, y %2</translation>
    </message>
    <message>
        <source>%1 %2, and &quot;%3&quot; is %4</source>
        <translation>%1 %2, y &quot;%3&quot; es %4</translation>
    </message>
    <message>
        <source>the %1 has rows and no &lt;%2&gt;: no total is printed</source>
        <translation>el documento %1 tiene líneas y no &lt;%2&gt;: no se imprime ningún total</translation>
    </message>
    <message>
        <source>the total stands here a second time, with no row in front of it, and prints again</source>
        <translation>el total está aquí por segunda vez, sin ninguna línea delante, y se imprime de nuevo</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands behind the total and prints below it</source>
        <translation>&lt;%1&gt; está detrás del total y se imprime debajo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2: a %3 in it breaks the printer&apos;s command</source>
        <translation>&quot;%1&quot; de una línea de venta es %2: ahí %3 rompe la orden de la impresora</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a line break, which breaks the printed line</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; tiene un salto de línea, que rompe la línea impresa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a &quot;)&quot;, which some printers take for the end of the line</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; tiene un &quot;)&quot;, que algunas impresoras toman por el fin de la línea</translation>
    </message>
    <message>
        <source>%1 a tab or another control character</source>
        <translation>%1 un tabulador u otro carácter de control</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has TOTALE, which prints as T0TALE</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; tiene TOTALE, que se imprime como T0TALE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has an empty part: what follows is not printed</source>
        <translation>&quot;%1&quot; tiene una parte vacía: lo que sigue no se imprime</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, probably %3: UTF-8 was read as %4 and saved again</source>
        <translation>&quot;%1&quot; es %2, probablemente %3: se leyó UTF-8 como %4 y se volvió a guardar</translation>
    </message>
    <message>
        <source>%1 %2, which prints as it is: it was escaped twice</source>
        <translation>%1 %2, que se imprime tal cual: se escapó dos veces</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what %2 lacks: %3</source>
        <translation>&quot;%1&quot; tiene lo que falta en %2: %3</translation>
    </message>
    <message>
        <source>%1: %2 is off in %3</source>
        <translation>%1: %2 está desactivado en %3</translation>
    </message>
    <message>
        <source>a line of %1 characters is wider than the paper (%2): %3%4</source>
        <translation>una línea de %1 caracteres es más ancha que el papel (%2): %3%4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut in the middle of %2, which prints as another character</source>
        <translation>&quot;%1&quot; se corta en medio de %2, que se imprime como otro carácter</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; ¿quería decir &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;...&quot;/&gt;</source>
        <translation>empiece por &lt;method name=&quot;...&quot;/&gt;</translation>
    </message>
    <message>
        <source>did you mean &lt;method&gt; by &lt;%1&gt;?</source>
        <translation>¿quería decir &lt;method&gt; con &lt;%1&gt;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>empiece por &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>this</source>
        <translation>este punto</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>la línea %1</translation>
    </message>
    <message>
        <source>an instruction has no name</source>
        <translation>una instrucción no tiene nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name</source>
        <translation>&quot;%1&quot; no es un nombre</translation>
    </message>
    <message>
        <source>XML %1 is not read; write 1.0</source>
        <translation>XML %1 no se lee; escriba 1.0</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in %2: the paper ends here; name %2, or none</source>
        <translation>se nombra %1, pero el trabajo está escrito en %2: el papel termina aquí; nombre %2, o nada</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none</source>
        <translation>se nombra %1, pero el trabajo está escrito en UTF-8: los acentos se imprimen mal; nombre UTF-8, o nada</translation>
    </message>
    <message>
        <source>the checker cannot read the encoding &quot;%1&quot;: nothing else was checked; write UTF-8</source>
        <translation>no se puede leer la codificación &quot;%1&quot;: no se comprobó nada más; escriba UTF-8</translation>
    </message>
    <message>
        <source>not %1: the bytes here print as a replacement character; save the job as UTF-8, or name what it is written in</source>
        <translation>no es %1: estos bytes se imprimen como un carácter de sustitución; guarde el trabajo como UTF-8, o nombre en qué está escrito</translation>
    </message>
    <message>
        <source>more than %1 elements nested in each other: the paper ends here</source>
        <translation>más de %1 elementos anidados: el papel termina aquí</translation>
    </message>
    <message>
        <source>more than %1 namespaces declared: the paper ends here</source>
        <translation>más de %1 espacios de nombres declarados: el papel termina aquí</translation>
    </message>
    <message>
        <source>more entities than the renderer takes, longer ones, or one in itself: the paper ends here</source>
        <translation>más entidades de las que admite el programa de impresión, más largas, o una dentro de sí misma: el papel termina aquí</translation>
    </message>
    <message>
        <source>more than %1 attributes in the document type: nothing behind this was checked</source>
        <translation>más de %1 atributos en el tipo de documento: detrás no se comprobó nada</translation>
    </message>
    <message>
        <source>groups and settings that are too many, too deep or too long are read over: %1</source>
        <translation>los grupos y ajustes que son demasiados, demasiado hondos o demasiado largos no se leen: %1</translation>
    </message>
    <message>
        <source>no document is called %1</source>
        <translation>ningún documento se llama %1</translation>
    </message>
    <message>
        <source>the method has no name</source>
        <translation>el método no tiene nombre</translation>
    </message>
    <message>
        <source>; write &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>; escriba &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>its figure is lost</source>
        <translation>se pierde su cifra</translation>
    </message>
    <message>
        <source>their figures are lost</source>
        <translation>se pierden sus cifras</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;, which is missing?</source>
        <translation>; ¿quería decir &quot;%1&quot;, que falta?</translation>
    </message>
    <message>
        <source>, and its &quot;%1&quot; is missing</source>
        <translation>, y falta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as an element, which prints nothing: write it as an attribute</source>
        <translation>&lt;%1&gt; tiene %2 como elemento, que no imprime nada: escríbalo como atributo</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as elements, which print nothing: write them as attributes</source>
        <translation>&lt;%1&gt; tiene %2 como elementos, que no imprimen nada: escríbalos como atributos</translation>
    </message>
    <message>
        <source>the text %1 in &lt;%2&gt; is not printed: write it as an attribute</source>
        <translation>el texto %1 en &lt;%2&gt; no se imprime: escríbalo como atributo</translation>
    </message>
    <message>
        <source>; it is printed in %1</source>
        <translation>; se imprime en: %1</translation>
    </message>
    <message>
        <source>its place prints empty</source>
        <translation>su sitio queda vacío</translation>
    </message>
    <message>
        <source>their places print empty</source>
        <translation>sus sitios quedan vacíos</translation>
    </message>
    <message>
        <source>it prints as &quot;-&quot;, something left out</source>
        <translation>se imprime como &quot;-&quot;, algo que se quita</translation>
    </message>
    <message>
        <source>&quot;number&quot; and &quot;totals&quot; must be the first two attributes, and are not: all others are taken for serial number, total and tax rate of one document after the other</source>
        <translation>&quot;number&quot; y &quot;totals&quot; deben ser los dos primeros atributos y no lo son: los demás se toman por número de serie, total y tipo impositivo de un documento tras otro</translation>
    </message>
    <message>
        <source>each cancelled document takes three attributes behind &quot;number&quot; and &quot;totals&quot;, its serial number, total and tax rate; there are %1</source>
        <translation>cada documento anulado lleva tres atributos detrás de &quot;number&quot; y &quot;totals&quot;: número de serie, total y tipo impositivo; hay %1</translation>
    </message>
    <message>
        <source>&quot;number&quot; is %1, but the cancelled documents that are listed are %2</source>
        <translation>&quot;number&quot; es %1, pero los documentos anulados de la lista son %2</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>coma</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; is %3</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; es %3</translation>
    </message>
    <message>
        <source>the tax lines come to %1</source>
        <translation>las líneas de impuestos suman %1</translation>
    </message>
    <message>
        <source>%1 of %2 is</source>
        <translation>%1 de %2 es</translation>
    </message>
    <message>
        <source>%1 and %2 come to</source>
        <translation>%1 y %2 suman</translation>
    </message>
    <message>
        <source>0 is registered</source>
        <translation>se registra 0</translation>
    </message>
    <message>
        <source>the printer may refuse it</source>
        <translation>la impresora puede rechazarla</translation>
    </message>
    <message>
        <source>no number: 0 is registered</source>
        <translation>no es un número: se registra 0</translation>
    </message>
    <message>
        <source>no plain number</source>
        <translation>no es un número simple</translation>
    </message>
    <message>
        <source>more than the printer takes</source>
        <translation>más de lo que admite la impresora</translation>
    </message>
    <message>
        <source>line break</source>
        <translation>un salto de línea</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; tiene</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with</source>
        <translation>&quot;%1&quot; de una línea de venta es %2, con</translation>
    </message>
    <message>
        <source>U+FFFD in place of a character that was lost before</source>
        <translation>U+FFFD en lugar de un carácter que se perdió antes</translation>
    </message>
    <message>
        <source>%1, a character without a shape; leave it out</source>
        <translation>%1, un carácter sin forma; quítelo</translation>
    </message>
    <message>
        <source>%1 prints as %2</source>
        <translation>%1 se imprime como %2</translation>
    </message>
    <message>
        <source>, and %1 more</source>
        <translation>, y %1 más</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not printed</source>
        <translation>&lt;%1&gt; no se imprime</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not printed</source>
        <translation>&quot;%1&quot; no se imprime</translation>
    </message>
    <message>
        <source>of &lt;headers&gt; only the printer&apos;s name is printed</source>
        <translation>de &lt;headers&gt; solo se imprime el nombre de la impresora</translation>
    </message>
    <message>
        <source>; &quot;%1&quot; is %2 in a column of %3 (%4 in %5)</source>
        <translation>; &quot;%1&quot; es %2 en una columna de %3 (%4 en %5)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>it has no group korvel: { ... };</source>
        <translation>no tiene un grupo korvel: { ... };</translation>
    </message>
    <message>
        <source>no setting stands in it</source>
        <translation>no hay ningún ajuste en él</translation>
    </message>
    <message>
        <source>it is written as %1; settings are written korvel: { doc: { paperWidth = &quot;32&quot;; }; };</source>
        <translation>está escrito como %1; los ajustes se escriben korvel: { doc: { paperWidth = &quot;32&quot;; }; };</translation>
    </message>
    <message>
        <source>its first group is %1, not korvel%2</source>
        <translation>su primer grupo es %1, no korvel%2</translation>
    </message>
    <message>
        <source>its first group has no name%1</source>
        <translation>su primer grupo no tiene nombre%1</translation>
    </message>
    <message>
        <source>a byte order mark stands in front of it</source>
        <translation>hay una marca de orden de bytes delante</translation>
    </message>
    <message>
        <source>it is written as UTF-16</source>
        <translation>está escrito en UTF-16</translation>
    </message>
    <message>
        <source>the group %1</source>
        <translation>el grupo %1</translation>
    </message>
    <message>
        <source>what follows</source>
        <translation>lo que sigue</translation>
    </message>
    <message>
        <source>%1 is %2: does the line end with ;?</source>
        <translation>%1 es %2: ¿termina la línea en ;?</translation>
    </message>
    <message>
        <source>; does the line end with ;?</source>
        <translation>; ¿termina la línea en ;?</translation>
    </message>
    <message>
        <source>a } has no ; behind it: %1 is skipped</source>
        <translation>falta ; detrás de un }: se salta %1</translation>
    </message>
    <message>
        <source>the group %1 is not closed: a }; is missing here</source>
        <translation>el grupo %1 no está cerrado: falta }; aquí</translation>
    </message>
    <message>
        <source>the file ends inside the group %1: a }; is missing, if not more</source>
        <translation>el archivo termina dentro del grupo %1: falta al menos un };</translation>
    </message>
    <message>
        <source>a } closes %1 too early: what follows is not read</source>
        <translation>un } cierra %1 demasiado pronto: lo que sigue no se lee</translation>
    </message>
    <message>
        <source>a } closes nothing: what follows is not read</source>
        <translation>un } no cierra nada: lo que sigue no se lee</translation>
    </message>
    <message>
        <source>the group %1 has no { behind its name</source>
        <translation>el grupo %1 no tiene { detrás del nombre</translation>
    </message>
    <message>
        <source>the group %1 has no : behind its name%2</source>
        <translation>el grupo %1 no tiene : detrás del nombre%2</translation>
    </message>
    <message>
        <source>the group %1 has neither : nor { behind its name%2</source>
        <translation>el grupo %1 no tiene ni : ni { detrás del nombre%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where the &quot;%2&quot; of %3 belongs</source>
        <translation>&quot;%1&quot; está donde va el &quot;%2&quot; de %3</translation>
    </message>
    <message>
        <source>%1 stands where a &quot; of %2 belongs, and becomes part of the value</source>
        <translation>%1 está donde va un &quot; de %2, y pasa a ser parte del valor</translation>
    </message>
    <message>
        <source>%1: it is read as %2</source>
        <translation>%1: se lee como %2</translation>
    </message>
    <message>
        <source>a { too many: %1 has one already</source>
        <translation>sobra un {: %1 ya tiene uno</translation>
    </message>
    <message>
        <source>%1 has no = behind its name and is not read</source>
        <translation>%1 no tiene = detrás del nombre y no se lee</translation>
    </message>
    <message>
        <source>no name stands before the =: %1 is not read</source>
        <translation>no hay ningún nombre antes del =: %1 no se lee</translation>
    </message>
    <message>
        <source>no catalogue is found as %1</source>
        <translation>no se encuentra ningún catálogo en %1</translation>
    </message>
    <message>
        <source>%1 is no catalogue</source>
        <translation>%1 no es un catálogo</translation>
    </message>
    <message>
        <source>; letters beyond ASCII are misread: leave them out of paths</source>
        <translation>; las letras fuera de ASCII se leen mal: no las use en rutas</translation>
    </message>
    <message>
        <source>; file must begin with a /</source>
        <translation>; file debe empezar por /</translation>
    </message>
    <message>
        <source>the columns of the %1 leave no room for the description: the others and the blanks take %2 of %3 characters</source>
        <translation>las columnas del documento (%1) no dejan sitio a la descripción: las otras y los espacios ocupan %2 de %3 caracteres</translation>
    </message>
    <message>
        <source>%1 is %2: the description of the %3 gets as many characters too many</source>
        <translation>%1 es %2: la descripción tiene otros tantos caracteres de más (%3)</translation>
    </message>
    <message>
        <source>paperWidth is %1: lines are wider than the printer&apos;s %2 characters</source>
        <translation>paperWidth es %1: las líneas son más anchas que los %2 caracteres de la impresora</translation>
    </message>
    <message>
        <source>no document reads the group %1</source>
        <translation>ningún documento lee el grupo %1</translation>
    </message>
    <message>
        <source>a group has no name before its {</source>
        <translation>un grupo no tiene nombre antes de su {</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and %1 is another</source>
        <translation>solo se lee el primer grupo del archivo, y %1 es otro</translation>
    </message>
    <message>
        <source>documents&apos; groups stand in korvel itself, not in %1</source>
        <translation>los grupos de documentos van en korvel mismo, no en %1</translation>
    </message>
    <message>
        <source>what the one in line %1 sets counts, this one adds what it does not set</source>
        <translation>vale lo que fija el de la línea %1; este añade lo que aquel no fija</translation>
    </message>
    <message>
        <source>this one counts, not that in line %1</source>
        <translation>vale este, no el de la línea %1</translation>
    </message>
    <message>
        <source>; only true switches it on</source>
        <translation>; solo true lo activa</translation>
    </message>
    <message>
        <source>it stands outside the group korvel</source>
        <translation>está fuera del grupo korvel</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and it must be korvel</source>
        <translation>solo se lee el primer grupo del archivo, y debe ser korvel</translation>
    </message>
    <message>
        <source>settings stand in a document&apos;s group or in language, in korvel%1</source>
        <translation>los ajustes van en el grupo de un documento o en language, en korvel%1</translation>
    </message>
    <message>
        <source>; does a } lack its ;?</source>
        <translation>; ¿le falta a un } su ;?</translation>
    </message>
    <message>
        <source>no document has such a group%1</source>
        <translation>ningún documento tiene un grupo así%1</translation>
    </message>
    <message>
        <source>there is no such setting%1</source>
        <translation>no existe tal ajuste%1</translation>
    </message>
    <message>
        <source>it is commented out; nothing else is lost by it, but deleting it is safer</source>
        <translation>está comentado; no se pierde nada más, pero es más seguro borrarlo</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>no se lee nada del archivo: %1</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1; save it as plain ASCII</source>
        <translation>no se lee nada del archivo: %1; guárdelo como ASCII simple</translation>
    </message>
    <message>
        <source>%1 is read as part of what follows: %2 is lost; there are no comments</source>
        <translation>%1 se lee como parte de lo que sigue: se pierde %2; no hay comentarios</translation>
    </message>
    <message>
        <source>%1: its settings are lost%2</source>
        <translation>%1: se pierden sus ajustes%2</translation>
    </message>
    <message>
        <source>labels stay English: %1</source>
        <translation>las etiquetas quedan en inglés: %1</translation>
    </message>
    <message>
        <source>nothing reads %1: %2</source>
        <translation>nada lee %1: %2</translation>
    </message>
    <message>
        <source>%1 stands here a second time: %2</source>
        <translation>%1 está aquí por segunda vez: %2</translation>
    </message>
    <message>
        <source>%1 is %2 and counts as off%3</source>
        <translation>%1 es %2 y cuenta como desactivado%3</translation>
    </message>
    <message>
        <source>%1 is %2, no whole number, and counts as 0%3</source>
        <translation>%1 es %2, que no es un número entero, y cuenta como 0%3</translation>
    </message>
    <message>
        <source>all documents but %1</source>
        <translation>todos los documentos menos: %1</translation>
    </message>
    <message>
        <source>a %1 of %2 characters is wider than the paper (%3)</source>
        <translation>%1 de %2 caracteres, más ancho que el papel (%3)</translation>
    </message>
    <message>
        <source>the stream is empty: nothing is printed</source>
        <translation>el flujo está vacío: no se imprime nada</translation>
    </message>
    <message>
        <source>the %1 opened here is never closed</source>
        <translation>%1: se abre aquí y no se cierra nunca</translation>
    </message>
    <message>
        <source>the %1 opened at byte %2 is still open where the %3 is opened</source>
        <translation>%1 (byte %2) sigue abierto donde se abre %3</translation>
    </message>
    <message>
        <source>the %1 is closed but not open</source>
        <translation>%1: se cierra, pero no está abierto</translation>
    </message>
    <message>
        <source>a %1 outside a fiscal section</source>
        <translation>%1 fuera de una sección fiscal</translation>
    </message>
    <message>
        <source>the amount %1 is no whole number of hundredths</source>
        <translation>el importe %1 no es un número entero de centésimas</translation>
    </message>
    <message>
        <source>the quantity %1 is no number</source>
        <translation>la cantidad %1 no es un número</translation>
    </message>
    <message>
        <source>the %1 is too large for the preview to add up</source>
        <translation>%1: demasiado grande para sumarlo</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a text ends it early</source>
        <translation>&quot;%1&quot; dentro de un texto lo termina antes de tiempo</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a field of a sale row ends it early</source>
        <translation>&quot;%1&quot; dentro de un campo de una línea de venta lo termina antes de tiempo</translation>
    </message>
    <message>
        <source>the line break %1 inside a text ends it early</source>
        <translation>el salto de línea %1 dentro de un texto lo termina antes de tiempo</translation>
    </message>
    <message>
        <source>the control character %1 inside a text</source>
        <translation>el carácter de control %1 dentro de un texto</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 no es %2</translation>
    </message>
    <message>
        <source>broken %1: %2 does not belong here</source>
        <translation>%1, con errores: %2 no va aquí</translation>
    </message>
    <message>
        <source>unterminated %1 that begins at byte %2: the stream ends here</source>
        <translation>%1, incompleto (byte %2): el flujo termina aquí</translation>
    </message>
    <message>
        <source>too much is wrong; no more is listed</source>
        <translation>hay demasiados errores; no se enumeran más</translation>
    </message>
    <message>
        <source>too much is odd; no more is listed</source>
        <translation>hay demasiadas rarezas; no se enumeran más</translation>
    </message>
    <message>
        <source>line</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>text line</source>
        <translation>línea de texto</translation>
    </message>
    <message>
        <source>section opening</source>
        <translation>apertura de sección</translation>
    </message>
    <message>
        <source>section closing</source>
        <translation>cierre de sección</translation>
    </message>
    <message>
        <source>sale row</source>
        <translation>línea de venta</translation>
    </message>
    <message>
        <source>deduction</source>
        <translation>descuento</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>orden desconocida</translation>
    </message>
    <message>
        <source>fiscal section</source>
        <translation>sección fiscal</translation>
    </message>
    <message>
        <source>receipt section</source>
        <translation>sección de recibo</translation>
    </message>
    <message>
        <source>document section</source>
        <translation>sección de documento</translation>
    </message>
    <message>
        <source>unknown command that begins at byte %1: the stream ends here</source>
        <translation>orden desconocida (byte %1): el flujo termina aquí</translation>
    </message>
    <message>
        <source>unknown command: %1 does not belong here</source>
        <translation>orden desconocida: %1 no va aquí</translation>
    </message>
    <message>
        <source>this is not well-formed</source>
        <translation>esto no es XML bien formado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; or %2</source>
        <translation>&quot;%1&quot; o %2</translation>
    </message>
    <message>
        <source>XML forbids the character {character}</source>
        <translation>XML prohíbe el carácter {character}</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins no reference; write &amp;amp;</source>
        <translation>&quot;&amp;&quot; no empieza ninguna referencia; escriba &amp;amp;</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins a reference without its &quot;;&quot;; write &amp;amp;, or end the reference</source>
        <translation>&quot;&amp;&quot; empieza una referencia a la que le falta el &quot;;&quot;; escriba &amp;amp;, o termine la referencia</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote, or a &quot;&lt;&quot;; for that write &amp;lt;</source>
        <translation>al valor que empieza aquí le falta la comilla de cierre, o contiene un &quot;&lt;&quot;; en su lugar escriba &amp;lt;</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in a value; write &amp;lt;, or end the value with its quote</source>
        <translation>&quot;&lt;&quot; en un valor; escriba &amp;lt;, o termine el valor con su comilla</translation>
    </message>
    <message>
        <source>&quot;--&quot; in a comment; write a single -</source>
        <translation>&quot;--&quot; en un comentario; escriba un solo -</translation>
    </message>
    <message>
        <source>a comment begins with &lt;!--</source>
        <translation>un comentario empieza por &lt;!--</translation>
    </message>
    <message>
        <source>&quot;]]&gt;&quot; in a text; write ]]&amp;gt;</source>
        <translation>&quot;]]&gt;&quot; en un texto; escriba ]]&amp;gt;</translation>
    </message>
    <message>
        <source>&quot;&lt;/&quot; without a name</source>
        <translation>&quot;&lt;/&quot; sin un nombre</translation>
    </message>
    <message>
        <source>an end tag where no element is open</source>
        <translation>una etiqueta de cierre donde no hay ningún elemento abierto</translation>
    </message>
    <message>
        <source>an XML declaration begins with &lt;?xml, in small letters</source>
        <translation>una declaración XML empieza por &lt;?xml, en minúsculas</translation>
    </message>
    <message>
        <source>&quot;&lt;?&quot; without a name</source>
        <translation>&quot;&lt;?&quot; sin un nombre</translation>
    </message>
    <message>
        <source>&quot;&lt;!&quot; begins no comment and no CDATA section</source>
        <translation>&quot;&lt;!&quot; no empieza ni un comentario ni una sección CDATA</translation>
    </message>
    <message>
        <source>a blank behind &quot;&lt;&quot;; the name of a tag stands right behind it</source>
        <translation>un espacio detrás de &quot;&lt;&quot;; el nombre de una etiqueta va justo detrás</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; begins no tag; write &amp;lt;</source>
        <translation>&quot;&lt;&quot; no empieza ninguna etiqueta; escriba &amp;lt;</translation>
    </message>
    <message>
        <source>{character} is no quote to XML; write &quot; or &apos;</source>
        <translation>{character} no es una comilla para XML; escriba &quot; o &apos;</translation>
    </message>
    <message>
        <source>a value without quotes; write {value}</source>
        <translation>un valor sin comillas; escriba {value}</translation>
    </message>
    <message>
        <source>the tag that begins here has no &quot;&gt;&quot;</source>
        <translation>a la etiqueta que empieza aquí le falta el &quot;&gt;&quot;</translation>
    </message>
    <message>
        <source>{character} behind the name of an end tag, which has nothing else</source>
        <translation>{character} detrás del nombre de una etiqueta de cierre, que no lleva nada más</translation>
    </message>
    <message>
        <source>&quot;/&quot; in a tag without a &quot;&gt;&quot; behind it</source>
        <translation>&quot;/&quot; en una etiqueta sin un &quot;&gt;&quot; detrás</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote</source>
        <translation>al valor que empieza aquí le falta la comilla de cierre</translation>
    </message>
    <message>
        <source>no blank between a value and the next attribute</source>
        <translation>no hay ningún espacio entre un valor y el atributo siguiente</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; a tag without content ends with /&gt;</source>
        <translation>{character} no puede ir detrás de un valor; una etiqueta sin contenido termina en /&gt;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; blanks alone part attributes</source>
        <translation>{character} no puede ir detrás de un valor; los atributos se separan solo con espacios</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a &apos; in a value write &amp;apos;</source>
        <translation>{character} no puede ir detrás de un valor; para un &apos; en un valor escriba &amp;apos;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a quote in a value write &amp;quot;</source>
        <translation>{character} no puede ir detrás de un valor; para una comilla en un valor escriba &amp;quot;</translation>
    </message>
    <message>
        <source>a value without a &quot;=&quot; before it</source>
        <translation>un valor sin un &quot;=&quot; delante</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>un atributo sin valor</translation>
    </message>
    <message>
        <source>{character} cannot begin a name</source>
        <translation>{character} no puede empezar un nombre</translation>
    </message>
    <message>
        <source>{character} cannot stand in a name</source>
        <translation>{character} no puede estar en un nombre</translation>
    </message>
    <message>
        <source>a text outside the root</source>
        <translation>un texto fuera del elemento raíz</translation>
    </message>
    <message>
        <source>&amp;{name}; stands for what is not well-formed</source>
        <translation>&amp;{name}; representa algo que no está bien formado</translation>
    </message>
    <message>
        <source>an entity in this tag stands for what is not well-formed</source>
        <translation>una entidad de esta etiqueta representa algo que no está bien formado</translation>
    </message>
    <message>
        <source>{character} cannot stand here</source>
        <translation>{character} no puede estar aquí</translation>
    </message>
    <message>
        <source>a comment without its &quot;--&gt;&quot;</source>
        <translation>un comentario sin su &quot;--&gt;&quot;</translation>
    </message>
    <message>
        <source>an XML declaration without its &quot;?&gt;&quot;</source>
        <translation>una declaración XML sin su &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>an instruction without its &quot;?&gt;&quot;</source>
        <translation>una instrucción sin su &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>a tag without its &quot;&gt;&quot;, or with a quote too few</source>
        <translation>una etiqueta sin su &quot;&gt;&quot;, o con una comilla de menos</translation>
    </message>
    <message>
        <source>what begins here does not end</source>
        <translation>lo que empieza aquí no termina</translation>
    </message>
    <message>
        <source>a CDATA section without its &quot;]]&gt;&quot;</source>
        <translation>una sección CDATA sin su &quot;]]&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;{open}&gt; is never closed; write &lt;/{open}&gt; where it ends, or /&gt; in place of its &gt;</source>
        <translation>&lt;{open}&gt; nunca se cierra; escriba &lt;/{open}&gt; donde termina, o /&gt; en lugar de su &gt;</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>no hay ningún elemento</translation>
    </message>
    <message>
        <source>&lt;/{name}&gt; where &lt;{open}&gt; of line {line} must be closed</source>
        <translation>&lt;/{name}&gt; donde hay que cerrar el &lt;{open}&gt; de la línea {line}</translation>
    </message>
    <message>
        <source>an end tag of an entity closes another element</source>
        <translation>una etiqueta de cierre de una entidad cierra otro elemento</translation>
    </message>
    <message>
        <source>an entity with a start tag or an end tag alone</source>
        <translation>una entidad con solo una etiqueta de apertura o solo una de cierre</translation>
    </message>
    <message>
        <source>a second root; one element must hold all others</source>
        <translation>un segundo elemento raíz; un solo elemento debe contener todos los demás</translation>
    </message>
    <message>
        <source>a declaration or a section behind the end of the root</source>
        <translation>una declaración o una sección detrás del final del elemento raíz</translation>
    </message>
    <message>
        <source>the XML declaration is not the first in the file; nothing may stand before it, no blank either</source>
        <translation>la declaración XML no es lo primero del archivo; nada puede ir delante, ni siquiera un espacio</translation>
    </message>
    <message>
        <source>this is no XML declaration; write &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</source>
        <translation>esto no es una declaración XML; escriba &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</translation>
    </message>
    <message>
        <source>an attribute stands twice: &quot;{name}&quot;</source>
        <translation>un atributo está dos veces: &quot;{name}&quot;</translation>
    </message>
    <message>
        <source>an attribute stands twice, in an entity</source>
        <translation>un atributo está dos veces, en una entidad</translation>
    </message>
    <message>
        <source>&amp;{name}; leads to no entity that is declared; write the character itself</source>
        <translation>&amp;{name}; no lleva a ninguna entidad declarada; escriba el propio carácter</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};; write {written}</source>
        <translation>XML no conoce &amp;{name};; escriba {written}</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};, only &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; write &amp;amp; for a plain &quot;&amp;&quot;</source>
        <translation>XML no conoce &amp;{name};, solo &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; para un simple &quot;&amp;&quot; escriba &amp;amp;</translation>
    </message>
    <message>
        <source>an entity that is not declared</source>
        <translation>una entidad que no está declarada</translation>
    </message>
    <message>
        <source>&amp;{name}; is no character that XML allows</source>
        <translation>&amp;{name}; no es un carácter que XML permita</translation>
    </message>
    <message>
        <source>a reference to what is no character</source>
        <translation>una referencia a algo que no es un carácter</translation>
    </message>
    <message>
        <source>an entity that refers to itself</source>
        <translation>una entidad que se refiere a sí misma</translation>
    </message>
    <message>
        <source>an entity that is no text</source>
        <translation>una entidad que no es texto</translation>
    </message>
    <message>
        <source>an entity of another file in a value</source>
        <translation>una entidad de otro archivo en un valor</translation>
    </message>
    <message>
        <source>a parameter entity cannot stand here</source>
        <translation>una entidad de parámetro no puede estar aquí</translation>
    </message>
    <message>
        <source>a parameter entity that is no whole declaration</source>
        <translation>una entidad de parámetro que no es una declaración completa</translation>
    </message>
    <message>
        <source>an entity that a parameter entity declares</source>
        <translation>una entidad declarada por una entidad de parámetro</translation>
    </message>
    <message>
        <source>a public identifier with a character that it cannot have</source>
        <translation>un identificador público con un carácter que no puede llevar</translation>
    </message>
    <message>
        <source>entities that make too much text</source>
        <translation>entidades que producen demasiado texto</translation>
    </message>
    <message>
        <source>more than the memory can hold</source>
        <translation>más de lo que cabe en la memoria</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>No hay ningún archivo %1.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 no es un archivo.</translation>
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
    <message>
        <source>the language of the system</source>
        <translation>el idioma del sistema</translation>
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
    <name>korvel::settings::FindingsList</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La línea %1 es más ancha que el papel: %2 caracteres, de %3.</translation>
    </message>
    <message>
        <source>Lines %1 are wider than the paper: up to %2 characters, of %3.</source>
        <translation>Las líneas %1 son más anchas que el papel: hasta %2 caracteres, de %3.</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Lo que está mal</translation>
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
    <name>korvel::settings::HelpPage</name>
    <message>
        <source>The help has no page %1.</source>
        <translation>La ayuda no tiene ninguna página %1.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Ayuda (en inglés): %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Panes</name>
    <message>
        <source>Do&amp;cuments</source>
        <translation>D&amp;ocumentos</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papel</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperPane</name>
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
    <message>
        <source>The text %1 is no setting.</source>
        <translation>El texto %1 no es un ajuste.</translation>
    </message>
    <message>
        <source>The setting %1 stands twice; the last one is kept.</source>
        <translation>El ajuste %1 aparece dos veces; se conserva el último.</translation>
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
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
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
    <message>
        <source>Saved: %1</source>
        <translation>Guardado: %1</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>%1 is neither settings nor a job. Choose a settings file such as korvel.conf, or a job in XML.</source>
        <translation>%1 no contiene ni ajustes ni un trabajo. Elija un archivo de ajustes como korvel.conf o un trabajo en XML.</translation>
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
    <message>
        <source>The renderer reads nothing of this file: it is written as XML. Save as, in the menu File, writes the settings as the renderer reads them.</source>
        <translation>El programa de impresión no lee nada de este archivo: está escrito en XML. «Guardar como», en el menú «Archivo», escribe los ajustes como el programa de impresión los lee.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: its first group is called %1, and not &quot;korvel&quot;.</source>
        <translation>El programa de impresión no lee nada de este archivo: su primer grupo se llama %1 y no &quot;korvel&quot;.</translation>
    </message>
</context>
<context>
    <name>paper</name>
    <message>
        <source>DEDUCTION</source>
        <translation>DESCUENTO</translation>
    </message>
    <message>
        <source>Sum (by the preview)</source>
        <translation>Suma (de la vista previa)</translation>
    </message>
    <message>
        <source>Sum so far (preview)</source>
        <translation>Parcial (vista previa)</translation>
    </message>
    <message>
        <source>Rows not counted</source>
        <translation>Filas sin contar</translation>
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
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>caracteres del nombre de un artículo que se envían. 0 es el ancho de la impresora; un número negativo deja el nombre entero. El ticket fiscal resumido nunca recorta</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>el margen superior</translation>
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
        <source>nothing: kept for printers with a drawer</source>
        <translation>nada: se reserva para impresoras con cajón</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>la carpeta de los catálogos de idioma</translation>
    </message>
    <message>
        <source>empty lines of the top margin; none when negative, 65536 at most</source>
        <translation>líneas vacías del margen superior; ninguna si el número es negativo, 65536 como máximo</translation>
    </message>
    <message>
        <source>the header lines. The printer&apos;s name after them has no switch</source>
        <translation>las líneas de cabecera. El nombre de la impresora que las sigue no tiene interruptor</translation>
    </message>
    <message>
        <source>the date of the order information</source>
        <translation>la fecha de la información del pedido</translation>
    </message>
    <message>
        <source>the time of the order information</source>
        <translation>la hora de la información del pedido</translation>
    </message>
    <message>
        <source>the table of the order information</source>
        <translation>la mesa de la información del pedido</translation>
    </message>
    <message>
        <source>the credit of the order information</source>
        <translation>el crédito de la información del pedido</translation>
    </message>
    <message>
        <source>the waiter of the order information</source>
        <translation>el camarero de la información del pedido</translation>
    </message>
    <message>
        <source>the note of the order information</source>
        <translation>la nota de la información del pedido</translation>
    </message>
    <message>
        <source>which catalogue: its name is put right behind the folder, and begins with `/`</source>
        <translation>qué catálogo: su nombre va justo detrás de la carpeta y empieza por `/`</translation>
    </message>
</context>
</TS>
