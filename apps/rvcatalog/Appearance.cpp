#include "Appearance.h"

#include "Console.h"

using namespace Qt::StringLiterals;

Appearance Appearance::of(const QString &choice, std::FILE *output)
{
    if (choice == "always"_L1)
        return { true, true };
    if (!isTerminal(output) || qEnvironmentVariable("TERM") == "dumb"_L1)
        return {};
    return { choice == "auto"_L1 && qEnvironmentVariableIsEmpty("NO_COLOR"), true };
}
