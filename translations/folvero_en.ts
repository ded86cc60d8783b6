<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
