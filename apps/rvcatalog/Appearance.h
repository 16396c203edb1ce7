#ifndef APPEARANCE_H
#define APPEARANCE_H

#include <QString>
#include <QStringList>

#include <cstdio>

/// The looks of a text for people.
struct Appearance
{
    bool hasColor = false;
    bool hasExcerpts = false; ///< The line of the file, with a caret under the place.

    /// The words of the option --color.
    static QStringList choices();
    /// "always" has both everywhere, and "never" no colour. "auto" has both on a terminal, but no colour where the
    /// environment has NO_COLOR. A terminal of the kind "dumb" has neither unless always.
    static Appearance of(const QString &choice, std::FILE *output);
};

#endif
