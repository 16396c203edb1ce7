#ifndef FINDINGSMODEL_H
#define FINDINGSMODEL_H

#include "FindingFilter.h"
#include "FindingOrder.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QList>

/// The findings of a catalogue, a row for each: those that a filter lets through, in the order of a column. It
/// keeps the numbers of the findings alone, so that 100,000 of them are sorted and filtered at once.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Null for no findings. Filter and order stay.
    void setCatalogue(const CataloguePointer &catalogue);
    const CataloguePointer &catalogue() const { return myCatalogue; }
    void setFilter(const FindingFilter &filter);
    const FindingFilter &filter() const { return myFilter; }

    /// The number of the finding in the catalogue; -1 where there is no such row.
    int findingAt(int row) const { return myRows.value(row, -1); }
    /// The row of a finding, by its number in the catalogue; -1 where it is not shown.
    int rowOf(int finding) const { return int(myRows.indexOf(finding)); }
    /// The number of the product that the finding is about; -1 for none.
    int product(int row) const;
    /// The number of findings, also those that the filter hides.
    int findingCount() const { return int(myOrder.size()); }
    /// The number of findings of that severity.
    int count(RVCatalogueSeverity severity) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// A column of less than 0 is the order in which they were found.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    static QString severityText(RVCatalogueSeverity severity);
    static QIcon severityIcon(RVCatalogueSeverity severity);

private:
    void order();
    void fill();
    QString text(const RVCatalogueFinding &finding, int column) const;

    CataloguePointer myCatalogue;
    FindingFilter myFilter;
    int mySortColumn = -1;
    Qt::SortOrder mySortOrder = Qt::AscendingOrder;
    QList<int> myOrder; // all findings
    QList<int> myRows; // those that are shown
};

#endif
