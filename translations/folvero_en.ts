<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ImportWindow</name>
    <message numerus="yes">
        <source>and %1 and %n more</source>
        <extracomment>As above, with some of the names.</extracomment>
        <translation>
            <numerusform>and %1 and %n more</numerusform>
            <numerusform>and %1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImportWindowDelegate</name>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn.</source>
        <translation>
            <numerusform>%n more page could not be drawn.</numerusform>
            <numerusform>%n more pages could not be drawn.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more page(s) could not be drawn completely.</source>
        <translation>
            <numerusform>%n more page could not be drawn completely.</numerusform>
            <numerusform>%n more pages could not be drawn completely.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were imported.</source>
        <translation>
            <numerusform>%n file was imported.</numerusform>
            <numerusform>%n files were imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were not imported.</source>
        <translation>
            <numerusform>%n file was not imported.</numerusform>
            <numerusform>%n files were not imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobProgress</name>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>about %n minute left</numerusform>
            <numerusform>about %n minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>about %n hour left</numerusform>
            <numerusform>about %n hours left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PageListText</name>
    <message numerus="yes">
        <source>and %n more</source>
        <extracomment>Follows page numbers.</extracomment>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PagesModel</name>
    <message numerus="yes">
        <source>turning of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>turning of %n page</numerusform>
            <numerusform>turning of %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>removal of %n page(s)</source>
        <translation>
            <numerusform>removal of %n page</numerusform>
            <numerusform>removal of %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>move of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>move of %n page</numerusform>
            <numerusform>move of %n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>insertion of %n page(s)</source>
        <extracomment>Stands in &quot;Undo %1&quot;.</extracomment>
        <translation>
            <numerusform>insertion of %n page</numerusform>
            <numerusform>insertion of %n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PagesWindowDelegate</name>
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
            <numerusform>%n selected</numerusform>
            <numerusform>%n selected</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SelectTemplateWindowDelegate</name>
    <message numerus="yes">
        <source>%n more cannot be used.</source>
        <extracomment>%n templates, after some were named.</extracomment>
        <translation>
            <numerusform>%n more cannot be used.</numerusform>
            <numerusform>%n more cannot be used.</numerusform>
        </translation>
    </message>
</context>
</TS>
