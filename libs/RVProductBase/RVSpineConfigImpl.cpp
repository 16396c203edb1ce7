#include "RVSpineConfigImpl.h"

#include "RVDomChildren_p.h"
#include "RVFontCreator.h"
#include "RVFontSizeManager.h"
#include "RVSaturation_p.h"
#include "RVXMLParser.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Part of the spine width that a text may fill.
constexpr qreal USABLE_PART = 0.85;

/// The line spacing in pixels; an empty family is that of the default font.
int lineSpacing(const QString &fontFamily, int pointSize)
{
    const RVFontCreator *const fonts = RVFontCreator::instance();
    const QString family = fontFamily.isEmpty() ? fonts->defaultFontFamily() : fontFamily;
    return QFontMetrics(fonts->createFont(family, pointSize)).lineSpacing();
}

}

RVSpineConfigImpl::RVSpineConfigImpl(const RVPageCountOrganization &pageCountOrganization_, int packagesPerBlock_,
                                     const RVDistance &baseWidth_, const RVDistance &blockWidth_,
                                     const RVDistance &additionalWidth_)
    : pageCountOrganization(pageCountOrganization_),
      packagesPerBlock(packagesPerBlock_),
      baseWidth(baseWidth_),
      blockWidth(blockWidth_),
      additionalWidth(additionalWidth_)
{ }

RVSpineConfigImpl::~RVSpineConfigImpl() = default;

RVSpineConfigImpl RVSpineConfigImpl::createFromProductsXML(const QDomElement &product)
{
    const QDomElement composition = rvFirstChildElement(product, u"composition"_s);
    const RVDistanceUnit unit(RVXMLParser::attribute(composition, u"units"_s, u"mm"_s));
    const auto pageCounts = RVPageCountOrganization::createFromProductsXML(product);
    const QDomElement spine = rvFirstChildElement(composition, u"spine"_s);
    const int packagesPerBlock = RVXMLParser::intAttribute(spine, u"packages_per_block"_s, 0);
    const RVDistance baseWidth = RVXMLParser::readDistance(spine, u"base_width"_s, 0.0, unit);
    const RVDistance blockWidth = RVXMLParser::readDistance(spine, u"block_width"_s, 0.0, unit);
    const RVDistance additionalWidth = RVXMLParser::readDistance(spine, u"additional_width"_s, 0.0, unit);
    return RVSpineConfigImpl(pageCounts, packagesPerBlock, baseWidth, blockWidth, additionalWidth);
}

bool RVSpineConfigImpl::isValid() const
{
    return pageCountOrganization.isValid();
}

int RVSpineConfigImpl::additionalPagePackageBlocks(unsigned pages) const
{
    if (packagesPerBlock == 0)
        return 0;
    return rvSaturated(qint64(pageCountOrganization.countPackages(rvSaturated(qint64(pages)))) / packagesPerBlock);
}

RVDistance RVSpineConfigImpl::additionalWithForPages(unsigned pages) const
{
    return blockWidth * qreal(additionalPagePackageBlocks(pages));
}

RVDistance RVSpineConfigImpl::spineWidth(unsigned pages) const
{
    const RVDistance sides = additionalWidth * 2.0;
    const RVDistance growth = additionalWithForPages(pages);
    const RVDistance core = baseWidth + growth;
    return core + sides;
}

int RVSpineConfigImpl::coverReduceSize() const
{
    return rvSaturated(additionalWidth.value());
}

int RVSpineConfigImpl::highestLine(unsigned pages) const
{
    RVDistance usable = spineWidth(pages);
    usable -= additionalWidth * 2.0;
    usable *= USABLE_PART;
    return rvSaturated(std::round(usable.value()));
}

int RVSpineConfigImpl::spineMaxFontHeigth(unsigned pages, const QString &fontFamily) const
{
    const QList<int> sizes = RVFontSizeManager::instance()->defaultFontSizes();
    if (sizes.isEmpty())
        return 0;
    // The first size is never measured: it is the result even if it is too tall itself.
    if (!canMeasureText())
        return sizes.first();
    const int limit = highestLine(pages);
    for (qsizetype i = 1; i < sizes.size(); ++i) {
        if (lineSpacing(fontFamily, sizes.at(i)) > limit)
            return sizes.at(i - 1);
    }
    return sizes.last();
}

bool RVSpineConfigImpl::canMeasureText()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

bool RVSpineConfigImpl::hasRoomForText(unsigned pages, const QString &fontFamily) const
{
    const QList<int> sizes = RVFontSizeManager::instance()->defaultFontSizes();
    return sizes.isEmpty() || !canMeasureText() || lineSpacing(fontFamily, sizes.first()) <= highestLine(pages);
}

bool RVSpineConfigImpl::operator==(const RVSpineConfigImpl &other) const
{
    return pageCountOrganization == other.pageCountOrganization && packagesPerBlock == other.packagesPerBlock
            && baseWidth == other.baseWidth && blockWidth == other.blockWidth
            && additionalWidth == other.additionalWidth;
}
