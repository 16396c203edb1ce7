#include "Settings.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

Settings::Settings(const QString &fileName)
    : mySettings(fileName.isEmpty() ? nullptr : std::make_unique<QSettings>(fileName, QSettings::IniFormat))
{ }

QString Settings::usualFileName()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/rvbrowser/rvbrowser.ini"_L1;
}

QVariant Settings::value(const QString &key) const
{
    return mySettings ? mySettings->value(key) : QVariant();
}

void Settings::setValue(const QString &key, const QVariant &value)
{
    if (mySettings)
        mySettings->setValue(key, value);
}

void Settings::remove(const QString &key)
{
    if (mySettings)
        mySettings->remove(key);
}

QVariantMap Settings::values(const QString &group) const
{
    QVariantMap result;
    if (!mySettings)
        return result;
    mySettings->beginGroup(group);
    for (const QString &key : mySettings->childKeys())
        result.insert(key, mySettings->value(key));
    mySettings->endGroup();
    return result;
}

QStringList Settings::groups(const QString &group) const
{
    if (!mySettings)
        return QStringList();
    mySettings->beginGroup(group);
    const QStringList result = mySettings->childGroups();
    mySettings->endGroup();
    return result;
}

void Settings::refresh()
{
    if (mySettings)
        mySettings->sync();
}

void Settings::forgetEverything()
{
    if (!mySettings)
        return;
    mySettings->clear();
    mySettings->sync();
}
