#include "RVProductComparison.h"

#include "RVBarcodeComparison_p.h"
#include "RVCatalogueAttribute.h"
#include "RVCatalogueAttributes.h"
#include "RVCatalogueValues_p.h"
#include "RVOptionComparison_p.h"
#include "RVPageComparison_p.h"
#include "RVProductChanges_p.h"

#include <QJsonArray>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// True if people read the name, because the keywords are numbers.
bool hasBareKeywords(const RVCatalogueAttribute &attribute)
{
    return std::apply(
            [&](const auto &...rows) { return ((rows.name == attribute.name() && rows.hasBareKeywords) || ...); },
            RV_CATALOGUE_ATTRIBUTES);
}

RVComparedValue compared(const RVCatalogueAttribute &attribute, const RVCatalogueProduct &product)
{
    if (!attribute.isIn(product))
        return RVComparedValue();
    const RVCatalogueAttributeDecoding decoding = attribute.decode(product);
    const bool isNamed = hasBareKeywords(attribute) && !decoding.displayName.isEmpty();
    const QString text = isNamed ? decoding.displayName : decoding.text;
    return { text, QJsonArray::fromStringList(decoding.keywords) };
}

RVComparedValue compared(const QStringList &families)
{
    if (families.isEmpty())
        return RVComparedValue();
    return { u'"' + families.join(R"(" > ")"_L1) + u'"', QJsonArray::fromStringList(families) };
}

RVComparedValue compared(const RVArticleId &id)
{
    return id.id() == 0 ? RVComparedValue() : rvComparedNumber(id.id());
}

RVComparedValue compared(const RVShippingGroupId &group)
{
    return group.isValid() ? rvComparedNumber(group.id()) : RVComparedValue();
}

bool isPhotoBox(const RVCatalogueProduct &product)
{
    return rvBoolValue(product.element(), "photo_box"_L1).value_or(false);
}

void compareAttributes(const RVCatalogueProduct &before, const RVCatalogueProduct &after, RVProductChanges *changes)
{
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts()) {
        if (attribute.isIn(before) != attribute.isIn(after) || attribute.value(before) != attribute.value(after))
            changes->add(attribute.name(), attribute.label(),
                         { compared(attribute, before), compared(attribute, after) });
    }
}

QList<RVProductChange> changesOf(const RVCatalogueProduct &before, const RVCatalogueProduct &after)
{
    RVProductChanges changes;
    if (before.type() != after.type())
        changes.addText("type"_L1, RVChangeText::tr("Type"), { before.type().toString(), after.type().toString() });
    changes.addText("name"_L1, RVChangeText::tr("Name"), { before.name(), after.name() });
    if (before.articleId() != after.articleId())
        changes.add("article_id"_L1, RVChangeText::tr("Article id"),
                    { compared(before.articleId()), compared(after.articleId()) });
    if (before.families() != after.families())
        changes.add("families"_L1, RVChangeText::tr("Families"),
                    { compared(before.families()), compared(after.families()) });
    compareAttributes(before, after, &changes);
    if (before.shippingGroup() != after.shippingGroup())
        changes.add("shipping_group"_L1, RVChangeText::tr("Shipping group"),
                    { compared(before.shippingGroup()), compared(after.shippingGroup()) });
    changes.addText("price_class"_L1, RVChangeText::tr("Price class"),
                    { before.priceClass().toString(), after.priceClass().toString() });
    changes.addText("page_price_class"_L1, RVChangeText::tr("Price class of pages"),
                    { before.pagePriceClass().toString(), after.pagePriceClass().toString() });
    changes.addBoolean("photo_box"_L1, RVChangeText::tr("Photo box"), { isPhotoBox(before), isPhotoBox(after) });
    rvComparePages(before, after, &changes);
    rvCompareSpines(before, after, &changes);
    rvCompareBarcodes(before, after, &changes);
    rvCompareOptions(before, after, &changes);
    return changes.take();
}

}

RVProductComparison::RVProductComparison(const RVCatalogueProduct &oldProduct, const RVCatalogueProduct &newProduct)
    : myOld(oldProduct),
      myNew(newProduct),
      myOldPosition(oldProduct.element().position()),
      myNewPosition(newProduct.element().position())
{
    if (!myOld.isNull() && !myNew.isNull())
        myChanges = changesOf(myOld, myNew);
}

RVChangeKind RVProductComparison::kind() const
{
    if (myOld.isNull() != myNew.isNull())
        return myOld.isNull() ? RVChangeKind::Added : RVChangeKind::Removed;
    return myChanges.isEmpty() ? RVChangeKind::None : RVChangeKind::Changed;
}

bool RVProductComparison::isRenamed() const
{
    return !myOld.isNull() && !myNew.isNull() && myOld.type() != myNew.type();
}
