#ifndef RVPRODUCTARRANGEMENT_H
#define RVPRODUCTARRANGEMENT_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The bit 2 is left out: it has neither a name nor a keyword.
enum RVProductArrangementEnum : qint32 {
    PRODUCT_ARRANGEMENT_TRIVIAL = 1,
    PRODUCT_ARRANGEMENT_GIFT = 4,
    PRODUCT_ARRANGEMENT_CARD = 8,
    PRODUCT_ARRANGEMENT_PHOTOBOOK = 16,
    PRODUCT_ARRANGEMENT_CALENDAR = 32,
};
RV_DECLARE_ENUM_OPERATORS(RVProductArrangementEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVProductArrangementEnum>;

/// How products are grouped where they are presented. 0 is no group.
class RVPRODUCTBASE_EXPORT RVProductArrangement : public RVEnumWrapper<RVProductArrangementEnum>
{
public:
    RVProductArrangement(RVProductArrangementEnum value = RVProductArrangementEnum(0)) noexcept;
    /// From a keyword list such as "gift, card".
    RVProductArrangement(const QString &text);

    void fillTable(RVEnumToStringTable<RVProductArrangementEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVProductArrangement, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVProductArrangement &arrangement);

#endif
