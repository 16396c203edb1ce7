#include "RVUnitText_p.h"

#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <QSet>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView UNITS[] = { "mm", "cm", "inch", "in", "pt", "point", "0.1mm" };

struct UnitText
{
    QLatin1StringView text; // in lower case, without blanks
    QLatin1StringView unit;
};

constexpr UnitText UNIT_TEXTS[] = {
    // clang-format off
    { QLatin1StringView("mm"), QLatin1StringView("mm") },
    { QLatin1StringView("mm."), QLatin1StringView("mm") },
    { QLatin1StringView("millimeter"), QLatin1StringView("mm") },
    { QLatin1StringView("millimeters"), QLatin1StringView("mm") },
    { QLatin1StringView("millimetre"), QLatin1StringView("mm") },
    { QLatin1StringView("millimetres"), QLatin1StringView("mm") },
    { QLatin1StringView("cm"), QLatin1StringView("cm") },
    { QLatin1StringView("cm."), QLatin1StringView("cm") },
    { QLatin1StringView("centimeter"), QLatin1StringView("cm") },
    { QLatin1StringView("centimeters"), QLatin1StringView("cm") },
    { QLatin1StringView("centimetre"), QLatin1StringView("cm") },
    { QLatin1StringView("centimetres"), QLatin1StringView("cm") },
    { QLatin1StringView("zentimeter"), QLatin1StringView("cm") },
    { QLatin1StringView("inch"), QLatin1StringView("inch") },
    { QLatin1StringView("inches"), QLatin1StringView("inch") },
    { QLatin1StringView("zoll"), QLatin1StringView("inch") },
    { QLatin1StringView("\""), QLatin1StringView("inch") },
    { QLatin1StringView("in"), QLatin1StringView("in") },
    { QLatin1StringView("in."), QLatin1StringView("in") },
    { QLatin1StringView("pt"), QLatin1StringView("pt") },
    { QLatin1StringView("pt."), QLatin1StringView("pt") },
    { QLatin1StringView("pts"), QLatin1StringView("pt") },
    { QLatin1StringView("point"), QLatin1StringView("point") },
    { QLatin1StringView("points"), QLatin1StringView("point") },
    { QLatin1StringView("punkt"), QLatin1StringView("point") },
    { QLatin1StringView("0.1mm"), QLatin1StringView("0.1mm") },
    { QLatin1StringView("0,1mm"), QLatin1StringView("0.1mm") },
    { QLatin1StringView(".1mm"), QLatin1StringView("0.1mm") },
    { QLatin1StringView("1/10mm"), QLatin1StringView("0.1mm") },
    // clang-format on
};

/// Without blanks and invisible letters, in lower case.
QString squeezed(const QString &text)
{
    QString result = RVForeignLetters(text).plain().toLower();
    return result.removeIf([](QChar letter) { return letter.isSpace(); });
}

}

bool rvIsUnit(QByteArrayView text)
{
    return std::find(std::begin(UNITS), std::end(UNITS), text) != std::end(UNITS);
}

QStringList rvUnits()
{
    QStringList result;
    for (const QByteArrayView unit : UNITS)
        result += QString::fromLatin1(unit);
    return result;
}

QString rvMeantUnit(const QString &text)
{
    const QString wanted = squeezed(text);
    // A tenth of a millimetre is no slip of the fingers for another part of another unit.
    const bool hasDigit = std::any_of(wanted.begin(), wanted.end(), [](QChar letter) { return letter.isDigit(); });
    RVNearestTexts nearest(wanted, hasDigit ? 0 : 2);
    for (const UnitText &row : UNIT_TEXTS) {
        if (wanted == row.text)
            return row.unit;
        nearest.offer(row.text);
    }
    QSet<QString> meant;
    for (const UnitText &row : UNIT_TEXTS) {
        if (nearest.texts().contains(row.text))
            meant.insert(row.unit);
    }
    return meant.size() == 1 ? *meant.constBegin() : QString();
}
