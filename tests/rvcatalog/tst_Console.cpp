#include "TestFolder.h"

#include <Console.h>

#include <QDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

}

/// Files, which have a size and a position, and pipes, which have none.
class tst_Console : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void standardInput();
    void standardInputFromAPipe();
    void namedInput_data();
    void namedInput();

private:
    TestFolder myFolder;
};

void tst_Console::initTestCase()
{
    QVERIFY(myFolder.write(u"file"_s, "text"));
    QVERIFY(QDir(myFolder.path()).mkdir(u"folder"_s));
    QCOMPARE(::mkfifo(QFile::encodeName(myFolder.path(u"pipe"_s)).constData(), 0600), 0);
}

void tst_Console::standardInput()
{
    for (const QString &name : { u"file"_s, u"folder"_s }) {
        const File file(std::fopen(QFile::encodeName(myFolder.path(name)).constData(), "r"), &std::fclose);
        QVERIFY(file);
        Console console;
        console.input = file.get();
        QVERIFY2(!console.openInput()->isSequential(), qPrintable(name));
        QVERIFY2(!console.openInput(u"-"_s)->isSequential(), qPrintable(name));
    }
}

void tst_Console::standardInputFromAPipe()
{
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    ::close(ends[1]);
    const File pipe(::fdopen(ends[0], "r"), &std::fclose);
    Console console;
    console.input = pipe.get();
    QVERIFY(console.openInput()->isSequential());
    QVERIFY(console.openInput(u"-"_s)->isSequential());
}

void tst_Console::namedInput_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOpen");

    QTest::newRow("file") << u"file"_s << false;
    QTest::newRow("folder") << u"folder"_s << false;
    QTest::newRow("missing") << u"missing"_s << false;
    QTest::newRow("pipe") << u"pipe"_s << true;
}

// A caller opens files itself.
void tst_Console::namedInput()
{
    QFETCH(QString, name);
    QTEST(Console().openInput(myFolder.path(name)) != nullptr, "isOpen");
}

QTEST_GUILESS_MAIN(tst_Console)
#include "tst_Console.moc"
