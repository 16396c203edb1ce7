#include "FaultyProducts.h"
#include "ReadCatalogue.h"

#include <ProductTreeModel.h>

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

CataloguePointer mixed()
{
    return readCatalogue("<p><product type='A' article_class='book' name='one'/><product type='B' article_class='fee'/>"
                         "<product type='C' article_class='book' name='two'/><product type='D' name='two'/></p>");
}

/// All that is shown: "group: type type; group: type".
QString shown(const ProductTreeModel &model)
{
    QStringList groups;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex group = model.index(i, 0);
        QStringList types;
        for (int j = 0; j < model.rowCount(group); ++j)
            types += model.index(j, 0, group).data().toString();
        groups += group.data().toString() + ": "_L1 + types.join(u' ');
    }
    return groups.join("; "_L1);
}

}

class tst_ProductTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void search_data();
    void search();
    void indexes();
    void cells();
    void findingsAsText_data();
    void findingsAsText();
    void faultyOnly();
    void nothing();
    void isAModel();
    void searchStays();
};

void tst_ProductTreeModel::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("groups");
    QTest::addColumn<int>("first");

    QTest::newRow("all") << QString() << u"Photo book (2): A C; Fees (1): B; Without kind of article (1): D"_s << 0;
    QTest::newRow("in two groups") << u"two"_s << u"Photo book (1): C; Without kind of article (1): D"_s << 2;
    QTest::newRow("one") << u"fee"_s << u"Fees (1): B"_s << 1;
    QTest::newRow("none") << u"nothing"_s << QString() << -1;
}

void tst_ProductTreeModel::search()
{
    ProductTreeModel model;
    model.setCatalogue(mixed());
    QFETCH(QString, text);
    QFETCH(QString, groups);
    model.setSearch(text);
    const QString german = groups.replace("Photo book"_L1, RVArticleClass(u"book"_s).toHumanReadable());
    QCOMPARE(shown(model), german);
    QTEST(model.firstProduct(), "first");
    QCOMPARE(model.productCount(), 4);
}

void tst_ProductTreeModel::indexes()
{
    ProductTreeModel model;
    model.setCatalogue(mixed());
    for (const QString &text : { QString(), u"two"_s }) {
        model.setSearch(text);
        for (int product = 0; product < model.productCount(); ++product) {
            const QModelIndex index = model.indexOfProduct(product);
            const bool isShown = text.isEmpty() || product > 1;
            QCOMPARE(index.isValid(), isShown);
            if (isShown)
                QCOMPARE(index.data(ProductTreeModel::ProductRole).toInt(), product);
        }
    }
    QCOMPARE(model.shownProductCount(), 2);
    QVERIFY(!model.indexOfProduct(-1).isValid());
    QVERIFY(!model.indexOfProduct(4).isValid());
}

void tst_ProductTreeModel::cells()
{
    ProductTreeModel model;
    model.setCatalogue(mixed());
    const auto title = [&model](int column, int role) { return model.headerData(column, Qt::Horizontal, role); };
    QCOMPARE(title(ProductTreeModel::TypeColumn, Qt::DisplayRole).toString(), u"Type"_s);
    QCOMPARE(title(ProductTreeModel::NameColumn, Qt::DisplayRole).toString(), u"Name"_s);
    QVERIFY(!title(ProductTreeModel::FindingsColumn, Qt::DisplayRole).isValid()); // it is narrow
    for (const int role : { Qt::ToolTipRole, Qt::AccessibleTextRole }) {
        QCOMPARE(title(ProductTreeModel::FindingsColumn, role).toString(), u"Findings"_s);
        QVERIFY(!title(ProductTreeModel::NameColumn, role).isValid());
    }
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());

    const QModelIndex group = model.index(0, 0);
    QVERIFY(group.data(Qt::FontRole).value<QFont>().bold());
    QCOMPARE(group.data(ProductTreeModel::ProductRole).toInt(), -1);
    QCOMPARE(group.siblingAtColumn(1).data().toString(), QString());
    QVERIFY(!group.data(Qt::ToolTipRole).isValid());
    const QModelIndex product = model.index(1, ProductTreeModel::NameColumn, group);
    QCOMPARE(product.data().toString(), u"two"_s);
    QCOMPARE(product.data(Qt::ToolTipRole).toString(), u"two"_s);
    QVERIFY(!product.data(Qt::FontRole).isValid());
    for (int column = 0; column < ProductTreeModel::COLUMN_COUNT; ++column)
        QCOMPARE(product.siblingAtColumn(column).data(ProductTreeModel::ProductRole).toInt(), 2);
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_ProductTreeModel::findingsAsText_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QVariant>("count");
    QTest::addColumn<QString>("worst"); // the last word

    QTest::newRow("none") << QByteArray("name='x'") << QVariant() << QString();
    QTest::newRow("note") << QByteArray("name='x' space_magnitude='A4'") << QVariant(1) << u"note(s)"_s;
    QTest::newRow("warning") << QByteArray("name='x' pages='24' max_pages='73' page_step='2'") << QVariant(1)
                             << u"warning"_s;
    QTest::newRow("error") << QByteArray("name='x' cover_type='y'") << QVariant(1) << u"error"_s;
}

void tst_ProductTreeModel::findingsAsText()
{
    QFETCH(QByteArray, attributes);
    const CataloguePointer catalogue = readCatalogue("<p><product type='A' article_id='1' article_class='book' "
                                                     + attributes + "/></p>");
    ProductTreeModel model;
    model.setCatalogue(catalogue);
    const QModelIndex cell = model.indexOfProduct(0).siblingAtColumn(ProductTreeModel::FindingsColumn);
    QTEST(cell.data(), "count");
    for (const int role : { Qt::ToolTipRole, Qt::AccessibleTextRole })
        QTEST(cell.data(role).toString().section(u' ', -1), "worst");
    QVERIFY(!cell.data(Qt::FontRole).isValid());
}

void tst_ProductTreeModel::faultyOnly()
{
    const CataloguePointer catalogue = readCatalogue(FAULTY_PRODUCTS);
    ProductTreeModel model;
    model.setFaultyOnly(true);
    model.setCatalogue(catalogue);
    QCOMPARE(model.shownProductCount(), 2);
    QCOMPARE(model.firstProduct(), 0);
    QCOMPARE(model.mostFindings(), 3);
    QVERIFY(!model.indexOfProduct(1).isValid()); // it has a note alone
    const QModelIndex shown = model.indexOfProduct(3).siblingAtColumn(ProductTreeModel::FindingsColumn);
    QCOMPARE(shown.data().toInt(), 3);
    QCOMPARE(shown.data(ProductTreeModel::SeverityRole).toInt(), int(RVCatalogueSeverity::Error));
    model.setSearch(u"ten"_s);
    QCOMPARE(model.shownProductCount(), 1);
    model.setFaultyOnly(false);
    model.setSearch(QString());
    QCOMPARE(model.shownProductCount(), 4);
    const QModelIndex faultless = model.indexOfProduct(2).siblingAtColumn(ProductTreeModel::FindingsColumn);
    QVERIFY(!faultless.data(Qt::AccessibleTextRole).isValid());
}

void tst_ProductTreeModel::nothing()
{
    ProductTreeModel model;
    QCOMPARE(model.rowCount(), 0);
    model.setSearch(u"no such product"_s);
    QCOMPARE(model.firstProduct(), -1);
    model.setCatalogue(mixed());
    QCOMPARE(model.shownProductCount(), 0);
    model.setCatalogue(nullptr);
    QCOMPARE(model.productCount(), 0);
    QCOMPARE(model.firstProduct(), -1);
}

void tst_ProductTreeModel::isAModel()
{
    ProductTreeModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy begun(&model, &QAbstractItemModel::modelAboutToBeReset);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setCatalogue(mixed());
    model.setSearch(u"two"_s);
    model.setSearch(QString());
    model.setFaultyOnly(true);
    model.setCatalogue(nullptr);
    QCOMPARE(begun.size(), 5);
    QCOMPARE(resets.size(), 5);
}

// A catalogue that is read again is searched as the one before.
void tst_ProductTreeModel::searchStays()
{
    ProductTreeModel model;
    model.setSearch(u"one"_s);
    model.setCatalogue(mixed());
    QCOMPARE(model.shownProductCount(), 1);
    QCOMPARE(model.firstProduct(), 0);
}

QTEST_MAIN(tst_ProductTreeModel)
#include "tst_ProductTreeModel.moc"
