#include "BrokenCatalogue.h"
#include "CheckFolder.h"
#include "RVCatalogue/EncodedText.h"
#include "RVCatalogue/RandomCatalogue.h"

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const char DIFF[] = "--- a.xml\n"
                    "+++ a.xml\n"
                    "@@ -1,7 +1,7 @@\n"
                    " <products>\n"
                    " <!-- 8,5 is glued -->\n"
                    "-<product type='A'   article_id=\"1\" page_binding='glued'>\n"
                    "-\t<composition><spine base_width=\"8,5\" block_width='0'/></composition>\n"
                    "+<product type='A'   article_id=\"1\" page_binding='glue'>\n"
                    "+\t<composition><spine base_width=\"8.5\" block_width='0'/></composition>\n"
                    " </product>\n"
                    " <product type='B' article_id='x'/>\n"
                    " </products>\n";

/// A catalogue with one finding, which can be mended.
const char ONE_FINDING[] = "<p><product type='A' article_id='1' page_binding='spiral' cover_type='hard'/></p>";

const char NOT_WELL_FORMED[] = "<products><product type='A' article_id='1' page_binding='glued'/>";

/// The finding that cannot be mended.
bool isOneLeft(const QByteArray &report, const QByteArray &fileName)
{
    return report.startsWith(fileName + ":6:19: error: ") && report.count('\n') == 2
            && report.endsWith("\n2 products in 1 file: 1 error, 0 warnings, 0 notes\n");
}

/// The super user may write protected files, unless the process drops that right.
void obeyPermissions()
{
    ::prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0);
}

/// The limit of file sizes, which acts like a full disk.
void limitFiles()
{
    constexpr rlim_t size = 4096;
    const rlimit limit { size, size };
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/// A catalogue in which some words are misspelt.
QString brokenCatalogue(quint32 seed)
{
    static const std::map<QString, QString> misspelt = {
        { u"\"glue\""_s, u"\"glu\""_s },      { u"\"portrait\""_s, u"\"Portait\""_s },
        { u"\"matt\""_s, u"\"mat\""_s },      { u"\"HARDCOVER\""_s, u"\" Harcover\""_s },
        { u"\"mm\""_s, u"\"Millimeter\""_s }, { u"\"0.5\""_s, u"\"0,5\""_s },
        { u"\"white\""_s, u"\"wite\""_s },
    };
    RandomCatalogue random(seed);
    QString result;
    for (int i = 0; i < 30; ++i) {
        result += random.product() + (i % 3 == 0 ? u"\r\n"_s : u"\n <!-- \"glu\" -->"_s);
    }
    for (const auto &[right, wrong] : misspelt)
        result.replace(right, wrong);
    return u"<products>\n"_s + result + u"</products>"_s;
}

/// References for the letters that the encoding does not have.
QString writable(const QString &text, const QByteArray &encoding)
{
    QString result;
    for (const char32_t letter : text.toUcs4()) {
        const QString one = QString::fromUcs4(&letter, 1);
        const bool isThere = letter < 0x80 || !encoded(one, encoding)->startsWith("(not");
        result += isThere ? one : u"&#%1;"_s.arg(uint(letter));
    }
    return result;
}

QList<RVCatalogueFinding> findingsIn(const QByteArray &catalogue)
{
    QBuffer buffer;
    buffer.setData(catalogue);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    reader.setCheck(RVCatalogueCheck());
    QList<RVCatalogueFinding> result;
    for (const RVCatalogueProduct &product : reader)
        result += product.findings();
    return result;
}

/// The text with the edits of the findings, made from the last one to the first.
QString mended(QString text, const QList<RVCatalogueFinding> &findings)
{
    const std::map<RVFilePosition, qsizetype> places = placesIn(text);
    std::map<RVFilePosition, RVFileEdit> edits;
    for (const RVCatalogueFinding &finding : findings) {
        for (const RVFileEdit &edit : finding.fix())
            edits[edit.range.begin] = edit;
    }
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        const qsizetype begin = places.at(edit->second.range.begin);
        text.replace(begin, places.at(edit->second.range.end) - begin, edit->second.text);
    }
    return text;
}

}

class tst_fix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void mends();
    void nothingLeft();
    void nothingToMend();
    void findingOfTheFile();
    void severalFiles();
    void disabledRule();
    void otherFormats();
    void inputToOutput();
    void inputWithNothingToMend();
    void inputWithOneFinding();
    void inputTwice();
    void unreadableInput();
    void unreadable_data();
    void unreadable();
    void quiet();
    void pipe();
    void symbolicLink();
    void fullOutput();
    void fullDisk();
    void fullDiskOfInput_data();
    void fullDiskOfInput();
    void noTemporaryFile_data();
    void noTemporaryFile();
    void killedWhileWriting();
    void writeProtectedFile();
    void writeProtectedFolder();
    void random_data();
    void random();
    void diff();
    void diffNames_data();
    void diffNames();
    void diffOfInput();
    void diffOfNothing();
    void diffOfSeveralFiles();
    void diffOfUnreadable();
    void diffWithoutProgram();

private:
    QStringList names() const;
    std::unique_ptr<CheckFolder> myFolder;
};

QStringList tst_fix::names() const
{
    return QDir(myFolder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void tst_fix::init()
{
    myFolder = std::make_unique<CheckFolder>();
    QVERIFY(myFolder->write(u"a.xml"_s, BROKEN_CATALOGUE));
}

void tst_fix::mends()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE));
    QCOMPARE(run.messages, u"mended 2 of 3 findings in a.xml\n"_s);
    QVERIFY2(isOneLeft(run.bytes, "a.xml"), run.bytes);
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(names(), QStringList { u"a.xml"_s });

    const ProgramRun again = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QCOMPARE(again.messages, QString());
    QCOMPARE(again.bytes, run.bytes);
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE));
}

void tst_fix::nothingLeft()
{
    QVERIFY(myFolder->write(u"a.xml"_s, ONE_FINDING));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QCOMPARE(run.messages, u"mended 1 of 1 finding in a.xml\n"_s);
    QCOMPARE(run.bytes, QByteArray("1 product in 1 file: 0 errors, 0 warnings, 0 notes\n"));
    QCOMPARE(run.exitCode, 0);
}

// An unchanged file is not written, so that its time stamp stays the same.
void tst_fix::nothingToMend()
{
    QVERIFY(myFolder->write(u"b.xml"_s, CLEAN_CATALOGUE));
    const QFileInfo before(myFolder->path(u"b.xml"_s));
    const QDateTime changed = before.metadataChangeTime();
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"b.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(QFileInfo(before.filePath()).metadataChangeTime(), changed);
}

// A comment that silences nothing in a group is no finding of a product.
void tst_fix::findingOfTheFile()
{
    const QByteArray group = "<p>\n<!-- rvcatalog: ignore type-duplicate -->\n<g>";
    QVERIFY(myFolder->write(u"a.xml"_s, QByteArray(ONE_FINDING).replace("<p>", group).replace("</p>", "</g>\n</p>")));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QCOMPARE(run.messages, u"mended 1 of 2 findings in a.xml\n"_s);
    QVERIFY2(run.output.endsWith("\n1 product in 1 file: 0 errors, 1 warning, 0 notes\n"_L1), run.bytes);
}

void tst_fix::severalFiles()
{
    QVERIFY(myFolder->write(u"b.xml"_s, CLEAN_CATALOGUE));
    QVERIFY(myFolder->write(u"c.xml"_s, BROKEN_CATALOGUE));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s, u"missing.xml"_s, u"b.xml"_s, u"c.xml"_s });
    QCOMPARE(run.messages,
             u"mended 2 of 3 findings in a.xml\n"
             "mended 2 of 3 findings in c.xml\n"
             "missing.xml:1:1: error: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE));
    QCOMPARE(myFolder->read(u"b.xml"_s), QByteArray(CLEAN_CATALOGUE));
    QCOMPARE(myFolder->read(u"c.xml"_s), QByteArray(MENDED_CATALOGUE));
}

void tst_fix::disabledRule()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"--disable"_s, u"number-invalid"_s, u"a.xml"_s });
    QCOMPARE(run.messages, u"mended 1 of 2 findings in a.xml\n"_s);
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE).replace("8.5", "8,5"));
}

// Programs read the output, so nothing else may be in it.
void tst_fix::otherFormats()
{
    for (const QString &format : { u"json"_s, u"sarif"_s }) {
        QVERIFY(myFolder->write(u"a.xml"_s, BROKEN_CATALOGUE));
        const ProgramRun run = myFolder->check({ u"--fix"_s, u"--format"_s, format, u"a.xml"_s });
        QCOMPARE(run.messages, u"mended 2 of 3 findings in a.xml\n"_s);
        QJsonParseError error;
        QVERIFY(QJsonDocument::fromJson(run.bytes, &error).isObject());
        QCOMPARE(error.errorString(), u"no error occurred"_s);
        QCOMPARE(run.exitCode, 1);
    }
}

void tst_fix::inputToOutput()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"-"_s }, BROKEN_CATALOGUE);
    QCOMPARE(run.bytes, QByteArray(MENDED_CATALOGUE));
    const QString mendedLine = u"mended 2 of 3 findings in -\n"_s;
    QVERIFY2(run.messages.startsWith(mendedLine), qPrintable(run.messages));
    QVERIFY2(isOneLeft(run.messages.mid(mendedLine.size()).toUtf8(), "-"), qPrintable(run.messages));
    QCOMPARE(run.exitCode, 1);
}

void tst_fix::inputWithNothingToMend()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"-"_s }, CLEAN_CATALOGUE);
    QCOMPARE(run.bytes, QByteArray(CLEAN_CATALOGUE));
    QCOMPARE(run.messages, u"2 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_fix::inputWithOneFinding()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"-"_s }, ONE_FINDING);
    QCOMPARE(run.bytes, QByteArray(ONE_FINDING).replace("'hard'", "'hardcover'"));
    QCOMPARE(run.messages, u"mended 1 of 1 finding in -\n1 product in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_fix::inputTwice()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"-"_s, u"-"_s }, BROKEN_CATALOGUE);
    QCOMPARE(run.bytes, QByteArray());
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.messages.startsWith("rvcatalog: only one file can be the standard input\n"_L1));
}

void tst_fix::unreadableInput()
{
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"-"_s }, NOT_WELL_FORMED);
    QCOMPARE(run.bytes, QByteArray());
    QVERIFY2(run.messages.contains("-:1:66: error: the file ends too early"_L1), qPrintable(run.messages));
    QVERIFY(!run.messages.contains("mended"_L1));
    QCOMPARE(run.exitCode, 2);
}

void tst_fix::unreadable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("message");

    QTest::newRow("not well-formed")
            << QByteArray(NOT_WELL_FORMED)
            << u"a.xml:1:66: error: the file ends too early: <products>, which was opened in line 1, is not closed\n"_s;
    QTest::newRow("wrong encoding") << QByteArray(BROKEN_CATALOGUE).replace("'x'", "'\xff'")
                                    << u"a.xml:6:31: error: this is not encoded in UTF-8, as files are that do not "
                                       u"say otherwise in their first "
                                       "line\n"_s;
    QTest::newRow("empty") << QByteArray() << u"a.xml:1:1: error: the file is empty\n"_s;
}

void tst_fix::unreadable()
{
    QFETCH(QByteArray, content);
    QVERIFY(myFolder->write(u"a.xml"_s, content));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QTEST(run.messages, "message");
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(myFolder->read(u"a.xml"_s), content);
    QCOMPARE(names(), QStringList { u"a.xml"_s });
}

void tst_fix::quiet()
{
    for (const QString &option : { u"--diff"_s, u"--fix"_s }) {
        const ProgramRun run = myFolder->check({ option, u"--quiet"_s, u"a.xml"_s });
        QCOMPARE(run.bytes, QByteArray());
        QCOMPARE(run.messages, QString());
        QCOMPARE(run.exitCode, 1);
    }
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE));
    QCOMPARE(myFolder->check({ u"--diff"_s, u"--quiet"_s, u"a.xml"_s }).exitCode, 0);
}

// The check reads it, because it could not be read twice.
void tst_fix::pipe()
{
    const ProgramRun mended = myFolder->check({ u"--fix"_s, u"/dev/stdin"_s }, BROKEN_CATALOGUE);
    QCOMPARE(mended.messages, u"/dev/stdin:1:1: error: this is no ordinary file\n"_s);
    QVERIFY(mended.bytes.endsWith("\n2 products in 1 file: 2 errors, 0 warnings, 1 note\n"));
    QCOMPARE(mended.exitCode, 2);

    const ProgramRun diff = myFolder->check({ u"--diff"_s, u"/dev/stdin"_s }, BROKEN_CATALOGUE);
    QCOMPARE(diff.messages, u"/dev/stdin:1:1: error: this is no ordinary file\n"_s);
    QCOMPARE(diff.bytes, QByteArray());
    QCOMPARE(diff.exitCode, 2);
}

void tst_fix::symbolicLink()
{
    QVERIFY(QFile::link(u"a.xml"_s, myFolder->path(u"link.xml"_s)));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"link.xml"_s });
    QCOMPARE(run.messages, u"mended 2 of 3 findings in link.xml\n"_s);
    QVERIFY(QFileInfo(myFolder->path(u"link.xml"_s)).isSymLink());
    QVERIFY(!QFileInfo(myFolder->path(u"a.xml"_s)).isSymLink());
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(MENDED_CATALOGUE));
}

void tst_fix::fullOutput()
{
    for (const QString &option : { u"--fix"_s, u"--diff"_s }) {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(RVCATALOG), { u"check"_s, option, u"-"_s });
        process.write(BROKEN_CATALOGUE);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 2);
        QVERIFY(process.readAllStandardError().endsWith("rvcatalog: cannot write to the standard output\n"));
    }
}

void tst_fix::fullDisk()
{
    const QByteArray large = QByteArray(BROKEN_CATALOGUE).replace("8,5 is", QByteArray(100000, 'x'));
    QVERIFY(myFolder->write(u"a.xml"_s, large));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s }, QByteArray(), [] {
        limitFiles();
        std::signal(SIGXFSZ, SIG_IGN);
    });
    QCOMPARE(run.messages, u"a.xml:1:1: error: cannot write: File too large\n"_s);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(myFolder->read(u"a.xml"_s), large);
    QCOMPARE(names(), QStringList { u"a.xml"_s });
}

void tst_fix::fullDiskOfInput_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isChecked");

    QTest::newRow("copy fits, mended copy is larger") << u"--fix"_s << 4096 << true;
    QTest::newRow("copy fits, copy to compare is larger") << u"--diff"_s << 4096 << false;
    QTest::newRow("copy to mend is too large") << u"--fix"_s << 10000 << false;
    QTest::newRow("copy to compare is too large") << u"--diff"_s << 10000 << false;
}

void tst_fix::fullDiskOfInput()
{
    QFETCH(QString, option);
    QFETCH(int, size);
    QFETCH(bool, isChecked);
    QByteArray input = QByteArray(ONE_FINDING).replace("<p>", "<p><!---->");
    input.insert(input.indexOf("-->"), QByteArray(size - input.size(), 'x'));
    const ProgramRun run = myFolder->check({ option, u"-"_s }, input, [] {
        limitFiles();
        std::signal(SIGXFSZ, SIG_IGN);
    });
    QCOMPARE(run.bytes, QByteArray());
    const QString fault = u"-:1:1: error: cannot write: File too large\n"_s;
    QVERIFY2(run.messages.startsWith(fault), qPrintable(run.messages));
    QCOMPARE(run.messages.endsWith("\n1 product in 1 file: 0 errors, 0 warnings, 1 note\n"_L1), isChecked);
    QCOMPARE(run.exitCode, 2);
}

void tst_fix::noTemporaryFile_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("fileName");

    QTest::newRow("input to mend") << u"--fix"_s << u"-"_s;
    QTest::newRow("input to compare") << u"--diff"_s << u"-"_s;
    QTest::newRow("file to compare") << u"--diff"_s << u"a.xml"_s;
}

// Nobody can make a file in /proc.
void tst_fix::noTemporaryFile()
{
    QFETCH(QString, option);
    QFETCH(QString, fileName);
    QVERIFY(myFolder->write(u"a.xml"_s, ONE_FINDING));
    const ProgramRun run = runProgram(myFolder->path(), QStringLiteral(RVCATALOG), { u"check"_s, option, fileName },
                                      ONE_FINDING, environmentWith({ u"TMPDIR=/proc"_s }));
    QVERIFY2(run.messages.contains(fileName + ":1:1: error: cannot write: "_L1), qPrintable(run.messages));
    QVERIFY(!run.bytes.contains("'hardcover'"));
    QCOMPARE(run.exitCode, 2);
}

void tst_fix::killedWhileWriting()
{
    const QByteArray large = QByteArray(BROKEN_CATALOGUE).replace("8,5 is", QByteArray(100000, 'x'));
    QVERIFY(myFolder->write(u"a.xml"_s, large));
    QCOMPARE(myFolder->check({ u"--fix"_s, u"a.xml"_s }, QByteArray(), limitFiles).exitCode, -2);
    QCOMPARE(myFolder->read(u"a.xml"_s), large);
}

void tst_fix::writeProtectedFile()
{
    QCOMPARE(::chmod(QFile::encodeName(myFolder->path(u"a.xml"_s)).constData(), 0444), 0);
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s }, QByteArray(), obeyPermissions);
    QCOMPARE(run.messages, u"a.xml:1:1: error: the file is write-protected\n"_s);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(BROKEN_CATALOGUE));
}

void tst_fix::writeProtectedFolder()
{
    QCOMPARE(::chmod(QFile::encodeName(myFolder->path()).constData(), 0555), 0);
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s }, QByteArray(), obeyPermissions);
    QCOMPARE(::chmod(QFile::encodeName(myFolder->path()).constData(), 0755), 0);
    QCOMPARE(run.messages, u"a.xml:1:1: error: cannot write a new file beside the old one: Permission denied\n"_s);
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(BROKEN_CATALOGUE));
}

void tst_fix::random_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<QByteArray>("mark");

    QTest::newRow("UTF-8 with a mark") << QByteArray("UTF-8") << QByteArray("\xef\xbb\xbf");
    QTest::newRow("UTF-16LE with a mark") << QByteArray("UTF-16LE") << QByteArray("\xff\xfe");
    QTest::newRow("UTF-16BE with a mark") << QByteArray("UTF-16BE") << QByteArray("\xfe\xff");
    for (const char *name : { "UTF-8",      "UTF-16LE",     "UTF-16BE",   "UTF-32LE",    "UTF-32BE",     "US-ASCII",
                              "ISO-8859-1", "ISO-8859-2",   "ISO-8859-6", "ISO-8859-15", "windows-1252", "windows-1256",
                              "KOI8-R",     "windows-1258", "Shift_JIS",  "EUC-JP",      "GB18030",      "GBK",
                              "Big5",       "EUC-KR",       "IBM850",     "MACINTOSH",   "ISO-2022-JP" }) {
        if (encoded(u"a"_s, name))
            QTest::newRow(name) << QByteArray(name) << QByteArray();
    }
}

// After mending, no mendable finding is left, and the rest of the file is unchanged.
void tst_fix::random()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, mark);
    const QString declaration = u"<?xml version='1.0' encoding='%1'?>\r"_s.arg(QLatin1StringView(encoding));
    const QString text = writable(declaration + brokenCatalogue(quint32(qHash(encoding, 1))), encoding);
    const QByteArray catalogue = mark + *encoded(text, encoding);
    const QList<RVCatalogueFinding> findings = findingsIn(catalogue);
    const auto fixes = std::count_if(findings.begin(), findings.end(),
                                     [](const RVCatalogueFinding &each) { return !each.fix().isEmpty(); });
    QVERIFY(fixes > 10);

    QVERIFY(myFolder->write(u"a.xml"_s, catalogue));
    const ProgramRun run = myFolder->check({ u"--fix"_s, u"a.xml"_s });
    QCOMPARE(run.messages, u"mended %1 of %2 findings in a.xml\n"_s.arg(fixes).arg(findings.size()));
    const QByteArray result = myFolder->read(u"a.xml"_s);
    QVERIFY(result == mark + *encoded(mended(text, findings), encoding));
    for (const RVCatalogueFinding &finding : findingsIn(result))
        QVERIFY2(finding.fix().isEmpty(), qPrintable(finding.text()));
    QCOMPARE(myFolder->check({ u"--fix"_s, u"a.xml"_s }).messages, QString());
    QVERIFY(myFolder->read(u"a.xml"_s) == result);
}

void tst_fix::diff()
{
    for (const QStringList &options : { QStringList { u"--diff"_s }, QStringList { u"--fix"_s, u"--diff"_s } }) {
        const ProgramRun run = myFolder->check(options + QStringList { u"a.xml"_s });
        QCOMPARE(run.bytes, QByteArray(DIFF));
        QCOMPARE(run.messages, QString());
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(myFolder->read(u"a.xml"_s), QByteArray(BROKEN_CATALOGUE));
    }
}

void tst_fix::diffNames_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("shownName");

    QTest::newRow("in this folder") << u"./b.xml"_s << u"b.xml"_s;
    QTest::newRow("through another folder and back") << u"d/..//b.xml"_s << u"b.xml"_s;
    QTest::newRow("in another folder") << u"d/c.xml"_s << u"d/c.xml"_s;
    QTest::newRow("from the root") << u"%1/d/c.xml"_s << u"d/c.xml"_s;
    QTest::newRow("above") << u"../%2/d/../b.xml"_s << u"b.xml"_s;
}

// Other programs find the file by its name, from the same folder.
void tst_fix::diffNames()
{
    QFETCH(QString, argument);
    QFETCH(QString, shownName);
    QVERIFY(QDir(myFolder->path()).mkdir(u"d"_s));
    QVERIFY(myFolder->write(u"b.xml"_s, BROKEN_CATALOGUE));
    QVERIFY(myFolder->write(u"d/c.xml"_s, BROKEN_CATALOGUE));
    const QDir folder(QDir(myFolder->path()).canonicalPath());
    argument.replace(u"%1"_s, folder.path()).replace(u"%2"_s, folder.dirName());
    const QByteArray output = myFolder->check({ u"--diff"_s, argument }).bytes;
    QCOMPARE(output, QByteArray(DIFF).replace("a.xml", shownName.toUtf8()));
}

void tst_fix::diffOfInput()
{
    const ProgramRun run = myFolder->check({ u"--diff"_s, u"-"_s }, BROKEN_CATALOGUE);
    QCOMPARE(run.bytes, QByteArray(DIFF).replace("- a.xml", "- -").replace("+ a.xml", "+ -"));
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
}

void tst_fix::diffOfNothing()
{
    const ProgramRun run = myFolder->check({ u"--diff"_s, u"-"_s }, MENDED_CATALOGUE);
    QCOMPARE(run.bytes, QByteArray());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
}

void tst_fix::diffOfSeveralFiles()
{
    QVERIFY(myFolder->write(u"b.xml"_s, BROKEN_CATALOGUE));
    const ProgramRun run = myFolder->check({ u"--diff"_s, u"a.xml"_s, u"b.xml"_s });
    QCOMPARE(run.bytes, QByteArray(DIFF) + QByteArray(DIFF).replace("a.xml", "b.xml"));
    QCOMPARE(run.exitCode, 1);
}

void tst_fix::diffOfUnreadable()
{
    QVERIFY(myFolder->write(u"b.xml"_s, NOT_WELL_FORMED));
    const ProgramRun run = myFolder->check({ u"--diff"_s, u"b.xml"_s, u"missing.xml"_s, u"a.xml"_s });
    QCOMPARE(run.bytes, QByteArray(DIFF));
    QCOMPARE(run.messages,
             u"b.xml:1:66: error: the file ends too early: <products>, which was opened in line 1, is not closed\n"
             "missing.xml:1:1: error: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(run.exitCode, 2);
}

void tst_fix::diffWithoutProgram()
{
    const ProgramRun run = runProgram(myFolder->path(), QStringLiteral(RVCATALOG),
                                      { u"check"_s, u"--diff"_s, u"a.xml"_s }, QByteArray(),
                                      environmentWith({ u"PATH=/nowhere"_s }));
    QCOMPARE(run.bytes, QByteArray());
    QVERIFY2(run.messages.startsWith("a.xml:1:1: error: cannot run the program \"diff\": "_L1),
             qPrintable(run.messages));
    QCOMPARE(run.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_fix)
#include "tst_fix.moc"
