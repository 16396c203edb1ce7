#include "AttributeWords.h"

#include <RVCatalogueAttributes.h>

using namespace Qt::StringLiterals;

namespace {

/// The library's names of orientations are adjectives that stand before the name of a product.
constexpr struct
{
    QLatin1StringView keyword;
    const char *name;
} ORIENTATIONS[] = {
    { "portrait"_L1, QT_TRANSLATE_NOOP("AttributeWords", "portrait") },
    { "landscape"_L1, QT_TRANSLATE_NOOP("AttributeWords", "landscape") },
    { "square"_L1, QT_TRANSLATE_NOOP("AttributeWords", "square") },
    { "portrait_slim"_L1, QT_TRANSLATE_NOOP("AttributeWords", "slim portrait") },
    { "landscape_slim"_L1, QT_TRANSLATE_NOOP("AttributeWords", "slim landscape") },
};

}

AttributeWords::AttributeWords()
{
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts()) {
        QHash<QString, RVCatalogueAttributeValue> &values = myValues[attribute.name()];
        for (const RVCatalogueAttributeValue &value : attribute.values())
            values.insert(value.keyword, value);
    }
    QHash<QString, RVCatalogueAttributeValue> &orientations = myValues[rvCatalogueAttributeName<RVOrientation>()];
    for (const auto &orientation : ORIENTATIONS)
        orientations[orientation.keyword].displayName = tr(orientation.name);
}

QString AttributeWords::text(RVCatalogueAttribute attribute, const RVCatalogueProduct &product) const
{
    const QHash<QString, RVCatalogueAttributeValue> values = myValues.value(attribute.name());
    QStringList result;
    for (const QString &keyword : attribute.decode(product).keywords) {
        const QString name = values.value(keyword).displayName;
        result += name.isEmpty() || name == keyword ? keyword : u"%1 (%2)"_s.arg(name, keyword);
    }
    return result.join(", "_L1);
}

QStringList AttributeWords::searchTexts(RVCatalogueAttribute attribute, const RVCatalogueProduct &product) const
{
    const QHash<QString, RVCatalogueAttributeValue> values = myValues.value(attribute.name());
    const QStringList keywords = attribute.decode(product).keywords;
    QStringList result = keywords;
    for (const QString &keyword : keywords) {
        const RVCatalogueAttributeValue value = values.value(keyword);
        result += value.aliases;
        result += value.displayName;
    }
    return result;
}
