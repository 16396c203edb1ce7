#include "CommandRunner.h"

#include "Properties.h"

#include <Commands.h>

#include <QRegularExpression>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>

MemoryFile::MemoryFile() : myDescriptor(::memfd_create("fuzz", MFD_CLOEXEC))
{
    CHECK(myDescriptor >= 0);
}

MemoryFile::~MemoryFile()
{
    ::close(myDescriptor);
}

void MemoryFile::write(const QByteArray &content)
{
    CHECK(::ftruncate(myDescriptor, 0) == 0);
    CHECK(::pwrite(myDescriptor, content.constData(), std::size_t(content.size()), 0) == content.size());
}

QByteArray MemoryFile::read() const
{
    QByteArray result(::lseek(myDescriptor, 0, SEEK_END), '\0');
    CHECK(::pread(myDescriptor, result.data(), std::size_t(result.size()), 0) == result.size());
    return result;
}

QString MemoryFile::name() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(myDescriptor);
}

int runQuietly(const QStringList &arguments)
{
    static std::FILE *const nowhere = std::fopen("/dev/null", "w");
    static MemoryFile messages;
    static std::FILE *const toMessages = ::fdopen(::dup(messages.descriptor()), "a");
    static const QRegularExpression report(QStringLiteral("\\A/proc/self/fd/\\d+:[1-9]\\d*:[1-9]\\d*: \\S"));
    CHECK(nowhere && toMessages);
    messages.write(QByteArray());
    const int exitCode = runCommand(arguments, { stdin, nowhere, toMessages });
    CHECK(exitCode >= EXIT_FINE && exitCode <= EXIT_UNREADABLE);
    CHECK(std::fflush(toMessages) == 0);
    const QString reports = QString::fromUtf8(messages.read());
    CHECK_EQUAL(exitCode == EXIT_FINE, reports.isEmpty());
    CHECK(reports.isEmpty() || report.match(reports).hasMatch());
    return exitCode;
}
