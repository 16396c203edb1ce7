#include "RVSpineConfig.h"

#include "RVXMLParser.h"

#include <QDomElement>

using namespace Qt::StringLiterals;

RVSpineConfig::RVSpineConfig() : d(new RVSpineConfigImpl) { }

RVSpineConfig::RVSpineConfig(const RVPageCountOrganization &pageCountOrganization, int packagesPerBlock,
                             const RVDistance &baseWidth, const RVDistance &blockWidth,
                             const RVDistance &additionalWidth)
    : d(new RVSpineConfigImpl(pageCountOrganization, packagesPerBlock, baseWidth, blockWidth, additionalWidth))
{ }

RVSpineConfig RVSpineConfig::createFromProductsXML(const QDomElement &product)
{
    const QDomElement composition = product.firstChildElement(u"composition"_s);
    const RVDistanceUnit unit(RVXMLParser::attribute(composition, u"units"_s, u"mm"_s));
    const auto pageCounts = RVPageCountOrganization::createFromProductsXML(product);
    const QDomElement spine = composition.firstChildElement(u"spine"_s);
    const int packagesPerBlock = RVXMLParser::intAttribute(spine, u"packages_per_block"_s, 0);
    const RVDistance baseWidth = RVXMLParser::readDistance(spine, u"base_width"_s, 0.0, unit);
    const RVDistance blockWidth = RVXMLParser::readDistance(spine, u"block_width"_s, 0.0, unit);
    const RVDistance additionalWidth = RVXMLParser::readDistance(spine, u"additional_width"_s, 0.0, unit);
    return RVSpineConfig(pageCounts, packagesPerBlock, baseWidth, blockWidth, additionalWidth);
}

bool RVSpineConfig::isValid() const
{
    return d->isValid();
}

int RVSpineConfig::additionalPagePackageBlocks(unsigned pages) const
{
    return d->additionalPagePackageBlocks(pages);
}

RVDistance RVSpineConfig::spineWidth(unsigned pages) const
{
    return d->spineWidth(pages);
}

RVDistance RVSpineConfig::additionalSpineWidth() const
{
    return d->additionalSpineWidth();
}

int RVSpineConfig::coverReduceSize() const
{
    return d->coverReduceSize();
}

int RVSpineConfig::spineMaxFontHeigth(unsigned pages, const QString &fontFamily) const
{
    return d->spineMaxFontHeigth(pages, fontFamily);
}

bool RVSpineConfig::operator==(const RVSpineConfig &other) const
{
    return d == other.d || *d == *other.d;
}
