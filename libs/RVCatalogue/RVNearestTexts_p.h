#ifndef RVNEARESTTEXTS_P_H
#define RVNEARESTTEXTS_P_H

#include "RVNearestText.h"

#include <QStringList>

#include <limits>

/// All texts that a mistyped text could mean: those that need the fewest changes, in the order in which they were
/// offered. None if half of the letters differ, or if the text is too long for a typing mistake.
class RVNearestTexts
{
public:
    /// Texts that need @p limit changes or more are skipped, too.
    explicit RVNearestTexts(const QString &wanted, int limit = std::numeric_limits<int>::max())
        : mySize(wanted.size()),
          myLimit(mySize > LONGEST_GUESS ? 0 : qMin(limit, int(mySize + 1) / 2)),
          myWanted(wanted, myLimit)
    { }

    void offer(const QString &text)
    {
        if (qAbs(text.size() - mySize) >= myLimit)
            return;
        RVNearestText nearest = myWanted; // without offered texts
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
    /// The number of changes that they need; the largest int if there is none.
    int distance() const { return myDistance; }

private:
    static constexpr qsizetype LONGEST_GUESS = 40;

    qsizetype mySize;
    int myLimit;
    RVNearestText myWanted;
    QStringList myTexts;
    int myDistance = std::numeric_limits<int>::max();
};

#endif
