#include "OptionValueModel.h"

#include "PlainToolTip.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int SWATCH_SIZE = 16;

// The frame keeps swatches visible that have the colour of the background.
QPixmap swatch(const QColor &color)
{
    QPixmap pixmap(SWATCH_SIZE, SWATCH_SIZE);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.drawRect(0, 0, SWATCH_SIZE - 1, SWATCH_SIZE - 1);
    return pixmap;
}

}

int OptionValueModel::rowOf(const QString &value) const
{
    for (qsizetype row = 0; row < myOptions.size(); ++row) {
        if (myOptions.at(row).value() == value)
            return int(row);
    }
    return -1;
}

int OptionValueModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(myOptions.size());
}

QVariant OptionValueModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const RVConfiguredArticleVariant &option = myOptions.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return option.visibleName().isEmpty() ? option.value() : option.visibleName();
    case Qt::DecorationRole:
        return option.color().isValid() ? QVariant(swatch(option.color())) : QVariant();
    case Qt::ToolTipRole:
        return plainToolTip(option.toString());
    default:
        return QVariant();
    }
}
