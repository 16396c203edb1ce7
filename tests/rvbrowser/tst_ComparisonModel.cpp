#include "ComparedCatalogues.h"

#include <ComparisonModel.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Kind = ComparisonModel::Kind;

/// The texts of a line: "A | ~ changed | old | new".
QString line(const QModelIndex &index)
{
    QStringList cells;
    for (int column = 0; column < ComparisonModel::COLUMN_COUNT; ++column)
        cells += index.siblingAtColumn(column).data().toString();
    return cells.join(" | "_L1).trimmed();
}

/// The first words of the products that are shown.
QString shown(const ComparisonModel &model)
{
    QStringList products;
    for (int row = 0; row < model.rowCount(); ++row)
        products += model.index(row, 0).data().toString().section(u' ', 0, 0);
    return products.join(u' ');
}

}

class tst_ComparisonModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void onlyOneLine();
    void colours();
    void filters_data();
    void filters();
    void sorts_data();
    void sorts();
    void walks();
    void indexes();
    void nothing();
    void isAModel();
    void filterStays();
};

void tst_ComparisonModel::texts()
{
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(line(model.index(0, 0)), u"E \"Etikett\" | + added |  | article 5"_s);
    QCOMPARE(line(model.index(1, 0)), u"A \"Album\" | ~ changed |  |"_s);
    QCOMPARE(line(model.index(2, 0)), u"B \"Becher\" | - removed | article 2 |"_s);
    QCOMPARE(line(model.index(3, 0)), u"C -> C2 \"Kalender\" | ~ renamed |  |"_s);
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
    QCOMPARE(model.rowCount(model.index(1, 0)), 2);
    QCOMPARE(line(model.index(0, 0, model.index(1, 0))), u"Cover | ~ changed | SOFTCOVER | HARDCOVER"_s);
    QCOMPARE(line(model.index(1, 0, model.index(1, 0))), u"Price class | ~ changed | \"K1\" | \"K2\""_s);
    QStringList titles;
    for (int column = 0; column < model.columnCount(); ++column)
        titles += model.headerData(column, Qt::Horizontal).toString();
    QCOMPARE(titles, QStringList({ u"Product"_s, u"Change"_s, u"Old"_s, u"New"_s }));
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QCOMPARE(model.index(1, 0).data(Qt::ToolTipRole).toString(), u"A \"Album\""_s);
    QVERIFY(!model.index(1, 0).data(Qt::EditRole).isValid());
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_ComparisonModel::onlyOneLine()
{
    ComparisonModel model;
    model.setComparison(compared("<p><product type='A' name='a'/></p>", "<p><product type='A' name='b&#10;c'/></p>"));
    QCOMPARE(model.index(0, 0).data().toString(), u"A \"b c\""_s);
    const QModelIndex value = model.index(0, ComparisonModel::NewColumn, model.index(0, 0));
    QCOMPARE(value.data().toString(), u"\"b c\""_s);
}

// Colours only repeat what the texts say.
void tst_ComparisonModel::colours()
{
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    const QVariant gain = model.index(0, 0).data(Qt::ForegroundRole);
    const QVariant fault = model.index(2, 0).data(Qt::ForegroundRole);
    QVERIFY(gain.isValid());
    QVERIFY(fault.isValid());
    QVERIFY(gain != fault);
    for (int column = 0; column < ComparisonModel::COLUMN_COUNT; ++column) {
        QCOMPARE(model.index(0, column).data(Qt::ForegroundRole), gain);
        QVERIFY(!model.index(1, column).data(Qt::ForegroundRole).isValid());
        QCOMPARE(model.index(2, column).data(Qt::ForegroundRole), fault);
    }
    const QModelIndex cover = model.index(0, 0, model.index(1, 0));
    QVERIFY(!cover.data(Qt::ForegroundRole).isValid());
    QCOMPARE(cover.siblingAtColumn(ComparisonModel::OldColumn).data(Qt::ForegroundRole), fault);
    QCOMPARE(cover.siblingAtColumn(ComparisonModel::NewColumn).data(Qt::ForegroundRole), gain);

    model.setComparison(compared("<p><product type='A'/></p>", "<p><product type='A' name='n'/></p>"));
    QCOMPARE(model.index(0, 0, model.index(0, 0)).data(Qt::ForegroundRole), gain);
}

void tst_ComparisonModel::filters_data()
{
    QTest::addColumn<ComparisonModel::Kind>("kind");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("products");

    QTest::newRow("all") << Kind::Any << QString() << u"E A B C"_s;
    QTest::newRow("added") << Kind::Added << QString() << u"E"_s;
    QTest::newRow("removed") << Kind::Removed << QString() << u"B"_s;
    QTest::newRow("changed") << Kind::Changed << QString() << u"A C"_s;
    QTest::newRow("renamed") << Kind::Renamed << QString() << u"C"_s;
    QTest::newRow("value") << Kind::Any << u"hardcover"_s << u"A"_s;
    QTest::newRow("value of another kind") << Kind::Added << u"hardcover"_s << QString();
}

void tst_ComparisonModel::filters()
{
    QFETCH(ComparisonModel::Kind, kind);
    QFETCH(QString, search);
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    model.setFilter(kind, search);
    QTEST(shown(model), "products");
}

void tst_ComparisonModel::sorts_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QString>("products");

    QTest::newRow("as in the catalogue") << -1 << Qt::AscendingOrder << u"E A B C"_s;
    QTest::newRow("product") << int(ComparisonModel::ProductColumn) << Qt::AscendingOrder << u"A B C E"_s;
    QTest::newRow("product, downwards") << int(ComparisonModel::ProductColumn) << Qt::DescendingOrder << u"E C B A"_s;
    QTest::newRow("kind") << int(ComparisonModel::KindColumn) << Qt::AscendingOrder << u"E B A C"_s;
    QTest::newRow("old article, upwards") << int(ComparisonModel::OldColumn) << Qt::AscendingOrder << u"E A C B"_s;
    QTest::newRow("new article") << int(ComparisonModel::NewColumn) << Qt::DescendingOrder << u"E A B C"_s;
    QTest::newRow("old article") << int(ComparisonModel::OldColumn) << Qt::DescendingOrder << u"B E A C"_s;
}

void tst_ComparisonModel::sorts()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    model.sort(column, order);
    QTEST(shown(model), "products");
}

void tst_ComparisonModel::walks()
{
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QStringList forwards;
    for (QModelIndex index = model.nextChange(QModelIndex()); index.isValid(); index = model.nextChange(index))
        forwards += index.data().toString();
    const QStringList expected { u"E \"Etikett\""_s, u"Cover"_s, u"Price class"_s, u"B \"Becher\""_s, u"Type"_s };
    QCOMPARE(forwards, expected);
    QStringList backwards;
    for (QModelIndex index = model.previousChange(QModelIndex()); index.isValid(); index = model.previousChange(index))
        backwards.prepend(index.data().toString());
    QCOMPARE(backwards, expected);
    // From a product on to the first change of it, and back to the one before it.
    QCOMPARE(model.nextChange(model.index(1, 0)).data().toString(), u"Cover"_s);
    QCOMPARE(model.previousChange(model.index(1, 0)).data().toString(), u"E \"Etikett\""_s);
}

void tst_ComparisonModel::indexes()
{
    ComparisonModel model;
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    model.setFilter(Kind::Changed, QString());
    QCOMPARE(model.indexOfProduct(3), model.index(1, 0));
    QVERIFY(!model.indexOfProduct(0).isValid());
    QVERIFY(!model.indexOfProduct(-1).isValid());
    QVERIFY(!model.indexOfProduct(4).isValid());
    const QModelIndex price = model.index(1, 0, model.index(0, 0));
    QCOMPARE(model.product(price), 1);
    QCOMPARE(ComparisonModel::change(price), 1);
    QCOMPARE(model.product(model.index(0, 0)), 1);
    QCOMPARE(ComparisonModel::change(model.index(0, 0)), -1);
    QCOMPARE(model.product(QModelIndex()), -1);
}

void tst_ComparisonModel::nothing()
{
    ComparisonModel model;
    model.setFilter(Kind::Added, u"x"_s);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.nextChange(QModelIndex()).isValid());
    QVERIFY(!model.previousChange(QModelIndex()).isValid());
    model.setComparison(compared(OLD_CATALOGUE, OLD_CATALOGUE));
    QCOMPARE(model.productCount(), 0);
    model.setComparison(nullptr);
    QCOMPARE(model.productCount(), 0);
}

void tst_ComparisonModel::isAModel()
{
    ComparisonModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy begun(&model, &QAbstractItemModel::modelAboutToBeReset);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    model.setFilter(Kind::Changed, u"k"_s);
    model.sort(0, Qt::DescendingOrder);
    model.setComparison(nullptr);
    QCOMPARE(begun.size(), 4);
    QCOMPARE(resets.size(), 4);
}

// Catalogues that are compared again are shown as those before.
void tst_ComparisonModel::filterStays()
{
    ComparisonModel model;
    model.setFilter(Kind::Changed, QString());
    model.sort(0, Qt::DescendingOrder);
    model.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(shown(model), u"C A"_s);
}

QTEST_MAIN(tst_ComparisonModel)
#include "tst_ComparisonModel.moc"
