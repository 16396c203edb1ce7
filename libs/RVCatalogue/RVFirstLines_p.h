#ifndef RVFIRSTLINES_P_H
#define RVFIRSTLINES_P_H

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <vector>

/**
 * The line where each number was seen first, in as little memory as a million of them need. KEY is an unsigned integer.
 *
 * Numbers are spread over buckets, each of which is sorted and grows by an eighth when it is full. So hardly any memory
 * is without use, and never more than one bucket is copied.
 */
template<typename KEY>
class RVFirstLines
{
public:
    RVFirstLines() : myBuckets(BUCKETS) { }

    /// The line where @p key was seen before; 0 when it was not, from now on @p line.
    quint32 insert(KEY key, quint32 line)
    {
        std::vector<Entry> &bucket = myBuckets[bucketOf(key)];
        const Entry entry(key, line);
        const auto place = std::lower_bound(bucket.begin(), bucket.end(), entry,
                                            [](const Entry &a, const Entry &b) { return a.key < b.key; });
        if (place != bucket.end() && place->key == entry.key)
            return place->line;
        const auto index = place - bucket.begin();
        if (bucket.size() == bucket.capacity())
            bucket.reserve(bucket.size() + bucket.size() / 8 + 1);
        bucket.insert(bucket.begin() + index, entry);
        return 0;
    }

    /// In use and in reserve.
    std::size_t bytes() const
    {
        std::size_t result = myBuckets.size() * sizeof(myBuckets.front());
        for (const std::vector<Entry> &bucket : myBuckets)
            result += bucket.capacity() * sizeof(Entry);
        return result;
    }

private:
    static constexpr std::size_t WORDS = std::numeric_limits<KEY>::digits / 32;
    static constexpr int BUCKET_BITS = 12;
    static constexpr std::size_t BUCKETS = std::size_t(1) << BUCKET_BITS;

    /// The key in words, so that the line stands behind it without a gap.
    struct Entry
    {
        Entry(KEY key_, quint32 line_) : line(line_)
        {
            for (std::size_t i = 0; i < WORDS; ++i)
                key[i] = quint32(quint64(key_) >> (32 * i));
        }

        std::array<quint32, WORDS> key;
        quint32 line;
    };
    static_assert(sizeof(Entry) == sizeof(KEY) + sizeof(quint32));

    static std::size_t bucketOf(KEY key)
    {
        constexpr quint64 goldenRatio = 0x9e37'79b9'7f4a'7c15; // a part of 2^64; spreads what differs in few bits
        return std::size_t(quint64(key) * goldenRatio >> (64 - BUCKET_BITS));
    }

    std::vector<std::vector<Entry>> myBuckets;
};

#endif
