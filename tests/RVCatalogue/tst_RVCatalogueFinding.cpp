#include <RVCatalogueFinding.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVCatalogueFinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values();
    void ofTheFile();
    void whatIsSet();
    void nullFinding();
    void copiesAndMoves();
};

namespace {

constexpr RVFileRange RANGE = { { 7, 5 }, { 7, 26 } };

RVCatalogueFinding keywordFinding()
{
    return RVCatalogueFinding(RVCatalogueRule::find(u"keyword-legacy"), RANGE, u"\"hard\" is an alias"_s, 3);
}

}

void tst_RVCatalogueFinding::values()
{
    const RVCatalogueFinding finding = keywordFinding();
    QVERIFY(!finding.isNull());
    QVERIFY(finding.rule() == RVCatalogueRule::find(u"keyword-legacy"));
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Note);
    QVERIFY(finding.range() == RANGE);
    QCOMPARE(finding.text(), u"\"hard\" is an alias"_s);
    QCOMPARE(finding.product(), qint64(3));
}

void tst_RVCatalogueFinding::ofTheFile()
{
    const RVCatalogueFinding finding(RVCatalogueRule::find(u"products-missing"), RVFileRange(), u"nothing"_s);
    QCOMPARE(finding.product(), qint64(-1));
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Error);
    QCOMPARE(finding.range().begin.line, qint64(1));
}

void tst_RVCatalogueFinding::whatIsSet()
{
    const QList<RVRelatedPlace> places = { { { { 3, 1 }, { 3, 9 } }, u"the first"_s, u"other.xml"_s } };
    const QList<RVFileEdit> edits = { { { { 7, 17 }, { 7, 21 } }, u"hardcover"_s } };
    RVCatalogueFinding finding = keywordFinding();
    const RVCatalogueFinding before = finding;
    QVERIFY(finding.productType().isEmpty());
    QVERIFY(finding.relatedPlaces().isEmpty());
    QVERIFY(finding.fix().isEmpty());
    finding.setSeverity(RVCatalogueSeverity::Error);
    finding.setProductType(u"DUN9"_s);
    finding.setRelatedPlaces(places);
    finding.setFix(edits);
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Error);
    QCOMPARE(finding.productType(), u"DUN9"_s);
    QVERIFY(finding.relatedPlaces() == places);
    QVERIFY(finding.fix() == edits);
    QCOMPARE(before.severity(), RVCatalogueSeverity::Note);
    QVERIFY(before.fix().isEmpty());
}

void tst_RVCatalogueFinding::nullFinding()
{
    RVCatalogueFinding finding;
    finding.setSeverity(RVCatalogueSeverity::Error);
    finding.setProductType(u"DUN9"_s);
    finding.setRelatedPlaces({ {} });
    finding.setFix({ {} });
    QVERIFY(finding.isNull());
    QVERIFY(finding.rule().isNull());
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Note);
    QVERIFY(finding.range() == RVFileRange());
    QVERIFY(finding.text().isNull());
    QVERIFY(finding.productType().isNull());
    QVERIFY(finding.relatedPlaces().isEmpty());
    QVERIFY(finding.fix().isEmpty());
    QCOMPARE(finding.product(), qint64(-1));
}

void tst_RVCatalogueFinding::copiesAndMoves()
{
    RVCatalogueFinding finding = keywordFinding();
    const RVCatalogueFinding copy = finding;
    const RVCatalogueFinding moved = std::move(finding);
    QCOMPARE(copy.text(), u"\"hard\" is an alias"_s);
    QCOMPARE(moved.text(), u"\"hard\" is an alias"_s);
    finding = copy;
    QCOMPARE(finding.product(), qint64(3));
}

QTEST_GUILESS_MAIN(tst_RVCatalogueFinding)
#include "tst_RVCatalogueFinding.moc"
