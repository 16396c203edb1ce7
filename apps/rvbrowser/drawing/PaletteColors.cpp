#include "PaletteColors.h"

#include <QtMath>

#include <algorithm>

namespace {

constexpr int MIDDLE_LIGHTNESS = 128;
constexpr int LIGHTNESS_STEP = 4;
constexpr qreal LINE_CONTRAST = 3; // with less, a thin line is hard to see

qreal linear(qreal part)
{
    return part <= 0.04045 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4);
}

/// The brightness to the eye, from 0 to 1.
qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same brightness, to 21, black and white.
qreal contrast(const QColor &a, const QColor &b)
{
    const auto [dark, bright] = std::minmax({ luminance(a), luminance(b) });
    return (bright + 0.05) / (dark + 0.05);
}

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
    const int step = isDark() ? LIGHTNESS_STEP : -LIGHTNESS_STEP;
    int lightness = isDark() ? qMax(MIDDLE_LIGHTNESS + 40, color.lightness())
                             : qMin(MIDDLE_LIGHTNESS - 20, color.lightness());
    const auto colorOf = [&color](int value) { return QColor::fromHsl(color.hslHue(), color.hslSaturation(), value); };
    const QColor base = myPalette.color(QPalette::Base);
    QColor result = colorOf(lightness);
    for (lightness += step; contrast(result, base) < LINE_CONTRAST && 0 < lightness && lightness < 255;
         lightness += step)
        result = colorOf(lightness);
    return result;
}

QColor PaletteColors::fault() const
{
    return isDark() ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x1c, 0x1c);
}

QPalette PaletteColors::faultPalette() const
{
    QPalette result = myPalette;
    result.setColor(QPalette::WindowText, fault());
    return result;
}

QColor PaletteColors::good() const
{
    return isDark() ? QColor(0x81, 0xc7, 0x84) : QColor(0x1b, 0x6b, 0x20);
}

QColor PaletteColors::severity(RVCatalogueSeverity severity) const
{
    switch (severity) {
    case RVCatalogueSeverity::Note:
        return isDark() ? QColor(0xa9, 0xb8, 0xc8) : QColor(0x55, 0x63, 0x72);
    case RVCatalogueSeverity::Warning:
        return isDark() ? QColor(0xff, 0xb7, 0x4d) : QColor(0x8f, 0x52, 0x00);
    case RVCatalogueSeverity::Error:
        break;
    }
    return fault();
}

QColor PaletteColors::textOnSeverity() const
{
    return isDark() ? QColor(0x1e, 0x20, 0x22) : QColor(0xff, 0xff, 0xff);
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
