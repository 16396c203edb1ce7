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
    bool hasMismatch; ///< between the numbers of keys and values
    bool isPreselected;
    bool isReadable; ///< whether it is preselected
};

/// The forms of a product, in the order of the file. A product has some few.
using RVCheckedOptions = QVarLengthArray<RVCheckedOption, 12>;

/// Those with a key, by key and value in the order of rvCompareSpellings(), and of equal ones in the order of the file.
using RVOptionsByKey = QVarLengthArray<const RVCheckedOption *, 12>;

#endif
