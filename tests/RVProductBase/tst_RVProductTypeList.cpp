#include <RVProductBase/RVProductTypeList.h>

#include <QDebug>
#include <QTest>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

static_assert(std::is_base_of_v<QList<RVProductType>, RVProductTypeList>);
static_assert(std::is_convertible_v<RVProductTypeList *, QList<RVProductType> *>);
static_assert(sizeof(RVProductTypeList) == sizeof(QList<RVProductType>));
static_assert(std::is_convertible_v<QList<RVProductType>, RVProductTypeList>);
static_assert(std::is_convertible_v<QStringList, RVProductTypeList>);

namespace {

struct Message
{
    QtMsgType type;
    QByteArray category;
    QByteArray file;
    int line;
    QByteArray function;
    QString text;
};

QList<Message> messages;

void collect(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    messages += { type, context.category, context.file, context.line, context.function, text };
}

/// Collects the messages of the log as long as it lives.
class MessageCollector
{
public:
    MessageCollector() : myPrevious(qInstallMessageHandler(collect)) { messages.clear(); }
    ~MessageCollector() { qInstallMessageHandler(myPrevious); }
    Q_DISABLE_COPY_MOVE(MessageCollector)

private:
    const QtMessageHandler myPrevious;
};

RVProductTypeList listOf(const QStringList &codes)
{
    RVProductTypeList list;
    for (const QString &code : codes)
        list.append(RVProductType(code));
    return list;
}

}

class tst_RVProductTypeList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsEmpty();
    void fromTypes();
    void fromCodes_data();
    void fromCodes();
    void fromCsv_data();
    void fromCsv();
    void kinds_data();
    void kinds();
    void addsType_data();
    void addsType();
    void addsOwnElement();
    void warnsOfUnknown();
    void addsList_data();
    void addsList();
    void addsItself();
    void toStringList();
    void debugOutput_data();
    void debugOutput();
    void debugOutputInModes();
    void copies();
};

void tst_RVProductTypeList::defaultIsEmpty()
{
    QVERIFY(RVProductTypeList().isEmpty());
}

void tst_RVProductTypeList::fromTypes()
{
    QList<RVProductType> types { RVProductType(u"VIR29"_s), RVProductType(), RVProductType(u"VIR29"_s) };
    RVProductTypeList list = types;
    QCOMPARE(list.toStringList(), QStringList({ u"VIR29"_s, u""_s, u"VIR29"_s }));
    QCOMPARE(list.constData(), types.constData());
    types.clear();
    QCOMPARE(list.size(), 3);
    list.append(RVProductType(u"KUR2"_s));
    QCOMPARE(list.size(), 4);
    QCOMPARE(types.size(), 0);
}

void tst_RVProductTypeList::fromCodes_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none") << QStringList() << QStringList();
    QTest::newRow("order kept") << QStringList { u"VIR30"_s, u"DUN3"_s, u"KUR2"_s }
                                << QStringList { u"VIR30"_s, u"DUN3"_s, u"KUR2"_s };
    QTest::newRow("doubles kept") << QStringList { u"VIR30"_s, u"VIR30"_s } << QStringList { u"VIR30"_s, u"VIR30"_s };
    QTest::newRow("reduced to one family")
            << QStringList { u"DUN9_30"_s, u"DUN9XL"_s } << QStringList { u"DUN9"_s, u"DUN9"_s };
    QTest::newRow("empty ones") << QStringList { u""_s, u"VIR30"_s, QString(), u""_s } << QStringList { u"VIR30"_s };
    QTest::newRow("only empty ones") << QStringList { u""_s, QString() } << QStringList();
    QTest::newRow("blank") << QStringList { u" "_s } << QStringList { u" "_s };
    QTest::newRow("comma is no separator") << QStringList { u"VIR1,VIR2"_s } << QStringList { u"VIR1,VIR2"_s };
}

void tst_RVProductTypeList::fromCodes()
{
    QFETCH(QStringList, codes);
    const MessageCollector collector;
    QTEST(RVProductTypeList(codes).toStringList(), "names");
    QCOMPARE(messages.size(), 0);
}

void tst_RVProductTypeList::fromCsv_data()
{
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("empty") << u""_s << QStringList();
    QTest::newRow("commas only") << u",,,"_s << QStringList();
    QTest::newRow("one") << u"VIR29"_s << QStringList { u"VIR29"_s };
    QTest::newRow("two") << u"VIR29,DUN9_30"_s << QStringList { u"VIR29"_s, u"DUN9"_s };
    QTest::newRow("empty parts") << u"DUN3,,VIR30,"_s << QStringList { u"DUN3"_s, u"VIR30"_s };
    QTest::newRow("leading comma") << u",VIR30"_s << QStringList { u"VIR30"_s };
    QTest::newRow("doubles kept") << u"VIR30,VIR30"_s << QStringList { u"VIR30"_s, u"VIR30"_s };
    QTest::newRow("blank behind the comma") << u"VIR29, VIR30"_s << QStringList { u"VIR29"_s, u" VIR30"_s };
    QTest::newRow("blank part") << u"VIR29, ,VIR30"_s << QStringList { u"VIR29"_s, u" "_s, u"VIR30"_s };
    QTest::newRow("other separators") << u"VIR29;VIR30"_s << QStringList { u"VIR29;VIR30"_s };
}

void tst_RVProductTypeList::fromCsv()
{
    QFETCH(QString, csv);
    const MessageCollector collector;
    QTEST(RVProductTypeList::buildFromCSV(csv).toStringList(), "names");
    QCOMPARE(messages.size(), 0);
}

void tst_RVProductTypeList::kinds_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<bool>("agenda");
    QTest::addColumn<bool>("calendar");
    QTest::addColumn<bool>("notOnlyCalendars");
    QTest::newRow("empty list") << QStringList() << false << false << false;
    QTest::newRow("unknown type") << QStringList { u""_s } << false << false << true;
    QTest::newRow("calendar and add-on") << QStringList { u"VIR5"_s, u"KUR2"_s } << false << true << true;
    QTest::newRow("add-on and calendar") << QStringList { u"KUR2"_s, u"VIR5"_s } << false << true << true;
    QTest::newRow("calendars only") << QStringList { u"VIR5"_s, u"VIR"_s } << false << true << false;
    QTest::newRow("agenda at the front") << QStringList { u"VIR29"_s, u"VIR5"_s } << true << true << false;
    QTest::newRow("agenda at the end") << QStringList { u"VIR5"_s, u"VIR30"_s } << true << true << false;
    QTest::newRow("agenda in the middle") << QStringList { u"A"_s, u"VIR30"_s, u"B"_s } << true << true << true;
    QTest::newRow("books only") << QStringList { u"DUN3"_s, u"DUNS4"_s } << false << false << true;
    QTest::newRow("lower case") << QStringList { u"vir29"_s } << false << false << true;
}

void tst_RVProductTypeList::kinds()
{
    QFETCH(QStringList, codes);
    const RVProductTypeList list = listOf(codes);
    QTEST(list.containsAgenda(), "agenda");
    QTEST(list.containsCalendar(), "calendar");
    QTEST(list.containsNotOnlyCalendars(), "notOnlyCalendars");
}

void tst_RVProductTypeList::addsType_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("added");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("to an empty list") << QStringList() << u"VIR29"_s << QStringList { u"VIR29"_s };
    QTest::newRow("at the end") << QStringList { u"VIR30"_s } << u"VIR29"_s << QStringList { u"VIR30"_s, u"VIR29"_s };
    QTest::newRow("first one again") << QStringList { u"VIR29"_s, u"A"_s } << u"VIR29"_s
                                     << QStringList { u"VIR29"_s, u"A"_s };
    QTest::newRow("last one again") << QStringList { u"A"_s, u"VIR29"_s } << u"VIR29"_s
                                    << QStringList { u"A"_s, u"VIR29"_s };
    QTest::newRow("same family") << QStringList { u"DUN9_30"_s } << u"DUN9XL"_s << QStringList { u"DUN9"_s };
    QTest::newRow("other letter case") << QStringList { u"VIR29"_s } << u"vir29"_s
                                       << QStringList { u"VIR29"_s, u"vir29"_s };
    QTest::newRow("older doubles stay") << QStringList { u"A"_s, u"A"_s } << u"B"_s
                                        << QStringList { u"A"_s, u"A"_s, u"B"_s };
    QTest::newRow("unknown one in the list") << QStringList { u""_s } << u"A"_s << QStringList { u""_s, u"A"_s };
    QTest::newRow("called unknown") << QStringList() << u"UNKNOWN"_s << QStringList { u"UNKNOWN"_s };
}

void tst_RVProductTypeList::addsType()
{
    QFETCH(QStringList, codes);
    QFETCH(QString, added);
    RVProductTypeList list = listOf(codes);
    const MessageCollector collector;
    list.addWithoutDoubles(RVProductType(added));
    QTEST(list.toStringList(), "names");
    QCOMPARE(messages.size(), 0);
}

void tst_RVProductTypeList::addsOwnElement()
{
    RVProductTypeList list = listOf({ u"A"_s, u"B"_s });
    list.addWithoutDoubles(list.at(1));
    QCOMPARE(list.toStringList(), QStringList({ u"A"_s, u"B"_s }));
}

void tst_RVProductTypeList::warnsOfUnknown()
{
    RVProductTypeList list = listOf({ u"VIR29"_s });
    {
        const MessageCollector collector;
        list.addWithoutDoubles(RVProductType());
    }
    QCOMPARE(list.toStringList(), QStringList { u"VIR29"_s });
    QCOMPARE(messages.size(), 1);
    const Message &message = messages.first();
    QCOMPARE(message.type, QtWarningMsg);
    QCOMPARE(message.category, "default"_ba);
    QCOMPARE(message.file, "libs/RVProductBase/RVProductTypeList"_ba);
    QCOMPARE(message.line, 97);
    QCOMPARE(message.function, "void RVProductTypeList::addWithoutDoubles(const RVProductType&)"_ba);
    QCOMPARE(message.text, u"there is no \"UNKNOWN\""_s);
}

void tst_RVProductTypeList::addsList_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("warnings");
    QTest::newRow("both empty") << QStringList() << QStringList() << QStringList() << 0;
    QTest::newRow("empty to some") << QStringList { u"A"_s } << QStringList() << QStringList { u"A"_s } << 0;
    QTest::newRow("new ones in their order")
            << QStringList { u"A"_s } << QStringList { u"C"_s, u"B"_s } << QStringList { u"A"_s, u"C"_s, u"B"_s } << 0;
    QTest::newRow("doubles within the added")
            << QStringList() << QStringList { u"A"_s, u"B"_s, u"A"_s } << QStringList { u"A"_s, u"B"_s } << 0;
    QTest::newRow("some known") << QStringList { u"A"_s, u"B"_s } << QStringList { u"B"_s, u"C"_s, u"A"_s }
                                << QStringList { u"A"_s, u"B"_s, u"C"_s } << 0;
    QTest::newRow("unknown ones between") << QStringList { u"A"_s } << QStringList { u""_s, u"B"_s, QString() }
                                          << QStringList { u"A"_s, u"B"_s } << 2;
}

void tst_RVProductTypeList::addsList()
{
    QFETCH(QStringList, codes);
    QFETCH(QStringList, added);
    RVProductTypeList list = listOf(codes);
    const RVProductTypeList source = listOf(added);
    {
        const MessageCollector collector;
        list.addWithoutDoubles(source);
    }
    QTEST(list.toStringList(), "names");
    QTEST(int(messages.size()), "warnings");
    for (const Message &message : std::as_const(messages))
        QCOMPARE(message.text, u"there is no \"UNKNOWN\""_s);
    QCOMPARE(source.size(), added.size());
}

void tst_RVProductTypeList::addsItself()
{
    RVProductTypeList list = listOf({ u"A"_s, u""_s, u"A"_s, u"B"_s });
    {
        const MessageCollector collector;
        list.addWithoutDoubles(list);
    }
    QCOMPARE(list.toStringList(), QStringList({ u"A"_s, u""_s, u"A"_s, u"B"_s }));
    QCOMPARE(messages.size(), 1);
}

void tst_RVProductTypeList::toStringList()
{
    QCOMPARE(RVProductTypeList().toStringList(), QStringList());
    QCOMPARE(listOf({ u"VIR29"_s, u""_s, u"DUN9_30"_s, u"VIR29"_s }).toStringList(),
             QStringList({ u"VIR29"_s, u""_s, u"DUN9"_s, u"VIR29"_s }));
}

void tst_RVProductTypeList::debugOutput_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty list") << QStringList() << u"QList() "_s;
    QTest::newRow("one") << QStringList { u"VIR29"_s } << u"QList(\"VIR29\") "_s;
    QTest::newRow("two") << QStringList { u"VIR29"_s, u"DUN9_30"_s } << u"QList(\"VIR29\", \"DUN9\") "_s;
    QTest::newRow("unknown") << QStringList { u""_s } << u"QList(\"\") "_s;
    QTest::newRow("quote") << QStringList { u"a\"b"_s } << u"QList(\"a\\\"b\") "_s;
}

void tst_RVProductTypeList::debugOutput()
{
    QFETCH(QStringList, codes);
    QString text;
    QDebug(&text) << listOf(codes);
    QTEST(text, "text");
}

void tst_RVProductTypeList::debugOutputInModes()
{
    QString text;
    QDebug(&text) << 1 << listOf({ u"VIR29"_s }) << 2;
    QCOMPARE(text, u"1 QList(\"VIR29\") 2 "_s);
    text.clear();
    QDebug(&text).nospace() << listOf({ u"VIR29"_s, u"A"_s }) << 2;
    QCOMPARE(text, u"QList(\"VIR29\", \"A\")2"_s);
}

void tst_RVProductTypeList::copies()
{
    const RVProductTypeList source = listOf({ u"A"_s });
    RVProductTypeList copy = source;
    copy.addWithoutDoubles(RVProductType(u"B"_s));
    QCOMPARE(source.toStringList(), QStringList { u"A"_s });
    QCOMPARE(copy.toStringList(), QStringList({ u"A"_s, u"B"_s }));
    RVProductTypeList assigned;
    assigned = copy;
    QCOMPARE(assigned, copy);
    const RVProductTypeList moved = std::move(copy);
    QCOMPARE(moved.toStringList(), QStringList({ u"A"_s, u"B"_s }));
}

QTEST_GUILESS_MAIN(tst_RVProductTypeList)
#include "tst_RVProductTypeList.moc"
