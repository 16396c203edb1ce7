#ifndef COMPARISONPANEL_H
#define COMPARISONPANEL_H

#include "ComparisonModel.h"

#include <QWidget>

class ComparisonFilter;
class LoadProgress;
class QLabel;
class QPushButton;
class QTreeView;

/// The differences between two catalogues, which can be searched; a click on one leads to its product.
class ComparisonPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonPanel(QWidget *parent = nullptr);

    /// Null where nothing is compared. Filter and order stay, and so does the product that is chosen, where it is still
    /// there.
    void setComparison(const ComparisonPointer &comparison);
    LoadProgress *progress() { return myProgress; } ///< To be shown while catalogues are compared.
    /// Chooses the next of the changes that are shown, behind the last one the first, or the one before.
    /// @{
    void chooseNext();
    void choosePrevious();
    /// @}
    /// Puts what is chosen on the clipboard in the lines of "rvcatalog diff", a product with all that has changed of
    /// it.
    void copy() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A product was chosen, or something that has changed of it, by its number in the comparison.
    void productChosen(int product);

private:
    QWidget *createHeader();
    void createView();
    void filter();
    void choose(const QModelIndex &index);
    void setCurrent(const QModelIndex &index);
    int find(const ComparedProduct &product) const;
    void showNames();
    void showParts();

    ComparisonModel myModel;
    ComparisonPointer myComparison;
    ComparisonFilter *myFilter;
    QLabel *mySummary;
    QLabel *myNames;
    LoadProgress *myProgress;
    QTreeView *myView;
    QLabel *myMessage; // in place of the view
    QPushButton *myClear; // where nothing is found
    QWidget *myHeader;
    bool myIsFilling = false;
};

#endif
