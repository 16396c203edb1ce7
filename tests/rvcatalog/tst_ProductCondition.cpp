#include <ProductCondition.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVCatalogueProduct product(const QByteArray &attributes)
{
    QByteArray file = "<p><family name='Books'><inner name='a/b'><product " + attributes + "/></inner></family></p>";
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return RVCatalogueReader(&buffer).next();
}

}

class tst_ProductCondition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isMet_data();
    void isMet();
    void problems_data();
    void problems();
    void attributeNames();
};

void tst_ProductCondition::isMet_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("isMet");

    const auto row = [](const char *name, const char *attributes, const char *condition, bool isMet) {
        QTest::newRow(name) << QByteArray(attributes) << QString::fromUtf8(condition) << isMet;
    };
    row("keyword", "cover_type='hardcover'", "cover_type=HARDCOVER", true);
    row("alias in the catalogue", "cover_type='hard'", "cover_type=HARDCOVER", true);
    row("alias in the condition", "cover_type='HARDCOVER'", "cover_type=hard", true);
    row("letter case", "cover_type='HARDCOVER'", "cover_type=HardCover", true);
    row("other keyword", "cover_type='SOFTCOVER'", "cover_type=HARDCOVER", false);
    row("no keyword", "", "cover_type=HARDCOVER", false);
    row("not the keyword", "cover_type='SOFTCOVER'", "cover_type!=HARDCOVER", true);
    row("not the keyword it has", "cover_type='hard'", "cover_type!=HARDCOVER", false);
    row("not a keyword, and none", "", "cover_type!=HARDCOVER", true);
    row("one of two bits", "orientation='portrait,square'", "orientation=square", true);
    row("both bits", "orientation='portrait,square'", "orientation=square,portrait", true);
    row("a bit that is missing", "orientation='portrait'", "orientation=square,portrait", false);
    row("keyword of nothing", "", "page_binding=unknown", true);
    row("keyword of nothing, and something", "page_binding='glue'", "page_binding=unknown", false);
    row("without the attribute", "", "page_binding=", true);
    row("with the attribute", "page_binding='glue'", "page_binding=", false);
    row("with any value", "page_binding='glue'", "page_binding!=", true);
    row("blanks", "cover_type='hard'", " cover_type = HARDCOVER ", true);

    row("type", "type='DUN9_30'", "type=DUN9", true);
    row("other type", "type='DUN9'", "type=DUN", false);
    row("types", "type='DUN9'", "type=DUN*", true);
    row("one letter", "type='DUN9'", "type=DUN?", true);
    row("one of several letters", "type='DUN2'", "type=DUN[1-3]", true);
    row("none of several letters", "type='DUN9'", "type=DUN[1-3]", false);
    row("not these types", "type='DUN9'", "type!=VIR*", true);
    row("name in other letter case", "name='Groß und Klein'", "name=groß*", true);
    row("name with signs of paths", "name='10 / 15'", "name=10*15", true);
    row("name with signs of expressions", "name='a+b (c)'", "name=a+b (*)", true);
    row("no name", "", "name=", true);
    row("some name", "name='x'", "name=", false);
    row("outer family", "", "family=books", true);
    row("inner family", "", "family=a/*", true);
    row("other family", "", "family=cards", false);
    row("in no such family", "", "family!=books", false);
    row("price class", "price_class='KUR2'", "price_class=KUR2", true);
    row("price class of pages", "page_price_class='KEMI62'", "page_price_class=kemi*", true);
    row("no price class", "", "price_class=*?", false);

    row("article id", "article_id='17'", "article_id=17", true);
    row("article id as a number", "article_id='17'", "article_id=017", true);
    row("other article id", "article_id='170'", "article_id=17", false);
    row("no article id", "", "article_id=", true);
    row("no article id, and not this", "", "article_id!=17", true);
    row("shipping group 0", "shipping_group='0'", "shipping_group=0", true);
    row("fewer pages", "pages='26'", "pages<27", true);
    row("not fewer pages", "pages='26'", "pages<26", false);
    row("at most", "pages='26'", "pages<=26", true);
    row("more pages", "pages='26' max_pages='154'", "max_pages>153", true);
    row("not more pages", "pages='26' max_pages='154'", "max_pages>154", false);
    row("at least", "pages='26' max_pages='154'", "max_pages >= 154", true);
    row("negative", "pages='-5'", "pages=-5", true);
    row("no page count", "max_pages='30'", "pages=", true);
    row("some page count", "pages='1'", "pages=", false);
    row("any page count", "pages='1'", "pages!=", true);
    row("no highest page count", "pages='26'", "max_pages=", true);
    row("lowest and highest page count in one", "pages='26'", "max_pages<27", true);
    row("no shipping group", "article_class='foto'", "shipping_group=", true);
    row("article id that is none", "article_id='x'", "article_id=", true);
    row("missing numbers are not smaller", "", "article_id<100", false);
    row("missing numbers are not larger", "", "article_id>0", false);
}

void tst_ProductCondition::isMet()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QString, condition);
    const ProductCondition tested(condition);
    QCOMPARE(tested.problem(), QString());
    QTEST(tested.isMetBy(product(attributes)), "isMet");
}

void tst_ProductCondition::problems_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("problem");

    QTest::newRow("no sign") << u"cover_type"_s
                             << u"\"cover_type\" is no condition; write it like cover_type=HARDCOVER"_s;
    QTest::newRow("empty") << QString() << u"\"\" is no condition; write it like cover_type=HARDCOVER"_s;
    QTest::newRow("no attribute") << u"=a"_s << u"\"=a\" is no condition; write it like cover_type=HARDCOVER"_s;
    QTest::newRow("misspelt attribute") << u"covertype=hard"_s
                                        << u"products have no attribute \"covertype\"; did you mean \"cover_type\"?"_s;
    QTest::newRow("attribute similar to none")
            << u"x=1"_s
            << u"products have no attribute \"x\"; they have: article_class, cover_type, page_binding, paper_type, "
               "foto_paper_type, orientation, space_magnitude, type, name, family, price_class, page_price_class, "
               "article_id, shipping_group, pages, max_pages"_s;
    QTest::newRow("attribute of no product")
            << u"page_type=left"_s << u"products have no attribute \"page_type\"; did you mean \"paper_type\"?"_s;
    QTest::newRow("misspelt keyword") << u"cover_type=cromolinnen"_s
                                      << u"\"cromolinnen\" is no keyword of cover_type; did you mean \"CROMOLINEN\"?"_s;
    QTest::newRow("keyword similar to none")
            << u"cover_type=hard,xyzzy"_s
            << u"\"xyzzy\" is no keyword of cover_type; \"rvcatalog keywords cover_type\" lists them"_s;
    QTest::newRow("order of keywords") << u"cover_type<hard"_s
                                       << u"cover_type is no number, so \"<\" cannot compare it"_s;
    QTest::newRow("order of texts") << u"name>=a"_s << u"name is no number, so \">=\" cannot compare it"_s;
    QTest::newRow("no number") << u"pages<many"_s << u"\"many\" is no whole number, and pages is one"_s;
    QTest::newRow("no number behind an order") << u"pages<"_s << u"\"\" is no whole number, and pages is one"_s;
    QTest::newRow("number that is too large")
            << u"pages=2147483648"_s << u"\"2147483648\" is no whole number, and pages is one"_s;
}

void tst_ProductCondition::problems()
{
    QFETCH(QString, condition);
    const ProductCondition tested(condition);
    QTEST(tested.problem(), "problem");
    QVERIFY(!tested.isMetBy(product("cover_type='hard' pages='26' name='b'")));
}

// Each name can stand in a condition.
void tst_ProductCondition::attributeNames()
{
    const QStringList names = ProductCondition::attributeNames();
    QCOMPARE(names.size(), 16);
    for (const QString &name : names)
        QCOMPARE(ProductCondition(name + u'=').problem(), QString());
}

QTEST_GUILESS_MAIN(tst_ProductCondition)
#include "tst_ProductCondition.moc"
