<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BrisleafAppDelegate</name>
    <message>
        <source>The preview could not be brought up to date.</source>
        <translation>Die Vorschau konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>The preview has stopped working.</source>
        <translation>Die Vorschau funktioniert nicht mehr.</translation>
    </message>
    <message>
        <source>Press F5 to load it again. Your book is not affected.</source>
        <translation>Drücken Sie F5, um sie neu zu laden. Ihr Buch ist davon nicht betroffen.</translation>
    </message>
    <message>
        <source>Not everything could be imported.</source>
        <translation>Nicht alles konnte importiert werden.</translation>
    </message>
    <message>
        <source>The settings were not saved to %1.</source>
        <translation>Die Einstellungen wurden nicht in %1 gespeichert.</translation>
    </message>
    <message>
        <source>The settings were not loaded.</source>
        <translation>Die Einstellungen wurden nicht geladen.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>loading of settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>Laden der Einstellungen</translation>
    </message>
    <message>
        <source>The help cannot be opened.</source>
        <translation>Die Hilfe kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file %1 is missing.</source>
        <translation>Die Datei %1 fehlt.</translation>
    </message>
    <message>
        <source>The template “%1” is damaged.</source>
        <translation>Die Vorlage „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf</source>
        <extracomment>The help in your language; keep the path as it is until there is one.</extracomment>
        <translation>PDF to Folvero for mac Help/PDF to Folvero for Mac.de.pdf</translation>
    </message>
    <message>
        <source>choice of template</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>Wahl der Vorlage</translation>
    </message>
    <message>
        <source>These files are missing. The book is shown without them.</source>
        <translation>Diese Dateien fehlen. Das Buch wird ohne sie gezeigt.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields.</source>
        <translation>Wählen Sie in den Einstellungen andere, oder leeren Sie die Felder.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings. Choose one that was made with “Save look”.</source>
        <translation>Die Datei %1 enthält keine Einstellungen. Wählen Sie eine, die mit „Aussehen speichern“ gemacht wurde.</translation>
    </message>
    <message>
        <source>Press “Apply” to try again.</source>
        <translation>Drücken Sie „Anwenden“, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Das Buch wurde nicht veröffentlicht.</translation>
    </message>
    <message>
        <source>%1: is a project; open it alone</source>
        <translation>%1: ist ein Projekt; öffnen Sie es allein</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nichts wurde importiert.</translation>
    </message>
</context>
<context>
    <name>CommonCryptoErrorDomain</name>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Parameter Error</source>
        <translation>Parameterfehler</translation>
    </message>
    <message>
        <source>Illegal parameter supplied to encryption/decryption algorithm</source>
        <translation>Unzulässiger Parameter für das Ver- oder Entschlüsseln</translation>
    </message>
    <message>
        <source>Buffer Too Small</source>
        <translation>Puffer zu klein</translation>
    </message>
    <message>
        <source>Insufficient buffer provided for specified operation</source>
        <translation>Der Puffer reicht für den Vorgang nicht aus</translation>
    </message>
    <message>
        <source>Memory Failure</source>
        <translation>Speicherfehler</translation>
    </message>
    <message>
        <source>Failed to allocate memory</source>
        <translation>Es war nicht genug Speicher frei</translation>
    </message>
    <message>
        <source>Alignment Error</source>
        <translation>Ausrichtungsfehler</translation>
    </message>
    <message>
        <source>Input size to encryption algorithm was not aligned correctly</source>
        <translation>Die Länge der Eingabe passt nicht zum Verschlüsselungsverfahren</translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation>Fehler beim Entschlüsseln</translation>
    </message>
    <message>
        <source>Input data did not decode or decrypt correctly</source>
        <translation>Die Eingabe ließ sich nicht richtig dekodieren oder entschlüsseln</translation>
    </message>
    <message>
        <source>Unimplemented Function</source>
        <translation>Fehlende Funktion</translation>
    </message>
    <message>
        <source>Function not implemented for the current algorithm</source>
        <translation>Das Verfahren kennt diese Funktion nicht</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
</context>
<context>
    <name>DropHint</name>
    <message>
        <source>Only PDFs, pictures and documents that LibreOffice can open become a book.</source>
        <translation>Nur aus PDFs, Bildern und Dokumenten, die LibreOffice öffnen kann, wird ein Buch.</translation>
    </message>
    <message>
        <source>Drop the project here to open it.</source>
        <translation>Legen Sie das Projekt hier ab, um es zu öffnen.</translation>
    </message>
    <message>
        <source>Drop it here to make a book of it.</source>
        <translation>Legen Sie es hier ab, um ein Buch daraus zu machen.</translation>
    </message>
    <message>
        <source>Drop them here to make one book of them, in the order of their names.</source>
        <translation>Legen Sie sie hier ab, um ein einziges Buch daraus zu machen, in der Reihenfolge ihrer Namen.</translation>
    </message>
    <message>
        <source>Drop here to make a new book.</source>
        <translation>Hier ablegen für ein neues Buch.</translation>
    </message>
    <message>
        <source>Drop here to add to “%1”.</source>
        <translation>Hier ablegen und zu „%1“ hinzufügen.</translation>
    </message>
</context>
<context>
    <name>FileToSave</name>
    <message>
        <source>Replace %1?</source>
        <translation>%1 ersetzen?</translation>
    </message>
    <message>
        <source>A file of this name is already in the folder. What is in it would be lost.</source>
        <translation>Eine Datei dieses Namens liegt schon in dem Ordner. Ihr Inhalt ginge verloren.</translation>
    </message>
</context>
<context>
    <name>FlashPagesAnnotationsPDF</name>
    <message>
        <source>no page at position %1</source>
        <translation>keine Seite an der Stelle %1</translation>
    </message>
</context>
<context>
    <name>FlashTemplate</name>
    <message>
        <source>Can&apos;t create an URL from file %1.</source>
        <translation>Aus der Datei %1 lässt sich keine URL bilden.</translation>
    </message>
    <message>
        <source>Can&apos;t load the template file &quot;%1&quot;: %2</source>
        <translation>Die Vorlagendatei „%1“ kann nicht geladen werden: %2</translation>
    </message>
</context>
<context>
    <name>FlashTemplateModel</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What a screen reader says: the name of a setting and its value.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <extracomment>What a screen reader says of a setting that is not as the template has it; %1 is its name and value.</extracomment>
        <translation>%1, geändert</translation>
    </message>
</context>
<context>
    <name>FlashTemplateOutlineDelegate</name>
    <message>
        <source>(Untitled)</source>
        <translation>(ohne Titel)</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>(unbekannt)</translation>
    </message>
</context>
<context>
    <name>FolveroOutput</name>
    <message>
        <source>%1: There is no such folder</source>
        <translation>%1: Diesen Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>There is a folder of that name</source>
        <translation>Es gibt einen Ordner dieses Namens</translation>
    </message>
    <message>
        <source>the player is not installed</source>
        <translation>der Player ist nicht installiert</translation>
    </message>
    <message>
        <source>As one file the book would have %1 MB, and the most is %2 MB. Import fewer pages or choose the smallest files, or publish it as a folder</source>
        <translation>Als eine Datei hätte das Buch %1 MB, erlaubt sind %2 MB. Importieren Sie weniger Seiten oder wählen Sie die kleinsten Dateien, oder veröffentlichen Sie es als Ordner</translation>
    </message>
    <message>
        <source>The page with the book&apos;s text has that name</source>
        <translation>So heißt schon die Seite mit dem Text des Buchs</translation>
    </message>
    <message>
        <source>%1: the page of the template &quot;%2&quot; is missing, empty, not readable, or outside of the templates&apos; folder</source>
        <extracomment>%1 is a file, %2 the template&apos;s name</extracomment>
        <translation>%1: die Seite der Vorlage „%2“ fehlt, ist leer, nicht lesbar oder nicht im Ordner der Vorlagen</translation>
    </message>
    <message>
        <source>%1: is missing; the program is not installed completely</source>
        <translation>%1: fehlt; das Programm ist nicht vollständig installiert</translation>
    </message>
    <message>
        <source>it was changed while the book was published</source>
        <translation>es wurde geändert, während das Buch veröffentlicht wurde</translation>
    </message>
    <message>
        <source>%1; earlier files are in %2, and the next publish tries to put them back</source>
        <translation>%1; frühere Dateien sind in %2, und das nächste Veröffentlichen versucht, sie zurückzulegen</translation>
    </message>
    <message>
        <source>Earlier files of the book are in it and can&apos;t be put back</source>
        <translation>Er enthält frühere Dateien des Buchs, die nicht zurückgelegt werden können</translation>
    </message>
</context>
<context>
    <name>FolveroOutputWeb</name>
    <message>
        <source>a book in one file has no other files</source>
        <translation>ein Buch in einer Datei hat keine anderen Dateien</translation>
    </message>
    <message>
        <source>it has the pages that a reading sample leaves out</source>
        <translation>es enthält die Seiten, die eine Leseprobe auslässt</translation>
    </message>
</context>
<context>
    <name>ImportPDFOperation</name>
    <message>
        <source>%1: none of the pages asked for is in it</source>
        <translation>%1: enthält keine der gewünschten Seiten</translation>
    </message>
    <message>
        <source>%1: none of the pages could be drawn (%2)</source>
        <translation>%1: keine der Seiten konnte gezeichnet werden (%2)</translation>
    </message>
    <message>
        <source>%1: links: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its links.</extracomment>
        <translation>%1: Links: %2</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>page %1 and %2 more: %3</source>
        <translation>Seite %1 und %2 weitere: %3</translation>
    </message>
    <message>
        <source>%1: bookmarks: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its bookmarks.</extracomment>
        <translation>%1: Lesezeichen: %2</translation>
    </message>
    <message>
        <source>%1: the document has no pages; the file may be incomplete</source>
        <translation>%1: Das Dokument hat keine Seiten; die Datei ist vielleicht unvollständig</translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>Import a PDF</source>
        <translation>PDF importieren</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Best, for zooming in</source>
        <extracomment>The quality of the pictures of the pages, from the best to the worst.</extracomment>
        <translation>Beste, zum Vergrößern</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Smallest files</source>
        <translation>Kleinste Dateien</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>&amp;Links importieren</translation>
    </message>
    <message>
        <source>Import &amp;bookmarks as contents</source>
        <translation>Lese&amp;zeichen als Inhaltsverzeichnis importieren</translation>
    </message>
    <message>
        <source>&amp;PDF file:</source>
        <translation>&amp;PDF-Datei:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Seiten:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>Opens the chosen PDF in another program.</extracomment>
        <translation>An&amp;sehen</translation>
    </message>
    <message>
        <source>Opens the PDF in the program that usually shows it</source>
        <translation>Öffnet die PDF-Datei in dem Programm, das sie sonst anzeigt</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <extracomment>All pages are imported.</extracomment>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;These:</source>
        <extracomment>A field for page numbers follows.</extracomment>
        <translation>&amp;Diese:</translation>
    </message>
    <message>
        <source>for example 1-3,7</source>
        <translation>zum Beispiel 1-3,7</translation>
    </message>
    <message>
        <source>Pages to import</source>
        <translation>Zu importierende Seiten</translation>
    </message>
    <message>
        <source>Split where found</source>
        <extracomment>What becomes of pages that show two pages of a printed book side by side.</extracomment>
        <translation>Teilen, wo gefunden</translation>
    </message>
    <message>
        <source>Split all landscape pages</source>
        <translation>Alle Querformate teilen</translation>
    </message>
    <message>
        <source>Keep whole</source>
        <translation>Ganz lassen</translation>
    </message>
    <message>
        <source>&amp;Double pages:</source>
        <translation>D&amp;oppelseiten:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 and %n more</source>
        <extracomment>As above, with some of the names.</extracomment>
        <translation>
            <numerusform>und %1 und %n weitere</numerusform>
            <numerusform>und %1 und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>Beneath the path of a file: those that are imported with it. %1 is a list of names.</extracomment>
        <translation>und %1</translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message>
        <source>Importing:%1/%2</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages.</extracomment>
        <translation>Importiert: %1/%2</translation>
    </message>
    <message>
        <source>Page %1 could not be drawn: %2</source>
        <translation>Seite %1 konnte nicht gezeichnet werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn.</source>
        <translation>
            <numerusform>%n weitere Seite konnte nicht gezeichnet werden.</numerusform>
            <numerusform>%n weitere Seiten konnten nicht gezeichnet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Page %1 could not be drawn completely: %2</source>
        <translation>Seite %1 ließ sich nicht vollständig zeichnen: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn completely.</source>
        <translation>
            <numerusform>%n weitere Seite ließ sich nicht vollständig zeichnen.</numerusform>
            <numerusform>%n weitere Seiten ließen sich nicht vollständig zeichnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a PDF document.</source>
        <translation>Wählen Sie ein PDF-Dokument.</translation>
    </message>
    <message>
        <source>Choose another document.</source>
        <translation>Wählen Sie ein anderes Dokument.</translation>
    </message>
    <message>
        <source>Choose other pages or another document.</source>
        <translation>Wählen Sie andere Seiten oder ein anderes Dokument.</translation>
    </message>
    <message>
        <source>Try again, or choose another document.</source>
        <translation>Versuchen Sie es noch einmal, oder wählen Sie ein anderes Dokument.</translation>
    </message>
    <message>
        <source>“%1” was imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>„%1“ wurde importiert.</translation>
    </message>
    <message>
        <source>“%1” was not imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>„%1“ wurde nicht importiert.</translation>
    </message>
    <message>
        <source>Preparing the document…</source>
        <translation>Das Dokument wird vorbereitet …</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were imported.</source>
        <translation>
            <numerusform>%n Datei wurde importiert.</numerusform>
            <numerusform>%n Dateien wurden importiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were not imported.</source>
        <translation>
            <numerusform>%n Datei wurde nicht importiert.</numerusform>
            <numerusform>%n Dateien wurden nicht importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice erzeugt die Seiten…</translation>
    </message>
</context>
<context>
    <name>InputFiles</name>
    <message>
        <source>has no PDF and no picture</source>
        <translation>enthält kein PDF und kein Bild</translation>
    </message>
    <message>
        <source>is no PDF, no picture and no document that LibreOffice turns into a PDF</source>
        <translation>ist kein PDF, kein Bild und kein Dokument, aus dem LibreOffice ein PDF macht</translation>
    </message>
    <message>
        <source>is not on this computer; save it here first</source>
        <translation>liegt nicht auf diesem Computer; bitte zuerst hier speichern</translation>
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
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>noch etwa %n Minute</numerusform>
            <numerusform>noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>noch etwa %n Stunde</numerusform>
            <numerusform>noch etwa %n Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>PDF &amp;importieren …</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>PDF importieren</translation>
    </message>
    <message>
        <source>Make the book from a PDF document</source>
        <translation>Das Buch aus einer PDF-Datei machen</translation>
    </message>
    <message>
        <source>&amp;Publish the book…</source>
        <translation>Buch &amp;veröffentlichen …</translation>
    </message>
    <message>
        <source>Publish</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Veröffentlichen</translation>
    </message>
    <message>
        <source>Write the finished book into a folder of your choice</source>
        <translation>Das fertige Buch in einen Ordner Ihrer Wahl schreiben</translation>
    </message>
    <message>
        <source>Load settings that were saved to a file</source>
        <translation>Einstellungen laden, die in einer Datei gespeichert wurden</translation>
    </message>
    <message>
        <source>Save the settings to a file, to use them for other books</source>
        <translation>Die Einstellungen in einer Datei speichern, um sie für andere Bücher zu verwenden</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Apply the changes</source>
        <translation>Änderungen &amp;anwenden</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Show the changed settings in the preview</source>
        <translation>Die geänderten Einstellungen in der Vorschau zeigen</translation>
    </message>
    <message>
        <source>Choose a &amp;template…</source>
        <translation>&amp;Vorlage wählen …</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>Give the book another look</source>
        <translation>Dem Buch ein anderes Aussehen geben</translation>
    </message>
    <message>
        <source>&amp;Reload the preview</source>
        <translation>Vorschau &amp;neu laden</translation>
    </message>
    <message>
        <source>Folvero &amp;help</source>
        <translation>Folvero-&amp;Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Folvero</source>
        <translation>&amp;Über Folvero</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>%1 &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>%1 &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Like the &amp;system</source>
        <extracomment>The window is light or dark; this is one of the choices.</extracomment>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <extracomment>The name of the toolbar.</extracomment>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Ein neues Projekt beginnen</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Open a project that was saved</source>
        <translation>Ein gespeichertes Projekt öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the project, to go on with the book later</source>
        <translation>Das Projekt speichern, um später an dem Buch weiterzuarbeiten</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Das Projekt unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>&amp;Load look…</source>
        <translation>Aussehen &amp;laden …</translation>
    </message>
    <message>
        <source>Save loo&amp;k…</source>
        <translation>Aussehen sp&amp;eichern …</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>&amp;Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Pa&amp;ges…</source>
        <translation>Sei&amp;ten…</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Arrange, turn, remove and insert pages</source>
        <translation>Seiten anordnen, drehen, entfernen und einfügen</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>Einstellung s&amp;uchen</translation>
    </message>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Zurücksetzen auf &amp;Standard</translation>
    </message>
    <message>
        <source>R&amp;eset all settings</source>
        <translation>Alle &amp;Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Save as a st&amp;yle…</source>
        <translation>&amp;Als Stil speichern …</translation>
    </message>
    <message>
        <source>Keep the settings as a style of your own among the templates</source>
        <translation>Die Einstellungen als eigenen Stil bei den Vorlagen behalten</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Settings of the template</source>
        <translation>Einstellungen der Vorlage</translation>
    </message>
    <message>
        <source>Template of the book</source>
        <translation>Vorlage des Buchs</translation>
    </message>
    <message>
        <source>The template of the book; click to choose another</source>
        <translation>Die Vorlage des Buchs; klicken Sie, um eine andere zu wählen</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>Wählen Sie eine Einstellung aus, um zu lesen, was sie bewirkt.</translation>
    </message>
    <message>
        <source>What the selected setting does</source>
        <translation>Was die ausgewählte Einstellung bewirkt</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Above the explanation of the selected setting, while none is selected.</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Demo book</source>
        <translation>Demobuch</translation>
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
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Die Meldung schließen</translation>
    </message>
</context>
<context>
    <name>NameWindow</name>
    <message>
        <source>&amp;Name of the style:</source>
        <translation>&amp;Name des Stils:</translation>
    </message>
</context>
<context>
    <name>OfficeDocument</name>
    <message>
        <source>needs LibreOffice, which is not installed</source>
        <translation>braucht LibreOffice, das nicht installiert ist</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>wurde abgebrochen</translation>
    </message>
    <message>
        <source>LibreOffice takes too long for it</source>
        <translation>LibreOffice braucht zu lange dafür</translation>
    </message>
    <message>
        <source>LibreOffice can&apos;t make a PDF of it</source>
        <translation>LibreOffice kann kein PDF daraus machen</translation>
    </message>
</context>
<context>
    <name>OfficePages</name>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice erzeugt die Seiten…</translation>
    </message>
</context>
<context>
    <name>OutputWindow</name>
    <message>
        <source>Publish the book</source>
        <translation>Buch veröffentlichen</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Veröffentlichen</translation>
    </message>
    <message>
        <source>without an ending, for example index</source>
        <extracomment>Shown in the empty field for the file&apos;s name.</extracomment>
        <translation>ohne Endung, zum Beispiel index</translation>
    </message>
    <message>
        <source>shown in the browser&apos;s window</source>
        <extracomment>Shown in the empty field for the book&apos;s title.</extracomment>
        <translation>steht im Fenster des Browsers</translation>
    </message>
    <message>
        <source>Kind of book:</source>
        <translation>Art des Buchs:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>C&amp;lassic (pictures only)</source>
        <translation>Kla&amp;ssisch (nur Bilder)</translation>
    </message>
    <message>
        <source>Application for the &amp;Mac</source>
        <translation>Programm für den &amp;Mac</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Wä&amp;hlen …</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <extracomment>Shows the chosen folder in the file manager.</extracomment>
        <translation>An&amp;zeigen</translation>
    </message>
    <message>
        <source>Opens the folder in the file manager</source>
        <translation>Öffnet den Ordner im Dateimanager</translation>
    </message>
    <message>
        <source>&amp;Embed:</source>
        <extracomment>Markup that shows the book inside another page.</extracomment>
        <translation>E&amp;inbetten:</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the text for embedding the book</source>
        <translation>Kopiert den Text zum Einbetten des Buchs</translation>
    </message>
    <message>
        <source>Copy the text for embedding</source>
        <translation>Text zum Einbetten kopieren</translation>
    </message>
    <message>
        <source>Web &amp;book</source>
        <translation>Web&amp;buch</translation>
    </message>
    <message>
        <source>For a web site: with contents, search and links; opens page by page</source>
        <translation>Für eine Website: mit Inhalt, Suche und Links; öffnet sich Seite für Seite</translation>
    </message>
    <message>
        <source>Web book in &amp;one file</source>
        <translation>Webbuch in &amp;einer Datei</translation>
    </message>
    <message>
        <source>To send by mail or to open from a memory stick</source>
        <translation>Zum Verschicken per Mail oder zum Öffnen von einem Speicherstift</translation>
    </message>
    <message>
        <source>For a quick look: made in less time, without contents, search and links</source>
        <translation>Für einen schnellen Blick: eher fertig, ohne Inhalt, Suche und Links</translation>
    </message>
    <message>
        <source>For people with a Mac: one file that opens with a double-click</source>
        <translation>Für Leute mit einem Mac: eine Datei, die sich mit einem Doppelklick öffnet</translation>
    </message>
    <message>
        <source>Mo&amp;re options</source>
        <extracomment>Shows further fields beneath it.</extracomment>
        <translation>Weite&amp;re Optionen</translation>
    </message>
    <message>
        <source>for example https://example.org/book/</source>
        <extracomment>Shown in the empty field for the book&apos;s address on the web.</extracomment>
        <translation>zum Beispiel https://example.org/buch/</translation>
    </message>
    <message>
        <source>Where the book will be on the web: for search engines, previews of links, “Copy link” and the text for embedding</source>
        <translation>Wo das Buch im Web stehen wird: für Suchmaschinen, Vorschauen von Links, „Link kopieren“ und den Text zum Einbetten</translation>
    </message>
    <message>
        <source>all pages, or for example 1-12</source>
        <extracomment>Shown in the empty field for the pages of a reading sample.</extracomment>
        <translation>alle Seiten, oder zum Beispiel 1-12</translation>
    </message>
    <message>
        <source>The pages that can be read, by their numbers in the document; the book contains nothing of the others</source>
        <translation>Die Seiten, die man lesen kann, nach ihren Nummern im Dokument; von den anderen enthält das Buch nichts</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <extracomment>The book&apos;s address on the web.</extracomment>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>Rea&amp;ding sample:</source>
        <extracomment>Some of the book&apos;s pages, as a foretaste.</extracomment>
        <translation>&amp;Leseprobe:</translation>
    </message>
    <message>
        <source>Shows the book inside another page: put this into that page. %1 stands for the book&apos;s address until that is given above.</source>
        <translation>Zeigt das Buch in einer anderen Seite: Fügen Sie dies dort ein. %1 steht für die Adresse des Buchs, bis sie oben angegeben ist.</translation>
    </message>
</context>
<context>
    <name>OutputWindowDelegate</name>
    <message>
        <source>The book was not published</source>
        <translation>Das Buch wurde nicht veröffentlicht</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>Das fertige Buch öffnen?</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>Das Buch ist veröffentlicht. Möchten Sie es jetzt öffnen?</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <extracomment>The button of a panel that asks for a folder.</extracomment>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>The book is not complete</source>
        <translation>Das Buch ist nicht vollständig</translation>
    </message>
    <message>
        <source>These pages have no picture and stay empty: %1. If the document itself is sound, import it again, then publish once more.</source>
        <translation>Diese Seiten haben kein Bild und bleiben leer: %1. Wenn das Dokument selbst in Ordnung ist, importieren Sie es noch einmal und veröffentlichen Sie dann neu.</translation>
    </message>
    <message>
        <source>Replace what is already there?</source>
        <translation>Ersetzen, was dort schon liegt?</translation>
    </message>
    <message>
        <source>This is not part of a book and would be lost:</source>
        <translation>Dies gehört zu keinem Buch und ginge verloren:</translation>
    </message>
    <message>
        <source>The book in %1 would be lost.</source>
        <translation>Das Buch in %1 ginge verloren.</translation>
    </message>
    <message>
        <source>The book “%1” in %2 would be lost.</source>
        <translation>Das Buch „%1“ in %2 ginge verloren.</translation>
    </message>
    <message>
        <source>Include the document&apos;s text?</source>
        <translation>Soll das Buch den Text des Dokuments enthalten?</translation>
    </message>
    <message>
        <source>The document forbids copying its text. Without text the book can&apos;t be searched, and its words can&apos;t be selected or read aloud.</source>
        <translation>Das Dokument verbietet, seinen Text zu kopieren. Ohne Text lässt sich das Buch nicht durchsuchen, und seine Wörter lassen sich nicht markieren oder vorlesen.</translation>
    </message>
    <message>
        <source>Readers can&apos;t download the document</source>
        <translation>Das Dokument lässt sich nicht herunterladen</translation>
    </message>
    <message>
        <source>The settings offer it for download, but %1.</source>
        <extracomment>%1 is a reason, such as &quot;it opens with a password only&quot;</extracomment>
        <translation>Die Einstellungen bieten es zum Herunterladen an, aber %1.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>These files are missing. The book was published without them.</source>
        <translation>Diese Dateien fehlen. Das Buch wurde ohne sie veröffentlicht.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields, and publish again.</source>
        <translation>Wählen Sie in den Einstellungen andere, oder leeren Sie die Felder, und veröffentlichen Sie noch einmal.</translation>
    </message>
    <message>
        <source>Choose another folder, or make room in this one, and publish again: what you have typed is kept.</source>
        <translation>Wählen Sie einen anderen Ordner, oder schaffen Sie in diesem Platz, und veröffentlichen Sie noch einmal: Was Sie eingegeben haben, bleibt erhalten.</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Das Buch wurde nicht veröffentlicht.</translation>
    </message>
    <message>
        <source>The book was published.</source>
        <extracomment>A notification of the desktop, for users who look elsewhere.</extracomment>
        <translation>Das Buch wurde veröffentlicht.</translation>
    </message>
    <message>
        <source>The address must be that of a folder or page, such as https://example.org/book/, without “?” and “#”.</source>
        <translation>Die Adresse muss die eines Ordners oder einer Seite sein, wie https://example.org/buch/, ohne „?“ und „#“.</translation>
    </message>
</context>
<context>
    <name>OwnStyles</name>
    <message>
        <source>The template itself has a style “%1”. Choose another name.</source>
        <translation>Die Vorlage hat selbst einen Stil „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, contain a slash, or be very long.</source>
        <translation>Ein Name kann nicht mit einem Punkt beginnen, keinen Schrägstrich enthalten und nicht sehr lang sein.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings.</source>
        <translation>Die Datei %1 enthält keine Einstellungen.</translation>
    </message>
    <message>
        <source>There is a style “%1” already. Choose another name.</source>
        <translation>Es gibt schon einen Stil „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>PDFDocument</name>
    <message>
        <source>page %1 does not exist; the document has %2</source>
        <translation>Seite %1 gibt es nicht; das Dokument hat %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is a folder, not a PDF file</source>
        <translation>ist ein Ordner, keine PDF-Datei</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a PDF file</source>
        <translation>ist eine Pipe oder ein Gerät, keine PDF-Datei</translation>
    </message>
    <message>
        <source>can&apos;t be read (%1)</source>
        <translation>kann nicht gelesen werden (%1)</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>is not a PDF document</source>
        <translation>ist kein PDF-Dokument</translation>
    </message>
    <message>
        <source>is damaged beyond repair (%1)</source>
        <translation>ist zu stark beschädigt (%1)</translation>
    </message>
    <message>
        <source>is protected by a password</source>
        <translation>ist durch ein Passwort geschützt</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>das Passwort ist falsch</translation>
    </message>
    <message>
        <source>the file was changed after reading it had begun</source>
        <translation>die Datei wurde seit dem Beginn des Lesens geändert</translation>
    </message>
    <message>
        <source>is encrypted in an unknown way (%1)</source>
        <translation>ist auf unbekannte Weise verschlüsselt (%1)</translation>
    </message>
    <message>
        <source>its pages can&apos;t be found (%1)</source>
        <translation>die Seiten sind nicht auffindbar (%1)</translation>
    </message>
    <message>
        <source>was changed while it was read</source>
        <translation>wurde geändert, während es gelesen wurde</translation>
    </message>
    <message>
        <source>can&apos;t be merged with others (%1)</source>
        <translation>lässt sich nicht mit anderen verbinden (%1)</translation>
    </message>
    <message>
        <source>is too damaged to be merged with others</source>
        <translation>ist zu beschädigt, um mit anderen verbunden zu werden</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>hat keine Seite %1</translation>
    </message>
    <message>
        <source>is neither a PDF nor a picture</source>
        <translation>ist weder ein PDF noch ein Bild</translation>
    </message>
    <message>
        <source>the picture can&apos;t be read (%1)</source>
        <translation>das Bild lässt sich nicht lesen (%1)</translation>
    </message>
</context>
<context>
    <name>PDFReader</name>
    <message>
        <source>what was read of it makes no sense</source>
        <translation>was daraus gelesen wurde, ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>the program that reads PDF files broke off at it</source>
        <translation>das Programm, das PDF-Dateien liest, ist daran gescheitert</translation>
    </message>
    <message>
        <source>reading it was stopped</source>
        <translation>das Lesen wurde abgebrochen</translation>
    </message>
    <message>
        <source>reading it took too long</source>
        <translation>das Lesen dauerte zu lange</translation>
    </message>
    <message>
        <source>the program that reads PDF files can&apos;t be started</source>
        <translation>das Programm, das PDF-Dateien liest, lässt sich nicht starten</translation>
    </message>
</context>
<context>
    <name>PageFailure</name>
    <message>
        <source>drawing it was stopped</source>
        <translation>das Zeichnen wurde abgebrochen</translation>
    </message>
    <message>
        <source>drawing it took too long</source>
        <translation>das Zeichnen dauerte zu lange</translation>
    </message>
    <message>
        <source>the program that draws pages ended at this page</source>
        <translation>das Programm, das die Seiten zeichnet, endete bei dieser Seite</translation>
    </message>
    <message>
        <source>it takes more memory than a page may have</source>
        <translation>sie braucht mehr Speicher, als eine Seite haben darf</translation>
    </message>
    <message>
        <source>the program that draws pages can&apos;t be started</source>
        <translation>das Programm, das die Seiten zeichnet, lässt sich nicht starten</translation>
    </message>
    <message>
        <source>it was not drawn</source>
        <translation>sie wurde nicht gezeichnet</translation>
    </message>
    <message>
        <source>an image can&apos;t be read completely</source>
        <translation>ein Bild lässt sich nicht vollständig lesen</translation>
    </message>
    <message>
        <source>a font can&apos;t be read</source>
        <translation>eine Schrift lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>some of its data is damaged</source>
        <translation>ein Teil ihrer Daten ist beschädigt</translation>
    </message>
    <message>
        <source>the program that draws pages wrote more than pages need</source>
        <translation>das Programm, das Seiten zeichnet, hat mehr geschrieben, als Seiten brauchen</translation>
    </message>
    <message>
        <source>the program that draws pages wrote a file that is none of a page</source>
        <translation>das Programm, das Seiten zeichnet, hat eine Datei geschrieben, die keine einer Seite ist</translation>
    </message>
</context>
<context>
    <name>PageListText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>A run of page numbers.</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>Follows page numbers.</extracomment>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageRange</name>
    <message>
        <source>the page range &quot;%1&quot; names %2 pages</source>
        <translation>der Seitenbereich „%1“ nennt %2 Seiten</translation>
    </message>
</context>
<context>
    <name>PagesModel</name>
    <message numerus="yes">
        <source>turning of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>Drehen von %n Seite</numerusform>
            <numerusform>Drehen von %n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removal of %n page(s)</source>
        <translation>
            <numerusform>Entfernen von %n Seite</numerusform>
            <numerusform>Entfernen von %n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>Verschieben von %n Seite</numerusform>
            <numerusform>Verschieben von %n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>blank page</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>Einfügen einer leeren Seite</translation>
    </message>
    <message numerus="yes">
        <source>insertion of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>Einfügen von %n Seite</numerusform>
            <numerusform>Einfügen von %n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Leere Seite</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <extracomment>%1 is a file&apos;s name, %2 a page number in it.</extracomment>
        <translation>%1, Seite %2</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <extracomment>%1 is a page number in the book, %2 where the page comes from.</extracomment>
        <translation>Seite %1: %2</translation>
    </message>
</context>
<context>
    <name>PagesWindow</name>
    <message>
        <source>The book&apos;s pages</source>
        <translation>Die Seiten des Buchs</translation>
    </message>
    <message>
        <source>&amp;Use these pages</source>
        <extracomment>The book is made of these pages, in this order.</extracomment>
        <translation>Diese Seiten &amp;verwenden</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Insert…</source>
        <extracomment>Beneath a picture in the toolbar, as the others here: short.</extracomment>
        <translation>Einfügen…</translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Leere Seite</translation>
    </message>
    <message>
        <source>Insert a blank page before the selected one</source>
        <translation>Eine leere Seite vor der ausgewählten einfügen</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Turn the selected pages to the left</source>
        <translation>Die ausgewählten Seiten nach links drehen</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Turn the selected pages to the right</source>
        <translation>Die ausgewählten Seiten nach rechts drehen</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Früher</translation>
    </message>
    <message>
        <source>Move the selected pages towards the beginning</source>
        <translation>Die ausgewählten Seiten zum Anfang hin verschieben</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Move the selected pages towards the end</source>
        <translation>Die ausgewählten Seiten zum Ende hin verschieben</translation>
    </message>
    <message>
        <source>As cover</source>
        <extracomment>The selected page becomes the book&apos;s cover.</extracomment>
        <translation>Als Titelseite</translation>
    </message>
    <message>
        <source>Move the selected page to the front of the book</source>
        <translation>Die ausgewählte Seite an den Anfang des Buchs setzen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected pages out of the book</source>
        <translation>Die ausgewählten Seiten aus dem Buch nehmen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Insert PDFs, pictures and documents before the selected page</source>
        <translation>PDFs, Bilder und Dokumente vor der ausgewählten Seite einfügen</translation>
    </message>
</context>
<context>
    <name>PagesWindowDelegate</name>
    <message>
        <source>Insert pages</source>
        <translation>Seiten einfügen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n ausgewählt</numerusform>
            <numerusform>%n ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>PDFs, pictures and documents for LibreOffice (%1)</source>
        <extracomment>%1 are the patterns of their names.</extracomment>
        <translation>PDFs, Bilder und Dokumente für LibreOffice (%1)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Open it</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>About Folvero</source>
        <translation>Über Folvero</translation>
    </message>
    <message>
        <source>Turns PDF documents into page-flip books for every browser.

Free software under the GNU Affero General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Macht aus PDF-Dokumenten Bücher zum Blättern für jeden Browser.

Freie Software unter der GNU Affero General Public License, Version 3 oder später. Ohne jede Gewährleistung.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>Mit Text</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Ohne Text</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Choose a PDF document</source>
        <translation>PDF-Dokument wählen</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>PDF-Dokumente</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Einstellungen laden</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Choose a sound</source>
        <translation>Klang wählen</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Klänge</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Documents for LibreOffice</source>
        <extracomment>Documents that LibreOffice can turn into PDFs: texts, presentations, sheets.</extracomment>
        <translation>Dokumente für LibreOffice</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projekte</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <extracomment>Opens the document with the password that was typed.</extracomment>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>This password does not open it.</source>
        <translation>Dieses Passwort öffnet es nicht.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>“%1” is protected by a password.</source>
        <extracomment>%1 is the name of a PDF.</extracomment>
        <translation>„%1“ ist durch ein Passwort geschützt.</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Size of the preview</source>
        <extracomment>What a screen reader says when it comes to the buttons Window, Desktop, Tablet and Phone.</extracomment>
        <translation>Größe der Vorschau</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>A size of the preview: all the space that the window has for it.</extracomment>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Show the book in all the space there is</source>
        <translation>Das Buch im ganzen verfügbaren Raum zeigen</translation>
    </message>
    <message>
        <source>Desktop</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Show the book as on a desktop screen</source>
        <translation>Das Buch wie auf einem großen Bildschirm zeigen</translation>
    </message>
    <message>
        <source>Tablet</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Show the book as on a tablet</source>
        <translation>Das Buch wie auf einem Tablet zeigen</translation>
    </message>
    <message>
        <source>Phone</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Show the book as on a phone</source>
        <translation>Das Buch wie auf einem Telefon zeigen</translation>
    </message>
    <message>
        <source>Turn</source>
        <extracomment>Turns the tablet or phone of the preview on its side.</extracomment>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Turn the tablet or phone on its side</source>
        <translation>Tablet oder Telefon quer legen</translation>
    </message>
    <message>
        <source>%1 × %2, %3 %</source>
        <extracomment>The size of the preview in pixels, and how much it is scaled down.</extracomment>
        <translation>%1 × %2, %3 %</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Preview of the book</source>
        <translation>Vorschau des Buchs</translation>
    </message>
    <message>
        <source>Reload the preview</source>
        <translation>Vorschau neu laden</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>is no project</source>
        <translation>ist kein Projekt</translation>
    </message>
    <message>
        <source>%1 was not found; it was looked for at: %2</source>
        <translation>%1 wurde nicht gefunden; gesucht wurde hier: %2</translation>
    </message>
    <message>
        <source>was changed after the project was saved</source>
        <translation>wurde geändert, nachdem das Projekt gespeichert wurde</translation>
    </message>
    <message>
        <source>is damaged at “%1”</source>
        <translation>ist bei „%1“ beschädigt</translation>
    </message>
    <message>
        <source>was saved by a newer version of Folvero (format %1; this version reads format %2)</source>
        <translation>wurde von einer neueren Version von Folvero gespeichert (Format %1; diese Version liest Format %2)</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>ist beschädigt</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>Without saving they are lost.</source>
        <translation>Ohne Speichern gehen sie verloren.</translation>
    </message>
    <message>
        <source>The project was not opened.</source>
        <translation>Das Projekt wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>The project is not as it was saved.</source>
        <translation>Das Projekt ist nicht mehr, wie es gespeichert wurde.</translation>
    </message>
    <message>
        <source>The project was not saved to %1.</source>
        <translation>Das Projekt wurde nicht in %1 gespeichert.</translation>
    </message>
    <message>
        <source>a book that was not saved</source>
        <translation>ein Buch, das nicht gespeichert wurde</translation>
    </message>
    <message>
        <source>Recover the changes to “%1”?</source>
        <translation>Die Änderungen an „%1“ wiederherstellen?</translation>
    </message>
    <message>
        <source>Folvero ended before they were saved, last on %1.</source>
        <translation>Folvero endete, bevor sie gespeichert waren, zuletzt am %1.</translation>
    </message>
    <message>
        <source>The pages can&apos;t be arranged.</source>
        <translation>Die Seiten können nicht angeordnet werden.</translation>
    </message>
    <message>
        <source>Save the pages of “%1” first?</source>
        <translation>Die Seiten von „%1“ zuerst speichern?</translation>
    </message>
    <message>
        <source>The document that you import takes the place of the pages that you have put together. Without saving they are lost.</source>
        <translation>Das Dokument, das Sie importieren, ersetzt die Seiten, die Sie zusammengestellt haben. Ohne Speichern gehen sie verloren.</translation>
    </message>
</context>
<context>
    <name>PropertyCellDelegate</name>
    <message>
        <source>Changed. Click to make it empty again.</source>
        <extracomment>%1 is the value that a setting had before it was changed.</extracomment>
        <translation>Geändert. Ein Klick macht es wieder leer.</translation>
    </message>
    <message>
        <source>Changed. Click to set it back to %1.</source>
        <translation>Geändert. Ein Klick setzt es zurück auf %1.</translation>
    </message>
</context>
<context>
    <name>PropertyHistory</name>
    <message>
        <source>“%1”</source>
        <extracomment>A setting&apos;s name in quotation marks; stands in &quot;Undo %1&quot;.</extracomment>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>PublishProgress</name>
    <message>
        <source>Page %1 of %2 – %3</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages, %3 is like &quot;37 %, about 2 minutes left&quot;.</extracomment>
        <translation>Seite %1 von %2 – %3</translation>
    </message>
    <message>
        <source>Making the pages of the book…</source>
        <translation>Die Seiten des Buchs entstehen …</translation>
    </message>
    <message>
        <source>Writing the book…</source>
        <translation>Das Buch wird geschrieben …</translation>
    </message>
</context>
<context>
    <name>PublisherChoices</name>
    <message>
        <source>it opens with a password only</source>
        <translation>es öffnet sich nur mit einem Passwort</translation>
    </message>
</context>
<context>
    <name>ReadingSample</name>
    <message>
        <source>The reading sample needs numbers of pages, such as 1-12, and not “%1”.</source>
        <translation>Die Leseprobe braucht Nummern von Seiten, wie 1-12, und nicht „%1“.</translation>
    </message>
    <message>
        <source>The book has none of the pages of the reading sample.</source>
        <translation>Das Buch hat keine der Seiten der Leseprobe.</translation>
    </message>
</context>
<context>
    <name>ResultBar</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Copy embed text</source>
        <extracomment>The text embeds the book in another page.</extracomment>
        <translation>Einbettung kopieren</translation>
    </message>
    <message>
        <source>Publish again</source>
        <translation>Erneut veröffentlichen</translation>
    </message>
    <message>
        <source>Published book</source>
        <extracomment>What a screen reader says when it comes to the bar after a publish.</extracomment>
        <translation>Veröffentlichtes Buch</translation>
    </message>
    <message>
        <source>Opens the book in the program that usually shows it</source>
        <translation>Öffnet das Buch in dem Programm, das es sonst zeigt</translation>
    </message>
    <message>
        <source>Publishes the book as it is now, with the same choices</source>
        <translation>Veröffentlicht das Buch, wie es jetzt ist, noch einmal ebenso</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Die Meldung schließen</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>“%1” was published</source>
        <translation>„%1“ ist veröffentlicht</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindow</name>
    <message>
        <source>Choose a template</source>
        <translation>Vorlage wählen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Looks for templates that were added or repaired meanwhile (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Sucht nach Vorlagen, die inzwischen hinzugefügt oder repariert wurden (%1)</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Vorlagen</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>&amp;Stile</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Vorlagen</translation>
    </message>
    <message>
        <source>There are no templates.</source>
        <translation>Es gibt keine Vorlagen.</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>This template has no styles.</source>
        <translation>Diese Vorlage hat keine Stile.</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Umbe&amp;nennen …</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen …</translation>
    </message>
    <message>
        <source>Gives a style of your own another name (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Gibt einem eigenen Stil einen anderen Namen (%1)</translation>
    </message>
    <message>
        <source>Deletes a style of your own (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Löscht einen eigenen Stil (%1)</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindowDelegate</name>
    <message>
        <source>“%1”</source>
        <extracomment>A template&apos;s name in quotation marks; stands in other texts.</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Its file %1 is missing.</source>
        <translation>Ihre Datei %1 fehlt.</translation>
    </message>
    <message>
        <source>The template %1 is not in the library.</source>
        <extracomment>%1 is the template&apos;s name in quotation marks.</extracomment>
        <translation>Die Vorlage %1 ist nicht in der Bibliothek.</translation>
    </message>
    <message>
        <source>The template %1 cannot be used. %2</source>
        <extracomment>%1 is the template&apos;s name in quotation marks, %2 a sentence that tells why.</extracomment>
        <translation>Die Vorlage %1 kann nicht verwendet werden. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation>
            <numerusform>%n weitere kann nicht verwendet werden.</numerusform>
            <numerusform>%n weitere können nicht verwendet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the style</source>
        <extracomment>The button that gives a style another name.</extracomment>
        <translation>Stil umbenennen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>The style “%1” cannot be used. %2</source>
        <extracomment>%1 is the style&apos;s name, %2 a sentence that tells why.</extracomment>
        <translation>Der Stil „%1“ ist nicht verwendbar. %2</translation>
    </message>
    <message>
        <source>Delete the style “%1”?</source>
        <translation>Den Stil „%1“ löschen?</translation>
    </message>
    <message>
        <source>Books and projects that have it keep their look.</source>
        <translation>Bücher und Projekte, die ihn haben, behalten ihr Aussehen.</translation>
    </message>
    <message>
        <source>The style was not deleted. %1</source>
        <translation>Der Stil wurde nicht gelöscht. %1</translation>
    </message>
</context>
<context>
    <name>SettingsReset</name>
    <message>
        <source>reset of all settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>Zurücksetzen aller Einstellungen</translation>
    </message>
    <message>
        <source>reset of “%1”</source>
        <extracomment>Stands in &quot;Undo %1&quot;; %1 is the title of a group of settings.</extracomment>
        <translation>Zurücksetzen von „%1“</translation>
    </message>
    <message>
        <source>&amp;Reset “%1”</source>
        <extracomment>%1 is the title of a setting or of a group of settings.</extracomment>
        <translation>„%1“ &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Reset the &amp;group “%1”</source>
        <extracomment>%1 is the title of a group of settings.</extracomment>
        <translation>Die &amp;Gruppe „%1“ zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;all settings</source>
        <translation>Alle &amp;Einstellungen zurücksetzen</translation>
    </message>
</context>
<context>
    <name>SettingsSearch</name>
    <message>
        <source>Search the settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Show all settings</source>
        <translation>Alle Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Show all settings (Esc)</source>
        <translation>Alle Einstellungen zeigen (Esc)</translation>
    </message>
    <message>
        <source>No setting has “%1”.</source>
        <translation>Keine Einstellung hat „%1“.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>StartPanel</name>
    <message>
        <source>Choose a file…</source>
        <translation>Datei wählen …</translation>
    </message>
    <message>
        <source>How to begin</source>
        <extracomment>What a screen reader says when it comes to the part of the window that says how to begin.</extracomment>
        <translation>So fangen Sie an</translation>
    </message>
    <message>
        <source>Drop a PDF or a folder of pictures here</source>
        <translation>Legen Sie hier ein PDF oder einen Ordner mit Bildern ab</translation>
    </message>
    <message>
        <source>Or play with the demo book below: turn its pages, try templates and settings.</source>
        <translation>Oder spielen Sie mit dem Demobuch unten: blättern Sie, probieren Sie Vorlagen und Einstellungen aus.</translation>
    </message>
    <message>
        <source>Make the book from a PDF, a picture or a text</source>
        <translation>Das Buch aus einem PDF, einem Bild oder einem Text machen</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
    <message>
        <source>Open %1 again</source>
        <extracomment>What a screen reader says for a file that was opened before.</extracomment>
        <translation>%1 wieder öffnen</translation>
    </message>
</context>
<context>
    <name>StyleName</name>
    <message>
        <source>Aurora</source>
        <translation>Polarlicht</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Schlicht</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Mitternacht</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Projektor</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Samt</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>Blaupause</translation>
    </message>
    <message>
        <source>Boardroom</source>
        <translation>Sitzungssaal</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Leuchtend</translation>
    </message>
    <message>
        <source>Chalkboard</source>
        <translation>Schultafel</translation>
    </message>
    <message>
        <source>Beach</source>
        <translation>Strand</translation>
    </message>
    <message>
        <source>Green baize</source>
        <translation>Grünes Tuch</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Oak</source>
        <translation>Eiche</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Schiefer</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Garten</translation>
    </message>
    <message>
        <source>Rainy window</source>
        <translation>Regenfenster</translation>
    </message>
    <message>
        <source>Watercolour</source>
        <translation>Aquarell</translation>
    </message>
    <message>
        <source>Writing desk</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>Zartrosa</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>Morning light</source>
        <translation>Morgenlicht</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sand</translation>
    </message>
</context>
<context>
    <name>StyleSaver</name>
    <message>
        <source>Save as a style</source>
        <extracomment>The button that saves a style.</extracomment>
        <translation>Als Stil speichern</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Replace the style “%1”?</source>
        <translation>Den Stil „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>You have saved a style of this name before. Its settings would be lost.</source>
        <translation>Unter diesem Namen haben Sie schon einen Stil gespeichert. Seine Einstellungen gingen verloren.</translation>
    </message>
    <message>
        <source>The style was not saved. %1</source>
        <translation>Der Stil wurde nicht gespeichert. %1</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>Unknown error %1</source>
        <translation>Unbekannter Fehler %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Der Vorgang ist nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ein-/Ausgabefehler</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Gerät oder Adresse nicht gefunden</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Nicht genug Speicher</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Das Gerät oder die Datei wird gerade benutzt</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Die Datei gibt es schon</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>Die Dateien liegen auf verschiedenen Datenträgern</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Gerät nicht gefunden</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Ist kein Ordner</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Ist ein Ordner</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Ungültiges Argument</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Zu viele offene Dateien im System</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Das Programm läuft gerade</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Die Datei ist zu groß</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Auf dem Datenträger ist kein Platz mehr</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Zu viele Verweise</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Der Dateiname ist zu lang</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>Der Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Zu viele symbolische Links hintereinander</translation>
    </message>
    <message>
        <source>Invalid or incomplete multibyte or wide character</source>
        <translation>Ungültiges oder unvollständiges Zeichen</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>Der Vorgang wird nicht unterstützt</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung bei der Verbindung</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>Der Rechner ist nicht erreichbar</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Kein Weg zum Rechner</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Die Datei ist auf dem Server nicht mehr da</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>Ein-/Ausgabefehler auf dem Server</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Das Speicherkontingent ist erschöpft</translation>
    </message>
</context>
<context>
    <name>TemplateFile</name>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>die Zeichenkodierung „%1“ ist unbekannt</translation>
    </message>
    <message>
        <source>is not in the encoding &quot;%1&quot; that it declares</source>
        <translation>ist nicht in der Zeichenkodierung „%1“, die sie angibt</translation>
    </message>
    <message>
        <source>its entities stand for too much text or for themselves</source>
        <translation>ihre Entitäten stehen für zu viel Text oder für sich selbst</translation>
    </message>
    <message>
        <source>root element</source>
        <translation>Wurzelelement</translation>
    </message>
    <message>
        <source>&quot;info&quot; element</source>
        <translation>Element „info“</translation>
    </message>
    <message>
        <source>&quot;property&quot; element</source>
        <translation>Element „property“</translation>
    </message>
    <message>
        <source>&quot;property&quot; element of key &quot;%1&quot;</source>
        <translation>Element „property“ mit dem Schlüssel „%1“</translation>
    </message>
    <message>
        <source>properties are nested more than %1 deep</source>
        <translation>Eigenschaften sind mehr als %1-fach verschachtelt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1 lacks its &quot;%2&quot; element</source>
        <extracomment>%1 is another element of the file.</extracomment>
        <translation>%1: das Element „%2“ fehlt</translation>
    </message>
</context>
<context>
    <name>TemplateName</name>
    <message>
        <source>Cinema</source>
        <translation>Kino</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Folien</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Tisch</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Schwebend</translation>
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
        <translation>Seiten</translation>
    </message>
    <message>
        <source>The paper and the direction of reading.</source>
        <translation>Das Papier und die Leserichtung.</translation>
    </message>
    <message>
        <source>Paper colour</source>
        <translation>Papierfarbe</translation>
    </message>
    <message>
        <source>The colour of the paper, seen where the picture of a page does not cover it.</source>
        <translation>Die Farbe des Papiers; zu sehen, wo das Bild einer Seite es nicht bedeckt.</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>The book begins at the right, as books in Arabic, Hebrew or Japanese do.</source>
        <translation>Das Buch beginnt rechts wie Bücher auf Arabisch, Hebräisch oder Japanisch.</translation>
    </message>
    <message>
        <source>Read from right to left</source>
        <translation>Von rechts nach links lesen</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Blättern</translation>
    </message>
    <message>
        <source>How the pages move, and whether they move by themselves.</source>
        <translation>Wie sich die Seiten bewegen und ob sie es von selbst tun.</translation>
    </message>
    <message>
        <source>Turning time</source>
        <translation>Dauer des Blätterns</translation>
    </message>
    <message>
        <source>How many seconds a page takes to turn.</source>
        <translation>Wie viele Sekunden das Umblättern einer Seite dauert.</translation>
    </message>
    <message>
        <source>Lifting time</source>
        <translation>Dauer des Anhebens</translation>
    </message>
    <message>
        <source>How many seconds a page takes to lift under the pointer, and to fall back when it is let go.</source>
        <translation>Wie viele Sekunden eine Seite braucht, um sich unter dem Mauszeiger zu heben und beim Loslassen zurückzufallen.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Auftritt</translation>
    </message>
    <message>
        <source>How the book comes in when it is opened.</source>
        <translation>Wie das Buch beim Öffnen erscheint.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Aufsteigen</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Herabfallen</translation>
    </message>
    <message>
        <source>Play by itself</source>
        <translation>Von selbst blättern</translation>
    </message>
    <message>
        <source>The pages turn by themselves from the start, until the reader stops them in the bar.</source>
        <translation>Die Seiten blättern von Anfang an von selbst um, bis die Leserin oder der Leser sie in der Leiste anhält.</translation>
    </message>
    <message>
        <source>Turn pages automatically</source>
        <translation>Seiten selbsttätig umblättern</translation>
    </message>
    <message>
        <source>Pause between pages</source>
        <translation>Pause zwischen Seiten</translation>
    </message>
    <message>
        <source>How many seconds each page stays while the book plays by itself.</source>
        <translation>Wie viele Sekunden jede Seite stehen bleibt, während das Buch von selbst blättert.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>A book that plays by itself begins again after its last page.</source>
        <translation>Ein Buch, das von selbst blättert, fängt nach der letzten Seite wieder von vorn an.</translation>
    </message>
    <message>
        <source>Start over at the end</source>
        <translation>Am Ende von vorn beginnen</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>The bar, the caption and the margins around the book.</source>
        <translation>Die Leiste, die Beschriftung und die Ränder um das Buch.</translation>
    </message>
    <message>
        <source>Bar colour</source>
        <translation>Farbe der Leiste</translation>
    </message>
    <message>
        <source>The colour of the bar, the arrows and the row of small pages; the signs on it turn dark or light to suit.</source>
        <translation>Die Farbe der Leiste, der Pfeile und der Reihe kleiner Seiten; die Zeichen darauf werden passend dunkel oder hell.</translation>
    </message>
    <message>
        <source>Hide the bar</source>
        <translation>Leiste verbergen</translation>
    </message>
    <message>
        <source>Readers see no bar and no arrows, and turn pages with pointer, finger or keys.</source>
        <translation>Es gibt weder Leiste noch Pfeile; geblättert wird mit Maus, Finger oder Tasten.</translation>
    </message>
    <message>
        <source>Show no bar and no arrows</source>
        <translation>Ohne Leiste und Pfeile</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>A short text in the lower left corner, or an address that begins with https:// and becomes a link.</source>
        <translation>Ein kurzer Text in der linken unteren Ecke oder eine Adresse, die mit https:// beginnt und zum Link wird.</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen above the inner one.</source>
        <translation>Wie viele Pixel des äußeren Hintergrunds über dem inneren zu sehen sind.</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen below the inner one.</source>
        <translation>Wie viele Pixel des äußeren Hintergrunds unter dem inneren zu sehen sind.</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the left of the inner one.</source>
        <translation>Wie viele Pixel des äußeren Hintergrunds links von dem inneren zu sehen sind.</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the right of the inner one.</source>
        <translation>Wie viele Pixel des äußeren Hintergrunds rechts von dem inneren zu sehen sind.</translation>
    </message>
    <message>
        <source>Outer background</source>
        <translation>Äußerer Hintergrund</translation>
    </message>
    <message>
        <source>What fills the whole window; it is seen where the margins leave it free.</source>
        <translation>Füllt das ganze Fenster; zu sehen, wo die Ränder ihn frei lassen.</translation>
    </message>
    <message>
        <source>First colour</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>The colour in which the background begins.</source>
        <translation>Die Farbe, in der der Hintergrund beginnt.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>The colour into which the first one passes; choose the same twice for a plain background.</source>
        <translation>Die Farbe, in die die erste übergeht; wählen Sie zweimal dieselbe für einen einfarbigen Hintergrund.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Where the second colour lies, in degrees: 0 is at the right, 90 at the bottom, 180 at the left.</source>
        <translation>Wo die zweite Farbe liegt, in Grad: 0 ist rechts, 90 unten, 180 links.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>A picture that lies over the two colours.</source>
        <translation>Ein Bild, das über den beiden Farben liegt.</translation>
    </message>
    <message>
        <source>Picture position</source>
        <translation>Lage des Bilds</translation>
    </message>
    <message>
        <source>Where the picture lies and how it fills the background.</source>
        <translation>Wo das Bild liegt und wie es den Hintergrund füllt.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Inner background</source>
        <translation>Innerer Hintergrund</translation>
    </message>
    <message>
        <source>What the book lies on, inside the margins.</source>
        <translation>Worauf das Buch liegt, innerhalb der Ränder.</translation>
    </message>
    <message>
        <source>Background sound</source>
        <translation>Hintergrundklang</translation>
    </message>
    <message>
        <source>Music or a sound that accompanies the reader.</source>
        <translation>Musik oder ein Klang, der das Lesen begleitet.</translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation>Klangdatei</translation>
    </message>
    <message>
        <source>An MP3 file that begins to play with the reader&apos;s first click or key.</source>
        <translation>Eine MP3-Datei, die beim ersten Klick oder Tastendruck zu spielen beginnt.</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>How many times the sound is played; -1 plays it on and on.</source>
        <translation>Wie oft der Klang gespielt wird; bei -1 ohne Ende.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>What is known of the imported document, to be read only.</source>
        <translation>Was über das importierte Dokument bekannt ist, nur zum Lesen.</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>The width of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>Die Breite der Seiten des Dokuments in Punkt, beim Import festgehalten; ein Buch richtet sich nach seinen Seiten, eine Änderung hier hat deshalb keine Wirkung.</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Seitenhöhe</translation>
    </message>
    <message>
        <source>The height of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>Die Höhe der Seiten des Dokuments in Punkt, beim Import festgehalten; ein Buch richtet sich nach seinen Seiten, eine Änderung hier hat deshalb keine Wirkung.</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Verlag</translation>
    </message>
    <message>
        <source>Your logo and colour, how the book opens, and what readers may take with them; styles leave this as it is.</source>
        <translation>Ihr Logo, Ihre Farbe, wie sich das Buch öffnet und was man daraus mitnehmen kann; Stile ändern daran nichts.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Eigenes Logo</translation>
    </message>
    <message>
        <source>A picture in an upper corner of the window, at most 40 pixels high.</source>
        <translation>Ein Bild in einer oberen Ecke des Fensters, höchstens 40 Pixel hoch.</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>Link des Logos</translation>
    </message>
    <message>
        <source>Where the logo leads: an address that begins with https://, http:// or mailto: (no other is followed).</source>
        <translation>Wohin das Logo führt: eine Adresse, die mit https://, http:// oder mailto: beginnt (andere gelten nicht).</translation>
    </message>
    <message>
        <source>Accent colour</source>
        <translation>Akzentfarbe</translation>
    </message>
    <message>
        <source>The colour of the main buttons and of what is chosen in dialogs; writing on it turns dark or light to suit.</source>
        <translation>Die Farbe der wichtigsten Knöpfe und dessen, was in Dialogen gewählt ist; die Schrift darauf wird passend dunkel oder hell.</translation>
    </message>
    <message>
        <source>First view</source>
        <translation>Erste Ansicht</translation>
    </message>
    <message>
        <source>How the pages lie until a reader chooses otherwise: as it suits the window, one page, or two; phones show what suits them.</source>
        <translation>Wie die Seiten liegen, bis jemand anders wählt: wie es zum Fenster passt, eine Seite oder zwei; Telefone zeigen, was zu ihnen passt.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>Eine Seite</translation>
    </message>
    <message>
        <source>Two pages</source>
        <translation>Zwei Seiten</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Readers can download the imported PDF, with all of its pages. Books in one file, previews and documents that open with a password only never offer it.</source>
        <translation>Das importierte PDF kann heruntergeladen werden, mit allen seinen Seiten. Bücher in einer Datei, Leseproben und Dokumente mit Passwort bieten es nie an.</translation>
    </message>
    <message>
        <source>Offer the PDF for download</source>
        <translation>PDF zum Herunterladen anbieten</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Knöpfe</translation>
    </message>
    <message>
        <source>What the bar offers to readers. A button that is not shown has no key either; styles leave this as it is.</source>
        <translation>Was die Leiste anbietet. Ein Knopf, der nicht gezeigt wird, hat auch keine Taste; Stile ändern daran nichts.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The table of contents, of web books.</source>
        <translation>Das Inhaltsverzeichnis, in Webbüchern.</translation>
    </message>
    <message>
        <source>Show the button</source>
        <translation>Knopf zeigen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>The search, of web books.</source>
        <translation>Die Suche, in Webbüchern.</translation>
    </message>
    <message>
        <source>Reading view</source>
        <translation>Leseansicht</translation>
    </message>
    <message>
        <source>The text as a page to scroll, of web books.</source>
        <translation>Der Text als Seite zum Scrollen, in Webbüchern.</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Lesezeichen und Notizen</translation>
    </message>
    <message>
        <source>Bookmarks, highlights and notes that readers keep in their browser, of web books.</source>
        <translation>Lesezeichen, Hervorhebungen und Notizen, die Leser in ihrem Browser behalten, in Webbüchern.</translation>
    </message>
    <message>
        <source>Show the buttons</source>
        <translation>Knöpfe zeigen</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Seitenübersicht</translation>
    </message>
    <message>
        <source>The row of small pages.</source>
        <translation>Die Reihe kleiner Seiten.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Enlarging by button and key; a double click or two fingers always enlarge.</source>
        <translation>Vergrößern mit Knopf und Taste; Doppelklick und zwei Finger vergrößern immer.</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>The choice of one page or two, and of the paper.</source>
        <translation>Die Wahl zwischen einer Seite und zweien, und des Papiers.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Turning pages by itself.</source>
        <translation>Das Blättern von selbst.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>The switch for sounds.</source>
        <translation>Der Schalter für Geräusche.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>The link to the page that is shown.</source>
        <translation>Der Link zu der Seite, die gezeigt wird.</translation>
    </message>
    <message>
        <source>Keep offline</source>
        <translation>Offline behalten</translation>
    </message>
    <message>
        <source>Keeping a web book to read it without a connection.</source>
        <translation>Ein Webbuch behalten, um es ohne Verbindung zu lesen.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Printing pages; the command of the browser still prints those in view.</source>
        <translation>Seiten drucken; der Befehl des Browsers druckt weiterhin die gezeigten.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Reading in full screen.</source>
        <translation>Lesen im Vollbild.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The list of keys and gestures.</source>
        <translation>Die Liste der Tasten und Gesten.</translation>
    </message>
</context>
<context>
    <name>TmplStylePainter</name>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>TmplStylesModel</name>
    <message>
        <source>A style of your own</source>
        <translation>Ein eigener Stil</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>A colour: #RRGGBB, 0xRRGGBB, or an English name such as “red”.</source>
        <translation>Eine Farbe: #RRGGBB, 0xRRGGBB oder ein englischer Name wie „red“.</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Books are made without it.</source>
        <translation>Die Datei %1 gibt es nicht. Bücher werden ohne sie gemacht.</translation>
    </message>
    <message>
        <source>A number.</source>
        <translation>Eine Zahl.</translation>
    </message>
    <message>
        <source>A number from %1 to %2%3.</source>
        <extracomment>%1 and %2 are numbers, %3 is a unit with a space before it, or nothing.</extracomment>
        <translation>Eine Zahl von %1 bis %2%3.</translation>
    </message>
</context>
<context>
    <name>XMLParser</name>
    <message>
        <source>Could not allocate memory</source>
        <translation>Nicht genug Speicher</translation>
    </message>
    <message>
        <source>Internal error occurred</source>
        <translation>Interner Fehler</translation>
    </message>
    <message>
        <source>Could not determine tag type</source>
        <translation>Unbekannte Art von Tag</translation>
    </message>
    <message>
        <source>Error parsing document declaration/processing instruction</source>
        <translation>Fehler in der Deklaration oder einer Verarbeitungsanweisung</translation>
    </message>
    <message>
        <source>Error parsing comment</source>
        <translation>Fehler in einem Kommentar</translation>
    </message>
    <message>
        <source>Error parsing CDATA section</source>
        <translation>Fehler in einem CDATA-Abschnitt</translation>
    </message>
    <message>
        <source>Error parsing document type declaration</source>
        <translation>Fehler in der Dokumenttypdeklaration</translation>
    </message>
    <message>
        <source>Error parsing PCDATA section</source>
        <translation>Fehler in einem PCDATA-Abschnitt</translation>
    </message>
    <message>
        <source>Error parsing start element tag</source>
        <translation>Fehler in einem Start-Tag</translation>
    </message>
    <message>
        <source>Error parsing element attribute</source>
        <translation>Fehler in einem Attribut</translation>
    </message>
    <message>
        <source>Error parsing end element tag</source>
        <translation>Fehler in einem End-Tag</translation>
    </message>
    <message>
        <source>Start-end tags mismatch</source>
        <translation>Start- und End-Tag passen nicht zusammen</translation>
    </message>
    <message>
        <source>No document element found</source>
        <translation>Kein Wurzelelement gefunden</translation>
    </message>
</context>
<context>
    <name>ZipReader</name>
    <message>
        <source>is damaged</source>
        <translation>ist beschädigt</translation>
    </message>
    <message>
        <source>has far too much in it</source>
        <translation>enthält viel zu viel</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>ist keine Datei</translation>
    </message>
    <message>
        <source>is no ZIP archive, or not all of one</source>
        <translation>ist kein ZIP-Archiv oder nur ein Teil davon</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Turns PDF files into page-flip books.</source>
        <translation>Macht aus PDF-Dateien Bücher zum Blättern.</translation>
    </message>
    <message>
        <source>A PDF file to import, or a project to open.</source>
        <translation>Eine PDF-Datei zum Importieren oder ein Projekt zum Öffnen.</translation>
    </message>
</context>
</TS>
