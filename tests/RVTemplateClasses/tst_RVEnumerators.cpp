#include "RVProductBase/AttributeTest.h"

#include <RVCore/RVDirectoryName.h>
#include <RVCore/RVDistanceUnit.h>
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVDlpType.h>
#include <RVProductBase/RVFotoPaperType.h>
#include <RVProductBase/RVMaterialType.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageAlignment.h>
#include <RVProductBase/RVPageBinding.h>
#include <RVProductBase/RVPageType.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVProductArrangement.h>
#include <RVProductBase/RVSpaceMagnitude.h>
#include <RVTemplateClasses/RVEnumerators.h>

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

/// Enumerators of an application, one of them in the sign bit.
enum TestGlobalEnum : qint8 { TEST_GLOBAL_FIRST = 1, TEST_GLOBAL_THIRD = 4, TEST_GLOBAL_LAST = -128 };

namespace Application {

enum class Scoped : quint16 { None = 0, Second = 2 };

}

class tst_RVEnumerators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerators_data();
    void enumerators();
    void ofAnApplication();
    void classesPrintAsEver();
};

void tst_RVEnumerators::enumerators_data()
{
    QTest::addColumn<QString>("printed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one bit") << debugText(HARDCOVER) << u"HARDCOVER "_s;
    QTest::newRow("highest bit") << debugText(WIRE_O) << u"WIRE_O "_s;
    QTest::newRow("combination") << debugText(HARDCOVER | GIFT) << u"HARDCOVER|GIFT "_s;
    QTest::newRow("unknown bit") << debugText(RVCoverTypeEnum(0x100000000)) << u"0x100000000 "_s;
    QTest::newRow("known and unknown") << debugText(RVCoverTypeEnum(0x300000002)) << u"SOFTCOVER|0x300000000 "_s;
    QTest::newRow("zero without a name") << debugText(RVCoverTypeEnum(0)) << u"0 "_s;
    QTest::newRow("zero with a name") << debugText(ORIENTATION_NONE) << u"ORIENTATION_NONE "_s;
    QTest::newRow("unknown binding") << debugText(UNKNOWN) << u"UNKNOWN "_s;
    QTest::newRow("keyword that is a number") << debugText(GLOSSY) << u"GLOSSY "_s;
    QTest::newRow("named combination") << debugText(ARTICLE_CLASS_CALENDAR)
                                       << u"ARTICLE_CLASS_NORMAL_CALENDAR|ARTICLE_CLASS_AGENDA "_s;
    QTest::newRow("negative") << debugText(RVOrientationEnum(std::numeric_limits<qint32>::min())) << u"0x80000000 "_s;
    QTest::newRow("dlp") << debugText(DLP_TYPE_CLIPART) << u"DLP_TYPE_CLIPART "_s;
    QTest::newRow("material") << debugText(MATERIAL_TYPE_NOTEBOOK) << u"MATERIAL_TYPE_NOTEBOOK "_s;
    QTest::newRow("alignment") << debugText(PAGE_ALIGNMENT_TOP) << u"PAGE_ALIGNMENT_TOP "_s;
    QTest::newRow("page type") << debugText(PAGE_TYPE_SPINE) << u"PAGE_TYPE_SPINE "_s;
    QTest::newRow("paper") << debugText(PREMIUM_MATT) << u"PREMIUM_MATT "_s;
    QTest::newRow("arrangement") << debugText(PRODUCT_ARRANGEMENT_CARD) << u"PRODUCT_ARRANGEMENT_CARD "_s;
    QTest::newRow("size") << debugText(SPACE_MAGNITUDE_50CM2) << u"SPACE_MAGNITUDE_50CM2 "_s;
    QTest::newRow("spot colour") << debugText(SPOT_COLOR_GOLD) << u"SPOT_COLOR_GOLD "_s;
    QTest::newRow("unit") << debugText(DISTANCE_UNIT_INCH) << u"DISTANCE_UNIT_INCH "_s;
    QTest::newRow("directory") << debugText(DIRECTORY_DESIGNS) << u"DIRECTORY_DESIGNS "_s;
    QTest::newRow("list") << debugText(QList<RVPaperTypeEnum> { INDIGO, PREMIUM }) << u"QList(INDIGO, PREMIUM) "_s;
}

void tst_RVEnumerators::enumerators()
{
    QFETCH(QString, printed);
    QTEST(printed, "expected");
}

void tst_RVEnumerators::ofAnApplication()
{
    using Global = RVEnumerators<TestGlobalEnum>;
    QCOMPARE(Global::text(TEST_GLOBAL_THIRD), "TEST_GLOBAL_THIRD"_ba);
    QCOMPARE(Global::text(TestGlobalEnum(-1)), "TEST_GLOBAL_FIRST|TEST_GLOBAL_THIRD|TEST_GLOBAL_LAST|0x7a"_ba);
    using Scoped = RVEnumerators<Application::Scoped>;
    QCOMPARE(Scoped::text(Application::Scoped::None), "None"_ba);
    QCOMPARE(Scoped::text(Application::Scoped(3)), "Second|0x1"_ba);
}

void tst_RVEnumerators::classesPrintAsEver()
{
    QCOMPARE(debugText(RVCoverType(HARDCOVER | GIFT)), u"RVCoverType(HARDCOVER, GIFT) "_s);
    QCOMPARE(debugText(RVFotoPaperType(GLOSSY)), u"RVFotoPaperType(1) "_s);
    QCOMPARE(debugText(RVArticleClass(ARTICLE_CLASS_BOOK)), u"Articleclass: \"book\" "_s);
    QCOMPARE(debugText(RVSpaceMagnitude(SPACE_MAGNITUDE_600CM2)), u"\"RVSpaceMagnitude: 600cm2\" "_s);
    QCOMPARE(debugText(RVSpotColor(SPOT_COLOR_GOLD | SPOT_COLOR_SILVER)), u"RVSpotColor(gold, silver) "_s);
}

QTEST_APPLESS_MAIN(tst_RVEnumerators)
#include "tst_RVEnumerators.moc"
