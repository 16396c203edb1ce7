#ifndef WRITTENFILE_H
#define WRITTENFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/// Writes a file, in place of one with the same name. False if that fails.
inline bool writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

/// The content of a file, or a text that no catalogue has where it cannot be
/// read.
inline QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

#endif
