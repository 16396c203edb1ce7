#ifndef RVSPOTCOLOR_H
#define RVSPOTCOLOR_H

#include "RVCoreExport.h"
#include "RVEnumWrapper.h"

class QDebug;

/// The values of RVSpotColor, each with the keyword that writes it. @ingroup attributes
enum RVSpotColorEnum : qint32 {
    SPOT_COLOR_GLOSS = 1, ///< "gloss"
    SPOT_COLOR_GOLD = 2, ///< "gold"
    SPOT_COLOR_SILVER = 4, ///< "silver"
    SPOT_COLOR_ROSEGOLD = 8, ///< "rosegold"
    SPOT_COLOR_SILVER_INK = 16, ///< "silver_ink"
};
RV_DECLARE_ENUM_OPERATORS(RVSpotColorEnum)

extern template class RVCORE_EXPORT RVEnumWrapper<RVSpotColorEnum>;

/// The finish of a page or a cover beside its colours, such as gloss or gold. 0 is no finish.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVSpotColor
/// @ingroup attributes
class RVCORE_EXPORT RVSpotColor : public RVEnumWrapper<RVSpotColorEnum>
{
public:
    /// A value or several combined; none by default.
    RVSpotColor(RVSpotColorEnum value = RVSpotColorEnum(0)) noexcept;
    /// From a keyword list such as "gold, gloss".
    RVSpotColor(const QString &text);

    void fillTable(RVEnumToStringTable<RVSpotColorEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVSpotColor, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVSpotColor(gold, silver). @relates RVSpotColor
RVCORE_EXPORT QDebug operator<<(QDebug debug, const RVSpotColor &spotColor);
/// Prints the names of the enumerators, such as SPOT_COLOR_GLOSS|SPOT_COLOR_GOLD, and all other bits as a number.
/// @relates RVSpotColor
RVCORE_EXPORT QDebug operator<<(QDebug debug, RVSpotColorEnum value);

#endif
