#include "RVPageSizeKey.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace {

constexpr RVPageAlignmentEnum EVERY_ALIGNMENT = PAGE_ALIGNMENT_LEFT | PAGE_ALIGNMENT_RIGHT | PAGE_ALIGNMENT_MIDDLE
        | PAGE_ALIGNMENT_FULLPAGE | PAGE_ALIGNMENT_TOP | PAGE_ALIGNMENT_BOTTOM | PAGE_ALIGNMENT_CENTER;

}

RVPageSizeKey::RVPageSizeKey(const RVPageType &pageType, int pageCount) noexcept
    : myPageContext(pageType, EVERY_ALIGNMENT),
      myPageCount(pageCount)
{ }

RVPageSizeKey::~RVPageSizeKey() = default;

QString RVPageSizeKey::dump() const
{
    return u"%1 %2"_s.arg(myPageContext.dump(), QString::number(myPageCount));
}

bool RVPageSizeKey::operator==(const RVPageSizeKey &other) const
{
    return myPageCount == other.myPageCount && myPageContext == other.myPageContext;
}

bool RVPageSizeKey::operator<(const RVPageSizeKey &other) const
{
    return myPageCount != other.myPageCount && myPageContext < other.myPageContext;
}

QDebug operator<<(QDebug debug, const RVPageSizeKey &key)
{
    return debug << key.dump();
}
