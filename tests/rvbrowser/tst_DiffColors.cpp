#include <DiffColors.h>
#include <PaletteColors.h>

#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

class tst_DiffColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
};

void tst_DiffColors::lines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QColor>("color"); // none for that of texts

    for (const QPalette &palette : { PaletteColors::light(), PaletteColors::dark() }) {
        const PaletteColors colors(palette);
        const char *name = palette == PaletteColors::dark() ? "dark" : "light";
        QTest::addRow("%s, old", name) << u"-<product/>"_s << colors.fault();
        QTest::addRow("%s, new", name) << u"+<product/>"_s << colors.good();
        QTest::addRow("%s, name of the old file", name) << u"--- a/c.xml"_s << colors.shade(0.6);
        QTest::addRow("%s, name of the new file", name) << u"+++ b/c.xml"_s << colors.shade(0.6);
        QTest::addRow("%s, place", name) << u"@@ -1,2 +1,2 @@"_s << colors.shade(0.6);
        QTest::addRow("%s, unchanged", name) << u" <product/>"_s << QColor();
        QTest::addRow("%s, empty line that is gone", name) << u"-"_s << colors.fault();
    }
}

// All of the line has one colour.
void tst_DiffColors::lines()
{
    QFETCH(QString, line);
    QFETCH(QColor, color);
    const bool isDark = QByteArray(QTest::currentDataTag()).startsWith("dark");
    QPlainTextEdit view;
    view.setPlainText(line);
    DiffColors colors(view.document(), isDark ? PaletteColors::dark() : PaletteColors::light());
    colors.rehighlight();
    const QList<QTextLayout::FormatRange> formats = view.document()->firstBlock().layout()->formats();
    QCOMPARE(formats.size(), color.isValid() ? 1 : 0);
    if (color.isValid()) {
        QCOMPARE(formats.constFirst().start, 0);
        QCOMPARE(formats.constFirst().length, int(line.size()));
        QCOMPARE(formats.constFirst().format.foreground().color(), color);
    }
}

QTEST_MAIN(tst_DiffColors)
#include "tst_DiffColors.moc"
