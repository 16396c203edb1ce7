#include "Comparison.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>

namespace {

std::atomic<bool> isCountingPass { false };
std::atomic<bool> isCounting { false };
std::atomic<qint64> allocations { 0 };

void countOne() noexcept
{
    if (isCounting.load(std::memory_order_relaxed))
        allocations.fetch_add(1, std::memory_order_relaxed);
}

// The functions are not marked "override", because Google Benchmark 1.7 has both kinds of Stop() and 1.9 only the one
// with a reference.
class AllocationCounter : public benchmark::MemoryManager
{
public:
    virtual void Start()
    {
        allocations = 0;
        isCountingPass = true;
    }

    virtual void Stop(Result *result) { Stop(*result); }
    virtual void Stop(Result &result)
    {
        isCountingPass = false;
        result.num_allocs = allocations;
    }
};

}

// Qt's strings and lists take their memory from malloc and realloc, and so does operator new. These functions replace
// those of glibc in the whole process and call them.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp): the names are glibc's
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t nmemb, std::size_t size);
void *__libc_realloc(void *ptr, std::size_t size);

void *malloc(std::size_t size) noexcept
{
    countOne();
    return __libc_malloc(size);
}

void *calloc(std::size_t nmemb, std::size_t size) noexcept
{
    countOne();
    return __libc_calloc(nmemb, size);
}

void *realloc(void *ptr, std::size_t size) noexcept
{
    countOne();
    return __libc_realloc(ptr, size);
}
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
}

CountedPart::CountedPart() noexcept
{
    isCounting = isCountingPass.load();
}

CountedPart::~CountedPart()
{
    isCounting = false;
}

void countAllocations()
{
    static AllocationCounter counter;
    benchmark::RegisterMemoryManager(&counter);
}

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    addBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
