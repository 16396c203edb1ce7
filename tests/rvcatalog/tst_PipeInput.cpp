#include <PipeInput.h>

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

class tst_PipeInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ownership();
    void singleBytes();

private:
    int myReader = -1;
    int myWriter = -1;
};

void tst_PipeInput::init()
{
    int ends[2] = {};
    QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
    myReader = ends[0];
    myWriter = ends[1];
}

void tst_PipeInput::cleanup()
{
    ::close(myReader);
    ::close(myWriter);
}

void tst_PipeInput::ownership()
{
    const int copy = ::dup(myReader);
    {
        const PipeInput borrower(myReader, PipeInput::Borrowed);
        const PipeInput owner(copy, PipeInput::Owned);
    }
    QVERIFY(::fcntl(myReader, F_GETFD) >= 0);
    QCOMPARE(::fcntl(copy, F_GETFD), -1);
}

void tst_PipeInput::singleBytes()
{
    QCOMPARE(::write(myWriter, "a", 1), 1);
    ::close(std::exchange(myWriter, -1));
    PipeInput input(myReader, PipeInput::Borrowed);
    const QString noError = input.errorString();
    QVERIFY(!input.atEnd());
    QCOMPARE(input.read(1), QByteArray("a"));
    QVERIFY(!input.atEnd());
    errno = EBADF; // of another call
    QCOMPARE(input.read(1), QByteArray());
    QVERIFY(input.atEnd());
    QCOMPARE(input.errorString(), noError);
}

QTEST_GUILESS_MAIN(tst_PipeInput)
#include "tst_PipeInput.moc"
