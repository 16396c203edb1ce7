#ifndef WRAPPEDTEXT_H
#define WRAPPEDTEXT_H

#include <QString>
#include <QStringList>

/// The number of letters in a line of a default terminal.
constexpr qsizetype TERMINAL_WIDTH = 80;

/// Fills lines of the given width with pieces, a blank between two of them. A piece that is longer than a line is
/// broken at its own blanks, and a word that is longer has a line of its own.
QStringList wrapped(const QStringList &pieces, qsizetype width);
/// The same with the words of a text.
QStringList wrapped(const QString &text, qsizetype width);

/// Fills lines that fit a terminal with each paragraph of a text. Paragraphs are separated by empty lines, and those
/// that begin with a blank stay as they are.
QString filledParagraphs(const QString &text);

#endif
