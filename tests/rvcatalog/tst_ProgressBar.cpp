#include "Terminal.h"

#include <ProgressBar.h>

#include <QElapsedTimer>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ProgressBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bar();
};

// A bar is shown from the second second on, so that of early.xml is there only if the machine is very busy.
void tst_ProgressBar::bar()
{
    Terminal terminal;
    QVERIFY(terminal.descriptor() >= 0);
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(::fdopen(::dup(terminal.descriptor()), "w"),
                                                                &std::fclose);
    QElapsedTimer sinceStart;
    sinceStart.start();
    ProgressBar bar(file.get());
    bar.show(u"early.xml"_s, 50, 200);
    const QByteArray quarter = "\r\033[K[" + QByteArray(7, '#') + QByteArray(23, '.') + "] 25 % ";
    QByteArray shown = sinceStart.elapsed() < 1000 ? QByteArray() : quarter + "early.xml";
    QTest::qSleep(1100);
    bar.show(u"a.xml"_s, 50, 200);
    shown += quarter + "a.xml";
    QTRY_COMPARE(terminal.shown(), shown);
    QTest::qSleep(150);
    bar.show(u"a.xml"_s, 300, 200); // the file has grown
    shown += "\r\033[K[" + QByteArray(30, '#') + "] 100 % a.xml";
    QTRY_COMPARE(terminal.shown(), shown);
    QTest::qSleep(150);
    bar.show(u"-"_s, 3999999, 0);
    bar.hide();
    bar.hide();
    std::fputs("end", file.get());
    std::fflush(file.get());
    shown += "\r\033[K3 MB -\r\033[Kend";
    QTRY_COMPARE(terminal.shown(), shown);
}

QTEST_GUILESS_MAIN(tst_ProgressBar)
#include "tst_ProgressBar.moc"
