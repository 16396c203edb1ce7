#ifndef RVSUPPRESSIONSCOPE_P_H
#define RVSUPPRESSIONSCOPE_P_H

#include "RVSuppression_p.h"

#include <QExplicitlySharedDataPointer>
#include <QMutex>
#include <QSharedData>

#include <vector>

/**
 * A group of products, or the root element, that comments silence rules for. The parser and the products of the group
 * share it. It is judged once it is closed and all that was expected in it was judged; only then it is known which of
 * its comments silence nothing.
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
    /// True where a comment of this scope, or of one around it, names the rule.
    bool silences(RVCatalogueRuleId rule) const;

    /// A product or a scope in it will be judged, or the end of the group is to come.
    void expect();
    /// One of those was, and broke these rules. Any thread.
    void judge(const RVCatalogueRuleSet &broken);
    /// Something else in the group broke these rules. Any thread.
    void addBroken(const RVCatalogueRuleSet &broken);

    bool isJudged() const; ///< True when nothing more is expected.
    RVCatalogueRuleSet broken() const; ///< In the group so far, silenced or not.

private:
    std::vector<RVSuppression> myComments;
    Pointer myOuter;
    std::size_t myLevel;
    RVCatalogueRuleSet myRules; // of all comments
    mutable QMutex myMutex; // for what follows
    RVCatalogueRuleSet myBroken;
    qint64 myExpected = 0;
};

#endif
