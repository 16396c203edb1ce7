// A products XML; every reader reads every element of it.
#include "Properties.h"

#include <RVArticleClass.h>
#include <RVArticleId.h>
#include <RVArticleVariants.h>
#include <RVBarcodeDefinitionList.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVPageCountOrganization.h>
#include <RVProductType.h>
#include <RVShippingGroupId.h>
#include <RVSpineConfig.h>
#include <RVXMLParser.h>

#include <QDomDocument>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

/// The limit of elements. An input of a few kilobytes has more only if it has nothing else.
constexpr int MOST_ELEMENTS = 200;

/// Compares both results for an attribute.
template<typename Id>
Id readId(const QDomElement &element, const QString &name)
{
    const Id id(element, name);
    CHECK(Id(element.attributes(), name) == id);
    return id;
}

void checkIds(const QDomElement &element)
{
    const auto id = readId<RVArticleId>(element, u"id"_s);
    const auto artId = readId<RVArticleId>(element, u"art_id"_s);
    const auto articleId = readId<RVArticleId>(element, u"article_id"_s);
    CHECK(RVArticleId::fromIdAttribute(element) == id);
    CHECK(RVArticleId::fromArtIdAttribute(element) == artId);
    CHECK(RVArticleId::fromArticleIdAttribute(element) == articleId);
    CHECK(RVArticleId::findId(element) == (artId.isValid() ? artId : id));
    const auto group = readId<RVShippingGroupId>(element, u"shipping_group"_s);
    CHECK(group == -1 || element.hasAttribute(u"shipping_group"_s));
    CHECK(readId<RVShippingGroupId>(element, u"id"_s) == RVShippingGroupId(element));

    QDomElement copy = element.cloneNode().toElement();
    articleId.toIdAttribute(copy);
    CHECK(RVArticleId::fromIdAttribute(copy) == articleId);
    group.toXML(copy);
    CHECK(RVShippingGroupId(copy) == group);
    CHECK(RVArticleId::fromIdAttribute(element) == id);
}

/// A width may be infinite in tenths of a millimetre. Then it equals no other width, because the difference is NaN.
bool hasFiniteWidths(const QDomElement &product)
{
    const QDomElement composition = product.firstChildElement(u"composition"_s);
    const QDomElement spine = composition.firstChildElement(u"spine"_s);
    const RVDistanceUnit unit(composition.attribute(u"units"_s));
    const QStringList names = { u"base_width"_s, u"block_width"_s, u"additional_width"_s };
    return std::all_of(names.begin(), names.end(), [&](const QString &name) {
        return std::isfinite(RVXMLParser::readDistance(spine, name, 0.0, unit).value());
    });
}

void checkProduct(const QDomElement &product)
{
    const auto counts = RVPageCountOrganization::createFromProductsXML(product);
    const auto photos = RVPageCountOrganization::createFromProductsXMLForPictureBox(product);
    if (!product.hasAttribute(u"pieces"_s))
        CHECK_EQUAL(counts.minPages(), photos.minPages());
    if (!product.hasAttribute(u"page_step"_s))
        CHECK(counts.pageIncrement() == 0 && photos.pageIncrement() == 1);

    const auto spine = RVSpineConfig::createFromProductsXML(product);
    CHECK_EQUAL(spine.isValid(), counts.isValid());
    const unsigned lowest = unsigned(qMax(0, counts.minPages()));
    const unsigned highest = unsigned(qMax(0, counts.maxPages()));
    CHECK_EQUAL(spine.additionalPagePackageBlocks(lowest), 0);
    if (product.firstChildElement(u"composition"_s).firstChildElement(u"spine"_s).isNull())
        CHECK(spine == RVSpineConfig(counts, 0, {}, {}, {}) && spine.coverReduceSize() == 0);
    CHECK(!hasFiniteWidths(product) || !std::isnan(spine.spineWidth(lowest).value()));
    spine.spineWidth(highest);
    CHECK(spine.spineMaxFontHeigth(highest, product.attribute(u"font"_s)) > 0);

    const RVConfiguredArticleVariantList options(product);
    for (const RVConfiguredArticleVariant &option : options)
        CHECK(option.isValid());
    CHECK_EQUAL(options.defaultVariants().isValid(), !options.isEmpty());
    CHECK(options.contains(options.defaultVariants()));
    const QDomElement forms = product.firstChildElement(u"forms"_s);
    CHECK(options.size() <= forms.childNodes().size());
}

/// The readings of a single element, as an option, as a barcode and as a project.
void checkElement(const QDomElement &element)
{
    const RVConfiguredArticleVariant option(element);
    const RVArticleVariants variants(element);
    CHECK_EQUAL(variants.keys(), QStringList { option.key() });
    CHECK_EQUAL(variants.values(), QStringList { option.value() });
    CHECK_EQUAL(option.isDefault(), RVXMLParser::boolAttribute(element, u"preselected"_s, false));
    CHECK_EQUAL(option.describe(), option.describe().simplified());

    const RVDistanceUnit unit(element.parentNode().toElement().attribute(u"units"_s));
    const auto barcodes = RVBarcodeDefinitionList::createFromXTCI(element, unit);
    CHECK(barcodes.isEmpty() || element.tagName() == "barcode"_L1);
    for (const RVBarcodeDefinition &barcode : RVBarcodeDefinitionList::createFromProductsXML(element, unit)) {
        CHECK(barcode.isValid());
        CHECK(qint64(barcode.rect().right()) - barcode.rect().left() >= 0);
    }

    const auto type = RVProductType::fromKtx(element);
    CHECK(element.hasAttribute(u"productname"_s) || type == RVProductType(u"DUN9"_s));
}

/// The next element in the order of the document.
QDomElement following(const QDomElement &element)
{
    const QDomElement child = element.firstChildElement();
    if (!child.isNull())
        return child;
    for (QDomNode node = element; !node.isNull(); node = node.parentNode()) {
        const QDomElement sibling = node.nextSiblingElement();
        if (!sibling.isNull())
            return sibling;
    }
    return QDomElement();
}

/// Reading does not change the element, and a copy of it gives the same values.
void checkAgain(const QDomElement &element)
{
    const QDomElement copy = element.cloneNode().toElement();
    CHECK(RVPageCountOrganization::createFromProductsXML(copy)
          == RVPageCountOrganization::createFromProductsXML(element));
    if (hasFiniteWidths(element))
        CHECK(RVSpineConfig::createFromProductsXML(copy) == RVSpineConfig::createFromProductsXML(element));
    CHECK(RVConfiguredArticleVariantList(copy) == RVConfiguredArticleVariantList(element));
    CHECK(RVArticleVariants(copy) == RVArticleVariants(element));
    for (const int code : { 1, 2, 4, 8, 16 }) {
        CHECK(RVBarcodeDefinitionList::createFromProductsXML(copy, RVDistanceUnit(code))
              == RVBarcodeDefinitionList::createFromProductsXML(element, RVDistanceUnit(code)));
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    QDomDocument document;
    if (!document.setContent(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size))))
        return 0;
    int count = 0;
    for (QDomElement element = document.documentElement(); !element.isNull() && count < MOST_ELEMENTS; ++count) {
        checkIds(element);
        checkProduct(element);
        checkElement(element);
        element = following(element);
    }
    checkAgain(document.documentElement());
    checkAgain(document.documentElement().firstChildElement());
    return 0;
}
