#include "WrittenFile.h"

// Several files that are checked together, with comments that silence rules.
#include <Commands.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A file without a name, which a command reads or writes.
class Stream
{
public:
    explicit Stream(const QByteArray &content = QByteArray()) : myFile(std::tmpfile(), &std::fclose)
    {
        std::fwrite(content.constData(), 1, std::size_t(content.size()), file());
        std::rewind(file());
    }

    std::FILE *file() const { return myFile.get(); }
    QString text() const
    {
        QByteArray result(std::ftell(file()), '\0');
        std::rewind(file());
        result.resize(qsizetype(std::fread(result.data(), 1, std::size_t(result.size()), file())));
        return QString::fromUtf8(result);
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> myFile;
};

struct Run
{
    int exitCode = -1;
    QStringList findings; // "file:line:column rule", followed by the place of the other product
    QString messages;
};

/// The place "in line 7 of a.xml"; empty if a finding has none.
QString otherPlace(const QString &finding)
{
    const auto begin = finding.indexOf(" in line "_L1);
    return begin < 0 ? QString() : finding.mid(begin, finding.indexOf("; "_L1, begin) - begin);
}

Run check(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    const Stream in(input);
    const Stream out;
    const Stream messages;
    Run result;
    result.exitCode = runCommand(QStringList { u"check"_s } + arguments, { in.file(), out.file(), messages.file() });
    const QStringList lines = out.text().split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (line.endsWith(u']'))
            result.findings += line.section(u": "_s, 0, 0) + u' ' + line.section(u'[', -1).chopped(1)
                    + otherPlace(line);
    }
    result.messages = messages.text();
    return result;
}

}

class tst_check_files : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void duplicates();
    void standardInputAmongFiles();
    void unreadableAmongFiles();
    void sameFile_data();
    void sameFile();
    void silenced();
    void unusedComment();
    void disabledRuleIsNotUnused();

private:
    void write(const QString &name, const QByteArray &content);

    QTemporaryDir myFolder;
};

void tst_check_files::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(myFolder.filePath(name), content));
}

void tst_check_files::init()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    QDir().mkdir(u"sub"_s);
    write(u"a.xml"_s, "<p>\n<product type='DUN9' article_id='1'/>\n</p>\n");
    write(u"b.xml"_s, "<p>\n<product type='DUN9_30' article_id='2'/>\n<product type='B' article_id='1'/>\n</p>\n");
    write(u"c.xml"_s, "<p>\n<product type='C' article_id='3'/>\n</p>\n");
    QFile::link(u"a.xml"_s, u"link.xml"_s);
}

void tst_check_files::duplicates()
{
    const Run run = check({ u"a.xml"_s, u"c.xml"_s, u"b.xml"_s });
    QCOMPARE(run.findings,
             QStringList({ u"b.xml:2:10 type-duplicate in line 2 of a.xml"_s,
                           u"b.xml:3:19 article-id-duplicate in line 2 of a.xml"_s }));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.messages, QString());
    QCOMPARE(check({ u"b.xml"_s, u"a.xml"_s }).findings,
             QStringList({ u"a.xml:2:10 type-duplicate in line 2 of b.xml"_s,
                           u"a.xml:2:22 article-id-duplicate in line 3 of b.xml"_s }));
    QCOMPARE(check({ u"a.xml"_s, u"c.xml"_s }).exitCode, 0);
    QCOMPARE(check({ u"b.xml"_s }).exitCode, 0);
}

void tst_check_files::standardInputAmongFiles()
{
    const QByteArray input = "<p><product type='DUN9' article_id='7'/>\n<product type='C' article_id='8'/></p>";
    QCOMPARE(check({ u"a.xml"_s, u"-"_s, u"c.xml"_s }, input).findings,
             QStringList(
                     { u"-:1:13 type-duplicate in line 2 of a.xml"_s, u"c.xml:2:10 type-duplicate in line 2 of -"_s }));
}

void tst_check_files::unreadableAmongFiles()
{
    write(u"cut.xml"_s, "<p><product type='C' article_id='8'/>");
    const Run run = check({ u"cut.xml"_s, u"nowhere.xml"_s, u"c.xml"_s });
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(run.findings, QStringList { u"c.xml:2:10 type-duplicate in line 1 of cut.xml"_s });
}

void tst_check_files::sameFile_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("messages");

    QTest::newRow("same name") << QStringList { u"a.xml"_s, u"a.xml"_s }
                               << u"a.xml: it is named twice, and checked once\n"_s;
    QTest::newRow("other paths")
            << QStringList { u"./a.xml"_s, u"sub/../a.xml"_s, myFolder.filePath(u"a.xml"_s) }
            << u"sub/../a.xml: it is the same file as ./a.xml, and checked once\n%1: it is the same "
               "file as ./a.xml, and checked once\n"_s.arg(myFolder.filePath(u"a.xml"_s));
    QTest::newRow("link") << QStringList { u"a.xml"_s, u"c.xml"_s, u"link.xml"_s }
                          << u"link.xml: it is the same file as a.xml, and checked once\n"_s;
}

void tst_check_files::sameFile()
{
    QFETCH(QStringList, files);
    const Run run = check(files, "<product type='A' article_id='1'/>");
    QCOMPARE(run.findings, QStringList());
    QTEST(run.messages, "messages");
    QCOMPARE(run.exitCode, 0);
}

void tst_check_files::silenced()
{
    write(u"silent.xml"_s,
          "<p>\n<!-- rvcatalog: ignore type-duplicate, keyword-legacy -->\n"
          "<product type='DUN9' article_id='4' cover_type='hard'/>\n</p>\n");
    const Run run = check({ u"a.xml"_s, u"silent.xml"_s });
    QCOMPARE(run.findings, QStringList());
    QCOMPARE(run.exitCode, 0);
}

void tst_check_files::unusedComment()
{
    write(u"unused.xml"_s,
          "<p>\n<!-- rvcatalog: ignore type-duplicate -->\n<product type='X' article_id='4'/>\n"
          "<!-- rvcatalog: ignore spine-font-too-small -->\n<g><product type='Y' article_id='5'/></g>\n</p>\n");
    const Run run = check({ u"unused.xml"_s });
    QCOMPARE(run.findings,
             QStringList({ u"unused.xml:2:1 suppression-unused"_s, u"unused.xml:4:1 suppression-unused"_s }));
    QCOMPARE(run.exitCode, 1);
}

void tst_check_files::disabledRuleIsNotUnused()
{
    write(u"unused.xml"_s,
          "<p>\n<!-- rvcatalog: ignore type-duplicate -->\n<product type='X' article_id='4'/>\n</p>\n");
    QCOMPARE(check({ u"unused.xml"_s, u"--disable=type-duplicate"_s }).exitCode, 0);
    QCOMPARE(check({ u"unused.xml"_s, u"--disable=suppression-unused"_s }).exitCode, 0);
    QCOMPARE(check({ u"unused.xml"_s, u"--disable=keyword-unknown"_s }).exitCode, 1);
}

QTEST_MAIN(tst_check_files)
#include "tst_check_files.moc"
