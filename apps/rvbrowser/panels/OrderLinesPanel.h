#ifndef ORDERLINESPANEL_H
#define ORDERLINESPANEL_H

#include <QGroupBox>
#include <QList>
#include <QStringList>

class OrderLine;
class QGridLayout;
class QLabel;
class QPushButton;
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
    /// Puts a line into the clipboard, which keeps what it has where the line is empty.
    void copy(Line line) const;

private:
    void showLine(Line line, const QString &text);
    void addLine(QGridLayout *layout, const QString &label, const QString &objectName);

    QLabel *myNames;
    QList<OrderLine *> myLines;
    QList<QPushButton *> myButtons;
};

#endif
