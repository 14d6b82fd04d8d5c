<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>buttons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>documents</name>
    <message>
        <source>kitchen order</source>
        <translation>bon de cuisine</translation>
    </message>
    <message>
        <source>full order</source>
        <translation>addition</translation>
    </message>
    <message>
        <source>receipt</source>
        <translation>ticket</translation>
    </message>
    <message>
        <source>invoice</source>
        <translation>facture</translation>
    </message>
    <message>
        <source>delivery note</source>
        <translation>bon de livraison</translation>
    </message>
    <message>
        <source>fiscal receipt</source>
        <translation>ticket fiscal</translation>
    </message>
    <message>
        <source>summary order</source>
        <translation>commande abrégée</translation>
    </message>
    <message>
        <source>summary receipt</source>
        <translation>ticket abrégé</translation>
    </message>
    <message>
        <source>summary invoice</source>
        <translation>facture abrégée</translation>
    </message>
    <message>
        <source>summary fiscal receipt</source>
        <translation>ticket fiscal abrégé</translation>
    </message>
    <message>
        <source>period report</source>
        <translation>récapitulatif de la période</translation>
    </message>
    <message>
        <source>sold items</source>
        <translation>articles vendus</translation>
    </message>
    <message>
        <source>statement of account</source>
        <translation>relevé de compte</translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>paper width</source>
        <translation>largeur du papier</translation>
    </message>
    <message>
        <source>quantity column</source>
        <translation>colonne des quantités</translation>
    </message>
    <message>
        <source>price column</source>
        <translation>colonne des prix</translation>
    </message>
    <message>
        <source>amount column</source>
        <translation>colonne des montants</translation>
    </message>
    <message>
        <source>length of names</source>
        <translation>longueur des noms</translation>
    </message>
    <message>
        <source>top margin</source>
        <translation>marge du haut</translation>
    </message>
    <message>
        <source>lines of the top margin</source>
        <translation>lignes de la marge du haut</translation>
    </message>
    <message>
        <source>header lines</source>
        <translation>lignes d&apos;en-tête</translation>
    </message>
    <message>
        <source>company</source>
        <translation>société</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date de la commande</translation>
    </message>
    <message>
        <source>time</source>
        <translation>heure</translation>
    </message>
    <message>
        <source>table</source>
        <translation>numéro de table</translation>
    </message>
    <message>
        <source>waiter</source>
        <translation>serveur</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>crédit</translation>
    </message>
    <message>
        <source>customer</source>
        <translation>client</translation>
    </message>
    <message>
        <source>delivery address</source>
        <translation>adresse de livraison</translation>
    </message>
    <message>
        <source>billing address</source>
        <translation>adresse de facturation</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>téléphone</translation>
    </message>
    <message>
        <source>license number</source>
        <translation>numéro de licence</translation>
    </message>
    <message>
        <source>fiscal code</source>
        <translation>code fiscal</translation>
    </message>
    <message>
        <source>language of the labels</source>
        <translation>langue des libellés</translation>
    </message>
    <message>
        <source>folder of the catalogues</source>
        <translation>dossier des catalogues</translation>
    </message>
    <message>
        <source>rows of a page</source>
        <translation>lignes d&apos;une page</translation>
    </message>
    <message>
        <source>style</source>
        <translation>style d&apos;écriture</translation>
    </message>
    <message>
        <source>logo</source>
        <translation>logotype</translation>
    </message>
    <message>
        <source>cash drawer</source>
        <translation>tiroir-caisse</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Top of the paper</source>
        <translation>Haut du papier</translation>
    </message>
    <message>
        <source>Order information</source>
        <translation>Informations de commande</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Language of the labels</source>
        <translation>Langue des libellés</translation>
    </message>
    <message>
        <source>Read, without effect on the paper</source>
        <translation>Lus, sans effet sur le papier</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
</context>
<context>
    <name>findings</name>
    <message>
        <source>%1: nothing behind %2 was checked</source>
        <translation>%1&#xa0;: rien n&apos;a été contrôlé après %2</translation>
    </message>
    <message>
        <source>no method: nothing is printed; %1</source>
        <translation>aucune méthode&#xa0;: rien n&apos;est imprimé&#xa0;; %1</translation>
    </message>
    <message>
        <source>%1: the job ends here%2</source>
        <translation>%1&#xa0;: la tâche s&apos;arrête ici%2</translation>
    </message>
    <message>
        <source>most elements are those of the %1, not of the %2; did you mean &quot;%3&quot;?</source>
        <translation>la plupart des éléments sont du document %1, non du document %2&#xa0;; vouliez-vous dire &quot;%3&quot;&#xa0;?</translation>
    </message>
    <message>
        <source>a second method: the section of the %1 is not closed; send one document per job</source>
        <translation>une deuxième méthode&#xa0;: la section du document %1 n&apos;est pas fermée&#xa0;; envoyez un document par tâche</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands before the method and is not printed; move it behind &lt;method&gt;</source>
        <translation>&lt;%1&gt; se trouve avant la méthode et n&apos;est pas imprimé&#xa0;; placez-le après &lt;method&gt;</translation>
    </message>
    <message>
        <source>no document knows &lt;%1&gt;: nothing is printed%2</source>
        <translation>aucun document ne connaît &lt;%1&gt;&#xa0;: rien n&apos;est imprimé%2</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;%3%4</source>
        <translation>&lt;%1&gt; n&apos;imprime rien dans le document &quot;%2&quot;%3%4</translation>
    </message>
    <message>
        <source>&lt;%1&gt; prints nothing in the document &quot;%2&quot;: its figures are lost%3%4</source>
        <translation>&lt;%1&gt; n&apos;imprime rien dans le document &quot;%2&quot;&#xa0;: ses chiffres sont perdus%3%4</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt; in this document%3</source>
        <translation>rien ne lit &quot;%1&quot; de &lt;%2&gt; dans ce document%3</translation>
    </message>
    <message>
        <source>nothing reads %1 of &lt;%2&gt; in the document &quot;%3&quot;: %4%5</source>
        <translation>rien ne lit %1 de &lt;%2&gt; dans le document &quot;%3&quot;&#xa0;: %4%5</translation>
    </message>
    <message>
        <source>nothing reads &quot;%1&quot; of &lt;%2&gt;%3</source>
        <translation>rien ne lit &quot;%1&quot; de &lt;%2&gt;%3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2: %3</source>
        <translation>&lt;%1&gt; n&apos;a pas de %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no %2, which the settings switch on: %3</source>
        <translation>&lt;%1&gt; n&apos;a pas de %2, que les réglages activent&#xa0;: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, no number; it prints as it is</source>
        <translation>&quot;%1&quot; est %2, qui n&apos;est pas un nombre&#xa0;; imprimé tel quel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, with parts of a hundredth; it prints as it is</source>
        <translation>&quot;%1&quot; est %2, avec des fractions de centième&#xa0;; imprimé tel quel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2; other amounts of this job have a %3 as their decimal mark</source>
        <translation>&quot;%1&quot; est %2&#xa0;; d&apos;autres montants de cette tâche ont pour signe décimal&#xa0;: %3</translation>
    </message>
    <message>
        <source>the quantity %1 is no number and prints as &quot;-&quot;, something left out</source>
        <translation>la quantité %1 n&apos;est pas un nombre et s&apos;imprime &quot;-&quot;, quelque chose en moins</translation>
    </message>
    <message>
        <source>the sale row has no %1: %2</source>
        <translation>il manque %1 à la ligne de vente&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, %3</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2, %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with parts of a hundredth, which are sent</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2, avec des fractions de centième, qui sont envoyées</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, no number above 0</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2, qui n&apos;est pas un nombre supérieur à 0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2; the printer takes a whole number from 1 on</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2&#xa0;; l&apos;imprimante prend un nombre entier à partir de 1</translation>
    </message>
    <message>
        <source>%1 times %2 is %3, and &quot;%4&quot; is %5</source>
        <translation>%1 fois %2 font %3, et &quot;%4&quot; est %5</translation>
    </message>
    <message>
        <source>the rows come to %1, and %2</source>
        <translation>les lignes font %1, et %2</translation>
    </message>
    <message>
        <source>%1 %2, and &quot;%3&quot; is %4</source>
        <translation>%1 %2, et &quot;%3&quot; est %4</translation>
    </message>
    <message>
        <source>the %1 has rows and no &lt;%2&gt;: no total is printed</source>
        <translation>le document %1 a des lignes et pas de &lt;%2&gt;&#xa0;: aucun total n&apos;est imprimé</translation>
    </message>
    <message>
        <source>the total stands here a second time, with no row in front of it, and prints again</source>
        <translation>le total se trouve ici une deuxième fois, sans ligne avant lui, et s&apos;imprime de nouveau</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands behind the total and prints below it</source>
        <translation>&lt;%1&gt; se trouve après le total et s&apos;imprime au-dessous</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2: a %3 in it breaks the printer&apos;s command</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2&#xa0;: %3 y rompt la commande de l&apos;imprimante</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a line break, which breaks the printed line</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; a un saut de ligne, qui rompt la ligne imprimée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has a &quot;)&quot;, which some printers take for the end of the line</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; a une &quot;)&quot;, que certaines imprimantes prennent pour la fin de la ligne</translation>
    </message>
    <message>
        <source>%1 a tab or another control character</source>
        <translation>%1 une tabulation ou un autre caractère de commande</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has TOTALE, which prints as T0TALE</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; contient TOTALE, qui s&apos;imprime T0TALE</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has an empty part: what follows is not printed</source>
        <translation>&quot;%1&quot; a une partie vide&#xa0;: la suite n&apos;est pas imprimée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, probably %3: UTF-8 was read as %4 and saved again</source>
        <translation>&quot;%1&quot; est %2, sans doute %3&#xa0;: de l&apos;UTF-8 a été lu comme %4 et réenregistré</translation>
    </message>
    <message>
        <source>%1 %2, which prints as it is: it was escaped twice</source>
        <translation>%1 %2, imprimé tel quel&#xa0;: échappé deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what %2 lacks: %3</source>
        <translation>&quot;%1&quot; a ce qui manque à %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: %2 is off in %3</source>
        <translation>%1&#xa0;: %2 est désactivé dans %3</translation>
    </message>
    <message>
        <source>a line of %1 characters is wider than the paper (%2): %3%4</source>
        <translation>une ligne de %1 caractères est plus large que le papier (%2)&#xa0;: %3%4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut in the middle of %2, which prints as another character</source>
        <translation>&quot;%1&quot; est coupé au milieu de %2, qui s&apos;imprime comme un autre caractère</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;?</source>
        <translation>; vouliez-vous dire &quot;%1&quot;&#xa0;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;...&quot;/&gt;</source>
        <translation>commencez par &lt;method name=&quot;...&quot;/&gt;</translation>
    </message>
    <message>
        <source>did you mean &lt;method&gt; by &lt;%1&gt;?</source>
        <translation>vouliez-vous dire &lt;method&gt; par &lt;%1&gt;&#xa0;?</translation>
    </message>
    <message>
        <source>begin with &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>commencez par &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>this</source>
        <translation>ce point</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>la ligne %1</translation>
    </message>
    <message>
        <source>an instruction has no name</source>
        <translation>une instruction n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name</source>
        <translation>&quot;%1&quot; n&apos;est pas un nom</translation>
    </message>
    <message>
        <source>XML %1 is not read; write 1.0</source>
        <translation>XML %1 n&apos;est pas lu&#xa0;; écrivez 1.0</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in %2: the paper ends here; name %2, or none</source>
        <translation>%1 est indiqué, mais la tâche est écrite en %2&#xa0;: le papier s&apos;arrête ici&#xa0;; indiquez %2, ou rien</translation>
    </message>
    <message>
        <source>%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none</source>
        <translation>%1 est indiqué, mais la tâche est écrite en UTF-8&#xa0;: les accents s&apos;impriment mal&#xa0;; indiquez UTF-8, ou rien</translation>
    </message>
    <message>
        <source>the checker cannot read the encoding &quot;%1&quot;: nothing else was checked; write UTF-8</source>
        <translation>l&apos;encodage &quot;%1&quot; ne peut être lu&#xa0;: rien d&apos;autre n&apos;a été contrôlé&#xa0;; écrivez UTF-8</translation>
    </message>
    <message>
        <source>not %1: the bytes here print as a replacement character; save the job as UTF-8, or name what it is written in</source>
        <translation>pas du %1&#xa0;: ces octets s&apos;impriment comme un caractère de remplacement&#xa0;; enregistrez la tâche en UTF-8, ou indiquez son encodage</translation>
    </message>
    <message>
        <source>more than %1 elements nested in each other: the paper ends here</source>
        <translation>plus de %1 éléments imbriqués&#xa0;: le papier s&apos;arrête ici</translation>
    </message>
    <message>
        <source>more than %1 namespaces declared: the paper ends here</source>
        <translation>plus de %1 espaces de noms déclarés&#xa0;: le papier s&apos;arrête ici</translation>
    </message>
    <message>
        <source>more entities than the renderer takes, longer ones, or one in itself: the paper ends here</source>
        <translation>des entités plus nombreuses ou plus longues que le programme d&apos;impression n&apos;en prend, ou une dans elle-même&#xa0;: le papier s&apos;arrête ici</translation>
    </message>
    <message>
        <source>more than %1 attributes in the document type: nothing behind this was checked</source>
        <translation>plus de %1 attributs dans le type de document&#xa0;: rien n&apos;a été contrôlé ensuite</translation>
    </message>
    <message>
        <source>groups and settings that are too many, too deep or too long are read over: %1</source>
        <translation>les groupes et réglages trop nombreux, trop profonds ou trop longs ne sont pas lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>no document is called %1</source>
        <translation>aucun document ne s&apos;appelle %1</translation>
    </message>
    <message>
        <source>the method has no name</source>
        <translation>la méthode n&apos;a pas de nom</translation>
    </message>
    <message>
        <source>; write &lt;method name=&quot;%1&quot;/&gt;</source>
        <translation>; écrivez &lt;method name=&quot;%1&quot;/&gt;</translation>
    </message>
    <message>
        <source>its figure is lost</source>
        <translation>son chiffre est perdu</translation>
    </message>
    <message>
        <source>their figures are lost</source>
        <translation>leurs chiffres sont perdus</translation>
    </message>
    <message>
        <source>; did you mean &quot;%1&quot;, which is missing?</source>
        <translation>; vouliez-vous dire &quot;%1&quot;, qui manque&#xa0;?</translation>
    </message>
    <message>
        <source>, and its &quot;%1&quot; is missing</source>
        <translation>, et il manque &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as an element, which prints nothing: write it as an attribute</source>
        <translation>&lt;%1&gt; a %2 comme élément, qui n&apos;imprime rien&#xa0;: écrivez-le comme attribut</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has %2 as elements, which print nothing: write them as attributes</source>
        <translation>&lt;%1&gt; a %2 comme éléments, qui n&apos;impriment rien&#xa0;: écrivez-les comme attributs</translation>
    </message>
    <message>
        <source>the text %1 in &lt;%2&gt; is not printed: write it as an attribute</source>
        <translation>le texte %1 dans &lt;%2&gt; n&apos;est pas imprimé&#xa0;: écrivez-le comme attribut</translation>
    </message>
    <message>
        <source>; it is printed in %1</source>
        <translation>; il est imprimé dans&#xa0;: %1</translation>
    </message>
    <message>
        <source>its place prints empty</source>
        <translation>sa place reste vide</translation>
    </message>
    <message>
        <source>their places print empty</source>
        <translation>leurs places restent vides</translation>
    </message>
    <message>
        <source>it prints as &quot;-&quot;, something left out</source>
        <translation>il s&apos;imprime &quot;-&quot;, quelque chose en moins</translation>
    </message>
    <message>
        <source>&quot;number&quot; and &quot;totals&quot; must be the first two attributes, and are not: all others are taken for serial number, total and tax rate of one document after the other</source>
        <translation>&quot;number&quot; et &quot;totals&quot; doivent être les deux premiers attributs et ne le sont pas&#xa0;: tous les autres sont pris pour numéro de série, total et taux de taxe d&apos;un document après l&apos;autre</translation>
    </message>
    <message>
        <source>each cancelled document takes three attributes behind &quot;number&quot; and &quot;totals&quot;, its serial number, total and tax rate; there are %1</source>
        <translation>chaque document annulé prend trois attributs après &quot;number&quot; et &quot;totals&quot;&#xa0;: numéro de série, total et taux de taxe&#xa0;; il y en a %1</translation>
    </message>
    <message>
        <source>&quot;number&quot; is %1, but the cancelled documents that are listed are %2</source>
        <translation>&quot;number&quot; est %1, mais %2 documents annulés sont énumérés</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>virgule</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; is %3</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; est %3</translation>
    </message>
    <message>
        <source>the tax lines come to %1</source>
        <translation>les lignes de taxe font %1</translation>
    </message>
    <message>
        <source>%1 of %2 is</source>
        <translation>%1 de %2 font</translation>
    </message>
    <message>
        <source>%1 and %2 come to</source>
        <translation>%1 et %2 font</translation>
    </message>
    <message>
        <source>0 is registered</source>
        <translation>0 est enregistré</translation>
    </message>
    <message>
        <source>the printer may refuse it</source>
        <translation>l&apos;imprimante peut la refuser</translation>
    </message>
    <message>
        <source>no number: 0 is registered</source>
        <translation>pas un nombre&#xa0;: 0 est enregistré</translation>
    </message>
    <message>
        <source>no plain number</source>
        <translation>pas un nombre simple</translation>
    </message>
    <message>
        <source>more than the printer takes</source>
        <translation>plus que l&apos;imprimante n&apos;en prend</translation>
    </message>
    <message>
        <source>line break</source>
        <translation>un saut de ligne</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of &lt;%2&gt; has</source>
        <translation>&quot;%1&quot; de &lt;%2&gt; a</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a sale row is %2, with</source>
        <translation>&quot;%1&quot; d&apos;une ligne de vente est %2, avec</translation>
    </message>
    <message>
        <source>U+FFFD in place of a character that was lost before</source>
        <translation>U+FFFD à la place d&apos;un caractère perdu auparavant</translation>
    </message>
    <message>
        <source>%1, a character without a shape; leave it out</source>
        <translation>%1, un caractère sans forme&#xa0;; retirez-le</translation>
    </message>
    <message>
        <source>%1 prints as %2</source>
        <translation>%1 s&apos;imprime %2</translation>
    </message>
    <message>
        <source>, and %1 more</source>
        <translation>, et %1 de plus</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not printed</source>
        <translation>&lt;%1&gt; n&apos;est pas imprimé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not printed</source>
        <translation>&quot;%1&quot; n&apos;est pas imprimé</translation>
    </message>
    <message>
        <source>of &lt;headers&gt; only the printer&apos;s name is printed</source>
        <translation>de &lt;headers&gt;, seul le nom de l&apos;imprimante est imprimé</translation>
    </message>
    <message>
        <source>; &quot;%1&quot; is %2 in a column of %3 (%4 in %5)</source>
        <translation>; &quot;%1&quot; est %2 dans une colonne de %3 (%4 dans %5)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it has no group korvel: { ... };</source>
        <translation>il n&apos;a pas de groupe korvel: { ... };</translation>
    </message>
    <message>
        <source>no setting stands in it</source>
        <translation>il ne contient aucun réglage</translation>
    </message>
    <message>
        <source>it is written as %1; settings are written korvel: { doc: { paperWidth = &quot;32&quot;; }; };</source>
        <translation>il est écrit en %1&#xa0;; les réglages s&apos;écrivent korvel: { doc: { paperWidth = &quot;32&quot;; }; };</translation>
    </message>
    <message>
        <source>its first group is %1, not korvel%2</source>
        <translation>son premier groupe est %1, non korvel%2</translation>
    </message>
    <message>
        <source>its first group has no name%1</source>
        <translation>son premier groupe n&apos;a pas de nom%1</translation>
    </message>
    <message>
        <source>a byte order mark stands in front of it</source>
        <translation>une marque d&apos;ordre des octets le précède</translation>
    </message>
    <message>
        <source>it is written as UTF-16</source>
        <translation>il est écrit en UTF-16</translation>
    </message>
    <message>
        <source>the group %1</source>
        <translation>le groupe %1</translation>
    </message>
    <message>
        <source>what follows</source>
        <translation>ce qui suit</translation>
    </message>
    <message>
        <source>%1 is %2: does the line end with ;?</source>
        <translation>%1 est %2&#xa0;: la ligne finit-elle par&#xa0;;&#xa0;?</translation>
    </message>
    <message>
        <source>; does the line end with ;?</source>
        <translation>; la ligne finit-elle par&#xa0;;&#xa0;?</translation>
    </message>
    <message>
        <source>a } has no ; behind it: %1 is skipped</source>
        <translation>il manque&#xa0;; après un }&#xa0;: %1 est sauté</translation>
    </message>
    <message>
        <source>the group %1 is not closed: a }; is missing here</source>
        <translation>le groupe %1 n&apos;est pas fermé&#xa0;: il manque }; ici</translation>
    </message>
    <message>
        <source>the file ends inside the group %1: a }; is missing, if not more</source>
        <translation>le fichier finit dans le groupe %1&#xa0;: il manque au moins un };</translation>
    </message>
    <message>
        <source>a } closes %1 too early: what follows is not read</source>
        <translation>un } ferme %1 trop tôt&#xa0;: la suite n&apos;est pas lue</translation>
    </message>
    <message>
        <source>a } closes nothing: what follows is not read</source>
        <translation>un } ne ferme rien&#xa0;: la suite n&apos;est pas lue</translation>
    </message>
    <message>
        <source>the group %1 has no { behind its name</source>
        <translation>le groupe %1 n&apos;a pas de { après son nom</translation>
    </message>
    <message>
        <source>the group %1 has no : behind its name%2</source>
        <translation>le groupe %1 n&apos;a pas de&#xa0;: après son nom%2</translation>
    </message>
    <message>
        <source>the group %1 has neither : nor { behind its name%2</source>
        <translation>le groupe %1 n&apos;a ni&#xa0;: ni { après son nom%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands where the &quot;%2&quot; of %3 belongs</source>
        <translation>&quot;%1&quot; se trouve à la place du &quot;%2&quot; de %3</translation>
    </message>
    <message>
        <source>%1 stands where a &quot; of %2 belongs, and becomes part of the value</source>
        <translation>%1 se trouve à la place d&apos;un &quot; de %2 et devient partie de la valeur</translation>
    </message>
    <message>
        <source>%1: it is read as %2</source>
        <translation>%1&#xa0;: lu comme %2</translation>
    </message>
    <message>
        <source>a { too many: %1 has one already</source>
        <translation>un { de trop&#xa0;: %1 en a déjà un</translation>
    </message>
    <message>
        <source>%1 has no = behind its name and is not read</source>
        <translation>%1 n&apos;a pas de = après son nom et n&apos;est pas lu</translation>
    </message>
    <message>
        <source>no name stands before the =: %1 is not read</source>
        <translation>aucun nom ne précède le =&#xa0;: %1 n&apos;est pas lu</translation>
    </message>
    <message>
        <source>no catalogue is found as %1</source>
        <translation>aucun catalogue n&apos;est trouvé sous %1</translation>
    </message>
    <message>
        <source>%1 is no catalogue</source>
        <translation>%1 n&apos;est pas un catalogue</translation>
    </message>
    <message>
        <source>; letters beyond ASCII are misread: leave them out of paths</source>
        <translation>; les lettres hors d&apos;ASCII sont mal lues&#xa0;: évitez-les dans les chemins</translation>
    </message>
    <message>
        <source>; file must begin with a /</source>
        <translation>; file doit commencer par /</translation>
    </message>
    <message>
        <source>the columns of the %1 leave no room for the description: the others and the blanks take %2 of %3 characters</source>
        <translation>les colonnes du document (%1) ne laissent pas de place à la désignation&#xa0;: les autres et les espaces prennent %2 caractères sur %3</translation>
    </message>
    <message>
        <source>%1 is %2: the description of the %3 gets as many characters too many</source>
        <translation>%1 est %2&#xa0;: la désignation a autant de caractères en trop (%3)</translation>
    </message>
    <message>
        <source>paperWidth is %1: lines are wider than the printer&apos;s %2 characters</source>
        <translation>paperWidth est %1&#xa0;: les lignes sont plus larges que les %2 caractères de l&apos;imprimante</translation>
    </message>
    <message>
        <source>no document reads the group %1</source>
        <translation>aucun document ne lit le groupe %1</translation>
    </message>
    <message>
        <source>a group has no name before its {</source>
        <translation>un groupe n&apos;a pas de nom avant son {</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and %1 is another</source>
        <translation>seul le premier groupe du fichier est lu, et %1 en est un autre</translation>
    </message>
    <message>
        <source>documents&apos; groups stand in korvel itself, not in %1</source>
        <translation>les groupes des documents se placent dans korvel même, non dans %1</translation>
    </message>
    <message>
        <source>what the one in line %1 sets counts, this one adds what it does not set</source>
        <translation>ce que fixe celui de la ligne %1 compte, celui-ci ajoute ce qu&apos;il ne fixe pas</translation>
    </message>
    <message>
        <source>this one counts, not that in line %1</source>
        <translation>celui-ci compte, non celui de la ligne %1</translation>
    </message>
    <message>
        <source>; only true switches it on</source>
        <translation>; seul true l&apos;active</translation>
    </message>
    <message>
        <source>it stands outside the group korvel</source>
        <translation>il est hors du groupe korvel</translation>
    </message>
    <message>
        <source>only the first group of the file is read, and it must be korvel</source>
        <translation>seul le premier groupe du fichier est lu, et ce doit être korvel</translation>
    </message>
    <message>
        <source>settings stand in a document&apos;s group or in language, in korvel%1</source>
        <translation>les réglages se placent dans le groupe d&apos;un document ou dans language, dans korvel%1</translation>
    </message>
    <message>
        <source>; does a } lack its ;?</source>
        <translation>; manque-t-il son&#xa0;; à un }&#xa0;?</translation>
    </message>
    <message>
        <source>no document has such a group%1</source>
        <translation>aucun document n&apos;a un tel groupe%1</translation>
    </message>
    <message>
        <source>there is no such setting%1</source>
        <translation>un tel réglage n&apos;existe pas%1</translation>
    </message>
    <message>
        <source>it is commented out; nothing else is lost by it, but deleting it is safer</source>
        <translation>il est en commentaire&#xa0;; rien d&apos;autre n&apos;est perdu, mais l&apos;effacer est plus sûr</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1</source>
        <translation>rien du fichier n&apos;est lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>nothing of the file is read: %1; save it as plain ASCII</source>
        <translation>rien du fichier n&apos;est lu&#xa0;: %1&#xa0;; enregistrez-le en ASCII simple</translation>
    </message>
    <message>
        <source>%1 is read as part of what follows: %2 is lost; there are no comments</source>
        <translation>%1 est lu comme partie de ce qui suit&#xa0;: %2 est perdu&#xa0;; il n&apos;y a pas de commentaires</translation>
    </message>
    <message>
        <source>%1: its settings are lost%2</source>
        <translation>%1&#xa0;: ses réglages sont perdus%2</translation>
    </message>
    <message>
        <source>labels stay English: %1</source>
        <translation>les libellés restent en anglais&#xa0;: %1</translation>
    </message>
    <message>
        <source>nothing reads %1: %2</source>
        <translation>rien ne lit %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 stands here a second time: %2</source>
        <translation>%1 se trouve ici une deuxième fois&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is %2 and counts as off%3</source>
        <translation>%1 est %2 et compte comme désactivé%3</translation>
    </message>
    <message>
        <source>%1 is %2, no whole number, and counts as 0%3</source>
        <translation>%1 est %2, qui n&apos;est pas un nombre entier, et compte comme 0%3</translation>
    </message>
    <message>
        <source>all documents but %1</source>
        <translation>tous les documents sauf&#xa0;: %1</translation>
    </message>
    <message>
        <source>a %1 of %2 characters is wider than the paper (%3)</source>
        <translation>%1 de %2 caractères, plus large que le papier (%3)</translation>
    </message>
    <message>
        <source>the stream is empty: nothing is printed</source>
        <translation>le flux est vide&#xa0;: rien n&apos;est imprimé</translation>
    </message>
    <message>
        <source>the %1 opened here is never closed</source>
        <translation>%1&#xa0;: ouverture ici, jamais de fermeture</translation>
    </message>
    <message>
        <source>the %1 opened at byte %2 is still open where the %3 is opened</source>
        <translation>%1 (octet %2) encore ouvert là où s&apos;ouvre %3</translation>
    </message>
    <message>
        <source>the %1 is closed but not open</source>
        <translation>%1&#xa0;: fermeture sans ouverture</translation>
    </message>
    <message>
        <source>a %1 outside a fiscal section</source>
        <translation>%1 hors d&apos;une section fiscale</translation>
    </message>
    <message>
        <source>the amount %1 is no whole number of hundredths</source>
        <translation>le montant %1 n&apos;est pas un nombre entier de centièmes</translation>
    </message>
    <message>
        <source>the quantity %1 is no number</source>
        <translation>la quantité %1 n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>the %1 is too large for the preview to add up</source>
        <translation>%1&#xa0;: trop grand pour être additionné</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a text ends it early</source>
        <translation>&quot;%1&quot; dans un texte le termine trop tôt</translation>
    </message>
    <message>
        <source>a &quot;%1&quot; inside a field of a sale row ends it early</source>
        <translation>&quot;%1&quot; dans un champ d&apos;une ligne de vente le termine trop tôt</translation>
    </message>
    <message>
        <source>the line break %1 inside a text ends it early</source>
        <translation>le saut de ligne %1 dans un texte le termine trop tôt</translation>
    </message>
    <message>
        <source>the control character %1 inside a text</source>
        <translation>le caractère de commande %1 dans un texte</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 n&apos;est pas du %2</translation>
    </message>
    <message>
        <source>broken %1: %2 does not belong here</source>
        <translation>%1, avec une erreur&#xa0;: %2 n&apos;a rien à faire ici</translation>
    </message>
    <message>
        <source>unterminated %1 that begins at byte %2: the stream ends here</source>
        <translation>%1, incomplet (octet %2)&#xa0;: le flux s&apos;arrête ici</translation>
    </message>
    <message>
        <source>too much is wrong; no more is listed</source>
        <translation>trop d&apos;erreurs&#xa0;; la suite n&apos;est pas énumérée</translation>
    </message>
    <message>
        <source>too much is odd; no more is listed</source>
        <translation>trop de bizarreries&#xa0;; la suite n&apos;est pas énumérée</translation>
    </message>
    <message>
        <source>line</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>text line</source>
        <translation>ligne de texte</translation>
    </message>
    <message>
        <source>section opening</source>
        <translation>ouverture de section</translation>
    </message>
    <message>
        <source>section closing</source>
        <translation>fermeture de section</translation>
    </message>
    <message>
        <source>sale row</source>
        <translation>ligne de vente</translation>
    </message>
    <message>
        <source>deduction</source>
        <translation>déduction</translation>
    </message>
    <message>
        <source>unknown command</source>
        <translation>commande inconnue</translation>
    </message>
    <message>
        <source>fiscal section</source>
        <translation>section fiscale</translation>
    </message>
    <message>
        <source>receipt section</source>
        <translation>section de reçu</translation>
    </message>
    <message>
        <source>document section</source>
        <translation>section de document</translation>
    </message>
    <message>
        <source>unknown command that begins at byte %1: the stream ends here</source>
        <translation>commande inconnue (octet %1)&#xa0;: le flux s&apos;arrête ici</translation>
    </message>
    <message>
        <source>unknown command: %1 does not belong here</source>
        <translation>commande inconnue&#xa0;: %1 n&apos;a rien à faire ici</translation>
    </message>
    <message>
        <source>this is not well-formed</source>
        <translation>ceci n&apos;est pas du XML bien formé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; or %2</source>
        <translation>&quot;%1&quot; ou %2</translation>
    </message>
    <message>
        <source>XML forbids the character {character}</source>
        <translation>XML interdit le caractère {character}</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins no reference; write &amp;amp;</source>
        <translation>&quot;&amp;&quot; ne commence aucune référence&#xa0;; écrivez &amp;amp;</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; begins a reference without its &quot;;&quot;; write &amp;amp;, or end the reference</source>
        <translation>&quot;&amp;&quot; commence une référence sans son &quot;;&quot;&#xa0;; écrivez &amp;amp;, ou terminez la référence</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote, or a &quot;&lt;&quot;; for that write &amp;lt;</source>
        <translation>la valeur qui commence ici n&apos;a pas de guillemet fermant, ou contient un &quot;&lt;&quot;&#xa0;; pour celui-ci écrivez &amp;lt;</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; in a value; write &amp;lt;, or end the value with its quote</source>
        <translation>&quot;&lt;&quot; dans une valeur&#xa0;; écrivez &amp;lt;, ou terminez la valeur par son guillemet</translation>
    </message>
    <message>
        <source>&quot;--&quot; in a comment; write a single -</source>
        <translation>&quot;--&quot; dans un commentaire&#xa0;; écrivez un seul -</translation>
    </message>
    <message>
        <source>a comment begins with &lt;!--</source>
        <translation>un commentaire commence par &lt;!--</translation>
    </message>
    <message>
        <source>&quot;]]&gt;&quot; in a text; write ]]&amp;gt;</source>
        <translation>&quot;]]&gt;&quot; dans un texte&#xa0;; écrivez ]]&amp;gt;</translation>
    </message>
    <message>
        <source>&quot;&lt;/&quot; without a name</source>
        <translation>&quot;&lt;/&quot; sans nom</translation>
    </message>
    <message>
        <source>an end tag where no element is open</source>
        <translation>une balise fermante là où aucun élément n&apos;est ouvert</translation>
    </message>
    <message>
        <source>an XML declaration begins with &lt;?xml, in small letters</source>
        <translation>une déclaration XML commence par &lt;?xml, en minuscules</translation>
    </message>
    <message>
        <source>&quot;&lt;?&quot; without a name</source>
        <translation>&quot;&lt;?&quot; sans nom</translation>
    </message>
    <message>
        <source>&quot;&lt;!&quot; begins no comment and no CDATA section</source>
        <translation>&quot;&lt;!&quot; ne commence ni un commentaire ni une section CDATA</translation>
    </message>
    <message>
        <source>a blank behind &quot;&lt;&quot;; the name of a tag stands right behind it</source>
        <translation>un espace après &quot;&lt;&quot;&#xa0;; le nom d&apos;une balise suit immédiatement</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; begins no tag; write &amp;lt;</source>
        <translation>&quot;&lt;&quot; ne commence aucune balise&#xa0;; écrivez &amp;lt;</translation>
    </message>
    <message>
        <source>{character} is no quote to XML; write &quot; or &apos;</source>
        <translation>{character} n&apos;est pas un guillemet pour XML&#xa0;; écrivez &quot; ou &apos;</translation>
    </message>
    <message>
        <source>a value without quotes; write {value}</source>
        <translation>une valeur sans guillemets&#xa0;; écrivez {value}</translation>
    </message>
    <message>
        <source>the tag that begins here has no &quot;&gt;&quot;</source>
        <translation>la balise qui commence ici n&apos;a pas de &quot;&gt;&quot;</translation>
    </message>
    <message>
        <source>{character} behind the name of an end tag, which has nothing else</source>
        <translation>{character} après le nom d&apos;une balise fermante, qui ne contient rien d&apos;autre</translation>
    </message>
    <message>
        <source>&quot;/&quot; in a tag without a &quot;&gt;&quot; behind it</source>
        <translation>&quot;/&quot; dans une balise sans &quot;&gt;&quot; derrière</translation>
    </message>
    <message>
        <source>the value that begins here has no closing quote</source>
        <translation>la valeur qui commence ici n&apos;a pas de guillemet fermant</translation>
    </message>
    <message>
        <source>no blank between a value and the next attribute</source>
        <translation>pas d&apos;espace entre une valeur et l&apos;attribut suivant</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; a tag without content ends with /&gt;</source>
        <translation>{character} ne peut pas suivre une valeur&#xa0;; une balise sans contenu se termine par /&gt;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; blanks alone part attributes</source>
        <translation>{character} ne peut pas suivre une valeur&#xa0;; seuls des espaces séparent les attributs</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a &apos; in a value write &amp;apos;</source>
        <translation>{character} ne peut pas suivre une valeur&#xa0;; pour un &apos; dans une valeur écrivez &amp;apos;</translation>
    </message>
    <message>
        <source>{character} cannot stand behind a value; for a quote in a value write &amp;quot;</source>
        <translation>{character} ne peut pas suivre une valeur&#xa0;; pour un guillemet dans une valeur écrivez &amp;quot;</translation>
    </message>
    <message>
        <source>a value without a &quot;=&quot; before it</source>
        <translation>une valeur sans &quot;=&quot; devant</translation>
    </message>
    <message>
        <source>an attribute without a value</source>
        <translation>un attribut sans valeur</translation>
    </message>
    <message>
        <source>{character} cannot begin a name</source>
        <translation>{character} ne peut pas commencer un nom</translation>
    </message>
    <message>
        <source>{character} cannot stand in a name</source>
        <translation>{character} ne peut pas se trouver dans un nom</translation>
    </message>
    <message>
        <source>a text outside the root</source>
        <translation>un texte hors de l&apos;élément racine</translation>
    </message>
    <message>
        <source>&amp;{name}; stands for what is not well-formed</source>
        <translation>&amp;{name}; représente quelque chose qui n&apos;est pas bien formé</translation>
    </message>
    <message>
        <source>an entity in this tag stands for what is not well-formed</source>
        <translation>une entité de cette balise représente quelque chose qui n&apos;est pas bien formé</translation>
    </message>
    <message>
        <source>{character} cannot stand here</source>
        <translation>{character} ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>a comment without its &quot;--&gt;&quot;</source>
        <translation>un commentaire sans son &quot;--&gt;&quot;</translation>
    </message>
    <message>
        <source>an XML declaration without its &quot;?&gt;&quot;</source>
        <translation>une déclaration XML sans son &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>an instruction without its &quot;?&gt;&quot;</source>
        <translation>une instruction sans son &quot;?&gt;&quot;</translation>
    </message>
    <message>
        <source>a tag without its &quot;&gt;&quot;, or with a quote too few</source>
        <translation>une balise sans son &quot;&gt;&quot;, ou avec un guillemet de moins</translation>
    </message>
    <message>
        <source>what begins here does not end</source>
        <translation>ce qui commence ici ne se termine pas</translation>
    </message>
    <message>
        <source>a CDATA section without its &quot;]]&gt;&quot;</source>
        <translation>une section CDATA sans son &quot;]]&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;{open}&gt; is never closed; write &lt;/{open}&gt; where it ends, or /&gt; in place of its &gt;</source>
        <translation>&lt;{open}&gt; n&apos;est jamais fermé&#xa0;; écrivez &lt;/{open}&gt; là où il se termine, ou /&gt; à la place de son &gt;</translation>
    </message>
    <message>
        <source>there is no element</source>
        <translation>il n&apos;y a aucun élément</translation>
    </message>
    <message>
        <source>&lt;/{name}&gt; where &lt;{open}&gt; of line {line} must be closed</source>
        <translation>&lt;/{name}&gt; là où &lt;{open}&gt; de la ligne {line} doit être fermé</translation>
    </message>
    <message>
        <source>an end tag of an entity closes another element</source>
        <translation>une balise fermante d&apos;une entité ferme un autre élément</translation>
    </message>
    <message>
        <source>an entity with a start tag or an end tag alone</source>
        <translation>une entité avec une balise ouvrante seule ou une balise fermante seule</translation>
    </message>
    <message>
        <source>a second root; one element must hold all others</source>
        <translation>un second élément racine&#xa0;; un seul élément doit contenir tous les autres</translation>
    </message>
    <message>
        <source>a declaration or a section behind the end of the root</source>
        <translation>une déclaration ou une section après la fin de l&apos;élément racine</translation>
    </message>
    <message>
        <source>the XML declaration is not the first in the file; nothing may stand before it, no blank either</source>
        <translation>la déclaration XML n&apos;est pas en tête du fichier&#xa0;; rien ne peut la précéder, pas même un espace</translation>
    </message>
    <message>
        <source>this is no XML declaration; write &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</source>
        <translation>ceci n&apos;est pas une déclaration XML&#xa0;; écrivez &lt;?xml version=&quot;1.0&quot; encoding=&quot;UTF-8&quot;?&gt;</translation>
    </message>
    <message>
        <source>an attribute stands twice: &quot;{name}&quot;</source>
        <translation>un attribut figure deux fois&#xa0;: &quot;{name}&quot;</translation>
    </message>
    <message>
        <source>an attribute stands twice, in an entity</source>
        <translation>un attribut figure deux fois, dans une entité</translation>
    </message>
    <message>
        <source>&amp;{name}; leads to no entity that is declared; write the character itself</source>
        <translation>&amp;{name}; ne mène à aucune entité déclarée&#xa0;; écrivez le caractère lui-même</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};; write {written}</source>
        <translation>XML ne connaît pas &amp;{name};&#xa0;; écrivez {written}</translation>
    </message>
    <message>
        <source>XML does not know &amp;{name};, only &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;; write &amp;amp; for a plain &quot;&amp;&quot;</source>
        <translation>XML ne connaît pas &amp;{name};, seulement &amp;amp; &amp;lt; &amp;gt; &amp;quot; &amp;apos;&#xa0;; pour un simple &quot;&amp;&quot; écrivez &amp;amp;</translation>
    </message>
    <message>
        <source>an entity that is not declared</source>
        <translation>une entité qui n&apos;est pas déclarée</translation>
    </message>
    <message>
        <source>&amp;{name}; is no character that XML allows</source>
        <translation>&amp;{name}; n&apos;est pas un caractère que XML autorise</translation>
    </message>
    <message>
        <source>a reference to what is no character</source>
        <translation>une référence à ce qui n&apos;est pas un caractère</translation>
    </message>
    <message>
        <source>an entity that refers to itself</source>
        <translation>une entité qui se réfère à elle-même</translation>
    </message>
    <message>
        <source>an entity that is no text</source>
        <translation>une entité qui n&apos;est pas du texte</translation>
    </message>
    <message>
        <source>an entity of another file in a value</source>
        <translation>une entité d&apos;un autre fichier dans une valeur</translation>
    </message>
    <message>
        <source>a parameter entity cannot stand here</source>
        <translation>une entité paramètre ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>a parameter entity that is no whole declaration</source>
        <translation>une entité paramètre qui n&apos;est pas une déclaration complète</translation>
    </message>
    <message>
        <source>an entity that a parameter entity declares</source>
        <translation>une entité déclarée par une entité paramètre</translation>
    </message>
    <message>
        <source>a public identifier with a character that it cannot have</source>
        <translation>un identificateur public avec un caractère qu&apos;il ne peut pas contenir</translation>
    </message>
    <message>
        <source>entities that make too much text</source>
        <translation>des entités qui produisent trop de texte</translation>
    </message>
    <message>
        <source>more than the memory can hold</source>
        <translation>plus que la mémoire ne peut contenir</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Il n&apos;y a pas de fichier %1.</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::AddDialog</name>
    <message>
        <source>Add a group</source>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Ajouter un réglage</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Groupe&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Setting:</source>
        <translation>&amp;Réglage&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>korvel::settings::CatalogueBox</name>
    <message>
        <source>%1: labels in English</source>
        <translation>%1&#xa0;: libellés en anglais</translation>
    </message>
    <message>
        <source>the language of the system</source>
        <translation>la langue du système</translation>
    </message>
</context>
<context>
    <name>korvel::settings::ExpertPane</name>
    <message>
        <source>Add a se&amp;tting …</source>
        <translation>Ajo&amp;uter un réglage …</translation>
    </message>
    <message>
        <source>Add a &amp;group …</source>
        <translation>Ajouter un &amp;groupe …</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Rows of the settings file</source>
        <translation>Lignes du fichier de réglages</translation>
    </message>
    <message>
        <source>ConfigurationFile</source>
        <translation>Fichier de configuration</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FieldRow</name>
    <message>
        <source>Restore: %1</source>
        <translation>Restaurer&#xa0;: %1</translation>
    </message>
    <message>
        <source>labels: %1</source>
        <translation>libellés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>As in the file: %1</source>
        <translation>Comme dans le fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>As in the sample: %1</source>
        <translation>Comme dans l&apos;exemple&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FindingsList</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La ligne %1 est plus large que le papier&#xa0;: %2 caractères, sur %3.</translation>
    </message>
    <message>
        <source>Lines %1 are wider than the paper: up to %2 characters, of %3.</source>
        <translation>Les lignes %1 sont plus larges que le papier&#xa0;: jusqu&apos;à %2 caractères, sur %3.</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Ce qui ne va pas</translation>
    </message>
</context>
<context>
    <name>korvel::settings::FormPane</name>
    <message>
        <source>This document prints nothing.</source>
        <translation>Ce document n&apos;imprime rien.</translation>
    </message>
    <message>
        <source>The same settings lay out: %1.</source>
        <translation>Les mêmes réglages mettent en page&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::HelpPage</name>
    <message>
        <source>The help has no page %1.</source>
        <translation>L&apos;aide n&apos;a pas de page %1.</translation>
    </message>
    <message>
        <source>Help: %1</source>
        <translation>Aide (en anglais)&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Panes</name>
    <message>
        <source>Do&amp;cuments</source>
        <translation>D&amp;ocuments</translation>
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
        <translation>&amp;Tâche&#xa0;:</translation>
    </message>
    <message>
        <source>Sample of the shop</source>
        <translation>Exemple du magasin</translation>
    </message>
    <message>
        <source>Open a job file …</source>
        <translation>Ouvrir un fichier de tâche …</translation>
    </message>
    <message>
        <source>Choose a job</source>
        <translation>Choisir une tâche d&apos;impression</translation>
    </message>
    <message>
        <source>Jobs (*.xml);;All files (*)</source>
        <translation>Tâches d&apos;impression (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Job, line %1: %2</source>
        <translation>Tâche, ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Line %1 of the paper is made by no setting.</source>
        <translation>Aucun réglage ne produit la ligne %1 du papier.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::PaperView</name>
    <message>
        <source>The renderer %1 cannot be started.</source>
        <translation>Le programme d&apos;impression %1 ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>The temporary folder cannot be written.</source>
        <translation>Impossible d&apos;écrire dans le dossier temporaire.</translation>
    </message>
    <message>
        <source>The renderer %1 ended with an error.</source>
        <translation>Le programme d&apos;impression %1 s&apos;est terminé par une erreur.</translation>
    </message>
    <message>
        <source>The renderer %1 wrote nothing.</source>
        <translation>Le programme d&apos;impression %1 n&apos;a rien écrit.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>korvel::settings::Ruler</name>
    <message>
        <source>Ruler of the columns</source>
        <translation>Règle des colonnes</translation>
    </message>
    <message>
        <source>Drag the edge of a column to make it wider or narrower.</source>
        <translation>Faites glisser le bord d&apos;une colonne pour l&apos;élargir ou la rétrécir.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsDocument</name>
    <message>
        <source>Everything: nothing in the file could be read, and it would be emptied.</source>
        <translation>Tout&#xa0;: rien n&apos;a pu être lu dans le fichier, et il serait vidé.</translation>
    </message>
    <message>
        <source>%1 would be &quot;%2&quot; instead of &quot;%3&quot;.</source>
        <translation>%1 serait &quot;%2&quot; au lieu de &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The group %1 has no settings.</source>
        <translation>Le groupe %1 n&apos;a pas de paramètres.</translation>
    </message>
    <message>
        <source>The group %1 stands beside %2; only the first group of a file is kept.</source>
        <translation>Le groupe %1 se trouve à côté de %2&#xa0;; seul le premier groupe d&apos;un fichier est conservé.</translation>
    </message>
    <message>
        <source>The group %1 would be moved to another place.</source>
        <translation>Le groupe %1 changerait de place.</translation>
    </message>
    <message>
        <source>The setting %1 would be lost.</source>
        <translation>Le paramètre %1 serait perdu.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>The previous file could not be kept as %1; nothing was saved.</source>
        <translation>Le fichier précédent n&apos;a pas pu être conservé sous %1&#xa0;; rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 could not be written whole; the previous file was put back.</source>
        <translation>%1 n&apos;a pas pu être écrit en entier&#xa0;; le fichier précédent a été rétabli.</translation>
    </message>
    <message>
        <source>The text at the end of the file is no setting.</source>
        <translation>Le texte à la fin du fichier n&apos;est pas un paramètre.</translation>
    </message>
    <message>
        <source>The text %1 is no setting.</source>
        <translation>Le texte %1 n&apos;est pas un paramètre.</translation>
    </message>
    <message>
        <source>The setting %1 stands twice; the last one is kept.</source>
        <translation>Le paramètre %1 figure deux fois&#xa0;; le dernier est conservé.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open …</source>
        <translation>&amp;Ouvrir …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Ouvrir des paramètres</translation>
    </message>
    <message>
        <source>Settings (*.conf *.cfg);;All files (*)</source>
        <translation>Paramètres (*.conf *.cfg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened.</source>
        <translation>Le fichier a été modifié par un autre programme depuis son ouverture.</translation>
    </message>
    <message>
        <source>Save all the same</source>
        <translation>Enregistrer quand même</translation>
    </message>
    <message>
        <source>Not everything can be saved.</source>
        <translation>Tout ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>There are edits that are not saved.</source>
        <translation>Des modifications ne sont pas enregistrées.</translation>
    </message>
    <message>
        <source>There are no settings yet in %1.
Begin with the sample settings?</source>
        <translation>Il n&apos;y a pas encore de paramètres dans %1.
Commencer avec les paramètres d&apos;exemple&#xa0;?</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1[*] – Korvel settings</source>
        <translation>%1[*] – Paramètres de Korvel</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>The paper is too large for a picture; a PDF can hold it.</source>
        <translation>Le papier est trop grand pour une image&#xa0;; un PDF peut le contenir.</translation>
    </message>
    <message>
        <source>Save the settings as</source>
        <translation>Enregistrer les réglages sous</translation>
    </message>
    <message>
        <source>There is no paper.</source>
        <translation>Il n&apos;y a pas de papier.</translation>
    </message>
    <message>
        <source>Export the paper</source>
        <translation>Exporter le papier</translation>
    </message>
    <message>
        <source>PDF (*.pdf);;PNG (*.png)</source>
        <translation>Fichier PDF (*.pdf);;Image PNG (*.png)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;The settings file</source>
        <translation>&amp;Le fichier de réglages</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Ouvrir un fichier ré&amp;cent</translation>
    </message>
    <message>
        <source>Save &amp;as …</source>
        <translation>Enregistrer &amp;sous …</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Open a &amp;job file …</source>
        <translation>Ouvrir un fichier de tâc&amp;he …</translation>
    </message>
    <message>
        <source>&amp;Export the paper …</source>
        <translation>E&amp;xporter le papier …</translation>
    </message>
    <message>
        <source>Field: &amp;not set</source>
        <translation>Champ&#xa0;: &amp;non défini</translation>
    </message>
    <message>
        <source>Field: as in the &amp;file</source>
        <translation>Champ&#xa0;: comme dans le &amp;fichier</translation>
    </message>
    <message>
        <source>Field: as in the &amp;sample</source>
        <translation>Champ&#xa0;: comme dans l&apos;e&amp;xemple</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>Paper &amp;larger</source>
        <translation>Papier plus &amp;grand</translation>
    </message>
    <message>
        <source>Paper &amp;smaller</source>
        <translation>Papier plus &amp;petit</translation>
    </message>
    <message>
        <source>Paper in its &amp;own size</source>
        <translation>Papier en taille &amp;réelle</translation>
    </message>
    <message>
        <source>Paper as &amp;wide as its pane</source>
        <translation>Papier à la &amp;largeur du volet</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Les documents</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Réglages</translation>
    </message>
    <message>
        <source>E&amp;xpert</source>
        <translation>Mode e&amp;xpert</translation>
    </message>
    <message>
        <source>Read by nothing (%1)</source>
        <translation>Lu par rien (%1)</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exporté&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is neither settings nor a job. Choose a settings file such as korvel.conf, or a job in XML.</source>
        <translation>%1 ne contient ni réglages ni tâche d&apos;impression. Choisissez un fichier de réglages comme korvel.conf, ou une tâche en XML.</translation>
    </message>
</context>
<context>
    <name>korvel::settings::State</name>
    <message>
        <source>%1 on</source>
        <translation>%1 activé</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 désactivé</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>groupe %1</translation>
    </message>
    <message>
        <source>%1 not set</source>
        <translation>%1 non défini</translation>
    </message>
    <message>
        <source>removal of %1</source>
        <translation>suppression de %1</translation>
    </message>
</context>
<context>
    <name>korvel::settings::SwitchBox</name>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>off (&quot;%1&quot;)</source>
        <translation>désactivé (&quot;%1&quot;)</translation>
    </message>
</context>
<context>
    <name>korvel::settings::UnreadPane</name>
    <message>
        <source>Remove fr&amp;om the file</source>
        <translation>Ret&amp;irer du fichier</translation>
    </message>
    <message>
        <source>No document reads these. They are kept when the file is saved.</source>
        <translation>Aucun document ne les lit. Ils sont conservés à l&apos;enregistrement du fichier.</translation>
    </message>
    <message>
        <source>Settings and groups that nothing reads</source>
        <translation>Réglages et groupes que rien ne lit</translation>
    </message>
</context>
<context>
    <name>korvel::settings::hints</name>
    <message>
        <source>No document reads this: the renderer passes it over.</source>
        <translation>Aucun document ne lit ceci&#xa0;: le programme d&apos;impression l&apos;ignore.</translation>
    </message>
    <message>
        <source>Counts as off: only exactly &quot;true&quot; switches it on.</source>
        <translation>Compte comme désactivé&#xa0;: seul &quot;true&quot;, écrit exactement ainsi, l&apos;active.</translation>
    </message>
    <message>
        <source>Not a whole number: counts as 0.</source>
        <translation>Ce n&apos;est pas un nombre entier&#xa0;: compte comme 0.</translation>
    </message>
    <message>
        <source>Too wide for the paper: lines of more than 32 characters, or no room for the description.</source>
        <translation>Trop large pour le papier&#xa0;: des lignes de plus de 32 caractères, ou pas de place pour la désignation.</translation>
    </message>
    <message>
        <source>Nothing on the paper depends on it.</source>
        <translation>Rien sur le papier n&apos;en dépend.</translation>
    </message>
    <message>
        <source>Read by: %1.</source>
        <translation>Lu par&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: it is written as XML. Save as, in the menu File, writes the settings as the renderer reads them.</source>
        <translation>Le programme d&apos;impression ne lit rien de ce fichier&#xa0;: il est écrit en XML. «&#xa0;Enregistrer sous&#xa0;», dans le menu «&#xa0;Fichier&#xa0;», écrit les réglages comme le programme d&apos;impression les lit.</translation>
    </message>
    <message>
        <source>The renderer reads nothing of this file: its first group is called %1, and not &quot;korvel&quot;.</source>
        <translation>Le programme d&apos;impression ne lit rien de ce fichier&#xa0;: son premier groupe s&apos;appelle %1 et non &quot;korvel&quot;.</translation>
    </message>
</context>
<context>
    <name>paper</name>
    <message>
        <source>DEDUCTION</source>
        <translation>DÉDUCTION</translation>
    </message>
    <message>
        <source>Sum (by the preview)</source>
        <translation>Somme (de l&apos;aperçu)</translation>
    </message>
    <message>
        <source>Sum so far (preview)</source>
        <translation>Partiel (aperçu)</translation>
    </message>
    <message>
        <source>Rows not counted</source>
        <translation>Lignes non comptées</translation>
    </message>
</context>
<context>
    <name>vocabulary</name>
    <message>
        <source>width of the quantity column</source>
        <translation>largeur de la colonne de la quantité</translation>
    </message>
    <message>
        <source>width of the unit price column; in a statement, of the amount</source>
        <translation>largeur de la colonne du prix unitaire&#xa0;; dans un relevé, de celle du montant</translation>
    </message>
    <message>
        <source>width of the last column, the amount</source>
        <translation>largeur de la dernière colonne, celle du montant</translation>
    </message>
    <message>
        <source>width of a line and of a separator. 0 is the printer&apos;s width. Centring always goes by the printer&apos;s 32</source>
        <translation>largeur d&apos;une ligne et d&apos;un séparateur. 0 est la largeur de l&apos;imprimante. Le centrage se fait toujours sur les 32 caractères de l&apos;imprimante</translation>
    </message>
    <message>
        <source>nothing depends on it</source>
        <translation>rien n&apos;en dépend</translation>
    </message>
    <message>
        <source>read and discarded</source>
        <translation>lu, puis ignoré</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that are sent. 0 is the printer&apos;s width; a negative number leaves the name whole. The summary fiscal receipt never cuts</source>
        <translation>caractères envoyés du nom d&apos;un article. 0 est la largeur de l&apos;imprimante&#xa0;; un nombre négatif laisse le nom entier. Le ticket fiscal abrégé ne coupe jamais</translation>
    </message>
    <message>
        <source>the top margin</source>
        <translation>la marge du haut</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a logo</source>
        <translation>rien&#xa0;: réservé aux imprimantes avec logo</translation>
    </message>
    <message>
        <source>the company</source>
        <translation>l&apos;entreprise</translation>
    </message>
    <message>
        <source>the customer&apos;s delivery address</source>
        <translation>l&apos;adresse de livraison du client</translation>
    </message>
    <message>
        <source>the customer&apos;s billing address</source>
        <translation>l&apos;adresse de facturation du client</translation>
    </message>
    <message>
        <source>the customer&apos;s telephone</source>
        <translation>le téléphone du client</translation>
    </message>
    <message>
        <source>the whole customer block; the customer&apos;s other switches count only when it is on</source>
        <translation>tout le bloc du client&#xa0;; les autres options du client ne comptent que s&apos;il est activé</translation>
    </message>
    <message>
        <source>the customer&apos;s license number</source>
        <translation>le numéro de TVA du client</translation>
    </message>
    <message>
        <source>the customer&apos;s fiscal code</source>
        <translation>le numéro fiscal du client</translation>
    </message>
    <message>
        <source>nothing: kept for printers with a drawer</source>
        <translation>rien&#xa0;: réservé aux imprimantes avec tiroir-caisse</translation>
    </message>
    <message>
        <source>the folder of the catalogues</source>
        <translation>le dossier des catalogues de langue</translation>
    </message>
    <message>
        <source>empty lines of the top margin; none when negative, 65536 at most</source>
        <translation>lignes vides de la marge du haut&#xa0;; aucune si le nombre est négatif, 65536 au plus</translation>
    </message>
    <message>
        <source>the header lines. The printer&apos;s name after them has no switch</source>
        <translation>les lignes d&apos;en-tête. Le nom de l&apos;imprimante qui les suit n&apos;a pas d&apos;option</translation>
    </message>
    <message>
        <source>the date of the order information</source>
        <translation>la date des informations de commande</translation>
    </message>
    <message>
        <source>the time of the order information</source>
        <translation>l&apos;heure des informations de commande</translation>
    </message>
    <message>
        <source>the table of the order information</source>
        <translation>la table des informations de commande</translation>
    </message>
    <message>
        <source>the credit of the order information</source>
        <translation>le crédit des informations de commande</translation>
    </message>
    <message>
        <source>the waiter of the order information</source>
        <translation>le serveur des informations de commande</translation>
    </message>
    <message>
        <source>the note of the order information</source>
        <translation>la remarque des informations de commande</translation>
    </message>
    <message>
        <source>which catalogue: its name is put right behind the folder, and begins with `/`</source>
        <translation>quel catalogue&#xa0;: son nom suit directement le dossier et commence par `/`</translation>
    </message>
</context>
</TS>
