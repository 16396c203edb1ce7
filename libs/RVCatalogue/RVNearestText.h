#ifndef RVNEARESTTEXT_H
#define RVNEARESTTEXT_H

#include "RVCatalogueExport.h"

#include <QString>

#include <limits>

/**
 * Finds the text that was probably meant: the first of the offered texts that needs the fewest changes of single
 * letters. A change is a letter that is replaced, added, removed or swapped with its neighbour.
 *
 * Letter case does not matter. Texts of more than 64 letters, which are too long for a code or a keyword, are skipped.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVNearestText
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVNearestText
{
public:
    /// Texts that need @p limit changes or more are skipped.
    explicit RVNearestText(const QString &wanted, int limit = std::numeric_limits<int>::max());

    void offer(const QString &text); ///< Offers a text that could be meant.

    /// The nearest text as it was offered; null while none was near enough.
    QString text() const { return myText; }
    /// The number of changes that it needs; the limit while no text was near enough.
    int distance() const noexcept { return myDistance; }

private:
    QString myWanted; // without letter case, cut at the longest
    QString myText;
    int myDistance;
};

Q_DECLARE_TYPEINFO(RVNearestText, Q_RELOCATABLE_TYPE);

#endif
