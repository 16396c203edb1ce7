#ifndef FINDINGBADGE_H
#define FINDINGBADGE_H

#include <QStyledItemDelegate>

/// Draws how many findings a product has, in the colour of the worst of them.
class FindingBadge : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// The width of a column that has room for such a number.
    static int widthOf(int number, const QFontMetrics &metrics);
};

#endif
