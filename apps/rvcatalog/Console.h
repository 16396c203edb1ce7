#ifndef CONSOLE_H
#define CONSOLE_H

#include <RVFilePosition.h>

#include <QIODevice>
#include <QString>

#include <cstdio>
#include <memory>
#include <string_view>

/// A problem at one place of a file.
struct Problem
{
    RVFilePosition position;
    QString text; ///< one line, without a full stop
};

/// The streams that a command reads and writes; by default the standard streams of the process.
struct Console
{
    std::FILE *input = stdin;
    std::FILE *output = stdout;
    std::FILE *messages = stderr;

    /// The input, open for reading.
    std::unique_ptr<QIODevice> openInput() const;
    /// The input where the name is "-", or a pipe of that name, open for reading; null for files, which others open.
    std::unique_ptr<QIODevice> openInput(const QString &fileName) const;
    void write(std::string_view text) const;
    /// Writes "file:line:column: text" to the messages.
    void report(const QString &fileName, const Problem &problem) const;
    /// Writes "file: text" to the messages, for what has no place.
    void report(const QString &fileName, const QString &text) const;
};

/// True where the stream goes to a person at a terminal.
bool isTerminal(std::FILE *stream);

#endif
