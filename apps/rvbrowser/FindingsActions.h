#ifndef FINDINGSACTIONS_H
#define FINDINGSACTIONS_H

#include "EditorLauncher.h"
#include "FindingsPanel.h"

#include <QObject>

class CatalogueSession;
class MessageBanner;
class ProductList;
class ProductView;
class QAction;
class QKeySequence;
class QMainWindow;
class QMenu;
class QMenuBar;
class Settings;

/// All that is done with findings: going from one to the next, copying, explaining, editing and mending.
class FindingsActions : public QObject
{
    Q_OBJECT

public:
    /// The parts of a window that it works with, which outlive it.
    struct Parts
    {
        QMainWindow *window;
        CatalogueSession *session;
        FindingsPanel *findings;
        ProductList *products;
        ProductView *view;
        MessageBanner *banner;
        Settings *settings;
    };

    /// Belongs to the window.
    explicit FindingsActions(const Parts &parts);

    void addTo(QMenuBar *menuBar);

private:
    void createActions();
    template<typename Trigger>
    QAction *add(const QString &text, const QKeySequence &key, Trigger trigger);
    void connectParts();
    void update();
    void updateSelected();
    void goToNext() const;
    void goToPrevious() const;
    void tell(FindingsPanel::Step step, const QString &wrapped) const;
    void showInProduct(int finding) const;
    void copy() const;
    void explain(bool isExplained) const;
    void openInEditor();
    void chooseEditor() const;
    void applyFix();
    void applyAllFixes();
    void applyFixes(const QList<int> &findings);
    /// Those with a fix.
    QList<int> fixable(const QList<int> &findings) const;
    QList<int> allFindings() const;

    Parts my;
    EditorLauncher myLauncher;
    QMenu *myMenu;
    QAction *myNext = nullptr;
    QAction *myPrevious = nullptr;
    QAction *myOpen = nullptr;
    QAction *myCopy = nullptr;
    QAction *myExplain = nullptr;
    QAction *myApply = nullptr;
    QAction *myApplyAll = nullptr;
};

#endif
