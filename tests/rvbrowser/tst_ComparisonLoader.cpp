#include "ComparedCatalogues.h"
#include "ManyProducts.h"
#include "TestFolder.h"

#include <ComparisonLoader.h>

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int MANY = 100000; // so that there is time to give up
constexpr int MANY_CHANGES = 30000; // so that there is time to give up comparing, which takes longer than reading
constexpr int TIMEOUT = 120000; // ms

}

/// The thread in which the window compares catalogues, without the window.
class tst_ComparisonLoader : public QObject
{
    Q_OBJECT

private:
    static ComparedFiles files(const QString &before, const QString &after)
    {
        return { { u"before"_s, before }, { u"after"_s, after } };
    }
    /// Compares the files, which fails.
    LoadError errorOf(const QString &before, const QString &after);

    std::unique_ptr<TestFolder> myFolder;

private Q_SLOTS:
    void init();
    void cleanup();

    void compares();
    void comparesACopy();
    void emptyCatalogues();
    void reportsItsProgress();
    void failsWhereAFileIsBroken_data();
    void failsWhereAFileIsBroken();
    void failsWithoutAFile();
    void failsWithAPipe();
    void cancels_data();
    void cancels();
    void givesUpForAnother();
    void givesUpInSilence();
    void endsWhileComparing();
};

LoadError tst_ComparisonLoader::errorOf(const QString &before, const QString &after)
{
    ComparisonLoader loader;
    LoadError result;
    connect(&loader, &ComparisonLoader::failed, this, [&](const LoadError &error) { result = error; });
    QSignalSpy failed(&loader, &ComparisonLoader::failed);
    loader.start(files(before, after));
    failed.wait(TIMEOUT);
    return result;
}

void tst_ComparisonLoader::init()
{
    myFolder = std::make_unique<TestFolder>();
}

void tst_ComparisonLoader::cleanup()
{
    myFolder.reset();
}

// This thread reads all that the other has made: every change, and the products that only one of the files has.
void tst_ComparisonLoader::compares()
{
    const QString before = myFolder->add(OLD_CATALOGUE);
    const QString after = myFolder->add(NEW_CATALOGUE);
    ComparisonLoader loader;
    ComparisonPointer comparison;
    connect(&loader, &ComparisonLoader::compared, this, [&](const ComparisonPointer &result) { comparison = result; });
    for (int turn = 0; turn < 3; ++turn) {
        QSignalSpy compared(&loader, &ComparisonLoader::compared);
        loader.start(files(before, after));
        QVERIFY(loader.isLoading());
        QVERIFY(compared.wait(TIMEOUT));
        QVERIFY(!loader.isLoading());
        QCOMPARE(comparison->size(), 4);
        QCOMPARE(comparison->files().before.fileName, u"before"_s);
        QCOMPARE(comparison->files().after.fileName, u"after"_s);
        QCOMPARE(comparison->counts().added, 1);
        QCOMPARE(comparison->counts().removed, 1);
        QCOMPARE(comparison->counts().changed, 2);
        QCOMPARE(comparison->at(1).changes.constFirst().newValue().text, u"HARDCOVER"_s);
        QCOMPARE(comparison->singles()->product(comparison->indexInSingles(2)).name(), u"Becher"_s);
        comparison.reset();
    }
}

// The copy stays as long as it is needed, even if all others let go of it.
void tst_ComparisonLoader::comparesACopy()
{
    auto copy = std::make_shared<FileCopy>(u"c.xml"_s);
    copy->append(OLD_CATALOGUE, sizeof(OLD_CATALOGUE) - 1);
    copy->finish();
    ComparedFiles files { { u"before"_s, copy->fileName(), copy }, { u"after"_s, myFolder->add(NEW_CATALOGUE) } };
    copy.reset();
    ComparisonLoader loader;
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    loader.start(files);
    files = ComparedFiles();
    QVERIFY(compared.wait(TIMEOUT));
    QCOMPARE(compared.at(0).at(0).value<ComparisonPointer>()->size(), 4);
}

// Unlike a catalogue to look at, one to compare may be empty.
void tst_ComparisonLoader::emptyCatalogues()
{
    ComparisonLoader loader;
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    loader.start(files(myFolder->add("<products/>"), myFolder->add(manyProducts(3))));
    QVERIFY(compared.wait(TIMEOUT));
    QCOMPARE(compared.at(0).at(0).value<ComparisonPointer>()->counts().added, 3);
}

void tst_ComparisonLoader::reportsItsProgress()
{
    const QByteArray before = manyProducts(20000);
    ComparisonLoader loader;
    QSignalSpy progressed(&loader, &ComparisonLoader::progressed);
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    loader.start(files(myFolder->add(before), myFolder->add(QByteArray(before).replace("hardcover", "softcover"))));
    QVERIFY(compared.wait(TIMEOUT));
    QVERIFY(progressed.size() > 20); // also while the products are compared, one by one
    int last = -1;
    for (const QList<QVariant> &arguments : std::as_const(progressed)) {
        QVERIFY(arguments.at(0).toInt() > last);
        QVERIFY(arguments.at(0).toInt() <= last + 10);
        last = arguments.at(0).toInt();
    }
    QCOMPARE(last, 100);
    QCOMPARE(compared.at(0).at(0).value<ComparisonPointer>()->counts().changed, 20000);
}

void tst_ComparisonLoader::failsWhereAFileIsBroken_data()
{
    QTest::addColumn<bool>("isOld");

    QTest::newRow("the old one") << true;
    QTest::newRow("the new one") << false;
}

void tst_ComparisonLoader::failsWhereAFileIsBroken()
{
    QFETCH(bool, isOld);
    const QString whole = myFolder->add(manyProducts(20));
    const QString broken = myFolder->add(manyProducts(20).chopped(30));
    const LoadError error = isOld ? errorOf(broken, whole) : errorOf(whole, broken);
    QCOMPARE(error.fileName, isOld ? u"before"_s : u"after"_s);
    QVERIFY(error.position);
    QCOMPARE(error.position->line, 21);
    QCOMPARE(error.text, u"the file ends too early: <products>, which was opened in line 1, is not closed"_s);
}

void tst_ComparisonLoader::failsWithoutAFile()
{
    const LoadError error = errorOf(myFolder->add(manyProducts(1)), myFolder->path(u"missing.xml"_s));
    QCOMPARE(error.fileName, u"after"_s);
    QVERIFY(!error.position);
    QCOMPARE(error.text, u"cannot open the file: No such file or directory"_s);
}

// No program writes into it, so opening it would never end.
void tst_ComparisonLoader::failsWithAPipe()
{
    const QString pipe = myFolder->path(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString &fileName : { pipe, myFolder->path() })
        QCOMPARE(errorOf(fileName, myFolder->add(OLD_CATALOGUE)).text,
                 u"cannot open the file: it is no regular file"_s);
}

void tst_ComparisonLoader::cancels_data()
{
    QTest::addColumn<int>("percent");

    QTest::newRow("while the old one is read") << 1;
    QTest::newRow("while the new one is read") << 30;
    QTest::newRow("while products are compared") << 55;
}

void tst_ComparisonLoader::cancels()
{
    QFETCH(int, percent);
    const QByteArray before = manyProducts(MANY_CHANGES);
    ComparisonLoader loader;
    int last = 0;
    connect(&loader, &ComparisonLoader::progressed, this, [&](int now) {
        last = now;
        if (now >= percent)
            loader.cancel();
    });
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    QSignalSpy failed(&loader, &ComparisonLoader::failed);
    QSignalSpy cancelled(&loader, &ComparisonLoader::cancelled);
    loader.start(files(myFolder->add(before), myFolder->add(QByteArray(before).replace("hardcover", "softcover"))));
    QVERIFY(cancelled.wait(TIMEOUT));
    QVERIFY(!loader.isLoading());
    QCOMPARE(compared.size(), 0);
    QCOMPARE(failed.size(), 0);
    QVERIFY2(last < 100, qPrintable(QString::number(last)));
}

void tst_ComparisonLoader::givesUpForAnother()
{
    const QString many = myFolder->add(manyProducts(MANY));
    ComparisonLoader loader;
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    loader.start(files(many, many));
    loader.start(files(myFolder->add(OLD_CATALOGUE), myFolder->add(NEW_CATALOGUE)));
    QVERIFY(compared.wait(TIMEOUT));
    QCOMPARE(compared.size(), 1);
    QCOMPARE(compared.at(0).at(0).value<ComparisonPointer>()->size(), 4);
}

void tst_ComparisonLoader::givesUpInSilence()
{
    const QString many = myFolder->add(manyProducts(MANY));
    ComparisonLoader loader;
    QSignalSpy compared(&loader, &ComparisonLoader::compared);
    QSignalSpy cancelled(&loader, &ComparisonLoader::cancelled);
    loader.start(files(many, many));
    loader.giveUp();
    QVERIFY(!loader.isLoading());
    loader.start(files(myFolder->add(OLD_CATALOGUE), myFolder->add(NEW_CATALOGUE)));
    QVERIFY(compared.wait(TIMEOUT));
    QCOMPARE(compared.size(), 1);
    QCOMPARE(cancelled.size(), 0);
}

// The threads hold nothing of the loader when it is gone, and their files can be removed.
void tst_ComparisonLoader::endsWhileComparing()
{
    const QString many = myFolder->add(manyProducts(MANY));
    for (int milliseconds = 0; milliseconds < 20; milliseconds += 4) {
        ComparisonLoader loader;
        loader.start(files(many, many));
        QTest::qWait(milliseconds);
        QVERIFY(loader.isLoading());
    }
    QVERIFY(QFile::remove(many));
}

QTEST_MAIN(tst_ComparisonLoader)
#include "tst_ComparisonLoader.moc"
