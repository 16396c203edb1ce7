#include "FindingTools.h"

#include <RVCatalogueFileSet.h>
#include <RVCatalogueReader.h>

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The place and the text of a finding, followed by "<-" and the other place with its text.
QString describe(const RVCatalogueFinding &finding)
{
    QString result = describe(finding.range()) + u' ' + finding.text();
    for (const RVRelatedPlace &place : finding.relatedPlaces())
        result += u" <- "_s + place.fileName + u'@' + describe(place.range) + u' ' + place.text;
    return result;
}

QStringList findingsOf(RVCatalogueReader *reader)
{
    QStringList result;
    for (const RVCatalogueProduct &product : *reader) {
        for (const RVCatalogueFinding &finding : product.findings())
            result += describe(finding);
    }
    for (const RVCatalogueFinding &finding : reader->findings())
        result += describe(finding);
    return result;
}

/// The findings of each file; their names are "1.xml", "2.xml" and so on.
QList<QStringList> findingsIn(const QList<QByteArray> &contents)
{
    RVCatalogueFileSet files;
    QList<QStringList> result;
    for (qsizetype i = 0; i < contents.size(); ++i) {
        CatalogueBuffer file(contents.at(i));
        RVCatalogueReader reader(&file);
        reader.setCheck(RVCatalogueCheck(), &files, QString::number(i + 1) + u".xml"_s);
        result += findingsOf(&reader);
    }
    return result;
}

const QString TYPE_IS_THERE = u" the product that has the type already"_s;
const QString ARTICLE_IS_THERE = u" the product that has the article id already"_s;

}

class tst_RVCatalogueFileSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_data();
    void files();
    void oneFileAlone();
    void namesOfFiles();
    void readersThatWait();
    void severalSets();
    void onThreads();
    void manyFiles();
};

void tst_RVCatalogueFileSet::files_data()
{
    QTest::addColumn<QList<QByteArray>>("contents");
    QTest::addColumn<QList<QStringList>>("findings");

    const QByteArray one = "<p>\n<product type='DUN9' article_id='1'/></p>";
    QTest::newRow("different") << QList<QByteArray> { one, "<p><product type='DUN8' article_id='2'/></p>" }
                               << QList<QStringList> { {}, {} };
    QTest::newRow("type in the same file")
            << QList<QByteArray> { "<p>\n<product type='A' article_id='1'/><product type='A' article_id='2'/></p>" }
            << QList<QStringList> {
                   { u"2:44-2:52 the type \"A\" is already that of the product in line 2; write another, or take out one <- @2:10-2:18"_s
                     + TYPE_IS_THERE }
               };
    QTest::newRow("type in two files") << QList<QByteArray> { one, "<p><product article_id='2'\ntype='DUN9'/></p>" }
                                       << QList<QStringList> {
                                              {},
                                              { u"2:1-2:12 the type \"DUN9\" is already that of the product in line 2 "
                                                u"of 1.xml; write another, or take out one "
                                                "<- 1.xml@2:10-2:21"_s
                                                + TYPE_IS_THERE }
                                          };
    QTest::newRow("family in two files")
            << QList<QByteArray> { one, "<p><product article_id='2' type='DUN9_30'/></p>" }
            << QList<QStringList> {
                   {},
                   { u"1:28-1:42 the type \"DUN9_30\", that is \"DUN9\", is already that of the product "
                     "in line 2 of 1.xml; write another, or take out one <- 1.xml@2:10-2:21"_s
                     + TYPE_IS_THERE }
               };
    QTest::newRow("article id in two files")
            << QList<QByteArray> { one, "<p/>", "<p><product type='B' article_id='+1'/></p>" }
            << QList<QStringList> { {},
                                    { u"1:1-1:1 there is no product in this file"_s },
                                    { u"1:22-1:37 the article id 1 is already that of the product in line 2 of 1.xml; "
                                      u"write another, or take out one <- "
                                      "1.xml@2:22-2:36"_s
                                      + ARTICLE_IS_THERE } };
    QTest::newRow("the first of three files")
            << QList<QByteArray> { "<p><product type='A' article_id='1'/></p>",
                                   "<p><product type='A' article_id='2'/></p>",
                                   "<p><product type='A' article_id='2'/></p>" }
            << QList<QStringList> {
                   {},
                   { u"1:13-1:21 the type \"A\" is already that of the product in line 1 of 1.xml; write another, or take out one <- 1.xml@1:13-1:21"_s
                     + TYPE_IS_THERE },
                   { u"1:13-1:21 the type \"A\" is already that of the product in line 1 of 1.xml; write another, or take out one <- 1.xml@1:13-1:21"_s
                             + TYPE_IS_THERE,
                     u"1:22-1:36 the article id 2 is already that of the product in line 1 of 2.xml; write another, or take out one <- 2.xml@1:22-1:36"_s
                             + ARTICLE_IS_THERE }
               };
    QTest::newRow("silenced") << QList<QByteArray> {
        one,
        "<p><!-- rvcatalog: ignore type-duplicate --><product article_id='2' "
        "type='DUN9'/></p>"
    } << QList<QStringList> { {}, {} };
    QTest::newRow("products that were read before an error")
            << QList<QByteArray> { one + '<', "<p><product article_id='2' type='DUN9'/></p>" }
            << QList<QStringList> { {},
                                    { u"1:28-1:39 the type \"DUN9\" is already that of the product in line 2 of 1.xml; "
                                      u"write another, or take out one "
                                      "<- 1.xml@2:10-2:21"_s
                                      + TYPE_IS_THERE } };
}

void tst_RVCatalogueFileSet::files()
{
    QFETCH(QList<QByteArray>, contents);
    QTEST(findingsIn(contents), "findings");
}

void tst_RVCatalogueFileSet::oneFileAlone()
{
    CatalogueBuffer file("<p><product type='A' article_id='1'/>\n<product type='A' article_id='2'/></p>");
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    QCOMPARE(
            findingsOf(&reader),
            QStringList {
                    u"2:10-2:18 the type \"A\" is already that of the product in line 1; write another, or take out one <- @1:13-1:21"_s
                    + TYPE_IS_THERE });
}

void tst_RVCatalogueFileSet::namesOfFiles()
{
    QTemporaryDir folder;
    const QString name = folder.filePath(u"größe.xml"_s);
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<p><product type='A' article_id='1'/></p>");
    file.close();
    RVCatalogueFileSet files;
    RVCatalogueReader first(name);
    first.setCheck(RVCatalogueCheck(), &files);
    QCOMPARE(findingsOf(&first), QStringList());
    RVCatalogueReader second(name);
    second.setCheck(without({ u"article-id-duplicate"_s }), &files);
    QCOMPARE(
            findingsOf(&second),
            QStringList {
                    u"1:13-1:21 the type \"A\" is already that of the product in line 1 of %1; write another, or take out one <- %1@1:13-1:21"_s
                            .arg(name)
                    + TYPE_IS_THERE });
}

// The order of the files is that of reading, not that of creating the readers.
void tst_RVCatalogueFileSet::readersThatWait()
{
    RVCatalogueFileSet files;
    const QByteArray content = "<p><product type='A' article_id='1'/></p>";
    CatalogueBuffer firstFile(content);
    CatalogueBuffer secondFile(content);
    RVCatalogueReader first(&firstFile);
    RVCatalogueReader second(&secondFile);
    first.setCheck(without({ u"article-id-duplicate"_s }), &files, u"first"_s);
    second.setCheck(without({ u"article-id-duplicate"_s }), &files, u"second"_s);
    QCOMPARE(findingsOf(&second), QStringList());
    QCOMPARE(findingsOf(&first),
             QStringList { u"1:13-1:21 the type \"A\" is already that of the product in line 1 of second; write "
                           u"another, or take out one <- "
                           "second@1:13-1:21"_s
                           + TYPE_IS_THERE });
}

void tst_RVCatalogueFileSet::severalSets()
{
    const QByteArray content = "<p><product type='A' article_id='1'/></p>";
    QCOMPARE(findingsIn({ content }), QList<QStringList> { {} });
    QCOMPARE(findingsIn({ content }), QList<QStringList> { {} });
}

void tst_RVCatalogueFileSet::onThreads()
{
    constexpr int count = 5000;
    QByteArray content = "<p>";
    for (int i = 1; i <= count; ++i)
        content += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i) + "'/>\n";
    content += "</p>";
    RVCatalogueFileSet files;
    int found = 0;
    for (int i = 0; i < 2; ++i) {
        CatalogueBuffer file(content);
        RVCatalogueReader reader(&file);
        reader.setCheck(RVCatalogueCheck(), &files, QString::number(i));
        reader.map(
                [](const QList<RVCatalogueProduct> &products) {
                    int result = 0;
                    for (const RVCatalogueProduct &product : products)
                        result += int(product.findings().size());
                    return result;
                },
                [&found](int number) {
                    found += number;
                    return true;
                });
        QCOMPARE(found, i * count * 2);
    }
}

void tst_RVCatalogueFileSet::manyFiles()
{
    constexpr int count = 3000;
    RVCatalogueFileSet files;
    QStringList findings;
    for (int i = 1; i <= count; ++i) {
        const QByteArray type = QByteArray::number(i > 2990 ? i - 2990 : i);
        CatalogueBuffer file(QByteArray(i % 7, '\n') + "<p><product type='T" + type + "' article_id='"
                             + QByteArray::number(i) + "'/></p>");
        RVCatalogueReader reader(&file);
        reader.setCheck(RVCatalogueCheck(), &files, QString::number(i));
        findings += findingsOf(&reader);
    }
    QCOMPARE(findings.size(), qsizetype(10));
    QCOMPARE(
            findings.first(),
            u"3:13-3:22 the type \"T1\" is already that of the product in line 2 of 1; write another, or take out one <- 1@2:13-2:22"_s
                    + TYPE_IS_THERE);
    QCOMPARE(
            findings.last(),
            u"5:13-5:23 the type \"T10\" is already that of the product in line 4 of 10; write another, or take out one <- 10@4:13-4:23"_s
                    + TYPE_IS_THERE);
}

QTEST_GUILESS_MAIN(tst_RVCatalogueFileSet)
#include "tst_RVCatalogueFileSet.moc"
