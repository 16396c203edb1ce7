#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVFotoPaperType.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVSpaceMagnitude.h>
#include <RVTemplateClasses/RVAttributeText.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The bits that are read, -2 where nothing is.
template<typename Attribute>
qint64 readBits(const QString &text)
{
    const std::optional<Attribute> attribute = RVAttributeText<Attribute>::read(text);
    return attribute ? qint64(attribute->value()) : -2;
}

template<typename Attribute>
void addRow(const char *name, Attribute attribute, const QString &text)
{
    QTest::newRow(name) << RVAttributeText<Attribute>::write(attribute) << text << readBits<Attribute>(text)
                        << qint64(attribute.value());
}

}

class tst_RVAttributeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatItWrote_data();
    void readsWhatItWrote();
    void reads_data();
    void reads();
};

void tst_RVAttributeText::readsWhatItWrote_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("read");
    QTest::addColumn<qint64>("bits");
    addRow("one bit", RVCoverType(HARDCOVER), u"HARDCOVER"_s);
    addRow("two bits", RVCoverType(GIFT | HARDCOVER), u"HARDCOVER, GIFT"_s);
    addRow("unknown bit", RVCoverType(RVCoverTypeEnum(0x100000000)), u"0x100000000"_s);
    addRow("all bits", RVFotoPaperType(RVFotoPaperTypeEnum(-1)), u"1, 2, 0xfffffffc"_s);
    addRow("zero without a keyword", RVCoverType(), u""_s);
    addRow("zero whose default is a bit", RVOrientation(), u"none"_s);
    addRow("zero whose keyword has a blank", RVPaperType(), u"unbekanntes Papier"_s);
    addRow("zero whose keyword is a number", RVFotoPaperType(), u"0"_s);
    addRow("zero whose default is all", RVSpaceMagnitude(), u""_s);
    addRow("named combination", RVSpaceMagnitude(SPACE_MAGNITUDE_XL), u"900cm2, 2000cm2"_s);
}

void tst_RVAttributeText::readsWhatItWrote()
{
    QFETCH(QString, written);
    QFETCH(qint64, read);
    QTEST(written, "text");
    QTEST(read, "bits");
}

void tst_RVAttributeText::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("bits");
    QTest::newRow("letter case and blanks") << u"  hardCover ,gift "_s << qint64(HARDCOVER | GIFT);
    QTest::newRow("alias") << u"hard"_s << qint64(HARDCOVER);
    QTest::newRow("blank text") << u" "_s << qint64(0);
    QTest::newRow("number") << u"0x3"_s << qint64(HARDCOVER | SOFTCOVER);
    QTest::newRow("unknown keyword") << u"Leinen"_s << qint64(-2);
    QTest::newRow("unknown beside a known one") << u"HARDCOVER, Leinen"_s << qint64(-2);
    QTest::newRow("empty piece") << u"HARDCOVER,"_s << qint64(-2);
    QTest::newRow("decimal number") << u"3"_s << qint64(-2);
    QTest::newRow("blank in a number") << u"0x 3"_s << qint64(-2);
    QTest::newRow("sign in a number") << u"0x+3"_s << qint64(-2);
    QTest::newRow("prefix twice") << u"0x0x3"_s << qint64(-2);
    QTest::newRow("capital digits") << u"0X3"_s << qint64(-2);
    QTest::newRow("number without digits") << u"0x"_s << qint64(-2);
    QTest::newRow("too large a number") << u"0x10000000000000000"_s << qint64(-2);
    QTest::newRow("null character") << QString(u"0x3\0"_s + QChar(0)) << qint64(-2);
}

void tst_RVAttributeText::reads()
{
    QFETCH(QString, text);
    QFETCH(qint64, bits);
    QCOMPARE(readBits<RVCoverType>(text), bits);
}

QTEST_APPLESS_MAIN(tst_RVAttributeText)
#include "tst_RVAttributeText.moc"
