// A project file, as one line, and the catalogue that "rvcatalog order" checks it against.
#include "CommandRunner.h"
#include "Input.h"
#include "Properties.h"

#include <CatalogueProduct.h>
#include <CatalogueReader.h>
#include <Commands.h>

#include <QBuffer>

using namespace Qt::StringLiterals;

namespace {

/// The project whose order has nothing but defaults in it, for the first product of the catalogue.
QByteArray defaultProject(QByteArray catalogue)
{
    QBuffer buffer(&catalogue);
    buffer.open(QIODevice::ReadOnly);
    CatalogueReader reader(&buffer, u"product"_s);
    const QDomElement element = reader.next();
    if (!reader.finish() || element.isNull() || !CatalogueProduct(element).pageCounts.isValid())
        return QByteArray();
    QDomDocument document;
    QDomElement project = document.createElement(u"project"_s);
    project.setAttribute(u"productname"_s, element.attribute(u"type"_s));
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
    runCommand(orderCommand, { catalogue.name(), project.name() });

    const QByteArray plain = defaultProject(products);
    if (!plain.isEmpty()) {
        project.write(plain);
        CHECK_EQUAL(runCommand(orderCommand, { catalogue.name(), project.name() }), int(EXIT_FINE));
    }
    return 0;
}
