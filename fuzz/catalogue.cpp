// A catalogue, read as "rvcatalog show" reads it: product by product, out of a stream.
#include "CommandRunner.h"
#include "ElementText.h"
#include "Properties.h"

#include <CatalogueChecker.h>
#include <CatalogueOption.h>
#include <CatalogueProduct.h>
#include <CatalogueReader.h>
#include <Commands.h>

#include <QBuffer>
#include <QDomDocument>

#include <cstddef>
#include <cstdint>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

/// Hands out a few bytes at a time, as a pipe does.
class Drops : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64 maxSize) override { return QBuffer::readData(data, qMin(maxSize, qint64(3))); }
};

/// What the reader said of a file.
struct Reading
{
    QStringList products;
    QList<qint64> lines;
    QString error;
    qint64 errorLine = 0;
};

void checkProduct(const QDomElement &element)
{
    const CatalogueProduct product(element);
    for (const RVConfiguredArticleVariant &option : product.options) {
        CHECK(option.isValid());
        product.optionPriceClass(option.key(), option.value());
    }
    for (const RVBarcodeDefinition &barcode : product.barcodes)
        CHECK(barcode.isValid());
    const CatalogueProduct again(element.cloneNode().toElement());
    CHECK(again.type == product.type && again.options == product.options && again.pageCounts == product.pageCounts);
    CHECK(again.barcodes == product.barcodes);
}

// The readers of batches must find what the readers of documents find.
void checkBatchProduct(const CatalogueElement &element)
{
    QDomDocument document;
    const CatalogueProduct expected(element.deepCopy(&document));
    const CatalogueProduct product = CatalogueProduct::withoutOptions(element);
    CHECK(product.type == expected.type && product.pageCounts == expected.pageCounts);
    CHECK_EQUAL(product.barcodes, expected.barcodes);
    // An infinite width equals nothing.
    CHECK_EQUAL(QString::number(product.spine.spineWidth(100).value(), 'g', 17),
                QString::number(expected.spine.spineWidth(100).value(), 'g', 17));
    const RVArticleVariants defaults = expected.options.defaultVariants();
    const CatalogueOptions options(element);
    CHECK_EQUAL(std::distance(options.begin(), options.end()), expected.options.size());
    qsizetype i = 0;
    for (const CatalogueOption &option : options) {
        const RVConfiguredArticleVariant &other = expected.options.at(i++);
        CHECK(option.key == other.key() && option.value == other.value() && option.valueName == other.visibleName());
        CHECK_EQUAL(option.isPreselected, other.isDefault());
        CHECK_EQUAL(option.isNotAccountable, other.isNotAccountable());
        CHECK_EQUAL(options.isDefault(option), defaults.value(other.key()) == other.value());
    }
}

/// The same, read in batches.
Reading readBatches(QIODevice *device)
{
    device->open(QIODevice::ReadOnly);
    CatalogueReader reader(device, u"product"_s);
    Reading result;
    for (CatalogueBatch batch; reader.read(&batch, 100); batch = CatalogueBatch()) {
        for (int i = 0; i < batch.size(); ++i) {
            checkBatchProduct(batch.at(i));
            result.products += describe(batch.at(i));
            result.lines += batch.at(i).position().line;
        }
    }
    CHECK(reader.atEnd());
    if (reader.hasError()) {
        result.error = reader.errorString();
        result.errorLine = reader.errorPosition().line;
    }
    return result;
}

// A check ends as the reading does, and its findings come in order, on one line each, and of known rules.
void checkFindings(QIODevice *device, const Reading &reading)
{
    device->open(QIODevice::ReadOnly);
    FilePosition last { 1, 0 };
    const auto result = CatalogueChecker().check(device, [&](const CatalogueFinding &finding) {
        CHECK(!(finding.position < last));
        CHECK(!finding.text.isEmpty() && !finding.text.contains(u'\n'));
        CHECK(indexOfRule(finding.rule.toString()) >= 0);
        CHECK(finding.product < reading.products.size());
        last = finding.position;
    });
    CHECK_EQUAL(result.error, reading.error);
    CHECK_EQUAL(result.products, reading.products.size());
}

/// The outermost products of a document.
QStringList productsOf(const QDomNode &parent)
{
    QStringList result;
    for (QDomElement element = parent.firstChildElement(); !element.isNull(); element = element.nextSiblingElement())
        result += element.tagName() == "product"_L1 ? QStringList { describe(element) } : productsOf(element);
    return result;
}

Reading readAll(QIODevice *device)
{
    device->open(QIODevice::ReadOnly);
    CatalogueReader reader(device, u"product"_s);
    Reading result;
    FilePosition last { 1, 0 };
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        CHECK_EQUAL(element.tagName(), u"product"_s);
        const FilePosition position = reader.position();
        CHECK(position.line > last.line || (position.line == last.line && position.column > last.column));
        last = position;
        checkProduct(element);
        result.products += describe(element);
        result.lines += position.line;
    }
    CHECK(reader.next().isNull());
    CHECK(reader.finish() != reader.hasError());
    if (reader.hasError()) {
        result.error = reader.errorString();
        result.errorLine = reader.errorPosition().line;
        CHECK(!result.error.isEmpty());
        CHECK(result.errorLine >= last.line);
    }
    return result;
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    const Reading reading = readAll(&buffer);
    QBuffer batchBuffer(&bytes);
    const Reading batches = readBatches(&batchBuffer);
    CHECK_EQUAL(batches.products, reading.products);
    CHECK_EQUAL(batches.lines, reading.lines);
    CHECK_EQUAL(batches.error, reading.error);
    CHECK_EQUAL(batches.errorLine, reading.errorLine);
    QBuffer checkBuffer(&bytes);
    checkFindings(&checkBuffer, reading);
    Drops drops(&bytes);
    const Reading again = readAll(&drops);
    CHECK_EQUAL(again.error.isEmpty(), reading.error.isEmpty());
    // How far the parser comes before it sees what is wrong depends on how much it reads at once.
    const qsizetype common = qMin(again.products.size(), reading.products.size());
    CHECK_EQUAL(again.products.first(common), reading.products.first(common));
    if (reading.error.isEmpty()) {
        CHECK_EQUAL(again.products.size(), reading.products.size());
        CHECK_EQUAL(again.lines, reading.lines);
        QDomDocument document;
        CHECK(document.setContent(bytes));
        CHECK_EQUAL(reading.products, productsOf(document));
    }

    static MemoryFile file;
    file.write(bytes);
    const int asRows = runCommand(showCommand, { file.name() });
    CHECK_EQUAL(asRows == EXIT_UNREADABLE, !reading.error.isEmpty());
    CHECK_EQUAL(runCommand(showCommand, { u"--json"_s, file.name() }), asRows);
    return 0;
}
