#include <LoadedCatalogue.h>
#include <RVCatalogueReader.h>

#include <QIODevice>
#include <QSet>
#include <QTest>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

/// A stream, which can be read only once, and counts the bytes that are read.
class CountedStream : public QIODevice
{
public:
    explicit CountedStream(const QByteArray &content) : myContent(content)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 count() const { return myCount; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 size = qMin(maxSize, myContent.size() - myCount);
        std::memcpy(data, myContent.constData() + myCount, size_t(size));
        myCount += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray myContent;
    qint64 myCount = 0;
};

const char CATALOGUE[] = "<products>\n"
                         "<product type='A' article_id='1' name='Erstes' article_class='book' cover_type='hart'/>\n"
                         "<product type='B' article_id='2' article_class='normal_calendar' pages='x'/>\n"
                         "<product type='A' article_id='3' article_class='book' cover_type='HARDCOVER'/>\n"
                         "</products>\n";

/// Products of some 2 KB in 19 lines, each with two findings.
QByteArray largeProducts(int count)
{
    QByteArray forms;
    for (int i = 0; i < 18; ++i)
        forms += "<form key='alcolor' key_name='Umschlagfarbe' value='color" + QByteArray::number(i)
                + "' value_name='Farbe' color='#1a1a1a' preselected='" + (i == 0 ? "true" : "false") + "'/>\n";
    QByteArray content = "<products>\n";
    for (int i = 0; i < count; ++i)
        content += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i + 1)
                + "' name='Buch " + QByteArray::number(i % 50)
                + "' article_class='book' cover_type='hart' page_binding='klebe' pages='26'><forms>" + forms
                + "</forms></product>\n";
    return content + "</products>\n";
}

std::unique_ptr<LoadedCatalogue> read(QIODevice *device)
{
    auto catalogue = std::make_unique<LoadedCatalogue>(u"c.xml"_s);
    RVCatalogueReader reader(device);
    reader.setCheck(RVCatalogueCheck());
    catalogue->read(&reader);
    return catalogue;
}

/// The memory of a text, without what an allocation costs.
qsizetype bytes(const QString &text)
{
    return text.capacity() * qsizetype(sizeof(QChar));
}

}

/// The catalogue as the window keeps it.
class tst_LoadedCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsOnce();
    void productsAndFindings();
    void silencedFindings();
    void findingsAsTheReaderGivesThem();
    void findingsInTheOrderOfTheFile();
    void withoutProducts();
    void search_data();
    void search();
    void groups();
    void needsLittle();
};

void tst_LoadedCatalogue::readsOnce()
{
    const QByteArray content = largeProducts(200);
    CountedStream stream(content);
    const auto catalogue = read(&stream);
    QCOMPARE(stream.count(), content.size());
    QCOMPARE(catalogue->size(), 200);
    QCOMPARE(catalogue->findings().size(), 400);
}

void tst_LoadedCatalogue::productsAndFindings()
{
    CountedStream stream(CATALOGUE);
    const auto catalogue = read(&stream);
    QCOMPARE(catalogue->size(), 3);
    QCOMPARE(catalogue->at(0).name, u"Erstes"_s);
    QCOMPARE(catalogue->at(0).articleId, RVArticleId(1));
    QCOMPARE(catalogue->at(1).position, (RVFilePosition { 3, 1 }));
    QCOMPARE(catalogue->product(2).coverType(), RVCoverType(HARDCOVER));
    QCOMPARE(catalogue->indexOf(u"A"_s), 0);
    QCOMPARE(catalogue->indexOf(u"B"_s), 1);
    QCOMPARE(catalogue->indexOf(u"C"_s), -1);
    QCOMPARE(catalogue->indexOf(u"A"_s, { 4, 1 }), 2);
    QCOMPARE(catalogue->indexOf(u"B"_s, { 2, 5 }), 1); // of another type, nearly there, and behind all
    QCOMPARE(catalogue->indexOf(u"A"_s, { 3, 1 }), 0);
    QCOMPARE(catalogue->indexOf(u"A"_s, { 9, 1 }), 0);
    QVERIFY(catalogue->isSold(0));
    QVERIFY(catalogue->isSold(1));
    QVERIFY(!catalogue->isSold(2));

    QStringList found;
    for (const RVCatalogueFinding &finding : catalogue->findings())
        found += u"%1 %2:%3 %4"_s.arg(finding.product())
                         .arg(finding.range().begin.line)
                         .arg(finding.range().begin.column)
                         .arg(finding.rule().name());
    QCOMPARE(found,
             (QStringList { u"0 2:69 keyword-unknown"_s, u"1 3:66 number-invalid"_s, u"2 4:10 type-duplicate"_s }));
}

// Packed products have no comments, so what these silence is settled while the file is read.
void tst_LoadedCatalogue::silencedFindings()
{
    QByteArray content = CATALOGUE;
    content.replace("<products>", "<!-- rvcatalog: ignore number-invalid, option-incomplete --><products>");
    content.replace("<product type='A' article_id='1'",
                    "<!-- rvcatalog: ignore keyword-unknown, spine-missing --><product type='A' article_id='1'");
    CountedStream stream(content);
    const auto catalogue = read(&stream);
    QCOMPARE(catalogue->size(), 3);
    QCOMPARE(catalogue->product(0).articleId(), RVArticleId(1));
    QStringList found;
    for (const RVCatalogueFinding &finding : catalogue->findings())
        found += u"%1 %2:%3 %4"_s.arg(finding.product())
                         .arg(finding.range().begin.line)
                         .arg(finding.range().begin.column)
                         .arg(finding.rule().name());
    QCOMPARE(found,
             (QStringList { u"0 2:1 suppression-unused"_s, u"2 4:10 type-duplicate"_s,
                            u"-1 1:1 suppression-unused"_s }));
}

// With a severity of the house, and with all places.
void tst_LoadedCatalogue::findingsAsTheReaderGivesThem()
{
    RVCatalogueCheck check;
    check.setSeverity(RVCatalogueRule::find(u"number-invalid"), RVCatalogueSeverity::Note);
    QList<RVCatalogueFinding> expected;
    CountedStream first(CATALOGUE);
    RVCatalogueReader reader(&first);
    reader.setCheck(check);
    for (const RVCatalogueProduct &product : reader)
        expected += product.findings();

    CountedStream second(CATALOGUE);
    RVCatalogueReader other(&second);
    other.setCheck(check);
    LoadedCatalogue catalogue(u"c.xml"_s);
    catalogue.read(&other);
    const QList<RVCatalogueFinding> &found = catalogue.findings();
    QCOMPARE(found.size(), 3);
    QCOMPARE(found.at(1).severity(), RVCatalogueSeverity::Note);
    QCOMPARE(found.at(1).productType(), u"B"_s);
    for (qsizetype i = 0; i < found.size(); ++i) {
        QCOMPARE(found.at(i).rule().name(), expected.at(i).rule().name());
        QCOMPARE(found.at(i).severity(), expected.at(i).severity());
        QCOMPARE(found.at(i).text(), expected.at(i).text());
        QCOMPARE(found.at(i).range(), expected.at(i).range());
        QCOMPARE(found.at(i).product(), expected.at(i).product());
        QCOMPARE(found.at(i).productType(), expected.at(i).productType());
        QCOMPARE(found.at(i).relatedPlaces(), expected.at(i).relatedPlaces());
    }
}

// Though products are checked on several threads, and in several pieces.
void tst_LoadedCatalogue::findingsInTheOrderOfTheFile()
{
    CountedStream stream(largeProducts(500));
    const auto catalogue = read(&stream);
    qint64 line = 0;
    QSet<qint64> products;
    for (const RVCatalogueFinding &finding : catalogue->findings()) {
        QVERIFY(finding.range().begin.line >= line);
        line = finding.range().begin.line;
        QCOMPARE(catalogue->at(int(finding.product())).position.line, 2 + finding.product() * 19);
        products.insert(finding.product());
    }
    QCOMPARE(products.size(), 500);
}

void tst_LoadedCatalogue::withoutProducts()
{
    CountedStream stream("<products/>");
    const auto catalogue = read(&stream);
    QCOMPARE(catalogue->size(), 0);
    QCOMPARE(catalogue->packedBytes(), 0);
    QCOMPARE(catalogue->findings().size(), 1);
    QCOMPARE(catalogue->findings().constFirst().rule().name(), "products-missing"_L1);
}

void tst_LoadedCatalogue::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("products");

    QTest::newRow("type") << u"dun9"_s << QList<int> { 0 };
    QTest::newRow("article id") << u"17"_s << QList<int> { 0 };
    QTest::newRow("missing article id") << u"0"_s << QList<int> { 0 }; // of 600cm2
    QTest::newRow("name") << u"grosses buch"_s << QList<int> { 0 };
    QTest::newRow("kind of article") << u"book"_s << QList<int> { 0 };
    QTest::newRow("keywords") << u"hardcover softcover"_s << QList<int> { 0 };
    QTest::newRow("size class and its alias") << u"600cm2 a4"_s << QList<int> { 0 };
    QTest::newRow("option") << u"Weinrot"_s << QList<int> { 0 };
    QTest::newRow("price class of an option") << u"coex"_s << QList<int> { 0 };
    QTest::newRow("price class") << u"bk9"_s << QList<int> { 0 };
    QTest::newRow("no kind of article") << u"without kind"_s << QList<int> { 1 };
    QTest::newRow("all") << QString() << QList<int> { 0, 1 };
}

void tst_LoadedCatalogue::search()
{
    CountedStream stream("<p><product type='DUN9' article_id='17' name='GROSSES Buch' article_class='book' "
                         "cover_type='softcover,hardcover' space_magnitude='A4' price_class='BK9'><forms>"
                         "<form key='c' value='r' value_name='Weinrot' price_class='COEX'/></forms></product>"
                         "<product/></p>");
    QFETCH(QString, text);
    QTEST(read(&stream)->searchIndex().find(text), "products");
}

void tst_LoadedCatalogue::groups()
{
    CountedStream stream("<p><product/><product article_class='fee'/><product/></p>");
    const auto catalogue = read(&stream);
    QCOMPARE(catalogue->groups().size(), 2);
    QCOMPARE(catalogue->at(0).group, 0);
    QCOMPARE(catalogue->at(1).group, 1);
    QCOMPARE(catalogue->at(2).group, 0);
}

// A tenth of the file for the products themselves; of texts that are equal there is but one.
void tst_LoadedCatalogue::needsLittle()
{
    constexpr int count = 2000;
    const QByteArray content = largeProducts(count);
    QVERIFY(content.size() > count * 1900);
    CountedStream stream(content);
    const auto catalogue = read(&stream);
    QCOMPARE(catalogue->size(), count);
    QVERIFY(catalogue->packedBytes() > 0);
    QSet<const QChar *> texts;
    qsizetype kept = catalogue->packedBytes();
    const auto add = [&](const QString &text) {
        if (texts.contains(text.constData()))
            return;
        texts.insert(text.constData());
        kept += bytes(text);
    };
    for (int i = 0; i < count; ++i) {
        add(catalogue->at(i).name);
        kept += qsizetype(sizeof(LoadedCatalogue::Entry)) + bytes(catalogue->at(i).type.toString());
    }
    for (const RVCatalogueFinding &finding : catalogue->findings())
        add(finding.text());
    kept += catalogue->searchIndex().byteCount();
    QVERIFY2(texts.size() < 60, qPrintable(QString::number(texts.size())));
    QVERIFY2(kept < count * 200, qPrintable(QString::number(kept / count)));
}

QTEST_MAIN(tst_LoadedCatalogue)
#include "tst_LoadedCatalogue.moc"
