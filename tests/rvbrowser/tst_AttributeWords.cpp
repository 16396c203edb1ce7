#include "ReadProduct.h"

#include <AttributeWords.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVCatalogueProduct read(const QByteArray &attributes)
{
    return readProduct("<product " + attributes + "/>");
}

}

/// Without a translation, so the library's names are German and the window's are English.
class tst_AttributeWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void everyKeywordHasWords();
};

void tst_AttributeWords::texts_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("found"); // by a search

    QTest::newRow("name and keyword") << u"page_binding"_s << QByteArray("page_binding='glue'")
                                      << u"klassische Buchbindung (glue)"_s
                                      << QStringList { u"glue"_s, u"klassische Buchbindung"_s };
    QTest::newRow("two values") << u"cover_type"_s << QByteArray("cover_type='hardcover,softcover'")
                                << u"Hardcover (HARDCOVER), Softcover (SOFTCOVER)"_s
                                << QStringList { u"HARDCOVER"_s, u"SOFTCOVER"_s, u"Hardcover"_s, u"Softcover"_s };
    QTest::newRow("alias") << u"space_magnitude"_s << QByteArray("space_magnitude='A4'") << u"A4 (600cm2)"_s
                           << QStringList { u"600cm2"_s, u"a4"_s, u"A4"_s };
    QTest::newRow("orientation in words of the window")
            << u"orientation"_s << QByteArray("orientation='portrait_slim'") << u"slim portrait (portrait_slim)"_s
            << QStringList { u"portrait_slim"_s, u"slim portrait"_s };
    QTest::newRow("name like its keyword") << u"orientation"_s << QByteArray("orientation='square'") << u"square"_s
                                           << QStringList { u"square"_s, u"quadratic"_s };
    QTest::newRow("attribute is missing")
            << u"cover_type"_s << QByteArray("orientation='square'") << QString() << QStringList();
}

void tst_AttributeWords::texts()
{
    const AttributeWords words;
    QFETCH(QString, attribute);
    QFETCH(QByteArray, product);
    QFETCH(QStringList, found);
    const RVCatalogueAttribute asked = RVCatalogueAttribute::find(attribute);
    QTEST(words.text(asked, read(product)), "text");
    const QStringList searched = words.searchTexts(asked, read(product));
    for (const QString &word : found)
        QVERIFY2(searched.contains(word), qPrintable(word + u" is missing in "_s + searched.join(u", "_s)));
    QCOMPARE(searched.isEmpty(), found.isEmpty());
}

// So nothing that the library has a name for is shown as a keyword alone.
void tst_AttributeWords::everyKeywordHasWords()
{
    const AttributeWords words;
    int named = 0;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts()) {
        for (const RVCatalogueAttributeValue &value : attribute.values()) {
            const RVCatalogueProduct product = read(attribute.name().latin1() + QByteArray("='")
                                                    + value.keyword.toUtf8() + '\'');
            const QStringList keywords = attribute.decode(product).keywords;
            if (keywords != QStringList { value.keyword } || value.displayName.isEmpty())
                continue;
            ++named;
            const QString text = words.text(attribute, product);
            QVERIFY2(text == value.keyword || text.endsWith(u" ("_s + value.keyword + u')'), qPrintable(text));
            QVERIFY2(words.searchTexts(attribute, product).contains(value.keyword), qPrintable(text));
        }
    }
    QVERIFY2(named > 20, qPrintable(QString::number(named)));
}

QTEST_GUILESS_MAIN(tst_AttributeWords)
#include "tst_AttributeWords.moc"
