#include "RVBarcodeDefinitionList.h"

#include "RVDomChildren_p.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

RVBarcodeDefinitionList RVBarcodeDefinitionList::createFromProductsXML(const QDomElement &parent,
                                                                       const RVDistanceUnit &unit)
{
    RVBarcodeDefinitionList result;
    rvVisitChildElements(parent, u"barcode"_s,
                         [&](const QDomElement &barcode) { result += createFromXTCI(barcode, unit); });
    return result;
}

RVBarcodeDefinitionList RVBarcodeDefinitionList::createFromXTCI(const QDomElement &element, const RVDistanceUnit &unit)
{
    RVBarcodeDefinitionList result;
    if (element.nodeName() != "barcode"_L1)
        return result;
    const auto definition = RVBarcodeDefinition::createFromProductsXML(element, unit);
    if (definition.isValid())
        result += definition;
    return result;
}

RVBarcodeDefinitionList RVBarcodeDefinitionList::barcodesOnPage(int pageNr) const
{
    RVBarcodeDefinitionList result;
    std::copy_if(begin(), end(), std::back_inserter(result),
                 [&](const RVBarcodeDefinition &definition) { return definition.pageNr() == pageNr; });
    return result;
}

QRegion RVBarcodeDefinitionList::occupiedRegion() const
{
    QRegion result;
    for (const RVBarcodeDefinition &definition : *this)
        result += definition.rect();
    return result;
}

RVBarcodeDefinition RVBarcodeDefinitionList::findDefinition(const QRect &rect) const
{
    const auto found = std::find_if(begin(), end(),
                                    [&](const RVBarcodeDefinition &definition) { return definition.rect() == rect; });
    return found == end() ? RVBarcodeDefinition() : *found;
}

void RVBarcodeDefinitionList::updateDefinitions(const RVBarcodeDefinitionList &other)
{
    RVBarcodeDefinitionList rest = other;
    while (!rest.isEmpty()) {
        const RVBarcodeDefinition definition = rest.takeFirst();
        rest.removeAll(definition);
        if (contains(definition))
            continue;
        const RVBarcodeDefinition replaced = findDefinition(definition.rect());
        if (replaced.isValid())
            removeAll(replaced);
        append(definition);
    }
}

bool RVBarcodeDefinitionList::operator<(const RVBarcodeDefinitionList &other) const
{
    if (isEmpty() || size() != other.size())
        return size() < other.size();
    return std::equal(begin(), end(), other.begin(),
                      [](const RVBarcodeDefinition &a, const RVBarcodeDefinition &b) { return a < b; });
}
