#ifndef PRODUCTSEARCHINDEX_H
#define PRODUCTSEARCHINDEX_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <vector>

/**
 * The texts by which products, or findings, are found, in one piece of memory, so that a search through 100,000 of them
 * is over before the next key is pressed.
 *
 * Letter case does not matter, and neither do umlauts: "ü" is found by "ü", "u" and "ue", "ß" by "ss".
 */
class ProductSearchIndex
{
public:
    /// Adds a product: its own texts, and those that it may share with many others, which are kept but once.
    void append(const QString &own, const QString &common);
    int size() const { return int(myCommonOf.size()); }

    /// The products in which each word of the search is found, by their numbers from 0. An empty search finds all.
    QList<int> find(const QString &search) const;

    qsizetype byteCount() const; ///< The memory of all texts.

private:
    QByteArrayView own(qsizetype product) const;
    std::vector<bool> commonWith(const QByteArray &word) const;

    QByteArray myOwn; // one behind the other
    std::vector<quint32> myOwnEnds;
    QList<QByteArray> myCommon;
    QHash<QByteArray, quint32> myCommonNumbers;
    std::vector<quint32> myCommonOf;
};

#endif
