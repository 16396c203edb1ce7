#include "Console.h"

#include <QFile>
#include <QTextStream>

#include <unistd.h>

std::unique_ptr<QIODevice> Console::openInput() const
{
    auto file = std::make_unique<QFile>();
    file->open(input, QIODevice::ReadOnly);
    return file;
}

void Console::write(std::string_view text) const
{
    std::fwrite(text.data(), 1, text.size(), output);
}

void Console::report(const QString &fileName, const Problem &problem) const
{
    QTextStream(messages) << fileName << ':' << problem.position.line << ':' << problem.position.column << ": "
                          << problem.text << '\n';
}

bool isTerminal(std::FILE *stream)
{
    return ::isatty(::fileno(stream)) == 1;
}
