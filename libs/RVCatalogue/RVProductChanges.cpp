#include "RVProductChanges_p.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr RVDistanceUnit MILLIMETRE = DISTANCE_UNIT_MILLIMETRE;
constexpr int USUAL_DIGITS = 6;
constexpr int MOST_DIGITS = 15;

QString withDigits(const RVDistance &length, int digits)
{
    return QString::number(length.value(MILLIMETRE), 'g', digits);
}

RVComparedValue comparedBoolean(bool value)
{
    return { value ? RVChangeText::tr("yes") : RVChangeText::tr("no"), value };
}

/// A length that is not finite has no number in JSON.
QJsonValue jsonLength(const RVDistance &length)
{
    const double millimetres = length.value(MILLIMETRE);
    return std::isfinite(millimetres) ? QJsonValue(millimetres) : QJsonValue(withDigits(length, USUAL_DIGITS));
}

}

void RVProductChanges::beginItem(const QString &prefix, const QJsonObject &item)
{
    myPrefix = prefix;
    myItem = item;
}

void RVProductChanges::addText(QLatin1StringView subject, const QString &label, const RVVersions<QString> &texts)
{
    if (texts.differ())
        add(subject, label, { rvComparedText(texts.before), rvComparedText(texts.after) });
}

void RVProductChanges::addNumber(QLatin1StringView subject, const QString &label, const RVVersions<int> &numbers)
{
    if (numbers.differ())
        add(subject, label, { rvComparedNumber(numbers.before), rvComparedNumber(numbers.after) });
}

void RVProductChanges::addBoolean(QLatin1StringView subject, const QString &label, const RVVersions<bool> &booleans)
{
    if (booleans.differ())
        add(subject, label, { comparedBoolean(booleans.before), comparedBoolean(booleans.after) });
}

void RVProductChanges::addLength(QLatin1StringView subject, const QString &label, const RVVersions<RVDistance> &lengths)
{
    if (!rvSameLength(lengths.before, lengths.after))
        add(subject, label, rvComparedLengths(lengths));
}

void RVProductChanges::add(QLatin1StringView subject, const QString &label, const RVVersions<RVComparedValue> &values)
{
    const QString whole = myPrefix.isEmpty() || label.isEmpty() ? myPrefix + label : myPrefix + ", "_L1 + label;
    myChanges += RVProductChange(subject, whole, values.before, values.after, myItem);
}

RVComparedValue rvComparedText(const QString &text)
{
    if (text.isEmpty())
        return RVComparedValue();
    return { u'"' + text + u'"', text };
}

RVComparedValue rvComparedNumber(int number)
{
    return { QString::number(number), number };
}

bool rvSameLength(const RVDistance &a, const RVDistance &b)
{
    if (std::isfinite(a.value()) && std::isfinite(b.value()))
        return a == b;
    return !(a.value() < b.value()) && !(b.value() < a.value()) && std::isnan(a.value()) == std::isnan(b.value());
}

RVVersions<RVComparedValue> rvComparedLengths(const RVVersions<RVDistance> &lengths)
{
    const bool isUsual = withDigits(lengths.before, USUAL_DIGITS) != withDigits(lengths.after, USUAL_DIGITS);
    const int digits = isUsual ? USUAL_DIGITS : MOST_DIGITS;
    const auto compared = [digits](const RVDistance &length) {
        return RVComparedValue { withDigits(length, digits) + " mm"_L1, jsonLength(length) };
    };
    return { compared(lengths.before), compared(lengths.after) };
}

QString rvMillimetres(const RVDistance &length)
{
    return withDigits(length, USUAL_DIGITS);
}
