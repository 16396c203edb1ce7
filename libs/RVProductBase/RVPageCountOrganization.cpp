#include "RVPageCountOrganization.h"

#include "RVSaturation_p.h"
#include "RVXMLParser.h"

#include <QDebug>
#include <QDomElement>
#include <QString>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

RVPageCountOrganization::RVPageCountOrganization(const RVIntRange &range, int pageIncrement)
    : myRange(range),
      myPageIncrement(pageIncrement)
{ }

RVPageCountOrganization::~RVPageCountOrganization() = default;

RVPageCountOrganization RVPageCountOrganization::createForAdventCalendarWithDoorBackPrint()
{
    return RVPageCountOrganization(RVIntRange(25, 25), 0);
}

RVPageCountOrganization RVPageCountOrganization::createForCardWithInsertedFoto()
{
    return RVPageCountOrganization(RVIntRange(3, 3), 0);
}

RVPageCountOrganization RVPageCountOrganization::createFromProductsXML(const QDomElement &product)
{
    const int pieces = RVXMLParser::intAttribute(product, u"pieces"_s, 1);
    const int pages = RVXMLParser::intAttribute(product, u"pages"_s, 1);
    const int maxPages = RVXMLParser::intAttribute(product, u"max_pages"_s, pages);
    const int pageStep = RVXMLParser::intAttribute(product, u"page_step"_s, 0);
    return RVPageCountOrganization(RVIntRange(pages, maxPages).stretched(pieces), pageStep);
}

RVPageCountOrganization RVPageCountOrganization::createFromProductsXMLForPictureBox(const QDomElement &product)
{
    const int pages = RVXMLParser::intAttribute(product, u"pages"_s, 1);
    const int maxPages = RVXMLParser::intAttribute(product, u"max_pages"_s, rvSaturated(qint64(pages) + 29));
    const int pageStep = RVXMLParser::intAttribute(product, u"page_step"_s, 1);
    return RVPageCountOrganization(RVIntRange(pages, maxPages), pageStep);
}

bool RVPageCountOrganization::inRange(int pages) const noexcept
{
    return minPages() <= pages && pages <= maxPages();
}

bool RVPageCountOrganization::isValid() const noexcept
{
    return (minPages() == maxPages() && minPages() != 0) || (minPages() < maxPages() && myPageIncrement > 0);
}

bool RVPageCountOrganization::isValidPageCount(int pages) const noexcept
{
    return inRange(pages) && (myPageIncrement == 0 || (qint64(pages) - minPages()) % myPageIncrement == 0);
}

bool RVPageCountOrganization::isConsistent() const noexcept
{
    return isValid() && isValidPageCount(maxPages());
}

RVPageCounts RVPageCountOrganization::pageCounts() const noexcept
{
    const qint64 extraPages = qint64(maxPages()) - minPages();
    const qint64 size = myPageIncrement == 0 ? 1 : extraPages / myPageIncrement + 1;
    return extraPages < 0 || size < 1 ? RVPageCounts() : RVPageCounts(minPages(), myPageIncrement, size);
}

int RVPageCountOrganization::pagesWithNExtraPackages(int n) const noexcept
{
    return rvSaturated(minPages() + qint64(myPageIncrement) * n);
}

int RVPageCountOrganization::countPackages(int pages) const noexcept
{
    if (myPageIncrement == 0 || pages <= minPages())
        return 0;
    return rvSaturated((qint64(pages) - minPages()) / myPageIncrement);
}

int RVPageCountOrganization::numberOfPackages() const noexcept
{
    if (myPageIncrement == 0)
        return 1;
    return rvSaturated((qint64(maxPages()) - minPages()) / myPageIncrement + 1);
}

int RVPageCountOrganization::minPagesWithPano() const noexcept
{
    return pagesWithNExtraPackages(2);
}

int RVPageCountOrganization::constrain(int pages) const noexcept
{
    if (!inRange(pages))
        return qMax(qMin(pages, maxPages()), minPages());
    if (myPageIncrement == 0)
        return minPages();
    const double packages = (double(pages) - minPages()) / myPageIncrement;
    return rvSaturated(minPages() + qint64(std::ceil(packages)) * myPageIncrement);
}

RVPageCountOrganization RVPageCountOrganization::adaptedTo(int pages) const
{
    if (minPages() >= pages)
        return *this;
    return RVPageCountOrganization(RVIntRange(constrain(pages), maxPages()), myPageIncrement);
}

RVPageCountOrganization RVPageCountOrganization::clone(bool minOnly) const
{
    return RVPageCountOrganization(RVIntRange(minPages(), minOnly ? minPages() : maxPages()), myPageIncrement);
}

RVPageCountOrganization RVPageCountOrganization::operator-=(int pages)
{
    constexpr int smallest = std::numeric_limits<int>::min(); // has no opposite
    const RVIntRange moved = pages == smallest ? myRange.shifted(-(smallest + 1)).shifted(1) : myRange.shifted(-pages);
    if (moved.min >= 1)
        myRange = moved;
    return *this;
}

QString RVPageCountOrganization::dump() const
{
    return u"min: %1; max: %2; increment: %3"_s.arg(minPages()).arg(maxPages()).arg(myPageIncrement);
}

QDebug operator<<(QDebug debug, const RVPageCountOrganization &organization)
{
    return debug << organization.dump();
}
