#include <Excerpt.h>

#include <QTest>

#include <clocale>

using namespace Qt::StringLiterals;

class tst_Excerpt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shortLines_data();
    void shortLines();
    void longLines_data();
    void longLines();
    void widths_data();
    void widths();
};

// The width of letters is that of the locale.
void tst_Excerpt::initTestCase()
{
    QVERIFY(std::setlocale(LC_ALL, "C.UTF-8"));
}

void tst_Excerpt::shortLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<RVFileRange>("range");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("marks");

    const auto newRow = [](const char *name, const QString &line, const RVFileRange &range, const QString &text,
                           const QString &marks) { QTest::newRow(name) << line << range << text << marks; };
    newRow("one letter", u"abc"_s, { { 1, 2 }, { 1, 3 } }, //
           u"    1 | abc"_s, //
           u"      |  ^"_s);
    newRow("several letters", u"abcd"_s, { { 12, 2 }, { 12, 5 } }, //
           u"   12 | abcd"_s, //
           u"      |  ^~~"_s);
    newRow("a large number", u"abc"_s, { { 1234567, 1 }, { 1234567, 2 } }, //
           u"1234567 | abc"_s, //
           u"        | ^"_s);
    newRow("nothing", u"abc"_s, { { 1, 1 }, { 1, 1 } }, //
           u"    1 | abc"_s, //
           u"      | ^"_s);
    newRow("the end of the line", u"abc"_s, { { 1, 4 }, { 1, 4 } }, //
           u"    1 | abc"_s, //
           u"      |    ^"_s);
    newRow("an empty line", u""_s, { { 1, 1 }, { 1, 1 } }, //
           u"    1 | "_s, //
           u"      | ^"_s);
    newRow("to a later line", u"abc"_s, { { 1, 2 }, { 3, 9 } }, //
           u"    1 | abc"_s, //
           u"      |  ^~"_s);
    newRow("tab before", u"\tb"_s, { { 1, 2 }, { 1, 3 } }, //
           u"    1 |         b"_s, //
           u"      |         ^"_s);
    newRow("tab behind a letter", u"a\tb"_s, { { 1, 3 }, { 1, 4 } }, //
           u"    1 | a       b"_s, //
           u"      |         ^"_s);
    newRow("tab marked", u"\tb"_s, { { 1, 1 }, { 1, 2 } }, //
           u"    1 |         b"_s, //
           u"      | ^~~~~~~~"_s);
    newRow("wide letters", u"日本x"_s, { { 1, 2 }, { 1, 4 } }, //
           u"    1 | 日本x"_s, //
           u"      |   ^~~"_s);
    newRow("letter of two code units", u"😀x"_s, { { 1, 3 }, { 1, 4 } }, //
           u"    1 | 😀x"_s, //
           u"      |   ^"_s);
    newRow("combining letter", u"a\u0301b"_s, { { 1, 3 }, { 1, 4 } }, //
           u"    1 | a\u0301b"_s, //
           u"      |  ^"_s);
    newRow("invisible letter", u"a\u200bb"_s, { { 1, 2 }, { 1, 3 } }, //
           u"    1 | a\ufffdb"_s, //
           u"      |  ^"_s);
    newRow("letter that turns the direction", u"\u202eab"_s, { { 1, 2 }, { 1, 3 } }, //
           u"    1 | \ufffdab"_s, //
           u"      |  ^"_s);
    newRow("control character", u"\033[2J"_s, { { 1, 2 }, { 1, 3 } }, //
           u"    1 | \ufffd[2J"_s, //
           u"      |  ^"_s);
}

void tst_Excerpt::shortLines()
{
    QFETCH(QString, line);
    QFETCH(RVFileRange, range);
    const Excerpt excerpt = excerptOf(line, range);
    QTEST(excerpt.text, "text");
    QTEST(excerpt.indent + excerpt.marks, "marks");
}

void tst_Excerpt::longLines_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("marked");
    QTest::addColumn<int>("behind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("marks");

    const QString gutter = u"    1 | "_s;
    const QString noNumber = u"      | "_s;
    const auto letters = [](int count, QChar letter = u'-') { return QString(count, letter); };
    QTest::newRow("as wide as the terminal")
            << 30 << 2 << 40 << gutter + letters(30) + u"xx"_s + letters(40) << noNumber + letters(30, u' ') + u"^~"_s;
    QTest::newRow("one more, at the begin")
            << 0 << 2 << 71 << gutter + u"xx"_s + letters(69) + u'…' << noNumber + u"^~"_s;
    QTest::newRow("one more, at the end")
            << 71 << 2 << 0 << gutter + u'…' + letters(69) + u"xx"_s << noNumber + letters(70, u' ') + u"^~"_s;
    QTest::newRow("in the middle of many")
            << 500 << 2 << 500 << gutter + u'…' + letters(23) + u"xx"_s + letters(45) + u'…'
            << noNumber + letters(24, u' ') + u"^~"_s;
    QTest::newRow("longer than the terminal")
            << 500 << 200 << 500 << gutter + u'…' + letters(23) + letters(47, u'x') + u'…'
            << noNumber + letters(24, u' ') + u'^' + letters(46, u'~');
}

void tst_Excerpt::longLines()
{
    QFETCH(int, before);
    QFETCH(int, marked);
    QFETCH(int, behind);
    const QString line = QString(before, u'-') + QString(marked, u'x') + QString(behind, u'-');
    const Excerpt excerpt = excerptOf(line, { { 1, before + 1 }, { 1, before + marked + 1 } });
    QTEST(excerpt.text, "text");
    QTEST(excerpt.indent + excerpt.marks, "marks");
}

void tst_Excerpt::widths_data()
{
    QTest::addColumn<QString>("line");

    QTest::newRow("wide letters") << QString(300, QChar(u'日'));
    QTest::newRow("wide letters, one column further") << u'a' + QString(300, QChar(u'日'));
    QTest::newRow("tabs") << QString(300, u'\t');
    QTest::newRow("letters") << QString(300, u'a');
}

// The lines fit and show the first letter of the place, for every place.
void tst_Excerpt::widths()
{
    QFETCH(QString, line);
    for (qsizetype i = 0; i < line.size(); ++i) {
        QString marked = line;
        marked[i] = u'X';
        const Excerpt excerpt = excerptOf(marked, { { 1, i + 1 }, { 1, i + 2 } });
        qsizetype width = 0;
        qsizetype place = -1;
        for (const QChar letter : excerpt.text) {
            if (letter == u'X')
                place = width;
            width += letter == u'日' ? 2 : 1;
        }
        QVERIFY2(width <= 80, qPrintable(excerpt.text));
        QCOMPARE(excerpt.indent.size(), place);
        QCOMPARE(excerpt.marks, u"^"_s);
    }
}

QTEST_GUILESS_MAIN(tst_Excerpt)
#include "tst_Excerpt.moc"
