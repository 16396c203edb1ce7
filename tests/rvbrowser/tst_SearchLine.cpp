#include <SearchLine.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_SearchLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatItFinds();
    void keys_data();
    void keys();
};

void tst_SearchLine::saysWhatItFinds()
{
    const SearchLine line(u"search"_s, u"Search products"_s, u"Search type, name"_s);
    QCOMPARE(line.objectName(), u"search"_s);
    QCOMPARE(line.accessibleName(), u"Search products"_s);
    QCOMPARE(line.placeholderText(), u"Search type, name"_s);
    QVERIFY(line.isClearButtonEnabled());
    QVERIFY(!line.acceptDrops()); // the window opens files that are dropped
}

void tst_SearchLine::keys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("left");

    QTest::newRow("down") << Qt::Key_Down << u"ab"_s << 1;
    QTest::newRow("return") << Qt::Key_Return << u"ab"_s << 1;
    QTest::newRow("enter") << Qt::Key_Enter << u"ab"_s << 1;
    QTest::newRow("escape") << Qt::Key_Escape << QString() << 0;
    QTest::newRow("backspace") << Qt::Key_Backspace << u"a"_s << 0;
    QTest::newRow("up") << Qt::Key_Up << u"ab"_s << 0;
}

void tst_SearchLine::keys()
{
    QFETCH(Qt::Key, key);
    SearchLine line(u"search"_s, QString(), QString());
    QTest::keyClicks(&line, u"ab"_s);
    QSignalSpy left(&line, &SearchLine::left);
    QTest::keyClick(&line, key);
    QTEST(line.text(), "text");
    QTEST(int(left.size()), "left");
}

QTEST_MAIN(tst_SearchLine)
#include "tst_SearchLine.moc"
