#ifndef COMPARISONACTIONS_H
#define COMPARISONACTIONS_H

#include "ComparisonSession.h"

class ComparisonPanel;
class QAction;
class QDockWidget;
class QMainWindow;
class QMenuBar;

/// All that the window has for comparing catalogues: the menu, and the dock with what has changed.
class ComparisonActions : public QObject
{
    Q_OBJECT

public:
    /// @p session outlives this. @p window is a place for dialogues, and that of the dock, which it adds itself.
    ComparisonActions(CatalogueSession *session, QMainWindow *window);

    ComparisonSession *session() { return &mySession; }
    QDockWidget *dock() { return myDock; }
    void addTo(QMenuBar *menuBar);
    /// Writes what has changed as "rvcatalog diff" does: as JSON and Markdown where the name ends in .json and .md,
    /// else as text. There is a message where that fails. Only with a comparison.
    void saveAs(const QString &fileName);

Q_SIGNALS:
    /// A product of the open catalogue was chosen, by its number there.
    void productChosen(int product);
    /// A product that the open catalogue does not have was chosen; the note says so.
    void singleProductChosen(const CataloguePointer &catalogue, int product, const QString &note);
    /// A message in place of the one before; empty where that is out of date.
    void messageChanged(const QString &text, const QString &before);

private:
    void connectSession();
    void enable();
    void chooseFile();
    void save();
    void showComparison();
    void showProduct(int product);
    void fitDock();
    void say(const QString &text);

    CatalogueSession *myCatalogues;
    ComparisonSession mySession;
    QMainWindow *myWindow;
    ComparisonPanel *myPanel;
    QDockWidget *myDock;
    QAction *myCompare;
    QAction *myCompareWithOriginal;
    QAction *mySwap;
    QAction *myNext;
    QAction *myPrevious;
    QAction *myCopy;
    QAction *mySave;
    QAction *myCancel;
    QAction *myClose;
    QString myMessage;
    bool myIsDockHigh = false;
};

#endif
