<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="de_DE">
<context>
    <name>QObject</name>
    <message>
        <source>RAVO FOTOBUCH</source>
        <translation>RAVO PHOTO BOOK</translation>
    </message>
    <message>
        <source>Fotos &amp; mehr</source>
        <translation>Photos &amp; more</translation>
    </message>
    <message>
        <source>Poster &amp; Wandbilder</source>
        <translation>Posters &amp; wall decor</translation>
    </message>
    <message>
        <source>RAVO KALENDER</source>
        <translation>RAVO CALENDAR</translation>
    </message>
    <message>
        <source>Grußkarten</source>
        <translation>Greeting cards</translation>
    </message>
    <message>
        <source>Fotogeschenke</source>
        <translation>Photo gifts</translation>
    </message>
</context>
<context>
    <name>RVArticleClass</name>
    <message numerus="yes">
        <source>%n Foto</source>
        <comment>Achtung plural!</comment>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Seiten</source>
        <comment>Achtung plural!</comment>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
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
        <translation>Linen</translation>
    </message>
    <message>
        <source>Leder</source>
        <translation>Leather</translation>
    </message>
    <message>
        <source>Heft</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Kalender einseitig</source>
        <translation>Calendar, one-sided</translation>
    </message>
    <message>
        <source>Kalender doppelseitig</source>
        <translation>Calendar, two-sided</translation>
    </message>
    <message>
        <source>1-Seiten-Kalender</source>
        <translation>1-page calendar</translation>
    </message>
    <message>
        <source>2-Seiten-Jahresplaner</source>
        <translation>2-page annual planner</translation>
    </message>
    <message>
        <source>Kunststoff-Spiralbindung</source>
        <translation>Plastic spiral binding</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer elastischer Einband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Flexible adhesive binding with a cover of your own design.
The whole cover can be designed.</translation>
    </message>
    <message>
        <source>Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.
Das Cover ist vollständig gestaltbar.</source>
        <translation>Sturdy adhesive hardback binding with a cover of your own design.
The whole cover can be designed.</translation>
    </message>
    <message>
        <source>Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,
da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.</source>
        <translation>Calendars printed on one side are best hung up,
since the empty side faces the wall and so cannot be seen.</translation>
    </message>
    <message>
        <source>Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.</source>
        <translation>Calendars printed on both sides are best laid on a table.</translation>
    </message>
    <message>
        <source>Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large annual calendar, printed on one side, shows the whole calendar year.
Everything at a glance.</translation>
    </message>
    <message>
        <source>Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte Kalenderjahr.
Alles auf einen Blick.</source>
        <translation>A large annual calendar, printed on both sides, shows the whole calendar year.
Everything at a glance.</translation>
    </message>
    <message>
        <source>Individuell gestaltbarer flexibler Einband mit Rückstichbindung.</source>
        <translation>Flexible saddle-stitched binding with a cover of your own design.</translation>
    </message>
    <message>
        <source>Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>The high-quality linen cover is available in several colours.</translation>
    </message>
    <message>
        <source>Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.</source>
        <translation>The high-quality leather cover is available in several colours.</translation>
    </message>
    <message>
        <source>unbekannter Bindungstyp</source>
        <translation>unknown binding type</translation>
    </message>
    <message>
        <source>Das Cover kann nur mit veredelten Elementen gestaltet werden.</source>
        <translation>The cover can be designed with spot-colour elements only.</translation>
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
        <translation>Backgrounds</translation>
    </message>
    <message numerus="yes">
        <source>%n Hintergründe</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n background</numerusform>
            <numerusform>%n backgrounds</numerusform>
        </translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Styles</translation>
    </message>
    <message numerus="yes">
        <source>%n Stile</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n style</numerusform>
            <numerusform>%n styles</numerusform>
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
            <numerusform>%n design</numerusform>
            <numerusform>%n designs</numerusform>
        </translation>
    </message>
    <message>
        <source>Cliparts</source>
        <translation>Clip art</translation>
    </message>
    <message numerus="yes">
        <source>%n Cliparts</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n piece of clip art</numerusform>
            <numerusform>%n pieces of clip art</numerusform>
        </translation>
    </message>
    <message>
        <source>Masken &amp; Rahmen</source>
        <translation>Masks &amp; frames</translation>
    </message>
    <message numerus="yes">
        <source>%n Masken &amp; Rahmen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n mask or frame</numerusform>
            <numerusform>%n masks &amp; frames</numerusform>
        </translation>
    </message>
    <message>
        <source>Buchvorlagen</source>
        <translation>Book templates</translation>
    </message>
    <message numerus="yes">
        <source>%n Buchvorlagen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n book template</numerusform>
            <numerusform>%n book templates</numerusform>
        </translation>
    </message>
    <message>
        <source>Vorlagen</source>
        <translation>Templates</translation>
    </message>
    <message numerus="yes">
        <source>%n Vorlagen</source>
        <comment>Bitte jede Pluralform ausschreiben!!!</comment>
        <translation>
            <numerusform>%n template</numerusform>
            <numerusform>%n templates</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RVFotoPaperType</name>
    <message>
        <source>Unbekanntes Fotopapier</source>
        <translation>Unknown photo paper</translation>
    </message>
    <message>
        <source>Glänzend</source>
        <translation>Glossy</translation>
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
        <translation>Portrait </translation>
    </message>
    <message>
        <source>Panorama-</source>
        <translation>Landscape </translation>
    </message>
    <message>
        <source>quadratische </source>
        <translation>Square </translation>
    </message>
    <message>
        <source>schlanke Hochkant-</source>
        <translation>Slim portrait </translation>
    </message>
    <message>
        <source>schlanke Panorama-</source>
        <translation>Slim landscape </translation>
    </message>
</context>
<context>
    <name>RVPageAlignment</name>
    <message>
        <source>links</source>
        <translation>on the left</translation>
    </message>
    <message>
        <source>rechts</source>
        <translation>on the right</translation>
    </message>
    <message>
        <source>auf dem Buchrücken</source>
        <translation>on the spine</translation>
    </message>
    <message>
        <source>auf dieser Seite</source>
        <translation>on this page</translation>
    </message>
    <message>
        <source>oben</source>
        <translation>at the top</translation>
    </message>
    <message>
        <source>unten</source>
        <translation>at the bottom</translation>
    </message>
    <message>
        <source>mittig</source>
        <translation>centred</translation>
    </message>
</context>
<context>
    <name>RVPageBinding</name>
    <message>
        <source>klassische Buchbindung</source>
        <translation>classic book binding</translation>
    </message>
    <message>
        <source>Lay-Flat-Bindung</source>
        <translation>lay-flat binding</translation>
    </message>
    <message>
        <source>Rückstichbindung</source>
        <translation>saddle-stitch binding</translation>
    </message>
</context>
<context>
    <name>RVPageCountOrganizationListModel</name>
    <message>
        <source>%1 Fotos</source>
        <translation>%1 photos</translation>
    </message>
    <message>
        <source>%1 Seiten</source>
        <translation>%1 pages</translation>
    </message>
</context>
<context>
    <name>RVPaperType</name>
    <message>
        <source>Digitaldruck Matt</source>
        <translation>Digital print, matt</translation>
    </message>
    <message>
        <source>Digitaldruck Matt (100% recycelt)</source>
        <translation>Digital print, matt (100% recycled)</translation>
    </message>
    <message>
        <source>Digitaldruck Hochglanz</source>
        <translation>Digital print, high gloss</translation>
    </message>
    <message>
        <source>Digitaldruck Premium-Matt</source>
        <translation>Digital print, premium matt</translation>
    </message>
    <message>
        <source>Fotopapier Glänzend</source>
        <translation>Photo paper, glossy</translation>
    </message>
    <message>
        <source>Fotopapier Premium-Matt</source>
        <translation>Photo paper, premium matt</translation>
    </message>
    <message>
        <source>Fotopapier Matt</source>
        <translation>Photo paper, matt</translation>
    </message>
    <message>
        <source>Premiumpapier</source>
        <translation>Premium paper</translation>
    </message>
    <message>
        <source>unbekannter Papiertyp</source>
        <translation>unknown paper type</translation>
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
        <translation>Small</translation>
    </message>
    <message>
        <source>Compact Quadratisch</source>
        <translation>Compact square</translation>
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
        <translation>Square</translation>
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
        <translation>Undefined</translation>
    </message>
</context>
</TS>
