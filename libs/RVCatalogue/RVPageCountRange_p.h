#ifndef RVPAGECOUNTRANGE_P_H
#define RVPAGECOUNTRANGE_P_H

#include <RVPageCounts.h>

#include <QJsonObject>
#include <QList>
#include <QString>

/// Page counts from one to another, in equal steps.
struct RVPageCountRange
{
    qint64 from = 0;
    qint64 to = -1; ///< The last count; below the first if there are none.
    qint64 step = 1; ///< Above 0.

    static RVPageCountRange of(const RVPageCounts &counts);

    bool isEmpty() const { return to < from; }
    qint64 size() const { return isEmpty() ? 0 : (to - from) / step + 1; }
    QString text() const; ///< "30", "26, 30" or "26-154 by 4".
    QJsonObject json() const; ///< "from", "to" and "step".
};

/// The counts that are in both.
RVPageCountRange rvCommonCounts(const RVPageCountRange &a, const RVPageCountRange &b);
/// The counts of @p a that are not in @p b, with one range for each step or gap.
QList<RVPageCountRange> rvCountsWithout(const RVPageCountRange &a, const RVPageCountRange &b);

#endif
