#include <Language.h>

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList texts()
{
    return { QCoreApplication::translate("MainWindow", "&Open…"),
             QCoreApplication::translate("RVCatalogueReader", "the file is empty"),
             QCoreApplication::translate("QObject", "RAVO FOTOBUCH"),
             QCoreApplication::translate("ProductList", "%n product(s)", nullptr, 2),
             QCoreApplication::translate("SpinePlot", "largest font size in pt") };
}

const QStringList SOURCES { u"&Open…"_s, u"the file is empty"_s, u"RAVO FOTOBUCH"_s, u"2 product(s)"_s,
                            u"largest font size in pt"_s };
const QStringList GERMAN { u"Ö&ffnen …"_s, u"die Datei ist leer"_s, u"RAVO FOTOBUCH"_s, u"2 Produkte"_s,
                           u"größte Schrift in pt"_s };
const QStringList ENGLISH { u"&Open…"_s, u"the file is empty"_s, u"RAVO PHOTO BOOK"_s, u"2 products"_s,
                            u"largest font size in pt"_s };

}

class tst_Language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void speaks_data();
    void speaks();
};

void tst_Language::speaks_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("spoken");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("German") << u"de_DE"_s << u"de_DE"_s << GERMAN;
    QTest::newRow("German of Austria") << u"de_AT"_s << u"de_AT"_s << GERMAN;
    QTest::newRow("English") << u"en_US"_s << u"en_US"_s << ENGLISH;
    QTest::newRow("British English") << u"en_GB"_s << u"en_GB"_s << ENGLISH;
    QTest::newRow("French") << u"fr_FR"_s << u"en_US"_s << ENGLISH;
    QTest::newRow("none") << u"C"_s << u"en_US"_s << ENGLISH;
}

void tst_Language::speaks()
{
    QFETCH(QString, asked);
    {
        Language language;
        language.speak(asked == "C"_L1 ? QLocale::c() : QLocale(asked));
        QTEST(QLocale().name(), "spoken");
        QTEST(texts(), "texts");
    }
    QCOMPARE(texts(), SOURCES); // as long as it lives
}

QTEST_GUILESS_MAIN(tst_Language)
#include "tst_Language.moc"
