#include "Suggestion.h"

#include <RVNearestText.h>

using namespace Qt::StringLiterals;

QString didYouMean(const QString &wanted, const QStringList &candidates, const QString &prefix)
{
    // A word with more than half of its letters changed is a different word.
    RVNearestText nearest(wanted, int(wanted.size() + 1) / 2);
    for (const QString &candidate : candidates)
        nearest.offer(candidate);
    return nearest.text().isEmpty() ? QString() : u"; did you mean \"%1%2\"?"_s.arg(prefix, nearest.text());
}
