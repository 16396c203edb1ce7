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
        <source>A file without a product is no catalogue: nothing of it can be ordered.</source>
        <translation>Eine Datei ohne Produkt ist kein Katalog: Aus ihr lässt sich nichts bestellen.</translation>
    </message>
    <message>
        <source>Projects find their product by its type, so one without a type cannot be ordered.</source>
        <translation>Projekte finden ihr Produkt über den Typ; eines ohne Typ lässt sich nicht bestellen.</translation>
    </message>
    <message>
        <source>Of two products of one type the application only ever finds the first, and the codes of a photo book family are one type.</source>
        <translation>Von zwei Produkten eines Typs findet die Anwendung immer nur das erste, und die Codes einer Fotobuchfamilie sind ein Typ.</translation>
    </message>
    <message>
        <source>Shop and production know an article by its id.</source>
        <translation>Shop und Produktion kennen einen Artikel an seiner Nummer.</translation>
    </message>
    <message>
        <source>An article id is a whole number above 0; anything else is read as no id.</source>
        <translation>Eine Artikelnummer ist eine ganze Zahl über 0; alles andere gilt als keine Nummer.</translation>
    </message>
    <message>
        <source>Two products with one article id are the same article to shop and production.</source>
        <translation>Zwei Produkte mit einer Artikelnummer sind für Shop und Produktion derselbe Artikel.</translation>
    </message>
    <message>
        <source>A shipping group that is no whole number, or -1, is none, so the product is shipped with nothing else.</source>
        <translation>Eine Versandgruppe, die keine ganze Zahl ist, oder -1, ist keine; das Produkt wird dann mit nichts anderem zusammen versandt.</translation>
    </message>
    <message>
        <source>Only the first element of each kind in a product is read, so what the others say is lost.</source>
        <translation>Von jeder Art Element in einem Produkt wird nur das erste gelesen; was die anderen sagen, geht verloren.</translation>
    </message>
    <message>
        <source>What cannot be read as a number silently becomes the default.</source>
        <translation>Was sich nicht als Zahl lesen lässt, wird stillschweigend zum Standardwert.</translation>
    </message>
    <message>
        <source>What is none of true, false, 1, 0, yes, no, on and off silently becomes the default.</source>
        <translation>Was nicht true, false, 1, 0, yes, no, on oder off ist, wird stillschweigend zum Standardwert.</translation>
    </message>
    <message>
        <source>Lengths in an unknown unit are read as millimetres.</source>
        <translation>Längen in einer unbekannten Einheit werden als Millimeter gelesen.</translation>
    </message>
    <message>
        <source>A keyword that nobody knows silently becomes the default of its attribute.</source>
        <translation>Ein Schlüsselwort, das niemand kennt, wird stillschweigend zum Standardwert seiner Eigenschaft.</translation>
    </message>
    <message>
        <source>An alias is still read, but a program that writes the value uses its main keyword.</source>
        <translation>Ein Zweitname wird noch gelesen, aber wer den Wert schreibt, nimmt sein Hauptschlüsselwort.</translation>
    </message>
    <message>
        <source>With a lowest page count above the highest no count can be chosen.</source>
        <translation>Liegt die kleinste Seitenzahl über der größten, lässt sich keine wählen.</translation>
    </message>
    <message>
        <source>Without valid page counts the product cannot be ordered.</source>
        <translation>Ohne gültige Seitenzahlen lässt sich das Produkt nicht bestellen.</translation>
    </message>
    <message>
        <source>The highest page count can never be reached when the steps do not meet it.</source>
        <translation>Die größte Seitenzahl ist nie zu erreichen, wenn die Schritte sie nicht treffen.</translation>
    </message>
    <message>
        <source>A glued or lay-flat book has a spine, and without its widths the cover is made too narrow.</source>
        <translation>Ein geklebtes Buch und eines mit Flachlage haben einen Rücken; ohne seine Breiten wird der Umschlag zu schmal.</translation>
    </message>
    <message>
        <source>A spine that has a negative width, or grows backwards, comes out too narrow.</source>
        <translation>Ein Rücken mit negativer Breite oder einer, der rückwärts wächst, wird zu schmal.</translation>
    </message>
    <message>
        <source>Where the spine shrinks until the smallest font no longer fits, its text is cut off.</source>
        <translation>Schrumpft der Rücken, bis die kleinste Schrift nicht mehr passt, wird sein Text abgeschnitten.</translation>
    </message>
    <message>
        <source>An option without key or value is dropped, so the customer is never offered it.</source>
        <translation>Eine Option ohne Schlüssel oder Wert fällt weg und wird dem Kunden nie angeboten.</translation>
    </message>
    <message>
        <source>The customer is offered the same choice twice, and only the first has a price.</source>
        <translation>Der Kunde bekommt dieselbe Wahl zweimal angeboten, und nur die erste hat einen Preis.</translation>
    </message>
    <message>
        <source>Of several defaults of one key the last one silently wins.</source>
        <translation>Von mehreren Vorgaben eines Schlüssels gewinnt stillschweigend die letzte.</translation>
    </message>
    <message>
        <source>Without a default an order comes without the option, or with whichever stands first.</source>
        <translation>Ohne Vorgabe kommt eine Bestellung ohne die Option oder mit der, die zuerst steht.</translation>
    </message>
    <message>
        <source>The editor shows no swatch for a colour that it cannot read.</source>
        <translation>Zu einer Farbe, die er nicht lesen kann, zeigt der Editor kein Farbfeld.</translation>
    </message>
    <message>
        <source>Keys that are chosen together need one value each, or production gets none of them.</source>
        <translation>Schlüssel, die zusammen gewählt werden, brauchen je einen Wert, sonst bekommt die Produktion keinen davon.</translation>
    </message>
    <message>
        <source>A barcode without extent or image is dropped, and production cannot tell the product.</source>
        <translation>Ein Barcode ohne Ausdehnung oder Bild fällt weg, und die Produktion erkennt das Produkt nicht.</translation>
    </message>
    <message>
        <source>A barcode on a page that the product cannot have is never printed.</source>
        <translation>Ein Barcode auf einer Seite, die das Produkt nicht haben kann, wird nie gedruckt.</translation>
    </message>
    <message>
        <source>A barcode that leaves its page is cut off and cannot be read.</source>
        <translation>Ein Barcode, der über seine Seite ragt, wird abgeschnitten und ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Barcodes that overlap cannot be read.</source>
        <translation>Barcodes, die sich überlappen, sind nicht lesbar.</translation>
    </message>
    <message>
        <source>An add-on whose price class belongs to no known group is not counted where add-ons are billed.</source>
        <translation>Ein Zusatz, dessen Preisklasse zu keiner bekannten Gruppe gehört, wird nicht gezählt, wo Zusätze berechnet werden.</translation>
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
        <source>An element whose name is not exactly a known one is passed over with everything in it.</source>
        <translation>Ein Element, dessen Name nicht genau ein bekannter ist, wird mit allem darin übergangen.</translation>
    </message>
    <message>
        <source>An element is read only where it belongs; anywhere else it is passed over with everything in it.</source>
        <translation>Ein Element wird nur dort gelesen, wo es hingehört; überall sonst wird es mit allem darin übergangen.</translation>
    </message>
    <message>
        <source>Names are compared including their prefixes, so an element with one is passed over with everything in it.</source>
        <translation>Namen werden mitsamt ihrem Präfix verglichen; ein Element, das eines hat, wird deshalb mit allem darin übergangen.</translation>
    </message>
    <message>
        <source>An attribute whose name is not exactly a known one is passed over, and the default stands in its place.</source>
        <translation>Ein Attribut, dessen Name nicht genau ein bekannter ist, wird übergangen; an seiner Stelle gilt der Standardwert.</translation>
    </message>
    <message>
        <source>An attribute is read only of the elements that it belongs to; of any other it is passed over, and the default stands in its place.</source>
        <translation>Ein Attribut wird nur bei den Elementen gelesen, zu denen es gehört; bei jedem anderen wird es übergangen, und an seiner Stelle gilt der Standardwert.</translation>
    </message>
    <message>
        <source>Without a highest page count the lowest is the only one, and no step leads anywhere.</source>
        <translation>Ohne größte Seitenzahl ist die kleinste die einzige, und kein Schritt führt weiter.</translation>
    </message>
    <message>
        <source>Nobody prints a product in more than a thousand page counts, so one of the numbers is probably mistyped.</source>
        <translation>Niemand druckt ein Produkt in mehr als tausend Seitenzahlen; eine der Zahlen ist also wahrscheinlich vertippt.</translation>
    </message>
    <message>
        <source>Without a base width the block of pages has no thickness at the lowest page count, so the cover is made too narrow.</source>
        <translation>Ohne Grundbreite hat der Buchblock bei der kleinsten Seitenzahl keine Dicke; der Umschlag wird zu schmal.</translation>
    </message>
    <message>
        <source>A block width counts only with the number of packages that make a block; without it the spine never grows.</source>
        <translation>Eine Blockbreite zählt nur zusammen mit der Zahl der Pakete, die einen Block ergeben; ohne diese wächst der Rücken nie.</translation>
    </message>
    <message>
        <source>Industrial perfect binders take blocks of at most about 80 mm, so a wider spine is probably given in a wrong unit.</source>
        <translation>Industrielle Klebebinder verarbeiten Buchblöcke bis etwa 80 mm; ein breiterer Rücken ist also wahrscheinlich in einer falschen Einheit angegeben.</translation>
    </message>
    <message>
        <source>In orders commas separate options and colons keys from values, so an option with one of them is read as something else; only semicolons join keys, and values, that are chosen together.</source>
        <translation>In Bestellungen trennen Kommas die Optionen und Doppelpunkte die Schlüssel von den Werten; eine Option, die eines dieser Zeichen enthält, wird deshalb als etwas anderes gelesen. Schlüssel, die zusammen gewählt werden, und ihre Werte verbindet nur das Semikolon.</translation>
    </message>
    <message>
        <source>Keys and values are compared letter by letter, and a blank is a letter that nobody sees.</source>
        <translation>Schlüssel und Werte werden Zeichen für Zeichen verglichen, und ein Leerzeichen ist ein Zeichen, das niemand sieht.</translation>
    </message>
    <message>
        <source>Letter case counts in keys and values, so two spellings are two options.</source>
        <translation>In Schlüsseln und Werten zählt die Groß- und Kleinschreibung; zwei Schreibweisen sind deshalb zwei Optionen.</translation>
    </message>
    <message>
        <source>The customer reads one name for each key, so of several names all but one are lost.</source>
        <translation>Der Kunde liest zu jedem Schlüssel einen Namen; von mehreren Namen gehen alle bis auf einen verloren.</translation>
    </message>
    <message>
        <source>A barcode without width or height is printed with a single unit, which no scanner can read.</source>
        <translation>Ein Barcode ohne Breite oder Höhe wird dort mit einer einzigen Einheit gedruckt; das kann kein Scanner lesen.</translation>
    </message>
    <message>
        <source>A barcode without a page number stands on page 0.</source>
        <translation>Ein Barcode ohne Seitennummer steht auf Seite 0.</translation>
    </message>
    <message>
        <source>A barcode that stands beyond every page of the size class and orientation is cut off and cannot be read.</source>
        <translation>Ein Barcode, der über jede Seite der Größenklasse und Ausrichtung hinausragt, wird abgeschnitten und ist nicht lesbar.</translation>
    </message>
    <message>
        <source>A comment that silences nothing today silences the next mistake instead.</source>
        <translation>Ein Kommentar, der heute nichts unterdrückt, unterdrückt stattdessen den nächsten Fehler.</translation>
    </message>
    <message>
        <source>A comment that is misspelt silences nothing.</source>
        <translation>Ein Kommentar, der falsch geschrieben ist, unterdrückt nichts.</translation>
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
        <source>write one of a group, or one that begins with 0 for what is not billed</source>
        <translation>bitte eine aus einer Gruppe angeben, oder für das, was nicht berechnet wird, eine, die mit 0 beginnt</translation>
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
