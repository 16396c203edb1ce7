// The peak memory of "rvcatalog" for a catalogue that is not a file: it comes through a pipe and is generated while it
// is read.
#include "Comparison.h"
#include "Process.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr const char *PRODUCTS = "1000000";
constexpr const char *FORMS = "1";

/// Runs the program with the catalogue as its standard input.
ProcessUsage readFromPipe(const Command &command)
{
    QFile null(QStringLiteral("/dev/null"));
    int ends[2] {};
    if (!null.open(QIODevice::ReadWrite) || pipe2(ends, O_CLOEXEC) != 0)
        fail("cannot make a pipe");
    Process writer({ CATALOGUE_STREAM, PRODUCTS, FORMS }, null.handle(), ends[1]);
    Process reader(command, ends[0], null.handle());
    close(ends[0]);
    close(ends[1]);
    const ProcessUsage usage = reader.wait();
    writer.wait();
    return usage;
}

void add(const char *name, const Command &command)
{
    benchmark::RegisterBenchmark(name,
                                 [command](benchmark::State &state) {
                                     for (auto _ : state) {
                                         const ProcessUsage usage = readFromPipe(command);
                                         state.SetIterationTime(usage.seconds);
                                         state.counters["peak_megabytes"] = usage.peakMegabytes;
                                     }
                                 })
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
}

}

void addBenchmarks()
{
    add("million/show", { RVCATALOG, "show", "--json", "/dev/stdin" });
    add("million/check", { RVCATALOG, "check", "/dev/stdin" });
}
