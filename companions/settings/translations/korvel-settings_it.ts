<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
        <source>catalogue</source>
        <translation>catalogo</translation>
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
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
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
        <source>empty</source>
        <translation>vuoto</translation>
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
    <name>korvel::settings::PaperPane</name>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La riga %1 è più larga della carta: %2 caratteri, su %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
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
        <source>What is wrong</source>
        <translation>Che cosa non va</translation>
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
        <source>%1 is no file.</source>
        <translation>%1 non è un file.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
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
        <source>Save the rest</source>
        <translation>Salva il resto</translation>
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
        <source>The settings file</source>
        <translation>Il file delle impostazioni</translation>
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
        <source>Read by nothing</source>
        <translation>Non letto da nulla</translation>
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
        <source>empty</source>
        <translation>vuoto</translation>
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
        <source>empty lines that `geometry` prints; none when negative, 65536 at most</source>
        <translation>righe vuote che `geometry` stampa; nessuna se il numero è negativo, al massimo 65536</translation>
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
        <source>the lines of `headers`. The printer&apos;s name after them has no switch</source>
        <translation>le righe di `headers`. Il nome della stampante che le segue non ha un interruttore</translation>
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
        <source>the date of `orderinfo`</source>
        <translation>la data di `orderinfo`</translation>
    </message>
    <message>
        <source>the time of `orderinfo`</source>
        <translation>l&apos;ora di `orderinfo`</translation>
    </message>
    <message>
        <source>the table of `orderinfo`</source>
        <translation>il tavolo di `orderinfo`</translation>
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
        <source>the credit of `orderinfo`</source>
        <translation>il credito di `orderinfo`</translation>
    </message>
    <message>
        <source>the waiter of `orderinfo`</source>
        <translation>il cameriere di `orderinfo`</translation>
    </message>
    <message>
        <source>the note of `orderinfo`</source>
        <translation>le note di `orderinfo`</translation>
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
        <source>which catalogue; begins with `/`</source>
        <translation>quale catalogo; inizia con `/`</translation>
    </message>
</context>
</TS>
