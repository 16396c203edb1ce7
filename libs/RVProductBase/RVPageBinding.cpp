#include "RVPageBinding.h"

#include "RVDisplayNames_p.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVXMLBuilder.h"

#include <QDomElement>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVPageBindingEnum>;

namespace {

constexpr char CONTEXT[] = "RVPageBinding";

// clang-format off
constexpr RVKeyword<RVPageBindingEnum> KEYWORDS[] = {
    { u"unknown", UNKNOWN },
    { u"glue", GLUE },
    { u"glued", GLUE },
    { u"layflat", LAYFLAT },
    { u"lay_flat", LAYFLAT },
    { u"stapled", STAPLED },
    { u"spiral", SPIRAL },
};
// clang-format on

constexpr RVDisplayText<RVPageBindingEnum> NAMES[] = {
    { GLUE, QT_TRANSLATE_NOOP("RVPageBinding", "klassische Buchbindung") },
    { LAYFLAT, QT_TRANSLATE_NOOP("RVPageBinding", "Lay-Flat-Bindung") },
    { STAPLED, QT_TRANSLATE_NOOP("RVPageBinding", "Rückstichbindung") },
};

}

RVPageBinding::RVPageBinding(RVPageBindingEnum value) noexcept : RVEnumWrapper(value) { }

RVPageBinding::RVPageBinding(const QString &text) : RVPageBinding()
{
    setValue(text);
}

QString RVPageBinding::humanReadableName() const
{
    return pageBindingNames().name(*this);
}

const RVDisplayNames<RVPageBinding> &RVPageBinding::pageBindingNames()
{
    static const auto &theNames = *rvForever(initPageBindingNames());
    return theNames;
}

RVDisplayNames<RVPageBinding> RVPageBinding::initPageBindingNames()
{
    return { CONTEXT, rvTranslated<RVPageBinding>(CONTEXT, NAMES), RVPageBinding(), u""_s };
}

void RVPageBinding::toTemplates2Format(QDomElement &parent) const
{
    if (!isNull() && !matches(GLUE | LAYFLAT | STAPLED))
        RVXMLBuilder::buildDomElement(parent, u"pageBinding"_s, encodeCSV());
}

void RVPageBinding::fillTable(RVEnumToStringTable<RVPageBindingEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVPageBinding &pageBinding)
{
    return rvDebugAttribute(debug, "RVPageBinding", pageBinding);
}

QDebug operator<<(QDebug debug, RVPageBindingEnum value)
{
    return debug << RVEnumerators<RVPageBindingEnum>::text(value).constData();
}
