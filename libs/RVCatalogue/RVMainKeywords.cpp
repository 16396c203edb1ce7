#include "RVMainKeywords_p.h"

#include "RVCatalogueAttributes.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <utility>

namespace {

bool isNumber(const QString &keyword)
{
    return std::all_of(keyword.begin(), keyword.end(), [](QChar letter) { return letter.isDigit(); });
}

template<typename T>
QHash<QString, QString> mainKeywords()
{
    QHash<QString, QString> result;
    auto values = T().allKnownEnumValues();
    std::sort(values.begin(), values.end());
    for (const auto value : std::as_const(values)) {
        const T attribute(value);
        const QString main = attribute.encode();
        for (const QString &keyword : attribute.allPossibleKeywordsOneElement())
            result.insert(keyword, isNumber(main) ? keyword : main);
        result.insert(main.toLower(), main);
    }
    return result;
}

/// Calls visit(row) with every row of the attributes.
template<typename Visitor>
void forEachAttribute(Visitor visit)
{
    std::apply([&visit](const auto &...rows) { (visit(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
}

}

QList<QLatin1StringView> rvProductKeywordAttributes()
{
    QList<QLatin1StringView> result;
    forEachAttribute([&result](const auto &row) {
        if (row.value)
            result += row.name;
    });
    return result;
}

QHash<QString, QString> rvMainKeywords(QLatin1StringView attribute)
{
    QHash<QString, QString> result;
    forEachAttribute([&](const auto &row) {
        if (row.name == attribute)
            result = mainKeywords<typename std::decay_t<decltype(row)>::Class>();
    });
    return result;
}
