#include "EditorLauncher.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <chrono>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An editor that ends later with an error has been seen, so no message is needed.
constexpr auto AT_ONCE = 5s;
constexpr qsizetype LONGEST_MESSAGE = 500;

/// Programs that open a terminal, and the argument behind which the program that runs in it stands.
constexpr struct
{
    QLatin1StringView program;
    QLatin1StringView argument;
} TERMINALS[] = {
    { "x-terminal-emulator"_L1, "-e"_L1 }, { "konsole"_L1, "-e"_L1 }, { "gnome-terminal"_L1, "--"_L1 },
    { "xfce4-terminal"_L1, "-x"_L1 },      { "xterm"_L1, "-e"_L1 },
};

}

EditorLauncher::~EditorLauncher()
{
    for (QProcess *process : findChildren<QProcess *>()) {
        if (process->state() != QProcess::NotRunning)
            process->setParent(nullptr); // or it would end the editor
    }
}

void EditorLauncher::open(const EditorCommand &command, const QString &fileName, const RVFilePosition &position)
{
    if (command.isEmpty()) {
        Q_EMIT failed(tr("There is no editor to open the file with. Choose one in the menu of the findings."));
        return;
    }
    const QString program = command.program();
    if (QStandardPaths::findExecutable(program).isEmpty()) {
        Q_EMIT failed(
                tr("The editor \"%1\" is not installed. Choose another one in the menu of the findings.").arg(program));
        return;
    }
    // An editor that begins with "-" or in another folder still opens this file.
    const QStringList arguments = command.arguments(QFileInfo(fileName).absoluteFilePath(), position);
    if (!command.needsTerminal())
        return start(program, arguments);
    for (const auto &terminal : TERMINALS) {
        if (!QStandardPaths::findExecutable(terminal.program).isEmpty())
            return start(terminal.program, QStringList { terminal.argument, program } + arguments);
    }
    Q_EMIT failed(tr("The editor \"%1\" needs a terminal, and none is installed.").arg(program));
}

// Messages go to a file, so that an editor that outlives the window has somewhere to write to.
void EditorLauncher::start(const QString &program, const QStringList &arguments)
{
    auto *process = new QProcess(this);
    auto *messages = new QTemporaryFile(process);
    if (messages->open())
        process->setStandardErrorFile(messages->fileName());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    connect(process, &QProcess::finished, this, [this, process, messages, timer] {
        judge(process, QString::fromLocal8Bit(messages->readAll()),
              !timer.hasExpired(std::chrono::milliseconds(AT_ONCE).count()));
    });
    connect(process, &QProcess::errorOccurred, this, [this, process](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        Q_EMIT failed(tr("The editor \"%1\" cannot be run: %2").arg(process->program(), process->errorString()));
        process->deleteLater();
    });
    process->start(program, arguments);
}

void EditorLauncher::judge(QProcess *process, const QString &messages, bool isAtOnce)
{
    const bool hasCrashed = process->exitStatus() == QProcess::CrashExit;
    if (!isAtOnce || (!hasCrashed && process->exitCode() == 0))
        return;
    QString text = hasCrashed ? tr("The editor \"%1\" crashed.").arg(process->program())
                              : tr("The editor \"%1\" ended at once with the exit code %2.")
                                        .arg(process->program())
                                        .arg(process->exitCode());
    const QString reason = messages.trimmed().right(LONGEST_MESSAGE);
    if (!reason.isEmpty())
        text += u'\n' + reason;
    Q_EMIT failed(text);
}
