#include "MessageLog.h"

#include <RVProductBase/RVProductTypeList.h>

#include <QDebug>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

RVProductTypeList list(const QList<QString> &codes)
{
    return RVProductTypeList(codes);
}

}

class tst_RVProductTypeList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void readsCsv_data();
    void readsCsv();
    void contains_data();
    void contains();
    void addsWithoutDoubles_data();
    void addsWithoutDoubles();
    void addsLists();
    void refusesUnknownTypes();
    void debugOutput_data();
    void debugOutput();
};

void tst_RVProductTypeList::construction()
{
    QVERIFY(RVProductTypeList().isEmpty());
    const QList<RVProductType> types = { RVProductType(u"VIR5"_s), RVProductType(), RVProductType(u"VIR5"_s) };
    QCOMPARE(RVProductTypeList(types).toStringList(), (QStringList { u"VIR5"_s, u""_s, u"VIR5"_s }));
    QCOMPARE(list({ u"DUN9_30"_s, u""_s, QString(), u"VIR5"_s, u"DUN9"_s }).toStringList(),
             (QStringList { u"DUN9"_s, u"VIR5"_s, u"DUN9"_s }));
    QVERIFY(!std::is_polymorphic_v<RVProductTypeList>);
}

void tst_RVProductTypeList::readsCsv_data()
{
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("commas only") << u",,"_s << QStringList();
    QTest::newRow("two with empty parts") << u"DUN3,,VIR30,"_s << QStringList { u"DUN3"_s, u"VIR30"_s };
    QTest::newRow("doubles, in order") << u"VIR5,DUN3_1,VIR5"_s << QStringList { u"VIR5"_s, u"DUN3"_s, u"VIR5"_s };
    QTest::newRow("blanks stay") << u"VIR5, DUN3_1"_s << QStringList { u"VIR5"_s, u" DUN3_1"_s };
    QTest::newRow("other separator") << u"VIR5;DUN3"_s << QStringList { u"VIR5;DUN3"_s };
}

void tst_RVProductTypeList::readsCsv()
{
    QFETCH(QString, csv);
    QTEST(RVProductTypeList::buildFromCSV(csv).toStringList(), "names");
}

void tst_RVProductTypeList::contains_data()
{
    QTest::addColumn<QList<QString>>("codes");
    QTest::addColumn<bool>("agenda");
    QTest::addColumn<bool>("calendar");
    QTest::addColumn<bool>("notOnlyCalendars");
    QTest::newRow("empty") << QList<QString>() << false << false << false;
    QTest::newRow("calendars") << QList<QString> { u"VIR5"_s, u"VIR31"_s } << false << true << false;
    QTest::newRow("agendas") << QList<QString> { u"VIR29"_s } << true << true << false;
    QTest::newRow("agenda last") << QList<QString> { u"VIR5"_s, u"VIR30"_s } << true << true << false;
    QTest::newRow("calendar and add-on") << QList<QString> { u"VIR5"_s, u"KUR2"_s } << false << true << true;
    QTest::newRow("no calendar") << QList<QString> { u"DUN9"_s } << false << false << true;
}

void tst_RVProductTypeList::contains()
{
    QFETCH(QList<QString>, codes);
    QTEST(list(codes).containsAgenda(), "agenda");
    QTEST(list(codes).containsCalendar(), "calendar");
    QTEST(list(codes).containsNotOnlyCalendars(), "notOnlyCalendars");
}

void tst_RVProductTypeList::addsWithoutDoubles_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("new, at the end") << u"KUR2"_s << QStringList { u"VIR5"_s, u"DUN9"_s, u"KUR2"_s };
    QTest::newRow("known") << u"VIR5"_s << QStringList { u"VIR5"_s, u"DUN9"_s };
    QTest::newRow("known family") << u"DUN9_30"_s << QStringList { u"VIR5"_s, u"DUN9"_s };
    QTest::newRow("other letter case") << u"vir5"_s << QStringList { u"VIR5"_s, u"DUN9"_s, u"vir5"_s };
}

void tst_RVProductTypeList::addsWithoutDoubles()
{
    QFETCH(QString, code);
    RVProductTypeList tested = list({ u"VIR5"_s, u"DUN9"_s });
    const RVProductTypeList copy = tested;
    tested.addWithoutDoubles(RVProductType(code));
    QTEST(tested.toStringList(), "names");
    QCOMPARE(copy.toStringList(), (QStringList { u"VIR5"_s, u"DUN9"_s }));
}

void tst_RVProductTypeList::addsLists()
{
    RVProductTypeList tested = list({ u"VIR5"_s, u"VIR5"_s });
    tested.addWithoutDoubles(list({ u"KUR2"_s, u"VIR5"_s, u"KUR2"_s, u"A"_s }));
    QCOMPARE(tested.toStringList(), (QStringList { u"VIR5"_s, u"VIR5"_s, u"KUR2"_s, u"A"_s }));
    tested.addWithoutDoubles(tested);
    QCOMPARE(tested.size(), 4);
}

void tst_RVProductTypeList::refusesUnknownTypes()
{
    RVProductTypeList tested = list({ u"VIR5"_s });
    const QString warning = u"warning default libs/RVProductBase/RVProductTypeList:97 "
                            "void RVProductTypeList::addWithoutDoubles(const RVProductType&): "
                            "there is no \"UNKNOWN\""_s;
    const MessageLog log;
    tested.addWithoutDoubles(RVProductType());
    QCOMPARE(log.lines(), QStringList { warning });
    tested.addWithoutDoubles(RVProductTypeList(QList<RVProductType> { RVProductType(), RVProductType(u"KUR2"_s) }));
    QCOMPARE(log.lines(), (QStringList { warning, warning }));
    QCOMPARE(tested.toStringList(), (QStringList { u"VIR5"_s, u"KUR2"_s }));
}

void tst_RVProductTypeList::debugOutput_data()
{
    QTest::addColumn<QList<QString>>("codes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QList<QString>() << u"QList() "_s;
    QTest::newRow("two") << QList<QString> { u"DUN9_30"_s, u"VIR5"_s } << u"QList(\"DUN9\", \"VIR5\") "_s;
}

void tst_RVProductTypeList::debugOutput()
{
    QFETCH(QList<QString>, codes);
    QString text;
    QDebug(&text) << list(codes);
    QTEST(text, "text");
}

QTEST_APPLESS_MAIN(tst_RVProductTypeList)
#include "tst_RVProductTypeList.moc"
