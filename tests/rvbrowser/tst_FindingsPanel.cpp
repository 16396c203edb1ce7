#include "EnglishTest.h"
#include "FaultyProducts.h"
#include "ManyProducts.h"
#include "ReadCatalogue.h"

#include <FindingFilterBar.h>
#include <FindingsPanel.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSplitter>
#include <QTableView>
#include <QTextBrowser>
#include <QToolButton>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// One product with faults that differ in nothing but their places.
QByteArray equalFaults(int count)
{
    return "<p><product type='DUN1' article_id='1'><forms>" + QByteArray("<form key='a'/>").repeated(count)
            + "</forms></product></p>";
}

}

class tst_FindingsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void looksLikeAList();
    void standsBelowEachOther();
    void needsALineWithoutFindings();
    void hasRoomForSomeFindings();
    void saysWhyThereIsNothing();
    void sharesItsRoomWithTheExplanation();
    void givesTheFocusToTheExplanation();
    void explainsWhatIsChosen();
    void steps();
    void stepsBackFromNothing();
    void stepsIntoSight();
    void choosesByMouseAndKey();
    void tellsOfAFindingWithoutAProduct();
    void editsByDoubleClick();
    void tellsWhatIsSelected();
    void keepsTheSelectionInAnotherOrder();
    void keepsAChosenFindingThatIsHidden();
    void leavesTheFilterForTheList();
    void goesOnWhereOneWasMended();
    void goesOnWhereTheFirstWasMended();
    void goesOnAtTheEnd();
    void beginsAgain_data();
    void beginsAgain();
    void isNotFooledBySimilarFindings();
    void staysAtTheNearest_data();
    void staysAtTheNearest();
    void staysInFront();
    void showsNoCatalogue();

private:
    QTableView *view() const { return myPanel->findChild<QTableView *>(u"findings"_s); }
    QTextBrowser *explanation() const { return myPanel->findChild<QTextBrowser *>(u"explanation"_s); }
    QLabel *nothing() const { return myPanel->findChild<QLabel *>(u"noFindings"_s); }
    QPushButton *clearButton() const { return myPanel->findChild<QPushButton *>(u"clearFilter"_s); }
    FindingFilterBar *bar() const { return myPanel->findChild<FindingFilterBar *>(); }
    void filter(const QString &text) { myPanel->findChild<QLineEdit *>(u"findingText"_s)->setText(text); }
    void sort(int column, Qt::SortOrder order) { view()->horizontalHeader()->setSortIndicator(column, order); }
    void load(const QByteArray &content = FAULTY_PRODUCTS, const QString &fileName = u"c.xml"_s)
    {
        myPanel->setCatalogue(readCatalogue(content, fileName));
    }
    /// Chooses a row with the mouse.
    void click(int row, int column = FINDING_TEXT, Qt::KeyboardModifiers modifiers = {});
    void show();

    std::unique_ptr<FindingsPanel> myPanel;
    QStringList myTold; // what was chosen by steps
};

void tst_FindingsPanel::init()
{
    myPanel = std::make_unique<FindingsPanel>();
    myPanel->resize(900, 300);
}

void tst_FindingsPanel::show()
{
    myPanel->show();
    QVERIFY(QTest::qWaitForWindowActive(myPanel.get()));
}

void tst_FindingsPanel::click(int row, int column, Qt::KeyboardModifiers modifiers)
{
    const QPoint place = view()->visualRect(view()->model()->index(row, column)).center();
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers, place);
}

void tst_FindingsPanel::looksLikeAList()
{
    load();
    show();
    QVERIFY(!view()->showGrid());
    QVERIFY(!view()->wordWrap()); // a finding has one line
    QVERIFY(!view()->tabKeyNavigation()); // the tabulator leaves the list
    QCOMPARE(view()->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(view()->accessibleName(), u"Findings"_s);
    QVERIFY(!view()->verticalHeader()->isVisible());
    QCOMPARE(view()->verticalHeader()->minimumSectionSize(), 0);
    QCOMPARE(view()->rowHeight(0), view()->fontMetrics().height() + 6);
    const QHeaderView *header = view()->horizontalHeader();
    QVERIFY(!header->highlightSections());
    QCOMPARE(header->defaultAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(header->isSortIndicatorShown());
    QVERIFY(header->isSortIndicatorClearable());
    QCOMPARE(header->sortIndicatorSection(), -1); // in the order of the file
    for (int column = 0; column < FINDING_COLUMN_COUNT; ++column) {
        if (column != FINDING_TEXT)
            QVERIFY2(view()->columnWidth(column) >= view()->sizeHintForIndex(view()->model()->index(0, column)).width(),
                     qPrintable(QString::number(column)));
    }
    QCOMPARE(header->length(), view()->viewport()->width()); // the text gets what is left
    const int before = view()->columnWidth(FINDING_TEXT);
    myPanel->resize(1100, 300);
    QTRY_COMPARE(view()->columnWidth(FINDING_TEXT), before + 200);
}

void tst_FindingsPanel::standsBelowEachOther()
{
    load();
    show();
    QCOMPARE(myPanel->layout()->contentsMargins(), QMargins());
    QCOMPARE(bar()->y(), 0);
    const auto *splitter = myPanel->findChild<QSplitter *>();
    QVERIFY(splitter->y() >= bar()->height());
    QCOMPARE(splitter->geometry().bottom(), myPanel->rect().bottom());
    QVERIFY(bar()->height() <= bar()->sizeHint().height()); // all else is for the list
    filter(u"no such thing"_s);
    QTRY_VERIFY(clearButton()->isVisible());
    QTRY_VERIFY(nothing()->y() >= bar()->height());
    QVERIFY(clearButton()->y() >= nothing()->geometry().bottom());
    QCOMPARE(clearButton()->x(), 0);
    QCOMPARE(clearButton()->width(), clearButton()->sizeHint().width());
    QVERIFY(clearButton()->y() <= nothing()->geometry().bottom() + 1 + myPanel->layout()->spacing());
}

void tst_FindingsPanel::needsALineWithoutFindings()
{
    const QSize line(600, myPanel->fontMetrics().height() + 6);
    QCOMPARE(myPanel->sizeHint(), line);
    load(manyProducts(1));
    QCOMPARE(myPanel->sizeHint(), line);
}

void tst_FindingsPanel::hasRoomForSomeFindings()
{
    load(equalFaults(1));
    const int line = myPanel->fontMetrics().height() + 6;
    const int others = view()->horizontalHeader()->sizeHint().height() + bar()->sizeHint().height();
    QCOMPARE(myPanel->sizeHint(), QSize(600, 5 * line + others));
    filter(u"no such thing"_s);
    QCOMPARE(myPanel->sizeHint(), QSize(600, 5 * line + others)); // the room stays while the filter is changed
}

void tst_FindingsPanel::saysWhyThereIsNothing()
{
    show();
    const auto *splitter = myPanel->findChild<QSplitter *>();
    const auto shown = [this, splitter] {
        return QList<bool> { bar()->isVisible(), nothing()->isVisible(), clearButton()->isVisible(),
                             splitter->isVisible() };
    };
    const QString none = u"Nothing was found. The catalogue is checked again whenever its file changes."_s;
    QCOMPARE(shown(), (QList<bool> { false, true, false, false }));
    QCOMPARE(nothing()->text(), none);
    QVERIFY(nothing()->wordWrap());
    QCOMPARE(nothing()->indent(), 6);
    load();
    QCOMPARE(shown(), (QList<bool> { true, false, false, true }));
    filter(u"dun10"_s); // one is left
    QCOMPARE(shown(), (QList<bool> { true, false, false, true }));
    filter(u"no such thing"_s);
    QCOMPARE(shown(), (QList<bool> { true, true, true, false }));
    QCOMPARE(nothing()->text(), u"No finding matches the filter."_s);
    QCOMPARE(myPanel->findChild<QLabel *>(u"findingCount"_s)->text(), u"0 of 5 findings"_s);
    clearButton()->click();
    QCOMPARE(shown(), (QList<bool> { true, false, false, true }));
    QVERIFY(myPanel->findChild<QLineEdit *>(u"findingText"_s)->hasFocus());
    load(equalFaults(1)); // one is enough
    QCOMPARE(shown(), (QList<bool> { true, false, false, true }));
    load(manyProducts(1));
    QCOMPARE(shown(), (QList<bool> { false, true, false, false }));
    QCOMPARE(nothing()->text(), none);
}

void tst_FindingsPanel::sharesItsRoomWithTheExplanation()
{
    load();
    myPanel->resize(1500, 300);
    show();
    QVERIFY(!explanation()->isVisible());
    myPanel->setExplained(true);
    const auto *splitter = myPanel->findChild<QSplitter *>();
    QVERIFY(!splitter->childrenCollapsible());
    QCOMPARE(splitter->widget(0), view());
    QCOMPARE(splitter->widget(1), explanation());
    myPanel->resize(1600, 300); // three parts for the list, and two for the explanation
    QTRY_VERIFY2(qAbs(2 * view()->width() - 3 * explanation()->width()) < 20,
                 qPrintable(u"%1 %2"_s.arg(view()->width()).arg(explanation()->width())));
    QCOMPARE(explanation()->accessibleName(), u"Explanation of the finding"_s);
}

void tst_FindingsPanel::givesTheFocusToTheExplanation()
{
    load();
    show();
    myPanel->setExplained(true);
    QVERIFY(explanation()->hasFocus());
    myPanel->setExplained(false);
    QVERIFY(!explanation()->isVisible());
    QVERIFY(view()->hasFocus());
    myPanel->setExplained(true);
    bar()->focusText();
    myPanel->setExplained(false); // the focus is somewhere else and stays there
    QVERIFY(myPanel->findChild<QLineEdit *>(u"findingText"_s)->hasFocus());
}

void tst_FindingsPanel::explainsWhatIsChosen()
{
    load();
    show();
    QSignalSpy changed(myPanel.get(), &FindingsPanel::selectionChanged);
    myPanel->next();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(explanation()->toPlainText(), QString()); // as long as nobody wants to see it
    myPanel->setExplained(true);
    QVERIFY(explanation()->toPlainText().startsWith("\"hardcovr\" is no keyword"_L1));
    QTest::keyClick(view(), Qt::Key_Down);
    QVERIFY(explanation()->toPlainText().startsWith("\"A4\" is an alias"_L1));
    changed.clear();
    QTest::keyClick(view(), Qt::Key_Down, Qt::ControlModifier); // goes there and selects nothing
    QVERIFY(!changed.isEmpty());
    QVERIFY(explanation()->toPlainText().startsWith("\"spirall\" is no keyword"_L1));
    changed.clear();
    QTest::keyClick(view(), Qt::Key_Space, Qt::ControlModifier); // selects it, and stays there
    QVERIFY(!changed.isEmpty());
    filter(u"dun10"_s);
    QCOMPARE(explanation()->toPlainText(), QString()); // it is hidden
}

void tst_FindingsPanel::steps()
{
    using Step = FindingsPanel::Step;
    QCOMPARE(myPanel->next(), Step::None);
    QCOMPARE(myPanel->previous(), Step::None);
    load();
    connect(myPanel.get(), &FindingsPanel::productChosen, this,
            [this](int product) { myTold += u"p%1"_s.arg(product); });
    connect(myPanel.get(), &FindingsPanel::findingChosen, this,
            [this](int finding) { myTold += u"f%1"_s.arg(finding); });
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(myPanel->next(), Step::Taken);
        QCOMPARE(myPanel->currentFinding(), i);
        QCOMPARE(myPanel->selectedFindings(), QList<int> { i });
    }
    QCOMPARE(myTold.join(u' '), u"p0 f0 p1 f1 p3 f2 p3 f3 p3 f4"_s);
    QCOMPARE(myPanel->next(), Step::Wrapped);
    QCOMPARE(myPanel->currentFinding(), 0);
    QCOMPARE(myPanel->previous(), Step::Wrapped);
    QCOMPARE(myPanel->currentFinding(), 4);
    for (int i = 3; i >= 0; --i) {
        QCOMPARE(myPanel->previous(), Step::Taken);
        QCOMPARE(myPanel->currentFinding(), i);
    }
}

void tst_FindingsPanel::stepsBackFromNothing()
{
    load();
    QCOMPARE(myPanel->previous(), FindingsPanel::Step::Wrapped);
    QCOMPARE(myPanel->currentFinding(), 4);
    load(equalFaults(1), u"other.xml"_s);
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Taken);
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Wrapped);
    QCOMPARE(myPanel->currentFinding(), 0);
}

void tst_FindingsPanel::stepsIntoSight()
{
    load(equalFaults(200));
    show();
    const auto isInSight = [this](int row) {
        return view()->viewport()->rect().contains(view()->visualRect(view()->model()->index(row, 0)).center());
    };
    myPanel->previous();
    QVERIFY(isInSight(199));
    QVERIFY(!isInSight(0));
    sort(FINDING_PLACE, Qt::DescendingOrder); // the chosen one comes along
    QTRY_VERIFY(isInSight(0));
    QCOMPARE(myPanel->currentFinding(), 199);
}

void tst_FindingsPanel::choosesByMouseAndKey()
{
    load();
    show();
    QSignalSpy product(myPanel.get(), &FindingsPanel::productChosen);
    QSignalSpy finding(myPanel.get(), &FindingsPanel::findingChosen);
    click(3);
    QCOMPARE(product, (QList<QVariantList> { { 3 } }));
    QCOMPARE(finding, (QList<QVariantList> { { 3 } }));
    QTest::keyClick(view(), Qt::Key_Up);
    QCOMPARE(finding.size(), 1);
    QTest::keyClick(view(), Qt::Key_Return);
    QCOMPARE(finding.size(), 2);
    QCOMPARE(finding.constLast().constFirst().toInt(), 2);
}

void tst_FindingsPanel::tellsOfAFindingWithoutAProduct()
{
    load("<p/>"); // which has no products
    QCOMPARE(view()->model()->rowCount(), 1);
    QSignalSpy product(myPanel.get(), &FindingsPanel::productChosen);
    QSignalSpy finding(myPanel.get(), &FindingsPanel::findingChosen);
    myPanel->next();
    QCOMPARE(product.size(), 0);
    QCOMPARE(finding.size(), 1);
}

void tst_FindingsPanel::editsByDoubleClick()
{
    load();
    show();
    QSignalSpy wanted(myPanel.get(), &FindingsPanel::editRequested);
    const auto doubleClick = [this](int column) {
        click(1, column);
        const QPoint place = view()->visualRect(view()->model()->index(1, column)).center();
        QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, place);
    };
    doubleClick(FINDING_RULE);
    QCOMPARE(wanted.size(), 0);
    doubleClick(FINDING_PLACE);
    QCOMPARE(wanted.size(), 1);
}

void tst_FindingsPanel::tellsWhatIsSelected()
{
    QCOMPARE(myPanel->currentFinding(), -1);
    QVERIFY(myPanel->selectedFindings().isEmpty());
    QCOMPARE(myPanel->summary(), u"0 errors, 0 warnings, 0 notes"_s);
    QSignalSpy changed(myPanel.get(), &FindingsPanel::catalogueChanged);
    load();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(myPanel->summary(), u"3 errors, 1 warning, 1 note"_s);
    QCOMPARE(myPanel->currentFinding(), -1);
    show();
    click(4);
    click(0, FINDING_TEXT, Qt::ControlModifier);
    click(2, FINDING_TEXT, Qt::ControlModifier);
    QCOMPARE(myPanel->selectedFindings(), (QList<int> { 0, 2, 4 })); // as they are shown
    QCOMPARE(myPanel->currentFinding(), 2);
}

void tst_FindingsPanel::keepsTheSelectionInAnotherOrder()
{
    load();
    show();
    click(2);
    click(4, FINDING_TEXT, Qt::ShiftModifier);
    click(0, FINDING_TEXT, Qt::ControlModifier);
    QCOMPARE(myPanel->currentFinding(), 0);
    sort(FINDING_PLACE, Qt::DescendingOrder);
    QCOMPARE(myPanel->selectedFindings(), (QList<int> { 4, 3, 2, 0 }));
    QCOMPARE(myPanel->currentFinding(), 0);
    const QItemSelectionModel *selection = view()->selectionModel();
    QCOMPARE(selection->selectedIndexes().size(), 4 * FINDING_COLUMN_COUNT);
    // Rows below each other are one range, so that many of them are selected at once.
    QCOMPARE(selection->selection().size(), 2);
    sort(-1, Qt::AscendingOrder);
    QCOMPARE(myPanel->selectedFindings(), (QList<int> { 0, 2, 3, 4 }));
}

void tst_FindingsPanel::keepsAChosenFindingThatIsHidden()
{
    load();
    show();
    click(0);
    filter(u"dun9"_s);
    QCOMPARE(myPanel->currentFinding(), -1);
    filter(u"no such thing"_s); // hidden for longer
    filter(QString());
    QCOMPARE(myPanel->currentFinding(), 0);
    QCOMPARE(myPanel->selectedFindings(), QList<int> { 0 });
    click(4);
    click(3, FINDING_TEXT, Qt::ControlModifier);
    filter(u"dun2"_s); // which shows both
    QCOMPARE(myPanel->selectedFindings(), (QList<int> { 3, 4 }));
    QCOMPARE(myPanel->currentFinding(), 3);
    filter(u"dun1"_s);
    QTest::keyClick(view(), Qt::Key_Down); // another one is chosen
    QCOMPARE(myPanel->currentFinding(), 0);
    filter(QString());
    QCOMPARE(myPanel->currentFinding(), 0);
    QCOMPARE(myPanel->selectedFindings(), QList<int> { 0 });
    filter(u"dun2"_s); // finding 0 is hidden
    load(); // and after that, nothing is kept of the filter
    filter(QString());
    QCOMPARE(myPanel->currentFinding(), -1);
}

void tst_FindingsPanel::leavesTheFilterForTheList()
{
    load();
    show();
    auto *text = myPanel->findChild<QLineEdit *>(u"findingText"_s);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Down);
    QVERIFY(view()->hasFocus());
    QCOMPARE(myPanel->selectedFindings(), QList<int> { 0 });
    QCOMPARE(view()->currentIndex().row(), 0);
    sort(FINDING_PLACE, Qt::DescendingOrder);
    QCOMPARE(view()->currentIndex().row(), 4);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_Down);
    QVERIFY(view()->hasFocus());
    QCOMPARE(myPanel->currentFinding(), 0); // the chosen one stays
}

void tst_FindingsPanel::goesOnWhereOneWasMended()
{
    load();
    sort(FINDING_PLACE, Qt::DescendingOrder);
    for (int i = 0; i < 5; ++i)
        myPanel->next();
    QCOMPARE(myPanel->currentFinding(), 0); // in the last row
    myPanel->previous();
    QCOMPARE(myPanel->currentFinding(), 1);
    load(QByteArray(FAULTY_PRODUCTS).replace("'A4'", "'600cm2'"));
    QCOMPARE(myPanel->currentFinding(), -1);
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Taken);
    QCOMPARE(view()->currentIndex().row(), 3);
    load(QByteArray(FAULTY_PRODUCTS).replace("'A4'", "'600cm2'").replace("hardcovr", "hardcover"));
    load(QByteArray(FAULTY_PRODUCTS).replace("'A4'", "'600cm2'").replace("hardcovr", "hardcover")); // saved once more
    QCOMPARE(myPanel->previous(), FindingsPanel::Step::Taken);
    QCOMPARE(view()->currentIndex().row(), 2);
}

// Several were mended, so there is no such row.
// The first finding of the file stands in the last row.
void tst_FindingsPanel::goesOnWhereTheFirstWasMended()
{
    load();
    sort(FINDING_PLACE, Qt::DescendingOrder);
    for (int i = 0; i < 5; ++i)
        myPanel->next();
    load(QByteArray(FAULTY_PRODUCTS).replace("hardcovr", "hardcover"));
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Wrapped);
}

void tst_FindingsPanel::goesOnAtTheEnd()
{
    const QByteArray mended = QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral").replace("'73'", "'72'");
    load();
    myPanel->previous();
    load(QByteArray(mended).replace("<form key='alcolor'/>", ""));
    QCOMPARE(view()->model()->rowCount(), 2);
    QCOMPARE(myPanel->previous(), FindingsPanel::Step::Taken);
    QCOMPARE(myPanel->currentFinding(), 1);
    load();
    myPanel->previous();
    myPanel->previous();
    QCOMPARE(myPanel->currentFinding(), 4);
    load(QByteArray(mended).replace("<form key='alcolor'/>", ""));
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Wrapped);
    QCOMPARE(myPanel->currentFinding(), 0);
}

void tst_FindingsPanel::beginsAgain_data()
{
    QTest::addColumn<QString>("what");

    QTest::newRow("another file") << u"file"_s;
    QTest::newRow("another filter") << u"filter"_s;
    QTest::newRow("another order") << u"order"_s;
}

void tst_FindingsPanel::beginsAgain()
{
    QFETCH(QString, what);
    load();
    for (int i = 0; i < 3; ++i)
        myPanel->next();
    const QByteArray mended = QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral");
    load(mended);
    if (what == "file"_L1)
        load(mended, u"other.xml"_s);
    else if (what == "filter"_L1)
        filter(u"dun"_s);
    else
        sort(FINDING_PLACE, Qt::AscendingOrder);
    QCOMPARE(myPanel->currentFinding(), -1);
    QCOMPARE(myPanel->next(), FindingsPanel::Step::Taken);
    QCOMPARE(view()->currentIndex().row(), 0);
    load(FAULTY_PRODUCTS, u"third.xml"_s); // which has the same finding
    QCOMPARE(myPanel->currentFinding(), -1);
}

// Of another product, or of another value of the product.
void tst_FindingsPanel::isNotFooledBySimilarFindings()
{
    const QByteArray before = "<p><product type='DUN1' article_id='1' cover_type='x' paper_type='y'/>"
                              "<product type='DUN2' article_id='2' cover_type='x'/></p>";
    load(before);
    myPanel->next();
    load(QByteArray(before).replace("DUN1' article_id='1' cover_type='x'", "DUN1' article_id='1'"));
    QCOMPARE(view()->model()->rowCount(), 2);
    QCOMPARE(myPanel->currentFinding(), -1);
}

void tst_FindingsPanel::staysAtTheNearest_data()
{
    QTest::addColumn<int>("chosen");

    QTest::newRow("first") << 0;
    QTest::newRow("middle") << 2;
    QTest::newRow("last") << 4;
}

void tst_FindingsPanel::staysAtTheNearest()
{
    QFETCH(int, chosen);
    load(equalFaults(5));
    for (int i = 0; i <= chosen; ++i)
        myPanel->next();
    load(equalFaults(5).prepend('\n')); // all of them moved
    QCOMPARE(myPanel->currentFinding(), chosen);
    QCOMPARE(myPanel->selectedFindings(), QList<int> { chosen });
    load(equalFaults(5).replace("<form key='a'/>", "<form value='b'/>").replace("<p>", "<p> "));
    QCOMPARE(myPanel->currentFinding(), -1);
}

// Of two that are equally near, the one in front.
void tst_FindingsPanel::staysInFront()
{
    load(equalFaults(5));
    for (int i = 0; i < 3; ++i)
        myPanel->next();
    load("<p><product type='DUN1' article_id='1'><forms><form key='a'/><form key='a'/><form value='b'/><form key='a'/>"
         "<form key='a'/></forms></product></p>");
    QCOMPARE(myPanel->currentFinding(), 1);
}

void tst_FindingsPanel::showsNoCatalogue()
{
    load();
    show();
    myPanel->next();
    myPanel->setCatalogue(nullptr);
    QVERIFY(!myPanel->catalogue());
    QVERIFY(nothing()->isVisible());
    QCOMPARE(myPanel->currentFinding(), -1);
    QCOMPARE(myPanel->next(), FindingsPanel::Step::None);
    myPanel->setCatalogue(nullptr);
    load();
    QCOMPARE(myPanel->currentFinding(), -1);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_FindingsPanel>(argc, argv);
}

#include "tst_FindingsPanel.moc"
