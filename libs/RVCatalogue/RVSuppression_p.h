#ifndef RVSUPPRESSION_P_H
#define RVSUPPRESSION_P_H

#include "RVCatalogueRuleTable_p.h"
#include "RVFileRange.h"

#include <QByteArrayView>
#include <QStringList>

#include <bitset>
#include <limits>
#include <optional>

/// A set of rules, each by its RVCatalogueRuleId.
using RVCatalogueRuleSet = std::bitset<RV_CATALOGUE_RULE_COUNT>;

/// A comment of a catalogue that silences rules for the element that follows it, such as `<!-- rvcatalog: ignore
/// keyword-unknown -->`.
struct RVSuppression
{
    /// The row of an element that is not in the product.
    static constexpr quint32 OUTSIDE = std::numeric_limits<quint32>::max();

    /// Reads the text between `<!--` and `-->`, which is UTF-8. None for any other comment.
    static std::optional<RVSuppression> read(QByteArrayView comment, const RVFileRange &range);

    bool names(RVCatalogueRuleId rule) const { return rules.test(std::size_t(rule)); }

    RVFileRange range; ///< from `<!--` to `-->`
    RVCatalogueRuleSet rules;
    QStringList unknownNames; ///< names of unknown rules; the first hundred
    /// The rows of two elements, for a comment in a product: the next element, and the element that it stands in.
    /// @{
    quint32 element = 0;
    quint32 parent = OUTSIDE;
    /// @}
    bool isReadable = true; ///< false if it only looks like one that silences rules; then it names none
    bool hasElement = false; ///< false if no element follows in the same parent
};

#endif
