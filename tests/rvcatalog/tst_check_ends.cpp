#include "rvcatalog/Terminal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const char FIRST_PRODUCT[] = "<p>\n<product type='A' article_id='0'/>\n";
const char FIRST_LINE[] =
        "pipe:2:19: error: A: the article id \"0\" is no whole number above 0; write 1 or more [article-id-invalid]\n";

/// Checks a file that takes some time.
constexpr int ALL_FINDINGS = 500;

/// The program, which checks a pipe while the test writes into it.
class PipedCheck
{
    Q_DISABLE_COPY_MOVE(PipedCheck)

public:
    PipedCheck(const QString &folder, const QStringList &arguments)
    {
        const QString pipe = folder + "/pipe"_L1;
        ::mkfifo(pipe.toUtf8().constData(), 0600);
        process.setWorkingDirectory(folder);
        process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s } + arguments + QStringList { u"pipe"_s });
        // The pipe is opened for reading as well. Otherwise the test would wait here, while the program waits for a
        // reader of its output.
        myPipe = ::open(pipe.toUtf8().constData(), O_RDWR | O_CLOEXEC);
    }
    ~PipedCheck() { closePipe(); }

    bool write(const QByteArray &text) const
    {
        return ::write(myPipe, text.constData(), std::size_t(text.size())) == text.size();
    }
    void closePipe()
    {
        if (myPipe >= 0)
            ::close(myPipe);
        myPipe = -1;
    }
    /// True when the program has read everything that was written.
    bool isRead() const
    {
        int size = -1;
        return ::ioctl(myPipe, FIONREAD, &size) == 0 && size == 0;
    }
    /// Waits for this amount of output, and returns the output so far.
    QByteArray output(qsizetype size)
    {
        while (myOutput.size() < size && process.waitForReadyRead(20000))
            myOutput += process.readAllStandardOutput();
        return myOutput;
    }
    QByteArray allOutput()
    {
        process.waitForFinished(20000);
        return myOutput += process.readAllStandardOutput();
    }
    void send(int signal) const { ::kill(pid_t(process.processId()), signal); }

    QProcess process;

private:
    int myPipe = -1;
    QByteArray myOutput;
};

/// True for a full pipe.
bool isFull(int descriptor)
{
    pollfd pipe = { descriptor, POLLOUT, 0 };
    return ::poll(&pipe, 1, 0) == 0;
}

/// A check that has filled a pipe without a reader with findings, and has more of them.
class FullPipeCheck
{
    Q_DISABLE_COPY_MOVE(FullPipeCheck)

public:
    explicit FullPipeCheck(const QString &folder)
    {
        QFile file(folder + "/faults.xml"_L1);
        if (!file.open(QIODevice::WriteOnly) || ::pipe2(myEnds, O_CLOEXEC) != 0)
            return;
        file.write("<p>" + QByteArray("<product type='A' article_id='0'/>\n").repeated(10000) + "</p>");
        file.close();
        process.setWorkingDirectory(folder);
        process.setChildProcessModifier([this] { ::dup2(myEnds[1], STDOUT_FILENO); });
        process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"faults.xml"_s });
    }
    ~FullPipeCheck()
    {
        for (const int end : myEnds)
            ::close(end);
    }

    /// Waits until the program waits for space in the pipe.
    bool isWaiting()
    {
        const bool isFilled = process.waitForStarted() && QTest::qWaitFor([this] { return isFull(myEnds[1]); }, 20000);
        QTest::qWait(300);
        return isFilled;
    }
    QByteArray allOutput()
    {
        ::close(std::exchange(myEnds[1], -1));
        QByteArray result;
        char piece[4096];
        for (ssize_t size = 1; size > 0; result.append(piece, qsizetype(size)))
            size = std::max(::read(myEnds[0], piece, sizeof piece), ssize_t(0));
        return result;
    }
    void send(int signal) const { ::kill(pid_t(process.processId()), signal); }

    QProcess process;

private:
    int myEnds[2] = { -1, -1 };
};

/// Checks a valid document of the format with this number of findings.
bool isWhole(const QString &format, const QByteArray &text, int findings)
{
    if (format == "junit"_L1) {
        QXmlStreamReader xml(text);
        int count = 0;
        while (!xml.atEnd())
            count += xml.readNext() == QXmlStreamReader::StartElement && xml.name() == "failure"_L1 ? 1 : 0;
        return !xml.hasError() && count == findings;
    }
    const QJsonObject document = QJsonDocument::fromJson(text).object();
    const QJsonObject run = document.value("runs"_L1).toArray().at(0).toObject();
    const QJsonValue found = format == "json"_L1 ? document.value("findings"_L1) : run.value("results"_L1);
    return found.isArray() && found.toArray().size() == findings;
}

}

class tst_check_ends : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findingsComeAtOnce_data();
    void findingsComeAtOnce();
    void interruptedInText();
    void interrupted_data();
    void interrupted();
    void interruptedBeforeAnybodyWrites();
    void interruptedInALargeFile_data();
    void interruptedInALargeFile();
    void signalThatComesTwice();
    void secondSignal();
    void ignoredSignal();
    void otherFilesAreLeftOut();
    void noProgressRemains();
    void closedPipe_data();
    void closedPipe();
    void closedPipeThatIsIgnored();

private:
    void writeLargeFile();

    QTemporaryDir myFolder;
};

void tst_check_ends::findingsComeAtOnce_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("begin");

    QTest::newRow("text") << QStringList() << QByteArray(FIRST_LINE);
    QTest::newRow("one thread") << QStringList { u"--jobs=1"_s } << QByteArray(FIRST_LINE);
    QTest::newRow("github") << QStringList { u"--format=github"_s }
                            << QByteArray("::error file=pipe,line=2,col=19,endLine=2,endColumn=33,"
                                          "title=article-id-invalid::A: the article id");
    QTest::newRow("json") << QStringList { u"--format=json"_s }
                          << QByteArray("{\"findings\":[\n{\"column\":19,\"end_column\":33,");
}

// This is long before the end of the file.
void tst_check_ends::findingsComeAtOnce()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, begin);
    PipedCheck check(myFolder.path(), arguments);
    QVERIFY(check.write(FIRST_PRODUCT));
    QCOMPARE(check.output(begin.size()).left(begin.size()), begin);
    QCOMPARE(check.process.state(), QProcess::Running);
    QVERIFY(check.write("<product type='B' article_id='2'/></p>"));
    check.closePipe();
    check.allOutput();
    QCOMPARE(check.process.exitCode(), 1);
}

void tst_check_ends::interruptedInText()
{
    PipedCheck check(myFolder.path(), {});
    QVERIFY(check.write(FIRST_PRODUCT));
    QCOMPARE(check.output(10).left(10), QByteArray(FIRST_LINE).left(10));
    check.send(SIGINT);
    QCOMPARE(check.allOutput(),
             QByteArray(FIRST_LINE) + "1 product in 1 file: 1 error, 0 warnings, 0 notes, interrupted\n");
    QCOMPARE(check.process.readAllStandardError(), QByteArray());
    QCOMPARE(check.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(check.process.exitCode(), 130);
}

void tst_check_ends::interrupted_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("exitCode");

    for (const QString &format : { u"json"_s, u"sarif"_s, u"junit"_s }) {
        QTest::addRow("%s, SIGINT", qPrintable(format)) << format << SIGINT << 130;
        QTest::addRow("%s, SIGTERM", qPrintable(format)) << format << SIGTERM << 143;
    }
}

void tst_check_ends::interrupted()
{
    QFETCH(QString, format);
    QFETCH(int, signal);
    PipedCheck check(myFolder.path(), { u"--format"_s, format });
    QVERIFY(check.write(FIRST_PRODUCT));
    QTRY_VERIFY(check.isRead());
    check.send(signal);
    const QByteArray output = check.allOutput();
    QVERIFY2(isWhole(format, output, 1), output.constData());
    QVERIFY(output.contains("interrupted"));
    QCOMPARE(check.process.exitStatus(), QProcess::NormalExit);
    QTEST(check.process.exitCode(), "exitCode");
}

void tst_check_ends::interruptedBeforeAnybodyWrites()
{
    ::mkfifo(myFolder.filePath(u"pipe"_s).toUtf8().constData(), 0600);
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"pipe"_s });
    QVERIFY(!process.waitForFinished(500));
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(process.readAllStandardOutput(),
             QByteArray("0 products in 1 file: 0 errors, 0 warnings, 0 notes, interrupted\n"));
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

void tst_check_ends::interruptedInALargeFile_data()
{
    QTest::addColumn<QString>("format");

    for (const QString &format : { u"json"_s, u"sarif"_s, u"junit"_s })
        QTest::newRow(qPrintable(format)) << format;
}

// A file needs no waiting, so its reading stops in another way.
void tst_check_ends::interruptedInALargeFile()
{
    QFETCH(QString, format);
    writeLargeFile();
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"--format"_s, format, u"large.xml"_s });
    QVERIFY(process.waitForReadyRead(20000));
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 130);
    const QByteArray output = process.readAllStandardOutput();
    const char *const once = format == "junit"_L1 ? " nothing but digits [" : " nothing but digits\"";
    const int findings = int(output.count(once));
    QVERIFY2(findings < ALL_FINDINGS, qPrintable(QString::number(findings)));
    QVERIFY2(isWhole(format, output, findings), output.right(1000).constData());
    QVERIFY(output.contains("interrupted"));
}

void tst_check_ends::writeLargeFile()
{
    QFile file(myFolder.filePath(u"large.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<p>\n");
    for (int i = 1; i <= ALL_FINDINGS * 1000; ++i)
        file.write("<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i)
                   + (i % 1000 == 0 ? "x'/>\n" : "'/>\n"));
    file.write("</p>\n");
}

// The signal comes once for the process and once for its group, as the program "timeout" sends it. The pipe is full, so
// the first signal alone ends nothing.
void tst_check_ends::signalThatComesTwice()
{
    FullPipeCheck check(myFolder.path());
    QVERIFY(check.isWaiting());
    check.send(SIGTERM);
    QVERIFY2(!check.process.waitForFinished(50), check.process.readAllStandardError());
    check.send(SIGTERM);
    QVERIFY2(!check.process.waitForFinished(500), check.process.readAllStandardError());
    QVERIFY(check.allOutput().endsWith(", interrupted\n"));
    QVERIFY(check.process.waitForFinished(20000));
    QCOMPARE(check.process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(check.process.exitCode(), 143);
}

// A user who presses the keys twice wants an immediate end.
void tst_check_ends::secondSignal()
{
    FullPipeCheck check(myFolder.path());
    QVERIFY(check.isWaiting());
    check.send(SIGINT);
    QVERIFY2(!check.process.waitForFinished(1000), check.process.readAllStandardError());
    check.send(SIGINT);
    QVERIFY(check.process.waitForFinished(20000));
    QCOMPARE(check.process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(check.process.exitCode(), SIGINT);
}

// A shell ignores the signal like this for programs in the background.
void tst_check_ends::ignoredSignal()
{
    int ends[2] = { -1, -1 };
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    QProcess process;
    process.setChildProcessModifier([&ends] {
        ::signal(SIGINT, SIG_IGN);
        ::dup2(ends[0], STDIN_FILENO);
    });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    const QByteArray begin(FIRST_PRODUCT);
    QCOMPARE(::write(ends[1], begin.constData(), std::size_t(begin.size())), begin.size());
    QVERIFY(process.waitForReadyRead(20000));
    ::kill(pid_t(process.processId()), SIGINT);
    QCOMPARE(::write(ends[1], "</p>", 4), 4);
    ::close(ends[1]);
    QVERIFY(process.waitForFinished(20000));
    QVERIFY(process.readAllStandardOutput().endsWith("\n1 product in 1 file: 1 error, 0 warnings, 0 notes\n"));
    QCOMPARE(process.exitCode(), 1);
    ::close(ends[0]);
}

void tst_check_ends::otherFilesAreLeftOut()
{
    const QString pipe = myFolder.filePath(u"pipe"_s);
    ::mkfifo(pipe.toUtf8().constData(), 0600);
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"pipe"_s, u"missing.xml"_s });
    const int descriptor = ::open(pipe.toUtf8().constData(), O_WRONLY | O_CLOEXEC);
    QCOMPARE(::write(descriptor, FIRST_PRODUCT, sizeof FIRST_PRODUCT - 1), qint64(sizeof FIRST_PRODUCT - 1));
    QVERIFY(process.waitForReadyRead(20000));
    ::kill(pid_t(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(20000));
    ::close(descriptor);
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.exitCode(), 143);
}

void tst_check_ends::noProgressRemains()
{
    Terminal terminal;
    QVERIFY(terminal.descriptor() >= 0);
    QProcess process;
    process.setChildProcessModifier([&terminal] { ::dup2(terminal.descriptor(), STDERR_FILENO); });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    process.write("<p>");
    for (int i = 1; i <= 30; ++i) {
        process.write("<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i) + "'/>\n");
        QTest::qWait(60);
    }
    QTRY_VERIFY(terminal.shown().endsWith("-"));
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 130);
    QTRY_VERIFY(terminal.shown().endsWith("-\r\033[K"));
}

void tst_check_ends::closedPipe_data()
{
    QTest::addColumn<QString>("format");

    for (const QString &format : { u"text"_s, u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s })
        QTest::newRow(qPrintable(format)) << format;
}

// The reader ends as "| head -1" does: the program ends at once without a message, as shells expect.
void tst_check_ends::closedPipe()
{
    QFETCH(QString, format);
    writeLargeFile();
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(u"bash"_s,
                  { u"-c"_s, u"\"$0\" check --format $1 large.xml | head -c 1 >/dev/null; echo ${PIPESTATUS[0]}"_s,
                    QStringLiteral(RVCATALOG), format });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("141\n"));
    QCOMPARE(process.readAllStandardError(), QByteArray());
}

// Some parents ignore the signal, and so does the program; then it says why it ends.
void tst_check_ends::closedPipeThatIsIgnored()
{
    writeLargeFile();
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(u"bash"_s,
                  { u"-c"_s,
                    u"trap '' PIPE; \"$0\" check large.xml missing.xml | head -c 1 >/dev/null; echo ${PIPESTATUS[0]}"_s,
                    QStringLiteral(RVCATALOG) });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("2\n"));
    QCOMPARE(process.readAllStandardError(), QByteArray("rvcatalog: cannot write to the standard output\n"));
}

QTEST_GUILESS_MAIN(tst_check_ends)
#include "tst_check_ends.moc"
