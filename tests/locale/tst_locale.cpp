// The other tests of this run mean something only where German sorts and separates in its own way.
#include <QLocale>
#include <QTest>

#include <clocale>
#include <cstring>

using namespace Qt::StringLiterals;

class tst_locale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isInForce();
    void sortsByItsAlphabet_data();
    void sortsByItsAlphabet();
    void writesNumbersItsWay();
};

void tst_locale::isInForce()
{
    QCOMPARE(QByteArray(std::setlocale(LC_ALL, nullptr)), QByteArray("de_DE.UTF-8"));
    QCOMPARE(QLocale().name(), u"de_DE"_s);
    QCOMPARE(QLocale().collation().name(), u"de_DE"_s);
}

void tst_locale::sortsByItsAlphabet_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("letter case") << u"a"_s << u"B"_s;
    QTest::newRow("lower case first") << u"a"_s << u"A"_s;
    QTest::newRow("umlaut") << u"\u00C4"_s << u"z"_s;
    QTest::newRow("punctuation") << u"_"_s << u"A"_s;
}

// Each pair is in the other order by its code units. Qt and the C library have an alphabet each.
void tst_locale::sortsByItsAlphabet()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(second < first);
    QVERIFY(QString::localeAwareCompare(first, second) < 0);
    QVERIFY(std::strcoll(first.toUtf8().constData(), second.toUtf8().constData()) < 0);
}

void tst_locale::writesNumbersItsWay()
{
    QCOMPARE(QLocale().toString(1234567), u"1.234.567"_s);
    QCOMPARE(QLocale().toDouble(u"1,5"_s), 1.5);
}

QTEST_GUILESS_MAIN(tst_locale)
#include "tst_locale.moc"
