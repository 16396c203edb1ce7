#ifndef RVDLPTYPE_H
#define RVDLPTYPE_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The values of RVDlpType, each with the keyword that writes it. @ingroup attributes
enum RVDlpTypeEnum : qint32 {
    DLP_TYPE_BACKGROUND = 1, ///< "background"
    DLP_TYPE_STYLE_V2 = 2, ///< "style_v2"
    DLP_TYPE_TEMPLATE = 4, ///< "template": a design
    DLP_TYPE_CLIPART = 8, ///< "clipart"
    DLP_TYPE_MASK = 16, ///< "mask"
    DLP_TYPE_LAYOUTCOLLECTION = 32, ///< "layoutcollection"
    DLP_TYPE_STORYBOOK = 64, ///< "storybook"
    DLP_TYPE_FORM_PARAMETER_DATA = 128, ///< "form_parameter_data"
    DLP_TYPE_PREDEFINED_PROJECT = 256, ///< "predefined_project"
    DLP_TYPE_FILTER_LINNEN_CAPABLE = 512, ///< "filter_linnen_capable": added to a type, no type itself
    DLP_TYPE_STYLE_V2_COVERPAGE = 1024, ///< "style_v2_coverpage"
    DLP_TYPE_STYLE_V2_INNERPAGE = 2048, ///< "style_v2_innerpage"
};
RV_DECLARE_ENUM_OPERATORS(RVDlpTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVDlpTypeEnum>;

/// A kind of design content that the application downloads. 0 is none. Names, directories and queries ignore
/// DLP_TYPE_FILTER_LINNEN_CAPABLE.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVDlpType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVDlpType : public RVEnumWrapper<RVDlpTypeEnum>
{
public:
    /// A value or several combined; none by default.
    RVDlpType(RVDlpTypeEnum value = RVDlpTypeEnum(0)) noexcept;
    /// From a keyword list such as "clipart, mask".
    RVDlpType(const QString &text);

    /// The name that the customer reads for exactly this type, or for styles and book templates together. For -1 it has
    /// no number, otherwise @p n with the matching plural form: "3 Cliparts". Plural forms come from a translation,
    /// also the German ones: while none is loaded, it is "1 Cliparts". A null text if there is no name.
    QString visibleName(int n) const;
    /// The name of the directory for exactly this type; designs have an alternative one. A null text where there is
    /// none.
    QString dlpPath(bool alternative) const;
    /// True for exactly DLP_TYPE_LAYOUTCOLLECTION.
    bool dlpButtonForbidden() const;
    /// The keyword in a query: "style_v2" with any bit of a style or a book template, else that of exactly this type.
    QString queryValue() const;
    /// A text for logs, such as "9 | background, clipart".
    QString describe() const;

    void fillTable(RVEnumToStringTable<RVDlpTypeEnum> *table) const override;

private:
    RVDlpTypeEnum withoutFilter() const noexcept { return value() & ~DLP_TYPE_FILTER_LINNEN_CAPABLE; }
};

Q_DECLARE_TYPEINFO(RVDlpType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVDlpType(clipart, mask). @relates RVDlpType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVDlpType &dlpType);
/// Prints the names of the enumerators, such as DLP_TYPE_BACKGROUND|DLP_TYPE_STYLE_V2, and all other bits as a number.
/// @relates RVDlpType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVDlpTypeEnum value);

#endif
