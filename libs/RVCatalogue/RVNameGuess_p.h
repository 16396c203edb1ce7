#ifndef RVNAMEGUESS_P_H
#define RVNAMEGUESS_P_H

#include "RVNameVocabulary_p.h"

#include <QByteArrayView>
#include <QLatin1StringView>
#include <QVarLengthArray>

/// The known names that a misspelt one was probably meant to be.
struct RVNameGuess
{
    QVarLengthArray<QLatin1StringView, 2> names; ///< all that are equally near; none if the name is near no known one
    int changes = 0; ///< of single letters; 0 if only letter case and signs between words differ
};

/// The names that are nearest to one in UTF-8. Letter case and the signs `_`, `-` and `.` do not count, and "ph" is
/// "f". A change is a letter that is replaced, added, removed or swapped with its neighbour:
///
/// - a name of ten letters or more may need two, but only one in a word of at most five letters, since `base` is no
///   misspelt `page`;
/// - a shorter one may need one;
/// - in one of at most four letters none may be replaced, because `note` is no misspelt `name`;
/// - letters beyond ASCII may replace letters of the same look, up to half of the name, and count as one change;
/// - an additional word, or a number at the end, makes a different name, and some words, such as `weight`, are
///   different names.
///
/// A name that is far from all of them, such as most foreign names, costs no allocation.
RVNameGuess rvGuessName(QByteArrayView name, const RVNameList &knownNames);

#endif
