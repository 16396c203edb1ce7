#ifndef OPTIONSPANEL_H
#define OPTIONSPANEL_H

#include "OptionValueModel.h"

#include <RVArticleVariants.h>

#include <QGroupBox>
#include <QList>

class FittingScrollArea;
class QComboBox;
class QFormLayout;
class QLabel;
class RVCatalogueProduct;

/// The options of a product, one line a key, with the defaults chosen at first. Many of them scroll by themselves, so
/// that what stands below stays in sight.
class OptionsPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit OptionsPanel(QWidget *parent = nullptr);

    void setProduct(const RVCatalogueProduct &product);
    /// The chosen options.
    RVArticleVariants variants() const;
    /// Chooses those of the options that the product has.
    void setVariants(const RVArticleVariants &variants);
    /// The layout of the lines, with a label each.
    QFormLayout *form() const { return myLayout; }

Q_SIGNALS:
    void variantsChanged();

private:
    struct Line
    {
        QString key;
        OptionValueModel *model;
        QComboBox *values;
    };

    /// @p options are those of one key.
    void addLine(const RVCatalogueProduct &product, const RVConfiguredArticleVariantList &options,
                 const QString &defaultValue);

    FittingScrollArea *myArea;
    QFormLayout *myLayout;
    QLabel *myNoOptions;
    QList<Line> myLines;
};

#endif
