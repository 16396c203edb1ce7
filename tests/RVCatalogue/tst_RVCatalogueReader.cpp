#include "CatalogueBuffer.h"

#include <RVCatalogueReader.h>

#include <QMutex>
#include <QSet>
#include <QSignalSpy>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

/// A device that fails after its content.
class BrokenFile : public CatalogueBuffer
{
public:
    using CatalogueBuffer::CatalogueBuffer;

    bool atEnd() const override { return false; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 result = CatalogueBuffer::readData(data, size);
        if (result > 0)
            return result;
        setErrorString(u"the disk is gone"_s);
        return -1;
    }
};

/// A pipe with a slow writer: all available data was read already.
class SlowPipe : public QIODevice
{
public:
    /// @p events outlive the pipe and get a word for each piece that is read, and for the end.
    SlowPipe(const QList<QByteArray> &pieces, QStringList *events) : myPieces(pieces), myEvents(events)
    {
        setOpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64) override
    {
        *myEvents += myPieces.isEmpty() ? u"end"_s : u"piece"_s;
        if (myPieces.isEmpty())
            return 0;
        const QByteArray piece = myPieces.takeFirst();
        std::copy(piece.begin(), piece.end(), data);
        return piece.size();
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QList<QByteArray> myPieces;
    QStringList *myEvents;
};

QByteArray utf16(const QString &text, QStringEncoder::Flag mark = QStringEncoder::Flag::WriteBom)
{
    return QByteArray(QStringEncoder(QStringEncoder::Utf16LE, mark)(text));
}

QByteArray utf16BigEndian(const QString &text)
{
    return QByteArray(QStringEncoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom)(text));
}

QByteArray utf32(const QString &text)
{
    return QByteArray(QStringEncoder(QStringEncoder::Utf32LE, QStringEncoder::Flag::WriteBom)(text));
}

QByteArray declared(const char *encoding)
{
    return "<?xml version='1.0' encoding='" + QByteArray(encoding) + "'?>";
}

QStringList typesOf(RVCatalogueReader *reader)
{
    QStringList result;
    for (const RVCatalogueProduct &product : *reader)
        result += product.element().attribute("type"_L1);
    return result;
}

/// "line:column: text"; empty without an error.
QString errorOf(const RVCatalogueReader &reader)
{
    if (!reader.hasError())
        return QString();
    return u"%1:%2: %3"_s.arg(reader.errorPosition().line).arg(reader.errorPosition().column).arg(reader.errorString());
}

QString errorOf(const QByteArray &content)
{
    CatalogueBuffer file(content);
    RVCatalogueReader reader(&file);
    reader.finish();
    return errorOf(reader);
}

QByteArray numbered(int count)
{
    QByteArray result = "<p>\n";
    for (int i = 0; i < count; ++i)
        result += "<product type='T" + QByteArray::number(i) + "' text='" + QByteArray(i % 40, 'x') + "'/>\n";
    return result + "</p>";
}

}

class tst_RVCatalogueReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products_data();
    void products();
    void products_byteByByte_data() { products_data(); }
    void products_byteByByte();
    void placesOfProducts_data();
    void placesOfProducts();
    void errors_data();
    void errors();
    void errors_byteByByte_data() { errors_data(); }
    void errors_byteByByte();
    void largeFaults_data();
    void largeFaults();
    void manyAttributes();
    void manyProducts();
    void productsBeforeAnError();
    void noProductThatIsTooLarge();
    void errorWaitsForItsProducts();
    void brokenDevice();
    void fileName();
    void missingFile();
    void openFileIsReadFromItsPlace();
    void iteratesOnce();
    void readsAll();
    void finds();
    void finishes();
    void tellsHowFarItIs();
    void mapsInOrder_data();
    void mapsInOrder();
    void mapUsesThreads();
    void threadCount_data();
    void threadCount();
    void mapDoesNotWait();
    void errorEndsReading();
    void mapStopsWithoutWaiting();
    void mapStops();
    void mapGoesOnBehindNext();
};

void tst_RVCatalogueReader::products_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("types");

    const QStringList both = { u"A"_s, u"Ä"_s };
    const QStringList one = { u"A"_s };
    const QString text = u"<products><product type='A'/><g><product type='Ä'/></g></products>"_s;
    QTest::newRow("UTF-8") << text.toUtf8() << both;
    QTest::newRow("UTF8 without a hyphen") << "\xef\xbb\xbf" + declared("utf8") + text.toUtf8() << both;
    QTest::newRow("Latin-1 by its short name") << declared("latin1") + text.toLatin1() << both;
    QTest::newRow("UTF-8 as declared") << declared("utf-8") + text.toUtf8() << both;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + text.toUtf8() << both;
    QTest::newRow("byte order mark, declared") << "\xef\xbb\xbf" + declared("UTF-8") + text.toUtf8() << both;
    QTest::newRow("Latin-1") << declared("ISO-8859-1") + text.toLatin1() << both;
    QTest::newRow("Latin-9 with a euro") << declared("ISO-8859-15") + "<p><product type='\xa4'/></p>"
                                         << QStringList { u"€"_s };
    QTest::newRow("Windows with quotes") << declared("windows-1252") + "<p><product type='\x84\x93'/></p>"
                                         << QStringList { u"„“"_s };
    QTest::newRow("ASCII") << declared("US-ASCII") + "<p><product type='A'/></p>" << one;
    QTest::newRow("UTF-16") << utf16(text) << both;
    QTest::newRow("UTF-16 as declared") << utf16(u"<?xml version='1.0' encoding='UTF-16'?>"_s + text) << both;
    QTest::newRow("UTF-16 in big-endian order") << utf16BigEndian(text) << both;
    QTest::newRow("UTF-16 without a mark") << utf16(text, QStringEncoder::Flag::Default) << both;
    QTest::newRow("UTF-32") << utf32(text) << both;
    QTest::newRow("UTF-32 in big-endian order")
            << QByteArray(QStringEncoder(QStringEncoder::Utf32BE, QStringEncoder::Flag::WriteBom)(text)) << both;
    QTest::newRow("UTF-16 in big-endian order without a mark, root in Cyrillic letters")
            << QByteArray(QStringEncoder(QStringEncoder::Utf16BE)(u"<\u0436><product type='A'/></\u0436>"_s)) << one;
    QTest::newRow("beyond the first plane in UTF-16")
            << utf16(u"<p><product type='\U0001F4D5'/></p>"_s) << QStringList { u"\U0001F4D5"_s };
    QTest::newRow("name of an element before a tabulator or a line end")
            << QByteArray("<p><product\ttype='A'/><product\rtype='\xc3\x84'/></p>") << both;
    QTest::newRow("white space around the name of the encoding")
            << "<?xml version='1.0'\tencoding\n = \"ISO-8859-1\" ?>" + text.toLatin1() << both;
    QTest::newRow("CRLF") << QByteArray("<p>\r\n<product type='A'/>\r\n</p>\r\n") << one;
    QTest::newRow("white space in front") << QByteArray("\n \t<p><product type='A'/></p>") << one;
    QTest::newRow("external document type")
            << QByteArray("<!DOCTYPE p SYSTEM 'p.dtd'><p><product type='A'/></p>") << one;
    QTest::newRow("attribute from the document type")
            << QByteArray("<!DOCTYPE p [<!ATTLIST product type CDATA 'A'>]><p><product/></p>") << one;
    QTest::newRow("prefix not declared") << QByteArray("<x:p><product type='A'/></x:p>") << one;
    QTest::newRow("name spaces") << QByteArray("<p><product xmlns='urn:a' type='A' xmlns:b='urn:b' b:c='d'/></p>")
                                 << one;
    QTest::newRow("attributes with names like those of name spaces")
            << QByteArray("<p><product xmlns:='a' type='A' xmlnsx='b'/><product xmlns:1='c' type='\xc3\x84'/></p>")
            << both;
    QTest::newRow("element with a prefix is no product")
            << QByteArray("<p xmlns:x='urn:x'><x:product type='B'/><product type='A'/></p>") << one;
    QTest::newRow("product is the root") << QByteArray("<product type='A'/>") << one;
    QTest::newRow("inner product belongs to the outer")
            << QByteArray("<product type='A'><product type='B'/></product>") << one;
    QTest::newRow("references") << QByteArray("<p><product type='&lt;&#65;&#xC4;&amp;'/></p>")
                                << QStringList { u"<AÄ&"_s };
    QTest::newRow("line ends in a value")
            << QByteArray("<p><product type='a\r\nb\tc'/></p>") << QStringList { u"a b c"_s };
    const QString entity = u"<p><!-- <!ENTITY --><product type='A'/><![CDATA[<!ENTITY]]><product type='Ä'/></p>"_s;
    QTest::newRow("entity in a comment") << entity.toUtf8() << both;
    QTest::newRow("entity in a comment in UTF-16") << utf16(entity) << both;
    QTest::newRow("no product") << QByteArray("<p><Product type='A'/></p>") << QStringList {};
}

void tst_RVCatalogueReader::products()
{
    QFETCH(QByteArray, file);
    CatalogueBuffer device(file);
    RVCatalogueReader reader(&device);
    QTEST(typesOf(&reader), "types");
    QCOMPARE(errorOf(reader), QString());
}

void tst_RVCatalogueReader::products_byteByByte()
{
    QFETCH(QByteArray, file);
    OneByteFile device(file);
    RVCatalogueReader reader(&device);
    QTEST(typesOf(&reader), "types");
    QCOMPARE(errorOf(reader), QString());
}

void tst_RVCatalogueReader::placesOfProducts_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("places");

    const QString text = u"<?xml version='1.0'?>\n<!-- Größe: \U0001F4D5 -->\n  <product type='a>b'/>\n"_s;
    QTest::newRow("root alone") << QByteArray("<product/>") << u"1:1-1:11"_s;
    QTest::newRow("root behind a mark") << QByteArray("\xef\xbb\xbf<product/>") << u"1:1-1:11"_s;
    QTest::newRow("root behind white space") << QByteArray("\n\n   <product\ntype='a'\n/>\n") << u"3:4-5:3"_s;
    QTest::newRow("root behind a declaration") << QByteArray("<?xml version='1.0'?><product/>") << u"1:22-1:32"_s;
    QTest::newRow("root behind a document type") << QByteArray("<!DOCTYPE product>\n\n<product/>") << u"3:1-3:11"_s;
    QTest::newRow("root behind a comment") << text.toUtf8() << u"3:3-3:24"_s;
    QTest::newRow("root behind a comment, CRLF") << QString(text).replace(u'\n', "\r\n"_L1).toUtf8() << u"3:3-3:24"_s;
    QTest::newRow("root behind a comment, CR") << QString(text).replace(u'\n', u'\r').toUtf8() << u"3:3-3:24"_s;
    QTest::newRow("root behind a comment, UTF-16") << utf16(text) << u"3:3-3:24"_s;
    QTest::newRow("root with a product in it")
            << QByteArray("<!--<a--><product><product/></product>") << u"1:10-1:19"_s;
    QTest::newRow("several") << QByteArray("<?xml version='1.0'?>\n<p>\n  <product\n  a='1'/><product/>\n\t<product>\n"
                                           "</product></p>")
                             << u"3:3-4:10 4:10-4:20 5:2-5:11"_s;
    QTest::newRow("same line as long letters")
            << QByteArray("<p a='\xf0\x9f\x93\x95\xc3\xa4'>\xe2\x82\xac<product/></p>") << u"1:13-1:23"_s;
    QTest::newRow("behind texts and comments")
            << QByteArray("<p>x<![CDATA[\n]]>y<!-- \n --><product/>&#10;<product/></p>") << u"3:5-3:15 3:20-3:30"_s;
    QTest::newRow("Latin-1") << declared("ISO-8859-1") + "<p>\xe4<product/></p>" << u"1:48-1:58"_s;
}

void tst_RVCatalogueReader::placesOfProducts()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, places);
    for (const bool isSlow : { false, true }) {
        CatalogueBuffer quick(file);
        OneByteFile slow(file);
        RVCatalogueReader reader(isSlow ? static_cast<QIODevice *>(&slow) : &quick);
        QStringList found;
        for (const RVCatalogueProduct &product : reader) {
            const RVFileRange range = product.range();
            found += u"%1:%2-%3:%4"_s.arg(range.begin.line)
                             .arg(range.begin.column)
                             .arg(range.end.line)
                             .arg(range.end.column);
        }
        QCOMPARE(errorOf(reader), QString());
        QCOMPARE(found.join(u' '), places);
    }
}

void tst_RVCatalogueReader::errors_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");

    QTest::newRow("empty") << QByteArray() << u"1:1: the file is empty"_s;
    QTest::newRow("only white space") << QByteArray("\n\n") << u"3:1: the file ends too early"_s;
    QTest::newRow("only a declaration") << QByteArray("<?xml version='1.0'?>\n") << u"2:1: the file ends too early"_s;
    QTest::newRow("JSON") << QByteArray("{\"products\": []}") << u"1:1: this is no XML"_s;
    QTest::newRow("text") << QByteArray("\n  hello") << u"2:3: this is no XML"_s;
    QTest::newRow("program") << QByteArray("\x7f"
                                           "ELF\x02\x01\x01\0\0",
                                           9)
                             << u"1:1: this is no XML"_s;
    QTest::newRow("zero bytes") << QByteArray(1000, '\0') << u"1:1: this is no XML"_s;
    QTest::newRow("text in Latin-1") << QByteArray("\xe4") << u"1:1: this is no XML"_s;

    QTest::newRow("cut off in a product")
            << QByteArray("<p>\n<product>")
            << u"2:10: the file ends too early: <product>, which was opened in line 2, is not closed"_s;
    QTest::newRow("cut off in a tag") << QByteArray(
            "<p>\n<product a='") << u"2:13: the file ends too early: <p>, which was opened in line 1, is not closed"_s;
    QTest::newRow("cut off in an end tag")
            << QByteArray("<p><product name='A'/></")
            << u"1:25: the file ends too early: <p>, which was opened in line 1, is not closed"_s;
    QTest::newRow("cut off in a letter") << QByteArray(
            "<p>\n<a>\xc3") << u"2:5: the file ends too early: <a>, which was opened in line 2, is not closed"_s;

    QTest::newRow("cut off in a comment")
            << QByteArray("<p>\n<!-- a")
            << u"2:7: the file ends too early: <p>, which was opened in line 1, is not closed"_s;
    QTest::newRow("cut off in a comment behind the root")
            << QByteArray("<p/>\n<!-- and so on") << u"2:15: the file ends too early"_s;
    QTest::newRow("cut off in an instruction behind the root")
            << QByteArray("<p/>\n<?pi so on") << u"2:11: the file ends too early"_s;

    QTest::newRow("wrong end tag") << QByteArray("<p>\n<forms>\n\n  </p>")
                                   << u"4:3: </p> closes <forms>, which was opened in line 2"_s;
    QTest::newRow("long names") << "<p><" + QByteArray(60, 'a') + "></" + QByteArray(61, 'b') + "></p>"
                                << u"1:66: </%1…> closes <%2>, which was opened in line 1"_s.arg(QString(60, u'b'),
                                                                                                 QString(60, u'a'));
    QTest::newRow("element behind the root")
            << QByteArray("<p/>\n<p/>") << u"2:1: nothing but comments may follow the end of the root element"_s;
    QTest::newRow("letter behind the root")
            << QByteArray("<p/>x") << u"1:5: nothing but comments may follow the end of the root element"_s;
    QTest::newRow("text behind the root")
            << QByteArray("<p/>\nfoo bar") << u"2:1: nothing but comments may follow the end of the root element"_s;
    QTest::newRow("declaration behind a line feed")
            << QByteArray("\n<?xml version='1.0'?><p/>")
            << u"2:6: the declaration \"<?xml\" must be the first of the file"_s;
    QTest::newRow("attribute twice") << QByteArray("<p>\n<a b='1' b='2'/></p>")
                                     << u"2:15: the attribute \"b\" is there twice"_s;
    QTest::newRow("attribute without quotes")
            << QByteArray("<p><a b=1/></p>") << u"1:9: the value of an attribute stands in quotes"_s;
    QTest::newRow("attribute without value")
            << QByteArray("<p><a b/></p>") << u"1:8: the attribute \"b\" has no value"_s;
    QTest::newRow("no blank between attributes") << QByteArray("<a b='1'c='2'/>") << u"1:9: a blank is missing here"_s;
    QTest::newRow("tag in a value") << QByteArray("<p><a b='<'/></p>")
                                    << u"1:10: \"<\" is written \"&lt;\" in a value"_s;
    QTest::newRow("less-than sign in a text")
            << QByteArray("<p> 3 < 4 </p>")
            << u"1:8: \"<\" does not begin a tag here; the letter itself is written \"&lt;\""_s;
    QTest::newRow("bare ampersand in a value")
            << QByteArray("<p><a b='x & y'/></p>")
            << u"1:13: \"&\" does not begin an entity here; the letter itself is written \"&amp;\""_s;
    QTest::newRow("reference without end")
            << QByteArray("<p><a b='&amp y'/></p>")
            << u"1:14: \"&\" does not begin an entity here; the letter itself is written \"&amp;\""_s;
    QTest::newRow("reference to no character")
            << QByteArray("<p>&#0;</p>") << u"1:8: this reference names no character that XML allows"_s;
    QTest::newRow("hyphens in a comment")
            << QByteArray("<p><!-- a -- b --></p>") << u"1:11: \"--\" cannot stand in a comment"_s;

    QTest::newRow("control character in a value")
            << QByteArray("<p>\n<a b='x\x01'/></p>") << u"2:8: the character U+0001 is not allowed in XML"_s;
    QTest::newRow("zero byte in a text") << QByteArray("<p>\n\0</p>", 9)
                                         << u"2:1: the character U+0000 is not allowed in XML"_s;
    QTest::newRow("zero byte in a value")
            << QByteArray("<p><a b='\0'/></p>", 18) << u"1:10: the character U+0000 is not allowed in XML"_s;
    QTest::newRow("zero byte in a tag that is cut off")
            << QByteArray("<p>\n<a\0\0\0", 9) << u"2:3: the character U+0000 is not allowed in XML"_s;
    QTest::newRow("control character behind the name of an element")
            << QByteArray("<p>\n<product\x1b type='A'/></p>") << u"2:9: the character U+001B is not allowed in XML"_s;
    QTest::newRow("control character behind an attribute") << QByteArray("<p>\n<product type='A' \x1b name='B'/></p>")
                                                           << u"2:19: the character U+001B is not allowed in XML"_s;
    QTest::newRow("no character of Unicode")
            << QByteArray("<p>\xef\xbf\xbf</p>") << u"1:4: the character U+FFFF is not allowed in XML"_s;

    const QString utf8 = u"this is not encoded in UTF-8, as files are that do not say otherwise in their first line"_s;
    QTest::newRow("Latin-1 in a value") << QByteArray("<p>\n<a b='\xc3\xa4\xe4'/></p>") << u"2:8: "_s + utf8;
    QTest::newRow("Latin-1 in a text") << QByteArray("<p>\nGr\xf6\xdf"
                                                     "e</p>")
                                       << u"2:3: "_s + utf8;
    QTest::newRow("Latin-1 in a comment") << QByteArray("<p>\n<!-- Gr\xf6\xdf"
                                                        "e --></p>")
                                          << u"2:8: "_s + utf8;
    QTest::newRow("overlong letter") << QByteArray("<p>a\xc0\xaf</p>") << u"1:5: "_s + utf8;
    QTest::newRow("surrogate in UTF-8") << QByteArray("<p>a\xed\xa0\x80</p>") << u"1:5: "_s + utf8;
    QTest::newRow("behind the last letter of Unicode") << QByteArray("<p>a\xf4\x90\x80\x80</p>") << u"1:5: "_s + utf8;
    QTest::newRow("UTF-8 as declared")
            << declared("utf-8") + "\n\n<p>\xfc</p>"
            << u"3:4: this is not encoded in utf-8, which the first line of the file declares"_s;
    QTest::newRow("fault before the wrong letter")
            << QByteArray("<p>\n<a></b>\n\xff</p>") << u"2:4: </b> closes <a>, which was opened in line 2"_s;
    QTest::newRow("ASCII with an umlaut")
            << declared("US-ASCII") + "\n<p><a b='\xe4'/></p>"
            << u"2:10: this is not encoded in US-ASCII, which the first line of the file declares"_s;
    QTest::newRow("byte that windows-1252 does not have")
            << declared("windows-1252") + "\n<p>\x81</p>"
            << u"2:4: this is not encoded in windows-1252, which the first line of the file declares"_s;
    QTest::newRow("UTF-16 with the first half of a letter")
            << utf16(u"<p>\nab"_s) + QByteArray("\x00\xd8", 2) + utf16(u"</p>"_s, QStringEncoder::Flag::Default)
            << u"2:3: this is not encoded in UTF-16, in which the file begins"_s;
    QTest::newRow("UTF-16 with the second half of a letter") << utf16(u"<p>"_s)
                    + QByteArray("\x00\xdc", 2) << u"1:4: this is not encoded in UTF-16, in which the file begins"_s;
    QTest::newRow("UTF-16 cut off in a letter") << utf16(u"<p></p>"_s) + "\n"
                                                << u"1:8: this is not encoded in UTF-16, in which the file begins"_s;
    QTest::newRow("instruction that begins like a declaration")
            << QByteArray("<?xmlfoo encoding='ISO-8859-1'?><p>\xe4</p>") << u"1:36: "_s + utf8;
    QTest::newRow("mark in a tag") << QByteArray("<p><a \xef\xbb\xbf/></p>")
                                   << u"1:8: the attribute \"\" has no value"_s;
    QTest::newRow("unknown encoding")
            << declared("klingon") + "<p/>"
            << u"1:1: the encoding \"klingon\", which the first line of the file declares, is not known; UTF-8 always is"_s;
    QTest::newRow("encoding with a command for iconv")
            << declared("ASCII//IGNORE") + "<p>\xe4</p>"
            << u"1:1: the encoding \"ASCII//IGNORE\", which the first line of the file declares, is not known; UTF-8 always is"_s;
    QTest::newRow("encoding with a null character")
            << declared("ISO-8859-1!x").replace('!', '\0') + "<p/>"
            << u"1:1: the encoding \"ISO-8859-1\0x\", which the first line of the file declares, is not known; UTF-8 always is"_s;
    QTest::newRow("mark of UTF-8, Latin-1 declared")
            << "\xef\xbb\xbf" + declared("ISO-8859-1") + "<p/>"
            << u"1:1: the file begins like one in UTF-8, but its first line declares ISO-8859-1; save it in ISO-8859-1, or declare UTF-8"_s;
    QTest::newRow("UTF-16, UTF-8 declared")
            << utf16(u"<?xml version='1.0' encoding='UTF-8'?><p/>"_s)
            << u"1:1: the file begins like one in UTF-16, but its first line declares UTF-8; save it in UTF-8, or declare UTF-16"_s;
    QTest::newRow("UTF-16 declared, but not written") << declared("UTF-16")
                    + "<p/>" << u"1:1: the first line of the file declares UTF-16, but is not encoded in it"_s;

    const QString entity = u"entity declarations are not supported"_s;
    QTest::newRow("entity declared") << QByteArray("<!DOCTYPE p [\n <!ENTITY a 'b'>]><p/>") << u"2:2: "_s + entity;
    QTest::newRow("parameter entity declared")
            << QByteArray("<!DOCTYPE p [\n<!ENTITY % a 'b'>]><p/>") << u"2:1: "_s + entity;
    QTest::newRow("external entity declared")
            << QByteArray("<!DOCTYPE p [\n<!ENTITY a SYSTEM 'b'>]><p/>") << u"2:1: "_s + entity;
    QTest::newRow("unparsed entity declared")
            << QByteArray("<!DOCTYPE p [\n<!NOTATION n SYSTEM 'n'><!ENTITY a SYSTEM 'b' NDATA n>]><p/>")
            << u"2:25: "_s + entity;
    const QString nbsp = u"the entity \"nbsp\" is not declared; write the letter itself"_s;
    QTest::newRow("undeclared entity") << QByteArray("<p>\na&nbsp;</p>") << u"2:2: "_s + nbsp;
    QTest::newRow("undeclared entity in a value") << QByteArray("<p>\n<a b='&nbsp;'/></p>") << u"2:7: "_s + nbsp;
    QTest::newRow("undeclared entity, external document type")
            << QByteArray("<!DOCTYPE p SYSTEM 'x'>\n<p>&nbsp;</p>") << u"2:4: "_s + nbsp;
    QTest::newRow("undeclared entity in a value, external document type")
            << QByteArray("<!DOCTYPE p SYSTEM 'x'>\n<p><a b='&nbsp;'/></p>") << u"2:10: "_s + nbsp;
    QTest::newRow("undeclared parameter entity")
            << QByteArray("<!DOCTYPE p [\n%foo;\n]>\n<p>&nbsp;</p>") << u"2:1: parameter entities are not supported"_s;

    const QString deep = u"elements are nested deeper than 256 levels"_s;
    QTest::newRow("deep around products") << QByteArray("<a>").repeated(257) << u"1:769: "_s + deep;
    QTest::newRow("deep in a product") << "\n" + QByteArray("<product>").repeated(300) << u"2:2305: "_s + deep;
}

void tst_RVCatalogueReader::errors()
{
    QFETCH(QByteArray, file);
    QTEST(errorOf(file), "error");
}

void tst_RVCatalogueReader::errors_byteByByte()
{
    QFETCH(QByteArray, file);
    OneByteFile device(file);
    RVCatalogueReader reader(&device);
    QVERIFY(!reader.finish());
    QTEST(errorOf(reader), "error");
}

void tst_RVCatalogueReader::largeFaults_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");

    const QString large = u"an element, text, comment or declaration is larger than 1 MiB"_s;
    const QString other = u"this is not encoded in UTF-8, as files are that do not say otherwise in their first line"_s;
    const QByteArray megabyte(1024 * 1024, 'x');
    QTest::newRow("wrong encoding in line 100002") << "<p>\n" + QByteArray("<a>\xc3\xbc</a>\n").repeated(100000)
                    + "<a>\xf6\xdf</a></p>" << u"100002:4: "_s + other;
    QTest::newRow("entity across two pieces of input") << "<!DOCTYPE p [<!--" + QByteArray(64 * 1024 - 20, 'x')
                    + "-->\n<!ENTITY a 'b'>]><p/>" << u"2:1: entity declarations are not supported"_s;
    QTest::newRow("product") << "<p>\n <product>" + QByteArray("<form/>").repeated(200000) + "</product></p>"
                             << u"2:2: "_s + large;
    QTest::newRow("large comments that are not too large")
            << "<p><!--" + megabyte.first(600000) + "--><!--" + megabyte.first(600000) + "--></p>" << QString();
    QTest::newRow("product one byte too large")
            << "<p>\n<product><!--" + megabyte.chopped(25) + "--></product></p>" << u"2:1: "_s + large;
    QTest::newRow("largest allowed product")
            << "<p>\n<product><!--" + megabyte.chopped(26) + "--></product></p>" << QString();
    QTest::newRow("text") << "<p>\n<a/>" + megabyte + "x</p>" << u"2:1: "_s + large;
    QTest::newRow("comment") << "<p>\n<a/><!--" + megabyte + "--></p>" << u"2:1: "_s + large;
    QTest::newRow("prolog") << "<!DOCTYPE p [" + QByteArray("<!ELEMENT a EMPTY>").repeated(100000)
                            << u"1:1: "_s + large;
    QTest::newRow("largest text behind a tag") << "<p>" + megabyte.chopped(5) + "</p>" << QString();
    QTest::newRow("text behind a tag, one byte too large")
            << "<p>" + megabyte.chopped(4) + "</p>" << u"1:1: "_s + large;
    const QByteArray longest = "<?xml version='1.0' encoding='ISO-8859-1'" + QByteArray(1024 - 43, ' ') + "?>";
    QTest::newRow("longest declaration") << longest + "<p>\xe4</p>" << QString();
    QTest::newRow("declaration is too long")
            << QByteArray(longest).insert(5, ' ') + "<p>\xe4</p>" << u"1:1029: "_s + other;
    // The parser gets a quarter of 64 KiB at once, so the tag begins at the second quarter.
    const QByteArray largestTag = "<p>" + QByteArray(16 * 1024 - 3, ' ') + "<a b='" + megabyte.first(64 * 1024 - 9)
            + "'/>";
    QTest::newRow("largest allowed tag") << largestTag + "</p>" << QString();
    QTest::newRow("tag one byte too large")
            << QByteArray(largestTag).replace("<a b", "<a  b") + "</p>" << u"1:16385: a tag is larger than 64 KiB"_s;
    QTest::newRow("tag") << "<p>\n<a b='" + megabyte + "'/></p>" << u"2:1: a tag is larger than 64 KiB"_s;
}

void tst_RVCatalogueReader::largeFaults()
{
    QFETCH(QByteArray, file);
    QTEST(errorOf(file), "error");
}

// Each attribute is compared with all others, so the time grows with the square of their number.
void tst_RVCatalogueReader::manyAttributes()
{
    QByteArray file = "<p>\n<product";
    for (int i = 0; i < 100000; ++i)
        file += " a" + QByteArray::number(i) + "=''";
    QCOMPARE(errorOf(file + "/></p>"), u"2:1: a tag is larger than 64 KiB"_s);
}

// The bound is on one product, not on the file.
void tst_RVCatalogueReader::manyProducts()
{
    CatalogueBuffer file("<p>" + QByteArray("<product><forms><form/></forms></product>\n").repeated(60000) + "</p>");
    QVERIFY(file.size() > 2 * 1024 * 1024);
    RVCatalogueReader reader(&file);
    qint64 count = 0;
    for (const RVCatalogueProduct &product : reader)
        QCOMPARE(product.number(), count++);
    QCOMPARE(count, qint64(60000));
    QCOMPARE(errorOf(reader), QString());
}

void tst_RVCatalogueReader::productsBeforeAnError()
{
    CatalogueBuffer file("<p><product type='A'/><product type='B'/><product></p>");
    RVCatalogueReader reader(&file);
    QCOMPARE(typesOf(&reader), (QStringList { u"A"_s, u"B"_s }));
    QCOMPARE(errorOf(reader), u"1:51: </p> closes <product>, which was opened in line 1"_s);
    QVERIFY(reader.next().isNull());
}

// A product that is too large by one byte is none.
void tst_RVCatalogueReader::noProductThatIsTooLarge()
{
    constexpr int limit = 1 << 20;
    const QByteArray begin = "<product type='A'><!--";
    const QByteArray end = "--></product>";
    for (const int excess : { 0, 1 }) {
        CatalogueBuffer file("<p>\n" + begin + QByteArray(limit - begin.size() - end.size() + excess, 'x') + end
                             + "</p>");
        RVCatalogueReader reader(&file);
        QCOMPARE(typesOf(&reader), excess > 0 ? QStringList() : QStringList { u"A"_s });
        QCOMPARE(reader.hasError(), excess > 0);
    }
}

void tst_RVCatalogueReader::errorWaitsForItsProducts()
{
    CatalogueBuffer file("<p><product type='A'/><product type='B'/></q>");
    RVCatalogueReader reader(&file);
    QCOMPARE(reader.next().type().toString(), u"A"_s);
    QVERIFY(!reader.hasError());
    QVERIFY(!reader.atEnd());
    QCOMPARE(reader.next().type().toString(), u"B"_s);
    QVERIFY(reader.atEnd());
    QVERIFY(reader.hasError());
    QVERIFY(!reader.finish());
}

void tst_RVCatalogueReader::brokenDevice()
{
    BrokenFile file("<p><product type='A'/>\n");
    RVCatalogueReader reader(&file);
    QCOMPARE(typesOf(&reader), QStringList { u"A"_s });
    QCOMPARE(errorOf(reader), u"2:1: cannot read on: the disk is gone"_s);
}

void tst_RVCatalogueReader::fileName()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"größe.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<p><product type='A'/></p>");
    file.close();
    RVCatalogueReader reader(file.fileName());
    QCOMPARE(typesOf(&reader), QStringList { u"A"_s });
    QCOMPARE(errorOf(reader), QString());
    QCOMPARE(reader.size(), qint64(26));
}

void tst_RVCatalogueReader::missingFile()
{
    const QTemporaryDir folder;
    RVCatalogueReader reader(folder.filePath(u"missing.xml"_s));
    QVERIFY(reader.hasError());
    QVERIFY(reader.next().isNull());
    QVERIFY(reader.atEnd());
    QVERIFY(reader.readAll().isEmpty());
    QVERIFY(!reader.finish());
    QVERIFY(reader.findings().isEmpty());
    QCOMPARE(errorOf(reader), u"1:1: cannot open the file: No such file or directory"_s);
}

void tst_RVCatalogueReader::openFileIsReadFromItsPlace()
{
    CatalogueBuffer file("no XML <p><product type='A'/></p>");
    file.seek(7);
    RVCatalogueReader reader(&file);
    QCOMPARE(typesOf(&reader), QStringList { u"A"_s });
}

void tst_RVCatalogueReader::iteratesOnce()
{
    CatalogueBuffer file("<p><product type='A'/><product type='B'/><product type='C'/></p>");
    RVCatalogueReader reader(&file);
    QCOMPARE(reader.next().type().toString(), u"A"_s);
    auto product = reader.begin();
    QVERIFY(product != reader.end());
    QCOMPARE(product->type().toString(), u"B"_s);
    product++;
    QCOMPARE((*product).type().toString(), u"C"_s);
    ++product;
    QVERIFY(product == reader.end());
    QVERIFY(reader.begin() == reader.end());
}

void tst_RVCatalogueReader::readsAll()
{
    CatalogueBuffer file(numbered(3000));
    RVCatalogueReader reader(&file);
    reader.next();
    const QList<RVCatalogueProduct> products = reader.readAll();
    QCOMPARE(products.size(), qsizetype(2999));
    QCOMPARE(products.first().element().attribute("type"_L1), u"T1"_s);
    QCOMPARE(products.last().element().attribute("type"_L1), u"T2999"_s);
    QCOMPARE(products.last().range().begin.line, qint64(3001));
    QVERIFY(reader.readAll().isEmpty());
}

void tst_RVCatalogueReader::finds()
{
    CatalogueBuffer file("<p><product type='A'/><product type='DUN9' name='B'/><product type='DUN9' name='C'/></p>");
    RVCatalogueReader reader(&file);
    QCOMPARE(reader.find(u"DUN9_30"_s).name(), u"B"_s);
    QCOMPARE(reader.find(u"DUN9"_s).name(), u"C"_s);
    QVERIFY(reader.find(u"A"_s).isNull());
    QVERIFY(reader.atEnd());
}

void tst_RVCatalogueReader::finishes()
{
    CatalogueBuffer file("<p><product type='A'/><product type='B'/></p>");
    RVCatalogueReader reader(&file);
    reader.next();
    QVERIFY(reader.finish());
    QVERIFY(reader.atEnd());
    QVERIFY(reader.next().isNull());
}

void tst_RVCatalogueReader::tellsHowFarItIs()
{
    const QByteArray content = numbered(20000);
    CatalogueBuffer file(content);
    RVCatalogueReader reader(&file);
    QCOMPARE(reader.bytesRead(), qint64(0));
    QCOMPARE(reader.size(), qint64(content.size()));
    reader.next();
    QVERIFY(reader.bytesRead() > 0);
    QVERIFY(reader.bytesRead() < content.size() / 2);
    QVERIFY(reader.finish());
    QCOMPARE(reader.bytesRead(), qint64(content.size()));
}

void tst_RVCatalogueReader::mapsInOrder_data()
{
    QTest::addColumn<int>("count");

    QTest::newRow("no product") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("one piece of the file") << 200;
    QTest::newRow("two pieces") << 2000;
    QTest::newRow("many pieces") << 50000;
}

void tst_RVCatalogueReader::mapsInOrder()
{
    QFETCH(int, count);
    CatalogueBuffer file(numbered(count));
    RVCatalogueReader reader(&file);
    QStringList types;
    reader.map(
            [](const QList<RVCatalogueProduct> &products) {
                QStringList result;
                for (const RVCatalogueProduct &product : products)
                    result += product.element().attribute("type"_L1);
                return result;
            },
            [&types](const QStringList &result) {
                types += result;
                return true;
            });
    QCOMPARE(types.size(), qsizetype(count));
    for (int i = 0; i < count; ++i)
        QCOMPARE(types.at(i), u'T' + QString::number(i));
    QVERIFY(reader.atEnd());
    QCOMPARE(errorOf(reader), QString());
}

void tst_RVCatalogueReader::mapUsesThreads()
{
    CatalogueBuffer file(numbered(50000));
    RVCatalogueReader reader(&file);
    const QThread *caller = QThread::currentThread();
    std::atomic_int others = 0;
    reader.map(
            [&](const QList<RVCatalogueProduct> &) {
                if (QThread::currentThread() != caller)
                    ++others;
                return 0;
            },
            [&](int) { return QThread::currentThread() == caller; });
    QVERIFY(others > 5);
    QVERIFY(reader.atEnd());
}

void tst_RVCatalogueReader::threadCount_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("threads");

    QTest::newRow("one") << 1 << 1;
    QTest::newRow("two") << 2 << 2;
    QTest::newRow("too few") << 0 << 1;
    QTest::newRow("negative") << -5 << 1;
}

void tst_RVCatalogueReader::threadCount()
{
    QFETCH(int, count);
    CatalogueBuffer file(numbered(50000));
    RVCatalogueReader reader(&file);
    reader.setThreadCount(count);
    QMutex mutex;
    QSet<const QThread *> threads;
    reader.map(
            [&](const QList<RVCatalogueProduct> &) {
                QThread::msleep(1); // so that one thread does not do it all
                const QMutexLocker locker(&mutex);
                threads.insert(QThread::currentThread());
                return 0;
            },
            [](int) { return true; });
    QTEST(int(threads.size()), "threads");
}

// The findings of the first products come while the rest is still written into a pipe.
void tst_RVCatalogueReader::mapDoesNotWait()
{
    QStringList events;
    SlowPipe pipe({ "<p><product type='A'/>", "<product type='B'/><product type='C'/>", "<product", " type='D'/></p>" },
                  &events);
    RVCatalogueReader reader(&pipe);
    reader.map([](const QList<RVCatalogueProduct> &products) { return products; },
               [&events](const QList<RVCatalogueProduct> &products) {
                   for (const RVCatalogueProduct &product : products)
                       events += product.element().attribute("type"_L1);
                   return true;
               });
    QCOMPARE(events.join(u' '), u"piece A piece B C piece piece D end"_s);
    QCOMPARE(reader.size(), qint64(0));

    // The letter that ends the first tag may be the first of four bytes, so the file begins with seven bytes here.
    QStringList eventsOfTag;
    SlowPipe root({ "<product type='A'/>\n\n\n", "<!-- -->" }, &eventsOfTag);
    RVCatalogueReader rootReader(&root);
    QCOMPARE(rootReader.next().type().toString(), u"A"_s);
    QCOMPARE(eventsOfTag, QStringList { u"piece"_s });
}

void tst_RVCatalogueReader::errorEndsReading()
{
    QStringList events;
    SlowPipe pipe({ "<p></q>", "<!-- -->" }, &events);
    RVCatalogueReader reader(&pipe);
    QVERIFY(!reader.finish());
    QCOMPARE(events, QStringList { u"piece"_s });
}

void tst_RVCatalogueReader::mapStopsWithoutWaiting()
{
    QStringList events;
    SlowPipe pipe({ "<p><product type='A'/>", "<product type='B'/></p>" }, &events);
    RVCatalogueReader reader(&pipe);
    reader.map([](const QList<RVCatalogueProduct> &products) { return products; },
               [&events](const QList<RVCatalogueProduct> &products) {
                   events += products.constFirst().element().attribute("type"_L1);
                   return false;
               });
    QCOMPARE(events.join(u' '), u"piece A"_s);
}

void tst_RVCatalogueReader::mapStops()
{
    CatalogueBuffer file(numbered(100000));
    RVCatalogueReader reader(&file);
    int taken = 0;
    reader.map([](const QList<RVCatalogueProduct> &products) { return products.size(); },
               [&taken](qsizetype) { return ++taken < 3; });
    QCOMPARE(taken, 3);
    QVERIFY(!reader.atEnd());
}

void tst_RVCatalogueReader::mapGoesOnBehindNext()
{
    CatalogueBuffer file(numbered(10));
    RVCatalogueReader reader(&file);
    reader.next();
    reader.next();
    QList<qint64> numbers;
    reader.map([](const QList<RVCatalogueProduct> &products) { return products; },
               [&numbers](const QList<RVCatalogueProduct> &products) {
                   for (const RVCatalogueProduct &product : products)
                       numbers += product.number();
                   return true;
               });
    QCOMPARE(numbers, (QList<qint64> { 2, 3, 4, 5, 6, 7, 8, 9 }));
}

QTEST_GUILESS_MAIN(tst_RVCatalogueReader)
#include "tst_RVCatalogueReader.moc"
