#ifndef RVPAGEALIGNMENT_H
#define RVPAGEALIGNMENT_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The values of RVPageAlignment, each with the keyword that writes it. @ingroup attributes
enum RVPageAlignmentEnum : qint32 {
    PAGE_ALIGNMENT_LEFT = 1, ///< "left"
    PAGE_ALIGNMENT_RIGHT = 2, ///< "right"
    PAGE_ALIGNMENT_MIDDLE = 4, ///< "middle": on the spine
    PAGE_ALIGNMENT_FULLPAGE = 8, ///< "fullpage"
    PAGE_ALIGNMENT_TOP = 16, ///< "top"
    PAGE_ALIGNMENT_BOTTOM = 32, ///< "bottom"
    PAGE_ALIGNMENT_CENTER = 64, ///< "center"
};
RV_DECLARE_ENUM_OPERATORS(RVPageAlignmentEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVPageAlignmentEnum>;

/// The place of a page in the spread, or of an element on its page. 0 is no place; an unknown keyword stands for the
/// left, and so do "cover" and "coverpage".
/// @par Example
/// @snippet tst_examples_attributes.cpp RVPageAlignment
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVPageAlignment : public RVEnumWrapper<RVPageAlignmentEnum>
{
public:
    /// A value or several combined; none by default. `RVPageAlignment(0)` is the left: 0 is taken for a null text.
    RVPageAlignment(RVPageAlignmentEnum value = RVPageAlignmentEnum(0)) noexcept;
    /// From a keyword list such as "left, top"; an empty one is the left.
    RVPageAlignment(const QString &text);

    /// The German words for exactly this value, translated; empty if there are none.
    QString describe() const;
    /// The end of the name of a production PDF: "_left.pdf" and "_right.pdf" for exactly these pages if the output is
    /// split by page, otherwise "_center.pdf".
    QString pdfPostFix(bool split) const;
    /// The path with pdfPostFix() for every ".pdf" in it, in any letter case.
    QString modifyProductionPath(const QString &path, bool split) const;

    void fillTable(RVEnumToStringTable<RVPageAlignmentEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVPageAlignment, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVPageAlignment(left, top). @relates RVPageAlignment
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageAlignment &alignment);
/// Prints the names of the enumerators, such as PAGE_ALIGNMENT_LEFT|PAGE_ALIGNMENT_RIGHT, and all other bits as a
/// number.
/// @relates RVPageAlignment
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVPageAlignmentEnum value);

#endif
