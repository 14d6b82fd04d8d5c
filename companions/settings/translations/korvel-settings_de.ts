<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>documents</name>
    <message>
        <source>kitchen order</source>
        <translation>Küchenbon</translation>
    </message>
    <message>
        <source>full order</source>
        <translation>Zwischenrechnung</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>Beleg</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>Rechnung</translation>
    </message>
    <message>
        <source>delivery note</source>
        <translation>Lieferschein</translation>
    </message>
    <message>
        <source>fiscal receipt</source>
        <translation>Fiskalbeleg</translation>
    </message>
    <message>
        <source>summary order</source>
        <translation>Bestellung in Kurzform</translation>
    </message>
    <message>
        <source>summary receipt</source>
        <translation>Beleg in Kurzform</translation>
    </message>
    <message>
        <source>summary invoice</source>
        <translation>Rechnung in Kurzform</translation>
    </message>
    <message>
        <source>summary fiscal receipt</source>
        <translation>Fiskalbeleg in Kurzform</translation>
    </message>
    <message>
        <source>period report</source>
        <translation>Periodenübersicht</translation>
    </message>
    <message>
        <source>sold items</source>
        <translation>verkaufte Artikel</translation>
    </message>
    <message>
        <source>statement of account</source>
        <translation>Kontoauszug</translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>paper width</source>
        <translation>Papierbreite</translation>
    </message>
    <message>
        <source>quantity column</source>
        <translation>Mengenspalte</translation>
    </message>
    <message>
        <source>price column</source>
        <translation>Preisspalte</translation>
    </message>
    <message>
        <source>amount column</source>
        <translation>Betragsspalte</translation>
    </message>
    <message>
        <source>length of names</source>
        <translation>Länge der Namen</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>oberer Rand</translation>
    </message>
    <message>
        <source>lines of the top margin</source>
        <translation>Zeilen des oberen Rands</translation>
    </message>
    <message>
        <source>header lines</source>
        <translation>Kopfzeilen</translation>
    </message>
    <message>
        <source>company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>waiter</source>
        <translation>Bedienung</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>Guthaben</translation>
    </message>
    <message>
        <source>customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>delivery address</source>
        <translation>Lieferadresse</translation>
    </message>
    <message>
        <source>billing address</source>
        <translation>Rechnungsadresse</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>license number</source>
        <translation>Lizenznummer</translation>
    </message>
    <message>
        <source>fiscal code</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>Katalog</translation>
    </message>
    <message>
        <source>folder of the catalogues</source>
        <translation>Ordner der Kataloge</translation>
    </message>
    <message>
        <source>rows of a page</source>
        <translation>Zeilen einer Seite</translation>
    </message>
    <message>
        <source>style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>logo</source>
        <translation>Firmenlogo</translation>
    </message>
    <message>
        <source>cash drawer</source>
        <translation>Kassenschublade</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Top of the paper</source>
        <translation>Oben auf dem Papier</translation>
    </message>
    <message>
        <source>Order information</source>
        <translation>Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Language of the labels</source>
        <translation>Sprache der Beschriftungen</translation>
    </message>
    <message>
        <source>Read, without effect on the paper</source>
        <translation>Gelesen, ohne Wirkung auf das Papier</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::AddDialog</name>
    <message>
        <source>Add a group</source>
        <translation>Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Einstellung hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>&amp;Setting:</source>
        <translation>&amp;Einstellung:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
</context>
<context>
    <name>korvel::settings::CatalogueBox</name>
    <message>
        <source>%1: labels in English</source>
        <translation>%1: englische Beschriftungen</translation>
    </message>
</context>
<context>
    <name>korvel::settings::ExpertPane</name>
    <message>
        <source>Add a se&amp;tting …</source>
        <translation>E&amp;instellung hinzufügen …</translation>
    </message>
    <message>
        <source>Add a &amp;group …</source>
        <translation>&amp;Gruppe hinzufügen …</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>E&amp;ntfernen</translation>
    </message>
    <message>
        <source>Rows of the settings file</source>
        <translation>Zeilen der Einstellungsdatei</translation>
    </message>
    <message>
        <source>ConfigurationFile</source>
        <translation>Einstellungsdatei</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FieldRow</name>
    <message>
        <source>Restore: %1</source>
        <translation>Zurücksetzen: %1</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>labels: %1</source>
        <translation>Beschriftungen: %1</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht gesetzt</translation>
    </message>
    <message>
        <source>As in the file: %1</source>
        <translation>Wie in der Datei: %1</translation>
    </message>
    <message>
        <source>As in the sample: %1</source>
        <translation>Wie im Muster: %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FormPane</name>
    <message>
        <source>This document prints nothing.</source>
        <translation>Dieses Dokument druckt nichts.</translation>
    </message>
    <message>
        <source>The same settings lay out: %1.</source>
        <translation>Dieselben Einstellungen gelten für: %1.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperPane</name>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>Zeile %1 ist breiter als das Papier: %2 Zeichen, von %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>A&amp;uftrag:</translation>
    </message>
    <message>
        <source>Sample of the shop</source>
        <translation>Muster des Ladens</translation>
    </message>
    <message>
        <source>Open a job file …</source>
        <translation>Auftragsdatei öffnen …</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>Choose a job</source>
        <translation>Druckauftrag wählen</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Druckaufträge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Job, line %1: %2</source>
        <translation>Auftrag, Zeile %1: %2</translation>
    </message>
    <message>
        <source>Line %1 of the paper is made by no setting.</source>
        <translation>Zeile %1 des Papiers kommt von keiner Einstellung.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperView</name>
    <message>
        <source>The renderer %1 cannot be started.</source>
        <translation>Das Druckprogramm %1 lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>The temporary folder cannot be written.</source>
        <translation>In den temporären Ordner lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>The renderer %1 ended with an error.</source>
        <translation>Das Druckprogramm %1 endete mit einem Fehler.</translation>
    </message>
    <message>
        <source>The renderer %1 wrote nothing.</source>
        <translation>Das Druckprogramm %1 hat nichts geschrieben.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Ruler</name>
    <message>
        <source>Ruler of the columns</source>
        <translation>Lineal der Spalten</translation>
    </message>
    <message>
        <source>Drag the edge of a column to make it wider or narrower.</source>
        <translation>Ziehen Sie den Rand einer Spalte, um sie breiter oder schmaler zu machen.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsDocument</name>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>Everything: nothing in the file could be read, and it would be emptied.</source>
        <translation>Alles: In der Datei war nichts lesbar, und sie würde geleert.</translation>
    </message>
    <message>
        <source>%1 would be &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>%1 wäre &quot;%2&quot; statt &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The group %1 has no settings.</source>
        <translation>Die Gruppe %1 hat keine Einstellungen.</translation>
    </message>
    <message>
        <source>The group %1 stands beside %2; only the first group of a file is kept.</source>
        <translation>Die Gruppe %1 steht neben %2; nur die erste Gruppe einer Datei bleibt erhalten.</translation>
    </message>
    <message>
        <source>The group %1 would be moved to another place.</source>
        <translation>Die Gruppe %1 würde an eine andere Stelle verschoben.</translation>
    </message>
    <message>
        <source>The setting %1 would be lost.</source>
        <translation>Die Einstellung %1 ginge verloren.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>The previous file could not be kept as %1; nothing was saved.</source>
        <translation>Die bisherige Datei konnte nicht als %1 aufbewahrt werden; es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>%1 could not be written whole; the previous file was put back.</source>
        <translation>%1 konnte nicht vollständig geschrieben werden; die bisherige Datei wurde wiederhergestellt.</translation>
    </message>
    <message>
        <source>The text at the end of the file is no setting.</source>
        <translation>Der Text am Ende der Datei ist keine Einstellung.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Settings (*.conf *.cfg);;All files (*)</source>
        <translation>Einstellungen (*.conf *.cfg);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened.</source>
        <translation>Die Datei wurde seit dem Öffnen von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>Save all the same</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <source>Not everything can be saved.</source>
        <translation>Nicht alles lässt sich speichern.</translation>
    </message>
    <message>
        <source>Save the rest</source>
        <translation>Den Rest speichern</translation>
    </message>
    <message>
        <source>There are edits that are not saved.</source>
        <translation>Es gibt nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>There are no settings yet in %1.
Begin with the sample settings?</source>
        <translation>In %1 gibt es noch keine Einstellungen.
Mit den Beispieleinstellungen beginnen?</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>%1[*] – Korvel settings</source>
        <translation>%1[*] – Korvel-Einstellungen</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>The paper is too large for a picture; a PDF can hold it.</source>
        <translation>Das Papier ist für ein Bild zu groß; ein PDF kann es fassen.</translation>
    </message>
    <message>
        <source>Save the settings as</source>
        <translation>Einstellungen speichern unter</translation>
    </message>
    <message>
        <source>There is no paper.</source>
        <translation>Es gibt kein Papier.</translation>
    </message>
    <message>
        <source>Export the paper</source>
        <translation>Papier exportieren</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png)</source>
        <translation>PDF-Datei (*.pdf);;PNG-Bild (*.png)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;The settings file</source>
        <translation>&amp;Die Einstellungsdatei</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Open a &amp;job file …</source>
        <translation>&amp;Auftragsdatei öffnen …</translation>
    </message>
    <message>
        <source>&amp;Export the paper …</source>
        <translation>Papier &amp;exportieren …</translation>
    </message>
    <message>
        <source>Field: &amp;not set</source>
        <translation>Feld: &amp;nicht gesetzt</translation>
    </message>
    <message>
        <source>Field: as in the &amp;file</source>
        <translation>Feld: wie in der &amp;Datei</translation>
    </message>
    <message>
        <source>Field: as in the &amp;sample</source>
        <translation>Feld: wie im &amp;Muster</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Paper &amp;larger</source>
        <translation>Papier &amp;größer</translation>
    </message>
    <message>
        <source>Paper &amp;smaller</source>
        <translation>Papier &amp;kleiner</translation>
    </message>
    <message>
        <source>Paper in its &amp;own size</source>
        <translation>Papier in &amp;Originalgröße</translation>
    </message>
    <message>
        <source>Paper as &amp;wide as its pane</source>
        <translation>Papier in &amp;voller Breite</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>The settings file</source>
        <translation>Die Einstellungsdatei</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Read by nothing</source>
        <translation>Von nichts gelesen</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>E&amp;xpert</source>
        <translation>E&amp;xperte</translation>
    </message>
    <message>
        <source>Read by nothing (%1)</source>
        <translation>Von nichts gelesen (%1)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::State</name>
    <message>
        <source>%1 on</source>
        <translation>%1 an</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 aus</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>%1 not set</source>
        <translation>%1 nicht gesetzt</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>Entfernen von %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SwitchBox</name>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>off (&quot;%1&quot;)</source>
        <translation>aus (&quot;%1&quot;)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::UnreadPane</name>
    <message>
        <source>Remove fr&amp;om the file</source>
        <translation>Aus der Datei entfe&amp;rnen</translation>
    </message>
    <message>
        <source>No document reads these. They are kept when the file is saved.</source>
        <translation>Kein Dokument liest diese. Beim Speichern bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>Settings and groups that nothing reads</source>
        <translation>Einstellungen und Gruppen, die nichts liest</translation>
    </message>
</context>
<context>
    <name>korvel::settings::hints</name>
    <message>
        <source>No document reads this: the renderer passes it over.</source>
        <translation>Kein Dokument liest das: Das Druckprogramm übergeht es.</translation>
    </message>
    <message>
        <source>Counts as off: only exactly &quot;true&quot; switches it on.</source>
        <translation>Zählt als aus: Nur genau &quot;true&quot; schaltet es ein.</translation>
    </message>
    <message>
        <source>Not a whole number: counts as 0.</source>
        <translation>Keine ganze Zahl: zählt als 0.</translation>
    </message>
    <message>
        <source>Too wide for the paper: lines of more than 32 characters, or no room for the description.</source>
        <translation>Zu breit für das Papier: Zeilen mit mehr als 32 Zeichen oder kein Platz für die Bezeichnung.</translation>
    </message>
    <message>
        <source>Nothing on the paper depends on it.</source>
        <translation>Auf dem Papier hängt nichts davon ab.</translation>
    </message>
    <message>
        <source>Read by: %1.</source>
        <translation>Gelesen von: %1.</translation>
    </message>
</context>
<context>
    <name>vocabulary</name>
    <message>
        <source>width of the quantity column</source>
        <translation>Breite der Spalte für die Anzahl</translation>
    </message>
    <message>
        <source>width of the unit price column; in a statement, of the amount</source>
        <translation>Breite der Spalte für den Einzelpreis; im Kontoauszug der für den Betrag</translation>
    </message>
    <message>
        <source>width of the last column, the amount</source>
        <translation>Breite der letzten Spalte, der für den Betrag</translation>
    </message>
    <message>
        <source>width of a line and of a separator. 0 is the printer&apos;s width. Centring always goes by the printer&apos;s 32</source>
        <translation>Breite einer Zeile und einer Trennlinie. 0 ist die Breite des Druckers. Zentriert wird immer nach den 32 Zeichen des Druckers</translation>
    </message>
    <message>
        <source>nothing depends on it</source>
        <translation>davon hängt nichts ab</translation>
    </message>
    <message>
        <source>read and discarded</source>
        <translation>wird gelesen und verworfen</translation>
    </message>
    <message>
        <source>empty lines that `geometry` prints; none when negative, 65536 at most</source>
        <translation>Leerzeilen, die `geometry` druckt; keine bei einer negativen Zahl, höchstens 65536</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>Zeichen eines Artikelnamens, die gesendet werden. 0 ist die Breite des Druckers; bei einer negativen Zahl bleibt der Name ganz. Der Fiskalbeleg in Kurzform kürzt nie</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>der obere Rand</translation>
    </message>
    <message>
        <source>the lines of `headers`. The printer&apos;s name after them has no switch</source>
        <translation>die Zeilen von `headers`. Der Name des Druckers danach hat keinen Schalter</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a logo</source>
        <translation>nichts: für Drucker mit Logo vorgesehen</translation>
    </message>
    <message>
        <source>the company</source>
        <translation>die Firma</translation>
    </message>
    <message>
        <source>the customer&apos;s delivery address</source>
        <translation>die Lieferadresse des Kunden</translation>
    </message>
    <message>
        <source>the customer&apos;s billing address</source>
        <translation>die Rechnungsadresse des Kunden</translation>
    </message>
    <message>
        <source>the customer&apos;s telephone</source>
        <translation>die Telefonnummer des Kunden</translation>
    </message>
    <message>
        <source>the date of `orderinfo`</source>
        <translation>das Datum von `orderinfo`</translation>
    </message>
    <message>
        <source>the time of `orderinfo`</source>
        <translation>die Uhrzeit von `orderinfo`</translation>
    </message>
    <message>
        <source>the table of `orderinfo`</source>
        <translation>der Tisch von `orderinfo`</translation>
    </message>
    <message>
        <source>the whole customer block; the customer&apos;s other switches count only when it is on</source>
        <translation>der ganze Kundenblock; die anderen Schalter des Kunden zählen nur, wenn er eingeschaltet ist</translation>
    </message>
    <message>
        <source>the customer&apos;s license number</source>
        <translation>die USt-IdNr. des Kunden</translation>
    </message>
    <message>
        <source>the customer&apos;s fiscal code</source>
        <translation>die Steuernummer des Kunden</translation>
    </message>
    <message>
        <source>the credit of `orderinfo`</source>
        <translation>das Guthaben von `orderinfo`</translation>
    </message>
    <message>
        <source>the waiter of `orderinfo`</source>
        <translation>die Bedienung von `orderinfo`</translation>
    </message>
    <message>
        <source>the note of `orderinfo`</source>
        <translation>der Hinweis von `orderinfo`</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a drawer</source>
        <translation>nichts: für Drucker mit Kassenlade vorgesehen</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>der Ordner der Sprachkataloge</translation>
    </message>
    <message>
        <source>which catalogue; begins with `/`</source>
        <translation>welcher Katalog; beginnt mit `/`</translation>
    </message>
</context>
</TS>
