#ifndef COMMANDS_H
#define COMMANDS_H

#include <CatalogueReader.h>

#include <QStringList>

class QCommandLineParser;

enum ExitCode {
    EXIT_FINE = 0,
    EXIT_PROBLEMS = 1,
    EXIT_UNREADABLE = 2,
};

/// Writes "file:line:column: text" to the standard error output.
void report(const QString &fileName, const FilePosition &position, const QString &text);

/// The sub-commands. The arguments begin with the program's name for messages; the result is the exit code.
int showCommand(const QStringList &arguments);
int orderCommand(const QStringList &arguments);
int checkCommand(const QStringList &arguments);
int keywordsCommand(const QStringList &arguments);
int decodeCommand(const QStringList &arguments);
int spineCommand(const QStringList &arguments);

/// Parses the options and the least to most arguments of a sub-command. Returns false when the program is to end with
/// @p exitCode: after the help text, or after a message about wrong usage.
bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int least, int most, int *exitCode);

#endif
