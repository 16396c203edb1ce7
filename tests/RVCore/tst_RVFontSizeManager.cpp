#include <RVCore/RVFontSizeManager.h>

#include <QTest>

class tst_RVFontSizeManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialSizes();
    void sortsSizes();
    void takesNoSizes();
};

void tst_RVFontSizeManager::initialSizes()
{
    QCOMPARE(RVFontSizeManager::instance()->defaultFontSizes(),
             (QList<int> { 6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72 }));
}

void tst_RVFontSizeManager::sortsSizes()
{
    const QList<int> given = { 20, 8, 8, 72 };
    RVFontSizeManager::instance()->setDefaultFontSizes(given);
    QCOMPARE(RVFontSizeManager::instance()->defaultFontSizes(), (QList<int> { 8, 8, 20, 72 }));
    QCOMPARE(given, (QList<int> { 20, 8, 8, 72 }));
}

void tst_RVFontSizeManager::takesNoSizes()
{
    RVFontSizeManager::instance()->setDefaultFontSizes({});
    QVERIFY(RVFontSizeManager::instance()->defaultFontSizes().isEmpty());
}

QTEST_APPLESS_MAIN(tst_RVFontSizeManager)
#include "tst_RVFontSizeManager.moc"
