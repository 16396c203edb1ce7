#include "ProductFacts.h"

#include "AttributeWords.h"

#include <RVCatalogueAttributes.h>

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString millimetres(int tenths)
{
    return QLocale().toString(RVDistance(tenths).value(DISTANCE_UNIT_MILLIMETRE), 'f', 1);
}

/// The attributes that are shown and searched one by one; the article class is shown as the kind of article.
QList<RVCatalogueAttribute> attributes()
{
    QList<RVCatalogueAttribute> result = RVCatalogueAttribute::ofProducts();
    result.removeOne(RVCatalogueAttribute::find(rvCatalogueAttributeName<RVArticleClass>()));
    return result;
}

}

QList<ProductFacts::Fact> ProductFacts::facts(const RVCatalogueCheck &check) const
{
    QList<Fact> result {
        { tr("Kind of article"), rvCatalogueAttributeName<RVArticleClass>(), kind(), {} },
        { tr("Article id"), "article_id"_L1, articleId(), {} },
    };
    for (const RVCatalogueAttribute &attribute : attributes())
        result += Fact { attribute.label(), attribute.name(), myWords.text(attribute, myProduct), {} };
    result += Fact { tr("Shipping group"), "shipping_group"_L1, shippingGroup(), {} };
    result += Fact { tr("Price class"), "price_class"_L1, myProduct.priceClass().toString(), {} };
    result += Fact { tr("Price class of a package"), "page_price_class"_L1, myProduct.pagePriceClass().toString(), {} };
    result += Fact { tr("Barcodes"), QLatin1StringView(), barcodes(), {} };
    addFaults(&result, check);
    return result;
}

void ProductFacts::addFaults(QList<Fact> *facts, const RVCatalogueCheck &check) const
{
    const QList<RVCatalogueFinding> findings = check.findings(myProduct);
    for (Fact &fact : *facts) {
        fact.fault = faultOf(fact.attribute, findings);
        if (!fact.fault.isEmpty())
            fact.text = myProduct.element().attribute(fact.attribute);
    }
}

// A note is no fault, and an attribute that is missing shows nothing.
QString ProductFacts::faultOf(QLatin1StringView attribute, const QList<RVCatalogueFinding> &findings) const
{
    if (!myProduct.element().hasAttribute(attribute))
        return QString();
    const RVFileRange range = myProduct.element().attributeRange(attribute);
    QStringList texts;
    for (const RVCatalogueFinding &finding : findings) {
        const bool isInside = !(finding.range().begin < range.begin) && !(range.end < finding.range().end);
        if (isInside && finding.severity() != RVCatalogueSeverity::Note)
            texts += finding.text();
    }
    return texts.join(u'\n');
}

QString ProductFacts::searchText() const
{
    const RVArticleClass articleClass = myProduct.articleClass();
    QStringList texts { group(articleClass) };
    for (const RVCatalogueAttribute &attribute : attributes())
        texts += myWords.searchTexts(attribute, myProduct);
    if (!articleClass.isNull())
        texts += articleClass.encodeBits();
    texts += myProduct.priceClass().toString();
    texts += myProduct.pagePriceClass().toString();
    texts += optionTexts();
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u'\n').toLower();
}

QStringList ProductFacts::optionTexts() const
{
    constexpr auto name = "form"_L1;
    QStringList result;
    const RVCatalogueElement forms = myProduct.element().firstChildElement("forms"_L1);
    for (auto form = forms.firstChildElement(name); !form.isNull(); form = form.nextSiblingElement(name)) {
        for (const QLatin1StringView part :
             { "key"_L1, "value"_L1, "key_name"_L1, "value_name"_L1, "editor_name"_L1, "price_class"_L1 })
            result += form.attribute(part);
    }
    return result;
}

QString ProductFacts::group(const RVArticleClass &articleClass)
{
    if (articleClass.isNull())
        return tr("Without kind of article");
    if (articleClass.matches(ARTICLE_CLASS_ARTICLE))
        return articleClass.toHumanReadable();
    return articleClass.matches(ARTICLE_CLASS_FEE) ? tr("Fees") : tr("Add-ons");
}

QString ProductFacts::articleId() const
{
    const RVArticleId id = myProduct.articleId();
    return id.isValid() ? id.toString() : QString();
}

QString ProductFacts::shippingGroup() const
{
    const RVShippingGroupId group = myProduct.shippingGroup();
    return group.isValid() ? group.toString() : QString();
}

QString ProductFacts::kind() const
{
    const RVArticleClass articleClass = myProduct.articleClass();
    const QString name = group(articleClass);
    return articleClass.isNull() ? name : u"%1 (%2)"_s.arg(name, articleClass.encodeCSV());
}

QString ProductFacts::barcodes() const
{
    QStringList result;
    for (const RVBarcodeDefinition &barcode : myProduct.barcodes()) {
        const QRect rect = barcode.rect();
        result += tr("%1 × %2 mm on page %3")
                          .arg(millimetres(rect.width()), millimetres(rect.height()),
                               QString::number(barcode.pageNr()));
    }
    return result.join(u'\n');
}
