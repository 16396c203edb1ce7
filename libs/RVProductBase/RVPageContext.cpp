#include "RVPageContext.h"

#include <QDebug>

using namespace Qt::StringLiterals;

RVPageContext::RVPageContext(const RVPageType &pageType, const RVPageAlignment &alignment) noexcept
    : myPageType(pageType),
      myAlignment(alignment)
{ }

RVPageContext::~RVPageContext() = default;

bool RVPageContext::matchesWith(const RVPageContext &other) const noexcept
{
    return hasPageType(other.myPageType) && hasAlignment(other.myAlignment);
}

QString RVPageContext::dump() const
{
    return u"%1 %2"_s.arg(myAlignment.encode(), myPageType.encode());
}

bool RVPageContext::operator==(const RVPageContext &other) const
{
    return myPageType == other.myPageType && myAlignment == other.myAlignment;
}

bool RVPageContext::operator<(const RVPageContext &other) const
{
    return myPageType != other.myPageType ? myPageType < other.myPageType : myAlignment < other.myAlignment;
}

QDebug operator<<(QDebug debug, const RVPageContext &pageContext)
{
    return debug << pageContext.dump();
}
