#include <PaletteColors.h>

#include <QTest>
#include <QtMath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

qreal linear(qreal part)
{
    return part <= 0.04045 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same, to 21, black on white. People need 4.5 for texts and 3 for lines.
qreal contrast(const QColor &a, const QColor &b)
{
    const auto [dark, bright] = std::minmax({ luminance(a), luminance(b) });
    return (bright + 0.05) / (dark + 0.05);
}

QPalette desktop(const QColor &base, const QColor &text, const QColor &highlight)
{
    QPalette result;
    result.setColor(QPalette::Base, base);
    result.setColor(QPalette::Text, text);
    result.setColor(QPalette::Highlight, highlight);
    return result;
}

}

class tst_PaletteColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readable_data();
    void readable();
    void faultPalette();
    void shades();
    void texts_data();
    void texts();
};

void tst_PaletteColors::readable_data()
{
    QTest::addColumn<QPalette>("palette");

    QTest::newRow("light") << PaletteColors::light();
    QTest::newRow("dark") << PaletteColors::dark();
    QTest::newRow("black on white") << desktop(Qt::white, Qt::black, Qt::blue);
    QTest::newRow("white on black") << desktop(Qt::black, Qt::white, Qt::blue);
    for (const char *name : { "yellow", "lime", "cyan", "red", "magenta", "orange", "gray", "white", "black" }) {
        const QColor highlight(QString::fromLatin1(name));
        QTest::addRow("%s on white", name) << desktop(Qt::white, Qt::black, highlight);
        QTest::addRow("%s on black", name) << desktop(Qt::black, Qt::white, highlight);
        QTest::addRow("%s on beige", name) << desktop(QColor(0xf5, 0xf0, 0xdc), Qt::black, highlight);
        QTest::addRow("%s on slate", name) << desktop(QColor(0x2f, 0x3b, 0x4a), Qt::white, highlight);
    }
}

void tst_PaletteColors::readable()
{
    QFETCH(QPalette, palette);
    const PaletteColors colors(palette);
    const QColor base = palette.color(QPalette::Base);
    const auto text = [](qreal value) { return QByteArray::number(value); };
    const qreal curve = contrast(colors.accent(), base);
    QVERIFY2(curve >= 3, text(curve));
    const qreal fault = contrast(colors.fault(), base);
    QVERIFY2(fault >= 4.5, text(fault));
}

void tst_PaletteColors::faultPalette()
{
    for (const QPalette &palette : { PaletteColors::light(), PaletteColors::dark() }) {
        const PaletteColors colors(palette);
        QPalette expected = palette;
        expected.setColor(QPalette::WindowText, colors.fault());
        QVERIFY(colors.faultPalette() == expected);
        const qreal found = contrast(colors.fault(), palette.color(QPalette::Window));
        QVERIFY2(found >= 4.5, QByteArray::number(found));
    }
}

void tst_PaletteColors::shades()
{
    const PaletteColors colors(desktop(QColor(0, 100, 200), QColor(200, 100, 0), Qt::blue));
    QCOMPARE(colors.shade(0), QColor(0, 100, 200));
    QCOMPARE(colors.shade(0.25), QColor(50, 100, 150));
    QCOMPARE(colors.shade(1), QColor(200, 100, 0));
}

void tst_PaletteColors::texts_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QPalette::ColorRole>("text");
    QTest::addColumn<QPalette::ColorRole>("background");
    QTest::addColumn<double>("least");

    const auto add = [](const char *name, const QPalette &palette) {
        const auto row = [&](const char *what, QPalette::ColorRole text, QPalette::ColorRole background, double least) {
            QTest::addRow("%s, %s", name, what) << palette << text << background << least;
        };
        row("text", QPalette::Text, QPalette::Base, 7);
        row("every other row", QPalette::Text, QPalette::AlternateBase, 7);
        row("label", QPalette::WindowText, QPalette::Window, 7);
        row("button", QPalette::ButtonText, QPalette::Button, 7);
        row("tool tip", QPalette::ToolTipText, QPalette::ToolTipBase, 7);
        row("chosen", QPalette::HighlightedText, QPalette::Highlight, 4.5);
        row("link", QPalette::Link, QPalette::Base, 4.5);
        row("empty field", QPalette::PlaceholderText, QPalette::Base, 4.5);
    };
    add("light", PaletteColors::light());
    add("dark", PaletteColors::dark());
}

void tst_PaletteColors::texts()
{
    QFETCH(QPalette, palette);
    QFETCH(QPalette::ColorRole, text);
    QFETCH(QPalette::ColorRole, background);
    QFETCH(double, least);
    const qreal found = contrast(palette.color(text), palette.color(background));
    QVERIFY2(found >= least, QByteArray::number(found));
}

QTEST_MAIN(tst_PaletteColors)
#include "tst_PaletteColors.moc"
