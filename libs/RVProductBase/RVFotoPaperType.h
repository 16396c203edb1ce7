#ifndef RVFOTOPAPERTYPE_H
#define RVFOTOPAPERTYPE_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

#include <QList>

class QDebug;
class RVArticleClass;

/// The values of RVFotoPaperType, each with the keyword that writes it. @ingroup attributes
enum RVFotoPaperTypeEnum : qint32 {
    NO_FOTO_PAPER = 0, ///< "0"
    GLOSSY = 0x1, ///< "1"
    MATT = 0x2, ///< "2"
};
RV_DECLARE_ENUM_OPERATORS(RVFotoPaperTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVFotoPaperTypeEnum>;

/// The surface of a photo print. 0 is none. It has the keyword "0", but only encode() writes it: encodeCSV() of 0 is
/// empty.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVFotoPaperType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVFotoPaperType : public RVEnumWrapper<RVFotoPaperTypeEnum>
{
public:
    /// A value or several combined; none by default.
    RVFotoPaperType(RVFotoPaperTypeEnum value = NO_FOTO_PAPER) noexcept;
    /// From a keyword list such as "glossy" or "1, 2".
    RVFotoPaperType(const QString &text);

    /// The surface for exactly one class of photo print; none for any other class, and for several at once.
    static RVFotoPaperType defaultFor(const RVArticleClass &articleClass);
    /// From the paper field of an order transfer, a decimal number: GLOSSY and MATT for 0, GLOSSY for 1, MATT for 2,
    /// none for any other text.
    static QList<RVFotoPaperType> createFromXTCI(const QString &code);

    /// The name that the customer reads for exactly this value; a null text if there is no name.
    QString humanReadableName() const;
    /// "1" or "2" for exactly one surface, else empty.
    QString encodeForProduction() const;

    void fillTable(RVEnumToStringTable<RVFotoPaperTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVFotoPaperType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVFotoPaperType(1). @relates RVFotoPaperType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVFotoPaperType &fotoPaperType);
/// Prints the names of the enumerators, such as GLOSSY|MATT, and all other bits as a number. @relates RVFotoPaperType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVFotoPaperTypeEnum value);

#endif
