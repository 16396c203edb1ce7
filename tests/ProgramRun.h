#ifndef PROGRAMRUN_H
#define PROGRAMRUN_H

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <functional>

/// The result of another program.
struct ProgramRun
{
    int exitCode = -1; ///< The exit code; -1 if it did not end, and -2 if it crashed.
    QString output;
    QString messages;
    QByteArray bytes; ///< The output as it was written, which may be no UTF-8.
};

/// The environment of the test, without settings of the user that change
/// outputs, but with these variables. Each is written as "NAME=value".
inline QProcessEnvironment environmentWith(const QStringList &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : { "NO_COLOR", "GIT_PAGER_IN_USE", "GIT_DIR", "GIT_WORK_TREE", "GIT_INDEX_FILE" })
        environment.remove(QLatin1StringView(name));
    for (const QString &variable : variables)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    return environment;
}

/// Runs a program in a folder; an empty one is that of the test. The function
/// is called in the new process, before the program begins.
inline ProgramRun runProgram(const QString &folder, const QString &program, const QStringList &arguments,
                             const QByteArray &input = {}, const QProcessEnvironment &environment = environmentWith({}),
                             const std::function<void()> &inChild = {})
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.setChildProcessModifier(inChild);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000))
        return ProgramRun();
    const QByteArray bytes = process.readAllStandardOutput();
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2, QString::fromUtf8(bytes),
             QString::fromUtf8(process.readAllStandardError()), bytes };
}

#endif
