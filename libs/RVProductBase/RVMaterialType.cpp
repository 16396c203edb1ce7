#include "RVMaterialType.h"

#include "RVEnumerators.h"
#include "RVKeywords_p.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVMaterialTypeEnum>;

namespace {

// clang-format off
constexpr RVKeyword<RVMaterialTypeEnum> KEYWORDS[] = {
    { u"notebook", MATERIAL_TYPE_NOTEBOOK },
    { u"picture_box", MATERIAL_TYPE_PICTURE_BOX },
    { u"card_playing", MATERIAL_TYPE_CARD_PLAYING },
    { u"deco_print", MATERIAL_TYPE_DECO_PRINT },
    { u"retro_print", MATERIAL_TYPE_RETRO_PRINT },
    { u"picture_bundle", MATERIAL_TYPE_PICTURE_BUNDLE },
};
// clang-format on

}

RVMaterialType::RVMaterialType(RVMaterialTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVMaterialType::RVMaterialType(const QString &text) : RVMaterialType()
{
    setValue(text);
}

void RVMaterialType::fillTable(RVEnumToStringTable<RVMaterialTypeEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVMaterialType &material)
{
    return rvDebugAttribute(debug, "RVMaterialType", material);
}

QDebug operator<<(QDebug debug, RVMaterialTypeEnum value)
{
    return debug << RVEnumerators<RVMaterialTypeEnum>::text(value).constData();
}
