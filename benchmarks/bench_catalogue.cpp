// "rvcatalog show --json" as a whole process, against a program that loads the catalogue into one QDomDocument:
// wall-clock time and peak memory.
#include "Catalogue.h"
#include "Comparison.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <string>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int PRODUCTS = 20000;
constexpr int FORMS = 6;

using Command = std::array<std::string, 4>;

[[noreturn]] void fail(const std::string &what)
{
    std::fprintf(stderr, "bench_catalogue: %s\n", what.c_str());
    std::exit(EXIT_FAILURE);
}

struct Usage
{
    double seconds = 0;
    double peakMegabytes = 0;
};

/// Runs a program whose output goes nowhere. The peak of a process is never below that of the one that started it, so
/// this one stays small.
Usage run(const Command &command)
{
    std::array<char *, 5> arguments {};
    std::transform(command.begin(), std::find(command.begin(), command.end(), ""), arguments.begin(),
                   [](const std::string &argument) { return const_cast<char *>(argument.c_str()); });
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage {};
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) != 0
        || wait4(child, &status, 0, &usage) != child || status != 0)
        fail(command[0] + " failed");
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    posix_spawn_file_actions_destroy(&actions);
    return { elapsed.count(), double(usage.ru_maxrss) / 1024 };
}

/// What a program writes, line by line.
class Output
{
public:
    explicit Output(const Command &command)
    {
        std::string line;
        for (const std::string &argument : command)
            line += argument.empty() ? "" : '"' + argument + "\" ";
        m_pipe = popen(line.c_str(), "r");
    }
    ~Output()
    {
        std::free(m_line);
        pclose(m_pipe);
    }
    Q_DISABLE_COPY_MOVE(Output)

    /// The next product, empty at the end; what stands around the products is passed over.
    QJsonObject next()
    {
        for (ssize_t size = 0; (size = getline(&m_line, &m_capacity, m_pipe)) > 0;) {
            QByteArray line = QByteArray(m_line, size).trimmed();
            if (line.endsWith(','))
                line.chop(1);
            if (line.startsWith('{'))
                return QJsonDocument::fromJson(line).object();
        }
        return {};
    }

private:
    std::FILE *m_pipe;
    char *m_line = nullptr;
    std::size_t m_capacity = 0;
};

bool contains(const QJsonValue &ours, const QJsonValue &theirs);

bool containsMembers(const QJsonObject &ours, const QJsonObject &theirs)
{
    const QStringList keys = theirs.keys();
    return std::all_of(keys.begin(), keys.end(),
                       [&](const QString &key) { return contains(ours.value(key), theirs.value(key)); });
}

/// True when everything that the other program has read stands in ours, which knows more. Lengths may differ by
/// rounding.
bool contains(const QJsonValue &ours, const QJsonValue &theirs)
{
    if (theirs.isObject())
        return containsMembers(ours.toObject(), theirs.toObject());
    if (theirs.isDouble())
        return std::abs(ours.toDouble(-1) - theirs.toDouble()) < 1e-9;
    if (!theirs.isArray())
        return ours == theirs;
    const QJsonArray a = ours.toArray();
    const QJsonArray b = theirs.toArray();
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const QJsonValue &x, const QJsonValue &y) { return contains(x, y); });
}

void requireSameProducts(const Command &oursCommand, const Command &theirsCommand)
{
    Output ours(oursCommand);
    Output theirs(theirsCommand);
    int count = 0;
    for (QJsonObject product = ours.next(); !product.isEmpty(); product = ours.next()) {
        const QJsonObject same = theirs.next();
        if (same.isEmpty() || !containsMembers(product, same))
            fail("the programs differ in product " + std::to_string(count));
        ++count;
    }
    if (count != PRODUCTS || !theirs.next().isEmpty())
        fail("the programs did not find all products");
}

void add(const char *name, const Command &command)
{
    benchmark::RegisterBenchmark(name,
                                 [command](benchmark::State &state) {
                                     Usage usage;
                                     for (auto _ : state) {
                                         usage = run(command);
                                         state.SetIterationTime(usage.seconds);
                                     }
                                     state.counters["peak_megabytes"] = usage.peakMegabytes;
                                 })
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
}

std::string writeCatalogue(const QTemporaryDir &folder)
{
    QFile file(folder.filePath(u"products.xml"_s));
    if (!file.open(QIODevice::WriteOnly))
        fail("cannot write the catalogue");
    file.write(CATALOGUE_HEAD);
    for (int number = 0; number < PRODUCTS; ++number)
        file.write(productXml(number, FORMS));
    file.write(CATALOGUE_FOOT);
    return file.fileName().toStdString();
}

}

void addBenchmarks()
{
    static const QTemporaryDir folder;
    const std::string file = writeCatalogue(folder);
    const Command ours { RVCATALOG, "show", "--json", file };
    requireSameProducts(ours, { CATALOGUE_DOM, file, "--json", "" });
    add("catalogue/ours", ours);
    add("catalogue/dom", { CATALOGUE_DOM, file, "", "" });
}
