#include "Console.h"

#include "FindingLine.h"
#include "PipeInput.h"
#include "PrintableText.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// True for pipes, sockets and terminals.
bool isPipe(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

}

std::unique_ptr<QIODevice> Console::openInput() const
{
    if (isPipe(::fileno(input)))
        return std::make_unique<PipeInput>(::fileno(input), PipeInput::Borrowed);
    auto file = std::make_unique<QFile>();
    file->open(input, QIODevice::ReadOnly);
    return file;
}

std::unique_ptr<QIODevice> Console::openInput(const QString &fileName) const
{
    if (fileName == "-"_L1)
        return openInput();
    const QFileInfo info(fileName);
    if (!info.exists() || info.isFile() || info.isDir())
        return nullptr;
    // Otherwise it would wait here for a writer, and would not notice interruptions.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the function is declared like this
    const int descriptor = ::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    return descriptor < 0 ? nullptr : std::make_unique<PipeInput>(descriptor, PipeInput::Owned);
}

void Console::write(std::string_view text) const
{
    std::fwrite(text.data(), 1, text.size(), output);
}

bool Console::flush() const
{
    return std::fflush(output) == 0 && std::ferror(output) == 0;
}

void Console::report(const QString &fileName, const Problem &problem) const
{
    report(placeText(fileName, problem.position), problem.text);
}

void Console::report(const QString &fileName, const QString &text) const
{
    QTextStream(messages) << fileName << ": " << printableText(text) << '\n';
}

bool isTerminal(std::FILE *stream)
{
    return ::isatty(::fileno(stream)) == 1;
}
