#include "RVSpineConfig.h"

RVSpineConfig::RVSpineConfig() : d(new RVSpineConfigImpl) { }

RVSpineConfig::RVSpineConfig(const RVPageCountOrganization &pageCountOrganization, int packagesPerBlock,
                             const RVDistance &baseWidth, const RVDistance &blockWidth,
                             const RVDistance &additionalWidth)
    : d(new RVSpineConfigImpl(pageCountOrganization, packagesPerBlock, baseWidth, blockWidth, additionalWidth))
{ }

RVSpineConfig::RVSpineConfig(const RVSpineConfigImpl *data) : d(data) { }

RVSpineConfig RVSpineConfig::createFromProductsXML(const QDomElement &product)
{
    return RVSpineConfig(new RVSpineConfigImpl(RVSpineConfigImpl::createFromProductsXML(product)));
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

int RVSpineConfig::highestLine(unsigned pages) const
{
    return d->highestLine(pages);
}

int RVSpineConfig::spineMaxFontHeigth(unsigned pages, const QString &fontFamily) const
{
    return d->spineMaxFontHeigth(pages, fontFamily);
}

bool RVSpineConfig::canMeasureText()
{
    return RVSpineConfigImpl::canMeasureText();
}

bool RVSpineConfig::hasRoomForText(unsigned pages, const QString &fontFamily) const
{
    return d->hasRoomForText(pages, fontFamily);
}

bool RVSpineConfig::operator==(const RVSpineConfig &other) const
{
    return d == other.d || *d == *other.d;
}
