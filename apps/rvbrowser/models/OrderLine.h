#ifndef ORDERLINE_H
#define ORDERLINE_H

#include <QPlainTextEdit>

/// A line of text to copy, broken behind a separator of options where the room ends, and as high as it needs to be. It
/// can be selected, not changed.
class OrderLine : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit OrderLine(QWidget *parent = nullptr);

    void setText(const QString &text);
    /// The text itself; toPlainText() also has the invisible places where it may be broken.
    QString text() const { return myText; }

protected:
    QMimeData *createMimeDataFromSelection() const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitHeight();

    QString myText;
};

#endif
