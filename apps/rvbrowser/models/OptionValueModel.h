#ifndef OPTIONVALUEMODEL_H
#define OPTIONVALUEMODEL_H

#include <RVConfiguredArticleVariantList.h>

#include <QAbstractListModel>

/// The values of one option, in the order of the catalogue, with their names and swatches.
class OptionValueModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// All options must have the same key.
    OptionValueModel(const RVConfiguredArticleVariantList &options, QObject *parent)
        : QAbstractListModel(parent),
          myOptions(options)
    { }

    RVConfiguredArticleVariant option(int row) const { return myOptions.value(row); }
    /// The first row of the value; -1 where there is none.
    int rowOf(const QString &value) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    RVConfiguredArticleVariantList myOptions;
};

#endif
