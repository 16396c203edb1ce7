#include "Commands.h"

#include <BatchPipeline.h>
#include <CatalogueProduct.h>
#include <ProductJson.h>

#include <QCommandLineParser>
#include <QFile>
#include <QMap>
#include <QTextStream>

#include <cstdio>
#include <string>
#include <string_view>

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

unsigned pages(int count)
{
    return unsigned(qMax(0, count));
}

int fontSize(const CatalogueProduct &product, int pageCount)
{
    return product.spine.spineMaxFontHeigth(pages(pageCount), QString());
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

QString spineText(const CatalogueProduct &product)
{
    if (!product.hasSpine())
        return u"-"_s;
    return between(millimetres(product.spine.spineWidth(pages(product.pageCounts.minPages()))),
                   millimetres(product.spine.spineWidth(pages(product.pageCounts.maxPages()))));
}

QString fontText(const CatalogueProduct &product)
{
    if (!product.hasSpine())
        return u"-"_s;
    return between(QString::number(fontSize(product, product.pageCounts.minPages())),
                   QString::number(fontSize(product, product.pageCounts.maxPages())));
}

/// The options of a product, one piece a key: "alcolor: black*, red".
QStringList optionTexts(const CatalogueProduct &product)
{
    const RVArticleVariants defaults = product.options.defaultVariants();
    QMap<QString, QStringList> valuesByKey;
    for (const RVConfiguredArticleVariant &option : product.options)
        valuesByKey[option.key()] += option.value() + (defaults.value(option.key()) == option.value() ? "*"_L1 : ""_L1);
    QStringList result;
    for (auto it = valuesByKey.constBegin(); it != valuesByKey.constEnd(); ++it)
        result += it.key() + ": "_L1 + it.value().join(", "_L1);
    return result;
}

template<typename T>
void addAttribute(QStringList *texts, QLatin1StringView name, const T &attribute)
{
    if (!attribute.isNull())
        *texts += name + u' ' + attribute.encodeCSV();
}

QString barcodeText(const RVBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    return u"barcode %1 x %2 mm at %3, %4 on page %5"_s.arg(
            millimetres(RVDistance(rect.width())), millimetres(RVDistance(rect.height())),
            millimetres(RVDistance(rect.left())), millimetres(RVDistance(rect.top())),
            QString::number(barcode.pageNr()));
}

/// What the product is, in keywords: "book, cover HARDCOVER, binding glue", and its barcodes.
QStringList attributeTexts(const CatalogueProduct &product)
{
    QStringList attributes;
    addAttribute(&attributes, "class"_L1, product.articleClass);
    addAttribute(&attributes, "cover"_L1, product.coverType);
    addAttribute(&attributes, "binding"_L1, product.pageBinding);
    addAttribute(&attributes, "paper"_L1, product.paperType);
    if (!product.fotoPaperType.isNull())
        attributes += "photo paper "_L1 + product.fotoPaperType.humanReadableName();
    addAttribute(&attributes, "orientation"_L1, product.orientation);
    addAttribute(&attributes, "size"_L1, product.spaceMagnitude);
    if (product.shippingGroup.isValid())
        attributes += "shipping group "_L1 + product.shippingGroup.toString();

    QStringList result;
    if (!attributes.isEmpty())
        result += attributes.join("; "_L1);
    for (const RVBarcodeDefinition &barcode : product.barcodes)
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

struct Problem
{
    FilePosition position;
    QString text;
};

QList<Problem> problems(const CatalogueProduct &product, const FilePosition &position)
{
    QList<Problem> result;
    if (product.type.isUnknown())
        result += { position, u"the product has no type"_s };
    if (!product.pageCounts.isValid())
        result += { position, u"the product has no valid page counts (%1)"_s.arg(product.pageCounts.dump()) };
    return result;
}

/// What the products of a file come to.
struct Summary
{
    QString fileName;
    bool isEmpty = true;
    bool hasProblems = false;

    void add(const QList<Problem> &problems)
    {
        isEmpty = false;
        hasProblems = hasProblems || !problems.isEmpty();
        for (const Problem &problem : problems)
            report(fileName, problem.position, problem.text);
    }
};

void showTable(CatalogueReader &reader, Summary *summary)
{
    QTextStream out(stdout);
    writeRow(out, { u"TYPE"_s, u"PAGES"_s, u"COUNTS"_s, u"SPINE mm"_s, u"FONT pt"_s },
             { u"ATTRIBUTES, OPTIONS (* is the default)"_s });
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        const CatalogueProduct product(element);
        writeRow(out,
                 { product.type.orderTxtName(), pageCountsText(product.pageCounts),
                   QString::number(product.pageCounts.numberOfPackages()), spineText(product), fontText(product) },
                 attributeTexts(product) + optionTexts(product));
        summary->add(problems(product, reader.position()));
    }
}

struct JsonLines
{
    std::string text;
    QList<Problem> problems;
};

JsonLines jsonLines(const CatalogueBatch &batch)
{
    ProductJson json;
    JsonLines result;
    for (int i = 0; i < batch.size(); ++i) {
        const CatalogueElement element = batch.at(i);
        const CatalogueProduct product = CatalogueProduct::withoutOptions(element);
        json.separator(batch.firstProduct() + i == 0 ? "\n" : ",\n");
        json.write(product, element);
        result.problems += problems(product, element.position());
    }
    result.text = json.take();
    return result;
}

void write(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void showJson(CatalogueReader &reader, Summary *summary)
{
    write("[");
    forEachBatch(reader, jsonLines, [&](const JsonLines &lines) {
        write(lines.text);
        summary->add(lines.problems);
        return true;
    });
    write("\n]\n");
    std::fflush(stdout);
}

}

int showCommand(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists every product of a catalogue: type, page counts, how many counts there are to choose from, spine\n"
            "width and largest spine font size at the lowest and the highest count, then article class, cover, "
            "binding,\n"
            "paper, orientation, size class, shipping group and barcodes, and the options per key."_s);
    const QCommandLineOption json(u"json"_s, u"Write a JSON array, one product a line."_s);
    parser.addOption(json);
    parser.addPositionalArgument(u"CATALOGUE"_s, u"The products XML."_s, u"CATALOGUE.xml"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 1, 1, &exitCode))
        return exitCode;

    const QString fileName = parser.positionalArguments().constFirst();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        report(fileName, FilePosition(), u"cannot open the file: "_s + file.errorString());
        return EXIT_UNREADABLE;
    }
    CatalogueReader reader(&file, u"product"_s);
    Summary summary { fileName };
    if (parser.isSet(json))
        showJson(reader, &summary);
    else
        showTable(reader, &summary);
    if (reader.hasError()) {
        report(fileName, reader.errorPosition(), reader.errorString());
        return EXIT_UNREADABLE;
    }
    if (summary.isEmpty) {
        report(fileName, FilePosition(), u"there is no product in this file"_s);
        return EXIT_PROBLEMS;
    }
    return summary.hasProblems ? EXIT_PROBLEMS : EXIT_FINE;
}
