#ifndef RVPAGETYPE_H
#define RVPAGETYPE_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

#include <QList>

class QDebug;
class RVSpotColor;

/// The values of RVPageType, each with the keyword that writes it. @ingroup attributes
enum RVPageTypeEnum : qint32 {
    PAGE_TYPE_SPINE = 0x1, ///< "spine"
    PAGE_TYPE_CARDFRONT = 0x2, ///< "cardfront"
    PAGE_TYPE_CARDBACK = 0x4, ///< "cardback"
    PAGE_TYPE_NORMALPAGE = 0x8, ///< "normalpage": content page
    PAGE_TYPE_EMPTYPAGE = 0x10, ///< "emptypage"
    PAGE_TYPE_FULLCOVER = 0x20, ///< "fullcover"
    PAGE_TYPE_CALENDARCOVERFRONT = 0x40, ///< "calendarcoverfront"
    PAGE_TYPE_CALENDARCOVERBACK = 0x80, ///< "calendarcoverback"
    PAGE_TYPE_CROMOLINEN = 0x100, ///< "cromolinen"
    PAGE_TYPE_LEATHER = 0x200, ///< "leather"
    PAGE_TYPE_ADVDOORBACK = 0x400, ///< "advdoorback"
    PAGE_TYPE_NORMALPAGES = 0x800, ///< "normalpages"
    PAGE_TYPE_DUPLEXCARD = 0x1000, ///< "duplexcard"
    PAGE_TYPE_FOLDEDDUPLEXCARD = 0x2000, ///< "foldedduplexcard"
    PAGE_TYPE_ARTPRINTS = 0x4000, ///< "artprints"
    PAGE_TYPE_ADVWITHDOORBACKPRINT = 0x8000, ///< "advwithdoorbackprint"
    PAGE_TYPE_SLIPCASESPINE = 0x10000, ///< "slipcasespine"
    PAGE_TYPE_SLIPCASEEMPTYSPINE = 0x20000, ///< "slipcaseemptyspine"
    PAGE_TYPE_SLIPCASEFRONTCOVER = 0x40000, ///< "slipcasefrontcover"
    PAGE_TYPE_SLIPCASEBACKCOVER = 0x80000, ///< "slipcasebackcover"
    PAGE_TYPE_SLIPCASESEQUENCE = 0x100000, ///< "slipcasesequence"
    PAGE_TYPE_PANORAMA_BASE = 0x200000, ///< "panorama_base"
    PAGE_TYPE_PANORAMA_WING = 0x400000, ///< "panorama_wing"
    PAGE_TYPE_NORMALCARDBACK = PAGE_TYPE_NORMALPAGE | PAGE_TYPE_CARDBACK, ///< "normalcardback"
    PAGE_TYPE_NORMALCARDFRONT = PAGE_TYPE_NORMALPAGE | PAGE_TYPE_CARDFRONT, ///< "normalcardfront"
    PAGE_TYPE_NORMALADVDOORBACK = PAGE_TYPE_NORMALPAGE | PAGE_TYPE_ADVDOORBACK, ///< "normaladvdoorback"
    PAGE_TYPE_PC57INSERTEDFOTO = PAGE_TYPE_FULLCOVER | PAGE_TYPE_NORMALPAGE, ///< "pc57insertedfoto"
    PAGE_TYPE_PANOBASEPAGE = PAGE_TYPE_NORMALPAGE | PAGE_TYPE_PANORAMA_BASE, ///< "panobasepage"
    PAGE_TYPE_PANOWINGPAGE = PAGE_TYPE_NORMALPAGE | PAGE_TYPE_PANORAMA_WING, ///< "panowingpage"
    PAGE_TYPE_PANORAMA_PAGES = PAGE_TYPE_PANORAMA_BASE | PAGE_TYPE_PANORAMA_WING, ///< "PanoramaPages"
    PAGE_TYPE_SLIPCASECOVER = PAGE_TYPE_SLIPCASEFRONTCOVER | PAGE_TYPE_SLIPCASEBACKCOVER, ///< "slipcasecover"
    /// "slipcasepages": the four faces of a slipcase.
    PAGE_TYPE_SLIPCASEPAGES = PAGE_TYPE_SLIPCASESPINE | PAGE_TYPE_SLIPCASEEMPTYSPINE | PAGE_TYPE_SLIPCASECOVER,
    /// "cover": every part that encloses a product, its slipcase included.
    PAGE_TYPE_COVER = PAGE_TYPE_SPINE | PAGE_TYPE_FULLCOVER | PAGE_TYPE_CALENDARCOVERFRONT | PAGE_TYPE_CALENDARCOVERBACK
            | PAGE_TYPE_CROMOLINEN | PAGE_TYPE_LEATHER | PAGE_TYPE_SLIPCASEPAGES,
    /// "all": every cover and the pages of a book; no cards, no panoramas.
    PAGE_TYPE_ALL = PAGE_TYPE_COVER | PAGE_TYPE_NORMALPAGE | PAGE_TYPE_EMPTYPAGE,
};
RV_DECLARE_ENUM_OPERATORS(RVPageTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVPageTypeEnum>;

/// The kind of a page: cover, spine, content page, side of a card, face of a slipcase. 0 is no page. The results of the
/// three rules below are small bit sets, whose meaning is the caller's.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVPageType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVPageType : public RVEnumWrapper<RVPageTypeEnum>
{
public:
    /// A value or several combined; none by default.
    RVPageType(RVPageTypeEnum value = RVPageTypeEnum(0)) noexcept;
    /// From a keyword list such as "spine, fullcover".
    RVPageType(const QString &text);

    /// Adds the bits of a keyword list such as "spine, fullcover"; unknown keywords add nothing.
    void expandToKeyword(const QString &text);

    /// The way in which exactly this page is rendered for production: 0, 1 or 2.
    int productionRenderingRule() const;
    /// The page number of exactly this page in an order; otherwise 0 with a bit of spine, full cover, linen or leather,
    /// and -1 for any other.
    int explicitOrderPageNumber() const;
    /// The templates that exactly this page accepts: 0, 3 or 7.
    int acceptTemplateRule() const;
    /// The photos that exactly this page accepts: 0 or 3.
    int acceptFotoRule() const;
    /// True when the page can have all these spot colours, so always for an empty list. Linen and leather take neither
    /// gloss nor silver ink; other pages take silver ink only with a card front or a full cover. Each element of the
    /// list counts as a whole: an element that combines gloss and gold is not gloss. The caller must include
    /// RVSpotColor.h, even for `isSpotColorAllowed({})`.
    bool isSpotColorAllowed(const QList<RVSpotColor> &colors) const;

    void fillTable(RVEnumToStringTable<RVPageTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVPageType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVPageType(spine, fullcover). @relates RVPageType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageType &pageType);
/// Prints the names of the enumerators, such as PAGE_TYPE_SPINE|PAGE_TYPE_CARDFRONT, and all other bits as a number.
/// @relates RVPageType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVPageTypeEnum value);

#endif
