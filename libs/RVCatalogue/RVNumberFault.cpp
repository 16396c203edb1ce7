#include "RVNumberFault_p.h"

#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVUnitText_p.h"

#include <QRegularExpression>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<int>;

QString writeText(const QString &number)
{
    return RVFindingText::tr("write %1").arg(number);
}

bool isMatch(const QString &text, const QRegularExpression &pattern)
{
    return pattern.match(text).hasMatch();
}

/// The whole number that a text with a point or an exponent stands for; null if it is none, or does not fit.
QString wholeNumber(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool isWhole = isNumber && number >= Limits::min() && number <= Limits::max() && number == int(number);
    return isWhole ? QString::number(int(number)) : QString();
}

}

RVNumberFault::RVNumberFault(const QString &text, Type type) : myType(type)
{
    const RVForeignLetters letters(text.trimmed());
    const QString plain = letters.plain().trimmed();
    judge(plain);
    if (letters.isEmpty())
        return;
    if (isReadable(plain))
        mendAs(plain);
    myAdvice = rvAdvised(letters.text(), myAdvice);
}

void RVNumberFault::judge(const QString &text)
{
    if (text.isEmpty()) {
        myReason = Reason::Empty;
        myAdvice = RVFindingText::tr("write a number, or leave out the attribute");
    } else if (!isBeyondRange(text) && !hasGroups(text) && !isOtherwiseWritten(text) && !hasUnit(text)) {
        myAdvice = myType == Type::Whole ? RVFindingText::tr("write nothing but digits")
                                         : RVFindingText::tr("write digits, and a point before decimals");
    }
}

bool RVNumberFault::isBeyondRange(const QString &text)
{
    static const QRegularExpression theNumber(u"^[+-]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][+-]?\\d+)?$"_s);
    if (!isMatch(text, theNumber))
        return false;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool isBelow = text.startsWith(u'-');
    const bool isNearly0 = !isNumber && number == 0; // nearer than any number can be
    if (isNearly0 && myType == Type::Whole)
        return false;
    if (isNearly0) {
        myAdvice = writeText(u"0"_s);
        return true;
    }
    const bool isBeyond = !isNumber || (myType == Type::Whole && (number < Limits::min() || number > Limits::max()));
    if (!isBeyond)
        return false;
    myReason = isBelow ? Reason::TooSmall : Reason::TooLarge;
    if (myType == Type::Length)
        myAdvice = isBelow ? RVFindingText::tr("write a larger number") : RVFindingText::tr("write a smaller number");
    else
        myAdvice = isBelow ? RVFindingText::tr("write at least %1").arg(Limits::min())
                           : RVFindingText::tr("write at most %1").arg(Limits::max());
    return true;
}

/// Digits in groups of three. A single comma may also be a decimal comma; only people can decide that.
bool RVNumberFault::hasGroups(const QString &text)
{
    static const QRegularExpression theGroups(u"^[+-]?[1-9]\\d{0,2}(?:([., '])\\d{3})(?:\\1\\d{3})*$"_s);
    static const QRegularExpression theGroupsWithDecimals(
            u"^[+-]?[1-9]\\d{0,2}(?:(?:[. ']\\d{3})+,\\d+|(?:[, ']\\d{3})+\\.\\d+)$"_s);
    static const QRegularExpression theSeparators(u"[., ']"_s);
    const bool hasDecimals = isMatch(text, theGroupsWithDecimals);
    if (!hasDecimals && !isMatch(text, theGroups))
        return false;
    QString number = text;
    if (hasDecimals)
        number[text.lastIndexOf(theSeparators)] = u'!';
    number = number.remove(theSeparators).replace(u'!', u'.');
    if (!isReadable(number))
        return false;
    const QString decimal = QString(text).replace(u',', u'.');
    const bool isAmbiguous = myType == Type::Length && text.count(u',') == 1 && isReadable(decimal) && !hasDecimals;
    myAdvice = isAmbiguous
            ? RVFindingText::tr("write %1, or %2 where the comma separates thousands").arg(decimal, number)
            : RVFindingText::tr("thousands are not separated: write %1").arg(number);
    return true;
}

/// Faults with a known number: a comma for the point, a whole number with a point or an exponent, or a blank beside a
/// sign or a point.
bool RVNumberFault::isOtherwiseWritten(const QString &text)
{
    static const QRegularExpression theBlankBetweenDigits(u"\\d\\s+\\d"_s);
    static const QRegularExpression theBlanks(u"\\s+"_s);
    if (isMatch(text, theBlankBetweenDigits))
        return false;
    QString compact = QString(text).remove(theBlanks).replace(u',', u'.');
    if (compact.endsWith(u'.'))
        compact.chop(1);
    if (compact.startsWith(u'.'))
        compact.prepend(u'0');
    const QString number = isReadable(compact) || myType == Type::Length ? compact : wholeNumber(compact);
    if (!isReadable(number))
        return false;
    mendAs(number);
    if (text.contains(u',') && myType == Type::Length)
        myAdvice = RVFindingText::tr("decimals have a point: write %1").arg(number);
    return true;
}

bool RVNumberFault::hasUnit(const QString &text)
{
    static const QRegularExpression theNumberAndUnit(u"^([+-]?\\d+(?:[.,]\\d+)?)\\s*([^\\d\\s.,].*)$"_s);
    const QRegularExpressionMatch match = theNumberAndUnit.match(text);
    if (myType == Type::Whole || !match.hasMatch())
        return false;
    const QString unit = match.captured(2);
    if (!rvIsUnit(unit) && rvMeantUnit(unit).isNull())
        return false;
    myAdvice = RVFindingText::tr("the unit belongs to \"units\": write %1").arg(match.captured(1).replace(u',', u'.'));
    return true;
}

bool RVNumberFault::isReadable(const QString &text) const
{
    bool isNumber = false;
    const double number = myType == Type::Whole ? text.toInt(&isNumber) : text.toDouble(&isNumber);
    return isNumber && qIsFinite(number);
}

void RVNumberFault::mendAs(const QString &number)
{
    myMended = number;
    myAdvice = writeText(number);
}
