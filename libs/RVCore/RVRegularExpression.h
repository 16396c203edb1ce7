#ifndef RVREGULAREXPRESSION_H
#define RVREGULAREXPRESSION_H

#include <QRegularExpression>

/// A regular expression without pattern options that is compiled when it is built, not on the first match; for
/// patterns that live as long as the process. Matching is thread-safe.
/// @par Example
/// @snippet tst_examples_platform.cpp RVRegularExpression
/// @ingroup platform
class RVRegularExpression : public QRegularExpression
{
public:
    /// An invalid pattern matches nothing.
    RVRegularExpression(const QString &pattern) : QRegularExpression(pattern) { optimize(); }
    // Without moves, which leave an expression that must not be asked.
    RVRegularExpression(const RVRegularExpression &) = default;
    RVRegularExpression &operator=(const RVRegularExpression &) = default;
};

#endif
