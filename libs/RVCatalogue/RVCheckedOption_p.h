#ifndef RVCHECKEDOPTION_P_H
#define RVCHECKEDOPTION_P_H

#include "RVCatalogueElement.h"

#include <QByteArrayView>
#include <QVarLengthArray>

/// The facts about a form that several checks share.
struct RVCheckedOption
{
    bool isComplete() const { return !key.isEmpty() && !value.isEmpty(); }

    RVCatalogueElement form;
    QByteArrayView key;
    QByteArrayView value;
    bool hasMismatch; ///< true if the numbers of keys and values differ
    bool isPreselected;
    bool isReadable; ///< true if the mark for a default can be read
};

/// The forms of a product, in the order of the file. Most products have few.
using RVCheckedOptions = QVarLengthArray<RVCheckedOption, 12>;

/// The forms with a key, sorted by key and value in the order of rvCompareSpellings(); equal ones in the order of the
/// file.
using RVOptionsByKey = QVarLengthArray<const RVCheckedOption *, 12>;

#endif
