#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVDisplayNames.h>

#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// A translator with one word of one context.
class Translator : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (QByteArrayView(context) == "Covers" && QByteArrayView(sourceText) == "Leder")
            return u"leather"_s;
        return QString();
    }
    bool isEmpty() const override { return false; }
};

RVDisplayNames<RVCoverType> names()
{
    return { "Covers", { { SOFTCOVER, u"soft"_s }, { LEATHER, u"leather"_s }, { HARDCOVER, u"soft"_s } }, SET, u"?"_s };
}

}

class tst_RVDisplayNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksUpExactValues();
    void looksUpNames();
    void translatesNamesFirst();
};

void tst_RVDisplayNames::looksUpExactValues()
{
    QCOMPARE(names().name(LEATHER), u"leather"_s);
    QCOMPARE(names().name(LEATHER | SOFTCOVER), u"?"_s);
    QCOMPARE(names().name(RVCoverType()), u"?"_s);
}

void tst_RVDisplayNames::looksUpNames()
{
    QCOMPARE(names().value(u"leather"_s).value(), LEATHER);
    QCOMPARE(names().value(u"soft"_s).value(), HARDCOVER);
    QCOMPARE(names().value(u"?"_s).value(), SET);
    QCOMPARE(names().value(u"Leder"_s).value(), SET);
    QCOMPARE(names().value(QString()).value(), SET);
    QCOMPARE(names().value(u"leather\0"_s).value(), SET);
    QCOMPARE(names().value(u"leather\0zzz"_s).value(), SET);
}

void tst_RVDisplayNames::translatesNamesFirst()
{
    Translator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(names().value(u"Leder"_s).value(), LEATHER);
    QCOMPARE(names().value(u"leather"_s).value(), LEATHER);
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(names().value(u"Leder"_s).value(), SET);
}

QTEST_GUILESS_MAIN(tst_RVDisplayNames)
#include "tst_RVDisplayNames.moc"
