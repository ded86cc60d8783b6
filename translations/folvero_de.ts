<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BrisleafAppDelegate</name>
    <message>
        <source>The preview could not be brought up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview has stopped working.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press F5 to load it again. Your book is not affected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything could be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings were not saved to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings were not loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loading of settings</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The template “%1” is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommonCryptoErrorDomain</name>
    <message>
        <source>Success</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Illegal parameter supplied to encryption/decryption algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffer Too Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insufficient buffer provided for specified operation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Memory Failure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to allocate memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alignment Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input size to encryption algorithm was not aligned correctly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decode Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Input data did not decode or decrypt correctly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unimplemented Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function not implemented for the current algorithm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlashTemplateModel</name>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlashTemplateOutlineDelegate</name>
    <message>
        <source>(Untitled)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Unknown)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportWindow</name>
    <message>
        <source>Import a PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best, for zooming in</source>
        <extracomment>The quality of the pictures of the pages, from the best to the worst.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp;links</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp;bookmarks as contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;PDF file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>Opens the chosen PDF in another program.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the PDF in the program that usually shows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All</source>
        <extracomment>All pages are imported.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;These:</source>
        <extracomment>A field for page numbers follows.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for example 1-3,7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages to import</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message>
        <source>Importing:%1/%2</source>
        <extracomment>%1 is the page that is worked at, %2 the number of pages.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Import PDF…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import PDF</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the book from a PDF document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Publish the book…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Publish</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the finished book into a folder of your choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load settings that were saved to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the settings to a file, to use them for other books</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply the changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the changed settings in the preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a &amp;template…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Templates</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the book another look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reload the preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folvero &amp;help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Folvero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <extracomment>%1 is a setting in quotation marks, or &quot;loading of settings&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>Beneath a picture in the toolbar: short.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Like the &amp;system</source>
        <extracomment>The window is light or dark; this is one of the choices.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a &amp;recent PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <extracomment>The name of the toolbar.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Settings of the template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Template of the book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The template of the book; click to choose another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a setting to read what it does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the selected setting does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <extracomment>Above the explanation of the selected setting, while none is selected.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 – Folvero</source>
        <extracomment>The title of the window; %1 is the name of the document.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Demo book</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <extracomment>What a screen reader says when it comes to the bar with a warning.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputWindow</name>
    <message>
        <source>Publish the book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without an ending, for example index</source>
        <extracomment>Shown in the empty field for the file&apos;s name.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shown in the browser&apos;s window</source>
        <extracomment>Shown in the empty field for the book&apos;s title.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of book:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Web page in a folder, for every computer and the web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application for the &amp;Mac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <extracomment>Shows the chosen folder in the file manager.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the folder in the file manager</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OutputWindowDelegate</name>
    <message>
        <source>The folder %1 could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The book was not published</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the result files?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Publish finished! Open the it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose folder</source>
        <extracomment>The button of a panel that asks for a folder.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Open it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Folvero</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns PDF documents into page-flip books for every browser.

Free software under the GNU Affero General Public License, version 3 or later. It comes without any warranty.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PreviewView</name>
    <message>
        <source>Preview of the book</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload the preview</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyHistory</name>
    <message>
        <source>“%1”</source>
        <extracomment>A setting&apos;s name in quotation marks; stands in &quot;Undo %1&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindow</name>
    <message>
        <source>Choose a template</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks for templates that were added or repaired meanwhile (%1)</source>
        <extracomment>%1 is a key.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Templates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no templates.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This template has no styles.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindowDelegate</name>
    <message>
        <source>“%1”</source>
        <extracomment>A template&apos;s name in quotation marks; stands in other texts.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its file %1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The template %1 is not in the library.</source>
        <extracomment>%1 is the template&apos;s name in quotation marks.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The template %1 cannot be used. %2</source>
        <extracomment>%1 is the template&apos;s name in quotation marks, %2 a sentence that tells why.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleName</name>
    <message>
        <source>Aurora</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midnight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Velvet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blueprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boardroom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chalkboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beach</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green baize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Garden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rainy window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watercolour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Morning light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TemplateName</name>
    <message>
        <source>Cinema</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gallery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TemplateProperty</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper and the direction of reading.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the paper, seen where the picture of a page does not cover it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The book begins at the right, as books in Arabic, Hebrew or Japanese do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read from right to left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the pages move, and whether they move by themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turning time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many seconds a page takes to turn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lifting time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many seconds a page takes to lift under the pointer, and to fall back when it is let go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the book comes in when it is opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages turn by themselves from the start, until the reader stops them in the bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn pages automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause between pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many seconds each page stays while the book plays by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A book that plays by itself begins again after its last page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start over at the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bar, the caption and the margins around the book.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bar colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour of the bar, the arrows and the row of small pages; the signs on it turn dark or light to suit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Readers see no bar and no arrows, and turn pages with pointer, finger or keys.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show no bar and no arrows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A short text in the lower left corner, or an address that begins with https:// and becomes a link.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen above the inner one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen below the inner one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the left of the inner one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right margin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pixels of the outer background are seen at the right of the inner one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outer background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What fills the whole window; it is seen where the margins leave it free.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour in which the background begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colour into which the first one passes; choose the same twice for a plain background.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the second colour lies, in degrees: 0 is at the right, 90 at the bottom, 180 at the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture that lies over the two colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the picture lies and how it fills the background.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inner background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the book lies on, inside the margins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music or a sound that accompanies the reader.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An MP3 file that begins to play with the reader&apos;s first click or key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many times the sound is played; -1 plays it on and on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is known of the imported document, to be read only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The width of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The height of the document&apos;s pages in points, noted at import; a book takes its shape from its pages, so a change here has no effect.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TmplStylePainter</name>
    <message>
        <source>No picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Turns PDF files into page-flip books.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A PDF file to import.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
