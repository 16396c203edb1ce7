#ifndef PAGEPANEL_H
#define PAGEPANEL_H

#include <QGroupBox>

class PageDrawing;
class PageGeometry;
class QComboBox;
class QLabel;
class RVCatalogueProduct;

/// The page of a product, and which of its pages is shown.
class PagePanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit PagePanel(QWidget *parent = nullptr);

    void setProduct(const RVCatalogueProduct &product);
    /// False for a product whose page is not known.
    bool isDrawn() const;

private:
    void showPages(const PageGeometry &geometry);

    QComboBox *myPages;
    QLabel *myPagesLabel;
    QLabel *myText;
    PageDrawing *myDrawing;
};

#endif
