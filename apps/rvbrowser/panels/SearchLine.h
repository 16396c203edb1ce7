#ifndef SEARCHLINE_H
#define SEARCHLINE_H

#include <QLineEdit>

/// A line to search a list: from it a key leads on to what was found, and another one back to the whole list.
class SearchLine : public QLineEdit
{
    Q_OBJECT

public:
    /// @p name is for screen readers, @p hint is shown while the line is empty.
    SearchLine(const QString &objectName, const QString &name, const QString &hint);

Q_SIGNALS:
    /// A key was pressed that leads on to the list.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

#endif
