#include "CatalogueFile.h"
#include "ProductJson.h"
#include "ProductValues.h"
#include "SubCommands.h"

#include <RVCatalogueAttributes.h>

#include <QCommandLineParser>
#include <QMap>
#include <QMutex>
#include <QTextStream>

#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr RVDistanceUnit MILLIMETRE = DISTANCE_UNIT_MILLIMETRE;
constexpr int LINE_WIDTH = 100;
// Wide enough for the codes and counts of a catalogue; the table is written before its last row is known.
constexpr int COLUMN_WIDTHS[] = { 9, 17, 7, 12, 8 };

QString millimetres(const RVDistance &distance)
{
    return QString::number(distance.value(MILLIMETRE), 'f', 1);
}

QString between(const QString &lowest, const QString &highest)
{
    return lowest == highest ? lowest : lowest + u'-' + highest;
}

QString pageCountsText(const RVPageCountOrganization &counts)
{
    const QString range = between(QString::number(counts.minPages()), QString::number(counts.maxPages()));
    return counts.numberOfPackages() > 1 ? range + " by "_L1 + QString::number(counts.pageIncrement()) : range;
}

QString spineText(const ProductValues &values)
{
    if (!values.hasSpine)
        return u"-"_s;
    return between(millimetres(values.spineWidth(values.pageCounts.minPages())),
                   millimetres(values.spineWidth(values.pageCounts.maxPages())));
}

QString fontText(const ProductValues &values)
{
    if (!values.hasSpine)
        return u"-"_s;
    return between(QString::number(values.fontSize(values.pageCounts.minPages())),
                   QString::number(values.fontSize(values.pageCounts.maxPages())));
}

/// The options of a product, one piece a key: "alcolor: black*, red".
QStringList optionTexts(const RVConfiguredArticleVariantList &options)
{
    const RVArticleVariants defaults = options.defaultVariants();
    QMap<QString, QStringList> valuesByKey;
    for (const RVConfiguredArticleVariant &option : options)
        valuesByKey[option.key()] += option.value() + (defaults.value(option.key()) == option.value() ? "*"_L1 : ""_L1);
    QStringList result;
    for (auto it = valuesByKey.constBegin(); it != valuesByKey.constEnd(); ++it)
        result += it.key() + ": "_L1 + it.value().join(", "_L1);
    return result;
}

template<typename T>
void addAttribute(QStringList *texts, const RVCatalogueAttributeRow<T> &row, const RVCatalogueProduct &product)
{
    if (!row.isOfProducts)
        return;
    const T attribute = (product.*row.value)();
    if (attribute.isNull())
        return;
    const QString text = row.hasBareKeywords ? (attribute.*row.displayName)() : attribute.encodeCSV();
    *texts += QLatin1StringView(row.shortLabel) + u' ' + text;
}

QString barcodeText(const RVBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    return u"barcode %1 x %2 mm at %3, %4 on page %5"_s.arg(
            millimetres(RVDistance(rect.width())), millimetres(RVDistance(rect.height())),
            millimetres(RVDistance(rect.left())), millimetres(RVDistance(rect.top())),
            QString::number(barcode.pageNr()));
}

/// The product in keywords, such as "class book; cover HARDCOVER; binding glue", and its barcodes.
QStringList attributeTexts(const RVCatalogueProduct &product)
{
    QStringList attributes;
    std::apply([&](const auto &...rows) { (addAttribute(&attributes, rows, product), ...); }, RV_CATALOGUE_ATTRIBUTES);
    const RVShippingGroupId shippingGroup = product.shippingGroup();
    if (shippingGroup.isValid())
        attributes += "shipping group "_L1 + shippingGroup.toString();

    QStringList result;
    if (!attributes.isEmpty())
        result += attributes.join("; "_L1);
    const RVBarcodeDefinitionList barcodes = product.barcodes();
    for (const RVBarcodeDefinition &barcode : barcodes)
        result += barcodeText(barcode);
    return result;
}

/// Fills lines of the given width with the words of a text.
QStringList wrapped(const QString &text, qsizetype width)
{
    QStringList lines(1);
    for (const QString &word : text.split(u' ')) {
        if (!lines.last().isEmpty() && lines.last().size() + 1 + word.size() > width)
            lines += QString();
        lines.last() += (lines.last().isEmpty() ? ""_L1 : " "_L1) + word;
    }
    return lines;
}

void writeRow(QTextStream &out, const QStringList &columns, const QStringList &details)
{
    QString row;
    qsizetype end = 0;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        row += columns.at(i) + u' ';
        end += COLUMN_WIDTHS[i];
        row = row.leftJustified(end);
    }
    QStringList lines;
    for (const QString &text : details)
        lines += wrapped(text, LINE_WIDTH - end);
    out << QString(row + lines.value(0)).trimmed() << '\n';
    for (const QString &line : lines.mid(1))
        out << QString(end, u' ') << line << '\n';
}

QList<Problem> problems(const ProductValues &values)
{
    QList<Problem> result;
    if (!values.type.isUnknown() && values.pageCounts.isValid())
        return result;
    const RVFilePosition position = values.product.range().begin;
    if (values.type.isUnknown())
        result += { position, u"the product has no type"_s };
    if (!values.pageCounts.isValid())
        result += { position, u"the product has no valid page counts (%1)"_s.arg(values.pageCounts.dump()) };
    return result;
}

/// Reports what is wrong with the products of a file.
class Reporter
{
public:
    explicit Reporter(const CatalogueFile &file) : myFile(file) { }

    void add(const QList<Problem> &problems)
    {
        myIsEmpty = false;
        myHasProblems = myHasProblems || !problems.isEmpty();
        for (const Problem &problem : problems)
            myFile.report(problem);
    }
    int end() const
    {
        if (myIsEmpty)
            myFile.report({ RVFilePosition(), u"there is no product in this file"_s });
        return myIsEmpty || myHasProblems ? EXIT_PROBLEMS : EXIT_FINE;
    }

private:
    const CatalogueFile &myFile;
    bool myIsEmpty = true;
    bool myHasProblems = false;
};

void showTable(RVCatalogueReader &reader, Reporter *reporter, const Console &console)
{
    QTextStream out(console.output);
    writeRow(out, { u"TYPE"_s, u"PAGES"_s, u"COUNTS"_s, u"SPINE mm"_s, u"FONT pt"_s },
             { u"ATTRIBUTES, OPTIONS (* is the default)"_s });
    for (const RVCatalogueProduct &product : reader) {
        const ProductValues values(product);
        writeRow(out,
                 { values.type.orderTxtName(), pageCountsText(values.pageCounts),
                   QString::number(values.pageCounts.numberOfPackages()), spineText(values), fontText(values) },
                 attributeTexts(product) + optionTexts(product.options()));
        reporter->add(problems(values));
    }
}

struct JsonLines
{
    std::string text;
    QList<Problem> problems;
};

JsonLines jsonLines(const QList<RVCatalogueProduct> &products, ProductJson *json)
{
    JsonLines result;
    for (const RVCatalogueProduct &product : products) {
        const ProductValues values(product);
        json->separator(product.number() == 0 ? "\n" : ",\n");
        json->write(values);
        result.problems += problems(values);
    }
    result.text = json->take();
    return result;
}

/// The writers of several threads, which keep what they know from one call to the next.
class JsonWriters
{
public:
    JsonLines lines(const QList<RVCatalogueProduct> &products)
    {
        std::unique_ptr<ProductJson> json = take();
        JsonLines result = jsonLines(products, json.get());
        const QMutexLocker locker(&myMutex);
        myIdleWriters.push_back(std::move(json));
        return result;
    }

private:
    std::unique_ptr<ProductJson> take()
    {
        const QMutexLocker locker(&myMutex);
        if (myIdleWriters.empty())
            return std::make_unique<ProductJson>();
        std::unique_ptr<ProductJson> result = std::move(myIdleWriters.back());
        myIdleWriters.pop_back();
        return result;
    }

    QMutex myMutex;
    std::vector<std::unique_ptr<ProductJson>> myIdleWriters;
};

void showJson(RVCatalogueReader &reader, Reporter *reporter, const Console &console)
{
    JsonWriters writers;
    console.write("[");
    reader.map([&](const QList<RVCatalogueProduct> &products) { return writers.lines(products); },
               [&](const JsonLines &lines) {
                   console.write(lines.text);
                   reporter->add(lines.problems);
                   return true;
               });
    console.write("\n]\n");
    std::fflush(console.output);
}

}

int showCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists every product of a catalogue: type, page counts, how many counts there are to choose from, spine\n"
            "width and largest spine font size at the lowest and the highest count, then article class, cover, "
            "binding,\n"
            "paper, orientation, size class, shipping group and barcodes, and the options per key."_s);
    const QCommandLineOption json(u"json"_s, u"Write a JSON array, one product a line."_s);
    parser.addOption(json);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML; \"-\" is the standard input."_s,
                                 u"CATALOGUE.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 1, 1, console, &exitCode))
        return exitCode;

    CatalogueFile file(parser.positionalArguments().constFirst(), console);
    if (file.reportError())
        return EXIT_UNREADABLE;
    Reporter reporter(file);
    if (parser.isSet(json))
        showJson(file.reader(), &reporter, console);
    else
        showTable(file.reader(), &reporter, console);
    return file.finish() ? reporter.end() : EXIT_UNREADABLE;
}
