#ifndef WRITTENFILE_H
#define WRITTENFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

/// Writes a file, in place of one with the same name. False if that fails.
inline bool writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

/// The content of a file. The test fails if it cannot be read.
inline QByteArray readFile(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(QStringLiteral("cannot read ") + name), __FILE__, __LINE__);
    return file.readAll();
}

#endif
