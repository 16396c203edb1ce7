#ifndef DIFFPROGRAM_H
#define DIFFPROGRAM_H

#include "WrittenFile.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// The result of another program.
struct ProgramRun
{
    int exitCode = -1; ///< The exit code; -1 if it crashed or did not end.
    QString output;
    QString messages;
};

/// Runs a program in a folder, without a colour setting of the user, but with these variables.
inline ProgramRun runProgram(const QString &folder, const QString &program, const QStringList &arguments,
                             const QStringList &variables = {}, const QByteArray &input = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : { "NO_COLOR", "GIT_PAGER_IN_USE", "GIT_DIR", "GIT_WORK_TREE", "GIT_INDEX_FILE" })
        environment.remove(QLatin1StringView(name));
    for (const QString &variable : variables)
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return ProgramRun();
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

/// Two catalogues that differ in every way.
constexpr char OLD_CATALOGUE[] = "<products>\n"
                                 "<product type='DUN9' article_id='1' name='Fotobuch' cover_type='hardcover'/>\n"
                                 "<product type='DUN5' article_id='2' name='Groß'/>\n"
                                 "<product type='VIR1' article_id='3'/>\n"
                                 "<product type='VIR2' article_id='4'/>\n"
                                 "</products>\n";
constexpr char NEW_CATALOGUE[] = "<products>\n"
                                 "<product type='VIR1' article_id='3'/>\n"
                                 "<product type='DUN9' article_id='1' name='Fotobuch' cover_type='softcover'>"
                                 "<forms><form key='alcolor' value='red'/></forms></product>\n"
                                 "<product type='VIR3' article_id='4' name='Neu'/>\n"
                                 "<product type='TOS1' article_id='5'/>\n"
                                 "</products>\n";

#endif
