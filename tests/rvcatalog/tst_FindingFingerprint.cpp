#include <FindingFingerprint.h>

#include <RVCatalogueFinding.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVCatalogueFinding finding(QAnyStringView rule, const QString &type, const QString &text, const RVFileRange &range = {})
{
    RVCatalogueFinding result(RVCatalogueRule::find(rule), range, text, 3);
    result.setProductType(type);
    return result;
}

}

class tst_FindingFingerprint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void identity_data();
    void identity();
};

// Files store fingerprints, so these must stay the same in every version.
void tst_FindingFingerprint::values_data()
{
    QTest::addColumn<RVCatalogueFinding>("finding");
    QTest::addColumn<QByteArray>("fingerprint");

    QTest::newRow("plain") << finding(u"keyword-unknown", u"DUN9"_s, u"\"hardcovr\" is no keyword"_s)
                           << QByteArray("f957e3381142e4317c1b03124d4b12a1251dbdc3827583ada24514fee9ee6175");
    QTest::newRow("line in the text") << finding(u"type-duplicate", u"DUN9"_s,
                                                 u"the type \"DUN9\" is already that of the product in line 7"_s)
                                      << QByteArray("3bcf688d9a092014e97304fefe4802daf7b8d42fd6f18ea0c4205a635e79fd19");
}

void tst_FindingFingerprint::values()
{
    QFETCH(RVCatalogueFinding, finding);
    QTEST(findingFingerprint(finding), "fingerprint");
}

void tst_FindingFingerprint::identity_data()
{
    QTest::addColumn<RVCatalogueFinding>("other");
    QTest::addColumn<bool>("isSame");

    const auto rule = u"type-duplicate";
    const QString text = u"as in line 7, \"9\""_s;
    QTest::newRow("the same") << finding(rule, u"A"_s, text) << true;
    QTest::newRow("another place") << finding(rule, u"A"_s, text, { { 9, 1 }, { 9, 4 } }) << true;
    QTest::newRow("another line") << finding(rule, u"A"_s, u"as in line 1234, \"9\""_s) << true;
    QTest::newRow("another number") << finding(rule, u"A"_s, u"as in line 7, \"8\""_s) << false;
    QTest::newRow("a word that ends like line") << finding(rule, u"A"_s, u"as in spline 7, \"9\""_s) << false;
    QTest::newRow("another rule") << finding(u"type-missing", u"A"_s, text) << false;
    QTest::newRow("another type") << finding(rule, u"B"_s, text) << false;
    QTest::newRow("no type") << finding(rule, QString(), text) << false;
    QTest::newRow("another text") << finding(rule, u"A"_s, text + u'.') << false;
    QTest::newRow("a letter from the text in the type") << finding(rule, u"Aa"_s, text.mid(1)) << false;
}

void tst_FindingFingerprint::identity()
{
    QFETCH(RVCatalogueFinding, other);
    const QByteArray fingerprint = findingFingerprint(finding(u"type-duplicate", u"A"_s, u"as in line 7, \"9\""_s));
    QCOMPARE(fingerprint.size(), 64);
    QTEST(findingFingerprint(other) == fingerprint, "isSame");
}

QTEST_GUILESS_MAIN(tst_FindingFingerprint)
#include "tst_FindingFingerprint.moc"
