#ifndef RVREGULAREXPRESSION_H
#define RVREGULAREXPRESSION_H

#include <QRegularExpression>

/// A regular expression without pattern options. It is compiled in the constructor, not on the first match, for
/// patterns that live as long as the process. Matching is thread-safe.
/// @par Example
/// @snippet tst_examples_platform.cpp RVRegularExpression
/// @ingroup platform
class RVRegularExpression : public QRegularExpression
{
public:
    /// An invalid pattern matches nothing.
    RVRegularExpression(const QString &pattern) : QRegularExpression(pattern) { optimize(); }
    // Moves are missing, because a moved-from expression must not be used.
    RVRegularExpression(const RVRegularExpression &) = default;
    RVRegularExpression &operator=(const RVRegularExpression &) = default;
};

#endif
