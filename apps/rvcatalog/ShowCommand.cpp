#include "CatalogueJson.h"
#include "FontReport.h"
#include "Interruption.h"
#include "ProductSheet.h"
#include "ProductTable.h"
#include "SubCommands.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// Writes the selected products with a ProductTable or a ProductSheet.
template<typename Writer>
void writeProducts(CatalogueFile &file, const ProductFilter &filter, Writer *writer, ShowReport *report)
{
    for (const RVCatalogueProduct &product : file.reader()) {
        report->addTypes({ product.type() });
        if (!filter.chooses(product))
            continue;
        const ProductValues values(product);
        writer->write(values);
        report->addShown(1, ShowReport::problems(values));
    }
}

void writeProductTable(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console)
{
    QTextStream out(console.output);
    ProductTable table(&out);
    table.writeHeading();
    writeProducts(file, filter, &table, report);
}

void writeSheets(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console)
{
    QTextStream out(console.output);
    ProductSheet sheet(&out, file.name());
    writeProducts(file, filter, &sheet, report);
}

using Write = void (*)(CatalogueFile &file, const ProductFilter &filter, ShowReport *report, const Console &console);

/// The function that writes a format; JSON always has everything.
Write writer(const QString &format, bool isLong)
{
    if (format == "json"_L1)
        return writeCatalogueJson;
    return isLong ? writeSheets : writeProductTable;
}

int show(const QString &fileName, const ProductFilter &filter, Write write, const Console &console)
{
    // A signal leaves whole JSON. Reading from a pipe would not notice the signal, and could wait for any time.
    std::optional<Interruption> interruption;
    if (write == writeCatalogueJson && QFileInfo(fileName).isFile())
        interruption.emplace();
    CatalogueFile file(fileName, console);
    if (file.reportError())
        return EXIT_UNREADABLE;
    reportMissingFont(console);
    ShowReport report(file, filter);
    write(file, filter, &report, console);
    if (const int signal = Interruption::signal(); signal != 0)
        return Interruption::exitCode(signal);
    return file.finish() ? report.end() : EXIT_UNREADABLE;
}

QString showDescription()
{
    return u"Lists the products of a catalogue, or only those of the named types: type, page counts and their number, "
           "spine width and largest spine font size at the lowest and the highest count, and name; below them article "
           "class, cover, binding, paper, orientation, size class, shipping group, article, price classes, barcodes, "
           "and the options of each key. With --long or --format json, writes everything that the catalogue says.\n\n"
           "A condition is an attribute, one of = != < > <= >= (the last four for numbers), and a value. Keywords are "
           "compared by their values; a product must have all keywords of a list. Texts may contain the wildcards * "
           "and ?. Without a value, = selects products without the attribute. The attributes are:\n%1."_s.arg(
                   ProductCondition::attributeNames().join(", "_L1));
}

}

int showCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(showDescription());
    const QCommandLineOption format = formatOption({ u"text"_s, u"json"_s });
    const QCommandLineOption isLong(u"long"_s, u"Write everything, one line for each subject."_s);
    const QCommandLineOption where(
            u"where"_s,
            u"List only products that meet this condition, such as cover_type=HARDCOVER; may be given several times."_s,
            u"CONDITION"_s);
    parser.addOptions({ format, isLong, where });
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"TYPE"_s, u"List only products of this type; without it, all products."_s,
                                 u"[TYPE...]"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 1, ANY_NUMBER, console, &exitCode))
        return exitCode;

    const QStringList names = parser.positionalArguments();
    const ProductFilter filter(names.mid(1), parser.values(where));
    if (!filter.problem().isEmpty())
        return refuseArguments(arguments.constFirst(), filter.problem(), console);
    return show(names.constFirst(), filter, writer(parser.value(format), parser.isSet(isLong)), console);
}
