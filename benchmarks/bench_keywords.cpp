// Reading and writing keywords, compared with the means of Qt and the standard library.
#include "Comparison.h"

#include <RVArticleClass.h>
#include <RVPaperType.h>

#include <QHash>
#include <QList>
#include <QMetaEnum>
#include <QObject>
#include <QRandomGenerator>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

using namespace Qt::StringLiterals;

/// The usual way of a Qt developer to name flags: the bits of RVPaperTypeEnum, named by moc.
class PaperFlags
{
    Q_GADGET

public:
    enum Paper {
        indigo = INDIGO,
        indigo_glossy = INDIGO_GLOSSY,
        fotopaper = FOTOPAPER,
        fotopaper_glossy = FOTOPAPER_GLOSSY,
        fotopaper_premium_matt = FOTOPAPER_PREMIUM_MATT,
        premium = PREMIUM,
        premium_matt = PREMIUM_MATT,
        digital_printing_recycled = DIGITAL_PRINTING_RECYCLED,
    };
    Q_DECLARE_FLAGS(Papers, Paper)
    Q_FLAG(Papers)
};

namespace {

template<typename Attribute>
using EnumOf = decltype(Attribute().value());

QRandomGenerator &random()
{
    static QRandomGenerator generator(1);
    return generator;
}

/// A keyword as people and old catalogues write it.
QString inAnyCase(const QString &keyword)
{
    switch (random().bounded(4)) {
    case 0:
        return keyword.toUpper();
    case 1:
        return keyword.left(1).toUpper() + keyword.mid(1);
    default:
        return keyword;
    }
}

/// Three keywords or aliases each, with blanks around some.
QStringList keywordLists(QStringList keywords)
{
    keywords.sort(); // the same corpus for every hash seed
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i) {
        QStringList pieces;
        for (int piece = 0; piece < 3; ++piece) {
            const QString keyword = inAnyCase(keywords.at(random().bounded(int(keywords.size()))));
            pieces += QString(random().bounded(3), u' ') + keyword + QString(random().bounded(2), u' ');
        }
        result += pieces.join(u',');
    }
    return result;
}

template<typename Attribute>
QList<EnumOf<Attribute>> singleBits()
{
    QList<EnumOf<Attribute>> result;
    for (const auto value : Attribute().allKnownEnumValues()) {
        if (Attribute(value).hasExactlyOneBit())
            result += value;
    }
    std::sort(result.begin(), result.end());
    return result;
}

template<typename Attribute>
QList<Attribute> someOf(const QList<EnumOf<Attribute>> &values, int bits)
{
    QList<Attribute> result;
    while (result.size() < CORPUS_SIZE) {
        Attribute attribute;
        while (attribute.countBits() < bits)
            attribute |= values.at(random().bounded(int(values.size())));
        result += attribute;
    }
    return result;
}

// The tables of the peers are made of the library's own keywords, once.

template<typename Attribute>
QHash<QString, EnumOf<Attribute>> keywordHash()
{
    const auto *table = Attribute().enumToStringTable();
    QHash<QString, EnumOf<Attribute>> result;
    for (const QString &keyword : table->allKnownKeywords())
        result.insert(keyword, table->decode(keyword, table->defaultValue));
    return result;
}

template<typename Attribute>
EnumOf<Attribute> decodeWithQt(const QString &text)
{
    using E = EnumOf<Attribute>;
    static const QHash<QString, E> values = keywordHash<Attribute>();
    static const E defaultValue = Attribute().enumToStringTable()->defaultValue;
    E result = E(0);
    for (const QString &piece : text.split(u','))
        result |= values.value(piece.trimmed().toLower(), defaultValue);
    return result;
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view trimmed(std::string_view piece)
{
    while (!piece.empty() && isBlank(piece.front()))
        piece.remove_prefix(1);
    while (!piece.empty() && isBlank(piece.back()))
        piece.remove_suffix(1);
    return piece;
}

/// The keywords of the corpus are ASCII, so their letter case is that of single bytes.
void lower(std::string &text)
{
    for (char &c : text) {
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
    }
}

template<typename Attribute>
EnumOf<Attribute> decodeWithStringView(std::string_view text)
{
    using E = EnumOf<Attribute>;
    static const std::unordered_map<std::string, E> keywords = [] {
        std::unordered_map<std::string, E> result;
        const QHash<QString, E> hash = keywordHash<Attribute>();
        for (auto it = hash.begin(); it != hash.end(); ++it)
            result.emplace(it.key().toStdString(), it.value());
        return result;
    }();
    static const std::unordered_map<std::string_view, E> values(keywords.begin(), keywords.end());
    static const E defaultValue = Attribute().enumToStringTable()->defaultValue;
    static std::string buffer;
    buffer.assign(text);
    lower(buffer);
    const std::string_view lowered = buffer;
    E result = E(0);
    for (std::size_t begin = 0; begin <= lowered.size();) {
        const std::size_t end = std::min(lowered.find(',', begin), lowered.size());
        const auto found = values.find(trimmed(lowered.substr(begin, end - begin)));
        result |= found == values.end() ? defaultValue : found->second;
        begin = end + 1;
    }
    return result;
}

QString encodeWithQt(RVPaperTypeEnum value)
{
    static const QHash<RVPaperTypeEnum, QString> keywords = {
        { UNKNOWN_PAPER, u"unbekanntes Papier"_s },
        { INDIGO, u"indigo"_s },
        { INDIGO_GLOSSY, u"indigo-glossy"_s },
        { FOTOPAPER, u"fotopaper"_s },
        { FOTOPAPER_GLOSSY, u"fotopaper-glossy"_s },
        { FOTOPAPER_PREMIUM_MATT, u"fotopaper-premium-matt"_s },
        { PREMIUM, u"premium"_s },
        { PREMIUM_MATT, u"premium-matt"_s },
        { DIGITAL_PRINTING_RECYCLED, u"digital_printing_recycled"_s },
    };
    return keywords.value(value);
}

QString encodeWithMetaEnum(const RVPaperType &paper)
{
    static const QMetaEnum metaEnum = QMetaEnum::fromType<PaperFlags::Papers>();
    return QString::fromLatin1(metaEnum.valueToKeys(paper.value()));
}

/// moc's names have no hyphens and stand in another order, with bars between them.
bool sameKeywords(const QString &ours, QString theirs)
{
    QStringList keywords = ours.split(", "_L1);
    QStringList names = theirs.replace(u'_', u'-').split(u'|');
    for (QString &keyword : keywords)
        keyword.replace(u'_', u'-');
    keywords.sort();
    names.sort();
    return keywords == names;
}

/// One look at each letter, because none can be left out.
int sumOfLetters(const QString &text)
{
    return std::accumulate(text.begin(), text.end(), 0, [](int sum, QChar letter) { return sum + letter.unicode(); });
}

/// Ready texts, each of one value or several. Their letters are static, so a copy of a text counts no owners.
QStringList encoded(const QList<RVPaperType> &papers)
{
    static QStringList texts;
    QStringList result;
    for (const RVPaperType &paper : papers) {
        texts += paper.encodeCSV();
        result += QString::fromRawData(texts.constLast().constData(), texts.constLast().size());
    }
    return result;
}

template<typename Attribute>
void addDecoding(const char *name)
{
    const QStringList texts = keywordLists(Attribute().allKnownKeywords());
    std::vector<std::string> utf8Texts;
    for (const QString &text : texts)
        utf8Texts.push_back(text.toStdString());
    const Attribute attribute;
    Comparison(name, texts, [attribute](const QString &text) { return attribute.decodeCSV(text); })
            .against("qt", [](const QString &text) { return decodeWithQt<Attribute>(text); })
            .againstWithInputs("string_view", utf8Texts,
                               [](std::string_view text) { return decodeWithStringView<Attribute>(text); })
            .above(texts, sumOfLetters);
}

void addEncoding()
{
    const QList<RVPaperType> papers = someOf<RVPaperType>(singleBits<RVPaperType>(), 1);
    QList<RVPaperTypeEnum> values;
    for (const RVPaperType &paper : papers)
        values += paper.value();
    Comparison("encode", papers, [](const RVPaperType &paper) {
        return paper.encode();
    }).againstWithInputs("qt", values, [](RVPaperTypeEnum value) {
          return encodeWithQt(value);
      }).above(encoded(papers), [](const QString &text) { return text; });
}

void addListEncoding()
{
    const QList<RVPaperType> papers = someOf<RVPaperType>(singleBits<RVPaperType>(), 3);
    Comparison("encodeCSV", papers, [](const RVPaperType &paper) { return paper.encodeCSV(); })
            .against("qt", encodeWithMetaEnum, sameKeywords)
            .above(encoded(papers), [](const QString &text) { return QString(text.constData(), text.size()); });
}

}

void addBenchmarks()
{
    addDecoding<RVPaperType>("decodeCSV");
    addDecoding<RVArticleClass>("decodeCSV_article_class");
    addEncoding();
    addListEncoding();
}

#include "bench_keywords.moc"
