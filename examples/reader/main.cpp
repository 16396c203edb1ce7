// reader FILE: lists the products of a catalogue, with the installed package.
#include <RVCatalogue/RVCatalogueReader.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);

    RVCatalogueReader reader(application.arguments().value(1));
    for (const RVCatalogueProduct &product : reader) {
        const RVPageCountOrganization pages = product.pageCounts();
        out << product.type().toString() << ": " << product.name() << '\n';
        out << "  has " << pages.minPages() << " to " << pages.maxPages() << " pages\n";
        if (product.hasSpine()) {
            const RVDistance width = product.spine().spineWidth(pages.maxPages());
            out << "  has a spine of " << width.value(DISTANCE_UNIT_MILLIMETRE) << " mm at most\n";
        }
        if (!product.options().isEmpty())
            out << "  has the options " << product.options().keys().join(u", ") << '\n';
    }
    if (reader.hasError())
        out << "line " << reader.errorPosition().line << ": " << reader.errorString() << '\n';
    return reader.hasError() ? 1 : 0;
}
