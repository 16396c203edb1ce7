#ifndef RVPAPERTYPE_H
#define RVPAPERTYPE_H

#include "RVDisplayNames.h"
#include "RVEnumWrapper.h"
#include "RVProductBaseExport.h"

#include <QHash>

class QDebug;

/// The values of RVPaperType, each with the keyword that writes it. @ingroup attributes
enum RVPaperTypeEnum : qint32 {
    UNKNOWN_PAPER = 0, ///< "unbekanntes Papier"
    INDIGO = 0x1, ///< "indigo": matt digital print
    INDIGO_GLOSSY = 0x2, ///< "indigo-glossy"
    FOTOPAPER = 0x4, ///< "fotopaper": matt photo paper
    FOTOPAPER_GLOSSY = 0x8, ///< "fotopaper-glossy"
    FOTOPAPER_PREMIUM_MATT = 0x10, ///< "fotopaper-premium-matt"
    PREMIUM = 0x20, ///< "premium"
    PREMIUM_MATT = 0x40, ///< "premium-matt"
    DIGITAL_PRINTING_RECYCLED = 0x80, ///< "digital_printing_recycled"
};
RV_DECLARE_ENUM_OPERATORS(RVPaperTypeEnum)

extern template class RVPRODUCTBASE_EXPORT RVEnumWrapper<RVPaperTypeEnum>;

/// The paper of a printed product. 0 is unknown; an unknown keyword stands for INDIGO. 0 has the keyword "unbekanntes
/// Papier", but only encode() writes it: encodeCSV() writes "indigo", which is read as INDIGO.
/// @par Example
/// @snippet tst_examples_attributes.cpp RVPaperType
/// @ingroup attributes
class RVPRODUCTBASE_EXPORT RVPaperType : public RVEnumWrapper<RVPaperTypeEnum>
{
public:
    /// A value or several combined; none by default. `RVPaperType(0)` is INDIGO: 0 is taken for a null text.
    RVPaperType(RVPaperTypeEnum value = UNKNOWN_PAPER) noexcept;
    /// From a keyword list such as "glossy"; an empty one is INDIGO.
    RVPaperType(const QString &text);

    /// The value of a display name, German or in the application's language; INDIGO for an unknown name. It finds only
    /// the names that paperTypeNames() had when it was built, so use the same language. It finds no name with letters
    /// beyond ASCII: "Fotopapier Glänzend" gives INDIGO, not FOTOPAPER_GLOSSY. See RVDisplayNames::value().
    static RVPaperType createFromHumanReadable(const QString &name);

    /// The name that the customer reads for exactly this value, otherwise "unbekannter Papiertyp".
    QString humanReadableName() const;
    static const RVDisplayNames<RVPaperType> &paperTypeNames(); ///< The table behind humanReadableName().

    /// The map from a fixed key, which is German and has no umlauts, to the text for the customer. The two may differ.
    static QHash<QString, QString> translatedPaperTypes();

    void fillTable(RVEnumToStringTable<RVPaperTypeEnum> *table) const override;

private:
    static RVDisplayNames<RVPaperType> initPaperTypeNames();
};

Q_DECLARE_TYPEINFO(RVPaperType, Q_RELOCATABLE_TYPE);

/// Prints the class and encodeCSV(): RVPaperType(indigo) for INDIGO and for 0. @relates RVPaperType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPaperType &paperType);
/// Prints the names of the enumerators, such as INDIGO|INDIGO_GLOSSY, and all other bits as a number.
/// @relates RVPaperType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, RVPaperTypeEnum value);

#endif
