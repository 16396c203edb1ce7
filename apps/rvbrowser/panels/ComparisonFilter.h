#ifndef COMPARISONFILTER_H
#define COMPARISONFILTER_H

#include "ComparisonModel.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

/// The choice of changes that are shown: those of one kind, in which a text is found.
class ComparisonFilter : public QWidget
{
    Q_OBJECT

public:
    explicit ComparisonFilter(QWidget *parent = nullptr);

    ComparisonModel::Kind kind() const;
    QString search() const;
    /// Shows all kinds without a search; the line to search gets the focus.
    void clear();

Q_SIGNALS:
    void changed();

private:
    QComboBox *myKind;
    QLineEdit *mySearch;
};

#endif
