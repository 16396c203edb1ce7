// Stops in stopHere() with values that gdb shows, and with some that are not initialised.
#include <RVCore/RVAngle.h>
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVMargins.h>
#include <RVProductBase/RVOrderProjectInfo.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageSizeKey.h>
#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVProductType.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVSpineConfig.h>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The memory of an object that no constructor has seen.
template<typename T>
union Raw
{
    Raw(unsigned char byte) { std::fill_n(reinterpret_cast<unsigned char *>(this), sizeof(T), byte); }
    ~Raw() { }
    T value;
};

__attribute__((noinline)) void stopHere(const void *)
{
    asm volatile("");
}

int main()
{
    RVCoverType cover(HARDCOVER | GIFT);
    RVCoverType unknownCover(RVCoverTypeEnum(0x100000002));
    RVCoverType noCover;
    RVOrientation noOrientation;
    RVArticleClass calendar(ARTICLE_CLASS_CALENDAR);
    RVSpotColor spot(SPOT_COLOR_GOLD);
    [[maybe_unused]] RVArticleId article(7101);
    [[maybe_unused]] RVShippingGroupId group(-1);
    RVOrderId order(u"123-456"_s);
    RVOrderProjectInfo project(u"session"_s, order, 2);
    RVPriceClass price(u"KUR2"_s);
    RVProductType type(u"DUN9_30"_s);
    RVArticleVariants options = RVArticleVariants::createFromKTX(u"coverphoto:yes,alcolor:weinröt"_s);
    RVArticleVariants noOptions;
    RVConfiguredArticleVariant option(u"alcolor:red"_s);
    RVPageCountOrganization counts(RVIntRange(26, 154), 4);
    RVPageCountOrganization fixed(RVIntRange(3, 3), 0);
    [[maybe_unused]] RVDistance distance(12.5, DISTANCE_UNIT_MILLIMETRE);
    [[maybe_unused]] RVAngle angle(90);
    RVMargins margins(1, 2, 3, 4);
    RVMargins movedMargins(5, 6);
    RVMargins taken(std::move(movedMargins));
    RVPageSizeKey key(PAGE_TYPE_SPINE, 26);
    RVSpineConfig spine(counts, 2, RVDistance(80), RVDistance(10), RVDistance(5));
    const RVCoverType &reference = cover;

    Raw<RVCoverType> rawCover(0xee);
    Raw<RVArticleVariants> rawOptions(0xee);
    Raw<RVArticleVariants> zeroOptions(0);
    Raw<RVOrderId> rawOrder(0xee);
    Raw<RVMargins> rawMargins(0xee);
    Raw<RVConfiguredArticleVariant> zeroOption(0);
    Raw<RVSpineConfig> rawSpine(0xee);
    Raw<RVDistance> rawDistance(0xee);

    stopHere(&reference);
    return 0;
}
