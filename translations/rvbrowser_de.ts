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
    <name>ComparisonActions</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Compare &amp;with…</source>
        <translation>Vergleichen &amp;mit …</translation>
    </message>
    <message>
        <source>Changes since &amp;opening</source>
        <translation>Änderungen seit dem Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Swap old and new</source>
        <translation>Alt und neu &amp;tauschen</translation>
    </message>
    <message>
        <source>&amp;Next change</source>
        <translation>&amp;Nächste Änderung</translation>
    </message>
    <message>
        <source>&amp;Previous change</source>
        <translation>&amp;Vorherige Änderung</translation>
    </message>
    <message>
        <source>&amp;Copy changes</source>
        <translation>Änderungen &amp;kopieren</translation>
    </message>
    <message>
        <source>Save changes &amp;as…</source>
        <translation>Änderungen &amp;speichern unter …</translation>
    </message>
    <message>
        <source>Cancel c&amp;omparing</source>
        <translation>Vergleich abbre&amp;chen</translation>
    </message>
    <message>
        <source>C&amp;lose comparison</source>
        <translation>Vergleich sch&amp;ließen</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>Show c&amp;hanges</source>
        <translation>Änderungen &amp;zeigen</translation>
    </message>
    <message>
        <source>The changes that were found before are still shown.</source>
        <translation>Gezeigt werden weiter die Änderungen, die zuvor gefunden wurden.</translation>
    </message>
    <message>
        <source>Nothing was compared.</source>
        <translation>Es wurde nichts verglichen.</translation>
    </message>
    <message>
        <source>%1 is gone. It is compared again when it comes back.</source>
        <translation>%1 ist nicht mehr da. Die Datei wird wieder verglichen, sobald sie zurück ist.</translation>
    </message>
    <message>
        <source>Compare with an older catalogue</source>
        <translation>Mit einem älteren Katalog vergleichen</translation>
    </message>
    <message>
        <source>Catalogues (*.xml);;All files (*)</source>
        <translation>Kataloge (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Save the changes</source>
        <translation>Änderungen speichern</translation>
    </message>
    <message>
        <source>Text (*.txt);;Markdown (*.md);;JSON (*.json)</source>
        <translation>Text (*.txt);;Markdown (*.md);;JSON (*.json)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>The open catalogue does not have this product; this is the one of %1.</source>
        <translation>Der geöffnete Katalog hat dieses Produkt nicht; gezeigt wird das aus %1.</translation>
    </message>
</context>
<context>
    <name>ComparisonFilter</name>
    <message>
        <source>Kind of change</source>
        <translation>Art der Änderung</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle Änderungen</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>Search changes</source>
        <translation>Änderungen suchen</translation>
    </message>
    <message>
        <source>Search product, change, value</source>
        <translation>Produkt, Änderung, Wert suchen</translation>
    </message>
</context>
<context>
    <name>ComparisonModel</name>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>ComparisonPanel</name>
    <message>
        <source>Nothing found: show &amp;all changes</source>
        <translation>Nichts gefunden: all&amp;e Änderungen zeigen</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>The catalogues do not differ.</source>
        <translation>Die Kataloge unterscheiden sich nicht.</translation>
    </message>
    <message>
        <source>Nothing is compared.</source>
        <translation>Es wird nichts verglichen.</translation>
    </message>
</context>
<context>
    <name>ComparisonSession</name>
    <message>
        <source>no copy of the file could be kept when it was opened: %1</source>
        <translation>beim Öffnen ließ sich keine Kopie der Datei anlegen: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2 Uhr</translation>
    </message>
</context>
<context>
    <name>DiffTexts</name>
    <message>
        <source>added</source>
        <translation>hinzugefügt</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>renamed</source>
        <translation>umbenannt</translation>
    </message>
    <message>
        <source>article %1</source>
        <translation>Artikel %1</translation>
    </message>
    <message>
        <source>no article</source>
        <translation>ohne Artikelnummer</translation>
    </message>
    <message>
        <source>%1 added, %2 removed, %3 changed</source>
        <translation>%1 hinzugefügt, %2 entfernt, %3 geändert</translation>
    </message>
    <message>
        <source>(%1 renamed)</source>
        <translation>(%1 umbenannt)</translation>
    </message>
    <message>
        <source>%1 equal</source>
        <translation>%1 gleich</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
</context>
<context>
    <name>DrawingMenu</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Speichern unter …</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>Print pre&amp;view…</source>
        <translation>Druck&amp;vorschau …</translation>
    </message>
    <message>
        <source>The drawing was not saved</source>
        <translation>Die Zeichnung wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 lässt sich nicht schreiben: %2.</translation>
    </message>
    <message>
        <source>Save the drawing</source>
        <translation>Zeichnung speichern</translation>
    </message>
    <message>
        <source>SVG drawing (*.svg)</source>
        <translation>SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>PDF page (*.pdf)</source>
        <translation>PDF-Seite (*.pdf)</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>PNG-Bild (*.png)</translation>
    </message>
</context>
<context>
    <name>DrawingWidget</name>
    <message>
        <source>Copy, save or print this drawing</source>
        <translation>Diese Zeichnung kopieren, speichern oder drucken</translation>
    </message>
    <message>
        <source>Copy, save or print: %1</source>
        <translation>Kopieren, speichern oder drucken: %1</translation>
    </message>
</context>
<context>
    <name>EditorChoice</name>
    <message>
        <source>The editor of $VISUAL or $EDITOR</source>
        <translation>Editor aus $VISUAL oder $EDITOR</translation>
    </message>
    <message>
        <source>Another command</source>
        <translation>Anderer Befehl</translation>
    </message>
</context>
<context>
    <name>EditorDialog</name>
    <message>
        <source>%f stands for the file, %l for the line, %c for the column and %% for a percent sign. Double quotes keep blanks.</source>
        <translation>%f steht für die Datei, %l für die Zeile, %c für die Spalte und %% für ein Prozentzeichen. In doppelten Anführungszeichen bleiben Leerzeichen erhalten.</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open files &amp;with:</source>
        <translation>Dateien ö&amp;ffnen mit:</translation>
    </message>
    <message>
        <source>&amp;Command:</source>
        <translation>&amp;Befehl:</translation>
    </message>
</context>
<context>
    <name>EditorLauncher</name>
    <message>
        <source>There is no editor to open the file with. Choose one in the menu of the findings.</source>
        <translation>Es gibt keinen Editor, mit dem sich die Datei öffnen lässt. Bitte im Menü „Befunde“ einen wählen.</translation>
    </message>
    <message>
        <source>The editor &quot;%1&quot; is not installed. Choose another one in the menu of the findings.</source>
        <translation>Der Editor „%1“ ist nicht installiert. Bitte im Menü „Befunde“ einen anderen wählen.</translation>
    </message>
    <message>
        <source>The editor &quot;%1&quot; needs a terminal, and none is installed.</source>
        <translation>Der Editor „%1“ braucht ein Terminal, es ist aber keines installiert.</translation>
    </message>
    <message>
        <source>The editor &quot;%1&quot; cannot be run: %2</source>
        <translation>Der Editor „%1“ lässt sich nicht starten: %2</translation>
    </message>
    <message>
        <source>The editor &quot;%1&quot; crashed.</source>
        <translation>Der Editor „%1“ ist abgestürzt.</translation>
    </message>
    <message>
        <source>The editor &quot;%1&quot; ended at once with the exit code %2.</source>
        <translation>Der Editor „%1“ endete sofort mit dem Rückgabewert %2.</translation>
    </message>
</context>
<context>
    <name>FindingFilterBar</name>
    <message>
        <source>Filter by product, text, rule</source>
        <translation>Nach Produkt, Text, Regel filtern</translation>
    </message>
    <message>
        <source>Filter findings</source>
        <translation>Befunde filtern</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message numerus="yes">
        <source>Show %n error(s)</source>
        <translation>
            <numerusform>%n Fehler zeigen</numerusform>
            <numerusform>%n Fehler zeigen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n warning(s)</source>
        <translation>
            <numerusform>%n Warnung zeigen</numerusform>
            <numerusform>%n Warnungen zeigen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show %n note(s)</source>
        <translation>
            <numerusform>%n Hinweis zeigen</numerusform>
            <numerusform>%n Hinweise zeigen</numerusform>
        </translation>
    </message>
    <message>
        <source>All rules</source>
        <translation>Alle Regeln</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n finding(s)</source>
        <translation>
            <numerusform>%1 von %n Befund</numerusform>
            <numerusform>%1 von %n Befunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindingsActions</name>
    <message>
        <source>F&amp;indings</source>
        <translation>Bef&amp;unde</translation>
    </message>
    <message>
        <source>&amp;Next finding</source>
        <translation>&amp;Nächster Befund</translation>
    </message>
    <message>
        <source>&amp;Previous finding</source>
        <translation>&amp;Vorheriger Befund</translation>
    </message>
    <message>
        <source>Open in &amp;editor</source>
        <translation>Im &amp;Editor öffnen</translation>
    </message>
    <message>
        <source>&amp;Copy findings</source>
        <translation>Befunde &amp;kopieren</translation>
    </message>
    <message>
        <source>E&amp;xplain</source>
        <translation>E&amp;rklären</translation>
    </message>
    <message>
        <source>&amp;Apply fix…</source>
        <translation>Berichtigung &amp;anwenden …</translation>
    </message>
    <message>
        <source>App&amp;ly all fixes…</source>
        <translation>A&amp;lle Berichtigungen anwenden …</translation>
    </message>
    <message>
        <source>E&amp;ditor…</source>
        <translation>E&amp;ditor …</translation>
    </message>
    <message>
        <source>That was the last finding; this is the first one.</source>
        <translation>Das war der letzte Befund; dies ist der erste.</translation>
    </message>
    <message>
        <source>That was the first finding; this is the last one.</source>
        <translation>Das war der erste Befund; dies ist der letzte.</translation>
    </message>
    <message>
        <source>The filter hides all findings.</source>
        <translation>Der Filter verbirgt alle Befunde.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n fix(es) applied.</source>
        <translation>
            <numerusform>%n Berichtigung angewendet.</numerusform>
            <numerusform>%n Berichtigungen angewendet.</numerusform>
        </translation>
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
    <message>
        <source>Clear the &amp;filter</source>
        <translation>Fil&amp;ter leeren</translation>
    </message>
    <message>
        <source>Explanation of the finding</source>
        <translation>Erklärung des Befunds</translation>
    </message>
    <message>
        <source>The catalogue is checked again whenever its file changes.</source>
        <translation>Der Katalog wird erneut geprüft, sobald sich seine Datei ändert.</translation>
    </message>
    <message>
        <source>No finding matches the filter.</source>
        <translation>Kein Befund passt zum Filter.</translation>
    </message>
</context>
<context>
    <name>FixDialog</name>
    <message>
        <source>Apply fixes</source>
        <translation>Berichtigungen anwenden</translation>
    </message>
    <message>
        <source>Lines that change</source>
        <translation>Zeilen, die sich ändern</translation>
    </message>
    <message numerus="yes">
        <source>%n fix(es) change the file %1 like this:</source>
        <translation>
            <numerusform>%n Berichtigung ändert die Datei %1 so:</numerusform>
            <numerusform>%n Berichtigungen ändern die Datei %1 so:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more touch the same places; apply them afterwards.</source>
        <translation>
            <numerusform>%n weitere betrifft dieselben Stellen; bitte danach anwenden.</numerusform>
            <numerusform>%n weitere betreffen dieselben Stellen; bitte danach anwenden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Only the first changes are shown.</source>
        <translation>Gezeigt werden nur die ersten Änderungen.</translation>
    </message>
</context>
<context>
    <name>FixPlan</name>
    <message>
        <source>the file was changed since it was loaded; load it again with F5</source>
        <translation>die Datei wurde geändert, seit sie geladen wurde; bitte mit F5 neu laden</translation>
    </message>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>cannot write: %1</source>
        <translation>kann nicht schreiben: %1</translation>
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
    <message>
        <source>Comparing %1 with %2</source>
        <translation>%1 wird mit %2 verglichen</translation>
    </message>
</context>
<context>
    <name>LoadThread</name>
    <message>
        <source>there is no product in this file</source>
        <translation>in dieser Datei ist kein Produkt</translation>
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
        <source>The catalogue that was loaded before is still shown.</source>
        <translation>Der zuvor geladene Katalog wird weiter gezeigt.</translation>
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
    <message>
        <source>Forget the recent catalogues, the choices for products, and the places of the windows and their parts?</source>
        <translation>Die zuletzt geöffneten Kataloge, die Angaben zu Produkten und die Lage der Fenster und ihrer Teile vergessen?</translation>
    </message>
    <message>
        <source>Forget everything</source>
        <translation>Alles vergessen</translation>
    </message>
    <message>
        <source>&amp;Forget everything…</source>
        <translation>&amp;Alles vergessen …</translation>
    </message>
    <message>
        <source>Copy price &amp;classes</source>
        <translation>Preis&amp;klassen kopieren</translation>
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
        <source>This product has no options, so its order lines are empty.</source>
        <translation>Dieses Produkt hat keine Optionen, deshalb sind seine Bestellzeilen leer.</translation>
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
    <name>OrderPrices</name>
    <message>
        <source>This product cannot be ordered: it has no type.</source>
        <translation>Dieses Produkt lässt sich nicht bestellen: Es hat keinen Typ.</translation>
    </message>
    <message>
        <source>This product cannot be ordered: an earlier one has the same type.</source>
        <translation>Dieses Produkt lässt sich nicht bestellen: Ein früheres hat denselben Typ.</translation>
    </message>
    <message>
        <source>This product cannot be ordered: its page counts are not valid.</source>
        <translation>Dieses Produkt lässt sich nicht bestellen: Seine Seitenzahlen sind ungültig.</translation>
    </message>
    <message>
        <source>product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>pages above the lowest count</source>
        <translation>Seiten über der kleinsten Seitenzahl</translation>
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
        <source>P&amp;age</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source>Page with bleed, trim and barcodes, drawn to scale</source>
        <translation>Seite mit Beschnitt, Endformat und Barcodes, maßstäblich gezeichnet</translation>
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
        <source>A barcode lies outside of it (red).</source>
        <translation>Ein Barcode liegt außerhalb (rot).</translation>
    </message>
    <message>
        <source>The page size is assumed: the catalogue tells only size class and orientation.</source>
        <translation>Die Seitengröße ist angenommen: Der Katalog nennt nur Größenklasse und Ausrichtung.</translation>
    </message>
</context>
<context>
    <name>PagePicture</name>
    <message>
        <source>barcode %1 × %2 mm at %3, %4</source>
        <translation>Barcode %1 × %2 mm bei %3 / %4</translation>
    </message>
    <message>
        <source>%1, outside of the trim</source>
        <translation>%1, außerhalb des Endformats</translation>
    </message>
    <message>
        <source>trim %1 × %2 mm, assumed</source>
        <translation>Endformat %1 × %2 mm, angenommen</translation>
    </message>
    <message>
        <source>bleed %1 mm, assumed</source>
        <translation>Beschnitt %1 mm, angenommen</translation>
    </message>
    <message>
        <source>%1 page</source>
        <translation>%1 Seite</translation>
    </message>
    <message>
        <source>%1 page %2</source>
        <translation>%1 Seite %2</translation>
    </message>
    <message>
        <source>%1, scale 1 : %2</source>
        <translation>%1, Maßstab 1 : %2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>PricesPanel</name>
    <message>
        <source>%1 (free)</source>
        <translation>%1 (kostenlos)</translation>
    </message>
    <message>
        <source>Price classes</source>
        <translation>Preisklassen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopieren: %1</translation>
    </message>
    <message>
        <source>None of the choices has a price class.</source>
        <translation>Keine der Angaben hat eine Preisklasse.</translation>
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
    <name>ProductFaults</name>
    <message numerus="yes">
        <source>and %n more, which the findings have</source>
        <translation>
            <numerusform>und %n weiterer Fehler, siehe Befunde</numerusform>
            <numerusform>und %n weitere Fehler, siehe Befunde</numerusform>
        </translation>
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
    <message>
        <source>F&amp;aulty products only</source>
        <translation>&amp;Nur fehlerhafte Produkte</translation>
    </message>
    <message>
        <source>Products with an error or a warning</source>
        <translation>Produkte mit einem Fehler oder einer Warnung</translation>
    </message>
    <message>
        <source>No faulty product: &amp;show all</source>
        <translation>Kein fehlerhaftes Produkt: alle &amp;zeigen</translation>
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
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message numerus="yes">
        <source>%n note(s)</source>
        <translation>
            <numerusform>%n Hinweis</numerusform>
            <numerusform>%n Hinweise</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst of which is a warning</source>
        <translation>
            <numerusform>%n Befund: eine Warnung</numerusform>
            <numerusform>%n Befunde, der schwerste ist eine Warnung</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n finding(s), the worst of which is an error</source>
        <translation>
            <numerusform>%n Befund: ein Fehler</numerusform>
            <numerusform>%n Befunde, der schwerste ist ein Fehler</numerusform>
        </translation>
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
    <name>ReadThread</name>
    <message>
        <source>it is no regular file</source>
        <translation>sie ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>cannot open the file: %1</source>
        <translation>die Datei lässt sich nicht öffnen: %1</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open recen&amp;t</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No catalogue was opened yet</source>
        <translation>Es wurde noch kein Katalog geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
</context>
<context>
    <name>SpineCurve</name>
    <message>
        <source>Spine width over the page count</source>
        <translation>Rückenbreite über der Seitenzahl</translation>
    </message>
    <message>
        <source>Spine cur&amp;ve</source>
        <translation>Rücken&amp;kurve</translation>
    </message>
</context>
<context>
    <name>SpineDrawing</name>
    <message>
        <source>Spine, drawn to scale</source>
        <translation>Rücken, maßstäblich gezeichnet</translation>
    </message>
    <message>
        <source>%1 mm wide</source>
        <translation>%1 mm breit</translation>
    </message>
    <message>
        <source>S&amp;pine</source>
        <translation>&amp;Rücken</translation>
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
    <message>
        <source>font up to %1 pt %2</source>
        <translation>Schrift bis %1 pt %2</translation>
    </message>
</context>
<context>
    <name>SpinePicture</name>
    <message>
        <source>%1 spine, page count %2</source>
        <translation>%1 Rücken, Seitenzahl %2</translation>
    </message>
    <message>
        <source>page count %1 · font up to %2 pt %3</source>
        <translation>Seitenzahl %1 · Schrift bis %2 pt %3</translation>
    </message>
    <message>
        <source>scale 1 : %1</source>
        <translation>Maßstab 1 : %1</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Recent catalogues</source>
        <translation>Zuletzt geöffnete Kataloge</translation>
    </message>
    <message>
        <source>Catalogues of print products</source>
        <translation>Kataloge von Druckprodukten</translation>
    </message>
    <message>
        <source>Open a catalogue with Ctrl+O, or drop one here.</source>
        <translation>Öffnen Sie einen Katalog mit Strg+O, oder legen Sie einen hier ab.</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
</context>
<context>
    <name>UnifiedDiff</name>
    <message>
        <source>cannot run the program &quot;diff&quot;: %1</source>
        <translation>das Programm „diff“ lässt sich nicht starten: %1</translation>
    </message>
    <message>
        <source>the program &quot;diff&quot; failed: %1</source>
        <translation>das Programm „diff“ ist gescheitert: %1</translation>
    </message>
</context>
</TS>
