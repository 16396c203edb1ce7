#ifndef EDITORLAUNCHER_H
#define EDITORLAUNCHER_H

#include "EditorCommand.h"

#include <QObject>

class QProcess;
class QTemporaryFile;

/// Runs editors, which go on when the window is closed, and tells where that does not work.
class EditorLauncher : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /// Leaves the editors running.
    ~EditorLauncher() override;

    /// Opens a place of a file; failed() follows where that is impossible.
    void open(const EditorCommand &command, const QString &fileName, const RVFilePosition &position);

Q_SIGNALS:
    /// An editor could not be run, or ended at once with an error. The text is for people, of one or more lines.
    void failed(const QString &text);

private:
    void start(const QString &program, const QStringList &arguments);
    void judge(QProcess *process, const QString &messages, bool isAtOnce);
};

#endif
