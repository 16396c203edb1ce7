#include <Interruption.h>

#include <QTest>

#include <pthread.h>

#include <csignal>
#include <initializer_list>

/// The signals that end a run.
class tst_Interruption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noSignal();
    void signal_data();
    void signal();
    void takesAndGivesBack();
    void ignoredSignals();
    void severalUsers();

private:
    static sighandler_t handlerOf(int signal);
};

void tst_Interruption::init()
{
    for (const int signal : { SIGINT, SIGTERM })
        ::signal(signal, SIG_DFL);
}

sighandler_t tst_Interruption::handlerOf(int signal)
{
    struct sigaction action = {};
    ::sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

void tst_Interruption::noSignal()
{
    QCOMPARE(Interruption::descriptor(), -1);
    const Interruption interruption;
    QCOMPARE(Interruption::signal(), 0);
    QVERIFY(Interruption::descriptor() >= 0);
}

void tst_Interruption::signal_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("SIGINT") << SIGINT << 130;
    QTest::newRow("SIGTERM") << SIGTERM << 143;
}

void tst_Interruption::signal()
{
    QFETCH(int, signal);
    {
        const Interruption interruption;
        ::pthread_kill(::pthread_self(), signal);
        QCOMPARE(Interruption::signal(), signal);
        QTEST(Interruption::exitCode(Interruption::signal()), "exitCode");
        // A second signal at once is the same request.
        ::pthread_kill(::pthread_self(), signal);
        QCOMPARE(Interruption::signal(), signal);
    }
    QCOMPARE(Interruption::signal(), 0);
}

void tst_Interruption::takesAndGivesBack()
{
    for (const int signal : { SIGINT, SIGTERM }) {
        {
            const Interruption interruption;
            QVERIFY(handlerOf(signal) != SIG_DFL);
        }
        QVERIFY(handlerOf(signal) == SIG_DFL);
        QCOMPARE(Interruption::descriptor(), -1);
    }
}

void tst_Interruption::ignoredSignals()
{
    ::signal(SIGINT, SIG_IGN);
    const Interruption interruption;
    QVERIFY(handlerOf(SIGINT) == SIG_IGN);
    QVERIFY(handlerOf(SIGTERM) != SIG_DFL);
}

void tst_Interruption::severalUsers()
{
    {
        const Interruption first;
        {
            const Interruption second;
        }
        QVERIFY(handlerOf(SIGINT) != SIG_DFL);
        ::pthread_kill(::pthread_self(), SIGINT);
        QCOMPARE(Interruption::signal(), SIGINT);
    }
    QVERIFY(handlerOf(SIGINT) == SIG_DFL);
}

QTEST_GUILESS_MAIN(tst_Interruption)
#include "tst_Interruption.moc"
