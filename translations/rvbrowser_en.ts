<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>FindingsPanel</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProductList</name>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n product</numerusform>
            <numerusform>%n products</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n product(s)</source>
        <translation>
            <numerusform>%1 of %n product</numerusform>
            <numerusform>%1 of %n products</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SpinePanel</name>
    <message numerus="yes">
        <source>%n package(s) more</source>
        <translation>
            <numerusform>%n package more</numerusform>
            <numerusform>%n packages more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n block(s) more</source>
        <translation>
            <numerusform>%n block more</numerusform>
            <numerusform>%n blocks more</numerusform>
        </translation>
    </message>
</context>
</TS>
