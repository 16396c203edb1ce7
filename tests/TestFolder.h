#ifndef TESTFOLDER_H
#define TESTFOLDER_H

#include "WrittenFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

/// A folder with files for a test, which is gone with it.
class TestFolder
{
public:
    QString path(const QString &name = QString()) const { return myFolder.filePath(name); }
    /// Writes into the file itself, as simple programs do. False where that
    /// fails.
    bool write(const QString &name, const QByteArray &content) const { return writeFile(path(name), content); }
    /// Writes a file with a name of its own, and returns its path; empty if that fails.
    QString add(const QByteArray &content)
    {
        const QString name = QString::number(++myFiles) + QStringLiteral(".xml");
        return write(name, content) ? path(name) : QString();
    }
    /// Puts a new file in the place of the old one, as most editors do. False
    /// where that fails.
    bool replace(const QString &name, const QByteArray &content) const
    {
        const QString other = name + QStringLiteral(".new");
        return write(other, content)
                && std::rename(QFile::encodeName(path(other)).constData(), QFile::encodeName(path(name)).constData())
                == 0;
    }
    bool remove(const QString &name) const { return QFile::remove(path(name)); }
    QByteArray read(const QString &name) const { return readFile(path(name)); }

private:
    QTemporaryDir myFolder;
    int myFiles = 0;
};

#endif
