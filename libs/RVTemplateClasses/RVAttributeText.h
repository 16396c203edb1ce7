#ifndef RVATTRIBUTETEXT_H
#define RVATTRIBUTETEXT_H

#include "RVEnumWrapper.h"

#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

/**
 * The text of an attribute for settings and user interfaces, from which exactly the same value can be read: its
 * keywords separated by ", ", lowest bit first, such as "HARDCOVER, CANVAS".
 *
 * It differs from RVEnumWrapper::encodeCSV() where that writes a default keyword: 0 is written as its own keyword, and
 * as an empty text where it has none; bits without a keyword follow as one hexadecimal number, "0x100000000". Any
 * thread.
 *
 * @par Example
 * @snippet tst_guide_qt.cpp RVAttributeText
 * @ingroup templates
 */
template<typename Attribute>
class RVAttributeText
{
    using E = std::decay_t<decltype(std::declval<const Attribute &>().value())>;
    using Bits = std::make_unsigned_t<std::underlying_type_t<E>>;
    using Table = RVEnumToStringTable<E>;

public:
    /// The text; never fails.
    static QString write(const Attribute &attribute)
    {
        const Table &table = *attribute.enumToStringTable();
        Bits rest = Bits(attribute.value());
        if (rest == 0)
            return stands(table, E(0)) ? table.encode(E(0)) : QString();
        QStringList pieces;
        for (Bits bits = rest; bits != 0; bits = Bits(bits & (bits - 1))) {
            const Bits bit = Bits(bits & (~bits + 1));
            if (!stands(table, E(bit)))
                continue;
            pieces += table.encode(E(bit));
            rest = Bits(rest & ~bit);
        }
        if (rest != 0)
            pieces += QStringLiteral("0x") + QString::number(qulonglong(rest), 16);
        return pieces.join(QLatin1StringView(", "));
    }

    /// The value of such a text, or of any keyword list: letter case and white space around a keyword do not count, and
    /// aliases and keywords of combinations are read as well. Nothing where a piece is neither a keyword nor a number
    /// that fits, empty pieces included. An empty text is 0, whatever the default value of the keywords is.
    static std::optional<Attribute> read(const QString &text)
    {
        Bits bits = 0;
        if (text.trimmed().isEmpty())
            return Attribute(E(0));
        const Table &table = *Attribute(E(0)).enumToStringTable();
        const QStringList pieces = text.split(u',');
        for (const QString &piece : pieces) {
            const std::optional<Bits> read = readPiece(table, piece);
            if (!read)
                return std::nullopt;
            bits = Bits(bits | *read);
        }
        return Attribute(E(bits));
    }

private:
    /// True when the keyword of exactly this value is read as it, in a list as well.
    static bool stands(const Table &table, E value)
    {
        const QString keyword = table.encode(value);
        return !keyword.contains(u',') && knows(table, keyword) && table.decode(keyword, E(0)) == value;
    }
    static bool knows(const Table &table, const QString &keyword)
    {
        return table.decode(keyword, E(0)) == table.decode(keyword, E(1));
    }
    static std::optional<Bits> readPiece(const Table &table, const QString &piece)
    {
        if (knows(table, piece))
            return Bits(table.decode(piece, E(0)));
        const QString number = piece.trimmed();
        constexpr QLatin1StringView prefix("0x");
        if (!number.startsWith(prefix))
            return std::nullopt;
        // QString::toULongLong() would also take blanks, a sign and a second prefix.
        const QByteArray digits = QStringView(number).mid(prefix.size()).toLatin1();
        Bits bits = 0;
        const auto [end, error] = std::from_chars(digits.begin(), digits.end(), bits, 16);
        return error == std::errc() && end == digits.end() ? std::optional<Bits>(bits) : std::nullopt;
    }
};

#endif
