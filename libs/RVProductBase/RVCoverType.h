#ifndef RVCOVERTYPE_H
#define RVCOVERTYPE_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The values of RVCoverType, each with the keyword that writes it. @ingroup attributes
enum RVCoverTypeEnum : qint64 {
    HARDCOVER = 0x1, ///< "HARDCOVER"
    SOFTCOVER = 0x2, ///< "SOFTCOVER"
    CROMOLINEN = 0x4, ///< "CROMOLINEN"
    LEATHER = 0x8, ///< "LEATHER"
    BOOKLET = 0x10, ///< "BOOKLET"
    CALENDAR_SIMPLEX = 0x20, ///< "CALENDAR_SIMPLEX"
    CALENDAR_DUPLEX = 0x40, ///< "CALENDAR_DUPLEX"
    CALENDAR_ONE_PAGE = 0x80, ///< "CALENDAR_ONE_PAGE"
    CALENDAR_ANNUAL_DUPLEX = 0x100, ///< "CALENDAR_ANNUAL_DUPLEX"
    GIFT = 0x200, ///< "GIFT"
    AGENDA = 0x400, ///< "AGENDA"
    ACRYL_GLAS = 0x800, ///< "acryl_glas"
    CANVAS = 0x1000, ///< "canvas"
    ALU_DIBOND = 0x2000, ///< "alu_dibond"
    HARD_FOAM = 0x4000, ///< "hard_foam"
    DECORATION = 0x8000, ///< "decoration"
    POSTER_DECORATION = 0x10000, ///< "poster_decoration"
    POSTER_PREMIUM = 0x20000, ///< "poster_premium"
    POSTER_SELF_ADHESIVE = 0x40000, ///< "poster_self_adhesive"
    POSTER_STANDARD = 0x80000, ///< "poster_standard"
    POSTER_XXL = 0x100000, ///< "poster_xxl"
    GALLERY_PRINT = 0x200000, ///< "gallery_print"
    CALENDER_ADVENT_EMPTY = 0x400000, ///< "calender_advent_empty"
    CALENDER_ADVENT_CHOCOLATE = 0x800000, ///< "calender_advent_chocolate"
    CALENDER_ADVENT_PHOTO = 0x1000000, ///< "calender_advent_photo"
    CERAMICS = 0x2000000, ///< "ceramics"
    GAMES = 0x4000000, ///< "games"
    OFFICE = 0x8000000, ///< "office"
    TEXTILES = 0x10000000, ///< "textiles"
    WOOD = 0x20000000, ///< "wood"
    SET = 0x40000000, ///< "set"
    WIRE_O = 0x80000000, ///< "wire-o"
};
RV_DECLARE_ENUM_OPERATORS(RVCoverTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVCoverTypeEnum>;

/// The cover of a book, the kind of a calendar, or the material of wall decor and gifts. 0 is no cover.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVCoverType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVCoverType : public RVEnumWrapper<RVCoverTypeEnum>
{
public:
    /// A value or several combined; none by default.
    RVCoverType(RVCoverTypeEnum value = RVCoverTypeEnum(0)) noexcept;
    /// From a keyword list such as "hardcover, canvas"; unknown keywords add nothing.
    RVCoverType(const QString &text);

    /// The value of a display name, German or in the application's language; none for an unknown name. It finds only
    /// the names that bindingNames() had when it was built, so use the same language. It finds no name with letters
    /// beyond ASCII; see RVDisplayNames::value(). Many covers have the empty name; it stands for GIFT, the lowest of
    /// them.
    static RVCoverType createFromHumanReadable(const QString &name);

    /// True for every valid cover but exactly WIRE_O.
    bool isRegularCover() const;
    /// True with a hardcover, a softcover or a booklet.
    bool isFullCover() const;
    /// True with a product that counts as printed on one side: a wall calendar, a one-page calendar, a two-page annual
    /// planner, a gift or an agenda, but no table calendar.
    bool isSimplex() const;

    /// The name that the customer reads for exactly this value: empty for most kinds, and "unbekannter Bindungstyp" if
    /// there is no name, such as for CERAMICS.
    QString humanReadableName() const;
    /// The description that the customer reads of exactly this value, else "unbekannter Bindungstyp".
    QString toolTip() const;

    static const RVDisplayNames<RVCoverType> &bindingNames(); ///< The table behind humanReadableName().
    static const RVDisplayNames<RVCoverType> &bindingToolTips(); ///< The table behind toolTip().

    void fillTable(RVEnumToStringTable<RVCoverTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVCoverType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVCoverType(HARDCOVER). @relates RVCoverType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVCoverType &coverType);
/// Prints the names of the enumerators, such as HARDCOVER|SOFTCOVER, and all other bits as a number.
/// @relates RVCoverType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVCoverTypeEnum value);

#endif
