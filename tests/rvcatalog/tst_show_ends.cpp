#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// The number of products for which the program needs some time.
constexpr int PRODUCTS = 300000;

}

/// The end of "show" before the end of the catalogue.
class tst_show_ends : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void interrupted_data();
    void interrupted();
    void tableThatIsEnded();
    void notInterrupted();

private:
    void start(QProcess *process, const QStringList &options = { u"--json"_s }) const;

    QTemporaryDir myFolder;
};

void tst_show_ends::initTestCase()
{
    QFile file(myFolder.filePath(u"large.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<p>");
    for (int i = 0; i < PRODUCTS; ++i)
        file.write("<product type='T" + QByteArray::number(i) + "' pages='1'/>\n");
    file.write("</p>");
}

void tst_show_ends::start(QProcess *process, const QStringList &options) const
{
    process->setWorkingDirectory(myFolder.path());
    process->start(QStringLiteral(RVCATALOG), QStringList { u"show"_s, u"large.xml"_s } + options);
}

void tst_show_ends::interrupted_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("SIGINT") << SIGINT << 130;
    QTest::newRow("SIGTERM") << SIGTERM << 143;
}

void tst_show_ends::interrupted()
{
    QFETCH(int, signal);
    QProcess process;
    start(&process);
    QVERIFY(process.waitForReadyRead(20000));
    ::kill(pid_t(process.processId()), signal);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QTEST(process.exitCode(), "exitCode");
    QCOMPARE(process.readAllStandardError(), QByteArray());
    const QJsonDocument document = QJsonDocument::fromJson(process.readAllStandardOutput());
    QVERIFY(document.isArray());
    QVERIFY(document.array().size() < PRODUCTS);
}

// A table needs no end, so a signal ends the program at once.
void tst_show_ends::tableThatIsEnded()
{
    QProcess process;
    start(&process, {});
    QVERIFY(process.waitForReadyRead(20000));
    ::kill(pid_t(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGTERM);
}

void tst_show_ends::notInterrupted()
{
    QProcess process;
    start(&process);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QJsonDocument::fromJson(process.readAllStandardOutput()).array().size(), PRODUCTS);
}

QTEST_GUILESS_MAIN(tst_show_ends)
#include "tst_show_ends.moc"
