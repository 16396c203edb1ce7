#ifndef RVMAINKEYWORDS_P_H
#define RVMAINKEYWORDS_P_H

#include <QHash>
#include <QLatin1StringView>
#include <QList>
#include <QString>

/// The keyword attributes of a product: "article_class", "cover_type" and so on.
QList<QLatin1StringView> rvProductKeywordAttributes();

/// The keywords of an attribute in lower case, each with the one that is written for its value. Where that is a bare
/// number an alias tells more, and is as good.
QHash<QString, QString> rvMainKeywords(QLatin1StringView attribute);

#endif
