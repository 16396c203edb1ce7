#include <Settings.h>
#include <SettingsGroup.h>

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_SettingsGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myFolder = std::make_unique<QTemporaryDir>();
        mySettings = std::make_unique<Settings>(myFolder->filePath(u"settings.ini"_s));
    }
    void keepsValues();
    void tellsThingsApart();
    void keepsTheNewest();
    void knowsWhenThingsWereUsed();
    void survivesADamagedAge();
    void clears();

private:
    /// The values of "n", the newest first.
    static QStringList numbers(const SettingsGroup &group)
    {
        QStringList result;
        for (const QVariantMap &thing : group.newest())
            result += thing.value(u"n"_s).toString();
        return result;
    }

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<Settings> mySettings;
};

void tst_SettingsGroup::keepsValues()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 3);
    QVERIFY(group.values({ u"a"_s }).isEmpty());
    group.setValues({ u"a"_s }, { { u"n"_s, 1 }, { u"m"_s, u"x"_s } });
    group.setValues({ u"a"_s }, { { u"n"_s, 2 } });
    QCOMPARE(group.values({ u"a"_s }).value(u"n"_s).toInt(), 2);
    QCOMPARE(group.values({ u"a"_s }).value(u"m"_s).toString(), u"x"_s);
    QCOMPARE(group.newest().size(), 1);
    QCOMPARE(mySettings->groups(u"g"_s), QStringList { u"ca978112ca1bbdcafac2"_s }); // as in all files that exist
    QVERIFY(SettingsGroup(mySettings.get(), u"other"_s, 3).newest().isEmpty());
}

void tst_SettingsGroup::tellsThingsApart()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 9);
    const QList<QStringList> things { { u"a"_s, u"b"_s }, { u"ab"_s }, { u"a"_s }, { u"b"_s, u"a"_s }, { QString() } };
    for (qsizetype i = 0; i < things.size(); ++i)
        group.setValues(things.at(i), { { u"n"_s, i } });
    for (qsizetype i = 0; i < things.size(); ++i)
        QCOMPARE(group.values(things.at(i)).value(u"n"_s).toInt(), int(i));
}

void tst_SettingsGroup::keepsTheNewest()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 3);
    for (int i = 0; i < 5; ++i)
        group.setValues({ QString::number(i) }, { { u"n"_s, i } });
    QCOMPARE(numbers(group), (QStringList { u"4"_s, u"3"_s, u"2"_s }));
    group.setValues({ u"2"_s }, {}); // used again
    group.setValues({ u"5"_s }, { { u"n"_s, 5 } });
    QCOMPARE(numbers(group), (QStringList { u"5"_s, u"2"_s, u"4"_s }));
    QCOMPARE(mySettings->groups(u"g"_s).size(), 3);
    QVERIFY(group.values({ u"3"_s }).isEmpty());
}

// In milliseconds; of two things that come at once the second is newer by one.
void tst_SettingsGroup::knowsWhenThingsWereUsed()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 9);
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    group.setValues({ u"1"_s }, { { u"n"_s, 1 } });
    const QString used = u"g/"_s + mySettings->groups(u"g"_s).constFirst() + u"/used"_s;
    const qint64 first = mySettings->value(used).toLongLong();
    QVERIFY(first >= begin && first <= QDateTime::currentMSecsSinceEpoch());

    // A clock that is put back by an hour has made a time in the future; more than a day is damage.
    constexpr qint64 hour = 3600000;
    mySettings->setValue(used, begin + hour);
    group.setValues({ u"2"_s }, { { u"n"_s, 2 } });
    QCOMPARE(numbers(group), (QStringList { u"2"_s, u"1"_s }));
    mySettings->setValue(used, begin + hour + 2);
    QCOMPARE(numbers(group), (QStringList { u"1"_s, u"2"_s })); // the second was one later than the first
    mySettings->setValue(used, begin + 25 * hour);
    QCOMPARE(numbers(group), (QStringList { u"2"_s, u"1"_s }));
    mySettings->setValue(used, begin + 23 * hour);
    QCOMPARE(numbers(group), (QStringList { u"1"_s, u"2"_s }));
}

// Of two things one is dated into the future and one not at all.
void tst_SettingsGroup::survivesADamagedAge()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 2);
    mySettings->setValue(u"g/future/used"_s, std::numeric_limits<qint64>::max());
    mySettings->setValue(u"g/future/n"_s, u"future"_s);
    mySettings->setValue(u"g/never/used"_s, u"nonsense"_s);
    group.setValues({ u"1"_s }, { { u"n"_s, 1 } });
    QCOMPARE(numbers(group).size(), 2);
    QVERIFY(numbers(group).contains(u"1"_s));
    QVERIFY(!numbers(group).contains(u"future"_s)); // neither is younger, so the first name goes first
    group.setValues({ u"2"_s }, { { u"n"_s, 2 } });
    QVERIFY(numbers(group).contains(u"2"_s));
}

void tst_SettingsGroup::clears()
{
    SettingsGroup group(mySettings.get(), u"g"_s, 2);
    mySettings->setValue(u"h"_s, 1);
    group.setValues({ u"a"_s }, { { u"n"_s, 1 } });
    group.clear();
    QVERIFY(group.newest().isEmpty());
    QCOMPARE(mySettings->value(u"h"_s).toInt(), 1);
}

QTEST_GUILESS_MAIN(tst_SettingsGroup)
#include "tst_SettingsGroup.moc"
