#include <ProductSearchIndex.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ProductSearchIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void empty();
    void ownTextsDoNotRunTogether();
    void commonTextsAreKeptOnce();
    void everyProductOfMany();

private:
    static bool areEqual(const QList<int> &found, const QList<int> &expected);
};

void tst_ProductSearchIndex::finds_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QList<int>>("products");

    QTest::newRow("own text") << u"DUN9"_s << QList<int> { 0 };
    QTest::newRow("part of a word") << u"un"_s << QList<int> { 0 };
    QTest::newRow("common text") << u"hardcover"_s << QList<int> { 0, 2 };
    QTest::newRow("letter case") << u"HardCover"_s << QList<int> { 0, 2 };
    QTest::newRow("own and common") << u"hardcover vir"_s << QList<int> { 2 };
    QTest::newRow("words in any order, with blanks") << u"  vir\t hardcover "_s << QList<int> { 2 };
    QTest::newRow("one word that is not there") << u"hardcover nothing"_s << QList<int> {};
    QTest::newRow("umlaut") << u"bücher"_s << QList<int> { 1 };
    QTest::newRow("umlaut in capitals") << u"BÜCHER"_s << QList<int> { 1 };
    QTest::newRow("umlaut with its mark apart") << u"bu\u0308cher"_s << QList<int> { 1 };
    QTest::newRow("umlaut without its mark") << u"bucher"_s << QList<int> { 1 };
    QTest::newRow("umlaut as two letters") << u"buecher"_s << QList<int> { 1 };
    QTest::newRow("other umlauts as two letters") << u"oefen kaese"_s << QList<int> { 1 };
    QTest::newRow("sharp s") << u"großes"_s << QList<int> { 2 };
    QTest::newRow("sharp s as two letters") << u"grosses"_s << QList<int> { 2 };
    QTest::newRow("sharp s in capitals") << u"GROSSES"_s << QList<int> { 2 };
    QTest::newRow("accent") << u"cafe"_s << QList<int> { 1 };
    QTest::newRow("other script") << u"привет"_s << QList<int> { 1 };
    QTest::newRow("all") << QString() << QList<int> { 0, 1, 2 };
    QTest::newRow("blanks") << u" \t"_s << QList<int> { 0, 1, 2 };
}

// Two empty lists have no address that Qt could compare.
bool tst_ProductSearchIndex::areEqual(const QList<int> &found, const QList<int> &expected)
{
    return found.isEmpty() ? expected.isEmpty() : found == expected;
}

void tst_ProductSearchIndex::finds()
{
    ProductSearchIndex index;
    index.append(u"DUN9\nBook"_s, u"hardcover\nmatt"_s);
    index.append(u"X\nBücher Öfen Käse Café Привет"_s, QString());
    index.append(u"VIR1\nGroßes"_s, u"hardcover\nmatt"_s);
    QCOMPARE(index.size(), 3);
    QFETCH(QString, search);
    QFETCH(QList<int>, products);
    QVERIFY2(areEqual(index.find(search), products), qPrintable(search));
}

void tst_ProductSearchIndex::empty()
{
    const ProductSearchIndex index;
    QCOMPARE(index.size(), 0);
    QVERIFY(index.find(QString()).isEmpty());
    QVERIFY(index.find(u"x"_s).isEmpty());
}

void tst_ProductSearchIndex::ownTextsDoNotRunTogether()
{
    ProductSearchIndex index;
    index.append(u"ab"_s, u"x"_s);
    index.append(u"cd"_s, u"y"_s);
    QVERIFY(index.find(u"bc"_s).isEmpty());
    QVERIFY(index.find(u"bx"_s).isEmpty());
    QCOMPARE(index.find(u"cd"_s), QList<int> { 1 });
}

void tst_ProductSearchIndex::commonTextsAreKeptOnce()
{
    ProductSearchIndex index;
    const QString common(10000, u'c');
    for (int i = 0; i < 1000; ++i)
        index.append(QString::number(i), common);
    QVERIFY2(index.byteCount() < 40000, qPrintable(QString::number(index.byteCount())));
    constexpr int digits = 10 + 90 * 2 + 900 * 3;
    QVERIFY(index.byteCount() >= common.size() + digits + 1000 * 2 * int(sizeof(int))); // two numbers a product
    QCOMPARE(index.find(u"ccc"_s).size(), 1000);

    ProductSearchIndex different;
    for (int i = 0; i < 1000; ++i)
        different.append(QString(), QString::number(i));
    QVERIFY(different.byteCount() >= digits + 1000 * int(sizeof(QByteArray) + 2 * sizeof(int)));
}

// Against the plain way, for words of all lengths.
void tst_ProductSearchIndex::everyProductOfMany()
{
    ProductSearchIndex index;
    QStringList texts;
    for (int i = 0; i < 3000; ++i) {
        const QString own = u"t%1\nname %2"_s.arg(i).arg(i * 7919 % 1000);
        const QString common = u"common %1"_s.arg(i % 13);
        index.append(own, common);
        texts += own + u'\n' + common;
    }
    for (const QString &word : { u"1"_s, u"12"_s, u"t29"_s, u"name"_s, u"999"_s, u"common"_s, u"n"_s }) {
        QList<int> expected;
        for (int i = 0; i < texts.size(); ++i) {
            if (texts.at(i).contains(word))
                expected += i;
        }
        QVERIFY2(areEqual(index.find(word), expected), qPrintable(word));
    }
}

QTEST_GUILESS_MAIN(tst_ProductSearchIndex)
#include "tst_ProductSearchIndex.moc"
