#include <FindingToolTip.h>

#include <RVCatalogueFinding.h>

#include <QTest>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

QStringList lines(const RVCatalogueFinding &finding)
{
    return QTextDocumentFragment::fromHtml(findingToolTip(finding)).toPlainText().split(u'\n', Qt::SkipEmptyParts);
}

}

class tst_FindingToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void explainsTheRule();
    void otherPlaces();
    void markup();
};

void tst_FindingToolTip::explainsTheRule()
{
    const QStringList shown = lines({ RVCatalogueRule::find(u"page-step-misses-highest"), {}, u"never 154"_s });
    QCOMPARE(shown.value(0), u"never 154"_s);
    for (const QString &line :
         { u"The highest page count can never be chosen if no number of steps leads to it; "
           "correct page_step or max_pages."_s,
           u"  <product type=\"DUN9\" article_id=\"1001\" pages=\"26\" max_pages=\"154\" page_step=\"6\"/>"_s,
           u"  <product type=\"DUN9\" article_id=\"1001\" pages=\"26\" max_pages=\"154\" page_step=\"4\"/>"_s,
           u"<!-- rvcatalog: ignore page-step-misses-highest -->"_s, u"page-step-misses-highest = \"off\""_s })
        QVERIFY2(shown.contains(line), qPrintable(shown.join(u'\n')));
}

void tst_FindingToolTip::otherPlaces()
{
    RVCatalogueFinding finding(RVCatalogueRule::find(u"option-duplicate"), {}, u"twice"_s);
    finding.setRelatedPlaces({ { { { 7, 3 }, { 7, 9 } }, u"the first"_s, QString() },
                               { { { 8, 4 }, { 8, 5 } }, u"another"_s, u"other.xml"_s } });
    QCOMPARE(lines(finding).mid(0, 3), (QStringList { u"twice"_s, u"7:3: the first"_s, u"other.xml:8:4: another"_s }));
}

// The texts are those of a catalogue, which may contain anything.
void tst_FindingToolTip::markup()
{
    RVCatalogueFinding finding(RVCatalogueRule::find(u"option-duplicate"), {}, u"<b>twice</b> & *more*"_s);
    finding.setRelatedPlaces({ { { { 7, 3 }, { 7, 9 } }, u"the <i>first</i>"_s, QString() } });
    QCOMPARE(lines(finding).mid(0, 2), (QStringList { u"<b>twice</b> & *more*"_s, u"7:3: the <i>first</i>"_s }));
    QVERIFY(Qt::mightBeRichText(findingToolTip(finding)));
}

QTEST_MAIN(tst_FindingToolTip)
#include "tst_FindingToolTip.moc"
