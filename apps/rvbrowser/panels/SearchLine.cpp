#include "SearchLine.h"

#include <QKeyEvent>

SearchLine::SearchLine(const QString &objectName, const QString &name, const QString &hint)
{
    setObjectName(objectName);
    setAccessibleName(name);
    setPlaceholderText(hint);
    setClearButtonEnabled(true);
    setAcceptDrops(false); // a file that is dropped here is to be opened
}

void SearchLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT left();
        return;
    case Qt::Key_Escape:
        clear();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
