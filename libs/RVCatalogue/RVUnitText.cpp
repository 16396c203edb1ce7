#include "RVUnitText_p.h"

#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <RVDistanceUnit.h>

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A unit, and other ways to write it, in lower case and without blanks.
struct Unit
{
    QLatin1StringView text;
    QList<QLatin1StringView> others;
};

const QList<Unit> &units()
{
    static const QList<Unit> theUnits {
        { "mm"_L1, { "mm."_L1, "millimeter"_L1, "millimeters"_L1, "millimetre"_L1, "millimetres"_L1 } },
        { "cm"_L1,
          { "cm."_L1, "centimeter"_L1, "centimeters"_L1, "centimetre"_L1, "centimetres"_L1, "zentimeter"_L1 } },
        { "inch"_L1, { "inches"_L1, "zoll"_L1, R"(")"_L1 } },
        { "in"_L1, { "in."_L1 } },
        { "pt"_L1, { "pt."_L1, "pts"_L1 } },
        { "point"_L1, { "points"_L1, "punkt"_L1 } },
        { "0.1mm"_L1, { "0,1mm"_L1, ".1mm"_L1, "1/10mm"_L1 } },
    };
    return theUnits;
}

/// The text without blanks and invisible letters, in lower case.
QString plainUnit(const QString &text)
{
    QString result = RVForeignLetters(text).plain().toLower();
    return result.removeIf([](QChar letter) { return letter.isSpace(); });
}

}

// A text that is no unit is read as millimetres.
bool rvIsUnit(const QString &text)
{
    return text == "mm"_L1 || RVDistanceUnit(text).code() != DISTANCE_UNIT_MILLIMETRE;
}

QStringList rvUnits()
{
    QStringList result;
    for (const Unit &unit : units())
        result += unit.text;
    return result;
}

QString rvMeantUnit(const QString &text)
{
    const QString wanted = plainUnit(text);
    // Another part of another unit is no typing mistake for a tenth of a millimetre.
    const bool hasDigit = std::any_of(wanted.begin(), wanted.end(), [](QChar letter) { return letter.isDigit(); });
    RVNearestTexts nearest(wanted, hasDigit ? 0 : 2);
    for (const Unit &unit : units()) {
        if (wanted == unit.text || unit.others.contains(wanted))
            return unit.text;
        nearest.offer(unit.text);
        for (const QLatin1StringView other : unit.others)
            nearest.offer(other);
    }
    const auto isNearest = [&nearest](QLatin1StringView candidate) { return nearest.texts().contains(candidate); };
    QStringList meant;
    for (const Unit &unit : units()) {
        if (isNearest(unit.text) || std::any_of(unit.others.begin(), unit.others.end(), isNearest))
            meant += unit.text;
    }
    return meant.size() == 1 ? meant.constFirst() : QString();
}
