//! [includes]
#include <RVCatalogue/RVCatalogueTranslation.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVMetaTypes.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>
#include <RVProductBase/RVPageSizeKey.h>
#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVTranslation.h>
#include <RVTemplateClasses/RVAttributeText.h>
#include <RVTemplateClasses/RVEnumerators.h>

#include <QDataStream>
#include <QDebug>
#include <QHash>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QVariant>

using namespace Qt::StringLiterals;
//! [includes]

//! [attribute]
enum PaperWeightEnum : qint32 { PAPER_WEIGHT_LIGHT = 1, PAPER_WEIGHT_HEAVY = 2 };

class PaperWeight : public RVEnumWrapper<PaperWeightEnum>
{
public:
    PaperWeight(PaperWeightEnum value = PaperWeightEnum(0)) : RVEnumWrapper(value) { }
    void fillTable(RVEnumToStringTable<PaperWeightEnum> *table) const override
    {
        table->insert(u"light"_s, PAPER_WEIGHT_LIGHT);
        table->insert(u"heavy"_s, PAPER_WEIGHT_HEAVY);
    }
};

QDebug operator<<(QDebug debug, PaperWeightEnum value)
{
    return debug << RVEnumerators<PaperWeightEnum>::text(value).constData();
}
//! [attribute]

class tst_guide_qt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void containers();
    void texts();
    void settings();
    void streams();
    void ownAttribute();
    void debug();
    void model();
    void translation();
};

void tst_guide_qt::containers()
{
    //! [containers]
    QSet<RVCoverType> covers = { HARDCOVER, SOFTCOVER };
    QVERIFY(covers.contains(RVCoverType(u"hard"_s)));

    QHash<RVArticleVariants, int> ordered;
    ordered[RVArticleVariants::createFromKTX(u"alcolor:red,coverphoto:yes"_s)] += 1;
    ordered[RVArticleVariants::createFromKTX(u"coverphoto:yes,alcolor:red"_s)] += 1;
    QCOMPARE(ordered.size(), 1);

    QHash<RVPageSizeKey, QSize> sizes;
    sizes[RVPageSizeKey(PAGE_TYPE_NORMALPAGE, 26)] = QSize(2100, 2970);
    sizes[RVPageSizeKey(PAGE_TYPE_SPINE, 26)] = QSize(90, 2970);
    QCOMPARE(sizes.size(), 2);
    //! [containers]
}

void tst_guide_qt::texts()
{
    //! [texts]
    RVMetaTypes::registerAll();

    QVariant variant = QVariant::fromValue(RVCoverType(HARDCOVER | GIFT));
    QCOMPARE(variant.toString(), u"HARDCOVER, GIFT"_s);
    QCOMPARE(QVariant(u"softcover"_s).value<RVCoverType>(), RVCoverType(SOFTCOVER));
    QVERIFY(!QVariant(u"leinen"_s).value<RVCoverType>().isValid());
    //! [texts]

    //! [RVAttributeText]
    const QString text = RVAttributeText<RVCoverType>::write(RVCoverType(HARDCOVER | GIFT));
    QCOMPARE(text, u"HARDCOVER, GIFT"_s);
    QVERIFY(RVAttributeText<RVCoverType>::read(text) == RVCoverType(HARDCOVER | GIFT));
    QVERIFY(!RVAttributeText<RVCoverType>::read(u"leinen"_s));
    //! [RVAttributeText]
}

void tst_guide_qt::settings()
{
    //! [settings]
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.ini"_s);
    {
        QSettings settings(path, QSettings::IniFormat);
        const RVCoverType cover(HARDCOVER);
        settings.setValue(u"cover"_s, QVariant::fromValue(cover).toString()); // cover=HARDCOVER
        settings.setValue(u"price"_s, QVariant::fromValue(RVPriceClass(u"KUR2"_s))); // price=@Variant(…)
    }
    const QSettings settings(path, QSettings::IniFormat);
    QCOMPARE(settings.value(u"cover"_s).value<RVCoverType>(), RVCoverType(HARDCOVER));
    QCOMPARE(settings.value(u"price"_s).value<RVPriceClass>(), RVPriceClass(u"KUR2"_s));
    //! [settings]
}

void tst_guide_qt::streams()
{
    //! [streams]
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QList<RVCoverType>({ HARDCOVER, GIFT });

    QList<RVCoverType> covers;
    QDataStream in(bytes);
    in >> covers;
    QCOMPARE(covers, QList<RVCoverType>({ HARDCOVER, GIFT }));
    //! [streams]
}

void tst_guide_qt::ownAttribute()
{
    //! [own]
    RVMetaTypes::registerAttribute<PaperWeight>();
    QCOMPARE(QVariant(u"light, heavy"_s).value<PaperWeight>(),
             PaperWeight(PaperWeightEnum(PAPER_WEIGHT_LIGHT | PAPER_WEIGHT_HEAVY)));
    //! [own]
}

void tst_guide_qt::debug()
{
    //! [debug]
    QString text;
    QDebug(&text).nospace() << HARDCOVER << "; " << (HARDCOVER | GIFT) << "; " << RVCoverTypeEnum(0x100000000);
    QCOMPARE(text, u"HARDCOVER; HARDCOVER|GIFT; 0x100000000"_s);
    //! [debug]
    text.clear();
    QDebug(&text).nospace() << PAPER_WEIGHT_HEAVY;
    QCOMPARE(text, u"PAPER_WEIGHT_HEAVY"_s);
}

void tst_guide_qt::model()
{
    //! [model]
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(RVPageCountOrganization(RVIntRange(26, 154), 4));

    const QModelIndex second = model.index(1);
    QCOMPARE(second.data().toString(), u"30 Seiten"_s);
    QCOMPARE(second.data(RVPageCountOrganizationListModel::PagesRole).toInt(), 30);
    QCOMPARE(model.roleNames().value(RVPageCountOrganizationListModel::PagesRole), "pages");
    //! [model]
}

void tst_guide_qt::translation()
{
    //! [translation]
    const QLocale locale(QLocale::French);
    if (!RVTranslation::install(locale))
        qInfo() << "no texts for" << locale << "in" << RVTranslation::folders();
    if (!RVCatalogueTranslation::install(locale))
        RVCatalogueTranslation::remove(); // English
    //! [translation]
    QVERIFY(!RVTranslation::install(locale));
}

QTEST_GUILESS_MAIN(tst_guide_qt)
#include "tst_guide_qt.moc"
