#include "Completion.h"
#include "SubCommands.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// One line, without the signs that separate words and descriptions.
QString line(const QString &text)
{
    return text.simplified();
}

}

// A word and a tab and its description a line; ":files" where the shell is to add the names of files. The first
// argument is "--", so that Qt leaves alone what looks like an option of its own.
int completeCommand(const QStringList &words, const Console &console)
{
    const Completion completion = complete(words.value(0) == "--"_L1 ? words.mid(1) : words);
    QTextStream out(console.output);
    if (completion.areFilesMeant)
        out << ":files\n";
    for (const CompletionCandidate &candidate : completion.candidates)
        out << line(candidate.word) << '\t' << line(candidate.description) << '\n';
    return EXIT_FINE;
}
