#ifndef RVCOVERTYPE_H
#define RVCOVERTYPE_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

enum RVCoverTypeEnum : qint64 {
    HARDCOVER = 0x1,
    SOFTCOVER = 0x2,
    CROMOLINEN = 0x4,
    LEATHER = 0x8,
    BOOKLET = 0x10,
    CALENDAR_SIMPLEX = 0x20,
    CALENDAR_DUPLEX = 0x40,
    CALENDAR_ONE_PAGE = 0x80,
    CALENDAR_ANNUAL_DUPLEX = 0x100,
    GIFT = 0x200,
    AGENDA = 0x400,
    ACRYL_GLAS = 0x800,
    CANVAS = 0x1000,
    ALU_DIBOND = 0x2000,
    HARD_FOAM = 0x4000,
    DECORATION = 0x8000,
    POSTER_DECORATION = 0x10000,
    POSTER_PREMIUM = 0x20000,
    POSTER_SELF_ADHESIVE = 0x40000,
    POSTER_STANDARD = 0x80000,
    POSTER_XXL = 0x100000,
    GALLERY_PRINT = 0x200000,
    CALENDER_ADVENT_EMPTY = 0x400000,
    CALENDER_ADVENT_CHOCOLATE = 0x800000,
    CALENDER_ADVENT_PHOTO = 0x1000000,
    CERAMICS = 0x2000000,
    GAMES = 0x4000000,
    OFFICE = 0x8000000,
    TEXTILES = 0x10000000,
    WOOD = 0x20000000,
    SET = 0x40000000,
    WIRE_O = 0x80000000,
};
RV_DECLARE_ENUM_OPERATORS(RVCoverTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVCoverTypeEnum>;

/// The cover of a book, the kind of a calendar, or the material of wall decor and gifts. 0 is no cover.
class RVPRODUCTBASE_EXPORT RVCoverType : public RVEnumWrapper<RVCoverTypeEnum>
{
public:
    RVCoverType(RVCoverTypeEnum value = RVCoverTypeEnum(0)) noexcept;
    /// From a keyword list such as "hardcover, canvas".
    RVCoverType(const QString &text);

    /// The value of a German display name, or of one in the application's language; none for an unknown name. Many
    /// covers have the empty name; it stands for GIFT, the lowest of them.
    static RVCoverType createFromHumanReadable(const QString &name);

    /// True for every valid cover but exactly WIRE_O.
    bool isRegularCover() const;
    /// True with a cover that is printed all around.
    bool isFullCover() const;
    /// True with a product that is printed on one side. An annual planner counts too, a table calendar does not.
    bool isSimplex() const;

    /// What the customer reads for exactly this value: empty for most kinds, and "unbekannter Bindungstyp" where there
    /// is no name, such as for CERAMICS.
    QString humanReadableName() const;
    /// What the customer reads about exactly this value, else "unbekannter Bindungstyp".
    QString toolTip() const;

    static const RVDisplayNames<RVCoverType> &bindingNames();
    static const RVDisplayNames<RVCoverType> &bindingToolTips();

    void fillTable(RVEnumToStringTable<RVCoverTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVCoverType, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVCoverType &coverType);

#endif
