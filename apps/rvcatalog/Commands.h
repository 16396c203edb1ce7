#ifndef COMMANDS_H
#define COMMANDS_H

#include "Console.h"

#include <QStringList>

enum ExitCode {
    EXIT_FINE = 0,
    EXIT_PROBLEMS = 1,
    EXIT_UNREADABLE = 2,
};

/// Does what the arguments of rvcatalog say, which begin with a command: { "show", "products.xml" }. Returns the exit
/// code. Needs a QGuiApplication, since fonts are measured; the file "-" is the input of the console.
int runCommand(const QStringList &arguments, const Console &console = Console());

QStringList commandNames(); ///< In the order of the usage.
/// One line on a command; empty where there is none of that name.
QString commandSummary(const QString &name);

#endif
