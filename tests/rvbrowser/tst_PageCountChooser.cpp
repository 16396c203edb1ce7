#include <PageCountChooser.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>

#include <memory>

using namespace Qt::StringLiterals;

/// Without a translation, so the library speaks German.
class tst_PageCountChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void beginsEmpty();
    void choosesFromAList();
    void countsPhotos();
    void setsPages_data();
    void setsPages();
    void setsTheHighest();
    void rowsThatAreNotThere();
    void oneCount();
    void invalidCounts_data();
    void invalidCounts();
    void longLists_data();
    void longLists();
    void typesANumber();
    void goesBackToAList();
    void wheelNeedsFocus();
    void takesTheFocusOfItsLabel();
    void looksLikeOneControl();
    void numbersOfOneCount();

private:
    QComboBox *list() const { return myChooser->findChild<QComboBox *>(u"pageCounts"_s); }
    QSpinBox *number() const { return myChooser->findChild<QSpinBox *>(u"pageNumber"_s); }

    std::unique_ptr<PageCountChooser> myChooser;
    std::unique_ptr<QSignalSpy> myChanged;
};

namespace {

const RVPageCountOrganization BOOK({ 26, 154 }, 4);
const RVPageCountOrganization HUGE({ 1, 2147483647 }, 3);

}

void tst_PageCountChooser::init()
{
    myChooser = std::make_unique<PageCountChooser>();
    myChooser->show();
    QVERIFY(QTest::qWaitForWindowExposed(myChooser.get()));
    myChooser->activateWindow();
    myChanged = std::make_unique<QSignalSpy>(myChooser.get(), &PageCountChooser::rowChanged);
}

void tst_PageCountChooser::beginsEmpty()
{
    QCOMPARE(myChooser->row(), -1);
    myChooser->setPages(30);
    QCOMPARE(myChooser->row(), -1);
    QCOMPARE(myChanged->size(), 0);
    QVERIFY(list()->isVisible());
    QCOMPARE(myChooser->focusProxy(), list());
}

void tst_PageCountChooser::choosesFromAList()
{
    myChooser->setPageCounts(BOOK, false);
    QCOMPARE(*myChanged, (QList<QVariantList> { { 0 } }));
    QCOMPARE(list()->count(), 33);
    QCOMPARE(list()->currentText(), u"26 Seiten"_s);
    QVERIFY(list()->isVisible());
    QVERIFY(!number()->isVisible());
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Down);
    QCOMPARE(*myChanged, (QList<QVariantList> { { 0 }, { 1 }, { 2 } }));
    QCOMPARE(myChooser->row(), 2);
    QCOMPARE(myChooser->pages(), 34);
    myChooser->setPageCounts(BOOK, false); // of another product
    QCOMPARE(myChooser->pages(), 26);
    QCOMPARE(list()->currentIndex(), 0);
}

void tst_PageCountChooser::countsPhotos()
{
    myChooser->setPageCounts(BOOK, true);
    QCOMPARE(list()->currentText(), u"26 Fotos"_s);
    myChooser->setPageCounts(BOOK, false);
    QCOMPARE(list()->currentText(), u"26 Seiten"_s);
}

void tst_PageCountChooser::setsPages_data()
{
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("pages");

    QTest::newRow("lowest") << 26 << 26;
    QTest::newRow("below the lowest") << 1 << 26;
    QTest::newRow("negative") << -7 << 26;
    QTest::newRow("possible") << 30 << 30;
    QTest::newRow("between two counts") << 31 << 34;
    QTest::newRow("highest") << 154 << 154;
    QTest::newRow("above the highest") << 1000000 << 154;
}

void tst_PageCountChooser::setsPages()
{
    QFETCH(int, wanted);
    myChooser->setPageCounts(BOOK, false);
    myChanged->clear();
    myChooser->setPages(wanted);
    QTEST(myChooser->pages(), "pages");
    QCOMPARE(list()->currentIndex(), myChooser->row());
    QCOMPARE(myChanged->size(), myChooser->row() == 0 ? 0 : 1);
    myChooser->setPages(myChooser->pages()); // nothing new
    QCOMPARE(myChanged->size(), myChooser->row() == 0 ? 0 : 1);
}

// If the steps miss the highest count, the last one before it.
void tst_PageCountChooser::setsTheHighest()
{
    myChooser->setPageCounts(RVPageCountOrganization({ 26, 155 }, 4), false);
    myChooser->setPages(155);
    QCOMPARE(myChooser->pages(), 154);
}

void tst_PageCountChooser::rowsThatAreNotThere()
{
    myChooser->setRow(0); // of no counts
    QCOMPARE(myChooser->row(), -1);
    myChooser->setPageCounts(BOOK, false);
    myChooser->setPages(30);
    myChanged->clear();
    for (const int row : { -1, 33 }) {
        myChooser->setRow(row);
        QCOMPARE(myChooser->row(), 1);
    }
    QVERIFY(myChanged->isEmpty());
}

void tst_PageCountChooser::oneCount()
{
    myChooser->setPageCounts(RVPageCountOrganization({ 13, 13 }, 1), false);
    QCOMPARE(list()->count(), 1);
    myChooser->setPages(20);
    QCOMPARE(myChooser->pages(), 13);
}

void tst_PageCountChooser::invalidCounts_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("step");

    QTest::newRow("lowest above highest") << 20 << 10 << 2;
    QTest::newRow("no steps") << 10 << 20 << 0;
    QTest::newRow("steps down") << 10 << 20 << -1;
}

void tst_PageCountChooser::invalidCounts()
{
    QFETCH(int, lowest);
    QFETCH(int, highest);
    QFETCH(int, step);
    myChooser->setPageCounts(BOOK, false);
    myChanged->clear();
    myChooser->setPageCounts(RVPageCountOrganization({ lowest, highest }, step), false);
    QCOMPARE(*myChanged, (QList<QVariantList> { { -1 } }));
    QVERIFY(!myChooser->isEnabled());
    QCOMPARE(myChooser->row(), -1);
    myChooser->setPages(12);
    QCOMPARE(myChooser->row(), -1);
    myChooser->setPageCounts(BOOK, false);
    QVERIFY(myChooser->isEnabled());
    QCOMPARE(myChooser->pages(), 26);
}

void tst_PageCountChooser::longLists_data()
{
    QTest::addColumn<int>("highest");
    QTest::addColumn<bool>("isList");

    QTest::newRow("5000 counts") << 5000 << true;
    QTest::newRow("5001 counts") << 5001 << false;
    QTest::newRow("highest number of counts") << 2147483647 << false;
}

void tst_PageCountChooser::longLists()
{
    QFETCH(int, highest);
    QFETCH(bool, isList);
    myChooser->setPageCounts(RVPageCountOrganization({ 1, highest }, 1), false);
    QCOMPARE(list()->isVisible(), isList);
    QCOMPARE(number()->isVisible(), !isList);
    QCOMPARE(myChooser->focusProxy(), isList ? static_cast<QWidget *>(list()) : number());
    QCOMPARE(myChooser->pages(), 1);
    myChooser->setPages(highest);
    QCOMPARE(myChooser->pages(), highest);
}

void tst_PageCountChooser::typesANumber()
{
    myChooser->setPageCounts(HUGE, false);
    number()->selectAll();
    QTest::keyClicks(number(), u"3000"_s);
    QTest::keyClick(number(), Qt::Key_Return);
    QCOMPARE(number()->value(), 3001);
    QCOMPARE(myChooser->pages(), 3001);
    QTest::keyClick(number(), Qt::Key_Up);
    QCOMPARE(number()->value(), 3004);
    QTest::keyClick(number(), Qt::Key_Down);
    QCOMPARE(number()->value(), 3001);
    QCOMPARE(*myChanged, (QList<QVariantList> { { 0 }, { 1000 }, { 1001 }, { 1000 } }));
}

void tst_PageCountChooser::goesBackToAList()
{
    myChooser->setPageCounts(HUGE, false);
    myChooser->setPages(3001);
    myChooser->setPageCounts(BOOK, false);
    QVERIFY(list()->isVisible());
    QCOMPARE(list()->count(), 33);
    QCOMPARE(myChooser->pages(), 26);
}

// A wheel over it scrolls the product, as long as it does not have the focus.
void tst_PageCountChooser::wheelNeedsFocus()
{
    const auto turn = [](QWidget *control) {
        const QPointF middle = control->rect().center();
        QWheelEvent event(middle, control->mapToGlobal(middle), {}, { 0, -120 }, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(control, &event);
    };
    myChooser->setPageCounts(BOOK, false);
    list()->clearFocus();
    turn(list());
    QCOMPARE(myChooser->row(), 0);
    list()->setFocus();
    QTRY_VERIFY(list()->hasFocus());
    turn(list());
    QCOMPARE(myChooser->row(), 1);
}

void tst_PageCountChooser::takesTheFocusOfItsLabel()
{
    QVERIFY(myChooser->focusPolicy() & Qt::TabFocus);
    myChooser->setPageCounts(HUGE, false);
    myChooser->setFocus();
    QTRY_VERIFY(number()->hasFocus());
}

// It is as wide as a long count, and not as wide as the window.
void tst_PageCountChooser::looksLikeOneControl()
{
    QCOMPARE(list()->accessibleName(), u"Page count"_s);
    QCOMPARE(number()->accessibleName(), u"Page count"_s);
    QCOMPARE(list()->sizeAdjustPolicy(), QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QCOMPARE(list()->minimumContentsLength(), 12);
    QCOMPARE(myChooser->sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed));
    QVERIFY(!number()->keyboardTracking()); // a number that is being typed is none yet
    QCOMPARE(myChooser->focusPolicy(), Qt::StrongFocus);
}

void tst_PageCountChooser::numbersOfOneCount()
{
    myChooser->setPageCounts(RVPageCountOrganization({ 1, 20001 }, 2), false);
    QCOMPARE(number()->minimum(), 1);
    QCOMPARE(number()->maximum(), 20001);
    QCOMPARE(number()->singleStep(), 2);
    QVERIFY(list()->count() <= 1); // the list would take long
    QCOMPARE(list()->currentIndex(), -1);
    myChooser->setPageCounts(RVPageCountOrganization({ 10, 20 }, -1), false);
    QCOMPARE(number()->singleStep(), 1);
    QVERIFY(list()->count() <= 1);
    QVERIFY(list()->isVisible());
}

QTEST_MAIN(tst_PageCountChooser)
#include "tst_PageCountChooser.moc"
