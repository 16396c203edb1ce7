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
    /// The input if the name is "-", or a pipe with that name, open for reading; null for files, which the caller
    /// opens.
    std::unique_ptr<QIODevice> openInput(const QString &fileName) const;
    void write(std::string_view text) const;
    /// Passes on what was written to the output. False if that, or anything before, could not be written.
    bool flush() const;
    /// Writes "file:line:column: text" to the messages.
    void report(const QString &fileName, const Problem &problem) const;
    /// Writes "file: text" to the messages, for problems without a place.
    void report(const QString &fileName, const QString &text) const;
};

/// True if the stream is a terminal.
bool isTerminal(std::FILE *stream);

#endif
