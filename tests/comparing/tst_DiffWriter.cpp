#include <ComparedProduct.h>
#include <DiffWriter.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

ComparedProduct product(RVChangeKind kind, const QString &type)
{
    ComparedProduct result;
    result.kind = kind;
    if (kind != RVChangeKind::Added)
        result.oldType = RVProductType(type);
    if (kind != RVChangeKind::Removed)
        result.newType = RVProductType(type);
    result.name = u"n"_s;
    result.articleId = RVArticleId(7);
    result.oldPosition = { 2, 3 };
    result.newPosition = { 4, 5 };
    return result;
}

}

/// All formats from the data of products that are kept, without catalogues; what a catalogue makes of them is tried
/// with the whole program.
class tst_DiffWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_data();
    void formats();
    void unknownFormat();
};

void tst_DiffWriter::formats_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("hasColor");
    QTest::addColumn<QString>("text");

    QTest::newRow("text") << u"text"_s << false
                          << u"+ A \"n\", article 7\n- B \"n\", article 7\n~ C \"n\"\n  ~ Cover: X -> Y\n"
                             "1 added, 1 removed, 1 changed, 0 equal\n"_s;
    QTest::newRow("colours") << u"text"_s << true
                             << u"\033[1;32m+ A \"n\", article 7\033[m\n\033[1;31m- B \"n\", article 7\033[m\n"
                                "\033[1m~ C \"n\"\033[m\n  ~ Cover: \033[31mX\033[m -> \033[32mY\033[m\n"
                                "1 added, 1 removed, 1 changed, 0 equal\n"_s;
    QTest::newRow("Markdown") << u"markdown"_s << false
                              << u"| Product | Change | Old | New |\n| --- | --- | --- | --- |\n"
                                 "| A \"n\" | added |  | article 7 |\n| B \"n\" | removed | article 7 |  |\n"
                                 "| C \"n\" | Cover | X | Y |\n\n1 added, 1 removed, 1 changed, 0 equal\n"_s;
    QTest::newRow("JSON")
            << u"json"_s << false
            << u"{\"new\":\"n.xml\",\"old\":\"o.xml\",\"products\":[\n"
               "{\"article_id\":7,\"change\":\"added\",\"changes\":[],\"name\":\"n\","
               "\"new\":{\"column\":5,\"line\":4,\"type\":\"A\"},\"old\":null,\"renamed\":false,\"type\":\"A\"},\n"
               "{\"article_id\":7,\"change\":\"removed\",\"changes\":[],\"name\":\"n\","
               "\"new\":null,\"old\":{\"column\":3,\"line\":2,\"type\":\"B\"},\"renamed\":false,\"type\":\"B\"},\n"
               "{\"article_id\":7,\"change\":\"changed\",\"changes\":[{\"change\":\"changed\",\"item\":null,"
               "\"new\":\"y\",\"old\":\"x\",\"subject\":\"cover_type\"}],\"name\":\"n\","
               "\"new\":{\"column\":5,\"line\":4,\"type\":\"C\"},\"old\":{\"column\":3,\"line\":2,\"type\":\"C\"},"
               "\"renamed\":false,\"type\":\"C\"}\n],\n"
               "\"summary\":{\"added\":1,\"changed\":1,\"equal\":0,\"removed\":1,\"renamed\":0}}\n"_s;
}

void tst_DiffWriter::formats()
{
    QFETCH(QString, format);
    QFETCH(bool, hasColor);
    QString text;
    const auto writer = DiffWriter::create(format, hasColor, [&text](const QString &piece) { text += piece; });
    QVERIFY(writer);
    ComparedProduct changed = product(RVChangeKind::Changed, u"C"_s);
    changed.changes += RVProductChange("cover_type"_L1, u"Cover"_s, { u"X"_s, u"x"_s }, { u"Y"_s, u"y"_s });
    writer->begin(u"o.xml"_s, u"n.xml"_s);
    writer->product(product(RVChangeKind::Added, u"A"_s));
    writer->product(product(RVChangeKind::Removed, u"B"_s));
    writer->product(changed);
    RVComparisonCounts counts;
    counts.added = 1;
    counts.removed = 1;
    counts.changed = 1;
    writer->end(counts);
    QTEST(text, "text");
}

void tst_DiffWriter::unknownFormat()
{
    QVERIFY(!DiffWriter::create(u"html"_s, false, [](const QString &) { }));
}

QTEST_GUILESS_MAIN(tst_DiffWriter)
#include "tst_DiffWriter.moc"
