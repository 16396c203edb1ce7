#ifndef RVENUMERATORS_H
#define RVENUMERATORS_H

#include <QByteArray>
#include <QDebug>

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

/**
 * The names of the enumerators of a flag enumeration as they stand in the code, such as HARDCOVER.
 *
 * The compiler knows them: g++ and clang do, with any other compiler no enumerator has a name. A combination has none
 * either. Include this header only where names are printed, in a source: it is compiled once for every bit.
 *
 * @par Example
 * @snippet tst_guide_qt.cpp attribute
 * @ingroup templates
 */
template<typename E>
class RVEnumerators
{
    static_assert(std::is_enum_v<E>, "only enumerations have enumerators");

    using Bits = std::make_unsigned_t<std::underlying_type_t<E>>;
    static constexpr std::size_t BIT_COUNT = sizeof(E) * 8;

public:
    /// The enumerators of all set bits, lowest first, and what remains as a hexadecimal number: "HARDCOVER|GIFT",
    /// "SOFTCOVER|0x100000000". For 0 its enumerator, else "0".
    static QByteArray text(E value)
    {
        if (Bits(value) == 0)
            return *ZERO.data() ? QByteArray(ZERO.data()) : QByteArrayLiteral("0");
        QByteArray result;
        Bits rest = Bits(value);
        for (std::size_t i = 0; i < BIT_COUNT; ++i) {
            const Bits bit = Bits(Bits(1) << i);
            if (!(rest & bit) || !*names()[i])
                continue;
            result.append(names()[i]).append('|');
            rest &= Bits(~bit);
        }
        if (rest)
            return result + "0x" + QByteArray::number(qulonglong(rest), 16);
        result.chop(1);
        return result;
    }

private:
    /// The text that the compiler writes of a value as a template argument: its enumerator, or a cast.
    template<E VALUE>
    static constexpr std::string_view spelling() noexcept
    {
#ifdef __GNUC__
        std::string_view name = __PRETTY_FUNCTION__;
        name.remove_prefix(name.rfind("VALUE = ") + 8);
        name = name.substr(0, name.find_first_of(";]"));
        const bool isCast = name.front() == '(';
        return isCast ? std::string_view() : name.substr(name.rfind(':') + 1);
#else
        return {};
#endif
    }

    /// A copy, so that the program keeps the name and not all that the compiler writes around it.
    template<E VALUE>
    static constexpr auto copied() noexcept
    {
        std::array<char, spelling<VALUE>().size() + 1> name {};
        for (std::size_t i = 0; i < spelling<VALUE>().size(); ++i)
            name[i] = spelling<VALUE>()[i];
        return name;
    }

    template<E VALUE>
    static constexpr auto NAME = copied<VALUE>();
    static constexpr auto ZERO = copied<E(0)>();

    template<std::size_t... BIT>
    static const char *const *namesOf(std::index_sequence<BIT...>)
    {
        static constexpr const char *NAMES[] = { NAME<E(Bits(Bits(1) << BIT))>.data()... };
        return NAMES;
    }
    static const char *const *names() { return namesOf(std::make_index_sequence<BIT_COUNT>()); }
};

#endif
