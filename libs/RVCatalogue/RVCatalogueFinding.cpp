#include "RVCatalogueFinding.h"

#include <QSharedData>

class RVCatalogueFindingData : public QSharedData
{
public:
    RVCatalogueFindingData(RVCatalogueRule rule_, const RVFileRange &range_, const QString &text_, qint64 product_)
        : rule(rule_),
          severity(rule_.severity()),
          range(range_),
          text(text_),
          product(product_)
    { }

    RVCatalogueRule rule;
    RVCatalogueSeverity severity;
    RVFileRange range;
    QString text;
    qint64 product;
    QString productType;
    QList<RVRelatedPlace> relatedPlaces;
    QList<RVFileEdit> fix;
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
    return d ? d->severity : RVCatalogueSeverity::Note;
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

QString RVCatalogueFinding::productType() const
{
    return d ? d->productType : QString();
}

QList<RVRelatedPlace> RVCatalogueFinding::relatedPlaces() const
{
    return d ? d->relatedPlaces : QList<RVRelatedPlace>();
}

QList<RVFileEdit> RVCatalogueFinding::fix() const
{
    return d ? d->fix : QList<RVFileEdit>();
}

void RVCatalogueFinding::setSeverity(RVCatalogueSeverity severity)
{
    if (d)
        d->severity = severity;
}

void RVCatalogueFinding::setProductType(const QString &type)
{
    if (d)
        d->productType = type;
}

void RVCatalogueFinding::setRelatedPlaces(const QList<RVRelatedPlace> &places)
{
    if (d)
        d->relatedPlaces = places;
}

void RVCatalogueFinding::setFix(const QList<RVFileEdit> &edits)
{
    if (d)
        d->fix = edits;
}
