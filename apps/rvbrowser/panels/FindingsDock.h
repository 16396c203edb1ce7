#ifndef FINDINGSDOCK_H
#define FINDINGSDOCK_H

#include "LoadedCatalogue.h"

#include <QDockWidget>

class FindingsPanel;
class QMainWindow;
class Settings;

/// The place of the findings: one line where there are none, else as high as the user made it. Hidden from restore()
/// until there is a catalogue.
class FindingsDock : public QDockWidget
{
    Q_OBJECT

public:
    /// Takes the panel, and its place at the bottom of the window.
    FindingsDock(const QString &title, FindingsPanel *panel, QMainWindow *window);

    /// To be called after the window has restored its docks.
    void restore(const Settings &settings);
    /// To be called before the window saves its docks.
    void save(Settings *settings);
    void setCatalogue(const CataloguePointer &catalogue);

private:
    void stopWaiting();
    void noteHeight();

    FindingsPanel *myPanel;
    QMainWindow *myWindow;
    int myHeight = 0; // with findings, in pixels; 0 for what is useful
    bool myHasFindings = false;
    bool myIsWaiting = false; // for a catalogue
    bool myIsWanted = true; // as soon as there is one
};

#endif
