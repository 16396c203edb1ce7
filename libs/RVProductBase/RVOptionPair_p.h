#ifndef RVOPTIONPAIR_P_H
#define RVOPTIONPAIR_P_H

#include <QList>
#include <QString>
#include <QStringList>

struct RVOptionPair
{
    QString key;
    QString value;
};

/// The single options of a composite one, whose key and value are lists of the same length joined with ";". Empty
/// pieces do not count. The result is empty if the lengths differ.
inline QList<RVOptionPair> rvExpandComposite(const QString &key, const QString &value)
{
    const QStringList keys = key.split(u';', Qt::SkipEmptyParts);
    const QStringList values = value.split(u';', Qt::SkipEmptyParts);
    QList<RVOptionPair> pairs;
    if (keys.size() != values.size())
        return pairs;
    for (qsizetype i = 0; i < keys.size(); ++i)
        pairs.append({ keys.at(i), values.at(i) });
    return pairs;
}

/// The written form of one option.
inline QString rvJoinOption(const QString &key, const QString &value)
{
    return key + u':' + value;
}

#endif
