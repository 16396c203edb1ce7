// A project file, as one line, and the catalogue that "rvcatalog order" checks it against.
#include "CommandRunner.h"
#include "Input.h"
#include "Properties.h"

#include <Commands.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QDomDocument>

using namespace Qt::StringLiterals;

namespace {

/// The project whose order has only defaults, for the first product of the catalogue.
QByteArray defaultProject(QByteArray catalogue)
{
    QBuffer buffer(&catalogue);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    const RVCatalogueProduct product = reader.next();
    if (!reader.finish() || product.isNull() || !product.pageCounts().isValid())
        return QByteArray();
    QDomDocument document;
    QDomElement project = document.createElement(u"project"_s);
    project.setAttribute(u"productname"_s, product.element().attribute("type"_L1));
    document.appendChild(project);
    return document.toByteArray();
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static MemoryFile project;
    static MemoryFile catalogue;
    Input input(data, size);
    project.write(input.text().toUtf8());
    const QByteArray products = input.rest();
    catalogue.write(products);
    runQuietly({ u"order"_s, catalogue.name(), project.name() });

    const QByteArray plain = defaultProject(products);
    if (!plain.isEmpty()) {
        project.write(plain);
        CHECK_EQUAL(runQuietly({ u"order"_s, catalogue.name(), project.name() }), int(EXIT_FINE));
    }
    return 0;
}
