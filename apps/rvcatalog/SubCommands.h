#ifndef SUBCOMMANDS_H
#define SUBCOMMANDS_H

#include "Commands.h"

#include <limits>

class QCommandLineOption;
class QCommandLineParser;

/// The number of arguments of a sub-command without a limit.
constexpr int ANY_NUMBER = std::numeric_limits<int>::max();

/// The sub-commands. The arguments begin with the program's name for messages; the result is the exit code.
/// @{
int showCommand(const QStringList &arguments, const Console &console);
int orderCommand(const QStringList &arguments, const Console &console);
int checkCommand(const QStringList &arguments, const Console &console);
int explainCommand(const QStringList &arguments, const Console &console);
int diffCommand(const QStringList &arguments, const Console &console);
int keywordsCommand(const QStringList &arguments, const Console &console);
int decodeCommand(const QStringList &arguments, const Console &console);
int spineCommand(const QStringList &arguments, const Console &console);
/// @}
/// Lists the completions of the words of a command line, of which the last one is not complete; for the shells.
int completeCommand(const QStringList &words, const Console &console);

/// The option "--format" with the possible formats, the default first. With "json" among them, the command accepts
/// "--json" as well.
QCommandLineOption formatOption(const QStringList &formats);
/// Parses the options and the least to most arguments of a sub-command. Returns false when the program is to end with
/// @p exitCode: after the help text, or after a message about wrong usage. An option whose value is named "a|b" takes
/// no other values, and "-" may be one argument at most.
bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int least, int most,
                    const Console &console, int *exitCode);
/// Writes the reason why the arguments of a sub-command cannot be understood, and returns the exit code for that.
/// @p command is its name as in the first argument.
int refuseArguments(const QString &command, const QString &text, const Console &console);

#endif
