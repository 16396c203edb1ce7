#include "RVCatalogueAttribute.h"

#include "RVCatalogueAttributes.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

/// The functions of one attribute.
struct RVCatalogueAttributeFunctions
{
    QLatin1StringView name;
    const char *label;
    bool isOfProducts;
    QList<RVCatalogueAttributeValue> (*values)();
    RVCatalogueAttributeDecoding (*decode)(const QString &text);
    bool (*isIn)(const RVCatalogueProduct &product);
    qint64 (*value)(const RVCatalogueProduct &product);
    RVCatalogueAttributeDecoding (*decodeProduct)(const RVCatalogueProduct &product);
};

namespace {

QString displayName(const RVArticleClass &value)
{
    return value.toHumanReadable();
}

QString displayName(const RVCoverType &value)
{
    return RVCoverType::bindingNames().names.value(value);
}

QString displayName(const RVDlpType &value)
{
    return value.visibleName(-1);
}

QString displayName(const RVFotoPaperType &value)
{
    return value.humanReadableName();
}

QString displayName(const RVOrientation &value)
{
    return value.humanReadable();
}

QString displayName(const RVPageAlignment &value)
{
    return value.describe();
}

QString displayName(const RVPageBinding &value)
{
    return value.humanReadableName();
}

QString displayName(const RVPaperType &value)
{
    return RVPaperType::paperTypeNames().names.value(value);
}

QString displayName(const RVSpaceMagnitude &value)
{
    return RVSpaceMagnitude::names().names.value(value);
}

/// The other attributes have no display names.
template<typename E>
QString displayName(const RVEnumWrapper<E> &)
{
    return QString();
}

template<typename T>
QList<RVCatalogueAttributeValue> values()
{
    QList<RVCatalogueAttributeValue> result;
    for (const auto value : T().allKnownEnumValues()) {
        const T attribute(value);
        QStringList aliases = attribute.allPossibleKeywordsOneElement();
        aliases.removeOne(attribute.encode().toLower());
        result += { qint64(value), attribute.encode(), aliases, displayName(attribute) };
    }
    std::sort(result.begin(), result.end(), [](const auto &a, const auto &b) { return a.value < b.value; });
    return result;
}

template<typename T>
RVCatalogueAttributeDecoding decoding(const T &attribute)
{
    RVCatalogueAttributeDecoding result;
    result.value = attribute.value();
    if (attribute.enumToStringTable()->allKnownEnumValues().contains(attribute.value()))
        result.keyword = attribute.encode();
    result.keywords = attribute.encodeBits();
    result.text = attribute.encodeCSV();
    result.displayName = displayName(attribute);
    return result;
}

template<typename T>
RVCatalogueAttributeDecoding decode(const QString &text)
{
    const T attribute(text);
    const auto *const keywords = attribute.enumToStringTable();
    RVCatalogueAttributeDecoding result = decoding(attribute);
    for (const QString &piece : text.split(u',')) {
        if (keywords->decode(piece, keywords->NOT_FOUND) == keywords->NOT_FOUND)
            result.unknownPieces += piece.trimmed();
    }
    return result;
}

/// The value of a product; null for an attribute that products do not have.
template<typename T>
T valueOf(const RVCatalogueProduct &product)
{
    constexpr auto row = std::get<RVCatalogueAttributeRow<T>>(RV_CATALOGUE_ATTRIBUTES);
    if constexpr (row.isOfProducts)
        return (product.*row.value)();
    else
        return T();
}

template<typename T>
bool isIn(const RVCatalogueProduct &product)
{
    return !valueOf<T>(product).isNull();
}

template<typename T>
qint64 value(const RVCatalogueProduct &product)
{
    return valueOf<T>(product).value();
}

template<typename T>
RVCatalogueAttributeDecoding decodeProduct(const RVCatalogueProduct &product)
{
    const T attribute = valueOf<T>(product);
    return attribute.isNull() ? RVCatalogueAttributeDecoding() : decoding(attribute);
}

template<typename Row>
constexpr RVCatalogueAttributeFunctions functionsOf(const Row &row)
{
    using T = typename Row::Class;
    return { row.name, row.label, row.isOfProducts, values<T>, decode<T>, isIn<T>, value<T>, decodeProduct<T> };
}

constexpr auto FUNCTIONS = std::apply([](const auto &...rows) { return std::array { functionsOf(rows)... }; },
                                      RV_CATALOGUE_ATTRIBUTES);

}

QList<RVCatalogueAttribute> RVCatalogueAttribute::all()
{
    QList<RVCatalogueAttribute> result;
    for (const RVCatalogueAttributeFunctions &functions : FUNCTIONS)
        result += RVCatalogueAttribute(&functions);
    return result;
}

QList<RVCatalogueAttribute> RVCatalogueAttribute::ofProducts()
{
    QList<RVCatalogueAttribute> result;
    for (const RVCatalogueAttributeFunctions &functions : FUNCTIONS) {
        if (functions.isOfProducts)
            result += RVCatalogueAttribute(&functions);
    }
    return result;
}

RVCatalogueAttribute RVCatalogueAttribute::find(QAnyStringView name)
{
    const auto *found = std::find_if(
            FUNCTIONS.begin(), FUNCTIONS.end(),
            [name](const RVCatalogueAttributeFunctions &each) { return name == QAnyStringView(each.name); });
    return found == FUNCTIONS.end() ? RVCatalogueAttribute() : RVCatalogueAttribute(found);
}

QLatin1StringView RVCatalogueAttribute::name() const
{
    return myFunctions ? myFunctions->name : QLatin1StringView();
}

QString RVCatalogueAttribute::label() const
{
    return myFunctions ? QCoreApplication::translate("RVCatalogueAttribute", myFunctions->label) : QString();
}

QList<RVCatalogueAttributeValue> RVCatalogueAttribute::values() const
{
    return myFunctions ? myFunctions->values() : QList<RVCatalogueAttributeValue>();
}

RVCatalogueAttributeDecoding RVCatalogueAttribute::decode(const QString &text) const
{
    return myFunctions ? myFunctions->decode(text) : RVCatalogueAttributeDecoding();
}

bool RVCatalogueAttribute::isIn(const RVCatalogueProduct &product) const
{
    return myFunctions && myFunctions->isIn(product);
}

qint64 RVCatalogueAttribute::value(const RVCatalogueProduct &product) const
{
    return myFunctions ? myFunctions->value(product) : 0;
}

RVCatalogueAttributeDecoding RVCatalogueAttribute::decode(const RVCatalogueProduct &product) const
{
    return myFunctions ? myFunctions->decodeProduct(product) : RVCatalogueAttributeDecoding();
}
