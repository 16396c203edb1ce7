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
    void accent_data();
    void accent();
    void isDark_data();
    void isDark();
    void faultPalette();
    void shades();
    void disabled();
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

void tst_PaletteColors::accent_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("highlight");
    QTest::addColumn<QColor>("accent");

    const auto add = [](const char *name, QRgb base, QRgb highlight, QRgb accent) {
        QTest::newRow(name) << QColor(base) << QColor(highlight) << QColor(accent);
    };
    add("readable on white", 0xffffff, 0x000080, 0x000080);
    add("as dark as needed", 0xffffff, 0x0000ff, 0x0000d8);
    add("yellow on white", 0xffffff, 0xffff00, 0x989800);
    add("readable on black", 0x000000, 0xffffff, 0xffffff);
    add("as light as needed", 0x000000, 0x0000ff, 0x5151ff);
    add("blue on slate", 0x5f6b7a, 0x0000ff, 0xc1c1ff);
    add("grey", 0xa0a0a0, 0x808080, 0x505050);
    add("no lightness is readable on blue", 0x0202ff, 0xff0000, 0x080000);
    add("nearly black on blue", 0x0202ff, 0xd20000, 0x020000);
    add("no lightness is readable on yellow", 0xfefe00, 0xff0000, 0xfff9f9);
    add("nearly white on yellow", 0xfefe00, 0xfbfbfb, 0xfbfbfb);
}

// The colour of what is chosen, as light or dark as it has to be.
void tst_PaletteColors::accent()
{
    QFETCH(QColor, base);
    QFETCH(QColor, highlight);
    const QPalette palette = desktop(base, Qt::black, highlight);
    QTEST(PaletteColors(palette).accent().toRgb(), "accent");
}

void tst_PaletteColors::isDark_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("fault");

    QTest::newRow("just light") << QColor(0x80, 0x80, 0x80) << QColor(0xb0, 0x1c, 0x1c);
    QTest::newRow("just dark") << QColor(0x7f, 0x7f, 0x7f) << QColor(0xff, 0x8a, 0x80);
}

void tst_PaletteColors::isDark()
{
    QFETCH(QColor, base);
    QTEST(PaletteColors(desktop(base, Qt::black, Qt::blue)).fault(), "fault");
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

// Texts that cannot be chosen have another colour than those that can.
void tst_PaletteColors::disabled()
{
    const QPalette palette = PaletteColors::dark();
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        QCOMPARE(palette.color(QPalette::Disabled, role), QColor(0x80, 0x80, 0x80));
        QCOMPARE(palette.color(QPalette::Inactive, role), QColor(0xe6, 0xe6, 0xe6));
    }
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
