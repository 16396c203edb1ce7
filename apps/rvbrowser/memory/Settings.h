#ifndef SETTINGS_H
#define SETTINGS_H

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>

/// The file in which a user's windows remember. Several processes may use it at once: each writes only the keys that it
/// changed. A file that is damaged or cannot be written is no error; then less is remembered.
class Settings
{
public:
    /// Without a file name nothing is read or written: every value is missing.
    explicit Settings(const QString &fileName = QString());

    /// "rvbrowser/rvbrowser.ini" in the user's configuration folder.
    static QString usualFileName();

    /// False without a file name.
    bool isRemembering() const { return mySettings != nullptr; }
    QVariant value(const QString &key) const;
    void setValue(const QString &key, const QVariant &value);
    /// Removes the key and all that is below it.
    void remove(const QString &key);
    /// The keys directly below the group, with their values.
    QVariantMap values(const QString &group) const;
    /// The names directly below the group that have something below themselves.
    QStringList groups(const QString &group) const;
    /// Writes what was changed, and reads what other processes have written.
    void refresh();
    /// Removes all that was ever remembered.
    void forgetEverything();

private:
    std::unique_ptr<QSettings> mySettings; // null if nothing is remembered
};

#endif
