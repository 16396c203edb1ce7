#ifndef COMMANDS_H
#define COMMANDS_H

#include "Console.h"

#include <QStringList>

enum ExitCode {
    EXIT_FINE = 0,
    EXIT_PROBLEMS = 1,
    EXIT_UNREADABLE = 2,
};

/// Runs rvcatalog with these arguments, which begin with a command: { "show", "products.xml" }. Returns the exit code.
/// It needs a QGuiApplication for measuring fonts. The file "-" is the input of the console.
int runCommand(const QStringList &arguments, const Console &console = Console());

QStringList commandNames(); ///< The names of the commands, in the order of the usage.
/// One line about a command; empty if there is none with that name.
QString commandSummary(const QString &name);

#endif
