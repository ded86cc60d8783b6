<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BrisleafAppDelegate</name>
    <message>
        <source>The preview could not be brought up to date.</source>
        <translation>Impossibile aggiornare l’anteprima.</translation>
    </message>
    <message>
        <source>The preview has stopped working.</source>
        <translation>L’anteprima ha smesso di funzionare.</translation>
    </message>
    <message>
        <source>Press F5 to load it again. Your book is not affected.</source>
        <translation>Premere F5 per ricaricarla. Il libro non ne risente.</translation>
    </message>
    <message>
        <source>Not everything could be imported.</source>
        <translation>Non è stato possibile importare tutto.</translation>
    </message>
    <message>
        <source>The settings were not saved to %1.</source>
        <translation>Le impostazioni non sono state salvate in %1.</translation>
    </message>
    <message>
        <source>The settings were not loaded.</source>
        <translation>Le impostazioni non sono state caricate.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Impossibile leggere il file %1.</translation>
    </message>
    <message>
        <source>loading of settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>caricamento delle impostazioni</translation>
    </message>
    <message>
        <source>The help cannot be opened.</source>
        <translation>Impossibile aprire la guida.</translation>
    </message>
    <message>
        <source>The file %1 is missing.</source>
        <translation>Manca il file %1.</translation>
    </message>
    <message>
        <source>The template “%1” is damaged.</source>
        <translation>Il modello «%1» è danneggiato.</translation>
    </message>
    <message>
        <source>PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf</source>
        <extracomment>The help in your language; keep the path as it is until there is one.</extracomment>
        <translation>PDF to Folvero for mac Help/PDF to Folvero for Mac.it.pdf</translation>
    </message>
    <message>
        <source>Press “Apply” to try again.</source>
        <translation>Premere «Applica» per riprovare.</translation>
    </message>
    <message>
        <source>These files are missing. The book is shown without them.</source>
        <translation>Questi file mancano. Il libro viene mostrato senza.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields.</source>
        <translation>Sceglierne altri nelle impostazioni, oppure svuotare i campi.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings. Choose one that was made with “Save look”.</source>
        <translation>Il file %1 non contiene impostazioni. Sceglierne uno creato con «Salva aspetto».</translation>
    </message>
    <message>
        <source>choice of template</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>scelta del modello</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Il libro non è stato pubblicato.</translation>
    </message>
    <message>
        <source>%1: is a project; open it alone</source>
        <translation>%1: è un progetto; aprirlo da solo</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Non è stato importato nulla.</translation>
    </message>
</context>
<context>
    <name>CommonCryptoErrorDomain</name>
    <message>
        <source>Success</source>
        <translation>Operazione riuscita</translation>
    </message>
    <message>
        <source>Parameter Error</source>
        <translation>Errore nei parametri</translation>
    </message>
    <message>
        <source>Illegal parameter supplied to encryption/decryption algorithm</source>
        <translation>Parametro non valido per l’algoritmo di cifratura o decifratura</translation>
    </message>
    <message>
        <source>Buffer Too Small</source>
        <translation>Buffer troppo piccolo</translation>
    </message>
    <message>
        <source>Insufficient buffer provided for specified operation</source>
        <translation>Il buffer fornito non basta per l’operazione</translation>
    </message>
    <message>
        <source>Memory Failure</source>
        <translation>Errore di memoria</translation>
    </message>
    <message>
        <source>Failed to allocate memory</source>
        <translation>Impossibile allocare la memoria</translation>
    </message>
    <message>
        <source>Alignment Error</source>
        <translation>Errore di allineamento</translation>
    </message>
    <message>
        <source>Input size to encryption algorithm was not aligned correctly</source>
        <translation>I dati forniti all’algoritmo di cifratura non sono allineati correttamente</translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation>Errore di decodifica</translation>
    </message>
    <message>
        <source>Input data did not decode or decrypt correctly</source>
        <translation>I dati forniti non sono stati decodificati o decifrati correttamente</translation>
    </message>
    <message>
        <source>Unimplemented Function</source>
        <translation>Funzione non implementata</translation>
    </message>
    <message>
        <source>Function not implemented for the current algorithm</source>
        <translation>Funzione non implementata per l’algoritmo in uso</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>Errore sconosciuto</translation>
    </message>
</context>
<context>
    <name>DropHint</name>
    <message>
        <source>Only PDFs, pictures and documents that LibreOffice can open become a book.</source>
        <translation>Solo i PDF, le immagini e i documenti che LibreOffice può aprire diventano un libro.</translation>
    </message>
    <message>
        <source>Drop the project here to open it.</source>
        <translation>Rilasciare qui il progetto per aprirlo.</translation>
    </message>
    <message>
        <source>Drop it here to make a book of it.</source>
        <translation>Rilasciarlo qui per farne un libro.</translation>
    </message>
    <message>
        <source>Drop them here to make one book of them, in the order of their names.</source>
        <translation>Rilasciarli qui per farne un solo libro, nell’ordine dei loro nomi.</translation>
    </message>
    <message>
        <source>Drop here to make a new book.</source>
        <translation>Rilasciare qui per creare un nuovo libro.</translation>
    </message>
    <message>
        <source>Drop here to add to “%1”.</source>
        <translation>Rilasciare qui per aggiungere a «%1».</translation>
    </message>
</context>
<context>
    <name>FileToSave</name>
    <message>
        <source>Replace %1?</source>
        <translation>Sostituire %1?</translation>
    </message>
    <message>
        <source>A file of this name is already in the folder. What is in it would be lost.</source>
        <translation>Nella cartella esiste già un file con questo nome. Il suo contenuto andrebbe perso.</translation>
    </message>
</context>
<context>
    <name>FlashPagesAnnotationsPDF</name>
    <message>
        <source>no page at position %1</source>
        <translation>nessuna pagina alla posizione %1</translation>
    </message>
</context>
<context>
    <name>FlashTemplate</name>
    <message>
        <source>Can&apos;t create an URL from file %1.</source>
        <translation>Impossibile creare un URL dal file %1.</translation>
    </message>
    <message>
        <source>Can&apos;t load the template file &quot;%1&quot;: %2</source>
        <translation>Impossibile caricare il file del modello «%1»: %2</translation>
    </message>
</context>
<context>
    <name>FlashTemplateModel</name>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What a screen reader says: the name of a setting and its value.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <extracomment>What a screen reader says of a setting that is not as the template has it; %1 is its name and value.</extracomment>
        <translation>%1, modificata</translation>
    </message>
</context>
<context>
    <name>FlashTemplateOutlineDelegate</name>
    <message>
        <source>(Untitled)</source>
        <translation>(senza titolo)</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>(sconosciuto)</translation>
    </message>
</context>
<context>
    <name>FolveroOutput</name>
    <message>
        <source>%1: There is no such folder</source>
        <translation>%1: questa cartella non esiste</translation>
    </message>
    <message>
        <source>There is a folder of that name</source>
        <translation>Esiste una cartella con questo nome</translation>
    </message>
    <message>
        <source>the player is not installed</source>
        <translation>il player non è installato</translation>
    </message>
    <message>
        <source>As one file the book would have %1 MB, and the most is %2 MB. Import fewer pages or choose the smallest files, or publish it as a folder</source>
        <translation>In un unico file il libro occuperebbe %1 MB, ma il massimo è %2 MB. Importare meno pagine, scegliere i file più piccoli oppure pubblicarlo come cartella</translation>
    </message>
    <message>
        <source>The page with the book&apos;s text has that name</source>
        <translation>La pagina con il testo del libro ha già questo nome</translation>
    </message>
    <message>
        <source>%1: the page of the template &quot;%2&quot; is missing, empty, not readable, or outside of the templates&apos; folder</source>
        <extracomment>%1 is a file, %2 the template&apos;s name</extracomment>
        <translation>%1: la pagina del modello «%2» manca, è vuota, non è leggibile o si trova fuori dalla cartella dei modelli</translation>
    </message>
    <message>
        <source>%1: is missing; the program is not installed completely</source>
        <translation>%1: manca; il programma non è installato completamente</translation>
    </message>
    <message>
        <source>it was changed while the book was published</source>
        <translation>è stato modificato durante la pubblicazione del libro</translation>
    </message>
    <message>
        <source>%1; earlier files are in %2, and the next publish tries to put them back</source>
        <translation>%1; i file precedenti sono in %2 e la prossima pubblicazione tenterà di rimetterli al loro posto</translation>
    </message>
    <message>
        <source>Earlier files of the book are in it and can&apos;t be put back</source>
        <translation>Contiene file precedenti del libro che non possono essere rimessi al loro posto</translation>
    </message>
</context>
<context>
    <name>FolveroOutputWeb</name>
    <message>
        <source>a book in one file has no other files</source>
        <translation>un libro in un unico file non ha altri file</translation>
    </message>
    <message>
        <source>it has the pages that a reading sample leaves out</source>
        <translation>contiene le pagine che l’estratto esclude</translation>
    </message>
</context>
<context>
    <name>ImportPDFOperation</name>
    <message>
        <source>%1: none of the pages asked for is in it</source>
        <translation>%1: non contiene nessuna delle pagine richieste</translation>
    </message>
    <message>
        <source>%1: none of the pages could be drawn (%2)</source>
        <translation>%1: non è stato possibile disegnare nessuna delle pagine (%2)</translation>
    </message>
    <message>
        <source>%1: links: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its links.</extracomment>
        <translation>%1: link: %2</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>pagina %1: %2</translation>
    </message>
    <message>
        <source>page %1 and %2 more: %3</source>
        <translation>pagina %1 e altre %2: %3</translation>
    </message>
    <message>
        <source>%1: bookmarks: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its bookmarks.</extracomment>
        <translation>%1: segnalibri: %2</translation>
    </message>
    <message>
        <source>%1: the document has no pages; the file may be incomplete</source>
        <translation>%1: il documento non ha pagine; il file potrebbe essere incompleto</translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>Import a PDF</source>
        <translation>Importa un PDF</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message>
        <source>Best, for zooming in</source>
        <extracomment>The quality of the pictures of the pages, from the best to the worst.</extracomment>
        <translation>Massima, per ingrandire</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Smallest files</source>
        <translation>File più piccoli</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>Importa i &amp;link</translation>
    </message>
    <message>
        <source>Import &amp;bookmarks as contents</source>
        <translation>Importa i segnali&amp;bri come indice</translation>
    </message>
    <message>
        <source>&amp;PDF file:</source>
        <translation>File &amp;PDF:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pagine:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>Q&amp;ualità:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Scegli…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>Opens the chosen PDF in another program.</extracomment>
        <translation>&amp;Mostra</translation>
    </message>
    <message>
        <source>Opens the PDF in the program that usually shows it</source>
        <translation>Apre il PDF nel programma che lo mostra di solito</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <extracomment>All pages are imported.</extracomment>
        <translation>&amp;Tutte</translation>
    </message>
    <message>
        <source>&amp;These:</source>
        <extracomment>A field for page numbers follows.</extracomment>
        <translation>&amp;Queste:</translation>
    </message>
    <message>
        <source>for example 1-3,7</source>
        <translation>ad esempio 1-3,7</translation>
    </message>
    <message>
        <source>Pages to import</source>
        <translation>Pagine da importare</translation>
    </message>
    <message>
        <source>Split where found</source>
        <extracomment>What becomes of pages that show two pages of a printed book side by side.</extracomment>
        <translation>Dividi dove riconosciute</translation>
    </message>
    <message>
        <source>Split all landscape pages</source>
        <translation>Dividi tutte le pagine orizzontali</translation>
    </message>
    <message>
        <source>Keep whole</source>
        <translation>Lascia intere</translation>
    </message>
    <message>
        <source>&amp;Double pages:</source>
        <translation>Pagine &amp;doppie:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 and %n more</source>
        <extracomment>As above, with some of the names.</extracomment>
        <translation>
            <numerusform>e %1 e %n altro</numerusform>
            <numerusform>e %1 e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>Beneath the path of a file: those that are imported with it. %1 is a list of names.</extracomment>
        <translation>e %1</translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message>
        <source>Importing:%1/%2</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages.</extracomment>
        <translation>Importazione: %1/%2</translation>
    </message>
    <message>
        <source>Page %1 could not be drawn: %2</source>
        <translation>Impossibile disegnare la pagina %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn.</source>
        <translation>
            <numerusform>Impossibile disegnare %n altra pagina.</numerusform>
            <numerusform>Impossibile disegnare altre %n pagine.</numerusform>
        </translation>
    </message>
    <message>
        <source>Page %1 could not be drawn completely: %2</source>
        <translation>Impossibile disegnare completamente la pagina %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn completely.</source>
        <translation>
            <numerusform>Impossibile disegnare completamente %n altra pagina.</numerusform>
            <numerusform>Impossibile disegnare completamente altre %n pagine.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a PDF document.</source>
        <translation>Scegliere un documento PDF.</translation>
    </message>
    <message>
        <source>Choose another document.</source>
        <translation>Scegliere un altro documento.</translation>
    </message>
    <message>
        <source>Choose other pages or another document.</source>
        <translation>Scegliere altre pagine o un altro documento.</translation>
    </message>
    <message>
        <source>Try again, or choose another document.</source>
        <translation>Riprovare, oppure scegliere un altro documento.</translation>
    </message>
    <message>
        <source>“%1” was imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«%1» è stato importato.</translation>
    </message>
    <message>
        <source>“%1” was not imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«%1» non è stato importato.</translation>
    </message>
    <message>
        <source>Preparing the document…</source>
        <translation>Preparazione del documento…</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were imported.</source>
        <translation>
            <numerusform>%n file è stato importato.</numerusform>
            <numerusform>%n file sono stati importati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were not imported.</source>
        <translation>
            <numerusform>%n file non è stato importato.</numerusform>
            <numerusform>%n file non sono stati importati.</numerusform>
        </translation>
    </message>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice sta creando le pagine…</translation>
    </message>
</context>
<context>
    <name>InputFiles</name>
    <message>
        <source>has no PDF and no picture</source>
        <translation>non contiene né PDF né immagini</translation>
    </message>
    <message>
        <source>is no PDF, no picture and no document that LibreOffice turns into a PDF</source>
        <translation>non è un PDF, né un’immagine, né un documento che LibreOffice converte in PDF</translation>
    </message>
    <message>
        <source>is not on this computer; save it here first</source>
        <translation>non è su questo computer; prima salvarlo qui</translation>
    </message>
</context>
<context>
    <name>JobProgress</name>
    <message>
        <source>%1 %</source>
        <extracomment>Share of a job that is done.</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 is a percentage, %2 the time that is left.</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>meno di un minuto alla fine</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>circa %n minuto alla fine</numerusform>
            <numerusform>circa %n minuti alla fine</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>circa %n ora alla fine</numerusform>
            <numerusform>circa %n ore alla fine</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>&amp;Importa PDF…</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Importa PDF</translation>
    </message>
    <message>
        <source>Make the book from a PDF document</source>
        <translation>Crea il libro da un documento PDF</translation>
    </message>
    <message>
        <source>&amp;Publish the book…</source>
        <translation>&amp;Pubblica il libro…</translation>
    </message>
    <message>
        <source>Publish</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Pubblica</translation>
    </message>
    <message>
        <source>Write the finished book into a folder of your choice</source>
        <translation>Scrive il libro finito in una cartella a scelta</translation>
    </message>
    <message>
        <source>Load settings that were saved to a file</source>
        <translation>Carica le impostazioni salvate in un file</translation>
    </message>
    <message>
        <source>Save the settings to a file, to use them for other books</source>
        <translation>Salva le impostazioni in un file, per usarle con altri libri</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Apply the changes</source>
        <translation>A&amp;pplica le modifiche</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Show the changed settings in the preview</source>
        <translation>Mostra nell’anteprima le impostazioni modificate</translation>
    </message>
    <message>
        <source>Choose a &amp;template…</source>
        <translation>Scegli un &amp;modello…</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>Give the book another look</source>
        <translation>Dà al libro un altro aspetto</translation>
    </message>
    <message>
        <source>&amp;Reload the preview</source>
        <translation>&amp;Ricarica l’anteprima</translation>
    </message>
    <message>
        <source>Folvero &amp;help</source>
        <translation>&amp;Guida di Folvero</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Guida</translation>
    </message>
    <message>
        <source>&amp;About Folvero</source>
        <translation>&amp;Informazioni su Folvero</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Annulla %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Ripeti %1</translation>
    </message>
    <message>
        <source>Like the &amp;system</source>
        <extracomment>The window is light or dark; this is one of the choices.</extracomment>
        <translation>Come il &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Chiaro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>Sc&amp;uro</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Aspetto</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Tools</source>
        <extracomment>The name of the toolbar.</extracomment>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Svuota l’elenco</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Inizia un nuovo progetto</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>Open a project that was saved</source>
        <translation>Apri un progetto salvato</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Save the project, to go on with the book later</source>
        <translation>Salva il progetto, per continuare il libro più tardi</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Salva il progetto con un altro nome</translation>
    </message>
    <message>
        <source>Pa&amp;ges…</source>
        <translation>Pa&amp;gine…</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Arrange, turn, remove and insert pages</source>
        <translation>Ordina, ruota, togli e inserisci pagine</translation>
    </message>
    <message>
        <source>&amp;Load look…</source>
        <translation>Carica aspe&amp;tto…</translation>
    </message>
    <message>
        <source>Save loo&amp;k…</source>
        <translation>Sal&amp;va aspetto…</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>&amp;Cerca un’impostazione</translation>
    </message>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Ripristina il valore pre&amp;definito</translation>
    </message>
    <message>
        <source>R&amp;eset all settings</source>
        <translation>Ripristina &amp;tutte le impostazioni</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Apri &amp;recenti</translation>
    </message>
    <message>
        <source>Save as a st&amp;yle…</source>
        <translation>Salva come sti&amp;le…</translation>
    </message>
    <message>
        <source>Keep the settings as a style of your own among the templates</source>
        <translation>Conserva le impostazioni come stile personale tra i modelli</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Settings of the template</source>
        <translation>Impostazioni del modello</translation>
    </message>
    <message>
        <source>Template of the book</source>
        <translation>Modello del libro</translation>
    </message>
    <message>
        <source>The template of the book; click to choose another</source>
        <translation>Il modello del libro; fare clic per sceglierne un altro</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>Selezionare un’impostazione per leggere che cosa fa.</translation>
    </message>
    <message>
        <source>What the selected setting does</source>
        <translation>Che cosa fa l’impostazione selezionata</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Above the explanation of the selected setting, while none is selected.</extracomment>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Demo book</source>
        <translation>Libro dimostrativo</translation>
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
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Chiudi il messaggio</translation>
    </message>
</context>
<context>
    <name>NameWindow</name>
    <message>
        <source>&amp;Name of the style:</source>
        <translation>&amp;Nome dello stile:</translation>
    </message>
</context>
<context>
    <name>OfficeDocument</name>
    <message>
        <source>needs LibreOffice, which is not installed</source>
        <translation>richiede LibreOffice, che non è installato</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>è stato annullato</translation>
    </message>
    <message>
        <source>LibreOffice takes too long for it</source>
        <translation>LibreOffice impiega troppo tempo a convertirlo</translation>
    </message>
    <message>
        <source>LibreOffice can&apos;t make a PDF of it</source>
        <translation>LibreOffice non può farne un PDF</translation>
    </message>
</context>
<context>
    <name>OfficePages</name>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice sta creando le pagine…</translation>
    </message>
</context>
<context>
    <name>OutputWindow</name>
    <message>
        <source>Publish the book</source>
        <translation>Pubblica il libro</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Pubblica</translation>
    </message>
    <message>
        <source>without an ending, for example index</source>
        <extracomment>Shown in the empty field for the file&apos;s name.</extracomment>
        <translation>senza estensione, ad esempio index</translation>
    </message>
    <message>
        <source>shown in the browser&apos;s window</source>
        <extracomment>Shown in the empty field for the book&apos;s title.</extracomment>
        <translation>mostrato nella finestra del browser</translation>
    </message>
    <message>
        <source>Kind of book:</source>
        <translation>Tipo di libro:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome del file:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titolo:</translation>
    </message>
    <message>
        <source>C&amp;lassic (pictures only)</source>
        <translation>Cl&amp;assico (solo immagini)</translation>
    </message>
    <message>
        <source>Application for the &amp;Mac</source>
        <translation>Applicazione per &amp;Mac</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Scegli…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <extracomment>Shows the chosen folder in the file manager.</extracomment>
        <translation>Most&amp;ra</translation>
    </message>
    <message>
        <source>Opens the folder in the file manager</source>
        <translation>Apre la cartella nel gestore dei file</translation>
    </message>
    <message>
        <source>&amp;Embed:</source>
        <extracomment>Markup that shows the book inside another page.</extracomment>
        <translation>&amp;Incorpora:</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>C&amp;opia</translation>
    </message>
    <message>
        <source>Copies the text for embedding the book</source>
        <translation>Copia il testo per incorporare il libro</translation>
    </message>
    <message>
        <source>Copy the text for embedding</source>
        <translation>Copia il testo da incorporare</translation>
    </message>
    <message>
        <source>Web &amp;book</source>
        <translation>Libro &amp;web</translation>
    </message>
    <message>
        <source>For a web site: with contents, search and links; opens page by page</source>
        <translation>Per un sito web: con indice, ricerca e link; si apre pagina per pagina</translation>
    </message>
    <message>
        <source>Web book in &amp;one file</source>
        <translation>Libro web in un &amp;unico file</translation>
    </message>
    <message>
        <source>To send by mail or to open from a memory stick</source>
        <translation>Da inviare per e-mail o da aprire da una chiavetta USB</translation>
    </message>
    <message>
        <source>For a quick look: made in less time, without contents, search and links</source>
        <translation>Per un’occhiata: pronto più in fretta, senza indice, ricerca e link</translation>
    </message>
    <message>
        <source>For people with a Mac: one file that opens with a double-click</source>
        <translation>Per chi ha un Mac: un file che si apre con un doppio clic</translation>
    </message>
    <message>
        <source>Mo&amp;re options</source>
        <extracomment>Shows further fields beneath it.</extracomment>
        <translation>A&amp;ltre opzioni</translation>
    </message>
    <message>
        <source>for example https://example.org/book/</source>
        <extracomment>Shown in the empty field for the book&apos;s address on the web.</extracomment>
        <translation>ad esempio https://example.org/libro/</translation>
    </message>
    <message>
        <source>Where the book will be on the web: for search engines, previews of links, “Copy link” and the text for embedding</source>
        <translation>Dove si troverà il libro sul web: per i motori di ricerca, le anteprime dei link, «Copia il link» e il testo da incorporare</translation>
    </message>
    <message>
        <source>all pages, or for example 1-12</source>
        <extracomment>Shown in the empty field for the pages of a reading sample.</extracomment>
        <translation>tutte le pagine, oppure ad esempio 1-12</translation>
    </message>
    <message>
        <source>The pages that can be read, by their numbers in the document; the book contains nothing of the others</source>
        <translation>Le pagine che si possono leggere, secondo i loro numeri nel documento; il libro non contiene nulla delle altre</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <extracomment>The book&apos;s address on the web.</extracomment>
        <translation>In&amp;dirizzo:</translation>
    </message>
    <message>
        <source>Rea&amp;ding sample:</source>
        <extracomment>Some of the book&apos;s pages, as a foretaste.</extracomment>
        <translation>&amp;Estratto:</translation>
    </message>
    <message>
        <source>Shows the book inside another page: put this into that page. %1 stands for the book&apos;s address until that is given above.</source>
        <translation>Mostra il libro in un’altra pagina: inserire questo testo in quella pagina. %1 sta per l’indirizzo del libro finché non viene indicato sopra.</translation>
    </message>
</context>
<context>
    <name>OutputWindowDelegate</name>
    <message>
        <source>The book was not published</source>
        <translation>Il libro non è stato pubblicato</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>Aprire il libro pubblicato?</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>Pubblicazione completata. Aprire il libro?</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <extracomment>The button of a panel that asks for a folder.</extracomment>
        <translation>Scegli cartella</translation>
    </message>
    <message>
        <source>The book is not complete</source>
        <translation>Il libro non è completo</translation>
    </message>
    <message>
        <source>These pages have no picture and stay empty: %1. If the document itself is sound, import it again, then publish once more.</source>
        <translation>Queste pagine non hanno immagine e restano vuote: %1. Se il documento in sé è integro, importarlo di nuovo, poi ripetere la pubblicazione.</translation>
    </message>
    <message>
        <source>Replace what is already there?</source>
        <translation>Sostituire ciò che c’è già?</translation>
    </message>
    <message>
        <source>This is not part of a book and would be lost:</source>
        <translation>Quanto segue non fa parte di un libro e andrebbe perso:</translation>
    </message>
    <message>
        <source>The book in %1 would be lost.</source>
        <translation>Il libro in %1 andrebbe perso.</translation>
    </message>
    <message>
        <source>The book “%1” in %2 would be lost.</source>
        <translation>Il libro «%1» in %2 andrebbe perso.</translation>
    </message>
    <message>
        <source>Include the document&apos;s text?</source>
        <translation>Includere il testo del documento?</translation>
    </message>
    <message>
        <source>The document forbids copying its text. Without text the book can&apos;t be searched, and its words can&apos;t be selected or read aloud.</source>
        <translation>Il documento vieta di copiarne il testo. Senza testo non è possibile fare ricerche nel libro, né selezionarne le parole o farle leggere ad alta voce.</translation>
    </message>
    <message>
        <source>Readers can&apos;t download the document</source>
        <translation>I lettori non possono scaricare il documento</translation>
    </message>
    <message>
        <source>The settings offer it for download, but %1.</source>
        <extracomment>%1 is a reason, such as &quot;it opens with a password only&quot;</extracomment>
        <translation>Le impostazioni lo offrono da scaricare, ma %1.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>Impossibile creare la cartella %1: %2</translation>
    </message>
    <message>
        <source>Choose another folder, or make room in this one, and publish again: what you have typed is kept.</source>
        <translation>Scegliere un’altra cartella, oppure liberare spazio in questa, e pubblicare di nuovo: quanto inserito viene conservato.</translation>
    </message>
    <message>
        <source>These files are missing. The book was published without them.</source>
        <translation>Questi file mancano. Il libro è stato pubblicato senza.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields, and publish again.</source>
        <translation>Sceglierne altri nelle impostazioni, oppure svuotare i campi, e pubblicare di nuovo.</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>Il libro non è stato pubblicato.</translation>
    </message>
    <message>
        <source>The book was published.</source>
        <extracomment>A notification of the desktop, for users who look elsewhere.</extracomment>
        <translation>Il libro è stato pubblicato.</translation>
    </message>
    <message>
        <source>The address must be that of a folder or page, such as https://example.org/book/, without “?” and “#”.</source>
        <translation>L’indirizzo deve essere quello di una cartella o di una pagina, come https://example.org/libro/, senza «?» e «#».</translation>
    </message>
</context>
<context>
    <name>OwnStyles</name>
    <message>
        <source>The template itself has a style “%1”. Choose another name.</source>
        <translation>Il modello stesso ha uno stile «%1». Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Digitare un nome.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, contain a slash, or be very long.</source>
        <translation>Un nome non può iniziare con un punto, contenere una barra o essere molto lungo.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings.</source>
        <translation>Il file %1 non contiene impostazioni.</translation>
    </message>
    <message>
        <source>There is a style “%1” already. Choose another name.</source>
        <translation>Esiste già uno stile «%1». Scegliere un altro nome.</translation>
    </message>
</context>
<context>
    <name>PDFDocument</name>
    <message>
        <source>page %1 does not exist; the document has %2</source>
        <translation>la pagina %1 non esiste; il documento ne ha %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>questo file non esiste</translation>
    </message>
    <message>
        <source>is a folder, not a PDF file</source>
        <translation>è una cartella, non un file PDF</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a PDF file</source>
        <translation>è una pipe o un dispositivo, non un file PDF</translation>
    </message>
    <message>
        <source>can&apos;t be read (%1)</source>
        <translation>non può essere letto (%1)</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>is not a PDF document</source>
        <translation>non è un documento PDF</translation>
    </message>
    <message>
        <source>is damaged beyond repair (%1)</source>
        <translation>è danneggiato in modo irreparabile (%1)</translation>
    </message>
    <message>
        <source>is protected by a password</source>
        <translation>è protetto da password</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>la password è errata</translation>
    </message>
    <message>
        <source>the file was changed after reading it had begun</source>
        <translation>il file è stato modificato dopo l’inizio della lettura</translation>
    </message>
    <message>
        <source>is encrypted in an unknown way (%1)</source>
        <translation>è cifrato in un modo sconosciuto (%1)</translation>
    </message>
    <message>
        <source>its pages can&apos;t be found (%1)</source>
        <translation>impossibile trovarne le pagine (%1)</translation>
    </message>
    <message>
        <source>was changed while it was read</source>
        <translation>è stato modificato durante la lettura</translation>
    </message>
    <message>
        <source>can&apos;t be merged with others (%1)</source>
        <translation>non può essere unito ad altri (%1)</translation>
    </message>
    <message>
        <source>is too damaged to be merged with others</source>
        <translation>è troppo danneggiato per essere unito ad altri</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>non ha una pagina %1</translation>
    </message>
    <message>
        <source>is neither a PDF nor a picture</source>
        <translation>non è né un PDF né un’immagine</translation>
    </message>
    <message>
        <source>the picture can&apos;t be read (%1)</source>
        <translation>impossibile leggere l’immagine (%1)</translation>
    </message>
</context>
<context>
    <name>PDFReader</name>
    <message>
        <source>what was read of it makes no sense</source>
        <translation>i dati letti non hanno senso</translation>
    </message>
    <message>
        <source>the program that reads PDF files broke off at it</source>
        <translation>il programma che legge i file PDF si è interrotto su questo file</translation>
    </message>
    <message>
        <source>reading it was stopped</source>
        <translation>la lettura è stata interrotta</translation>
    </message>
    <message>
        <source>reading it took too long</source>
        <translation>la lettura ha richiesto troppo tempo</translation>
    </message>
    <message>
        <source>the program that reads PDF files can&apos;t be started</source>
        <translation>impossibile avviare il programma che legge i file PDF</translation>
    </message>
</context>
<context>
    <name>PageFailure</name>
    <message>
        <source>drawing it was stopped</source>
        <translation>il disegno è stato interrotto</translation>
    </message>
    <message>
        <source>drawing it took too long</source>
        <translation>il disegno ha richiesto troppo tempo</translation>
    </message>
    <message>
        <source>the program that draws pages ended at this page</source>
        <translation>il programma che disegna le pagine si è interrotto a questa pagina</translation>
    </message>
    <message>
        <source>it takes more memory than a page may have</source>
        <translation>richiede più memoria di quella consentita per una pagina</translation>
    </message>
    <message>
        <source>the program that draws pages can&apos;t be started</source>
        <translation>impossibile avviare il programma che disegna le pagine</translation>
    </message>
    <message>
        <source>it was not drawn</source>
        <translation>non è stata disegnata</translation>
    </message>
    <message>
        <source>an image can&apos;t be read completely</source>
        <translation>impossibile leggere completamente un’immagine</translation>
    </message>
    <message>
        <source>a font can&apos;t be read</source>
        <translation>impossibile leggere un carattere</translation>
    </message>
    <message>
        <source>some of its data is damaged</source>
        <translation>una parte dei suoi dati è danneggiata</translation>
    </message>
    <message>
        <source>the program that draws pages wrote more than pages need</source>
        <translation>il programma che disegna le pagine ha scritto più di quanto serva alle pagine</translation>
    </message>
    <message>
        <source>the program that draws pages wrote a file that is none of a page</source>
        <translation>il programma che disegna le pagine ha scritto un file che non è quello di una pagina</translation>
    </message>
</context>
<context>
    <name>PageListText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>A run of page numbers.</extracomment>
        <translation>%1-%2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>Follows page numbers.</extracomment>
        <translation>
            <numerusform>e %n altra</numerusform>
            <numerusform>e altre %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageRange</name>
    <message>
        <source>the page range &quot;%1&quot; names %2 pages</source>
        <translation>l’intervallo di pagine «%1» comprende %2 pagine</translation>
    </message>
</context>
<context>
    <name>PagesModel</name>
    <message numerus="yes">
        <source>turning of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>rotazione di %n pagina</numerusform>
            <numerusform>rotazione di %n pagine</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removal of %n page(s)</source>
        <translation>
            <numerusform>rimozione di %n pagina</numerusform>
            <numerusform>rimozione di %n pagine</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>spostamento di %n pagina</numerusform>
            <numerusform>spostamento di %n pagine</numerusform>
        </translation>
    </message>
    <message>
        <source>blank page</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>inserimento di una pagina vuota</translation>
    </message>
    <message numerus="yes">
        <source>insertion of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>inserimento di %n pagina</numerusform>
            <numerusform>inserimento di %n pagine</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Pagina vuota</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <extracomment>%1 is a file&apos;s name, %2 a page number in it.</extracomment>
        <translation>%1, pagina %2</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <extracomment>%1 is a page number in the book, %2 where the page comes from.</extracomment>
        <translation>Pagina %1: %2</translation>
    </message>
</context>
<context>
    <name>PagesWindow</name>
    <message>
        <source>The book&apos;s pages</source>
        <translation>Le pagine del libro</translation>
    </message>
    <message>
        <source>&amp;Use these pages</source>
        <extracomment>The book is made of these pages, in this order.</extracomment>
        <translation>&amp;Usa queste pagine</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Insert…</source>
        <extracomment>Beneath a picture in the toolbar, as the others here: short.</extracomment>
        <translation>Inserisci…</translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Pagina vuota</translation>
    </message>
    <message>
        <source>Insert a blank page before the selected one</source>
        <translation>Inserisci una pagina vuota prima di quella selezionata</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>A sinistra</translation>
    </message>
    <message>
        <source>Turn the selected pages to the left</source>
        <translation>Ruota le pagine selezionate verso sinistra</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>A destra</translation>
    </message>
    <message>
        <source>Turn the selected pages to the right</source>
        <translation>Ruota le pagine selezionate verso destra</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>Move the selected pages towards the beginning</source>
        <translation>Sposta le pagine selezionate verso l’inizio</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Dopo</translation>
    </message>
    <message>
        <source>Move the selected pages towards the end</source>
        <translation>Sposta le pagine selezionate verso la fine</translation>
    </message>
    <message>
        <source>As cover</source>
        <extracomment>The selected page becomes the book&apos;s cover.</extracomment>
        <translation>Come copertina</translation>
    </message>
    <message>
        <source>Move the selected page to the front of the book</source>
        <translation>Sposta la pagina selezionata all’inizio del libro</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Togli</translation>
    </message>
    <message>
        <source>Take the selected pages out of the book</source>
        <translation>Togli dal libro le pagine selezionate</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Insert PDFs, pictures and documents before the selected page</source>
        <translation>Inserisci PDF, immagini e documenti prima della pagina selezionata</translation>
    </message>
</context>
<context>
    <name>PagesWindowDelegate</name>
    <message>
        <source>Insert pages</source>
        <translation>Inserisci pagine</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n pagina</numerusform>
            <numerusform>%n pagine</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n selezionata</numerusform>
            <numerusform>%n selezionate</numerusform>
        </translation>
    </message>
    <message>
        <source>PDFs, pictures and documents for LibreOffice (%1)</source>
        <extracomment>%1 are the patterns of their names.</extracomment>
        <translation>PDF, immagini e documenti per LibreOffice (%1)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Open it</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>About Folvero</source>
        <translation>Informazioni su Folvero</translation>
    </message>
    <message>
        <source>Turns PDF documents into page-flip books for every browser.

Free software under the GNU Affero General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Trasforma i documenti PDF in libri sfogliabili per ogni browser.

Software libero distribuito secondo la GNU Affero General Public License, versione 3 o successiva. Senza alcuna garanzia.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Sostituisci</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>Con il testo</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Senza testo</translation>
    </message>
    <message>
        <source>Choose a PDF document</source>
        <translation>Scegli un documento PDF</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documenti PDF</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Carica impostazioni</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Salva impostazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Scegli un’immagine</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Choose a sound</source>
        <translation>Scegli un suono</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Suoni</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Scegli un file</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Salva un file</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Scegli un colore</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Scegli una cartella</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Non salvare</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recupera</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Documents for LibreOffice</source>
        <extracomment>Documents that LibreOffice can turn into PDFs: texts, presentations, sheets.</extracomment>
        <translation>Documenti per LibreOffice</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Apri un progetto</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salva il progetto</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Progetti</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <extracomment>Opens the document with the password that was typed.</extracomment>
        <translation>&amp;Apri</translation>
    </message>
    <message>
        <source>This password does not open it.</source>
        <translation>Questa password non apre il documento.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Password:</translation>
    </message>
    <message>
        <source>“%1” is protected by a password.</source>
        <extracomment>%1 is the name of a PDF.</extracomment>
        <translation>«%1» è protetto da password.</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Size of the preview</source>
        <extracomment>What a screen reader says when it comes to the buttons Window, Desktop, Tablet and Phone.</extracomment>
        <translation>Dimensioni dell’anteprima</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>A size of the preview: all the space that the window has for it.</extracomment>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Show the book in all the space there is</source>
        <translation>Mostra il libro in tutto lo spazio disponibile</translation>
    </message>
    <message>
        <source>Desktop</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Show the book as on a desktop screen</source>
        <translation>Mostra il libro come sullo schermo di un computer</translation>
    </message>
    <message>
        <source>Tablet</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Show the book as on a tablet</source>
        <translation>Mostra il libro come su un tablet</translation>
    </message>
    <message>
        <source>Phone</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Show the book as on a phone</source>
        <translation>Mostra il libro come su un telefono</translation>
    </message>
    <message>
        <source>Turn</source>
        <extracomment>Turns the tablet or phone of the preview on its side.</extracomment>
        <translation>Ruota</translation>
    </message>
    <message>
        <source>Turn the tablet or phone on its side</source>
        <translation>Mette il tablet o il telefono in orizzontale</translation>
    </message>
    <message>
        <source>%1 × %2, %3 %</source>
        <extracomment>The size of the preview in pixels, and how much it is scaled down.</extracomment>
        <translation>%1 × %2, %3%</translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Preview of the book</source>
        <translation>Anteprima del libro</translation>
    </message>
    <message>
        <source>Reload the preview</source>
        <translation>Ricarica l’anteprima</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>no such file</source>
        <translation>questo file non esiste</translation>
    </message>
    <message>
        <source>is no project</source>
        <translation>non è un progetto</translation>
    </message>
    <message>
        <source>%1 was not found; it was looked for at: %2</source>
        <translation>%1 non è stato trovato; è stato cercato in: %2</translation>
    </message>
    <message>
        <source>was changed after the project was saved</source>
        <translation>è stato modificato dopo il salvataggio del progetto</translation>
    </message>
    <message>
        <source>is damaged at “%1”</source>
        <translation>è danneggiato in «%1»</translation>
    </message>
    <message>
        <source>was saved by a newer version of Folvero (format %1; this version reads format %2)</source>
        <translation>è stato salvato da una versione più recente di Folvero (formato %1; questa versione legge il formato %2)</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>è danneggiato</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>Salvare le modifiche a «%1»?</translation>
    </message>
    <message>
        <source>Without saving they are lost.</source>
        <translation>Se non vengono salvate, andranno perse.</translation>
    </message>
    <message>
        <source>The project was not opened.</source>
        <translation>Il progetto non è stato aperto.</translation>
    </message>
    <message>
        <source>The pages can&apos;t be arranged.</source>
        <translation>Impossibile ordinare le pagine.</translation>
    </message>
    <message>
        <source>The project is not as it was saved.</source>
        <translation>Il progetto non è più come era stato salvato.</translation>
    </message>
    <message>
        <source>The project was not saved to %1.</source>
        <translation>Il progetto non è stato salvato in %1.</translation>
    </message>
    <message>
        <source>a book that was not saved</source>
        <translation>un libro non salvato</translation>
    </message>
    <message>
        <source>Recover the changes to “%1”?</source>
        <translation>Recuperare le modifiche a «%1»?</translation>
    </message>
    <message>
        <source>Folvero ended before they were saved, last on %1.</source>
        <translation>Folvero si è chiuso prima che fossero salvate; le ultime sono del %1.</translation>
    </message>
    <message>
        <source>Save the pages of “%1” first?</source>
        <translation>Salvare prima le pagine di «%1»?</translation>
    </message>
    <message>
        <source>The document that you import takes the place of the pages that you have put together. Without saving they are lost.</source>
        <translation>Il documento importato prende il posto delle pagine che sono state riunite. Senza salvarle vanno perse.</translation>
    </message>
</context>
<context>
    <name>PropertyCellDelegate</name>
    <message>
        <source>Changed. Click to make it empty again.</source>
        <extracomment>%1 is the value that a setting had before it was changed.</extracomment>
        <translation>Modificata. Fare clic per svuotarla di nuovo.</translation>
    </message>
    <message>
        <source>Changed. Click to set it back to %1.</source>
        <translation>Modificata. Fare clic per riportarla a %1.</translation>
    </message>
</context>
<context>
    <name>PropertyHistory</name>
    <message>
        <source>“%1”</source>
        <extracomment>A setting&apos;s name in quotation marks; stands in &quot;Undo %1&quot;.</extracomment>
        <translation>«%1»</translation>
    </message>
</context>
<context>
    <name>PublishProgress</name>
    <message>
        <source>Page %1 of %2 – %3</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages, %3 is like &quot;37 %, about 2 minutes left&quot;.</extracomment>
        <translation>Pagina %1 di %2 – %3</translation>
    </message>
    <message>
        <source>Making the pages of the book…</source>
        <translation>Creazione delle pagine del libro…</translation>
    </message>
    <message>
        <source>Writing the book…</source>
        <translation>Scrittura del libro…</translation>
    </message>
</context>
<context>
    <name>PublisherChoices</name>
    <message>
        <source>it opens with a password only</source>
        <translation>si apre solo con una password</translation>
    </message>
</context>
<context>
    <name>ReadingSample</name>
    <message>
        <source>The reading sample needs numbers of pages, such as 1-12, and not “%1”.</source>
        <translation>L’estratto richiede numeri di pagina, come 1-12, e non «%1».</translation>
    </message>
    <message>
        <source>The book has none of the pages of the reading sample.</source>
        <translation>Il libro non ha nessuna delle pagine dell’estratto.</translation>
    </message>
</context>
<context>
    <name>ResultBar</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copia il link</translation>
    </message>
    <message>
        <source>Copy embed text</source>
        <extracomment>The text embeds the book in another page.</extracomment>
        <translation>Copia l’incorporamento</translation>
    </message>
    <message>
        <source>Publish again</source>
        <translation>Pubblica di nuovo</translation>
    </message>
    <message>
        <source>Published book</source>
        <extracomment>What a screen reader says when it comes to the bar after a publish.</extracomment>
        <translation>Libro pubblicato</translation>
    </message>
    <message>
        <source>Opens the book in the program that usually shows it</source>
        <translation>Apre il libro nel programma che lo mostra di solito</translation>
    </message>
    <message>
        <source>Publishes the book as it is now, with the same choices</source>
        <translation>Pubblica il libro com’è ora, con le stesse scelte</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Chiudi il messaggio</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiato: %1</translation>
    </message>
    <message>
        <source>“%1” was published</source>
        <translation>«%1» è stato pubblicato</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindow</name>
    <message>
        <source>Choose a template</source>
        <translation>Scegli un modello</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aggiorna</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Looks for templates that were added or repaired meanwhile (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Cerca i modelli aggiunti o riparati nel frattempo (%1)</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Modelli</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>&amp;Stili</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Modelli</translation>
    </message>
    <message>
        <source>There are no templates.</source>
        <translation>Non ci sono modelli.</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stili</translation>
    </message>
    <message>
        <source>This template has no styles.</source>
        <translation>Questo modello non ha stili.</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Rinomina…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Elimina…</translation>
    </message>
    <message>
        <source>Gives a style of your own another name (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Dà un altro nome a uno stile personale (%1)</translation>
    </message>
    <message>
        <source>Deletes a style of your own (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Elimina uno stile personale (%1)</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindowDelegate</name>
    <message>
        <source>“%1”</source>
        <extracomment>A template&apos;s name in quotation marks; stands in other texts.</extracomment>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>Its file %1 is missing.</source>
        <translation>Manca il suo file %1.</translation>
    </message>
    <message>
        <source>The template %1 is not in the library.</source>
        <extracomment>%1 is the template&apos;s name in quotation marks.</extracomment>
        <translation>Il modello %1 non è nella raccolta.</translation>
    </message>
    <message>
        <source>The template %1 cannot be used. %2</source>
        <extracomment>%1 is the template&apos;s name in quotation marks, %2 a sentence that tells why.</extracomment>
        <translation>Il modello %1 non può essere usato. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation>
            <numerusform>%n altro non può essere usato.</numerusform>
            <numerusform>Altri %n non possono essere usati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the style</source>
        <extracomment>The button that gives a style another name.</extracomment>
        <translation>Rinomina lo stile</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Rinomina</translation>
    </message>
    <message>
        <source>The style “%1” cannot be used. %2</source>
        <extracomment>%1 is the style&apos;s name, %2 a sentence that tells why.</extracomment>
        <translation>Lo stile «%1» non è utilizzabile. %2</translation>
    </message>
    <message>
        <source>Delete the style “%1”?</source>
        <translation>Eliminare lo stile «%1»?</translation>
    </message>
    <message>
        <source>Books and projects that have it keep their look.</source>
        <translation>I libri e i progetti che lo hanno mantengono il loro aspetto.</translation>
    </message>
    <message>
        <source>The style was not deleted. %1</source>
        <translation>Lo stile non è stato eliminato. %1</translation>
    </message>
</context>
<context>
    <name>SettingsReset</name>
    <message>
        <source>reset of all settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>ripristino di tutte le impostazioni</translation>
    </message>
    <message>
        <source>reset of “%1”</source>
        <extracomment>Stands in &quot;Undo %1&quot;; %1 is the title of a group of settings.</extracomment>
        <translation>ripristino di «%1»</translation>
    </message>
    <message>
        <source>&amp;Reset “%1”</source>
        <extracomment>%1 is the title of a setting or of a group of settings.</extracomment>
        <translation>&amp;Ripristina «%1»</translation>
    </message>
    <message>
        <source>Reset the &amp;group “%1”</source>
        <extracomment>%1 is the title of a group of settings.</extracomment>
        <translation>Ripristina il &amp;gruppo «%1»</translation>
    </message>
    <message>
        <source>Reset &amp;all settings</source>
        <translation>Ripristina &amp;tutte le impostazioni</translation>
    </message>
</context>
<context>
    <name>SettingsSearch</name>
    <message>
        <source>Search the settings</source>
        <translation>Cerca nelle impostazioni</translation>
    </message>
    <message>
        <source>Show all settings</source>
        <translation>Mostra tutte le impostazioni</translation>
    </message>
    <message>
        <source>Show all settings (Esc)</source>
        <translation>Mostra tutte le impostazioni (Esc)</translation>
    </message>
    <message>
        <source>No setting has “%1”.</source>
        <translation>Nessuna impostazione contiene «%1».</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>StartPanel</name>
    <message>
        <source>Choose a file…</source>
        <translation>Scegli un file…</translation>
    </message>
    <message>
        <source>How to begin</source>
        <extracomment>What a screen reader says when it comes to the part of the window that says how to begin.</extracomment>
        <translation>Come iniziare</translation>
    </message>
    <message>
        <source>Drop a PDF or a folder of pictures here</source>
        <translation>Rilasciare qui un PDF o una cartella di immagini</translation>
    </message>
    <message>
        <source>Or play with the demo book below: turn its pages, try templates and settings.</source>
        <translation>Oppure si può giocare con il libro dimostrativo qui sotto: sfogliarlo, provare modelli e impostazioni.</translation>
    </message>
    <message>
        <source>Make the book from a PDF, a picture or a text</source>
        <translation>Fare il libro da un PDF, un’immagine o un testo</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Chiudi questa nota</translation>
    </message>
    <message>
        <source>Open %1 again</source>
        <extracomment>What a screen reader says for a file that was opened before.</extracomment>
        <translation>Riapri %1</translation>
    </message>
</context>
<context>
    <name>StyleName</name>
    <message>
        <source>Aurora</source>
        <translation>Aurora</translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>Semplice</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Mezzanotte</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proiettore</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Velluto</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>Cianografia</translation>
    </message>
    <message>
        <source>Boardroom</source>
        <translation>Sala riunioni</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Luminoso</translation>
    </message>
    <message>
        <source>Chalkboard</source>
        <translation>Lavagna</translation>
    </message>
    <message>
        <source>Beach</source>
        <translation>Spiaggia</translation>
    </message>
    <message>
        <source>Green baize</source>
        <translation>Panno verde</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lino</translation>
    </message>
    <message>
        <source>Oak</source>
        <translation>Rovere</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Ardesia</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Giardino</translation>
    </message>
    <message>
        <source>Rainy window</source>
        <translation>Pioggia sui vetri</translation>
    </message>
    <message>
        <source>Watercolour</source>
        <translation>Acquerello</translation>
    </message>
    <message>
        <source>Writing desk</source>
        <translation>Scrittoio</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>Rosa cipria</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Inchiostro</translation>
    </message>
    <message>
        <source>Morning light</source>
        <translation>Luce del mattino</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Sabbia</translation>
    </message>
</context>
<context>
    <name>StyleSaver</name>
    <message>
        <source>Save as a style</source>
        <extracomment>The button that saves a style.</extracomment>
        <translation>Salva come stile</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Replace the style “%1”?</source>
        <translation>Sostituire lo stile «%1»?</translation>
    </message>
    <message>
        <source>You have saved a style of this name before. Its settings would be lost.</source>
        <translation>È già stato salvato uno stile con questo nome. Le sue impostazioni andrebbero perse.</translation>
    </message>
    <message>
        <source>The style was not saved. %1</source>
        <translation>Lo stile non è stato salvato. %1</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>Unknown error %1</source>
        <translation>Errore sconosciuto %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operazione non consentita</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>File o cartella non esistente</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Errore di input/output</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>Dispositivo o indirizzo non esistente</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Impossibile allocare memoria</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permesso negato</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Dispositivo o risorsa in uso</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Il file esiste già</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>I file si trovano su dischi diversi</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>Dispositivo non esistente</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Non è una cartella</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>È una cartella</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Argomento non valido</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Troppi file aperti nel sistema</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Troppi file aperti</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Il programma è in esecuzione</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>File troppo grande</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Spazio esaurito sul dispositivo</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>File system in sola lettura</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Troppi collegamenti</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nome di file troppo lungo</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>La cartella non è vuota</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Troppi livelli di collegamenti simbolici</translation>
    </message>
    <message>
        <source>Invalid or incomplete multibyte or wide character</source>
        <translation>Carattere non valido o incompleto</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>Operazione non supportata</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Tempo di connessione scaduto</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>L’host non è attivo</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Nessun percorso verso l’host</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Il file non si trova più sul server</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>Errore di input/output remoto</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Quota disco superata</translation>
    </message>
</context>
<context>
    <name>TemplateFile</name>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>la codifica «%1» è sconosciuta</translation>
    </message>
    <message>
        <source>is not in the encoding &quot;%1&quot; that it declares</source>
        <translation>non è nella codifica «%1» che dichiara</translation>
    </message>
    <message>
        <source>its entities stand for too much text or for themselves</source>
        <translation>le sue entità rappresentano troppo testo o sé stesse</translation>
    </message>
    <message>
        <source>root element</source>
        <translation>elemento radice</translation>
    </message>
    <message>
        <source>&quot;info&quot; element</source>
        <translation>elemento «info»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element</source>
        <translation>elemento «property»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element of key &quot;%1&quot;</source>
        <translation>elemento «property» con chiave «%1»</translation>
    </message>
    <message>
        <source>properties are nested more than %1 deep</source>
        <translation>le proprietà sono annidate su più di %1 livelli</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>%1 lacks its &quot;%2&quot; element</source>
        <extracomment>%1 is another element of the file.</extracomment>
        <translation>%1: manca l’elemento «%2»</translation>
    </message>
</context>
<context>
    <name>TemplateName</name>
    <message>
        <source>Cinema</source>
        <translation>Cinema</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Diapositive</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Scrivania</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Sospeso</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galleria</translation>
    </message>
</context>
<context>
    <name>TemplateProperty</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>The paper and the direction of reading.</source>
        <translation>La carta e il verso di lettura.</translation>
    </message>
    <message>
        <source>Paper colour</source>
        <translation>Colore della carta</translation>
    </message>
    <message>
        <source>The colour of the paper, seen where the picture of a page does not cover it.</source>
        <translation>Il colore della carta, visibile dove l’immagine della pagina non la copre.</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da destra a sinistra</translation>
    </message>
    <message>
        <source>The book begins at the right, as books in Arabic, Hebrew or Japanese do.</source>
        <translation>Il libro comincia a destra, come i libri in arabo, ebraico o giapponese.</translation>
    </message>
    <message>
        <source>Read from right to left</source>
        <translation>Leggi da destra a sinistra</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Movimento pagine</translation>
    </message>
    <message>
        <source>How the pages move, and whether they move by themselves.</source>
        <translation>Come si muovono le pagine e se si muovono da sole.</translation>
    </message>
    <message>
        <source>Turning time</source>
        <translation>Durata del movimento</translation>
    </message>
    <message>
        <source>How many seconds a page takes to turn.</source>
        <translation>Quanti secondi impiega una pagina a voltarsi.</translation>
    </message>
    <message>
        <source>Lifting time</source>
        <translation>Tempo di sollevamento</translation>
    </message>
    <message>
        <source>How many seconds a page takes to lift under the pointer, and to fall back when it is let go.</source>
        <translation>Quanti secondi impiega una pagina a sollevarsi sotto il puntatore e a ricadere quando viene lasciata.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>How the book comes in when it is opened.</source>
        <translation>Come compare il libro quando viene aperto.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessun effetto</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Dal basso</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Dall’alto</translation>
    </message>
    <message>
        <source>Play by itself</source>
        <translation>Sfoglia da solo</translation>
    </message>
    <message>
        <source>The pages turn by themselves from the start, until the reader stops them in the bar.</source>
        <translation>Le pagine si voltano da sole fin dall’inizio, finché il lettore non le ferma dalla barra.</translation>
    </message>
    <message>
        <source>Turn pages automatically</source>
        <translation>Volta pagina automaticamente</translation>
    </message>
    <message>
        <source>Pause between pages</source>
        <translation>Pausa tra le pagine</translation>
    </message>
    <message>
        <source>How many seconds each page stays while the book plays by itself.</source>
        <translation>Per quanti secondi resta ferma ogni pagina mentre il libro si sfoglia da solo.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Ripetizione</translation>
    </message>
    <message>
        <source>A book that plays by itself begins again after its last page.</source>
        <translation>Un libro che si sfoglia da solo ricomincia dopo l’ultima pagina.</translation>
    </message>
    <message>
        <source>Start over at the end</source>
        <translation>Ricomincia alla fine</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>The bar, the caption and the margins around the book.</source>
        <translation>La barra, la didascalia e i margini intorno al libro.</translation>
    </message>
    <message>
        <source>Bar colour</source>
        <translation>Colore della barra</translation>
    </message>
    <message>
        <source>The colour of the bar, the arrows and the row of small pages; the signs on it turn dark or light to suit.</source>
        <translation>Il colore della barra, delle frecce e della fila di miniature; i simboli diventano scuri o chiari di conseguenza.</translation>
    </message>
    <message>
        <source>Hide the bar</source>
        <translation>Nascondi la barra</translation>
    </message>
    <message>
        <source>Readers see no bar and no arrows, and turn pages with pointer, finger or keys.</source>
        <translation>I lettori non vedono né barra né frecce e voltano le pagine con il puntatore, il dito o i tasti.</translation>
    </message>
    <message>
        <source>Show no bar and no arrows</source>
        <translation>Senza barra né frecce</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Didascalia</translation>
    </message>
    <message>
        <source>A short text in the lower left corner, or an address that begins with https:// and becomes a link.</source>
        <translation>Un breve testo nell’angolo in basso a sinistra, oppure un indirizzo che inizia con https:// e diventa un link.</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margine superiore</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen above the inner one.</source>
        <translation>Quanti pixel dello sfondo esterno si vedono sopra quello interno.</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Margine inferiore</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen below the inner one.</source>
        <translation>Quanti pixel dello sfondo esterno si vedono sotto quello interno.</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Margine sinistro</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the left of the inner one.</source>
        <translation>Quanti pixel dello sfondo esterno si vedono a sinistra di quello interno.</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Margine destro</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the right of the inner one.</source>
        <translation>Quanti pixel dello sfondo esterno si vedono a destra di quello interno.</translation>
    </message>
    <message>
        <source>Outer background</source>
        <translation>Sfondo esterno</translation>
    </message>
    <message>
        <source>What fills the whole window; it is seen where the margins leave it free.</source>
        <translation>Ciò che riempie tutta la finestra; si vede dove i margini lo lasciano libero.</translation>
    </message>
    <message>
        <source>First colour</source>
        <translation>Primo colore</translation>
    </message>
    <message>
        <source>The colour in which the background begins.</source>
        <translation>Il colore con cui inizia lo sfondo.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Secondo colore</translation>
    </message>
    <message>
        <source>The colour into which the first one passes; choose the same twice for a plain background.</source>
        <translation>Il colore in cui sfuma il primo; per uno sfondo uniforme scegliere due volte lo stesso.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direzione</translation>
    </message>
    <message>
        <source>Where the second colour lies, in degrees: 0 is at the right, 90 at the bottom, 180 at the left.</source>
        <translation>Dove si trova il secondo colore, in gradi: 0 è a destra, 90 in basso, 180 a sinistra.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>A picture that lies over the two colours.</source>
        <translation>Un’immagine posta sopra i due colori.</translation>
    </message>
    <message>
        <source>Picture position</source>
        <translation>Posizione immagine</translation>
    </message>
    <message>
        <source>Where the picture lies and how it fills the background.</source>
        <translation>Dove si trova l’immagine e come riempie lo sfondo.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Estendi</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riempi</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Affianca</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Al centro</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Inner background</source>
        <translation>Sfondo interno</translation>
    </message>
    <message>
        <source>What the book lies on, inside the margins.</source>
        <translation>Ciò su cui poggia il libro, all’interno dei margini.</translation>
    </message>
    <message>
        <source>Background sound</source>
        <translation>Audio di sottofondo</translation>
    </message>
    <message>
        <source>Music or a sound that accompanies the reader.</source>
        <translation>Una musica o un suono che accompagna il lettore.</translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation>File audio</translation>
    </message>
    <message>
        <source>An MP3 file that begins to play with the reader&apos;s first click or key.</source>
        <translation>Un file MP3 che parte al primo clic o al primo tasto premuto dal lettore.</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Ripetizioni</translation>
    </message>
    <message>
        <source>How many times the sound is played; -1 plays it on and on.</source>
        <translation>Quante volte viene riprodotto l’audio; con -1 continua senza fine.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>What is known of the imported document, to be read only.</source>
        <translation>Ciò che si sa del documento importato, in sola lettura.</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Larghezza pagina</translation>
    </message>
    <message>
        <source>The width of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>La larghezza delle pagine del documento in punti, annotata all’importazione; il libro prende la forma dalle sue pagine, quindi una modifica qui non ha effetto.</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Altezza pagina</translation>
    </message>
    <message>
        <source>The height of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>L’altezza delle pagine del documento in punti, annotata all’importazione; il libro prende la forma dalle sue pagine, quindi una modifica qui non ha effetto.</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editore</translation>
    </message>
    <message>
        <source>Your logo and colour, how the book opens, and what readers may take with them; styles leave this as it is.</source>
        <translation>Il proprio logo e colore, come si apre il libro e che cosa possono portarsi via i lettori; gli stili non modificano queste impostazioni.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>A picture in an upper corner of the window, at most 40 pixels high.</source>
        <translation>Un’immagine in un angolo superiore della finestra, alta al massimo 40 pixel.</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>Link del logo</translation>
    </message>
    <message>
        <source>Where the logo leads: an address that begins with https://, http:// or mailto: (no other is followed).</source>
        <translation>Dove porta il logo: un indirizzo che inizia con https://, http:// o mailto: (gli altri non vengono seguiti).</translation>
    </message>
    <message>
        <source>Accent colour</source>
        <translation>Colore d’accento</translation>
    </message>
    <message>
        <source>The colour of the main buttons and of what is chosen in dialogs; writing on it turns dark or light to suit.</source>
        <translation>Il colore dei pulsanti principali e di ciò che è scelto nelle finestre di dialogo; il testo diventa scuro o chiaro di conseguenza.</translation>
    </message>
    <message>
        <source>First view</source>
        <translation>Prima vista</translation>
    </message>
    <message>
        <source>How the pages lie until a reader chooses otherwise: as it suits the window, one page, or two; phones show what suits them.</source>
        <translation>Come si presentano le pagine finché il lettore non sceglie altro: in base alla finestra, una sola o due; i telefoni mostrano ciò che è adatto a loro.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatica</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>Una pagina</translation>
    </message>
    <message>
        <source>Two pages</source>
        <translation>Due pagine</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Readers can download the imported PDF, with all of its pages. Books in one file, previews and documents that open with a password only never offer it.</source>
        <translation>I lettori possono scaricare il PDF importato, con tutte le sue pagine. I libri in un unico file, gli estratti e i documenti che si aprono solo con una password non lo offrono mai.</translation>
    </message>
    <message>
        <source>Offer the PDF for download</source>
        <translation>Offri il PDF da scaricare</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Pulsanti</translation>
    </message>
    <message>
        <source>What the bar offers to readers. A button that is not shown has no key either; styles leave this as it is.</source>
        <translation>Ciò che la barra offre ai lettori. Un pulsante nascosto non ha nemmeno il tasto corrispondente; gli stili non modificano queste impostazioni.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>The table of contents, of web books.</source>
        <translation>L’indice dei contenuti, nei libri web.</translation>
    </message>
    <message>
        <source>Show the button</source>
        <translation>Mostra il pulsante</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>The search, of web books.</source>
        <translation>La ricerca, nei libri web.</translation>
    </message>
    <message>
        <source>Reading view</source>
        <translation>Vista lettura</translation>
    </message>
    <message>
        <source>The text as a page to scroll, of web books.</source>
        <translation>Il testo come pagina da scorrere, nei libri web.</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Segnalibri e note</translation>
    </message>
    <message>
        <source>Bookmarks, highlights and notes that readers keep in their browser, of web books.</source>
        <translation>Segnalibri, evidenziazioni e note che i lettori conservano nel proprio browser, nei libri web.</translation>
    </message>
    <message>
        <source>Show the buttons</source>
        <translation>Mostra i pulsanti</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniature</translation>
    </message>
    <message>
        <source>The row of small pages.</source>
        <translation>La fila di pagine in piccolo.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarging by button and key; a double click or two fingers always enlarge.</source>
        <translation>Ingrandire con pulsante e tasto; il doppio clic e due dita ingrandiscono sempre.</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>The choice of one page or two, and of the paper.</source>
        <translation>La scelta tra una pagina e due, e della carta.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Sfoglia da solo</translation>
    </message>
    <message>
        <source>Turning pages by itself.</source>
        <translation>Le pagine che si voltano da sole.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>The switch for sounds.</source>
        <translation>L’interruttore dei suoni.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>The link to the page that is shown.</source>
        <translation>Il link alla pagina mostrata.</translation>
    </message>
    <message>
        <source>Keep offline</source>
        <translation>Conserva offline</translation>
    </message>
    <message>
        <source>Keeping a web book to read it without a connection.</source>
        <translation>Conservare un libro web per leggerlo senza connessione.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Printing pages; the command of the browser still prints those in view.</source>
        <translation>Stampare le pagine; il comando del browser stampa comunque quelle visibili.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Reading in full screen.</source>
        <translation>Leggere a schermo intero.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>The list of keys and gestures.</source>
        <translation>L’elenco dei tasti e dei gesti.</translation>
    </message>
</context>
<context>
    <name>TmplStylePainter</name>
    <message>
        <source>No picture</source>
        <translation>Nessuna immagine</translation>
    </message>
</context>
<context>
    <name>TmplStylesModel</name>
    <message>
        <source>A style of your own</source>
        <translation>Uno stile personale</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>A colour: #RRGGBB, 0xRRGGBB, or an English name such as “red”.</source>
        <translation>Un colore: #RRGGBB, 0xRRGGBB o un nome inglese come «red».</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Books are made without it.</source>
        <translation>Il file %1 non esiste. I libri vengono creati senza.</translation>
    </message>
    <message>
        <source>A number.</source>
        <translation>Un numero.</translation>
    </message>
    <message>
        <source>A number from %1 to %2%3.</source>
        <extracomment>%1 and %2 are numbers, %3 is a unit with a space before it, or nothing.</extracomment>
        <translation>Un numero da %1 a %2%3.</translation>
    </message>
</context>
<context>
    <name>XMLParser</name>
    <message>
        <source>Could not allocate memory</source>
        <translation>Impossibile allocare memoria</translation>
    </message>
    <message>
        <source>Internal error occurred</source>
        <translation>Si è verificato un errore interno</translation>
    </message>
    <message>
        <source>Could not determine tag type</source>
        <translation>Impossibile determinare il tipo di tag</translation>
    </message>
    <message>
        <source>Error parsing document declaration/processing instruction</source>
        <translation>Errore nella dichiarazione del documento o in un’istruzione di elaborazione</translation>
    </message>
    <message>
        <source>Error parsing comment</source>
        <translation>Errore in un commento</translation>
    </message>
    <message>
        <source>Error parsing CDATA section</source>
        <translation>Errore in una sezione CDATA</translation>
    </message>
    <message>
        <source>Error parsing document type declaration</source>
        <translation>Errore nella dichiarazione del tipo di documento</translation>
    </message>
    <message>
        <source>Error parsing PCDATA section</source>
        <translation>Errore in una sezione PCDATA</translation>
    </message>
    <message>
        <source>Error parsing start element tag</source>
        <translation>Errore in un tag di apertura</translation>
    </message>
    <message>
        <source>Error parsing element attribute</source>
        <translation>Errore in un attributo</translation>
    </message>
    <message>
        <source>Error parsing end element tag</source>
        <translation>Errore in un tag di chiusura</translation>
    </message>
    <message>
        <source>Start-end tags mismatch</source>
        <translation>I tag di apertura e di chiusura non corrispondono</translation>
    </message>
    <message>
        <source>No document element found</source>
        <translation>Nessun elemento radice trovato</translation>
    </message>
</context>
<context>
    <name>ZipReader</name>
    <message>
        <source>is damaged</source>
        <translation>è danneggiato</translation>
    </message>
    <message>
        <source>has far too much in it</source>
        <translation>contiene troppi dati</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>is no ZIP archive, or not all of one</source>
        <translation>non è un archivio ZIP, oppure è incompleto</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Turns PDF files into page-flip books.</source>
        <translation>Trasforma i file PDF in libri sfogliabili.</translation>
    </message>
    <message>
        <source>A PDF file to import, or a project to open.</source>
        <translation>Un file PDF da importare o un progetto da aprire.</translation>
    </message>
</context>
</TS>
