// The smallest program on the installed package: page counts, spine and order line of one photo book.
#include <RVProductBase/RVConfiguredArticleVariantList.h>
#include <RVProductBase/RVSpineConfig.h>

#include <QCoreApplication>
#include <QDomDocument>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);

    QDomDocument document;
    document.setContent(uR"(
        <product pages="26" max_pages="154" page_step="4">
            <composition units="mm">
                <spine packages_per_block="2" base_width="8" block_width="1" additional_width="0.5"/>
            </composition>
            <forms><form key="alcolor" value="red"/><form key="coverphoto" value="yes"/></forms>
        </product>)"_s);
    const QDomElement product = document.documentElement();

    const QString pages = RVPageCountOrganization::createFromProductsXML(product).dump();
    const qreal spine = RVSpineConfig::createFromProductsXML(product).spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE);
    const QString order = RVConfiguredArticleVariantList(product).joinForOrderTxt();
    QTextStream(stdout) << pages << "\nspine with 34 pages: " << spine << " mm\norder: " << order << '\n';

    const bool right = pages == "min: 26; max: 154; increment: 4"_L1 && qFuzzyCompare(spine, 10.0)
            && order == "alcolor:red;coverphoto:yes"_L1;
    return right ? 0 : 1;
}
