#ifndef FINDINGSMODEL_H
#define FINDINGSMODEL_H

#include "LoadedCatalogue.h"

#include <QAbstractTableModel>

/// What is wrong with a catalogue, one finding a row.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Null for no findings.
    void setCatalogue(const CataloguePointer &catalogue);
    /// The number of the product that the finding is about; -1 for none.
    int product(int row) const;
    /// How many findings are as severe as that.
    int count(RVCatalogueSeverity severity) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    enum Column { SeverityColumn, ProductColumn, TextColumn, PlaceColumn, RuleColumn, COLUMN_COUNT };

    QString text(const RVCatalogueFinding &finding, int column) const;

    CataloguePointer myCatalogue;
};

#endif
