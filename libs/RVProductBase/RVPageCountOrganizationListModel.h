#ifndef RVPAGECOUNTORGANIZATIONLISTMODEL_H
#define RVPAGECOUNTORGANIZATIONLISTMODEL_H

#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"

#include <QAbstractListModel>

/// Offers the allowed page counts of a product to a view, one row a count: "26 Seiten", "30 Seiten", … It belongs to
/// the thread of its view.
class RVPRODUCTBASE_EXPORT RVPageCountOrganizationListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// With @p showPhotos the rows read as photo counts: "1 Fotos", "2 Fotos", …
    explicit RVPageCountOrganizationListModel(bool showPhotos);

    void setPageOrganization(const RVPageCountOrganization &organization);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &index) const override;
    /// The display role only.
    QVariant data(const QModelIndex &index, int role) const override;

    int pagesAtIndex(int row) const;
    int indexForPages(int pages) const;
    int highestValue() const;
    int lowestValue() const;

private:
    RVPageCountOrganization myPageOrganization;
    const bool myShowPhotos;
};

#endif
