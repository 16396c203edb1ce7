#ifndef FINDINGSPANEL_H
#define FINDINGSPANEL_H

#include "FindingsModel.h"

#include <QWidget>

#include <optional>

class FindingFilterBar;
class QAction;
class QLabel;
class QPushButton;
class QSplitter;
class QTableView;
class QTextBrowser;

/// The findings of a catalogue as a list of work: sorted and filtered, with the explanation of the chosen one beside
/// it.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    enum class Step {
        None, ///< No finding is shown.
        Taken,
        Wrapped, ///< Taken from one end of the list to the other.
    };

    explicit FindingsPanel(QWidget *parent = nullptr);

    /// Shows the findings of a catalogue. If it is the same file again, the chosen finding stays chosen; if that one is
    /// mended, the next step leads to the finding after it. The filter and the order stay.
    void setCatalogue(const CataloguePointer &catalogue);
    const CataloguePointer &catalogue() const { return myModel.catalogue(); }
    /// "2 errors, 1 warning, 0 notes"
    QString summary() const;

    /// The number of the finding that is chosen; -1 for none.
    int currentFinding() const;
    /// The numbers of all that are selected, in the order in which they are shown.
    QList<int> selectedFindings() const;
    /// Chooses the next finding in the order in which they are shown, or the one before.
    /// @{
    Step next();
    Step previous();
    /// @}

    /// Shows an explanation of the chosen finding and its rule, or hides it.
    void setExplained(bool isExplained);
    /// For the menu of the list, and for its keys.
    void addViewActions(const QList<QAction *> &actions);

    /// One line while there is nothing to show.
    QSize sizeHint() const override;

Q_SIGNALS:
    void catalogueChanged();
    void productChosen(int product);
    /// Comes behind productChosen().
    void findingChosen(int finding);
    /// The place of the chosen finding is to be edited.
    void editRequested();
    /// Another finding is chosen, or several are.
    void selectionChanged();

private:
    void setUpView();
    void setUpNothing();
    void applyFilter();
    void sort(int column, Qt::SortOrder order);
    void showState();
    void choose(const QModelIndex &index);
    Step goTo(int row, bool isWrapped);
    void select(const QList<int> &findings, int current);
    void keepCurrent(const RVCatalogueFinding &before, int row);
    void explain();

    FindingsModel myModel;
    FindingFilterBar *myFilter;
    QLabel *myNothing;
    QPushButton *myClear; // of the filter, shown where it hides all
    QTableView *myView;
    QTextBrowser *myExplanation;
    QSplitter *mySplitter; // of the two above
    std::optional<int> myHidden; // the chosen finding, also while the filter hides it
    int myResumeRow = 0; // where the next step leads while nothing is chosen
};

#endif
