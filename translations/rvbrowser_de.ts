<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AttributePanel</name>
    <message>
        <source>Attributes</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>AttributeWords</name>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>slim portrait</source>
        <translation>schmales Hochformat</translation>
    </message>
    <message>
        <source>slim landscape</source>
        <translation>schmales Querformat</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
</context>
<context>
    <name>FindingsPanel</name>
    <message>
        <source>Nothing was found.</source>
        <translation>Es wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n Fehler</numerusform>
            <numerusform>%n Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n Warnung</numerusform>
            <numerusform>%n Warnungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoadProgress</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Loading %1</source>
        <translation>%1 wird geladen</translation>
    </message>
</context>
<context>
    <name>LoadThread</name>
    <message>
        <source>there is no product in this file</source>
        <translation>in dieser Datei ist kein Produkt</translation>
    </message>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>&amp;Cancel loading</source>
        <translation>Laden abbre&amp;chen</translation>
    </message>
    <message>
        <source>Open a catalogue with Ctrl+O, or drop one here.</source>
        <translation>Öffnen Sie einen Katalog mit Strg+O, oder legen Sie einen hier ab.</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Copy &amp;project file</source>
        <translation>&amp;Projektdatei kopieren</translation>
    </message>
    <message>
        <source>Copy order &amp;transfer</source>
        <translation>Bestell&amp;übergabe kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;order text</source>
        <translation>Bestell&amp;text kopieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>Be&amp;funde</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Open a catalogue</source>
        <translation>Katalog öffnen</translation>
    </message>
    <message>
        <source>Catalogues (*.xml);;All files (*)</source>
        <translation>Kataloge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>About rvbrowser</source>
        <translation>Über rvbrowser</translation>
    </message>
    <message>
        <source>rvbrowser %1
Shows catalogues of print products.</source>
        <translation>rvbrowser %1
Zeigt Kataloge von Druckprodukten.</translation>
    </message>
    <message>
        <source>%1, line %2, column %3: %4</source>
        <translation>%1, Zeile %2, Spalte %3: %4</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>What was loaded before is still shown.</source>
        <translation>Gezeigt wird weiter, was zuvor geladen wurde.</translation>
    </message>
    <message>
        <source>The catalogue has no product of type &quot;%1&quot;.</source>
        <translation>Der Katalog hat kein Produkt des Typs „%1“.</translation>
    </message>
    <message>
        <source>%1 is gone. It is loaded again when it comes back.</source>
        <translation>%1 ist nicht mehr da. Die Datei wird wieder geladen, sobald sie zurück ist.</translation>
    </message>
    <message>
        <source>The catalogue was checked without this configuration.</source>
        <translation>Der Katalog wurde ohne diese Konfiguration geprüft.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the message</source>
        <translation>Meldung schließen</translation>
    </message>
</context>
<context>
    <name>OptionsPanel</name>
    <message>
        <source>default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>not charged</source>
        <translation>ohne Aufpreis</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>There is nothing to choose.</source>
        <translation>Es gibt nichts zu wählen.</translation>
    </message>
</context>
<context>
    <name>OrderLinesPanel</name>
    <message>
        <source>Order lines</source>
        <translation>Bestellzeilen</translation>
    </message>
    <message>
        <source>Customer:</source>
        <translation>Kunde:</translation>
    </message>
    <message>
        <source>P&amp;roject file:</source>
        <translation>P&amp;rojektdatei:</translation>
    </message>
    <message>
        <source>Order tra&amp;nsfer:</source>
        <translation>Bestellüber&amp;gabe:</translation>
    </message>
    <message>
        <source>Order te&amp;xt:</source>
        <translation>Bestellte&amp;xt:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopieren: %1</translation>
    </message>
</context>
<context>
    <name>PageCountChooser</name>
    <message>
        <source>Page count</source>
        <translation>Seitenzahl</translation>
    </message>
</context>
<context>
    <name>PageDrawing</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Page with bleed, usable area and barcodes, drawn to scale</source>
        <translation>Seite mit Beschnitt, nutzbarer Fläche und Barcodes, maßstäblich gezeichnet</translation>
    </message>
</context>
<context>
    <name>PagePanel</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>&amp;Barcodes of page:</source>
        <translation>Barcodes der Se&amp;ite:</translation>
    </message>
    <message>
        <source>A page is drawn for one size class and one orientation; this product does not have them.</source>
        <translation>Gezeichnet wird eine Seite mit einer Größenklasse und einer Ausrichtung; dieses Produkt hat sie nicht.</translation>
    </message>
    <message>
        <source>Nominal size by size class and orientation, with %1 mm bleed.</source>
        <translation>Nenngröße nach Größenklasse und Ausrichtung, mit %1 mm Beschnitt.</translation>
    </message>
    <message>
        <source>A barcode lies outside of it (red).</source>
        <translation>Ein Barcode liegt außerhalb (rot).</translation>
    </message>
</context>
<context>
    <name>ProductFacts</name>
    <message>
        <source>Kind of article</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>Article id</source>
        <translation>Artikelnummer</translation>
    </message>
    <message>
        <source>Shipping group</source>
        <translation>Versandgruppe</translation>
    </message>
    <message>
        <source>Price class</source>
        <translation>Preisklasse</translation>
    </message>
    <message>
        <source>Price class of a package</source>
        <translation>Preisklasse eines Pakets</translation>
    </message>
    <message>
        <source>Barcodes</source>
        <translation>Barcodes</translation>
    </message>
    <message>
        <source>Without kind of article</source>
        <translation>Ohne Artikelart</translation>
    </message>
    <message>
        <source>Fees</source>
        <translation>Gebühren</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Zubehör</translation>
    </message>
    <message>
        <source>%1 × %2 mm on page %3</source>
        <translation>%1 × %2 mm auf Seite %3</translation>
    </message>
</context>
<context>
    <name>ProductList</name>
    <message>
        <source>Search type, article id, keyword, name</source>
        <translation>Typ, Artikelnummer, Schlüsselwort, Name</translation>
    </message>
    <message>
        <source>Search products</source>
        <translation>Produkte suchen</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Produkte</translation>
    </message>
    <message numerus="yes">
        <source>%n product(s)</source>
        <translation>
            <numerusform>%n Produkt</numerusform>
            <numerusform>%n Produkte</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found: &amp;clear the search</source>
        <translation>Nichts gefunden: Suche &amp;leeren</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n product(s)</source>
        <translation>
            <numerusform>%1 von %n Produkt</numerusform>
            <numerusform>%1 von %n Produkten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProductTreeModel</name>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
</context>
<context>
    <name>ProductView</name>
    <message>
        <source>An earlier product has the same type, so this one is never offered.</source>
        <translation>Ein früheres Produkt hat denselben Typ, deshalb wird dieses nie angeboten.</translation>
    </message>
    <message>
        <source>This product cannot be offered: it needs a type, an article id and valid page counts.</source>
        <translation>Dieses Produkt kann nicht angeboten werden: Es braucht einen Typ, eine Artikelnummer und gültige Seitenzahlen.</translation>
    </message>
</context>
<context>
    <name>SpineCurve</name>
    <message>
        <source>Spine width over the page count</source>
        <translation>Rückenbreite über der Seitenzahl</translation>
    </message>
</context>
<context>
    <name>SpineDrawing</name>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Spine, drawn to scale</source>
        <translation>Rücken, maßstäblich gezeichnet</translation>
    </message>
    <message>
        <source>%1 mm wide</source>
        <translation>%1 mm breit</translation>
    </message>
</context>
<context>
    <name>SpinePanel</name>
    <message>
        <source>always</source>
        <translation>immer</translation>
    </message>
    <message>
        <source>%1 to %2 in steps of %3</source>
        <translation>%1 bis %2 in Schritten von %3</translation>
    </message>
    <message>
        <source>Pages and spine</source>
        <translation>Seiten und Rücken</translation>
    </message>
    <message>
        <source>&amp;Page count:</source>
        <translation>&amp;Seitenzahl:</translation>
    </message>
    <message>
        <source>This product has no spine.</source>
        <translation>Dieses Produkt hat keinen Rücken.</translation>
    </message>
    <message>
        <source>The page counts are not valid: from %1 to %2 in steps of %3.</source>
        <translation>Die Seitenzahlen sind ungültig: von %1 bis %2 in Schritten von %3.</translation>
    </message>
    <message>
        <source>Spine %1 mm</source>
        <translation>Rücken %1 mm</translation>
    </message>
    <message>
        <source>font up to %1 pt</source>
        <translation>Schrift bis %1 pt</translation>
    </message>
    <message numerus="yes">
        <source>%n package(s) more</source>
        <translation>
            <numerusform>%n Paket mehr</numerusform>
            <numerusform>%n Pakete mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n block(s) more</source>
        <translation>
            <numerusform>%n Block mehr</numerusform>
            <numerusform>%n Blöcke mehr</numerusform>
        </translation>
    </message>
</context>
</TS>
