#include <CatalogueAttribute.h>
#include <CatalogueReader.h>
#include <CatalogueValue.h>
#include <KeywordCheck.h>

#include <RVXMLParser.h>

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class tst_KeywordCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distances_data();
    void distances();
    void everyKeyword();
    void unknownAsDecoded();
    void guesses_data();
    void guesses();
    void valuesAsTheLibraryReadsThem();
};

void tst_KeywordCheck::distances_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("distance");

    QTest::newRow("nothing") << u""_s << u""_s << 0;
    QTest::newRow("same") << u"glue"_s << u"glue"_s << 0;
    QTest::newRow("from nothing") << u""_s << u"glue"_s << 4;
    QTest::newRow("added") << u"glue"_s << u"glued"_s << 1;
    QTest::newRow("changed") << u"glue"_s << u"blue"_s << 1;
    QTest::newRow("swapped") << u"glue"_s << u"gleu"_s << 1;
    QTest::newRow("swapped and added") << u"glue"_s << u"lgued"_s << 2;
    QTest::newRow("other case") << u"glue"_s << u"Glue"_s << 1;
    QTest::newRow("all changed") << u"kitten"_s << u"dolphy"_s << 6;
    QTest::newRow("famous") << u"kitten"_s << u"sitting"_s << 3;
}

void tst_KeywordCheck::distances()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(editDistance(a, b), "distance");
    QTEST(editDistance(b, a), "distance");
}

void tst_KeywordCheck::everyKeyword()
{
    for (const CatalogueAttribute &attribute : catalogueAttributes()) {
        const QByteArray name = attribute.name.toLatin1();
        const QLatin1StringView view(name);
        for (const AttributeValue &value : attribute.values()) {
            QVERIFY2(keywordFaults(view, value.keyword).isEmpty(), qPrintable(value.keyword));
            QVERIFY2(keywordFaults(view, u' ' + value.keyword.toUpper() + u'\t').isEmpty(), qPrintable(value.keyword));
            for (const QString &alias : value.aliases) {
                bool isNumber = false;
                value.keyword.toInt(&isNumber);
                const QList<KeywordFault> faults = keywordFaults(view, alias);
                QCOMPARE(faults.size(), isNumber ? 0 : 1);
                if (isNumber)
                    continue;
                QVERIFY(faults.first().isKnown);
                QCOMPARE(faults.first().piece, alias);
                QCOMPARE(faults.first().betterKeyword, value.keyword.toLower());
            }
        }
    }
}

// What the check calls unknown is what the attribute does not decode.
void tst_KeywordCheck::unknownAsDecoded()
{
    QRandomGenerator random(20261121);
    for (const CatalogueAttribute &attribute : catalogueAttributes()) {
        const QByteArray name = attribute.name.toLatin1();
        QStringList pieces = { u""_s, u" "_s, u"nonsense"_s, u"\u0130"_s, u"İndigo"_s, u"\u00a0glue"_s };
        for (const AttributeValue &value : attribute.values())
            pieces += value.aliases + QStringList { value.keyword, value.keyword + u'x', value.keyword.mid(1) };
        for (int i = 0; i < 300; ++i) {
            QStringList list;
            for (int count = random.bounded(1, 5); count > 0; --count)
                list += pieces.at(random.bounded(int(pieces.size())));
            const QString text = list.join(u',');
            QStringList unknown;
            for (const KeywordFault &fault : keywordFaults(QLatin1StringView(name), text)) {
                if (!fault.isKnown)
                    unknown += fault.piece;
            }
            QCOMPARE(unknown, attribute.decode(text).unknownPieces);
        }
    }
}

void tst_KeywordCheck::guesses_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("piece");
    QTest::addColumn<QString>("guess");
    QTest::addColumn<QString>("meaning");

    QTest::newRow("letter missing") << u"cover_type"_s << u"softcver"_s << u"softcover"_s << QString();
    QTest::newRow("letters swapped") << u"orientation"_s << u"lanscdape"_s << u"landscape"_s << QString();
    QTest::newRow("written in capitals") << u"cover_type"_s << u"SOFTCVER"_s << u"SOFTCOVER"_s << QString();
    QTest::newRow("near an alias") << u"article_class"_s << u"fotobok"_s << u"fotobook"_s << u"book"_s;
    QTest::newRow("near a foreign alias") << u"article_class"_s << u"postr"_s << u"poster"_s << u"deko"_s;
    QTest::newRow("near a size") << u"space_magnitude"_s << u"A33"_s << u"a3"_s << u"1200cm2"_s;
    QTest::newRow("other separator") << u"paper_type"_s << u"indigo_glossy"_s << u"indigo-glossy"_s << QString();
    QTest::newRow("like nothing") << u"cover_type"_s << u"zzzzzzzz"_s << QString() << QString();
    QTest::newRow("empty") << u"cover_type"_s << QString() << QString() << QString();
    QTest::newRow("too long") << u"cover_type"_s << QString(100, u'h') << QString() << QString();
}

void tst_KeywordCheck::guesses()
{
    QFETCH(QString, attribute);
    QFETCH(QString, piece);
    const QList<KeywordFault> faults = keywordFaults(QLatin1StringView(attribute.toLatin1()), piece);
    QCOMPARE(faults.size(), 1);
    QVERIFY(!faults.first().isKnown);
    QTEST(faults.first().betterKeyword, "guess");
    QTEST(faults.first().meaning, "meaning");
}

// A value is there exactly when the library's reader does not fall back to its default.
void tst_KeywordCheck::valuesAsTheLibraryReadsThem()
{
    QStringList texts = { u"true"_s,       u"TRUE"_s,  u"false"_s, u"False"_s, u"yes"_s,    u"no"_s,
                          u"on"_s,         u"oFF"_s,   u"maybe"_s, u""_s,      u" true"_s,  u"1"_s,
                          u"0"_s,          u"-1"_s,    u"+7"_s,    u" 8 "_s,   u"1e3"_s,    u"2147483647"_s,
                          u"2147483648"_s, u"0x10"_s,  u"1,000"_s, u"٣"_s,     u"nan"_s,    u"inf"_s,
                          u"-inf"_s,       u"1e400"_s, u".5"_s,    u"5."_s,    u"\u00a05"_s };
    QRandomGenerator random(20261121);
    for (int i = 0; i < 20000; ++i) {
        static const QString letters = u"0123456789+-.,eE xtrufalsn\t"_s;
        QString text;
        for (int length = random.bounded(7); length > 0; --length)
            text += letters.at(random.bounded(int(letters.size())));
        texts += text;
    }
    QByteArray file = "<p>";
    for (const QString &text : texts)
        file += "<product a='" + QString(text).replace(u'\t', "&#9;"_L1).toUtf8() + "'/>";
    file += "<product/></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    CatalogueBatch batch;
    QVERIFY(reader.read(&batch, 10000000));
    QCOMPARE(batch.size(), int(texts.size() + 1));
    for (int i = 0; i < batch.size(); ++i) {
        const CatalogueElement element = batch.at(i);
        QDomDocument document;
        const QDomElement copy = element.deepCopy(&document);
        const QString name = u"a"_s;
        for (const bool fallback : { false, true })
            QCOMPARE(boolValue(element, "a"_L1).value_or(fallback), RVXMLParser::boolAttribute(copy, name, fallback));
        for (const int fallback : { -12345, 54321 })
            QCOMPARE(intValue(element, "a"_L1).value_or(fallback), RVXMLParser::intAttribute(copy, name, fallback));
        for (const double fallback : { -1.5, 2.5 })
            QCOMPARE(doubleValue(element, "a"_L1).value_or(fallback),
                     RVXMLParser::doubleAttribute(copy, name, fallback));
    }
}

QTEST_GUILESS_MAIN(tst_KeywordCheck)
#include "tst_KeywordCheck.moc"
