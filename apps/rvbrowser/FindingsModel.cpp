#include "FindingsModel.h"

#include "PlainToolTip.h"

#include <QApplication>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString severityText(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Note:
        return FindingsModel::tr("Note");
    case FindingSeverity::Warning:
        return FindingsModel::tr("Warning");
    case FindingSeverity::Error:
        break;
    }
    return FindingsModel::tr("Error");
}

QString reason(const CatalogueFinding &finding)
{
    return catalogueRules().at(indexOfRule(finding.rule.toString())).translatedReason();
}

QIcon severityIcon(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Note:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation);
    case FindingSeverity::Warning:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case FindingSeverity::Error:
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
    const qint64 product = myCatalogue->findings().at(row).product;
    return product < myCatalogue->size() ? int(product) : -1;
}

int FindingsModel::count(FindingSeverity severity) const
{
    if (!myCatalogue)
        return 0;
    const QList<CatalogueFinding> &findings = myCatalogue->findings();
    return int(std::count_if(findings.begin(), findings.end(),
                             [severity](const CatalogueFinding &finding) { return finding.severity == severity; }));
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
    const CatalogueFinding &finding = myCatalogue->findings().at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(finding, index.column());
    case Qt::ToolTipRole:
        return index.column() == RuleColumn ? reason(finding) : plainToolTip(finding.text);
    case Qt::DecorationRole:
        return index.column() == SeverityColumn ? QVariant(severityIcon(finding.severity)) : QVariant();
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

QString FindingsModel::text(const CatalogueFinding &finding, int column) const
{
    switch (column) {
    case SeverityColumn:
        return severityText(finding.severity);
    case ProductColumn:
        return finding.product >= 0 && finding.product < myCatalogue->size()
                ? myCatalogue->at(int(finding.product)).type.orderTxtName()
                : QString();
    case TextColumn:
        return finding.text;
    case PlaceColumn:
        return u"%1:%2"_s.arg(finding.position.line).arg(finding.position.column);
    case RuleColumn:
        return finding.rule.toString();
    default:
        return QString();
    }
}
