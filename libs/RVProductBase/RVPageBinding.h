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

/// What holds the pages of a product together. 0 is unknown, and has the keyword "unknown".
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVPageBinding : public RVEnumWrapper<RVPageBindingEnum>
{
public:
    /// A value or several combined; none by default.
    RVPageBinding(RVPageBindingEnum value = UNKNOWN) noexcept;
    /// From a keyword list such as "glued"; unknown keywords add nothing.
    RVPageBinding(const QString &text);

    /// What the customer reads for exactly this value; empty where there is no name, such as for SPIRAL.
    QString humanReadableName() const;
    static const RVDisplayNames<RVPageBinding> &pageBindingNames(); ///< The table behind humanReadableName().

    /// Appends an element "pageBinding" with encodeCSV(), but only for a binding that is known and has no bit of GLUE,
    /// LAYFLAT and STAPLED: templates name none but the spiral.
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(RVEnumToStringTable<RVPageBindingEnum> *table) const override;

private:
    static RVDisplayNames<RVPageBinding> initPageBindingNames();
};

Q_DECLARE_TYPEINFO(RVPageBinding, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVPageBinding(glue). @relates RVPageBinding
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageBinding &pageBinding);

#endif
