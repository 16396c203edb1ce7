#include "WindowState.h"

#include "Settings.h"

#include <QMainWindow>
#include <QScreen>
#include <QSplitter>

using namespace Qt::StringLiterals;

namespace {

constexpr auto GEOMETRY = "window/geometry"_L1;
constexpr auto STATE = "window/state"_L1;
constexpr auto SPLITTER = "window/splitter"_L1;
/// To be raised when the docks change so much that an older state does not fit.
constexpr int VERSION = 1;

}

bool WindowState::restore(QMainWindow *window, QSplitter *splitter) const
{
    if (!mySettings->isRemembering())
        return false;
    if (!window->restoreGeometry(mySettings->value(GEOMETRY).toByteArray()))
        window->resize(window->size().boundedTo(window->screen()->availableSize()));
    splitter->restoreState(mySettings->value(SPLITTER).toByteArray());
    return window->restoreState(mySettings->value(STATE).toByteArray(), VERSION);
}

void WindowState::save(const QMainWindow &window, const QSplitter &splitter)
{
    mySettings->setValue(GEOMETRY, window.saveGeometry());
    mySettings->setValue(SPLITTER, splitter.saveState());
    mySettings->setValue(STATE, window.saveState(VERSION));
}
