#ifndef LISTDIFFERENCE_H
#define LISTDIFFERENCE_H

#include <QString>
#include <QStringList>

using namespace Qt::StringLiterals;

/// The differences between the entries of a file and those that are expected, in their order; empty if there are none.
/// A test that compares this text with an empty one names the file to change when it fails.
inline QString listDifference(const QString &file, const QStringList &found, const QStringList &expected)
{
    QStringList changes;
    for (const QString &entry : expected) {
        if (!found.contains(entry))
            changes += u"%1 lacks %2"_s.arg(file, entry);
    }
    for (const QString &entry : found) {
        if (!expected.contains(entry))
            changes += u"%1 has %2, which is not expected"_s.arg(file, entry);
    }
    for (qsizetype i = 0; changes.isEmpty() && i < qMin(found.size(), expected.size()); ++i) {
        if (found.at(i) != expected.at(i))
            changes += u"%1 has %2 in place %3 instead of %4"_s.arg(file, found.at(i), QString::number(i + 1),
                                                                    expected.at(i));
    }
    if (changes.isEmpty() && found.size() != expected.size())
        changes += u"%1 has %2 entries instead of %3"_s.arg(file).arg(found.size()).arg(expected.size());
    return changes.join(u"; "_s);
}

#endif
