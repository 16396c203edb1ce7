#ifndef ORDERLINE_H
#define ORDERLINE_H

#include <QPlainTextEdit>

/// A line of text to copy, broken where the room ends and as high as it needs to be. It can be selected, not changed.
class OrderLine : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit OrderLine(QWidget *parent = nullptr);

    void setText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitHeight();
};

#endif
