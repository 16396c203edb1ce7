#include "RVProductType.h"

#include "RVPriceClass.h"

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The expression is never destroyed and so keeps the data that its copies share: destructors of static objects may
/// still search with a copy.
const RVRegularExpression &bookPattern()
{
    static const auto &pattern = *new RVRegularExpression(u"((DUN|DUNS)\\d+).*"_s);
    return pattern;
}

constexpr bool isDigit(QChar letter)
{
    return letter >= u'0' && letter <= u'9';
}

/// Finds the text that myBookRegExp captures, without the cost of a regular expression; empty if it does not match.
QStringView bookFamily(QStringView code)
{
    constexpr QStringView LETTERS = u"DUN";
    for (const QChar *family = code.begin(); code.end() - family > LETTERS.size(); ++family) {
        if (!std::equal(LETTERS.begin(), LETTERS.end(), family))
            continue;
        const QChar *digits = family + LETTERS.size();
        if (*digits == u'S')
            ++digits;
        const QChar *end = std::find_if_not(digits, code.end(), isDigit);
        // A regular expression does not search broken UTF-16.
        if (end != digits)
            return code.isValidUtf16() ? QStringView(family, end) : QStringView();
    }
    return QStringView();
}

// The search is not anchored: "DXDUN5A" belongs to "DUN5".
QString normalized(const QString &code)
{
    const QStringView family = QStringView(code).startsWith(u'D') ? bookFamily(code) : QStringView();
    return family.isEmpty() || family.size() == code.size() ? code : family.toString();
}

}

const RVRegularExpression RVProductType::myBookRegExp(bookPattern());

RVProductType::RVProductType(const QString &code)
    : myName(normalized(code)),
      myHashValue(myName.isEmpty() ? 0 : qHash(myName, 0))
{ }

RVProductType RVProductType::fromPriceClass(const RVPriceClass &priceClass)
{
    return RVProductType(priceClass.toString());
}

RVProductType RVProductType::fromKtx(const QDomElement &project)
{
    return RVProductType(project.attribute(u"productname"_s, u"DUN9_30"_s));
}

bool RVProductType::isAgenda() const
{
    const QString name = orderTxtName();
    return name == "VIR29"_L1 || name == "VIR30"_L1;
}

bool RVProductType::isCalendar() const
{
    return orderTxtName().startsWith("VIR"_L1);
}

QString RVProductType::orderTxtName() const
{
    return myName.isEmpty() ? u"UNKNOWN"_s : myName;
}

// Equal hashes nearly always mean equal names, and plain equality is quicker to tell.
bool RVProductType::hasNameOf(const RVProductType &other) const
{
    return isValid() == other.isValid()
            && (myName == other.myName || myName.compare(other.myName, Qt::CaseInsensitive) == 0);
}

bool operator<(const RVProductType &a, const RVProductType &b)
{
    return a.myHashValue != b.myHashValue ? a.myHashValue < b.myHashValue : a.myName < b.myName;
}

QDataStream &operator<<(QDataStream &stream, const RVProductType &type)
{
    return stream << type.myName;
}

QDataStream &operator>>(QDataStream &stream, RVProductType &type)
{
    QString code;
    stream >> code;
    type = RVProductType(code);
    return stream;
}

QDebug operator<<(QDebug debug, const RVProductType &type)
{
    return debug << type.toString();
}
