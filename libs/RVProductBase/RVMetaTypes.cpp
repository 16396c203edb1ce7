#include "RVMetaTypes.h"

#include "RVArticleClassList.h"
#include "RVArticleIdSet.h"
#include "RVArticleVariantsList.h"
#include "RVConfiguredArticleVariantList.h"
#include "RVCoverType.h"
#include "RVDistance.h"
#include "RVDlpType.h"
#include "RVFotoPaperType.h"
#include "RVKomma_p.h"
#include "RVMargins.h"
#include "RVMaterialType.h"
#include "RVNumbers_p.h"
#include "RVOptionPair_p.h"
#include "RVOrderIdList.h"
#include "RVOrderProjectInfo.h"
#include "RVOrientation.h"
#include "RVPageAlignment.h"
#include "RVPageBinding.h"
#include "RVPageCountOrganization.h"
#include "RVPageSizeSpec.h"
#include "RVPageType.h"
#include "RVPaperType.h"
#include "RVPriceClassSet.h"
#include "RVProductArrangement.h"
#include "RVProductTypeList.h"
#include "RVShippingGroupIdList.h"
#include "RVSpaceMagnitude.h"
#include "RVSpineConfig.h"
#include "RVSpotColor.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

template<typename... Attribute>
void registerAttributes()
{
    (RVMetaTypes::registerAttribute<Attribute>(), ...);
}

template<typename... T>
void registerNames()
{
    (qRegisterMetaType<T>(), ...);
}

/// Ids that are numbers.
template<typename... T>
void registerNumbers()
{
    const auto read = [](auto id) {
        using Id = decltype(id);
        return [](const QString &text) {
            const std::optional<int> number = rvToInt(text);
            return number ? std::optional<Id>(Id(*number)) : std::nullopt;
        };
    };
    (RVMetaTypes::registerText<T>(&T::toString, read(T())), ...);
}

/// Codes, which may be any text.
template<typename... T>
void registerCodes()
{
    (RVMetaTypes::registerText<T>([](const T &code) { return code.toString(); },
                                  [](const QString &text) { return std::optional<T>(T(text)); }),
     ...);
}

// Unlike createFromKTX(), which skips what it cannot read.
std::optional<RVArticleVariants> readVariants(const QString &text)
{
    const QStringList pieces = text.isEmpty() ? QStringList() : text.split(KOMMA);
    const bool isReadable = std::all_of(pieces.begin(), pieces.end(),
                                        [](const QString &piece) { return RVArticleVariants(piece).isValid(); });
    return isReadable ? std::optional(RVArticleVariants::createFromKTX(text)) : std::nullopt;
}

std::optional<QString> writeVariants(const RVArticleVariants &variants)
{
    QStringList pieces;
    const QStringList keys = variants.keys();
    for (const QString &key : keys)
        pieces += rvJoinOption(key, variants.value(key));
    const QString text = pieces.join(KOMMA);
    return readVariants(text) == variants ? std::optional(text) : std::nullopt;
}

std::optional<RVPageCountOrganization> readPageCounts(const QString &text)
{
    static const auto &pattern = *new QRegularExpression(
            u"^\\s*min: (-?[0-9]+); max: (-?[0-9]+); increment: (-?[0-9]+)\\s*$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const std::optional<int> lowest = rvToInt(match.captured(1));
    const std::optional<int> highest = rvToInt(match.captured(2));
    const std::optional<int> increment = rvToInt(match.captured(3));
    if (!lowest || !highest || !increment)
        return std::nullopt;
    return RVPageCountOrganization(RVIntRange(*lowest, *highest), *increment);
}

bool registerEverything()
{
    registerAttributes<RVArticleClass, RVCoverType, RVDlpType, RVFotoPaperType, RVMaterialType, RVOrientation,
                       RVPageAlignment, RVPageBinding, RVPageType, RVPaperType, RVProductArrangement, RVSpaceMagnitude,
                       RVSpotColor>();
    registerNumbers<RVArticleId, RVShippingGroupId>();
    registerCodes<RVOrderId, RVPriceClass, RVProductType>();
    RVMetaTypes::registerText<RVArticleVariants>(&writeVariants, &readVariants);
    RVMetaTypes::registerText<RVPageCountOrganization>(&RVPageCountOrganization::dump, &readPageCounts);
    registerNames<RVArticleClassList, RVArticleIdSet, RVArticleVariantsList, RVConfiguredArticleVariant,
                  RVConfiguredArticleVariantList, RVDistance, RVIntRange, RVMargins, RVOrderIdList, RVOrderProjectInfo,
                  RVPageSizeSpec, RVPriceClassSet, RVProductTypeList, RVShippingGroupIdList, RVSpineConfig>();
    return true;
}

}

void RVMetaTypes::registerAll()
{
    [[maybe_unused]] static const bool isDone = registerEverything();
}
