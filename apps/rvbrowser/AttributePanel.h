#ifndef ATTRIBUTEPANEL_H
#define ATTRIBUTEPANEL_H

#include <QGroupBox>
#include <QList>

class AttributeWords;
class QFormLayout;
class QLabel;
class RVCatalogueProduct;

/// What a product is, in words that can be selected and copied.
class AttributePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit AttributePanel(QWidget *parent = nullptr);

    void setProduct(const RVCatalogueProduct &product, const AttributeWords &words);

private:
    QFormLayout *myLayout;
    QList<QLabel *> myTexts; // one a fact
};

#endif
