#ifndef RVFONTCREATOR_H
#define RVFONTCREATOR_H

#include "RVCoreExport.h"
#include "RVSingleton.h"

class QFont;
class QString;
class RVFontCreator;

extern template class RVCORE_EXPORT RVSingleton<RVFontCreator>;

/// Creates the fonts for the texts of a product. Any thread; measuring a font needs a QGuiApplication.
/// @par Example
/// @snippet tst_examples_platform.cpp RVFontCreator
/// @ingroup platform
class RVCORE_EXPORT RVFontCreator : public RVSingleton<RVFontCreator>
{
public:
    /// A font of the family in the given size in points; sizes below 1 count as 1.
    QFont createFont(const QString &family, int pointSize) const;
    /// The family of the application's font.
    QString defaultFontFamily() const;

    /// True if fonts can be measured, which needs a QGuiApplication. Deprecated since 0.7.0; RVSpineConfig tells it of
    /// the texts of spines.
    [[deprecated("use RVSpineConfig::canMeasureText()")]] static bool canMeasure();
};

#endif
