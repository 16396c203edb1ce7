#ifndef ORDERLINESPANEL_H
#define ORDERLINESPANEL_H

#include <QGroupBox>
#include <QList>
#include <QStringList>

class OrderLine;
class QGridLayout;
class QLabel;
class RVArticleVariants;

/// The chosen options as the customer reads them, and as they are written to project and order, ready to copy.
class OrderLinesPanel : public QGroupBox
{
    Q_OBJECT

public:
    enum Line { ProjectFile, OrderTransfer, OrderText };

    explicit OrderLinesPanel(QWidget *parent = nullptr);

    /// @p names is what the customer reads.
    void setVariants(const RVArticleVariants &variants, const QStringList &names);
    void copy(Line line) const;

private:
    void addLine(QGridLayout *layout, const QString &label, const QString &objectName);

    QLabel *myNames;
    QList<OrderLine *> myLines;
};

#endif
