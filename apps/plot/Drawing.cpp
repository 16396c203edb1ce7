#include "Drawing.h"

using namespace Qt::StringLiterals;

namespace {

/// At this reduction every drawing is a point.
constexpr int MOST_REDUCTION = 1000000000;

}

int Drawing::reductionFor(const QSizeF &most) const
{
    for (int power = 1; power < MOST_REDUCTION; power *= 10) {
        for (const int reduction : { power, 2 * power, 5 * power }) {
            const QSizeF size = sheetSize(reduction);
            if (size.width() <= most.width() && size.height() <= most.height())
                return reduction;
        }
    }
    return MOST_REDUCTION;
}

QFont Drawing::textFont(qreal pointSize, bool isBold)
{
    QFont font(u"sans-serif"_s);
    font.setPointSizeF(pointSize);
    font.setBold(isBold);
    return font;
}
