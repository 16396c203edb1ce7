#ifndef ATTRIBUTEPANEL_H
#define ATTRIBUTEPANEL_H

#include "ProductFacts.h"

#include <QGroupBox>
#include <QList>

class AttributeWords;
class QFormLayout;
class QLabel;
class RVCatalogueProduct;

/// The attributes of a product in words that can be selected and copied; a faulty one as it stands in the file, in red.
class AttributePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit AttributePanel(QWidget *parent = nullptr);

    void setProduct(const RVCatalogueProduct &product, const AttributeWords &words);

private:
    void addLine(const QString &label);
    void show(const ProductFacts::Fact &fact, QLabel *text) const;

    QFormLayout *myLayout;
    QList<QLabel *> myTexts; // one for each fact
};

#endif
