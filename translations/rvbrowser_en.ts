<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>FindingFilterBar</name>
    <message numerus="yes">
        <source>Show %n error(s)</source>
        <translation>
            <numerusform>Show %n error</numerusform>
            <numerusform>Show %n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n warning(s)</source>
        <translation>
            <numerusform>Show %n warning</numerusform>
            <numerusform>Show %n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n note(s)</source>
        <translation>
            <numerusform>Show %n note</numerusform>
            <numerusform>Show %n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n finding(s)</source>
        <translation>
            <numerusform>%1 of %n finding</numerusform>
            <numerusform>%1 of %n findings</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindingsActions</name>
    <message numerus="yes">
        <source>%n fix(es) applied.</source>
        <translation>
            <numerusform>%n fix applied.</numerusform>
            <numerusform>%n fixes applied.</numerusform>
        </translation>
    </message>
</context>
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
    <name>FixDialog</name>
    <message numerus="yes">
        <source>%n fix(es) change the file %1 like this:</source>
        <translation>
            <numerusform>%n fix changes the file %1 like this:</numerusform>
            <numerusform>%n fixes change the file %1 like this:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more touch the same places; apply them afterwards.</source>
        <translation>
            <numerusform>%n more touches the same places; apply it afterwards.</numerusform>
            <numerusform>%n more touch the same places; apply them afterwards.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProductFaults</name>
    <message numerus="yes">
        <source>and %n more, which the findings have</source>
        <translation>
            <numerusform>and %n more, which the findings have</numerusform>
            <numerusform>and %n more, which the findings have</numerusform>
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
    <name>ProductTreeModel</name>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n note</numerusform>
            <numerusform>%n notes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst of which is a warning</source>
        <translation>
            <numerusform>%n finding, which is a warning</numerusform>
            <numerusform>%n findings, the worst of which is a warning</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst of which is an error</source>
        <translation>
            <numerusform>%n finding, which is an error</numerusform>
            <numerusform>%n findings, the worst of which is an error</numerusform>
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
