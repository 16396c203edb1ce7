#include <WrappedText.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_WrappedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_data();
    void pieces();
    void words();
    void paragraphs();
};

void tst_WrappedText::pieces_data()
{
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<int>("width");
    QTest::addColumn<QStringList>("lines");

    const auto newRow = [](const char *name, const QStringList &pieces, int width, const QStringList &lines) {
        QTest::newRow(name) << pieces << width << lines;
    };
    newRow("nothing", {}, 9, { u""_s });
    newRow("a full line", { u"aaaa"_s, u"bbbb"_s }, 9, { u"aaaa bbbb"_s });
    newRow("a letter more", { u"aaaa"_s, u"bbbb"_s }, 8, { u"aaaa"_s, u"bbbb"_s });
    newRow("a piece that fills its line", { u"a"_s, u"bb cc"_s }, 5, { u"a"_s, u"bb cc"_s });
    newRow("a longer piece", { u"a"_s, u"bb cc"_s }, 4, { u"a bb"_s, u"cc"_s });
    newRow("a longer word", { u"a"_s, u"bbbb"_s, u"c"_s }, 3, { u"a"_s, u"bbbb"_s, u"c"_s });
}

void tst_WrappedText::pieces()
{
    QFETCH(QStringList, pieces);
    QFETCH(int, width);
    QTEST(wrapped(pieces, width), "lines");
}

void tst_WrappedText::words()
{
    QCOMPARE(wrapped(u"aaaa bbbb"_s, 9), QStringList { u"aaaa bbbb"_s });
    QCOMPARE(wrapped(u"aaaa bbbb c"_s, 9), (QStringList { u"aaaa bbbb"_s, u"c"_s }));
}

void tst_WrappedText::paragraphs()
{
    const QString line(TERMINAL_WIDTH, u'x');
    QCOMPARE(filledParagraphs(u"a\nb\n\n c\n d\n\n"_s + line + u" e"_s), u"a b\n\n c\n d\n\n"_s + line + u"\ne"_s);
}

QTEST_GUILESS_MAIN(tst_WrappedText)
#include "tst_WrappedText.moc"
