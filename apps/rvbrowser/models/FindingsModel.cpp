#include "FindingsModel.h"

#include "FindingToolTip.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString severityText(RVCatalogueSeverity severity)
{
    switch (severity) {
    case RVCatalogueSeverity::Note:
        return FindingsModel::tr("Note");
    case RVCatalogueSeverity::Warning:
        return FindingsModel::tr("Warning");
    case RVCatalogueSeverity::Error:
        break;
    }
    return FindingsModel::tr("Error");
}

QIcon severityIcon(RVCatalogueSeverity severity)
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

}

void FindingsModel::setCatalogue(const CataloguePointer &catalogue)
{
    beginResetModel();
    myCatalogue = catalogue;
    endResetModel();
}

int FindingsModel::product(int row) const
{
    return int(myCatalogue->findings().at(row).product());
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
    return myCatalogue && !parent.isValid() ? int(myCatalogue->findings().size()) : 0;
}

int FindingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(COLUMN_COUNT);
}

QVariant FindingsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const RVCatalogueFinding &finding = myCatalogue->findings().at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(finding, index.column());
    case Qt::ToolTipRole:
        return findingToolTip(finding);
    case Qt::DecorationRole:
        return index.column() == SeverityColumn ? QVariant(severityIcon(finding.severity())) : QVariant();
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
    case SeverityColumn:
        return severityText(finding.severity());
    case ProductColumn:
        if (!finding.productType().isEmpty())
            return finding.productType();
        return finding.product() >= 0 ? myCatalogue->at(int(finding.product())).type.orderTxtName() : QString();
    case TextColumn:
        return finding.text();
    case PlaceColumn:
        return u"%1:%2"_s.arg(finding.range().begin.line).arg(finding.range().begin.column);
    case RuleColumn:
        return finding.rule().name().toString();
    default:
        return QString();
    }
}
