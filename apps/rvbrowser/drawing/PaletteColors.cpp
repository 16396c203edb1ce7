#include "PaletteColors.h"

namespace {

constexpr int MIDDLE_LIGHTNESS = 128;

}

QColor PaletteColors::shade(qreal strength) const
{
    const QColor base = myPalette.color(QPalette::Base);
    const QColor text = myPalette.color(QPalette::Text);
    const auto mixed = [strength](int from, int to) { return int(from + (to - from) * strength); };
    return QColor(mixed(base.red(), text.red()), mixed(base.green(), text.green()), mixed(base.blue(), text.blue()));
}

// The colour of what is chosen, made darker or lighter until it can be told from the background.
QColor PaletteColors::accent() const
{
    const QColor color = myPalette.color(QPalette::Highlight);
    const int lightness = isDark() ? qMax(MIDDLE_LIGHTNESS + 40, color.lightness())
                                   : qMin(MIDDLE_LIGHTNESS - 20, color.lightness());
    return QColor::fromHsl(color.hslHue(), color.hslSaturation(), lightness);
}

QColor PaletteColors::fault() const
{
    return isDark() ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x1c, 0x1c);
}

bool PaletteColors::isDark() const
{
    return myPalette.color(QPalette::Base).lightness() < MIDDLE_LIGHTNESS;
}

QPalette PaletteColors::light()
{
    QPalette palette(QColor(0xef, 0xef, 0xef));
    palette.setColor(QPalette::Link, QColor(0x1f, 0x4e, 0x8c));
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x6a, 0xb2));
    palette.setColor(QPalette::HighlightedText, QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::PlaceholderText, QColor(0x70, 0x70, 0x70));
    return palette;
}

QPalette PaletteColors::dark()
{
    const QColor text(0xe6, 0xe6, 0xe6);
    QPalette palette(QColor(0x35, 0x38, 0x3c), QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3c, 0x3f, 0x44));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x22));
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x2a));
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb0, 0xf5));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xa8));
    palette.setColor(QPalette::HighlightedText, QColor(0xff, 0xff, 0xff));
    palette.setColor(QPalette::PlaceholderText, QColor(0x98, 0x98, 0x98));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}
