#ifndef RVMATERIALTYPE_H
#define RVMATERIALTYPE_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

enum RVMaterialTypeEnum : qint64 {
    MATERIAL_TYPE_NOTEBOOK = 1,
    MATERIAL_TYPE_PICTURE_BOX = 2,
    MATERIAL_TYPE_CARD_PLAYING = 4,
    MATERIAL_TYPE_DECO_PRINT = 8,
    MATERIAL_TYPE_RETRO_PRINT = 16,
    MATERIAL_TYPE_PICTURE_BUNDLE = 32,
};
RV_DECLARE_ENUM_OPERATORS(RVMaterialTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVMaterialTypeEnum>;

/// The material or product family of a printed good. 0 is none.
class RVPRODUCTBASE_EXPORT RVMaterialType : public RVEnumWrapper<RVMaterialTypeEnum>
{
public:
    RVMaterialType(RVMaterialTypeEnum value = RVMaterialTypeEnum(0)) noexcept;
    /// From a keyword list such as "deco_print, retro_print".
    RVMaterialType(const QString &text);

    void fillTable(RVEnumToStringTable<RVMaterialTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVMaterialType, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVMaterialType &material);

#endif
