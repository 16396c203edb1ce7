#include "FindingsActions.h"

#include "CatalogueSession.h"
#include "EditorDialog.h"
#include "FindingLine.h"
#include "FixDialog.h"
#include "MessageBanner.h"
#include "ProductList.h"
#include "ProductView.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>
#include <chrono>
#include <numeric>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds MESSAGE_TIME = 10s;

}

FindingsActions::FindingsActions(const Parts &parts)
    : QObject(parts.window),
      my(parts),
      myMenu(new QMenu(tr("F&indings"), parts.window))
{
    createActions();
    connectParts();
    update();
}

void FindingsActions::addTo(QMenuBar *menuBar)
{
    menuBar->addMenu(myMenu);
}

void FindingsActions::createActions()
{
    myNext = add(tr("&Next finding"), Qt::Key_F8, &FindingsActions::goToNext);
    myPrevious = add(tr("&Previous finding"), Qt::SHIFT | Qt::Key_F8, &FindingsActions::goToPrevious);
    myMenu->addSeparator();
    myOpen = add(tr("Open in &editor"), Qt::Key_F2, &FindingsActions::openInEditor);
    myOpen->setShortcuts({ Qt::Key_F2, Qt::CTRL | Qt::Key_E });
    myCopy = add(tr("&Copy findings"), QKeySequence::Copy, &FindingsActions::copy);
    myCopy->setShortcutContext(Qt::WidgetShortcut); // all other parts of the window copy as well
    myExplain = myMenu->addAction(tr("E&xplain"));
    myExplain->setShortcut(Qt::SHIFT | Qt::Key_F1);
    myExplain->setCheckable(true);
    connect(myExplain, &QAction::toggled, this, &FindingsActions::explain);
    myMenu->addSeparator();
    myApply = add(tr("&Apply fix…"), Qt::CTRL | Qt::Key_Period, &FindingsActions::applyFix);
    myApplyAll = add(tr("App&ly all fixes…"), QKeySequence(), &FindingsActions::applyAllFixes);
    myMenu->addSeparator();
    add(tr("E&ditor…"), QKeySequence(), &FindingsActions::chooseEditor);
    my.findings->addViewActions({ myCopy, myOpen, myExplain, myApply });
}

template<typename Trigger>
QAction *FindingsActions::add(const QString &text, const QKeySequence &key, Trigger trigger)
{
    QAction *result = myMenu->addAction(text);
    result->setShortcut(key);
    connect(result, &QAction::triggered, this, trigger);
    return result;
}

void FindingsActions::connectParts()
{
    connect(my.findings, &FindingsPanel::selectionChanged, this, &FindingsActions::updateSelected);
    connect(my.findings, &FindingsPanel::findingChosen, this, &FindingsActions::showInProduct);
    connect(my.findings, &FindingsPanel::editRequested, this, &FindingsActions::openInEditor);
    connect(my.findings, &FindingsPanel::catalogueChanged, this, &FindingsActions::update);
    // The chosen finding may still be there in a file that was loaded again; the product is shown before.
    const auto showAgain = [this] { showInProduct(my.findings->currentFinding()); };
    connect(my.session, &CatalogueSession::catalogueChanged, this, showAgain, Qt::QueuedConnection);
    connect(&myLauncher, &EditorLauncher::failed, my.banner, &MessageBanner::showMessage);
}

void FindingsActions::update()
{
    const CataloguePointer catalogue = my.findings->catalogue();
    const bool hasFindings = catalogue && !catalogue->findings().isEmpty();
    myNext->setEnabled(hasFindings);
    myPrevious->setEnabled(hasFindings);
    myOpen->setEnabled(catalogue != nullptr);
    myExplain->setEnabled(hasFindings);
    myApplyAll->setEnabled(!fixable(allFindings()).isEmpty());
    updateSelected();
}

void FindingsActions::updateSelected()
{
    const QList<int> selected = my.findings->selectedFindings();
    myCopy->setEnabled(!selected.isEmpty());
    myApply->setEnabled(!fixable(selected).isEmpty());
}

void FindingsActions::goToNext() const
{
    tell(my.findings->next(), tr("That was the last finding; this is the first one."));
}

void FindingsActions::goToPrevious() const
{
    tell(my.findings->previous(), tr("That was the first finding; this is the last one."));
}

void FindingsActions::tell(FindingsPanel::Step step, const QString &wrapped) const
{
    if (step == FindingsPanel::Step::None)
        my.window->statusBar()->showMessage(tr("The filter hides all findings."), int(MESSAGE_TIME.count()));
    else if (step == FindingsPanel::Step::Wrapped)
        my.window->statusBar()->showMessage(wrapped, int(MESSAGE_TIME.count()));
    else
        my.window->statusBar()->clearMessage();
}

void FindingsActions::showInProduct(int finding) const
{
    const CataloguePointer catalogue = my.findings->catalogue();
    if (!catalogue || finding < 0)
        return;
    const RVCatalogueFinding &shown = catalogue->findings().at(finding);
    if (shown.product() >= 0 && shown.product() == my.products->currentProduct())
        my.view->showFinding(*catalogue, shown);
}

void FindingsActions::copy() const
{
    const CataloguePointer catalogue = my.findings->catalogue();
    QStringList lines;
    for (const int finding : my.findings->selectedFindings())
        lines += findingLines(catalogue->fileName(), catalogue->findings().at(finding));
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void FindingsActions::explain(bool isExplained) const
{
    if (isExplained)
        my.findings->parentWidget()->show(); // the dock
    my.findings->setExplained(isExplained);
}

// The finding, unless another product was chosen since; then that product.
void FindingsActions::openInEditor()
{
    const CataloguePointer catalogue = my.findings->catalogue();
    if (!catalogue)
        return;
    const int product = my.products->currentProduct();
    RVFilePosition position = product < 0 ? RVFilePosition() : catalogue->at(product).position;
    const int finding = my.findings->currentFinding();
    if (finding >= 0) {
        const RVCatalogueFinding &current = catalogue->findings().at(finding);
        if (current.product() < 0 || current.product() == product)
            position = current.range().begin;
    }
    myLauncher.open(EditorChoice::load(*my.settings).command(), catalogue->fileName(), position);
}

void FindingsActions::chooseEditor() const
{
    auto *dialog = new EditorDialog(my.settings, my.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void FindingsActions::applyFix()
{
    applyFixes(fixable(my.findings->selectedFindings()));
}

void FindingsActions::applyAllFixes()
{
    applyFixes(fixable(allFindings()));
}

void FindingsActions::applyFixes(const QList<int> &findings)
{
    if (findings.isEmpty())
        return;
    const CataloguePointer catalogue = my.findings->catalogue();
    const auto fail = [this, fileName = catalogue->fileName()](const QString &text) {
        my.banner->showMessage(tr("%1: %2").arg(fileName, text) + u'\n' + tr("Nothing was changed."));
    };
    auto plan = std::make_unique<FixPlan>(*catalogue, findings);
    if (!plan->prepare())
        return fail(plan->errorString());
    auto *dialog = new FixDialog(std::move(plan), my.window);
    connect(dialog, &FixDialog::failed, this, fail);
    connect(dialog, &FixDialog::applied, this, [this](int fixes) {
        my.window->statusBar()->showMessage(tr("%n fix(es) applied.", nullptr, fixes), int(MESSAGE_TIME.count()));
    });
    dialog->open();
}

QList<int> FindingsActions::fixable(const QList<int> &findings) const
{
    const CataloguePointer catalogue = my.findings->catalogue();
    QList<int> result;
    std::copy_if(findings.begin(), findings.end(), std::back_inserter(result),
                 [&catalogue](int finding) { return !catalogue->findings().at(finding).fix().isEmpty(); });
    return result;
}

QList<int> FindingsActions::allFindings() const
{
    const CataloguePointer catalogue = my.findings->catalogue();
    QList<int> result(catalogue ? catalogue->findings().size() : 0);
    std::iota(result.begin(), result.end(), 0);
    return result;
}
