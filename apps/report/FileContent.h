#ifndef FILECONTENT_H
#define FILECONTENT_H

#include <QByteArray>
#include <QString>

/// Replaces a file in one step, or writes to a device or a pipe, which cannot be replaced. Returns the reason if that
/// is impossible; empty otherwise.
QString writeContent(const QString &fileName, const QByteArray &content);

#endif
