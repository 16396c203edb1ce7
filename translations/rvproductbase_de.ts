<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="de_DE">
<context>
    <name>QObject</name>
    <message>
        <source>RAVO FOTOBUCH</source>
        <translation>RAVO FOTOBUCH</translation>
    </message>
    <message>
        <source>Fotos &amp; mehr</source>
        <translation>Fotos &amp; mehr</translation>
    </message>
    <message>
        <source>Poster &amp; Wandbilder</source>
        <translation>Poster &amp; Wandbilder</translation>
    </message>
    <message>
        <source>RAVO KALENDER</source>
        <translation>RAVO KALENDER</translation>
    </message>
    <message>
        <source>Grußkarten</source>
        <translation>Grußkarten</translation>
    </message>
    <message>
        <source>Fotogeschenke</source>
        <translation>Fotogeschenke</translation>
    </message>
</context>
<context>
    <name>RVArticleClass</name>
    <message numerus="yes">
        <source>%n Foto</source>
        <comment>Achtung plural!</comment>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Seiten</source>
        <comment>Achtung plural!</comment>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RVBinding</name>
    <message>
        <source>Hardcover</source>
        <translation>Hardcover</translation>
    </message>
    <message>
        <source>Softcover</source>
        <translation>Softcover</translation>
    </message>
    <message>
        <source>Leinen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Leder</source>
        <translation>Leder</translation>
    </message>
    <message>
        <source>Heft</source>
        <translation>Heft</translation>
    </message>
    <message>
        <source>Kalender einseitig</source>
        <translation>Kalender einseitig</translation>
    </message>
    <message>
        <source>Kalender doppelseitig</source>
        <translation>Kalender doppelseitig</translation>
    </message>
    <message>
        <source>1-Seiten-Kalender</source>
        <translation>1-Seiten-Kalender</translation>
    </message>
    <message>
        <source>2-Seiten-Jahresplaner</source>
        <translation>2-Seiten-Jahresplaner</translation>
    </message>
    <message>
        <source>Kunststoff-Spiralbindung</source>
        <translation>Kunststoff-Spiralbindung</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer elastischer Einband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Individuell gestaltbarer elastischer Einband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</translation>
    </message>
    <message>
        <source>Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</translation>
    </message>
    <message>
        <source>Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,
da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.</source>
        <translation>Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,
da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.</translation>
    </message>
    <message>
        <source>Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.</source>
        <translation>Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.</translation>
    </message>
    <message>
        <source>Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</translation>
    </message>
    <message>
        <source>Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer flexibler Einband mit Rückstichbindung.</source>
        <translation>Individuell gestaltbarer flexibler Einband mit Rückstichbindung.</translation>
    </message>
    <message>
        <source>Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.</translation>
    </message>
    <message>
        <source>Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.</translation>
    </message>
    <message>
        <source>unbekannter Bindungstyp</source>
        <translation>unbekannter Bindungstyp</translation>
    </message>
    <message>
        <source>Das Cover kann nur mit veredelten Elementen gestaltet werden.</source>
        <translation>Das Cover kann nur mit veredelten Elementen gestaltet werden.</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
</context>
<context>
    <name>RVDlpType</name>
    <message>
        <source>Hintergründe</source>
        <translation>Hintergründe</translation>
    </message>
    <message numerus="yes">
        <source>%n Hintergründe</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Hintergrund</numerusform>
            <numerusform>%n Hintergründe</numerusform>
        </translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Stile</translation>
    </message>
    <message numerus="yes">
        <source>%n Stile</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Stil</numerusform>
            <numerusform>%n Stile</numerusform>
        </translation>
    </message>
    <message>
        <source>Designs</source>
        <translation>Designs</translation>
    </message>
    <message numerus="yes">
        <source>%n Designs</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Design</numerusform>
            <numerusform>%n Designs</numerusform>
        </translation>
    </message>
    <message>
        <source>Cliparts</source>
        <translation>Cliparts</translation>
    </message>
    <message numerus="yes">
        <source>%n Cliparts</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Clipart</numerusform>
            <numerusform>%n Cliparts</numerusform>
        </translation>
    </message>
    <message>
        <source>Masken &amp; Rahmen</source>
        <translation>Masken &amp; Rahmen</translation>
    </message>
    <message numerus="yes">
        <source>%n Masken &amp; Rahmen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Maske oder Rahmen</numerusform>
            <numerusform>%n Masken &amp; Rahmen</numerusform>
        </translation>
    </message>
    <message>
        <source>Buchvorlagen</source>
        <translation>Buchvorlagen</translation>
    </message>
    <message numerus="yes">
        <source>%n Buchvorlagen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Buchvorlage</numerusform>
            <numerusform>%n Buchvorlagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorlagen</source>
        <translation>Vorlagen</translation>
    </message>
    <message numerus="yes">
        <source>%n Vorlagen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n Vorlage</numerusform>
            <numerusform>%n Vorlagen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RVFotoPaperType</name>
    <message>
        <source>Unbekanntes Fotopapier</source>
        <translation>Unbekanntes Fotopapier</translation>
    </message>
    <message>
        <source>Glänzend</source>
        <translation>Glänzend</translation>
    </message>
    <message>
        <source>Matt</source>
        <translation>Matt</translation>
    </message>
</context>
<context>
    <name>RVOrientation</name>
    <message>
        <source>Hochkant-</source>
        <translation>Hochkant-</translation>
    </message>
    <message>
        <source>Panorama-</source>
        <translation>Panorama-</translation>
    </message>
    <message>
        <source>quadratische </source>
        <translation>quadratische </translation>
    </message>
    <message>
        <source>schlanke Hochkant-</source>
        <translation>schlanke Hochkant-</translation>
    </message>
    <message>
        <source>schlanke Panorama-</source>
        <translation>schlanke Panorama-</translation>
    </message>
</context>
<context>
    <name>RVPageAlignment</name>
    <message>
        <source>links</source>
        <translation>links</translation>
    </message>
    <message>
        <source>rechts</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>auf dem Buchrücken</source>
        <translation>auf dem Buchrücken</translation>
    </message>
    <message>
        <source>auf dieser Seite</source>
        <translation>auf dieser Seite</translation>
    </message>
    <message>
        <source>oben</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>unten</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>mittig</source>
        <translation>mittig</translation>
    </message>
</context>
<context>
    <name>RVPageBinding</name>
    <message>
        <source>klassische Buchbindung</source>
        <translation>klassische Buchbindung</translation>
    </message>
    <message>
        <source>Lay-Flat-Bindung</source>
        <translation>Lay-Flat-Bindung</translation>
    </message>
    <message>
        <source>Rückstichbindung</source>
        <translation>Rückstichbindung</translation>
    </message>
</context>
<context>
    <name>RVPageCountOrganizationListModel</name>
    <message>
        <source>%1 Fotos</source>
        <translation>%1 Fotos</translation>
    </message>
    <message>
        <source>%1 Seiten</source>
        <translation>%1 Seiten</translation>
    </message>
</context>
<context>
    <name>RVPaperType</name>
    <message>
        <source>Digitaldruck Matt</source>
        <translation>Digitaldruck Matt</translation>
    </message>
    <message>
        <source>Digitaldruck Matt (100% recycelt)</source>
        <translation>Digitaldruck Matt (100% recycelt)</translation>
    </message>
    <message>
        <source>Digitaldruck Hochglanz</source>
        <translation>Digitaldruck Hochglanz</translation>
    </message>
    <message>
        <source>Digitaldruck Premium-Matt</source>
        <translation>Digitaldruck Premium-Matt</translation>
    </message>
    <message>
        <source>Fotopapier Glänzend</source>
        <translation>Fotopapier Glänzend</translation>
    </message>
    <message>
        <source>Fotopapier Premium-Matt</source>
        <translation>Fotopapier Premium-Matt</translation>
    </message>
    <message>
        <source>Fotopapier Matt</source>
        <translation>Fotopapier Matt</translation>
    </message>
    <message>
        <source>Premiumpapier</source>
        <translation>Premiumpapier</translation>
    </message>
    <message>
        <source>unbekannter Papiertyp</source>
        <translation>unbekannter Papiertyp</translation>
    </message>
</context>
<context>
    <name>RVSpaceMagnitude</name>
    <message>
        <source>Mini</source>
        <translation>Mini</translation>
    </message>
    <message>
        <source>Klein</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact Quadratisch</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Compact</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>XL</source>
        <translation>XL</translation>
    </message>
    <message>
        <source>A3</source>
        <translation>A3</translation>
    </message>
    <message>
        <source>XXL</source>
        <translation>XXL</translation>
    </message>
    <message>
        <source>A2</source>
        <translation>A2</translation>
    </message>
    <message>
        <source>Undefiniert</source>
        <translation>Undefiniert</translation>
    </message>
</context>
</TS>
