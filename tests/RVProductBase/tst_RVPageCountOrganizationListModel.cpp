#include <RVProductBase/RVPageCountOrganizationListModel.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Model = RVPageCountOrganizationListModel;

/// Without the one oddity that views must never ask for: rows below a row.
class FlatModel : public Model
{
public:
    using Model::Model;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : Model::rowCount(parent);
    }
};

RVPageCountOrganization organization(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment);
}

}

class tst_RVPageCountOrganizationListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyModel();
    void rows_data();
    void rows();
    void texts();
    void otherRolesAndIndexes_data();
    void otherRolesAndIndexes();
    void structure();
    void resets();
    void behavesAsAModel();
};

void tst_RVPageCountOrganizationListModel::emptyModel()
{
    const Model model(false);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.lowestValue(), 0);
    QCOMPARE(model.highestValue(), 0);
    QCOMPARE(model.data(model.index(0), Qt::DisplayRole), QVariant(u"0 Seiten"_s));
    QVERIFY(!static_cast<const QObject &>(model).parent());
}

void tst_RVPageCountOrganizationListModel::rows_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<int>("lastRowPages");
    QTest::newRow("photo book") << organization(26, 154, 4) << 33 << 154;
    QTest::newRow("fixed") << organization(3, 3, 0) << 1 << 3;
    QTest::newRow("step misses the highest count") << organization(26, 33, 4) << 2 << 30;
    QTest::newRow("photo box") << organization(1, 30, 1) << 30 << 30;
    QTest::newRow("no rows") << organization(30, 26, 4) << 0 << 26;
    QTest::newRow("saturated") << organization(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1)
                               << std::numeric_limits<int>::max() << -2;
}

void tst_RVPageCountOrganizationListModel::rows()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(int, rowCount);
    Model model(false);
    model.setPageOrganization(organization);
    QCOMPARE(model.rowCount(), rowCount);
    QTEST(model.pagesAtIndex(rowCount - 1), "lastRowPages");
    QCOMPARE(model.pagesAtIndex(0), organization.minPages());
    QCOMPARE(model.lowestValue(), organization.minPages());
    QCOMPARE(model.highestValue(), organization.maxPages());
}

void tst_RVPageCountOrganizationListModel::texts()
{
    Model pages(false);
    pages.setPageOrganization(organization(26, 154, 4));
    QCOMPARE(pages.data(pages.index(0), Qt::DisplayRole), QVariant(u"26 Seiten"_s));
    QCOMPARE(pages.data(pages.index(32), Qt::DisplayRole), QVariant(u"154 Seiten"_s));
    Model photos(true);
    photos.setPageOrganization(organization(1, 30, 1));
    QCOMPARE(photos.data(photos.index(0), Qt::DisplayRole), QVariant(u"1 Fotos"_s));
    QCOMPARE(photos.data(photos.index(29), Qt::DisplayRole), QVariant(u"30 Fotos"_s));
    QCOMPARE(pages.indexForPages(26), 0);
    QCOMPARE(pages.indexForPages(33), 1);
    QCOMPARE(pages.indexForPages(34), 2);
    QCOMPARE(pages.indexForPages(3), 0);
}

void tst_RVPageCountOrganizationListModel::otherRolesAndIndexes_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("valid");
    QTest::newRow("display") << 0 << int(Qt::DisplayRole) << true;
    QTest::newRow("edit") << 0 << int(Qt::EditRole) << false;
    QTest::newRow("tool tip") << 0 << int(Qt::ToolTipRole) << false;
    QTest::newRow("user") << 0 << int(Qt::UserRole) << false;
    QTest::newRow("no row") << -1 << int(Qt::DisplayRole) << false;
}

void tst_RVPageCountOrganizationListModel::otherRolesAndIndexes()
{
    QFETCH(int, row);
    QFETCH(int, role);
    Model model(false);
    model.setPageOrganization(organization(26, 154, 4));
    QTEST(model.data(model.index(row), role).isValid(), "valid");
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_RVPageCountOrganizationListModel::structure()
{
    Model model(false);
    model.setPageOrganization(organization(26, 154, 4));
    const QModelIndex index = model.index(5);
    QCOMPARE(model.rowCount(index), 33); // whatever the parent
    QCOMPARE(model.columnCount(index), 1);
    QCOMPARE(model.parent(index), QModelIndex());
    QCOMPARE(model.parent(QModelIndex()), QModelIndex());
}

void tst_RVPageCountOrganizationListModel::resets()
{
    Model model(false);
    QSignalSpy aboutToReset(&model, &Model::modelAboutToBeReset);
    QSignalSpy reset(&model, &Model::modelReset);
    int rowsBefore = -1;
    connect(&model, &Model::modelAboutToBeReset, this, [&] { rowsBefore = model.rowCount(); });
    int rowsAfter = -1;
    connect(&model, &Model::modelReset, this, [&] { rowsAfter = model.rowCount(); });
    model.setPageOrganization(organization(26, 154, 4));
    QCOMPARE(aboutToReset.count(), 1);
    QCOMPARE(reset.count(), 1);
    QCOMPARE(rowsBefore, 1);
    QCOMPARE(rowsAfter, 33);
}

void tst_RVPageCountOrganizationListModel::behavesAsAModel()
{
    FlatModel model(true);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPageOrganization(organization(26, 42, 4));
    model.setPageOrganization(organization(30, 26, 4));
    model.setPageOrganization(organization(1, 1, 0));
    QCOMPARE(model.rowCount(), 1);
}

QTEST_GUILESS_MAIN(tst_RVPageCountOrganizationListModel)
#include "tst_RVPageCountOrganizationListModel.moc"
