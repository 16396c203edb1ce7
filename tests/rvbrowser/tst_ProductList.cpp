#include "EnglishTest.h"
#include "FaultyProducts.h"
#include "ManyProducts.h"
#include "ReadCatalogue.h"

#include <FindingBadge.h>
#include <ProductList.h>

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTreeView>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ProductList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void looksLikeAList();
    void columns_data();
    void columns();
    void standsBelowEachOther();
    void groupsAreOpen();
    void choosesByKeys();
    void choosesByNumber();
    void choosesIntoSight();
    void clearsOnlyWhatHidesIt();
    void keepsTheProduct();
    void choosesNothing();
    void searchIsNoChoice();
    void leavesTheSearch();
    void countsProducts();
    void offersToClear();

private:
    void load(const QByteArray &content = FAULTY_PRODUCTS) { myList->setCatalogue(readCatalogue(content)); }
    void show();
    QTreeView *view() const { return myList->findChild<QTreeView *>(u"products"_s); }
    QLineEdit *search() const { return myList->findChild<QLineEdit *>(u"search"_s); }
    QCheckBox *faultyOnly() const { return myList->findChild<QCheckBox *>(u"faultyOnly"_s); }
    QPushButton *clearButton() const { return myList->findChild<QPushButton *>(u"clearSearch"_s); }
    QString count() const { return myList->findChild<QLabel *>(u"count"_s)->text(); }
    QString current() const { return view()->currentIndex().siblingAtColumn(0).data().toString(); }
    bool isInSight() const
    {
        return view()->viewport()->rect().contains(view()->visualRect(view()->currentIndex()).center());
    }

    std::unique_ptr<ProductList> myList;
    std::unique_ptr<QSignalSpy> myChosen;
};

void tst_ProductList::init()
{
    myList = std::make_unique<ProductList>();
    myList->resize(400, 400);
    myChosen = std::make_unique<QSignalSpy>(myList.get(), &ProductList::productChosen);
}

void tst_ProductList::show()
{
    myList->show();
    QVERIFY(QTest::qWaitForWindowActive(myList.get()));
}

void tst_ProductList::looksLikeAList()
{
    QCOMPARE(view()->accessibleName(), u"Products"_s);
    QVERIFY(view()->uniformRowHeights()); // or many products take long
    QVERIFY(view()->alternatingRowColors());
    QVERIFY(view()->allColumnsShowFocus());
    QVERIFY(qobject_cast<FindingBadge *>(view()->itemDelegateForColumn(ProductTreeModel::FindingsColumn)));
    const QHeaderView *header = view()->header();
    QVERIFY(!header->stretchLastSection());
    QCOMPARE(header->minimumSectionSize(), 0);
    QCOMPARE(header->sectionResizeMode(ProductTreeModel::NameColumn), QHeaderView::Stretch);
    QCOMPARE(header->sectionResizeMode(ProductTreeModel::FindingsColumn), QHeaderView::Fixed);
    QCOMPARE(faultyOnly()->toolTip(), u"Products with an error or a warning"_s);
}

void tst_ProductList::columns_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");

    QTest::newRow("short type") << QByteArray("A") << 14 << 14;
    QTest::newRow("usual type") << QByteArray("MMMMMM") << 15 << 21;
    QTest::newRow("long type") << QByteArray(60, 'M') << 22 << 22;
}

// The names get what is left; without findings there is no column for them.
void tst_ProductList::columns()
{
    QFETCH(QByteArray, type);
    QFETCH(int, least);
    QFETCH(int, most);
    const QFontMetrics metrics = myList->fontMetrics();
    load("<p><product type='" + type + "' article_id='1' cover_type='x' paper_type='x'/></p>");
    const int width = view()->columnWidth(ProductTreeModel::TypeColumn);
    QVERIFY2(width >= least * metrics.averageCharWidth() && width <= most * metrics.averageCharWidth(),
             qPrintable(u"%1 %2"_s.arg(width).arg(metrics.averageCharWidth())));
    QVERIFY(!view()->isColumnHidden(ProductTreeModel::FindingsColumn));
    QCOMPARE(view()->columnWidth(ProductTreeModel::FindingsColumn), FindingBadge::widthOf(2, metrics));
    load(manyProducts(1));
    QVERIFY(view()->isColumnHidden(ProductTreeModel::FindingsColumn));
    load("<p><product type='A' article_id='1' cover_type='x'/></p>"); // one finding is enough
    QVERIFY(!view()->isColumnHidden(ProductTreeModel::FindingsColumn));
}

void tst_ProductList::standsBelowEachOther()
{
    load();
    search()->setText(u"no such product"_s);
    show();
    int bottom = 0;
    for (const QWidget *part : std::initializer_list<const QWidget *> { search(), faultyOnly(), view(), clearButton(),
                                                                        myList->findChild<QLabel *>(u"count"_s) }) {
        QVERIFY2(part->isVisible() && part->y() > bottom, qPrintable(part->objectName()));
        bottom = part->geometry().bottom();
    }
}

void tst_ProductList::groupsAreOpen()
{
    load();
    const auto areOpen = [this] {
        for (int group = 0; group < view()->model()->rowCount(); ++group) {
            if (!view()->isExpanded(view()->model()->index(group, 0))
                || !view()->isFirstColumnSpanned(group, QModelIndex()))
                return false;
        }
        return true;
    };
    QCOMPARE(view()->model()->rowCount(), 2);
    QVERIFY(areOpen());
    search()->setText(u"n"_s);
    QVERIFY(areOpen());
    search()->clear();
    QVERIFY(areOpen());
    faultyOnly()->setChecked(true);
    QCOMPARE(view()->model()->rowCount(), 1);
    QVERIFY(areOpen());
    faultyOnly()->setChecked(false);
    QVERIFY(areOpen());
}

void tst_ProductList::choosesByKeys()
{
    load();
    view()->setCurrentIndex(view()->model()->index(0, 0)); // the kind of article
    QCOMPARE(myChosen->size(), 0);
    QCOMPARE(myList->currentProduct(), -1);
    QTest::keyClick(view(), Qt::Key_Down);
    QCOMPARE(*myChosen, (QList<QVariantList> { { 0 } }));
    QTest::keyClick(view(), Qt::Key_Down);
    QCOMPARE(*myChosen, (QList<QVariantList> { { 0 }, { 1 } }));
    QTest::keyClick(view(), Qt::Key_Up);
    QTest::keyClick(view(), Qt::Key_Up); // to the kind of article
    QTest::keyClick(view(), Qt::Key_Down); // and back to the product that is shown
    QCOMPARE(*myChosen, (QList<QVariantList> { { 0 }, { 1 }, { 0 } }));
    QCOMPARE(myList->currentProduct(), 0);
}

void tst_ProductList::choosesByNumber()
{
    load();
    for (const int missing : { -1, 4, 5 }) {
        myList->setCurrentProduct(missing);
        QCOMPARE(myChosen->size(), 0);
    }
    myList->setCurrentProduct(3);
    QCOMPARE(current(), u"DUN2"_s);
    myList->setCurrentProduct(4); // the product stays
    QCOMPARE(current(), u"DUN2"_s);
    myList->setCurrentProduct(0);
    QCOMPARE(*myChosen, (QList<QVariantList> { { 3 }, { 0 } }));
    QCOMPARE(current(), u"DUN10"_s);
    load(); // which chooses none
    QCOMPARE(myList->currentProduct(), -1);
    myList->setCurrentProduct(0);
    QCOMPARE(myChosen->size(), 3);
}

void tst_ProductList::choosesIntoSight()
{
    load(manyProducts(200));
    show();
    myList->setCurrentProduct(150);
    QVERIFY(isInSight());
    view()->scrollToTop();
    QVERIFY(!isInSight());
    myList->setCurrentProduct(150); // once more
    QVERIFY(isInSight());
    QCOMPARE(myChosen->size(), 1);
    search()->setText(u"t1"_s);
    QTRY_VERIFY(isInSight());
    search()->clear();
    QTRY_VERIFY(isInSight());
}

void tst_ProductList::clearsOnlyWhatHidesIt()
{
    load();
    faultyOnly()->setChecked(true);
    search()->setText(u"dun"_s);
    myList->setCurrentProduct(3);
    QVERIFY(faultyOnly()->isChecked());
    QCOMPARE(search()->text(), u"dun"_s);
    myList->setCurrentProduct(1); // has a note alone
    QVERIFY(!faultyOnly()->isChecked());
    QCOMPARE(search()->text(), u"dun"_s);
    faultyOnly()->setChecked(true);
    search()->setText(u"dun10"_s);
    myList->setCurrentProduct(3);
    QVERIFY(faultyOnly()->isChecked());
    QCOMPARE(search()->text(), QString());
    QCOMPARE(current(), u"DUN2"_s);
}

void tst_ProductList::keepsTheProduct()
{
    load();
    myList->keepCurrentProduct(2);
    QCOMPARE(myList->currentProduct(), 2);
    QCOMPARE(current(), u"VIR1"_s);
    QCOMPARE(myChosen->size(), 0);
    myList->setCurrentProduct(0);
    QCOMPARE(myChosen->size(), 1);
}

void tst_ProductList::choosesNothing()
{
    load();
    myList->setCurrentProduct(1);
    myList->clearCurrentProduct();
    QCOMPARE(myList->currentProduct(), -1);
    QVERIFY(!view()->currentIndex().isValid());
    myList->setCurrentProduct(1); // can be chosen again
    QCOMPARE(*myChosen, (QList<QVariantList> { { 1 }, { 1 } }));
}

void tst_ProductList::searchIsNoChoice()
{
    load();
    myList->setCurrentProduct(1);
    search()->setText(u"dun10"_s);
    QVERIFY(!view()->currentIndex().isValid());
    QCOMPARE(myList->currentProduct(), 1);
    search()->clear();
    QCOMPARE(current(), u"DUN9"_s);
    faultyOnly()->setChecked(true);
    QVERIFY(!view()->currentIndex().isValid());
    faultyOnly()->setChecked(false);
    QCOMPARE(current(), u"DUN9"_s);
    QCOMPARE(myChosen->size(), 1);
}

void tst_ProductList::leavesTheSearch()
{
    load();
    show();
    search()->setText(u"dun"_s);
    view()->setFocus();
    myList->focusSearch();
    QVERIFY(search()->hasFocus());
    QCOMPARE(search()->selectedText(), u"dun"_s); // the next key begins another search
    QTest::keyClicks(search(), u"wall"_s);
    myList->focusSearch(); // it has the focus already
    QCOMPARE(search()->selectedText(), u"wall"_s);
    QTest::keyClick(search(), Qt::Key_Down);
    QVERIFY(view()->hasFocus());
    QCOMPARE(current(), u"VIR1"_s);
    QCOMPARE(*myChosen, (QList<QVariantList> { { 2 } }));
    QCOMPARE(myList->firstProduct(), 2);
}

void tst_ProductList::countsProducts()
{
    QCOMPARE(count(), u"0 products"_s);
    load();
    QCOMPARE(count(), u"4 products"_s);
    search()->setText(u"wall"_s);
    QCOMPARE(count(), u"1 of 4 products"_s);
    search()->clear();
    QCOMPARE(count(), u"4 products"_s);
    faultyOnly()->setChecked(true);
    QCOMPARE(count(), u"2 of 4 products"_s);
    load(manyProducts(1));
    QCOMPARE(count(), u"0 of 1 product"_s);
}

void tst_ProductList::offersToClear()
{
    show();
    QVERIFY(!clearButton()->isVisible()); // there are no products at all
    load();
    QVERIFY(!clearButton()->isVisible());
    search()->setText(u"wall"_s);
    QVERIFY(!clearButton()->isVisible());
    faultyOnly()->setChecked(true);
    QVERIFY(clearButton()->isVisible());
    QCOMPARE(clearButton()->text(), u"Nothing found: &clear the search"_s);
    QTest::mouseClick(clearButton(), Qt::LeftButton);
    QVERIFY(!clearButton()->isVisible());
    QVERIFY(!faultyOnly()->isChecked());
    QCOMPARE(search()->text(), QString());
    QVERIFY(search()->hasFocus());
    load(manyProducts(1));
    faultyOnly()->setChecked(true);
    QVERIFY(clearButton()->isVisible());
    QCOMPARE(clearButton()->text(), u"No faulty product: &show all"_s);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_ProductList>(argc, argv);
}

#include "tst_ProductList.moc"
