#include "ProductFacts.h"

#include "AttributeWords.h"

#include <CatalogueProduct.h>

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString millimetres(int tenths)
{
    return QLocale().toString(RVDistance(tenths).value(DISTANCE_UNIT_MILLIMETRE), 'f', 1);
}

template<typename T>
QStringList keywords(const T &attribute)
{
    return attribute.isNull() ? QStringList() : attribute.encodeBits();
}

}

QList<ProductFacts::Fact> ProductFacts::facts() const
{
    QList<Fact> result {
        { tr("Kind of article"), kind() },
        { tr("Article id"), myProduct.articleId.isValid() ? myProduct.articleId.toString() : QString() },
    };
    for (const Attribute &attribute : attributes())
        result += { attribute.label, myWords.text(attribute.name, attribute.keywords) };
    result += { tr("Shipping group"),
                myProduct.shippingGroup.isValid() ? myProduct.shippingGroup.toString() : QString() };
    result += { tr("Price class"), myProduct.priceClass.toString() };
    result += { tr("Price class of a package"), myProduct.pagePriceClass.toString() };
    result += { tr("Barcodes"), barcodes() };
    return result;
}

QString ProductFacts::searchText() const
{
    QStringList texts { myProduct.type.toString(), myProduct.name, group(myProduct.articleClass) };
    if (myProduct.articleId.isValid())
        texts += myProduct.articleId.toString();
    for (const Attribute &attribute : attributes())
        texts += myWords.searchTexts(attribute.name, attribute.keywords);
    texts += keywords(myProduct.articleClass);
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u'\n').toLower();
}

QString ProductFacts::group(const RVArticleClass &articleClass)
{
    if (articleClass.isNull())
        return tr("Without kind of article");
    if (articleClass.matches(ARTICLE_CLASS_ARTICLE))
        return articleClass.toHumanReadable();
    return articleClass.matches(ARTICLE_CLASS_FEE) ? tr("Fees") : tr("Add-ons");
}

QList<ProductFacts::Attribute> ProductFacts::attributes() const
{
    return {
        { u"cover_type"_s, tr("Cover"), keywords(myProduct.coverType) },
        { u"page_binding"_s, tr("Binding"), keywords(myProduct.pageBinding) },
        { u"paper_type"_s, tr("Paper"), keywords(myProduct.paperType) },
        { u"foto_paper_type"_s, tr("Photo paper"), keywords(myProduct.fotoPaperType) },
        { u"orientation"_s, tr("Orientation"), keywords(myProduct.orientation) },
        { u"space_magnitude"_s, tr("Size class"), keywords(myProduct.spaceMagnitude) },
    };
}

QString ProductFacts::kind() const
{
    const QString name = group(myProduct.articleClass);
    return myProduct.articleClass.isNull() ? name : u"%1 (%2)"_s.arg(name, myProduct.articleClass.encodeCSV());
}

QString ProductFacts::barcodes() const
{
    QStringList result;
    for (const RVBarcodeDefinition &barcode : myProduct.barcodes) {
        const QRect rect = barcode.rect();
        result += tr("%1 × %2 mm on page %3")
                          .arg(millimetres(rect.width()), millimetres(rect.height()),
                               QString::number(barcode.pageNr()));
    }
    return result.join(u'\n');
}
