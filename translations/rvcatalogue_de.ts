<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>RVCatalogueAttribute</name>
    <message>
        <source>Article class</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Einband</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Bindung</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Fotopapier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Size class</source>
        <translation>Größenklasse</translation>
    </message>
    <message>
        <source>Page type</source>
        <translation>Seitentyp</translation>
    </message>
    <message>
        <source>Page alignment</source>
        <translation>Seitenlage</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <source>Design content</source>
        <translation>Gestaltungsinhalt</translation>
    </message>
    <message>
        <source>Spot colour</source>
        <translation>Sonderfarbe</translation>
    </message>
</context>
<context>
    <name>RVCatalogueReader</name>
    <message>
        <source>the entity &quot;%1&quot; is not declared; write the letter itself</source>
        <translation>die Entität &quot;%1&quot; ist nicht deklariert; bitte das Zeichen selbst schreiben</translation>
    </message>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>there is no product in this file</source>
        <translation>in dieser Datei ist kein Produkt</translation>
    </message>
    <message>
        <source>elements are nested deeper than %1 levels</source>
        <translation>Elemente sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>entity declarations are not supported</source>
        <translation>Entitäten dürfen nicht deklariert werden</translation>
    </message>
    <message>
        <source>an element, text, comment or declaration is larger than 1 MiB</source>
        <translation>ein Element, Text, Kommentar oder eine Deklaration ist größer als 1 MiB</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>this is no XML</source>
        <translation>dies ist kein XML</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is there twice</source>
        <translation>das Attribut &quot;%1&quot; steht zweimal da</translation>
    </message>
    <message>
        <source>the declaration &quot;&lt;?xml&quot; must be the first of the file</source>
        <translation>die Deklaration &quot;&lt;?xml&quot; muss am Anfang der Datei stehen</translation>
    </message>
    <message>
        <source>the character %1 is not allowed in XML</source>
        <translation>das Zeichen %1 ist in XML nicht erlaubt</translation>
    </message>
    <message>
        <source>the value of an attribute stands in quotes</source>
        <translation>der Wert eines Attributs steht in Anführungszeichen</translation>
    </message>
    <message>
        <source>&lt;/%1&gt; closes &lt;%2&gt;, which was opened in line %3</source>
        <translation>&lt;/%1&gt; schließt &lt;%2&gt;, das in Zeile %3 geöffnet wurde</translation>
    </message>
    <message>
        <source>the file ends too early</source>
        <translation>die Datei endet zu früh</translation>
    </message>
    <message>
        <source>the file ends too early: &lt;%1&gt;, which was opened in line %2, is not closed</source>
        <translation>die Datei endet zu früh: &lt;%1&gt;, in Zeile %2 geöffnet, ist nicht geschlossen</translation>
    </message>
    <message>
        <source>this is not encoded in UTF-8, as files are that do not say otherwise in their first line</source>
        <translation>dies ist nicht in UTF-8 kodiert wie Dateien, die in ihrer ersten Zeile nichts anderes sagen</translation>
    </message>
    <message>
        <source>this is not encoded in %1, which the first line of the file declares</source>
        <translation>dies ist nicht in %1 kodiert, wie es die erste Zeile der Datei angibt</translation>
    </message>
    <message>
        <source>cannot read on: %1</source>
        <translation>kann nicht weiterlesen: %1</translation>
    </message>
    <message>
        <source>the encoding &quot;%1&quot;, which the first line of the file declares, is not known; UTF-8 always is</source>
        <translation>die Kodierung &quot;%1&quot;, die die erste Zeile der Datei angibt, ist nicht bekannt; UTF-8 ist es immer</translation>
    </message>
    <message>
        <source>the first line of the file declares %1, but is not encoded in it</source>
        <translation>die erste Zeile der Datei gibt %1 an, ist aber nicht darin kodiert</translation>
    </message>
    <message>
        <source>the file begins like one in %1, but its first line declares %2; save it in %2, or declare %1</source>
        <translation>die Datei beginnt wie eine in %1, ihre erste Zeile gibt aber %2 an; bitte in %2 speichern oder %1 angeben</translation>
    </message>
    <message>
        <source>a tag is larger than 64 KiB</source>
        <translation>ein Tag ist größer als 64 KiB</translation>
    </message>
    <message>
        <source>parameter entities are not supported</source>
        <translation>Parameter-Entitäten werden nicht unterstützt</translation>
    </message>
    <message>
        <source>&quot;&amp;&quot; does not begin an entity here; the letter itself is written &quot;&amp;amp;&quot;</source>
        <translation>&quot;&amp;&quot; beginnt hier keine Entität; das Zeichen selbst schreibt man als &quot;&amp;amp;&quot;</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; has no value</source>
        <translation>das Attribut &quot;%1&quot; hat keinen Wert</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; is written &quot;&amp;lt;&quot; in a value</source>
        <translation>&quot;&lt;&quot; schreibt man in einem Wert als &quot;&amp;lt;&quot;</translation>
    </message>
    <message>
        <source>&quot;&lt;&quot; does not begin a tag here; the letter itself is written &quot;&amp;lt;&quot;</source>
        <translation>&quot;&lt;&quot; beginnt hier kein Tag; das Zeichen selbst schreibt man als &quot;&amp;lt;&quot;</translation>
    </message>
    <message>
        <source>this reference names no character that XML allows</source>
        <translation>diese Referenz nennt kein Zeichen, das XML erlaubt</translation>
    </message>
    <message>
        <source>a blank is missing here</source>
        <translation>hier fehlt ein Leerzeichen</translation>
    </message>
    <message>
        <source>&quot;&gt;&quot; is missing here</source>
        <translation>hier fehlt &quot;&gt;&quot;</translation>
    </message>
    <message>
        <source>nothing but comments may follow the end of the root element</source>
        <translation>nach dem Ende des Wurzelelements dürfen nur noch Kommentare folgen</translation>
    </message>
    <message>
        <source>nothing but comments may stand in front of the root element</source>
        <translation>vor dem Wurzelelement dürfen nur Kommentare stehen</translation>
    </message>
    <message>
        <source>&quot;--&quot; cannot stand in a comment</source>
        <translation>&quot;--&quot; darf nicht in einem Kommentar stehen</translation>
    </message>
    <message>
        <source>&quot;]]&gt;&quot; is written &quot;]]&amp;gt;&quot; in a text</source>
        <translation>&quot;]]&gt;&quot; schreibt man in einem Text als &quot;]]&amp;gt;&quot;</translation>
    </message>
    <message>
        <source>this is not encoded in %1, in which the file begins</source>
        <translation>dies ist nicht in %1 kodiert, so wie die Datei beginnt</translation>
    </message>
</context>
<context>
    <name>RVChangeText</name>
    <message>
        <source>%1 x %2 mm at %3, %4, &quot;%5&quot;</source>
        <translation>%1 x %2 mm bei %3, %4, &quot;%5&quot;</translation>
    </message>
    <message>
        <source>Barcode %1 on page %2</source>
        <translation>Barcode %1 auf Seite %2</translation>
    </message>
    <message>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>left edge</source>
        <translation>linke Kante</translation>
    </message>
    <message>
        <source>lower edge</source>
        <translation>untere Kante</translation>
    </message>
    <message>
        <source>width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Option %1</source>
        <translation>Option %1</translation>
    </message>
    <message>
        <source>Option %1 (number %2)</source>
        <translation>Option %1 (Nummer %2)</translation>
    </message>
    <message>
        <source>name of the key</source>
        <translation>Name des Schlüssels</translation>
    </message>
    <message>
        <source>name of the value</source>
        <translation>Name des Werts</translation>
    </message>
    <message>
        <source>name in the editor</source>
        <translation>Name im Editor</translation>
    </message>
    <message>
        <source>name of the form</source>
        <translation>Name des Elements form</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>accountable</source>
        <translation>mit Aufpreis</translation>
    </message>
    <message>
        <source>price class</source>
        <translation>Preisklasse</translation>
    </message>
    <message>
        <source>preselected</source>
        <translation>vorgegeben</translation>
    </message>
    <message>
        <source>Default of %1</source>
        <translation>Vorgabe von %1</translation>
    </message>
    <message>
        <source>Spine width at %1 pages</source>
        <translation>Rückenbreite bei %1 Seiten</translation>
    </message>
    <message>
        <source>Lowest page count</source>
        <translation>Kleinste Seitenzahl</translation>
    </message>
    <message>
        <source>Highest page count</source>
        <translation>Größte Seitenzahl</translation>
    </message>
    <message>
        <source>Page step</source>
        <translation>Seitenschritt</translation>
    </message>
    <message>
        <source>Page counts</source>
        <translation>Seitenzahlen</translation>
    </message>
    <message>
        <source>Spine, base width</source>
        <translation>Rücken, Grundbreite</translation>
    </message>
    <message>
        <source>Spine, block width</source>
        <translation>Rücken, Blockbreite</translation>
    </message>
    <message>
        <source>Spine, additional width</source>
        <translation>Rücken, Zusatzbreite</translation>
    </message>
    <message>
        <source>Spine, packages per block</source>
        <translation>Rücken, Pakete je Block</translation>
    </message>
    <message>
        <source>%1-%2 by %3</source>
        <translation>%1-%2 in Schritten von %3</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Families</source>
        <translation>Familien</translation>
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
        <source>Price class of pages</source>
        <translation>Preisklasse der Seiten</translation>
    </message>
    <message>
        <source>Photo box</source>
        <translation>Fotobox</translation>
    </message>
    <message>
        <source>Article id</source>
        <translation>Artikelnummer</translation>
    </message>
</context>
<context>
    <name>RVCheckConfiguration</name>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot read the file: %1</source>
        <translation>die Datei lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>the file is larger than 1 MiB</source>
        <translation>die Datei ist größer als 1 MiB</translation>
    </message>
    <message>
        <source>%1 lies in the same folder, and only one of them can count</source>
        <translation>%1 liegt im selben Ordner, und nur eine der beiden Dateien kann gelten</translation>
    </message>
    <message>
        <source>it is no regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>es gibt keine Regel %1</translation>
    </message>
    <message>
        <source>there is no rule %1; did you mean %2?</source>
        <translation>es gibt keine Regel %1; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>%1 is no severity; there are: %2</source>
        <translation>%1 ist keine Schwere; es gibt: %2</translation>
    </message>
    <message>
        <source>a product type is missing</source>
        <translation>ein Produkttyp fehlt</translation>
    </message>
    <message>
        <source>the product type %1, that is %2, already has a page size</source>
        <translation>der Produkttyp %1, also %2, hat schon eine Seitengröße</translation>
    </message>
    <message>
        <source>a table</source>
        <translation>eine Tabelle</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>eine Liste von Texten</translation>
    </message>
    <message>
        <source>%1 has an empty text</source>
        <translation>%1 enthält einen leeren Text</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>%1 must be above 0 and at most %2 mm</source>
        <translation>%1 muss über 0 und höchstens %2 mm sein</translation>
    </message>
    <message>
        <source>there is no entry %1; there are: %2</source>
        <translation>es gibt keinen Eintrag %1; es gibt: %2</translation>
    </message>
    <message>
        <source>there is no entry %1; did you mean %2?</source>
        <translation>es gibt keinen Eintrag %1; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>a boolean</source>
        <translation>ein Wahrheitswert</translation>
    </message>
    <message>
        <source>something else</source>
        <translation>etwas anderes</translation>
    </message>
    <message>
        <source>%1 must be %2, but is %3</source>
        <translation>%1 muss %2 sein, ist aber %3</translation>
    </message>
    <message>
        <source>this is no JSON: %1</source>
        <translation>dies ist kein JSON: %1</translation>
    </message>
    <message>
        <source>this is no JSON object</source>
        <translation>dies ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>this line is not written in UTF-8</source>
        <translation>diese Zeile ist nicht in UTF-8 geschrieben</translation>
    </message>
    <message>
        <source>this line has more than %1 dots</source>
        <translation>diese Zeile hat mehr als %1 Punkte</translation>
    </message>
    <message>
        <source>this is no TOML: a letter that may stand only in a text stands elsewhere</source>
        <translation>dies ist kein TOML: ein Zeichen, das nur in einem Text stehen darf, steht anderswo</translation>
    </message>
    <message>
        <source>this is no TOML: %1</source>
        <translation>dies ist kein TOML: %1</translation>
    </message>
</context>
<context>
    <name>RVFileEditor</name>
    <message>
        <source>there is no line %1 with a column %2</source>
        <translation>es gibt keine Zeile %1 mit einer Spalte %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written in %2</source>
        <translation>&quot;%1&quot; lässt sich in %2 nicht schreiben</translation>
    </message>
    <message>
        <source>cannot read on: %1</source>
        <translation>kann nicht weiterlesen: %1</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>kann nicht schreiben: %1</translation>
    </message>
    <message>
        <source>the file cannot be changed in its encoding; save it in UTF-8</source>
        <translation>die Datei lässt sich in ihrer Kodierung nicht ändern; bitte in UTF-8 speichern</translation>
    </message>
    <message>
        <source>the changes would break the file in line %1, column %2: %3</source>
        <translation>die Änderungen würden die Datei in Zeile %1, Spalte %2 beschädigen: %3</translation>
    </message>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>the file was changed meanwhile; check it again</source>
        <translation>die Datei wurde inzwischen geändert; bitte erneut prüfen</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>cannot write a new file beside the old one: %1</source>
        <translation>neben der alten Datei lässt sich keine neue schreiben: %1</translation>
    </message>
</context>
<context>
    <name>RVFindingText</name>
    <message>
        <source>A file without a product is not a catalogue, and nothing can be ordered from it; add a product.</source>
        <translation>Eine Datei ohne Produkt ist kein Katalog, und aus ihr lässt sich nichts bestellen; bitte ein Produkt hinzufügen.</translation>
    </message>
    <message>
        <source>A product without a type cannot be ordered, because projects find their product by its type; give it a type.</source>
        <translation>Ein Produkt ohne Typ lässt sich nicht bestellen, weil Projekte ihr Produkt über den Typ finden; bitte ihm einen Typ geben.</translation>
    </message>
    <message>
        <source>The application finds only the first of two products of the same type, and all codes of a photo book family are one type; give each product its own type.</source>
        <translation>Die Anwendung findet nur das erste von zwei Produkten desselben Typs, und alle Codes einer Fotobuchfamilie sind ein Typ; bitte jedem Produkt einen eigenen Typ geben.</translation>
    </message>
    <message>
        <source>Shop and production identify an article by its id; give the product an article id.</source>
        <translation>Shop und Produktion erkennen einen Artikel an seiner Nummer; bitte dem Produkt eine Artikelnummer geben.</translation>
    </message>
    <message>
        <source>An article id is a whole number above 0, and any other text is read as no id; write such a number.</source>
        <translation>Eine Artikelnummer ist eine ganze Zahl über 0, und jeder andere Text gilt als keine Nummer; bitte eine solche Zahl angeben.</translation>
    </message>
    <message>
        <source>Two products with the same article id are one article to shop and production; give each product its own id.</source>
        <translation>Zwei Produkte mit derselben Artikelnummer sind für Shop und Produktion ein Artikel; bitte jedem Produkt eine eigene Nummer geben.</translation>
    </message>
    <message>
        <source>A shipping group that is -1 or not a whole number counts as none, so the product is shipped separately; write the number of a group.</source>
        <translation>Eine Versandgruppe, die -1 oder keine ganze Zahl ist, gilt als keine, sodass das Produkt einzeln versandt wird; bitte die Nummer einer Gruppe angeben.</translation>
    </message>
    <message>
        <source>Only the first element of each kind in a product is read, and no product inside another, so the contents of all others are lost; merge the parts and separate the products.</source>
        <translation>Von jeder Art Element in einem Produkt wird nur das erste gelesen und kein Produkt in einem anderen, sodass der Inhalt aller übrigen verloren geht; bitte die Teile zusammenführen und die Produkte trennen.</translation>
    </message>
    <message>
        <source>A value that cannot be read as a number is replaced with the default without a message; write a number.</source>
        <translation>Ein Wert, der sich nicht als Zahl lesen lässt, wird ohne Meldung durch den Standardwert ersetzt; bitte eine Zahl angeben.</translation>
    </message>
    <message>
        <source>A value other than true, false, 1, 0, yes, no, on and off is replaced with the default without a message; write one of these.</source>
        <translation>Ein anderer Wert als true, false, 1, 0, yes, no, on und off wird ohne Meldung durch den Standardwert ersetzt; bitte einen davon angeben.</translation>
    </message>
    <message>
        <source>Lengths in an unknown unit are read as millimetres; write mm, cm, inch, pt or 0.1mm.</source>
        <translation>Längen in einer unbekannten Einheit werden als Millimeter gelesen; bitte mm, cm, inch, pt oder 0.1mm angeben.</translation>
    </message>
    <message>
        <source>An unknown keyword is replaced with the default of its attribute without a message; write a known keyword.</source>
        <translation>Ein unbekanntes Schlüsselwort wird ohne Meldung durch den Standardwert seiner Eigenschaft ersetzt; bitte ein bekanntes Schlüsselwort angeben.</translation>
    </message>
    <message>
        <source>An alias is still read, but programs write the main keyword of the value; write the main keyword.</source>
        <translation>Ein Zweitname wird noch gelesen, aber Programme schreiben das Hauptschlüsselwort des Wertes; bitte das Hauptschlüsselwort angeben.</translation>
    </message>
    <message>
        <source>No page count can be chosen if the lowest is above the highest; correct pages or max_pages.</source>
        <translation>Keine Seitenzahl lässt sich wählen, wenn die kleinste über der größten liegt; bitte pages oder max_pages berichtigen.</translation>
    </message>
    <message>
        <source>A product without valid page counts cannot be ordered; correct pages, max_pages, page_step or pieces.</source>
        <translation>Ein Produkt ohne gültige Seitenzahlen lässt sich nicht bestellen; bitte pages, max_pages, page_step oder pieces berichtigen.</translation>
    </message>
    <message>
        <source>The highest page count can never be chosen if no number of steps leads to it; correct page_step or max_pages.</source>
        <translation>Die größte Seitenzahl lässt sich nie wählen, wenn keine Zahl von Schritten zu ihr führt; bitte page_step oder max_pages berichtigen.</translation>
    </message>
    <message>
        <source>The cover of a glued or lay-flat book is made too narrow if the widths of its spine are missing; add them.</source>
        <translation>Der Umschlag eines geklebten Buches oder eines Buches mit Flachlage wird zu schmal, wenn die Breiten des Rückens fehlen; bitte diese angeben.</translation>
    </message>
    <message>
        <source>A spine with a negative width or a negative number of packages comes out too narrow; write 0 or more.</source>
        <translation>Ein Rücken mit einer negativen Breite oder einer negativen Zahl von Paketen wird zu schmal; bitte 0 oder mehr angeben.</translation>
    </message>
    <message>
        <source>The text on a spine is cut off at the page counts at which the spine is too narrow for the smallest font; make the spine grow with the pages.</source>
        <translation>Der Text auf einem Rücken wird bei den Seitenzahlen abgeschnitten, bei denen der Rücken zu schmal für die kleinste Schrift ist; bitte den Rücken mit den Seiten wachsen lassen.</translation>
    </message>
    <message>
        <source>An option without a key or a value is dropped and never offered to the customer; give it both.</source>
        <translation>Eine Option ohne Schlüssel oder Wert fällt weg und wird dem Kunden nie angeboten; bitte beides angeben.</translation>
    </message>
    <message>
        <source>An option with the key and value of an earlier one is offered a second time, but only the first has a price; remove one of them.</source>
        <translation>Eine Option mit Schlüssel und Wert einer früheren wird ein zweites Mal angeboten, aber nur die erste hat einen Preis; bitte eine davon entfernen.</translation>
    </message>
    <message>
        <source>Only the last of several defaults of one key takes effect; mark one value of the key as preselected.</source>
        <translation>Nur die letzte von mehreren Vorgaben eines Schlüssels wirkt; bitte genau einen Wert des Schlüssels vorgeben.</translation>
    </message>
    <message>
        <source>An order comes without the option, or with the first value, if no value of the key is the default; mark one as preselected.</source>
        <translation>Eine Bestellung kommt ohne die Option oder mit dem ersten Wert, wenn kein Wert des Schlüssels die Vorgabe ist; bitte einen vorgeben.</translation>
    </message>
    <message>
        <source>The editor shows no swatch for a colour that it cannot read; write six hexadecimal digits behind a number sign, or the English name of a colour.</source>
        <translation>Der Editor zeigt kein Farbfeld zu einer Farbe, die er nicht lesen kann; bitte sechs hexadezimale Ziffern hinter einem Nummernzeichen oder den englischen Namen einer Farbe angeben.</translation>
    </message>
    <message>
        <source>Keys that are chosen together need one value each, or production gets none of them; write as many values as keys.</source>
        <translation>Schlüssel, die zusammen gewählt werden, brauchen je einen Wert, sonst bekommt die Produktion keinen davon; bitte so viele Werte wie Schlüssel angeben.</translation>
    </message>
    <message>
        <source>A barcode without an extent or an image is dropped, so production cannot identify the product; give it both.</source>
        <translation>Ein Barcode ohne Ausdehnung oder Bild fällt weg, sodass die Produktion das Produkt nicht erkennt; bitte beides angeben.</translation>
    </message>
    <message>
        <source>A barcode on a page that the product cannot have is never printed; correct pageNr.</source>
        <translation>Ein Barcode auf einer Seite, die das Produkt nicht haben kann, wird nie gedruckt; bitte pageNr berichtigen.</translation>
    </message>
    <message>
        <source>A barcode that extends beyond its page is cut off and cannot be read; correct its position or size.</source>
        <translation>Ein Barcode, der über seine Seite hinausragt, wird abgeschnitten und ist nicht lesbar; bitte seine Lage oder Größe berichtigen.</translation>
    </message>
    <message>
        <source>Barcodes that overlap cannot be read; move one of them.</source>
        <translation>Barcodes, die sich überlappen, sind nicht lesbar; bitte einen davon verschieben.</translation>
    </message>
    <message>
        <source>An add-on whose price class belongs to no known group is not counted when add-ons are billed; correct the price class.</source>
        <translation>Ein Zusatz, dessen Preisklasse zu keiner bekannten Gruppe gehört, wird nicht gezählt, wenn Zusätze berechnet werden; bitte die Preisklasse berichtigen.</translation>
    </message>
    <message>
        <source>the article id %1 is no whole number above 0</source>
        <translation>die Artikelnummer %1 ist keine ganze Zahl über 0</translation>
    </message>
    <message>
        <source>the shipping group %1 is none</source>
        <translation>die Versandgruppe %1 ist keine</translation>
    </message>
    <message>
        <source>%1 is an alias in %2; the main keyword is %3</source>
        <translation>%1 ist ein Zweitname in %2; das Hauptschlüsselwort ist %3</translation>
    </message>
    <message>
        <source>%1 is no keyword of %2</source>
        <translation>%1 ist kein Schlüsselwort von %2</translation>
    </message>
    <message>
        <source>%1 is no colour</source>
        <translation>%1 ist keine Farbe</translation>
    </message>
    <message>
        <source>the price class %1 belongs to no known group</source>
        <translation>die Preisklasse %1 gehört zu keiner bekannten Gruppe</translation>
    </message>
    <message>
        <source>%1 is %2, which is no whole number</source>
        <translation>%1 ist %2, das ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>%1 is %2, which is no number</source>
        <translation>%1 ist %2, das ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 is %2, which is neither true nor false</source>
        <translation>%1 ist %2, das ist weder wahr noch falsch</translation>
    </message>
    <message>
        <source>the highest page count</source>
        <translation>die größte Seitenzahl</translation>
    </message>
    <message>
        <source>the barcode has no image; name a file, or leave out the attribute</source>
        <translation>der Barcode hat kein Bild; bitte eine Datei nennen oder das Attribut weglassen</translation>
    </message>
    <message>
        <source>there is no page %1; write 0 or more</source>
        <translation>es gibt keine Seite %1; bitte 0 oder mehr angeben</translation>
    </message>
    <message>
        <source>the barcode has no width or no height; write both above 0</source>
        <translation>der Barcode hat keine Breite oder keine Höhe; bitte beide über 0 angeben</translation>
    </message>
    <message>
        <source>the barcode begins left of the page; write a position_x of 0 or more</source>
        <translation>der Barcode beginnt links von der Seite; bitte für position_x 0 oder mehr angeben</translation>
    </message>
    <message>
        <source>the barcode begins above the page; write a position_y of at least its height</source>
        <translation>der Barcode beginnt über der Seite; bitte für position_y mindestens seine Höhe angeben</translation>
    </message>
    <message>
        <source>the barcode ends %1 mm from the left and %2 mm from the top, where there is no page; move it, or make it smaller</source>
        <translation>der Barcode endet %1 mm von links und %2 mm von oben, wo keine Seite mehr ist; bitte verschieben oder verkleinern</translation>
    </message>
    <message>
        <source>the barcode overlaps the one in line %1; move one of them</source>
        <translation>der Barcode überlappt den in Zeile %1; bitte einen davon verschieben</translation>
    </message>
    <message>
        <source>the other barcode</source>
        <translation>der andere Barcode</translation>
    </message>
    <message>
        <source>An element with an unknown name is skipped with everything in it; correct the name.</source>
        <translation>Ein Element mit einem unbekannten Namen wird mit allem darin übergangen; bitte den Namen berichtigen.</translation>
    </message>
    <message>
        <source>An element in the wrong place is skipped with everything in it; move it into the element that it belongs to.</source>
        <translation>Ein Element an der falschen Stelle wird mit allem darin übergangen; bitte in das Element verschieben, zu dem es gehört.</translation>
    </message>
    <message>
        <source>An element with a prefix is skipped with everything in it, because the prefix counts as part of its name; remove the prefix.</source>
        <translation>Ein Element mit einem Präfix wird mit allem darin übergangen, weil das Präfix als Teil des Namens zählt; bitte das Präfix entfernen.</translation>
    </message>
    <message>
        <source>An attribute with an unknown name is skipped, and the default of the intended attribute applies; correct the name.</source>
        <translation>Ein Attribut mit einem unbekannten Namen wird übergangen, und der Standardwert des gemeinten Attributs gilt; bitte den Namen berichtigen.</translation>
    </message>
    <message>
        <source>An attribute of the wrong element is skipped, and its default applies; move it to the element that it belongs to.</source>
        <translation>Ein Attribut am falschen Element wird übergangen, und sein Standardwert gilt; bitte zu dem Element verschieben, zu dem es gehört.</translation>
    </message>
    <message>
        <source>The lowest page count is the only one if the highest is missing, and the step has no effect; add max_pages.</source>
        <translation>Die kleinste Seitenzahl ist die einzige, wenn die größte fehlt, und die Schrittweite hat keine Wirkung; bitte max_pages angeben.</translation>
    </message>
    <message>
        <source>A product with more than 1000 page counts probably has a mistyped number; check pages, max_pages and page_step.</source>
        <translation>Ein Produkt mit mehr als 1000 Seitenzahlen hat wahrscheinlich eine vertippte Zahl; bitte pages, max_pages und page_step prüfen.</translation>
    </message>
    <message>
        <source>A spine without a base width has no room for the pages of the lowest page count, so the cover is made too narrow; add base_width.</source>
        <translation>Ein Rücken ohne Grundbreite hat keinen Platz für die Seiten der kleinsten Seitenzahl, sodass der Umschlag zu schmal wird; bitte base_width angeben.</translation>
    </message>
    <message>
        <source>A spine never grows if the number of packages that make a block is missing; add packages_per_block.</source>
        <translation>Ein Rücken wächst nie, wenn die Zahl der Pakete fehlt, die einen Block ergeben; bitte packages_per_block angeben.</translation>
    </message>
    <message>
        <source>Industrial perfect binders take blocks of at most about 80 mm, so a wider spine is probably given in a wrong unit; check the unit and the widths.</source>
        <translation>Industrielle Klebebinder verarbeiten Buchblöcke bis etwa 80 mm, sodass ein breiterer Rücken wahrscheinlich in einer falschen Einheit angegeben ist; bitte die Einheit und die Breiten prüfen.</translation>
    </message>
    <message>
        <source>An option that contains a comma or a colon is misread in orders, where commas separate options and colons separate keys from values; join keys, or values, that are chosen together with semicolons.</source>
        <translation>Eine Option, die ein Komma oder einen Doppelpunkt enthält, wird in Bestellungen falsch gelesen, weil dort Kommas die Optionen und Doppelpunkte die Schlüssel von den Werten trennen; bitte Schlüssel oder Werte, die zusammen gewählt werden, mit Semikolons verbinden.</translation>
    </message>
    <message>
        <source>A key or value with a blank or an invisible character differs from the same text without it; remove the character.</source>
        <translation>Ein Schlüssel oder Wert mit einem Leerzeichen oder einem unsichtbaren Zeichen ist ein anderer als derselbe Text ohne dieses; bitte das Zeichen entfernen.</translation>
    </message>
    <message>
        <source>Two spellings of a key or value that differ in letter case are two options; choose one spelling.</source>
        <translation>Zwei Schreibweisen eines Schlüssels oder Wertes, die sich in der Groß- und Kleinschreibung unterscheiden, sind zwei Optionen; bitte eine Schreibweise wählen.</translation>
    </message>
    <message>
        <source>The customer sees one name for each key, so the other names of a key are lost; write the same key_name in all its forms.</source>
        <translation>Der Kunde sieht zu jedem Schlüssel einen Namen, sodass die anderen Namen des Schlüssels verloren gehen; bitte in allen seinen form-Elementen denselben key_name angeben.</translation>
    </message>
    <message>
        <source>A barcode without a width or a height is printed one unit wide or high, which no scanner can read; add both.</source>
        <translation>Ein Barcode ohne Breite oder Höhe wird eine Einheit breit oder hoch gedruckt, was kein Scanner lesen kann; bitte beide angeben.</translation>
    </message>
    <message>
        <source>A barcode without a page number stands on page 0; add pageNr.</source>
        <translation>Ein Barcode ohne Seitennummer steht auf Seite 0; bitte pageNr angeben.</translation>
    </message>
    <message>
        <source>A barcode beyond every usual page of the size class and orientation is cut off and cannot be read; correct its position or size.</source>
        <translation>Ein Barcode, der über jede übliche Seite der Größenklasse und Ausrichtung hinausragt, wird abgeschnitten und ist nicht lesbar; bitte seine Lage oder Größe berichtigen.</translation>
    </message>
    <message>
        <source>A comment that silences no finding now would silence a later mistake; remove it.</source>
        <translation>Ein Kommentar, der jetzt keinen Befund unterdrückt, würde einen späteren Fehler unterdrücken; bitte entfernen.</translation>
    </message>
    <message>
        <source>A misspelt comment silences no finding; correct its spelling.</source>
        <translation>Ein falsch geschriebener Kommentar unterdrückt keinen Befund; bitte die Schreibweise berichtigen.</translation>
    </message>
    <message>
        <source>%1 is no hexadecimal digit</source>
        <translation>%1 ist keine hexadezimale Ziffer</translation>
    </message>
    <message>
        <source>it has %1 instead of 6 digits</source>
        <translation>sie hat %1 statt 6 Ziffern</translation>
    </message>
    <message>
        <source>write an English name, or &quot;#&quot; and 6 hexadecimal digits</source>
        <translation>bitte einen englischen Namen schreiben, oder &quot;#&quot; und 6 hexadezimale Ziffern</translation>
    </message>
    <message>
        <source>did you mean %1?</source>
        <translation>ist %1 gemeint?</translation>
    </message>
    <message>
        <source>write %1</source>
        <translation>bitte %1 schreiben</translation>
    </message>
    <message>
        <source>the product that has the type already</source>
        <translation>das Produkt, das den Typ schon hat</translation>
    </message>
    <message>
        <source>the product that has the article id already</source>
        <translation>das Produkt, das die Artikelnummer schon hat</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>it has %1, which is no plain blank</source>
        <translation>darin steht %1, das ist kein gewöhnliches Leerzeichen</translation>
    </message>
    <message>
        <source>it has %1, which is invisible</source>
        <translation>darin steht %1, das ist unsichtbar</translation>
    </message>
    <message>
        <source>it has %1, which looks like %2</source>
        <translation>darin steht %1, das sieht aus wie %2</translation>
    </message>
    <message>
        <source>it has %1, which is no Latin letter</source>
        <translation>darin steht %1, das ist kein lateinischer Buchstabe</translation>
    </message>
    <message>
        <source>the product has no article id; write its number into article_id</source>
        <translation>das Produkt hat keine Artikelnummer; bitte sie in article_id angeben</translation>
    </message>
    <message>
        <source>the article id %1 is too large</source>
        <translation>die Artikelnummer %1 ist zu groß</translation>
    </message>
    <message>
        <source>write 1 or more</source>
        <translation>bitte 1 oder mehr angeben</translation>
    </message>
    <message>
        <source>the product has no type; write the code that projects have for it</source>
        <translation>das Produkt hat keinen Typ; bitte den Code angeben, den Projekte dafür haben</translation>
    </message>
    <message>
        <source>the shipping group %1 is too large</source>
        <translation>die Versandgruppe %1 ist zu groß</translation>
    </message>
    <message>
        <source>leave out the attribute</source>
        <translation>bitte das Attribut weglassen</translation>
    </message>
    <message>
        <source>there are %1</source>
        <translation>es gibt %1</translation>
    </message>
    <message>
        <source>&quot;rvcatalog keywords %1&quot; lists them</source>
        <translation>die Schlüsselwörter zeigt &quot;rvcatalog keywords %1&quot;</translation>
    </message>
    <message>
        <source>keywords are separated by commas</source>
        <translation>Schlüsselwörter werden durch Kommas getrennt</translation>
    </message>
    <message>
        <source>keywords are separated by commas: %1</source>
        <translation>Schlüsselwörter werden durch Kommas getrennt: %1</translation>
    </message>
    <message>
        <source>the keyword of that name is %1</source>
        <translation>das Schlüsselwort mit diesem Namen ist %1</translation>
    </message>
    <message>
        <source>did you mean %1, that is %2?</source>
        <translation>ist %1 gemeint, also %2?</translation>
    </message>
    <message>
        <source>there is an empty keyword in %1; write one, or leave out the attribute</source>
        <translation>in %1 ist ein leeres Schlüsselwort; bitte eines angeben oder das Attribut weglassen</translation>
    </message>
    <message>
        <source>there is an empty keyword in %1; write one, or take out the comma</source>
        <translation>in %1 ist ein leeres Schlüsselwort; bitte eines angeben oder das Komma entfernen</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>the attribute %1 is not read; did you mean %2?</source>
        <translation>das Attribut %1 wird nicht gelesen; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>the attribute %1 is not read; did you mean %2 or %3?</source>
        <translation>das Attribut %1 wird nicht gelesen; ist %2 oder %3 gemeint?</translation>
    </message>
    <message>
        <source>the attribute %1 is not read in %2; it belongs to %3</source>
        <translation>das Attribut %1 wird in %2 nicht gelesen; es gehört zu %3</translation>
    </message>
    <message>
        <source>the element %1 is not read in %2</source>
        <translation>das Element %1 wird in %2 nicht gelesen</translation>
    </message>
    <message>
        <source>the element %1 is not read in %2; it belongs into %3</source>
        <translation>das Element %1 wird in %2 nicht gelesen; es gehört in %3</translation>
    </message>
    <message>
        <source>%1 (with %2)</source>
        <translation>%1 (mit %2)</translation>
    </message>
    <message>
        <source>the element %1 is not read; did you mean %2?</source>
        <translation>das Element %1 wird nicht gelesen; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>the element %1 is not read because of its prefix; without it, it is %2</source>
        <translation>das Element %1 wird wegen seines Präfixes nicht gelesen; ohne das Präfix ist es %2</translation>
    </message>
    <message>
        <source>write a number, or leave out the attribute</source>
        <translation>bitte eine Zahl angeben oder das Attribut weglassen</translation>
    </message>
    <message>
        <source>write nothing but digits</source>
        <translation>bitte nur Ziffern schreiben</translation>
    </message>
    <message>
        <source>write digits, and a point before decimals</source>
        <translation>bitte Ziffern schreiben und vor den Nachkommastellen einen Punkt</translation>
    </message>
    <message>
        <source>write a larger number</source>
        <translation>bitte eine größere Zahl angeben</translation>
    </message>
    <message>
        <source>write a smaller number</source>
        <translation>bitte eine kleinere Zahl angeben</translation>
    </message>
    <message>
        <source>write at least %1</source>
        <translation>bitte mindestens %1 angeben</translation>
    </message>
    <message>
        <source>write at most %1</source>
        <translation>bitte höchstens %1 angeben</translation>
    </message>
    <message>
        <source>write %1, or %2 where the comma separates thousands</source>
        <translation>bitte %1 schreiben, oder %2, wenn das Komma Tausender trennt</translation>
    </message>
    <message>
        <source>thousands are not separated: write %1</source>
        <translation>Tausender werden nicht getrennt: bitte %1 schreiben</translation>
    </message>
    <message>
        <source>decimals have a point: write %1</source>
        <translation>vor Nachkommastellen steht ein Punkt: bitte %1 schreiben</translation>
    </message>
    <message>
        <source>the unit belongs to &quot;units&quot;: write %1</source>
        <translation>die Einheit gehört in &quot;units&quot;: bitte %1 schreiben</translation>
    </message>
    <message>
        <source>the option has no value; write one, or take out the form</source>
        <translation>die Option hat keinen Wert; bitte einen angeben oder das Element form entfernen</translation>
    </message>
    <message>
        <source>the option has no key and no value; write both, or take out the form</source>
        <translation>die Option hat weder Schlüssel noch Wert; bitte beide angeben oder das Element form entfernen</translation>
    </message>
    <message>
        <source>the option has no key; write one, or take out the form</source>
        <translation>die Option hat keinen Schlüssel; bitte einen angeben oder das Element form entfernen</translation>
    </message>
    <message>
        <source>the keys %1 and the values %2 are not equally many; write one value for each key</source>
        <translation>die Schlüssel %1 und die Werte %2 sind nicht gleich viele; bitte zu jedem Schlüssel einen Wert angeben</translation>
    </message>
    <message>
        <source>the keys</source>
        <translation>die Schlüssel</translation>
    </message>
    <message>
        <source>the option %1 of %2 is already there in line %3; take out one</source>
        <translation>die Option %1 von %2 steht schon in Zeile %3; bitte eine davon entfernen</translation>
    </message>
    <message>
        <source>the first of them</source>
        <translation>das erste Vorkommen</translation>
    </message>
    <message>
        <source>%1 is preselected for %2, but %3 in line %4 is so already; preselect one</source>
        <translation>%1 ist für %2 vorgegeben, aber %3 in Zeile %4 ist es schon; bitte nur eine Option vorgeben</translation>
    </message>
    <message>
        <source>the first default</source>
        <translation>die erste Vorgabe</translation>
    </message>
    <message>
        <source>no option of %1 is preselected, so an order comes without any; preselect one</source>
        <translation>keine Option von %1 ist vorgegeben, also kommt eine Bestellung ohne; bitte eine vorgeben</translation>
    </message>
    <message>
        <source>no option of %1 is preselected, so the first is taken; preselect one</source>
        <translation>keine Option von %1 ist vorgegeben, also gilt die erste; bitte eine vorgeben</translation>
    </message>
    <message>
        <source>the %1 %2 has a separator of orders in it; only semicolons join several</source>
        <translation>%1 %2 enthält ein Trennzeichen der Bestellungen; mehrere verbindet nur das Semikolon</translation>
    </message>
    <message>
        <source>the %1 %2 has a blank in it</source>
        <translation>%1 %2 enthält ein Leerzeichen</translation>
    </message>
    <message>
        <source>the %1 %2 has a blank around it</source>
        <translation>%1 %2 hat am Anfang oder Ende ein Leerzeichen</translation>
    </message>
    <message>
        <source>the other spelling</source>
        <translation>die andere Schreibweise</translation>
    </message>
    <message>
        <source>the other name</source>
        <translation>der andere Name</translation>
    </message>
    <message>
        <source>the lowest page count %1 is above the highest, %2; raise max_pages, or lower pages</source>
        <translation>die kleinste Seitenzahl %1 liegt über der größten, %2; bitte max_pages erhöhen oder pages verringern</translation>
    </message>
    <message>
        <source>there is no step (page_step) that leads from %1 to %2 pages; write how many pages one package has</source>
        <translation>es gibt keinen Schritt (page_step), der von %1 zu %2 Seiten führt; bitte angeben, wie viele Seiten ein Paket hat</translation>
    </message>
    <message>
        <source>steps of %1 from %2 pages never meet %3</source>
        <translation>Schritte von %1 ab %2 Seiten treffen nie %3</translation>
    </message>
    <message>
        <source>the nearest count is %1</source>
        <translation>die nächstliegende Seitenzahl ist %1</translation>
    </message>
    <message>
        <source>the nearest counts are %1 and %2</source>
        <translation>die nächstliegenden Seitenzahlen sind %1 und %2</translation>
    </message>
    <message>
        <source>there are %1 pieces; write 1 or more</source>
        <translation>es sind %1 Stück; bitte 1 oder mehr angeben</translation>
    </message>
    <message>
        <source>the lowest page count</source>
        <translation>die kleinste Seitenzahl</translation>
    </message>
    <message>
        <source>steps of %1 pages are below 0; write how many pages one package has</source>
        <translation>Schritte von %1 Seiten sind kleiner als 0; bitte angeben, wie viele Seiten ein Paket hat</translation>
    </message>
    <message>
        <source>the lowest page count is %1; write 1 or more</source>
        <translation>die kleinste Seitenzahl ist %1; bitte 1 oder mehr angeben</translation>
    </message>
    <message>
        <source>the step</source>
        <translation>der Schritt</translation>
    </message>
    <message>
        <source>a product inside a product is not read; put it behind the outer one</source>
        <translation>ein Produkt in einem Produkt wird nicht gelesen; bitte hinter das äußere stellen</translation>
    </message>
    <message>
        <source>the outer product</source>
        <translation>das äußere Produkt</translation>
    </message>
    <message>
        <source>only the first %1 is read, the one in line %2; make them one</source>
        <translation>nur das erste %1 wird gelesen, das in Zeile %2; bitte zu einem zusammenfassen</translation>
    </message>
    <message>
        <source>write one of a group, or one that begins with 0 if nothing is billed</source>
        <translation>bitte eine aus einer Gruppe angeben oder, wenn nichts berechnet wird, eine, die mit 0 beginnt</translation>
    </message>
    <message>
        <source>Broken:</source>
        <translation>Fehlerhaft:</translation>
    </message>
    <message>
        <source>Mended:</source>
        <translation>Berichtigt:</translation>
    </message>
    <message>
        <source>To silence it for an element and everything in it, write in front of that element:</source>
        <translation>Um die Regel für ein Element und alles darin zu unterdrücken, vor dieses Element schreiben:</translation>
    </message>
    <message>
        <source>To leave it out once:</source>
        <translation>Um die Regel einmal auszulassen:</translation>
    </message>
    <message>
        <source>To leave it out always, write in rvcatalog.toml:</source>
        <translation>Um die Regel immer auszulassen, in rvcatalog.toml schreiben:</translation>
    </message>
    <message>
        <source>the product is bound (%1), but has no spine in a composition; add one with its widths</source>
        <translation>das Produkt ist gebunden (%1), hat aber keinen Rücken (spine in composition); bitte einen mit seinen Breiten ergänzen</translation>
    </message>
    <message>
        <source>the binding</source>
        <translation>die Bindung</translation>
    </message>
    <message>
        <source>the widths of the spine are too large for a number; write smaller ones</source>
        <translation>die Breiten des Rückens sind zu groß für eine Zahl; bitte kleinere angeben</translation>
    </message>
    <message>
        <source>the product is bound, but its spine has no width; write a base_width</source>
        <translation>das Produkt ist gebunden, aber sein Rücken hat keine Breite; bitte base_width angeben</translation>
    </message>
    <message>
        <source>%1 is below 0; write 0 or more</source>
        <translation>%1 ist kleiner als 0; bitte 0 oder mehr angeben</translation>
    </message>
    <message>
        <source>%1 are below 0; write 0 or more</source>
        <translation>%1 sind kleiner als 0; bitte 0 oder mehr angeben</translation>
    </message>
    <message>
        <source>below 0</source>
        <translation>kleiner als 0</translation>
    </message>
    <message>
        <source>this comment is not understood; one that silences rules reads %1</source>
        <translation>dieser Kommentar ist nicht verständlich; einer, der Regeln unterdrückt, lautet %1</translation>
    </message>
    <message>
        <source>this comment names no rule to silence</source>
        <translation>dieser Kommentar nennt keine Regel, die er unterdrücken soll</translation>
    </message>
    <message>
        <source>this comment silences no finding of %1</source>
        <translation>dieser Kommentar unterdrückt keinen Befund von %1</translation>
    </message>
    <message>
        <source>this comment silences no finding of %1, as no element follows it</source>
        <translation>dieser Kommentar unterdrückt keinen Befund von %1, denn ihm folgt kein Element</translation>
    </message>
    <message>
        <source>there is no rule %1</source>
        <translation>es gibt keine Regel %1</translation>
    </message>
    <message>
        <source>there is no rule %1; did you mean %2?</source>
        <translation>es gibt keine Regel %1; ist %2 gemeint?</translation>
    </message>
    <message>
        <source>%1 is %2, which is too large</source>
        <translation>%1 ist %2, das ist zu groß</translation>
    </message>
    <message>
        <source>%1 is %2, which is too small</source>
        <translation>%1 ist %2, das ist zu klein</translation>
    </message>
    <message>
        <source>there is no unit %1</source>
        <translation>es gibt keine Einheit %1</translation>
    </message>
    <message>
        <source>the spine shrinks, so that at %1 pages it is too narrow for the smallest font; write a %2 of 0 or more</source>
        <translation>der Rücken schrumpft, sodass er bei %1 Seiten zu schmal für die kleinste Schrift ist; bitte für %2 den Wert 0 oder mehr angeben</translation>
    </message>
    <message>
        <source>the barcode has no %1, so it takes 1 unit; write how large it is</source>
        <translation>der Barcode hat kein Attribut %1, also gilt 1 Einheit; bitte die Größe angeben</translation>
    </message>
    <message>
        <source>the barcode has no width and no height, so it takes 1 unit each; write how large it is</source>
        <translation>der Barcode hat weder width noch height, also gilt jeweils 1 Einheit; bitte die Größe angeben</translation>
    </message>
    <message>
        <source>the barcode has no page number (pageNr), so it stands on page 0; write the page that it is on</source>
        <translation>der Barcode hat keine Seitennummer (pageNr), also steht er auf Seite 0; bitte die Seite angeben, auf der er steht</translation>
    </message>
    <message>
        <source>there is no page %1; the product has at most %2, so write that or less</source>
        <translation>es gibt keine Seite %1; das Produkt hat höchstens %2, bitte diese oder eine kleinere Zahl angeben</translation>
    </message>
    <message>
        <source>the barcode ends %1 mm from the left and %2 mm from the top, but no page of this size class and orientation is so large; move it, or make it smaller</source>
        <translation>der Barcode endet %1 mm vom linken und %2 mm vom oberen Rand, aber keine Seite dieser Größenklasse und Ausrichtung ist so groß; bitte verschieben oder verkleinern</translation>
    </message>
    <message>
        <source>the barcode ends %1 mm from the left and %2 mm from the top, but the page has %3 by %4 mm; move it, or make it smaller</source>
        <translation>der Barcode endet %1 mm vom linken und %2 mm vom oberen Rand, aber die Seite misst %3 × %4 mm; bitte verschieben oder verkleinern</translation>
    </message>
    <message>
        <source>the type %1 is already that of the product in %2; write another, or take out one</source>
        <translation>den Typ %1 hat schon das Produkt in %2; bitte einen anderen angeben oder eines der beiden entfernen</translation>
    </message>
    <message>
        <source>the type %1, that is %2, is already that of the product in %3; write another, or take out one</source>
        <translation>den Typ %1, also %2, hat schon das Produkt in %3; bitte einen anderen angeben oder eines der beiden entfernen</translation>
    </message>
    <message>
        <source>the article id %1 is already that of the product in %2; write another, or take out one</source>
        <translation>die Artikelnummer %1 hat schon das Produkt in %2; bitte eine andere angeben oder eines der beiden entfernen</translation>
    </message>
    <message>
        <source>the %1 %2 is not what it looks like</source>
        <translation>%1 %2 ist nicht, wonach es aussieht</translation>
    </message>
    <message>
        <source>take it out</source>
        <translation>bitte entfernen</translation>
    </message>
    <message>
        <source>the %1 %2 differs from %3 in line %4 in letter case only; choose one spelling</source>
        <translation>%1 %2 unterscheidet sich von %3 in Zeile %4 nur in Groß- und Kleinschreibung; bitte eine Schreibweise wählen</translation>
    </message>
    <message>
        <source>the key %1 is named %2 here, but %3 in line %4; choose one name</source>
        <translation>key %1 heißt hier %2, in Zeile %4 aber %3; bitte einen Namen wählen</translation>
    </message>
    <message>
        <source>there is a step (page_step), but no highest page count (max_pages), so %1 pages are the only count; write the highest one</source>
        <translation>es gibt einen Schritt (page_step), aber keine größte Seitenzahl (max_pages), also ist %1 die einzige Seitenzahl; bitte die größte angeben</translation>
    </message>
    <message>
        <source>there are %1 page counts from %2 to %3; lower max_pages, or raise page_step</source>
        <translation>es gibt %1 Seitenzahlen von %2 bis %3; bitte max_pages verkleinern oder page_step vergrößern</translation>
    </message>
    <message>
        <source>the spine has other widths, but no base_width; write one, or 0 for none</source>
        <translation>der Rücken hat andere Breiten, aber kein Attribut base_width; bitte eines angeben, oder 0 für keine</translation>
    </message>
    <message>
        <source>the spine has a block_width, but no packages_per_block, so it never grows; write how many packages make a block</source>
        <translation>der Rücken hat ein Attribut block_width, aber keines namens packages_per_block, wächst also nie; bitte angeben, wie viele Pakete einen Block ergeben</translation>
    </message>
    <message>
        <source>the spine is %1 mm wide at %2 pages, but bookbinders take at most %3 mm; check the widths and their unit</source>
        <translation>der Rücken ist bei %2 Seiten %1 mm breit, aber Buchbinder nehmen höchstens %3 mm; bitte die Breiten und ihre Einheit prüfen</translation>
    </message>
    <message>
        <source>the element %1 is not read outside of a product; move it into one</source>
        <translation>das Element %1 wird außerhalb eines Produkts nicht gelesen; bitte in eines verschieben</translation>
    </message>
</context>
</TS>
