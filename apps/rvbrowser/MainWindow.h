#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "CatalogueSession.h"

#include <QMainWindow>

class FindingsPanel;
class LoadProgress;
class MessageBanner;
class ProductList;
class ProductView;
class QAction;
class QDockWidget;
class QLabel;
class QStackedWidget;

/// Puts the parts together: the products, the chosen one, the findings and the menus. What is loaded is the session's.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    CatalogueSession *session() { return &mySession; }
    /// Shows the first product of the type; false where there is none.
    bool showType(const RVProductType &type);
    /// Does so once a catalogue is loaded, and says so where there is none.
    void beginWith(const RVProductType &type);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createMenus();
    void createFindings();
    QWidget *createCentre();
    void connectSession();
    void chooseFile();
    void showAbout();
    void showCatalogue();
    void showFindings(const CataloguePointer &catalogue);
    void showProduct(int product);
    void showConfiguration(const RVCheckConfiguration &configuration);
    void showError(const LoadError &error);
    void showVanished(const QString &fileName);
    static QString errorText(const LoadError &error);

    CatalogueSession mySession;
    ProductList *myProducts;
    ProductView *myView;
    QStackedWidget *myPages; // the welcome, then the product
    MessageBanner *myBanner;
    FindingsPanel *myFindings;
    QDockWidget *myFindingsDock;
    QLabel *mySummary;
    LoadProgress *myProgress;
    QAction *myCancel;
    QString myFileName; // whose products are shown
    RVProductType myType; // of the product that is shown
};

#endif
