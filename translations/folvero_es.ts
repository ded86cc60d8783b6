<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BrisleafAppDelegate</name>
    <message>
        <source>The preview could not be brought up to date.</source>
        <translation>No se pudo actualizar la vista previa.</translation>
    </message>
    <message>
        <source>The preview has stopped working.</source>
        <translation>La vista previa ha dejado de funcionar.</translation>
    </message>
    <message>
        <source>Press F5 to load it again. Your book is not affected.</source>
        <translation>Pulse F5 para volver a cargarla. Su libro no se ve afectado.</translation>
    </message>
    <message>
        <source>Not everything could be imported.</source>
        <translation>No se pudo importar todo.</translation>
    </message>
    <message>
        <source>The settings were not saved to %1.</source>
        <translation>Los ajustes no se guardaron en %1.</translation>
    </message>
    <message>
        <source>The settings were not loaded.</source>
        <translation>Los ajustes no se cargaron.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>No se puede leer el archivo %1.</translation>
    </message>
    <message>
        <source>loading of settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>la carga de ajustes</translation>
    </message>
    <message>
        <source>The help cannot be opened.</source>
        <translation>No se puede abrir la ayuda.</translation>
    </message>
    <message>
        <source>The file %1 is missing.</source>
        <translation>Falta el archivo %1.</translation>
    </message>
    <message>
        <source>The template “%1” is damaged.</source>
        <translation>La plantilla «%1» está dañada.</translation>
    </message>
    <message>
        <source>PDF to Folvero for mac Help/PDF to Folvero for Mac.pdf</source>
        <extracomment>The help in your language; keep the path as it is until there is one.</extracomment>
        <translation>PDF to Folvero for mac Help/PDF to Folvero for Mac.es.pdf</translation>
    </message>
    <message>
        <source>Press “Apply” to try again.</source>
        <translation>Pulse «Aplicar» para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>These files are missing. The book is shown without them.</source>
        <translation>Faltan estos archivos. El libro se muestra sin ellos.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields.</source>
        <translation>Elija otros en los ajustes o vacíe los campos.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings. Choose one that was made with “Save look”.</source>
        <translation>El archivo %1 no contiene ajustes. Elija uno creado con «Guardar aspecto».</translation>
    </message>
    <message>
        <source>choice of template</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>la elección de la plantilla</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>El libro no se publicó.</translation>
    </message>
    <message>
        <source>%1: is a project; open it alone</source>
        <translation>%1: es un proyecto; ábralo solo</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
</context>
<context>
    <name>CommonCryptoErrorDomain</name>
    <message>
        <source>Success</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Parameter Error</source>
        <translation>Error de parámetro</translation>
    </message>
    <message>
        <source>Illegal parameter supplied to encryption/decryption algorithm</source>
        <translation>Parámetro no permitido para el algoritmo de cifrado o descifrado</translation>
    </message>
    <message>
        <source>Buffer Too Small</source>
        <translation>Búfer demasiado pequeño</translation>
    </message>
    <message>
        <source>Insufficient buffer provided for specified operation</source>
        <translation>El búfer no basta para la operación indicada</translation>
    </message>
    <message>
        <source>Memory Failure</source>
        <translation>Error de memoria</translation>
    </message>
    <message>
        <source>Failed to allocate memory</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
    <message>
        <source>Alignment Error</source>
        <translation>Error de alineación</translation>
    </message>
    <message>
        <source>Input size to encryption algorithm was not aligned correctly</source>
        <translation>El tamaño de los datos de entrada no se ajusta al algoritmo de cifrado</translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation>Error de descodificación</translation>
    </message>
    <message>
        <source>Input data did not decode or decrypt correctly</source>
        <translation>Los datos de entrada no se descodificaron o descifraron correctamente</translation>
    </message>
    <message>
        <source>Unimplemented Function</source>
        <translation>Función no disponible</translation>
    </message>
    <message>
        <source>Function not implemented for the current algorithm</source>
        <translation>El algoritmo actual no dispone de esta función</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>Error desconocido</translation>
    </message>
</context>
<context>
    <name>DropHint</name>
    <message>
        <source>Only PDFs, pictures and documents that LibreOffice can open become a book.</source>
        <translation>Solo los PDF, las imágenes y los documentos que LibreOffice puede abrir se convierten en un libro.</translation>
    </message>
    <message>
        <source>Drop the project here to open it.</source>
        <translation>Suelte aquí el proyecto para abrirlo.</translation>
    </message>
    <message>
        <source>Drop it here to make a book of it.</source>
        <translation>Suéltelo aquí para hacer un libro con él.</translation>
    </message>
    <message>
        <source>Drop them here to make one book of them, in the order of their names.</source>
        <translation>Suéltelos aquí para hacer un solo libro con ellos, en el orden de sus nombres.</translation>
    </message>
    <message>
        <source>Drop here to make a new book.</source>
        <translation>Suelte aquí para crear un libro nuevo.</translation>
    </message>
    <message>
        <source>Drop here to add to “%1”.</source>
        <translation>Suelte aquí para añadir a «%1».</translation>
    </message>
</context>
<context>
    <name>FileToSave</name>
    <message>
        <source>Replace %1?</source>
        <translation>¿Reemplazar %1?</translation>
    </message>
    <message>
        <source>A file of this name is already in the folder. What is in it would be lost.</source>
        <translation>Ya hay un archivo con este nombre en la carpeta. Su contenido se perdería.</translation>
    </message>
</context>
<context>
    <name>FlashPagesAnnotationsPDF</name>
    <message>
        <source>no page at position %1</source>
        <translation>no hay ninguna página en la posición %1</translation>
    </message>
</context>
<context>
    <name>FlashTemplate</name>
    <message>
        <source>Can&apos;t create an URL from file %1.</source>
        <translation>No se puede crear una URL a partir del archivo %1.</translation>
    </message>
    <message>
        <source>Can&apos;t load the template file &quot;%1&quot;: %2</source>
        <translation>No se puede cargar el archivo de plantilla «%1»: %2</translation>
    </message>
</context>
<context>
    <name>FlashTemplateModel</name>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What a screen reader says: the name of a setting and its value.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <extracomment>What a screen reader says of a setting that is not as the template has it; %1 is its name and value.</extracomment>
        <translation>%1, modificado</translation>
    </message>
</context>
<context>
    <name>FlashTemplateOutlineDelegate</name>
    <message>
        <source>(Untitled)</source>
        <translation>(sin título)</translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation>(desconocido)</translation>
    </message>
</context>
<context>
    <name>FolveroOutput</name>
    <message>
        <source>%1: There is no such folder</source>
        <translation>%1: La carpeta no existe</translation>
    </message>
    <message>
        <source>There is a folder of that name</source>
        <translation>Hay una carpeta con ese nombre</translation>
    </message>
    <message>
        <source>the player is not installed</source>
        <translation>el reproductor no está instalado</translation>
    </message>
    <message>
        <source>As one file the book would have %1 MB, and the most is %2 MB. Import fewer pages or choose the smallest files, or publish it as a folder</source>
        <translation>En un solo archivo, el libro ocuparía %1 MB, y el máximo son %2 MB. Importe menos páginas, elija los archivos más pequeños o publíquelo como carpeta</translation>
    </message>
    <message>
        <source>The page with the book&apos;s text has that name</source>
        <translation>La página con el texto del libro ya se llama así</translation>
    </message>
    <message>
        <source>%1: the page of the template &quot;%2&quot; is missing, empty, not readable, or outside of the templates&apos; folder</source>
        <extracomment>%1 is a file, %2 the template&apos;s name</extracomment>
        <translation>%1: la página de la plantilla «%2» falta, está vacía, no se puede leer o está fuera de la carpeta de plantillas</translation>
    </message>
    <message>
        <source>%1: is missing; the program is not installed completely</source>
        <translation>%1: falta; el programa no está instalado por completo</translation>
    </message>
    <message>
        <source>it was changed while the book was published</source>
        <translation>se modificó mientras se publicaba el libro</translation>
    </message>
    <message>
        <source>%1; earlier files are in %2, and the next publish tries to put them back</source>
        <translation>%1; los archivos anteriores están en %2, y la próxima publicación intentará restaurarlos</translation>
    </message>
    <message>
        <source>Earlier files of the book are in it and can&apos;t be put back</source>
        <translation>Contiene archivos anteriores del libro que no se pueden restaurar</translation>
    </message>
</context>
<context>
    <name>FolveroOutputWeb</name>
    <message>
        <source>a book in one file has no other files</source>
        <translation>un libro en un solo archivo no tiene otros archivos</translation>
    </message>
    <message>
        <source>it has the pages that a reading sample leaves out</source>
        <translation>contiene las páginas que la muestra no incluye</translation>
    </message>
</context>
<context>
    <name>ImportPDFOperation</name>
    <message>
        <source>%1: none of the pages asked for is in it</source>
        <translation>%1: no contiene ninguna de las páginas pedidas</translation>
    </message>
    <message>
        <source>%1: none of the pages could be drawn (%2)</source>
        <translation>%1: no se pudo dibujar ninguna de las páginas (%2)</translation>
    </message>
    <message>
        <source>%1: links: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its links.</extracomment>
        <translation>%1: enlaces: %2</translation>
    </message>
    <message>
        <source>page %1: %2</source>
        <translation>página %1: %2</translation>
    </message>
    <message>
        <source>page %1 and %2 more: %3</source>
        <translation>página %1 y %2 más: %3</translation>
    </message>
    <message>
        <source>%1: bookmarks: %2</source>
        <extracomment>%1 is the PDF file, %2 tells what is wrong with its bookmarks.</extracomment>
        <translation>%1: marcadores: %2</translation>
    </message>
    <message>
        <source>%1: the document has no pages; the file may be incomplete</source>
        <translation>%1: el documento no tiene páginas; quizá el archivo esté incompleto</translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>Import a PDF</source>
        <translation>Importar un PDF</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>Best, for zooming in</source>
        <extracomment>The quality of the pictures of the pages, from the best to the worst.</extracomment>
        <translation>Máxima, para ampliar</translation>
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
        <translation>Baja</translation>
    </message>
    <message>
        <source>Smallest files</source>
        <translation>Archivos más pequeños</translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation>Importar en&amp;laces</translation>
    </message>
    <message>
        <source>Import &amp;bookmarks as contents</source>
        <translation>Importar &amp;marcadores como índice</translation>
    </message>
    <message>
        <source>&amp;PDF file:</source>
        <translation>Archivo &amp;PDF:</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Páginas:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Calidad:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>Opens the chosen PDF in another program.</extracomment>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Opens the PDF in the program that usually shows it</source>
        <translation>Abre el PDF en el programa con el que suele verse</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <extracomment>All pages are imported.</extracomment>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>&amp;These:</source>
        <extracomment>A field for page numbers follows.</extracomment>
        <translation>E&amp;stas:</translation>
    </message>
    <message>
        <source>for example 1-3,7</source>
        <translation>por ejemplo, 1-3,7</translation>
    </message>
    <message>
        <source>Pages to import</source>
        <translation>Páginas que importar</translation>
    </message>
    <message>
        <source>Split where found</source>
        <extracomment>What becomes of pages that show two pages of a printed book side by side.</extracomment>
        <translation>Dividir si se detectan</translation>
    </message>
    <message>
        <source>Split all landscape pages</source>
        <translation>Dividir todas las apaisadas</translation>
    </message>
    <message>
        <source>Keep whole</source>
        <translation>No dividir</translation>
    </message>
    <message>
        <source>&amp;Double pages:</source>
        <translation>Páginas &amp;dobles:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 and %n more</source>
        <extracomment>As above, with some of the names.</extracomment>
        <translation>
            <numerusform>y %1 y %n más</numerusform>
            <numerusform>y %1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>and %1</source>
        <extracomment>Beneath the path of a file: those that are imported with it. %1 is a list of names.</extracomment>
        <translation>y %1</translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message>
        <source>Importing:%1/%2</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages.</extracomment>
        <translation>Importando: %1/%2</translation>
    </message>
    <message>
        <source>Page %1 could not be drawn: %2</source>
        <translation>No se pudo dibujar la página %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn.</source>
        <translation>
            <numerusform>No se pudo dibujar %n página más.</numerusform>
            <numerusform>No se pudieron dibujar %n páginas más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Page %1 could not be drawn completely: %2</source>
        <translation>No se pudo dibujar por completo la página %1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn completely.</source>
        <translation>
            <numerusform>No se pudo dibujar por completo %n página más.</numerusform>
            <numerusform>No se pudieron dibujar por completo %n páginas más.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a PDF document.</source>
        <translation>Elija un documento PDF.</translation>
    </message>
    <message>
        <source>Choose another document.</source>
        <translation>Elija otro documento.</translation>
    </message>
    <message>
        <source>Choose other pages or another document.</source>
        <translation>Elija otras páginas u otro documento.</translation>
    </message>
    <message>
        <source>Try again, or choose another document.</source>
        <translation>Inténtelo de nuevo o elija otro documento.</translation>
    </message>
    <message>
        <source>“%1” was imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«%1» se importó.</translation>
    </message>
    <message>
        <source>“%1” was not imported.</source>
        <extracomment>A notification of the desktop; %1 is the name of a file.</extracomment>
        <translation>«%1» no se importó.</translation>
    </message>
    <message>
        <source>Preparing the document…</source>
        <translation>Preparando el documento…</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were imported.</source>
        <translation>
            <numerusform>Se ha importado %n archivo.</numerusform>
            <numerusform>Se han importado %n archivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were not imported.</source>
        <translation>
            <numerusform>No se ha importado %n archivo.</numerusform>
            <numerusform>No se han importado %n archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice está creando las páginas…</translation>
    </message>
</context>
<context>
    <name>InputFiles</name>
    <message>
        <source>has no PDF and no picture</source>
        <translation>no contiene ningún PDF ni ninguna imagen</translation>
    </message>
    <message>
        <source>is no PDF, no picture and no document that LibreOffice turns into a PDF</source>
        <translation>no es un PDF, ni una imagen, ni un documento que LibreOffice convierta en PDF</translation>
    </message>
    <message>
        <source>is not on this computer; save it here first</source>
        <translation>no está en este equipo; guárdelo antes aquí</translation>
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
        <translation>queda menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>queda %n minuto aproximadamente</numerusform>
            <numerusform>quedan unos %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>queda %n hora aproximadamente</numerusform>
            <numerusform>quedan unas %n horas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Import PDF…</source>
        <translation>&amp;Importar PDF…</translation>
    </message>
    <message>
        <source>Import PDF</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Importar PDF</translation>
    </message>
    <message>
        <source>Make the book from a PDF document</source>
        <translation>Crear el libro a partir de un documento PDF</translation>
    </message>
    <message>
        <source>&amp;Publish the book…</source>
        <translation>&amp;Publicar el libro…</translation>
    </message>
    <message>
        <source>Publish</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Publicar</translation>
    </message>
    <message>
        <source>Write the finished book into a folder of your choice</source>
        <translation>Guardar el libro terminado en la carpeta que elija</translation>
    </message>
    <message>
        <source>Load settings that were saved to a file</source>
        <translation>Cargar ajustes guardados en un archivo</translation>
    </message>
    <message>
        <source>Save the settings to a file, to use them for other books</source>
        <translation>Guardar los ajustes en un archivo para usarlos en otros libros</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Apply the changes</source>
        <translation>&amp;Aplicar los cambios</translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Show the changed settings in the preview</source>
        <translation>Mostrar los ajustes modificados en la vista previa</translation>
    </message>
    <message>
        <source>Choose a &amp;template…</source>
        <translation>Elegir &amp;plantilla…</translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>Give the book another look</source>
        <translation>Dar otro aspecto al libro</translation>
    </message>
    <message>
        <source>&amp;Reload the preview</source>
        <translation>&amp;Recargar la vista previa</translation>
    </message>
    <message>
        <source>Folvero &amp;help</source>
        <translation>Ay&amp;uda de Folvero</translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;About Folvero</source>
        <translation>&amp;Acerca de Folvero</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Deshacer %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation>&amp;Rehacer %1</translation>
    </message>
    <message>
        <source>Like the &amp;system</source>
        <extracomment>The window is light or dark; this is one of the choices.</extracomment>
        <translation>Como el &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clara</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscura</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Tools</source>
        <extracomment>The name of the toolbar.</extracomment>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>Start a new project</source>
        <translation>Empezar un proyecto nuevo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Open a project that was saved</source>
        <translation>Abrir un proyecto guardado</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save the project, to go on with the book later</source>
        <translation>Guardar el proyecto para seguir más tarde con el libro</translation>
    </message>
    <message>
        <source>Save &amp;as…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Guardar el proyecto con otro nombre</translation>
    </message>
    <message>
        <source>Pa&amp;ges…</source>
        <translation>Págin&amp;as…</translation>
    </message>
    <message>
        <source>Pages</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Arrange, turn, remove and insert pages</source>
        <translation>Ordenar, girar, quitar e insertar páginas</translation>
    </message>
    <message>
        <source>&amp;Load look…</source>
        <translation>Cargar aspec&amp;to…</translation>
    </message>
    <message>
        <source>Save loo&amp;k…</source>
        <translation>Guardar aspect&amp;o…</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>&amp;Buscar un ajuste</translation>
    </message>
    <message>
        <source>Reset to &amp;default</source>
        <translation>Restablecer el &amp;valor predeterminado</translation>
    </message>
    <message>
        <source>R&amp;eset all settings</source>
        <translation>Restablecer &amp;todos los ajustes</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Abrir &amp;recientes</translation>
    </message>
    <message>
        <source>Save as a st&amp;yle…</source>
        <translation>Guardar como &amp;estilo…</translation>
    </message>
    <message>
        <source>Keep the settings as a style of your own among the templates</source>
        <translation>Conservar los ajustes como estilo propio entre las plantillas</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Settings of the template</source>
        <translation>Ajustes de la plantilla</translation>
    </message>
    <message>
        <source>Template of the book</source>
        <translation>Plantilla del libro</translation>
    </message>
    <message>
        <source>The template of the book; click to choose another</source>
        <translation>La plantilla del libro; haga clic para elegir otra</translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation>Seleccione un ajuste para leer qué hace.</translation>
    </message>
    <message>
        <source>What the selected setting does</source>
        <translation>Qué hace el ajuste seleccionado</translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Above the explanation of the selected setting, while none is selected.</extracomment>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Demo book</source>
        <translation>Libro de demostración</translation>
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
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Cerrar el mensaje</translation>
    </message>
</context>
<context>
    <name>NameWindow</name>
    <message>
        <source>&amp;Name of the style:</source>
        <translation>&amp;Nombre del estilo:</translation>
    </message>
</context>
<context>
    <name>OfficeDocument</name>
    <message>
        <source>needs LibreOffice, which is not installed</source>
        <translation>requiere LibreOffice, que no está instalado</translation>
    </message>
    <message>
        <source>was cancelled</source>
        <translation>se canceló</translation>
    </message>
    <message>
        <source>LibreOffice takes too long for it</source>
        <translation>LibreOffice tarda demasiado con él</translation>
    </message>
    <message>
        <source>LibreOffice can&apos;t make a PDF of it</source>
        <translation>LibreOffice no puede convertirlo en PDF</translation>
    </message>
</context>
<context>
    <name>OfficePages</name>
    <message>
        <source>LibreOffice is making the pages…</source>
        <translation>LibreOffice está creando las páginas…</translation>
    </message>
</context>
<context>
    <name>OutputWindow</name>
    <message>
        <source>Publish the book</source>
        <translation>Publicar el libro</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>without an ending, for example index</source>
        <extracomment>Shown in the empty field for the file&apos;s name.</extracomment>
        <translation>sin extensión, por ejemplo, index</translation>
    </message>
    <message>
        <source>shown in the browser&apos;s window</source>
        <extracomment>Shown in the empty field for the book&apos;s title.</extracomment>
        <translation>visible en la ventana del navegador</translation>
    </message>
    <message>
        <source>Kind of book:</source>
        <translation>Tipo de libro:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre del archivo:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>C&amp;lassic (pictures only)</source>
        <translation>C&amp;lásico (solo imágenes)</translation>
    </message>
    <message>
        <source>Application for the &amp;Mac</source>
        <translation>Aplicación para &amp;Mac</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <extracomment>Shows the chosen folder in the file manager.</extracomment>
        <translation>M&amp;ostrar</translation>
    </message>
    <message>
        <source>Opens the folder in the file manager</source>
        <translation>Abre la carpeta en el gestor de archivos</translation>
    </message>
    <message>
        <source>&amp;Embed:</source>
        <extracomment>Markup that shows the book inside another page.</extracomment>
        <translation>&amp;Incrustar:</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Copi&amp;ar</translation>
    </message>
    <message>
        <source>Copies the text for embedding the book</source>
        <translation>Copia el texto para incrustar el libro</translation>
    </message>
    <message>
        <source>Copy the text for embedding</source>
        <translation>Copiar el texto para incrustar</translation>
    </message>
    <message>
        <source>Web &amp;book</source>
        <translation>Libro &amp;web</translation>
    </message>
    <message>
        <source>For a web site: with contents, search and links; opens page by page</source>
        <translation>Para un sitio web: con índice, búsqueda y enlaces; se abre página a página</translation>
    </message>
    <message>
        <source>Web book in &amp;one file</source>
        <translation>Libro web en &amp;un solo archivo</translation>
    </message>
    <message>
        <source>To send by mail or to open from a memory stick</source>
        <translation>Para enviarlo por correo o abrirlo desde una memoria USB</translation>
    </message>
    <message>
        <source>For a quick look: made in less time, without contents, search and links</source>
        <translation>Para un vistazo: se crea más rápido, sin índice, búsqueda ni enlaces</translation>
    </message>
    <message>
        <source>For people with a Mac: one file that opens with a double-click</source>
        <translation>Para quien tiene un Mac: un archivo que se abre con un doble clic</translation>
    </message>
    <message>
        <source>Mo&amp;re options</source>
        <extracomment>Shows further fields beneath it.</extracomment>
        <translation>Más opcione&amp;s</translation>
    </message>
    <message>
        <source>for example https://example.org/book/</source>
        <extracomment>Shown in the empty field for the book&apos;s address on the web.</extracomment>
        <translation>por ejemplo, https://example.org/libro/</translation>
    </message>
    <message>
        <source>Where the book will be on the web: for search engines, previews of links, “Copy link” and the text for embedding</source>
        <translation>Dónde estará el libro en la web: para los buscadores, las vistas previas de enlaces, «Copiar enlace» y el texto para incrustar</translation>
    </message>
    <message>
        <source>all pages, or for example 1-12</source>
        <extracomment>Shown in the empty field for the pages of a reading sample.</extracomment>
        <translation>todas las páginas o, por ejemplo, 1-12</translation>
    </message>
    <message>
        <source>The pages that can be read, by their numbers in the document; the book contains nothing of the others</source>
        <translation>Las páginas que se pueden leer, por sus números en el documento; el libro no contiene nada de las demás</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <extracomment>The book&apos;s address on the web.</extracomment>
        <translation>&amp;Dirección:</translation>
    </message>
    <message>
        <source>Rea&amp;ding sample:</source>
        <extracomment>Some of the book&apos;s pages, as a foretaste.</extracomment>
        <translation>Muest&amp;ra:</translation>
    </message>
    <message>
        <source>Shows the book inside another page: put this into that page. %1 stands for the book&apos;s address until that is given above.</source>
        <translation>Muestra el libro dentro de otra página: inserte esto en ella. %1 ocupa el lugar de la dirección del libro hasta que se indique arriba.</translation>
    </message>
</context>
<context>
    <name>OutputWindowDelegate</name>
    <message>
        <source>The book was not published</source>
        <translation>El libro no se publicó</translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation>¿Abrir el libro publicado?</translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation>El libro se ha publicado. ¿Desea abrirlo ahora?</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <extracomment>The button of a panel that asks for a folder.</extracomment>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>The book is not complete</source>
        <translation>El libro no está completo</translation>
    </message>
    <message>
        <source>These pages have no picture and stay empty: %1. If the document itself is sound, import it again, then publish once more.</source>
        <translation>Estas páginas no tienen imagen y quedan vacías: %1. Si el documento en sí está bien, impórtelo de nuevo y vuelva a publicar el libro.</translation>
    </message>
    <message>
        <source>Replace what is already there?</source>
        <translation>¿Reemplazar lo que ya hay?</translation>
    </message>
    <message>
        <source>This is not part of a book and would be lost:</source>
        <translation>Esto no forma parte de ningún libro y se perdería:</translation>
    </message>
    <message>
        <source>The book in %1 would be lost.</source>
        <translation>Se perdería el libro que hay en %1.</translation>
    </message>
    <message>
        <source>The book “%1” in %2 would be lost.</source>
        <translation>Se perdería el libro «%1» que hay en %2.</translation>
    </message>
    <message>
        <source>Include the document&apos;s text?</source>
        <translation>¿Incluir el texto del documento?</translation>
    </message>
    <message>
        <source>The document forbids copying its text. Without text the book can&apos;t be searched, and its words can&apos;t be selected or read aloud.</source>
        <translation>El documento prohíbe copiar su texto. Sin texto, no se podrá buscar en el libro ni seleccionar sus palabras o leerlas en voz alta.</translation>
    </message>
    <message>
        <source>Readers can&apos;t download the document</source>
        <translation>Los lectores no podrán descargar el documento</translation>
    </message>
    <message>
        <source>The settings offer it for download, but %1.</source>
        <extracomment>%1 is a reason, such as &quot;it opens with a password only&quot;</extracomment>
        <translation>Los ajustes permiten descargarlo, pero %1.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>No se pudo crear la carpeta %1: %2</translation>
    </message>
    <message>
        <source>Choose another folder, or make room in this one, and publish again: what you have typed is kept.</source>
        <translation>Elija otra carpeta, o libere espacio en esta, y publique de nuevo: se conserva lo que ha escrito.</translation>
    </message>
    <message>
        <source>These files are missing. The book was published without them.</source>
        <translation>Faltan estos archivos. El libro se publicó sin ellos.</translation>
    </message>
    <message>
        <source>Choose others in the settings, or clear the fields, and publish again.</source>
        <translation>Elija otros en los ajustes o vacíe los campos, y publique de nuevo.</translation>
    </message>
    <message>
        <source>The book was not published.</source>
        <translation>El libro no se publicó.</translation>
    </message>
    <message>
        <source>The book was published.</source>
        <extracomment>A notification of the desktop, for users who look elsewhere.</extracomment>
        <translation>El libro se publicó.</translation>
    </message>
    <message>
        <source>The address must be that of a folder or page, such as https://example.org/book/, without “?” and “#”.</source>
        <translation>La dirección debe ser la de una carpeta o una página, como https://example.org/libro/, sin «?» ni «#».</translation>
    </message>
</context>
<context>
    <name>OwnStyles</name>
    <message>
        <source>The template itself has a style “%1”. Choose another name.</source>
        <translation>La propia plantilla tiene un estilo «%1». Elija otro nombre.</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>Escriba un nombre.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, contain a slash, or be very long.</source>
        <translation>Un nombre no puede empezar por un punto, contener una barra ni ser muy largo.</translation>
    </message>
    <message>
        <source>The file %1 contains no settings.</source>
        <translation>El archivo %1 no contiene ajustes.</translation>
    </message>
    <message>
        <source>There is a style “%1” already. Choose another name.</source>
        <translation>Ya hay un estilo «%1». Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>PDFDocument</name>
    <message>
        <source>page %1 does not exist; the document has %2</source>
        <translation>la página %1 no existe; el documento tiene %2</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>is a folder, not a PDF file</source>
        <translation>es una carpeta, no un archivo PDF</translation>
    </message>
    <message>
        <source>is a pipe or a device, not a PDF file</source>
        <translation>es una tubería o un dispositivo, no un archivo PDF</translation>
    </message>
    <message>
        <source>can&apos;t be read (%1)</source>
        <translation>no se puede leer (%1)</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>is not a PDF document</source>
        <translation>no es un documento PDF</translation>
    </message>
    <message>
        <source>is damaged beyond repair (%1)</source>
        <translation>está demasiado dañado para repararlo (%1)</translation>
    </message>
    <message>
        <source>is protected by a password</source>
        <translation>está protegido con contraseña</translation>
    </message>
    <message>
        <source>the password is wrong</source>
        <translation>la contraseña no es correcta</translation>
    </message>
    <message>
        <source>the file was changed after reading it had begun</source>
        <translation>el archivo se modificó después de empezar a leerlo</translation>
    </message>
    <message>
        <source>is encrypted in an unknown way (%1)</source>
        <translation>está cifrado de un modo desconocido (%1)</translation>
    </message>
    <message>
        <source>its pages can&apos;t be found (%1)</source>
        <translation>no se encuentran sus páginas (%1)</translation>
    </message>
    <message>
        <source>was changed while it was read</source>
        <translation>se modificó durante la lectura</translation>
    </message>
    <message>
        <source>can&apos;t be merged with others (%1)</source>
        <translation>no se puede combinar con otros (%1)</translation>
    </message>
    <message>
        <source>is too damaged to be merged with others</source>
        <translation>está demasiado dañado para combinarlo con otros</translation>
    </message>
    <message>
        <source>has no page %1</source>
        <translation>no tiene la página %1</translation>
    </message>
    <message>
        <source>is neither a PDF nor a picture</source>
        <translation>no es un PDF ni una imagen</translation>
    </message>
    <message>
        <source>the picture can&apos;t be read (%1)</source>
        <translation>no se puede leer la imagen (%1)</translation>
    </message>
</context>
<context>
    <name>PDFReader</name>
    <message>
        <source>what was read of it makes no sense</source>
        <translation>lo que se leyó del archivo no tiene sentido</translation>
    </message>
    <message>
        <source>the program that reads PDF files broke off at it</source>
        <translation>el programa que lee los archivos PDF falló con este</translation>
    </message>
    <message>
        <source>reading it was stopped</source>
        <translation>se interrumpió la lectura</translation>
    </message>
    <message>
        <source>reading it took too long</source>
        <translation>la lectura tardó demasiado</translation>
    </message>
    <message>
        <source>the program that reads PDF files can&apos;t be started</source>
        <translation>no se puede iniciar el programa que lee los archivos PDF</translation>
    </message>
</context>
<context>
    <name>PageFailure</name>
    <message>
        <source>drawing it was stopped</source>
        <translation>se interrumpió el dibujo</translation>
    </message>
    <message>
        <source>drawing it took too long</source>
        <translation>el dibujo tardó demasiado</translation>
    </message>
    <message>
        <source>the program that draws pages ended at this page</source>
        <translation>el programa que dibuja las páginas se cerró en esta página</translation>
    </message>
    <message>
        <source>it takes more memory than a page may have</source>
        <translation>necesita más memoria de la que se permite a una página</translation>
    </message>
    <message>
        <source>the program that draws pages can&apos;t be started</source>
        <translation>no se puede iniciar el programa que dibuja las páginas</translation>
    </message>
    <message>
        <source>it was not drawn</source>
        <translation>no se dibujó</translation>
    </message>
    <message>
        <source>an image can&apos;t be read completely</source>
        <translation>una imagen no se puede leer por completo</translation>
    </message>
    <message>
        <source>a font can&apos;t be read</source>
        <translation>no se puede leer un tipo de letra</translation>
    </message>
    <message>
        <source>some of its data is damaged</source>
        <translation>parte de sus datos está dañada</translation>
    </message>
    <message>
        <source>the program that draws pages wrote more than pages need</source>
        <translation>el programa que dibuja las páginas escribió más de lo que estas necesitan</translation>
    </message>
    <message>
        <source>the program that draws pages wrote a file that is none of a page</source>
        <translation>el programa que dibuja las páginas escribió un archivo que no es de una página</translation>
    </message>
</context>
<context>
    <name>PageListText</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>A run of page numbers.</extracomment>
        <translation>%1 a %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>Follows page numbers.</extracomment>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageRange</name>
    <message>
        <source>the page range &quot;%1&quot; names %2 pages</source>
        <translation>el intervalo de páginas «%1» abarca %2 páginas</translation>
    </message>
</context>
<context>
    <name>PagesModel</name>
    <message numerus="yes">
        <source>turning of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>el giro de %n página</numerusform>
            <numerusform>el giro de %n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removal of %n page(s)</source>
        <translation>
            <numerusform>la eliminación de %n página</numerusform>
            <numerusform>la eliminación de %n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>el traslado de %n página</numerusform>
            <numerusform>el traslado de %n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>blank page</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>la página en blanco</translation>
    </message>
    <message numerus="yes">
        <source>insertion of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>la inserción de %n página</numerusform>
            <numerusform>la inserción de %n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>Página en blanco</translation>
    </message>
    <message>
        <source>%1, page %2</source>
        <extracomment>%1 is a file&apos;s name, %2 a page number in it.</extracomment>
        <translation>%1, página %2</translation>
    </message>
    <message>
        <source>Page %1: %2</source>
        <extracomment>%1 is a page number in the book, %2 where the page comes from.</extracomment>
        <translation>Página %1: %2</translation>
    </message>
</context>
<context>
    <name>PagesWindow</name>
    <message>
        <source>The book&apos;s pages</source>
        <translation>Las páginas del libro</translation>
    </message>
    <message>
        <source>&amp;Use these pages</source>
        <extracomment>The book is made of these pages, in this order.</extracomment>
        <translation>&amp;Usar estas páginas</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Insert…</source>
        <extracomment>Beneath a picture in the toolbar, as the others here: short.</extracomment>
        <translation>Insertar…</translation>
    </message>
    <message>
        <source>Blank page</source>
        <translation>En blanco</translation>
    </message>
    <message>
        <source>Insert a blank page before the selected one</source>
        <translation>Insertar una página en blanco antes de la seleccionada</translation>
    </message>
    <message>
        <source>Turn left</source>
        <translation>A la izquierda</translation>
    </message>
    <message>
        <source>Turn the selected pages to the left</source>
        <translation>Girar las páginas seleccionadas a la izquierda</translation>
    </message>
    <message>
        <source>Turn right</source>
        <translation>A la derecha</translation>
    </message>
    <message>
        <source>Turn the selected pages to the right</source>
        <translation>Girar las páginas seleccionadas a la derecha</translation>
    </message>
    <message>
        <source>Earlier</source>
        <translation>Adelantar</translation>
    </message>
    <message>
        <source>Move the selected pages towards the beginning</source>
        <translation>Mover las páginas seleccionadas hacia el principio</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Atrasar</translation>
    </message>
    <message>
        <source>Move the selected pages towards the end</source>
        <translation>Mover las páginas seleccionadas hacia el final</translation>
    </message>
    <message>
        <source>As cover</source>
        <extracomment>The selected page becomes the book&apos;s cover.</extracomment>
        <translation>Como portada</translation>
    </message>
    <message>
        <source>Move the selected page to the front of the book</source>
        <translation>Mover la página seleccionada al principio del libro</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Take the selected pages out of the book</source>
        <translation>Quitar del libro las páginas seleccionadas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Insert PDFs, pictures and documents before the selected page</source>
        <translation>Insertar archivos PDF, imágenes y documentos antes de la página seleccionada</translation>
    </message>
</context>
<context>
    <name>PagesWindowDelegate</name>
    <message>
        <source>Insert pages</source>
        <translation>Insertar páginas</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n seleccionada</numerusform>
            <numerusform>%n seleccionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>PDFs, pictures and documents for LibreOffice (%1)</source>
        <extracomment>%1 are the patterns of their names.</extracomment>
        <translation>Archivos PDF, imágenes y documentos para LibreOffice (%1)</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Open it</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>About Folvero</source>
        <translation>Acerca de Folvero</translation>
    </message>
    <message>
        <source>Turns PDF documents into page-flip books for every browser.

Free software under the GNU Affero General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Convierte documentos PDF en libros para hojear en cualquier navegador.

Software libre bajo la Licencia Pública General Affero de GNU, versión 3 o posterior. Se ofrece sin ninguna garantía.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>Con texto</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>Sin texto</translation>
    </message>
    <message>
        <source>Choose a PDF document</source>
        <translation>Elegir un documento PDF</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documentos PDF</translation>
    </message>
    <message>
        <source>Load settings</source>
        <translation>Cargar ajustes</translation>
    </message>
    <message>
        <source>Save settings</source>
        <translation>Guardar ajustes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Elegir una imagen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Choose a sound</source>
        <translation>Elegir un sonido</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Elegir un archivo</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Guardar un archivo</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Elegir un color</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Elegir una carpeta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Documents for LibreOffice</source>
        <extracomment>Documents that LibreOffice can turn into PDFs: texts, presentations, sheets.</extracomment>
        <translation>Documentos para LibreOffice</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Abrir un proyecto</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guardar el proyecto</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Proyectos</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <extracomment>Opens the document with the password that was typed.</extracomment>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>This password does not open it.</source>
        <translation>Esta contraseña no lo abre.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>“%1” is protected by a password.</source>
        <extracomment>%1 is the name of a PDF.</extracomment>
        <translation>«%1» está protegido con contraseña.</translation>
    </message>
</context>
<context>
    <name>PreviewPane</name>
    <message>
        <source>Size of the preview</source>
        <extracomment>What a screen reader says when it comes to the buttons Window, Desktop, Tablet and Phone.</extracomment>
        <translation>Tamaño de la vista previa</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>A size of the preview: all the space that the window has for it.</extracomment>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Show the book in all the space there is</source>
        <translation>Mostrar el libro en todo el espacio disponible</translation>
    </message>
    <message>
        <source>Desktop</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Ordenador</translation>
    </message>
    <message>
        <source>Show the book as on a desktop screen</source>
        <translation>Mostrar el libro como en la pantalla de un ordenador</translation>
    </message>
    <message>
        <source>Tablet</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Tableta</translation>
    </message>
    <message>
        <source>Show the book as on a tablet</source>
        <translation>Mostrar el libro como en una tableta</translation>
    </message>
    <message>
        <source>Phone</source>
        <extracomment>A size of the preview.</extracomment>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Show the book as on a phone</source>
        <translation>Mostrar el libro como en un teléfono</translation>
    </message>
    <message>
        <source>Turn</source>
        <extracomment>Turns the tablet or phone of the preview on its side.</extracomment>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Turn the tablet or phone on its side</source>
        <translation>Poner la tableta o el teléfono en horizontal</translation>
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
        <translation>Vista previa del libro</translation>
    </message>
    <message>
        <source>Reload the preview</source>
        <translation>Recargar la vista previa</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>no such file</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>is no project</source>
        <translation>no es un proyecto</translation>
    </message>
    <message>
        <source>%1 was not found; it was looked for at: %2</source>
        <translation>no se encontró %1; se buscó en: %2</translation>
    </message>
    <message>
        <source>was changed after the project was saved</source>
        <translation>se modificó después de guardar el proyecto</translation>
    </message>
    <message>
        <source>is damaged at “%1”</source>
        <translation>está dañado en «%1»</translation>
    </message>
    <message>
        <source>was saved by a newer version of Folvero (format %1; this version reads format %2)</source>
        <translation>se guardó con una versión más reciente de Folvero (formato %1; esta versión lee el formato %2)</translation>
    </message>
    <message>
        <source>is damaged</source>
        <translation>está dañado</translation>
    </message>
</context>
<context>
    <name>ProjectSession</name>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>¿Guardar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>Without saving they are lost.</source>
        <translation>Si no los guarda, se perderán.</translation>
    </message>
    <message>
        <source>The project was not opened.</source>
        <translation>El proyecto no se abrió.</translation>
    </message>
    <message>
        <source>The pages can&apos;t be arranged.</source>
        <translation>No se pueden ordenar las páginas.</translation>
    </message>
    <message>
        <source>The project is not as it was saved.</source>
        <translation>El proyecto ya no está como se guardó.</translation>
    </message>
    <message>
        <source>The project was not saved to %1.</source>
        <translation>El proyecto no se guardó en %1.</translation>
    </message>
    <message>
        <source>a book that was not saved</source>
        <translation>un libro sin guardar</translation>
    </message>
    <message>
        <source>Recover the changes to “%1”?</source>
        <translation>¿Recuperar los cambios de «%1»?</translation>
    </message>
    <message>
        <source>Folvero ended before they were saved, last on %1.</source>
        <translation>Folvero se cerró antes de que se guardaran; son del %1.</translation>
    </message>
    <message>
        <source>Save the pages of “%1” first?</source>
        <translation>¿Guardar primero las páginas de «%1»?</translation>
    </message>
    <message>
        <source>The document that you import takes the place of the pages that you have put together. Without saving they are lost.</source>
        <translation>El documento que importa ocupa el lugar de las páginas que ha reunido. Si no las guarda, se pierden.</translation>
    </message>
</context>
<context>
    <name>PropertyCellDelegate</name>
    <message>
        <source>Changed. Click to make it empty again.</source>
        <extracomment>%1 is the value that a setting had before it was changed.</extracomment>
        <translation>Modificado. Haga clic para volver a dejarlo vacío.</translation>
    </message>
    <message>
        <source>Changed. Click to set it back to %1.</source>
        <translation>Modificado. Haga clic para restablecerlo a %1.</translation>
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
        <translation>Página %1 de %2 – %3</translation>
    </message>
    <message>
        <source>Making the pages of the book…</source>
        <translation>Creando las páginas del libro…</translation>
    </message>
    <message>
        <source>Writing the book…</source>
        <translation>Escribiendo el libro…</translation>
    </message>
</context>
<context>
    <name>PublisherChoices</name>
    <message>
        <source>it opens with a password only</source>
        <translation>solo se abre con contraseña</translation>
    </message>
</context>
<context>
    <name>ReadingSample</name>
    <message>
        <source>The reading sample needs numbers of pages, such as 1-12, and not “%1”.</source>
        <translation>La muestra necesita números de página, como 1-12, y no «%1».</translation>
    </message>
    <message>
        <source>The book has none of the pages of the reading sample.</source>
        <translation>El libro no tiene ninguna de las páginas de la muestra.</translation>
    </message>
</context>
<context>
    <name>ResultBar</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copiar enlace</translation>
    </message>
    <message>
        <source>Copy embed text</source>
        <extracomment>The text embeds the book in another page.</extracomment>
        <translation>Copiar inserción</translation>
    </message>
    <message>
        <source>Publish again</source>
        <translation>Publicar de nuevo</translation>
    </message>
    <message>
        <source>Published book</source>
        <extracomment>What a screen reader says when it comes to the bar after a publish.</extracomment>
        <translation>Libro publicado</translation>
    </message>
    <message>
        <source>Opens the book in the program that usually shows it</source>
        <translation>Abre el libro en el programa que suele mostrarlo</translation>
    </message>
    <message>
        <source>Publishes the book as it is now, with the same choices</source>
        <translation>Publica el libro tal como está ahora, con las mismas opciones</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Cerrar el mensaje</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiado: %1</translation>
    </message>
    <message>
        <source>“%1” was published</source>
        <translation>«%1» se ha publicado</translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindow</name>
    <message>
        <source>Choose a template</source>
        <translation>Elegir plantilla</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Looks for templates that were added or repaired meanwhile (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Busca plantillas añadidas o reparadas entretanto (%1)</translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation>&amp;Plantillas</translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation>&amp;Estilos</translation>
    </message>
    <message>
        <source>Templates</source>
        <translation>Plantillas</translation>
    </message>
    <message>
        <source>There are no templates.</source>
        <translation>No hay plantillas.</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Estilos</translation>
    </message>
    <message>
        <source>This template has no styles.</source>
        <translation>Esta plantilla no tiene estilos.</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Cambiar &amp;nombre…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>E&amp;liminar…</translation>
    </message>
    <message>
        <source>Gives a style of your own another name (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Da otro nombre a un estilo propio (%1)</translation>
    </message>
    <message>
        <source>Deletes a style of your own (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation>Elimina un estilo propio (%1)</translation>
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
        <translation>Falta su archivo %1.</translation>
    </message>
    <message>
        <source>The template %1 is not in the library.</source>
        <extracomment>%1 is the template&apos;s name in quotation marks.</extracomment>
        <translation>La plantilla %1 no está en la biblioteca.</translation>
    </message>
    <message>
        <source>The template %1 cannot be used. %2</source>
        <extracomment>%1 is the template&apos;s name in quotation marks, %2 a sentence that tells why.</extracomment>
        <translation>La plantilla %1 no se puede usar. %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation>
            <numerusform>Hay %n más que no se puede usar.</numerusform>
            <numerusform>Hay %n más que no se pueden usar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the style</source>
        <extracomment>The button that gives a style another name.</extracomment>
        <translation>Cambiar el nombre del estilo</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>The style “%1” cannot be used. %2</source>
        <extracomment>%1 is the style&apos;s name, %2 a sentence that tells why.</extracomment>
        <translation>El estilo «%1» no se puede usar. %2</translation>
    </message>
    <message>
        <source>Delete the style “%1”?</source>
        <translation>¿Eliminar el estilo «%1»?</translation>
    </message>
    <message>
        <source>Books and projects that have it keep their look.</source>
        <translation>Los libros y proyectos que lo tienen conservan su aspecto.</translation>
    </message>
    <message>
        <source>The style was not deleted. %1</source>
        <translation>El estilo no se eliminó. %1</translation>
    </message>
</context>
<context>
    <name>SettingsReset</name>
    <message>
        <source>reset of all settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>el restablecimiento de todos los ajustes</translation>
    </message>
    <message>
        <source>reset of “%1”</source>
        <extracomment>Stands in &quot;Undo %1&quot;; %1 is the title of a group of settings.</extracomment>
        <translation>el restablecimiento de «%1»</translation>
    </message>
    <message>
        <source>&amp;Reset “%1”</source>
        <extracomment>%1 is the title of a setting or of a group of settings.</extracomment>
        <translation>&amp;Restablecer «%1»</translation>
    </message>
    <message>
        <source>Reset the &amp;group “%1”</source>
        <extracomment>%1 is the title of a group of settings.</extracomment>
        <translation>Restablecer el &amp;grupo «%1»</translation>
    </message>
    <message>
        <source>Reset &amp;all settings</source>
        <translation>Restablecer &amp;todos los ajustes</translation>
    </message>
</context>
<context>
    <name>SettingsSearch</name>
    <message>
        <source>Search the settings</source>
        <translation>Buscar en los ajustes</translation>
    </message>
    <message>
        <source>Show all settings</source>
        <translation>Mostrar todos los ajustes</translation>
    </message>
    <message>
        <source>Show all settings (Esc)</source>
        <translation>Mostrar todos los ajustes (Esc)</translation>
    </message>
    <message>
        <source>No setting has “%1”.</source>
        <translation>Ningún ajuste contiene «%1».</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>StartPanel</name>
    <message>
        <source>Choose a file…</source>
        <translation>Elegir un archivo…</translation>
    </message>
    <message>
        <source>How to begin</source>
        <extracomment>What a screen reader says when it comes to the part of the window that says how to begin.</extracomment>
        <translation>Cómo empezar</translation>
    </message>
    <message>
        <source>Drop a PDF or a folder of pictures here</source>
        <translation>Suelte aquí un PDF o una carpeta de imágenes</translation>
    </message>
    <message>
        <source>Or play with the demo book below: turn its pages, try templates and settings.</source>
        <translation>O juegue con el libro de demostración de abajo: pase sus páginas, pruebe plantillas y ajustes.</translation>
    </message>
    <message>
        <source>Make the book from a PDF, a picture or a text</source>
        <translation>Hacer el libro a partir de un PDF, una imagen o un texto</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>Cerrar este aviso</translation>
    </message>
    <message>
        <source>Open %1 again</source>
        <extracomment>What a screen reader says for a file that was opened before.</extracomment>
        <translation>Volver a abrir %1</translation>
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
        <translation>Liso</translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation>Medianoche</translation>
    </message>
    <message>
        <source>Projector</source>
        <translation>Proyector</translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation>Terciopelo</translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation>Cianotipo</translation>
    </message>
    <message>
        <source>Boardroom</source>
        <translation>Sala de juntas</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Luminoso</translation>
    </message>
    <message>
        <source>Chalkboard</source>
        <translation>Pizarra escolar</translation>
    </message>
    <message>
        <source>Beach</source>
        <translation>Playa</translation>
    </message>
    <message>
        <source>Green baize</source>
        <translation>Tapete verde</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lino</translation>
    </message>
    <message>
        <source>Oak</source>
        <translation>Roble</translation>
    </message>
    <message>
        <source>Slate</source>
        <translation>Pizarra natural</translation>
    </message>
    <message>
        <source>Garden</source>
        <translation>Jardín</translation>
    </message>
    <message>
        <source>Rainy window</source>
        <translation>Ventana con lluvia</translation>
    </message>
    <message>
        <source>Watercolour</source>
        <translation>Acuarela</translation>
    </message>
    <message>
        <source>Writing desk</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Blush</source>
        <translation>Rosa pálido</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Morning light</source>
        <translation>Luz de la mañana</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>Arena</translation>
    </message>
</context>
<context>
    <name>StyleSaver</name>
    <message>
        <source>Save as a style</source>
        <extracomment>The button that saves a style.</extracomment>
        <translation>Guardar como estilo</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Replace the style “%1”?</source>
        <translation>¿Reemplazar el estilo «%1»?</translation>
    </message>
    <message>
        <source>You have saved a style of this name before. Its settings would be lost.</source>
        <translation>Ya ha guardado un estilo con este nombre. Sus ajustes se perderían.</translation>
    </message>
    <message>
        <source>The style was not saved. %1</source>
        <translation>El estilo no se guardó. %1</translation>
    </message>
</context>
<context>
    <name>SystemError</name>
    <message>
        <source>Unknown error %1</source>
        <translation>Error desconocido %1</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operación no permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>El archivo o la carpeta no existe</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Error de entrada/salida</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>El dispositivo o la dirección no existe</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>No se puede asignar memoria</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Dispositivo o recurso ocupado</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>Invalid cross-device link</source>
        <translation>Enlace entre dispositivos no válido</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>El dispositivo no existe</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>No es una carpeta</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Es una carpeta</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Argumento no válido</translation>
    </message>
    <message>
        <source>Too many open files in system</source>
        <translation>Demasiados archivos abiertos en el sistema</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Text file busy</source>
        <translation>Archivo de programa en uso</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>No queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Too many links</source>
        <translation>Demasiados enlaces</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Nombre de archivo demasiado largo</translation>
    </message>
    <message>
        <source>Directory not empty</source>
        <translation>La carpeta no está vacía</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Demasiados niveles de enlaces simbólicos</translation>
    </message>
    <message>
        <source>Invalid or incomplete multibyte or wide character</source>
        <translation>Carácter multibyte o ancho no válido o incompleto</translation>
    </message>
    <message>
        <source>Operation not supported</source>
        <translation>Operación no admitida</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Se agotó el tiempo de espera de la conexión</translation>
    </message>
    <message>
        <source>Host is down</source>
        <translation>El equipo remoto no está en funcionamiento</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>No hay ruta hasta el equipo remoto</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>Identificador de archivo obsoleto</translation>
    </message>
    <message>
        <source>Remote I/O error</source>
        <translation>Error de entrada/salida remota</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Cuota de disco superada</translation>
    </message>
</context>
<context>
    <name>TemplateFile</name>
    <message>
        <source>the encoding &quot;%1&quot; is not known</source>
        <translation>la codificación «%1» es desconocida</translation>
    </message>
    <message>
        <source>is not in the encoding &quot;%1&quot; that it declares</source>
        <translation>no está en la codificación «%1» que declara</translation>
    </message>
    <message>
        <source>its entities stand for too much text or for themselves</source>
        <translation>sus entidades representan demasiado texto o se representan a sí mismas</translation>
    </message>
    <message>
        <source>root element</source>
        <translation>el elemento raíz</translation>
    </message>
    <message>
        <source>&quot;info&quot; element</source>
        <translation>el elemento «info»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element</source>
        <translation>el elemento «property»</translation>
    </message>
    <message>
        <source>&quot;property&quot; element of key &quot;%1&quot;</source>
        <translation>el elemento «property» con la clave «%1»</translation>
    </message>
    <message>
        <source>properties are nested more than %1 deep</source>
        <translation>las propiedades están anidadas a más de %1 niveles</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>%1 lacks its &quot;%2&quot; element</source>
        <extracomment>%1 is another element of the file.</extracomment>
        <translation>en %1 falta el elemento «%2»</translation>
    </message>
</context>
<context>
    <name>TemplateName</name>
    <message>
        <source>Cinema</source>
        <translation>Cine</translation>
    </message>
    <message>
        <source>Deck</source>
        <translation>Diapositivas</translation>
    </message>
    <message>
        <source>Desk</source>
        <translation>Mesa</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flotante</translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation>Galería</translation>
    </message>
</context>
<context>
    <name>TemplateProperty</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>The paper and the direction of reading.</source>
        <translation>El papel y el sentido de lectura.</translation>
    </message>
    <message>
        <source>Paper colour</source>
        <translation>Color del papel</translation>
    </message>
    <message>
        <source>The colour of the paper, seen where the picture of a page does not cover it.</source>
        <translation>El color del papel, que se ve donde la imagen de una página no lo cubre.</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De derecha a izquierda</translation>
    </message>
    <message>
        <source>The book begins at the right, as books in Arabic, Hebrew or Japanese do.</source>
        <translation>El libro empieza por la derecha, como los libros en árabe, hebreo o japonés.</translation>
    </message>
    <message>
        <source>Read from right to left</source>
        <translation>Leer de derecha a izquierda</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Paso de página</translation>
    </message>
    <message>
        <source>How the pages move, and whether they move by themselves.</source>
        <translation>Cómo se mueven las páginas y si lo hacen por sí solas.</translation>
    </message>
    <message>
        <source>Turning time</source>
        <translation>Tiempo de paso</translation>
    </message>
    <message>
        <source>How many seconds a page takes to turn.</source>
        <translation>Cuántos segundos tarda en pasar una página.</translation>
    </message>
    <message>
        <source>Lifting time</source>
        <translation>Tiempo de elevación</translation>
    </message>
    <message>
        <source>How many seconds a page takes to lift under the pointer, and to fall back when it is let go.</source>
        <translation>Cuántos segundos tarda una página en levantarse bajo el puntero y en volver a caer al soltarla.</translation>
    </message>
    <message>
        <source>Opening</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>How the book comes in when it is opened.</source>
        <translation>Cómo aparece el libro al abrirlo.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Aparición gradual</translation>
    </message>
    <message>
        <source>Rise</source>
        <translation>Ascenso</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Caída</translation>
    </message>
    <message>
        <source>Play by itself</source>
        <translation>Paso automático</translation>
    </message>
    <message>
        <source>The pages turn by themselves from the start, until the reader stops them in the bar.</source>
        <translation>Las páginas pasan solas desde el principio, hasta que el lector las detiene en la barra.</translation>
    </message>
    <message>
        <source>Turn pages automatically</source>
        <translation>Avance automático</translation>
    </message>
    <message>
        <source>Pause between pages</source>
        <translation>Pausa entre páginas</translation>
    </message>
    <message>
        <source>How many seconds each page stays while the book plays by itself.</source>
        <translation>Cuántos segundos permanece cada página durante el paso automático.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>A book that plays by itself begins again after its last page.</source>
        <translation>Con el paso automático, el libro vuelve a empezar después de la última página.</translation>
    </message>
    <message>
        <source>Start over at the end</source>
        <translation>Volver a empezar al final</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>The bar, the caption and the margins around the book.</source>
        <translation>La barra, el rótulo y los márgenes alrededor del libro.</translation>
    </message>
    <message>
        <source>Bar colour</source>
        <translation>Color de la barra</translation>
    </message>
    <message>
        <source>The colour of the bar, the arrows and the row of small pages; the signs on it turn dark or light to suit.</source>
        <translation>El color de la barra, de las flechas y de la fila de miniaturas; los símbolos se vuelven oscuros o claros según convenga.</translation>
    </message>
    <message>
        <source>Hide the bar</source>
        <translation>Ocultar la barra</translation>
    </message>
    <message>
        <source>Readers see no bar and no arrows, and turn pages with pointer, finger or keys.</source>
        <translation>Los lectores no ven ni barra ni flechas, y pasan las páginas con el ratón, el dedo o el teclado.</translation>
    </message>
    <message>
        <source>Show no bar and no arrows</source>
        <translation>Sin barra ni flechas</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>A short text in the lower left corner, or an address that begins with https:// and becomes a link.</source>
        <translation>Un texto breve en la esquina inferior izquierda, o una dirección que empieza por https:// y se convierte en enlace.</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margen superior</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen above the inner one.</source>
        <translation>Cuántos píxeles del fondo exterior se ven por encima del interior.</translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation>Margen inferior</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen below the inner one.</source>
        <translation>Cuántos píxeles del fondo exterior se ven por debajo del interior.</translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation>Margen izquierdo</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the left of the inner one.</source>
        <translation>Cuántos píxeles del fondo exterior se ven a la izquierda del interior.</translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation>Margen derecho</translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the right of the inner one.</source>
        <translation>Cuántos píxeles del fondo exterior se ven a la derecha del interior.</translation>
    </message>
    <message>
        <source>Outer background</source>
        <translation>Fondo exterior</translation>
    </message>
    <message>
        <source>What fills the whole window; it is seen where the margins leave it free.</source>
        <translation>Lo que llena toda la ventana; se ve donde los márgenes lo dejan libre.</translation>
    </message>
    <message>
        <source>First colour</source>
        <translation>Primer color</translation>
    </message>
    <message>
        <source>The colour in which the background begins.</source>
        <translation>El color en el que empieza el fondo.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Segundo color</translation>
    </message>
    <message>
        <source>The colour into which the first one passes; choose the same twice for a plain background.</source>
        <translation>El color en el que se convierte el primero; elija dos veces el mismo para un fondo liso.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Where the second colour lies, in degrees: 0 is at the right, 90 at the bottom, 180 at the left.</source>
        <translation>Dónde está el segundo color, en grados: 0 es a la derecha, 90 abajo y 180 a la izquierda.</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>A picture that lies over the two colours.</source>
        <translation>Una imagen que se coloca sobre los dos colores.</translation>
    </message>
    <message>
        <source>Picture position</source>
        <translation>Posición de la imagen</translation>
    </message>
    <message>
        <source>Where the picture lies and how it fills the background.</source>
        <translation>Dónde se coloca la imagen y cómo llena el fondo.</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>Mosaico</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Inner background</source>
        <translation>Fondo interior</translation>
    </message>
    <message>
        <source>What the book lies on, inside the margins.</source>
        <translation>Sobre qué descansa el libro, dentro de los márgenes.</translation>
    </message>
    <message>
        <source>Background sound</source>
        <translation>Sonido de fondo</translation>
    </message>
    <message>
        <source>Music or a sound that accompanies the reader.</source>
        <translation>Música o un sonido que acompaña la lectura.</translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation>Archivo de sonido</translation>
    </message>
    <message>
        <source>An MP3 file that begins to play with the reader&apos;s first click or key.</source>
        <translation>Un archivo MP3 que empieza a sonar cuando el lector hace el primer clic o pulsa la primera tecla.</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Repeticiones</translation>
    </message>
    <message>
        <source>How many times the sound is played; -1 plays it on and on.</source>
        <translation>Cuántas veces se reproduce el sonido; con -1 se repite sin fin.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>What is known of the imported document, to be read only.</source>
        <translation>Lo que se sabe del documento importado; solo de lectura.</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Ancho de página</translation>
    </message>
    <message>
        <source>The width of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>El ancho de las páginas del documento en puntos, anotado al importar; un libro toma su forma de sus páginas, así que cambiarlo aquí no tiene efecto.</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Alto de página</translation>
    </message>
    <message>
        <source>The height of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation>El alto de las páginas del documento en puntos, anotado al importar; un libro toma su forma de sus páginas, así que cambiarlo aquí no tiene efecto.</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editorial</translation>
    </message>
    <message>
        <source>Your logo and colour, how the book opens, and what readers may take with them; styles leave this as it is.</source>
        <translation>Su logotipo y su color, cómo se abre el libro y qué pueden llevarse los lectores; los estilos no cambian nada de esto.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logotipo</translation>
    </message>
    <message>
        <source>A picture in an upper corner of the window, at most 40 pixels high.</source>
        <translation>Una imagen en una esquina superior de la ventana, de 40 píxeles de alto como máximo.</translation>
    </message>
    <message>
        <source>Logo link</source>
        <translation>Enlace del logotipo</translation>
    </message>
    <message>
        <source>Where the logo leads: an address that begins with https://, http:// or mailto: (no other is followed).</source>
        <translation>Adónde lleva el logotipo: una dirección que empieza por https://, http:// o mailto: (las demás no se siguen).</translation>
    </message>
    <message>
        <source>Accent colour</source>
        <translation>Color de acento</translation>
    </message>
    <message>
        <source>The colour of the main buttons and of what is chosen in dialogs; writing on it turns dark or light to suit.</source>
        <translation>El color de los botones principales y de lo elegido en los cuadros de diálogo; el texto se vuelve oscuro o claro según convenga.</translation>
    </message>
    <message>
        <source>First view</source>
        <translation>Vista inicial</translation>
    </message>
    <message>
        <source>How the pages lie until a reader chooses otherwise: as it suits the window, one page, or two; phones show what suits them.</source>
        <translation>Cómo se disponen las páginas mientras el lector no elija otra cosa: según la ventana, una página o dos; los teléfonos muestran lo que les conviene.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>One page</source>
        <translation>Una página</translation>
    </message>
    <message>
        <source>Two pages</source>
        <translation>Dos páginas</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarga</translation>
    </message>
    <message>
        <source>Readers can download the imported PDF, with all of its pages. Books in one file, previews and documents that open with a password only never offer it.</source>
        <translation>Los lectores pueden descargar el PDF importado, con todas sus páginas. Los libros en un solo archivo, las muestras y los documentos que solo se abren con contraseña nunca lo ofrecen.</translation>
    </message>
    <message>
        <source>Offer the PDF for download</source>
        <translation>Ofrecer la descarga del PDF</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Botones</translation>
    </message>
    <message>
        <source>What the bar offers to readers. A button that is not shown has no key either; styles leave this as it is.</source>
        <translation>Lo que la barra ofrece a los lectores. Un botón que no se muestra tampoco tiene tecla; los estilos no cambian nada de esto.</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>The table of contents, of web books.</source>
        <translation>El índice, en los libros web.</translation>
    </message>
    <message>
        <source>Show the button</source>
        <translation>Mostrar el botón</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>The search, of web books.</source>
        <translation>La búsqueda, en los libros web.</translation>
    </message>
    <message>
        <source>Reading view</source>
        <translation>Vista de lectura</translation>
    </message>
    <message>
        <source>The text as a page to scroll, of web books.</source>
        <translation>El texto como una página por la que desplazarse, en los libros web.</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Marcadores y notas</translation>
    </message>
    <message>
        <source>Bookmarks, highlights and notes that readers keep in their browser, of web books.</source>
        <translation>Los marcadores, resaltados y notas que los lectores guardan en su navegador, en los libros web.</translation>
    </message>
    <message>
        <source>Show the buttons</source>
        <translation>Mostrar los botones</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>The row of small pages.</source>
        <translation>La fila de miniaturas de las páginas.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Enlarging by button and key; a double click or two fingers always enlarge.</source>
        <translation>Ampliar con un botón y una tecla; el doble clic y el gesto de dos dedos siempre amplían.</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>The choice of one page or two, and of the paper.</source>
        <translation>La elección entre una página o dos, y la del papel.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Paso automático</translation>
    </message>
    <message>
        <source>Turning pages by itself.</source>
        <translation>El paso automático de las páginas.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>The switch for sounds.</source>
        <translation>El interruptor de los sonidos.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>The link to the page that is shown.</source>
        <translation>El enlace a la página que se muestra.</translation>
    </message>
    <message>
        <source>Keep offline</source>
        <translation>Guardar sin conexión</translation>
    </message>
    <message>
        <source>Keeping a web book to read it without a connection.</source>
        <translation>Guardar un libro web para leerlo sin conexión.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Printing pages; the command of the browser still prints those in view.</source>
        <translation>Imprimir páginas; la orden del navegador sigue imprimiendo las que están a la vista.</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Reading in full screen.</source>
        <translation>Leer a pantalla completa.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>The list of keys and gestures.</source>
        <translation>La lista de teclas y gestos.</translation>
    </message>
</context>
<context>
    <name>TmplStylePainter</name>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
</context>
<context>
    <name>TmplStylesModel</name>
    <message>
        <source>A style of your own</source>
        <translation>Un estilo propio</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>A colour: #RRGGBB, 0xRRGGBB, or an English name such as “red”.</source>
        <translation>Un color: #RRGGBB, 0xRRGGBB o un nombre en inglés, como «red».</translation>
    </message>
    <message>
        <source>The file %1 does not exist. Books are made without it.</source>
        <translation>El archivo %1 no existe. Los libros se crean sin él.</translation>
    </message>
    <message>
        <source>A number.</source>
        <translation>Un número.</translation>
    </message>
    <message>
        <source>A number from %1 to %2%3.</source>
        <extracomment>%1 and %2 are numbers, %3 is a unit with a space before it, or nothing.</extracomment>
        <translation>Un número de %1 a %2%3.</translation>
    </message>
</context>
<context>
    <name>XMLParser</name>
    <message>
        <source>Could not allocate memory</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
    <message>
        <source>Internal error occurred</source>
        <translation>Se produjo un error interno</translation>
    </message>
    <message>
        <source>Could not determine tag type</source>
        <translation>No se pudo determinar el tipo de etiqueta</translation>
    </message>
    <message>
        <source>Error parsing document declaration/processing instruction</source>
        <translation>Error al analizar la declaración del documento o una instrucción de procesamiento</translation>
    </message>
    <message>
        <source>Error parsing comment</source>
        <translation>Error al analizar un comentario</translation>
    </message>
    <message>
        <source>Error parsing CDATA section</source>
        <translation>Error al analizar una sección CDATA</translation>
    </message>
    <message>
        <source>Error parsing document type declaration</source>
        <translation>Error al analizar la declaración del tipo de documento</translation>
    </message>
    <message>
        <source>Error parsing PCDATA section</source>
        <translation>Error al analizar una sección PCDATA</translation>
    </message>
    <message>
        <source>Error parsing start element tag</source>
        <translation>Error al analizar la etiqueta inicial de un elemento</translation>
    </message>
    <message>
        <source>Error parsing element attribute</source>
        <translation>Error al analizar un atributo de un elemento</translation>
    </message>
    <message>
        <source>Error parsing end element tag</source>
        <translation>Error al analizar la etiqueta final de un elemento</translation>
    </message>
    <message>
        <source>Start-end tags mismatch</source>
        <translation>Las etiquetas inicial y final no coinciden</translation>
    </message>
    <message>
        <source>No document element found</source>
        <translation>No se encontró el elemento raíz del documento</translation>
    </message>
</context>
<context>
    <name>ZipReader</name>
    <message>
        <source>is damaged</source>
        <translation>está dañado</translation>
    </message>
    <message>
        <source>has far too much in it</source>
        <translation>contiene demasiados datos</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>is no ZIP archive, or not all of one</source>
        <translation>no es un archivo ZIP o está incompleto</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Turns PDF files into page-flip books.</source>
        <translation>Convierte archivos PDF en libros para hojear.</translation>
    </message>
    <message>
        <source>A PDF file to import, or a project to open.</source>
        <translation>Un archivo PDF que importar o un proyecto que abrir.</translation>
    </message>
</context>
</TS>
