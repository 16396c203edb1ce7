#include "RVCatalogueProject.h"

#include "RVCatalogueParser_p.h"
#include "RVCatalogueProductData_p.h"
#include "RVXmlScanner_p.h"

#include <QDomElement>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Keeps the start tag of the root element; the rest of the file only has to be well-formed.
class RootHandler : public RVXmlHandler
{
public:
    explicit RootHandler(RVCatalogueProductData *data) : myData(data) { }

    void startElement(const RVXmlTag &tag) override
    {
        if (myData->rows.elements.empty())
            myData->rows.append(tag);
    }
    void endElement() override { }
    bool isInPiece() const override { return false; }

private:
    RVCatalogueProductData *myData;
};

}

RVCatalogueProject::RVCatalogueProject() = default;
RVCatalogueProject::RVCatalogueProject(const RVCatalogueProject &other) = default;
RVCatalogueProject::RVCatalogueProject(RVCatalogueProject &&other) noexcept = default;
RVCatalogueProject &RVCatalogueProject::operator=(const RVCatalogueProject &other) = default;
RVCatalogueProject &RVCatalogueProject::operator=(RVCatalogueProject &&other) noexcept = default;
RVCatalogueProject::~RVCatalogueProject() = default;

RVCatalogueProject RVCatalogueProject::read(const QString &fileName)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly))
        return read(&file);
    RVCatalogueProject result;
    result.myError = RVXmlScanner::openError(file);
    return result;
}

RVCatalogueProject RVCatalogueProject::read(QIODevice *device)
{
    RVCatalogueProject result;
    result.d = new RVCatalogueProductData;
    RootHandler handler(result.d.data());
    RVXmlScanner scanner(device, &handler);
    while (scanner.scan()) { }
    result.myError = scanner.errorString();
    result.myErrorPosition = scanner.errorPosition();
    return result;
}

RVProductType RVCatalogueProject::type() const
{
    const RVCatalogueElement root = element();
    return root.hasAttribute("productname"_L1) ? RVProductType(root.attribute("productname"_L1))
                                               : RVProductType::fromKtx(QDomElement());
}

QString RVCatalogueProject::pages() const
{
    return element().attribute("pages"_L1);
}

QString RVCatalogueProject::variants() const
{
    return element().attribute("variants"_L1);
}

RVCatalogueElement RVCatalogueProject::element() const
{
    return d && !d->rows.elements.empty() ? RVCatalogueElement(d.data(), 0, 1) : RVCatalogueElement();
}
