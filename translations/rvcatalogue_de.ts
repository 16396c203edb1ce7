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
    <name>RVFindingText</name>
    <message>
        <source>the barcode has no image</source>
        <translation>der Barcode hat kein Bild</translation>
    </message>
    <message>
        <source>there is no page %1</source>
        <translation>es gibt keine Seite %1</translation>
    </message>
    <message>
        <source>there is no page %1; the product has at most %2</source>
        <translation>es gibt keine Seite %1; das Produkt hat höchstens %2</translation>
    </message>
    <message>
        <source>the barcode has no width or no height</source>
        <translation>der Barcode hat keine Breite oder keine Höhe</translation>
    </message>
    <message>
        <source>the barcode begins left of the page</source>
        <translation>der Barcode beginnt links von der Seite</translation>
    </message>
    <message>
        <source>the barcode begins above the page</source>
        <translation>der Barcode beginnt über der Seite</translation>
    </message>
    <message>
        <source>the barcode ends %1 mm from the left and %2 mm from the top, where there is no page</source>
        <translation>der Barcode endet %1 mm von links und %2 mm von oben, wo keine Seite mehr ist</translation>
    </message>
    <message>
        <source>the barcode overlaps the one in line %1</source>
        <translation>der Barcode überlappt den in Zeile %1</translation>
    </message>
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
        <source>the type %1 is already that of the product in line %2</source>
        <translation>der Typ %1 gehört schon dem Produkt in Zeile %2</translation>
    </message>
    <message>
        <source>the type %1, that is %2, is already that of the product in line %3</source>
        <translation>der Typ %1, also %2, gehört schon dem Produkt in Zeile %3</translation>
    </message>
    <message>
        <source>the article id %1 is already that of the product in line %2</source>
        <translation>die Artikelnummer %1 gehört schon dem Produkt in Zeile %2</translation>
    </message>
    <message>
        <source>the product has no article id</source>
        <translation>das Produkt hat keine Artikelnummer</translation>
    </message>
    <message>
        <source>the article id %1 is no whole number above 0</source>
        <translation>die Artikelnummer %1 ist keine ganze Zahl über 0</translation>
    </message>
    <message>
        <source>the product has no type</source>
        <translation>das Produkt hat keinen Typ</translation>
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
        <source>there is an empty keyword in %1</source>
        <translation>in %1 ist ein leeres Schlüsselwort</translation>
    </message>
    <message>
        <source>%1 is no keyword of %2</source>
        <translation>%1 ist kein Schlüsselwort von %2</translation>
    </message>
    <message>
        <source>%1 is no keyword of %2; did you mean %3?</source>
        <translation>%1 ist kein Schlüsselwort von %2; ist %3 gemeint?</translation>
    </message>
    <message>
        <source>%1 is no keyword of %2; did you mean %3, that is %4?</source>
        <translation>%1 ist kein Schlüsselwort von %2; ist %3 gemeint, also %4?</translation>
    </message>
    <message>
        <source>the option has no value</source>
        <translation>die Option hat keinen Wert</translation>
    </message>
    <message>
        <source>the option has no key and no value</source>
        <translation>die Option hat weder Schlüssel noch Wert</translation>
    </message>
    <message>
        <source>the option has no key</source>
        <translation>die Option hat keinen Schlüssel</translation>
    </message>
    <message>
        <source>the keys %1 and the values %2 are not equally many</source>
        <translation>die Schlüssel %1 und die Werte %2 sind nicht gleich viele</translation>
    </message>
    <message>
        <source>%1 is no colour</source>
        <translation>%1 ist keine Farbe</translation>
    </message>
    <message>
        <source>the option %1 of %2 is already there in line %3</source>
        <translation>die Option %1 von %2 steht schon in Zeile %3</translation>
    </message>
    <message>
        <source>%1 is preselected for %2, but %3 in line %4 is so already</source>
        <translation>%1 ist für %2 vorgegeben, aber %3 in Zeile %4 ist es schon</translation>
    </message>
    <message>
        <source>no option of %1 is preselected, so an order comes without any</source>
        <translation>keine Option von %1 ist vorgegeben, also kommt eine Bestellung ohne</translation>
    </message>
    <message>
        <source>no option of %1 is preselected, so the first is taken</source>
        <translation>keine Option von %1 ist vorgegeben, also gilt die erste</translation>
    </message>
    <message>
        <source>there are %1 pieces</source>
        <translation>es sind %1 Stück</translation>
    </message>
    <message>
        <source>the lowest page count %1 is above the highest, %2</source>
        <translation>die kleinste Seitenzahl %1 liegt über der größten, %2</translation>
    </message>
    <message>
        <source>there is no step (page_step) that leads from %1 to %2 pages</source>
        <translation>es gibt keinen Schritt (page_step), der von %1 zu %2 Seiten führt</translation>
    </message>
    <message>
        <source>there are no valid page counts (%1)</source>
        <translation>es gibt keine gültigen Seitenzahlen (%1)</translation>
    </message>
    <message>
        <source>steps of %1 from %2 pages end at %3 and never meet %4</source>
        <translation>Schritte von %1 ab %2 Seiten enden bei %3 und treffen nie %4</translation>
    </message>
    <message>
        <source>a product inside a product is not read</source>
        <translation>ein Produkt in einem Produkt wird nicht gelesen</translation>
    </message>
    <message>
        <source>only the first %1 is read, the one in line %2</source>
        <translation>nur das erste %1 wird gelesen, das in Zeile %2</translation>
    </message>
    <message>
        <source>the price class %1 belongs to no known group</source>
        <translation>die Preisklasse %1 gehört zu keiner bekannten Gruppe</translation>
    </message>
    <message>
        <source>the product is bound (%1), but has no spine in a composition</source>
        <translation>das Produkt ist gebunden (%1), hat aber keinen Rücken (spine in composition)</translation>
    </message>
    <message>
        <source>the widths of the spine are too large for a number</source>
        <translation>die Breiten des Rückens sind zu groß für eine Zahl</translation>
    </message>
    <message>
        <source>the product is bound, but its spine has no width</source>
        <translation>das Produkt ist gebunden, aber sein Rücken hat keine Breite</translation>
    </message>
    <message>
        <source>the spine shrinks, so that at %1 pages it is too narrow for the smallest font</source>
        <translation>der Rücken schrumpft und ist bei %1 Seiten zu schmal für die kleinste Schrift</translation>
    </message>
    <message>
        <source>%1 is below 0</source>
        <translation>%1 ist kleiner als 0</translation>
    </message>
    <message>
        <source>%1 are below 0</source>
        <translation>%1 sind kleiner als 0</translation>
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
        <source>there is no unit %1; there are mm, cm, inch, in, pt, point and 0.1mm</source>
        <translation>es gibt keine Einheit %1; es gibt mm, cm, inch, in, pt, point und 0.1mm</translation>
    </message>
</context>
</TS>
