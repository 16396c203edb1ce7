#include "RVPriceClass.h"

#include <QDataStream>
#include <QDebug>

RVPriceClass::RVPriceClass(const QString &code) : myCode(code) { }

RVPriceClass RVPriceClass::create(const QString &code)
{
    return RVPriceClass(code);
}

bool RVPriceClass::isFree() const noexcept
{
    return myCode.isEmpty() || myCode.front() == u'0';
}

bool operator<(const RVPriceClass &a, const RVPriceClass &b) noexcept
{
    return a.myCode < b.myCode;
}

QDataStream &operator<<(QDataStream &stream, const RVPriceClass &priceClass)
{
    return stream << priceClass.myCode;
}

QDataStream &operator>>(QDataStream &stream, RVPriceClass &priceClass)
{
    return stream >> priceClass.myCode;
}

QDebug operator<<(QDebug debug, const RVPriceClass &priceClass)
{
    return debug << priceClass.toString();
}
