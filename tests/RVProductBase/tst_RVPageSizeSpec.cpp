#include <RVProductBase/RVPageSizeSpec.h>

#include <QDebug>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

}

class tst_RVPageSizeSpec : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields();
    void defaultConstruction();
    void setsSizes();
    void saturates();
    void slipcase_data();
    void slipcase();
    void compares_data();
    void compares();
    void isWholeAfterAMove();
    void debugOutput();
};

void tst_RVPageSizeSpec::fields()
{
    const RVPageSizeSpec spec(QSize(200, 300), RVMargins(1, 5, 2, 4));
    QCOMPARE(spec.usableSize(), QSize(200, 300));
    QVERIFY(spec.bleedMargins() == RVMargins(1, 5, 2, 4));
    QCOMPARE(spec.topLeftOffsetOfUsablePrintArea(), QPoint(2, 1));
    QCOMPARE(spec.totalSize(), QSize(206, 306));
    QCOMPARE(spec.usableSlipcaseCoverSize(), QSize(-1, -1));
}

void tst_RVPageSizeSpec::defaultConstruction()
{
    QCOMPARE(RVPageSizeSpec().usableSize(), QSize(-1, -1));
    QVERIFY(RVPageSizeSpec().bleedMargins().allNull());
}

void tst_RVPageSizeSpec::setsSizes()
{
    RVPageSizeSpec spec(QSize(200, 300), RVMargins(3, 3));
    const RVPageSizeSpec copy = spec;
    spec.setUsableSize(QSize(100, 150));
    spec.setUsableSlipcaseCoverSize(QSize(90, 140));
    QCOMPARE(spec.usableSize(), QSize(100, 150));
    QCOMPARE(spec.usableSlipcaseCoverSize(), QSize(90, 140));
    QCOMPARE(spec.totalSize(), QSize(106, 156));
    QCOMPARE(copy.usableSize(), QSize(200, 300));
}

void tst_RVPageSizeSpec::saturates()
{
    QCOMPARE(RVPageSizeSpec(QSize(largest, smallest), RVMargins(-1, 1)).totalSize(), QSize(largest, smallest));
    RVPageSizeSpec spec(QSize(0, smallest), RVMargins());
    spec.setUsableSlipcaseCoverSize(QSize(0, largest));
    QCOMPARE(spec.slipcaseTranslationPoint(), QPointF(0, -1073741824.0));
}

void tst_RVPageSizeSpec::slipcase_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPointF>("point");
    QTest::newRow("never set") << QSize() << QPointF(0, 0);
    QTest::newRow("smaller") << QSize(150, 280) << QPointF(0, 10);
    QTest::newRow("odd difference") << QSize(150, 281) << QPointF(0, 9.5);
    QTest::newRow("larger") << QSize(250, 310) << QPointF(0, -5);
    QTest::newRow("empty") << QSize(0, 0) << QPointF(0, 150);
    QTest::newRow("negative width") << QSize(-1, 280) << QPointF(0, 0);
    QTest::newRow("negative height") << QSize(150, -1) << QPointF(0, 0);
}

void tst_RVPageSizeSpec::slipcase()
{
    QFETCH(QSize, size);
    RVPageSizeSpec spec(QSize(200, 300), RVMargins(7, 7));
    spec.setUsableSlipcaseCoverSize(size);
    QTEST(spec.slipcaseTranslationPoint(), "point");
}

void tst_RVPageSizeSpec::compares_data()
{
    QTest::addColumn<RVPageSizeSpec>("other");
    QTest::addColumn<bool>("equal");
    RVPageSizeSpec withSlipcase(QSize(200, 300), RVMargins(3, 3));
    withSlipcase.setUsableSlipcaseCoverSize(QSize(1, 1));
    QTest::newRow("equal") << RVPageSizeSpec(QSize(200, 300), RVMargins(3, 3)) << true;
    QTest::newRow("other slipcase") << withSlipcase << true;
    QTest::newRow("other width") << RVPageSizeSpec(QSize(201, 300), RVMargins(3, 3)) << false;
    QTest::newRow("other height") << RVPageSizeSpec(QSize(200, 301), RVMargins(3, 3)) << false;
    QTest::newRow("other margins") << RVPageSizeSpec(QSize(200, 300), RVMargins(3, 4)) << false;
}

void tst_RVPageSizeSpec::compares()
{
    QFETCH(RVPageSizeSpec, other);
    QFETCH(bool, equal);
    const RVPageSizeSpec spec(QSize(200, 300), RVMargins(3, 3));
    QCOMPARE(spec == other, equal);
    QCOMPARE(spec != other, !equal);
}

void tst_RVPageSizeSpec::isWholeAfterAMove()
{
    RVPageSizeSpec spec(QSize(200, 300), RVMargins(1, 2, 3, 4));
    spec.setUsableSlipcaseCoverSize(QSize(190, 280));
    const RVPageSizeSpec taken = std::move(spec);
    QCOMPARE(taken.totalSize(), QSize(207, 303));
    QCOMPARE(spec.totalSize(), spec.usableSize() + spec.bleedMargins().totalMarginWH());
    QCOMPARE(spec.topLeftOffsetOfUsablePrintArea(), spec.bleedMargins().topLeft());
    QVERIFY(spec.bleedMargins().allNull());
    QVERIFY(spec == RVPageSizeSpec(spec.usableSize(), RVMargins()));
    QVERIFY(spec != taken);
    spec = taken;
    QVERIFY(spec == taken);
}

void tst_RVPageSizeSpec::debugOutput()
{
    QString text;
    QDebug(&text) << RVPageSizeSpec(QSize(200, 300), RVMargins(3, 3));
    QCOMPARE(text, u"{ usable= QSize(200, 300) , 4Scaling QSize(-1, -1) "_s);
    text.clear();
    QDebug(&text).nospace() << RVPageSizeSpec(QSize(200, 300), RVMargins(3, 3));
    QCOMPARE(text, u"{ usable=QSize(200, 300), 4ScalingQSize(-1, -1)"_s);
}

QTEST_GUILESS_MAIN(tst_RVPageSizeSpec)
#include "tst_RVPageSizeSpec.moc"
