#ifndef PRODUCTFILTERMODEL_H
#define PRODUCTFILTERMODEL_H

#include <QSortFilterProxyModel>
#include <QStringList>

/// Shows the products in which every word of a search is found, with their kinds of article.
class ProductFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit ProductFilterModel(QObject *parent = nullptr);

    /// Letter case and the order of the words do not matter; an empty text shows everything.
    void setSearch(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList myWords;
};

#endif
