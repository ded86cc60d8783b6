<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BrisleafAppDelegate</name>
    <message>
        <source>The preview could not be brought up to date.</source>
        <translation>L’aperçu n’a pas pu être mis à jour.</translation>
    </message>
    <message>
        <source>The preview has stopped working.</source>
        <translation>L’aperçu ne fonctionne plus.</translation>
    </message>
    <message>
        <source>Press F5 to load it again. Your book is not affected.</source>
        <translation>Appuyez sur F5 pour le recharger. Votre livre n’est pas affecté.</translation>
    </message>
    <message>
        <source>Not everything could be imported.</source>
        <translation>Tout n’a pas pu être importé.</translation>
    </message>
    <message>
        <source>The settings were not saved to %1.</source>
        <translation>Les paramètres n’ont pas été enregistrés dans %1.</translation>
    </message>
    <message>
        <source>The settings were not loaded.</source>
        <translation>Les paramètres n’ont pas été chargés.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Impossible de lire le fichier %1.</translation>
    </message>
    <message>
        <source>loading of settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>le chargement des paramètres</translation>
    </message>
    <message>
        <source>The help cannot be opened.</source>
        <translation>Impossible d’ouvrir l’aide.</translation>
    </message>
    <message>
        <source>The file %1 is missing.</source>
        <translation>Le fichier %1 est introuvable.</translation>
    </message>
    <message>
        <source>The template “%1” is damaged.</source>
        <translation>Le modèle «&#xa0;%1&#xa0;» est endommagé.</translation>
    </message>
    <message>
        <source>PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf</source>
        <extracomment>The help in your language; keep the path as it is until there is one.</extracomment>
        <translation>PDF to Folvero for mac Help/PDF to Folvero for Mac.fr.pdf</translation>
    </message>
    <message>
        <source>Press “Apply” to try again.</source>
        <translation>Cliquez sur «&#xa0;Appliquer&#xa0;» pour réessayer.</translation>
    </message>
    <message>
        <source>These files are missing. The book is shown without them.</source>
        <translation>Ces fichiers sont introuvables. Le livre est affiché sans eux.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields.</source>
        <translation>Choisissez-en d’autres dans les paramètres, ou videz les champs.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings. Choose one that was made with “Save look”.</source>
        <translation>Le fichier %1 ne contient pas de paramètres. Choisissez-en un créé avec «&#xa0;Enregistrer l’aspect&#xa0;».</translation>
    </message>
    <message>
        <source>choice of template</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>le choix du modèle</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Le livre n’a pas été publié.</translation>
    </message>
    <message>
        <source>%1: is a project; open it alone</source>
        <translation>%1&#x202f;: est un projet&#x202f;; ouvrez-le seul</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Rien n’a été importé.</translation>
    </message>
</context>
<context>
    <name>CommonCryptoErrorDomain</name>
    <message>
        <source>Success</source>
        <translation>Opération réussie</translation>
    </message>
    <message>
        <source>Parameter Error</source>
        <translation>Erreur de paramètre</translation>
    </message>
    <message>
        <source>Illegal parameter supplied to encryption/decryption algorithm</source>
        <translation>Paramètre non valide pour l’algorithme de chiffrement ou de déchiffrement</translation>
    </message>
    <message>
        <source>Buffer Too Small</source>
        <translation>Tampon trop petit</translation>
    </message>
    <message>
        <source>Insufficient buffer provided for specified operation</source>
        <translation>Le tampon ne suffit pas à cette opération</translation>
    </message>
    <message>
        <source>Memory Failure</source>
        <translation>Erreur de mémoire</translation>
    </message>
    <message>
        <source>Failed to allocate memory</source>
        <translation>La mémoire n’a pas pu être allouée</translation>
    </message>
    <message>
        <source>Alignment Error</source>
        <translation>Erreur d’alignement</translation>
    </message>
    <message>
        <source>Input size to encryption algorithm was not aligned correctly</source>
        <translation>La longueur des données ne convient pas à l’algorithme de chiffrement</translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation>Erreur de décodage</translation>
    </message>
    <message>
        <source>Input data did not decode or decrypt correctly</source>
        <translation>Les données n’ont pas pu être décodées ou déchiffrées correctement</translation>
    </message>
    <message>
        <source>Unimplemented Function</source>
        <translation>Fonction absente</translation>
    </message>
    <message>
        <source>Function not implemented for the current algorithm</source>
        <translation>L’algorithme ne possède pas cette fonction</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>Erreur inconnue</translation>
    </message>
</context>
<context>
    <name>DropHint</name>
    <message>
        <source>Only PDFs, pictures and documents that LibreOffice can open become a book.</source>
        <translation>Seuls les PDF, les images et les documents que LibreOffice peut ouvrir deviennent un livre.</translation>
    </message>
    <message>
        <source>Drop the project here to open it.</source>
        <translation>Déposez le projet ici pour l’ouvrir.</translation>
    </message>
    <message>
        <source>Drop it here to make a book of it.</source>
        <translation>Déposez-le ici pour en faire un livre.</translation>
    </message>
    <message>
        <source>Drop them here to make one book of them, in the order of their names.</source>
        <translation>Déposez-les ici pour en faire un seul livre, dans l’ordre de leurs noms.</translation>
    </message>
    <message>
        <source>Drop here to make a new book.</source>
        <translation>Déposez ici pour faire un nouveau livre.</translation>
    </message>
    <message>
        <source>Drop here to add to “%1”.</source>
        <translation>Déposez ici pour ajouter à «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>FileToSave</name>
    <message>
        <source>Replace %1?</source>
        <translation>Remplacer %1&#x202f;?</translation>
    </message>
    <message>
        <source>A file of this name is already in the folder. What is in it would be lost.</source>
        <translation>Un fichier de ce nom existe déjà dans le dossier. Son contenu serait perdu.</translation>
    </message>
</context>
<context>
    <name>FlashPagesAnnotationsPDF</name>
    <message>
        <source>no page at position %1</source>
        <translation>pas de page à la position %1</translation>
    </message>
</context>
<context>
    <name>FlashTemplate</name>
    <message>
        <source>Can&apos;t create an URL from file %1.</source>
        <translation>Impossible de former une URL à partir du fichier %1.</translation>
    </message>
    <message>
        <source>Can&apos;t load the template file &quot;%1&quot;: %2</source>
        <translation>Impossible de charger le fichier de modèle «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FlashTemplateModel</name>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What a screen reader says: the name of a setting and its value.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <extracomment>What a screen reader says of a setting that is not as the template has it; %1 is its name and value.</extracomment>
        <translation>%1, modifié</translation>
    </message>
</context>
<context>
    <name>FlashTemplateOutlineDelegate</name>
    <message>
        <source>(Untitled)</source>
        <translation>(sans titre)</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>(inconnu)</translation>
    </message>
</context>
<context>
    <name>FolveroOutput</name>
    <message>
        <source>%1: There is no such folder</source>
        <translation>%1&#xa0;: ce dossier n’existe pas</translation>
    </message>
    <message>
        <source>There is a folder of that name</source>
        <translation>Un dossier porte déjà ce nom</translation>
    </message>
    <message>
        <source>the player is not installed</source>
        <translation>le lecteur de livres n’est pas installé</translation>
    </message>
    <message>
        <source>As one file the book would have %1 MB, and the most is %2 MB. Import fewer pages or choose the smallest files, or publish it as a folder</source>
        <translation>En un seul fichier, le livre ferait %1 Mo, et la limite est de %2 Mo. Importez moins de pages ou choisissez les fichiers les plus petits, ou publiez-le sous forme de dossier</translation>
    </message>
    <message>
        <source>The page with the book&apos;s text has that name</source>
        <translation>La page qui contient le texte du livre porte déjà ce nom</translation>
    </message>
    <message>
        <source>%1: the page of the template &quot;%2&quot; is missing, empty, not readable, or outside of the templates&apos; folder</source>
        <extracomment>%1 is a file, %2 the template&apos;s name</extracomment>
        <translation>%1&#xa0;: la page du modèle «&#xa0;%2&#xa0;» est absente, vide, illisible ou hors du dossier des modèles</translation>
    </message>
    <message>
        <source>%1: is missing; the program is not installed completely</source>
        <translation>%1&#xa0;: introuvable&#x202f;; le programme n’est pas entièrement installé</translation>
    </message>
    <message>
        <source>it was changed while the book was published</source>
        <translation>a été modifié pendant la publication du livre</translation>
    </message>
    <message>
        <source>%1; earlier files are in %2, and the next publish tries to put them back</source>
        <translation>%1&#x202f;; les fichiers précédents sont dans %2, et la prochaine publication tentera de les remettre en place</translation>
    </message>
    <message>
        <source>Earlier files of the book are in it and can&apos;t be put back</source>
        <translation>Ce dossier contient des fichiers précédents du livre, qui ne peuvent pas être remis en place</translation>
    </message>
</context>
<context>
    <name>FolveroOutputWeb</name>
    <message>
        <source>a book in one file has no other files</source>
        <translation>un livre en un seul fichier n’a pas d’autres fichiers</translation>
    </message>
    <message>
        <source>it has the pages that a reading sample leaves out</source>
        <translation>il contient les pages qu’un extrait laisse de côté</translation>
    </message>
</context>
<context>
    <name>ImportPDFOperation</name>
    <message>
        <source>%1: none of the pages asked for is in it</source>
        <translation>%1&#xa0;: ne contient aucune des pages demandées</translation>
    </message>
    <message>
        <source>%1: none of the pages could be drawn (%2)</source>
        <translation>%1&#xa0;: aucune des pages n’a pu être dessinée (%2)</translation>
    </message>
    <message>
        <source>%1: links: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its links.</extracomment>
        <translation>%1, liens&#xa0;: %2</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>page %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>page %1 and %2 more: %3</source>
        <translation>page %1 et %2 de plus&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: bookmarks: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its bookmarks.</extracomment>
        <translation>%1, signets&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: the document has no pages; the file may be incomplete</source>
        <translation>%1&#xa0;: le document n’a pas de pages&#x202f;; le fichier est peut-être incomplet</translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>Import a PDF</source>
        <translation>Importer un PDF</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Best, for zooming in</source>
        <extracomment>The quality of the pictures of the pages, from the best to the worst.</extracomment>
        <translation>Maximale, pour agrandir</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Smallest files</source>
        <translation>Fichiers les plus petits</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>Importer les &amp;liens</translation>
    </message>
    <message>
        <source>Import &amp;bookmarks as contents</source>
        <translation>Importer les &amp;signets comme sommaire</translation>
    </message>
    <message>
        <source>&amp;PDF file:</source>
        <translation>&amp;Fichier PDF&#xa0;:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualité&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Par&amp;courir…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>Opens the chosen PDF in another program.</extracomment>
        <translation>&amp;Voir</translation>
    </message>
    <message>
        <source>Opens the PDF in the program that usually shows it</source>
        <translation>Ouvre le PDF dans le programme qui l’affiche habituellement</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <extracomment>All pages are imported.</extracomment>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;These:</source>
        <extracomment>A field for page numbers follows.</extracomment>
        <translation>Ces &amp;pages&#xa0;:</translation>
    </message>
    <message>
        <source>for example 1-3,7</source>
        <translation>par exemple 1-3,7</translation>
    </message>
    <message>
        <source>Pages to import</source>
        <translation>Pages à importer</translation>
    </message>
    <message>
        <source>Split where found</source>
        <extracomment>What becomes of pages that show two pages of a printed book side by side.</extracomment>
        <translation>Diviser si détectées</translation>
    </message>
    <message>
        <source>Split all landscape pages</source>
        <translation>Diviser toutes les pages au format paysage</translation>
    </message>
    <message>
        <source>Keep whole</source>
        <translation>Laisser entières</translation>
    </message>
    <message>
        <source>&amp;Double pages:</source>
        <translation>&amp;Doubles pages&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 and %n more</source>
        <extracomment>As above, with some of the names.</extracomment>
        <translation>
            <numerusform>et %1 et %n autre</numerusform>
            <numerusform>et %1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>Beneath the path of a file: those that are imported with it. %1 is a list of names.</extracomment>
        <translation>et %1</translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message>
        <source>Importing:%1/%2</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages.</extracomment>
        <translation>Importation&#xa0;: %1/%2</translation>
    </message>
    <message>
        <source>Page %1 could not be drawn: %2</source>
        <translation>La page %1 n’a pas pu être dessinée&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn.</source>
        <translation>
            <numerusform>%n autre page n’a pas pu être dessinée.</numerusform>
            <numerusform>%n autres pages n’ont pas pu être dessinées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Page %1 could not be drawn completely: %2</source>
        <translation>La page %1 n’a pas pu être dessinée entièrement&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn completely.</source>
        <translation>
            <numerusform>%n autre page n’a pas pu être dessinée entièrement.</numerusform>
            <numerusform>%n autres pages n’ont pas pu être dessinées entièrement.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a PDF document.</source>
        <translation>Choisissez un document PDF.</translation>
    </message>
    <message>
        <source>Choose another document.</source>
        <translation>Choisissez un autre document.</translation>
    </message>
    <message>
        <source>Choose other pages or another document.</source>
        <translation>Choisissez d’autres pages ou un autre document.</translation>
    </message>
    <message>
        <source>Try again, or choose another document.</source>
        <translation>Réessayez, ou choisissez un autre document.</translation>
    </message>
    <message>
        <source>“%1” was imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«&#xa0;%1&#xa0;» a été importé.</translation>
    </message>
    <message>
        <source>“%1” was not imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«&#xa0;%1&#xa0;» n’a pas été importé.</translation>
    </message>
    <message>
        <source>Preparing the document…</source>
        <translation>Préparation du document…</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were imported.</source>
        <translation>
            <numerusform>%n fichier a été importé.</numerusform>
            <numerusform>%n fichiers ont été importés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were not imported.</source>
        <translation>
            <numerusform>%n fichier n’a pas été importé.</numerusform>
            <numerusform>%n fichiers n’ont pas été importés.</numerusform>
        </translation>
    </message>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice crée les pages…</translation>
    </message>
</context>
<context>
    <name>InputFiles</name>
    <message>
        <source>has no PDF and no picture</source>
        <translation>ne contient ni PDF ni image</translation>
    </message>
    <message>
        <source>is no PDF, no picture and no document that LibreOffice turns into a PDF</source>
        <translation>n’est ni un PDF, ni une image, ni un document que LibreOffice convertit en PDF</translation>
    </message>
    <message>
        <source>is not on this computer; save it here first</source>
        <translation>n’est pas sur cet ordinateur ; enregistrez-le d’abord ici</translation>
    </message>
</context>
<context>
    <name>JobProgress</name>
    <message>
        <source>%1 %</source>
        <extracomment>Share of a job that is done.</extracomment>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a percentage, %2 the time that is left.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>reste moins d’une minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>reste environ %n minute</numerusform>
            <numerusform>reste environ %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>reste environ %n heure</numerusform>
            <numerusform>reste environ %n heures</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>&amp;Importer un PDF…</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Importer un PDF</translation>
    </message>
    <message>
        <source>Make the book from a PDF document</source>
        <translation>Créer le livre à partir d’un document PDF</translation>
    </message>
    <message>
        <source>&amp;Publish the book…</source>
        <translation>&amp;Publier le livre…</translation>
    </message>
    <message>
        <source>Publish</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Publier</translation>
    </message>
    <message>
        <source>Write the finished book into a folder of your choice</source>
        <translation>Écrire le livre terminé dans un dossier de votre choix</translation>
    </message>
    <message>
        <source>Load settings that were saved to a file</source>
        <translation>Charger des paramètres enregistrés dans un fichier</translation>
    </message>
    <message>
        <source>Save the settings to a file, to use them for other books</source>
        <translation>Enregistrer les paramètres dans un fichier, pour les réutiliser dans d’autres livres</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Apply the changes</source>
        <translation>Ap&amp;pliquer les modifications</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Show the changed settings in the preview</source>
        <translation>Afficher les paramètres modifiés dans l’aperçu</translation>
    </message>
    <message>
        <source>Choose a &amp;template…</source>
        <translation>Choisir un &amp;modèle…</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Give the book another look</source>
        <translation>Donner un autre aspect au livre</translation>
    </message>
    <message>
        <source>&amp;Reload the preview</source>
        <translation>&amp;Recharger l’aperçu</translation>
    </message>
    <message>
        <source>Folvero &amp;help</source>
        <translation>&amp;Aide de Folvero</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;About Folvero</source>
        <translation>À &amp;propos de Folvero</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Annuler %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Rétablir %1</translation>
    </message>
    <message>
        <source>Like the &amp;system</source>
        <extracomment>The window is light or dark; this is one of the choices.</extracomment>
        <translation>Comme le &amp;système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Tools</source>
        <extracomment>The name of the toolbar.</extracomment>
        <translation>Outils</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Effacer la liste</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Commencer un nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a project that was saved</source>
        <translation>Ouvrir un projet enregistré</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the project, to go on with the book later</source>
        <translation>Enregistrer le projet, pour continuer le livre plus tard</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Enregistrer le projet sous un autre nom</translation>
    </message>
    <message>
        <source>Pa&amp;ges…</source>
        <translation>Pa&amp;ges…</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Arrange, turn, remove and insert pages</source>
        <translation>Ordonner, pivoter, retirer et insérer des pages</translation>
    </message>
    <message>
        <source>&amp;Load look…</source>
        <translation>&amp;Charger un aspect…</translation>
    </message>
    <message>
        <source>Save loo&amp;k…</source>
        <translation>Enregistrer l’aspec&amp;t…</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>Re&amp;chercher un paramètre</translation>
    </message>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Remettre la valeur par &amp;défaut</translation>
    </message>
    <message>
        <source>R&amp;eset all settings</source>
        <translation>Réinitialiser &amp;tous les paramètres</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>Save as a st&amp;yle…</source>
        <translation>Enregistrer comme st&amp;yle…</translation>
    </message>
    <message>
        <source>Keep the settings as a style of your own among the templates</source>
        <translation>Garder les paramètres comme style personnel parmi les modèles</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Settings of the template</source>
        <translation>Paramètres du modèle</translation>
    </message>
    <message>
        <source>Template of the book</source>
        <translation>Modèle du livre</translation>
    </message>
    <message>
        <source>The template of the book; click to choose another</source>
        <translation>Le modèle du livre&#x202f;; cliquez pour en choisir un autre</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>Sélectionnez un paramètre pour lire son explication.</translation>
    </message>
    <message>
        <source>What the selected setting does</source>
        <translation>Explication du paramètre sélectionné</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Above the explanation of the selected setting, while none is selected.</extracomment>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Demo book</source>
        <translation>Livre de démonstration</translation>
    </message>
    <message>
        <source>%1[*] – Folvero</source>
        <extracomment>The title of the window; %1 is the name of the document, [*] marks changes.</extracomment>
        <translation>%1[*] – Folvero</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <extracomment>What a screen reader says when it comes to the bar with a warning.</extracomment>
        <translation>Message</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Fermer le message</translation>
    </message>
</context>
<context>
    <name>NameWindow</name>
    <message>
        <source>&amp;Name of the style:</source>
        <translation>&amp;Nom du style&#x202f;:</translation>
    </message>
</context>
<context>
    <name>OfficeDocument</name>
    <message>
        <source>needs LibreOffice, which is not installed</source>
        <translation>demande LibreOffice, qui n’est pas installé</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>a été annulé</translation>
    </message>
    <message>
        <source>LibreOffice takes too long for it</source>
        <translation>LibreOffice met trop de temps à le convertir</translation>
    </message>
    <message>
        <source>LibreOffice can&apos;t make a PDF of it</source>
        <translation>LibreOffice ne peut pas en faire un PDF</translation>
    </message>
</context>
<context>
    <name>OfficePages</name>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice crée les pages…</translation>
    </message>
</context>
<context>
    <name>OutputWindow</name>
    <message>
        <source>Publish the book</source>
        <translation>Publier le livre</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publier</translation>
    </message>
    <message>
        <source>without an ending, for example index</source>
        <extracomment>Shown in the empty field for the file&apos;s name.</extracomment>
        <translation>sans extension, par exemple index</translation>
    </message>
    <message>
        <source>shown in the browser&apos;s window</source>
        <extracomment>Shown in the empty field for the book&apos;s title.</extracomment>
        <translation>affiché dans la fenêtre du navigateur</translation>
    </message>
    <message>
        <source>Kind of book:</source>
        <translation>Type de livre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;lassic (pictures only)</source>
        <translation>C&amp;lassique (images seules)</translation>
    </message>
    <message>
        <source>Application for the &amp;Mac</source>
        <translation>Application pour &amp;Mac</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Par&amp;courir…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <extracomment>Shows the chosen folder in the file manager.</extracomment>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>Opens the folder in the file manager</source>
        <translation>Ouvre le dossier dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>&amp;Embed:</source>
        <extracomment>Markup that shows the book inside another page.</extracomment>
        <translation>&amp;Intégration&#xa0;:</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copies the text for embedding the book</source>
        <translation>Copie le code qui intègre le livre</translation>
    </message>
    <message>
        <source>Copy the text for embedding</source>
        <translation>Copier le code d’intégration</translation>
    </message>
    <message>
        <source>Web &amp;book</source>
        <translation>Livre &amp;web</translation>
    </message>
    <message>
        <source>For a web site: with contents, search and links; opens page by page</source>
        <translation>Pour un site web&#xa0;: avec sommaire, recherche et liens&#x202f;; s’ouvre page par page</translation>
    </message>
    <message>
        <source>Web book in &amp;one file</source>
        <translation>Livre web dans un seul &amp;fichier</translation>
    </message>
    <message>
        <source>To send by mail or to open from a memory stick</source>
        <translation>À envoyer par e-mail ou à ouvrir depuis une clé USB</translation>
    </message>
    <message>
        <source>For a quick look: made in less time, without contents, search and links</source>
        <translation>Pour un coup d’œil&#xa0;: plus vite fait, sans sommaire, recherche ni liens</translation>
    </message>
    <message>
        <source>For people with a Mac: one file that opens with a double-click</source>
        <translation>Pour qui a un Mac&#xa0;: un fichier qui s’ouvre d’un double-clic</translation>
    </message>
    <message>
        <source>Mo&amp;re options</source>
        <extracomment>Shows further fields beneath it.</extracomment>
        <translation>Plus d’option&amp;s</translation>
    </message>
    <message>
        <source>for example https://example.org/book/</source>
        <extracomment>Shown in the empty field for the book&apos;s address on the web.</extracomment>
        <translation>par exemple https://example.org/livre/</translation>
    </message>
    <message>
        <source>Where the book will be on the web: for search engines, previews of links, “Copy link” and the text for embedding</source>
        <translation>Où le livre se trouvera sur le web&#xa0;: pour les moteurs de recherche, les aperçus de liens, «&#xa0;Copier le lien&#xa0;» et le code d’intégration</translation>
    </message>
    <message>
        <source>all pages, or for example 1-12</source>
        <extracomment>Shown in the empty field for the pages of a reading sample.</extracomment>
        <translation>toutes les pages, ou par exemple 1-12</translation>
    </message>
    <message>
        <source>The pages that can be read, by their numbers in the document; the book contains nothing of the others</source>
        <translation>Les pages qui peuvent être lues, par leurs numéros dans le document&#x202f;; le livre ne contient rien des autres</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <extracomment>The book&apos;s address on the web.</extracomment>
        <translation>Adr&amp;esse&#xa0;:</translation>
    </message>
    <message>
        <source>Rea&amp;ding sample:</source>
        <extracomment>Some of the book&apos;s pages, as a foretaste.</extracomment>
        <translation>Ext&amp;rait&#xa0;:</translation>
    </message>
    <message>
        <source>Shows the book inside another page: put this into that page. %1 stands for the book&apos;s address until that is given above.</source>
        <translation>Affiche le livre dans une autre page&#xa0;: collez ce code dans cette page. %1 tient la place de l’adresse du livre tant qu’elle n’est pas indiquée plus haut.</translation>
    </message>
</context>
<context>
    <name>OutputWindowDelegate</name>
    <message>
        <source>The book was not published</source>
        <translation>Le livre n’a pas été publié</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>Ouvrir le livre terminé&#x202f;?</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>Le livre est publié. Voulez-vous l’ouvrir maintenant&#x202f;?</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <extracomment>The button of a panel that asks for a folder.</extracomment>
        <translation>Choisir le dossier</translation>
    </message>
    <message>
        <source>The book is not complete</source>
        <translation>Le livre n’est pas complet</translation>
    </message>
    <message>
        <source>These pages have no picture and stay empty: %1. If the document itself is sound, import it again, then publish once more.</source>
        <translation>Ces pages n’ont pas d’image et restent vides&#xa0;: %1. Si le document lui-même est intact, importez-le de nouveau, puis recommencez la publication.</translation>
    </message>
    <message>
        <source>Replace what is already there?</source>
        <translation>Remplacer ce qui s’y trouve déjà&#x202f;?</translation>
    </message>
    <message>
        <source>This is not part of a book and would be lost:</source>
        <translation>Ceci n’appartient à aucun livre et serait perdu&#xa0;:</translation>
    </message>
    <message>
        <source>The book in %1 would be lost.</source>
        <translation>Le livre qui se trouve dans %1 serait perdu.</translation>
    </message>
    <message>
        <source>The book “%1” in %2 would be lost.</source>
        <translation>Le livre «&#xa0;%1&#xa0;» qui se trouve dans %2 serait perdu.</translation>
    </message>
    <message>
        <source>Include the document&apos;s text?</source>
        <translation>Inclure le texte du document&#x202f;?</translation>
    </message>
    <message>
        <source>The document forbids copying its text. Without text the book can&apos;t be searched, and its words can&apos;t be selected or read aloud.</source>
        <translation>Le document interdit de copier son texte. Sans texte, il est impossible de rechercher dans le livre, de sélectionner ses mots ou de les faire lire à voix haute.</translation>
    </message>
    <message>
        <source>Readers can&apos;t download the document</source>
        <translation>Les lecteurs ne peuvent pas télécharger le document</translation>
    </message>
    <message>
        <source>The settings offer it for download, but %1.</source>
        <extracomment>%1 is a reason, such as &quot;it opens with a password only&quot;</extracomment>
        <translation>Les paramètres le proposent au téléchargement, mais %1.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>Le dossier %1 n’a pas pu être créé&#xa0;: %2</translation>
    </message>
    <message>
        <source>Choose another folder, or make room in this one, and publish again: what you have typed is kept.</source>
        <translation>Choisissez un autre dossier, ou faites de la place dans celui-ci, et publiez de nouveau&#xa0;: ce que vous avez saisi est conservé.</translation>
    </message>
    <message>
        <source>These files are missing. The book was published without them.</source>
        <translation>Ces fichiers sont introuvables. Le livre a été publié sans eux.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields, and publish again.</source>
        <translation>Choisissez-en d’autres dans les paramètres, ou videz les champs, et publiez de nouveau.</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Le livre n’a pas été publié.</translation>
    </message>
    <message>
        <source>The book was published.</source>
        <extracomment>A notification of the desktop, for users who look elsewhere.</extracomment>
        <translation>Le livre a été publié.</translation>
    </message>
    <message>
        <source>The address must be that of a folder or page, such as https://example.org/book/, without “?” and “#”.</source>
        <translation>L’adresse doit être celle d’un dossier ou d’une page, comme https://example.org/livre/, sans «&#xa0;?&#xa0;» ni «&#xa0;#&#xa0;».</translation>
    </message>
</context>
<context>
    <name>OwnStyles</name>
    <message>
        <source>The template itself has a style “%1”. Choose another name.</source>
        <translation>Le modèle a lui-même un style «&#xa0;%1&#xa0;». Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, contain a slash, or be very long.</source>
        <translation>Un nom ne peut pas commencer par un point, contenir une barre oblique ni être très long.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings.</source>
        <translation>Le fichier %1 ne contient pas de paramètres.</translation>
    </message>
    <message>
        <source>There is a style “%1” already. Choose another name.</source>
        <translation>Il y a déjà un style «&#xa0;%1&#xa0;». Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>PDFDocument</name>
    <message>
        <source>page %1 does not exist; the document has %2</source>
        <translation>la page %1 n’existe pas&#x202f;; le document en a %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>is a folder, not a PDF file</source>
        <translation>est un dossier, pas un fichier PDF</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a PDF file</source>
        <translation>est un tube ou un périphérique, pas un fichier PDF</translation>
    </message>
    <message>
        <source>can&apos;t be read (%1)</source>
        <translation>ne peut pas être lu (%1)</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>is not a PDF document</source>
        <translation>n’est pas un document PDF</translation>
    </message>
    <message>
        <source>is damaged beyond repair (%1)</source>
        <translation>est trop endommagé pour être réparé (%1)</translation>
    </message>
    <message>
        <source>is protected by a password</source>
        <translation>est protégé par un mot de passe</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>le mot de passe est incorrect</translation>
    </message>
    <message>
        <source>the file was changed after reading it had begun</source>
        <translation>le fichier a été modifié après le début de la lecture</translation>
    </message>
    <message>
        <source>is encrypted in an unknown way (%1)</source>
        <translation>est chiffré d’une manière inconnue (%1)</translation>
    </message>
    <message>
        <source>its pages can&apos;t be found (%1)</source>
        <translation>ses pages sont introuvables (%1)</translation>
    </message>
    <message>
        <source>was changed while it was read</source>
        <translation>a été modifié pendant la lecture</translation>
    </message>
    <message>
        <source>can&apos;t be merged with others (%1)</source>
        <translation>ne peut pas être fusionné avec d’autres (%1)</translation>
    </message>
    <message>
        <source>is too damaged to be merged with others</source>
        <translation>est trop endommagé pour être fusionné avec d’autres</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>n’a pas de page %1</translation>
    </message>
    <message>
        <source>is neither a PDF nor a picture</source>
        <translation>n’est ni un PDF ni une image</translation>
    </message>
    <message>
        <source>the picture can&apos;t be read (%1)</source>
        <translation>l’image ne peut pas être lue (%1)</translation>
    </message>
</context>
<context>
    <name>PDFReader</name>
    <message>
        <source>what was read of it makes no sense</source>
        <translation>ce qui en a été lu n’a pas de sens</translation>
    </message>
    <message>
        <source>the program that reads PDF files broke off at it</source>
        <translation>le programme qui lit les fichiers PDF s’est interrompu en lisant celui-ci</translation>
    </message>
    <message>
        <source>reading it was stopped</source>
        <translation>la lecture a été interrompue</translation>
    </message>
    <message>
        <source>reading it took too long</source>
        <translation>la lecture a pris trop de temps</translation>
    </message>
    <message>
        <source>the program that reads PDF files can&apos;t be started</source>
        <translation>le programme qui lit les fichiers PDF ne peut pas être lancé</translation>
    </message>
</context>
<context>
    <name>PageFailure</name>
    <message>
        <source>drawing it was stopped</source>
        <translation>le dessin a été interrompu</translation>
    </message>
    <message>
        <source>drawing it took too long</source>
        <translation>le dessin a pris trop de temps</translation>
    </message>
    <message>
        <source>the program that draws pages ended at this page</source>
        <translation>le programme qui dessine les pages s’est arrêté sur cette page</translation>
    </message>
    <message>
        <source>it takes more memory than a page may have</source>
        <translation>elle demande plus de mémoire qu’une page ne peut en utiliser</translation>
    </message>
    <message>
        <source>the program that draws pages can&apos;t be started</source>
        <translation>le programme qui dessine les pages ne peut pas être lancé</translation>
    </message>
    <message>
        <source>it was not drawn</source>
        <translation>elle n’a pas été dessinée</translation>
    </message>
    <message>
        <source>an image can&apos;t be read completely</source>
        <translation>une image ne peut pas être lue entièrement</translation>
    </message>
    <message>
        <source>a font can&apos;t be read</source>
        <translation>une police ne peut pas être lue</translation>
    </message>
    <message>
        <source>some of its data is damaged</source>
        <translation>une partie de ses données est endommagée</translation>
    </message>
    <message>
        <source>the program that draws pages wrote more than pages need</source>
        <translation>le programme qui dessine les pages a écrit plus de données que les pages n’en demandent</translation>
    </message>
    <message>
        <source>the program that draws pages wrote a file that is none of a page</source>
        <translation>le programme qui dessine les pages a écrit un fichier qui ne correspond à aucune page</translation>
    </message>
</context>
<context>
    <name>PageListText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>A run of page numbers.</extracomment>
        <translation>%1 à %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>Follows page numbers.</extracomment>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageRange</name>
    <message>
        <source>the page range &quot;%1&quot; names %2 pages</source>
        <translation>la plage de pages «&#xa0;%1&#xa0;» désigne %2 pages</translation>
    </message>
</context>
<context>
    <name>PagesModel</name>
    <message numerus="yes">
        <source>turning of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>la rotation de %n page</numerusform>
            <numerusform>la rotation de %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removal of %n page(s)</source>
        <translation>
            <numerusform>le retrait de %n page</numerusform>
            <numerusform>le retrait de %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>le déplacement de %n page</numerusform>
            <numerusform>le déplacement de %n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>blank page</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>l’ajout d’une page vierge</translation>
    </message>
    <message numerus="yes">
        <source>insertion of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>l’insertion de %n page</numerusform>
            <numerusform>l’insertion de %n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Page vierge</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <extracomment>%1 is a file&apos;s name, %2 a page number in it.</extracomment>
        <translation>%1, page %2</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <extracomment>%1 is a page number in the book, %2 where the page comes from.</extracomment>
        <translation>Page %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PagesWindow</name>
    <message>
        <source>The book&apos;s pages</source>
        <translation>Les pages du livre</translation>
    </message>
    <message>
        <source>&amp;Use these pages</source>
        <extracomment>The book is made of these pages, in this order.</extracomment>
        <translation>&amp;Utiliser ces pages</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Insert…</source>
        <extracomment>Beneath a picture in the toolbar, as the others here: short.</extracomment>
        <translation>Insérer…</translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Page vierge</translation>
    </message>
    <message>
        <source>Insert a blank page before the selected one</source>
        <translation>Insérer une page vierge avant celle qui est sélectionnée</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Turn the selected pages to the left</source>
        <translation>Pivoter les pages sélectionnées vers la gauche</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Turn the selected pages to the right</source>
        <translation>Pivoter les pages sélectionnées vers la droite</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>Move the selected pages towards the beginning</source>
        <translation>Déplacer les pages sélectionnées vers le début</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>Move the selected pages towards the end</source>
        <translation>Déplacer les pages sélectionnées vers la fin</translation>
    </message>
    <message>
        <source>As cover</source>
        <extracomment>The selected page becomes the book&apos;s cover.</extracomment>
        <translation>En couverture</translation>
    </message>
    <message>
        <source>Move the selected page to the front of the book</source>
        <translation>Placer la page sélectionnée en tête du livre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Take the selected pages out of the book</source>
        <translation>Retirer du livre les pages sélectionnées</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Insert PDFs, pictures and documents before the selected page</source>
        <translation>Insérer des PDF, des images et des documents avant la page sélectionnée</translation>
    </message>
</context>
<context>
    <name>PagesWindowDelegate</name>
    <message>
        <source>Insert pages</source>
        <translation>Insérer des pages</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n sélectionnée</numerusform>
            <numerusform>%n sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>PDFs, pictures and documents for LibreOffice (%1)</source>
        <extracomment>%1 are the patterns of their names.</extracomment>
        <translation>PDF, images et documents pour LibreOffice (%1)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Open it</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>About Folvero</source>
        <translation>À propos de Folvero</translation>
    </message>
    <message>
        <source>Turns PDF documents into page-flip books for every browser.

Free software under the GNU Affero General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Transforme des documents PDF en livres à feuilleter dans tous les navigateurs.

Logiciel libre sous licence publique générale GNU Affero, version 3 ou ultérieure. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>Avec le texte</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Sans le texte</translation>
    </message>
    <message>
        <source>Choose a PDF document</source>
        <translation>Choisir un document PDF</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documents PDF</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Charger des paramètres</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Enregistrer les paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Choose a sound</source>
        <translation>Choisir un son</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Enregistrer un fichier</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Choisir une couleur</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Documents for LibreOffice</source>
        <extracomment>Documents that LibreOffice can turn into PDFs: texts, presentations, sheets.</extracomment>
        <translation>Documents pour LibreOffice</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <extracomment>Opens the document with the password that was typed.</extracomment>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>This password does not open it.</source>
        <translation>Ce mot de passe n’ouvre pas le document.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>“%1” is protected by a password.</source>
        <extracomment>%1 is the name of a PDF.</extracomment>
        <translation>«&#xa0;%1&#xa0;» est protégé par un mot de passe.</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Size of the preview</source>
        <extracomment>What a screen reader says when it comes to the buttons Window, Desktop, Tablet and Phone.</extracomment>
        <translation>Taille de l’aperçu</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>A size of the preview: all the space that the window has for it.</extracomment>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Show the book in all the space there is</source>
        <translation>Afficher le livre dans tout l’espace disponible</translation>
    </message>
    <message>
        <source>Desktop</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Show the book as on a desktop screen</source>
        <translation>Afficher le livre comme sur l’écran d’un ordinateur</translation>
    </message>
    <message>
        <source>Tablet</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Tablette</translation>
    </message>
    <message>
        <source>Show the book as on a tablet</source>
        <translation>Afficher le livre comme sur une tablette</translation>
    </message>
    <message>
        <source>Phone</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Show the book as on a phone</source>
        <translation>Afficher le livre comme sur un téléphone</translation>
    </message>
    <message>
        <source>Turn</source>
        <extracomment>Turns the tablet or phone of the preview on its side.</extracomment>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>Turn the tablet or phone on its side</source>
        <translation>Coucher la tablette ou le téléphone sur le côté</translation>
    </message>
    <message>
        <source>%1 × %2, %3 %</source>
        <extracomment>The size of the preview in pixels, and how much it is scaled down.</extracomment>
        <translation>%1 × %2, %3&#xa0;%</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Preview of the book</source>
        <translation>Aperçu du livre</translation>
    </message>
    <message>
        <source>Reload the preview</source>
        <translation>Recharger l’aperçu</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>is no project</source>
        <translation>n’est pas un projet</translation>
    </message>
    <message>
        <source>%1 was not found; it was looked for at: %2</source>
        <translation>%1 est introuvable&#x202f;; emplacements recherchés&#xa0;: %2</translation>
    </message>
    <message>
        <source>was changed after the project was saved</source>
        <translation>a été modifié après l’enregistrement du projet</translation>
    </message>
    <message>
        <source>is damaged at “%1”</source>
        <translation>est endommagé à «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>was saved by a newer version of Folvero (format %1; this version reads format %2)</source>
        <translation>a été enregistré par une version plus récente de Folvero (format %1&#x202f;; cette version lit le format %2)</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>est endommagé</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Enregistrer les modifications de «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Without saving they are lost.</source>
        <translation>Sans enregistrement, elles seront perdues.</translation>
    </message>
    <message>
        <source>The project was not opened.</source>
        <translation>Le projet n’a pas été ouvert.</translation>
    </message>
    <message>
        <source>The pages can&apos;t be arranged.</source>
        <translation>Les pages ne peuvent pas être ordonnées.</translation>
    </message>
    <message>
        <source>The project is not as it was saved.</source>
        <translation>Le projet n’est plus tel qu’il a été enregistré.</translation>
    </message>
    <message>
        <source>The project was not saved to %1.</source>
        <translation>Le projet n’a pas été enregistré dans %1.</translation>
    </message>
    <message>
        <source>a book that was not saved</source>
        <translation>un livre non enregistré</translation>
    </message>
    <message>
        <source>Recover the changes to “%1”?</source>
        <translation>Récupérer les modifications de «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Folvero ended before they were saved, last on %1.</source>
        <translation>Folvero s’est arrêté avant leur enregistrement&#x202f;; les dernières datent du %1.</translation>
    </message>
    <message>
        <source>Save the pages of “%1” first?</source>
        <translation>Enregistrer d’abord les pages de «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>The document that you import takes the place of the pages that you have put together. Without saving they are lost.</source>
        <translation>Le document que vous importez prend la place des pages que vous avez réunies. Si vous ne les enregistrez pas, elles sont perdues.</translation>
    </message>
</context>
<context>
    <name>PropertyCellDelegate</name>
    <message>
        <source>Changed. Click to make it empty again.</source>
        <extracomment>%1 is the value that a setting had before it was changed.</extracomment>
        <translation>Modifié. Cliquez pour le vider de nouveau.</translation>
    </message>
    <message>
        <source>Changed. Click to set it back to %1.</source>
        <translation>Modifié. Cliquez pour revenir à %1.</translation>
    </message>
</context>
<context>
    <name>PropertyHistory</name>
    <message>
        <source>“%1”</source>
        <extracomment>A setting&apos;s name in quotation marks; stands in &quot;Undo %1&quot;.</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>PublishProgress</name>
    <message>
        <source>Page %1 of %2 – %3</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages, %3 is like &quot;37 %, about 2 minutes left&quot;.</extracomment>
        <translation>Page %1 sur %2 – %3</translation>
    </message>
    <message>
        <source>Making the pages of the book…</source>
        <translation>Création des pages du livre…</translation>
    </message>
    <message>
        <source>Writing the book…</source>
        <translation>Écriture du livre…</translation>
    </message>
</context>
<context>
    <name>PublisherChoices</name>
    <message>
        <source>it opens with a password only</source>
        <translation>il ne s’ouvre qu’avec un mot de passe</translation>
    </message>
</context>
<context>
    <name>ReadingSample</name>
    <message>
        <source>The reading sample needs numbers of pages, such as 1-12, and not “%1”.</source>
        <translation>L’extrait demande des numéros de pages, comme 1-12, et non «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The book has none of the pages of the reading sample.</source>
        <translation>Le livre n’a aucune des pages de l’extrait.</translation>
    </message>
</context>
<context>
    <name>ResultBar</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher le dossier</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copier le lien</translation>
    </message>
    <message>
        <source>Copy embed text</source>
        <extracomment>The text embeds the book in another page.</extracomment>
        <translation>Copier le code</translation>
    </message>
    <message>
        <source>Publish again</source>
        <translation>Publier de nouveau</translation>
    </message>
    <message>
        <source>Published book</source>
        <extracomment>What a screen reader says when it comes to the bar after a publish.</extracomment>
        <translation>Livre publié</translation>
    </message>
    <message>
        <source>Opens the book in the program that usually shows it</source>
        <translation>Ouvre le livre dans le programme qui l’affiche d’habitude</translation>
    </message>
    <message>
        <source>Publishes the book as it is now, with the same choices</source>
        <translation>Publie le livre tel qu’il est maintenant, avec les mêmes choix</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” was published</source>
        <translation>«&#xa0;%1&#xa0;» est publié</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindow</name>
    <message>
        <source>Choose a template</source>
        <translation>Choisir un modèle</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Looks for templates that were added or repaired meanwhile (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Recherche les modèles ajoutés ou réparés entre-temps (%1)</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Modèles</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>&amp;Styles</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>There are no templates.</source>
        <translation>Il n’y a aucun modèle.</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>This template has no styles.</source>
        <translation>Ce modèle n’a pas de styles.</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>S&amp;upprimer…</translation>
    </message>
    <message>
        <source>Gives a style of your own another name (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Donne un autre nom à un style personnel (%1)</translation>
    </message>
    <message>
        <source>Deletes a style of your own (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Supprime un style personnel (%1)</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindowDelegate</name>
    <message>
        <source>“%1”</source>
        <extracomment>A template&apos;s name in quotation marks; stands in other texts.</extracomment>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Its file %1 is missing.</source>
        <translation>Son fichier %1 est introuvable.</translation>
    </message>
    <message>
        <source>The template %1 is not in the library.</source>
        <extracomment>%1 is the template&apos;s name in quotation marks.</extracomment>
        <translation>Le modèle %1 n’est pas dans la bibliothèque.</translation>
    </message>
    <message>
        <source>The template %1 cannot be used. %2</source>
        <extracomment>%1 is the template&apos;s name in quotation marks, %2 a sentence that tells why.</extracomment>
        <translation>Le modèle %1 ne peut pas être utilisé. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation>
            <numerusform>%n autre ne peut pas être utilisé.</numerusform>
            <numerusform>%n autres ne peuvent pas être utilisés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the style</source>
        <extracomment>The button that gives a style another name.</extracomment>
        <translation>Renommer le style</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>The style “%1” cannot be used. %2</source>
        <extracomment>%1 is the style&apos;s name, %2 a sentence that tells why.</extracomment>
        <translation>Le style «&#xa0;%1&#xa0;» est inutilisable. %2</translation>
    </message>
    <message>
        <source>Delete the style “%1”?</source>
        <translation>Supprimer le style «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>Books and projects that have it keep their look.</source>
        <translation>Les livres et les projets qui l’ont gardent leur aspect.</translation>
    </message>
    <message>
        <source>The style was not deleted. %1</source>
        <translation>Le style n’a pas été supprimé. %1</translation>
    </message>
</context>
<context>
    <name>SettingsReset</name>
    <message>
        <source>reset of all settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>la réinitialisation de tous les paramètres</translation>
    </message>
    <message>
        <source>reset of “%1”</source>
        <extracomment>Stands in &quot;Undo %1&quot;; %1 is the title of a group of settings.</extracomment>
        <translation>la réinitialisation de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Reset “%1”</source>
        <extracomment>%1 is the title of a setting or of a group of settings.</extracomment>
        <translation>&amp;Réinitialiser «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Reset the &amp;group “%1”</source>
        <extracomment>%1 is the title of a group of settings.</extracomment>
        <translation>Réinitialiser le &amp;groupe «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Reset &amp;all settings</source>
        <translation>Réinitialiser &amp;tous les paramètres</translation>
    </message>
</context>
<context>
    <name>SettingsSearch</name>
    <message>
        <source>Search the settings</source>
        <translation>Rechercher dans les paramètres</translation>
    </message>
    <message>
        <source>Show all settings</source>
        <translation>Afficher tous les paramètres</translation>
    </message>
    <message>
        <source>Show all settings (Esc)</source>
        <translation>Afficher tous les paramètres (Échap)</translation>
    </message>
    <message>
        <source>No setting has “%1”.</source>
        <translation>Aucun paramètre ne contient «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>StartPanel</name>
    <message>
        <source>Choose a file…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>How to begin</source>
        <extracomment>What a screen reader says when it comes to the part of the window that says how to begin.</extracomment>
        <translation>Pour commencer</translation>
    </message>
    <message>
        <source>Drop a PDF or a folder of pictures here</source>
        <translation>Déposez ici un PDF ou un dossier d’images</translation>
    </message>
    <message>
        <source>Or play with the demo book below: turn its pages, try templates and settings.</source>
        <translation>Ou jouez avec le livre de démonstration ci-dessous&#x202f;: tournez ses pages, essayez modèles et paramètres.</translation>
    </message>
    <message>
        <source>Make the book from a PDF, a picture or a text</source>
        <translation>Faire le livre à partir d’un PDF, d’une image ou d’un texte</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Fermer cette note</translation>
    </message>
    <message>
        <source>Open %1 again</source>
        <extracomment>What a screen reader says for a file that was opened before.</extracomment>
        <translation>Rouvrir %1</translation>
    </message>
</context>
<context>
    <name>StyleName</name>
    <message>
        <source>Aurora</source>
        <translation>Aurore boréale</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Minuit</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Velours</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>Bleu d’architecte</translation>
    </message>
    <message>
        <source>Boardroom</source>
        <translation>Salle de réunion</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Lumineux</translation>
    </message>
    <message>
        <source>Chalkboard</source>
        <translation>Tableau noir</translation>
    </message>
    <message>
        <source>Beach</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Green baize</source>
        <translation>Tapis vert</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lin</translation>
    </message>
    <message>
        <source>Oak</source>
        <translation>Chêne</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardoise</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Jardin</translation>
    </message>
    <message>
        <source>Rainy window</source>
        <translation>Fenêtre sous la pluie</translation>
    </message>
    <message>
        <source>Watercolour</source>
        <translation>Aquarelle</translation>
    </message>
    <message>
        <source>Writing desk</source>
        <translation>Table d’écriture</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>Rose tendre</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Morning light</source>
        <translation>Lumière du matin</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sable</translation>
    </message>
</context>
<context>
    <name>StyleSaver</name>
    <message>
        <source>Save as a style</source>
        <extracomment>The button that saves a style.</extracomment>
        <translation>Enregistrer comme style</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Replace the style “%1”?</source>
        <translation>Remplacer le style «&#xa0;%1&#xa0;»&#x202f;?</translation>
    </message>
    <message>
        <source>You have saved a style of this name before. Its settings would be lost.</source>
        <translation>Vous avez déjà enregistré un style sous ce nom. Ses paramètres seraient perdus.</translation>
    </message>
    <message>
        <source>The style was not saved. %1</source>
        <translation>Le style n’a pas été enregistré. %1</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>Unknown error %1</source>
        <translation>Erreur inconnue %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Opération non autorisée</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Périphérique ou adresse introuvable</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Le périphérique ou le fichier est en cours d’utilisation</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>Les fichiers sont sur des disques différents</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Périphérique introuvable</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>N’est pas un dossier</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Est un dossier</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Argument non valide</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Trop de fichiers ouverts dans le système</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Le programme est en cours d’exécution</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Il n’y a plus de place sur le disque</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Le disque est en lecture seule</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Trop de liens</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nom de fichier trop long</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>Le dossier n’est pas vide</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Trop de liens symboliques successifs</translation>
    </message>
    <message>
        <source>Invalid or incomplete multibyte or wide character</source>
        <translation>Caractère non valide ou incomplet</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>Opération non prise en charge</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Le délai de connexion est dépassé</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>L’ordinateur distant est injoignable</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Aucun chemin vers l’ordinateur distant</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Le fichier n’est plus sur le serveur</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>Erreur d’entrée/sortie sur le serveur</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Le quota d’espace disque est dépassé</translation>
    </message>
</context>
<context>
    <name>TemplateFile</name>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>l’encodage «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message>
        <source>is not in the encoding &quot;%1&quot; that it declares</source>
        <translation>n’utilise pas l’encodage «&#xa0;%1&#xa0;» qu’il déclare</translation>
    </message>
    <message>
        <source>its entities stand for too much text or for themselves</source>
        <translation>ses entités représentent trop de texte ou se contiennent elles-mêmes</translation>
    </message>
    <message>
        <source>root element</source>
        <translation>élément racine</translation>
    </message>
    <message>
        <source>&quot;info&quot; element</source>
        <translation>élément «&#xa0;info&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element</source>
        <translation>élément «&#xa0;property&#xa0;»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element of key &quot;%1&quot;</source>
        <translation>élément «&#xa0;property&#xa0;» de clé «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>properties are nested more than %1 deep</source>
        <translation>les propriétés sont imbriquées sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 lacks its &quot;%2&quot; element</source>
        <extracomment>%1 is another element of the file.</extracomment>
        <translation>%1&#xa0;: il manque l’élément «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>TemplateName</name>
    <message>
        <source>Cinema</source>
        <translation>Cinéma</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Diapositives</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flottant</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
</context>
<context>
    <name>TemplateProperty</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>The paper and the direction of reading.</source>
        <translation>Le papier et le sens de lecture.</translation>
    </message>
    <message>
        <source>Paper colour</source>
        <translation>Couleur du papier</translation>
    </message>
    <message>
        <source>The colour of the paper, seen where the picture of a page does not cover it.</source>
        <translation>La couleur du papier, visible là où l’image d’une page ne le couvre pas.</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>The book begins at the right, as books in Arabic, Hebrew or Japanese do.</source>
        <translation>Le livre commence à droite, comme les livres en arabe, en hébreu ou en japonais.</translation>
    </message>
    <message>
        <source>Read from right to left</source>
        <translation>Lire de droite à gauche</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Feuilletage</translation>
    </message>
    <message>
        <source>How the pages move, and whether they move by themselves.</source>
        <translation>La façon dont les pages se tournent, et si elles se tournent toutes seules.</translation>
    </message>
    <message>
        <source>Turning time</source>
        <translation>Durée du feuilletage</translation>
    </message>
    <message>
        <source>How many seconds a page takes to turn.</source>
        <translation>Le nombre de secondes qu’une page met à se tourner.</translation>
    </message>
    <message>
        <source>Lifting time</source>
        <translation>Durée du soulèvement</translation>
    </message>
    <message>
        <source>How many seconds a page takes to lift under the pointer, and to fall back when it is let go.</source>
        <translation>Le nombre de secondes qu’une page met à se soulever sous le pointeur, et à retomber quand on la lâche.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>How the book comes in when it is opened.</source>
        <translation>La façon dont le livre apparaît à l’ouverture.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun effet</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Montée</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Chute</translation>
    </message>
    <message>
        <source>Play by itself</source>
        <translation>Lecture automatique</translation>
    </message>
    <message>
        <source>The pages turn by themselves from the start, until the reader stops them in the bar.</source>
        <translation>Les pages se tournent toutes seules dès le début, jusqu’à ce que le lecteur les arrête avec la barre.</translation>
    </message>
    <message>
        <source>Turn pages automatically</source>
        <translation>Tourner automatiquement</translation>
    </message>
    <message>
        <source>Pause between pages</source>
        <translation>Pause entre les pages</translation>
    </message>
    <message>
        <source>How many seconds each page stays while the book plays by itself.</source>
        <translation>Le nombre de secondes que chaque page reste affichée pendant la lecture automatique.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Lecture en boucle</translation>
    </message>
    <message>
        <source>A book that plays by itself begins again after its last page.</source>
        <translation>Après sa dernière page, un livre en lecture automatique reprend au début.</translation>
    </message>
    <message>
        <source>Start over at the end</source>
        <translation>Recommencer à la fin</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>The bar, the caption and the margins around the book.</source>
        <translation>La barre, la légende et les marges autour du livre.</translation>
    </message>
    <message>
        <source>Bar colour</source>
        <translation>Couleur de la barre</translation>
    </message>
    <message>
        <source>The colour of the bar, the arrows and the row of small pages; the signs on it turn dark or light to suit.</source>
        <translation>La couleur de la barre, des flèches et de la rangée de vignettes&#x202f;; les symboles s’y adaptent, foncés ou clairs.</translation>
    </message>
    <message>
        <source>Hide the bar</source>
        <translation>Masquer la barre</translation>
    </message>
    <message>
        <source>Readers see no bar and no arrows, and turn pages with pointer, finger or keys.</source>
        <translation>Les lecteurs ne voient ni barre ni flèches, et tournent les pages avec le pointeur, le doigt ou le clavier.</translation>
    </message>
    <message>
        <source>Show no bar and no arrows</source>
        <translation>Sans barre ni flèches</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>A short text in the lower left corner, or an address that begins with https:// and becomes a link.</source>
        <translation>Un texte court dans le coin inférieur gauche, ou une adresse commençant par https://, qui devient un lien.</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Marge supérieure</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen above the inner one.</source>
        <translation>Le nombre de pixels du fond extérieur visibles au-dessus du fond intérieur.</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Marge inférieure</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen below the inner one.</source>
        <translation>Le nombre de pixels du fond extérieur visibles au-dessous du fond intérieur.</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Marge gauche</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the left of the inner one.</source>
        <translation>Le nombre de pixels du fond extérieur visibles à gauche du fond intérieur.</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Marge droite</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the right of the inner one.</source>
        <translation>Le nombre de pixels du fond extérieur visibles à droite du fond intérieur.</translation>
    </message>
    <message>
        <source>Outer background</source>
        <translation>Fond extérieur</translation>
    </message>
    <message>
        <source>What fills the whole window; it is seen where the margins leave it free.</source>
        <translation>Ce qui remplit toute la fenêtre&#x202f;; visible là où les marges le laissent libre.</translation>
    </message>
    <message>
        <source>First colour</source>
        <translation>Première couleur</translation>
    </message>
    <message>
        <source>The colour in which the background begins.</source>
        <translation>La couleur par laquelle le fond commence.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Seconde couleur</translation>
    </message>
    <message>
        <source>The colour into which the first one passes; choose the same twice for a plain background.</source>
        <translation>La couleur vers laquelle la première passe peu à peu&#x202f;; choisissez deux fois la même pour un fond uni.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Where the second colour lies, in degrees: 0 is at the right, 90 at the bottom, 180 at the left.</source>
        <translation>Où se trouve la seconde couleur, en degrés&#xa0;: 0 est à droite, 90 en bas, 180 à gauche.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>A picture that lies over the two colours.</source>
        <translation>Une image placée par-dessus les deux couleurs.</translation>
    </message>
    <message>
        <source>Picture position</source>
        <translation>Position de l’image</translation>
    </message>
    <message>
        <source>Where the picture lies and how it fills the background.</source>
        <translation>Où l’image se trouve et comment elle remplit le fond.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centrer</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Inner background</source>
        <translation>Fond intérieur</translation>
    </message>
    <message>
        <source>What the book lies on, inside the margins.</source>
        <translation>Ce sur quoi le livre est posé, à l’intérieur des marges.</translation>
    </message>
    <message>
        <source>Background sound</source>
        <translation>Fond sonore</translation>
    </message>
    <message>
        <source>Music or a sound that accompanies the reader.</source>
        <translation>Une musique ou un son qui accompagne la lecture.</translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation>Fichier audio</translation>
    </message>
    <message>
        <source>An MP3 file that begins to play with the reader&apos;s first click or key.</source>
        <translation>Un fichier MP3 qui démarre au premier clic ou à la première touche du lecteur.</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>How many times the sound is played; -1 plays it on and on.</source>
        <translation>Le nombre de fois que le son est joué&#x202f;; avec -1, il est joué sans fin.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>What is known of the imported document, to be read only.</source>
        <translation>Ce que l’on sait du document importé, en lecture seule.</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Largeur des pages</translation>
    </message>
    <message>
        <source>The width of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>La largeur des pages du document en points, notée à l’importation&#x202f;; un livre prend la forme de ses pages, une modification ici n’a donc aucun effet.</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Hauteur des pages</translation>
    </message>
    <message>
        <source>The height of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>La hauteur des pages du document en points, notée à l’importation&#x202f;; un livre prend la forme de ses pages, une modification ici n’a donc aucun effet.</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Your logo and colour, how the book opens, and what readers may take with them; styles leave this as it is.</source>
        <translation>Votre logo et votre couleur, la façon dont le livre s’ouvre et ce que les lecteurs peuvent emporter&#x202f;; les styles n’y changent rien.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>A picture in an upper corner of the window, at most 40 pixels high.</source>
        <translation>Une image dans un coin supérieur de la fenêtre, haute de 40 pixels au plus.</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>Lien du logo</translation>
    </message>
    <message>
        <source>Where the logo leads: an address that begins with https://, http:// or mailto: (no other is followed).</source>
        <translation>Où mène le logo&#xa0;: une adresse commençant par https://, http:// ou mailto: (aucune autre n’est suivie).</translation>
    </message>
    <message>
        <source>Accent colour</source>
        <translation>Couleur d’accentuation</translation>
    </message>
    <message>
        <source>The colour of the main buttons and of what is chosen in dialogs; writing on it turns dark or light to suit.</source>
        <translation>La couleur des boutons principaux et de ce qui est choisi dans les boîtes de dialogue&#x202f;; le texte s’y adapte, foncé ou clair.</translation>
    </message>
    <message>
        <source>First view</source>
        <translation>Affichage initial</translation>
    </message>
    <message>
        <source>How the pages lie until a reader chooses otherwise: as it suits the window, one page, or two; phones show what suits them.</source>
        <translation>La disposition des pages tant que le lecteur n’en choisit pas une autre&#xa0;: selon la fenêtre, une page, ou deux&#x202f;; les téléphones affichent ce qui leur convient.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>Une page</translation>
    </message>
    <message>
        <source>Two pages</source>
        <translation>Deux pages</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Readers can download the imported PDF, with all of its pages. Books in one file, previews and documents that open with a password only never offer it.</source>
        <translation>Les lecteurs peuvent télécharger le PDF importé, avec toutes ses pages. Les livres en un seul fichier, les extraits et les documents qui ne s’ouvrent qu’avec un mot de passe ne le proposent jamais.</translation>
    </message>
    <message>
        <source>Offer the PDF for download</source>
        <translation>Proposer de télécharger le PDF</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>What the bar offers to readers. A button that is not shown has no key either; styles leave this as it is.</source>
        <translation>Ce que la barre propose aux lecteurs. Un bouton masqué n’a pas non plus de touche&#x202f;; les styles n’y changent rien.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>The table of contents, of web books.</source>
        <translation>Le sommaire, pour les livres web.</translation>
    </message>
    <message>
        <source>Show the button</source>
        <translation>Afficher le bouton</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>The search, of web books.</source>
        <translation>La recherche, pour les livres web.</translation>
    </message>
    <message>
        <source>Reading view</source>
        <translation>Mode lecture</translation>
    </message>
    <message>
        <source>The text as a page to scroll, of web books.</source>
        <translation>Le texte sous forme de page à faire défiler, pour les livres web.</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Signets et notes</translation>
    </message>
    <message>
        <source>Bookmarks, highlights and notes that readers keep in their browser, of web books.</source>
        <translation>Les signets, surlignages et notes que les lecteurs gardent dans leur navigateur, pour les livres web.</translation>
    </message>
    <message>
        <source>Show the buttons</source>
        <translation>Afficher les boutons</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vignettes</translation>
    </message>
    <message>
        <source>The row of small pages.</source>
        <translation>La rangée de petites pages.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarging by button and key; a double click or two fingers always enlarge.</source>
        <translation>L’agrandissement par bouton et par touche&#x202f;; un double clic ou deux doigts agrandissent toujours.</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>The choice of one page or two, and of the paper.</source>
        <translation>Le choix entre une page et deux, et celui du papier.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture automatique</translation>
    </message>
    <message>
        <source>Turning pages by itself.</source>
        <translation>Les pages qui se tournent toutes seules.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>The switch for sounds.</source>
        <translation>Le bouton qui active ou coupe les sons.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>The link to the page that is shown.</source>
        <translation>Le lien vers la page affichée.</translation>
    </message>
    <message>
        <source>Keep offline</source>
        <translation>Garder hors ligne</translation>
    </message>
    <message>
        <source>Keeping a web book to read it without a connection.</source>
        <translation>L’enregistrement d’un livre web, pour le lire sans connexion.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Printing pages; the command of the browser still prints those in view.</source>
        <translation>L’impression des pages&#x202f;; la commande du navigateur imprime toujours celles qui sont affichées.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Reading in full screen.</source>
        <translation>La lecture en plein écran.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>The list of keys and gestures.</source>
        <translation>La liste des touches et des gestes.</translation>
    </message>
</context>
<context>
    <name>TmplStylePainter</name>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
</context>
<context>
    <name>TmplStylesModel</name>
    <message>
        <source>A style of your own</source>
        <translation>Un style personnel</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>A colour: #RRGGBB, 0xRRGGBB, or an English name such as “red”.</source>
        <translation>Une couleur&#xa0;: #RRGGBB, 0xRRGGBB ou un nom anglais comme «&#xa0;red&#xa0;».</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Books are made without it.</source>
        <translation>Le fichier %1 n’existe pas. Les livres sont créés sans lui.</translation>
    </message>
    <message>
        <source>A number.</source>
        <translation>Un nombre.</translation>
    </message>
    <message>
        <source>A number from %1 to %2%3.</source>
        <extracomment>%1 and %2 are numbers, %3 is a unit with a space before it, or nothing.</extracomment>
        <translation>Un nombre de %1 à %2%3.</translation>
    </message>
</context>
<context>
    <name>XMLParser</name>
    <message>
        <source>Could not allocate memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Internal error occurred</source>
        <translation>Erreur interne</translation>
    </message>
    <message>
        <source>Could not determine tag type</source>
        <translation>Type de balise inconnu</translation>
    </message>
    <message>
        <source>Error parsing document declaration/processing instruction</source>
        <translation>Erreur dans la déclaration du document ou dans une instruction de traitement</translation>
    </message>
    <message>
        <source>Error parsing comment</source>
        <translation>Erreur dans un commentaire</translation>
    </message>
    <message>
        <source>Error parsing CDATA section</source>
        <translation>Erreur dans une section CDATA</translation>
    </message>
    <message>
        <source>Error parsing document type declaration</source>
        <translation>Erreur dans la déclaration de type de document</translation>
    </message>
    <message>
        <source>Error parsing PCDATA section</source>
        <translation>Erreur dans une section PCDATA</translation>
    </message>
    <message>
        <source>Error parsing start element tag</source>
        <translation>Erreur dans une balise ouvrante</translation>
    </message>
    <message>
        <source>Error parsing element attribute</source>
        <translation>Erreur dans un attribut</translation>
    </message>
    <message>
        <source>Error parsing end element tag</source>
        <translation>Erreur dans une balise fermante</translation>
    </message>
    <message>
        <source>Start-end tags mismatch</source>
        <translation>Les balises ouvrante et fermante ne concordent pas</translation>
    </message>
    <message>
        <source>No document element found</source>
        <translation>Aucun élément racine trouvé</translation>
    </message>
</context>
<context>
    <name>ZipReader</name>
    <message>
        <source>is damaged</source>
        <translation>est endommagé</translation>
    </message>
    <message>
        <source>has far too much in it</source>
        <translation>contient beaucoup trop de données</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>is no ZIP archive, or not all of one</source>
        <translation>n’est pas une archive ZIP, ou elle est incomplète</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Turns PDF files into page-flip books.</source>
        <translation>Transforme des fichiers PDF en livres à feuilleter.</translation>
    </message>
    <message>
        <source>A PDF file to import, or a project to open.</source>
        <translation>Un fichier PDF à importer, ou un projet à ouvrir.</translation>
    </message>
</context>
</TS>
