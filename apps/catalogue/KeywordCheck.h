#ifndef KEYWORDCHECK_H
#define KEYWORDCHECK_H

#include <QHash>
#include <QList>
#include <QString>

/// What is wrong with one piece of a keyword list.
struct KeywordFault
{
    QString piece; ///< as it was written, without blanks around it; may be empty
    /// The main keyword of the same value; of an unknown piece the keyword that is most like it, empty where none is.
    /// In lower case where the piece is.
    QString betterKeyword;
    QString meaning; ///< the main keyword of the better one, where that is an alias
    bool isKnown = false; ///< an alias
};

/// The keyword attributes of a product: "article_class", "cover_type" and so on.
const QList<QLatin1StringView> &keywordAttributesOfProducts();

/// Finds the pieces of a keyword list that no attribute table knows, and those that are read for the sake of old files.
/// Any thread.
QList<KeywordFault> keywordFaults(QLatin1StringView attribute, const QString &list);

/// How many letters must be changed, added, removed or swapped with their neighbour to turn one text into the other.
int editDistance(QStringView a, QStringView b);

#endif
