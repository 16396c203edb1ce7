#ifndef SPINEFONT_H
#define SPINEFONT_H

#include <QFont>
#include <QString>

class RVSpineConfig;

/**
 * The font of the text along a spine, and the largest size in which it fits.
 *
 * RVSpineConfig::spineMaxFontHeigth() measures fonts by the screen of the application, so two programs on one machine
 * may name two sizes. Here one family is measured at 72 dots an inch, where a point is a pixel and the page layout
 * counts a pixel as a tenth of a millimetre. Platform, resolution and scaling of the screen make no difference.
 *
 * All functions may be called in any thread.
 */
class SpineFont
{
public:
    /// DejaVu Sans. It is free, every Debian has it, and it has all letters of the catalogue's language.
    static QString declaredFamily();
    /// The family that is measured and drawn: the declared one, or if it is missing the default of the system.
    /// Empty if nothing can be measured.
    static QString family();
    /// False if sizes are those of another family, and may differ from those of other machines.
    static bool isDeclared();

    /// The font in a size in points of the layout, each a tenth of a millimetre; sizes below 1 count as 1.
    static QFont font(int size);
    /// The largest of RVFontSizeManager's sizes of which a line is at most RVSpineConfig::highestLine(). The
    /// smallest of them if none fits or nothing can be measured; 0 without sizes. Negative page counts count as 0.
    static int largestSize(const RVSpineConfig &spine, int pages);
};

#endif
