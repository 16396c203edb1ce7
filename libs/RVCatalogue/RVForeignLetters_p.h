#ifndef RVFOREIGNLETTERS_P_H
#define RVFOREIGNLETTERS_P_H

#include <QString>
#include <QStringView>

/// The letters of a text that people take for others, or do not see at all, while programs tell them apart: letters of
/// another script than Latin, full-width forms, digits and dashes beyond ASCII, blanks that do not part a line, and
/// letters without any width.
class RVForeignLetters
{
public:
    explicit RVForeignLetters(QStringView text);

    bool isEmpty() const { return myFirst == 0; } ///< True where there is none.
    /// The text as people read it: with ASCII where a letter looks like it, and without the invisible ones.
    QString plain() const { return myPlain; }
    /// Names the first one by its code point: "it has U+0430, which looks like "a""; empty where there is none.
    QString text() const;

private:
    void append(char32_t letter);

    char32_t myFirst = 0;
    QString myFirstPlain; // null where it looks like nothing in ASCII
    QString myPlain;
};

#endif
