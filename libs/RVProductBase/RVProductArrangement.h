#ifndef RVPRODUCTARRANGEMENT_H
#define RVPRODUCTARRANGEMENT_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The values of RVProductArrangement, each with its main keyword. The bit 2 is missing, because it has neither a name
/// nor a keyword. @ingroup attributes
enum RVProductArrangementEnum : qint32 {
    PRODUCT_ARRANGEMENT_TRIVIAL = 1, ///< "trivial"
    PRODUCT_ARRANGEMENT_GIFT = 4, ///< "gift"
    PRODUCT_ARRANGEMENT_CARD = 8, ///< "card"
    PRODUCT_ARRANGEMENT_PHOTOBOOK = 16, ///< "photobook"
    PRODUCT_ARRANGEMENT_CALENDAR = 32, ///< "calendar"
};
RV_DECLARE_ENUM_OPERATORS(RVProductArrangementEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVProductArrangementEnum>;

/// The group in which a product is presented. 0 is no group.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVProductArrangement
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVProductArrangement : public RVEnumWrapper<RVProductArrangementEnum>
{
public:
    /// A value or several combined; none by default.
    RVProductArrangement(RVProductArrangementEnum value = RVProductArrangementEnum(0)) noexcept;
    /// From a keyword list such as "gift, card".
    RVProductArrangement(const QString &text);

    void fillTable(RVEnumToStringTable<RVProductArrangementEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVProductArrangement, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVProductArrangement(gift, card). @relates RVProductArrangement
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVProductArrangement &arrangement);
/// Prints the names of the enumerators, such as PRODUCT_ARRANGEMENT_TRIVIAL|PRODUCT_ARRANGEMENT_GIFT, and all other
/// bits as a number.
/// @relates RVProductArrangement
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVProductArrangementEnum value);

#endif
