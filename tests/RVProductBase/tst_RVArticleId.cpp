#include <RVProductBase/RVArticleId.h>

#include <QDataStream>
#include <QDebug>
#include <QDomDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QDomElement element(const QString &attributes)
{
    static QDomDocument document;
    document.setContent(u"<article %1/>"_s.arg(attributes));
    return document.documentElement();
}

}

class tst_RVArticleId : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys();
    void states_data();
    void states();
    void readsXml_data();
    void readsXml();
    void finds_data();
    void finds();
    void readsJson_data();
    void readsJson();
    void catalogueIds_data();
    void catalogueIds();
    void writesAttributes();
    void createsSubElements();
    void writesJson();
    void writesStreams();
    void debugOutput();
    void compares_data();
    void compares();
    void hashes();
};

void tst_RVArticleId::keys()
{
    QCOMPARE(RVArticleId::ARTICLE_ID_KEY, u"id"_s);
    QCOMPARE(RVArticleId::ARTICLE_ART_ID_KEY, u"art_id"_s);
    QCOMPARE(RVArticleId::ARTICLE_ARTICLE_ID_KEY, u"article_id"_s);
    QCOMPARE(RVArticleId::defaultKey(), u"id"_s);
}

void tst_RVArticleId::states_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0 << false << u"0"_s;
    QTest::newRow("one") << 1 << true << u"1"_s;
    QTest::newRow("negative") << -17 << false << u"-17"_s;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << true << u"2147483647"_s;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << false << u"-2147483648"_s;
}

void tst_RVArticleId::states()
{
    QFETCH(int, id);
    QCOMPARE(RVArticleId(id).id(), id);
    QTEST(RVArticleId(id).isValid(), "valid");
    QTEST(RVArticleId(id).toString(), "text");
    QCOMPARE(RVArticleId().id(), 0);
}

void tst_RVArticleId::readsXml_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("artId");
    QTest::addColumn<int>("articleId");
    QTest::newRow("all three") << u"id='1' art_id='2' article_id='3'"_s << 1 << 2 << 3;
    QTest::newRow("none") << u""_s << 0 << 0 << 0;
    QTest::newRow("negative") << u"id='-4'"_s << -4 << 0 << 0;
    QTest::newRow("no numbers") << u"id='' art_id='x' article_id='2147483648'"_s << 0 << 0 << 0;
    QTest::newRow("other letter case") << u"ID='5'"_s << 0 << 0 << 0;
}

void tst_RVArticleId::readsXml()
{
    QFETCH(QString, attributes);
    const QDomElement read = element(attributes);
    QTEST(RVArticleId::fromIdAttribute(read).id(), "id");
    QTEST(RVArticleId::fromArtIdAttribute(read).id(), "artId");
    QTEST(RVArticleId::fromArticleIdAttribute(read).id(), "articleId");
    QTEST(RVArticleId(read, u"article_id"_s).id(), "articleId");
    QTEST(RVArticleId::fromIdAttribute(read.attributes()).id(), "id");
    QTEST(RVArticleId::fromArtIdAttribute(read.attributes()).id(), "artId");
    QTEST(RVArticleId::fromArticleIdAttribute(read.attributes()).id(), "articleId");
    QTEST(RVArticleId(read.attributes(), u"article_id"_s).id(), "articleId");
}

void tst_RVArticleId::finds_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<int>("id");
    QTest::newRow("both") << u"art_id='5' id='17'"_s << 5;
    QTest::newRow("art_id zero") << u"art_id='0' id='17'"_s << 17;
    QTest::newRow("art_id negative") << u"art_id='-5' id='17'"_s << 17;
    QTest::newRow("art_id one") << u"art_id='1' id='17'"_s << 1;
    QTest::newRow("id only, invalid") << u"id='-3'"_s << -3;
    QTest::newRow("article_id does not count") << u"article_id='9'"_s << 0;
    QTest::newRow("none") << u""_s << 0;
}

void tst_RVArticleId::finds()
{
    QFETCH(QString, attributes);
    QTEST(RVArticleId::findId(element(attributes)).id(), "id");
}

void tst_RVArticleId::readsJson_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("articleId");
    QTest::newRow("numbers") << QJsonObject { { u"id"_s, 4 }, { u"article_id"_s, -6 } } << 4 << -6;
    QTest::newRow("texts") << QJsonObject { { u"id"_s, u"4"_s }, { u"article_id"_s, true } } << 0 << 0;
    QTest::newRow("fractions") << QJsonObject { { u"id"_s, 4.5 }, { u"article_id"_s, 1e10 } } << 0 << 0;
    QTest::newRow("not a number and infinite")
            << QJsonObject { { u"id"_s, qQNaN() }, { u"article_id"_s, qInf() } } << 0 << 0;
    QTest::newRow("beyond 32 bits") << QJsonObject { { u"id"_s, 2147483648.0 }, { u"article_id"_s, -2147483649.0 } }
                                    << 0 << 0;
    QTest::newRow("beyond 64 bits") << QJsonObject { { u"id"_s, 1e300 }, { u"article_id"_s, -1e300 } } << 0 << 0;
    QTest::newRow("large whole numbers") << QJsonObject { { u"id"_s, qint64(4294967297) },
                                                          { u"article_id"_s, qint64(-4294967297) } }
                                         << 0 << 0;
    QTest::newRow("limits of 32 bits") << QJsonObject { { u"id"_s, 2147483647.0 }, { u"article_id"_s, -2147483648.0 } }
                                       << std::numeric_limits<int>::max() << std::numeric_limits<int>::min();
    QTest::newRow("empty") << QJsonObject() << 0 << 0;
}

void tst_RVArticleId::readsJson()
{
    QFETCH(QJsonObject, object);
    QTEST(RVArticleId(object).id(), "id");
    QTEST(RVArticleId(object, u"article_id"_s).id(), "articleId");
}

void tst_RVArticleId::catalogueIds_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("photo");
    QTest::addColumn<bool>("adventCalendar");
    QTest::addColumn<bool>("card");
    const QList<int> photos = { 7101, 7102, 7103 };
    const QList<int> adventCalendars = { 5210, 5211, 5420, 5421 };
    const QList<int> cards = { 5880 };
    for (const int id :
         { 7100, 7101, 7102, 7103, 7104, 5209, 5210, 5211, 5212, 5419, 5420, 5421, 5422, 5879, 5880, 5881, 0, -7101 })
        QTest::addRow("%d", id) << id << photos.contains(id) << adventCalendars.contains(id) << cards.contains(id);
}

void tst_RVArticleId::catalogueIds()
{
    QFETCH(int, id);
    QTEST(RVArticleId(id).isFotoWithoutVariableLength(), "photo");
    QTEST(RVArticleId(id).isAdventCalendarWithDoorBackPrint(), "adventCalendar");
    QTEST(RVArticleId(id).isCardWithInsertedFoto(), "card");
}

void tst_RVArticleId::writesAttributes()
{
    QDomElement written = element(u"id='1'"_s);
    RVArticleId(-17).toIdAttribute(written);
    RVArticleId(2147483647).toArtIdAttribute(written);
    RVArticleId(5880).toAttribute(written, u"card"_s);
    QCOMPARE(written.attribute(u"id"_s), u"-17"_s);
    QCOMPARE(written.attribute(u"art_id"_s), u"2147483647"_s);
    QCOMPARE(written.attribute(u"card"_s), u"5880"_s);
    QCOMPARE(written.attributes().count(), 3);
}

void tst_RVArticleId::createsSubElements()
{
    QDomElement parent = element(u""_s);
    const QDomElement child = RVArticleId(12).createSubElement(parent, u"cover"_s);
    QCOMPARE(child.tagName(), u"cover"_s);
    QCOMPARE(child.attribute(u"id"_s), u"12"_s);
    QCOMPARE(child.attributes().count(), 1);
    QVERIFY(parent.lastChildElement() == child);
    QDomElement null;
    QVERIFY(RVArticleId(12).createSubElement(null, u"cover"_s).isNull());
}

void tst_RVArticleId::writesJson()
{
    QJsonObject object { { u"id"_s, u"old"_s }, { u"art_id"_s, 5 } };
    RVArticleId(17).toJSON(object);
    QCOMPARE(object, (QJsonObject { { u"id"_s, 17 }, { u"art_id"_s, 5 } }));
}

void tst_RVArticleId::writesStreams()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    QDataStream &returned = RVArticleId(-7) << stream;
    QCOMPARE(&returned, &stream);
    QCOMPARE(bytes.toHex(' '), QByteArray("00 00 00 04 00 2d 00 37"));
}

void tst_RVArticleId::debugOutput()
{
    QString text;
    QDebug(&text) << RVArticleId(5880) << RVArticleId();
    QCOMPARE(text, u"\"5880\" \"0\" "_s);
}

void tst_RVArticleId::compares_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("less") << 2 << 18 << -1;
    QTest::newRow("equal") << 2 << 2 << 0;
    QTest::newRow("greater") << 3 << 2 << 1;
    QTest::newRow("signed") << -1 << 0 << -1;
}

void tst_RVArticleId::compares()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, order);
    const RVArticleId first(a);
    const RVArticleId second(b);
    QCOMPARE(first == second, order == 0);
    QCOMPARE(first != second, order != 0);
    QCOMPARE(first == b, order == 0);
    QCOMPARE(first != b, order != 0);
    QCOMPARE(first < second, order < 0);
    QCOMPARE(first > second, order > 0);
    QCOMPARE(first <= second, order <= 0);
    QCOMPARE(first >= second, order >= 0);
}

void tst_RVArticleId::hashes()
{
    QCOMPARE(qHash(RVArticleId(17), 4), qHash(17, 4));
    QCOMPARE(qHash(RVArticleId(-1)), qHash(-1));
}

QTEST_GUILESS_MAIN(tst_RVArticleId)
#include "tst_RVArticleId.moc"
