#include <RVTemplateClasses/RVKeywordIndex.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVKeywordIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void finds_data();
    void finds();
    void ignoresTheCaseOfWhatIsInserted();
    void tellsNeighboursApart();
    void holdsAnyNumber();
    void leavesOutWhatItDoesNotCover();
    void covers_data();
    void covers();
};

namespace {

using Keywords = QHash<QString, qint64>;

RVKeywordIndex filledIndex()
{
    return RVKeywordIndex(Keywords {
            { u""_s, 1 },
            { u"set"_s, 2 },
            { u"wood"_s, 3 },
            { u"wire-o"_s, 4 },
            { u"a book_z"_s, -5 },
            { u"12345678901234567890123456789012"_s, 6 },
    });
}

/// The value of a keyword; 0 for one that is not known.
qint64 valueOf(const RVKeywordIndex &index, QStringView keyword)
{
    const qint64 *value = index.find(keyword);
    return value ? *value : 0;
}

}

void tst_RVKeywordIndex::startsEmpty()
{
    for (const RVKeywordIndex &index : { RVKeywordIndex(), RVKeywordIndex(Keywords()) }) {
        QVERIFY(!index.find(u"set"));
        QVERIFY(!index.find(u""));
        QVERIFY(!index.covers(u"set"));
    }
}

void tst_RVKeywordIndex::finds_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<qint64>("value");
    QTest::newRow("empty") << u""_s << qint64(1);
    QTest::newRow("null") << QString() << qint64(1);
    QTest::newRow("nothing but white space") << u" \t\n\v\f\r"_s << qint64(1);
    QTest::newRow("less than a word") << u"set"_s << qint64(2);
    QTest::newRow("a word") << u"wood"_s << qint64(3);
    QTest::newRow("more than a word") << u"wire-o"_s << qint64(4);
    QTest::newRow("two words, negative") << u"a book_z"_s << qint64(-5);
    QTest::newRow("the longest") << u"12345678901234567890123456789012"_s << qint64(6);
    QTest::newRow("upper case") << u"A BOOK_Z"_s << qint64(-5);
    QTest::newRow("mixed case") << u"wIrE-O"_s << qint64(4);
    QTest::newRow("white space around it") << u" \tWood\r\n "_s << qint64(3);
    QTest::newRow("more white space than letters fit")
            << QString(40, u' ') + u"wood"_s + QString(40, u'\t') << qint64(3);
    QTest::newRow("white space within it") << u"wo od"_s << qint64(0);
    QTest::newRow("control characters around it") << u"\x08wood"_s << qint64(0);
    QTest::newRow("character behind the last white space") << u"wood\x0e"_s << qint64(0);
    QTest::newRow("a letter less") << u"woo"_s << qint64(0);
    QTest::newRow("a letter more") << u"woods"_s << qint64(0);
    QTest::newRow("one letter more than the longest") << u"123456789012345678901234567890123"_s << qint64(0);
    QTest::newRow("null character behind it") << u"set\0"_s << qint64(0);
    QTest::newRow("no-break space") << u"\xa0wood"_s << qint64(0);
    QTest::newRow("same low byte") << u"\x0177ood"_s << qint64(0);
}

void tst_RVKeywordIndex::finds()
{
    QFETCH(QString, keyword);
    QTEST(valueOf(filledIndex(), keyword), "value");
}

void tst_RVKeywordIndex::ignoresTheCaseOfWhatIsInserted()
{
    const RVKeywordIndex index(Keywords { { u"Wire-O"_s, 1 }, { u"SET"_s, 2 } });
    QCOMPARE(valueOf(index, u"wire-o"), qint64(1));
    QCOMPARE(valueOf(index, u"WIRE-O"), qint64(1));
    QCOMPARE(valueOf(index, u"set"), qint64(2));
}

// Only letters have a letter case. "@" and "[" stand before "A" and behind "Z", "`" and "{" before "a" and behind "z".
void tst_RVKeywordIndex::tellsNeighboursApart()
{
    for (char16_t letter = 1; letter < 0x100; ++letter) {
        const char16_t word[] = { u'x', letter, u'x', u'x' };
        const char16_t lowerCase = QChar::toLower(letter);
        const RVKeywordIndex index(Keywords { { u"xyxx"_s, 1 } });
        QCOMPARE(valueOf(index, QStringView(word)), qint64(lowerCase == u'y' ? 1 : 0));
        if (letter >= 0x80)
            continue;
        const char16_t inLowerCase[] = { u'x', lowerCase, u'x', u'x' };
        const RVKeywordIndex own(Keywords { { QStringView(inLowerCase).toString(), 1 } });
        for (char16_t other = 1; other < 0x100; ++other) {
            const char16_t otherWord[] = { u'x', other, u'x', u'x' };
            QCOMPARE(valueOf(own, QStringView(otherWord)), qint64(QChar::toLower(other) == lowerCase ? 1 : 0));
        }
    }
}

void tst_RVKeywordIndex::holdsAnyNumber()
{
    for (const int count : { 1, 2, 3, 4, 5, 8, 9, 100, 1000 }) {
        Keywords keywords;
        for (int i = 0; i < count; ++i)
            keywords.insert(QString::number(i), i + 1);
        const RVKeywordIndex index(keywords);
        for (int i = 0; i < count; ++i)
            QCOMPARE(valueOf(index, QString::number(i)), qint64(i + 1));
        QCOMPARE(valueOf(index, QString::number(count)), qint64(0));
    }
}

void tst_RVKeywordIndex::leavesOutWhatItDoesNotCover()
{
    const RVKeywordIndex index(Keywords {
            { u"größe"_s, 1 },
            { u"123456789012345678901234567890123"_s, 2 },
            { u"wood"_s, 3 },
    });
    QCOMPARE(valueOf(index, u"größe"), qint64(0));
    QCOMPARE(valueOf(index, u"123456789012345678901234567890123"), qint64(0));
    QCOMPARE(valueOf(index, u"wood"), qint64(3));
}

void tst_RVKeywordIndex::covers_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<bool>("isCovered");
    QTest::newRow("empty") << u""_s << true;
    QTest::newRow("ASCII letters") << u"linen"_s << true;
    QTest::newRow("last of ASCII") << u"\x7f"_s << true;
    QTest::newRow("first beyond ASCII") << u"\x80"_s << false;
    QTest::newRow("beyond ASCII at the end") << u"wooď"_s << false;
    QTest::newRow("the longest") << QString(32, u'a') << true;
    QTest::newRow("longer") << QString(33, u'a') << false;
}

void tst_RVKeywordIndex::covers()
{
    QFETCH(QString, keyword);
    QTEST(filledIndex().covers(keyword), "isCovered");
}

QTEST_APPLESS_MAIN(tst_RVKeywordIndex)
#include "tst_RVKeywordIndex.moc"
