#ifndef COMPLETION_H
#define COMPLETION_H

#include <QList>
#include <QString>
#include <QStringList>

/// A word that may stand on a command line.
struct CompletionCandidate
{
    QString word;
    QString description; ///< one line; empty if the word needs none
};

/// The possible completions of the last word of a command line.
struct Completion
{
    QList<CompletionCandidate> candidates;
    bool areFilesMeant = false; ///< the shell adds the names of files
};

/**
 * Completes the words behind the name of the program. The last word is not complete and may be empty. The options and
 * arguments of a command come from its help, so a new command needs no code here. The product types are those of the
 * catalogue on the command line.
 */
Completion complete(const QStringList &words);

#endif
