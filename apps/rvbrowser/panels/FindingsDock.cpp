#include "FindingsDock.h"

#include "FindingsPanel.h"
#include "Settings.h"

#include <QAction>
#include <QLayout>
#include <QMainWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr auto HEIGHT = "window/findings"_L1;

}

FindingsDock::FindingsDock(const QString &title, FindingsPanel *panel, QMainWindow *window)
    : QDockWidget(title),
      myPanel(panel),
      myWindow(window)
{
    setObjectName(u"findingsDock"_s);
    setWidget(panel);
    myWindow->addDockWidget(Qt::BottomDockWidgetArea, this);
}

void FindingsDock::restore(const Settings &settings)
{
    myHeight = settings.value(HEIGHT).toInt();
    myIsWaiting = true;
    myIsWanted = !isHidden();
    toggleViewAction()->setEnabled(false);
    hide();
}

void FindingsDock::save(Settings *settings)
{
    noteHeight();
    stopWaiting();
    if (myHeight > 0)
        settings->setValue(HEIGHT, myHeight);
}

void FindingsDock::setCatalogue(const CataloguePointer &catalogue)
{
    noteHeight();
    stopWaiting();
    myPanel->setCatalogue(catalogue);
    myHasFindings = !catalogue->findings().isEmpty();
    // A part that was hidden just now would still keep its room.
    myPanel->layout()->activate();
    layout()->activate();
    const bool isChosen = myHasFindings && myHeight > 0;
    myWindow->resizeDocks({ this }, { isChosen ? myHeight : myPanel->sizeHint().height() }, Qt::Vertical);
}

void FindingsDock::stopWaiting()
{
    if (!myIsWaiting)
        return;
    myIsWaiting = false;
    toggleViewAction()->setEnabled(true);
    setVisible(myIsWanted);
}

void FindingsDock::noteHeight()
{
    if (myHasFindings && isVisible() && !isFloating())
        myHeight = height();
}
