// Two catalogues, separated by a line "----": compared with each other and with themselves, and as rvcatalog compares
// them.
#include "CommandRunner.h"
#include "Properties.h"

#include <Commands.h>

#include <RVCatalogueComparison.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QJsonDocument>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <utility>

#include <unistd.h>

namespace {

/// The results of a comparison.
struct Result
{
    RVComparisonCounts counts;
    QStringList subjects; // of all changes
    bool hasError = false;
};

bool operator==(const RVComparisonCounts &a, const RVComparisonCounts &b)
{
    return a.added == b.added && a.removed == b.removed && a.changed == b.changed && a.renamed == b.renamed
            && a.equal == b.equal;
}

// A change has a kind, a label on one line, and two values that differ.
void checkChange(const RVProductChange &change)
{
    CHECK(change.kind() != RVChangeKind::None);
    CHECK(!change.subject().isEmpty() && !change.label().isEmpty());
    CHECK(change.oldValue().value != change.newValue().value);
}

Result compare(const QByteArray &before, const QByteArray &after)
{
    QBuffer oldFile;
    QBuffer newFile;
    oldFile.setData(before);
    newFile.setData(after);
    oldFile.open(QIODevice::ReadOnly);
    newFile.open(QIODevice::ReadOnly);
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison comparison(&oldReader, &newReader);
    Result result;
    result.hasError = comparison.hasError();
    for (auto product = comparison.next(); !product.isNull(); product = comparison.next()) {
        CHECK(!result.hasError);
        for (const RVProductChange &change : product.changes()) {
            checkChange(change);
            result.subjects += change.subject();
        }
    }
    result.counts = comparison.counts();
    return result;
}

// Every product equals itself, also after it was written and read again.
void checkSame(const QByteArray &xml)
{
    const Result same = compare(xml, xml);
    CHECK(same.subjects.isEmpty());
    CHECK(same.counts.added + same.counts.removed + same.counts.changed == 0);
    QBuffer file;
    file.setData(xml);
    file.open(QIODevice::ReadOnly);
    for (const RVCatalogueProduct &product : RVCatalogueReader(&file).readAll()) {
        CHECK(RVProductComparison(product, product).kind() == RVChangeKind::None);
        QByteArray text = product.toXml();
        QBuffer again(&text);
        again.open(QIODevice::ReadOnly);
        const RVCatalogueProduct copy = RVCatalogueReader(&again).next();
        for (const RVProductChange &change : RVProductComparison(product, copy).changes())
            CHECK_EQUAL(QString(change.subject()), QStringLiteral("families"));
    }
}

/// Runs rvcatalog; returns its exit code and its output.
std::pair<int, QByteArray> runDiff(const MemoryFile &before, const MemoryFile &after, const QString &format)
{
    static MemoryFile output;
    static std::FILE *const toOutput = ::fdopen(::dup(output.descriptor()), "a");
    static std::FILE *const nowhere = std::fopen("/dev/null", "w");
    CHECK(toOutput && nowhere);
    output.write(QByteArray());
    const int exitCode = runCommand(
            { QStringLiteral("diff"), QStringLiteral("--format"), format, before.name(), after.name() },
            { stdin, toOutput, nowhere });
    CHECK(std::fflush(toOutput) == 0);
    return { exitCode, output.read() };
}

// The output is complete or empty.
void checkCommand(const Result &expected, const QByteArray &before, const QByteArray &after)
{
    static MemoryFile oldFile;
    static MemoryFile newFile;
    oldFile.write(before);
    newFile.write(after);
    const bool isEqual = expected.counts.added + expected.counts.removed + expected.counts.changed == 0;
    const int exitCode = expected.hasError ? EXIT_UNREADABLE : isEqual ? EXIT_FINE : EXIT_PROBLEMS;
    for (const char *format : { "text", "json", "markdown" }) {
        const auto [given, output] = runDiff(oldFile, newFile, QString::fromLatin1(format));
        CHECK_EQUAL(given, exitCode);
        CHECK_EQUAL(output.isEmpty(), expected.hasError);
        if (format == QByteArrayView("json"))
            CHECK(output.isEmpty() || QJsonDocument::fromJson(output).isObject());
        if (format == QByteArrayView("text")) {
            for (const QString &line : QString::fromUtf8(output).split(QChar(u'\n')))
                CHECK(line.size() <= 80);
        }
    }
}

// A product that is added in one direction is removed in the other.
void checkMirrored(const Result &there, const Result &back)
{
    CHECK_EQUAL(there.hasError, back.hasError);
    RVComparisonCounts mirrored = back.counts;
    std::swap(mirrored.added, mirrored.removed);
    CHECK(there.hasError || there.counts == mirrored);
}

}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    const auto input = QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
    const QByteArray separator = "\n----\n";
    const qsizetype found = input.indexOf(separator);
    const QByteArray before = input.left(found);
    const QByteArray after = found < 0 ? before : input.mid(found + separator.size());
    checkSame(before);
    const Result result = compare(before, after);
    checkMirrored(result, compare(after, before));
    checkCommand(result, before, after);
    return 0;
}
