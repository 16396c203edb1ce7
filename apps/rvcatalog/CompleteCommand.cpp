#include "Completion.h"
#include "SubCommands.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

/// A text on one line, without the signs that separate words and descriptions.
QString line(const QString &text)
{
    return text.simplified();
}

}

// Each line of the output has a word, a tab and its description; the line ":files" asks the shell to add the names of
// files. The first argument is "--", so that Qt ignores words that look like its own options.
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
