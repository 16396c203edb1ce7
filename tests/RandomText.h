#ifndef RANDOMTEXT_H
#define RANDOMTEXT_H

#include <QRandomGenerator>
#include <QString>
#include <QStringList>

/// Texts in which the quick ways of reading could go wrong, the same ones in every run.
class RandomText
{
public:
    explicit RandomText(quint32 seed = 1) : myGenerator(seed) { }

    int below(int bound) { return int(myGenerator.bounded(bound)); }
    bool oneIn(int n) { return below(n) == 0; }
    quint64 number() { return myGenerator.generate64(); }

    template<typename List>
    auto from(const List &list)
    {
        return list.at(below(int(list.size())));
    }

    /// Up to @p longest pieces one behind the other.
    QString joined(const QStringList &pieces, int longest)
    {
        QString result = QStringLiteral("");
        for (int i = below(longest + 1); i > 0; --i)
            result += from(pieces);
        return result;
    }

    /// The same text with each letter in any case.
    QString inAnyCase(QString text)
    {
        for (QChar &letter : text)
            letter = oneIn(2) ? letter.toUpper() : letter.toLower();
        return text;
    }

    /// Every white space of Unicode, one by one.
    static const QStringList &whiteSpace();
    /// Letters whose lower case is longer or shorter, or is ASCII though they are not, and some that are none.
    static const QStringList &oddLetters();

private:
    QRandomGenerator myGenerator;
};

inline const QStringList &RandomText::whiteSpace()
{
    static const QStringList theLetters = [] {
        QStringList result;
        for (char32_t letter = 0; letter <= QChar::LastValidCodePoint; ++letter) {
            if (QChar::isSpace(letter))
                result += QStringView(QChar::fromUcs4(letter)).toString();
        }
        return result;
    }();
    return theLetters;
}

inline const QStringList &RandomText::oddLetters()
{
    static const QStringList theLetters = [] {
        QStringList result;
        for (char32_t letter = 0x80; letter <= QChar::LastValidCodePoint; ++letter) {
            if (QChar::isSurrogate(letter))
                continue;
            const QString text = QStringView(QChar::fromUcs4(letter)).toString();
            const QString lower = text.toLower();
            if (lower.size() != text.size() || lower.at(0).unicode() < 0x80)
                result += text;
        }
        for (const char16_t letter :
             { u'\0', u'\x7f', u'\x80', u'ſ', u'ß', u'ẞ', u'Σ', u'Ω', u'\xd801', u'\xdc00', u'\xffff' })
            result += QChar(letter);
        return result + QStringList { QStringLiteral(u"\U00010400"), QStringLiteral(u"\U0001F4D6") };
    }();
    return theLetters;
}

#endif
