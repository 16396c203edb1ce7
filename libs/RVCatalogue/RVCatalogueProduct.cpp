#include "RVCatalogueProduct.h"

#include "RVCatalogueAttributes.h"
#include "RVCatalogueProductData_p.h"
#include "RVCatalogueValues_p.h"
#include "RVUtf8_p.h"

#include <QColor>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// An attribute of keywords. It is null if the product does not have it, though an empty text may stand for another
/// value.
template<typename T>
T keywords(const RVCatalogueElement &product, const T &missing = T())
{
    constexpr QLatin1StringView name = rvCatalogueAttributeName<T>();
    return product.hasAttribute(name) ? T(product.attribute(name)) : missing;
}

/// The unit of the lengths in an element; millimetres if it names none.
RVDistanceUnit unit(const RVCatalogueElement &element)
{
    return RVDistanceUnit(element.attribute("units"_L1));
}

RVDistance length(const RVCatalogueElement &element, QLatin1StringView name, double missing, const RVDistanceUnit &unit)
{
    return RVDistance(rvDoubleValue(element, name).value_or(missing), unit);
}

RVBarcodeDefinition barcode(const RVCatalogueElement &element, const RVDistanceUnit &unit)
{
    const QString image = element.hasAttribute("image"_L1) ? element.attribute("image"_L1)
                                                           : RVBarcodeDefinition::DEFAULT_IMAGE_NAME;
    return RVBarcodeDefinition::createFromLengths(
            length(element, "position_x"_L1, 1, unit), length(element, "position_y"_L1, 1, unit),
            length(element, "width"_L1, 1, unit), length(element, "height"_L1, 1, unit),
            rvIntValue(element, "pageNr"_L1).value_or(0), image);
}

RVConfiguredArticleVariant option(const RVCatalogueElement &form)
{
    const QString color = form.attribute("color"_L1);
    return RVConfiguredArticleVariant(RVConfiguredArticleVariantImpl(
            form.attribute("key"_L1), form.attribute("key_name"_L1), form.attribute("value"_L1),
            form.attribute("value_name"_L1), form.attribute("editor_name"_L1), form.attribute("name"_L1),
            form.attribute("preview"_L1), color.isEmpty() ? QColor() : QColor::fromString(color),
            rvBoolValue(form, "preselected"_L1).value_or(false),
            rvBoolValue(form, "not_accountable"_L1).value_or(false)));
}

RVPageCountOrganization usualCounts(const RVCatalogueElement &product)
{
    const int pages = rvIntValue(product, "pages"_L1).value_or(1);
    const RVIntRange range(pages, rvIntValue(product, "max_pages"_L1).value_or(pages));
    return RVPageCountOrganization(range.stretched(rvIntValue(product, "pieces"_L1).value_or(1)),
                                   rvIntValue(product, "page_step"_L1).value_or(0));
}

RVPageCountOrganization pictureBoxCounts(const RVCatalogueElement &product)
{
    constexpr int usualExtraPages = 29;
    const int pages = rvIntValue(product, "pages"_L1).value_or(1);
    const RVIntRange usual = RVIntRange(pages, pages).shifted(usualExtraPages);
    return RVPageCountOrganization(RVIntRange(pages, rvIntValue(product, "max_pages"_L1).value_or(usual.max)),
                                   rvIntValue(product, "page_step"_L1).value_or(1));
}

/// A value from the document type, written for use between quotes.
QByteArray quotedValue(QByteArrayView value)
{
    QString text = rvFromUtf8(value).toHtmlEscaped();
    text.replace(u'\t', "&#9;"_L1).replace(u'\n', "&#10;"_L1).replace(u'\r', "&#13;"_L1);
    return '"' + text.toUtf8() + '"';
}

/// Appends a start tag, including the attributes that only the document type gives.
void appendTag(QByteArray *xml, const RVCatalogueRows &rows, const RVCatalogueRows::Element &element)
{
    const QByteArrayView tag = rows.view(element.tag);
    const qsizetype bracket = tag.endsWith("/>") ? 2 : 1;
    xml->append(tag.chopped(bracket));
    for (quint32 i = element.attributesBegin; i < element.attributesEnd; ++i) {
        const RVCatalogueRows::Attribute &attribute = rows.attributes[i];
        if (attribute.name.begin >= element.tag.begin + element.tag.size)
            xml->append(' ')
                    .append(rows.view(attribute.name))
                    .append('=')
                    .append(quotedValue(rows.view(attribute.value)));
    }
    xml->append(tag.last(bracket));
}

RVCatalogueElement firstForm(const RVCatalogueElement &product)
{
    return product.firstChildElement("forms"_L1).firstChildElement("form"_L1);
}

}

RVCatalogueProduct::RVCatalogueProduct() = default;
RVCatalogueProduct::RVCatalogueProduct(const RVCatalogueProduct &other) = default;
RVCatalogueProduct::RVCatalogueProduct(RVCatalogueProduct &&other) noexcept = default;
RVCatalogueProduct &RVCatalogueProduct::operator=(const RVCatalogueProduct &other) = default;
RVCatalogueProduct &RVCatalogueProduct::operator=(RVCatalogueProduct &&other) noexcept = default;
RVCatalogueProduct::~RVCatalogueProduct() = default;

RVCatalogueProduct::RVCatalogueProduct(RVCatalogueProductData *data) : d(data) { }

RVProductType RVCatalogueProduct::type() const
{
    return RVProductType(element().attribute("type"_L1));
}

QString RVCatalogueProduct::name() const
{
    return element().attribute("name"_L1);
}

RVArticleId RVCatalogueProduct::articleId() const
{
    return RVArticleId(rvIntValue(element(), "article_id"_L1).value_or(0));
}

RVArticleClass RVCatalogueProduct::articleClass() const
{
    return keywords<RVArticleClass>(element());
}

RVCoverType RVCatalogueProduct::coverType() const
{
    return keywords<RVCoverType>(element());
}

RVPageBinding RVCatalogueProduct::pageBinding() const
{
    return keywords<RVPageBinding>(element());
}

RVPaperType RVCatalogueProduct::paperType() const
{
    return keywords<RVPaperType>(element());
}

RVFotoPaperType RVCatalogueProduct::fotoPaperType() const
{
    return keywords(element(), RVFotoPaperType::defaultFor(articleClass()));
}

RVOrientation RVCatalogueProduct::orientation() const
{
    return keywords<RVOrientation>(element());
}

RVSpaceMagnitude RVCatalogueProduct::spaceMagnitude() const
{
    return keywords<RVSpaceMagnitude>(element());
}

RVShippingGroupId RVCatalogueProduct::shippingGroup() const
{
    const RVShippingGroupId given(rvIntValue(element(), "shipping_group"_L1).value_or(-1));
    return given.isValid() ? given : RVShippingGroupId(articleClass().shippingGroup());
}

RVPageCountOrganization RVCatalogueProduct::pageCounts() const
{
    return isPhotoBox() ? pictureBoxCounts(element()) : usualCounts(element());
}

bool RVCatalogueProduct::isPhotoBox() const
{
    return rvBoolValue(element(), "photo_box"_L1).value_or(false);
}

// The page counts of a box are not used here, because a box has no spine.
RVSpineConfig RVCatalogueProduct::spine() const
{
    const RVCatalogueElement composition = element().firstChildElement("composition"_L1);
    const RVCatalogueElement spine = composition.firstChildElement("spine"_L1);
    const RVDistanceUnit spineUnit = unit(composition);
    return RVSpineConfig(usualCounts(element()), rvIntValue(spine, "packages_per_block"_L1).value_or(0),
                         length(spine, "base_width"_L1, 0, spineUnit), length(spine, "block_width"_L1, 0, spineUnit),
                         length(spine, "additional_width"_L1, 0, spineUnit));
}

bool RVCatalogueProduct::hasSpine() const
{
    return RVDistance() < spine().spineWidth(unsigned(qMax(0, pageCounts().maxPages())));
}

RVBarcodeDefinitionList RVCatalogueProduct::barcodes() const
{
    RVBarcodeDefinitionList result;
    const RVCatalogueElement barcodes = element().firstChildElement("barcodes"_L1);
    const RVDistanceUnit barcodesUnit = unit(barcodes);
    for (RVCatalogueElement child = barcodes.firstChildElement("barcode"_L1); !child.isNull();
         child = child.nextSiblingElement("barcode"_L1)) {
        const RVBarcodeDefinition definition = barcode(child, barcodesUnit);
        if (definition.isValid())
            result += definition;
    }
    return result;
}

RVConfiguredArticleVariantList RVCatalogueProduct::options() const
{
    RVConfiguredArticleVariantList result;
    for (RVCatalogueElement form = firstForm(element()); !form.isNull(); form = form.nextSiblingElement("form"_L1)) {
        if (!form.utf8("key"_L1).isEmpty() && !form.utf8("value"_L1).isEmpty())
            result += option(form);
    }
    return result;
}

RVPriceClass RVCatalogueProduct::priceClass() const
{
    return element().attribute("price_class"_L1);
}

RVPriceClass RVCatalogueProduct::pagePriceClass() const
{
    return element().attribute("page_price_class"_L1);
}

RVPriceClass RVCatalogueProduct::optionPriceClass(const QString &key, const QString &value) const
{
    const QByteArray wantedKey = key.toUtf8();
    const QByteArray wantedValue = value.toUtf8();
    if (key.isEmpty() || value.isEmpty())
        return RVPriceClass();
    for (RVCatalogueElement form = firstForm(element()); !form.isNull(); form = form.nextSiblingElement("form"_L1)) {
        if (form.utf8("key"_L1) == wantedKey && form.utf8("value"_L1) == wantedValue)
            return form.attribute("price_class"_L1);
    }
    return RVPriceClass();
}

QStringList RVCatalogueProduct::families() const
{
    return d ? d->families : QStringList();
}

qint64 RVCatalogueProduct::number() const
{
    return d ? d->number : -1;
}

RVFileRange RVCatalogueProduct::range() const
{
    return element().range();
}

RVCatalogueElement RVCatalogueProduct::element() const
{
    return d ? RVCatalogueElement(d.data(), 0, 1) : RVCatalogueElement();
}

QList<RVCatalogueFinding> RVCatalogueProduct::findings() const
{
    return d ? d->findings : QList<RVCatalogueFinding>();
}

QByteArray RVCatalogueProduct::toXml() const
{
    QByteArray result;
    if (!d)
        return result;
    const RVCatalogueRows &rows = d->rows;
    std::vector<const RVCatalogueRows::Element *> open;
    const auto closeUpTo = [&](std::size_t index) {
        for (; !open.empty() && open.back()->end <= index; open.pop_back())
            result.append("</").append(rows.name(*open.back())).append('>');
    };
    for (std::size_t i = 0; i < rows.elements.size(); ++i) {
        closeUpTo(i);
        appendTag(&result, rows, rows.elements[i]);
        if (!result.endsWith("/>"))
            open.push_back(&rows.elements[i]);
    }
    closeUpTo(rows.elements.size());
    return result;
}
