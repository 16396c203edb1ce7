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
 * One option of the catalogue with everything that is needed to show it: key and value, their display names, the
 * preview image, the swatch colour, and the marks for a default choice and for an option that is not charged for.
 *
 * It is read from a "form" element of the products XML. It is valid when key and value are not empty. Copies share
 * their data, and a moved-from object is valid. An option that does not come from XML counts as a default choice.
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
    /// From the fields, for code that reads them in another way.
    explicit RVConfiguredArticleVariant(const RVConfiguredArticleVariantImpl &fields);
    // Moves share the data as copies do, so that every object has data.
    RVConfiguredArticleVariant(const RVConfiguredArticleVariant &) = default;
    RVConfiguredArticleVariant &operator=(const RVConfiguredArticleVariant &) = default;

    QString key() const; ///< The subject of the choice, such as "alcolor".
    QString keyName() const; ///< The key as the customer reads it.
    QString value() const; ///< The choice, such as "red".
    /// The value as the customer reads it; a null text for an invalid option.
    QString visibleName() const;
    QString editorName() const; ///< The value as the editor shows it.
    /// The name of the preview image; options such as the spiral colour have a stock image if none is given.
    QString preview() const;
    /// The swatch colour; invalid when none is given or the text is no colour.
    QColor color() const;
    bool isDefault() const; ///< True for a default choice of its key.
    bool isNotAccountable() const; ///< True for an option that is not charged for.
    bool isValid() const; ///< True with a key and a value.
    /// True when the value is the keyword of the spot colour.
    bool isSpotColor(const RVSpotColor &spotColor) const;
    /// The line that explains the option: key name, a swatch in HTML where there is a colour, value name. Empty
    /// without a key name. The names come as they are, so markup in them is markup.
    QString describe() const;

    /// Takes preview and colour from @p other and keeps the other fields.
    void merge(const RVConfiguredArticleVariant &other);

    /// The option alone; empty for an invalid option.
    RVArticleVariants toArticleVariants() const;
    /// "key:value"; a null text for an invalid option.
    QString toString() const;

    /// Compares key and value only.
    /// @{
    bool operator==(const RVConfiguredArticleVariant &other) const;
    bool operator!=(const RVConfiguredArticleVariant &other) const { return !(*this == other); }
    friend size_t qHash(const RVConfiguredArticleVariant &variant, size_t seed = 0)
    {
        return qHashMulti(seed, variant.key(), variant.value());
    }
    /// @}
    /// Compares the display name of the key only. Options with equal key names are unordered among themselves, with any
    /// keys and values. So are all options that do not come from XML, because they have no key name. Options that are
    /// `==` can still be ordered by different key names.
    bool operator<(const RVConfiguredArticleVariant &other) const;

private:
    QSharedDataPointer<RVConfiguredArticleVariantImpl> d;
};

Q_DECLARE_TYPEINFO(RVConfiguredArticleVariant, Q_RELOCATABLE_TYPE);

/// Prints key and value. @relates RVConfiguredArticleVariant
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVConfiguredArticleVariant &variant);

#endif
