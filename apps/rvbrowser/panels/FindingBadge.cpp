#include "FindingBadge.h"

#include "PaletteColors.h"
#include "ProductTreeModel.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int EDGE = 2; // beside the badge, in pixels
constexpr int PADDING = 5; // beside its text

}

void FindingBadge::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    const QVariant severity = index.data(ProductTreeModel::SeverityRole);
    if (!severity.isValid())
        return;
    const int number = index.data().toInt();
    const int width = widthOf(number, option.fontMetrics) - 2 * EDGE;
    QRect badge = option.rect.adjusted(EDGE, 0, -EDGE, -1);
    badge.setLeft(qMax(badge.left(), badge.right() - width + 1));
    const PaletteColors colors(option.palette);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colors.severity(RVCatalogueSeverity(severity.toInt())));
    painter->drawRoundedRect(badge, badge.height() / 2.0, badge.height() / 2.0);
    painter->setPen(colors.textOnSeverity());
    painter->drawText(badge, Qt::AlignCenter, QString::number(number));
    painter->restore();
}

QSize FindingBadge::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return { widthOf(index.data().toInt(), option.fontMetrics), size.height() };
}

int FindingBadge::widthOf(int number, const QFontMetrics &metrics)
{
    return qMax(metrics.horizontalAdvance(QString::number(number)) + 2 * PADDING, metrics.height()) + 2 * EDGE;
}
