#ifndef RVRELATEDPLACE_H
#define RVRELATEDPLACE_H

#include "RVFileRange.h"

#include <QString>

/**
 * A second place that belongs to a finding, such as the first of two options that are the same.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVRelatedPlace
 *
 * @ingroup catalogues
 */
struct RVRelatedPlace
{
    RVFileRange range; ///< The piece of the file.
    QString text; ///< One line about the place, without a full stop, in the language of the program.
    QString fileName; ///< Empty for the file of the finding.

    /// Compares all three members.
    /// @{
    friend bool operator==(const RVRelatedPlace &a, const RVRelatedPlace &b) noexcept
    {
        return a.range == b.range && a.text == b.text && a.fileName == b.fileName;
    }
    friend bool operator!=(const RVRelatedPlace &a, const RVRelatedPlace &b) noexcept { return !(a == b); }
    /// @}
};

Q_DECLARE_TYPEINFO(RVRelatedPlace, Q_RELOCATABLE_TYPE);

#endif
