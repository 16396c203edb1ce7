#ifndef RVFOREIGNLETTERS_P_H
#define RVFOREIGNLETTERS_P_H

#include <QString>
#include <QStringView>

/// The letters of a text that look like others or are invisible, but are different for programs: letters of scripts
/// other than Latin, full-width forms, digits and dashes beyond ASCII, no-break blanks, and letters without any width.
class RVForeignLetters
{
public:
    explicit RVForeignLetters(QStringView text);

    bool isEmpty() const { return myFirst == 0; } ///< True if there is none.
    /// The text as people read it: with ASCII for letters that look like it, and without the invisible ones.
    QString plain() const { return myPlain; }
    /// Names the first one by its code point: "it has U+0430, which looks like "a""; empty if there is none.
    QString text() const;

private:
    void append(char32_t letter);

    char32_t myFirst = 0;
    QString myFirstPlain; // null if it looks like no ASCII text
    QString myPlain;
};

#endif
