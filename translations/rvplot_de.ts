<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>DrawingExport</name>
    <message>
        <source>the name of the file must end in .svg, .png or .pdf</source>
        <translation>der Dateiname muss auf .svg, .png oder .pdf enden</translation>
    </message>
    <message>
        <source>there is not enough memory for the drawing</source>
        <translation>der Speicher reicht für die Zeichnung nicht</translation>
    </message>
</context>
<context>
    <name>SpinePlot</name>
    <message>
        <source>page count %1 · %2 mm · font up to %3 pt</source>
        <translation>Seitenzahl %1 · %2 mm · Schrift bis %3 pt</translation>
    </message>
    <message>
        <source>pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>largest font size in pt</source>
        <translation>größte Schrift in pt</translation>
    </message>
    <message>
        <source>spine width in mm</source>
        <translation>Rückenbreite in mm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
</context>
</TS>
