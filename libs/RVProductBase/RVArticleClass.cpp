#include "RVArticleClass.h"

#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVShippingGroupId.h"
#include "RVXMLBuilder.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QVariant>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVArticleClassEnum>;

namespace {

constexpr RVKeyword<RVArticleClassEnum> KEYWORDS[] = {
    { u"none", ARTICLE_CLASS_NONE },
    { u"unknown", ARTICLE_CLASS_NONE },
    { u"book", ARTICLE_CLASS_BOOK },
    { u"fotobook", ARTICLE_CLASS_BOOK },
    { u"doublepage", ARTICLE_CLASS_DOUBLEPAGE },
    { u"normal_calendar", ARTICLE_CLASS_NORMAL_CALENDAR },
    { u"agenda", ARTICLE_CLASS_AGENDA },
    { u"calendar", ARTICLE_CLASS_CALENDAR },
    { u"simple_gift", ARTICLE_CLASS_SIMPLE_GIFT },
    { u"gift", ARTICLE_CLASS_GIFT },
    { u"card", ARTICLE_CLASS_CARD },
    { u"deko", ARTICLE_CLASS_DEKO },
    { u"poster", ARTICLE_CLASS_DEKO },
    { u"frame", ARTICLE_CLASS_DEKO },
    { u"foto", ARTICLE_CLASS_FOTO },
    { u"premiumfoto", ARTICLE_CLASS_PREMIUMFOTO },
    { u"posterfoto", ARTICLE_CLASS_POSTERFOTO },
    { u"photo", ARTICLE_CLASS_PHOTO },
    { u"fee", ARTICLE_CLASS_FEE },
    { u"canvas", ARTICLE_CLASS_CANVAS },
    { u"art_print", ARTICLE_CLASS_ART_PRINT },
    { u"advent_calendar", ARTICLE_CLASS_ADVENT_CALENDAR },
    { u"playing_card", ARTICLE_CLASS_PLAYING_CARD },
    { u"playingcard", ARTICLE_CLASS_PLAYING_CARD },
    { u"picture_box", ARTICLE_CLASS_PICTURE_BOX },
    { u"nature_bundle", ARTICLE_CLASS_NATURE_BUNDLE },
    { u"puzzle", ARTICLE_CLASS_PUZZLE },
    { u"slipcase", ARTICLE_CLASS_SLIPCASE },
    { u"printfun", ARTICLE_CLASS_PRINTFUN },
    { u"expressFee", ARTICLE_CLASS_EXPRESS_FEE },
    { u"transferFee", ARTICLE_CLASS_TRANSFER_FEE },
    { u"paymentFee", ARTICLE_CLASS_PAYMENT_FEE },
    { u"shipmentMethodFee", ARTICLE_CLASS_SHIPMENT_METHOD_FEE },
    { u"express_fee", ARTICLE_CLASS_EXPRESS_FEE },
    { u"transfer", ARTICLE_CLASS_TRANSFER_FEE },
    { u"pay_method_fee", ARTICLE_CLASS_PAYMENT_FEE },
    { u"shipment_method_fee", ARTICLE_CLASS_SHIPMENT_METHOD_FEE },
    { u"article", ARTICLE_CLASS_ARTICLE },
    { u"add_on", ARTICLE_CLASS_ADD_ON },
    { u"design_addOn", ARTICLE_CLASS_DESIGN_ADD_ON },
    { u"frame_addOn", ARTICLE_CLASS_FRAME_ADD_ON },
    { u"frame_construction", ARTICLE_CLASS_FRAME_CONSTRUCTION },
    { u"wallholder_addOn", ARTICLE_CLASS_WALLHOLDER_ADD_ON },
    { u"wall_holder_gallery_print", ARTICLE_CLASS_WALLHOLDER_ADD_ON },
    { u"pagePackage_addOn", ARTICLE_CLASS_PAGE_PACKAGE_ADD_ON },
    { u"video_addOn", ARTICLE_CLASS_VIDEO_ADD_ON },
    { u"locrMap_addOn", ARTICLE_CLASS_LOCR_MAP_ADD_ON },
    { u"envelope_addOn", ARTICLE_CLASS_ENVELOPE_ADD_ON },
    { u"giftBox_addOn", ARTICLE_CLASS_GIFT_BOX_ADD_ON },
    { u"giftBoxService_addOn", ARTICLE_CLASS_GIFT_BOX_SERVICE_ADD_ON },
    { u"spotColor_addOn", ARTICLE_CLASS_SPOT_COLOR_ADD_ON },
    { u"giftWrap_addOn", ARTICLE_CLASS_GIFT_WRAP_ADD_ON },
    { u"matt_cover_addOn", ARTICLE_CLASS_MATT_COVER_ADD_ON },
    { u"flyleafcolor", ARTICLE_CLASS_FLYLEAFCOLOR },
    { u"artprint_box_addon", ARTICLE_CLASS_ARTPRINT_BOX_ADD_ON },
    { u"memo_pocket_addOn", ARTICLE_CLASS_MEMO_POCKET_ADD_ON },
    { u"giftBoxService_cal_addOn", ARTICLE_CLASS_GIFT_BOX_SERVICE_CALENDAR_ADD_ON },
    { u"pre_assembled", ARTICLE_CLASS_PRE_ASSEMBLED },
};

constexpr RVArticleClassEnum WALL_DECOR = ARTICLE_CLASS_DEKO | ARTICLE_CLASS_CANVAS;

/// One of these classes is enough. Among the later add-ons, only the colour of the fly-leaf is missing.
constexpr RVArticleClassEnum ORDERED_ONCE = ARTICLE_CLASS_SLIPCASE | ARTICLE_CLASS_SPOT_COLOR_ADD_ON
        | ARTICLE_CLASS_FRAME_ADD_ON | ARTICLE_CLASS_FRAME_CONSTRUCTION | ARTICLE_CLASS_ADD_ON_BIT_29
        | ARTICLE_CLASS_ADD_ON_BIT_30 | ARTICLE_CLASS_WALLHOLDER_ADD_ON | ARTICLE_CLASS_ENVELOPE_ADD_ON
        | ARTICLE_CLASS_MATT_COVER_ADD_ON | ARTICLE_CLASS_GIFT_BOX_ADD_ON | ARTICLE_CLASS_GIFT_BOX_SERVICE_ADD_ON
        | ARTICLE_CLASS_GIFT_WRAP_ADD_ON | ARTICLE_CLASS_ADD_ON_BIT_38 | ARTICLE_CLASS_ADD_ON_BIT_39
        | ARTICLE_CLASS_ARTPRINT_BOX_ADD_ON | ARTICLE_CLASS_MEMO_POCKET_ADD_ON | ARTICLE_CLASS_ADD_ON_BIT_42
        | ARTICLE_CLASS_GIFT_BOX_SERVICE_CALENDAR_ADD_ON;

/// The shop cart lists add-ons in this order.
constexpr RVArticleClassEnum IMPORTANCE[] = {
    ARTICLE_CLASS_PAGE_PACKAGE_ADD_ON,
    ARTICLE_CLASS_SPOT_COLOR_ADD_ON,
    ARTICLE_CLASS_MATT_COVER_ADD_ON,
    ARTICLE_CLASS_GIFT_BOX_ADD_ON,
    ARTICLE_CLASS_GIFT_BOX_SERVICE_ADD_ON,
    ARTICLE_CLASS_FLYLEAFCOLOR,
    ARTICLE_CLASS_VIDEO_ADD_ON,
    ARTICLE_CLASS_LOCR_MAP_ADD_ON,
    ARTICLE_CLASS_DESIGN_ADD_ON,
    ARTICLE_CLASS_FRAME_ADD_ON,
    ARTICLE_CLASS_FRAME_CONSTRUCTION,
    ARTICLE_CLASS_ADD_ON_BIT_29,
    ARTICLE_CLASS_WALLHOLDER_ADD_ON,
    ARTICLE_CLASS_ADD_ON_BIT_30,
    ARTICLE_CLASS_GIFT_WRAP_ADD_ON,
    ARTICLE_CLASS_ENVELOPE_ADD_ON,
    ARTICLE_CLASS_SLIPCASE,
    ARTICLE_CLASS_MEMO_POCKET_ADD_ON,
    ARTICLE_CLASS_GIFT_BOX_SERVICE_CALENDAR_ADD_ON,
};

/// A category of projects, for every class that has one of the bits and no bit of an earlier row.
struct Category
{
    RVArticleClassEnum bits;
    QLatin1StringView project;
    const char *name;
};

// clang-format off
constexpr Category CATEGORIES[] = {
    { ARTICLE_CLASS_BOOK, "book"_L1, QT_TRANSLATE_NOOP("QObject", "RAVO FOTOBUCH") },
    { ARTICLE_CLASS_PHOTO, "prints"_L1, QT_TRANSLATE_NOOP("QObject", "Fotos & mehr") },
    { WALL_DECOR, "walldecor"_L1, QT_TRANSLATE_NOOP("QObject", "Poster & Wandbilder") },
    { ARTICLE_CLASS_CALENDAR, "calendar"_L1, QT_TRANSLATE_NOOP("QObject", "RAVO KALENDER") },
    { ARTICLE_CLASS_CARD, "card"_L1, QT_TRANSLATE_NOOP("QObject", "Grußkarten") },
};
// clang-format on

constexpr Category OTHER = { ARTICLE_CLASS_NONE, "other"_L1, QT_TRANSLATE_NOOP("QObject", "Fotogeschenke") };

/// A topic of the help, for every class that has one of the bits and no bit of an earlier row. The start page of
/// exactly that class has the same name.
struct Topic
{
    RVArticleClassEnum bits;
    QLatin1StringView name;
};

// clang-format off
constexpr Topic TOPICS[] = {
    { ARTICLE_CLASS_BOOK, "photobook"_L1 },
    { ARTICLE_CLASS_DEKO, "deko"_L1 },
    { ARTICLE_CLASS_CALENDAR, "calendar"_L1 },
    { ARTICLE_CLASS_CARD, "card"_L1 },
    { ARTICLE_CLASS_PHOTO, "foto"_L1 },
    { ARTICLE_CLASS_GIFT, "gift"_L1 },
};
// clang-format on

struct ShippingGroup
{
    RVArticleClassEnum articleClass;
    int id;
};

constexpr ShippingGroup NO_SHIPPING_GROUP = { ARTICLE_CLASS_NONE, -1 };

constexpr ShippingGroup SHIPPING_GROUPS[] = {
    { ARTICLE_CLASS_FOTO, 1 },
    { ARTICLE_CLASS_POSTERFOTO, 3 },
    { ARTICLE_CLASS_PREMIUMFOTO, 18 },
};

template<typename Row, std::size_t N, typename IsWanted>
Row firstRow(const Row (&rows)[N], const Row &otherwise, IsWanted isWanted)
{
    const auto *const found = std::find_if(std::begin(rows), std::end(rows), isWanted);
    return found == std::end(rows) ? otherwise : *found;
}

Category categoryOf(const RVArticleClass &articleClass)
{
    return firstRow(CATEGORIES, OTHER, [&](const Category &row) { return articleClass.matches(row.bits); });
}

std::ptrdiff_t importance(RVArticleClassEnum value)
{
    const auto *const found = std::find(std::begin(IMPORTANCE), std::end(IMPORTANCE), value);
    return found == std::end(IMPORTANCE) ? -1 : found - std::begin(IMPORTANCE);
}

}

RVArticleClass::RVArticleClass(RVArticleClassEnum value) noexcept : RVEnumWrapper(value) { }

RVArticleClass::RVArticleClass(const QString &text) : RVArticleClass()
{
    setValue(text);
}

RVArticleClass RVArticleClass::createFromShippingGroupId(const RVShippingGroupId &shippingGroupId)
{
    return firstRow(SHIPPING_GROUPS, NO_SHIPPING_GROUP,
                    [&](const ShippingGroup &row) { return row.id == shippingGroupId.id(); })
            .articleClass;
}

int RVArticleClass::shippingGroup() const
{
    return firstRow(SHIPPING_GROUPS, NO_SHIPPING_GROUP,
                    [this](const ShippingGroup &row) { return row.articleClass == value(); })
            .id;
}

QString RVArticleClass::toPHProjectCategory() const
{
    return categoryOf(*this).project;
}

QString RVArticleClass::toHumanReadable() const
{
    return QCoreApplication::translate("QObject", categoryOf(*this).name);
}

QVariant RVArticleClass::toStartPageId() const
{
    const Topic topic = firstRow(TOPICS, Topic(), [this](const Topic &row) { return row.bits == value(); });
    return topic.name.isNull() ? QVariant(1) : QVariant(QString(topic.name));
}

QString RVArticleClass::toHelpTopic() const
{
    return firstRow(TOPICS, Topic(), [this](const Topic &row) { return matches(row.bits); }).name;
}

QString RVArticleClass::morePagesText(int n) const
{
    switch (value()) {
    case ARTICLE_CLASS_PICTURE_BOX:
    case ARTICLE_CLASS_NATURE_BUNDLE:
        return QCoreApplication::translate("RVArticleClass", "%n Foto", "Achtung plural!", n);
    case ARTICLE_CLASS_BOOK:
        return QCoreApplication::translate("RVArticleClass", "%n Seiten", "Achtung plural!", n);
    default:
        return u""_s;
    }
}

bool RVArticleClass::canModifyABK() const
{
    return matches(ARTICLE_CLASS_PHOTO);
}

int RVArticleClass::maxAmount() const
{
    return matches(ORDERED_ONCE) ? 1 : std::numeric_limits<int>::max();
}

bool RVArticleClass::lessThanShopCart(const RVArticleClassEnum &a, const RVArticleClassEnum &b)
{
    return importance(a) < importance(b);
}

void RVArticleClass::toTemplates2Format(QDomElement &parent) const
{
    if (hasValue(ARTICLE_CLASS_PRINTFUN))
        return;
    const QSet<RVArticleClassEnum> bits = splitToBits();
    for (const RVArticleClassEnum bit : bits)
        RVXMLBuilder::buildDomElement(parent, u"type"_s, enumToStringTable()->encodeCSV(bit));
}

void RVArticleClass::fillTable(RVEnumToStringTable<RVArticleClassEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVArticleClass &articleClass)
{
    return debug << "Articleclass:" << articleClass.encode();
}

QDebug operator<<(QDebug debug, RVArticleClassEnum value)
{
    return debug << RVEnumerators<RVArticleClassEnum>::text(value).constData();
}
