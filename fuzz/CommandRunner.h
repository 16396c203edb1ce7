#ifndef COMMANDRUNNER_H
#define COMMANDRUNNER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A file in memory, which disappears with the process.
class MemoryFile
{
    Q_DISABLE_COPY_MOVE(MemoryFile)

public:
    MemoryFile();
    ~MemoryFile();

    /// Replaces the content.
    void write(const QByteArray &content);
    QByteArray read() const;
    QString name() const;
    int descriptor() const { return myDescriptor; }

private:
    int myDescriptor;
};

/// Runs rvcatalog with these arguments, the first of which is a command, and returns its exit code. The output is
/// discarded. The command must report a problem, with a place in a file, exactly when it fails.
int runQuietly(const QStringList &arguments);

#endif
