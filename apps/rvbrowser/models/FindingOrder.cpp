#include "FindingOrder.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace {

QString textOf(const LoadedCatalogue &catalogue, const RVCatalogueFinding &finding, int column)
{
    switch (column) {
    case FINDING_PRODUCT:
        return catalogue.typeOf(finding);
    case FINDING_TEXT:
        return finding.text();
    default:
        return finding.rule().name();
    }
}

/// For each finding the place of its text among all texts. Findings have few texts, so few are compared.
std::vector<qint64> ranksOfTexts(const LoadedCatalogue &catalogue, int column)
{
    const QList<RVCatalogueFinding> &findings = catalogue.findings();
    QHash<QString, qint64> ranks;
    for (const RVCatalogueFinding &finding : findings)
        ranks.insert(textOf(catalogue, finding, column), {});
    // The locale "C", in which programs of a build run, has no order of numbers.
    QCollator collator { QLocale(QLocale::English) };
    collator.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, QString>> texts;
    for (auto text = ranks.keyBegin(); text != ranks.keyEnd(); ++text)
        texts.emplace_back(collator.sortKey(*text), *text);
    std::sort(texts.begin(), texts.end());
    for (const auto &text : texts)
        ranks[text.second] = &text - texts.data();
    std::vector<qint64> result;
    for (const RVCatalogueFinding &finding : findings)
        result.push_back(ranks.value(textOf(catalogue, finding, column)));
    return result;
}

std::vector<qint64> ranks(const LoadedCatalogue &catalogue, int column)
{
    if (column != FINDING_SEVERITY && column != FINDING_PLACE)
        return ranksOfTexts(catalogue, column);
    constexpr int bits = std::numeric_limits<quint32>::digits;
    std::vector<qint64> result;
    for (const RVCatalogueFinding &finding : catalogue.findings()) {
        const RVFilePosition place = finding.range().begin;
        result.push_back(column == FINDING_SEVERITY ? -qint64(finding.severity())
                                                    : qint64((quint64(place.line) << bits) + quint64(place.column)));
    }
    return result;
}

}

QList<int> sortedFindings(const LoadedCatalogue &catalogue, int column, Qt::SortOrder order)
{
    QList<int> result(catalogue.findings().size());
    std::iota(result.begin(), result.end(), 0);
    if (column < 0 || column >= FINDING_COLUMN_COUNT)
        return result;
    const std::vector<qint64> keys = ranks(catalogue, column);
    std::stable_sort(result.begin(), result.end(), [&keys, order](int a, int b) {
        const qint64 first = keys[std::size_t(order == Qt::AscendingOrder ? a : b)];
        const qint64 second = keys[std::size_t(order == Qt::AscendingOrder ? b : a)];
        return first < second;
    });
    return result;
}
