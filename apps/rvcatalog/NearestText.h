#ifndef NEARESTTEXT_H
#define NEARESTTEXT_H

#include <QString>

/// Finds the text that was probably meant: of all that are offered, the first that needs the fewest changes of single
/// characters. Letter case does not count, and texts that are too long for a code or a keyword are passed over.
class NearestText
{
public:
    explicit NearestText(const QString &wanted);

    void offer(const QString &text);
    /// Null while nothing was offered.
    QString text() const { return myText; }

private:
    QString myWanted;
    QString myText;
    int myDistance = 0;
};

#endif
