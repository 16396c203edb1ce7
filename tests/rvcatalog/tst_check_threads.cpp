#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

/// The threads of "rvcatalog check --jobs", counted while the standard input is still open.
class tst_check_threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobs_data();
    void jobs();
};

void tst_check_threads::jobs_data()
{
    QTest::addColumn<QString>("jobs");
    QTest::addColumn<int>("threads"); // with the one that reads

    QTest::newRow("1") << u"1"_s << 2;
    QTest::newRow("3") << u"3"_s << 4;
}

void tst_check_threads::jobs()
{
    QFETCH(QString, jobs);
    QProcess process;
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"--jobs"_s, jobs, u"-"_s });
    QVERIFY(process.waitForStarted());
    process.write("<p>\n");
    for (int i = 1; i <= 20000; ++i)
        process.write("<product type='T" + QByteArray::number(i) + "' article_id='x'/>\n");
    const QDir tasks(u"/proc/%1/task"_s.arg(process.processId()));
    const auto count = [&tasks] { return int(tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size()); };
    QFETCH(int, threads);
    QTRY_COMPARE(count(), threads);
    process.write("</p>\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
}

QTEST_GUILESS_MAIN(tst_check_threads)
#include "tst_check_threads.moc"
