#include "ProductFaults.h"

namespace {

constexpr int SHOWN = 3;

}

ProductFaults::ProductFaults(const LoadedCatalogue &catalogue, int product)
{
    for (const RVCatalogueFinding &finding : catalogue.findings()) {
        if (finding.product() == product && finding.severity() == RVCatalogueSeverity::Error)
            myErrors += finding.text();
    }
}

QString ProductFaults::text() const
{
    QStringList lines = myErrors.mid(0, SHOWN);
    const int more = int(myErrors.size()) - SHOWN;
    if (more > 0)
        lines += tr("and %n more, which the findings have", nullptr, more);
    return lines.join(u'\n');
}
