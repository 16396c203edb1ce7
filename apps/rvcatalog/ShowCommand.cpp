#include "Commands.h"

#include <CatalogueProduct.h>

#include <QCommandLineParser>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

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
    QStringList result;
    for (const QString &key : product.options.keys()) {
        QStringList values;
        for (const RVConfiguredArticleVariant &option : product.options.filter(key))
            values += option.value() + (defaults.value(key) == option.value() ? "*"_L1 : ""_L1);
        result += key + ": "_L1 + values.join(", "_L1);
    }
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

QJsonObject spineJson(const CatalogueProduct &product, int pageCount)
{
    return {
        { u"pages"_s, pageCount },
        { u"width_mm"_s, product.spine.spineWidth(pages(pageCount)).value(MILLIMETRE) },
        { u"max_font_size"_s, fontSize(product, pageCount) },
    };
}

/// Null for an attribute that the product does not have.
template<typename T>
QJsonValue attributeJson(const T &attribute, const QString &name = QString())
{
    if (attribute.isNull())
        return QJsonValue();
    QJsonObject result { { u"keywords"_s, QJsonArray::fromStringList(attribute.encodeBits()) } };
    if (!name.isEmpty())
        result.insert(u"name"_s, name);
    return result;
}

QJsonObject barcodeJson(const RVBarcodeDefinition &barcode)
{
    const auto inMillimetres = [](int tenths) { return RVDistance(tenths).value(MILLIMETRE); };
    return {
        { u"page"_s, barcode.pageNr() },
        { u"left_mm"_s, inMillimetres(barcode.rect().left()) },
        { u"top_mm"_s, inMillimetres(barcode.rect().top()) },
        { u"width_mm"_s, inMillimetres(barcode.rect().width()) },
        { u"height_mm"_s, inMillimetres(barcode.rect().height()) },
        { u"image"_s, barcode.imageName() },
    };
}

QJsonObject toJson(const CatalogueProduct &product)
{
    const RVPageCountOrganization &counts = product.pageCounts;
    const RVArticleVariants defaults = product.options.defaultVariants();
    QJsonArray options;
    for (const RVConfiguredArticleVariant &option : product.options) {
        options += QJsonObject {
            { u"key"_s, option.key() },
            { u"key_name"_s, option.keyName() },
            { u"value"_s, option.value() },
            { u"value_name"_s, option.visibleName() },
            { u"default"_s, defaults.value(option.key()) == option.value() },
            { u"accountable"_s, !option.isNotAccountable() },
        };
    }
    QJsonArray barcodes;
    for (const RVBarcodeDefinition &barcode : product.barcodes)
        barcodes += barcodeJson(barcode);
    return {
        { u"type"_s, product.type.toString() },
        { u"name"_s, product.name },
        { u"article_id"_s, product.articleId.isValid() ? QJsonValue(product.articleId.id()) : QJsonValue() },
        { u"article_class"_s, attributeJson(product.articleClass, product.articleClass.toHumanReadable()) },
        { u"cover_type"_s, attributeJson(product.coverType, product.coverType.humanReadableName()) },
        { u"page_binding"_s, attributeJson(product.pageBinding, product.pageBinding.humanReadableName()) },
        { u"paper_type"_s, attributeJson(product.paperType, product.paperType.humanReadableName()) },
        { u"foto_paper_type"_s, attributeJson(product.fotoPaperType, product.fotoPaperType.humanReadableName()) },
        { u"orientation"_s, attributeJson(product.orientation) },
        { u"space_magnitude"_s, attributeJson(product.spaceMagnitude, product.spaceMagnitude.humanReadableName()) },
        { u"shipping_group"_s,
          product.shippingGroup.isValid() ? QJsonValue(product.shippingGroup.id()) : QJsonValue() },
        { u"barcodes"_s, barcodes },
        { u"pages"_s,
          QJsonObject {
                  { u"lowest"_s, counts.minPages() },
                  { u"highest"_s, counts.maxPages() },
                  { u"step"_s, counts.pageIncrement() },
                  { u"count"_s, counts.numberOfPackages() },
                  { u"valid"_s, counts.isValid() },
          } },
        { u"spine"_s,
          product.hasSpine() ? QJsonValue(
                  QJsonArray { spineJson(product, counts.minPages()), spineJson(product, counts.maxPages()) })
                             : QJsonValue(QJsonValue::Null) },
        { u"options"_s, options },
    };
}

/// Writes products one by one, as rows of a table or as elements of a JSON array.
class ProductWriter
{
public:
    explicit ProductWriter(bool asJson) : myAsJson(asJson) { }

    void begin()
    {
        if (myAsJson)
            myOut << '[';
        else
            writeRow(myOut, { u"TYPE"_s, u"PAGES"_s, u"COUNTS"_s, u"SPINE mm"_s, u"FONT pt"_s },
                     { u"ATTRIBUTES, OPTIONS (* is the default)"_s });
    }

    void write(const CatalogueProduct &product)
    {
        if (myAsJson) {
            myOut << (myIsFirst ? "\n" : ",\n") << QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact);
            myIsFirst = false;
            return;
        }
        writeRow(myOut,
                 { product.type.orderTxtName(), pageCountsText(product.pageCounts),
                   QString::number(product.pageCounts.numberOfPackages()), spineText(product), fontText(product) },
                 attributeTexts(product) + optionTexts(product));
    }

    void end()
    {
        if (myAsJson)
            myOut << "\n]\n";
        myOut.flush();
    }

private:
    QTextStream myOut { stdout };
    bool myAsJson;
    bool myIsFirst = true;
};

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
    ProductWriter writer(parser.isSet(json));
    bool isEmpty = true;
    writer.begin();
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        const CatalogueProduct product(element);
        isEmpty = false;
        writer.write(product);
        if (product.type.isUnknown()) {
            report(fileName, reader.position(), u"the product has no type"_s);
            exitCode = EXIT_PROBLEMS;
        }
        if (!product.pageCounts.isValid()) {
            report(fileName, reader.position(),
                   u"the product has no valid page counts (%1)"_s.arg(product.pageCounts.dump()));
            exitCode = EXIT_PROBLEMS;
        }
    }
    writer.end();
    if (reader.hasError()) {
        report(fileName, reader.errorPosition(), reader.errorString());
        return EXIT_UNREADABLE;
    }
    if (isEmpty) {
        report(fileName, FilePosition(), u"there is no product in this file"_s);
        return EXIT_PROBLEMS;
    }
    return exitCode;
}
