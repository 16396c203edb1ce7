#ifndef MESSAGEBANNER_H
#define MESSAGEBANNER_H

#include <QFrame>

class QLabel;

/// A message above what it is about, which stays until it is closed or out of date.
class MessageBanner : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBanner(QWidget *parent = nullptr);

    void showMessage(const QString &text);
    /// Empty while it is hidden.
    QString text() const;

private:
    QLabel *myText;
};

#endif
