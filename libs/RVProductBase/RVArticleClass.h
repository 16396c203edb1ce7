#ifndef RVARTICLECLASS_H
#define RVARTICLECLASS_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;
class QDomElement;
class QVariant;
class RVShippingGroupId;

/// The values of RVArticleClass, each with the keyword that writes it. @ingroup attributes
enum RVArticleClassEnum : qint64 {
    ARTICLE_CLASS_NONE = 0x0, ///< "none"
    ARTICLE_CLASS_BOOK = 0x1, ///< "book"
    ARTICLE_CLASS_NORMAL_CALENDAR = 0x2, ///< "normal_calendar"
    ARTICLE_CLASS_AGENDA = 0x4, ///< "agenda"
    ARTICLE_CLASS_CALENDAR = ARTICLE_CLASS_NORMAL_CALENDAR | ARTICLE_CLASS_AGENDA, ///< "calendar"
    ARTICLE_CLASS_CARD = 0x8, ///< "card"
    ARTICLE_CLASS_DEKO = 0x10, ///< "deko": wall decor
    ARTICLE_CLASS_CANVAS = 0x20, ///< "canvas"
    ARTICLE_CLASS_ART_PRINT = 0x40, ///< "art_print"
    ARTICLE_CLASS_SIMPLE_GIFT = 0x80, ///< "simple_gift"
    ARTICLE_CLASS_ADVENT_CALENDAR = 0x100, ///< "advent_calendar"
    ARTICLE_CLASS_PLAYING_CARD = 0x200, ///< "playing_card"
    ARTICLE_CLASS_DOUBLEPAGE = 0x400, ///< "doublepage"
    ARTICLE_CLASS_PICTURE_BOX = 0x800, ///< "picture_box"
    ARTICLE_CLASS_NATURE_BUNDLE = 0x1000, ///< "nature_bundle"
    ARTICLE_CLASS_PUZZLE = 0x2000, ///< "puzzle"
    /// "gift": every kind of gift.
    ARTICLE_CLASS_GIFT = ARTICLE_CLASS_ART_PRINT | ARTICLE_CLASS_SIMPLE_GIFT | ARTICLE_CLASS_ADVENT_CALENDAR
            | ARTICLE_CLASS_PLAYING_CARD | ARTICLE_CLASS_DOUBLEPAGE | ARTICLE_CLASS_PICTURE_BOX
            | ARTICLE_CLASS_NATURE_BUNDLE | ARTICLE_CLASS_PUZZLE,
    ARTICLE_CLASS_SLIPCASE = 0x4000, ///< "slipcase"
    /// "printfun": every product.
    ARTICLE_CLASS_PRINTFUN = ARTICLE_CLASS_BOOK | ARTICLE_CLASS_CALENDAR | ARTICLE_CLASS_CARD | ARTICLE_CLASS_DEKO
            | ARTICLE_CLASS_CANVAS | ARTICLE_CLASS_GIFT | ARTICLE_CLASS_SLIPCASE,
    ARTICLE_CLASS_FOTO = 0x8000, ///< "foto": photo print
    ARTICLE_CLASS_PREMIUMFOTO = 0x10000, ///< "premiumfoto"
    ARTICLE_CLASS_POSTERFOTO = 0x20000, ///< "posterfoto"
    ARTICLE_CLASS_PHOTO = ARTICLE_CLASS_FOTO | ARTICLE_CLASS_PREMIUMFOTO | ARTICLE_CLASS_POSTERFOTO, ///< "photo"
    ARTICLE_CLASS_ARTICLE = ARTICLE_CLASS_PRINTFUN | ARTICLE_CLASS_PHOTO, ///< "article": no fee, no add-on
    ARTICLE_CLASS_EXPRESS_FEE = 0x40000, ///< "expressFee"
    ARTICLE_CLASS_TRANSFER_FEE = 0x80000, ///< "transferFee"
    ARTICLE_CLASS_PAYMENT_FEE = 0x100000, ///< "paymentFee"
    ARTICLE_CLASS_SHIPMENT_METHOD_FEE = 0x200000, ///< "shipmentMethodFee"
    /// "fee": every fee.
    ARTICLE_CLASS_FEE = ARTICLE_CLASS_EXPRESS_FEE | ARTICLE_CLASS_TRANSFER_FEE | ARTICLE_CLASS_PAYMENT_FEE
            | ARTICLE_CLASS_SHIPMENT_METHOD_FEE,
    ARTICLE_CLASS_PAGE_PACKAGE_ADD_ON = 0x400000, ///< "pagePackage_addOn"
    ARTICLE_CLASS_SPOT_COLOR_ADD_ON = 0x800000, ///< "spotColor_addOn"
    ARTICLE_CLASS_VIDEO_ADD_ON = 0x1000000, ///< "video_addOn"
    ARTICLE_CLASS_DESIGN_ADD_ON = 0x2000000, ///< "design_addOn"
    ARTICLE_CLASS_LOCR_MAP_ADD_ON = 0x4000000, ///< "locrMap_addOn"
    ARTICLE_CLASS_FRAME_ADD_ON = 0x8000000, ///< "frame_addOn"
    ARTICLE_CLASS_FRAME_CONSTRUCTION = 0x10000000, ///< "frame_construction"
    ARTICLE_CLASS_ADD_ON_BIT_29 = 0x20000000, ///< no keyword, ranked in the shop cart
    ARTICLE_CLASS_ADD_ON_BIT_30 = 0x40000000, ///< no keyword, ranked in the shop cart
    ARTICLE_CLASS_WALLHOLDER_ADD_ON = 0x80000000, ///< "wallholder_addOn"
    ARTICLE_CLASS_ENVELOPE_ADD_ON = 0x100000000, ///< "envelope_addOn"
    ARTICLE_CLASS_MATT_COVER_ADD_ON = 0x200000000, ///< "matt_cover_addOn"
    ARTICLE_CLASS_GIFT_BOX_ADD_ON = 0x400000000, ///< "giftBox_addOn"
    ARTICLE_CLASS_GIFT_BOX_SERVICE_ADD_ON = 0x800000000, ///< "giftBoxService_addOn"
    ARTICLE_CLASS_GIFT_WRAP_ADD_ON = 0x1000000000, ///< "giftWrap_addOn"
    ARTICLE_CLASS_FLYLEAFCOLOR = 0x2000000000, ///< "flyleafcolor"
    ARTICLE_CLASS_ADD_ON_BIT_38 = 0x4000000000, ///< no keyword
    ARTICLE_CLASS_ADD_ON_BIT_39 = 0x8000000000, ///< no keyword
    ARTICLE_CLASS_ARTPRINT_BOX_ADD_ON = 0x10000000000, ///< "artprint_box_addon"
    ARTICLE_CLASS_MEMO_POCKET_ADD_ON = 0x20000000000, ///< "memo_pocket_addOn"
    ARTICLE_CLASS_ADD_ON_BIT_42 = 0x40000000000, ///< no keyword
    ARTICLE_CLASS_GIFT_BOX_SERVICE_CALENDAR_ADD_ON = 0x80000000000, ///< "giftBoxService_cal_addOn"
    /// "add_on": everything that is bought with an article.
    ARTICLE_CLASS_ADD_ON = ARTICLE_CLASS_PAGE_PACKAGE_ADD_ON | ARTICLE_CLASS_SPOT_COLOR_ADD_ON
            | ARTICLE_CLASS_VIDEO_ADD_ON | ARTICLE_CLASS_DESIGN_ADD_ON | ARTICLE_CLASS_LOCR_MAP_ADD_ON
            | ARTICLE_CLASS_FRAME_ADD_ON | ARTICLE_CLASS_FRAME_CONSTRUCTION | ARTICLE_CLASS_ADD_ON_BIT_29
            | ARTICLE_CLASS_ADD_ON_BIT_30 | ARTICLE_CLASS_WALLHOLDER_ADD_ON | ARTICLE_CLASS_ENVELOPE_ADD_ON
            | ARTICLE_CLASS_MATT_COVER_ADD_ON | ARTICLE_CLASS_GIFT_BOX_ADD_ON | ARTICLE_CLASS_GIFT_BOX_SERVICE_ADD_ON
            | ARTICLE_CLASS_GIFT_WRAP_ADD_ON | ARTICLE_CLASS_FLYLEAFCOLOR | ARTICLE_CLASS_ADD_ON_BIT_38
            | ARTICLE_CLASS_ADD_ON_BIT_39 | ARTICLE_CLASS_ARTPRINT_BOX_ADD_ON | ARTICLE_CLASS_MEMO_POCKET_ADD_ON
            | ARTICLE_CLASS_ADD_ON_BIT_42 | ARTICLE_CLASS_GIFT_BOX_SERVICE_CALENDAR_ADD_ON,
    ARTICLE_CLASS_PRE_ASSEMBLED = 0x100000000000, ///< "pre_assembled": no add-on
};
RV_DECLARE_ENUM_OPERATORS(RVArticleClassEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVArticleClassEnum>;

/**
 * The kind of an article in the catalogue: a book, a calendar, a photo print, a fee or an add-on. 0 is no class.
 *
 * It is read from and written to keywords such as "book"; the shop cart, the start page and the help use the words
 * below.
 *
 * @par Example
 * @snippet tst_examples_attributes.cpp RVArticleClass
 *
 * @ingroup attributes
 */
class RVPRODUCTBASE_EXPORT RVArticleClass : public RVEnumWrapper<RVArticleClassEnum>
{
public:
    /// A value or several combined; none by default.
    RVArticleClass(RVArticleClassEnum value = ARTICLE_CLASS_NONE) noexcept;
    /// From a keyword list such as "book, card"; unknown keywords add nothing, an empty text is no class.
    RVArticleClass(const QString &text);

    /// The class of photo print that a shipping group ships: 1 photo, 3 poster, 18 premium; none for every other group.
    static RVArticleClass createFromShippingGroupId(const RVShippingGroupId &shippingGroupId);
    /// The shipping group of exactly one class of photo print; -1 for anything else.
    int shippingGroup() const;

    /// "book", "prints", "walldecor", "calendar", "card", or "other"; the first that has a bit here.
    QString toPHProjectCategory() const;
    /// The category as the customer reads it, translated; the first that has a bit here, gifts for anything else.
    QString toHumanReadable() const;
    /// The name of the start page of exactly this class as a text; the number 1 if it has none.
    QVariant toStartPageId() const;
    /// The first help topic that has a bit here; a null text if there is none.
    QString toHelpTopic() const;
    /// "3 Fotos" for exactly a picture box or a nature bundle, "3 Seiten" for exactly a book, in the customer's
    /// language; empty for anything else. Plural forms come from a translation, also the German ones: while none is
    /// loaded, it is "3 Foto" and "1 Seiten". A negative number is not filled in, "%n" stays.
    QString morePagesText(int n) const;
    /// True for photo prints.
    bool canModifyABK() const;
    /// 1 for articles that can be ordered only once, otherwise the largest int.
    int maxAmount() const;

    /// The order of add-ons in the shop cart, by exact values. Classes without a place there come first, in any order.
    static bool lessThanShopCart(const RVArticleClassEnum &a, const RVArticleClassEnum &b);

    /// Appends an element "type" for each bit, in no particular order; none for "printfun". A bit without a keyword is
    /// written as an empty element.
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(RVEnumToStringTable<RVArticleClassEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVArticleClass, Q_RELOCATABLE_TYPE);

/// Prints encode() in quotes after "Articleclass:". @relates RVArticleClass
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVArticleClass &articleClass);
/// Prints the names of the enumerators, such as ARTICLE_CLASS_BOOK|ARTICLE_CLASS_NORMAL_CALENDAR, and all other bits as
/// a number.
/// @relates RVArticleClass
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVArticleClassEnum value);

#endif
