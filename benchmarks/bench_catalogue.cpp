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
#include <iostream>
#include <string>
#include <tuple>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int PRODUCTS = 20000;
constexpr int FORMS = 6;

using Command = std::array<std::string, 4>;

[[noreturn]] void fail(const std::string &what)
{
    std::cerr << "bench_catalogue: " << what << '\n';
    std::exit(EXIT_FAILURE);
}

struct Usage
{
    double seconds = 0;
    double peakMegabytes = 0;
};

/// Runs a program whose output goes to a file. The peak of a process is never below that of the one that started it, so
/// this one stays small.
Usage run(Command command, const char *output = "/dev/null")
{
    std::array<char *, std::tuple_size_v<Command> + 1> arguments {};
    std::transform(command.begin(), std::find(command.begin(), command.end(), ""), arguments.begin(),
                   [](std::string &argument) { return argument.data(); });
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output, O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage {};
    if (posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) != 0
        || wait4(child, &status, 0, &usage) != child || status != 0)
        fail(command[0] + " failed");
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    posix_spawn_file_actions_destroy(&actions);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): that is how glibc declares it
    return { elapsed.count(), double(usage.ru_maxrss) / 1024 };
}

/// What a program wrote, product by product.
class Output
{
public:
    Output(const Command &command, const QString &fileName) : myFile(fileName)
    {
        run(command, QFile::encodeName(fileName).constData());
        if (!myFile.open(QIODevice::ReadOnly))
            fail("cannot read what " + command[0] + " wrote");
    }

    /// The next product, empty at the end; what stands around the products is passed over.
    QJsonObject next()
    {
        while (!myFile.atEnd()) {
            QByteArray line = myFile.readLine().trimmed();
            if (line.endsWith(','))
                line.chop(1);
            if (line.startsWith('{'))
                return QJsonDocument::fromJson(line).object();
        }
        return {};
    }

private:
    QFile myFile;
};

/// True when everything that the other program has read stands in ours, which knows more. Lengths may differ by
/// rounding.
// NOLINTNEXTLINE(misc-no-recursion): as deep as the JSON of a product
bool contains(const QJsonValue &ours, const QJsonValue &theirs)
{
    if (theirs.isDouble())
        return std::abs(ours.toDouble(-1) - theirs.toDouble()) < 1e-9;
    if (theirs.isArray() && ours.toArray().size() != theirs.toArray().size())
        return false;
    if (!theirs.isArray() && !theirs.isObject())
        return ours == theirs;
    for (qsizetype i = 0; i < theirs.toArray().size(); ++i) {
        if (!contains(ours[i], theirs[i]))
            return false;
    }
    const QStringList keys = theirs.toObject().keys();
    // NOLINTNEXTLINE(misc-no-recursion): as above
    return std::all_of(keys.begin(), keys.end(), [&](const QString &key) { return contains(ours[key], theirs[key]); });
}

void requireSameProducts(Output &ours, Output &theirs)
{
    int count = 0;
    for (QJsonObject product = ours.next(); !product.isEmpty(); product = ours.next()) {
        const QJsonObject same = theirs.next();
        if (same.isEmpty() || !contains(product, same))
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
    Output oursOutput(ours, folder.filePath(u"ours.json"_s));
    Output theirsOutput({ CATALOGUE_DOM, file, "--json", "" }, folder.filePath(u"dom.json"_s));
    requireSameProducts(oursOutput, theirsOutput);
    add("catalogue/ours", ours);
    add("catalogue/dom", { CATALOGUE_DOM, file, "", "" });
}
