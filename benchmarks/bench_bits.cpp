// Splitting a value into its bits, compared with the obvious loop over all 64 masks.
#include "Comparison.h"

#include <RVPaperType.h>

#include <QList>
#include <QSet>

namespace {

constexpr RVPaperTypeEnum TOGGLED = FOTOPAPER | PREMIUM | INDIGO;

/// All values of three bits below 2^8, repeated.
QList<RVPaperType> valuesOfThreeBits()
{
    QList<RVPaperType> result;
    for (int bits = 0; result.size() < CORPUS_SIZE; bits = (bits + 1) % 256) {
        if (qPopulationCount(unsigned(bits)) == 3)
            result += RVPaperType(RVPaperTypeEnum(bits));
    }
    return result;
}

/// The same values, with single bits and 0 between them.
QList<RVPaperType> valuesOfFewBits()
{
    QList<RVPaperType> result = valuesOfThreeBits();
    for (int i = 0; i < result.size(); i += 2)
        result[i] = RVPaperTypeEnum(i % 3 == 0 ? 0 : 1 << i % 8);
    return result;
}

bool isSet(const RVPaperType &paper, int position)
{
    return (quint64(paper.value()) & (quint64(1) << position)) != 0;
}

int countWithMasks(const RVPaperType &paper)
{
    int result = 0;
    for (int position = 0; position < 64; ++position) {
        if (isSet(paper, position))
            ++result;
    }
    return result;
}

QList<RVPaperTypeEnum> splitWithMasks(const RVPaperType &paper)
{
    QList<RVPaperTypeEnum> result;
    for (int position = 0; position < 64; ++position) {
        if (isSet(paper, position))
            result += RVPaperTypeEnum(quint64(1) << position);
    }
    return result;
}

RVPaperTypeEnum toggleWithSet(RVPaperTypeEnum value, const RVPaperType &other)
{
    QSet<RVPaperTypeEnum> bits;
    for (int position = 0; position < 64; ++position) {
        if (isSet(other, position))
            bits.insert(RVPaperTypeEnum(quint64(1) << position));
    }
    for (const RVPaperTypeEnum bit : std::as_const(bits))
        value = (value & bit) != 0 ? value & ~bit : value | bit;
    return value;
}

}

void addBenchmarks()
{
    const QList<RVPaperType> mixed = valuesOfFewBits();
    const QList<RVPaperType> three = valuesOfThreeBits();
    Comparison("countBits", mixed, [](const RVPaperType &paper) {
        return paper.countBits();
    }).against("masks", [](const RVPaperType &paper) { return countWithMasks(paper); });
    Comparison("hasExactlyOneBit", mixed, [](const RVPaperType &paper) {
        return paper.hasExactlyOneBit();
    }).against("masks", [](const RVPaperType &paper) { return countWithMasks(paper) == 1; });
    Comparison("splitToBitsSorted", three, [](const RVPaperType &paper) {
        return paper.splitToBitsSorted();
    }).against("masks", [](const RVPaperType &paper) {
          return splitWithMasks(paper);
      }).above(three, [](const RVPaperType &) { return QList<RVPaperTypeEnum>(3); });
    Comparison("toggleBits", three, [](const RVPaperType &other) {
        RVPaperType paper(TOGGLED);
        paper.toggleBits(other);
        return paper.value();
    }).against("set", [](const RVPaperType &other) { return toggleWithSet(TOGGLED, other); });
}
