#ifndef OPTIONSPANEL_H
#define OPTIONSPANEL_H

#include "OptionValueModel.h"

#include <RVArticleVariants.h>

#include <QGroupBox>
#include <QList>

class QComboBox;
class QFormLayout;
class QLabel;
class RVCatalogueProduct;

/// The options of a product, one line a key, with the defaults chosen at first.
class OptionsPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget *parent = nullptr);

    void setProduct(const RVCatalogueProduct &product);
    /// What is chosen.
    RVArticleVariants variants() const;
    /// Chooses those of the options that the product has.
    void setVariants(const RVArticleVariants &variants);

Q_SIGNALS:
    void variantsChanged();

private:
    struct Line
    {
        QString key;
        OptionValueModel *model;
        QComboBox *values;
        QLabel *note;
    };

    /// @p options are those of one key.
    void addLine(const RVCatalogueProduct &product, const RVConfiguredArticleVariantList &options,
                 const QString &defaultValue);

    QFormLayout *myLayout;
    QLabel *myNoOptions;
    QList<Line> myLines;
};

#endif
