#ifndef TEXTLABEL_H
#define TEXTLABEL_H

#include <QLabel>

/// A label for a text of any length: it is shown as it is, broken into lines, and can be selected with the mouse.
inline QLabel *createTextLabel(const QString &objectName = QString())
{
    auto *result = new QLabel;
    result->setObjectName(objectName);
    result->setTextFormat(Qt::PlainText);
    result->setWordWrap(true);
    result->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return result;
}

#endif
