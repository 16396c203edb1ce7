#include "Commands.h"
#include "NearestText.h"
#include "PlotFile.h"

#include <CatalogueProduct.h>
#include <SpinePlot.h>

#include <QCommandLineParser>
#include <QFile>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Lookup
{
    std::optional<CatalogueProduct> product; // the first of the type
    FilePosition position; // of the product
    QString nearestType; // where there is none
    bool isReadable = false;
};

/// Reads the catalogue to its end, so that a broken one is noticed; reports what is wrong with the file.
Lookup findProduct(const QString &fileName, const RVProductType &type)
{
    Lookup lookup;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        report(fileName, FilePosition(), u"cannot open the file: "_s + file.errorString());
        return lookup;
    }
    CatalogueReader reader(&file, u"product"_s);
    NearestText nearest(type.toString());
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        const RVProductType found(element.attribute(u"type"_s));
        if (!lookup.product && found == type) {
            lookup.product = CatalogueProduct(element);
            lookup.position = reader.position();
        }
        nearest.offer(found.toString());
    }
    lookup.nearestType = nearest.text();
    lookup.isReadable = !reader.hasError();
    if (!lookup.isReadable)
        report(fileName, reader.errorPosition(), reader.errorString());
    return lookup;
}

/// Why the product has no table of spine widths; empty where it has one.
QString problem(const Lookup &lookup, const RVProductType &type)
{
    if (!lookup.product) {
        const QString text = u"the catalogue has no product of type \"%1\""_s.arg(type.orderTxtName());
        return lookup.nearestType.isEmpty() ? text : text + u"; did you mean \"%1\"?"_s.arg(lookup.nearestType);
    }
    if (!lookup.product->pageCounts.isValid() || lookup.product->pageCounts.minPages() < 0)
        return u"%1 has no valid page counts (%2)"_s.arg(type.toString(), lookup.product->pageCounts.dump());
    if (!lookup.product->hasSpine())
        return u"%1 has no spine"_s.arg(type.toString());
    if (SpineTable(lookup.product->spine, lookup.product->pageCounts).rowCount() == 0)
        return u"the spine widths of %1 are too large for a number"_s.arg(type.toString());
    return QString();
}

/// A number that needs more room gets it, and still stands apart.
void writeCell(QTextStream &out, int width, const QString &text)
{
    out << ' ' << text.rightJustified(width - 1);
}

/// False where the output is gone, say because the reader of a pipe has enough.
bool writeTable(const SpineTable &table)
{
    QTextStream out(stdout);
    out << "     PAGES   PACKAGES     BLOCKS  SPINE mm  FONT pt\n";
    for (int i = 0; i < table.rowCount(); ++i) {
        const SpineRow row = table.row(i);
        writeCell(out, 10, QString::number(row.pages));
        writeCell(out, 11, QString::number(row.packages));
        writeCell(out, 11, QString::number(row.blocks));
        writeCell(out, 10, QString::number(row.width, 'f', 2));
        writeCell(out, 9, QString::number(row.fontSize));
        out << '\n';
        if (out.status() != QTextStream::Ok)
            return false;
    }
    out.flush();
    return out.status() == QTextStream::Ok;
}

QString plotTitle(const CatalogueProduct &product)
{
    const QString type = product.type.toString();
    return product.name.isEmpty() ? type : u"%1 (%2)"_s.arg(product.name, type);
}

}

int spineCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists every page count of a product: packages above the lowest count, whole blocks of packages, width\n"
            "of the spine and the largest font size that fits it. A photo book code stands for its family."_s);
    const QCommandLineOption plotOption(u"plot"_s, u"Draw the width over the page count as well, as PNG or SVG."_s,
                                        u"FILE"_s);
    parser.addOption(plotOption);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML."_s, u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"TYPE"_s, u"The product type, such as DUN9."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, &exitCode))
        return exitCode;
    const QString plotName = parser.value(plotOption);
    const PlotFile plotFile(plotName);
    if (parser.isSet(plotOption) && !plotFile.isSupported()) {
        QTextStream(stderr) << "rvcatalog: the name of a plot ends in .png or .svg, but got \"" << plotName << "\"\n";
        return EXIT_UNREADABLE;
    }

    const QString fileName = parser.positionalArguments().at(0);
    const RVProductType type(parser.positionalArguments().at(1));
    const Lookup lookup = findProduct(fileName, type);
    if (!lookup.isReadable)
        return EXIT_UNREADABLE;
    const QString text = problem(lookup, type);
    if (!text.isEmpty()) {
        report(fileName, lookup.position, text);
        return EXIT_PROBLEMS;
    }
    const SpineTable table(lookup.product->spine, lookup.product->pageCounts);
    if (parser.isSet(plotOption)) {
        SpinePlot plot(table);
        plot.setTitle(plotTitle(*lookup.product));
        const QString failure = plotFile.write(plot, plotTitle(*lookup.product));
        if (!failure.isNull()) {
            report(plotName, FilePosition(), u"cannot write the plot: "_s + failure);
            return EXIT_UNREADABLE;
        }
    }
    return writeTable(table) ? EXIT_FINE : EXIT_UNREADABLE;
}
