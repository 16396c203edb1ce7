#include "RVDuplicates_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVValueCheck_p.h"

using namespace Qt::StringLiterals;

namespace {

QString typeText(const QString &type, const QString &family, quint32 line)
{
    if (type == family)
        return RVFindingText::tr("the type %1 is already that of the product in line %2")
                .arg(rvQuoted(family), QString::number(line));
    return RVFindingText::tr("the type %1, that is %2, is already that of the product in line %3")
            .arg(rvQuoted(type), rvQuoted(family), QString::number(line));
}

}

QList<RVCatalogueFinding> RVDuplicates::findings(const RVCatalogueProduct &product)
{
    RVFindingReport report(myCheck, product);
    const auto line = quint32(product.element().position().line);
    checkType(product, line, &report);
    checkArticleId(product, line, &report);
    return report.sorted();
}

void RVDuplicates::checkType(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report)
{
    constexpr auto name = "type"_L1;
    const RVCatalogueElement element = product.element();
    if (rvIsBlank(element, name))
        return;
    const RVProductType type = product.type();
    if (const quint32 first = myTypes.insert(type.calcHashValue(), line))
        report->add(RVCatalogueRuleId::TypeDuplicate, element, name,
                    typeText(element.attribute(name), type.toString(), first));
}

void RVDuplicates::checkArticleId(const RVCatalogueProduct &product, quint32 line, RVFindingReport *report)
{
    const RVArticleId id = product.articleId();
    if (!id.isValid())
        return;
    if (const quint32 first = myArticleIds.insert(quint32(id.id()), line))
        report->add(RVCatalogueRuleId::ArticleIdDuplicate, product.element(), "article_id"_L1,
                    RVFindingText::tr("the article id %1 is already that of the product in line %2")
                            .arg(QString::number(id.id()), QString::number(first)));
}
