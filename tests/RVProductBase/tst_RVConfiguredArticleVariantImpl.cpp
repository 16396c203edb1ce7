#include <RVProductBase/RVConfiguredArticleVariantImpl.h>

#include <QSharedDataPointer>
#include <QTest>

#include <functional>
#include <future>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

class tst_RVConfiguredArticleVariantImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUseFromManyThreads();
    void startsEmpty();
    void createsInFieldOrder();
    void flags();
    void fieldOrder();
    void valid_data();
    void valid();
    void fallsBack_data();
    void fallsBack();
    void detaches();
};

void tst_RVConfiguredArticleVariantImpl::firstUseFromManyThreads()
{
    std::vector<std::future<QString>> readers;
    for (int i = 0; i < 16; ++i)
        readers.push_back(std::async(std::launch::async, [] {
            RVConfiguredArticleVariantImpl impl;
            impl.key = u"spiral"_s;
            return impl.previewNameFallbacked(u"silver"_s);
        }));
    for (std::future<QString> &reader : readers)
        QCOMPARE(reader.get(), u"calendar_binding_spiral_metal"_s);
}

void tst_RVConfiguredArticleVariantImpl::startsEmpty()
{
    const RVConfiguredArticleVariantImpl impl;
    QVERIFY(impl.key.isNull());
    QVERIFY(impl.keyName.isNull());
    QVERIFY(impl.value.isNull());
    QVERIFY(impl.visibleName.isNull());
    QVERIFY(impl.editorName.isNull());
    QVERIFY(impl.name.isNull());
    QVERIFY(impl.preview.isNull());
    QVERIFY(!impl.color.isValid());
    QCOMPARE(impl.preselected, true);
    QCOMPARE(impl.notAccountable, false);
    QCOMPARE(impl.isValid(), false);
    QCOMPARE(impl.ref.loadRelaxed(), 0);
}

void tst_RVConfiguredArticleVariantImpl::createsInFieldOrder()
{
    const RVConfiguredArticleVariantImpl impl(u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s,
                                              QColor(0x11, 0x22, 0x33), true, false);
    QCOMPARE(impl.key, u"1"_s);
    QCOMPARE(impl.keyName, u"2"_s);
    QCOMPARE(impl.value, u"3"_s);
    QCOMPARE(impl.visibleName, u"4"_s);
    QCOMPARE(impl.editorName, u"5"_s);
    QCOMPARE(impl.name, u"6"_s);
    QCOMPARE(impl.preview, u"7"_s);
    QCOMPARE(impl.color, QColor(0x11, 0x22, 0x33));
    QCOMPARE(impl.preselected, true);
    QCOMPARE(impl.notAccountable, false);
}

void tst_RVConfiguredArticleVariantImpl::flags()
{
    const RVConfiguredArticleVariantImpl impl({}, {}, {}, {}, {}, {}, {}, {}, false, true);
    QCOMPARE(impl.preselected, false);
    QCOMPARE(impl.notAccountable, true);
}

void tst_RVConfiguredArticleVariantImpl::fieldOrder()
{
    QVERIFY((std::is_base_of_v<QSharedData, RVConfiguredArticleVariantImpl>));
    const RVConfiguredArticleVariantImpl impl;
    const std::vector<const void *> fields = { &impl.ref,         &impl.key,         &impl.keyName,       &impl.value,
                                               &impl.visibleName, &impl.editorName,  &impl.name,          &impl.preview,
                                               &impl.color,       &impl.preselected, &impl.notAccountable };
    for (size_t i = 1; i < fields.size(); ++i)
        QVERIFY2(std::less<>()(fields[i - 1], fields[i]), qPrintable(QString::number(i)));
}

void tst_RVConfiguredArticleVariantImpl::valid_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("expected");
    QTest::newRow("both") << u"alcolor"_s << u"red"_s << true;
    QTest::newRow("blanks") << u" "_s << u" "_s << true;
    QTest::newRow("empty key") << u""_s << u"red"_s << false;
    QTest::newRow("empty value") << u"alcolor"_s << u""_s << false;
    QTest::newRow("null key") << QString() << u"red"_s << false;
    QTest::newRow("null value") << u"alcolor"_s << QString() << false;
    QTest::newRow("both empty") << u""_s << u""_s << false;
}

void tst_RVConfiguredArticleVariantImpl::valid()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    const RVConfiguredArticleVariantImpl impl(key, u"n"_s, value, u"n"_s, u"n"_s, u"n"_s, u"n"_s, Qt::red, true, true);
    QTEST(impl.isValid(), "expected");
}

void tst_RVConfiguredArticleVariantImpl::fallsBack_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("silver spiral") << u"spiral"_s << u"silver"_s << u"calendar_binding_spiral_metal"_s;
    QTest::newRow("black spiral") << u"spiral"_s << u"black"_s << u"calendar_binding_spiral_black"_s;
    QTest::newRow("white pocket") << u"pocketcolor"_s << u"white"_s << u"POCKET-photobook-photopaper-preview_white"_s;
    QTest::newRow("black pocket") << u"pocketcolor"_s << u"black"_s << u"POCKET-photobook-photopaper-preview_black"_s;
    QTest::newRow("beige pocket") << u"pocketcolor"_s << u"beige"_s << u"POCKET-photobook-preview_beige"_s;
    QTest::newRow("no white spiral") << u"spiral"_s << u"white"_s << u"stored"_s;
    QTest::newRow("no beige spiral") << u"spiral"_s << u"beige"_s << u"stored"_s;
    QTest::newRow("no silver pocket") << u"pocketcolor"_s << u"silver"_s << u"stored"_s;
    QTest::newRow("no red pocket") << u"pocketcolor"_s << u"red"_s << u"stored"_s;
    QTest::newRow("other key") << u"alcolor"_s << u"black"_s << u"stored"_s;
    QTest::newRow("no key") << u""_s << u"black"_s << u"stored"_s;
    QTest::newRow("no value") << u"spiral"_s << u""_s << u"stored"_s;
    QTest::newRow("letter case of the key") << u"Spiral"_s << u"black"_s << u"stored"_s;
    QTest::newRow("letter case of the value") << u"spiral"_s << u"Black"_s << u"stored"_s;
    QTest::newRow("composite") << u"spiral;pocketcolor"_s << u"black;black"_s << u"stored"_s;
}

void tst_RVConfiguredArticleVariantImpl::fallsBack()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    RVConfiguredArticleVariantImpl impl;
    impl.key = key;
    impl.value = u"the argument counts"_s;
    impl.preview = u"stored"_s;
    QTEST(impl.previewNameFallbacked(value), "expected");
}

void tst_RVConfiguredArticleVariantImpl::detaches()
{
    const QSharedDataPointer<RVConfiguredArticleVariantImpl> source(new RVConfiguredArticleVariantImpl(
            u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, QColor(0x11, 0x22, 0x33), false, true));
    QSharedDataPointer<RVConfiguredArticleVariantImpl> copy = source;
    QCOMPARE(source->ref.loadRelaxed(), 2);
    copy->key = u"changed"_s;
    QCOMPARE(source->ref.loadRelaxed(), 1);
    QCOMPARE(source->key, u"1"_s);
    QCOMPARE(copy->key, u"changed"_s);
    QCOMPARE(copy->keyName, u"2"_s);
    QCOMPARE(copy->value, u"3"_s);
    QCOMPARE(copy->visibleName, u"4"_s);
    QCOMPARE(copy->editorName, u"5"_s);
    QCOMPARE(copy->name, u"6"_s);
    QCOMPARE(copy->preview, u"7"_s);
    QCOMPARE(copy->color, QColor(0x11, 0x22, 0x33));
    QCOMPARE(copy->preselected, false);
    QCOMPARE(copy->notAccountable, true);
}

QTEST_GUILESS_MAIN(tst_RVConfiguredArticleVariantImpl)
#include "tst_RVConfiguredArticleVariantImpl.moc"
