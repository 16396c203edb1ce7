#include <ProductMemory.h>
#include <Settings.h>

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_ProductMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<QTemporaryDir>();
        mySettings = std::make_unique<Settings>(myFolder->filePath(u"settings.ini"_s));
    }
    void lastProduct();
    void choices_data();
    void choices();
    void limits();
    void damaged_data();
    void damaged();

private:
    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<Settings> mySettings;
};

void tst_ProductMemory::lastProduct()
{
    ProductMemory memory(mySettings.get());
    QVERIFY(!memory.lastProduct(u"/a.xml"_s).isValid());
    memory.setLastProduct(u"/a.xml"_s, RVProductType(u"DUN9"_s));
    memory.setLastProduct(u"/b.xml"_s, RVProductType(u"VIR1"_s));
    memory.setLastProduct(u"/a.xml"_s, RVProductType(u"DUN11"_s));
    QCOMPARE(memory.lastProduct(u"/a.xml"_s).toString(), u"DUN11"_s);
    QCOMPARE(memory.lastProduct(u"/x/../b.xml"_s).toString(), u"VIR1"_s);
}

void tst_ProductMemory::choices_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QStringList>("options"); // key and value in turn

    QTest::newRow("no option") << 26 << QStringList();
    QTest::newRow("no pages") << 0 << QStringList { u"a"_s, u"b"_s };
    QTest::newRow("several") << 34 << QStringList { u"alcolor"_s, u"red"_s, u"box;lining"_s, u"wood;black"_s };
    QTest::newRow("every character") << 1 << QStringList { u"k,:;=|"_s, u"@\"v\\\n ü%"_s };
}

void tst_ProductMemory::choices()
{
    QFETCH(int, pages);
    QFETCH(QStringList, options);
    ProductChoice choice { pages, {} };
    for (qsizetype i = 0; i < options.size(); i += 2)
        choice.variants.insert(options.at(i), options.at(i + 1));
    const RVProductType type(u"DUN9"_s);
    ProductMemory(mySettings.get()).setChoice(u"/a.xml"_s, type, choice);
    mySettings->refresh();
    Settings again(myFolder->filePath(u"settings.ini"_s));
    const ProductMemory memory(&again);
    const auto found = memory.choice(u"/a.xml"_s, type);
    QVERIFY(found);
    QCOMPARE(found->pages, pages);
    QCOMPARE(found->variants.keys(), choice.variants.keys());
    for (const QString &key : choice.variants.keys())
        QCOMPARE(found->variants.value(key), choice.variants.value(key));
    QVERIFY(!memory.choice(u"/b.xml"_s, type));
    QVERIFY(!memory.choice(u"/a.xml"_s, RVProductType(u"DUN1"_s)));
}

void tst_ProductMemory::limits()
{
    ProductMemory memory(mySettings.get());
    for (int i = 0; i < 203; ++i)
        memory.setChoice(u"/a.xml"_s, RVProductType(u"T%1"_s.arg(i)), { i, {} });
    QVERIFY(!memory.choice(u"/a.xml"_s, RVProductType(u"T2"_s)));
    QCOMPARE(memory.choice(u"/a.xml"_s, RVProductType(u"T3"_s))->pages, 3);
    QCOMPARE(memory.choice(u"/a.xml"_s, RVProductType(u"T202"_s))->pages, 202);
    for (int i = 0; i < 51; ++i)
        memory.setLastProduct(u"/%1.xml"_s.arg(i), RVProductType(u"X"_s));
    QVERIFY(!memory.lastProduct(u"/0.xml"_s).isValid());
    QVERIFY(memory.lastProduct(u"/1.xml"_s).isValid());
}

void tst_ProductMemory::damaged_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("pages");
    QTest::addColumn<QStringList>("keys");

    QTest::newRow("pages are no number") << u"pages"_s << QVariant(u"many"_s) << 0 << QStringList { u"a"_s };
    QTest::newRow("options are a number") << u"options"_s << QVariant(7) << 26 << QStringList();
    QTest::newRow("key without a value") << u"options"_s << QVariant(QStringList { u"b"_s, u"1"_s, u"c"_s }) << 26
                                         << QStringList { u"b"_s };
}

void tst_ProductMemory::damaged()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    const RVProductType type(u"DUN9"_s);
    ProductMemory memory(mySettings.get());
    memory.setChoice(u"/a.xml"_s, type, { 26, RVArticleVariants(u"a"_s, u"1"_s) });
    const QString id = mySettings->groups(u"products"_s).value(0);
    mySettings->setValue(u"products/"_s + id + u'/' + key, value);
    const auto choice = memory.choice(u"/a.xml"_s, type);
    QVERIFY(choice);
    QTEST(choice->pages, "pages");
    QTEST(choice->variants.keys(), "keys");
}

QTEST_GUILESS_MAIN(tst_ProductMemory)
#include "tst_ProductMemory.moc"
