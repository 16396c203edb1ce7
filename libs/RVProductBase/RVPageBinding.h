#ifndef RVPAGEBINDING_H
#define RVPAGEBINDING_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;
class QDomElement;

enum RVPageBindingEnum : qint32 {
    UNKNOWN = 0,
    GLUE = 0x1, ///< the classic binding of a book
    LAYFLAT = 0x2,
    STAPLED = 0x4,
    SPIRAL = 0x8,
};
RV_DECLARE_ENUM_OPERATORS(RVPageBindingEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVPageBindingEnum>;

/// What holds the pages of a product together. 0 is unknown, and has the keyword "unknown".
class RVPRODUCTBASE_EXPORT RVPageBinding : public RVEnumWrapper<RVPageBindingEnum>
{
public:
    RVPageBinding(RVPageBindingEnum value = UNKNOWN) noexcept;
    /// From a keyword list such as "glued".
    RVPageBinding(const QString &text);

    /// What the customer reads for exactly this value; empty where there is no name, such as for SPIRAL.
    QString humanReadableName() const;
    static const RVDisplayNames<RVPageBinding> &pageBindingNames();

    /// Appends an element "pageBinding" with encodeCSV(), but only for a binding without a bit of GLUE, LAYFLAT and
    /// STAPLED: templates name none but the spiral.
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(RVEnumToStringTable<RVPageBindingEnum> *table) const override;

private:
    static RVDisplayNames<RVPageBinding> initPageBindingNames();
};

Q_DECLARE_TYPEINFO(RVPageBinding, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageBinding &pageBinding);

#endif
