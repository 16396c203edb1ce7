#include "RVPriceClass.h"

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
