#ifndef RVSUPPRESSIONSCOPE_P_H
#define RVSUPPRESSIONSCOPE_P_H

#include "RVSuppression_p.h"

#include <QExplicitlySharedDataPointer>
#include <QMutex>
#include <QSharedData>

#include <vector>

/**
 * A group of products, or the root element, with comments that silence rules. The parser and the products of the group
 * share it. It is judged after it was closed and all its products and scopes were judged. Only then the comments that
 * silence nothing are known.
 */
class RVSuppressionScope : public QSharedData
{
    Q_DISABLE_COPY_MOVE(RVSuppressionScope)

public:
    using Pointer = QExplicitlySharedDataPointer<RVSuppressionScope>;

    /// @p outer is the next scope around it, or null. @p level is the number of groups around it.
    RVSuppressionScope(std::vector<RVSuppression> comments, const Pointer &outer, std::size_t level);
    ~RVSuppressionScope() = default;

    const std::vector<RVSuppression> &comments() const { return myComments; }
    const Pointer &outer() const { return myOuter; }
    std::size_t level() const { return myLevel; }
    /// True if a comment of this scope, or of one around it, names the rule.
    bool silences(RVCatalogueRuleId rule) const;

    /// Announces a product or a scope in the group, or the end of the group.
    void expect();
    /// Marks one of those as judged, with the rules that it broke. Any thread.
    void judge(const RVCatalogueRuleSet &broken);
    /// Adds rules that another part of the group broke. Any thread.
    void addBroken(const RVCatalogueRuleSet &broken);

    bool isJudged() const; ///< True when nothing more is expected.
    RVCatalogueRuleSet broken() const; ///< The rules broken in the group so far, silenced or not.

private:
    std::vector<RVSuppression> myComments;
    Pointer myOuter;
    std::size_t myLevel;
    RVCatalogueRuleSet myRules; // that the comments here and around name
    mutable QMutex myMutex; // protects the members below
    RVCatalogueRuleSet myBroken;
    qint64 myExpected = 0;
};

#endif
