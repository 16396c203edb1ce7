#ifndef RVCONFIGUREDARTICLEVARIANTLIST_H
#define RVCONFIGUREDARTICLEVARIANTLIST_H

#include "RVArticleVariantsList.h"
#include "RVConfiguredArticleVariant.h"

#include <QList>
#include <QStringList>

class QDebug;
class QDomElement;

/**
 * The options that the catalogue offers for an article, in its order; duplicates are allowed.
 *
 * They are read from the "forms" element of a product or from a text. Readers append only valid options and skip the
 * others without a message; a look-up that finds nothing returns an invalid option.
 *
 * An option matches a configuration when the configuration has its value under its key. An absent key counts as an
 * empty value: an option with an empty value, which only append() can add, matches wherever its key is absent.
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVConfiguredArticleVariantList
 *
 * @ingroup articles
 */
class RVPRODUCTBASE_EXPORT RVConfiguredArticleVariantList : public QList<RVConfiguredArticleVariant>
{
public:
    /// No options.
    RVConfiguredArticleVariantList() = default;
    /// A list of this option if it is valid.
    RVConfiguredArticleVariantList(const RVConfiguredArticleVariant &variant);
    /// Reads a product element as readVariants() does.
    RVConfiguredArticleVariantList(const QDomElement &product);

    /// From a text such as "alcolor:red,pocketcolor:white"; a piece without exactly one colon is skipped.
    static RVConfiguredArticleVariantList createFromCSV(const QString &text);
    /// The single options of a composite one ("a;b" = "x;y"), with key and value only; empty if the numbers of pieces
    /// differ.
    static RVConfiguredArticleVariantList createForProduction(const RVConfiguredArticleVariant &variant);
    /// The same as createForProduction().
    static RVConfiguredArticleVariantList createFromReduced(const RVConfiguredArticleVariant &variant);
    /// Replaces the list by the "form" elements of the first "forms" element of a product.
    void readVariants(const QDomElement &product);

    /// The first option of the key, of the value, and the first that is not charged for.
    /// @{
    RVConfiguredArticleVariant variantByKey(const QString &key) const;
    RVConfiguredArticleVariant variantByValue(const QString &value) const;
    RVConfiguredArticleVariant notAccountableVariant() const;
    /// @}
    /// The first option that matches the configuration.
    RVConfiguredArticleVariant variant(const RVArticleVariants &variants) const;
    /// All options of the key.
    RVConfiguredArticleVariantList filter(const QString &key) const;
    /// The distinct keys, sorted.
    QStringList keys() const;

    /// True when some option has this key and this value.
    bool contains(const RVConfiguredArticleVariant &variant) const;
    /// True when every option of @p other is contained.
    bool contains(const RVConfiguredArticleVariantList &other) const;
    /// True when every entry of the configuration is an option of this list, also one with an empty value. The second
    /// argument has no effect.
    bool contains(const RVArticleVariants &variants, bool = false) const;
    /// True when some option is contained in @p other, or one of the lists is empty.
    bool containsAtLeastOne(const RVConfiguredArticleVariantList &other) const;
    /// True when "color" = "white" is the only option.
    bool containsOnlyColorWhite() const;

    /// The default options combined; later ones win. If no option is a default, the first option of each key.
    RVArticleVariants defaultVariants() const;
    /// "key name: value name" of each option that matches the configuration.
    QStringList visibleNames(const RVArticleVariants &variants) const;
    /// The editor name of each option that matches the configuration.
    QStringList editorNames(const RVArticleVariants &variants) const;
    /// Every box style, combined with every cover photo if there are any, in the order of the box styles.
    RVArticleVariantsList possibleBoxStyles() const;
    /// The order text of all options, such as "a:1;b:2": composite options come out as single ones. An option whose key
    /// and value have different numbers of pieces is dropped.
    QString joinForOrderTxt() const;

    /// Keeps only the options that @p other contains. An empty list becomes a copy of @p other if @p takeOtherWhenEmpty
    /// is set. The cost grows with the product of the sizes.
    void intersect(const RVConfiguredArticleVariantList &other, bool takeOtherWhenEmpty = false);

private:
    void appendValid(const RVConfiguredArticleVariant &variant);
};

/// Prints every option with its position, counted from 1. @relates RVConfiguredArticleVariantList
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVConfiguredArticleVariantList &variants);

#endif
