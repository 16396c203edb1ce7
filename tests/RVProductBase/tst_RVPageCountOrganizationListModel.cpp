#include <RVProductBase/RVPageCountOrganizationListModel.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>
#include <QTranslator>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(std::is_base_of_v<QAbstractListModel, RVPageCountOrganizationListModel>);
static_assert(!std::is_convertible_v<bool, RVPageCountOrganizationListModel>);
static_assert(!std::is_default_constructible_v<RVPageCountOrganizationListModel>);

namespace {

RVPageCountOrganization organization(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment);
}

/// Creates indexes that the model itself would not return.
class OpenModel : public RVPageCountOrganizationListModel
{
public:
    using RVPageCountOrganizationListModel::createIndex;
    using RVPageCountOrganizationListModel::RVPageCountOrganizationListModel;
};

/// The model as list views use it: they ask only for the rows below the invalid index.
class FlatModel : public RVPageCountOrganizationListModel
{
public:
    using RVPageCountOrganizationListModel::RVPageCountOrganizationListModel;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : RVPageCountOrganizationListModel::rowCount(parent);
    }
};

class EnglishTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "RVPageCountOrganizationListModel") != 0)
            return QString();
        if (qstrcmp(sourceText, "%1 Fotos") == 0)
            return u"%1 prints"_s;
        return qstrcmp(sourceText, "%1 Seiten") == 0 ? u"pages: %1"_s : QString();
    }
};

QStringList texts(const RVPageCountOrganizationListModel &model)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(); ++row)
        result += model.data(model.index(row), Qt::DisplayRole).toString();
    return result;
}

}

class tst_RVPageCountOrganizationListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void hasNoMetaMembers();
    void rows_data();
    void rows();
    void longLists_data();
    void longLists();
    void bounds_data();
    void bounds();
    void rowsAndPages_data();
    void rowsAndPages();
    void rowCountIgnoresParent();
    void hasNoParentIndex();
    void otherRoles();
    void countsAsNumbers();
    void invalidIndexes_data();
    void invalidIndexes();
    void indexesBeyondTheRows();
    void indexesOfAnotherModel();
    void resets();
    void keepsACopy();
    void translates();
};

void tst_RVPageCountOrganizationListModel::startsEmpty()
{
    for (const bool showPhotos : { false, true }) {
        const RVPageCountOrganizationListModel model(showPhotos);
        QCOMPARE(model.QObject::parent(), nullptr);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.columnCount(), 1);
        QCOMPARE(model.lowestValue(), 0);
        QCOMPARE(model.highestValue(), 0);
        QCOMPARE(model.data(model.index(0), Qt::DisplayRole), QVariant(showPhotos ? u"0 Fotos"_s : u"0 Seiten"_s));
    }
}

void tst_RVPageCountOrganizationListModel::hasNoMetaMembers()
{
    const QMetaObject &metaObject = RVPageCountOrganizationListModel::staticMetaObject;
    QCOMPARE(QByteArray(metaObject.className()), "RVPageCountOrganizationListModel"_ba);
    QCOMPARE(metaObject.superClass(), &QAbstractListModel::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void tst_RVPageCountOrganizationListModel::rows_data()
{
    QTest::addColumn<bool>("showPhotos");
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("three counts") << false << organization(26, 34, 4)
                                  << QStringList { u"26 Seiten"_s, u"30 Seiten"_s, u"34 Seiten"_s };
    QTest::newRow("three photo counts") << true << organization(1, 3, 1)
                                        << QStringList { u"1 Fotos"_s, u"2 Fotos"_s, u"3 Fotos"_s };
    QTest::newRow("increment misses the highest")
            << false << organization(26, 33, 4) << QStringList { u"26 Seiten"_s, u"30 Seiten"_s };
    QTest::newRow("card with inserted photo") << false << organization(3, 3, 0) << QStringList { u"3 Seiten"_s };
    QTest::newRow("several without increment") << false << organization(10, 20, 0) << QStringList { u"10 Seiten"_s };
    QTest::newRow("one page") << false << organization(1, 1, 0) << QStringList { u"1 Seiten"_s };
    QTest::newRow("thousands") << false << organization(1234567, 1234567, 0) << QStringList { u"1234567 Seiten"_s };
    QTest::newRow("inverted by a package") << false << organization(20, 16, 4) << QStringList();
}

void tst_RVPageCountOrganizationListModel::rows()
{
    QFETCH(bool, showPhotos);
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(QStringList, expected);
    FlatModel model(showPhotos);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPageOrganization(organization);
    QCOMPARE(model.rowCount(), expected.size());
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(texts(model), expected);
}

void tst_RVPageCountOrganizationListModel::longLists_data()
{
    QTest::addColumn<bool>("showPhotos");
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("rowCount");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    QTest::newRow("photo book") << false << organization(26, 154, 4) << 33 << u"26 Seiten"_s << u"154 Seiten"_s;
    QTest::newRow("picture box") << true << organization(1, 30, 1) << 30 << u"1 Fotos"_s << u"30 Fotos"_s;
}

void tst_RVPageCountOrganizationListModel::longLists()
{
    QFETCH(bool, showPhotos);
    QFETCH(RVPageCountOrganization, organization);
    RVPageCountOrganizationListModel model(showPhotos);
    model.setPageOrganization(organization);
    QTEST(model.rowCount(), "rowCount");
    QTEST(texts(model).constFirst(), "first");
    QTEST(texts(model).constLast(), "last");
}

void tst_RVPageCountOrganizationListModel::bounds_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("photo book") << organization(26, 154, 4) << 26 << 154;
    QTest::newRow("increment misses the highest") << organization(26, 29, 4) << 26 << 29;
    QTest::newRow("inverted") << organization(20, 10, 4) << 20 << 10;
}

void tst_RVPageCountOrganizationListModel::bounds()
{
    QFETCH(RVPageCountOrganization, organization);
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization);
    QTEST(model.lowestValue(), "lowest");
    QTEST(model.highestValue(), "highest");
}

void tst_RVPageCountOrganizationListModel::rowsAndPages_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("rowOfPages");
    QTest::newRow("first") << 0 << 26 << 0;
    QTest::newRow("second") << 1 << 30 << 1;
    QTest::newRow("last") << 32 << 154 << 32;
    QTest::newRow("behind the last") << 33 << 158 << 33;
    QTest::newRow("before the first") << -1 << 22 << 0;
    QTest::newRow("highest integer") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << 536870905;
    QTest::newRow("lowest integer") << std::numeric_limits<int>::min() << std::numeric_limits<int>::min() << 0;
}

void tst_RVPageCountOrganizationListModel::rowsAndPages()
{
    QFETCH(int, row);
    QFETCH(int, pages);
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization(26, 154, 4));
    QCOMPARE(model.pagesAtIndex(row), pages);
    QTEST(model.indexForPages(pages), "rowOfPages");
    QCOMPARE(model.indexForPages(33), 1);
}

void tst_RVPageCountOrganizationListModel::rowCountIgnoresParent()
{
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization(26, 34, 4));
    QCOMPARE(model.rowCount(model.index(1)), 3);
    QCOMPARE(model.columnCount(model.index(1)), 1);
    const QAbstractItemModel &base = model;
    QCOMPARE(base.rowCount(), 3);
    QCOMPARE(base.columnCount(), 1);
    QVERIFY(base.hasChildren());
    QVERIFY(!base.hasChildren(model.index(1)));
    model.setPageOrganization(organization(20, 12, 4));
    QCOMPARE(model.rowCount(), -1);
}

void tst_RVPageCountOrganizationListModel::hasNoParentIndex()
{
    const OpenModel model(false);
    QVERIFY(!model.parent(QModelIndex()).isValid());
    QVERIFY(!model.parent(model.index(0)).isValid());
    QVERIFY(!model.parent(model.createIndex(5, 5, quintptr(7))).isValid());
    QVERIFY(!model.index(0).parent().isValid());
}

void tst_RVPageCountOrganizationListModel::otherRoles()
{
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization(26, 34, 4));
    for (int role = -1; role <= Qt::UserRole + 1; ++role) {
        const QVariant value = model.data(model.index(1), role);
        QCOMPARE(value, role == Qt::DisplayRole ? QVariant(u"30 Seiten"_s) : QVariant());
    }
}

void tst_RVPageCountOrganizationListModel::countsAsNumbers()
{
    using Model = RVPageCountOrganizationListModel;
    FlatModel model(false);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPageOrganization(organization(26, 34, 4));
    QCOMPARE(model.data(model.index(0), Model::PagesRole), QVariant(26));
    QCOMPARE(model.data(model.index(2), Model::PagesRole), QVariant(34));
    QVERIFY(!model.data(QModelIndex(), Model::PagesRole).isValid());
    QCOMPARE(model.roleNames().value(Model::PagesRole), "pages"_ba);
    QCOMPARE(model.roleNames().value(Qt::DisplayRole), "display"_ba);
}

void tst_RVPageCountOrganizationListModel::invalidIndexes_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("no row") << -1 << 0;
    QTest::newRow("no column") << 0 << -1;
    QTest::newRow("neither") << -1 << -1;
    QTest::newRow("row behind the last") << 3 << 0;
    QTest::newRow("second column") << 0 << 1;
}

void tst_RVPageCountOrganizationListModel::invalidIndexes()
{
    QFETCH(int, row);
    QFETCH(int, column);
    RVPageCountOrganizationListModel model(true);
    model.setPageOrganization(organization(26, 34, 4));
    QVERIFY(!model.data(model.index(row, column), Qt::DisplayRole).isValid());
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
}

// A view may still hold an index of a longer list.
void tst_RVPageCountOrganizationListModel::indexesBeyondTheRows()
{
    OpenModel model(false);
    model.setPageOrganization(organization(26, 34, 4));
    QCOMPARE(model.data(model.createIndex(3, 0), Qt::DisplayRole), QVariant(u"38 Seiten"_s));
    QCOMPARE(model.data(model.createIndex(1, 4), Qt::DisplayRole), QVariant(u"30 Seiten"_s));
    QVERIFY(!model.data(model.createIndex(-1, 0), Qt::DisplayRole).isValid());
    QVERIFY(!model.data(model.createIndex(0, -1), Qt::DisplayRole).isValid());
}

// A proxy may pass its own index: only the row counts.
void tst_RVPageCountOrganizationListModel::indexesOfAnotherModel()
{
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization(26, 34, 4));
    RVPageCountOrganizationListModel other(true);
    other.setPageOrganization(organization(1, 30, 1));
    QCOMPARE(model.data(other.index(1), Qt::DisplayRole), QVariant(u"30 Seiten"_s));
    QCOMPARE(model.data(other.index(29), Qt::DisplayRole), QVariant(u"142 Seiten"_s));
    QCOMPARE(model.data(QStringListModel({ u"a"_s }).index(0), Qt::DisplayRole), QVariant(u"26 Seiten"_s));
}

void tst_RVPageCountOrganizationListModel::resets()
{
    FlatModel model(false);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList log;
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this,
            [&model, &log] { log += u"before: %1"_s.arg(model.rowCount()); });
    connect(&model, &QAbstractItemModel::modelReset, this,
            [&model, &log] { log += u"after: %1"_s.arg(model.rowCount()); });
    QSignalSpy dataChanged(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.setPageOrganization(organization(26, 34, 4));
    QCOMPARE(log, QStringList({ u"before: 1"_s, u"after: 3"_s }));
    model.setPageOrganization(organization(26, 34, 4));
    QCOMPARE(log, QStringList({ u"before: 1"_s, u"after: 3"_s, u"before: 3"_s, u"after: 3"_s }));
    QCOMPARE(dataChanged.size(), 0);
    QCOMPARE(inserted.size(), 0);
    const QPersistentModelIndex kept(model.index(1));
    model.setPageOrganization(organization(3, 3, 0));
    QVERIFY(!kept.isValid());
}

void tst_RVPageCountOrganizationListModel::keepsACopy()
{
    RVPageCountOrganization source = organization(26, 34, 4);
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(source);
    source -= 20;
    QCOMPARE(model.lowestValue(), 26);
    QCOMPARE(model.highestValue(), 34);
    QCOMPARE(model.pagesAtIndex(1), 30);
}

void tst_RVPageCountOrganizationListModel::translates()
{
    RVPageCountOrganizationListModel pages(false);
    RVPageCountOrganizationListModel photos(true);
    pages.setPageOrganization(organization(26, 30, 4));
    photos.setPageOrganization(organization(1, 2, 1));
    EnglishTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(texts(pages), QStringList({ u"pages: 26"_s, u"pages: 30"_s }));
    QCOMPARE(texts(photos), QStringList({ u"1 prints"_s, u"2 prints"_s }));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(texts(pages), QStringList({ u"26 Seiten"_s, u"30 Seiten"_s }));
}

QTEST_GUILESS_MAIN(tst_RVPageCountOrganizationListModel)
#include "tst_RVPageCountOrganizationListModel.moc"
