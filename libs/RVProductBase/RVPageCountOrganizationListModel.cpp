#include "RVPageCountOrganizationListModel.h"

RVPageCountOrganizationListModel::RVPageCountOrganizationListModel(bool showPhotos) : myShowPhotos(showPhotos) { }

void RVPageCountOrganizationListModel::setPageOrganization(const RVPageCountOrganization &organization)
{
    beginResetModel();
    myPageOrganization = organization;
    endResetModel();
}

int RVPageCountOrganizationListModel::rowCount(const QModelIndex &) const
{
    return myPageOrganization.numberOfPackages();
}

int RVPageCountOrganizationListModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QModelIndex RVPageCountOrganizationListModel::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QVariant RVPageCountOrganizationListModel::data(const QModelIndex &index, int role) const
{
    if (index.isValid() && role == PagesRole)
        return pagesAtIndex(index.row());
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    const QString text = myShowPhotos ? tr("%1 Fotos") : tr("%1 Seiten");
    return text.arg(pagesAtIndex(index.row()));
}

QHash<int, QByteArray> RVPageCountOrganizationListModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert(PagesRole, QByteArrayLiteral("pages"));
    return names;
}

int RVPageCountOrganizationListModel::pagesAtIndex(int row) const
{
    return myPageOrganization.pagesWithNExtraPackages(row);
}

int RVPageCountOrganizationListModel::indexForPages(int pages) const
{
    return myPageOrganization.countPackages(pages);
}

int RVPageCountOrganizationListModel::highestValue() const
{
    return myPageOrganization.maxPages();
}

int RVPageCountOrganizationListModel::lowestValue() const
{
    return myPageOrganization.minPages();
}
