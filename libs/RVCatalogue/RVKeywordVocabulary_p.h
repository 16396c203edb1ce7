#ifndef RVKEYWORDVOCABULARY_P_H
#define RVKEYWORDVOCABULARY_P_H

#include "RVCatalogueAttribute.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The fault of one piece of a keyword list.
struct RVKeywordFault
{
    enum Kind {
        Alias, ///< a keyword, but not the main one
        Empty,
        Separated, ///< several keywords, not separated by commas
        Named, ///< the display name of a value
        Mistyped, ///< near a keyword
        Unknown, ///< near no keyword
    };

    Kind kind = Unknown;
    QString piece; ///< as it was written, without blanks around it; may be empty
    qsizetype from = 0; ///< its place in the list
    /// The main keyword of an alias; the pieces of a separated one with commas, if all are keywords; the keywords that
    /// have the name, or are nearest to the piece. They are in lower case if the piece is.
    QStringList betterKeywords;
    QString meaning; ///< the main keyword of the only better one, if that is an alias
    QString letters; ///< about a letter that looks like another one or is invisible; empty without one
    QString mended; ///< the text that replaces the piece; null without one safe answer
};

/// The keywords of one attribute, for checking lists of them. It never changes, so any thread may use it.
class RVKeywordVocabulary
{
public:
    /// One for each attribute of products.
    static const std::vector<RVKeywordVocabulary> &ofProducts();

    explicit RVKeywordVocabulary(RVCatalogueAttribute attribute);

    QLatin1StringView attributeName() const { return myAttribute.name(); }
    /// One keyword of every value, ordered by the values; an alias instead of a keyword that is only a number.
    const QStringList &keywords() const { return myKeywords; }

    /// True if each piece of a list in UTF-8 is certainly a keyword without a fault. For some lists with letters beyond
    /// ASCII, only faults() is certain.
    bool hasAll(QByteArrayView list) const;
    /// The unknown pieces, and the aliases that are only read from old files; the first hundred.
    QList<RVKeywordFault> faults(const QString &list) const;

private:
    bool has(QByteArrayView piece) const;
    std::optional<RVKeywordFault> faultOf(const QString &piece) const;
    RVKeywordFault unknownKeyword(const QString &piece) const;
    qsizetype countKeywords(const QStringList &pieces) const;
    bool explainSpelling(const QString &plain, RVKeywordFault *fault) const;
    bool explainSeparators(const QString &plain, RVKeywordFault *fault) const;
    bool explainName(const QString &plain, RVKeywordFault *fault) const;
    bool explainMistake(const QString &plain, RVKeywordFault *fault) const;
    void guess(const QString &plain, const QStringList &keywords, RVKeywordFault *fault) const;
    QString faultless(const QString &piece, const QString &keyword) const;

    RVCatalogueAttribute myAttribute;
    QHash<QString, QString> myMainKeywords; // of all keywords, which are in lower case
    QList<QByteArray> myFaultless; // sorted
    QStringList myGuesses; // all keywords, main ones first, both by the alphabet
    QStringList myKeywords;
    QHash<QString, QStringList> myKeywordsOfNames; // of display names, which are folded
    QHash<QString, QStringList> mySqueezed; // the keywords in lower case, by their texts without blanks and dashes
};

#endif
