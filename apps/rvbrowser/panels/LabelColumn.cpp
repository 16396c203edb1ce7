#include "LabelColumn.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include <utility>

namespace {

/// Labels in a column of their own, without headings that reach over all columns.
QList<QLayoutItem *> gridLabels(const QGridLayout &grid)
{
    QList<QLayoutItem *> result;
    for (int row = 0; row < grid.rowCount(); ++row) {
        QLayoutItem *label = grid.itemAtPosition(row, 0);
        if (label && label != grid.itemAtPosition(row, 1))
            result += label;
    }
    return result;
}

QList<QLayoutItem *> formLabels(const QFormLayout &form)
{
    QList<QLayoutItem *> result;
    for (int row = 0; row < form.rowCount(); ++row) {
        if (QLayoutItem *label = form.itemAt(row, QFormLayout::LabelRole))
            result += label;
    }
    return result;
}

/// True for what was hidden; widgets that are new are not shown yet, but will be.
bool isHidden(const QWidget &widget)
{
    return widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide);
}

/// The hint of a label is at least its minimum, which may come from other texts.
int neededWidth(const QWidget &widget)
{
    const int hint = widget.sizeHint().width();
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (!label)
        return hint;
    const int flags = label->buddy() ? Qt::TextShowMnemonic : Qt::TextFlag();
    const QMargins edges = label->contentsMargins();
    return qMin(hint, edges.left() + label->fontMetrics().size(flags, label->text()).width() + edges.right());
}

QList<QWidget *> shownLabels(const QLayout *panel)
{
    QList<QLayoutItem *> items;
    if (const auto *form = qobject_cast<const QFormLayout *>(panel))
        items = formLabels(*form);
    else if (const auto *grid = qobject_cast<const QGridLayout *>(panel))
        items = gridLabels(*grid);
    QList<QWidget *> result;
    for (const QLayoutItem *item : std::as_const(items)) {
        if (item->widget() && !isHidden(*item->widget()))
            result += item->widget();
    }
    return result;
}

}

void LabelColumn::align() const
{
    QList<QWidget *> labels;
    for (const QLayout *panel : myPanels)
        labels += shownLabels(panel);
    int widest = 0;
    for (const QWidget *label : std::as_const(labels))
        widest = qMax(widest, neededWidth(*label));
    for (QWidget *label : std::as_const(labels))
        label->setMinimumWidth(widest);
}
