#ifndef RVPAGECOUNTORGANIZATIONLISTMODEL_H
#define RVPAGECOUNTORGANIZATIONLISTMODEL_H

#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>

/// Offers the allowed page counts of a product to a view, a row for each: "26 Seiten", "30 Seiten", … It belongs to
/// the thread of its view.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVPageCountOrganizationListModel
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVPageCountOrganizationListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Data of a row besides its text.
    enum Role {
        PagesRole = Qt::UserRole + 0x100, ///< the count as an int; "pages" in QML
    };

    /// With @p showPhotos the rows read as photo counts: "1 Fotos", "2 Fotos", …
    explicit RVPageCountOrganizationListModel(bool showPhotos);

    /// Resets the model to these counts; until then it has one row of 0.
    void setPageOrganization(const RVPageCountOrganization &organization);

    /// RVPageCountOrganization::numberOfPackages(), for every parent.
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override; ///< Always 1.
    using QObject::parent;
    QModelIndex parent(const QModelIndex &index) const override; ///< The invalid index.
    /// The text of the row for the display role, pagesAtIndex() for PagesRole; an invalid value for any other role.
    QVariant data(const QModelIndex &index, int role) const override;
    /// "display" for the text and "pages" for the count, beside Qt's own names.
    QHash<int, QByteArray> roleNames() const override;

    int pagesAtIndex(int row) const; ///< The count of a row; computed past the last row as well.
    int indexForPages(int pages) const; ///< The row of the count, rounded down; not clamped at the last.
    int highestValue() const; ///< The highest count of the organisation.
    int lowestValue() const; ///< The lowest count of the organisation.

private:
    RVPageCountOrganization myPageOrganization;
    const bool myShowPhotos;
};

#endif
