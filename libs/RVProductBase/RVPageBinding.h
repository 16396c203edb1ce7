#ifndef RVPAGEBINDING_H
#define RVPAGEBINDING_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;
class QDomElement;

/// The values of RVPageBinding, each with the keyword that writes it. @ingroup attributes
enum RVPageBindingEnum : qint32 {
    UNKNOWN = 0, ///< "unknown"
    GLUE = 0x1, ///< "glue": the classic binding of a book
    LAYFLAT = 0x2, ///< "layflat"
    STAPLED = 0x4, ///< "stapled"
    SPIRAL = 0x8, ///< "spiral"
};
RV_DECLARE_ENUM_OPERATORS(RVPageBindingEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVPageBindingEnum>;

/// The binding that holds the pages of a product together. 0 is unknown. It has the keyword "unknown", but only
/// encode() writes it: encodeCSV() of 0 is empty.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVPageBinding
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVPageBinding : public RVEnumWrapper<RVPageBindingEnum>
{
public:
    /// A value or several combined; none by default.
    RVPageBinding(RVPageBindingEnum value = UNKNOWN) noexcept;
    /// From a keyword list such as "glued"; unknown keywords add nothing.
    RVPageBinding(const QString &text);

    /// The name that the customer reads for exactly this value; empty if there is no name, such as for SPIRAL.
    QString humanReadableName() const;
    /// The table behind humanReadableName(). Its reverse look-up never finds "Rückstichbindung", which has an umlaut.
    static const RVDisplayNames<RVPageBinding> &pageBindingNames();

    /// Appends an element "pageBinding" with encodeCSV(), but only for a value that is not 0 and has no bit of GLUE,
    /// LAYFLAT and STAPLED. So SPIRAL is written and SPIRAL | GLUE is not; a value of unknown bits alone is written as
    /// an empty element.
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(RVEnumToStringTable<RVPageBindingEnum> *table) const override;

private:
    static RVDisplayNames<RVPageBinding> initPageBindingNames();
};

Q_DECLARE_TYPEINFO(RVPageBinding, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVPageBinding(glue); RVPageBinding() for 0. @relates RVPageBinding
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageBinding &pageBinding);
/// Prints the names of the enumerators, such as GLUE|LAYFLAT, and all other bits as a number. @relates RVPageBinding
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVPageBindingEnum value);

#endif
