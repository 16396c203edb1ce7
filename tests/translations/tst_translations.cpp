#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueCheck.h>
#include <RVCatalogue/RVCatalogueFinding.h>
#include <RVCatalogue/RVCatalogueProduct.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVCatalogueRule.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVDlpType.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>
#include <RVProductBase/RVPaperType.h>

#include <QBuffer>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

class tst_translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void english();
    void germanPluralForms_data();
    void germanPluralForms();
    void germanCatalogues();
};

namespace {

QString file(const QString &language)
{
    return u"" QM_FOLDER "/rvproductbase_%1.qm"_s.arg(language);
}

}

// First of all, as the tables of names are built once.
void tst_translations::english()
{
    QTranslator translator;
    QVERIFY(translator.load(file(u"en"_s)));
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(RVPaperType(INDIGO_GLOSSY).humanReadableName(), u"Digital print, high gloss"_s);
    QCOMPARE(RVPaperType::translatedPaperTypes().value(u"Digitaldruck Glaenzend"_s), u"Digital print, high gloss"_s);
    QCOMPARE(RVPaperType::createFromHumanReadable(u"Premiumpapier"_s).value(), PREMIUM);
    QCOMPARE(RVPaperType::createFromHumanReadable(u"Premium paper"_s).value(), PREMIUM);
    QCOMPARE(RVPaperType().humanReadableName(), u"unknown paper type"_s);
    QCOMPARE(RVOrientation(ORIENTATION_SQUARE).humanReadable(), u"Square "_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_CARD).toHumanReadable(), u"Greeting cards"_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_BOOK).morePagesText(1), u"1 page"_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_BOOK).morePagesText(2), u"2 pages"_s);
    QCOMPARE(RVDlpType(DLP_TYPE_BACKGROUND).visibleName(1), u"1 background"_s);
    const RVPageCountOrganizationListModel model(true);
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole).toString(), u"0 photos"_s);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(RVPaperType(INDIGO_GLOSSY).humanReadableName(), u"Digital print, high gloss"_s); // not built again
    QCOMPARE(RVOrientation(ORIENTATION_SQUARE).humanReadable(), u"quadratische "_s);
}

void tst_translations::germanPluralForms_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("two");
    QTest::newRow("background") << 1 << u"1 Hintergrund"_s << u"2 Hintergründe"_s;
    QTest::newRow("style") << 2 << u"1 Stil"_s << u"2 Stile"_s;
    QTest::newRow("design") << 4 << u"1 Design"_s << u"2 Designs"_s;
    QTest::newRow("clipart") << 8 << u"1 Clipart"_s << u"2 Cliparts"_s;
    QTest::newRow("mask") << 16 << u"1 Maske oder Rahmen"_s << u"2 Masken & Rahmen"_s;
    QTest::newRow("book template") << 64 << u"1 Buchvorlage"_s << u"2 Buchvorlagen"_s;
    QTest::newRow("template") << 66 << u"1 Vorlage"_s << u"2 Vorlagen"_s;
}

void tst_translations::germanPluralForms()
{
    QFETCH(int, type);
    QTranslator translator;
    QVERIFY(translator.load(file(u"de"_s)));
    QCoreApplication::installTranslator(&translator);
    const RVDlpType dlpType { RVDlpTypeEnum(type) };
    QTEST(dlpType.visibleName(1), "one");
    QTEST(dlpType.visibleName(2), "two");
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_BOOK).morePagesText(1), u"1 Seite"_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_BOOK).morePagesText(0), u"0 Seiten"_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_PICTURE_BOX).morePagesText(1), u"1 Foto"_s);
    QCOMPARE(RVArticleClass(ARTICLE_CLASS_PICTURE_BOX).morePagesText(3), u"3 Fotos"_s);
    QCoreApplication::removeTranslator(&translator);
}

// Messages about catalogues are English without the translator.
void tst_translations::germanCatalogues()
{
    QTranslator translator;
    QVERIFY(translator.load(u"" QM_FOLDER "/rvcatalogue_de.qm"_s));
    QCoreApplication::installTranslator(&translator);
    QByteArray text = "<products><product article_id='7'/>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    const QList<RVCatalogueFinding> findings = reader.next().findings();
    QVERIFY(reader.atEnd());
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.first().text(),
             u"das Produkt hat keinen Typ; bitte den Code angeben, den Projekte dafür haben"_s);
    QCOMPARE(findings.first().rule().reason(),
             u"Ein Produkt ohne Typ lässt sich nicht bestellen, weil Projekte ihr Produkt über den Typ "
             "finden; bitte ihm einen Typ geben."_s);
    QCOMPARE(reader.errorString(),
             u"die Datei endet zu früh: <products>, in Zeile 1 geöffnet, ist nicht geschlossen"_s);
    QCOMPARE(RVCatalogueAttribute::find("cover_type").label(), u"Einband"_s);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(RVCatalogueAttribute::find("cover_type").label(), u"Cover"_s);
}

QTEST_GUILESS_MAIN(tst_translations)
#include "tst_translations.moc"
