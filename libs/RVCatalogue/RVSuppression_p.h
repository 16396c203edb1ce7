#ifndef RVSUPPRESSION_P_H
#define RVSUPPRESSION_P_H

#include "RVCatalogueRuleTable_p.h"
#include "RVFileRange.h"

#include <QByteArrayView>
#include <QStringList>

#include <bitset>
#include <limits>
#include <optional>

/// Some of the rules; each one by its RVCatalogueRuleId.
using RVCatalogueRuleSet = std::bitset<RV_CATALOGUE_RULE_COUNT>;

/// A comment of a catalogue that silences rules for the element behind it, such as
/// `<!-- rvcatalog: ignore keyword-unknown -->`.
struct RVSuppression
{
    /// No element of the product.
    static constexpr quint32 OUTSIDE = std::numeric_limits<quint32>::max();

    /// Reads the text between `<!--` and `-->`, which is UTF-8. Nothing for a comment that is about something else.
    static std::optional<RVSuppression> read(QByteArrayView comment, const RVFileRange &range);

    bool names(RVCatalogueRuleId rule) const { return rules.test(std::size_t(rule)); }

    RVFileRange range; ///< from `<!--` to `-->`
    RVCatalogueRuleSet rules;
    QStringList unknownNames; ///< of rules that there are not; the first hundred
    /// In a product: the first element behind it, and the element that it stands in, as they stand in the rows of the
    /// product.
    /// @{
    quint32 element = 0;
    quint32 parent = OUTSIDE;
    /// @}
    bool isReadable = true; ///< false where it only looks like one that silences rules; then it names none
    bool hasElement = false; ///< false where no element follows in the same parent
};

#endif
