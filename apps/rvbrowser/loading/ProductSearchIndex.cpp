#include "ProductSearchIndex.h"

#include <algorithm>
#include <cstring>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

/// Without letter case and without the marks over letters.
QString withoutMarks(const QString &text)
{
    QString result = text.toCaseFolded().normalized(QString::NormalizationForm_D);
    result.replace(u'ß', "ss"_L1);
    result.removeIf([](QChar letter) { return letter.category() == QChar::Mark_NonSpacing; });
    return result;
}

/// With "e" behind the letter in place of an umlaut, as it is written where a keyboard has none.
QString withoutUmlauts(const QString &text)
{
    QString result = text.toCaseFolded();
    return result.replace(u'ä', "ae"_L1).replace(u'ö', "oe"_L1).replace(u'ü', "ue"_L1);
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() < 0x80; });
}

/// Both spellings, where they differ.
QByteArray searchable(const QString &text)
{
    if (isAscii(text))
        return text.toLower().toLatin1();
    const QString plain = withoutMarks(text);
    const QString spelled = withoutMarks(withoutUmlauts(text));
    return plain == spelled ? plain.toUtf8() : (plain + u'\n' + spelled).toUtf8();
}

/// An empty view may have no address, which memmem does not take.
bool contains(QByteArrayView text, const QByteArray &word)
{
    if (text.isEmpty())
        return word.isEmpty();
    return ::memmem(text.data(), std::size_t(text.size()), word.constData(), std::size_t(word.size())) != nullptr;
}

}

void ProductSearchIndex::append(const QString &own, const QString &common)
{
    myOwn += searchable(own);
    myOwnEnds.push_back(quint32(myOwn.size()));
    const QByteArray shared = searchable(common);
    const auto found = myCommonNumbers.constFind(shared);
    const quint32 number = found == myCommonNumbers.constEnd() ? quint32(myCommon.size()) : *found;
    if (found == myCommonNumbers.constEnd()) {
        myCommonNumbers.insert(shared, number);
        myCommon += shared;
    }
    myCommonOf.push_back(number);
}

QList<int> ProductSearchIndex::find(const QString &search) const
{
    QList<int> result(size());
    std::iota(result.begin(), result.end(), 0);
    for (const QString &word : search.simplified().split(u' ', Qt::SkipEmptyParts)) {
        const QByteArray wanted = withoutMarks(word).toUtf8();
        const std::vector<bool> isCommon = commonWith(wanted);
        result.removeIf([&](int product) {
            return !isCommon[myCommonOf[std::size_t(product)]] && !contains(own(product), wanted);
        });
    }
    return result;
}

qsizetype ProductSearchIndex::byteCount() const
{
    const qsizetype common = std::accumulate(
            myCommon.begin(), myCommon.end(), qsizetype(0),
            [](qsizetype sum, const QByteArray &text) { return sum + text.capacity() + qsizetype(sizeof(text)); });
    return common + myOwn.capacity() + qsizetype((myOwnEnds.capacity() + myCommonOf.capacity()) * sizeof(quint32));
}

QByteArrayView ProductSearchIndex::own(qsizetype product) const
{
    const qsizetype begin = product == 0 ? 0 : myOwnEnds[std::size_t(product) - 1];
    return QByteArrayView(myOwn).sliced(begin, myOwnEnds[std::size_t(product)] - begin);
}

std::vector<bool> ProductSearchIndex::commonWith(const QByteArray &word) const
{
    std::vector<bool> result;
    for (const QByteArray &text : myCommon)
        result.push_back(contains(text, word));
    return result;
}
