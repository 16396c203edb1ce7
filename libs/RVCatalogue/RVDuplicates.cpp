#include "RVDuplicates_p.h"

#include "RVCatalogueCheck.h"
#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVValueCheck_p.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto TYPE = "type"_L1;
constexpr auto ARTICLE_ID = "article_id"_L1;

/// @p line is the place of the other product.
QString typeText(const QString &type, const QString &family, const QString &line)
{
    if (type == family)
        return RVFindingText::tr("the type %1 is already that of the product in %2; write another, or take out one")
                .arg(rvQuoted(family), line);
    return RVFindingText::tr(
                   "the type %1, that is %2, is already that of the product in %3; write another, or take out one")
            .arg(rvQuoted(type), rvQuoted(family), line);
}

}

void RVDuplicates::beginFile(const QString &name)
{
    myFileNames += name;
    myPlaces.beginFile();
}

QList<RVCatalogueFinding> RVDuplicates::findings(const RVCatalogueCheck &check, const RVCatalogueProduct &product)
{
    RVFindingReport report(check, product);
    myPlaces.beginProduct(product.element().position());
    checkType(product, &report);
    checkArticleId(product, &report);
    return report.sorted();
}

void RVDuplicates::checkType(const RVCatalogueProduct &product, RVFindingReport *report)
{
    const RVCatalogueElement element = product.element();
    if (rvIsBlank(element, TYPE))
        return;
    const RVProductType type = product.type();
    const quint64 first = myTypes.insert(type.calcHashValue(), placeOf(element, TYPE));
    if (first == 0)
        return;
    const RVPackedPlaces::Place place = myPlaces.unpack(first);
    report->add(RVCatalogueRuleId::TypeDuplicate, element, TYPE,
                typeText(element.attribute(TYPE), type.toString(), lineText(place)),
                { { related(place, RVFindingText::tr("the product that has the type already")) }, {} });
}

void RVDuplicates::checkArticleId(const RVCatalogueProduct &product, RVFindingReport *report)
{
    const RVArticleId id = product.articleId();
    if (!id.isValid())
        return;
    const RVCatalogueElement element = product.element();
    const quint64 first = myArticleIds.insert(quint32(id.id()), placeOf(element, ARTICLE_ID));
    if (first == 0)
        return;
    const RVPackedPlaces::Place place = myPlaces.unpack(first);
    report->add(
            RVCatalogueRuleId::ArticleIdDuplicate, element, ARTICLE_ID,
            RVFindingText::tr("the article id %1 is already that of the product in %2; write another, or take out one")
                    .arg(QString::number(id.id()), lineText(place)),
            { { related(place, RVFindingText::tr("the product that has the article id already")) }, {} });
}

quint64 RVDuplicates::placeOf(const RVCatalogueElement &product, QLatin1StringView attribute)
{
    return myPlaces.pack(product.attributeRange(attribute));
}

QString RVDuplicates::lineText(const RVPackedPlaces::Place &place) const
{
    const QString line = QString::number(place.range.begin.line);
    return isThisFile(place) ? RVFindingText::tr("line %1").arg(line)
                             : RVFindingText::tr("line %1 of %2").arg(line, myFileNames.at(place.file));
}

RVRelatedPlace RVDuplicates::related(const RVPackedPlaces::Place &place, const QString &text) const
{
    return { place.range, text, isThisFile(place) ? QString() : myFileNames.at(place.file) };
}
