#ifndef RVNEARESTTEXTS_P_H
#define RVNEARESTTEXTS_P_H

#include "RVNearestText.h"

#include <QStringList>

#include <limits>

/// All texts that could be meant by a mistyped one: those that need the fewest changes, in the order in which they were
/// offered. None where half of the letters differ, or where it is too long to be a slip of the fingers.
class RVNearestTexts
{
public:
    /// Texts that need @p limit changes or more are passed over, too.
    explicit RVNearestTexts(const QString &wanted, int limit = std::numeric_limits<int>::max())
        : mySize(wanted.size()),
          myLimit(mySize > LONGEST_GUESS ? 0 : qMin(limit, int(mySize + 1) / 2)),
          myWanted(wanted, myLimit)
    { }

    void offer(const QString &text)
    {
        if (qAbs(text.size() - mySize) >= myLimit)
            return;
        RVNearestText nearest = myWanted; // which nothing was offered to
        nearest.offer(text);
        if (nearest.text().isNull() || nearest.distance() >= myLimit || myTexts.contains(text))
            return;
        if (nearest.distance() < myDistance)
            myTexts.clear();
        myTexts += text;
        myDistance = nearest.distance();
        myLimit = myDistance + 1;
    }

    const QStringList &texts() const { return myTexts; }
    int distance() const { return myDistance; } ///< The changes that they need; the largest number where there is none.

private:
    static constexpr qsizetype LONGEST_GUESS = 40;

    qsizetype mySize;
    int myLimit;
    RVNearestText myWanted;
    QStringList myTexts;
    int myDistance = std::numeric_limits<int>::max();
};

#endif
