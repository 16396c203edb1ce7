#include "RVCatalogueFinding.h"

#include <QSharedData>

class RVCatalogueFindingData : public QSharedData
{
public:
    RVCatalogueFindingData(RVCatalogueRule rule_, const RVFileRange &range_, const QString &text_, qint64 product_)
        : rule(rule_),
          range(range_),
          text(text_),
          product(product_)
    { }

    RVCatalogueRule rule;
    RVFileRange range;
    QString text;
    qint64 product;
};

RVCatalogueFinding::RVCatalogueFinding() = default;

RVCatalogueFinding::RVCatalogueFinding(RVCatalogueRule rule, const RVFileRange &range, const QString &text,
                                       qint64 product)
    : d(new RVCatalogueFindingData(rule, range, text, product))
{ }

RVCatalogueFinding::RVCatalogueFinding(const RVCatalogueFinding &other) = default;
RVCatalogueFinding::RVCatalogueFinding(RVCatalogueFinding &&other) noexcept = default;
RVCatalogueFinding &RVCatalogueFinding::operator=(const RVCatalogueFinding &other) = default;
RVCatalogueFinding &RVCatalogueFinding::operator=(RVCatalogueFinding &&other) noexcept = default;
RVCatalogueFinding::~RVCatalogueFinding() = default;

RVCatalogueRule RVCatalogueFinding::rule() const
{
    return d ? d->rule : RVCatalogueRule();
}

RVCatalogueSeverity RVCatalogueFinding::severity() const
{
    return rule().severity();
}

RVFileRange RVCatalogueFinding::range() const
{
    return d ? d->range : RVFileRange();
}

QString RVCatalogueFinding::text() const
{
    return d ? d->text : QString();
}

qint64 RVCatalogueFinding::product() const
{
    return d ? d->product : -1;
}
