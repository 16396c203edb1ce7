#include "MessageLog.h"

#include <RVCore/RVDistanceUnit.h>

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString PLACE = u"warning default libs/RVCore/RVDistanceUnit:101 "
                      "constexpr qreal RVDistanceUnit::units2Pixels(qreal) const: "_s;

}

class tst_RVDistanceUnit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void converts_data();
    void converts();
    void readsTexts_data();
    void readsTexts();
    void keepsUnknownCodes_data();
    void keepsUnknownCodes();
    void convertsAtCompileTime();
};

void tst_RVDistanceUnit::converts_data()
{
    QTest::addColumn<RVDistanceUnitEnum>("unit");
    QTest::addColumn<int>("code");
    QTest::addColumn<qreal>("tenths");
    QTest::newRow("tenth of a millimetre") << DISTANCE_UNIT_TENTH_MILLIMETRE << 1 << 36.0;
    QTest::newRow("millimetre") << DISTANCE_UNIT_MILLIMETRE << 2 << 360.0;
    QTest::newRow("inch") << DISTANCE_UNIT_INCH << 4 << 9144.0;
    QTest::newRow("centimetre") << DISTANCE_UNIT_CENTIMETRE << 8 << 3600.0;
    QTest::newRow("point") << DISTANCE_UNIT_POINT << 16 << 127.0;
}

void tst_RVDistanceUnit::converts()
{
    QFETCH(RVDistanceUnitEnum, unit);
    QFETCH(int, code);
    QFETCH(qreal, tenths);
    const MessageLog log;
    QCOMPARE(RVDistanceUnit(unit).code(), code);
    QCOMPARE(RVDistanceUnit(code).code(), code);
    QCOMPARE(RVDistanceUnit(unit).units2Pixels(36.0), tenths);
    QCOMPARE(RVDistanceUnit(code).units2Pixels(-36.0), -tenths);
    QCOMPARE(RVDistanceUnit(unit).units2Pixels(0.0), 0.0);
    QCOMPARE(log.lines(), QStringList());
}

void tst_RVDistanceUnit::readsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("code");
    QTest::newRow("0.1mm") << u"0.1mm"_s << 1;
    QTest::newRow("mm") << u"mm"_s << 2;
    QTest::newRow("cm") << u"cm"_s << 8;
    QTest::newRow("inch") << u"inch"_s << 4;
    QTest::newRow("in") << u"in"_s << 4;
    QTest::newRow("pt") << u"pt"_s << 16;
    QTest::newRow("point") << u"point"_s << 16;
    QTest::newRow("empty") << u""_s << 2;
    QTest::newRow("null") << QString() << 2;
    QTest::newRow("unknown") << u"furlong"_s << 2;
    QTest::newRow("upper case") << u"CM"_s << 2;
    QTest::newRow("blank behind") << u"cm "_s << 2;
    QTest::newRow("more behind") << u"inches"_s << 2;
}

void tst_RVDistanceUnit::readsTexts()
{
    QFETCH(QString, text);
    const MessageLog log;
    QTEST(RVDistanceUnit(text).code(), "code");
    QCOMPARE(log.lines(), QStringList());
}

void tst_RVDistanceUnit::keepsUnknownCodes_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("warning");
    QTest::newRow("zero") << 0 << QString(PLACE + u"distance not supported! 0"_s);
    QTest::newRow("between") << 3 << QString(PLACE + u"distance not supported! 3"_s);
    QTest::newRow("next bit") << 32 << QString(PLACE + u"distance not supported! 32"_s);
    QTest::newRow("smallest") << std::numeric_limits<int>::min()
                              << QString(PLACE + u"distance not supported! -2147483648"_s);
}

void tst_RVDistanceUnit::keepsUnknownCodes()
{
    QFETCH(int, code);
    QFETCH(QString, warning);
    const RVDistanceUnit unit(code);
    const MessageLog log;
    QCOMPARE(unit.units2Pixels(2.5), 2.5);
    QCOMPARE(log.lines(), QStringList { warning });
    QCOMPARE(unit.code(), code);
}

void tst_RVDistanceUnit::convertsAtCompileTime()
{
    static_assert(RVDistanceUnit(DISTANCE_UNIT_CENTIMETRE).units2Pixels(2.0) == 200.0);
    constexpr qreal inch = RVDistanceUnit(DISTANCE_UNIT_INCH).units2Pixels(1.0);
    QCOMPARE(inch, 254.0);
}

QTEST_APPLESS_MAIN(tst_RVDistanceUnit)
#include "tst_RVDistanceUnit.moc"
