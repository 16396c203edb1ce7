#include <PlainToolTip.h>

#include <QTest>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

class tst_PlainToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
};

void tst_PlainToolTip::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");

    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("words") << u"alcolor:red"_s << u"alcolor:red"_s;
    QTest::newRow("no markup") << u"a & b < c"_s << u"a & b < c"_s;
    QTest::newRow("markup") << u"a <b>b</b> & c"_s << u"<p>a &lt;b&gt;b&lt;/b&gt; &amp; c</p>"_s;
}

void tst_PlainToolTip::texts()
{
    QFETCH(QString, text);
    const QString toolTip = plainToolTip(text);
    QTEST(toolTip, "toolTip");
    const bool isRich = Qt::mightBeRichText(toolTip);
    QCOMPARE(isRich ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip, text);
}

QTEST_GUILESS_MAIN(tst_PlainToolTip)
#include "tst_PlainToolTip.moc"
