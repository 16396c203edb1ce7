#ifndef RVARTICLEVARIANTS_H
#define RVARTICLEVARIANTS_H

#include "RVProductBaseExport.h"

#include <QHash>
#include <QString>
#include <QStringList>

class QDataStream;
class QDebug;
class QDomElement;
class QJsonArray;

/**
 * The options that configure an article, key to value: {"alcolor" = "red", "coverphoto" = "yes"}.
 *
 * They are read from project files, JSON and XML attributes, and written to project files, order texts and order
 * transfer. Malformed pieces of a text are skipped without a message. An object without an option is invalid.
 *
 * A composite option has several keys joined with ";" and as many values: {"a;b" = "x;y"}. toXTCI() and toOrderTxt()
 * expand it; all other functions treat it as one option. The options have no order: values(), toKTX() and toOrderTxt()
 * follow the hash.
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVArticleVariants
 *
 * @ingroup articles
 */
class RVPRODUCTBASE_EXPORT RVArticleVariants
{
public:
    /// No option.
    RVArticleVariants() = default;
    /// One option; none if the key or the value is empty.
    RVArticleVariants(const QString &key, const QString &value);
    /// One option from a text such as "alcolor:red", "alcolor|red" or "alcolor+red"; key or value may be empty. None
    /// unless the text has exactly one separator.
    RVArticleVariants(const QString &text);
    /// One option from the attributes "key" and "value"; a missing attribute counts as empty. So the result is valid
    /// even if both are missing.
    RVArticleVariants(const QDomElement &element);
    /// One option for each element such as "form_parameter-alcolor:red"; later ones win.
    RVArticleVariants(const QJsonArray &parameters);
    RVArticleVariants(const RVArticleVariants &) = default;
    RVArticleVariants(RVArticleVariants &&) = default;
    RVArticleVariants &operator=(const RVArticleVariants &) = default;
    RVArticleVariants &operator=(RVArticleVariants &&) = default;
    virtual ~RVArticleVariants();

    /// Reads the project-file form, such as "alcolor:red,coverphoto:yes"; later options win.
    static RVArticleVariants createFromKTX(const QString &text);
    /// {"giftboxcolor" = "black"}
    static RVArticleVariants blackPXWGiftBox();
    /// {"variant" = "confetti"}
    static RVArticleVariants confettiPXWGiftBox();

    static QString coverColorKeyName(); ///< "alcolor"
    static QString coverFotoKeyName(); ///< "coverphoto"
    static QString pictureBoxKeyName(); ///< "boxstyle"
    static QString flyLeafKeyColorName(); ///< "flyleafcolor"
    static QString pxwGiftBoxColorKeyName(); ///< "giftboxcolor"
    static QString blackPXWGiftBoxValue(); ///< "black"
    static QString cutoutKeyName(); ///< "cutout"
    static QString pxwGiftBoxKeyName(); ///< "variant"

    /// The value of the key, @p defaultValue if the key is absent.
    QString value(const QString &key, const QString &defaultValue = {}) const;
    /// All keys, sorted.
    QStringList keys() const;
    /// All values, in no particular order.
    QStringList values() const;
    /// True when there is an option for the cover colour, the fly-leaf colour or the cut-out, with any value.
    /// @{
    bool hasCoverColor() const;
    bool hasFlyLeafColor() const;
    bool hasCutOut() const;
    /// @}
    /// True when there is at least one option.
    bool isValid() const;
    /// True when some value is "notAccountable", which marks an option that is not charged for.
    bool containsNotAccountableVariant() const;
    /// True when every option of @p other has the same value here. An absent key counts as an empty value.
    bool contains(const RVArticleVariants &other) const;
    /// True when some option here has the same value in @p other, where an absent key counts as an empty value. An
    /// empty side is compatible with everything.
    bool containsAtLeastOne(const RVArticleVariants &other) const;
    /// Equal values have equal hashes.
    size_t hash() const;

    /// Sets the key to the value; either may be empty.
    void insert(const QString &key, const QString &value);
    /// Adds every option of @p other, which wins on equal keys.
    void insert(const RVArticleVariants &other);
    /// Adds the single options of a composite one. Adds nothing if key and value have different numbers of pieces.
    /// Empty pieces do not count, so ("a;;b", "1;2") adds {"a" = "1"} and {"b" = "2"}.
    void splitForProduction(const QString &key, const QString &value);

    /// The project-file form; options with an empty key or value are left out. A comma, ":", "|" or "+" in a key or a
    /// value breaks it: {"a" = "b,c"} becomes "a:b,c", which createFromKTX() reads as {"a" = "b"}; {"a" = "x:y"}
    /// becomes "a:x:y", which it skips.
    QString toKTX() const;
    /// The order-transfer form: composite options come out as single ones, by splitForProduction() in ascending order
    /// of the keys, so that a later one replaces an earlier one with the same key. An option is dropped if its key or
    /// its value is empty, or if they have different numbers of pieces, such as {"a" = "x;y"}.
    RVArticleVariants toXTCI() const;
    /// The order-text form, such as "a:x;b:y": composite options come out as single ones. It drops the same options as
    /// toXTCI(), but replaces none: a key can occur twice.
    QString toOrderTxt() const;

    /// Compares keys and values; letter case matters.
    /// @{
    bool operator==(const RVArticleVariants &other) const { return myVariants == other.myVariants; }
    bool operator!=(const RVArticleVariants &other) const { return !(*this == other); }
    friend size_t qHash(const RVArticleVariants &variants, size_t seed = 0) { return seed ^ variants.hash(); }
    /// @}

    /// Writes and reads every option, in the order of a QMap of the keys: equal variants are written alike.
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVArticleVariants &variants);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVArticleVariants &variants);
    /// @}

private:
    QHash<QString, QString> myVariants;
};

Q_DECLARE_TYPEINFO(RVArticleVariants, Q_RELOCATABLE_TYPE);

/// The options as one text, sorted by key: "alcolor = red; coverphoto = yes". @relates RVArticleVariants
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVArticleVariants &variants);

#endif
