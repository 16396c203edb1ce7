#ifndef PALETTECOLORS_H
#define PALETTECOLORS_H

#include <RVCatalogueRule.h>

#include <QColor>
#include <QPalette>

/// Colours that a palette does not have, made of those that it has, so that they fit light and dark ones.
class PaletteColors
{
public:
    explicit PaletteColors(const QPalette &palette) : myPalette(palette) { }

    /// From 0, the colour of the background, to 1, that of the text.
    QColor shade(qreal strength) const;
    /// For curves; readable on the background.
    QColor accent() const;

    /// A red for what is wrong; readable on the background.
    QColor fault() const;
    /// The palette of a label about what is wrong: its text is in the colour fault().
    QPalette faultPalette() const;
    /// A green for what is right; readable on the background.
    QColor good() const;
    /// A ground for short texts in textOnSeverity(), on any background.
    QColor severity(RVCatalogueSeverity severity) const;
    QColor textOnSeverity() const;

    /// The palettes that the program brings for people who want another one than that of their desktop.
    static QPalette light();
    static QPalette dark();

private:
    bool isDark() const;

    QPalette myPalette;
};

#endif
