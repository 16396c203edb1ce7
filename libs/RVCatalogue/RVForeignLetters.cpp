#include "RVForeignLetters_p.h"

#include "RVFindingText_p.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

struct LookAlike
{
    char16_t letter;
    char plain;
};

// clang-format off
constexpr LookAlike LOOK_ALIKES[] = {
    // Greek
    { 0x0391, 'A' }, { 0x0392, 'B' }, { 0x0395, 'E' }, { 0x0396, 'Z' }, { 0x0397, 'H' }, { 0x0399, 'I' },
    { 0x039A, 'K' }, { 0x039C, 'M' }, { 0x039D, 'N' }, { 0x039F, 'O' }, { 0x03A1, 'P' }, { 0x03A4, 'T' },
    { 0x03A5, 'Y' }, { 0x03A7, 'X' }, { 0x03B1, 'a' }, { 0x03B9, 'i' }, { 0x03BA, 'k' }, { 0x03BD, 'v' },
    { 0x03BF, 'o' }, { 0x03C1, 'p' }, { 0x03C5, 'u' },
    // Cyrillic
    { 0x0405, 'S' }, { 0x0406, 'I' }, { 0x0408, 'J' }, { 0x0410, 'A' }, { 0x0412, 'B' }, { 0x0415, 'E' },
    { 0x041A, 'K' }, { 0x041C, 'M' }, { 0x041D, 'H' }, { 0x041E, 'O' }, { 0x0420, 'P' }, { 0x0421, 'C' },
    { 0x0422, 'T' }, { 0x0423, 'Y' }, { 0x0425, 'X' }, { 0x0430, 'a' }, { 0x0435, 'e' }, { 0x043A, 'k' },
    { 0x043C, 'm' }, { 0x043E, 'o' }, { 0x0440, 'p' }, { 0x0441, 'c' }, { 0x0442, 't' }, { 0x0443, 'y' },
    { 0x0445, 'x' }, { 0x0455, 's' }, { 0x0456, 'i' }, { 0x0458, 'j' }, { 0x04BB, 'h' }, { 0x0501, 'd' },
    { 0x051B, 'q' }, { 0x051D, 'w' },
    // the minus sign
    { 0x2212, '-' },
};
// clang-format on

/// The last letter of ASCII; the code point behind it is invisible.
constexpr char32_t LAST_PLAIN = 0x7E;

/// Some marks have no width although their category does not say so.
bool isInvisible(char32_t letter)
{
    switch (QChar::category(letter)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
        return !QChar::isSpace(letter);
    default:
        return letter == 0x034F || (letter >= 0xFE00 && letter <= 0xFE0F);
    }
}

/// The ASCII text that a letter beyond ASCII looks like; null if it looks like none.
QString plainOf(char32_t letter)
{
    const auto *found = std::find_if(std::begin(LOOK_ALIKES), std::end(LOOK_ALIKES),
                                     [letter](const LookAlike &row) { return row.letter == letter; });
    if (found != std::end(LOOK_ALIKES))
        return QString(QLatin1Char(found->plain));
    if (QChar::digitValue(letter) >= 0)
        return QString::number(QChar::digitValue(letter));
    if (QChar::category(letter) == QChar::Punctuation_Dash)
        return u"-"_s;
    const QString compatible =
            QStringView(QChar::fromUcs4(letter)).toString().normalized(QString::NormalizationForm_KC);
    const bool isAscii = std::all_of(compatible.begin(), compatible.end(),
                                     [](QChar each) { return each.unicode() <= LAST_PLAIN; });
    return isAscii ? compatible : QString();
}

bool isOfOtherScript(char32_t letter)
{
    return QChar::isLetter(letter) && QChar::script(letter) != QChar::Script_Latin;
}

}

RVForeignLetters::RVForeignLetters(QStringView text)
{
    for (const char32_t letter : text.toUcs4()) {
        if (letter <= LAST_PLAIN)
            myPlain += QChar(char16_t(letter));
        else
            append(letter);
    }
}

void RVForeignLetters::append(char32_t letter)
{
    const bool isUnseen = isInvisible(letter);
    const QString plain = QChar::isSpace(letter) ? u" "_s : plainOf(letter);
    if (!isUnseen)
        myPlain += plain.isNull() ? QStringView(QChar::fromUcs4(letter)) : QStringView(plain);
    if (!isEmpty() || (!isUnseen && plain.isNull() && !isOfOtherScript(letter)))
        return;
    myFirst = letter;
    myFirstPlain = plain;
}

QString RVForeignLetters::text() const
{
    if (isEmpty())
        return QString();
    const QString name = "U+"_L1 + QString::number(uint(myFirst), 16).toUpper().rightJustified(4, u'0');
    if (QChar::isSpace(myFirst))
        return RVFindingText::tr("it has %1, which is no plain blank").arg(name);
    if (isInvisible(myFirst))
        return RVFindingText::tr("it has %1, which is invisible").arg(name);
    if (!myFirstPlain.isNull())
        return RVFindingText::tr("it has %1, which looks like %2").arg(name, rvQuoted(myFirstPlain));
    return RVFindingText::tr("it has %1, which is no Latin letter").arg(name);
}
