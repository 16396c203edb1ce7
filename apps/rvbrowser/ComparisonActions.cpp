#include "ComparisonActions.h"

#include "ComparisonPanel.h"
#include "DiffWriter.h"
#include "FileContent.h"
#include "LoadProgress.h"
#include "MainWindow.h"

#include <QAction>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The format of a file by the end of its name.
QString formatOf(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    return suffix == "json"_L1 ? u"json"_s : suffix == "md"_L1 ? u"markdown"_s : u"text"_s;
}

}

ComparisonActions::ComparisonActions(CatalogueSession *session, QMainWindow *window)
    : QObject(window),
      myCatalogues(session),
      mySession(session),
      myWindow(window),
      myPanel(new ComparisonPanel),
      myDock(new QDockWidget(tr("Changes"))),
      myCompare(new QAction(tr("Compare &with…"), this)),
      myCompareWithOriginal(new QAction(tr("Changes since &opening"), this)),
      mySwap(new QAction(tr("&Swap old and new"), this)),
      myNext(new QAction(tr("&Next change"), this)),
      myPrevious(new QAction(tr("&Previous change"), this)),
      myCopy(new QAction(tr("&Copy changes"), this)),
      mySave(new QAction(tr("Save changes &as…"), this)),
      myCancel(new QAction(tr("Cancel c&omparing"), this)),
      myClose(new QAction(tr("C&lose comparison"), this))
{
    myDock->setObjectName(u"changesDock"_s);
    myDock->setWidget(myPanel);
    myDock->hide();
    myNext->setShortcut(Qt::Key_F7);
    myPrevious->setShortcut(Qt::SHIFT | Qt::Key_F7);
    myCancel->setShortcut(Qt::Key_Escape);
    connect(myCompare, &QAction::triggered, this, &ComparisonActions::chooseFile);
    connect(myCompareWithOriginal, &QAction::triggered, &mySession, &ComparisonSession::compareWithOriginal);
    connect(mySwap, &QAction::triggered, &mySession, &ComparisonSession::swap);
    connect(myNext, &QAction::triggered, myPanel, &ComparisonPanel::chooseNext);
    connect(myPrevious, &QAction::triggered, myPanel, &ComparisonPanel::choosePrevious);
    connect(myCopy, &QAction::triggered, myPanel, &ComparisonPanel::copy);
    connect(mySave, &QAction::triggered, this, &ComparisonActions::save);
    connect(myCancel, &QAction::triggered, &mySession, &ComparisonSession::cancel);
    connect(myClose, &QAction::triggered, &mySession, &ComparisonSession::close);
    connect(myPanel, &ComparisonPanel::productChosen, this, &ComparisonActions::showProduct);
    connectSession();
    enable();
}

void ComparisonActions::addTo(QMenuBar *menuBar)
{
    QMenu *menu = menuBar->addMenu(tr("&Compare"));
    menu->addActions({ myCompare, myCompareWithOriginal, mySwap });
    menu->addSeparator();
    QAction *show = myDock->toggleViewAction();
    show->setText(tr("Show c&hanges"));
    show->setShortcut(Qt::Key_F6);
    connect(show, &QAction::triggered, myDock, [this](bool isShown) {
        if (isShown)
            myDock->raise();
    });
    menu->addActions({ show, myNext, myPrevious });
    menu->addSeparator();
    menu->addActions({ myCopy, mySave });
    menu->addSeparator();
    menu->addActions({ myCancel, myClose });
}

void ComparisonActions::connectSession()
{
    connect(&mySession, &ComparisonSession::begun, this, [this] {
        myDock->show();
        myDock->raise();
    });
    connect(&mySession, &ComparisonSession::started, this, [this](const ComparedFiles &files) {
        myPanel->progress()->start(files.before.fileName, files.after.fileName);
    });
    connect(&mySession, &ComparisonSession::progressed, myPanel->progress(), &LoadProgress::setPercent);
    connect(&mySession, &ComparisonSession::ended, myPanel->progress(), &QWidget::hide);
    connect(&mySession, &ComparisonSession::changed, this, &ComparisonActions::showComparison);
    connect(&mySession, &ComparisonSession::failed, this, [this](const LoadError &error) {
        say(MainWindow::errorText(error) + u'\n'
            + (mySession.comparison() ? tr("The changes that were found before are still shown.")
                                      : tr("Nothing was compared.")));
    });
    connect(&mySession, &ComparisonSession::vanished, this, [this](const QString &fileName) {
        say(tr("%1 is gone. It is compared again when it comes back.").arg(fileName));
    });
    connect(myPanel->progress(), &LoadProgress::cancelRequested, &mySession, &ComparisonSession::cancel);
    connect(&mySession, &ComparisonSession::started, this, &ComparisonActions::enable);
    connect(&mySession, &ComparisonSession::ended, this, &ComparisonActions::enable);
    connect(&mySession, &ComparisonSession::changed, this, &ComparisonActions::enable);
    // One key cancels what was begun last.
    connect(myCatalogues, &CatalogueSession::started, this, &ComparisonActions::enable);
    connect(myCatalogues, &CatalogueSession::ended, this, &ComparisonActions::enable);
}

void ComparisonActions::enable()
{
    const bool isOpen = myCatalogues->catalogue() != nullptr;
    const bool isCompared = mySession.comparison() != nullptr;
    for (QAction *action : { myCompare, myCompareWithOriginal })
        action->setEnabled(isOpen);
    for (QAction *action : { myNext, myPrevious, myCopy, mySave })
        action->setEnabled(isCompared);
    mySwap->setEnabled(isOpen && mySession.isActive());
    myClose->setEnabled(mySession.isActive());
    myCancel->setEnabled(mySession.isComparing() && !myCatalogues->isLoading());
}

void ComparisonActions::chooseFile()
{
    const QString folder = QFileInfo(myCatalogues->catalogue()->fileName()).path();
    const QString fileName = QFileDialog::getOpenFileName(myWindow, tr("Compare with an older catalogue"), folder,
                                                          tr("Catalogues (*.xml);;All files (*)"));
    if (!fileName.isEmpty())
        mySession.compareWith(fileName);
}

void ComparisonActions::save()
{
    const QString folder = QFileInfo(myCatalogues->catalogue()->fileName()).path();
    const QString fileName = QFileDialog::getSaveFileName(myWindow, tr("Save the changes"), folder + "/changes.txt"_L1,
                                                          tr("Text (*.txt);;Markdown (*.md);;JSON (*.json)"));
    if (!fileName.isEmpty())
        saveAs(fileName);
}

void ComparisonActions::saveAs(const QString &fileName)
{
    const ComparisonPointer comparison = mySession.comparison();
    QByteArray changes;
    const auto writer = DiffWriter::create(formatOf(fileName), false,
                                           [&changes](const QString &text) { changes += text.toUtf8(); });
    writer->begin(comparison->files().before.fileName, comparison->files().after.fileName);
    for (int i = 0; i < comparison->size(); ++i)
        writer->product(comparison->at(i));
    writer->end(comparison->counts());
    const QString error = writeContent(fileName, changes);
    if (!error.isEmpty())
        say(tr("%1 cannot be written: %2").arg(fileName, error));
}

void ComparisonActions::showComparison()
{
    myPanel->setComparison(mySession.comparison());
    if (mySession.isActive())
        fitDock();
    else
        myDock->hide();
    say(QString());
}

// The dock gets a useful height once; later its height is the choice of the user.
void ComparisonActions::fitDock()
{
    const int height = myDock->sizeHint().height();
    if (!std::exchange(myIsDockHigh, true) && myDock->height() < height)
        myWindow->resizeDocks({ myDock }, { height }, Qt::Vertical);
}

void ComparisonActions::showProduct(int product)
{
    const ComparisonPointer comparison = mySession.comparison();
    const int open = mySession.indexInOpen(product);
    if (open >= 0) {
        Q_EMIT productChosen(open);
        return;
    }
    const int single = comparison->indexInSingles(product);
    if (single < 0)
        return;
    const bool isRemoved = comparison->at(product).kind == RVChangeKind::Removed;
    const QString owner = isRemoved ? comparison->files().before.fileName : comparison->files().after.fileName;
    Q_EMIT singleProductChosen(comparison->singles(), single,
                               tr("The open catalogue does not have this product; this is the one of %1.").arg(owner));
}

void ComparisonActions::say(const QString &text)
{
    Q_EMIT messageChanged(text, myMessage);
    myMessage = text;
}
