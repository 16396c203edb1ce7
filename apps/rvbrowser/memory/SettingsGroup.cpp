#include "SettingsGroup.h"

#include "Settings.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int ID_LENGTH = 20; // characters
constexpr std::chrono::milliseconds DAY = 24h;
constexpr auto USED = "used"_L1;

/// Names of files and products may be long and may have any character, unlike a name in the settings.
QString idOf(const QStringList &thing)
{
    const QByteArray hash = QCryptographicHash::hash(thing.join(u'\n').toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(ID_LENGTH));
}

}

SettingsGroup::SettingsGroup(Settings *settings, const QString &name, int limit)
    : mySettings(settings),
      myName(name),
      myLimit(limit)
{ }

QVariantMap SettingsGroup::values(const QStringList &thing) const
{
    return valuesOf(idOf(thing));
}

void SettingsGroup::setValues(const QStringList &thing, const QVariantMap &values)
{
    const QString id = idOf(thing);
    const qint64 newest = used(idsByAge().value(0)); // 0 if there is none
    // Two things may come in one millisecond, and clocks are put back.
    const qint64 now = qMax(QDateTime::currentMSecsSinceEpoch(), newest + 1);
    for (auto value = values.begin(); value != values.end(); ++value)
        mySettings->setValue(path(id) + u'/' + value.key(), value.value());
    mySettings->setValue(path(id) + u'/' + USED, now);
    dropTheOldest();
}

QList<QVariantMap> SettingsGroup::newest() const
{
    QList<QVariantMap> result;
    for (const QString &id : idsByAge().mid(0, myLimit))
        result += valuesOf(id);
    return result;
}

void SettingsGroup::clear()
{
    mySettings->remove(myName);
}

QVariantMap SettingsGroup::valuesOf(const QString &id) const
{
    return mySettings->values(path(id));
}

QStringList SettingsGroup::idsByAge() const
{
    QList<std::pair<qint64, QString>> ages;
    for (const QString &id : mySettings->groups(myName))
        ages.emplaceBack(used(id), id);
    std::sort(ages.begin(), ages.end(), std::greater<>());
    QStringList result;
    for (const auto &age : std::as_const(ages))
        result += age.second;
    return result;
}

// A time in the future is damaged, or comes from a clock that was wrong; such a thing is dropped first.
qint64 SettingsGroup::used(const QString &id) const
{
    const qint64 result = mySettings->value(path(id) + u'/' + USED).toLongLong();
    return result > QDateTime::currentMSecsSinceEpoch() + DAY.count() ? 0 : result;
}

void SettingsGroup::dropTheOldest()
{
    for (const QString &id : idsByAge().mid(myLimit))
        mySettings->remove(path(id));
}
