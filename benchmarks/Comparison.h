#ifndef COMPARISON_H
#define COMPARISON_H

#include <benchmark/benchmark.h>

#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>
#include <string>
#include <utility>

/// Every program adds its benchmarks here; main.cpp runs them.
void addBenchmarks();

/// Starts counting allocations, in a separate pass after the timed ones.
void countAllocations();

/// The part of a benchmark whose allocations count; it has no effect in a timed pass.
class CountedPart
{
    Q_DISABLE_COPY_MOVE(CountedPart)

public:
    CountedPart() noexcept;
    ~CountedPart();
};

/// The number of inputs of a corpus: too many for the branch predictor to learn their order, few enough for the cache.
constexpr int CORPUS_SIZE = 256;

/// One iteration is a pass over the whole corpus, so the cost of the loop is negligible.
template<typename Corpus, typename Operation>
void measure(benchmark::State &state, const Corpus &corpus, Operation operation)
{
    {
        const CountedPart counted;
        for (auto _ : state) {
            for (const auto &input : corpus)
                benchmark::DoNotOptimize(operation(input));
        }
    }
    state.SetItemsProcessed(qint64(state.iterations()) * qint64(corpus.size()));
    state.counters["corpus"] = benchmark::Counter(double(corpus.size()), benchmark::Counter::kAvgThreads);
}

/**
 * An operation of the library, its peers and its floor: "name/ours", "name/peer", "name/floor".
 *
 * A peer must give the same result for every input of the corpus; otherwise the program ends before it measures
 * anything.
 */
template<typename Corpus, typename Ours>
class Comparison
{
public:
    Comparison(std::string name, Corpus corpus, Ours ours)
        : myName(std::move(name)),
          myCorpus(std::move(corpus)),
          myOurs(std::move(ours))
    {
        countAllocations();
        add("ours", myCorpus, myOurs);
    }

    /// A peer that takes the same inputs.
    template<typename Peer, typename Same = std::equal_to<>>
    Comparison &against(const char *peerName, Peer peer, Same same = {})
    {
        return againstWithInputs(peerName, myCorpus, std::move(peer), same);
    }

    /// A peer that takes the same inputs in its own form.
    template<typename PeerCorpus, typename Peer, typename Same = std::equal_to<>>
    Comparison &againstWithInputs(const char *peerName, const PeerCorpus &corpus, Peer peer, Same same = {})
    {
        auto input = corpus.begin();
        for (const auto &ourInput : std::as_const(myCorpus)) {
            if (!same(myOurs(ourInput), peer(*input++))) {
                std::fprintf(stderr, "%s: the result of %s differs for input %d\n", myName.c_str(), peerName,
                             int(std::distance(corpus.begin(), input)));
                std::exit(EXIT_FAILURE);
            }
        }
        add(peerName, corpus, std::move(peer));
        return *this;
    }

    /// The part of the work that no implementation can avoid, such as one allocation or one look at each letter. Its
    /// result is not that of the operation, so it is not compared.
    template<typename Inputs, typename Floor>
    Comparison &above(const Inputs &inputs, Floor floor)
    {
        add("floor", inputs, std::move(floor));
        return *this;
    }

private:
    template<typename Inputs, typename Operation>
    void add(const char *side, const Inputs &inputs, Operation operation)
    {
        benchmark::RegisterBenchmark((myName + '/' + side).c_str(),
                                     [=](benchmark::State &state) { measure(state, inputs, operation); });
    }

    std::string myName;
    Corpus myCorpus;
    Ours myOurs;
};

#endif
