#include "RVCoverType.h"

#include "RVDisplayNames_p.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVCoverTypeEnum>;

namespace {

constexpr char CONTEXT[] = "RVBinding";

constexpr RVKeyword<RVCoverTypeEnum> KEYWORDS[] = {
    { u"HARDCOVER", HARDCOVER },
    { u"HARD", HARDCOVER },
    { u"SOFTCOVER", SOFTCOVER },
    { u"SOFT", SOFTCOVER },
    { u"CALENDAR_SIMPLEX", CALENDAR_SIMPLEX },
    { u"wall_calendar", CALENDAR_SIMPLEX },
    { u"CALENDAR_DUPLEX", CALENDAR_DUPLEX },
    { u"table_calendar", CALENDAR_DUPLEX },
    { u"CALENDAR_ONE_PAGE", CALENDAR_ONE_PAGE },
    { u"CALENDAR_ANNUAL_SIMPLEX", CALENDAR_ONE_PAGE },
    { u"CALENDAR_ANNUAL_DUPLEX", CALENDAR_ANNUAL_DUPLEX },
    { u"GIFT", GIFT },
    { u"BOOKLET", BOOKLET },
    { u"tacked", BOOKLET },
    { u"CROMOLINEN", CROMOLINEN },
    { u"CROMO", CROMOLINEN },
    { u"LEATHER", LEATHER },
    { u"AGENDA", AGENDA },
    { u"acryl_glas", ACRYL_GLAS },
    { u"canvas", CANVAS },
    { u"alu_dibond", ALU_DIBOND },
    { u"hard_foam", HARD_FOAM },
    { u"decoration", DECORATION },
    { u"gallery_print", GALLERY_PRINT },
    { u"calender_advent_empty", CALENDER_ADVENT_EMPTY },
    { u"calender_advent_chocolate", CALENDER_ADVENT_CHOCOLATE },
    { u"calender_advent_photo", CALENDER_ADVENT_PHOTO },
    { u"ceramics", CERAMICS },
    { u"games", GAMES },
    { u"office", OFFICE },
    { u"poster_decoration", POSTER_DECORATION },
    { u"poster_premium", POSTER_PREMIUM },
    { u"poster_self_adhesive", POSTER_SELF_ADHESIVE },
    { u"poster_standard", POSTER_STANDARD },
    { u"poster_xxl", POSTER_XXL },
    { u"textiles", TEXTILES },
    { u"wood", WOOD },
    { u"set", SET },
    { u"wire-o", WIRE_O },
};

/// CERAMICS has no name on purpose; an empty name counts as a name.
constexpr RVDisplayText<RVCoverTypeEnum> NAMES[] = {
    { HARDCOVER, QT_TRANSLATE_NOOP("RVBinding", "Hardcover") },
    { SOFTCOVER, QT_TRANSLATE_NOOP("RVBinding", "Softcover") },
    { CROMOLINEN, QT_TRANSLATE_NOOP("RVBinding", "Leinen") },
    { LEATHER, QT_TRANSLATE_NOOP("RVBinding", "Leder") },
    { BOOKLET, QT_TRANSLATE_NOOP("RVBinding", "Heft") },
    { CALENDAR_SIMPLEX, QT_TRANSLATE_NOOP("RVBinding", "Kalender einseitig") },
    { CALENDAR_DUPLEX, QT_TRANSLATE_NOOP("RVBinding", "Kalender doppelseitig") },
    { CALENDAR_ONE_PAGE, QT_TRANSLATE_NOOP("RVBinding", "1-Seiten-Kalender") },
    { CALENDAR_ANNUAL_DUPLEX, QT_TRANSLATE_NOOP("RVBinding", "2-Seiten-Jahresplaner") },
    { WIRE_O, QT_TRANSLATE_NOOP("RVBinding", "Kunststoff-Spiralbindung") },
    { GIFT, "" },
    { AGENDA, "" },
    { ACRYL_GLAS, "" },
    { CANVAS, "" },
    { ALU_DIBOND, "" },
    { HARD_FOAM, "" },
    { DECORATION, "" },
    { POSTER_DECORATION, "" },
    { POSTER_PREMIUM, "" },
    { POSTER_SELF_ADHESIVE, "" },
    { POSTER_STANDARD, "" },
    { POSTER_XXL, "" },
    { GALLERY_PRINT, "" },
    { CALENDER_ADVENT_EMPTY, "" },
    { CALENDER_ADVENT_CHOCOLATE, "" },
    { CALENDER_ADVENT_PHOTO, "" },
    { GAMES, "" },
    { OFFICE, "" },
    { TEXTILES, "" },
    { WOOD, "" },
    { SET, "" },
};

constexpr RVDisplayText<RVCoverTypeEnum> TOOL_TIPS[] = {
    { SOFTCOVER,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Individuell gestaltbarer elastischer Einband mit Klebebindung.\n"
                        "Das Cover ist vollständig gestaltbar.") },
    { HARDCOVER,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\n"
                        "Das Cover ist vollständig gestaltbar.") },
    { CALENDAR_SIMPLEX,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\n"
                        "da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann.") },
    { CALENDAR_DUPLEX,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen.") },
    { CALENDAR_ONE_PAGE,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
                        "Kalenderjahr.\nAlles auf einen Blick.") },
    { CALENDAR_ANNUAL_DUPLEX,
      QT_TRANSLATE_NOOP("RVBinding",
                        "Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
                        "Kalenderjahr.\nAlles auf einen Blick.") },
    { BOOKLET, QT_TRANSLATE_NOOP("RVBinding", "Individuell gestaltbarer flexibler Einband mit Rückstichbindung.") },
};

/// The first line of the tool tips that have the second one in common.
constexpr RVDisplayText<RVCoverTypeEnum> TEXTILE_TOOL_TIPS[] = {
    { CROMOLINEN,
      QT_TRANSLATE_NOOP("RVBinding", "Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.") },
    { LEATHER,
      QT_TRANSLATE_NOOP("RVBinding", "Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.") },
};

QString unknownName()
{
    return QCoreApplication::translate("RVBinding", "unbekannter Bindungstyp");
}

QMap<RVCoverType, QString> toolTips()
{
    QMap<RVCoverType, QString> result = rvTranslated<RVCoverType>(CONTEXT, TOOL_TIPS);
    const QString design = QCoreApplication::translate("RVBinding",
                                                       "Das Cover kann nur mit veredelten Elementen gestaltet werden.");
    for (const auto &row : TEXTILE_TOOL_TIPS) {
        const QString pattern = QCoreApplication::translate("RVBinding", "%1\n%2");
        result.insert(row.value, pattern.arg(QCoreApplication::translate(CONTEXT, row.text), design));
    }
    return result;
}

}

RVCoverType::RVCoverType(RVCoverTypeEnum value) noexcept : RVEnumWrapper(value) { }

RVCoverType::RVCoverType(const QString &text) : RVCoverType()
{
    setValue(text);
}

RVCoverType RVCoverType::createFromHumanReadable(const QString &name)
{
    return bindingNames().value(name);
}

bool RVCoverType::isRegularCover() const
{
    return isValid() && !hasValue(WIRE_O);
}

bool RVCoverType::isFullCover() const
{
    return matches(HARDCOVER | SOFTCOVER | BOOKLET);
}

bool RVCoverType::isSimplex() const
{
    return matches(CALENDAR_SIMPLEX | CALENDAR_ONE_PAGE | CALENDAR_ANNUAL_DUPLEX | GIFT | AGENDA);
}

QString RVCoverType::humanReadableName() const
{
    return bindingNames().name(*this);
}

QString RVCoverType::toolTip() const
{
    return bindingToolTips().name(*this);
}

const RVDisplayNames<RVCoverType> &RVCoverType::bindingNames()
{
    static const auto &theNames = *rvForever<RVCoverType>(
            { CONTEXT, rvTranslated<RVCoverType>(CONTEXT, NAMES), RVCoverType(), unknownName() });
    return theNames;
}

const RVDisplayNames<RVCoverType> &RVCoverType::bindingToolTips()
{
    static const auto &theToolTips = *rvForever<RVCoverType>({ CONTEXT, toolTips(), RVCoverType(), unknownName() });
    return theToolTips;
}

void RVCoverType::fillTable(RVEnumToStringTable<RVCoverTypeEnum> *table) const
{
    rvFillTable(table, KEYWORDS);
}

QDebug operator<<(QDebug debug, const RVCoverType &coverType)
{
    return rvDebugAttribute(debug, "RVCoverType", coverType);
}

QDebug operator<<(QDebug debug, RVCoverTypeEnum value)
{
    return debug << RVEnumerators<RVCoverTypeEnum>::text(value).constData();
}
