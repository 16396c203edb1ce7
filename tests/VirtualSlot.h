#ifndef VIRTUALSLOT_H
#define VIRTUALSLOT_H

#include <cstddef>
#include <cstring>

/// The place of a virtual operation in its class's table, as a pointer to the member function holds it: 1 + 8 * slot.
/// The two forms of a virtual destructor take a slot each.
template<typename Member>
int virtualSlot(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof(words) == sizeof(member));
    std::memcpy(words, &member, sizeof(member));
    return int(words[0] - 1) / int(sizeof(void *));
}

#endif
