<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <source>catalogue</source>
        <translation>fichier de traduction</translation>
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
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
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
        <source>empty</source>
        <translation>vide</translation>
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
    <name>korvel::settings::PaperPane</name>
    <message>
        <source>Line %1 is wider than the paper: %2 characters, of %3.</source>
        <translation>La ligne %1 est plus large que le papier&#xa0;: %2 caractères, sur %3.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#xa0;: %2</translation>
    </message>
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
        <source>What is wrong</source>
        <translation>Ce qui ne va pas</translation>
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
        <source>%1 is no file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
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
        <source>Save the rest</source>
        <translation>Enregistrer le reste</translation>
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
        <source>The settings file</source>
        <translation>Le fichier de réglages</translation>
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
        <source>Read by nothing</source>
        <translation>Lu par rien</translation>
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
        <source>empty</source>
        <translation>vide</translation>
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
        <source>empty lines that `geometry` prints; none when negative, 65536 at most</source>
        <translation>lignes vides que `geometry` imprime&#xa0;; aucune si le nombre est négatif, 65536 au plus</translation>
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
        <source>the lines of `headers`. The printer&apos;s name after them has no switch</source>
        <translation>les lignes de `headers`. Le nom de l&apos;imprimante qui les suit n&apos;a pas d&apos;option</translation>
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
        <source>the date of `orderinfo`</source>
        <translation>la date de `orderinfo`</translation>
    </message>
    <message>
        <source>the time of `orderinfo`</source>
        <translation>l&apos;heure de `orderinfo`</translation>
    </message>
    <message>
        <source>the table of `orderinfo`</source>
        <translation>la table de `orderinfo`</translation>
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
        <source>the credit of `orderinfo`</source>
        <translation>le crédit de `orderinfo`</translation>
    </message>
    <message>
        <source>the waiter of `orderinfo`</source>
        <translation>le serveur de `orderinfo`</translation>
    </message>
    <message>
        <source>the note of `orderinfo`</source>
        <translation>la remarque de `orderinfo`</translation>
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
        <source>which catalogue; begins with `/`</source>
        <translation>quel catalogue&#xa0;; commence par `/`</translation>
    </message>
</context>
</TS>
