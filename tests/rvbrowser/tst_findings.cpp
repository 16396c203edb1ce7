#include "FaultyProducts.h"
#include "ManyProducts.h"
#include "WrittenFile.h"

#include <EditorChoice.h>
#include <FixDialog.h>
#include <Language.h>
#include <MainWindow.h>
#include <MessageBanner.h>
#include <PaletteColors.h>
#include <ProductTreeModel.h>
#include <Settings.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QPointer>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>

#include <memory>

using namespace Qt::StringLiterals;

/// Works off the findings of a catalogue, with the window as the other half of an editor.
class tst_findings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void emptyStates();
    void filters();
    void filtersByRule();
    void sortsByHeader();
    void stepsThroughAll();
    void stepsInTheShownOrder();
    void showsTheFault_data();
    void showsTheFault();
    void hidesTheFaultOfAnotherProduct();
    void goesOnWhereOneWasMended();
    void copies();
    void explains();
    void badges();
    void faultyProductsOnly();
    void faultyProductsOnlyWithoutAny();
    void keepsTheFilterOfProducts();
    void showsAFix();
    void appliesAFix();
    void appliesAllFixes();
    void refusesAChangedFile();
    void refusesAFileThatChangesMeanwhile();
    void showsTheFaultAgain();
    void opensTheEditor();
    void choosesTheEditor();

private:
    QString path(const QString &name) const { return myFolder->filePath(name); }
    void write(const QString &name, const QByteArray &content);
    QByteArray content(const QString &name) const { return readFile(path(name)); }
    void load(const QByteArray &content = FAULTY_PRODUCTS);
    template<typename T>
    T *find(const QString &name) const
    {
        return myWindow->findChild<T *>(name);
    }
    QTableView *view() const { return find<QTableView>(u"findings"_s); }
    /// The places of all findings that are shown.
    QStringList places() const;
    /// The place of the chosen finding.
    QString chosen() const;
    QString title() const { return find<QLabel>(u"title"_s)->text().section(u' ', 0, 0); }
    QAction *action(const QString &text) const;
    void activate();
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(myWindow.get(), key, modifiers); }

    QString settingsFile() const { return path(u"settings.ini"_s); }
    /// Makes a command of one's own the editor.
    void choose(const QString &command);

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<MainWindow> myWindow;
};

void tst_findings::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    myWindow = std::make_unique<MainWindow>(settingsFile());
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
    activate();
}

void tst_findings::cleanup()
{
    myWindow.reset();
}

void tst_findings::choose(const QString &command)
{
    action(u"Editor…"_s)->trigger();
    const QPointer<QDialog> dialog = find<QDialog>(u"editorDialog"_s);
    auto *editors = dialog->findChild<QComboBox *>(u"editors"_s);
    editors->setCurrentIndex(editors->findText(u"Another command"_s));
    auto *line = dialog->findChild<QLineEdit *>(u"editorCommand"_s);
    line->clear();
    QTest::keyClicks(line, command);
    dialog->accept();
    QTRY_VERIFY(!dialog);
    activate();
}

void tst_findings::activate()
{
    myWindow->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(myWindow.get()));
}

void tst_findings::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(path(name), content));
}

void tst_findings::load(const QByteArray &content)
{
    write(u"c.xml"_s, content);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    myWindow->session()->open(path(u"c.xml"_s));
    QVERIFY(changed.wait(60000));
}

QStringList tst_findings::places() const
{
    QStringList result;
    for (int row = 0; row < view()->model()->rowCount(); ++row)
        result += view()->model()->index(row, 3).data().toString();
    return result;
}

QString tst_findings::chosen() const
{
    const QModelIndexList rows = view()->selectionModel()->selectedRows(3);
    return rows.size() == 1 ? rows.constFirst().data().toString() : QString();
}

QAction *tst_findings::action(const QString &text) const
{
    for (QAction *action : myWindow->findChildren<QAction *>()) {
        if (action->text().remove(u'&') == text)
            return action;
    }
    return nullptr;
}

void tst_findings::emptyStates()
{
    const auto *text = find<QLabel>(u"noFindings"_s);
    QVERIFY(!find<QDockWidget>(u"findingsDock"_s)->isVisible()); // the start screen says what to do
    load(manyProducts(1));
    QVERIFY(text->isVisible());
    QCOMPARE(text->text(), u"Nothing was found. The catalogue is checked again whenever its file changes."_s);
    QVERIFY(!find<QLineEdit>(u"findingText"_s)->isVisible());
    load();
    QVERIFY(!text->isVisible());
    QVERIFY(view()->isVisible());
    QTest::keyClicks(find<QLineEdit>(u"findingText"_s), u"no such thing"_s);
    QVERIFY(text->isVisible());
    QCOMPARE(text->text(), u"No finding matches the filter."_s);
    QVERIFY(!view()->isVisible());
    press(Qt::Key_F8);
    QCOMPARE(myWindow->statusBar()->currentMessage(), u"The filter hides all findings."_s);
    QTest::mouseClick(find<QPushButton>(u"clearFilter"_s), Qt::LeftButton);
    QVERIFY(view()->isVisible());
    QCOMPARE(places().size(), 5);
    QVERIFY(find<QLineEdit>(u"findingText"_s)->hasFocus());
}

void tst_findings::filters()
{
    load();
    const auto *count = find<QLabel>(u"findingCount"_s);
    QVERIFY2(count->text().startsWith("5 of 5 finding"_L1), qPrintable(count->text()));
    auto *text = find<QLineEdit>(u"findingText"_s);
    QTest::keyClicks(text, u"dun2"_s);
    QCOMPARE(places(), (QStringList { u"5:69"_s, u"5:118"_s, u"5:139"_s }));
    QVERIFY2(count->text().startsWith("3 of 5 finding"_L1), qPrintable(count->text()));
    auto *errors = find<QToolButton>(u"showErrors"_s);
    QCOMPARE(errors->text(), u"3"_s);
    QTest::mouseClick(errors, Qt::LeftButton);
    QCOMPARE(places(), QStringList { u"5:118"_s });
    QTest::keyClick(text, Qt::Key_Down); // on to the list
    QVERIFY(view()->hasFocus());
    QCOMPARE(chosen(), u"5:118"_s);
    QTest::keyClick(text, Qt::Key_Escape);
    QCOMPARE(places(), (QStringList { u"3:70"_s, u"5:118"_s }));
    QCOMPARE(chosen(), u"5:118"_s); // filtering is not choosing
    QTest::keyClicks(text, u"dun9"_s);
    QCOMPARE(chosen(), QString());
    text->clear();
    QCOMPARE(chosen(), u"5:118"_s);
    QTest::mouseClick(errors, Qt::LeftButton);
    QCOMPARE(places().size(), 5);
}

void tst_findings::filtersByRule()
{
    load();
    auto *rules = find<QComboBox>(u"findingRule"_s);
    QCOMPARE(rules->count(), 5);
    rules->setCurrentIndex(rules->findText(u"keyword-unknown (2)"_s));
    QCOMPARE(places(), (QStringList { u"2:70"_s, u"5:69"_s }));
    load(QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral")); // the filter stays
    QCOMPARE(places(), QStringList { u"2:70"_s });
    QCOMPARE(rules->currentText(), u"keyword-unknown (1)"_s);
    load(QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral").replace("hardcovr", "hardcover"));
    QCOMPARE(rules->currentIndex(), 0); // nothing breaks that rule
    QCOMPARE(places().size(), 3);
}

void tst_findings::sortsByHeader()
{
    load();
    const QStringList found { u"2:70"_s, u"3:70"_s, u"5:69"_s, u"5:118"_s, u"5:139"_s };
    QCOMPARE(places(), found);
    QHeaderView *header = view()->horizontalHeader();
    const auto click = [header](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    };
    press(Qt::Key_F8);
    click(0);
    QCOMPARE(places(), (QStringList { u"2:70"_s, u"5:69"_s, u"5:139"_s, u"5:118"_s, u"3:70"_s }));
    click(0);
    QCOMPARE(places(), (QStringList { u"3:70"_s, u"5:118"_s, u"2:70"_s, u"5:69"_s, u"5:139"_s }));
    QCOMPARE(chosen(), u"2:70"_s);
    click(0);
    QCOMPARE(places(), found);
}

void tst_findings::stepsThroughAll()
{
    load();
    for (const auto &[place, type] : std::initializer_list<std::pair<QString, QString>> { { u"2:70"_s, u"DUN10"_s },
                                                                                          { u"3:70"_s, u"DUN9"_s },
                                                                                          { u"5:69"_s, u"DUN2"_s },
                                                                                          { u"5:118"_s, u"DUN2"_s },
                                                                                          { u"5:139"_s, u"DUN2"_s } }) {
        press(Qt::Key_F8);
        QCOMPARE(chosen(), place);
        QCOMPARE(title(), type);
        QCOMPARE(myWindow->statusBar()->currentMessage(), QString());
    }
    press(Qt::Key_F8);
    QCOMPARE(chosen(), u"2:70"_s);
    QCOMPARE(myWindow->statusBar()->currentMessage(), u"That was the last finding; this is the first one."_s);
    press(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(chosen(), u"5:139"_s);
    QCOMPARE(title(), u"DUN2"_s);
    QCOMPARE(myWindow->statusBar()->currentMessage(), u"That was the first finding; this is the last one."_s);
    press(Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(chosen(), u"5:118"_s);
}

void tst_findings::stepsInTheShownOrder()
{
    load();
    view()->horizontalHeader()->setSortIndicator(3, Qt::DescendingOrder);
    QTest::keyClicks(find<QLineEdit>(u"findingText"_s), u"dun2"_s);
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"wall"_s); // which hides the product
    for (const QString &place : { u"5:139"_s, u"5:118"_s, u"5:69"_s, u"5:139"_s }) {
        press(Qt::Key_F8);
        QCOMPARE(chosen(), place);
    }
    QCOMPARE(title(), u"DUN2"_s);
    QCOMPARE(find<QLineEdit>(u"search"_s)->text(), QString());
}

void tst_findings::showsTheFault_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("text"); // that is to be seen in red
    QTest::addColumn<QString>("below"); // the title of the part that it stands above; empty within a part

    QTest::newRow("attribute") << 1 << u"hardcovr\n\"hardcovr\" is no keyword"_s << QString();
    QTest::newRow("note") << 2 << u"A4 (600cm2)\n\"A4\" is an alias"_s << QString();
    QTest::newRow("page counts") << 4 << u"steps of 2 from 24 pages never meet 73"_s << u"Pages and spine"_s;
    QTest::newRow("option") << 5 << u"the option has no value"_s << u"Options"_s;
}

void tst_findings::showsTheFault()
{
    QFETCH(int, steps);
    QFETCH(QString, text);
    QFETCH(QString, below);
    load();
    myWindow->resize(700, 420); // too small for a product
    for (int i = 0; i < steps; ++i)
        press(Qt::Key_F8);
    const QLabel *shown = nullptr;
    for (const QLabel *label : find<QScrollArea>(u"productView"_s)->findChildren<QLabel *>()) {
        if (label->isVisible() && label->text().startsWith(text))
            shown = label;
    }
    QVERIFY(shown);
    QCOMPARE(shown->palette().color(QPalette::WindowText), PaletteColors(myWindow->palette()).fault());
    QVERIFY(!shown->visibleRegion().isEmpty()); // it was scrolled to
    QCOMPARE(shown->objectName() == "fault"_L1, !below.isEmpty());
    if (below.isEmpty())
        return;
    for (const QGroupBox *part : myWindow->findChildren<QGroupBox *>()) {
        if (part->title() == below) {
            const int distance = part->mapTo(myWindow.get(), QPoint()).y()
                    - shown->mapTo(myWindow.get(), QPoint(0, shown->height())).y();
            QVERIFY2(distance >= 0 && distance < 30, qPrintable(QString::number(distance)));
        }
    }
    press(Qt::Key_F8, Qt::ShiftModifier); // somewhere else it is gone
    QVERIFY(!shown->isVisible() || !shown->text().startsWith(text));
}

void tst_findings::hidesTheFaultOfAnotherProduct()
{
    load();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_F8);
    const auto *fault = find<QLabel>(u"fault"_s);
    QVERIFY(fault->isVisible());
    const QString faulty = title();
    auto *products = find<QTreeView>(u"products"_s);
    QTest::keyClick(products, Qt::Key_End);
    QVERIFY(title() != faulty);
    QVERIFY(!fault->isVisible());
}

// Save, and the next key leads to the next fault.
void tst_findings::goesOnWhereOneWasMended()
{
    load();
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_F8);
    QCOMPARE(chosen(), u"5:69"_s);
    load("\n" + QByteArray(FAULTY_PRODUCTS)); // it moved
    QCOMPARE(chosen(), u"6:69"_s);
    load(QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral"));
    QCOMPARE(chosen(), QString());
    QCOMPARE(title(), u"DUN2"_s);
    press(Qt::Key_F8);
    QCOMPARE(chosen(), u"5:117"_s);
}

void tst_findings::copies()
{
    load();
    QApplication::clipboard()->clear();
    view()->setFocus();
    view()->selectRow(0);
    QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
    const QString first = path(u"c.xml"_s)
            + u":2:70: error: DUN10: \"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"? "
              "[keyword-unknown]"_s;
    QCOMPARE(QApplication::clipboard()->text(), first);
    view()->selectionModel()->select(view()->model()->index(3, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keyClick(view(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             first + u'\n' + path(u"c.xml"_s)
                     + u":5:118: warning: DUN2: steps of 2 from 24 pages never meet 73; the nearest counts are 72 and "
                       "74 [page-step-misses-highest]\n"_s
                     + path(u"c.xml"_s) + u":5:103: note: the highest page count"_s);
    QStringList menu;
    for (const QAction *action : view()->actions())
        menu += action->text().remove(u'&');
    QCOMPARE(menu, (QStringList { u"Copy findings"_s, u"Open in editor"_s, u"Explain"_s, u"Apply fix…"_s }));
}

void tst_findings::explains()
{
    load();
    auto *explanation = find<QTextBrowser>(u"explanation"_s);
    QVERIFY(!explanation->isVisible());
    press(Qt::Key_F8);
    press(Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(explanation->isVisible());
    QVERIFY(explanation->hasFocus());
    const QString text = explanation->toPlainText();
    QVERIFY2(text.startsWith("\"hardcovr\" is no keyword"_L1), qPrintable(text));
    QVERIFY2(text.contains("keyword-unknown = \"off\""_L1), qPrintable(text)); // as the rule explains itself
    press(Qt::Key_F8);
    QVERIFY(explanation->toPlainText().startsWith("\"A4\" is an alias"_L1));
    press(Qt::Key_F1, Qt::ShiftModifier);
    QVERIFY(!explanation->isVisible());
}

void tst_findings::badges()
{
    load();
    auto *products = find<QTreeView>(u"products"_s);
    const QModelIndex group = products->model()->index(0, 0);
    const auto badge = [&](int row, int role) {
        return products->model()->index(row, ProductTreeModel::FindingsColumn, group).data(role);
    };
    QCOMPARE(badge(0, Qt::DisplayRole).toInt(), 1);
    QCOMPARE(badge(2, Qt::DisplayRole).toInt(), 3);
    QVERIFY(badge(0, Qt::AccessibleTextRole).toString().contains("error"_L1));
    for (const QPalette &palette : { PaletteColors::light(), PaletteColors::dark() }) {
        QApplication::setPalette(palette);
        const PaletteColors colors(palette);
        for (const auto &[row, severity] : std::initializer_list<std::pair<int, RVCatalogueSeverity>> {
                     { 0, RVCatalogueSeverity::Error }, { 1, RVCatalogueSeverity::Note } }) {
            const QRect cell = products->visualRect(
                    products->model()->index(row, ProductTreeModel::FindingsColumn, group));
            const auto ground = [&] {
                const QImage picture = products->viewport()->grab(cell).toImage();
                return picture.pixelColor(picture.width() - 7, picture.height() / 2).name();
            };
            QTRY_COMPARE(ground(), colors.severity(severity).name());
        }
    }
    QApplication::setPalette(QPalette());
    load(manyProducts(2));
    QVERIFY(products->isColumnHidden(ProductTreeModel::FindingsColumn));
}

void tst_findings::faultyProductsOnly()
{
    load();
    auto *only = find<QCheckBox>(u"faultyOnly"_s);
    const auto *count = find<QLabel>(u"count"_s);
    only->setChecked(true);
    QVERIFY2(count->text().startsWith("2 of 4"_L1), qPrintable(count->text())); // a note is no fault
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"ten"_s);
    QVERIFY2(count->text().startsWith("1 of 4"_L1), qPrintable(count->text()));
    QTest::keyClicks(find<QLineEdit>(u"search"_s), u"x"_s);
    QVERIFY(find<QPushButton>(u"clearSearch"_s)->isVisible());
    QTest::mouseClick(find<QPushButton>(u"clearSearch"_s), Qt::LeftButton);
    QVERIFY(!only->isChecked());
    QCOMPARE(find<QLineEdit>(u"search"_s)->text(), QString());
    only->setChecked(true);
    QVERIFY(myWindow->showType(RVProductType(u"VIR1"_s))); // what hides it goes
    QVERIFY(!only->isChecked());
    QCOMPARE(title(), u"VIR1"_s);
}

void tst_findings::faultyProductsOnlyWithoutAny()
{
    load(manyProducts(2));
    auto *only = find<QCheckBox>(u"faultyOnly"_s);
    only->setChecked(true);
    auto *clear = find<QPushButton>(u"clearSearch"_s);
    QVERIFY(clear->isVisible());
    QCOMPARE(clear->text().remove(u'&'), u"No faulty product: show all"_s);
    QTest::mouseClick(clear, Qt::LeftButton);
    QVERIFY(!only->isChecked());
    QVERIFY(!clear->isVisible());
}

// A product that was mended leaves the list of the faulty ones, and stays to be seen.
void tst_findings::keepsTheFilterOfProducts()
{
    load();
    auto *only = find<QCheckBox>(u"faultyOnly"_s);
    only->setChecked(true);
    QCOMPARE(title(), u"DUN10"_s);
    load(QByteArray(FAULTY_PRODUCTS).replace("hardcovr", "hardcover"));
    QVERIFY(only->isChecked());
    QCOMPARE(title(), u"DUN10"_s);
    const auto *count = find<QLabel>(u"count"_s);
    QVERIFY2(count->text().startsWith("1 of 4"_L1), qPrintable(count->text()));
}

void tst_findings::showsAFix()
{
    load();
    QVERIFY(!action(u"Apply fix…"_s)->isEnabled());
    press(Qt::Key_F8);
    QVERIFY(action(u"Apply fix…"_s)->isEnabled());
    press(Qt::Key_Period, Qt::ControlModifier);
    auto *dialog = find<FixDialog>(u"fixDialog"_s);
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    const QString diff = dialog->findChild<QPlainTextEdit *>(u"fixDiff"_s)->toPlainText();
    const QString product = u"<product type='DUN10' article_id='1' name='Ten' article_class='book' cover_type="_s;
    QVERIFY2(diff.contains("\n-"_L1 + product + "'hardcovr'"_L1), qPrintable(diff));
    QVERIFY2(diff.contains("\n+"_L1 + product + "'hardcover'"_L1), qPrintable(diff));
    QCOMPARE(content(u"c.xml"_s), QByteArray(FAULTY_PRODUCTS));
    dialog->reject();
    QTRY_VERIFY(!find<FixDialog>(u"fixDialog"_s));
    activate();
    QCOMPARE(content(u"c.xml"_s), QByteArray(FAULTY_PRODUCTS));
    press(Qt::Key_Period, Qt::ControlModifier);
    QVERIFY(find<FixDialog>(u"fixDialog"_s));
}

void tst_findings::appliesAFix()
{
    load();
    press(Qt::Key_F8);
    press(Qt::Key_Period, Qt::ControlModifier);
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    QVERIFY(find<FixDialog>(u"fixDialog"_s));
    find<FixDialog>(u"fixDialog"_s)->accept();
    QCOMPARE(myWindow->statusBar()->currentMessage(), u"1 fix applied."_s);
    QTRY_VERIFY(!find<FixDialog>(u"fixDialog"_s));
    QCOMPARE(content(u"c.xml"_s), QByteArray(FAULTY_PRODUCTS).replace("hardcovr", "hardcover"));
    QVERIFY(!changed.isEmpty() || changed.wait(20000)); // by itself
    QCOMPARE(places().size(), 4);
    activate();
    press(Qt::Key_F8);
    QCOMPARE(chosen(), u"3:70"_s);
}

void tst_findings::appliesAllFixes()
{
    load();
    QSignalSpy changed(myWindow->session(), &CatalogueSession::catalogueChanged);
    action(u"Apply all fixes…"_s)->trigger();
    find<FixDialog>(u"fixDialog"_s)->accept();
    QVERIFY(changed.wait(20000));
    QCOMPARE(places(), (QStringList { u"5:117"_s, u"5:138"_s }));
    QVERIFY(!action(u"Apply all fixes…"_s)->isEnabled());
}

void tst_findings::refusesAChangedFile()
{
    load();
    press(Qt::Key_F8);
    const QByteArray changed = "<!-- mine -->" + QByteArray(FAULTY_PRODUCTS);
    write(u"c.xml"_s, changed);
    press(Qt::Key_Period, Qt::ControlModifier); // before the window has noticed
    QVERIFY(!find<FixDialog>(u"fixDialog"_s));
    const QString text = myWindow->findChild<MessageBanner *>()->text();
    QVERIFY2(text.contains("the file was changed since it was loaded"_L1), qPrintable(text));
    QVERIFY2(text.contains("Nothing was changed."_L1), qPrintable(text));
    QCOMPARE(content(u"c.xml"_s), changed);
}

// Also where it changes while the fix is looked at.
void tst_findings::refusesAFileThatChangesMeanwhile()
{
    load();
    press(Qt::Key_F8);
    press(Qt::Key_Period, Qt::ControlModifier);
    const QByteArray changed = "<!-- mine -->" + QByteArray(FAULTY_PRODUCTS);
    write(u"c.xml"_s, changed);
    find<FixDialog>(u"fixDialog"_s)->accept();
    const QString text = myWindow->findChild<MessageBanner *>()->text();
    QVERIFY2(text.contains("Nothing was changed."_L1), qPrintable(text));
    QCOMPARE(content(u"c.xml"_s), changed);
}

// The fault is still pointed out after the catalogue was loaded again, but not in another product.
void tst_findings::showsTheFaultAgain()
{
    load();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_F8);
    const auto *fault = find<QLabel>(u"fault"_s);
    QVERIFY(fault->isVisible());
    load("\n" + QByteArray(FAULTY_PRODUCTS));
    QTRY_VERIFY(fault->isVisible());
    myWindow->showType(RVProductType(u"VIR1"_s));
    QVERIFY(!fault->isVisible());
    load();
    QCoreApplication::processEvents();
    QVERIFY(!fault->isVisible());
}

void tst_findings::opensTheEditor()
{
    load();
    write(u"ed it"_s, "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"${0%/*}/part\"; mv \"${0%/*}/part\" \"${0%/*}/log\"\n");
    QFile::setPermissions(path(u"ed it"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    choose(QString(u'"' + path(u"ed it"_s) + u"\" %l %c %f"_s));
    const auto opened = [this] {
        if (!QTest::qWaitFor([this] { return QFile::exists(path(u"log"_s)); }, 20000))
            return QStringList();
        const QString lines = QString::fromUtf8(content(u"log"_s));
        QFile::remove(path(u"log"_s));
        return lines.split(u'\n', Qt::SkipEmptyParts);
    };
    const QString file = path(u"c.xml"_s);
    press(Qt::Key_F2); // the product
    QCOMPARE(opened(), (QStringList { u"2"_s, u"1"_s, file }));
    press(Qt::Key_F8, Qt::ShiftModifier);
    press(Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(opened(), (QStringList { u"5"_s, u"139"_s, file }));
    myWindow->showType(RVProductType(u"VIR1"_s)); // which comes after the finding
    press(Qt::Key_F2);
    QCOMPARE(opened(), (QStringList { u"4"_s, u"1"_s, file }));
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {},
                      view()->visualRect(view()->model()->index(0, 3)).center());
    press(Qt::Key_F2);
    QCOMPARE(opened(), (QStringList { u"2"_s, u"70"_s, file }));
    // Nor is a finding of the first product one of the chosen product.
    myWindow->showType(RVProductType(u"VIR1"_s));
    press(Qt::Key_F2);
    QCOMPARE(opened(), (QStringList { u"4"_s, u"1"_s, file }));
    const QPoint place = view()->visualRect(view()->model()->index(1, 3)).center();
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(opened(), (QStringList { u"3"_s, u"70"_s, file }));
    choose(u"no-such-editor"_s);
    press(Qt::Key_F2);
    QCOMPARE(myWindow->findChild<MessageBanner *>()->text(),
             u"The editor \"no-such-editor\" is not installed. Choose another one in the menu of the findings."_s);
}

void tst_findings::choosesTheEditor()
{
    action(u"Editor…"_s)->trigger();
    auto *dialog = find<QDialog>(u"editorDialog"_s);
    QVERIFY(dialog);
    auto *editors = dialog->findChild<QComboBox *>(u"editors"_s);
    auto *command = dialog->findChild<QLineEdit *>(u"editorCommand"_s);
    editors->setCurrentIndex(editors->findText(u"Qt Creator"_s));
    QCOMPARE(command->text(), u"qtcreator -client %f:%l:%c"_s);
    QVERIFY(!command->isEnabled());
    editors->setCurrentIndex(editors->findText(u"Another command"_s));
    QVERIFY(command->isEnabled());
    command->clear();
    QTest::keyClicks(command, u"ed %f"_s);
    dialog->accept();
    const EditorChoice choice = EditorChoice::load(Settings(settingsFile()));
    QCOMPARE(choice.id(), u"own"_s);
    QCOMPARE(choice.ownCommand(), u"ed %f"_s);
}

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"rvbrowser"_s);
    Language language;
    language.speak(QLocale(QLocale::English));
    tst_findings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_findings.moc"
