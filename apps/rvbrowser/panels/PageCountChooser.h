#ifndef PAGECOUNTCHOOSER_H
#define PAGECOUNTCHOOSER_H

#include <RVPageCountOrganizationListModel.h>

#include <QWidget>

class QComboBox;
class QSpinBox;
class QStackedLayout;

/// Chooses one of the page counts of a product: from a list, or by typing it where the list would be too long to lay
/// out.
class PageCountChooser : public QWidget
{
    Q_OBJECT

public:
    explicit PageCountChooser(QWidget *parent = nullptr);

    /// Chooses the lowest count. Invalid counts cannot be chosen from. With @p isPhotos photos are counted, not pages.
    void setPageCounts(const RVPageCountOrganization &pageCounts, bool isPhotos);
    /// Chooses the allowed count at or above this one; the highest where there is none.
    void setPages(int pages);
    int pages() const;
    /// The row of the chosen count; -1 where there is nothing to choose.
    int row() const { return myRow; }

    /// Chooses the count of a row; nothing happens where there is no such row.
    void setRow(int row);

Q_SIGNALS:
    void rowChanged(int row);

private:
    RVPageCountOrganization myPageCounts;
    RVPageCountOrganizationListModel myPages;
    RVPageCountOrganizationListModel myPhotos;
    QStackedLayout *myLayout;
    QComboBox *myList;
    QSpinBox *myNumber;
    int myRow = -1;
};

#endif
