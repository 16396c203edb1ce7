#ifndef COMPLETION_H
#define COMPLETION_H

#include <QList>
#include <QString>
#include <QStringList>

/// A word that may stand on a command line.
struct CompletionCandidate
{
    QString word;
    QString description; ///< one line; empty where the word says all
};

/// The ways in which the last word of a command line may go on.
struct Completion
{
    QList<CompletionCandidate> candidates;
    bool areFilesMeant = false; ///< the shell adds the names of files
};

/**
 * Completes the words behind the name of the program, of which the last one is not complete and may be empty. What the
 * options and arguments of a command are is asked from its own help, so there is nothing that a new command has to add.
 * The product types are those of the catalogue that is named already.
 */
Completion complete(const QStringList &words);

#endif
