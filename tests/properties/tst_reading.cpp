// Each quick way to read, from numbers to options, gives what its rule gives for every text.
#include "RandomText.h"

#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVProductType.h>
#include <RVXML/RVXMLParser.h>

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr int TEXTS = 100000;

/// Texts made of the pieces that mean something, of odd letters and of white space.
class Texts
{
public:
    Texts(const QStringList &pieces, int longest) : myPieces(pieces), myLongest(longest) { }

    QString next()
    {
        QString result = myRandom.joined(myPieces, myLongest);
        if (myRandom.oneIn(4))
            result.insert(myRandom.below(int(result.size()) + 1), myRandom.from(RandomText::oddLetters()));
        if (myRandom.oneIn(4))
            result.insert(myRandom.below(int(result.size()) + 1), myRandom.from(RandomText::whiteSpace()));
        return result;
    }

private:
    RandomText myRandom;
    QStringList myPieces;
    int myLongest;
};

QDomElement element(const QString &name, const QString &text)
{
    static QDomDocument document;
    QDomElement result = document.createElement(u"form"_s);
    result.setAttribute(name, text);
    return result;
}

quint64 bitsOf(double number)
{
    quint64 bits;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

QByteArray readable(const QString &text)
{
    return text.toUtf8().toPercentEncoding();
}

/// A number as catalogues have it, and a little off.
QString nextNumber(RandomText *random, Texts *texts)
{
    if (random->oneIn(3))
        return texts->next();
    QString result = random->oneIn(3) ? u"-"_s : u""_s;
    for (int i = random->below(18); i > 0; --i)
        result += QChar(u'0' + random->below(10));
    if (random->oneIn(2))
        result.insert(random->below(int(result.size()) + 1), u'.');
    return result;
}

bool ruleOfBooleans(const QString &text, bool defaultValue)
{
    const auto isAny = [&text](std::initializer_list<const char *> candidates) {
        return std::any_of(candidates.begin(), candidates.end(), [&text](const char *candidate) {
            return text.compare(QLatin1StringView(candidate), Qt::CaseInsensitive) == 0;
        });
    };
    return isAny({ "true", "1", "yes", "on" }) || (!isAny({ "false", "0", "no", "off" }) && defaultValue);
}

RVArticleVariants ruleOfOption(const QString &piece)
{
    static const QRegularExpression separator(u"[:|+]"_s);
    const QStringList pieces = piece.split(separator);
    RVArticleVariants result;
    if (pieces.size() == 2)
        result.insert(pieces.at(0), pieces.at(1));
    return result;
}

RVArticleVariants ruleOfProjectFile(const QString &text)
{
    RVArticleVariants result;
    for (const QString &piece : text.split(u',', Qt::SkipEmptyParts))
        result.insert(ruleOfOption(piece));
    return result;
}

QString ruleOfProductType(const QString &code)
{
    const QRegularExpressionMatch match = RVProductType::myBookRegExp.match(code);
    return code.startsWith(u'D') && match.hasMatch() ? match.captured(1) : code;
}

}

class tst_reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers();
    void booleans();
    void colors();
    void options();
    void productTypes();
};

void tst_reading::numbers()
{
    RandomText random;
    Texts texts({ u"-"_s, u"+"_s, u"."_s, u","_s, u"e"_s, u"E3"_s,  u"0"_s,   u"1"_s,   u"9"_s, u"214748364"_s,
                  u"7"_s, u"8"_s, u"٣"_s, u"/"_s, u":"_s, u"inf"_s, u"nan"_s, u"0x1"_s, u" "_s, u"\n"_s },
                6);
    for (int i = 0; i < TEXTS; ++i) {
        const QString text = nextNumber(&random, &texts);
        bool isNumber = false;
        const int integer = text.toInt(&isNumber);
        isNumber = isNumber && !text.contains(QChar::Null); // Qt's number ends there
        QVERIFY2(RVXMLParser::intAttribute(element(u"a"_s, text), u"a"_s, -77) == (isNumber ? integer : -77),
                 readable(text).constData());
        const double number = text.toDouble(&isNumber);
        const double expected = isNumber && qIsFinite(number) ? number : -77.5;
        QVERIFY2(bitsOf(RVXMLParser::doubleAttribute(element(u"a"_s, text), u"a"_s, -77.5)) == bitsOf(expected),
                 readable(text).constData());
    }
}

void tst_reading::booleans()
{
    RandomText random;
    Texts texts({ u"true"_s, u"1"_s, u"yes"_s, u"on"_s, u"false"_s, u"0"_s, u"no"_s, u"off"_s, u"yeſ"_s, u"falſe"_s },
                2);
    for (int i = 0; i < TEXTS; ++i) {
        const QString text = random.inAnyCase(texts.next());
        for (const bool defaultValue : { false, true })
            QVERIFY2(RVXMLParser::boolAttribute(element(u"a"_s, text), u"a"_s, defaultValue)
                             == ruleOfBooleans(text, defaultValue),
                     readable(text).constData());
    }
}

void tst_reading::colors()
{
    RandomText random;
    Texts texts({ u"#"_s, u"#1a"_s, u"8c"_s, u"FF"_s, u"00"_s, u"aB"_s, u"g"_s, u"red"_s, u"ＦＦ"_s, u"transparent"_s },
                5);
    for (int i = 0; i < TEXTS; ++i) {
        QString text = random.oneIn(3) ? texts.next() : u"#%1"_s.arg(random.below(0x1000000), 6, 16, QChar(u'0'));
        // A neighbour of the digits, say.
        if (text.size() == 7 && random.oneIn(2))
            text[random.below(7)] = QChar(random.below(0x80));
        const QColor expected = text.isEmpty() ? QColor() : QColor::fromString(text);
        const QColor color = RVConfiguredArticleVariant(element(u"color"_s, text)).color();
        QVERIFY2(color == expected && color.spec() == expected.spec(), readable(text).constData());
    }
}

void tst_reading::options()
{
    Texts texts({ u":"_s, u":"_s, u"|"_s, u"+"_s, u","_s, u","_s, u";"_s, u"a"_s, u"b"_s, u"alcolor"_s, u"red"_s,
                  u"~"_s, u"ä"_s, u"\U0001F4D6"_s, u" "_s },
                16);
    for (int i = 0; i < TEXTS; ++i) {
        const QString text = texts.next();
        QVERIFY2(RVArticleVariants(text) == ruleOfOption(text), readable(text).constData());
        const RVArticleVariants options = RVArticleVariants::createFromKTX(text);
        const RVArticleVariants expected = ruleOfProjectFile(text);
        QVERIFY2(options == expected, readable(text).constData());
        // The order of a hash depends on how it came to be.
        QVERIFY2(options.toKTX() == expected.toKTX(), readable(text).constData());
        for (const QString &key : options.keys())
            QCOMPARE(options.value(key).isNull(), expected.value(key).isNull());
    }
    QVERIFY(RVArticleVariants::createFromKTX(QString()) == RVArticleVariants());
}

void tst_reading::productTypes()
{
    Texts texts({ u"D"_s, u"DU"_s, u"DUN"_s, u"DUN"_s, u"DUNS"_s, u"S"_s, u"dun"_s, u"9"_s, u"12"_s, u"_30"_s, u"٣"_s,
                  u"\n"_s, u"X"_s },
                6);
    for (int i = 0; i < TEXTS; ++i) {
        const QString code = texts.next();
        const QString expected = ruleOfProductType(code);
        const RVProductType type(code);
        QVERIFY2(type.toString() == expected, readable(code).constData());
        QCOMPARE(type.calcHashValue(), expected.isEmpty() ? 0 : qHash(expected, 0));
    }
}

QTEST_MAIN(tst_reading)
#include "tst_reading.moc"
