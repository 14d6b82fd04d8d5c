<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>buttons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
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
        <source>language of the labels</source>
        <translation>Sprache der Beschriftungen</translation>
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
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
</context>
<context>
    <name>findings</name>
    <message>
        <source>%1: nothing behind %2 was checked</source>
        <translation>%1: hinter %2 wurde nichts geprüft</translation>
    </message>
    <message>
        <source>no method: nothing is printed; %1</source>
        <translation>keine Methode: nichts wird gedruckt; %1</translation>
    </message>
    <message>
        <source>%1: the job ends here%2</source>
        <translation>%1: der Auftrag endet hier%2</translation>
    </message>
    <message>
        <source>most elements are those of the %1, not of the %2; did you mean &quot;%3&quot;?</source>
        <translation>die meisten Elemente gehören zum Dokument %1, nicht zum Dokument %2; ist &quot;%3&quot; gemeint?</translation>
    </message>
    <message>
        <source>a second method: the section of the %1 is not closed; send one document per job</source>
        <translation>eine zweite Methode: Der Abschnitt des Dokuments %1 wird nicht geschlossen; ein Dokument je Auftrag senden</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands before the method and is not printed; move it behind &lt;method&gt;</source>
        <translation>&lt;%1&gt; steht vor der Methode und wird nicht gedruckt; hinter &lt;method&gt; setzen</translation>
    </message>
    <message>
        <source>no document knows &lt;%1&gt;: nothing is printed%2</source>
        <translation>kein Dokument kennt &lt;%1&gt;: nichts wird gedruckt%2</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;%3%4</source>
        <translation>&lt;%1&gt; druckt im Dokument &quot;%2&quot; nichts%3%4</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;: its figures are lost%3%4</source>
        <translation>&lt;%1&gt; druckt im Dokument &quot;%2&quot; nichts: seine Zahlen gehen verloren%3%4</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt; in this document%3</source>
        <translation>nichts liest &quot;%1&quot; von &lt;%2&gt; in diesem Dokument%3</translation>
    </message>
    <message>
        <source>nothing reads %1 of &lt;%2&gt; in the document &quot;%3&quot;: %4%5</source>
        <translation>nichts liest %1 von &lt;%2&gt; im Dokument &quot;%3&quot;: %4%5</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt;%3</source>
        <translation>nichts liest &quot;%1&quot; von &lt;%2&gt;%3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2: %3</source>
        <translation>&lt;%1&gt; hat kein %2: %3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2, which the settings switch on: %3</source>
        <translation>&lt;%1&gt; hat kein %2, das die Einstellungen einschalten: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, no number; it prints as it is</source>
        <translation>&quot;%1&quot; ist %2, keine Zahl; gedruckt wird es, wie es ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, with parts of a hundredth; it prints as it is</source>
        <translation>&quot;%1&quot; ist %2, mit Teilen eines Hundertstels; gedruckt wird es, wie es ist</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; other amounts of this job have a %3 as their decimal mark</source>
        <translation>&quot;%1&quot; ist %2; andere Beträge dieses Auftrags haben als Dezimalzeichen: %3</translation>
    </message>
    <message>
        <source>the quantity %1 is no number and prints as &quot;-&quot;, something left out</source>
        <translation>die Menge %1 ist keine Zahl und wird als &quot;-&quot; gedruckt, etwas Weggelassenes</translation>
    </message>
    <message>
        <source>the sale row has no %1: %2</source>
        <translation>in der Verkaufszeile fehlt %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, %3</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2, %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with parts of a hundredth, which are sent</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2, mit Teilen eines Hundertstels, die gesendet werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, no number above 0</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2, keine Zahl über 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2; the printer takes a whole number from 1 on</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2; der Drucker nimmt eine ganze Zahl ab 1</translation>
    </message>
    <message>
        <source>%1 times %2 is %3, and &quot;%4&quot; is %5</source>
        <translation>%1 mal %2 ist %3, und &quot;%4&quot; ist %5</translation>
    </message>
    <message>
        <source>the rows come to %1, and %2</source>
        <translation>die Zeilen ergeben %1, und %2</translation>
    </message>
    <message>
        <source>%1 %2, and &quot;%3&quot; is %4</source>
        <translation>%1 %2, und &quot;%3&quot; ist %4</translation>
    </message>
    <message>
        <source>the %1 has rows and no &lt;%2&gt;: no total is printed</source>
        <translation>das Dokument %1 hat Zeilen und kein &lt;%2&gt;: keine Summe wird gedruckt</translation>
    </message>
    <message>
        <source>the total stands here a second time, with no row in front of it, and prints again</source>
        <translation>die Summe steht hier ein zweites Mal, ohne eine Zeile davor, und wird noch einmal gedruckt</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands behind the total and prints below it</source>
        <translation>&lt;%1&gt; steht hinter der Summe und wird unter ihr gedruckt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2: a %3 in it breaks the printer&apos;s command</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2: Darin bricht %3 den Befehl des Druckers</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a line break, which breaks the printed line</source>
        <translation>&quot;%1&quot; von &lt;%2&gt; hat einen Zeilenumbruch, der die gedruckte Zeile bricht</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a &quot;)&quot;, which some printers take for the end of the line</source>
        <translation>&quot;%1&quot; von &lt;%2&gt; hat eine &quot;)&quot;, die manche Drucker für das Ende der Zeile halten</translation>
    </message>
    <message>
        <source>%1 a tab or another control character</source>
        <translation>%1 einen Tabulator oder ein anderes Steuerzeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has TOTALE, which prints as T0TALE</source>
        <translation>&quot;%1&quot; von &lt;%2&gt; hat TOTALE, was als T0TALE gedruckt wird</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has an empty part: what follows is not printed</source>
        <translation>&quot;%1&quot; hat einen leeren Teil: Was folgt, wird nicht gedruckt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, probably %3: UTF-8 was read as %4 and saved again</source>
        <translation>&quot;%1&quot; ist %2, wohl %3: UTF-8 wurde als %4 gelesen und wieder gespeichert</translation>
    </message>
    <message>
        <source>%1 %2, which prints as it is: it was escaped twice</source>
        <translation>%1 %2, was gedruckt wird, wie es ist: Es wurde zweimal maskiert</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what %2 lacks: %3</source>
        <translation>&quot;%1&quot; hat, was in %2 fehlt: %3</translation>
    </message>
    <message>
        <source>%1: %2 is off in %3</source>
        <translation>%1: %2 ist aus in %3</translation>
    </message>
    <message>
        <source>a line of %1 characters is wider than the paper (%2): %3%4</source>
        <translation>eine Zeile von %1 Zeichen ist breiter als das Papier (%2): %3%4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut in the middle of %2, which prints as another character</source>
        <translation>&quot;%1&quot; wird mitten in %2 abgeschnitten, was als anderes Zeichen gedruckt wird</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; ist &quot;%1&quot; gemeint?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;...&quot;/&gt;</source>
        <translation>mit &lt;method name=&quot;...&quot;/&gt; beginnen</translation>
    </message>
    <message>
        <source>did you mean &lt;method&gt; by &lt;%1&gt;?</source>
        <translation>ist mit &lt;%1&gt; &lt;method&gt; gemeint?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>mit &lt;method name=&quot;%1&quot;/&gt; beginnen</translation>
    </message>
    <message>
        <source>this</source>
        <translation>dieser Stelle</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>an instruction has no name</source>
        <translation>eine Anweisung hat keinen Namen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name</source>
        <translation>&quot;%1&quot; ist kein Name</translation>
    </message>
    <message>
        <source>XML %1 is not read; write 1.0</source>
        <translation>XML %1 wird nicht gelesen; 1.0 schreiben</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in %2: the paper ends here; name %2, or none</source>
        <translation>genannt ist %1, aber der Auftrag ist in %2 geschrieben: Das Papier endet hier; %2 nennen oder nichts</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none</source>
        <translation>genannt ist %1, aber der Auftrag ist in UTF-8 geschrieben: Akzente werden falsch gedruckt; UTF-8 nennen oder nichts</translation>
    </message>
    <message>
        <source>the checker cannot read the encoding &quot;%1&quot;: nothing else was checked; write UTF-8</source>
        <translation>die Kodierung &quot;%1&quot; lässt sich nicht lesen: Sonst wurde nichts geprüft; UTF-8 schreiben</translation>
    </message>
    <message>
        <source>not %1: the bytes here print as a replacement character; save the job as UTF-8, or name what it is written in</source>
        <translation>nicht %1: Die Bytes hier werden als Ersatzzeichen gedruckt; den Auftrag als UTF-8 speichern oder nennen, worin er geschrieben ist</translation>
    </message>
    <message>
        <source>more than %1 elements nested in each other: the paper ends here</source>
        <translation>mehr als %1 ineinander verschachtelte Elemente: Das Papier endet hier</translation>
    </message>
    <message>
        <source>more than %1 namespaces declared: the paper ends here</source>
        <translation>mehr als %1 Namensräume: Das Papier endet hier</translation>
    </message>
    <message>
        <source>more entities than the renderer takes, longer ones, or one in itself: the paper ends here</source>
        <translation>mehr oder längere Entitäten, als das Druckprogramm nimmt, oder eine in sich selbst: Das Papier endet hier</translation>
    </message>
    <message>
        <source>more than %1 attributes in the document type: nothing behind this was checked</source>
        <translation>mehr als %1 Attribute im Dokumenttyp: Dahinter wurde nichts geprüft</translation>
    </message>
    <message>
        <source>groups and settings that are too many, too deep or too long are read over: %1</source>
        <translation>zu viele, zu tief liegende oder zu lange Gruppen und Einstellungen werden überlesen: %1</translation>
    </message>
    <message>
        <source>no document is called %1</source>
        <translation>kein Dokument heißt %1</translation>
    </message>
    <message>
        <source>the method has no name</source>
        <translation>die Methode hat keinen Namen</translation>
    </message>
    <message>
        <source>; write &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>; &lt;method name=&quot;%1&quot;/&gt; schreiben</translation>
    </message>
    <message>
        <source>its figure is lost</source>
        <translation>die Zahl darin geht verloren</translation>
    </message>
    <message>
        <source>their figures are lost</source>
        <translation>die Zahlen darin gehen verloren</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;, which is missing?</source>
        <translation>; ist &quot;%1&quot; gemeint, das fehlt?</translation>
    </message>
    <message>
        <source>, and its &quot;%1&quot; is missing</source>
        <translation>, und es fehlt &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as an element, which prints nothing: write it as an attribute</source>
        <translation>&lt;%1&gt; hat %2 als Element, das nichts druckt: als Attribut schreiben</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as elements, which print nothing: write them as attributes</source>
        <translation>&lt;%1&gt; hat %2 als Elemente, die nichts drucken: als Attribute schreiben</translation>
    </message>
    <message>
        <source>the text %1 in &lt;%2&gt; is not printed: write it as an attribute</source>
        <translation>der Text %1 in &lt;%2&gt; wird nicht gedruckt: als Attribut schreiben</translation>
    </message>
    <message>
        <source>; it is printed in %1</source>
        <translation>; gedruckt wird es in: %1</translation>
    </message>
    <message>
        <source>its place prints empty</source>
        <translation>die Stelle bleibt leer</translation>
    </message>
    <message>
        <source>their places print empty</source>
        <translation>die Stellen bleiben leer</translation>
    </message>
    <message>
        <source>it prints as &quot;-&quot;, something left out</source>
        <translation>gedruckt wird &quot;-&quot;, etwas Weggelassenes</translation>
    </message>
    <message>
        <source>&quot;number&quot; and &quot;totals&quot; must be the first two attributes, and are not: all others are taken for serial number, total and tax rate of one document after the other</source>
        <translation>&quot;number&quot; und &quot;totals&quot; müssen die ersten beiden Attribute sein und sind es nicht: Alle anderen gelten als Seriennummer, Summe und Steuersatz eines Dokuments nach dem anderen</translation>
    </message>
    <message>
        <source>each cancelled document takes three attributes behind &quot;number&quot; and &quot;totals&quot;, its serial number, total and tax rate; there are %1</source>
        <translation>jedes stornierte Dokument braucht drei Attribute hinter &quot;number&quot; und &quot;totals&quot;: Seriennummer, Summe und Steuersatz; es sind %1</translation>
    </message>
    <message>
        <source>&quot;number&quot; is %1, but the cancelled documents that are listed are %2</source>
        <translation>&quot;number&quot; ist %1, aufgeführt sind aber %2 stornierte Dokumente</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; is %3</source>
        <translation>&quot;%1&quot; von &lt;%2&gt; ist %3</translation>
    </message>
    <message>
        <source>the tax lines come to %1</source>
        <translation>die Steuerzeilen ergeben %1</translation>
    </message>
    <message>
        <source>%1 of %2 is</source>
        <translation>%1 von %2 ist</translation>
    </message>
    <message>
        <source>%1 and %2 come to</source>
        <translation>%1 und %2 ergeben</translation>
    </message>
    <message>
        <source>0 is registered</source>
        <translation>gebucht wird 0</translation>
    </message>
    <message>
        <source>the printer may refuse it</source>
        <translation>der Drucker kann sie ablehnen</translation>
    </message>
    <message>
        <source>no number: 0 is registered</source>
        <translation>keine Zahl: gebucht wird 0</translation>
    </message>
    <message>
        <source>no plain number</source>
        <translation>keine einfache Zahl</translation>
    </message>
    <message>
        <source>more than the printer takes</source>
        <translation>mehr, als der Drucker nimmt</translation>
    </message>
    <message>
        <source>line break</source>
        <translation>ein Zeilenumbruch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has</source>
        <translation>&quot;%1&quot; von &lt;%2&gt; hat</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with</source>
        <translation>&quot;%1&quot; einer Verkaufszeile ist %2, mit</translation>
    </message>
    <message>
        <source>U+FFFD in place of a character that was lost before</source>
        <translation>U+FFFD statt eines Zeichens, das vorher verloren ging</translation>
    </message>
    <message>
        <source>%1, a character without a shape; leave it out</source>
        <translation>%1, ein Zeichen ohne Gestalt; weglassen</translation>
    </message>
    <message>
        <source>%1 prints as %2</source>
        <translation>%1 wird als %2 gedruckt</translation>
    </message>
    <message>
        <source>, and %1 more</source>
        <translation>, und %1 weitere</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not printed</source>
        <translation>&lt;%1&gt; wird nicht gedruckt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not printed</source>
        <translation>&quot;%1&quot; wird nicht gedruckt</translation>
    </message>
    <message>
        <source>of &lt;headers&gt; only the printer&apos;s name is printed</source>
        <translation>von &lt;headers&gt; wird nur der Name des Druckers gedruckt</translation>
    </message>
    <message>
        <source>; &quot;%1&quot; is %2 in a column of %3 (%4 in %5)</source>
        <translation>; &quot;%1&quot; ist %2 in einer Spalte von %3 (%4 in %5)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it has no group korvel: { ... };</source>
        <translation>sie hat keine Gruppe korvel: { ... };</translation>
    </message>
    <message>
        <source>no setting stands in it</source>
        <translation>keine Einstellung steht darin</translation>
    </message>
    <message>
        <source>it is written as %1; settings are written korvel: { doc: { paperWidth = &quot;32&quot;; }; };</source>
        <translation>sie ist als %1 geschrieben; Einstellungen schreibt man korvel: { doc: { paperWidth = &quot;32&quot;; }; };</translation>
    </message>
    <message>
        <source>its first group is %1, not korvel%2</source>
        <translation>ihre erste Gruppe ist %1, nicht korvel%2</translation>
    </message>
    <message>
        <source>its first group has no name%1</source>
        <translation>ihre erste Gruppe hat keinen Namen%1</translation>
    </message>
    <message>
        <source>a byte order mark stands in front of it</source>
        <translation>eine Bytereihenfolge-Marke steht davor</translation>
    </message>
    <message>
        <source>it is written as UTF-16</source>
        <translation>sie ist in UTF-16 geschrieben</translation>
    </message>
    <message>
        <source>the group %1</source>
        <translation>die Gruppe %1</translation>
    </message>
    <message>
        <source>what follows</source>
        <translation>was folgt</translation>
    </message>
    <message>
        <source>%1 is %2: does the line end with ;?</source>
        <translation>%1 ist %2: Endet die Zeile mit ;?</translation>
    </message>
    <message>
        <source>; does the line end with ;?</source>
        <translation>; endet die Zeile mit ;?</translation>
    </message>
    <message>
        <source>a } has no ; behind it: %1 is skipped</source>
        <translation>hinter einer } fehlt das ;: %1 wird übersprungen</translation>
    </message>
    <message>
        <source>the group %1 is not closed: a }; is missing here</source>
        <translation>die Gruppe %1 ist nicht geschlossen: Hier fehlt };</translation>
    </message>
    <message>
        <source>the file ends inside the group %1: a }; is missing, if not more</source>
        <translation>die Datei endet in der Gruppe %1: Mindestens eine }; fehlt</translation>
    </message>
    <message>
        <source>a } closes %1 too early: what follows is not read</source>
        <translation>eine } schließt %1 zu früh: Was folgt, wird nicht gelesen</translation>
    </message>
    <message>
        <source>a } closes nothing: what follows is not read</source>
        <translation>eine } schließt nichts: Was folgt, wird nicht gelesen</translation>
    </message>
    <message>
        <source>the group %1 has no { behind its name</source>
        <translation>die Gruppe %1 hat hinter dem Namen keine {</translation>
    </message>
    <message>
        <source>the group %1 has no : behind its name%2</source>
        <translation>die Gruppe %1 hat hinter dem Namen keinen :%2</translation>
    </message>
    <message>
        <source>the group %1 has neither : nor { behind its name%2</source>
        <translation>die Gruppe %1 hat hinter dem Namen weder : noch {%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where the &quot;%2&quot; of %3 belongs</source>
        <translation>&quot;%1&quot; steht, wo das &quot;%2&quot; von %3 hingehört</translation>
    </message>
    <message>
        <source>%1 stands where a &quot; of %2 belongs, and becomes part of the value</source>
        <translation>%1 steht, wo ein &quot; von %2 hingehört, und wird Teil des Wertes</translation>
    </message>
    <message>
        <source>%1: it is read as %2</source>
        <translation>%1: gelesen wird es als %2</translation>
    </message>
    <message>
        <source>a { too many: %1 has one already</source>
        <translation>eine { zu viel: %1 hat schon eine</translation>
    </message>
    <message>
        <source>%1 has no = behind its name and is not read</source>
        <translation>%1 hat hinter dem Namen kein = und wird nicht gelesen</translation>
    </message>
    <message>
        <source>no name stands before the =: %1 is not read</source>
        <translation>vor dem = steht kein Name: %1 wird nicht gelesen</translation>
    </message>
    <message>
        <source>no catalogue is found as %1</source>
        <translation>unter %1 findet sich kein Katalog</translation>
    </message>
    <message>
        <source>%1 is no catalogue</source>
        <translation>%1 ist kein Katalog</translation>
    </message>
    <message>
        <source>; letters beyond ASCII are misread: leave them out of paths</source>
        <translation>; Buchstaben jenseits von ASCII werden falsch gelesen: in Pfaden weglassen</translation>
    </message>
    <message>
        <source>; file must begin with a /</source>
        <translation>; file muss mit / beginnen</translation>
    </message>
    <message>
        <source>the columns of the %1 leave no room for the description: the others and the blanks take %2 of %3 characters</source>
        <translation>die Spalten des Dokuments (%1) lassen der Bezeichnung keinen Platz: Die anderen und die Leerzeichen nehmen %2 von %3 Zeichen</translation>
    </message>
    <message>
        <source>%1 is %2: the description of the %3 gets as many characters too many</source>
        <translation>%1 ist %2: Um so viele Zeichen wird die Bezeichnung zu lang (%3)</translation>
    </message>
    <message>
        <source>paperWidth is %1: lines are wider than the printer&apos;s %2 characters</source>
        <translation>paperWidth ist %1: Die Zeilen sind breiter als die %2 Zeichen des Druckers</translation>
    </message>
    <message>
        <source>no document reads the group %1</source>
        <translation>kein Dokument liest die Gruppe %1</translation>
    </message>
    <message>
        <source>a group has no name before its {</source>
        <translation>eine Gruppe hat vor der { keinen Namen</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and %1 is another</source>
        <translation>nur die erste Gruppe der Datei wird gelesen, und %1 ist eine andere</translation>
    </message>
    <message>
        <source>documents&apos; groups stand in korvel itself, not in %1</source>
        <translation>Gruppen von Dokumenten stehen in korvel selbst, nicht in %1</translation>
    </message>
    <message>
        <source>what the one in line %1 sets counts, this one adds what it does not set</source>
        <translation>es gilt, was die in Zeile %1 setzt; diese fügt hinzu, was jene nicht setzt</translation>
    </message>
    <message>
        <source>this one counts, not that in line %1</source>
        <translation>diese gilt, nicht die in Zeile %1</translation>
    </message>
    <message>
        <source>; only true switches it on</source>
        <translation>; nur true schaltet es ein</translation>
    </message>
    <message>
        <source>it stands outside the group korvel</source>
        <translation>es steht außerhalb der Gruppe korvel</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and it must be korvel</source>
        <translation>nur die erste Gruppe der Datei wird gelesen, und sie muss korvel heißen</translation>
    </message>
    <message>
        <source>settings stand in a document&apos;s group or in language, in korvel%1</source>
        <translation>Einstellungen stehen in der Gruppe eines Dokuments oder in language, in korvel%1</translation>
    </message>
    <message>
        <source>; does a } lack its ;?</source>
        <translation>; fehlt einer } ihr ;?</translation>
    </message>
    <message>
        <source>no document has such a group%1</source>
        <translation>kein Dokument hat eine solche Gruppe%1</translation>
    </message>
    <message>
        <source>there is no such setting%1</source>
        <translation>eine solche Einstellung gibt es nicht%1</translation>
    </message>
    <message>
        <source>it is commented out; nothing else is lost by it, but deleting it is safer</source>
        <translation>es ist auskommentiert; sonst geht dadurch nichts verloren, aber Löschen ist sicherer</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>nichts in der Datei wird gelesen: %1</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1; save it as plain ASCII</source>
        <translation>nichts in der Datei wird gelesen: %1; als reines ASCII speichern</translation>
    </message>
    <message>
        <source>%1 is read as part of what follows: %2 is lost; there are no comments</source>
        <translation>%1 wird als Teil des Folgenden gelesen: %2 geht verloren; es gibt keine Kommentare</translation>
    </message>
    <message>
        <source>%1: its settings are lost%2</source>
        <translation>%1: ihre Einstellungen gehen verloren%2</translation>
    </message>
    <message>
        <source>labels stay English: %1</source>
        <translation>die Beschriftungen bleiben englisch: %1</translation>
    </message>
    <message>
        <source>nothing reads %1: %2</source>
        <translation>nichts liest %1: %2</translation>
    </message>
    <message>
        <source>%1 stands here a second time: %2</source>
        <translation>%1 steht hier ein zweites Mal: %2</translation>
    </message>
    <message>
        <source>%1 is %2 and counts as off%3</source>
        <translation>%1 ist %2 und zählt als aus%3</translation>
    </message>
    <message>
        <source>%1 is %2, no whole number, and counts as 0%3</source>
        <translation>%1 ist %2, keine ganze Zahl, und zählt als 0%3</translation>
    </message>
    <message>
        <source>all documents but %1</source>
        <translation>alle Dokumente außer: %1</translation>
    </message>
    <message>
        <source>a %1 of %2 characters is wider than the paper (%3)</source>
        <translation>%1 von %2 Zeichen ist breiter als das Papier (%3)</translation>
    </message>
    <message>
        <source>the stream is empty: nothing is printed</source>
        <translation>der Druckdatenstrom ist leer: nichts wird gedruckt</translation>
    </message>
    <message>
        <source>the %1 opened here is never closed</source>
        <translation>%1: hier geöffnet und nie geschlossen</translation>
    </message>
    <message>
        <source>the %1 opened at byte %2 is still open where the %3 is opened</source>
        <translation>%1, geöffnet (Byte %2), ist noch offen, wo %3 geöffnet wird</translation>
    </message>
    <message>
        <source>the %1 is closed but not open</source>
        <translation>%1 wird geschlossen, ist aber nicht offen</translation>
    </message>
    <message>
        <source>a %1 outside a fiscal section</source>
        <translation>%1 außerhalb eines Fiskalabschnitts</translation>
    </message>
    <message>
        <source>the amount %1 is no whole number of hundredths</source>
        <translation>der Betrag %1 ist keine ganze Zahl von Hundertsteln</translation>
    </message>
    <message>
        <source>the quantity %1 is no number</source>
        <translation>die Menge %1 ist keine Zahl</translation>
    </message>
    <message>
        <source>the %1 is too large for the preview to add up</source>
        <translation>%1: zu groß, um in die Summe einzugehen</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a text ends it early</source>
        <translation>&quot;%1&quot; in einem Text beendet ihn zu früh</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a field of a sale row ends it early</source>
        <translation>&quot;%1&quot; in einem Feld einer Verkaufszeile beendet es zu früh</translation>
    </message>
    <message>
        <source>the line break %1 inside a text ends it early</source>
        <translation>der Zeilenumbruch %1 in einem Text beendet ihn zu früh</translation>
    </message>
    <message>
        <source>the control character %1 inside a text</source>
        <translation>das Steuerzeichen %1 in einem Text</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 ist kein %2</translation>
    </message>
    <message>
        <source>broken %1: %2 does not belong here</source>
        <translation>%1, fehlerhaft: %2 gehört nicht hierher</translation>
    </message>
    <message>
        <source>unterminated %1 that begins at byte %2: the stream ends here</source>
        <translation>%1, unvollständig (Byte %2): Der Druckdatenstrom endet hier</translation>
    </message>
    <message>
        <source>too much is wrong; no more is listed</source>
        <translation>zu viel ist falsch; mehr wird nicht aufgeführt</translation>
    </message>
    <message>
        <source>too much is odd; no more is listed</source>
        <translation>zu viel ist seltsam; mehr wird nicht aufgeführt</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>text line</source>
        <translation>Textzeile</translation>
    </message>
    <message>
        <source>section opening</source>
        <translation>Öffnen eines Abschnitts</translation>
    </message>
    <message>
        <source>section closing</source>
        <translation>Schließen eines Abschnitts</translation>
    </message>
    <message>
        <source>sale row</source>
        <translation>Verkaufszeile</translation>
    </message>
    <message>
        <source>deduction</source>
        <translation>Abzug</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>unbekannter Befehl</translation>
    </message>
    <message>
        <source>fiscal section</source>
        <translation>Fiskalabschnitt</translation>
    </message>
    <message>
        <source>receipt section</source>
        <translation>Belegabschnitt</translation>
    </message>
    <message>
        <source>document section</source>
        <translation>Dokumentabschnitt</translation>
    </message>
    <message>
        <source>unknown command that begins at byte %1: the stream ends here</source>
        <translation>unbekannter Befehl (Byte %1): Der Druckdatenstrom endet hier</translation>
    </message>
    <message>
        <source>unknown command: %1 does not belong here</source>
        <translation>unbekannter Befehl: %1 gehört nicht hierher</translation>
    </message>
    <message>
        <source>this is not well-formed</source>
        <translation>dies ist kein wohlgeformtes XML</translation>
    </message>
    <message>
        <source>&quot;%1&quot; or %2</source>
        <translation>&quot;%1&quot; oder %2</translation>
    </message>
    <message>
        <source>XML forbids the character {character}</source>
        <translation>XML verbietet das Zeichen {character}</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins no reference; write &amp;amp;</source>
        <translation>&quot;&amp;&quot; beginnt keinen Verweis; &amp;amp; schreiben</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins a reference without its &quot;;&quot;; write &amp;amp;, or end the reference</source>
        <translation>&quot;&amp;&quot; beginnt einen Verweis, dem das &quot;;&quot; fehlt; &amp;amp; schreiben oder den Verweis beenden</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote, or a &quot;&lt;&quot;; for that write &amp;lt;</source>
        <translation>dem Wert, der hier beginnt, fehlt das schließende Anführungszeichen, oder er enthält ein &quot;&lt;&quot;; dafür &amp;lt; schreiben</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in a value; write &amp;lt;, or end the value with its quote</source>
        <translation>&quot;&lt;&quot; in einem Wert; &amp;lt; schreiben oder den Wert mit seinem Anführungszeichen beenden</translation>
    </message>
    <message>
        <source>&quot;--&quot; in a comment; write a single -</source>
        <translation>&quot;--&quot; in einem Kommentar; ein einzelnes - schreiben</translation>
    </message>
    <message>
        <source>a comment begins with &lt;!--</source>
        <translation>ein Kommentar beginnt mit &lt;!--</translation>
    </message>
    <message>
        <source>&quot;]]&gt;&quot; in a text; write ]]&amp;gt;</source>
        <translation>&quot;]]&gt;&quot; in einem Text; ]]&amp;gt; schreiben</translation>
    </message>
    <message>
        <source>&quot;&lt;/&quot; without a name</source>
        <translation>&quot;&lt;/&quot; ohne einen Namen</translation>
    </message>
    <message>
        <source>an end tag where no element is open</source>
        <translation>ein End-Tag, wo kein Element offen ist</translation>
    </message>
    <message>
        <source>an XML declaration begins with &lt;?xml, in small letters</source>
        <translation>eine XML-Deklaration beginnt mit &lt;?xml in Kleinbuchstaben</translation>
    </message>
    <message>
        <source>&quot;&lt;?&quot; without a name</source>
        <translation>&quot;&lt;?&quot; ohne einen Namen</translation>
    </message>
    <message>
        <source>&quot;&lt;!&quot; begins no comment and no CDATA section</source>
        <translation>&quot;&lt;!&quot; beginnt weder einen Kommentar noch einen CDATA-Abschnitt</translation>
    </message>
    <message>
        <source>a blank behind &quot;&lt;&quot;; the name of a tag stands right behind it</source>
        <translation>ein Leerzeichen hinter &quot;&lt;&quot;; der Name eines Tags steht direkt dahinter</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; begins no tag; write &amp;lt;</source>
        <translation>&quot;&lt;&quot; beginnt kein Tag; &amp;lt; schreiben</translation>
    </message>
    <message>
        <source>{character} is no quote to XML; write &quot; or &apos;</source>
        <translation>{character} ist für XML kein Anführungszeichen; &quot; oder &apos; schreiben</translation>
    </message>
    <message>
        <source>a value without quotes; write {value}</source>
        <translation>ein Wert ohne Anführungszeichen; {value} schreiben</translation>
    </message>
    <message>
        <source>the tag that begins here has no &quot;&gt;&quot;</source>
        <translation>dem Tag, das hier beginnt, fehlt das &quot;&gt;&quot;</translation>
    </message>
    <message>
        <source>{character} behind the name of an end tag, which has nothing else</source>
        <translation>{character} hinter dem Namen eines End-Tags, das sonst nichts enthält</translation>
    </message>
    <message>
        <source>&quot;/&quot; in a tag without a &quot;&gt;&quot; behind it</source>
        <translation>&quot;/&quot; in einem Tag ohne ein &quot;&gt;&quot; dahinter</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote</source>
        <translation>dem Wert, der hier beginnt, fehlt das schließende Anführungszeichen</translation>
    </message>
    <message>
        <source>no blank between a value and the next attribute</source>
        <translation>kein Leerzeichen zwischen einem Wert und dem nächsten Attribut</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; a tag without content ends with /&gt;</source>
        <translation>{character} kann nicht hinter einem Wert stehen; ein Tag ohne Inhalt endet mit /&gt;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; blanks alone part attributes</source>
        <translation>{character} kann nicht hinter einem Wert stehen; Attribute trennen nur Leerzeichen</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a &apos; in a value write &amp;apos;</source>
        <translation>{character} kann nicht hinter einem Wert stehen; für ein &apos; in einem Wert &amp;apos; schreiben</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a quote in a value write &amp;quot;</source>
        <translation>{character} kann nicht hinter einem Wert stehen; für ein Anführungszeichen in einem Wert &amp;quot; schreiben</translation>
    </message>
    <message>
        <source>a value without a &quot;=&quot; before it</source>
        <translation>ein Wert ohne ein &quot;=&quot; davor</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>ein Attribut ohne Wert</translation>
    </message>
    <message>
        <source>{character} cannot begin a name</source>
        <translation>{character} kann keinen Namen beginnen</translation>
    </message>
    <message>
        <source>{character} cannot stand in a name</source>
        <translation>{character} kann nicht in einem Namen stehen</translation>
    </message>
    <message>
        <source>a text outside the root</source>
        <translation>ein Text außerhalb des Wurzelelements</translation>
    </message>
    <message>
        <source>&amp;{name}; stands for what is not well-formed</source>
        <translation>&amp;{name}; steht für etwas, das nicht wohlgeformt ist</translation>
    </message>
    <message>
        <source>an entity in this tag stands for what is not well-formed</source>
        <translation>eine Entität in diesem Tag steht für etwas, das nicht wohlgeformt ist</translation>
    </message>
    <message>
        <source>{character} cannot stand here</source>
        <translation>{character} kann hier nicht stehen</translation>
    </message>
    <message>
        <source>a comment without its &quot;--&gt;&quot;</source>
        <translation>ein Kommentar ohne sein &quot;--&gt;&quot;</translation>
    </message>
    <message>
        <source>an XML declaration without its &quot;?&gt;&quot;</source>
        <translation>eine XML-Deklaration ohne ihr &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>an instruction without its &quot;?&gt;&quot;</source>
        <translation>eine Anweisung ohne ihr &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>a tag without its &quot;&gt;&quot;, or with a quote too few</source>
        <translation>ein Tag ohne sein &quot;&gt;&quot;, oder mit einem Anführungszeichen zu wenig</translation>
    </message>
    <message>
        <source>what begins here does not end</source>
        <translation>was hier beginnt, endet nicht</translation>
    </message>
    <message>
        <source>a CDATA section without its &quot;]]&gt;&quot;</source>
        <translation>ein CDATA-Abschnitt ohne sein &quot;]]&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;{open}&gt; is never closed; write &lt;/{open}&gt; where it ends, or /&gt; in place of its &gt;</source>
        <translation>&lt;{open}&gt; wird nie geschlossen; am Ende &lt;/{open}&gt; schreiben, oder /&gt; anstelle seines &gt;</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>es gibt kein Element</translation>
    </message>
    <message>
        <source>&lt;/{name}&gt; where &lt;{open}&gt; of line {line} must be closed</source>
        <translation>&lt;/{name}&gt;, wo &lt;{open}&gt; aus Zeile {line} geschlossen werden muss</translation>
    </message>
    <message>
        <source>an end tag of an entity closes another element</source>
        <translation>ein End-Tag einer Entität schließt ein anderes Element</translation>
    </message>
    <message>
        <source>an entity with a start tag or an end tag alone</source>
        <translation>eine Entität, die nur ein Start-Tag oder nur ein End-Tag enthält</translation>
    </message>
    <message>
        <source>a second root; one element must hold all others</source>
        <translation>ein zweites Wurzelelement; ein Element muss alle anderen umschließen</translation>
    </message>
    <message>
        <source>a declaration or a section behind the end of the root</source>
        <translation>eine Deklaration oder ein Abschnitt hinter dem Ende des Wurzelelements</translation>
    </message>
    <message>
        <source>the XML declaration is not the first in the file; nothing may stand before it, no blank either</source>
        <translation>die XML-Deklaration steht nicht am Anfang der Datei; davor darf nichts stehen, auch kein Leerzeichen</translation>
    </message>
    <message>
        <source>this is no XML declaration; write &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</source>
        <translation>dies ist keine XML-Deklaration; &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt; schreiben</translation>
    </message>
    <message>
        <source>an attribute stands twice: &quot;{name}&quot;</source>
        <translation>ein Attribut steht doppelt: &quot;{name}&quot;</translation>
    </message>
    <message>
        <source>an attribute stands twice, in an entity</source>
        <translation>ein Attribut steht doppelt, in einer Entität</translation>
    </message>
    <message>
        <source>&amp;{name}; leads to no entity that is declared; write the character itself</source>
        <translation>&amp;{name}; führt zu keiner Entität, die deklariert ist; das Zeichen selbst schreiben</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};; write {written}</source>
        <translation>XML kennt &amp;{name}; nicht; {written} schreiben</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};, only &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; write &amp;amp; for a plain &quot;&amp;&quot;</source>
        <translation>XML kennt &amp;{name}; nicht, nur &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; für ein einfaches &quot;&amp;&quot; &amp;amp; schreiben</translation>
    </message>
    <message>
        <source>an entity that is not declared</source>
        <translation>eine Entität, die nicht deklariert ist</translation>
    </message>
    <message>
        <source>&amp;{name}; is no character that XML allows</source>
        <translation>&amp;{name}; ist kein Zeichen, das XML erlaubt</translation>
    </message>
    <message>
        <source>a reference to what is no character</source>
        <translation>ein Verweis auf etwas, das kein Zeichen ist</translation>
    </message>
    <message>
        <source>an entity that refers to itself</source>
        <translation>eine Entität, die auf sich selbst verweist</translation>
    </message>
    <message>
        <source>an entity that is no text</source>
        <translation>eine Entität, die kein Text ist</translation>
    </message>
    <message>
        <source>an entity of another file in a value</source>
        <translation>eine Entität aus einer anderen Datei in einem Wert</translation>
    </message>
    <message>
        <source>a parameter entity cannot stand here</source>
        <translation>eine Parameterentität kann hier nicht stehen</translation>
    </message>
    <message>
        <source>a parameter entity that is no whole declaration</source>
        <translation>eine Parameterentität, die keine vollständige Deklaration ist</translation>
    </message>
    <message>
        <source>an entity that a parameter entity declares</source>
        <translation>eine Entität, die von einer Parameterentität deklariert wird</translation>
    </message>
    <message>
        <source>a public identifier with a character that it cannot have</source>
        <translation>ein öffentlicher Bezeichner mit einem Zeichen, das er nicht enthalten darf</translation>
    </message>
    <message>
        <source>entities that make too much text</source>
        <translation>Entitäten, die zu viel Text ergeben</translation>
    </message>
    <message>
        <source>more than the memory can hold</source>
        <translation>mehr, als der Speicher fassen kann</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
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
        <translation>%1: Englisch</translation>
    </message>
    <message>
        <source>the language of the system</source>
        <translation>die Sprache des Systems</translation>
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
    <name>korvel::settings::FindingsList</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>Zeile %1 ist breiter als das Papier: %2 Zeichen, von %3.</translation>
    </message>
    <message>
        <source>Lines %1 are wider than the paper: up to %2 characters, of %3.</source>
        <translation>Die Zeilen %1 sind breiter als das Papier: bis zu %2 Zeichen, von %3.</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
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
    <name>korvel::settings::HelpPage</name>
    <message>
        <source>The help has no page %1.</source>
        <translation>Die Hilfe hat keine Seite %1.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Hilfe (auf Englisch): %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Panes</name>
    <message>
        <source>Do&amp;cuments</source>
        <translation>Do&amp;kumente</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperPane</name>
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
    <message>
        <source>The text %1 is no setting.</source>
        <translation>Der Text %1 ist keine Einstellung.</translation>
    </message>
    <message>
        <source>The setting %1 stands twice; the last one is kept.</source>
        <translation>Die Einstellung %1 steht zweimal da; die letzte bleibt.</translation>
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
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
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
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportiert: %1</translation>
    </message>
    <message>
        <source>%1 is neither settings nor a job. Choose a settings file such as korvel.conf, or a job in XML.</source>
        <translation>%1 enthält weder Einstellungen noch einen Druckauftrag. Bitte eine Einstellungsdatei wie korvel.conf oder einen Druckauftrag in XML wählen.</translation>
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
    <message>
        <source>The renderer reads nothing of this file: it is written as XML. Save as, in the menu File, writes the settings as the renderer reads them.</source>
        <translation>Das Druckprogramm liest nichts von dieser Datei: Sie ist in XML geschrieben. „Speichern unter“ im Menü „Datei“ schreibt die Einstellungen so, wie das Druckprogramm sie liest.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: its first group is called %1, and not &quot;korvel&quot;.</source>
        <translation>Das Druckprogramm liest nichts von dieser Datei: Ihre erste Gruppe heißt %1 und nicht &quot;korvel&quot;.</translation>
    </message>
</context>
<context>
    <name>paper</name>
    <message>
        <source>DEDUCTION</source>
        <translation>ABZUG</translation>
    </message>
    <message>
        <source>Sum (by the preview)</source>
        <translation>Summe (der Vorschau)</translation>
    </message>
    <message>
        <source>Sum so far (preview)</source>
        <translation>Bisher (Vorschau)</translation>
    </message>
    <message>
        <source>Rows not counted</source>
        <translation>Nicht gezählte Zeilen</translation>
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
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>Zeichen eines Artikelnamens, die gesendet werden. 0 ist die Breite des Druckers; bei einer negativen Zahl bleibt der Name ganz. Der Fiskalbeleg in Kurzform kürzt nie</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>der obere Rand</translation>
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
        <source>nothing: kept for printers with a drawer</source>
        <translation>nichts: für Drucker mit Kassenlade vorgesehen</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>der Ordner der Sprachkataloge</translation>
    </message>
    <message>
        <source>empty lines of the top margin; none when negative, 65536 at most</source>
        <translation>Leerzeilen des oberen Rands; keine bei einer negativen Zahl, höchstens 65536</translation>
    </message>
    <message>
        <source>the header lines. The printer&apos;s name after them has no switch</source>
        <translation>die Kopfzeilen. Der Name des Druckers danach hat keinen Schalter</translation>
    </message>
    <message>
        <source>the date of the order information</source>
        <translation>das Datum der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>the time of the order information</source>
        <translation>die Uhrzeit der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>the table of the order information</source>
        <translation>der Tisch der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>the credit of the order information</source>
        <translation>das Guthaben der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>the waiter of the order information</source>
        <translation>die Bedienung der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>the note of the order information</source>
        <translation>die Notiz der Angaben zur Bestellung</translation>
    </message>
    <message>
        <source>which catalogue: its name is put right behind the folder, and begins with `/`</source>
        <translation>welcher Katalog: sein Name folgt unmittelbar auf den Ordner und beginnt mit `/`</translation>
    </message>
</context>
</TS>
