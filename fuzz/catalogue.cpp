// A catalogue, read product by product as applications do, and shown and checked by rvcatalog.
#include "CommandRunner.h"
#include "Properties.h"

#include <Commands.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QDomDocument>
#include <QRegularExpression>

#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace {

/// Returns a few bytes at a time, as a pipe does.
class Drops : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64 maxSize) override { return QBuffer::readData(data, qMin(maxSize, qint64(3))); }
};

/// The results of the reader for a file.
struct Reading
{
    QStringList products;
    QStringList places;
    QStringList findings;
    QString error;
    QString errorPlace;
};

QString text(const RVFilePosition &position)
{
    return u"%1:%2"_s.arg(position.line).arg(position.column);
}

/// The element with its attributes and with all elements in it, as one text to compare.
/// @{
QString describe(const QString &name, QStringList attributes, const QString &children)
{
    attributes.sort();
    return u'<' + name + u' ' + attributes.join(u' ') + children + u'>';
}

QString describe(const QDomElement &element)
{
    QStringList attributes;
    for (int i = 0; i < element.attributes().size(); ++i) {
        const QDomAttr attribute = element.attributes().item(i).toAttr();
        attributes += attribute.name() + u'=' + attribute.value();
    }
    QString children;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children += describe(child);
    return describe(element.tagName(), attributes, children);
}

QString describe(const RVCatalogueElement &element)
{
    QStringList attributes;
    for (const QString &name : element.attributeNames())
        attributes += name + u'=' + element.attribute(QLatin1StringView(name.toUtf8()));
    QString children;
    for (RVCatalogueElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children += describe(child);
    return describe(element.name(), attributes, children);
}
/// @}

/// The outermost products of a document.
QStringList productsOf(const QDomNode &parent)
{
    QStringList result;
    for (QDomElement element = parent.firstChildElement(); !element.isNull(); element = element.nextSiblingElement())
        result += element.tagName() == "product"_L1 ? QStringList { describe(element) } : productsOf(element);
    return result;
}

/// True for a file that may have a name with a colon in a wrong place, which Qt refuses and XML does not.
bool hasOddColon(QByteArray xml)
{
    static const QRegularExpression oddColon(u":[^\\s=/>]*:|:[\\s=/>]|[</\\s]:"_s);
    xml.replace('\0', QByteArray()); // of UTF-16
    return oddColon.match(QString::fromLatin1(xml)).hasMatch();
}

/// The document that Qt reads; a null one, with a reason, if it reads none.
QDomDocument documentOf(const QByteArray &xml)
{
    QDomDocument document;
    if (document.setContent(xml))
        return document;
    CHECK(hasOddColon(xml));
    return QDomDocument();
}

void checkOptions(const RVCatalogueProduct &product, const QDomElement &document)
{
    const RVConfiguredArticleVariantList options = product.options();
    CHECK_EQUAL(options, RVConfiguredArticleVariantList(document));
    for (const RVConfiguredArticleVariant &option : options) {
        CHECK(option.isValid());
        product.optionPriceClass(option.key(), option.value());
    }
}

// The product must stay the same after it was written and read, and must have the values that the readers of the
// library give for its element.
void checkProduct(const RVCatalogueProduct &product)
{
    QByteArray xml = product.toXml();
    QBuffer buffer(&xml);
    buffer.open(QIODevice::ReadOnly);
    const RVCatalogueProduct again = RVCatalogueReader(&buffer).next();
    CHECK_EQUAL(describe(again.element()), describe(product.element()));
    const QDomElement element = documentOf(xml).documentElement();
    if (element.isNull())
        return;
    CHECK_EQUAL(describe(element), describe(product.element()));
    CHECK(product.type() == RVProductType(element.attribute(u"type"_s)));
    CHECK_EQUAL(product.barcodes(),
                RVBarcodeDefinitionList::createFromProductsXML(
                        element.firstChildElement(u"barcodes"_s),
                        RVDistanceUnit(element.firstChildElement(u"barcodes"_s).attribute(u"units"_s))));
    checkOptions(product, element);
}

// Findings come in the order of the file, each on one line and with a known rule.
void addFindings(const QList<RVCatalogueFinding> &findings, Reading *reading)
{
    RVFilePosition last;
    for (const RVCatalogueFinding &finding : findings) {
        CHECK(!(finding.range().begin < last) && !(finding.range().end < finding.range().begin));
        CHECK(!finding.text().isEmpty() && !finding.text().contains(u'\n'));
        CHECK(!finding.rule().isNull());
        CHECK(finding.product() < reading->products.size());
        last = finding.range().begin;
        reading->findings += text(last) + finding.text();
    }
}

void addProduct(const RVCatalogueProduct &product, Reading *reading)
{
    CHECK_EQUAL(product.number(), reading->products.size());
    reading->products += describe(product.element());
    reading->places += text(product.range().begin);
    addFindings(product.findings(), reading);
}

void addEnd(const RVCatalogueReader &reader, Reading *reading)
{
    addFindings(reader.findings(), reading);
    CHECK_EQUAL(reader.hasError(), !reader.errorString().isEmpty());
    reading->error = reader.errorString();
    reading->errorPlace = text(reader.errorPosition());
}

/// Reads one product after the other.
Reading readProducts(QIODevice *device)
{
    device->open(QIODevice::ReadOnly);
    RVCatalogueReader reader(device);
    reader.setCheck(RVCatalogueCheck());
    Reading result;
    RVFilePosition last { 1, 0 };
    for (const RVCatalogueProduct &product : reader) {
        CHECK_EQUAL(product.element().name(), u"product"_s);
        CHECK(last < product.range().begin);
        last = product.range().begin;
        checkProduct(product);
        addProduct(product, &result);
    }
    CHECK(reader.next().isNull() && reader.atEnd());
    CHECK(reader.finish() != reader.hasError());
    CHECK(!reader.hasError() || !(reader.errorPosition() < last));
    addEnd(reader, &result);
    return result;
}

/// Reads on several threads.
Reading mapProducts(QIODevice *device)
{
    device->open(QIODevice::ReadOnly);
    RVCatalogueReader reader(device);
    reader.setCheck(RVCatalogueCheck());
    Reading result;
    reader.map([](const QList<RVCatalogueProduct> &products) { return products; },
               [&](const QList<RVCatalogueProduct> &products) {
                   for (const RVCatalogueProduct &product : products)
                       addProduct(product, &result);
                   return true;
               });
    addEnd(reader, &result);
    return result;
}

void checkEqualReadings(const Reading &actual, const Reading &expected)
{
    CHECK_EQUAL(actual.products, expected.products);
    CHECK_EQUAL(actual.places, expected.places);
    CHECK_EQUAL(actual.findings, expected.findings);
    CHECK_EQUAL(actual.error, expected.error);
    CHECK_EQUAL(actual.errorPlace, expected.errorPlace);
}

void checkCommands(const QByteArray &bytes, const Reading &reading)
{
    static MemoryFile file;
    file.write(bytes);
    const int asRows = runQuietly({ u"show"_s, file.name() });
    CHECK_EQUAL(asRows == EXIT_UNREADABLE, !reading.error.isEmpty());
    CHECK_EQUAL(runQuietly({ u"show"_s, u"--json"_s, file.name() }), asRows);
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    const Reading reading = readProducts(&buffer);
    QBuffer mapped(&bytes);
    checkEqualReadings(mapProducts(&mapped), reading);
    Drops drops(&bytes);
    checkEqualReadings(readProducts(&drops), reading);
    if (reading.error.isEmpty()) {
        const QDomDocument document = documentOf(bytes);
        CHECK(document.isNull() || reading.products == productsOf(document));
    }
    checkCommands(bytes, reading);
    return 0;
}
