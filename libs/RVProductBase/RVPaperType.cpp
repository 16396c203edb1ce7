#include "RVPaperType.h"

#include "RVDisplayNames_p.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVPaperTypeEnum>;

namespace {

constexpr char CONTEXT[] = "RVPaperType";

constexpr RVKeyword<RVPaperTypeEnum> KEYWORDS[] = {
    { u"unbekanntes Papier", UNKNOWN_PAPER },
    { u"indigo", INDIGO },
    { u"digital_printing_standard", INDIGO },
    { u"indigo-glossy", INDIGO_GLOSSY },
    { u"glossy", INDIGO_GLOSSY },
    { u"digital_printing_glossy", INDIGO_GLOSSY },
    { u"fotopaper", FOTOPAPER },
    { u"photopaper_matt", FOTOPAPER },
    { u"fotopaper-glossy", FOTOPAPER_GLOSSY },
    { u"photopaper_glossy", FOTOPAPER_GLOSSY },
    { u"premium", PREMIUM },
    { u"digital_printing_premium", PREMIUM },
    { u"premium-matt", PREMIUM_MATT },
    { u"digital_printing_matt", PREMIUM_MATT }, // not INDIGO
    { u"fotopaper-premium-matt", FOTOPAPER_PREMIUM_MATT },
    { u"photopaper_classy_matt", FOTOPAPER_PREMIUM_MATT },
    { u"digital_printing_recycled", DIGITAL_PRINTING_RECYCLED },
};

/// The key is fixed; the text is for the customer.
constexpr struct
{
    QLatin1StringView key;
    const char *text;
} TEXTS[] = {
    { "Digitaldruck Matt"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Digitaldruck Matt") },
    { "Digitaldruck Matt (100% recycelt)"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Digitaldruck Matt (100% recycelt)") },
    { "Digitaldruck Glaenzend"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Digitaldruck Hochglanz") },
    { "Digitaldruck Premium-Matt"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Digitaldruck Premium-Matt") },
    { "Fotopapier Glaenzend"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Fotopapier Glänzend") },
    { "Fotopapier Premium-Matt"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Fotopapier Premium-Matt") },
    { "Fotopapier Matt"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Fotopapier Matt") },
    { "Premiumpapier"_L1, QT_TRANSLATE_NOOP("RVPaperType", "Premiumpapier") },
};

constexpr struct
{
    RVPaperTypeEnum value;
    QLatin1StringView key;
} NAMES[] = {
    { INDIGO, "Digitaldruck Matt"_L1 },
    { INDIGO_GLOSSY, "Digitaldruck Glaenzend"_L1 },
    { FOTOPAPER, "Fotopapier Matt"_L1 },
    { FOTOPAPER_GLOSSY, "Fotopapier Glaenzend"_L1 },
    { PREMIUM, "Premiumpapier"_L1 },
    { PREMIUM_MATT, "Digitaldruck Premium-Matt"_L1 },
    { FOTOPAPER_PREMIUM_MATT, "Fotopapier Premium-Matt"_L1 },
    { DIGITAL_PRINTING_RECYCLED, "Digitaldruck Matt (100% recycelt)"_L1 },
};

QHash<QString, QString> translatedTexts()
{
    QHash<QString, QString> result;
    for (const auto &row : TEXTS)
        result.insert(row.key.toString(), QCoreApplication::translate(CONTEXT, row.text));
    return result;
}

}

RVPaperType::RVPaperType(RVPaperTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVPaperType::RVPaperType(const QString &text) : RVPaperType()
{
    setValue(text);
}

RVPaperType RVPaperType::createFromHumanReadable(const QString &name)
{
    return paperTypeNames().value(name);
}

QString RVPaperType::humanReadableName() const
{
    return paperTypeNames().name(*this);
}

const RVDisplayNames<RVPaperType> &RVPaperType::paperTypeNames()
{
    static const auto &theNames = *rvForever(initPaperTypeNames());
    return theNames;
}

QHash<QString, QString> RVPaperType::translatedPaperTypes()
{
    static const auto &theTexts = *new QHash<QString, QString>(translatedTexts());
    return theTexts;
}

RVDisplayNames<RVPaperType> RVPaperType::initPaperTypeNames()
{
    const QHash<QString, QString> texts = translatedPaperTypes();
    QMap<RVPaperType, QString> names;
    for (const auto &row : NAMES)
        names.insert(row.value, texts.value(row.key.toString()));
    return { CONTEXT, names, INDIGO, QCoreApplication::translate("RVPaperType", "unbekannter Papiertyp") };
}

void RVPaperType::fillTable(RVEnumToStringTable<RVPaperTypeEnum> *table) const
{
    rvFillTable(table, KEYWORDS, u"indigo"_s, INDIGO);
}

QDebug operator<<(QDebug debug, const RVPaperType &paperType)
{
    return rvDebugAttribute(debug, "RVPaperType", paperType);
}

QDebug operator<<(QDebug debug, RVPaperTypeEnum value)
{
    return debug << RVEnumerators<RVPaperTypeEnum>::text(value).constData();
}
