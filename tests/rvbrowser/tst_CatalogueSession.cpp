#include "ManyProducts.h"
#include "TestFolder.h"

#include <CatalogueSession.h>
#include <RVProductCheckerRegistry.h>

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int TIMEOUT = 180000; // ms
constexpr int MANY = 50000; // so that there is time to give up

/// A catalogue with these takes about a second to read, though it may have but 50,000 products.
QByteArray slowGroups()
{
    return QByteArray("<group name='g'/>\n").repeated(4000000);
}

}

class tst_CatalogueSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opens();
    void standsBehindTheServices();
    void refusesAnEmptyCatalogue();
    void keepsWhatWasLoaded();
    void reloadsNothing();
    void reloadsOnRequest();
    void reloadsWhatCouldNotBeRead();
    void reloadsAChangedFile();
    void reloadsAfterAFailure();
    void reloadsWithTheConfiguration();
    void vanishesAndComesBack();
    void mendsTheFirstFile();
    void cancels();
    void opensAnotherWhileLoading();
    void changesWhileOpenedAgain();
    void changesWhileLoadingAnother();
    void changesWhileLoadingABrokenOne();
    void endsWhileLoading();

private:
    QString path(const QString &name) const { return myFolder->path(name); }
    bool load(const QByteArray &content);
    void changeWhileLoading(const QByteArray &content);
    int pages() const { return CatalogueServices::pageCounts(u"A"_s).minPages(); }
    QList<RVCatalogueSeverity> severities() const;

    std::unique_ptr<TestFolder> myFolder;
    std::unique_ptr<CatalogueSession> mySession;
    std::unique_ptr<QSignalSpy> myStarted;
    std::unique_ptr<QSignalSpy> myEnded;
    std::unique_ptr<QSignalSpy> myChanged;
    std::unique_ptr<QSignalSpy> myFailed;
};

void tst_CatalogueSession::init()
{
    myFolder = std::make_unique<TestFolder>();
    mySession = std::make_unique<CatalogueSession>();
    myStarted = std::make_unique<QSignalSpy>(mySession.get(), &CatalogueSession::started);
    myEnded = std::make_unique<QSignalSpy>(mySession.get(), &CatalogueSession::ended);
    myChanged = std::make_unique<QSignalSpy>(mySession.get(), &CatalogueSession::catalogueChanged);
    myFailed = std::make_unique<QSignalSpy>(mySession.get(), &CatalogueSession::failed);
}

void tst_CatalogueSession::cleanup()
{
    mySession.reset();
}

/// Opens another file with this content, and changes the first one to four products meanwhile.
void tst_CatalogueSession::changeWhileLoading(const QByteArray &content)
{
    QVERIFY(myFolder->write(u"big.xml"_s, content));
    mySession->open(path(u"big.xml"_s));
    QVERIFY(myFolder->write(u"c.xml"_s, manyProducts(4)));
    QTest::qWait(400); // until it was noticed
    QVERIFY(mySession->isLoading());
    QCOMPARE(myStarted->size(), 2);
}

/// Opens a file with this content; true once it was loaded.
bool tst_CatalogueSession::load(const QByteArray &content)
{
    if (!myFolder->write(u"c.xml"_s, content))
        return false;
    mySession->open(path(u"c.xml"_s));
    return myChanged->wait(TIMEOUT);
}

QList<RVCatalogueSeverity> tst_CatalogueSession::severities() const
{
    QList<RVCatalogueSeverity> result;
    for (const RVCatalogueFinding &finding : mySession->catalogue()->findings())
        result += finding.severity();
    return result;
}

void tst_CatalogueSession::opens()
{
    QVERIFY(!mySession->catalogue());
    const auto hadEnded = std::make_shared<bool>(false);
    connect(mySession.get(), &CatalogueSession::catalogueChanged, this,
            [this, hadEnded] { *hadEnded = myEnded->size() == 1; });
    QVERIFY(myFolder->write(u"c.xml"_s, manyProducts(3)));
    mySession->open(path(u"c.xml"_s));
    QVERIFY(mySession->isLoading());
    QCOMPARE(myStarted->size(), 1);
    QCOMPARE(myStarted->at(0).at(0).toString(), path(u"c.xml"_s));
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(*hadEnded);
    QVERIFY(!mySession->isLoading());
    QCOMPARE(mySession->catalogue()->size(), 3);
    QCOMPARE(mySession->catalogue()->fileName(), path(u"c.xml"_s));
    QCOMPARE(myFailed->size(), 0);
}

void tst_CatalogueSession::standsBehindTheServices()
{
    QVERIFY(!CatalogueServices::isOffered(u"A"_s)); // nothing is open
    QVERIFY(load("<p><product type='A' article_id='1' pages='7'/></p>"));
    QCOMPARE(pages(), 7);
    QVERIFY(CatalogueServices::isOffered(u"A"_s));
    QVERIFY(!CatalogueServices::isOffered(u"B"_s));
    QVERIFY(load("<p><product type='A' article_id='1'><forms><form key='k' value='v'/></forms></product></p>"));
    const auto isValidBoxStyle = [](const RVProductType &type, const QString &value) {
        return RVProductCheckerRegistry::instance()->isValidBoxStyle(type, RVArticleVariants(u"k"_s, value), 1);
    };
    QVERIFY(isValidBoxStyle(u"A"_s, u"v"_s));
    QVERIFY(!isValidBoxStyle(u"A"_s, u"x"_s));
    QVERIFY(!isValidBoxStyle(u"B"_s, u"v"_s));
    mySession.reset();
    QVERIFY(!CatalogueServices::pageCounts(u"A"_s).isValid());
}

void tst_CatalogueSession::refusesAnEmptyCatalogue()
{
    QVERIFY(myFolder->write(u"empty.xml"_s, "<p/>"));
    mySession->open(path(u"empty.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    const auto error = myFailed->at(0).at(0).value<LoadError>();
    QCOMPARE(error.fileName, path(u"empty.xml"_s));
    QCOMPARE(error.text, u"there is no product in this file"_s);
    QVERIFY(!error.position);
    QVERIFY(!mySession->catalogue());
}

void tst_CatalogueSession::keepsWhatWasLoaded()
{
    QVERIFY(load("<p><product type='A' article_id='1' pages='7'/></p>"));
    QVERIFY(myFolder->write(u"broken.xml"_s, "<p><product type='A' article_id='1' pages='8'/>"));
    mySession->open(path(u"broken.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    const auto error = myFailed->at(0).at(0).value<LoadError>();
    QCOMPARE(error.fileName, path(u"broken.xml"_s));
    QVERIFY(error.position);
    QCOMPARE(myEnded->size(), 2);
    QCOMPARE(myChanged->size(), 1);
    QCOMPARE(mySession->catalogue()->fileName(), path(u"c.xml"_s));
    QCOMPARE(pages(), 7);
}

void tst_CatalogueSession::reloadsNothing()
{
    mySession->reload();
    QVERIFY(!mySession->isLoading());
    QCOMPARE(myStarted->size(), 0);
}

void tst_CatalogueSession::reloadsOnRequest()
{
    QVERIFY(load(manyProducts(3)));
    mySession->reload();
    QCOMPARE(myStarted->constLast().at(0).toString(), path(u"c.xml"_s));
    QVERIFY(myChanged->wait(TIMEOUT));
    // The shown file is meant, and not the one that could not be opened.
    mySession->open(path(u"missing.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    mySession->reload();
    QCOMPARE(myStarted->constLast().at(0).toString(), path(u"c.xml"_s));
}

void tst_CatalogueSession::reloadsWhatCouldNotBeRead()
{
    mySession->open(path(u"missing.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    mySession->reload();
    QCOMPARE(myStarted->size(), 2);
    QCOMPARE(myStarted->constLast().at(0).toString(), path(u"missing.xml"_s));
}

// The page counts come from the manager's cache, which must have been emptied.
void tst_CatalogueSession::reloadsAChangedFile()
{
    QVERIFY(load("<p><product type='A' article_id='1' pages='7'/></p>"));
    for (const QByteArray &count : { QByteArray("10"), QByteArray("111") }) {
        QVERIFY(myFolder->replace(u"c.xml"_s, "<p><product type='A' article_id='1' pages='" + count + "'/></p>"));
        QVERIFY(myChanged->wait(TIMEOUT));
        QCOMPARE(pages(), count.toInt());
    }
}

// The catalogue that is shown is followed, though another file could not be opened.
void tst_CatalogueSession::reloadsAfterAFailure()
{
    QVERIFY(load(manyProducts(3)));
    mySession->open(path(u"missing.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    QVERIFY(myFolder->write(u"c.xml"_s, manyProducts(4)));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(mySession->catalogue()->size(), 4);
}

void tst_CatalogueSession::reloadsWithTheConfiguration()
{
    QVERIFY(load("<products><product type='DUN9' article_id='1' page_price_class='TAS1'/></products>"));
    QCOMPARE(severities(), QList { RVCatalogueSeverity::Warning });
    QVERIFY(myFolder->write(u"rvcatalog.json"_s, R"({"rules": {"price-class-unknown": "error"}})")); // there is one now
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(severities(), QList { RVCatalogueSeverity::Error });
    QVERIFY(myFolder->write(u"rvcatalog.json"_s, R"({"rules": {"price-class-unknown": "note"}})"));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(severities(), QList { RVCatalogueSeverity::Note });
    QVERIFY(myFolder->remove(u"rvcatalog.json"_s));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(severities(), QList { RVCatalogueSeverity::Warning });
}

void tst_CatalogueSession::vanishesAndComesBack()
{
    QVERIFY(load(manyProducts(3)));
    QSignalSpy vanished(mySession.get(), &CatalogueSession::vanished);
    QVERIFY(myFolder->remove(u"c.xml"_s));
    QVERIFY(vanished.wait(TIMEOUT));
    QCOMPARE(vanished.at(0).at(0).toString(), path(u"c.xml"_s));
    QCOMPARE(mySession->catalogue()->size(), 3);
    QVERIFY(myFolder->write(u"c.xml"_s, manyProducts(3)));
    QVERIFY(myChanged->wait(TIMEOUT));
}

// Before anything was loaded; the file is watched until it is mended.
void tst_CatalogueSession::mendsTheFirstFile()
{
    mySession->open(path(u"c.xml"_s));
    QVERIFY(myFailed->wait(TIMEOUT));
    for (const QByteArray &broken : { QByteArray(), QByteArray("<products>") }) {
        QVERIFY(myFolder->write(u"c.xml"_s, broken));
        QVERIFY(myFailed->wait(TIMEOUT));
    }
    QVERIFY(myFolder->write(u"c.xml"_s, manyProducts(3)));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(mySession->catalogue()->size(), 3);
}

void tst_CatalogueSession::cancels()
{
    QVERIFY(myFolder->write(u"big.xml"_s, manyProducts(MANY)));
    QSignalSpy progressed(mySession.get(), &CatalogueSession::progressed);
    mySession->open(path(u"big.xml"_s));
    QVERIFY(progressed.wait(TIMEOUT));
    mySession->cancel();
    QVERIFY(myEnded->wait(TIMEOUT));
    QVERIFY(!mySession->isLoading());
    QVERIFY(!mySession->catalogue());
    QCOMPARE(myFailed->size(), 0);
}

// A file that was given up is told of no more.
void tst_CatalogueSession::opensAnotherWhileLoading()
{
    QVERIFY(myFolder->write(u"big.xml"_s, manyProducts(MANY)));
    mySession->open(path(u"big.xml"_s));
    QVERIFY(load(manyProducts(3)));
    QVERIFY(!myEnded->wait(200));
    QCOMPARE(myEnded->size(), 1);
    QCOMPARE(mySession->catalogue()->size(), 3);
}

// The changes since opening are those since the last time.
void tst_CatalogueSession::changesWhileOpenedAgain()
{
    QVERIFY(load(manyProducts(3)));
    const std::shared_ptr<const FileCopy> first = mySession->original();
    mySession->open(path(u"c.xml"_s));
    mySession->reload();
    QVERIFY(myChanged->wait(TIMEOUT));
    QVERIFY(mySession->original() != first);
    const std::shared_ptr<const FileCopy> second = mySession->original();
    mySession->reload();
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(mySession->original(), second);
}

// The file that is being opened goes on; the change is not forgotten when nothing comes of it.
void tst_CatalogueSession::changesWhileLoadingAnother()
{
    QVERIFY(load(manyProducts(3)));
    changeWhileLoading(manyProducts(MANY).replace("</products>", slowGroups() + "</products>"));
    mySession->cancel();
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(mySession->catalogue()->size(), 4);

    QVERIFY(myFolder->write(u"big.xml"_s, manyProducts(MANY)));
    mySession->open(path(u"big.xml"_s));
    mySession->reload(); // starts over with the same file
    QCOMPARE(myStarted->constLast().at(0).toString(), path(u"big.xml"_s));
    QVERIFY(myChanged->wait(TIMEOUT));
    QCOMPARE(mySession->catalogue()->size(), MANY);
}

void tst_CatalogueSession::changesWhileLoadingABrokenOne()
{
    QVERIFY(load(manyProducts(3)));
    changeWhileLoading(manyProducts(MANY).replace("</products>", slowGroups()));
    QVERIFY(myFailed->wait(TIMEOUT));
    QTRY_COMPARE_WITH_TIMEOUT(mySession->catalogue()->size(), 4, TIMEOUT);
}

void tst_CatalogueSession::endsWhileLoading()
{
    QVERIFY(myFolder->write(u"big.xml"_s, manyProducts(MANY)));
    mySession->open(path(u"big.xml"_s));
    QVERIFY(mySession->isLoading());
    mySession.reset();
    QVERIFY(myFolder->remove(u"big.xml"_s));
}

QTEST_GUILESS_MAIN(tst_CatalogueSession)
#include "tst_CatalogueSession.moc"
