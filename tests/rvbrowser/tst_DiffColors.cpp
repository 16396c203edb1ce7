#include <DiffColors.h>
#include <PaletteColors.h>

#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

using namespace Qt::StringLiterals;

namespace {

const char DIFFERENCE[] = "--- a/c.xml\n"
                          "+++ b/c.xml\n"
                          "@@ -1,4 +1,3 @@\n"
                          " <products>\n"
                          "-<product/>\n"
                          "-\n"
                          "--- text\n"
                          "+<product/>\n"
                          "+++ text\n";

}

class tst_DiffColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
};

void tst_DiffColors::lines_data()
{
    QTest::addColumn<int>("line"); // of DIFFERENCE
    QTest::addColumn<QColor>("color"); // none for that of texts

    for (const QPalette &palette : { PaletteColors::light(), PaletteColors::dark() }) {
        const PaletteColors colors(palette);
        const char *name = palette == PaletteColors::dark() ? "dark" : "light";
        QTest::addRow("%s, name of the old file", name) << 0 << colors.shade(0.6);
        QTest::addRow("%s, name of the new file", name) << 1 << colors.shade(0.6);
        QTest::addRow("%s, place", name) << 2 << colors.shade(0.6);
        QTest::addRow("%s, unchanged", name) << 3 << QColor();
        QTest::addRow("%s, old", name) << 4 << colors.fault();
        QTest::addRow("%s, empty line that is gone", name) << 5 << colors.fault();
        QTest::addRow("%s, old, like a name", name) << 6 << colors.fault();
        QTest::addRow("%s, new", name) << 7 << colors.good();
        QTest::addRow("%s, new, like a name", name) << 8 << colors.good();
    }
}

// All of the line has one colour.
void tst_DiffColors::lines()
{
    QFETCH(int, line);
    QFETCH(QColor, color);
    const bool isDark = QByteArray(QTest::currentDataTag()).startsWith("dark");
    QPlainTextEdit view;
    view.setPlainText(QString::fromLatin1(DIFFERENCE));
    DiffColors colors(view.document(), isDark ? PaletteColors::dark() : PaletteColors::light());
    colors.rehighlight();
    const QTextBlock block = view.document()->findBlockByNumber(line);
    const QList<QTextLayout::FormatRange> formats = block.layout()->formats();
    QCOMPARE(formats.size(), color.isValid() ? 1 : 0);
    if (color.isValid()) {
        QCOMPARE(formats.constFirst().start, 0);
        QCOMPARE(formats.constFirst().length, block.length() - 1);
        QCOMPARE(formats.constFirst().format.foreground().color(), color);
    }
}

QTEST_MAIN(tst_DiffColors)
#include "tst_DiffColors.moc"
