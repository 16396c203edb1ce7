#ifndef COMMANDRUN_H
#define COMMANDRUN_H

#include <Commands.h>

#include <QByteArray>
#include <QStringList>

#include <cstdio>
#include <memory>

/// A file without a name, which a command reads or writes.
class Stream
{
public:
    explicit Stream(const QByteArray &content = QByteArray()) : myFile(std::tmpfile(), &std::fclose)
    {
        std::fwrite(content.constData(), 1, std::size_t(content.size()), file());
        std::rewind(file());
    }

    std::FILE *file() const { return myFile.get(); }
    QString text() const
    {
        QByteArray result(std::ftell(file()), '\0');
        std::rewind(file());
        result.resize(qsizetype(std::fread(result.data(), 1, std::size_t(result.size()), file())));
        return QString::fromUtf8(result);
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> myFile;
};

/// The outcome of a command.
struct Run
{
    int exitCode = -1;
    QString output;
    QString messages;
};

/// Runs a command in the process of the test.
inline Run run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    const Stream in(input);
    const Stream out;
    const Stream messages;
    const int exitCode = runCommand(arguments, { in.file(), out.file(), messages.file() });
    return { exitCode, out.text(), messages.text() };
}

#endif
