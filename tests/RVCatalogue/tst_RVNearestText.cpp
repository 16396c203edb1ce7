#include <RVNearestText.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVNearestText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distances_data();
    void distances();
    void nothingOffered();
    void firstOfEquals();
    void emptyOffer();
    void limit_data();
    void limit();
    void longTexts();
    void pieceOfText();
};

void tst_RVNearestText::distances_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("distance");

    QTest::newRow("same") << u"glue"_s << u"glue"_s << 0;
    QTest::newRow("added") << u"glue"_s << u"glued"_s << 1;
    QTest::newRow("changed") << u"glue"_s << u"blue"_s << 1;
    QTest::newRow("swapped") << u"glue"_s << u"gleu"_s << 1;
    QTest::newRow("swapped and added") << u"glue"_s << u"lgued"_s << 2;
    QTest::newRow("other case") << u"glue"_s << u"GLuE"_s << 0;
    QTest::newRow("other case beyond ASCII") << u"größer"_s << u"GRÖßER"_s << 0;
    QTest::newRow("all changed") << u"kitten"_s << u"dolphy"_s << 6;
    QTest::newRow("famous") << u"kitten"_s << u"sitting"_s << 3;
}

void tst_RVNearestText::distances()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    RVNearestText forth(a);
    forth.offer(b);
    QTEST(forth.distance(), "distance");
    QCOMPARE(forth.text(), b);
    RVNearestText back(b);
    back.offer(a);
    QTEST(back.distance(), "distance");
    QCOMPARE(back.text(), a);
}

void tst_RVNearestText::nothingOffered()
{
    const RVNearestText nearest(u"glue"_s, 3);
    QVERIFY(nearest.text().isNull());
    QCOMPARE(nearest.distance(), 3);
}

void tst_RVNearestText::firstOfEquals()
{
    RVNearestText nearest(u"glue"_s);
    for (const QString &text : { u"spiral"_s, u"Blue"_s, u"clue"_s, u"glueing"_s })
        nearest.offer(text);
    QCOMPARE(nearest.text(), u"Blue"_s);
    QCOMPARE(nearest.distance(), 1);
    nearest.offer(u"GLUE"_s);
    QCOMPARE(nearest.text(), u"GLUE"_s);
    QCOMPARE(nearest.distance(), 0);
}

void tst_RVNearestText::emptyOffer()
{
    RVNearestText nearest(u"a"_s);
    nearest.offer(QString());
    QVERIFY(nearest.text().isNull());
    RVNearestText nearestToNothing((QString()));
    nearestToNothing.offer(u"glue"_s);
    QCOMPARE(nearestToNothing.text(), u"glue"_s);
    QCOMPARE(nearestToNothing.distance(), 4);
}

void tst_RVNearestText::limit_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << 0 << QString();
    QTest::newRow("as many changes") << 2 << QString();
    QTest::newRow("one change less") << 3 << u"glossy"_s;
}

void tst_RVNearestText::limit()
{
    QFETCH(int, limit);
    RVNearestText nearest(u"gloxyy"_s, limit);
    nearest.offer(u"glossy"_s);
    QTEST(nearest.text(), "text");
}

void tst_RVNearestText::longTexts()
{
    RVNearestText nearest(QString(1000, u'a'));
    nearest.offer(QString(65, u'a'));
    QVERIFY(nearest.text().isNull());
    nearest.offer(QString(64, u'a'));
    QCOMPARE(nearest.text(), QString(64, u'a'));
    QCOMPARE(nearest.distance(), 0);
}

// The letters in front of a piece do not count as swapped.
void tst_RVNearestText::pieceOfText()
{
    const QString text = u"ba"_s;
    RVNearestText nearest(QString::fromRawData(text.constData() + 1, 1));
    nearest.offer(u"xab"_s);
    QCOMPARE(nearest.distance(), 2);
}

QTEST_GUILESS_MAIN(tst_RVNearestText)
#include "tst_RVNearestText.moc"
