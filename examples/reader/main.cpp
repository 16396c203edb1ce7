// reader FILE: lists the products of a catalogue, with the installed package.
#include <RVCatalogue/RVCatalogueReader.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);

    RVCatalogueReader reader(application.arguments().value(1));
    for (const RVCatalogueProduct &product : reader)
        out << product.type().toString() << " has " << product.pageCounts().maxPages() << " pages at most\n";
    if (reader.hasError())
        out << "line " << reader.errorPosition().line << ": " << reader.errorString() << '\n';
    return reader.hasError() ? 1 : 0;
}
