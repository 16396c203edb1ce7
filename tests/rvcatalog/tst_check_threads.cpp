#include <QDir>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <algorithm>

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
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("threads"); // with the one that reads

    QTest::newRow("1") << QStringList { u"--jobs=1"_s } << 2;
    QTest::newRow("3") << QStringList { u"--jobs=3"_s } << 4;
    QTest::newRow("as many as are useful") << QStringList() << std::clamp(QThread::idealThreadCount(), 1, 8) + 1;
}

void tst_check_threads::jobs()
{
    QFETCH(QStringList, options);
    QProcess process;
    process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s, u"-"_s } + options);
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
