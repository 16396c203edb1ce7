#include "NearestText.h"

#include <KeywordCheck.h>

namespace {

constexpr qsizetype LONGEST = 64;

}

NearestText::NearestText(const QString &wanted) : myWanted(wanted.left(LONGEST).toCaseFolded()) { }

void NearestText::offer(const QString &text)
{
    if (text.isEmpty() || text.size() > LONGEST)
        return;
    const int found = editDistance(myWanted, text.toCaseFolded());
    if (!myText.isNull() && found >= myDistance)
        return;
    myText = text;
    myDistance = found;
}
