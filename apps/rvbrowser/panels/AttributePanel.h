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

    void setProduct(const RVCatalogueProduct &product, const AttributeWords &words, const RVCatalogueCheck &check);
    /// Shows an attribute as a faulty one, where it is shown at all, and returns what shows it; null otherwise.
    QWidget *markFault(const QString &attribute, const QString &fault);

private:
    void addLine(const QString &label);
    void show(const ProductFacts::Fact &fact, QLabel *text) const;

    QFormLayout *myLayout;
    QList<ProductFacts::Fact> myFacts;
    QList<QLabel *> myTexts; // one for each fact
};

#endif
