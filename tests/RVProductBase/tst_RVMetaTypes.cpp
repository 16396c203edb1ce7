#include "ListDifference.h"

#include <RVCore/RVDirectoryName.h>
#include <RVCore/RVDistance.h>
#include <RVCore/RVDistanceUnit.h>
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVArticleIdSet.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVMetaTypes.h>
#include <RVProductBase/RVOrderIdList.h>
#include <RVProductBase/RVOrderProjectInfo.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageSizeKey.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVPriceClassSet.h>
#include <RVProductBase/RVProductType.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVSpaceMagnitude.h>

#include <QDataStream>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

const QStringList KEYS = { u"article"_s, u"counts"_s, u"cover"_s, u"empty"_s, u"group"_s,  u"options"_s,
                           u"order"_s,   u"paper"_s,  u"price"_s, u"range"_s, u"orders"_s, u"prices"_s,
                           u"project"_s, u"size"_s,   u"spine"_s, u"spot"_s,  u"type"_s };

QVariantList values()
{
    RVArticleVariants options(u"alcolor"_s, u"red"_s);
    options.insert(u"with,comma"_s, u""_s);
    RVOrderIdList orders;
    orders << RVOrderId(u"1-2"_s) << RVOrderId();
    return {
        QVariant::fromValue(RVArticleId(7101)),
        QVariant::fromValue(RVPageCountOrganization(RVIntRange(26, 154), 4)),
        QVariant::fromValue(RVCoverType(HARDCOVER | WIRE_O)),
        QVariant::fromValue(RVSpaceMagnitude()),
        QVariant::fromValue(RVShippingGroupId(-1)),
        QVariant::fromValue(options),
        QVariant::fromValue(RVOrderId(u"123-456"_s)),
        QVariant::fromValue(RVPaperType(RVPaperTypeEnum(0x4000))),
        QVariant::fromValue(RVPriceClass(u"KUR2"_s)),
        QVariant::fromValue(RVIntRange(-3, 5)),
        QVariant::fromValue(orders),
        QVariant::fromValue(RVPriceClassSet({ u"VEL4"_s, u"VEL5"_s })),
        QVariant::fromValue(RVOrderProjectInfo(u"session"_s, RVOrderId(u"9"_s), 2)),
        QVariant::fromValue(RVSpaceMagnitude(SPACE_MAGNITUDE_600CM2)),
        QVariant::fromValue(RVDistance(12.5, DISTANCE_UNIT_MILLIMETRE)),
        QVariant::fromValue(RVSpotColor(SPOT_COLOR_GOLD)),
        QVariant::fromValue(RVProductType(u"DUN9_30"_s)),
    };
}

template<typename T>
QByteArray streamed(const T &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << value;
    return bytes;
}

template<typename T>
T readBack(const QByteArray &bytes, QDataStream::Status expected = QDataStream::Ok)
{
    T value {};
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_0);
    stream >> value;
    if (stream.status() != expected)
        qWarning() << "status" << stream.status();
    return value;
}

/// The answer of a second process to a settings file.
int checkSettings(const QString &path)
{
    RVMetaTypes::registerAll();
    const QSettings settings(path, QSettings::IniFormat);
    for (qsizetype i = 0; i < KEYS.size(); ++i) {
        if (settings.value(KEYS.at(i)) != values().at(i))
            return int(i) + 1;
    }
    const bool isText = settings.value(u"text"_s).value<RVCoverType>() == RVCoverType(HARDCOVER | GIFT);
    return isText ? 0 : 100;
}

template<typename T>
void addText(const char *name, const T &value, const QString &text)
{
    QTest::newRow(name) << QVariant::fromValue(value) << text;
}

template<typename T>
void addFailure(const char *name, const QString &text)
{
    QTest::newRow(name) << QMetaType::fromType<T>() << text << QVariant::fromValue(T());
}

}

class tst_RVMetaTypes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void names();
    void everyAttribute();
    void texts_data();
    void texts();
    void failures_data();
    void failures();
    void valuesWithoutText();
    void keepsTheConverterOfTheApplication();
    void ofAnApplication();
    void settings();
    void settingsOfAnotherProcess();
    void streams_data();
    void streams();
    void bytes();
    void brokenStreams();
    void lists();
    void sets();
    void equality();
};

/// An attribute of an application.
class TestCover : public RVCoverType
{
public:
    using RVCoverType::RVCoverType;
};

/// With a converter of the application's.
class TestPaper : public RVPaperType
{
public:
    using RVPaperType::RVPaperType;
};

void tst_RVMetaTypes::initTestCase()
{
    QVERIFY(!QMetaType::canConvert(QMetaType::fromType<QString>(), QMetaType::fromType<RVCoverType>()));
    RVMetaTypes::registerAll();
    RVMetaTypes::registerAll();
    QVERIFY(QMetaType::canConvert(QMetaType::fromType<QString>(), QMetaType::fromType<RVCoverType>()));
}

void tst_RVMetaTypes::names()
{
    for (const char *name : { "RVCoverType", "RVArticleVariants", "RVPageCountOrganization", "RVOrderIdList" })
        QVERIFY2(QMetaType::fromName(name).isValid(), name);
}

// The classes in the list file of the library.
void tst_RVMetaTypes::everyAttribute()
{
    const QStringList expected = QStringLiteral(ATTRIBUTE_CLASSES).split(u',');
    QStringList found;
    for (const QString &name : expected) {
        const QMetaType type = QMetaType::fromName(name.toLatin1());
        if (type.isValid() && QMetaType::canConvert(QMetaType::fromType<QString>(), type))
            found += name;
    }
    QCOMPARE(listDifference(u"libs/RVProductBase/RVMetaTypes.cpp"_s, found, expected), QString());
}

void tst_RVMetaTypes::texts_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    addText("attribute", RVCoverType(HARDCOVER | GIFT), u"HARDCOVER, GIFT"_s);
    addText("null attribute", RVSpaceMagnitude(), u""_s);
    addText("null attribute with a keyword", RVOrientation(), u"none"_s);
    addText("spot colour", RVSpotColor(SPOT_COLOR_ROSEGOLD), u"rosegold"_s);
    addText("article", RVArticleId(-5), u"-5"_s);
    addText("shipping group", RVShippingGroupId(18), u"18"_s);
    addText("order", RVOrderId(u"123-456"_s), u"123-456"_s);
    addText("price class", RVPriceClass(u"KUR2"_s), u"KUR2"_s);
    addText("product type", RVProductType(u"DUN9"_s), u"DUN9"_s);
    addText("options", RVArticleVariants::createFromKTX(u"coverphoto:yes,alcolor:red"_s),
            u"alcolor:red,coverphoto:yes"_s);
    addText("option with an empty value", RVArticleVariants(u"alcolor:"_s), u"alcolor:"_s);
    addText("composite option", RVArticleVariants(u"a;b"_s, u"x;y"_s), u"a;b:x;y"_s);
    addText("no options", RVArticleVariants(), u""_s);
    addText("page counts", RVPageCountOrganization(RVIntRange(26, 154), 4), u"min: 26; max: 154; increment: 4"_s);
    addText("invalid page counts", RVPageCountOrganization(RVIntRange(-1, -2), -3),
            u"min: -1; max: -2; increment: -3"_s);
}

void tst_RVMetaTypes::texts()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QVERIFY(value.canConvert<QString>());
    QCOMPARE(value.toString(), text);
    QVariant converted(text);
    QVERIFY(converted.convert(value.metaType()));
    QCOMPARE(converted, value);
}

void tst_RVMetaTypes::failures_data()
{
    QTest::addColumn<QMetaType>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QVariant>("expected");
    addFailure<RVCoverType>("unknown keyword", u"HARDCOVER, Leinen"_s);
    addFailure<RVPaperType>("unknown keyword that has a default", u"Leinen"_s);
    addFailure<RVArticleId>("no number", u"7101a"_s);
    addFailure<RVArticleId>("no article", u""_s);
    addFailure<RVShippingGroupId>("too large a number", u"2147483648"_s);
    addFailure<RVArticleVariants>("no separator", u"alcolor:red,coverphoto"_s);
    addFailure<RVArticleVariants>("two separators", u"a:b:c"_s);
    addFailure<RVPageCountOrganization>("no page counts", u"26-154"_s);
    addFailure<RVPageCountOrganization>("count beyond the limits", u"min: 26; max: 2147483648; increment: 4"_s);
}

void tst_RVMetaTypes::failures()
{
    QFETCH(QMetaType, type);
    QFETCH(QString, text);
    QVariant converted(text);
    QCOMPARE(converted.convert(type), QT_VERSION < QT_VERSION_CHECK(6, 8, 0));
    QCOMPARE(converted.metaType(), type);
    QTEST(converted, "expected");
}

void tst_RVMetaTypes::valuesWithoutText()
{
    const QVariant options = QVariant::fromValue(RVArticleVariants(u"a"_s, u"b,c"_s));
    QCOMPARE(options.toString(), QString());
    QCOMPARE(QVariant(options).convert(QMetaType::fromType<QString>()), QT_VERSION < QT_VERSION_CHECK(6, 8, 0));
}

void tst_RVMetaTypes::keepsTheConverterOfTheApplication()
{
    QMetaType::registerConverter<TestPaper, QString>([](const TestPaper &) { return u"own"_s; });
    RVMetaTypes::registerAttribute<TestPaper>();
    QCOMPARE(QVariant::fromValue(TestPaper(PREMIUM)).toString(), u"own"_s);
    QCOMPARE(QVariant(u"premium"_s).value<TestPaper>(), TestPaper(PREMIUM));
}

void tst_RVMetaTypes::ofAnApplication()
{
    RVMetaTypes::registerAttribute<TestCover>();
    QCOMPARE(QVariant::fromValue(TestCover(HARDCOVER)).toString(), u"HARDCOVER"_s);
    QCOMPARE(QVariant(u"gift"_s).value<TestCover>(), TestCover(GIFT));
}

void tst_RVMetaTypes::settings()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    {
        QSettings settings(path, QSettings::IniFormat);
        for (qsizetype i = 0; i < KEYS.size(); ++i)
            settings.setValue(KEYS.at(i), values().at(i));
    }
    const QSettings settings(path, QSettings::IniFormat);
    for (qsizetype i = 0; i < KEYS.size(); ++i)
        QCOMPARE(settings.value(KEYS.at(i)), values().at(i));
}

void tst_RVMetaTypes::settingsOfAnotherProcess()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    {
        QSettings settings(path, QSettings::IniFormat);
        for (qsizetype i = 0; i < KEYS.size(); ++i)
            settings.setValue(KEYS.at(i), values().at(i));
        settings.setValue(u"text"_s, QVariant::fromValue(RVCoverType(HARDCOVER | GIFT)).toString());
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("text=\"HARDCOVER, GIFT\""));
    QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), { u"--settings"_s, path }), 0);
}

void tst_RVMetaTypes::streams_data()
{
    QTest::addColumn<QVariant>("value");
    for (qsizetype i = 0; i < KEYS.size(); ++i)
        QTest::newRow(qPrintable(KEYS.at(i))) << values().at(i);
}

void tst_RVMetaTypes::streams()
{
    QFETCH(QVariant, value);
    QVERIFY(value.metaType().hasRegisteredDataStreamOperators());
    QVERIFY(value.metaType().isEqualityComparable());
    const auto read = readBack<QVariant>(streamed(value));
    QCOMPARE(read.metaType(), value.metaType());
    QCOMPARE(read, value);
}

void tst_RVMetaTypes::bytes()
{
    QCOMPARE(streamed(RVOrientation(ORIENTATION_SQUARE)), "\0\0\0\0\0\0\0\4"_ba);
    QCOMPARE(streamed(RVCoverType(RVCoverTypeEnum(-2))), "\xff\xff\xff\xff\xff\xff\xff\xfe"_ba);
    QCOMPARE(streamed(RVPageCountOrganization(RVIntRange(26, 154), 4)), "\0\0\0\x1a\0\0\0\x9a\0\0\0\4"_ba);
    QCOMPARE(streamed(RVArticleId(7)), streamed(u"7"_s));
    QCOMPARE(streamed(RVShippingGroupId(-1)), streamed(u"-1"_s));
    QCOMPARE(streamed(RVOrderId(u"1-2"_s)), streamed(u"1-2"_s));
    QCOMPARE(streamed(RVPriceClass(u"KUR2"_s)), streamed(u"KUR2"_s));
    QCOMPARE(streamed(RVProductType(u"DUN9_30"_s)), streamed(u"DUN9"_s));
    QCOMPARE(streamed(RVOrderProjectInfo(u"s"_s, RVOrderId(u"1"_s), 2)),
             streamed(u"1"_s) + streamed(qint32(2)) + streamed(u"s"_s));

    QByteArray asMember;
    QDataStream stream(&asMember, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    RVArticleId(7) << stream;
    QCOMPARE(asMember, streamed(RVArticleId(7)));
}

void tst_RVMetaTypes::brokenStreams()
{
    constexpr auto corrupt = QDataStream::ReadCorruptData;
    constexpr auto tooShort = QDataStream::ReadPastEnd;
    QCOMPARE(readBack<RVArticleId>(streamed(u"x"_s), corrupt), RVArticleId());
    QCOMPARE(readBack<RVShippingGroupId>(streamed(u""_s), corrupt), RVShippingGroupId());
    QCOMPARE(readBack<RVOrientation>(streamed(qint64(1) << 32), corrupt), RVOrientation());
    QCOMPARE(readBack<RVCoverType>("\1\2"_ba, tooShort), RVCoverType());
    QCOMPARE(readBack<RVArticleVariants>("\0\0\0\1"_ba, tooShort), RVArticleVariants());
    QCOMPARE(readBack<RVProductType>(QByteArray(), tooShort), RVProductType());
    QCOMPARE(readBack<RVOrderProjectInfo>(QByteArray(), tooShort), RVOrderProjectInfo(QString(), RVOrderId(), 0));
}

void tst_RVMetaTypes::lists()
{
    const QList<RVCoverType> covers = { HARDCOVER, GIFT };
    QCOMPARE(readBack<QList<RVCoverType>>(streamed(covers)), covers);
    const QMap<RVPriceClass, int> bill = { { u"KUR2"_s, 1 } };
    QCOMPARE((readBack<QMap<RVPriceClass, int>>(streamed(bill))), bill);
    const QList<RVOrderProjectInfo> projects = { RVOrderProjectInfo(u"s"_s, RVOrderId(u"1"_s), 2) };
    QCOMPARE(readBack<QList<RVOrderProjectInfo>>(streamed(projects)), projects);
}

void tst_RVMetaTypes::sets()
{
    QCOMPARE(QSet<RVCoverType>({ HARDCOVER, GIFT, RVCoverType(u"hard"_s) }).size(), 2);
    QCOMPARE(QSet<RVOrderId>({ RVOrderId(), RVOrderId(u""_s), RVOrderId(u"1"_s) }).size(), 2);
    QCOMPARE(QSet<RVShippingGroupId>({ 1, 2, 1 }).size(), 2);
    QCOMPARE(QSet<RVArticleVariants>({ RVArticleVariants::createFromKTX(u"a:1,b:2"_s),
                                       RVArticleVariants::createFromKTX(u"b:2,a:1"_s), RVArticleVariants() })
                     .size(),
             2);
    QCOMPARE(QSet<RVPageCountOrganization>({ RVPageCountOrganization(), RVPageCountOrganization() }).size(), 1);
    QCOMPARE(QSet<RVIntRange>({ RVIntRange(1, 2), RVIntRange(2, 1) }).size(), 2);
    QCOMPARE(QSet<RVDistanceUnit>({ DISTANCE_UNIT_INCH, RVDistanceUnit(u"in"_s), RVDistanceUnit(7) }).size(), 2);
    QCOMPARE(QSet<RVDirectoryName>({ DIRECTORY_STYLES, DIRECTORY_DESIGNS, DIRECTORY_STYLES }).size(), 2);
    QHash<RVPageSizeKey, int> sizes;
    sizes[RVPageSizeKey(PAGE_TYPE_SPINE, 26)] = 1;
    sizes[RVPageSizeKey(PAGE_TYPE_NORMALPAGE, 26)] = 2;
    QCOMPARE(sizes.value(RVPageSizeKey(PAGE_TYPE_SPINE, 26)), 1);
    QHash<RVConfiguredArticleVariant, int> options;
    options[RVConfiguredArticleVariant(u"alcolor:red"_s)] = 3;
    QCOMPARE(options.value(RVConfiguredArticleVariant(u"alcolor"_s, u"red"_s)), 3);
    QVERIFY(qHash(RVCoverType(HARDCOVER), 1) != qHash(RVCoverType(GIFT), 1));
    QCOMPARE(qHash(RVArticleVariants(u"a:1"_s)), RVArticleVariants(u"a:1"_s).hash());
}

void tst_RVMetaTypes::equality()
{
    QVERIFY(QVariant::fromValue(RVCoverType(GIFT)) == QVariant::fromValue(RVCoverType(GIFT)));
    QVERIFY(QVariant::fromValue(RVCoverType(GIFT)) != QVariant::fromValue(RVCoverType(SET)));
    QVERIFY(RVDistanceUnit(DISTANCE_UNIT_INCH) == RVDistanceUnit(4));
    QVERIFY(RVDistanceUnit(DISTANCE_UNIT_INCH) != RVDistanceUnit(DISTANCE_UNIT_POINT));
    QVERIFY(RVDirectoryName(DIRECTORY_STYLES) != RVDirectoryName(DIRECTORY_DESIGNS));
    QString text;
    QDebug(&text) << RVDistance(1.5, DISTANCE_UNIT_MILLIMETRE) << RVPriceClass(u"KUR2"_s) << RVProductType(u"DUN9"_s);
    QCOMPARE(text, u"RVDistance(1.5 mm) \"KUR2\" \"DUN9\" "_s);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--settings"_L1)
        return checkSettings(arguments.value(2));
    tst_RVMetaTypes test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_RVMetaTypes.moc"
