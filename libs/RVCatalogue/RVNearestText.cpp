#include "RVNearestText.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace {

constexpr qsizetype LONGEST_TEXT = 64;

/// One row of the table of distances: those between the first letters of one text, as many as there are rows in front,
/// and the first letters of another text.
using DistanceRow = std::array<int, LONGEST_TEXT + 1>;

bool isSwapped(QStringView a, qsizetype i, QStringView b, qsizetype j)
{
    return i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
}

int distanceBetween(QStringView a, QStringView b)
{
    DistanceRow last = {};
    DistanceRow row = {};
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        const DistanceRow beforeLast = last;
        last = row;
        row.front() = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = std::size_t(j);
            const int changed = last[at - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[at] = std::min({ last[at] + 1, row[at - 1] + 1, changed });
            if (isSwapped(a, i, b, j))
                row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row[std::size_t(b.size())];
}

}

RVNearestText::RVNearestText(const QString &wanted, int limit)
    : myWanted(wanted.left(LONGEST_TEXT).toCaseFolded().left(LONGEST_TEXT)),
      myDistance(limit)
{ }

void RVNearestText::offer(const QString &text)
{
    const QString folded = text.toCaseFolded();
    if (text.isEmpty() || folded.size() > LONGEST_TEXT || qAbs(folded.size() - myWanted.size()) >= myDistance)
        return;
    const int found = distanceBetween(myWanted, folded);
    if (found >= myDistance)
        return;
    myText = text;
    myDistance = found;
}
