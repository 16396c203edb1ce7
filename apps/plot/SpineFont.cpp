#include "SpineFont.h"

#include <RVFontSizeManager.h>
#include <RVSpineConfig.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace {

/// In pixels. At this size the rounding and the hinting of the platform change nothing that matters.
constexpr int MEASURED_SIZE = 2048;

struct MeasuredFont
{
    QString family;
    bool isDeclared = false;
    qreal lineSpacing = 0; ///< of a font of one pixel
};

MeasuredFont measure()
{
    QFont font(SpineFont::declaredFamily());
    font.setPixelSize(MEASURED_SIZE);
    font.setHintingPreference(QFont::PreferNoHinting);
    const bool isDeclared = QFontDatabase::hasFamily(SpineFont::declaredFamily());
    const QString family = isDeclared ? SpineFont::declaredFamily() : QFontInfo(font).family();
    return { family, isDeclared, family.isEmpty() ? 0.0 : QFontMetricsF(font).lineSpacing() / MEASURED_SIZE };
}

// Measured once, but not before there is an application that can.
const MeasuredFont &measured()
{
    static const MeasuredFont theNone;
    if (!RVSpineConfig::canMeasureText())
        return theNone;
    static const MeasuredFont theFont = measure();
    return theFont;
}

}

QString SpineFont::declaredFamily()
{
    return u"DejaVu Sans"_s;
}

QString SpineFont::family()
{
    return measured().family;
}

bool SpineFont::isDeclared()
{
    return measured().isDeclared;
}

QFont SpineFont::font(int size)
{
    QFont result(declaredFamily());
    result.setPixelSize(qMax(1, size));
    return result;
}

int SpineFont::largestSize(const RVSpineConfig &spine, int pages)
{
    const QList<int> sizes = RVFontSizeManager::instance()->defaultFontSizes();
    if (sizes.isEmpty())
        return 0;
    if (measured().lineSpacing <= 0)
        return sizes.first();
    // As an unsigned number a negative count would have the spine of four billion pages.
    const int limit = spine.highestLine(unsigned(qMax(0, pages)));
    qsizetype largest = 0;
    while (largest + 1 < sizes.size() && sizes.at(largest + 1) * measured().lineSpacing <= limit)
        ++largest;
    return sizes.at(largest);
}
