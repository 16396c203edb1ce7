#ifndef LABELCOLUMN_H
#define LABELCOLUMN_H

#include <QLayout>
#include <QList>

/// Gives the labels of several panels that stand below each other the width of the widest, so that what they label
/// begins on one line.
class LabelColumn
{
public:
    /// A form layout, or a grid layout with its labels in column 0; it must live longer. Others are not aligned.
    void add(QLayout *panel) { myPanels += panel; }
    /// To be called when labels have come, or have other texts or fonts.
    void align() const;

private:
    QList<QLayout *> myPanels;
};

#endif
