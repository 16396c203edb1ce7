#include "RVMaterialType.h"

#include "RVKeywords_p.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVMaterialTypeEnum>;

namespace {

// clang-format off
constexpr RVKeyword<RVMaterialTypeEnum> KEYWORDS[] = {
    { "notebook"_L1, MATERIAL_TYPE_NOTEBOOK },
    { "picture_box"_L1, MATERIAL_TYPE_PICTURE_BOX },
    { "card_playing"_L1, MATERIAL_TYPE_CARD_PLAYING },
    { "deco_print"_L1, MATERIAL_TYPE_DECO_PRINT },
    { "retro_print"_L1, MATERIAL_TYPE_RETRO_PRINT },
    { "picture_bundle"_L1, MATERIAL_TYPE_PICTURE_BUNDLE },
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
    rvInsertKeywords(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVMaterialType &material)
{
    return rvDebugAttribute(debug, "RVMaterialType", material);
}
