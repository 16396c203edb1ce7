#include "MainWindow.h"

#include "ComparisonActions.h"
#include "FindingsActions.h"
#include "FindingsDock.h"
#include "FindingsPanel.h"
#include "LoadProgress.h"
#include "MessageBanner.h"
#include "ProductList.h"
#include "ProductView.h"
#include "RecentFilesMenu.h"
#include "StartScreen.h"
#include "ThemeIcon.h"
#include "WindowState.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize USUAL_SIZE(1280, 800);
constexpr int LIST_WIDTH = 300;

/// The one local file that is dragged; empty for anything else.
QString draggedFile(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}

MainWindow::MainWindow(const QString &settingsFile, QWidget *parent)
    : QMainWindow(parent),
      mySettings(settingsFile),
      myRecentFiles(&mySettings),
      myProducts(new ProductList),
      myView(new ProductView),
      myChoices(myView, &mySettings),
      myStart(new StartScreen),
      mySplitter(new QSplitter),
      myScreens(new QStackedWidget),
      myBanner(new MessageBanner),
      myFindings(new FindingsPanel),
      myFindingsDock(new FindingsDock(tr("Findings"), myFindings, this)),
      mySummary(new QLabel),
      myProgress(new LoadProgress(u"progress"_s)),
      myCancel(new QAction(themeIcon("process-stop", QStyle::SP_BrowserStop), tr("&Cancel loading"), this)),
      myRecentMenu(new RecentFilesMenu(&myRecentFiles, this)),
      myComparison(new ComparisonActions(&mySession, this))
{
    setWindowTitle(QApplication::applicationName());
    setAcceptDrops(true);
    setCentralWidget(createCentre());
    createMenus();
    mySummary->setObjectName(u"summary"_s);
    statusBar()->addWidget(myProgress);
    statusBar()->addPermanentWidget(mySummary);
    tabifyDockWidget(myFindingsDock, myComparison->dock());
    connectSession();
    resize(USUAL_SIZE);
    restoreState();
}

bool MainWindow::showType(const RVProductType &type)
{
    const CataloguePointer catalogue = mySession.catalogue();
    const int product = catalogue ? catalogue->indexOf(type) : -1;
    myProducts->setCurrentProduct(product);
    return product >= 0;
}

void MainWindow::beginWith(const RVProductType &type)
{
    const auto begin = [this, type] {
        if (!showType(type))
            myBanner->showMessage(tr("The catalogue has no product of type \"%1\".").arg(type.orderTxtName()));
    };
    connect(&mySession, &CatalogueSession::catalogueChanged, this, begin, Qt::SingleShotConnection);
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggedFile(event->mimeData()).isEmpty())
        return;
    // The file stays where it is, even if the source proposes to move it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    mySession.open(draggedFile(event->mimeData()));
}

void MainWindow::closeEvent(QCloseEvent *)
{
    if (mySettings.isRemembering()) {
        myChoices.keep();
        myFindingsDock->save(&mySettings);
        WindowState(&mySettings).save(*this, *mySplitter);
        mySettings.refresh();
    }
}

QWidget *MainWindow::createCentre()
{
    mySplitter->setChildrenCollapsible(false);
    mySplitter->addWidget(myProducts);
    mySplitter->addWidget(myView);
    mySplitter->setStretchFactor(0, 1);
    mySplitter->setStretchFactor(1, 3);
    mySplitter->setSizes({ LIST_WIDTH, USUAL_SIZE.width() - LIST_WIDTH });
    myScreens->addWidget(myStart);
    myScreens->addWidget(mySplitter);
    connect(myStart, &StartScreen::openRequested, this, &MainWindow::chooseFile);
    connect(myStart, &StartScreen::fileChosen, &mySession, &CatalogueSession::open);
    auto *centre = new QWidget;
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins({});
    layout->addWidget(myBanner);
    layout->addWidget(myScreens, 1);
    return centre;
}

void MainWindow::restoreState()
{
    WindowState(&mySettings).restore(this, mySplitter);
    myFindingsDock->restore(mySettings);
    showRecentFiles();
    myStart->setFocus();
}

void MainWindow::showRecentFiles()
{
    myStart->setRecentFiles(myRecentFiles.fileNames());
}

void MainWindow::forgetEverything()
{
    const QString question = tr(
            "Forget the recent catalogues, the choices for products, and the places of the windows and "
            "their parts?");
    if (QMessageBox::question(this, tr("Forget everything"), question) != QMessageBox::Yes)
        return;
    mySettings.forgetEverything();
    showRecentFiles();
}

void MainWindow::createMenus()
{
    menuBar()->addMenu(createFileMenu());
    menuBar()->addMenu(createEditMenu());
    menuBar()->addMenu(createViewMenu());
    auto *findings = new FindingsActions({ this, &mySession, myFindings, myProducts, myView, myBanner, &mySettings });
    findings->addTo(menuBar());
    myComparison->addTo(menuBar());
    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(themeIcon("help-about"), tr("&About"), this, &MainWindow::showAbout);
}

QMenu *MainWindow::createFileMenu()
{
    auto *file = new QMenu(tr("&File"), this);
    file->addAction(themeIcon("document-open", QStyle::SP_DialogOpenButton), tr("&Open…"), QKeySequence::Open, this,
                    &MainWindow::chooseFile);
    file->addMenu(myRecentMenu);
    connect(myRecentMenu, &RecentFilesMenu::fileChosen, &mySession, &CatalogueSession::open);
    connect(myRecentMenu, &RecentFilesMenu::cleared, this, &MainWindow::showRecentFiles);
    file->addAction(themeIcon("view-refresh", QStyle::SP_BrowserReload), tr("&Reload"), QKeySequence(Qt::Key_F5),
                    &mySession, &CatalogueSession::reload);
    myCancel->setShortcut(Qt::Key_Escape);
    myCancel->setEnabled(false);
    connect(myCancel, &QAction::triggered, &mySession, &CatalogueSession::cancel);
    file->addAction(myCancel);
    file->addSeparator();
    for (QMenu *drawing : myView->drawingMenus())
        file->addMenu(drawing);
    file->addSeparator();
    QAction *forget = file->addAction(themeIcon("edit-clear-history"), tr("&Forget everything…"), this,
                                      &MainWindow::forgetEverything);
    forget->setObjectName(u"forgetEverything"_s);
    forget->setEnabled(mySettings.isRemembering());
    file->addSeparator();
    file->addAction(themeIcon("application-exit"), tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this,
                    &QWidget::close);
    return file;
}

QMenu *MainWindow::createEditMenu()
{
    auto *edit = new QMenu(tr("&Edit"), this);
    edit->addAction(themeIcon("edit-find"), tr("&Find"), QKeySequence::Find, myProducts, &ProductList::focusSearch);
    edit->addSeparator();
    const QIcon icon = themeIcon("edit-copy");
    const auto copy = [this](OrderLinesPanel::Line line) { return [this, line] { myView->copy(line); }; };
    edit->addAction(icon, tr("Copy &project file"), Qt::CTRL | Qt::SHIFT | Qt::Key_P, this,
                    copy(OrderLinesPanel::ProjectFile));
    edit->addAction(icon, tr("Copy order &transfer"), Qt::CTRL | Qt::SHIFT | Qt::Key_T, this,
                    copy(OrderLinesPanel::OrderTransfer));
    edit->addAction(icon, tr("Copy &order text"), Qt::CTRL | Qt::SHIFT | Qt::Key_O, this,
                    copy(OrderLinesPanel::OrderText));
    edit->addAction(icon, tr("Copy price &classes"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, myView,
                    &ProductView::copyPrices);
    return edit;
}

QMenu *MainWindow::createViewMenu()
{
    auto *view = new QMenu(tr("&View"), this);
    QAction *findings = myFindingsDock->toggleViewAction();
    findings->setText(tr("&Findings"));
    findings->setShortcut(Qt::Key_F4);
    view->addAction(findings);
    return view;
}

void MainWindow::connectSession()
{
    connect(myProducts, &ProductList::productChosen, this, &MainWindow::showProduct);
    connect(myFindings, &FindingsPanel::productChosen, myProducts, &ProductList::setCurrentProduct);
    connect(&mySession, &CatalogueSession::started, this, [this](const QString &fileName) {
        myCancel->setEnabled(true);
        myProgress->start(fileName);
    });
    connect(&mySession, &CatalogueSession::progressed, myProgress, &LoadProgress::setPercent);
    connect(&mySession, &CatalogueSession::ended, this, [this] {
        myCancel->setEnabled(false);
        myProgress->hide();
    });
    connect(&mySession, &CatalogueSession::catalogueChanged, this, &MainWindow::showCatalogue);
    connect(&mySession, &CatalogueSession::failed, this, &MainWindow::showError);
    connect(&mySession, &CatalogueSession::vanished, this, &MainWindow::showVanished);
    connect(myComparison, &ComparisonActions::productChosen, myProducts, &ProductList::setCurrentProduct);
    connect(myComparison, &ComparisonActions::singleProductChosen, this, &MainWindow::showSingleProduct);
    connect(myComparison, &ComparisonActions::messageChanged, this, &MainWindow::showComparisonMessage);
    connect(myProgress, &LoadProgress::cancelRequested, &mySession, &CatalogueSession::cancel);
}

void MainWindow::chooseFile()
{
    const QString near = myFileName.isEmpty() ? myRecentFiles.fileNames().value(0) : myFileName;
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Open a catalogue"), QFileInfo(near).path(),
                                                          tr("Catalogues (*.xml);;All files (*)"));
    if (!fileName.isEmpty())
        mySession.open(fileName);
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About rvbrowser"),
                       tr("rvbrowser %1\nShows catalogues of print products.").arg(QApplication::applicationVersion()));
}

void MainWindow::showCatalogue()
{
    const CataloguePointer catalogue = mySession.catalogue();
    const bool isReload = catalogue->fileName() == myFileName;
    const int product = isReload ? catalogue->indexOf(myType) : -1;
    myFileName = catalogue->fileName();
    myRecentFiles.add(myFileName);
    showConfiguration(catalogue->configuration());
    setWindowTitle(u"%1 – %2"_s.arg(QFileInfo(myFileName).fileName(), QApplication::applicationName()));
    myFindingsDock->setCatalogue(catalogue);
    mySummary->setText(myFindings->summary());
    const bool isStart = myScreens->currentWidget() == myStart;
    myScreens->setCurrentWidget(mySplitter);
    myProducts->setCatalogue(catalogue);
    if (isStart)
        myProducts->focusSearch();
    if (product < 0) {
        showFirst(*catalogue);
        return;
    }
    const QSignalBlocker blocker(myProducts);
    myProducts->keepCurrentProduct(product);
    myChoices.update(catalogue, product);
}

// The product of last time, else the first one that is found, else the first of all.
void MainWindow::showFirst(const LoadedCatalogue &catalogue)
{
    const int last = myChoices.lastProduct(catalogue);
    myProducts->setCurrentProduct(last >= 0 ? last : qMax(0, myProducts->firstProduct()));
}

QString MainWindow::errorText(const LoadError &error)
{
    if (!error.position)
        return tr("%1: %2").arg(error.fileName, error.text);
    return tr("%1, line %2, column %3: %4")
            .arg(error.fileName, QString::number(error.position->line), QString::number(error.position->column),
                 error.text);
}

void MainWindow::showConfiguration(const RVCheckConfiguration &configuration)
{
    if (configuration.hasError())
        myBanner->showMessage(
                errorText({ configuration.fileName(), configuration.errorPosition(), configuration.errorString() })
                + u'\n' + tr("The catalogue was checked without this configuration."));
    else
        myBanner->hide();
}

void MainWindow::showError(const LoadError &error)
{
    QString text = errorText(error);
    if (mySession.catalogue())
        text += u'\n' + tr("The catalogue that was loaded before is still shown.");
    myBanner->showMessage(text);
}

void MainWindow::showVanished(const QString &fileName)
{
    myBanner->showMessage(tr("%1 is gone. It is loaded again when it comes back.").arg(fileName) + u'\n'
                          + tr("The catalogue that was loaded before is still shown."));
}

void MainWindow::showSingleProduct(const CataloguePointer &catalogue, int product, const QString &note)
{
    myProducts->clearCurrentProduct();
    myChoices.leave();
    myView->setSingleProduct(catalogue, product, note);
}

// A message about anything else stays.
void MainWindow::showComparisonMessage(const QString &text, const QString &before)
{
    if (!text.isEmpty())
        myBanner->showMessage(text);
    else if (myBanner->text() == before)
        myBanner->hide();
}

void MainWindow::showProduct(int product)
{
    const CataloguePointer catalogue = mySession.catalogue();
    myType = catalogue->at(product).type;
    myChoices.show(catalogue, product);
}
