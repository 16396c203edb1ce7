#include "FindingsModel.h"

#include "FindingToolTip.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

QString FindingsModel::severityText(RVCatalogueSeverity severity)
{
    switch (severity) {
    case RVCatalogueSeverity::Note:
        return tr("Note");
    case RVCatalogueSeverity::Warning:
        return tr("Warning");
    case RVCatalogueSeverity::Error:
        break;
    }
    return tr("Error");
}

QIcon FindingsModel::severityIcon(RVCatalogueSeverity severity)
{
    switch (severity) {
    case RVCatalogueSeverity::Note:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation);
    case RVCatalogueSeverity::Warning:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case RVCatalogueSeverity::Error:
        break;
    }
    return QApplication::style()->standardIcon(QStyle::SP_MessageBoxCritical);
}

void FindingsModel::setCatalogue(const CataloguePointer &catalogue)
{
    beginResetModel();
    myCatalogue = catalogue;
    order();
    fill();
    endResetModel();
}

void FindingsModel::setFilter(const FindingFilter &filter)
{
    beginResetModel();
    myFilter = filter;
    fill();
    endResetModel();
}

void FindingsModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    mySortColumn = column;
    mySortOrder = order;
    this->order();
    fill();
    endResetModel();
}

void FindingsModel::order()
{
    myOrder = myCatalogue ? sortedFindings(*myCatalogue, mySortColumn, mySortOrder) : QList<int>();
}

void FindingsModel::fill()
{
    myRows = myOrder;
    if (!myCatalogue || myFilter.isEmpty())
        return;
    const std::vector<bool> accepted = myFilter.accepted(*myCatalogue);
    myRows.removeIf([&accepted](int finding) { return !accepted[std::size_t(finding)]; });
}

int FindingsModel::product(int row) const
{
    const int finding = findingAt(row);
    return finding < 0 ? -1 : int(myCatalogue->findings().at(finding).product());
}

int FindingsModel::count(RVCatalogueSeverity severity) const
{
    if (!myCatalogue)
        return 0;
    const QList<RVCatalogueFinding> &findings = myCatalogue->findings();
    return int(std::count_if(findings.begin(), findings.end(),
                             [severity](const RVCatalogueFinding &finding) { return finding.severity() == severity; }));
}

int FindingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(myRows.size());
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(FINDING_COLUMN_COUNT);
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const RVCatalogueFinding &finding = myCatalogue->findings().at(myRows.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return text(finding, index.column());
    case Qt::ToolTipRole:
        return findingToolTip(finding);
    case Qt::DecorationRole:
        return index.column() == FINDING_SEVERITY ? QVariant(severityIcon(finding.severity())) : QVariant();
    default:
        return QVariant();
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QStringList titles { tr("Severity"), tr("Product"), tr("Finding"), tr("Place"), tr("Rule") };
    return titles.value(section);
}

QString FindingsModel::text(const RVCatalogueFinding &finding, int column) const
{
    switch (column) {
    case FINDING_SEVERITY:
        return severityText(finding.severity());
    case FINDING_PRODUCT:
        return myCatalogue->typeOf(finding);
    case FINDING_TEXT:
        return finding.text();
    case FINDING_PLACE:
        return u"%1:%2"_s.arg(finding.range().begin.line).arg(finding.range().begin.column);
    case FINDING_RULE:
        return finding.rule().name().toString();
    default:
        return QString();
    }
}
