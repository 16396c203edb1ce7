#ifndef RVFILEEDIT_H
#define RVFILEEDIT_H

#include "RVFileRange.h"

#include <QString>

/**
 * A change of a text file: a piece of it, and the text that comes in its place. An empty piece is a place where the
 * text is put in; an empty text takes the piece out.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVFileEdit
 *
 * @ingroup catalogues
 */
struct RVFileEdit
{
    RVFileRange range; ///< The piece that goes.
    QString text; ///< As it is to stand in the file; XML is escaped already.

    /// By piece and text.
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
