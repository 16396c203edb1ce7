#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "CatalogueSession.h"
#include "ChoiceKeeper.h"
#include "RecentFiles.h"
#include "Settings.h"

#include <QMainWindow>

class ComparisonActions;
class FindingsDock;
class FindingsPanel;
class LoadProgress;
class MessageBanner;
class ProductList;
class ProductView;
class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QStackedWidget;
class RecentFilesMenu;
class StartScreen;

/// Puts the parts together: the products, the chosen one, the findings and the menus. The session has the catalogue,
/// and the settings have all that is remembered from one day to the next.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Without a file of settings, the window remembers nothing and is always the same.
    explicit MainWindow(const QString &settingsFile = QString(), QWidget *parent = nullptr);

    CatalogueSession *session() { return &mySession; }
    ComparisonActions *comparison() { return myComparison; }
    /// Shows the first product of the type; false where there is none.
    bool showType(const RVProductType &type);
    /// The place and the text of an error in one line.
    static QString errorText(const LoadError &error);
    /// Does so once a catalogue is loaded, and says so where there is none.
    void beginWith(const RVProductType &type);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createMenus();
    QMenu *createFileMenu();
    QMenu *createEditMenu();
    QMenu *createViewMenu();
    QWidget *createCentre();
    void restoreState();
    void showRecentFiles();
    void forgetEverything();
    void connectSession();
    void chooseFile();
    void showAbout();
    void showCatalogue();
    void showFirst(const LoadedCatalogue &catalogue);
    void showProduct(int product);
    void showSingleProduct(const CataloguePointer &catalogue, int product, const QString &note);
    void showComparisonMessage(const QString &text, const QString &before);
    void showConfiguration(const RVCheckConfiguration &configuration);
    void showError(const LoadError &error);
    void showVanished(const QString &fileName);

    Settings mySettings;
    RecentFiles myRecentFiles;
    CatalogueSession mySession;
    ProductList *myProducts;
    ProductView *myView;
    ChoiceKeeper myChoices;
    StartScreen *myStart;
    QSplitter *mySplitter;
    QStackedWidget *myScreens; // the start, then the catalogue
    MessageBanner *myBanner;
    FindingsPanel *myFindings;
    FindingsDock *myFindingsDock;
    QLabel *mySummary;
    LoadProgress *myProgress;
    QAction *myCancel;
    RecentFilesMenu *myRecentMenu;
    ComparisonActions *myComparison;
    QString myFileName; // whose products are shown
    RVProductType myType; // of the product that is shown
};

#endif
