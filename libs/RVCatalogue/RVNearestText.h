#ifndef RVNEARESTTEXT_H
#define RVNEARESTTEXT_H

#include "RVCatalogueExport.h"

#include <QString>

#include <limits>

/**
 * Finds the text that was probably meant: of all that are offered, the first that needs the fewest changes of single
 * letters. A change is a letter that is replaced, added, removed or swapped with its neighbour.
 *
 * Letter case does not count. Texts of more than 64 letters, which is too long for a code or a keyword, are passed
 * over.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVNearestText
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVNearestText
{
public:
    /// Texts that need @p limit changes or more are passed over.
    explicit RVNearestText(const QString &wanted, int limit = std::numeric_limits<int>::max());

    void offer(const QString &text); ///< One of the texts that could be meant.

    /// As it was offered; null while nothing was near enough.
    QString text() const { return myText; }
    /// The number of changes that it needs; the limit while nothing was near enough.
    int distance() const noexcept { return myDistance; }

private:
    QString myWanted; // without letter case, cut at the longest
    QString myText;
    int myDistance;
};

Q_DECLARE_TYPEINFO(RVNearestText, Q_RELOCATABLE_TYPE);

#endif
