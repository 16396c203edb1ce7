#ifndef RVFIRSTPLACES_P_H
#define RVFIRSTPLACES_P_H

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

/**
 * The place where each number was seen first, in a form that needs little memory for a million numbers. KEY is an
 * unsigned integer; a place is a number of RVPackedPlaces, which has 56 bits.
 *
 * Numbers are spread over buckets, each of which is sorted and grows by an eighth when it is full. So hardly any memory
 * is unused, and only one bucket is copied at a time.
 */
template<typename KEY>
class RVFirstPlaces
{
public:
    RVFirstPlaces() : myBuckets(BUCKETS) { }

    /// The place where @p key was seen first; 0 if it is new, and then @p place becomes its place.
    quint64 insert(KEY key, quint64 place)
    {
        std::vector<Entry> &bucket = myBuckets[bucketOf(key)];
        const Entry entry { bytesOf<sizeof(KEY)>(key), bytesOf<PLACE_BYTES>(place) };
        const auto found = std::lower_bound(bucket.begin(), bucket.end(), entry,
                                            [](const Entry &a, const Entry &b) { return a.key < b.key; });
        if (found != bucket.end() && found->key == entry.key)
            return numberOf(found->place);
        const auto index = found - bucket.begin();
        if (bucket.size() == bucket.capacity())
            bucket.reserve(bucket.size() + bucket.size() / 8 + 1);
        bucket.insert(bucket.begin() + index, entry);
        return 0;
    }

    /// The bytes in use and in reserve.
    std::size_t bytes() const
    {
        std::size_t result = myBuckets.size() * sizeof(myBuckets.front());
        for (const std::vector<Entry> &bucket : myBuckets)
            result += bucket.capacity() * sizeof(Entry);
        return result;
    }

private:
    static constexpr int BUCKET_BITS = 12;
    static constexpr std::size_t BUCKETS = std::size_t(1) << BUCKET_BITS;

    static constexpr std::size_t PLACE_BYTES = 7;

    template<std::size_t SIZE>
    using Bytes = std::array<quint8, SIZE>;

    /// Key and place as bytes, so that the entries have no gaps.
    struct Entry
    {
        Bytes<sizeof(KEY)> key;
        Bytes<PLACE_BYTES> place;
    };
    static_assert(sizeof(Entry) == sizeof(KEY) + PLACE_BYTES);

    template<std::size_t SIZE>
    static Bytes<SIZE> bytesOf(quint64 number)
    {
        Bytes<SIZE> result {};
        for (std::size_t i = 0; i < SIZE; ++i)
            result[i] = quint8(number >> (8 * i));
        return result;
    }

    static quint64 numberOf(const Bytes<PLACE_BYTES> &bytes)
    {
        quint64 result = 0;
        for (std::size_t i = 0; i < PLACE_BYTES; ++i)
            result |= quint64(bytes[i]) << (8 * i);
        return result;
    }

    static std::size_t bucketOf(KEY key)
    {
        constexpr quint64 goldenRatio = 0x9e37'79b9'7f4a'7c15; // spreads keys that differ in few bits
        return std::size_t(quint64(key) * goldenRatio >> (64 - BUCKET_BITS));
    }

    std::vector<std::vector<Entry>> myBuckets;
};

#endif
