#ifndef RVCONFIGUREDARTICLEVARIANT_H
#define RVCONFIGUREDARTICLEVARIANT_H

#include "RVConfiguredArticleVariantImpl.h"
#include "RVProductBaseExport.h"

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
 * data. An option that does not come from XML counts as a default choice.
 */
class RVPRODUCTBASE_EXPORT RVConfiguredArticleVariant
{
public:
    /// The empty, invalid option.
    RVConfiguredArticleVariant();
    RVConfiguredArticleVariant(const QString &key, const QString &value);
    /// From "key:value"; empty unless the text has exactly one colon.
    RVConfiguredArticleVariant(const QString &text);
    /// From the attributes of a "form" element.
    RVConfiguredArticleVariant(const QDomElement &element);

    QString key() const;
    /// Display name of the key.
    QString keyName() const;
    QString value() const;
    /// Display name of the value; a null text for an invalid option.
    QString visibleName() const;
    QString editorName() const;
    /// Name of the preview image; options such as the spiral colour have a stock one where none is given.
    QString preview() const;
    /// The swatch colour; invalid when none is given or the text is no colour.
    QColor color() const;
    bool isDefault() const;
    bool isNotAccountable() const;
    bool isValid() const;
    /// True when the value is the keyword of the spot colour.
    bool isSpotColor(const RVSpotColor &spotColor) const;
    /// The line that explains the option: key name, a swatch in HTML where there is a colour, value name. Empty
    /// without a key name.
    QString describe() const;

    /// Takes preview and colour from @p other and keeps all else.
    void merge(const RVConfiguredArticleVariant &other);

    /// The option alone; empty for an invalid option.
    RVArticleVariants toArticleVariants() const;
    /// "key:value"; a null text for an invalid option.
    QString toString() const;

    /// Compares key and value only.
    bool operator==(const RVConfiguredArticleVariant &other) const;
    bool operator!=(const RVConfiguredArticleVariant &other) const { return !(*this == other); }
    /// By the key's display name, so options of one key are unordered among themselves.
    bool operator<(const RVConfiguredArticleVariant &other) const;

private:
    QSharedDataPointer<RVConfiguredArticleVariantImpl> d;
};

Q_DECLARE_TYPEINFO(RVConfiguredArticleVariant, Q_RELOCATABLE_TYPE);

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVConfiguredArticleVariant &variant);

#endif
