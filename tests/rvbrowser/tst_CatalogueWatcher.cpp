#include "TestFolder.h"

#include <CatalogueWatcher.h>

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int TIMEOUT = 20000; // ms
constexpr int SILENCE = 600; // ms, in which a change would have been told of

}

class tst_CatalogueWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void changes_data();
    void changes();
    void severalChangesAreOne();
    void changedSinceItWasRead();
    void vanishesAndComesBack();
    void comesBackForAMoment();
    void isNotThereYet();
    void configurations();
    void otherFiles();
    void watchesAnother();
    void pipe();
    void knowsItsFile();

private:
    QString name() const { return myFolder->path(u"c.xml"_s); }
    void watch() { myWatcher->watch(name(), CatalogueStamp::of(name())); }

    std::unique_ptr<TestFolder> myFolder;
    std::unique_ptr<CatalogueWatcher> myWatcher;
    std::unique_ptr<QSignalSpy> myChanged;
    std::unique_ptr<QSignalSpy> myVanished;
};

void tst_CatalogueWatcher::init()
{
    myFolder = std::make_unique<TestFolder>();
    QVERIFY(myFolder->write(u"c.xml"_s, "1"));
    myWatcher = std::make_unique<CatalogueWatcher>();
    myChanged = std::make_unique<QSignalSpy>(myWatcher.get(), &CatalogueWatcher::changed);
    myVanished = std::make_unique<QSignalSpy>(myWatcher.get(), &CatalogueWatcher::vanished);
}

void tst_CatalogueWatcher::changes_data()
{
    QTest::addColumn<bool>("isReplaced");

    QTest::newRow("written to") << false;
    QTest::newRow("replaced") << true;
}

// More than once: a file that took the place of another one has to be watched as well.
void tst_CatalogueWatcher::changes()
{
    QFETCH(bool, isReplaced);
    watch();
    QByteArray content("1");
    for (int turn = 1; turn <= 3; ++turn) {
        content += '+';
        QVERIFY(isReplaced ? myFolder->replace(u"c.xml"_s, content) : myFolder->write(u"c.xml"_s, content));
        QVERIFY(myChanged->wait(TIMEOUT));
        QCOMPARE(myChanged->size(), turn);
    }
    QCOMPARE(myVanished->size(), 0);
}

void tst_CatalogueWatcher::severalChangesAreOne()
{
    watch();
    for (const QByteArray &content : { QByteArray("22"), QByteArray("333"), QByteArray("4444") })
        QVERIFY(myFolder->write(u"c.xml"_s, content));
    QVERIFY(myFolder->replace(u"c.xml"_s, "55555"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(!myChanged->wait(SILENCE));
    QCOMPARE(myChanged->size(), 1);
}

void tst_CatalogueWatcher::changedSinceItWasRead()
{
    const CatalogueStamp read = CatalogueStamp::of(name());
    QVERIFY(myFolder->write(u"c.xml"_s, "22"));
    myWatcher->watch(name(), read);
    QCOMPARE(myChanged->size(), 1);
}

void tst_CatalogueWatcher::vanishesAndComesBack()
{
    watch();
    for (int turn = 1; turn <= 2; ++turn) {
        QVERIFY(myFolder->remove(u"c.xml"_s));
        QVERIFY(myVanished->wait(TIMEOUT));
        QVERIFY(myFolder->write(u"other.xml"_s, "while it is gone"));
        QVERIFY(!myVanished->wait(SILENCE));
        QCOMPARE(myVanished->size(), turn);
        QCOMPARE(myChanged->size(), turn - 1);
        QVERIFY(myFolder->write(u"c.xml"_s, "1"));
        QVERIFY(myChanged->wait(TIMEOUT));
        QCOMPARE(myChanged->size(), turn);
    }
}

// Some programs remove a file before they write it again.
void tst_CatalogueWatcher::comesBackForAMoment()
{
    watch();
    QVERIFY(myFolder->remove(u"c.xml"_s));
    QVERIFY(myFolder->write(u"c.xml"_s, "22"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(myVanished->size(), 0);
}

void tst_CatalogueWatcher::isNotThereYet()
{
    QVERIFY(myFolder->remove(u"c.xml"_s));
    watch();
    QCOMPARE(myVanished->size(), 0);
    QVERIFY(myFolder->write(u"c.xml"_s, "1"));
    QVERIFY(myChanged->wait(TIMEOUT));
}

void tst_CatalogueWatcher::configurations()
{
    watch();
    QVERIFY(myFolder->write(u"rvcatalog.toml"_s, "[rules]\n"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(myFolder->write(u"rvcatalog.toml"_s, "[rules]\n\n"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(myFolder->replace(u"rvcatalog.toml"_s, "[rules]\n\n\n"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(myFolder->remove(u"rvcatalog.toml"_s));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(myVanished->size(), 0);
}

void tst_CatalogueWatcher::otherFiles()
{
    watch();
    QVERIFY(myFolder->write(u"c.xml~"_s, "1"));
    QVERIFY(myFolder->write(u"d.xml"_s, "1"));
    QVERIFY(!myChanged->wait(SILENCE));
    QCOMPARE(myVanished->size(), 0);
}

void tst_CatalogueWatcher::watchesAnother()
{
    const TestFolder other;
    QVERIFY(other.write(u"d.xml"_s, "1"));
    watch();
    myWatcher->watch(other.path(u"d.xml"_s), CatalogueStamp::of(other.path(u"d.xml"_s)));
    QVERIFY(myFolder->write(u"c.xml"_s, "22"));
    QVERIFY(!myChanged->wait(SILENCE));
    QVERIFY(other.write(u"d.xml"_s, "22"));
    QVERIFY(myChanged->wait(TIMEOUT));
}

// No program writes into it, so nothing may wait for that.
void tst_CatalogueWatcher::pipe()
{
    QVERIFY(myFolder->remove(u"c.xml"_s));
    QCOMPARE(mkfifo(QFile::encodeName(name()).constData(), 0600), 0);
    watch();
    QCOMPARE(myChanged->size(), 0);
    QCOMPARE(myVanished->size(), 0);
    QVERIFY(myFolder->replace(u"c.xml"_s, "22"));
    QVERIFY(myChanged->wait(TIMEOUT));
}

void tst_CatalogueWatcher::knowsItsFile()
{
    QCOMPARE(myWatcher->fileName(), QString());
    myWatcher->watch(QDir().relativeFilePath(name()), CatalogueStamp::of(name()));
    QCOMPARE(myWatcher->fileName(), name());
    QCOMPARE(myChanged->size(), 0);
}

QTEST_GUILESS_MAIN(tst_CatalogueWatcher)
#include "tst_CatalogueWatcher.moc"
