#ifndef SETTINGSGROUP_H
#define SETTINGSGROUP_H

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

class Settings;

/// Things of one kind in the settings, of which only the newest are kept. Each has keys of its own, so windows that
/// remember different things at once do not overwrite each other.
class SettingsGroup
{
public:
    /// @p settings outlives the group, whose keys begin with @p name. @p limit is the number of things that are kept.
    SettingsGroup(Settings *settings, const QString &name, int limit);

    /// The values of the thing; empty if it is not remembered.
    QVariantMap values(const QStringList &thing) const;
    /// Makes the thing the newest one. A value that is not mentioned stays as it was.
    void setValues(const QStringList &thing, const QVariantMap &values);
    /// All things, the newest first.
    QList<QVariantMap> newest() const;
    void clear();

private:
    QString path(const QString &id) const { return myName + u'/' + id; }
    QVariantMap valuesOf(const QString &id) const;
    /// The identifiers of all things, the newest first.
    QStringList idsByAge() const;
    /// The time when the thing was last set, in milliseconds since 1970; 0 if that is not known.
    qint64 used(const QString &id) const;
    void dropTheOldest();

    Settings *mySettings;
    QString myName;
    int myLimit;
};

#endif
