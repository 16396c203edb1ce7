#include "ComparedCatalogues.h"
#include "EnglishTest.h"
#include "ManyProducts.h"
#include "WrittenFile.h"

#include <ComparisonActions.h>
#include <ComparisonFilter.h>
#include <ComparisonPanel.h>
#include <MainWindow.h>
#include <MessageBanner.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int TIMEOUT = 60000; // ms

/// The changes that a panel shows.
QTreeView *changesOf(const ComparisonPanel &panel)
{
    return panel.findChild<QTreeView *>();
}

QModelIndex firstColumn(const ComparisonPanel &panel, int product)
{
    return changesOf(panel)->model()->index(product, 0);
}

QString textOf(const ComparisonPanel &panel, const QString &label)
{
    return panel.findChild<QLabel *>(label)->text();
}

}

/// The comparison in the window: its menu, and the dock with the changes.
class tst_ComparisonPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingOpen();
    void comparesWithAFile();
    void leadsToProducts();
    void showsWhatWasRemoved();
    void showsWhatOnlyTheOtherHas();
    void showsTheFirstOfTheOther();
    void productsOfOneType();
    void walksByKeys();
    void filters();
    void keepsTheChoice();
    void focusIsNoChoice();
    void copies();
    void saves_data();
    void saves();
    void savesNowhere();
    void equalCatalogues();
    void swaps();
    void changesSinceOpening();
    void openingAgainBeginsAgain();
    void comparesAChangedFile();
    void brokenFile();
    void vanishedFile();
    void cancelsByKey();
    void cancelsOneAfterTheOther();
    void closes();
    void closesWhileComparing();
    void dockStaysHidden();
    void dockComesToTheFront();
    void dockIsHighEnough();
    void narrowWindow();
    void looksLikeAList();
    void partsOfThePanel();
    void showsOneStateAtATime();
    void opensProductsWhereThereAreFew_data();
    void opensProductsWhereThereAreFew();
    void tellsWhichProductIsChosen();
    void copiesSeveral();
    void staysWithTheProduct();
    void shortensNames();
    void screenshot_data();
    void screenshot();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    void write(const QString &name, const QByteArray &content);
    void open(const QByteArray &content);
    /// Compares a file with this content with the open one.
    void compareWith(const QByteArray &content);
    QAction *action(const QString &text) const;
    bool isEnabled(const QString &text) const { return action(text)->isEnabled(); }
    void trigger(const QString &text);
    template<typename T>
    T *find(const QString &name) const
    {
        return myWindow->findChild<T *>(name);
    }
    QString text(const QString &label) const { return find<QLabel>(label)->text(); }
    QTreeView *changes() const { return find<QTreeView>(u"changes"_s); }
    /// The products that are shown, by their first words.
    QStringList shown() const;
    void choose(const QString &product);
    ComparisonSession *session() const { return myWindow->comparison()->session(); }
    MessageBanner *banner() const { return find<MessageBanner>(u"banner"_s); }

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_ComparisonPanel::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(path(name), content));
}

void tst_ComparisonPanel::open(const QByteArray &content)
{
    write(u"new.xml"_s, content);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(u"new.xml"_s));
    QVERIFY(changed.wait(TIMEOUT));
}

void tst_ComparisonPanel::compareWith(const QByteArray &content)
{
    write(u"old.xml"_s, content);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    session()->compareWith(path(u"old.xml"_s));
    QVERIFY(changed.wait(TIMEOUT));
}

QAction *tst_ComparisonPanel::action(const QString &text) const
{
    for (QAction *action : myWindow->findChildren<QAction *>()) {
        if (action->text().remove(u'&') == text)
            return action;
    }
    qFatal("no action: %s", qPrintable(text));
}

void tst_ComparisonPanel::trigger(const QString &text)
{
    QVERIFY2(isEnabled(text), qPrintable(text));
    action(text)->trigger();
}

QStringList tst_ComparisonPanel::shown() const
{
    QStringList result;
    const QAbstractItemModel *model = changes()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        result += model->index(row, 0).data().toString().section(u' ', 0, 0);
    return result;
}

void tst_ComparisonPanel::choose(const QString &product)
{
    const QModelIndex index = changes()->model()->index(int(shown().indexOf(product)), 0);
    QVERIFY(index.isValid());
    changes()->scrollTo(index);
    QTest::mouseClick(changes()->viewport(), Qt::LeftButton, {}, changes()->visualRect(index).center());
}

void tst_ComparisonPanel::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    myWindow = std::make_unique<MainWindow>();
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    myWindow->activateWindow();
}

void tst_ComparisonPanel::cleanup()
{
    myWindow.reset();
}

void tst_ComparisonPanel::nothingOpen()
{
    QVERIFY(!myWindow->comparison()->dock()->isVisible());
    QCOMPARE(myWindow->comparison()->dock()->objectName(), u"changesDock"_s); // by which its place is remembered
    for (const QAction *action : myWindow->comparison()->findChildren<QAction *>())
        QVERIFY2(!action->isEnabled(), qPrintable(action->text()));
    open(NEW_CATALOGUE);
    QVERIFY(!myWindow->comparison()->dock()->isVisible());
    myWindow->comparison()->dock()->show();
    QCOMPARE(text(u"comparisonMessage"_s), u"Nothing is compared."_s);
}

void tst_ComparisonPanel::comparesWithAFile()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QVERIFY(changes()->isVisible());
    QVERIFY(!find<QWidget>(u"comparisonProgress"_s)->isVisible());
    QCOMPARE(shown(), QStringList({ u"E"_s, u"A"_s, u"B"_s, u"C"_s }));
    QCOMPARE(text(u"comparisonSummary"_s), u"1 added, 1 removed, 2 changed (1 renamed), 1 equal"_s);
    QCOMPARE(text(u"comparedFiles"_s), u"old.xml → new.xml"_s);
    QCOMPARE(text(u"title"_s), u"E – Etikett"_s); // nothing was chosen yet
}

void tst_ComparisonPanel::leadsToProducts()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    choose(u"A"_s);
    QCOMPARE(text(u"title"_s), u"A – Album"_s);
    QCOMPARE(find<QTreeView>(u"products"_s)->currentIndex().siblingAtColumn(0).data().toString(), u"A"_s);
    choose(u"C"_s);
    QCOMPARE(text(u"title"_s), u"C2 – Kalender"_s);
    choose(u"E"_s);
    QCOMPARE(text(u"title"_s), u"E – Etikett"_s);
    QCOMPARE(find<QTreeView>(u"products"_s)->currentIndex().siblingAtColumn(0).data().toString(), u"E"_s);
}

// And from there back to any product of the list.
void tst_ComparisonPanel::showsWhatWasRemoved()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    choose(u"A"_s);
    choose(u"B"_s);
    QCOMPARE(text(u"title"_s), u"B – Becher"_s);
    QVERIFY(find<QLabel>(u"note"_s)->isVisible());
    QCOMPARE(text(u"note"_s),
             u"The open catalogue does not have this product; this is the one of %1."_s.arg(path(u"old.xml"_s)));
    QVERIFY(!find<QTreeView>(u"products"_s)->currentIndex().isValid());
    QCOMPARE(session()->indexInOpen(2), -1);
    choose(u"A"_s);
    QCOMPARE(text(u"title"_s), u"A – Album"_s);
    choose(u"B"_s);
    QVERIFY(myWindow->showType(RVProductType(u"A"_s)));
    QCOMPARE(text(u"title"_s), u"A – Album"_s);
}

void tst_ComparisonPanel::showsWhatOnlyTheOtherHas()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    trigger(u"Swap old and new"_s);
    QVERIFY(changed.wait(TIMEOUT));
    choose(u"B"_s);
    QCOMPARE(text(u"title"_s), u"B – Becher"_s);
    QVERIFY(text(u"note"_s).endsWith(path(u"old.xml"_s) + u'.'));
    choose(u"C2"_s);
    QCOMPARE(text(u"title"_s), u"C2 – Kalender"_s);
    QVERIFY(!find<QLabel>(u"note"_s)->text().contains("open catalogue"_L1));
}

void tst_ComparisonPanel::showsTheFirstOfTheOther()
{
    open(OLD_CATALOGUE);
    compareWith(NEW_CATALOGUE);
    choose(u"E"_s);
    QCOMPARE(text(u"title"_s), u"E – Etikett"_s);
}

// The second product of a type is not the one that is sold, but the one that has changed.
void tst_ComparisonPanel::productsOfOneType()
{
    const QByteArray before = "<p>\n<product type='A' name='first'/>\n<product type='A' name='second'/>\n</p>";
    open(QByteArray(before).replace("second", "other"));
    compareWith(before);
    choose(u"A"_s);
    QCOMPARE(text(u"title"_s), u"A – other"_s);
}

void tst_ComparisonPanel::walksByKeys()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QStringList titles;
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(myWindow.get(), Qt::Key_F7);
        titles += changes()->currentIndex().data().toString();
    }
    QCOMPARE(titles,
             QStringList({ u"E \"Etikett\""_s, u"Cover"_s, u"Price class"_s, u"B \"Becher\""_s, u"Type"_s,
                           u"E \"Etikett\""_s }));
    QTest::keyClick(myWindow.get(), Qt::Key_F7, Qt::ShiftModifier);
    QCOMPARE(changes()->currentIndex().data().toString(), u"Type"_s);
    QCOMPARE(text(u"title"_s), u"C2 – Kalender"_s);
    QTest::keyClick(myWindow.get(), Qt::Key_F7, Qt::ShiftModifier);
    QCOMPARE(text(u"title"_s), u"B – Becher"_s);
}

void tst_ComparisonPanel::filters()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    auto *kinds = find<QComboBox>(u"changeKinds"_s);
    kinds->setCurrentText(u"Removed"_s);
    QCOMPARE(shown(), QStringList { u"B"_s });
    QTest::keyClicks(find<QLineEdit>(u"searchChanges"_s), u"hardcover"_s);
    QVERIFY(!changes()->isVisible());
    QVERIFY(!find<QLabel>(u"comparisonMessage"_s)->isVisible());
    auto *showAll = find<QPushButton>(u"showAllChanges"_s);
    QVERIFY(showAll->isVisible());
    kinds->setCurrentText(u"All changes"_s);
    QCOMPARE(shown(), QStringList { u"A"_s });
    kinds->setCurrentText(u"Added"_s);
    QTest::mouseClick(showAll, Qt::LeftButton);
    QCOMPARE(shown().size(), 4);
    QVERIFY(changes()->isVisible());
}

// By a filter that still shows it, and when the catalogues are compared again.
void tst_ComparisonPanel::keepsTheChoice()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    choose(u"B"_s);
    QSignalSpy chosen(myWindow->comparison(), &ComparisonActions::singleProductChosen);
    find<QComboBox>(u"changeKinds"_s)->setCurrentText(u"Removed"_s);
    QVERIFY(changes()->currentIndex().data().toString().startsWith("B "_L1));
    compareWith(QByteArray(OLD_CATALOGUE).replace("Album", "Bilderbuch"));
    QVERIFY(changes()->currentIndex().data().toString().startsWith("B "_L1));
    QCOMPARE(chosen.size(), 0);
}

void tst_ComparisonPanel::focusIsNoChoice()
{
    open(NEW_CATALOGUE);
    QVERIFY(myWindow->showType(RVProductType(u"D"_s)));
    compareWith(OLD_CATALOGUE);
    changes()->setFocus(Qt::TabFocusReason);
    QCOMPARE(text(u"title"_s), u"D – Druck"_s);
    QTest::keyClick(changes(), Qt::Key_Down);
    QVERIFY(text(u"title"_s) != u"D – Druck"_s);
}

void tst_ComparisonPanel::copies()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QApplication::clipboard()->setText(u"before"_s);
    trigger(u"Copy changes"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"before"_s); // nothing is chosen
    choose(u"A"_s);
    QTest::keyClick(changes(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             u"~ A \"Album\"\n  ~ Cover: SOFTCOVER -> HARDCOVER\n  ~ Price class: \"K1\" -> \"K2\"\n"_s);
    QTest::keyClick(myWindow.get(), Qt::Key_F7); // to the first change of it
    trigger(u"Copy changes"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"~ A \"Album\"\n  ~ Cover: SOFTCOVER -> HARDCOVER\n"_s);
    choose(u"B"_s);
    trigger(u"Copy changes"_s);
    QCOMPARE(QApplication::clipboard()->text(), u"- B \"Becher\", article 2\n"_s);
}

void tst_ComparisonPanel::saves_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::addColumn<QByteArray>("end");

    QTest::newRow("text") << u"changes.txt"_s << QByteArray("+ E \"Etikett\", article 5\n~ A \"Album\"\n")
                          << QByteArray("\n1 added, 1 removed, 2 changed (1 renamed), 1 equal\n");
    QTest::newRow("any other name") << u"changes"_s << QByteArray("+ E \"Etikett\", article 5\n")
                                    << QByteArray(" 1 equal\n");
    QTest::newRow("Markdown") << u"changes.md"_s << QByteArray("| Product | Change | Old | New |\n| --- |")
                              << QByteArray(" 1 equal\n");
    QTest::newRow("JSON") << u"changes.JSON"_s << QByteArray("{\"new\":\"")
                          << QByteArray("\n],\n\"summary\":{\"added\":1,\"changed\":2,\"equal\":1,\"removed\":1,"
                                        "\"renamed\":1}}\n");
}

void tst_ComparisonPanel::saves()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, begin);
    QFETCH(QByteArray, end);
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    myWindow->comparison()->saveAs(path(name));
    const QByteArray content = readFile(path(name));
    QVERIFY2(content.startsWith(begin), content.constData());
    QVERIFY2(content.endsWith(end), content.constData());
    QCOMPARE(banner()->text(), QString());
}

void tst_ComparisonPanel::savesNowhere()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    myWindow->comparison()->saveAs(path(u"nowhere/changes.txt"_s));
    QCOMPARE(banner()->text(),
             u"%1 cannot be written: No such file or directory"_s.arg(path(u"nowhere/changes.txt"_s)));
}

void tst_ComparisonPanel::equalCatalogues()
{
    open(NEW_CATALOGUE);
    compareWith(NEW_CATALOGUE);
    QVERIFY(!changes()->isVisible());
    QVERIFY(find<QLabel>(u"comparisonMessage"_s)->isVisible());
    QCOMPARE(text(u"comparisonMessage"_s), u"The catalogues do not differ."_s);
    QCOMPARE(text(u"comparisonSummary"_s), u"0 added, 0 removed, 0 changed, 4 equal"_s);
    QVERIFY(!find<QPushButton>(u"showAllChanges"_s)->isVisible());
    QTest::keyClick(myWindow.get(), Qt::Key_F7); // to nothing
    QTest::keyClick(myWindow.get(), Qt::Key_F7, Qt::ShiftModifier);
}

void tst_ComparisonPanel::swaps()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    trigger(u"Swap old and new"_s);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(text(u"comparedFiles"_s), u"new.xml → old.xml"_s);
    QCOMPARE(shown(), QStringList({ u"E"_s, u"A"_s, u"B"_s, u"C2"_s }));
    find<QComboBox>(u"changeKinds"_s)->setCurrentText(u"Added"_s);
    QCOMPARE(shown(), QStringList { u"B"_s });
    trigger(u"Swap old and new"_s);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown(), QStringList { u"E"_s });
}

// Whenever the file changes, it is compared with what it was in the beginning.
void tst_ComparisonPanel::changesSinceOpening()
{
    open(OLD_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    trigger(u"Changes since opening"_s);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(text(u"comparisonMessage"_s), u"The catalogues do not differ."_s);
    write(u"new.xml"_s, QByteArray(OLD_CATALOGUE).replace("Becher", "Beutel"));
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown(), QStringList { u"B"_s });
    write(u"new.xml"_s, NEW_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown(), QStringList({ u"E"_s, u"A"_s, u"B"_s, u"C"_s }));
    choose(u"B"_s);
    QCOMPARE(text(u"title"_s), u"B – Becher"_s);
    write(u"new.xml"_s, OLD_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QVERIFY(find<QLabel>(u"comparisonMessage"_s)->isVisible());
}

void tst_ComparisonPanel::openingAgainBeginsAgain()
{
    open(OLD_CATALOGUE);
    open(NEW_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    trigger(u"Changes since opening"_s);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(text(u"comparisonMessage"_s), u"The catalogues do not differ."_s);
}

void tst_ComparisonPanel::comparesAChangedFile()
{
    open(NEW_CATALOGUE);
    compareWith(NEW_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    write(u"old.xml"_s, OLD_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown().size(), 4);
    write(u"new.xml"_s, OLD_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown(), QStringList());
}

void tst_ComparisonPanel::brokenFile()
{
    open(NEW_CATALOGUE);
    write(u"old.xml"_s, "<products>\n<product");
    QSignalSpy failed(session(), &ComparisonSession::failed);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    session()->compareWith(path(u"old.xml"_s));
    QVERIFY(failed.wait(TIMEOUT));
    QVERIFY2(banner()->text().startsWith(path(u"old.xml"_s) + ", line 2, column "_L1), qPrintable(banner()->text()));
    QVERIFY(banner()->text().endsWith("\nNothing was compared."_L1));
    write(u"old.xml"_s, OLD_CATALOGUE); // it is mended
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown().size(), 4);
    QCOMPARE(banner()->text(), QString());
    write(u"old.xml"_s, "<products>");
    QVERIFY(failed.wait(TIMEOUT));
    QVERIFY(banner()->text().endsWith("\nThe changes that were found before are still shown."_L1));
    QCOMPARE(shown().size(), 4);
}

void tst_ComparisonPanel::vanishedFile()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QSignalSpy vanished(session(), &ComparisonSession::vanished);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    QVERIFY(QFile::remove(path(u"old.xml"_s)));
    QVERIFY(vanished.wait(TIMEOUT));
    QCOMPARE(banner()->text(), u"%1 is gone. It is compared again when it comes back."_s.arg(path(u"old.xml"_s)));
    QCOMPARE(shown().size(), 4);
    write(u"old.xml"_s, NEW_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(shown().size(), 0);
    QCOMPARE(banner()->text(), QString());
}

void tst_ComparisonPanel::cancelsByKey()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    write(u"big.xml"_s, manyProducts(50000));
    QSignalSpy ended(session(), &ComparisonSession::ended);
    QSignalSpy progressed(session(), &ComparisonSession::progressed);
    session()->compareWith(path(u"big.xml"_s));
    QVERIFY(find<QWidget>(u"comparisonProgress"_s)->isVisible());
    const auto percent = [&progressed] { return progressed.isEmpty() ? 0 : progressed.constLast().at(0).toInt(); };
    QTRY_VERIFY_WITH_TIMEOUT(percent() > 0, TIMEOUT);
    QCOMPARE(find<QWidget>(u"comparisonProgress"_s)->findChild<QProgressBar *>()->value(), percent());
    QTest::keyClick(myWindow.get(), Qt::Key_Escape);
    QVERIFY(ended.wait(TIMEOUT));
    QVERIFY(!isEnabled(u"Cancel comparing"_s));
    QVERIFY(!find<QWidget>(u"comparisonProgress"_s)->isVisible());
    QCOMPARE(shown().size(), 4); // as before
    session()->compareWith(path(u"big.xml"_s));
    QTest::mouseClick(find<QPushButton>(u"comparisonProgressCancel"_s), Qt::LeftButton);
    QVERIFY(ended.wait(TIMEOUT));
    QCOMPARE(shown().size(), 4);
    QCOMPARE(ended.size(), 2);
}

// Of what goes on at once the key cancels one, and then the other.
void tst_ComparisonPanel::cancelsOneAfterTheOther()
{
    open(NEW_CATALOGUE);
    write(u"big.xml"_s, manyProducts(50000));
    session()->compareWith(path(u"big.xml"_s));
    QVERIFY(isEnabled(u"Cancel comparing"_s));
    QSignalSpy ended(myWindow->session(), &CatalogueSession::ended);
    myWindow->session()->open(path(u"big.xml"_s));
    QVERIFY(!isEnabled(u"Cancel comparing"_s));
    QTest::keyClick(myWindow.get(), Qt::Key_Escape);
    QVERIFY(!ended.isEmpty() || ended.wait(TIMEOUT));
    QVERIFY(!myWindow->session()->isLoading());
    QCOMPARE(isEnabled(u"Cancel comparing"_s), session()->isComparing());
    QVERIFY(session()->isComparing());
}

void tst_ComparisonPanel::closes()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    trigger(u"Close comparison"_s);
    QVERIFY(!myWindow->comparison()->dock()->isVisible());
    QVERIFY(!session()->isActive());
    for (const QString &text :
         { u"Close comparison"_s, u"Swap old and new"_s, u"Next change"_s, u"Save changes as…"_s })
        QVERIFY2(!isEnabled(text), qPrintable(text));
    QSignalSpy started(session(), &ComparisonSession::started);
    open(OLD_CATALOGUE);
    QCOMPARE(started.size(), 0);
}

void tst_ComparisonPanel::closesWhileComparing()
{
    open(NEW_CATALOGUE);
    write(u"big.xml"_s, manyProducts(50000));
    session()->compareWith(path(u"big.xml"_s));
    QSignalSpy ended(session(), &ComparisonSession::ended);
    trigger(u"Close comparison"_s);
    QCOMPARE(ended.size(), 1);
    QVERIFY(!session()->isComparing());
    QVERIFY(!find<QWidget>(u"comparisonProgress"_s)->isVisible());
}

// A file that changes does not get in the way of other work.
void tst_ComparisonPanel::dockStaysHidden()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    QTest::keyClick(myWindow.get(), Qt::Key_F6);
    QVERIFY(!changes()->isVisible());
    QSignalSpy changed(session(), &ComparisonSession::changed);
    write(u"old.xml"_s, NEW_CATALOGUE);
    QVERIFY(changed.wait(TIMEOUT));
    QVERIFY(!myWindow->comparison()->dock()->isVisible());
    QTest::keyClick(myWindow.get(), Qt::Key_F6);
    QVERIFY(find<QLabel>(u"comparisonMessage"_s)->isVisible());
}

// The findings may be in front of the changes.
void tst_ComparisonPanel::dockComesToTheFront()
{
    open(NEW_CATALOGUE);
    compareWith(OLD_CATALOGUE);
    find<QDockWidget>(u"findingsDock"_s)->raise();
    QTRY_VERIFY(changes()->visibleRegion().isEmpty());
    compareWith(OLD_CATALOGUE);
    QTRY_VERIFY(!changes()->visibleRegion().isEmpty());
}

// Also where the catalogue has no findings, whose dock needs but one line, and is compared as soon as it is open.
void tst_ComparisonPanel::dockIsHighEnough()
{
    write(u"old.xml"_s, OLD_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    session()->compareWith(path(u"old.xml"_s));
    open(manyProducts(3));
    QVERIFY(!changed.isEmpty() || changed.wait(TIMEOUT));
    QTRY_VERIFY(changes()->viewport()->height() >= 5 * changes()->visualRect(changes()->model()->index(0, 0)).height());

    // Only once; then it is as the user wants it.
    QDockWidget *dock = myWindow->comparison()->dock();
    myWindow->resizeDocks({ dock }, { dock->minimumSizeHint().height() }, Qt::Vertical);
    QTRY_VERIFY(dock->height() < dock->sizeHint().height());
    const int height = dock->height();
    compareWith(OLD_CATALOGUE);
    QCoreApplication::processEvents();
    QVERIFY(dock->height() <= height);
}

// Names of files may be of any length.
void tst_ComparisonPanel::narrowWindow()
{
    open(NEW_CATALOGUE);
    const int before = myWindow->minimumSizeHint().width();
    const QString longName = QString(100, u'n') + u".xml"_s;
    write(longName, OLD_CATALOGUE);
    QSignalSpy changed(session(), &ComparisonSession::changed);
    session()->compareWith(path(longName));
    QVERIFY(changed.wait(TIMEOUT));
    QCOMPARE(myWindow->minimumSizeHint().width(), before);
    QVERIFY(find<QLabel>(u"comparedFiles"_s)->toolTip().contains(longName));
}

void tst_ComparisonPanel::looksLikeAList()
{
    ComparisonPanel panel;
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    const QTreeView *view = changesOf(panel);
    QCOMPARE(view->accessibleName(), u"Changes"_s);
    QVERIFY(view->uniformRowHeights()); // or many changes take long
    QVERIFY(view->alternatingRowColors());
    QVERIFY(view->allColumnsShowFocus());
    QCOMPARE(view->selectionMode(), QAbstractItemView::ExtendedSelection);
    QVERIFY(view->isSortingEnabled());
    QVERIFY(view->header()->isSortIndicatorClearable());
    QCOMPARE(view->header()->sortIndicatorSection(), -1); // in the order of the file
    const int letter = panel.fontMetrics().averageCharWidth();
    QCOMPARE(view->columnWidth(0), 56 * letter);
    QCOMPARE(view->columnWidth(1), 19 * letter);
    QCOMPARE(view->columnWidth(2), 36 * letter);
    QCOMPARE(view->contextMenuPolicy(), Qt::ActionsContextMenu);
    QCOMPARE(view->actions().size(), 1);
    QCOMPARE(view->actions().constFirst()->shortcut(), QKeySequence(QKeySequence::Copy));
    QCOMPARE(view->actions().constFirst()->shortcutContext(), Qt::WidgetShortcut); // the key is also for other parts
}

void tst_ComparisonPanel::partsOfThePanel()
{
    ComparisonPanel panel;
    QCOMPARE(panel.sizeHint(), QSize(600, 10 * (panel.fontMetrics().height() + 6)));
    QCOMPARE(panel.layout()->contentsMargins(), QMargins(6, 2, 6, 0));
    QCOMPARE(panel.layout()->spacing(), 2);
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    panel.resize(900, 400);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const auto *filter = panel.findChild<ComparisonFilter *>();
    const auto *summary = panel.findChild<QLabel *>(u"comparisonSummary"_s);
    const auto *names = panel.findChild<QLabel *>(u"comparedFiles"_s);
    QCOMPARE(filter->parentWidget()->layout()->contentsMargins(), QMargins());
    QVERIFY(summary->x() > filter->geometry().right());
    QVERIFY(names->x() > summary->geometry().right());
    QVERIFY(summary->width() <= summary->sizeHint().width()); // the filter gets what is left
    QCOMPARE(names->textFormat(), Qt::PlainText);
    for (const QLabel *label : { summary, names })
        QCOMPARE(label->minimumWidth(), 1);
    QVERIFY(changesOf(panel)->y() > filter->parentWidget()->geometry().bottom());
    QCOMPARE(changesOf(panel)->geometry().bottom(), 399);
    QVERIFY(filter->parentWidget()->height() <= filter->sizeHint().height());
    QVERIFY(panel.findChild<QLabel *>(u"comparisonMessage"_s)->wordWrap());
    QCOMPARE(panel.findChild<QLabel *>(u"comparisonMessage"_s)->alignment(), Qt::AlignCenter);
    panel.findChild<QLineEdit *>()->setText(u"no such change"_s);
    const auto *clear = panel.findChild<QPushButton *>(u"showAllChanges"_s);
    QTRY_VERIFY(clear->y() > 150); // in the middle of the room for the changes
    QVERIFY(qAbs(clear->geometry().center().x() - 450) < 3);
}

void tst_ComparisonPanel::showsOneStateAtATime()
{
    ComparisonPanel panel;
    panel.show();
    const auto *filter = panel.findChild<ComparisonFilter *>();
    const auto shown = [&panel, filter] {
        return QList<bool> { filter->isVisible(), changesOf(panel)->isVisible(),
                             panel.findChild<QLabel *>(u"comparisonMessage"_s)->isVisible(),
                             panel.findChild<QPushButton *>(u"showAllChanges"_s)->isVisible() };
    };
    QCOMPARE(shown(), (QList<bool> { false, false, true, false }));
    QCOMPARE(textOf(panel, u"comparisonMessage"_s), u"Nothing is compared."_s);
    panel.setComparison(compared(NEW_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(shown(), (QList<bool> { true, false, true, false }));
    QVERIFY(!filter->isEnabled());
    QCOMPARE(textOf(panel, u"comparisonMessage"_s), u"The catalogues do not differ."_s);
    panel.setComparison(compared("<p><product type='A'/></p>", "<p><product type='A' name='n'/></p>")); // one is enough
    QCOMPARE(shown(), (QList<bool> { true, true, false, false }));
    QVERIFY(filter->isEnabled());
    panel.findChild<QLineEdit *>()->setText(u"no such change"_s);
    QCOMPARE(shown(), (QList<bool> { true, false, false, true }));
    QVERIFY(filter->isEnabled());
    panel.setComparison(nullptr);
    QCOMPARE(shown(), (QList<bool> { false, false, true, false }));
}

void tst_ComparisonPanel::opensProductsWhereThereAreFew_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<bool>("isOpen");

    QTest::newRow("100 products") << 100 << true;
    QTest::newRow("101 products") << 101 << false;
}

void tst_ComparisonPanel::opensProductsWhereThereAreFew()
{
    QFETCH(int, products);
    ComparisonPanel panel;
    panel.setComparison(compared(manyProducts(products), manyProducts(products).replace("'26'", "'30'")));
    QCOMPARE(changesOf(panel)->model()->rowCount(), products);
    QTEST(changesOf(panel)->isExpanded(firstColumn(panel, 0)), "isOpen");
}

void tst_ComparisonPanel::tellsWhichProductIsChosen()
{
    ComparisonPanel panel;
    QSignalSpy chosen(&panel, &ComparisonPanel::productChosen);
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    QTreeView *view = changesOf(panel);
    view->setCurrentIndex(firstColumn(panel, 1));
    QCOMPARE(chosen, (QList<QVariantList> { { 1 } }));
    view->setCurrentIndex(firstColumn(panel, 0));
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(chosen.constLast(), QVariantList { 0 });
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(firstColumn(panel, 0)).center());
    QCOMPARE(chosen.size(), 3); // to see it again
    panel.findChild<QComboBox *>()->setCurrentText(u"Added"_s);
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(chosen.size(), 3);
    view->clearSelection();
    QCOMPARE(chosen.size(), 3);
}

void tst_ComparisonPanel::copiesSeveral()
{
    ComparisonPanel panel;
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    const auto select = [&panel](const QModelIndex &index) {
        changesOf(panel)->selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    };
    const QModelIndex album = firstColumn(panel, 1);
    select(changesOf(panel)->model()->index(1, 0, album)); // its second change
    select(firstColumn(panel, 2));
    QApplication::clipboard()->clear();
    panel.copy();
    QCOMPARE(QApplication::clipboard()->text(),
             u"~ A \"Album\"\n  ~ Price class: \"K1\" -> \"K2\"\n- B \"Becher\", article 2\n"_s);
    changesOf(panel)->clearSelection();
    select(changesOf(panel)->model()->index(1, 0, album));
    select(album); // with all its changes
    panel.copy();
    QCOMPARE(QApplication::clipboard()->text(),
             u"~ A \"Album\"\n  ~ Cover: SOFTCOVER -> HARDCOVER\n  ~ Price class: \"K1\" -> \"K2\"\n"_s);
}

// Also if another one has come before it; one that no longer differs leaves no choice.
void tst_ComparisonPanel::staysWithTheProduct()
{
    ComparisonPanel panel;
    const auto current = [&panel] { return changesOf(panel)->currentIndex().data().toString().section(u' ', 0, 0); };
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(current(), QString());
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(current(), QString());
    changesOf(panel)->setCurrentIndex(firstColumn(panel, 0));
    panel.setComparison(compared(OLD_CATALOGUE, NEW_CATALOGUE));
    QCOMPARE(current(), u"E"_s);
    const QByteArray more = QByteArray(NEW_CATALOGUE).replace("<products>\n", "<products>\n<product type='F'/>");
    panel.setComparison(compared(OLD_CATALOGUE, more));
    QCOMPARE(current(), u"E"_s);
    QCOMPARE(changesOf(panel)->currentIndex().row(), 1);
    panel.findChild<QLineEdit *>()->setText(u"tik"_s);
    QCOMPARE(current(), u"E"_s);
    panel.findChild<QLineEdit *>()->clear();
    panel.setComparison(compared(NEW_CATALOGUE, more)); // only the new one differs
    QCOMPARE(current(), QString());
    changesOf(panel)->setCurrentIndex(firstColumn(panel, 0));
    panel.setComparison(nullptr);
    QCOMPARE(current(), QString());
}

void tst_ComparisonPanel::shortensNames()
{
    ComparisonPanel panel;
    const QString longName = QString(100, u'n') + u".xml"_s;
    const auto comparison = std::make_shared<LoadedComparison>(
            ComparedFiles { { u"/catalogues/"_s + longName, QString() }, { u"b.xml"_s, QString() } });
    panel.setComparison(comparison);
    const QFontMetrics metrics = panel.fontMetrics();
    const QString shortName = metrics.elidedText(longName, Qt::ElideMiddle, 28 * metrics.averageCharWidth());
    QVERIFY(shortName.size() < 40);
    QCOMPARE(textOf(panel, u"comparedFiles"_s), shortName + u" → b.xml"_s);
    QCOMPARE(panel.findChild<QLabel *>(u"comparedFiles"_s)->toolTip(), u"/catalogues/"_s + longName + u" → b.xml"_s);
    QCOMPARE(textOf(panel, u"comparisonSummary"_s), u"0 added, 0 removed, 0 changed, 0 equal"_s);
}

void tst_ComparisonPanel::screenshot_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");

    const QStringList picture { u"--screenshot"_s, u"o.png"_s };
    QTest::newRow("both") << picture + QStringList { u"--compare"_s, u"old.xml"_s, u"new.xml"_s } << 0 << QString();
    QTest::newRow("missing") << picture + QStringList { u"--compare"_s, u"missing.xml"_s, u"new.xml"_s } << 2
                             << u"missing.xml:1:1: cannot open the file: No such file or directory\n"_s;
    QTest::newRow("broken") << picture + QStringList { u"--compare"_s, u"cut.xml"_s, u"new.xml"_s } << 2
                            << u"cut.xml:1:11: the file ends too early: <products>, which was opened in line 1, is "
                               "not closed\n"_s;
    QTest::newRow("one") << QStringList { u"--compare"_s, u"old.xml"_s } << 2
                         << u"rvbrowser: a comparison needs a catalogue to compare \"old.xml\" with\n"
                            "Try \"rvbrowser --help\".\n"_s;
}

void tst_ComparisonPanel::screenshot()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    write(u"old.xml"_s, OLD_CATALOGUE);
    write(u"new.xml"_s, NEW_CATALOGUE);
    write(u"cut.xml"_s, "<products>");
    QProcess process;
    process.setWorkingDirectory(myFolder->path());
    process.setProcessEnvironment(QProcessEnvironment());
    process.start(QString::fromUtf8(RVBROWSER), arguments);
    QVERIFY(process.waitForFinished(TIMEOUT));
    QTEST(QString::fromUtf8(process.readAllStandardError()), "message");
    QCOMPARE(process.exitCode(), exitCode);
    QCOMPARE(QImage(path(u"o.png"_s)).isNull(), exitCode != 0);
}

int main(int argc, char *argv[])
{
    return runInEnglish<tst_ComparisonPanel>(argc, argv);
}

#include "tst_ComparisonPanel.moc"
