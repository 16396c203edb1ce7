#include "RVFotoPaperType.h"

#include "RVArticleClass.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVNumbers_p.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVFotoPaperTypeEnum>;

namespace {

// clang-format off
constexpr RVKeyword<RVFotoPaperTypeEnum> KEYWORDS[] = {
    { u"0", NO_FOTO_PAPER },
    { u"1", GLOSSY },
    { u"glossy", GLOSSY },
    { u"2", MATT },
    { u"matt", MATT },
};
// clang-format on

}

RVFotoPaperType::RVFotoPaperType(RVFotoPaperTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVFotoPaperType::RVFotoPaperType(const QString &text) : RVFotoPaperType()
{
    setValue(text);
}

RVFotoPaperType RVFotoPaperType::defaultFor(const RVArticleClass &articleClass)
{
    switch (articleClass.value()) {
    case ARTICLE_CLASS_FOTO:
    case ARTICLE_CLASS_PREMIUMFOTO:
    case ARTICLE_CLASS_POSTERFOTO:
        return GLOSSY;
    default:
        return NO_FOTO_PAPER;
    }
}

QList<RVFotoPaperType> RVFotoPaperType::createFromXTCI(const QString &code)
{
    constexpr int NO_CODE = -1;
    switch (rvToInt(code).value_or(NO_CODE)) {
    case 0:
        return { GLOSSY, MATT };
    case 1:
        return { GLOSSY };
    case 2:
        return { MATT };
    default:
        return {};
    }
}

QString RVFotoPaperType::humanReadableName() const
{
    switch (value()) {
    case NO_FOTO_PAPER:
        return QCoreApplication::translate("RVFotoPaperType", "Unbekanntes Fotopapier");
    case GLOSSY:
        return QCoreApplication::translate("RVFotoPaperType", "Glänzend");
    case MATT:
        return QCoreApplication::translate("RVFotoPaperType", "Matt");
    }
    return QString();
}

QString RVFotoPaperType::encodeForProduction() const
{
    switch (value()) {
    case GLOSSY:
        return u"1"_s;
    case MATT:
        return u"2"_s;
    default:
        return u""_s;
    }
}

void RVFotoPaperType::fillTable(RVEnumToStringTable<RVFotoPaperTypeEnum> *table) const
{
    rvInsertKeywords(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVFotoPaperType &fotoPaperType)
{
    return rvDebugAttribute(debug, "RVFotoPaperType", fotoPaperType);
}

QDebug operator<<(QDebug debug, RVFotoPaperTypeEnum value)
{
    return debug << RVEnumerators<RVFotoPaperTypeEnum>::text(value).constData();
}
