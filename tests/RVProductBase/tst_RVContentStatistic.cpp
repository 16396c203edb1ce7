#include <RVProductBase/RVContentStatistic.h>
#include <RVProductBase/RVPriceClassSet.h>

#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Bought = QMap<RVPriceClass, int>;

RVContentStatistic statistic(const Bought &bought)
{
    return RVContentStatistic(2, 3, bought);
}

}

class tst_RVContentStatistic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void counts();
    void knowsAppliedAddOns_data();
    void knowsAppliedAddOns();
    void addsAndRemoves();
    void replaces_data();
    void replaces();
    void adaptsToVario_data();
    void adaptsToVario();
    void compares();
};

void tst_RVContentStatistic::construction()
{
    const Bought bought = { { u"MUL1"_s, 2 } };
    const RVContentStatistic tested(5, -7, bought);
    QCOMPARE(tested.countGeoMapAreas(), 5);
    QCOMPARE(tested.countVideoAreas(), -7);
    QCOMPARE(tested.boughtAdditionalContent(), bought);
    QVERIFY(std::has_virtual_destructor_v<RVContentStatistic>);
    RVContentStatistic moved = RVContentStatistic(tested);
    QCOMPARE(moved.countVideoAreas(), -7);
    moved.addAddOn(u"MUL2"_s, 1);
    QCOMPARE(tested.boughtAdditionalContent(), bought);
}

void tst_RVContentStatistic::counts()
{
    const RVContentStatistic tested = statistic({ { u"MUL1"_s, 2 }, { u"KUR2"_s, 0 } });
    QCOMPARE(tested.count(u"MUL1"_s), 2);
    QCOMPARE(tested.count(u"KUR2"_s), 0);
    QCOMPARE(tested.count(u"mul1"_s), 0);
    QCOMPARE(tested.count(u"VEL4"_s), 0);
    QCOMPARE(tested.count(RVPriceClass()), 0);
}

void tst_RVContentStatistic::knowsAppliedAddOns_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<bool>("applied");
    QTest::newRow("none") << QStringList() << false;
    QTest::newRow("another") << QStringList { u"VEL4"_s } << false;
    QTest::newRow("one of several") << QStringList { u"VEL4"_s, u"MUL1"_s } << true;
    QTest::newRow("quantity 0") << QStringList { u"KUR2"_s } << true;
}

void tst_RVContentStatistic::knowsAppliedAddOns()
{
    QFETCH(QStringList, codes);
    RVPriceClassSet set;
    for (const QString &code : codes)
        set.insert(code);
    QTEST(statistic({ { u"MUL1"_s, 2 }, { u"KUR2"_s, 0 } }).isPriceClassAddOnApplied(set), "applied");
    QVERIFY(!statistic({}).isPriceClassAddOnApplied(set));
}

void tst_RVContentStatistic::addsAndRemoves()
{
    RVContentStatistic tested = statistic({ { u"MUL1"_s, 2 } });
    tested.addAddOn(u"MUL1"_s, 3);
    QCOMPARE(tested.boughtAdditionalContent(), (Bought { { u"MUL1"_s, 3 } }));
    tested.addAddOn(u"KUR2"_s, -1);
    QCOMPARE(tested.boughtAdditionalContent(), (Bought { { u"MUL1"_s, 3 }, { u"KUR2"_s, -1 } }));
    tested.removeAddOn(u"mul1"_s);
    tested.removeAddOn(u"MUL1"_s);
    QCOMPARE(tested.boughtAdditionalContent(), (Bought { { u"KUR2"_s, -1 } }));
    QCOMPARE(tested.countGeoMapAreas(), 2);
}

void tst_RVContentStatistic::replaces_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<Bought>("result");
    QTest::newRow("to a new price class")
            << u"MUL1"_s << u"MUL2"_s
            << Bought { { u"MUL2"_s, 1 }, { u"KUR2"_s, 0 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 7 } };
    QTest::newRow("to an existing price class")
            << u"MUL1"_s << u"LEZ1"_s << Bought { { u"KUR2"_s, 0 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 1 } };
    QTest::newRow("to itself") << u"MUL1"_s << u"MUL1"_s
                               << Bought { { u"KUR2"_s, 0 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 7 } };
    QTest::newRow("quantity 0") << u"KUR2"_s << u"LEZ1"_s
                                << Bought { { u"MUL1"_s, 1 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 7 } };
    QTest::newRow("negative quantity") << u"VEL4"_s << u"LEZ1"_s
                                       << Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 0 }, { u"LEZ1"_s, 7 } };
    QTest::newRow("from an absent price class")
            << u"HAZ5"_s << u"LEZ1"_s
            << Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 0 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 7 } };
}

void tst_RVContentStatistic::replaces()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    RVContentStatistic tested = statistic({ { u"MUL1"_s, 1 }, { u"KUR2"_s, 0 }, { u"VEL4"_s, -2 }, { u"LEZ1"_s, 7 } });
    tested.replaceAddOn(from, to);
    QTEST(tested.boughtAdditionalContent(), "result");
}

void tst_RVContentStatistic::adaptsToVario_data()
{
    QTest::addColumn<bool>("from");
    QTest::addColumn<bool>("to");
    QTest::addColumn<Bought>("result");
    QTest::newRow("to vario") << false << true << Bought { { u"MUL1"_s, 10 }, { u"KUR2"_s, 10 }, { u"QO2"_s, 10 } };
    QTest::newRow("from vario") << true << false << Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 1 }, { u"QO2"_s, 1 } };
    QTest::newRow("vario before and after")
            << true << true << Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 4 }, { u"QO2"_s, 0 } };
    QTest::newRow("vario neither before nor after")
            << false << false << Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 4 }, { u"QO2"_s, 0 } };
}

void tst_RVContentStatistic::adaptsToVario()
{
    QFETCH(bool, from);
    QFETCH(bool, to);
    RVContentStatistic tested = statistic({ { u"MUL1"_s, 1 }, { u"KUR2"_s, 4 }, { u"QO2"_s, 0 } });
    const RVContentStatistic copy = tested;
    tested.adaptFromOrToVario(from, to);
    QTEST(tested.boughtAdditionalContent(), "result");
    QCOMPARE(tested.countGeoMapAreas(), 2);
    QCOMPARE(tested.countVideoAreas(), 3);
    QCOMPARE(copy.boughtAdditionalContent(), (Bought { { u"MUL1"_s, 1 }, { u"KUR2"_s, 4 }, { u"QO2"_s, 0 } }));
}

void tst_RVContentStatistic::compares()
{
    const RVContentStatistic tested(1, 2, { { u"MUL1"_s, 3 } });
    QVERIFY(tested == RVContentStatistic(1, 2, { { u"MUL1"_s, 3 } }));
    QVERIFY(!(tested != RVContentStatistic(1, 2, { { u"MUL1"_s, 3 } })));
    QVERIFY(tested != RVContentStatistic(0, 2, { { u"MUL1"_s, 3 } }));
    QVERIFY(tested != RVContentStatistic(1, 0, { { u"MUL1"_s, 3 } }));
    QVERIFY(tested != RVContentStatistic(1, 2, { { u"MUL1"_s, 0 } }));
}

QTEST_GUILESS_MAIN(tst_RVContentStatistic)
#include "tst_RVContentStatistic.moc"
