#ifndef RVSPACEMAGNITUDE_H
#define RVSPACEMAGNITUDE_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;
class QFont;
class RVOrientation;

/// The values are named after their keywords, which give an area in cm². The normative size of a class may differ.
/// @ingroup attributes
enum RVSpaceMagnitudeEnum : qint32 {
    SPACE_MAGNITUDE_50CM2 = 1, ///< "50cm2"
    SPACE_MAGNITUDE_150CM2 = 2, ///< "150cm2": A6
    SPACE_MAGNITUDE_200CM2 = 4, ///< "200cm2"
    SPACE_MAGNITUDE_220CM2 = 8, ///< "220cm2"
    SPACE_MAGNITUDE_280CM2 = 16, ///< "280cm2"
    SPACE_MAGNITUDE_310CM2 = 32, ///< "310cm2": A5
    SPACE_MAGNITUDE_400CM2 = 64, ///< "400cm2"
    SPACE_MAGNITUDE_600CM2 = 128, ///< "600cm2": A4
    SPACE_MAGNITUDE_900CM2 = 256, ///< "900cm2"
    SPACE_MAGNITUDE_1200CM2 = 512, ///< "1200cm2": A3
    SPACE_MAGNITUDE_2000CM2 = 1024, ///< "2000cm2"
    SPACE_MAGNITUDE_2400CM2 = 2048, ///< "2400cm2": A2
    /// "normal": from 200 to 2400 cm² without the XL sizes.
    SPACE_MAGNITUDE_NORMAL = SPACE_MAGNITUDE_200CM2 | SPACE_MAGNITUDE_220CM2 | SPACE_MAGNITUDE_280CM2
            | SPACE_MAGNITUDE_310CM2 | SPACE_MAGNITUDE_400CM2 | SPACE_MAGNITUDE_600CM2 | SPACE_MAGNITUDE_1200CM2
            | SPACE_MAGNITUDE_2400CM2,
    SPACE_MAGNITUDE_XL = SPACE_MAGNITUDE_900CM2 | SPACE_MAGNITUDE_2000CM2, ///< "xl"
    /// Every size.
    SPACE_MAGNITUDE_ANY = SPACE_MAGNITUDE_NORMAL | SPACE_MAGNITUDE_XL | SPACE_MAGNITUDE_50CM2 | SPACE_MAGNITUDE_150CM2,
};
RV_DECLARE_ENUM_OPERATORS(RVSpaceMagnitudeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVSpaceMagnitudeEnum>;

/**
 * The size class of a printable area, and its values for page layout. 0 is no size; an unknown keyword stands for every
 * size, and a value without a keyword is written as "any". So 0, once written, is read as every size.
 *
 * @par Example
 * @snippet tst_examples_attributes.cpp RVSpaceMagnitude
 *
 * @ingroup attributes
 */
class RVPRODUCTBASE_EXPORT RVSpaceMagnitude : public RVEnumWrapper<RVSpaceMagnitudeEnum>
{
public:
    /// A value or several combined; none by default. The number 0 does not select this constructor:
    /// `RVSpaceMagnitude(0)` and `setValue(0)` treat it as a null text, which is every size (4095). Write
    /// `RVSpaceMagnitude()`.
    RVSpaceMagnitude(RVSpaceMagnitudeEnum value = RVSpaceMagnitudeEnum(0)) noexcept;
    /// From a keyword list such as "A4, A5"; an empty one is every size. The keyword "XL" stands for 900 and 2000 cm²,
    /// the display name "XL" for 900 cm² alone.
    RVSpaceMagnitude(const QString &text);

    /// The size class of an area in cm².
    static RVSpaceMagnitude fromSquareCentimeters(int area);
    /// The size class of 30 / @p x cm², truncated; none for 0.
    static RVSpaceMagnitude estimateByAreaSizes(double x);
    /// The size class of a display name, German or in the application's language; none for an unknown name. It finds
    /// only the names that names() had when it was built, so use the same language. It finds no name with letters
    /// beyond ASCII; see RVDisplayNames::value().
    static RVSpaceMagnitude createFromHumanReadable(const QString &name);

    /// The highest number of images on one page; 1 for any value except exactly one size class that can have more.
    int maxReasonableImagesPerPage() const;
    /// A font size in points that suits exactly this size class, from 12 to 32; 12 for anything else.
    int suitableFontSizeInPoints() const;
    /// The area of exactly this size class in cm²; 0 for anything else.
    int normativeSize() const;
    /// The other area divided by this one; 1 if one of the two is 0. A combination has no area, so with one the factor
    /// is 0, infinite or not a number.
    double scaleFactorForArea(const RVSpaceMagnitude &other) const;
    /// The square root of the factor above, for lengths.
    double scaleFactorPerDimension(const RVSpaceMagnitude &other) const;
    /// The number of photos that look best on a page of exactly this size class, from 1.5 to 4; 2.1 for anything else.
    double optimumFotosPerPage(const RVOrientation &orientation) const;
    /// The font scaled from this size class to another; a size in pixels is rounded down. A point size stays as it is
    /// if the new one would be infinite or not above 0. A size in pixels stays as it is if the new one would be below
    /// 1.
    QFont adaptFont(const QFont &font, const RVSpaceMagnitude &target) const;

    /// The name that the customer reads for exactly this value; "Undefiniert" for combinations, 0 and 50 cm².
    QString humanReadableName() const;
    static const RVDisplayNames<RVSpaceMagnitude> &names(); ///< The table behind humanReadableName().

    void fillTable(RVEnumToStringTable<RVSpaceMagnitudeEnum> *table) const override;

private:
    static RVDisplayNames<RVSpaceMagnitude> initNames();
};

Q_DECLARE_TYPEINFO(RVSpaceMagnitude, Q_RELOCATABLE_TYPE);

/// Prints encode() after the name of the class, in quotes. @relates RVSpaceMagnitude
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVSpaceMagnitude &magnitude);
/// Prints the names of the enumerators, such as SPACE_MAGNITUDE_50CM2|SPACE_MAGNITUDE_150CM2, and all other bits as a
/// number.
/// @relates RVSpaceMagnitude
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVSpaceMagnitudeEnum value);

#endif
