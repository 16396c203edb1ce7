//! [includes]
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageAlignment.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVSpaceMagnitude.h>

#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_attributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywords();
    void aliases();
    void unknownKeywords();
    void knownKeywords();
    void bits();
    void exactOrByBits();
    void names();
};

void tst_guide_attributes::keywords()
{
    //! [keywords]
    const RVOrientation orientation(u"portrait, square"_s);

    QCOMPARE(orientation.value(), ORIENTATION_PORTRAIT | ORIENTATION_SQUARE);
    QCOMPARE(orientation.encodeCSV(), u"portrait, square"_s);
    //! [keywords]
}

void tst_guide_attributes::aliases()
{
    //! [aliases]
    const RVSpaceMagnitude size(u" a4 "_s);

    QCOMPARE(size.value(), SPACE_MAGNITUDE_600CM2);
    QCOMPARE(size.encode(), u"600cm2"_s);
    QCOMPARE(size.allPossibleKeywords(), QStringList({ u"600cm2"_s, u"a4"_s }));
    //! [aliases]
}

void tst_guide_attributes::unknownKeywords()
{
    //! [unknown]
    QCOMPARE(RVOrientation(u"round"_s).value(), ORIENTATION_NONE);
    QCOMPARE(RVPaperType(u"parchment"_s).value(), INDIGO);
    QCOMPARE(RVSpaceMagnitude(u"huge"_s).value(), SPACE_MAGNITUDE_ANY);
    QCOMPARE(RVPageAlignment(u"upstairs"_s).value(), PAGE_ALIGNMENT_LEFT);
    //! [unknown]
    //! [empty]
    QCOMPARE(RVSpaceMagnitude(QString()).value(), SPACE_MAGNITUDE_ANY);
    QCOMPARE(RVSpaceMagnitude().value(), RVSpaceMagnitudeEnum(0));
    //! [empty]
}

void tst_guide_attributes::knownKeywords()
{
    //! [known]
    const QStringList known = RVPaperType().allKnownKeywords();

    QVERIFY(known.contains(u"glossy"_s));
    QVERIFY(!known.contains(u"parchment"_s));
    //! [known]
}

void tst_guide_attributes::bits()
{
    //! [bits]
    RVOrientation offered(ORIENTATION_PORTRAIT | ORIENTATION_SQUARE);

    QVERIFY(offered.matches(ORIENTATION_SQUARE));
    QVERIFY(!offered.containsAll(ORIENTATION_SQUARE | ORIENTATION_LANDSCAPE));

    offered.expandTo(ORIENTATION_LANDSCAPE);
    offered.exclude(ORIENTATION_PORTRAIT);

    QCOMPARE(offered.countBits(), 2);
    QCOMPARE(offered.splitToBitsSorted(), QList<RVOrientationEnum>({ ORIENTATION_LANDSCAPE, ORIENTATION_SQUARE }));
    //! [bits]
    //! [null]
    const RVOrientation nothing;

    QVERIFY(nothing.isNull());
    QVERIFY(!nothing.isValid());
    QVERIFY(!nothing.matches(ORIENTATION_ALL));
    //! [null]
}

void tst_guide_attributes::exactOrByBits()
{
    //! [exact]
    const RVOrientation both(ORIENTATION_PORTRAIT | ORIENTATION_SQUARE);

    QVERIFY(both.isPortrait());
    QCOMPARE(both.humanReadable(), QString());
    QCOMPARE(both.encode(), u"portrait"_s);
    //! [exact]
    //! [zero]
    QCOMPARE(RVOrientation().encode(), u"none"_s);
    QCOMPARE(RVOrientation().encodeCSV(), u"portrait"_s);
    QCOMPARE(RVPaperType().encode(), u"unbekanntes Papier"_s);
    QCOMPARE(RVPaperType().encodeCSV(), u"indigo"_s);
    //! [zero]
}

void tst_guide_attributes::names()
{
    //! [names]
    const RVPaperType paper(u"fotopaper"_s);

    QCOMPARE(paper.humanReadableName(), u"Fotopapier Matt"_s);
    QCOMPARE(RVPaperType::createFromHumanReadable(u"Fotopapier Matt"_s).value(), FOTOPAPER);
    //! [names]
    //! [reverse]
    const QString shown = RVPaperType(FOTOPAPER_GLOSSY).humanReadableName();

    QCOMPARE(shown, u"Fotopapier Glänzend"_s);
    QCOMPARE(RVPaperType::createFromHumanReadable(shown).value(), INDIGO);
    QCOMPARE(RVSpaceMagnitude::createFromHumanReadable(u"XL"_s).value(), SPACE_MAGNITUDE_900CM2);
    QCOMPARE(RVSpaceMagnitude(u"XL"_s).value(), SPACE_MAGNITUDE_900CM2 | SPACE_MAGNITUDE_2000CM2);
    //! [reverse]
    //! [plural]
    QCOMPARE(RVArticleClass(u"picture_box"_s).morePagesText(3), u"3 Foto"_s);
    //! [plural]
}

QTEST_MAIN(tst_guide_attributes)
#include "tst_guide_attributes.moc"
