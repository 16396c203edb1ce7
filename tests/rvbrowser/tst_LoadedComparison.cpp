#include "ComparedCatalogues.h"

#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_LoadedComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products();
    void searches_data();
    void searches();
    void singles();
    void manySingles();
    void equalChangesAreShared();
    void unequalChangesAreNot();
    void equalCatalogues();
};

void tst_LoadedComparison::products()
{
    const ComparisonPointer comparison = compared(OLD_CATALOGUE, NEW_CATALOGUE);
    QStringList products;
    for (int i = 0; i < comparison->size(); ++i) {
        const ComparedProduct &product = comparison->at(i);
        products += u"%1 %2 %3 %4"_s.arg(rvChangeKindName(product.kind), product.oldType.toString(),
                                         product.newType.toString(), product.name);
    }
    const QStringList expected { u"added  E Etikett"_s, u"changed A A Album"_s, u"removed B  Becher"_s,
                                 u"changed C C2 Kalender"_s };
    QCOMPARE(products, expected);
    QCOMPARE(comparison->at(1).changes.size(), 2);
    QCOMPARE(comparison->at(1).oldPosition, (RVFilePosition { 2, 1 }));
    QCOMPARE(comparison->at(1).newPosition, (RVFilePosition { 3, 1 }));
    QVERIFY(comparison->at(3).isRenamed);
    QCOMPARE(comparison->counts().equal, 1);
    QCOMPARE(comparison->counts().renamed, 1);
}

void tst_LoadedComparison::searches_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QList<int>>("products");

    QTest::newRow("nothing") << QString() << QList<int> { 0, 1, 2, 3 };
    QTest::newRow("name") << u"album"_s << QList<int> { 1 };
    QTest::newRow("old type and new type") << u"c2"_s << QList<int> { 3 };
    QTest::newRow("label") << u"cover"_s << QList<int> { 1 };
    QTest::newRow("old value") << u"k1"_s << QList<int> { 1 };
    QTest::newRow("new value") << u"k2"_s << QList<int> { 1 };
    QTest::newRow("kind") << u"removed"_s << QList<int> { 2 };
    QTest::newRow("article") << u"5"_s << QList<int> { 0 };
    QTest::newRow("two words") << u"album k2"_s << QList<int> { 1 };
    QTest::newRow("no such text") << u"album removed"_s << QList<int>();
}

void tst_LoadedComparison::searches()
{
    QFETCH(QString, search);
    QFETCH(QList<int>, products);
    const QList<int> found = compared(OLD_CATALOGUE, NEW_CATALOGUE)->searchIndex().find(search);
    // Two empty lists have no address that Qt could compare.
    QCOMPARE(found.isEmpty(), products.isEmpty());
    QVERIFY(found.isEmpty() || found == products);
}

// The products that only the old or only the new catalogue has can be read again.
void tst_LoadedComparison::singles()
{
    const ComparisonPointer comparison = compared(OLD_CATALOGUE, NEW_CATALOGUE);
    QCOMPARE(comparison->singles()->size(), 2);
    QCOMPARE(comparison->singles()->product(comparison->indexInSingles(0)).type().toString(), u"E"_s);
    QCOMPARE(comparison->singles()->product(comparison->indexInSingles(2)).type().toString(), u"B"_s);
    QCOMPARE(comparison->indexInSingles(1), -1);
    QCOMPARE(comparison->indexInSingles(3), -1);
}

// Many such products are packed together, and every one is found.
void tst_LoadedComparison::manySingles()
{
    constexpr int count = 100;
    QByteArray before = "<p>";
    for (int i = 0; i < count; ++i)
        before += "<product type='T" + QByteArray::number(i) + "' name='n'/>";
    const ComparisonPointer comparison = compared(before + "</p>", "<p/>");
    QCOMPARE(comparison->size(), count);
    for (int i = 0; i < count; ++i) {
        const RVCatalogueProduct product = comparison->singles()->product(comparison->indexInSingles(i));
        QCOMPARE(product.type().toString(), u"T"_s + QString::number(i));
    }
}

void tst_LoadedComparison::equalChangesAreShared()
{
    const auto products = [](const QByteArray &name) {
        return "<p><product type='A' name='" + name + "'/><product type='B' name='" + name + "'/></p>";
    };
    const ComparisonPointer comparison = compared(products("x"), products("y"));
    QCOMPARE(comparison->at(0).changes.size(), 1);
    const RVProductChange first = comparison->at(0).changes.constFirst();
    const RVProductChange second = comparison->at(1).changes.constFirst();
    QCOMPARE(first.newValue().text, u"\"y\""_s);
    QCOMPARE(second.newValue().text, u"\"y\""_s);
    QCOMPARE(static_cast<const void *>(first.newValue().text.constData()),
             static_cast<const void *>(second.newValue().text.constData()));
}

// Two options that look the same and differ in what is not shown.
void tst_LoadedComparison::unequalChangesAreNot()
{
    const auto form = [](const QByteArray &name) {
        return "<forms><form key='k' value='v' value_name='n' editor_name='" + name + "'/></forms>";
    };
    const ComparisonPointer comparison = compared("<p><product type='A'/><product type='B'/></p>",
                                                  "<p><product type='A'>" + form("x") + "</product><product type='B'>"
                                                          + form("y") + "</product></p>");
    const auto editorName = [&comparison](int product) {
        return comparison->at(product).changes.constFirst().newValue().value.toObject().value("editor_name"_L1);
    };
    QCOMPARE(editorName(0).toString(), u"x"_s);
    QCOMPARE(editorName(1).toString(), u"y"_s);
}

void tst_LoadedComparison::equalCatalogues()
{
    const ComparisonPointer comparison = compared(NEW_CATALOGUE, NEW_CATALOGUE);
    QCOMPARE(comparison->size(), 0);
    QCOMPARE(comparison->counts().equal, 4);
    QCOMPARE(comparison->singles()->size(), 0);
}

QTEST_MAIN(tst_LoadedComparison)
#include "tst_LoadedComparison.moc"
