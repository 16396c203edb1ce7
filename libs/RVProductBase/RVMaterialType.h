#ifndef RVMATERIALTYPE_H
#define RVMATERIALTYPE_H

#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

class QDebug;

/// The values of RVMaterialType, each with the keyword that writes it. @ingroup attributes
enum RVMaterialTypeEnum : qint64 {
    MATERIAL_TYPE_NOTEBOOK = 1, ///< "notebook"
    MATERIAL_TYPE_PICTURE_BOX = 2, ///< "picture_box"
    MATERIAL_TYPE_CARD_PLAYING = 4, ///< "card_playing"
    MATERIAL_TYPE_DECO_PRINT = 8, ///< "deco_print"
    MATERIAL_TYPE_RETRO_PRINT = 16, ///< "retro_print"
    MATERIAL_TYPE_PICTURE_BUNDLE = 32, ///< "picture_bundle"
};
RV_DECLARE_ENUM_OPERATORS(RVMaterialTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVMaterialTypeEnum>;

/// The material or product family of a printed good. 0 is none.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVMaterialType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVMaterialType : public RVEnumWrapper<RVMaterialTypeEnum>
{
public:
    /// A value or several combined; none by default.
    RVMaterialType(RVMaterialTypeEnum value = RVMaterialTypeEnum(0)) noexcept;
    /// From a keyword list such as "deco_print, retro_print".
    RVMaterialType(const QString &text);

    void fillTable(RVEnumToStringTable<RVMaterialTypeEnum> *table) const override;
};

Q_DECLARE_TYPEINFO(RVMaterialType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(), such as RVMaterialType(deco_print). @relates RVMaterialType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVMaterialType &material);
/// Prints the names of the enumerators, such as MATERIAL_TYPE_NOTEBOOK|MATERIAL_TYPE_PICTURE_BOX, and all other bits as
/// a number.
/// @relates RVMaterialType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVMaterialTypeEnum value);

#endif
