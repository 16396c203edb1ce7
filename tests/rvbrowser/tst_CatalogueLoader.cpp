#include "ManyProducts.h"
#include "TestFolder.h"

#include <CatalogueLoader.h>
#include <FileCopy.h>

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int MANY = 100000; // so that there is time to give up
constexpr int TIMEOUT = 60000; // ms

}

/// The thread in which the window loads catalogues, without the window.
class tst_CatalogueLoader : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestFolder> myFolder;

private Q_SLOTS:
    void init();
    void cleanup();

    void loads();
    void opensTheFileOnce();
    void reportsItsProgress();
    void failsWhereTheFileIsBroken();
    void failsWithoutAFile();
    void failsWithAPipe();
    void cancels();
    void cancelsWhereNoProductIs();
    void cancelsNothing();
    void givesUpForAnother();
    void giveUpsAreSilent();
    void endsWhileLoading();
};

void tst_CatalogueLoader::init()
{
    myFolder = std::make_unique<TestFolder>();
}

void tst_CatalogueLoader::cleanup()
{
    myFolder.reset();
}

// This thread reads all that the other has made: every product and every finding.
void tst_CatalogueLoader::loads()
{
    const QString fileName = myFolder->add(manyProducts(300).replace("hardcover", "hardcovers"));
    CatalogueLoader loader;
    CataloguePointer loaded;
    connect(&loader, &CatalogueLoader::loaded, this, [&](const CataloguePointer &catalogue) { loaded = catalogue; });
    for (int turn = 0; turn < 3; ++turn) {
        loader.start(fileName);
        QVERIFY(loader.isLoading());
        QTRY_VERIFY_WITH_TIMEOUT(loaded, TIMEOUT);
        QVERIFY(!loader.isLoading());
        QCOMPARE(loaded->fileName(), fileName);
        QCOMPARE(loaded->size(), 300);
        for (int i = 0; i < loaded->size(); ++i) {
            QCOMPARE(loaded->at(i).type, RVProductType(u"T"_s + QString::number(i)));
            QCOMPARE(loaded->at(i).position.line, i + 2);
            QCOMPARE(loaded->product(i).articleId().toString(), QString::number(i + 1));
        }
        QCOMPARE(loaded->findings().size(), 300); // no cover is of the type "hardcovers"
        loaded.reset();
    }
    QTRY_VERIFY(loader.findChildren<QThread *>().isEmpty()); // none waits for the end of the loader
}

// So what the products say and what the findings say is the same, though the file may change.
void tst_CatalogueLoader::opensTheFileOnce()
{
    const QString fileName = myFolder->add(manyProducts(300).replace("hardcover", "hardcovers"));
    const int watch = inotify_init1(IN_NONBLOCK);
    QVERIFY(watch >= 0);
    QVERIFY(inotify_add_watch(watch, QFile::encodeName(fileName).constData(), IN_OPEN | IN_ACCESS | IN_CLOSE) >= 0);
    CatalogueLoader loader;
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    loader.start(fileName);
    QVERIFY(loaded.wait(TIMEOUT));
    QByteArray events(10 * sizeof(inotify_event), Qt::Uninitialized);
    const auto size = ::read(watch, events.data(), std::size_t(events.size()));
    ::close(watch);
    int opened = 0;
    for (qsizetype begin = 0; begin < size; begin += qsizetype(sizeof(inotify_event))) {
        inotify_event event;
        std::memcpy(&event, events.constData() + begin, sizeof event);
        opened += (event.mask & IN_OPEN) != 0 ? 1 : 0;
    }
    QCOMPARE(opened, 1);
    QCOMPARE(loaded.at(0).at(0).value<CataloguePointer>()->findings().size(), 300);
}

void tst_CatalogueLoader::reportsItsProgress()
{
    CatalogueLoader loader;
    QSignalSpy progressed(&loader, &CatalogueLoader::progressed);
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    loader.start(myFolder->add(manyProducts(MANY)));
    QVERIFY(loaded.wait(TIMEOUT));
    QVERIFY(progressed.size() > 2);
    int before = -1;
    for (const QList<QVariant> &arguments : std::as_const(progressed)) {
        QVERIFY(arguments.at(0).toInt() > before);
        before = arguments.at(0).toInt();
    }
    QCOMPARE(before, 100);
}

void tst_CatalogueLoader::failsWhereTheFileIsBroken()
{
    const QString fileName = myFolder->add(manyProducts(20).chopped(30));
    CatalogueLoader loader;
    LoadError error;
    connect(&loader, &CatalogueLoader::failed, this, [&](const LoadError &failure) { error = failure; });
    loader.start(fileName);
    QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), TIMEOUT);
    QCOMPARE(error.fileName, fileName);
    QVERIFY(error.position);
    QCOMPARE(error.position->line, 21);
    QCOMPARE(error.text, u"the file ends too early: <products>, which was opened in line 1, is not closed"_s);
}

void tst_CatalogueLoader::failsWithoutAFile()
{
    CatalogueLoader loader;
    LoadError error;
    connect(&loader, &CatalogueLoader::failed, this, [&](const LoadError &failure) { error = failure; });
    loader.start(myFolder->path(u"missing.xml"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), TIMEOUT);
    QVERIFY(!error.position);
    QCOMPARE(error.text, u"cannot open the file: No such file or directory"_s);
}

// No program writes into it, so opening it would never end.
void tst_CatalogueLoader::failsWithAPipe()
{
    const QString pipe = myFolder->path(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    CatalogueLoader loader;
    QStringList errors;
    connect(&loader, &CatalogueLoader::failed, this, [&](const LoadError &failure) { errors += failure.text; });
    for (const QString &fileName : { pipe, myFolder->path() }) {
        loader.start(fileName);
        QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), TIMEOUT);
    }
    const QString expected = u"cannot open the file: it is no regular file"_s;
    QCOMPARE(errors, QStringList({ expected, expected }));
}

void tst_CatalogueLoader::cancels()
{
    CatalogueLoader loader;
    QSignalSpy progressed(&loader, &CatalogueLoader::progressed);
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    QSignalSpy cancelled(&loader, &CatalogueLoader::cancelled);
    loader.start(myFolder->add(manyProducts(MANY)));
    QVERIFY(progressed.wait(TIMEOUT));
    loader.cancel();
    QVERIFY(cancelled.wait(TIMEOUT));
    QVERIFY(!loader.isLoading());
    QCOMPARE(loaded.size(), 0);
}

void tst_CatalogueLoader::cancelsWhereNoProductIs()
{
    const QByteArray content = "<products>" + QByteArray("<group name='g'/>\n").repeated(2000000) + "</products>";
    CatalogueLoader loader;
    QSignalSpy progressed(&loader, &CatalogueLoader::progressed);
    QSignalSpy failed(&loader, &CatalogueLoader::failed);
    QSignalSpy cancelled(&loader, &CatalogueLoader::cancelled);
    loader.start(myFolder->add(content));
    QVERIFY(progressed.wait(TIMEOUT));
    loader.cancel();
    QVERIFY(cancelled.wait(TIMEOUT));
    QCOMPARE(failed.size(), 0);
    QVERIFY(progressed.constLast().at(0).toInt() < 100); // not at the end of the file
}

void tst_CatalogueLoader::cancelsNothing()
{
    CatalogueLoader loader;
    QSignalSpy cancelled(&loader, &CatalogueLoader::cancelled);
    loader.cancel();
    QVERIFY(!loader.isLoading());
    QVERIFY(!cancelled.wait(20));
}

void tst_CatalogueLoader::givesUpForAnother()
{
    const QString small = myFolder->add(manyProducts(3));
    CatalogueLoader loader;
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    loader.start(myFolder->add(manyProducts(MANY)));
    loader.start(small);
    QVERIFY(loaded.wait(TIMEOUT));
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded.at(0).at(0).value<CataloguePointer>()->fileName(), small);
}

void tst_CatalogueLoader::giveUpsAreSilent()
{
    CatalogueLoader loader;
    QSignalSpy cancelled(&loader, &CatalogueLoader::cancelled);
    QSignalSpy failed(&loader, &CatalogueLoader::failed);
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    const QString big = myFolder->add(manyProducts(MANY));
    for (int i = 0; i < 10; ++i)
        loader.start(big);
    loader.start(myFolder->add(manyProducts(1)));
    QVERIFY(loaded.wait(TIMEOUT));
    QTest::qWait(100); // for the others to end
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(failed.size(), 0);
    QCOMPARE(cancelled.size(), 0);
}

// The threads hold nothing of the loader when it is gone, and their files can be removed.
void tst_CatalogueLoader::endsWhileLoading()
{
    const QString fileName = myFolder->add(manyProducts(MANY));
    for (int milliseconds = 0; milliseconds < 20; milliseconds += 4) {
        const auto copy = std::make_shared<FileCopy>(fileName);
        {
            CatalogueLoader loader;
            loader.start(fileName, copy);
            QTest::qWait(milliseconds);
            QVERIFY(loader.isLoading());
        }
        QVERIFY(QFileInfo(copy->fileName()).size() < QFileInfo(fileName).size()); // the rest is not waited for
    }
    QVERIFY(QFile::remove(fileName));
}

QTEST_MAIN(tst_CatalogueLoader)
#include "tst_CatalogueLoader.moc"
