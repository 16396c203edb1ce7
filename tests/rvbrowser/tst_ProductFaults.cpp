#include <CatalogueLoader.h>
#include <ProductFaults.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_ProductFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void text_data();
    void text();
};

void tst_ProductFaults::text_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << QByteArray("article_id='1'") << QString();
    QTest::newRow("a warning is no fault") << QByteArray("article_id='1' price_class='nonsense'") << QString();
    QTest::newRow("one") << QByteArray("article_id='1' cover_type='hardcovr'")
                         << u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
    QTest::newRow("three") << QByteArray(
            "article_id='1' cover_type='hardcovr' page_binding='glu' paper_type='fotopapr'")
                           << u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?\n"
                              "\"glu\" is no keyword of page_binding; did you mean \"glue\"?\n"
                              "\"fotopapr\" is no keyword of paper_type; did you mean \"fotopaper\"?"_s;
    QTest::newRow("four") << QByteArray("article_id='1' cover_type='hardcovr' page_binding='glu' "
                                        "paper_type='fotopapr' orientation='portrai'")
                          << u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?\n"
                             "\"glu\" is no keyword of page_binding; did you mean \"glue\"?\n"
                             "\"fotopapr\" is no keyword of paper_type; did you mean \"fotopaper\"?\n"
                             "and 1 more, which the findings have"_s;
    QTest::newRow("more than three") << QByteArray("article_id='1' cover_type='hardcovr' page_binding='glu' "
                                                   "paper_type='fotopapr' orientation='portrai' "
                                                   "space_magnitude='600cm'")
                                     << u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?\n"
                                        "\"glu\" is no keyword of page_binding; did you mean \"glue\"?\n"
                                        "\"fotopapr\" is no keyword of paper_type; did you mean \"fotopaper\"?\n"
                                        "and 2 more, which the findings have"_s;
}

void tst_ProductFaults::text()
{
    QFETCH(QByteArray, attributes);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"c.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<p><product type='OTHER' article_id='nonsense'/><product type='X' " + attributes + "/></p>");
    file.close();
    CatalogueLoader loader;
    CataloguePointer catalogue;
    connect(&loader, &CatalogueLoader::loaded, this,
            [&catalogue](const CataloguePointer &loaded) { catalogue = loaded; });
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    loader.start(file.fileName());
    QVERIFY(loaded.wait(20000));
    QTEST(ProductFaults(*catalogue, 1).text(), "text");
}

QTEST_GUILESS_MAIN(tst_ProductFaults)
#include "tst_ProductFaults.moc"
