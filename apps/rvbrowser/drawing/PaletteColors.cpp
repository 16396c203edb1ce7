#include "PaletteColors.h"

#include <QtMath>

#include <algorithm>
#include <initializer_list>
#include <utility>

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

QPalette with(QPalette palette, std::initializer_list<std::pair<QPalette::ColorRole, QRgb>> colors)
{
    for (const auto &[role, color] : colors)
        palette.setColor(role, color);
    return palette;
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
    return with(QPalette(QColor(0xef, 0xef, 0xef)),
                {
                        { QPalette::Link, 0x1f4e8c },
                        { QPalette::Highlight, 0x306ab2 },
                        { QPalette::HighlightedText, 0xffffff },
                        { QPalette::PlaceholderText, 0x707070 },
                });
}

QPalette PaletteColors::dark()
{
    constexpr QRgb text = 0xe6e6e6;
    QPalette palette = with(QPalette(QColor(0x35, 0x38, 0x3c), QColor(0x2b, 0x2d, 0x30)),
                            {
                                    { QPalette::WindowText, text },
                                    { QPalette::Text, text },
                                    { QPalette::ButtonText, text },
                                    { QPalette::ToolTipBase, 0x3c3f44 },
                                    { QPalette::ToolTipText, text },
                                    { QPalette::Base, 0x1e2022 },
                                    { QPalette::AlternateBase, 0x25272a },
                                    { QPalette::Link, 0x6cb0f5 },
                                    { QPalette::Highlight, 0x2f65a8 },
                                    { QPalette::HighlightedText, 0xffffff },
                                    { QPalette::PlaceholderText, 0x989898 },
                            });
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    return palette;
}
