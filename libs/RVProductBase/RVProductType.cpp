#include "RVProductType.h"

#include "RVPriceClass.h"

#include <QDomElement>
#include <QHash>

using namespace Qt::StringLiterals;

const RVRegularExpression RVProductType::myBookRegExp(u"((DUN|DUNS)\\d+).*"_s);

RVProductType::RVProductType(const QString &code) : myName(code)
{
    if (myName.isEmpty())
        return;
    // The search is not anchored: "DXDUN5A" belongs to "DUN5".
    if (myName.startsWith(u'D')) {
        const QRegularExpressionMatch match = myBookRegExp.match(myName);
        if (match.hasMatch())
            myName = match.captured(1);
    }
    myHashValue = qHash(myName, 0);
}

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

bool operator==(const RVProductType &a, const RVProductType &b)
{
    if (a.myHashValue != b.myHashValue || a.isValid() != b.isValid())
        return false;
    return a.myName.compare(b.myName, Qt::CaseInsensitive) == 0;
}

bool operator<(const RVProductType &a, const RVProductType &b)
{
    return a.myHashValue != b.myHashValue ? a.myHashValue < b.myHashValue : a.myName < b.myName;
}
