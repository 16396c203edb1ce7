#ifndef PROPERTIES_H
#define PROPERTIES_H

#include <QDebug>
#include <QString>
#include <QTypeInfo>

#include <cstdio>
#include <cstdlib>
#include <utility>

/// Ends the program when a property does not hold, which keeps the input that shows it.
#define CHECK(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            propertyFailed(__FILE__, __LINE__, QStringLiteral(#condition));                                            \
    } while (false)

/// The same, and shows both values.
#define CHECK_EQUAL(actual, expected)                                                                                  \
    checkEqual(__FILE__, __LINE__, QStringLiteral(#actual " == " #expected), (actual), (expected))

[[noreturn]] inline void propertyFailed(const char *file, int line, const QString &text)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, text.toUtf8().constData());
    std::abort();
}

template<typename T>
QString shown(const T &value)
{
    QString text = QStringLiteral("(no text)");
    if constexpr (QTypeTraits::has_ostream_operator_v<QDebug, T>) {
        text.clear();
        QDebug(&text) << value;
    }
    return text;
}

template<typename A, typename B>
void checkEqual(const char *file, int line, const QString &text, const A &actual, const B &expected)
{
    if (!(actual == expected))
        propertyFailed(file, line,
                       text + QStringLiteral("\n  actual:   ") + shown(actual) + QStringLiteral("\n  expected: ")
                               + shown(expected));
}

/// A copy is equal to its source, assigned or constructed, and so is a value that takes the place of another.
template<typename T>
void checkCopies(const T &value, const T &other)
{
    const T copy(value);
    CHECK(copy == value);
    CHECK(!(copy != value));
    T assigned(other);
    assigned = value;
    CHECK(assigned == value);
    T source(value);
    T moved(std::move(source));
    CHECK(moved == value);
    source = other;
    CHECK(source == other);
    moved = std::move(source);
    CHECK(moved == other);
}

/// At most one of two values comes before the other, and neither if they are equal.
template<typename T>
void checkOrder(const T &a, const T &b)
{
    CHECK(!(a < a));
    CHECK(!(a < b && b < a));
    CHECK(!(a == b) || (!(a < b) && !(b < a)));
    CHECK((a == b) == (b == a));
}

/// Exactly one of <, == and > holds, and <= and >= agree with them.
template<typename T>
void checkTotalOrder(const T &a, const T &b)
{
    checkOrder(a, b);
    CHECK_EQUAL(int(a < b) + int(a == b) + int(a > b), 1);
    CHECK_EQUAL(a > b, b < a);
    CHECK_EQUAL(a <= b, !(b < a));
    CHECK_EQUAL(a >= b, !(a < b));
    CHECK_EQUAL(a != b, !(a == b));
}

#endif
