#ifndef RVNEARESTTEXTS_P_H
#define RVNEARESTTEXTS_P_H

#include "RVNearestText.h"

#include <QStringList>

/// All texts that could be meant by a mistyped one: those that need the fewest changes, in the order in which they were
/// offered. None where half of the letters differ, or where it is too long to be a slip of the fingers.
class RVNearestTexts
{
public:
    /// Texts that need @p limit changes or more are passed over, too.
    explicit RVNearestTexts(const QString &wanted, int limit = std::numeric_limits<int>::max())
        : myWanted(wanted),
          myLimit(wanted.size() > LONGEST_GUESS ? 0 : qMin(limit, int(wanted.size() + 1) / 2))
    { }

    void offer(const QString &text)
    {
        RVNearestText nearest(myWanted, myLimit);
        nearest.offer(text);
        if (nearest.text().isNull() || myTexts.contains(text))
            return;
        if (myTexts.isEmpty() || nearest.distance() < myDistance)
            myTexts.clear();
        myTexts += text;
        myDistance = nearest.distance();
        myLimit = myDistance + 1;
    }

    const QStringList &texts() const { return myTexts; }
    int distance() const { return myDistance; } ///< The changes that they need; 0 also where there is none.

private:
    static constexpr qsizetype LONGEST_GUESS = 40;

    QString myWanted;
    QStringList myTexts;
    int myLimit;
    int myDistance = 0;
};

#endif
