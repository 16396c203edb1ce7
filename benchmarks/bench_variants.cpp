// Reading the options of a project file, compared with Qt's class for texts of keys and values.
#include "Comparison.h"

#include <RVArticleVariants.h>

#include <QHash>
#include <QStringList>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

QStringList texts()
{
    const QStringList colors { u"red"_s, u"black"_s, u"beige"_s, u"white"_s, u"silver"_s, u"blue"_s, u"green"_s };
    const QStringList boxes { u"wood;black"_s, u"linen;white"_s, u"none;notAccountable"_s };
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i) {
        const QString color = u"alcolor:"_s + colors.at(i % colors.size());
        const QString photo = u"coverphoto:"_s + (i % 2 == 0 ? u"yes"_s : u"no"_s);
        const QString box = u"boxstyle;giftboxcolor:"_s + boxes.at(i % boxes.size());
        result += QStringList { i % 4 < 2 ? color : photo, i % 4 < 2 ? photo : color, box }.join(u',');
    }
    return result;
}

QHash<QString, QString> readWithUrlQuery(const QString &text)
{
    QUrlQuery query;
    query.setQueryDelimiters(u':', u',');
    query.setQuery(text);
    const auto items = query.queryItems();
    QHash<QString, QString> result;
    result.reserve(items.size());
    for (const auto &[key, value] : items)
        result.insert(key, value);
    return result;
}

/// Existing keys and values, inserted into a new hash.
QHash<QString, QString> copied(const QHash<QString, QString> &options)
{
    QHash<QString, QString> result;
    result.reserve(options.size());
    for (auto it = options.begin(); it != options.end(); ++it)
        result.insert(it.key(), it.value());
    return result;
}

bool sameOptions(const RVArticleVariants &ours, const QHash<QString, QString> &theirs)
{
    RVArticleVariants copy;
    for (auto it = theirs.begin(); it != theirs.end(); ++it)
        copy.insert(it.key(), it.value());
    return ours == copy && theirs.size() == 3;
}

}

void addBenchmarks()
{
    QList<QHash<QString, QString>> options;
    for (const QString &text : texts())
        options += readWithUrlQuery(text);
    Comparison("createFromKTX", texts(), RVArticleVariants::createFromKTX)
            .against("url_query", readWithUrlQuery, sameOptions)
            .above(options, copied);
}
