#ifndef PRINTABLETEXT_H
#define PRINTABLETEXT_H

#include <QString>

/// One line: blanks in place of line ends, and of characters that control a terminal.
QString printableText(QString text);

#endif
