//! [includes]
#include <RVProductBase/RVDisplayNames.h>
#include <RVTemplateClasses/RVEnumWrapper.h>

#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

//! [attribute]
enum LaminationEnum : qint32 { LAMINATION_NONE = 0, LAMINATION_MATT = 1, LAMINATION_GLOSSY = 2, LAMINATION_SOFT = 4 };
RV_DECLARE_ENUM_OPERATORS(LaminationEnum)

class Lamination : public RVEnumWrapper<LaminationEnum>
{
public:
    Lamination(LaminationEnum value = LAMINATION_NONE) noexcept : RVEnumWrapper(value) { }
    Lamination(const QString &text) : Lamination() { setValue(text); }

    void fillTable(RVEnumToStringTable<LaminationEnum> *table) const override
    {
        table->insert(u"matt"_s, LAMINATION_MATT);
        table->insert(u"glossy"_s, LAMINATION_GLOSSY);
        table->insert(u"soft"_s, LAMINATION_SOFT);
        table->insert(u"soft_touch"_s, LAMINATION_SOFT);
        table->defaultKeyword = u"none"_s;
    }
};
//! [attribute]

//! [names]
QString laminationName(const Lamination &lamination)
{
    static const RVDisplayNames<Lamination> theNames(
            "Lamination", { { LAMINATION_MATT, u"Mattfolie"_s }, { LAMINATION_GLOSSY, u"Glanzfolie"_s } }, Lamination(),
            u"Ohne Folie"_s);
    return theNames.name(lamination);
}
//! [names]

class tst_guide_new_attribute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void use();
    void names();
};

void tst_guide_new_attribute::use()
{
    //! [use]
    const Lamination lamination(u"Matt, soft_touch"_s);

    QCOMPARE(lamination.value(), LAMINATION_MATT | LAMINATION_SOFT);
    QCOMPARE(lamination.encodeCSV(), u"matt, soft"_s);
    QVERIFY(lamination.matches(LAMINATION_SOFT));
    QCOMPARE(Lamination().encodeCSV(), u"none"_s);
    //! [use]
}

void tst_guide_new_attribute::names()
{
    //! [shown]
    QCOMPARE(laminationName(Lamination(u"glossy"_s)), u"Glanzfolie"_s);
    QCOMPARE(laminationName(LAMINATION_SOFT), u"Ohne Folie"_s);
    //! [shown]
}

QTEST_MAIN(tst_guide_new_attribute)
#include "tst_guide_new_attribute.moc"
