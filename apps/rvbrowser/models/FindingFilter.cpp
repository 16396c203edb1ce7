#include "FindingFilter.h"

std::vector<bool> FindingFilter::accepted(const LoadedCatalogue &catalogue) const
{
    std::vector<bool> result(std::size_t(catalogue.findings().size()), false);
    for (const int number : catalogue.findingIndex().find(text)) {
        const RVCatalogueFinding &finding = catalogue.findings().at(number);
        result[std::size_t(number)] = (rule.isNull() || finding.rule() == rule) && !hidden.contains(finding.severity());
    }
    return result;
}
