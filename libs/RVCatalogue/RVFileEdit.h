#ifndef RVFILEEDIT_H
#define RVFILEEDIT_H

#include "RVFileRange.h"

#include <QString>

/**
 * A change of a text file: a piece of it, and the text that replaces it. An empty piece is a place where the text is
 * inserted; an empty text removes the piece.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVFileEdit
 *
 * @ingroup catalogues
 */
struct RVFileEdit
{
    RVFileRange range; ///< The piece that is replaced.
    QString text; ///< The new text; XML is escaped already.

    /// Compares piece and text.
    /// @{
    friend bool operator==(const RVFileEdit &a, const RVFileEdit &b) noexcept
    {
        return a.range == b.range && a.text == b.text;
    }
    friend bool operator!=(const RVFileEdit &a, const RVFileEdit &b) noexcept { return !(a == b); }
    /// @}
};

Q_DECLARE_TYPEINFO(RVFileEdit, Q_RELOCATABLE_TYPE);

#endif
