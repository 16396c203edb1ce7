#include "RVPageSizeSpec.h"

#include "RVSaturation_p.h"

#include <QDebug>

RVPageSizeSpec::RVPageSizeSpec(const QSize &usableSize, const RVMargins &bleedMargins)
    : myUsableSize(usableSize),
      myBleedMargins(bleedMargins)
{ }

QSize RVPageSizeSpec::totalSize() const noexcept
{
    const QSize bleed = myBleedMargins.totalMarginWH();
    return QSize(rvSaturated(qint64(myUsableSize.width()) + bleed.width()),
                 rvSaturated(qint64(myUsableSize.height()) + bleed.height()));
}

QPointF RVPageSizeSpec::slipcaseTranslationPoint() const noexcept
{
    if (!myUsableSlipcaseCoverSize.isValid())
        return QPointF();
    return QPointF(0.0, rvSaturated(qint64(myUsableSize.height()) - myUsableSlipcaseCoverSize.height()) * 0.5);
}

bool RVPageSizeSpec::operator==(const RVPageSizeSpec &other) const noexcept
{
    return myUsableSize == other.myUsableSize && myBleedMargins == other.myBleedMargins;
}

// The brace stays open, because log readers rely on this form.
QDebug operator<<(QDebug debug, const RVPageSizeSpec &spec)
{
    return debug << "{ usable=" << spec.usableSize() << ", 4Scaling" << spec.usableSlipcaseCoverSize();
}
