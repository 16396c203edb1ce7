#ifndef RVKEYWORDVOCABULARY_P_H
#define RVKEYWORDVOCABULARY_P_H

#include "RVCatalogueAttribute.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// The fault of one piece of a keyword list.
struct RVKeywordFault
{
    QString piece; ///< as it was written, without blanks around it; may be empty
    /// The main keyword of the same value; of an unknown piece the keyword that is most like it, empty where none is.
    /// In lower case where the piece is.
    QString betterKeyword;
    QString meaning; ///< the main keyword of the better one, where that is an alias
    bool isKnown = false; ///< an alias
};

/// The keywords of one attribute, to judge lists of them. It never changes, so any thread may ask.
class RVKeywordVocabulary
{
public:
    /// One for each attribute of products.
    static const std::vector<RVKeywordVocabulary> &ofProducts();

    explicit RVKeywordVocabulary(RVCatalogueAttribute attribute);

    QLatin1StringView attributeName() const { return myAttribute.name(); }

    /// True where each piece of a list in UTF-8 is certainly a keyword without a fault. Of some lists with letters
    /// beyond ASCII only faults() tells.
    bool hasAll(QByteArrayView list) const;
    /// The pieces that the attribute does not know, and those that it reads for the sake of old files; the first
    /// hundred.
    QList<RVKeywordFault> faults(const QString &list) const;

private:
    bool has(QByteArrayView piece) const;
    QString nearestTo(const QString &piece) const;
    RVKeywordFault unknownKeyword(const QString &piece) const;

    RVCatalogueAttribute myAttribute;
    QHash<QString, QString> myMainKeywords; // of all keywords, which are in lower case
    QList<QByteArray> myFaultless; // sorted
    QStringList myGuesses; // all keywords, main ones first, both by the alphabet
};

#endif
