#include "MainWindow.h"

#include "FindingsPanel.h"
#include "LoadProgress.h"
#include "MessageBanner.h"
#include "ProductList.h"
#include "ProductView.h"

#include <QApplication>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalBlocker>
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

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent),
      myProducts(new ProductList),
      myView(new ProductView),
      myPages(new QStackedWidget),
      myBanner(new MessageBanner),
      myFindings(new FindingsPanel),
      myFindingsDock(new QDockWidget(tr("Findings"))),
      mySummary(new QLabel),
      myProgress(new LoadProgress),
      myCancel(new QAction(tr("&Cancel loading"), this))
{
    setWindowTitle(QApplication::applicationName());
    setAcceptDrops(true);
    setCentralWidget(createCentre());
    createFindings();
    createMenus();
    mySummary->setObjectName(u"summary"_s);
    statusBar()->addWidget(myProgress);
    statusBar()->addPermanentWidget(mySummary);
    connectSession();
    connect(myProducts, &ProductList::productChosen, this, &MainWindow::showProduct);
    connect(myFindings, &FindingsPanel::productChosen, myProducts, &ProductList::setCurrentProduct);
    resize(USUAL_SIZE);
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
    // The file stays where it is, whatever the source proposes.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    mySession.open(draggedFile(event->mimeData()));
}

QWidget *MainWindow::createCentre()
{
    auto *welcome = new QLabel(tr("Open a catalogue with Ctrl+O, or drop one here."));
    welcome->setObjectName(u"welcome"_s);
    welcome->setAlignment(Qt::AlignCenter);
    welcome->setWordWrap(true);
    myPages->addWidget(welcome);
    myPages->addWidget(myView);
    auto *right = new QWidget;
    auto *layout = new QVBoxLayout(right);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(myBanner);
    layout->addWidget(myPages, 1);
    auto *splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(myProducts);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({ LIST_WIDTH, USUAL_SIZE.width() - LIST_WIDTH });
    return splitter;
}

void MainWindow::createFindings()
{
    myFindingsDock->setObjectName(u"findingsDock"_s);
    myFindingsDock->setWidget(myFindings);
    addDockWidget(Qt::BottomDockWidgetArea, myFindingsDock);
}

void MainWindow::createMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), QKeySequence::Open, this, &MainWindow::chooseFile);
    file->addAction(tr("&Reload"), QKeySequence(Qt::Key_F5), &mySession, &CatalogueSession::reload);
    myCancel->setShortcut(Qt::Key_Escape);
    myCancel->setEnabled(false);
    connect(myCancel, &QAction::triggered, &mySession, &CatalogueSession::cancel);
    file->addAction(myCancel);
    file->addSeparator();
    for (QMenu *drawing : myView->drawingMenus())
        file->addMenu(drawing);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(tr("&Find"), QKeySequence::Find, myProducts, &ProductList::focusSearch);
    edit->addSeparator();
    const auto copy = [this](OrderLinesPanel::Line line) { return [this, line] { myView->copy(line); }; };
    edit->addAction(tr("Copy &project file"), Qt::CTRL | Qt::SHIFT | Qt::Key_P, this,
                    copy(OrderLinesPanel::ProjectFile));
    edit->addAction(tr("Copy order &transfer"), Qt::CTRL | Qt::SHIFT | Qt::Key_T, this,
                    copy(OrderLinesPanel::OrderTransfer));
    edit->addAction(tr("Copy &order text"), Qt::CTRL | Qt::SHIFT | Qt::Key_O, this, copy(OrderLinesPanel::OrderText));
    edit->addAction(tr("Copy price &classes"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, myView, &ProductView::copyPrices);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    QAction *findings = myFindingsDock->toggleViewAction();
    findings->setText(tr("&Findings"));
    findings->setShortcut(Qt::Key_F4);
    view->addAction(findings);

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About"), this, &MainWindow::showAbout);
}

void MainWindow::connectSession()
{
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
    connect(myProgress, &LoadProgress::cancelRequested, &mySession, &CatalogueSession::cancel);
}

void MainWindow::chooseFile()
{
    const QString fileName = QFileDialog::getOpenFileName(this, tr("Open a catalogue"), QFileInfo(myFileName).path(),
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
    showConfiguration(catalogue->configuration());
    setWindowTitle(u"%1 – %2"_s.arg(QFileInfo(myFileName).fileName(), QApplication::applicationName()));
    showFindings(catalogue);
    mySummary->setText(myFindings->summary());
    myProducts->setCatalogue(catalogue);
    myPages->setCurrentWidget(myView);
    if (product < 0) {
        myProducts->setCurrentProduct(qMax(0, myProducts->firstProduct())); // though a search may hide them all
        return;
    }
    const QSignalBlocker blocker(myProducts);
    myProducts->setCurrentProduct(product);
    myView->updateProduct(catalogue, product);
}

// As high as it is useful, unless it already was and somebody may have changed it.
void MainWindow::showFindings(const CataloguePointer &catalogue)
{
    const int before = myFindings->sizeHint().height();
    myFindings->setCatalogue(catalogue);
    const int now = myFindings->sizeHint().height();
    if (now != before || mySummary->text().isEmpty())
        resizeDocks({ myFindingsDock }, { now }, Qt::Vertical);
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
        text += u'\n' + tr("What was loaded before is still shown.");
    myBanner->showMessage(text);
}

void MainWindow::showVanished(const QString &fileName)
{
    myBanner->showMessage(tr("%1 is gone. It is loaded again when it comes back.").arg(fileName) + u'\n'
                          + tr("What was loaded before is still shown."));
}

void MainWindow::showProduct(int product)
{
    const CataloguePointer catalogue = mySession.catalogue();
    myType = catalogue->at(product).type;
    myView->setProduct(catalogue, product);
}
