#include "FontReport.h"
#include "JsonValues.h"
#include "ProductSearch.h"
#include "ProductValues.h"
#include "SubCommands.h"

#include <DrawingExport.h>
#include <SpineFont.h>
#include <SpinePlot.h>

#include <QCommandLineParser>
#include <QLocale>
#include <QTextStream>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int MOST_COUNTS = 100000;

QString tooManyCounts(const ProductValues &values)
{
    return u"%1 has %2 page counts, and no more than %3 can be listed; set a larger page_step or a smaller max_pages"_s
            .arg(values.type.toString())
            .arg(values.pageCounts.numberOfPackages())
            .arg(MOST_COUNTS);
}

/// The reason why the product has no table of spine widths; nothing if it has one.
std::optional<Problem> problem(const ProductValues &values)
{
    const RVFilePosition position = values.product.range().begin;
    const QString type = values.type.toString();
    if (!values.pageCounts.isValid() || values.pageCounts.minPages() < 0)
        return Problem { position, u"%1 has no valid page counts (%2)"_s.arg(type, values.pageCounts.dump()) };
    if (!values.hasSpine)
        return Problem { position, u"%1 has no spine"_s.arg(type) };
    if (values.pageCounts.numberOfPackages() > MOST_COUNTS)
        return Problem { values.product.element().attributeRange("max_pages"_L1).begin, tooManyCounts(values) };
    if (SpineTable(values.spine, values.pageCounts).rowCount() == 0)
        return Problem { position, u"the spine widths of %1 are too large for a number"_s.arg(type) };
    return std::nullopt;
}

/// A longer number gets more room, and is still preceded by a blank.
void writeCell(QTextStream &out, int width, const QString &text)
{
    out << ' ' << text.rightJustified(width - 1);
}

/// Stops where the output is gone, for example because the reader of a pipe has ended.
void writeSpineTable(const SpineTable &table, const Console &console)
{
    QTextStream out(console.output);
    out << "     PAGES   PACKAGES     BLOCKS  SPINE mm  FONT pt " << SpineFont::family() << '\n';
    for (int i = 0; i < table.rowCount(); ++i) {
        const SpineRow row = table.row(i);
        writeCell(out, 10, QString::number(row.pages));
        writeCell(out, 11, QString::number(row.packages));
        writeCell(out, 11, QString::number(row.blocks));
        writeCell(out, 10, QString::number(row.width, 'f', 2));
        writeCell(out, 9, QString::number(row.fontSize));
        out << '\n';
        if (out.status() != QTextStream::Ok)
            return;
    }
}

void writeJson(const QString &catalogueName, const ProductValues &values, const SpineTable &table,
               const Console &console)
{
    JsonWriter json;
    QList<std::string> rows;
    for (int i = 0; i < table.rowCount(); ++i) {
        writeSpineRow(json, table.row(i));
        rows += json.take();
    }
    json.beginObject();
    json.key("name"_L1);
    writeText(json, values.product.name());
    json.key("pages"_L1);
    writePageCounts(json, values.pageCounts);
    json.key("place"_L1);
    writePlace(json, catalogueName, values.product.range().begin);
    json.key("spine"_L1);
    json.lines(rows);
    json.key("type"_L1);
    writeText(json, values.type.toString());
    json.endObject();
    console.write(json.take() + '\n');
}

QString plotTitle(const ProductValues &values)
{
    const QString type = values.type.toString();
    const QString name = values.product.name();
    return name.isEmpty() ? type : u"%1 (%2)"_s.arg(name, type);
}

/// False, with a message, where the plot could not be written.
bool writePlot(const QString &fileName, const SpineTable &table, const QString &title, const Console &console)
{
    SpinePlot plot(table);
    plot.setTitle(title);
    plot.setLocale(QLocale());
    const QString failure = DrawingExport(plot).write(fileName);
    if (!failure.isNull())
        console.report(fileName, { RVFilePosition(), u"cannot write the plot: "_s + failure });
    return failure.isNull();
}

/// The options of the user.
struct SpineRequest
{
    QString catalogueName;
    QString type;
    QString plotName; ///< empty for none
    QString format;
};

int writeSpine(const SpineRequest &request, const Console &console)
{
    const QString &catalogueName = request.catalogueName;
    const std::optional<ProductSearch> search = findProduct(catalogueName, RVProductType(request.type), console);
    if (!search)
        return EXIT_UNREADABLE;
    const ProductValues values(search->product);
    const std::optional<Problem> found = search->product.isNull() ? Problem { RVFilePosition(), search->problem }
                                                                  : problem(values);
    if (found) {
        console.report(catalogueName, *found);
        return EXIT_PROBLEMS;
    }
    reportMissingFont(console);
    const SpineTable table(values.spine, values.pageCounts);
    if (!request.plotName.isEmpty() && !writePlot(request.plotName, table, plotTitle(values), console))
        return EXIT_UNREADABLE;
    if (request.format == "json"_L1)
        writeJson(catalogueName, values, table, console);
    else
        writeSpineTable(table, console);
    return EXIT_FINE;
}

}

int spineCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists every page count of a product: packages above the lowest count, whole blocks of packages, width\n"
            "of the spine and the largest font size that fits it. A photo book code stands for its family."_s);
    const QCommandLineOption plotOption(u"plot"_s, u"Draw the width over the page count as well, as SVG, PNG or PDF."_s,
                                        u"FILE"_s);
    const QCommandLineOption format = formatOption({ u"text"_s, u"json"_s });
    parser.addOptions({ format, plotOption });
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml"_s);
    parser.addPositionalArgument(u"TYPE"_s, u"The product type, such as DUN9."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, console, &exitCode))
        return exitCode;
    const QString plotName = parser.value(plotOption);
    if (parser.isSet(plotOption) && !DrawingExport::formatOf(plotName)) {
        QTextStream(console.messages) << "rvcatalog: the name of a plot ends in .svg, .png or .pdf, but got \""
                                      << plotName << "\"\n";
        return EXIT_UNREADABLE;
    }
    const QStringList names = parser.positionalArguments();
    return writeSpine({ names.at(0), names.at(1), plotName, parser.value(format) }, console);
}
