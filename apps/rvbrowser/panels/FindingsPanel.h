#ifndef FINDINGSPANEL_H
#define FINDINGSPANEL_H

#include "FindingsModel.h"

#include <QWidget>

class QLabel;
class QTableView;

/// The findings of a catalogue; a click on one leads to its product.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget *parent = nullptr);

    void setCatalogue(const CataloguePointer &catalogue);
    /// "2 errors, 1 warning, 0 notes"
    QString summary() const;

    /// One line while there is nothing to show.
    QSize sizeHint() const override;

Q_SIGNALS:
    void productChosen(int product);

private:
    void choose(const QModelIndex &index);

    FindingsModel myModel;
    QLabel *myNothing;
    QTableView *myView;
};

#endif
