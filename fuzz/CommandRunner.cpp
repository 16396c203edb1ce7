#include "CommandRunner.h"

#include "Properties.h"

#include <Commands.h>

#include <QCommandLineParser>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>

namespace {

int theReports = 0;

}

// The two services of rvcatalog's main program. Nobody asks for help here or names too few files.

void report(const QString &fileName, const FilePosition &position, const QString &text)
{
    ++theReports;
    CHECK(!fileName.isEmpty() && !text.isEmpty());
    CHECK(position.line >= 1 && position.column >= 1);
}

bool parseArguments(QCommandLineParser &parser, const QStringList &arguments, int, int, int *)
{
    return parser.parse(arguments);
}

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

QString MemoryFile::name() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(myDescriptor);
}

int runCommand(int (*command)(const QStringList &), const QStringList &arguments)
{
    static const bool isQuiet = std::freopen("/dev/null", "w", stdout) != nullptr;
    CHECK(isQuiet);
    theReports = 0;
    const int exitCode = command(QStringList { QStringLiteral("rvcatalog") } + arguments);
    CHECK(exitCode >= EXIT_FINE && exitCode <= EXIT_UNREADABLE);
    CHECK_EQUAL(exitCode == EXIT_FINE, theReports == 0);
    return exitCode;
}
