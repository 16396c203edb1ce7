#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueTranslation.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVTranslation.h>

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

/// Counts what a change of language tells the application.
class LanguageChanges : public QObject
{
public:
    LanguageChanges() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        myCount += event->type() == QEvent::LanguageChange;
        return false;
    }
    int count() const { return myCount; }

private:
    int myCount = 0;
};

class tst_RVTranslation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void folders();
    void languages_data();
    void languages();
    void changes();
    void remove();
    void catalogues();
    void otherApplication();
    void tellsTheApplication();

private:
    static QString pages(int count) { return RVArticleClass(ARTICLE_CLASS_BOOK).morePagesText(count); }

    QTemporaryDir myData;
    int myArgumentCount = 0;
    std::unique_ptr<QCoreApplication> myApplication;
};

void tst_RVTranslation::initTestCase()
{
    QVERIFY(!RVTranslation::install(QLocale(QLocale::German))); // there is no application yet
    RVTranslation::remove();
    for (const QString &library : { u"RVProductBase"_s, u"RVCatalogue"_s }) {
        const QString folder = myData.filePath(library + u"/translations"_s);
        QVERIFY(QDir().mkpath(folder));
        const QStringList files = QDir(u"" QM_FOLDER ""_s).entryList({ library.toLower() + u"_*.qm"_s });
        QVERIFY(!files.isEmpty());
        for (const QString &file : files)
            QVERIFY(QFile::copy(u"" QM_FOLDER "/"_s + file, folder + u'/' + file));
    }
    qputenv("XDG_DATA_HOME", QFile::encodeName(myData.path()));
    myApplication = std::make_unique<QCoreApplication>(myArgumentCount, nullptr);
}

void tst_RVTranslation::folders()
{
    QVERIFY(RVTranslation::folders().contains(myData.filePath(u"RVProductBase/translations"_s)));
    QVERIFY(RVCatalogueTranslation::folders().contains(myData.filePath(u"RVCatalogue/translations"_s)));
    QVERIFY(RVTranslation::folders().constFirst().endsWith(u"/libs/RVProductBase"_s)); // that of the library
}

void tst_RVTranslation::languages_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("two");
    QTest::newRow("source texts") << QLocale(QLocale::C) << false << u"1 Seiten"_s << u"2 Seiten"_s;
    QTest::newRow("no file") << QLocale(QLocale::French) << false << u"1 Seiten"_s << u"2 Seiten"_s;
    QTest::newRow("German") << QLocale(QLocale::German) << true << u"1 Seite"_s << u"2 Seiten"_s;
    QTest::newRow("Austria") << QLocale(QLocale::German, QLocale::Austria) << true << u"1 Seite"_s << u"2 Seiten"_s;
    QTest::newRow("English") << QLocale(QLocale::English) << true << u"1 page"_s << u"2 pages"_s;
}

void tst_RVTranslation::languages()
{
    QFETCH(QLocale, locale);
    QFETCH(bool, isFound);
    RVTranslation::remove();
    QCOMPARE(RVTranslation::install(locale), isFound);
    QTEST(pages(1), "one");
    QTEST(pages(2), "two");
}

void tst_RVTranslation::changes()
{
    QVERIFY(RVTranslation::install(QLocale(QLocale::English)));
    QVERIFY(RVTranslation::install(QLocale(QLocale::German)));
    QCOMPARE(pages(1), u"1 Seite"_s);
    QVERIFY(!RVTranslation::install(QLocale(QLocale::French)));
    QCOMPARE(pages(1), u"1 Seite"_s);
    QCOMPARE(myApplication->findChildren<QTranslator *>().size(), 1);
}

void tst_RVTranslation::remove()
{
    QVERIFY(RVTranslation::install(QLocale(QLocale::German)));
    RVTranslation::remove();
    QCOMPARE(pages(1), u"1 Seiten"_s);
    RVTranslation::remove();
    QCOMPARE(myApplication->findChildren<QTranslator *>().size(), 0);
}

void tst_RVTranslation::catalogues()
{
    const auto label = [] { return RVCatalogueAttribute::find("cover_type").label(); };
    QVERIFY(RVTranslation::install(QLocale(QLocale::English)));
    QVERIFY(RVCatalogueTranslation::install(QLocale(QLocale::German)));
    QCOMPARE(label(), u"Einband"_s);
    QCOMPARE(pages(1), u"1 page"_s);
    QVERIFY(!RVCatalogueTranslation::install(QLocale(QLocale::English)));
    RVCatalogueTranslation::remove();
    QCOMPARE(label(), u"Cover"_s);
}

void tst_RVTranslation::otherApplication()
{
    QVERIFY(RVTranslation::install(QLocale(QLocale::English)));
    myApplication.reset();
    myApplication = std::make_unique<QCoreApplication>(myArgumentCount, nullptr);
    QVERIFY(RVTranslation::install(QLocale(QLocale::German)));
    QCOMPARE(pages(1), u"1 Seite"_s);
}

void tst_RVTranslation::tellsTheApplication()
{
    const LanguageChanges changes;
    QVERIFY(RVTranslation::install(QLocale(QLocale::English)));
    QVERIFY(changes.count() >= 1);
}

// It makes its applications itself.
QTEST_APPLESS_MAIN(tst_RVTranslation)
#include "tst_RVTranslation.moc"
