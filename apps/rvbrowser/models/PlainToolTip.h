#ifndef PLAINTOOLTIP_H
#define PLAINTOOLTIP_H

#include <QString>
#include <QTextDocument>

/// A tool tip that shows a text of a catalogue as it is, also where Qt would take it for HTML.
inline QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>") + text.toHtmlEscaped() + QStringLiteral("</p>") : text;
}

#endif
