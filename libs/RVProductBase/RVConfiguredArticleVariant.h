#ifndef RVCONFIGUREDARTICLEVARIANT_H
#define RVCONFIGUREDARTICLEVARIANT_H

#include "RVConfiguredArticleVariantImpl.h"
#include "RVProductBaseExport.h"

#include <QHashFunctions>
#include <QSharedDataPointer>

class QDebug;
class QDomElement;
class RVArticleVariants;
class RVSpotColor;

/**
 * One option of the catalogue with all that is needed to show it: key and value, their display names, the preview
 * image, the swatch colour, whether it is the default choice and whether it is charged for.
 *
 * Read from a "form" element of the products XML. Valid when both key and value are non-empty. Copies share their
 * data, and what was moved from is a valid object. An option that does not come from XML counts as a default choice.
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVConfiguredArticleVariant
 *
 * @ingroup articles
 */
class RVPRODUCTBASE_EXPORT RVConfiguredArticleVariant
{
public:
    /// The empty, invalid option.
    RVConfiguredArticleVariant();
    /// Any key and value, without names and colour; both must be given for a valid option.
    RVConfiguredArticleVariant(const QString &key, const QString &value);
    /// From "key:value"; empty unless the text has exactly one colon.
    RVConfiguredArticleVariant(const QString &text);
    /// From the attributes of a "form" element.
    RVConfiguredArticleVariant(const QDomElement &element);
    /// From its fields, for code that reads them in another way.
    explicit RVConfiguredArticleVariant(const RVConfiguredArticleVariantImpl &fields);
    // Moves share the data as copies do, so that every object has some.
    RVConfiguredArticleVariant(const RVConfiguredArticleVariant &) = default;
    RVConfiguredArticleVariant &operator=(const RVConfiguredArticleVariant &) = default;

    QString key() const; ///< The subject of the choice, such as "alcolor".
    QString keyName() const; ///< The key as the customer reads it.
    QString value() const; ///< The choice, such as "red".
    /// The value as the customer reads it; a null text for an invalid option.
    QString visibleName() const;
    QString editorName() const; ///< The value as the editor shows it.
    /// Name of the preview image; options such as the spiral colour have a stock one where none is given.
    QString preview() const;
    /// The swatch colour; invalid when none is given or the text is no colour.
    QColor color() const;
    bool isDefault() const; ///< True for a default choice of its key.
    bool isNotAccountable() const; ///< True for what is not charged for.
    bool isValid() const; ///< True with a key and a value.
    /// True when the value is the keyword of the spot colour.
    bool isSpotColor(const RVSpotColor &spotColor) const;
    /// The line that explains the option: key name, a swatch in HTML where there is a colour, value name. Empty
    /// without a key name. The names come as they are, so markup in them is markup.
    QString describe() const;

    /// Takes preview and colour from @p other and keeps all else.
    void merge(const RVConfiguredArticleVariant &other);

    /// The option alone; empty for an invalid option.
    RVArticleVariants toArticleVariants() const;
    /// "key:value"; a null text for an invalid option.
    QString toString() const;

    /// By key and value only.
    /// @{
    bool operator==(const RVConfiguredArticleVariant &other) const;
    bool operator!=(const RVConfiguredArticleVariant &other) const { return !(*this == other); }
    friend size_t qHash(const RVConfiguredArticleVariant &variant, size_t seed = 0)
    {
        return qHashMulti(seed, variant.key(), variant.value());
    }
    /// @}
    /// By the key's display name alone. Options whose key names are equal are unordered among themselves, whatever
    /// their keys and values: so are all that do not come from XML, as they have none. Options that are `==` can still
    /// be ordered, by different key names.
    bool operator<(const RVConfiguredArticleVariant &other) const;

private:
    QSharedDataPointer<RVConfiguredArticleVariantImpl> d;
};

Q_DECLARE_TYPEINFO(RVConfiguredArticleVariant, Q_RELOCATABLE_TYPE);

/// Prints key and value. @relates RVConfiguredArticleVariant
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVConfiguredArticleVariant &variant);

#endif
