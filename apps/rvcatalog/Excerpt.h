#ifndef EXCERPT_H
#define EXCERPT_H

#include <RVFileRange.h>

#include <QString>

/// A line of a file and a line with a caret under a place of it, for a terminal of 80 columns.
struct Excerpt
{
    QString text; ///< The number of the line, and its text.
    QString indent; ///< The blanks before the marks.
    QString marks; ///< A caret and tildes that underline the range.
};

/// @p line is the text of the line where the range begins. Tabs become blanks, letters may be wide, a sign replaces
/// letters that a terminal cannot show, and a long line is cut around the place.
Excerpt excerptOf(const QString &line, const RVFileRange &range);

#endif
