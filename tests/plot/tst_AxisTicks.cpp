#include <AxisTicks.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_AxisTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void valuesBetween();
    void texts_data();
    void texts();
};

void tst_AxisTicks::steps_data()
{
    QTest::addColumn<qreal>("lowest");
    QTest::addColumn<qreal>("highest");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<qreal>("smallest");
    QTest::addColumn<qreal>("step");
    QTest::addColumn<qreal>("first");
    QTest::addColumn<qreal>("last");

    QTest::newRow("pages of a book") << 26.0 << 154.0 << 8 << 1.0 << 20.0 << 20.0 << 160.0;
    QTest::newRow("pages are whole") << 26.0 << 28.0 << 8 << 1.0 << 1.0 << 26.0 << 28.0;
    QTest::newRow("one value") << 26.0 << 26.0 << 8 << 1.0 << 1.0 << 26.0 << 26.0;
    QTest::newRow("millimetres") << 0.0 << 26.0 << 8 << 0.01 << 5.0 << 0.0 << 30.0;
    QTest::newRow("tenths") << 7.95 << 8.68 << 8 << 0.01 << 0.1 << 7.9 << 8.7;
    QTest::newRow("below zero") << -7.0 << 3.0 << 5 << 1.0 << 2.0 << -8.0 << 4.0;
    QTest::newRow("bounds swapped") << 3.0 << -7.0 << 5 << 1.0 << 2.0 << -8.0 << 4.0;
    QTest::newRow("no room") << 0.0 << 70.0 << 0 << 1.0 << 100.0 << 0.0 << 100.0;
    QTest::newRow("largest counts") << 1.0 << 2147483647.0 << 4 << 1.0 << 1e9 << 0.0 << 3e9;
}

void tst_AxisTicks::steps()
{
    QFETCH(qreal, lowest);
    QFETCH(qreal, highest);
    QFETCH(int, wanted);
    QFETCH(qreal, smallest);
    const AxisTicks ticks(lowest, highest, wanted, smallest);
    QTEST(ticks.step(), "step");
    QTEST(ticks.first(), "first");
    QTEST(ticks.last(), "last");
}

void tst_AxisTicks::valuesBetween()
{
    const AxisTicks ticks(26, 154, 8, 1);
    QCOMPARE(ticks.values(23.4, 156.6), (QList<qreal> { 40, 60, 80, 100, 120, 140 }));
    const AxisTicks tenths(0.1, 0.3, 2, 0.01);
    QCOMPARE(tenths.values(0.1, 0.3).size(), 3);
    QCOMPARE(tenths.values(0.11, 0.19), QList<qreal>());
}

void tst_AxisTicks::texts_data()
{
    QTest::addColumn<qreal>("range");
    QTest::addColumn<qreal>("value");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole") << 8.0 << 20.0 << QLocale::c() << u"20"_s;
    QTest::newRow("tenths") << 0.8 << 8.5 << QLocale::c() << u"8.5"_s;
    QTest::newRow("hundredths in German") << 0.08 << 8.5 << QLocale(QLocale::German) << u"8,50"_s;
    QTest::newRow("zero has no sign") << 0.8 << -0.0 << QLocale::c() << u"0.0"_s;
}

void tst_AxisTicks::texts()
{
    QFETCH(qreal, range);
    QFETCH(qreal, value);
    QFETCH(QLocale, locale);
    QTEST(AxisTicks(0, range, 8, 0.01).text(value, locale), "text");
}

QTEST_APPLESS_MAIN(tst_AxisTicks)
#include "tst_AxisTicks.moc"
