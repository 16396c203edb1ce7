#ifndef COMMANDRUN_H
#define COMMANDRUN_H

#include <Commands.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <memory>

/// A command of rvcatalog that has run in the process of the test, and its output.
class CommandRun
{
public:
    explicit CommandRun(const QStringList &arguments, const QByteArray &input = QByteArray())
    {
        const File in = temporaryFile();
        const File out = temporaryFile();
        const File errors = temporaryFile();
        std::fwrite(input.constData(), 1, std::size_t(input.size()), in.get());
        std::rewind(in.get());
        exitCode = runCommand(arguments, { in.get(), out.get(), errors.get() });
        output = textOf(out.get());
        messages = textOf(errors.get());
    }

    int exitCode = -1;
    QString output;
    QString messages;

private:
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;

    static File temporaryFile() { return { std::tmpfile(), &std::fclose }; }
    static QString textOf(std::FILE *file)
    {
        QByteArray result(std::ftell(file), '\0');
        std::rewind(file);
        result.resize(qsizetype(std::fread(result.data(), 1, std::size_t(result.size()), file)));
        return QString::fromUtf8(result);
    }
};

#endif
