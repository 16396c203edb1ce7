#ifndef APPEARANCE_H
#define APPEARANCE_H

#include <QString>

#include <cstdio>

/// The looks of a text for people.
struct Appearance
{
    bool hasColor = false;
    bool hasExcerpts = false; ///< True to show the line of the file, with a caret under the place.

    /// The appearance for the option --color: "always" has both everywhere, and "never" no colour. "auto" has both on a
    /// terminal, but no colour if the environment has NO_COLOR. A terminal of the type "dumb" has neither, except with
    /// "always".
    static Appearance of(const QString &choice, std::FILE *output);
};

#endif
