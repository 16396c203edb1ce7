#ifndef PRICESPANEL_H
#define PRICESPANEL_H

#include "OrderPrices.h"

#include <QGroupBox>

class QLabel;
class QPushButton;

/// The price classes of what is chosen, ready to copy, or the reason why there are none.
class PricesPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit PricesPanel(QWidget *parent = nullptr);

    /// Shows nothing until something is chosen.
    void setProduct(const OrderPrices &prices);
    void setChoice(int pages, const RVArticleVariants &variants);
    /// Puts the list into the clipboard, a line a price class with its count in front and its purpose behind, between
    /// tabulators. The clipboard keeps what it has where there is none.
    void copy() const;

private:
    OrderPrices myPrices;
    QList<OrderPrices::Line> myLines;
    QLabel *myText;
    QPushButton *myButton;
};

#endif
