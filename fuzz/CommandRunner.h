#ifndef COMMANDRUNNER_H
#define COMMANDRUNNER_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/// A file in memory, which goes with the process.
class MemoryFile
{
    Q_DISABLE_COPY_MOVE(MemoryFile)

public:
    MemoryFile();
    ~MemoryFile();

    /// Replaces the content.
    void write(const QByteArray &content);
    QString name() const;

private:
    int myDescriptor;
};

/// Runs a sub-command of rvcatalog and returns its exit code. What it writes goes nowhere; it must report something
/// exactly when it does not end well.
int runCommand(int (*command)(const QStringList &), const QStringList &arguments);

#endif
