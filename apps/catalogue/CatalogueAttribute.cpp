#include "CatalogueAttribute.h"

#include <RVArticleClass.h>
#include <RVCoverType.h>
#include <RVDlpType.h>
#include <RVFotoPaperType.h>
#include <RVMaterialType.h>
#include <RVOrientation.h>
#include <RVPageAlignment.h>
#include <RVPageBinding.h>
#include <RVPageType.h>
#include <RVPaperType.h>
#include <RVProductArrangement.h>
#include <RVSpaceMagnitude.h>
#include <RVSpotColor.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// No attribute has this value, so it comes back only for an unknown keyword.
constexpr int UNKNOWN_KEYWORD = -260570;

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

/// The other attributes have no names.
template<typename E>
QString displayName(const RVEnumWrapper<E> &)
{
    return QString();
}

template<typename T>
QList<AttributeValue> values()
{
    QList<AttributeValue> result;
    for (const auto value : T().allKnownEnumValues()) {
        const T attribute(value);
        QStringList aliases = attribute.allPossibleKeywordsOneElement();
        aliases.removeOne(attribute.encode().toLower());
        result += { qint64(value), attribute.encode(), aliases, displayName(attribute) };
    }
    std::sort(result.begin(), result.end(),
              [](const AttributeValue &a, const AttributeValue &b) { return a.value < b.value; });
    return result;
}

template<typename T>
AttributeDecoding decode(const QString &text)
{
    using E = decltype(T().value());
    const T attribute(text);
    const RVEnumToStringTable<E> *table = attribute.enumToStringTable();
    AttributeDecoding result;
    result.value = attribute.value();
    if (table->allKnownEnumValues().contains(attribute.value()))
        result.keyword = attribute.encode();
    result.keywords = attribute.encodeBits();
    result.displayName = displayName(attribute);
    for (const QString &piece : text.split(u',')) {
        if (table->decode(piece, E(UNKNOWN_KEYWORD)) == E(UNKNOWN_KEYWORD))
            result.unknownPieces += piece.trimmed();
    }
    return result;
}

template<typename T>
CatalogueAttribute attribute(QLatin1StringView name)
{
    return { name.toString(), values<T>, decode<T> };
}

}

const QList<CatalogueAttribute> &catalogueAttributes()
{
    static const QList<CatalogueAttribute> theAttributes = {
        attribute<RVArticleClass>("article_class"_L1),
        attribute<RVCoverType>("cover_type"_L1),
        attribute<RVPageBinding>("page_binding"_L1),
        attribute<RVPaperType>("paper_type"_L1),
        attribute<RVFotoPaperType>("foto_paper_type"_L1),
        attribute<RVOrientation>("orientation"_L1),
        attribute<RVSpaceMagnitude>("space_magnitude"_L1),
        attribute<RVPageType>("page_type"_L1),
        attribute<RVPageAlignment>("page_alignment"_L1),
        attribute<RVMaterialType>("material_type"_L1),
        attribute<RVProductArrangement>("product_arrangement"_L1),
        attribute<RVDlpType>("dlp_type"_L1),
        attribute<RVSpotColor>("spot_color"_L1),
    };
    return theAttributes;
}
