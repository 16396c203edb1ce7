// The same work on one thread and on each of two, which share tables but no text. The figure is the gain by the second
// one.
#include "Comparison.h"

#include <RVPaperType.h>
#include <RVProductType.h>

#include <QList>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QStringList keywordLists()
{
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += QStringList { u"indigo"_s, i % 2 == 0 ? u" Fotopaper"_s : u"premium-matt "_s,
                                i % 3 == 0 ? u"GLOSSY"_s : u"digital_printing_recycled"_s }
                          .join(u',');
    return result;
}

QList<RVPaperType> papers()
{
    QList<RVPaperType> result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += RVPaperType(RVPaperTypeEnum(1 << i % 8));
    return result;
}

QStringList codes()
{
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += (i % 2 == 0 ? u"DUN%1_30"_s : u"VIR%1"_s).arg(i);
    return result;
}

/// Each thread makes its own corpus.
template<typename MakeCorpus, typename Operation>
void add(const char *name, MakeCorpus makeCorpus, Operation operation)
{
    const auto run = [=](benchmark::State &state) { measure(state, makeCorpus(), operation); };
    benchmark::RegisterBenchmark(name, run)->Threads(1)->Threads(2)->UseRealTime();
}

}

void addBenchmarks()
{
    add("decode", keywordLists, [](const QString &text) { return RVPaperType(text).value(); });
    add("encode", papers, [](const RVPaperType &paper) { return paper.encode(); });
    add("normalise", codes, [](const QString &code) { return RVProductType(code); });
}
