#ifndef RVCONFIGUREDARTICLEVARIANTIMPL_H
#define RVCONFIGUREDARTICLEVARIANTIMPL_H

#include "RVProductBaseExport.h"

#include <QColor>
#include <QSharedData>
#include <QString>

/// The shared data of RVConfiguredArticleVariant; each field has the name of its XML attribute beside it.
/// @par Example
/// @snippet tst_examples_articles.cpp RVConfiguredArticleVariantImpl
/// @ingroup articles
class RVPRODUCTBASE_EXPORT RVConfiguredArticleVariantImpl : public QSharedData
{
public:
    /// The empty option, a default choice.
    RVConfiguredArticleVariantImpl() = default;
    /// The fields in their order.
    RVConfiguredArticleVariantImpl(const QString &key, const QString &keyName, const QString &value,
                                   const QString &visibleName, const QString &editorName, const QString &name,
                                   const QString &preview, const QColor &color, bool preselected, bool notAccountable);

    /// True with a key and a value.
    bool isValid() const { return !key.isEmpty() && !value.isEmpty(); }
    /// The name of the stock preview image for @p optionValue if the catalogue has one for this key, otherwise
    /// #preview.
    QString previewNameFallbacked(const QString &optionValue) const;

    QString key; ///< "key"
    QString keyName; ///< "key_name"
    QString value; ///< "value"
    QString visibleName; ///< "value_name"
    QString editorName; ///< "editor_name"
    QString name; ///< "name"
    QString preview; ///< "preview"
    QColor color; ///< "color"; invalid when not given
    bool preselected = true; ///< "preselected"; what does not come from XML counts as a default choice
    bool notAccountable = false; ///< "not_accountable"
};

#endif
