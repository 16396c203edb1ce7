#ifndef RVORIENTATION_H
#define RVORIENTATION_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;
class QDomElement;
class QSizeF;
class RVAngle;

/// The values of RVOrientation, each with the keyword that writes it. @ingroup attributes
enum RVOrientationEnum : qint32 {
    ORIENTATION_NONE = 0, ///< "none"
    ORIENTATION_PORTRAIT = 1, ///< "portrait"
    ORIENTATION_LANDSCAPE = 2, ///< "landscape"
    ORIENTATION_SQUARE = 4, ///< "square"
    ORIENTATION_PORTRAIT_SLIM = 8, ///< "portrait_slim"
    ORIENTATION_LANDSCAPE_SLIM = 16, ///< "landscape_slim"
    /// "all"
    ORIENTATION_ALL = ORIENTATION_PORTRAIT | ORIENTATION_LANDSCAPE | ORIENTATION_SQUARE | ORIENTATION_PORTRAIT_SLIM
            | ORIENTATION_LANDSCAPE_SLIM,
};
RV_DECLARE_ENUM_OPERATORS(RVOrientationEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVOrientationEnum>;

/// The shape of a page or a product: upright, wide, square, or slim. 0 is none; a value without a keyword is written as
/// "portrait". 0 has the keyword "none", but only encode() writes it: encodeCSV() writes "portrait", which is read as
/// ORIENTATION_PORTRAIT.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVOrientation
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVOrientation : public RVEnumWrapper<RVOrientationEnum>
{
public:
    /// A value or several combined; none by default.
    RVOrientation(RVOrientationEnum value = ORIENTATION_NONE) noexcept;
    /// From a keyword list such as "portrait, square"; unknown keywords add nothing.
    RVOrientation(const QString &text);
    /// From a page size, see fromSize().
    RVOrientation(const QSizeF &size);
    /// From a keyword list; from the size if the list gives none.
    RVOrientation(const QString &text, const QSizeF &size);

    /// From a page size, see fromSize().
    static RVOrientation createFromSize(const QSizeF &size);
    /// A page that is not tilted is landscape; a tilted page is portrait.
    static RVOrientation createFromPageTilt(const RVAngle &tilt);

    /// The orientation by width / height: from 2 slim landscape, up to 0.5 slim portrait, up to 0.9 portrait, up to 1.1
    /// square, otherwise landscape. None if a side is negative or not a number, or if both are 0. The object's own
    /// value does not count.
    RVOrientationEnum fromSize(const QSizeF &size) const;

    /// True with one of the bits, slim or not.
    /// @{
    bool isPortrait() const noexcept { return matches(ORIENTATION_PORTRAIT | ORIENTATION_PORTRAIT_SLIM); }
    bool isLandscape() const noexcept { return matches(ORIENTATION_LANDSCAPE | ORIENTATION_LANDSCAPE_SLIM); }
    bool isQuadratic() const noexcept { return matches(ORIENTATION_SQUARE); }
    /// @}
    /// Portrait, landscape or square without regard to slimness; "all" is portrait, any other combination none.
    RVOrientation reduceToBasics() const;

    /// The German adjective for exactly this value, translated, ready to stand before a product's name: "Panorama-" or
    /// "quadratische " with a blank. Empty if there is none.
    QString humanReadable() const;
    /// "portrait", "landscape", "square" or "unknown"; the first that applies.
    QString previewFileNamePrefix() const;
    /// The usual width / height of exactly this value; 1 if there is none.
    double defaultWidthHeightRatio() const;
    /// The fold margin of a folded product as a part of its length, by reduceToBasics(); 0 for none.
    double foldMarginFactor() const;
    /// The fold margin of a product of this length, rounded down, in the unit of the length.
    int foldMargin(int length) const;

    /// The keyword of reduceToBasics(): "portrait", "landscape", "square" or "none".
    QString encodeForDLP() const;
    /// Appends an element "orientation" for each bit, in no particular order; none for "all". A bit without a keyword
    /// is written as "portrait".
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(RVEnumToStringTable<RVOrientationEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVOrientation, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVOrientation(portrait, square); RVOrientation(portrait) for 0 as well.
/// @relates RVOrientation
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVOrientation &orientation);
/// Prints the names of the enumerators, such as ORIENTATION_PORTRAIT|ORIENTATION_LANDSCAPE, and all other bits as a
/// number.
/// @relates RVOrientation
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVOrientationEnum value);

#endif
