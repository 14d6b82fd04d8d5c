<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>buttons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Sca&amp;rta</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
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
        <translation>comanda di cucina</translation>
    </message>
    <message>
        <source>full order</source>
        <translation>preconto</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>scontrino</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>fattura</translation>
    </message>
    <message>
        <source>delivery note</source>
        <translation>documento di trasporto</translation>
    </message>
    <message>
        <source>fiscal receipt</source>
        <translation>scontrino fiscale</translation>
    </message>
    <message>
        <source>summary order</source>
        <translation>comanda sintetica</translation>
    </message>
    <message>
        <source>summary receipt</source>
        <translation>scontrino sintetico</translation>
    </message>
    <message>
        <source>summary invoice</source>
        <translation>fattura sintetica</translation>
    </message>
    <message>
        <source>summary fiscal receipt</source>
        <translation>scontrino fiscale sintetico</translation>
    </message>
    <message>
        <source>period report</source>
        <translation>riepilogo del periodo</translation>
    </message>
    <message>
        <source>sold items</source>
        <translation>articoli venduti</translation>
    </message>
    <message>
        <source>statement of account</source>
        <translation>estratto conto</translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>paper width</source>
        <translation>larghezza della carta</translation>
    </message>
    <message>
        <source>quantity column</source>
        <translation>colonna delle quantità</translation>
    </message>
    <message>
        <source>price column</source>
        <translation>colonna dei prezzi</translation>
    </message>
    <message>
        <source>amount column</source>
        <translation>colonna degli importi</translation>
    </message>
    <message>
        <source>length of names</source>
        <translation>lunghezza dei nomi</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>margine superiore</translation>
    </message>
    <message>
        <source>lines of the top margin</source>
        <translation>righe del margine superiore</translation>
    </message>
    <message>
        <source>header lines</source>
        <translation>righe d&apos;intestazione</translation>
    </message>
    <message>
        <source>company</source>
        <translation>azienda</translation>
    </message>
    <message>
        <source>date</source>
        <translation>data</translation>
    </message>
    <message>
        <source>time</source>
        <translation>ora</translation>
    </message>
    <message>
        <source>table</source>
        <translation>tavolo</translation>
    </message>
    <message>
        <source>waiter</source>
        <translation>cameriere</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota dell&apos;ordine</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>credito</translation>
    </message>
    <message>
        <source>customer</source>
        <translation>cliente</translation>
    </message>
    <message>
        <source>delivery address</source>
        <translation>indirizzo di consegna</translation>
    </message>
    <message>
        <source>billing address</source>
        <translation>indirizzo di fatturazione</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>telefono</translation>
    </message>
    <message>
        <source>license number</source>
        <translation>numero di licenza</translation>
    </message>
    <message>
        <source>fiscal code</source>
        <translation>codice fiscale</translation>
    </message>
    <message>
        <source>language of the labels</source>
        <translation>lingua delle etichette</translation>
    </message>
    <message>
        <source>folder of the catalogues</source>
        <translation>cartella dei cataloghi</translation>
    </message>
    <message>
        <source>rows of a page</source>
        <translation>righe di una pagina</translation>
    </message>
    <message>
        <source>style</source>
        <translation>stile</translation>
    </message>
    <message>
        <source>logo</source>
        <translation>logo dell&apos;azienda</translation>
    </message>
    <message>
        <source>cash drawer</source>
        <translation>cassetto</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Top of the paper</source>
        <translation>Parte alta della carta</translation>
    </message>
    <message>
        <source>Order information</source>
        <translation>Informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Language of the labels</source>
        <translation>Lingua delle etichette</translation>
    </message>
    <message>
        <source>Read, without effect on the paper</source>
        <translation>Lette, senza effetto sulla carta</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non impostato</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
</context>
<context>
    <name>findings</name>
    <message>
        <source>%1: nothing behind %2 was checked</source>
        <translation>%1: dopo %2 non è stato controllato nulla</translation>
    </message>
    <message>
        <source>no method: nothing is printed; %1</source>
        <translation>nessun metodo: non si stampa nulla; %1</translation>
    </message>
    <message>
        <source>%1: the job ends here%2</source>
        <translation>%1: il lavoro finisce qui%2</translation>
    </message>
    <message>
        <source>most elements are those of the %1, not of the %2; did you mean &quot;%3&quot;?</source>
        <translation>quasi tutti gli elementi sono del documento %1, non del documento %2; si intende &quot;%3&quot;?</translation>
    </message>
    <message>
        <source>a second method: the section of the %1 is not closed; send one document per job</source>
        <translation>un secondo metodo: la sezione del documento %1 non viene chiusa; inviare un documento per lavoro</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands before the method and is not printed; move it behind &lt;method&gt;</source>
        <translation>&lt;%1&gt; sta prima del metodo e non viene stampato; spostarlo dopo &lt;method&gt;</translation>
    </message>
    <message>
        <source>no document knows &lt;%1&gt;: nothing is printed%2</source>
        <translation>nessun documento conosce &lt;%1&gt;: non si stampa nulla%2</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;%3%4</source>
        <translation>&lt;%1&gt; non stampa nulla nel documento &quot;%2&quot;%3%4</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;: its figures are lost%3%4</source>
        <translation>&lt;%1&gt; non stampa nulla nel documento &quot;%2&quot;: le sue cifre si perdono%3%4</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt; in this document%3</source>
        <translation>nulla legge &quot;%1&quot; di &lt;%2&gt; in questo documento%3</translation>
    </message>
    <message>
        <source>nothing reads %1 of &lt;%2&gt; in the document &quot;%3&quot;: %4%5</source>
        <translation>nulla legge %1 di &lt;%2&gt; nel documento &quot;%3&quot;: %4%5</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt;%3</source>
        <translation>nulla legge &quot;%1&quot; di &lt;%2&gt;%3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2: %3</source>
        <translation>a &lt;%1&gt; manca %2: %3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2, which the settings switch on: %3</source>
        <translation>a &lt;%1&gt; manca %2, che le impostazioni attivano: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, no number; it prints as it is</source>
        <translation>&quot;%1&quot; è %2, che non è un numero; si stampa così com&apos;è</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, with parts of a hundredth; it prints as it is</source>
        <translation>&quot;%1&quot; è %2, con frazioni di centesimo; si stampa così com&apos;è</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; other amounts of this job have a %3 as their decimal mark</source>
        <translation>&quot;%1&quot; è %2; altri importi di questo lavoro hanno come segno decimale: %3</translation>
    </message>
    <message>
        <source>the quantity %1 is no number and prints as &quot;-&quot;, something left out</source>
        <translation>la quantità %1 non è un numero e si stampa come &quot;-&quot;, qualcosa di tolto</translation>
    </message>
    <message>
        <source>the sale row has no %1: %2</source>
        <translation>alla riga di vendita manca %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, %3</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2, %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with parts of a hundredth, which are sent</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2, con frazioni di centesimo, che vengono inviate</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, no number above 0</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2, che non è un numero maggiore di 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2; the printer takes a whole number from 1 on</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2; la stampante accetta un numero intero da 1 in su</translation>
    </message>
    <message>
        <source>%1 times %2 is %3, and &quot;%4&quot; is %5</source>
        <translation>%1 per %2 fa %3, e &quot;%4&quot; è %5</translation>
    </message>
    <message>
        <source>the rows come to %1, and %2</source>
        <translation>le righe fanno %1, e %2</translation>
    </message>
    <message>
        <source>%1 %2, and &quot;%3&quot; is %4</source>
        <translation>%1 %2, e &quot;%3&quot; è %4</translation>
    </message>
    <message>
        <source>the %1 has rows and no &lt;%2&gt;: no total is printed</source>
        <translation>il documento %1 ha righe e nessun &lt;%2&gt;: non si stampa alcun totale</translation>
    </message>
    <message>
        <source>the total stands here a second time, with no row in front of it, and prints again</source>
        <translation>il totale sta qui una seconda volta, senza righe prima, e si stampa di nuovo</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands behind the total and prints below it</source>
        <translation>&lt;%1&gt; sta dopo il totale e si stampa sotto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2: a %3 in it breaks the printer&apos;s command</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2: %3 vi spezza il comando della stampante</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a line break, which breaks the printed line</source>
        <translation>&quot;%1&quot; di &lt;%2&gt; ha un a capo, che spezza la riga stampata</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a &quot;)&quot;, which some printers take for the end of the line</source>
        <translation>&quot;%1&quot; di &lt;%2&gt; ha una &quot;)&quot;, che alcune stampanti prendono per la fine della riga</translation>
    </message>
    <message>
        <source>%1 a tab or another control character</source>
        <translation>%1 un tabulatore o un altro carattere di controllo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has TOTALE, which prints as T0TALE</source>
        <translation>&quot;%1&quot; di &lt;%2&gt; ha TOTALE, che si stampa come T0TALE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has an empty part: what follows is not printed</source>
        <translation>&quot;%1&quot; ha una parte vuota: ciò che segue non si stampa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, probably %3: UTF-8 was read as %4 and saved again</source>
        <translation>&quot;%1&quot; è %2, probabilmente %3: UTF-8 è stato letto come %4 e salvato di nuovo</translation>
    </message>
    <message>
        <source>%1 %2, which prints as it is: it was escaped twice</source>
        <translation>%1 %2, che si stampa così com&apos;è: è stato codificato due volte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what %2 lacks: %3</source>
        <translation>&quot;%1&quot; ha ciò che manca a %2: %3</translation>
    </message>
    <message>
        <source>%1: %2 is off in %3</source>
        <translation>%1: %2 è disattivato in %3</translation>
    </message>
    <message>
        <source>a line of %1 characters is wider than the paper (%2): %3%4</source>
        <translation>una riga di %1 caratteri è più larga della carta (%2): %3%4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut in the middle of %2, which prints as another character</source>
        <translation>&quot;%1&quot; è tagliato a metà di %2, che si stampa come un altro carattere</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; si intende &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;...&quot;/&gt;</source>
        <translation>cominciare con &lt;method name=&quot;...&quot;/&gt;</translation>
    </message>
    <message>
        <source>did you mean &lt;method&gt; by &lt;%1&gt;?</source>
        <translation>con &lt;%1&gt; si intende &lt;method&gt;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>cominciare con &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>this</source>
        <translation>questo punto</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>la riga %1</translation>
    </message>
    <message>
        <source>an instruction has no name</source>
        <translation>un&apos;istruzione non ha nome</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name</source>
        <translation>&quot;%1&quot; non è un nome</translation>
    </message>
    <message>
        <source>XML %1 is not read; write 1.0</source>
        <translation>XML %1 non viene letto; scrivere 1.0</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in %2: the paper ends here; name %2, or none</source>
        <translation>è indicato %1, ma il lavoro è scritto in %2: la carta finisce qui; indicare %2, o nulla</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none</source>
        <translation>è indicato %1, ma il lavoro è scritto in UTF-8: gli accenti si stampano male; indicare UTF-8, o nulla</translation>
    </message>
    <message>
        <source>the checker cannot read the encoding &quot;%1&quot;: nothing else was checked; write UTF-8</source>
        <translation>la codifica &quot;%1&quot; non si può leggere: non è stato controllato altro; scrivere UTF-8</translation>
    </message>
    <message>
        <source>not %1: the bytes here print as a replacement character; save the job as UTF-8, or name what it is written in</source>
        <translation>non è %1: questi byte si stampano come carattere sostitutivo; salvare il lavoro in UTF-8, o indicare in che cosa è scritto</translation>
    </message>
    <message>
        <source>more than %1 elements nested in each other: the paper ends here</source>
        <translation>più di %1 elementi annidati: la carta finisce qui</translation>
    </message>
    <message>
        <source>more than %1 namespaces declared: the paper ends here</source>
        <translation>più di %1 spazi dei nomi dichiarati: la carta finisce qui</translation>
    </message>
    <message>
        <source>more entities than the renderer takes, longer ones, or one in itself: the paper ends here</source>
        <translation>più entità di quante ne accetti il programma di stampa, più lunghe, o una in se stessa: la carta finisce qui</translation>
    </message>
    <message>
        <source>more than %1 attributes in the document type: nothing behind this was checked</source>
        <translation>più di %1 attributi nel tipo di documento: dopo non è stato controllato nulla</translation>
    </message>
    <message>
        <source>groups and settings that are too many, too deep or too long are read over: %1</source>
        <translation>gruppi e impostazioni troppo numerosi, troppo annidati o troppo lunghi non vengono letti: %1</translation>
    </message>
    <message>
        <source>no document is called %1</source>
        <translation>nessun documento si chiama %1</translation>
    </message>
    <message>
        <source>the method has no name</source>
        <translation>il metodo non ha nome</translation>
    </message>
    <message>
        <source>; write &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>; scrivere &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>its figure is lost</source>
        <translation>la sua cifra si perde</translation>
    </message>
    <message>
        <source>their figures are lost</source>
        <translation>le loro cifre si perdono</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;, which is missing?</source>
        <translation>; si intende &quot;%1&quot;, che manca?</translation>
    </message>
    <message>
        <source>, and its &quot;%1&quot; is missing</source>
        <translation>, e manca &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as an element, which prints nothing: write it as an attribute</source>
        <translation>&lt;%1&gt; ha %2 come elemento, che non stampa nulla: scriverlo come attributo</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as elements, which print nothing: write them as attributes</source>
        <translation>&lt;%1&gt; ha %2 come elementi, che non stampano nulla: scriverli come attributi</translation>
    </message>
    <message>
        <source>the text %1 in &lt;%2&gt; is not printed: write it as an attribute</source>
        <translation>il testo %1 in &lt;%2&gt; non viene stampato: scriverlo come attributo</translation>
    </message>
    <message>
        <source>; it is printed in %1</source>
        <translation>; si stampa in: %1</translation>
    </message>
    <message>
        <source>its place prints empty</source>
        <translation>il suo posto resta vuoto</translation>
    </message>
    <message>
        <source>their places print empty</source>
        <translation>i loro posti restano vuoti</translation>
    </message>
    <message>
        <source>it prints as &quot;-&quot;, something left out</source>
        <translation>si stampa come &quot;-&quot;, qualcosa di tolto</translation>
    </message>
    <message>
        <source>&quot;number&quot; and &quot;totals&quot; must be the first two attributes, and are not: all others are taken for serial number, total and tax rate of one document after the other</source>
        <translation>&quot;number&quot; e &quot;totals&quot; devono essere i primi due attributi e non lo sono: tutti gli altri sono presi per numero di serie, totale e aliquota di un documento dopo l&apos;altro</translation>
    </message>
    <message>
        <source>each cancelled document takes three attributes behind &quot;number&quot; and &quot;totals&quot;, its serial number, total and tax rate; there are %1</source>
        <translation>ogni documento annullato prende tre attributi dopo &quot;number&quot; e &quot;totals&quot;: numero di serie, totale e aliquota; ce ne sono %1</translation>
    </message>
    <message>
        <source>&quot;number&quot; is %1, but the cancelled documents that are listed are %2</source>
        <translation>&quot;number&quot; è %1, ma i documenti annullati elencati sono %2</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgola</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; is %3</source>
        <translation>&quot;%1&quot; di &lt;%2&gt; è %3</translation>
    </message>
    <message>
        <source>the tax lines come to %1</source>
        <translation>le righe delle imposte fanno %1</translation>
    </message>
    <message>
        <source>%1 of %2 is</source>
        <translation>%1 di %2 fa</translation>
    </message>
    <message>
        <source>%1 and %2 come to</source>
        <translation>%1 e %2 fanno</translation>
    </message>
    <message>
        <source>0 is registered</source>
        <translation>si registra 0</translation>
    </message>
    <message>
        <source>the printer may refuse it</source>
        <translation>la stampante può rifiutarla</translation>
    </message>
    <message>
        <source>no number: 0 is registered</source>
        <translation>non è un numero: si registra 0</translation>
    </message>
    <message>
        <source>no plain number</source>
        <translation>non è un numero semplice</translation>
    </message>
    <message>
        <source>more than the printer takes</source>
        <translation>più di quanto accetti la stampante</translation>
    </message>
    <message>
        <source>line break</source>
        <translation>un a capo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has</source>
        <translation>&quot;%1&quot; di &lt;%2&gt; ha</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with</source>
        <translation>&quot;%1&quot; di una riga di vendita è %2, con</translation>
    </message>
    <message>
        <source>U+FFFD in place of a character that was lost before</source>
        <translation>U+FFFD al posto di un carattere perso prima</translation>
    </message>
    <message>
        <source>%1, a character without a shape; leave it out</source>
        <translation>%1, un carattere senza forma; toglierlo</translation>
    </message>
    <message>
        <source>%1 prints as %2</source>
        <translation>%1 si stampa come %2</translation>
    </message>
    <message>
        <source>, and %1 more</source>
        <translation>, e altri %1</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not printed</source>
        <translation>&lt;%1&gt; non viene stampato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not printed</source>
        <translation>&quot;%1&quot; non viene stampato</translation>
    </message>
    <message>
        <source>of &lt;headers&gt; only the printer&apos;s name is printed</source>
        <translation>di &lt;headers&gt; si stampa solo il nome della stampante</translation>
    </message>
    <message>
        <source>; &quot;%1&quot; is %2 in a column of %3 (%4 in %5)</source>
        <translation>; &quot;%1&quot; è %2 in una colonna di %3 (%4 in %5)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>it has no group korvel: { ... };</source>
        <translation>non ha un gruppo korvel: { ... };</translation>
    </message>
    <message>
        <source>no setting stands in it</source>
        <translation>non contiene impostazioni</translation>
    </message>
    <message>
        <source>it is written as %1; settings are written korvel: { doc: { paperWidth = &quot;32&quot;; }; };</source>
        <translation>è scritto come %1; le impostazioni si scrivono korvel: { doc: { paperWidth = &quot;32&quot;; }; };</translation>
    </message>
    <message>
        <source>its first group is %1, not korvel%2</source>
        <translation>il suo primo gruppo è %1, non korvel%2</translation>
    </message>
    <message>
        <source>its first group has no name%1</source>
        <translation>il suo primo gruppo non ha nome%1</translation>
    </message>
    <message>
        <source>a byte order mark stands in front of it</source>
        <translation>davanti c&apos;è un segno d&apos;ordine dei byte</translation>
    </message>
    <message>
        <source>it is written as UTF-16</source>
        <translation>è scritto in UTF-16</translation>
    </message>
    <message>
        <source>the group %1</source>
        <translation>il gruppo %1</translation>
    </message>
    <message>
        <source>what follows</source>
        <translation>ciò che segue</translation>
    </message>
    <message>
        <source>%1 is %2: does the line end with ;?</source>
        <translation>%1 è %2: la riga finisce con ;?</translation>
    </message>
    <message>
        <source>; does the line end with ;?</source>
        <translation>; la riga finisce con ;?</translation>
    </message>
    <message>
        <source>a } has no ; behind it: %1 is skipped</source>
        <translation>dopo una } manca ;: %1 viene saltato</translation>
    </message>
    <message>
        <source>the group %1 is not closed: a }; is missing here</source>
        <translation>il gruppo %1 non è chiuso: qui manca };</translation>
    </message>
    <message>
        <source>the file ends inside the group %1: a }; is missing, if not more</source>
        <translation>il file finisce nel gruppo %1: manca almeno una };</translation>
    </message>
    <message>
        <source>a } closes %1 too early: what follows is not read</source>
        <translation>una } chiude %1 troppo presto: ciò che segue non viene letto</translation>
    </message>
    <message>
        <source>a } closes nothing: what follows is not read</source>
        <translation>una } non chiude nulla: ciò che segue non viene letto</translation>
    </message>
    <message>
        <source>the group %1 has no { behind its name</source>
        <translation>il gruppo %1 non ha { dopo il nome</translation>
    </message>
    <message>
        <source>the group %1 has no : behind its name%2</source>
        <translation>il gruppo %1 non ha : dopo il nome%2</translation>
    </message>
    <message>
        <source>the group %1 has neither : nor { behind its name%2</source>
        <translation>il gruppo %1 non ha né : né { dopo il nome%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where the &quot;%2&quot; of %3 belongs</source>
        <translation>&quot;%1&quot; sta dove va il &quot;%2&quot; di %3</translation>
    </message>
    <message>
        <source>%1 stands where a &quot; of %2 belongs, and becomes part of the value</source>
        <translation>%1 sta dove va un &quot; di %2, e diventa parte del valore</translation>
    </message>
    <message>
        <source>%1: it is read as %2</source>
        <translation>%1: si legge come %2</translation>
    </message>
    <message>
        <source>a { too many: %1 has one already</source>
        <translation>una { di troppo: %1 ne ha già una</translation>
    </message>
    <message>
        <source>%1 has no = behind its name and is not read</source>
        <translation>%1 non ha = dopo il nome e non viene letto</translation>
    </message>
    <message>
        <source>no name stands before the =: %1 is not read</source>
        <translation>prima del = non c&apos;è un nome: %1 non viene letto</translation>
    </message>
    <message>
        <source>no catalogue is found as %1</source>
        <translation>nessun catalogo si trova in %1</translation>
    </message>
    <message>
        <source>%1 is no catalogue</source>
        <translation>%1 non è un catalogo</translation>
    </message>
    <message>
        <source>; letters beyond ASCII are misread: leave them out of paths</source>
        <translation>; le lettere oltre l&apos;ASCII vengono lette male: non usarle nei percorsi</translation>
    </message>
    <message>
        <source>; file must begin with a /</source>
        <translation>; file deve cominciare con /</translation>
    </message>
    <message>
        <source>the columns of the %1 leave no room for the description: the others and the blanks take %2 of %3 characters</source>
        <translation>le colonne del documento (%1) non lasciano posto alla descrizione: le altre e gli spazi prendono %2 caratteri su %3</translation>
    </message>
    <message>
        <source>%1 is %2: the description of the %3 gets as many characters too many</source>
        <translation>%1 è %2: la descrizione ha altrettanti caratteri di troppo (%3)</translation>
    </message>
    <message>
        <source>paperWidth is %1: lines are wider than the printer&apos;s %2 characters</source>
        <translation>paperWidth è %1: le righe sono più larghe dei %2 caratteri della stampante</translation>
    </message>
    <message>
        <source>no document reads the group %1</source>
        <translation>nessun documento legge il gruppo %1</translation>
    </message>
    <message>
        <source>a group has no name before its {</source>
        <translation>un gruppo non ha nome prima della {</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and %1 is another</source>
        <translation>si legge solo il primo gruppo del file, e %1 è un altro</translation>
    </message>
    <message>
        <source>documents&apos; groups stand in korvel itself, not in %1</source>
        <translation>i gruppi dei documenti stanno in korvel stesso, non in %1</translation>
    </message>
    <message>
        <source>what the one in line %1 sets counts, this one adds what it does not set</source>
        <translation>vale ciò che imposta quello della riga %1; questo aggiunge ciò che esso non imposta</translation>
    </message>
    <message>
        <source>this one counts, not that in line %1</source>
        <translation>vale questa, non quella della riga %1</translation>
    </message>
    <message>
        <source>; only true switches it on</source>
        <translation>; lo attiva solo true</translation>
    </message>
    <message>
        <source>it stands outside the group korvel</source>
        <translation>sta fuori dal gruppo korvel</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and it must be korvel</source>
        <translation>si legge solo il primo gruppo del file, che deve essere korvel</translation>
    </message>
    <message>
        <source>settings stand in a document&apos;s group or in language, in korvel%1</source>
        <translation>le impostazioni stanno nel gruppo di un documento o in language, in korvel%1</translation>
    </message>
    <message>
        <source>; does a } lack its ;?</source>
        <translation>; a una } manca il suo ;?</translation>
    </message>
    <message>
        <source>no document has such a group%1</source>
        <translation>nessun documento ha un gruppo simile%1</translation>
    </message>
    <message>
        <source>there is no such setting%1</source>
        <translation>non esiste un&apos;impostazione simile%1</translation>
    </message>
    <message>
        <source>it is commented out; nothing else is lost by it, but deleting it is safer</source>
        <translation>è commentato; non si perde altro, ma cancellarlo è più sicuro</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>del file non si legge nulla: %1</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1; save it as plain ASCII</source>
        <translation>del file non si legge nulla: %1; salvarlo come ASCII semplice</translation>
    </message>
    <message>
        <source>%1 is read as part of what follows: %2 is lost; there are no comments</source>
        <translation>%1 si legge come parte di ciò che segue: %2 si perde; non ci sono commenti</translation>
    </message>
    <message>
        <source>%1: its settings are lost%2</source>
        <translation>%1: le sue impostazioni si perdono%2</translation>
    </message>
    <message>
        <source>labels stay English: %1</source>
        <translation>le etichette restano in inglese: %1</translation>
    </message>
    <message>
        <source>nothing reads %1: %2</source>
        <translation>nulla legge %1: %2</translation>
    </message>
    <message>
        <source>%1 stands here a second time: %2</source>
        <translation>%1 sta qui una seconda volta: %2</translation>
    </message>
    <message>
        <source>%1 is %2 and counts as off%3</source>
        <translation>%1 è %2 e vale come disattivato%3</translation>
    </message>
    <message>
        <source>%1 is %2, no whole number, and counts as 0%3</source>
        <translation>%1 è %2, che non è un numero intero, e vale come 0%3</translation>
    </message>
    <message>
        <source>all documents but %1</source>
        <translation>tutti i documenti tranne: %1</translation>
    </message>
    <message>
        <source>a %1 of %2 characters is wider than the paper (%3)</source>
        <translation>%1 di %2 caratteri, più largo della carta (%3)</translation>
    </message>
    <message>
        <source>the stream is empty: nothing is printed</source>
        <translation>il flusso è vuoto: non si stampa nulla</translation>
    </message>
    <message>
        <source>the %1 opened here is never closed</source>
        <translation>%1: si apre qui e non si chiude mai</translation>
    </message>
    <message>
        <source>the %1 opened at byte %2 is still open where the %3 is opened</source>
        <translation>%1 (byte %2) ancora aperto dove si apre %3</translation>
    </message>
    <message>
        <source>the %1 is closed but not open</source>
        <translation>%1: si chiude, ma non è aperto</translation>
    </message>
    <message>
        <source>a %1 outside a fiscal section</source>
        <translation>%1 fuori da una sezione fiscale</translation>
    </message>
    <message>
        <source>the amount %1 is no whole number of hundredths</source>
        <translation>l&apos;importo %1 non è un numero intero di centesimi</translation>
    </message>
    <message>
        <source>the quantity %1 is no number</source>
        <translation>la quantità %1 non è un numero</translation>
    </message>
    <message>
        <source>the %1 is too large for the preview to add up</source>
        <translation>%1: troppo grande per essere sommato</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a text ends it early</source>
        <translation>&quot;%1&quot; in un testo lo chiude troppo presto</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a field of a sale row ends it early</source>
        <translation>&quot;%1&quot; in un campo di una riga di vendita lo chiude troppo presto</translation>
    </message>
    <message>
        <source>the line break %1 inside a text ends it early</source>
        <translation>l&apos;a capo %1 in un testo lo chiude troppo presto</translation>
    </message>
    <message>
        <source>the control character %1 inside a text</source>
        <translation>il carattere di controllo %1 in un testo</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 non è %2</translation>
    </message>
    <message>
        <source>broken %1: %2 does not belong here</source>
        <translation>%1, con errori: %2 non va qui</translation>
    </message>
    <message>
        <source>unterminated %1 that begins at byte %2: the stream ends here</source>
        <translation>%1, incompleto (byte %2): il flusso finisce qui</translation>
    </message>
    <message>
        <source>too much is wrong; no more is listed</source>
        <translation>troppi errori; il resto non è elencato</translation>
    </message>
    <message>
        <source>too much is odd; no more is listed</source>
        <translation>troppe stranezze; il resto non è elencato</translation>
    </message>
    <message>
        <source>line</source>
        <translation>riga</translation>
    </message>
    <message>
        <source>text line</source>
        <translation>riga di testo</translation>
    </message>
    <message>
        <source>section opening</source>
        <translation>apertura di sezione</translation>
    </message>
    <message>
        <source>section closing</source>
        <translation>chiusura di sezione</translation>
    </message>
    <message>
        <source>sale row</source>
        <translation>riga di vendita</translation>
    </message>
    <message>
        <source>deduction</source>
        <translation>detrazione</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>comando sconosciuto</translation>
    </message>
    <message>
        <source>fiscal section</source>
        <translation>sezione fiscale</translation>
    </message>
    <message>
        <source>receipt section</source>
        <translation>sezione di ricevuta</translation>
    </message>
    <message>
        <source>document section</source>
        <translation>sezione di documento</translation>
    </message>
    <message>
        <source>unknown command that begins at byte %1: the stream ends here</source>
        <translation>comando sconosciuto (byte %1): il flusso finisce qui</translation>
    </message>
    <message>
        <source>unknown command: %1 does not belong here</source>
        <translation>comando sconosciuto: %1 non va qui</translation>
    </message>
    <message>
        <source>this is not well-formed</source>
        <translation>questo non è XML ben formato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; or %2</source>
        <translation>&quot;%1&quot; o %2</translation>
    </message>
    <message>
        <source>XML forbids the character {character}</source>
        <translation>XML vieta il carattere {character}</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins no reference; write &amp;amp;</source>
        <translation>&quot;&amp;&quot; non inizia alcun riferimento; scrivere &amp;amp;</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins a reference without its &quot;;&quot;; write &amp;amp;, or end the reference</source>
        <translation>&quot;&amp;&quot; inizia un riferimento senza il suo &quot;;&quot;; scrivere &amp;amp;, o terminare il riferimento</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote, or a &quot;&lt;&quot;; for that write &amp;lt;</source>
        <translation>al valore che inizia qui mancano le virgolette di chiusura, o contiene un &quot;&lt;&quot;; per questo scrivere &amp;lt;</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in a value; write &amp;lt;, or end the value with its quote</source>
        <translation>&quot;&lt;&quot; in un valore; scrivere &amp;lt;, o chiudere il valore con le sue virgolette</translation>
    </message>
    <message>
        <source>&quot;--&quot; in a comment; write a single -</source>
        <translation>&quot;--&quot; in un commento; scrivere un solo -</translation>
    </message>
    <message>
        <source>a comment begins with &lt;!--</source>
        <translation>un commento inizia con &lt;!--</translation>
    </message>
    <message>
        <source>&quot;]]&gt;&quot; in a text; write ]]&amp;gt;</source>
        <translation>&quot;]]&gt;&quot; in un testo; scrivere ]]&amp;gt;</translation>
    </message>
    <message>
        <source>&quot;&lt;/&quot; without a name</source>
        <translation>&quot;&lt;/&quot; senza un nome</translation>
    </message>
    <message>
        <source>an end tag where no element is open</source>
        <translation>un tag di chiusura dove nessun elemento è aperto</translation>
    </message>
    <message>
        <source>an XML declaration begins with &lt;?xml, in small letters</source>
        <translation>una dichiarazione XML inizia con &lt;?xml, in minuscolo</translation>
    </message>
    <message>
        <source>&quot;&lt;?&quot; without a name</source>
        <translation>&quot;&lt;?&quot; senza un nome</translation>
    </message>
    <message>
        <source>&quot;&lt;!&quot; begins no comment and no CDATA section</source>
        <translation>&quot;&lt;!&quot; non inizia né un commento né una sezione CDATA</translation>
    </message>
    <message>
        <source>a blank behind &quot;&lt;&quot;; the name of a tag stands right behind it</source>
        <translation>uno spazio dopo &quot;&lt;&quot;; il nome di un tag segue subito</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; begins no tag; write &amp;lt;</source>
        <translation>&quot;&lt;&quot; non inizia alcun tag; scrivere &amp;lt;</translation>
    </message>
    <message>
        <source>{character} is no quote to XML; write &quot; or &apos;</source>
        <translation>{character} non è una virgoletta per XML; scrivere &quot; o &apos;</translation>
    </message>
    <message>
        <source>a value without quotes; write {value}</source>
        <translation>un valore senza virgolette; scrivere {value}</translation>
    </message>
    <message>
        <source>the tag that begins here has no &quot;&gt;&quot;</source>
        <translation>al tag che inizia qui manca il &quot;&gt;&quot;</translation>
    </message>
    <message>
        <source>{character} behind the name of an end tag, which has nothing else</source>
        <translation>{character} dopo il nome di un tag di chiusura, che non contiene altro</translation>
    </message>
    <message>
        <source>&quot;/&quot; in a tag without a &quot;&gt;&quot; behind it</source>
        <translation>&quot;/&quot; in un tag senza un &quot;&gt;&quot; dopo</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote</source>
        <translation>al valore che inizia qui mancano le virgolette di chiusura</translation>
    </message>
    <message>
        <source>no blank between a value and the next attribute</source>
        <translation>nessuno spazio tra un valore e l&apos;attributo successivo</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; a tag without content ends with /&gt;</source>
        <translation>{character} non può stare dopo un valore; un tag senza contenuto finisce con /&gt;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; blanks alone part attributes</source>
        <translation>{character} non può stare dopo un valore; gli attributi si separano solo con spazi</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a &apos; in a value write &amp;apos;</source>
        <translation>{character} non può stare dopo un valore; per un &apos; in un valore scrivere &amp;apos;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a quote in a value write &amp;quot;</source>
        <translation>{character} non può stare dopo un valore; per le virgolette in un valore scrivere &amp;quot;</translation>
    </message>
    <message>
        <source>a value without a &quot;=&quot; before it</source>
        <translation>un valore senza un &quot;=&quot; davanti</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>un attributo senza valore</translation>
    </message>
    <message>
        <source>{character} cannot begin a name</source>
        <translation>{character} non può iniziare un nome</translation>
    </message>
    <message>
        <source>{character} cannot stand in a name</source>
        <translation>{character} non può stare in un nome</translation>
    </message>
    <message>
        <source>a text outside the root</source>
        <translation>un testo fuori dall&apos;elemento radice</translation>
    </message>
    <message>
        <source>&amp;{name}; stands for what is not well-formed</source>
        <translation>&amp;{name}; sta per qualcosa che non è ben formato</translation>
    </message>
    <message>
        <source>an entity in this tag stands for what is not well-formed</source>
        <translation>un&apos;entità in questo tag sta per qualcosa che non è ben formato</translation>
    </message>
    <message>
        <source>{character} cannot stand here</source>
        <translation>{character} non può stare qui</translation>
    </message>
    <message>
        <source>a comment without its &quot;--&gt;&quot;</source>
        <translation>un commento senza il suo &quot;--&gt;&quot;</translation>
    </message>
    <message>
        <source>an XML declaration without its &quot;?&gt;&quot;</source>
        <translation>una dichiarazione XML senza il suo &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>an instruction without its &quot;?&gt;&quot;</source>
        <translation>un&apos;istruzione senza il suo &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>a tag without its &quot;&gt;&quot;, or with a quote too few</source>
        <translation>un tag senza il suo &quot;&gt;&quot;, o con una virgoletta in meno</translation>
    </message>
    <message>
        <source>what begins here does not end</source>
        <translation>ciò che inizia qui non finisce</translation>
    </message>
    <message>
        <source>a CDATA section without its &quot;]]&gt;&quot;</source>
        <translation>una sezione CDATA senza il suo &quot;]]&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;{open}&gt; is never closed; write &lt;/{open}&gt; where it ends, or /&gt; in place of its &gt;</source>
        <translation>&lt;{open}&gt; non viene mai chiuso; scrivere &lt;/{open}&gt; dove finisce, o /&gt; al posto del suo &gt;</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>non c&apos;è alcun elemento</translation>
    </message>
    <message>
        <source>&lt;/{name}&gt; where &lt;{open}&gt; of line {line} must be closed</source>
        <translation>&lt;/{name}&gt; dove va chiuso &lt;{open}&gt; della riga {line}</translation>
    </message>
    <message>
        <source>an end tag of an entity closes another element</source>
        <translation>un tag di chiusura di un&apos;entità chiude un altro elemento</translation>
    </message>
    <message>
        <source>an entity with a start tag or an end tag alone</source>
        <translation>un&apos;entità con il solo tag di apertura o il solo tag di chiusura</translation>
    </message>
    <message>
        <source>a second root; one element must hold all others</source>
        <translation>un secondo elemento radice; un solo elemento deve contenere tutti gli altri</translation>
    </message>
    <message>
        <source>a declaration or a section behind the end of the root</source>
        <translation>una dichiarazione o una sezione dopo la fine dell&apos;elemento radice</translation>
    </message>
    <message>
        <source>the XML declaration is not the first in the file; nothing may stand before it, no blank either</source>
        <translation>la dichiarazione XML non è all&apos;inizio del file; davanti non può stare nulla, nemmeno uno spazio</translation>
    </message>
    <message>
        <source>this is no XML declaration; write &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</source>
        <translation>questa non è una dichiarazione XML; scrivere &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</translation>
    </message>
    <message>
        <source>an attribute stands twice: &quot;{name}&quot;</source>
        <translation>un attributo compare due volte: &quot;{name}&quot;</translation>
    </message>
    <message>
        <source>an attribute stands twice, in an entity</source>
        <translation>un attributo compare due volte, in un&apos;entità</translation>
    </message>
    <message>
        <source>&amp;{name}; leads to no entity that is declared; write the character itself</source>
        <translation>&amp;{name}; non porta ad alcuna entità dichiarata; scrivere il carattere stesso</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};; write {written}</source>
        <translation>XML non conosce &amp;{name};; scrivere {written}</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};, only &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; write &amp;amp; for a plain &quot;&amp;&quot;</source>
        <translation>XML non conosce &amp;{name};, solo &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; per un semplice &quot;&amp;&quot; scrivere &amp;amp;</translation>
    </message>
    <message>
        <source>an entity that is not declared</source>
        <translation>un&apos;entità che non è dichiarata</translation>
    </message>
    <message>
        <source>&amp;{name}; is no character that XML allows</source>
        <translation>&amp;{name}; non è un carattere che XML ammette</translation>
    </message>
    <message>
        <source>a reference to what is no character</source>
        <translation>un riferimento a qualcosa che non è un carattere</translation>
    </message>
    <message>
        <source>an entity that refers to itself</source>
        <translation>un&apos;entità che si riferisce a se stessa</translation>
    </message>
    <message>
        <source>an entity that is no text</source>
        <translation>un&apos;entità che non è testo</translation>
    </message>
    <message>
        <source>an entity of another file in a value</source>
        <translation>un&apos;entità di un altro file in un valore</translation>
    </message>
    <message>
        <source>a parameter entity cannot stand here</source>
        <translation>un&apos;entità parametro non può stare qui</translation>
    </message>
    <message>
        <source>a parameter entity that is no whole declaration</source>
        <translation>un&apos;entità parametro che non è una dichiarazione completa</translation>
    </message>
    <message>
        <source>an entity that a parameter entity declares</source>
        <translation>un&apos;entità dichiarata da un&apos;entità parametro</translation>
    </message>
    <message>
        <source>a public identifier with a character that it cannot have</source>
        <translation>un identificatore pubblico con un carattere che non può contenere</translation>
    </message>
    <message>
        <source>entities that make too much text</source>
        <translation>entità che producono troppo testo</translation>
    </message>
    <message>
        <source>more than the memory can hold</source>
        <translation>più di quanto la memoria possa contenere</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Non c&apos;è nessun file %1.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 non è un file.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::AddDialog</name>
    <message>
        <source>Add a group</source>
        <translation>Aggiungere un gruppo</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Aggiungere un&apos;impostazione</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppo:</translation>
    </message>
    <message>
        <source>&amp;Setting:</source>
        <translation>&amp;Impostazione:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valore:</translation>
    </message>
</context>
<context>
    <name>korvel::settings::CatalogueBox</name>
    <message>
        <source>%1: labels in English</source>
        <translation>%1: etichette in inglese</translation>
    </message>
    <message>
        <source>the language of the system</source>
        <translation>la lingua del sistema</translation>
    </message>
</context>
<context>
    <name>korvel::settings::ExpertPane</name>
    <message>
        <source>Add a se&amp;tting …</source>
        <translation>Aggiungere un&apos;imp&amp;ostazione …</translation>
    </message>
    <message>
        <source>Add a &amp;group …</source>
        <translation>Aggiungere un &amp;gruppo …</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Rimuovere</translation>
    </message>
    <message>
        <source>Rows of the settings file</source>
        <translation>Righe del file delle impostazioni</translation>
    </message>
    <message>
        <source>ConfigurationFile</source>
        <translation>File di configurazione</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FieldRow</name>
    <message>
        <source>Restore: %1</source>
        <translation>Ripristinare: %1</translation>
    </message>
    <message>
        <source>labels: %1</source>
        <translation>etichette: %1</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non impostato</translation>
    </message>
    <message>
        <source>As in the file: %1</source>
        <translation>Come nel file: %1</translation>
    </message>
    <message>
        <source>As in the sample: %1</source>
        <translation>Come nell&apos;esempio: %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FindingsList</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La riga %1 è più larga della carta: %2 caratteri, su %3.</translation>
    </message>
    <message>
        <source>Lines %1 are wider than the paper: up to %2 characters, of %3.</source>
        <translation>Le righe %1 sono più larghe della carta: fino a %2 caratteri, su %3.</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Che cosa non va</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FormPane</name>
    <message>
        <source>This document prints nothing.</source>
        <translation>Questo documento non stampa nulla.</translation>
    </message>
    <message>
        <source>The same settings lay out: %1.</source>
        <translation>Le stesse impostazioni valgono per: %1.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::HelpPage</name>
    <message>
        <source>The help has no page %1.</source>
        <translation>La guida non ha la pagina %1.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Guida (in inglese): %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Panes</name>
    <message>
        <source>Do&amp;cuments</source>
        <translation>Do&amp;cumenti</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>C&amp;arta</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperPane</name>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Lavoro:</translation>
    </message>
    <message>
        <source>Sample of the shop</source>
        <translation>Esempio del negozio</translation>
    </message>
    <message>
        <source>Open a job file …</source>
        <translation>Aprire un file di lavoro …</translation>
    </message>
    <message>
        <source>Choose a job</source>
        <translation>Scegli un lavoro di stampa</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Lavori di stampa (*.xml);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Job, line %1: %2</source>
        <translation>Lavoro, riga %1: %2</translation>
    </message>
    <message>
        <source>Line %1 of the paper is made by no setting.</source>
        <translation>Nessuna impostazione produce la riga %1 della carta.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperView</name>
    <message>
        <source>The renderer %1 cannot be started.</source>
        <translation>Impossibile avviare il programma di stampa %1.</translation>
    </message>
    <message>
        <source>The temporary folder cannot be written.</source>
        <translation>Impossibile scrivere nella cartella temporanea.</translation>
    </message>
    <message>
        <source>The renderer %1 ended with an error.</source>
        <translation>Il programma di stampa %1 è terminato con un errore.</translation>
    </message>
    <message>
        <source>The renderer %1 wrote nothing.</source>
        <translation>Il programma di stampa %1 non ha scritto nulla.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Ruler</name>
    <message>
        <source>Ruler of the columns</source>
        <translation>Righello delle colonne</translation>
    </message>
    <message>
        <source>Drag the edge of a column to make it wider or narrower.</source>
        <translation>Trascinare il bordo di una colonna per allargarla o restringerla.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsDocument</name>
    <message>
        <source>Everything: nothing in the file could be read, and it would be emptied.</source>
        <translation>Tutto: nel file non si è potuto leggere nulla, e verrebbe svuotato.</translation>
    </message>
    <message>
        <source>%1 would be &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>%1 sarebbe &quot;%2&quot; invece di &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The group %1 has no settings.</source>
        <translation>Il gruppo %1 non ha impostazioni.</translation>
    </message>
    <message>
        <source>The group %1 stands beside %2; only the first group of a file is kept.</source>
        <translation>Il gruppo %1 sta accanto a %2; di un file si conserva solo il primo gruppo.</translation>
    </message>
    <message>
        <source>The group %1 would be moved to another place.</source>
        <translation>Il gruppo %1 verrebbe spostato altrove.</translation>
    </message>
    <message>
        <source>The setting %1 would be lost.</source>
        <translation>L&apos;impostazione %1 andrebbe persa.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>The previous file could not be kept as %1; nothing was saved.</source>
        <translation>Non è stato possibile conservare il file precedente come %1; non è stato salvato nulla.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be written whole; the previous file was put back.</source>
        <translation>Non è stato possibile scrivere %1 per intero; è stato ripristinato il file precedente.</translation>
    </message>
    <message>
        <source>The text at the end of the file is no setting.</source>
        <translation>Il testo alla fine del file non è un&apos;impostazione.</translation>
    </message>
    <message>
        <source>The text %1 is no setting.</source>
        <translation>Il testo %1 non è un&apos;impostazione.</translation>
    </message>
    <message>
        <source>The setting %1 stands twice; the last one is kept.</source>
        <translation>L&apos;impostazione %1 compare due volte; resta l&apos;ultima.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation>&amp;Apri …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Apri impostazioni</translation>
    </message>
    <message>
        <source>Settings (*.conf *.cfg);;All files (*)</source>
        <translation>Impostazioni (*.conf *.cfg);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened.</source>
        <translation>Il file è stato modificato da un altro programma dopo l&apos;apertura.</translation>
    </message>
    <message>
        <source>Save all the same</source>
        <translation>Salva comunque</translation>
    </message>
    <message>
        <source>Not everything can be saved.</source>
        <translation>Non è possibile salvare tutto.</translation>
    </message>
    <message>
        <source>There are edits that are not saved.</source>
        <translation>Ci sono modifiche non salvate.</translation>
    </message>
    <message>
        <source>There are no settings yet in %1.
Begin with the sample settings?</source>
        <translation>In %1 non ci sono ancora impostazioni.
Iniziare con le impostazioni di esempio?</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1[*] – Korvel settings</source>
        <translation>%1[*] – Impostazioni di Korvel</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossibile creare la cartella %1.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annullare</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripetere</translation>
    </message>
    <message>
        <source>The paper is too large for a picture; a PDF can hold it.</source>
        <translation>La carta è troppo grande per un&apos;immagine; un PDF può contenerla.</translation>
    </message>
    <message>
        <source>Save the settings as</source>
        <translation>Salvare le impostazioni con nome</translation>
    </message>
    <message>
        <source>There is no paper.</source>
        <translation>Non c&apos;è carta.</translation>
    </message>
    <message>
        <source>Export the paper</source>
        <translation>Esportare la carta</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png)</source>
        <translation>File PDF (*.pdf);;Immagine PNG (*.png)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;iuto</translation>
    </message>
    <message>
        <source>&amp;The settings file</source>
        <translation>&amp;Il file delle impostazioni</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Aprire &amp;recenti</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Salvare &amp;con nome …</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>A&amp;bbandonare</translation>
    </message>
    <message>
        <source>Open a &amp;job file …</source>
        <translation>Aprire un file di &amp;lavoro …</translation>
    </message>
    <message>
        <source>&amp;Export the paper …</source>
        <translation>Es&amp;portare la carta …</translation>
    </message>
    <message>
        <source>Field: &amp;not set</source>
        <translation>Campo: &amp;non impostato</translation>
    </message>
    <message>
        <source>Field: as in the &amp;file</source>
        <translation>Campo: come nel &amp;file</translation>
    </message>
    <message>
        <source>Field: as in the &amp;sample</source>
        <translation>Campo: come nell&apos;e&amp;sempio</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Paper &amp;larger</source>
        <translation>Carta più &amp;grande</translation>
    </message>
    <message>
        <source>Paper &amp;smaller</source>
        <translation>Carta più &amp;piccola</translation>
    </message>
    <message>
        <source>Paper in its &amp;own size</source>
        <translation>Carta nella sua &amp;dimensione</translation>
    </message>
    <message>
        <source>Paper as &amp;wide as its pane</source>
        <translation>Carta alla &amp;larghezza del riquadro</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>Im&amp;postazioni</translation>
    </message>
    <message>
        <source>E&amp;xpert</source>
        <translation>E&amp;sperto</translation>
    </message>
    <message>
        <source>Read by nothing (%1)</source>
        <translation>Non letto da nulla (%1)</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Salvato: %1</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Esportato: %1</translation>
    </message>
    <message>
        <source>%1 is neither settings nor a job. Choose a settings file such as korvel.conf, or a job in XML.</source>
        <translation>%1 non contiene né impostazioni né un lavoro. Scegliere un file di impostazioni come korvel.conf o un lavoro in XML.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::State</name>
    <message>
        <source>%1 on</source>
        <translation>%1 attivo</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 disattivo</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>gruppo %1</translation>
    </message>
    <message>
        <source>%1 not set</source>
        <translation>%1 non impostato</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>rimozione di %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SwitchBox</name>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivo</translation>
    </message>
    <message>
        <source>off (&quot;%1&quot;)</source>
        <translation>disattivo (&quot;%1&quot;)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::UnreadPane</name>
    <message>
        <source>Remove fr&amp;om the file</source>
        <translation>Togliere &amp;dal file</translation>
    </message>
    <message>
        <source>No document reads these. They are kept when the file is saved.</source>
        <translation>Nessun documento le legge. Restano quando si salva il file.</translation>
    </message>
    <message>
        <source>Settings and groups that nothing reads</source>
        <translation>Impostazioni e gruppi che nulla legge</translation>
    </message>
</context>
<context>
    <name>korvel::settings::hints</name>
    <message>
        <source>No document reads this: the renderer passes it over.</source>
        <translation>Nessun documento lo legge: il programma di stampa lo ignora.</translation>
    </message>
    <message>
        <source>Counts as off: only exactly &quot;true&quot; switches it on.</source>
        <translation>Vale come disattivato: lo attiva solo &quot;true&quot;, scritto esattamente così.</translation>
    </message>
    <message>
        <source>Not a whole number: counts as 0.</source>
        <translation>Non è un numero intero: vale 0.</translation>
    </message>
    <message>
        <source>Too wide for the paper: lines of more than 32 characters, or no room for the description.</source>
        <translation>Troppo largo per la carta: righe di più di 32 caratteri, o nessuno spazio per la descrizione.</translation>
    </message>
    <message>
        <source>Nothing on the paper depends on it.</source>
        <translation>Sulla carta non ne dipende nulla.</translation>
    </message>
    <message>
        <source>Read by: %1.</source>
        <translation>Letto da: %1.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: it is written as XML. Save as, in the menu File, writes the settings as the renderer reads them.</source>
        <translation>Il programma di stampa non legge nulla di questo file: è scritto in XML. «Salvare con nome», nel menu «File», scrive le impostazioni come il programma di stampa le legge.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: its first group is called %1, and not &quot;korvel&quot;.</source>
        <translation>Il programma di stampa non legge nulla di questo file: il suo primo gruppo si chiama %1 e non &quot;korvel&quot;.</translation>
    </message>
</context>
<context>
    <name>paper</name>
    <message>
        <source>DEDUCTION</source>
        <translation>DETRAZIONE</translation>
    </message>
    <message>
        <source>Sum (by the preview)</source>
        <translation>Somma (dell&apos;anteprima)</translation>
    </message>
    <message>
        <source>Sum so far (preview)</source>
        <translation>Parziale (anteprima)</translation>
    </message>
    <message>
        <source>Rows not counted</source>
        <translation>Righe non contate</translation>
    </message>
</context>
<context>
    <name>vocabulary</name>
    <message>
        <source>width of the quantity column</source>
        <translation>larghezza della colonna della quantità</translation>
    </message>
    <message>
        <source>width of the unit price column; in a statement, of the amount</source>
        <translation>larghezza della colonna del prezzo unitario; in un estratto conto, di quella dell&apos;importo</translation>
    </message>
    <message>
        <source>width of the last column, the amount</source>
        <translation>larghezza dell&apos;ultima colonna, quella dell&apos;importo</translation>
    </message>
    <message>
        <source>width of a line and of a separator. 0 is the printer&apos;s width. Centring always goes by the printer&apos;s 32</source>
        <translation>larghezza di una riga e di un separatore. 0 è la larghezza della stampante. La centratura si basa sempre sui 32 caratteri della stampante</translation>
    </message>
    <message>
        <source>nothing depends on it</source>
        <translation>non ne dipende nulla</translation>
    </message>
    <message>
        <source>read and discarded</source>
        <translation>letto e scartato</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>caratteri del nome di un articolo che vengono inviati. 0 è la larghezza della stampante; un numero negativo lascia il nome intero. Lo scontrino fiscale sintetico non taglia mai</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>il margine superiore</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a logo</source>
        <translation>nulla: riservato alle stampanti con logo</translation>
    </message>
    <message>
        <source>the company</source>
        <translation>l&apos;azienda</translation>
    </message>
    <message>
        <source>the customer&apos;s delivery address</source>
        <translation>l&apos;indirizzo di consegna del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s billing address</source>
        <translation>l&apos;indirizzo di fatturazione del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s telephone</source>
        <translation>il telefono del cliente</translation>
    </message>
    <message>
        <source>the whole customer block; the customer&apos;s other switches count only when it is on</source>
        <translation>tutto il blocco del cliente; gli altri interruttori del cliente contano solo se è attivato</translation>
    </message>
    <message>
        <source>the customer&apos;s license number</source>
        <translation>la partita IVA del cliente</translation>
    </message>
    <message>
        <source>the customer&apos;s fiscal code</source>
        <translation>il codice fiscale del cliente</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a drawer</source>
        <translation>nulla: riservato alle stampanti con cassetto</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>la cartella dei cataloghi di lingua</translation>
    </message>
    <message>
        <source>empty lines of the top margin; none when negative, 65536 at most</source>
        <translation>righe vuote del margine superiore; nessuna se il numero è negativo, al massimo 65536</translation>
    </message>
    <message>
        <source>the header lines. The printer&apos;s name after them has no switch</source>
        <translation>le righe d&apos;intestazione. Il nome della stampante che le segue non ha un interruttore</translation>
    </message>
    <message>
        <source>the date of the order information</source>
        <translation>la data delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>the time of the order information</source>
        <translation>l&apos;ora delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>the table of the order information</source>
        <translation>il tavolo delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>the credit of the order information</source>
        <translation>il credito delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>the waiter of the order information</source>
        <translation>il cameriere delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>the note of the order information</source>
        <translation>le note delle informazioni sull&apos;ordine</translation>
    </message>
    <message>
        <source>which catalogue: its name is put right behind the folder, and begins with `/`</source>
        <translation>quale catalogo: il suo nome segue direttamente la cartella e inizia con `/`</translation>
    </message>
</context>
</TS>
