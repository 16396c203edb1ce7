#include "RVConfiguredArticleVariantImpl.h"

#include <QHash>

RVConfiguredArticleVariantImpl::RVConfiguredArticleVariantImpl(const QString &key_, const QString &keyName_,
                                                               const QString &value_, const QString &visibleName_,
                                                               const QString &editorName_, const QString &name_,
                                                               const QString &preview_, const QColor &color_,
                                                               bool preselected_, bool notAccountable_)
    : key(key_),
      keyName(keyName_),
      value(value_),
      visibleName(visibleName_),
      editorName(editorName_),
      name(name_),
      preview(preview_),
      color(color_),
      preselected(preselected_),
      notAccountable(notAccountable_)
{ }

QString RVConfiguredArticleVariantImpl::previewNameFallbacked(const QString &optionValue) const
{
    using Previews = QHash<QString, QString>;
    static const auto &fallbackByKey = *new QHash<QString, Previews> {
        { QStringLiteral("spiral"),
          {
                  { QStringLiteral("silver"), QStringLiteral("calendar_binding_spiral_metal") },
                  { QStringLiteral("black"), QStringLiteral("calendar_binding_spiral_black") },
          } },
        { QStringLiteral("pocketcolor"),
          {
                  { QStringLiteral("white"), QStringLiteral("POCKET-photobook-photopaper-preview_white") },
                  { QStringLiteral("black"), QStringLiteral("POCKET-photobook-photopaper-preview_black") },
                  { QStringLiteral("beige"), QStringLiteral("POCKET-photobook-preview_beige") },
          } },
    };
    return fallbackByKey.value(key).value(optionValue, preview);
}
