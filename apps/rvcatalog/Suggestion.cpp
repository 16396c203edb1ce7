#include "Suggestion.h"

#include <RVNearestText.h>

using namespace Qt::StringLiterals;

QString didYouMean(const QString &wanted, const QStringList &candidates)
{
    // With more than half of its letters changed, a word is another word.
    RVNearestText nearest(wanted, int(wanted.size() + 1) / 2);
    for (const QString &candidate : candidates)
        nearest.offer(candidate);
    return nearest.text().isEmpty() ? QString() : u"; did you mean \"%1\"?"_s.arg(nearest.text());
}
