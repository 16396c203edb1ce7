#include "CheckedCatalogue.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray product(const QByteArray &attributes)
{
    return "<p><product type='A' article_id='1' " + attributes + "/></p>";
}

/// A product with a barcode on page 100.
QByteArray withBarcode(const QByteArray &attributes)
{
    return "<p><product type='A' article_id='1' " + attributes
            + "><barcodes><barcode position_x='12' position_y='290' width='38' height='10' pageNr='100'/></barcodes>"
              "</product></p>";
}

}

class tst_RVPageCountCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void otherPlace();
};

void tst_RVPageCountCheck::steps_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QStringList forgotten = { u"<product>: max-pages-missing"_s };
    QTest::newRow("no highest count") << product("pages='26' page_step='4'") << forgotten;
    QTest::newRow("no count at all") << product("page_step='4'") << forgotten;
    QTest::newRow("of several pieces") << product("pages='4' pieces='10' page_step='2'") << forgotten;
    QTest::newRow("highest count is the lowest") << product("pages='26' max_pages='26' page_step='4'") << QStringList();
    QTest::newRow("step of 0") << product("pages='26' page_step='0'") << QStringList();
    QTest::newRow("box of photos") << product("pages='10' page_step='1' photo_box='true'") << QStringList();
    QTest::newRow("highest count is misspelt") << product("pages='26' max_page='154' page_step='4'")
                                               << QStringList { u"max_page='154': attribute-misspelt"_s };
    QTest::newRow("step is no number") << product("pages='26' page_step='x'")
                                       << QStringList { u"page_step='x': number-invalid"_s };
    QTest::newRow("negative step") << product("pages='26' page_step='-4'")
                                   << QStringList { u"page_step='-4': page-counts-invalid"_s };
    QTest::newRow("no highest count, and a barcode behind the lowest")
            << withBarcode("pages='26' page_step='4'") << forgotten;

    QTest::newRow("1000 counts") << product("pages='1' max_pages='1000' page_step='1'") << QStringList();
    QTest::newRow("1001 counts") << product("pages='1' max_pages='1001' page_step='1'")
                                 << QStringList { u"max_pages='1001': page-counts-excessive"_s };
    QTest::newRow("1001 photos") << product("pages='1' max_pages='1001' photo_box='1'")
                                 << QStringList { u"max_pages='1001': page-counts-excessive"_s };
    QTest::newRow("large steps") << product("pages='100' max_pages='100000' page_step='100'") << QStringList();
    QTest::newRow("many pages, one count") << product("pages='100000'") << QStringList();
    QTest::newRow("every number") << product("pages='1' max_pages='2147483647' page_step='1'")
                                  << QStringList { u"max_pages='2147483647': page-counts-excessive"_s };
    QTest::newRow("one digit too many, and steps that miss the highest")
            << product("pages='26' max_pages='15400' page_step='4'")
            << QStringList { u"max_pages='15400': page-counts-excessive"_s };
    QTest::newRow("reversed") << product("pages='15400' max_pages='26' page_step='4'")
                              << QStringList { u"max_pages='26': page-counts-reversed"_s };
}

void tst_RVPageCountCheck::steps()
{
    QFETCH(QByteArray, file);
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

void tst_RVPageCountCheck::otherPlace()
{
    const CheckedCatalogue catalogue(product("pages='26' page_step='4'"));
    QCOMPARE(catalogue.findings().size(), 1);
    const QList<RVRelatedPlace> places = catalogue.findings().first().relatedPlaces();
    QCOMPARE(places.size(), 1);
    QCOMPARE(catalogue.textAt(places.first().range), u"page_step='4'"_s);
    QCOMPARE(places.first().text, u"the step"_s);
}

QTEST_MAIN(tst_RVPageCountCheck)
#include "tst_RVPageCountCheck.moc"
