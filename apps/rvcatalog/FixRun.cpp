#include "FixRun.h"

#include "CheckOptions.h"
#include "Commands.h"
#include "Configurations.h"
#include "UnifiedDiff.h"

#include <RVCatalogueReader.h>
#include <RVFileEditor.h>

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <unistd.h>

#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 WRITE_SIZE = qint64(64) * 1024;

bool isInput(const QString &fileName)
{
    return fileName == "-"_L1;
}

/// True for pipes and devices, which can be read only once and not be replaced.
bool isSpecial(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.exists() && !file.isFile() && !file.isDir();
}

QList<RVCatalogueFinding> allFindings(const QList<RVCatalogueProduct> &products)
{
    QList<RVCatalogueFinding> result;
    for (const RVCatalogueProduct &product : products)
        result += product.findings();
    return result;
}

/// Opens a file without a buffer, which would lose the reason of an error.
bool openUnbuffered(QTemporaryFile *file)
{
    return static_cast<QIODevice *>(file)->open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

// A disk that becomes full accepts some bytes first, and gives the reason only after them.
bool writeWhole(QIODevice *to, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = to->write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

}

/// The edits of a file, and the number of its findings.
struct FixRun::Mending
{
    RVFileEditor editor;
    qint64 findings = 0;
};

FixRun::FixRun(const CheckOptions &options, const Configurations &configurations, Console *console)
    : myOptions(options),
      myConfigurations(configurations),
      myConsole(console),
      myProgressBar(console->messages)
{ }

FixRun::~FixRun() = default;

int FixRun::mend()
{
    bool isDone = true;
    for (const QString &fileName : myOptions.fileNames)
        isDone = (isInput(fileName) ? mendInput() : mendFile(fileName)) && isDone;
    return isDone ? EXIT_FINE : EXIT_UNREADABLE;
}

int FixRun::diff()
{
    bool isDone = true;
    bool isChanged = false;
    for (const QString &fileName : myOptions.fileNames)
        isDone = diffFile(fileName, &isChanged) && isDone;
    if (!isDone)
        return EXIT_UNREADABLE;
    return isChanged ? EXIT_PROBLEMS : EXIT_FINE;
}

bool FixRun::mendFile(const QString &fileName)
{
    if (isSpecial(fileName))
        return fail(fileName, { RVFilePosition(), u"this is no ordinary file"_s });
    Mending mending { RVFileEditor(fileName) };
    RVCatalogueReader reader(fileName);
    if (collect(&reader, fileName, &mending) || mending.editor.count() == 0)
        return true;
    if (!mending.editor.save())
        return fail(fileName, { RVFilePosition(), mending.editor.errorString() });
    tellMended(fileName, mending);
    return true;
}

bool FixRun::mendInput()
{
    const bool isCopied = copyInput();
    const bool isDone = isCopied && mendCopy();
    // Only the catalogue belongs to the output, also where there is none.
    myConsole->output = myConsole->messages;
    return isCopied && readCopy() && isDone;
}

/// Mends the copy of the input. A copy that cannot be read is left to the check, which reports it.
bool FixRun::mendCopy()
{
    Mending mending;
    RVCatalogueReader reader(myInputCopy.get());
    return collect(&reader, u"-"_s, &mending) || writeMended(&mending);
}

/// Gives the copy to the console as its input.
bool FixRun::readCopy()
{
    myInputCopy->seek(0);
    const int descriptor = ::dup(myInputCopy->handle());
    if (descriptor >= 0)
        myInput.reset(::fdopen(descriptor, "rb"));
    if (!myInput)
        return fail(u"-"_s, { RVFilePosition(), u"cannot read on: "_s + qt_error_string(errno) });
    myConsole->input = myInput.get();
    return true;
}

/// Writes the copy of the input to the output with the edits, and makes that the copy.
bool FixRun::writeMended(Mending *mending)
{
    auto mended = std::make_unique<QTemporaryFile>();
    if (!openUnbuffered(mended.get()))
        return fail(u"-"_s, { RVFilePosition(), u"cannot write: "_s + mended->errorString() });
    if (!mending->editor.apply(myInputCopy.get(), mended.get()))
        return fail(u"-"_s, { RVFilePosition(), mending->editor.errorString() });
    myInputCopy = std::move(mended);
    myInputCopy->seek(0);
    for (QByteArray piece = myInputCopy->read(WRITE_SIZE); !piece.isEmpty(); piece = myInputCopy->read(WRITE_SIZE))
        myConsole->write(std::string_view(piece.constData(), std::size_t(piece.size())));
    myConsole->flush();
    if (mending->editor.count() > 0)
        tellMended(u"-"_s, *mending);
    return true;
}

bool FixRun::diffFile(const QString &fileName, bool *isChanged)
{
    if (isInput(fileName) && !copyInput())
        return false;
    if (!isInput(fileName) && isSpecial(fileName))
        return fail(fileName, { RVFilePosition(), u"this is no ordinary file"_s });
    const QString path = isInput(fileName) ? myInputCopy->fileName() : fileName;
    Mending mending;
    RVCatalogueReader reader(path);
    if (const std::optional<Problem> problem = collect(&reader, fileName, &mending))
        return fail(fileName, *problem);
    if (mending.editor.count() == 0)
        return true;
    *isChanged = true;
    return writeDiff(fileName, path, &mending.editor);
}

bool FixRun::writeDiff(const QString &fileName, const QString &path, RVFileEditor *editor)
{
    QFile from(path);
    if (!from.open(QIODevice::ReadOnly))
        return fail(fileName, { RVFilePosition(), u"cannot open the file: "_s + from.errorString() });
    QTemporaryFile to;
    if (!openUnbuffered(&to))
        return fail(fileName, { RVFilePosition(), u"cannot write: "_s + to.errorString() });
    if (!editor->apply(&from, &to))
        return fail(fileName, { RVFilePosition(), editor->errorString() });
    if (myOptions.isQuiet)
        return true;
    const auto write = [this](QByteArrayView bytes) {
        myConsole->write(std::string_view(bytes.data(), std::size_t(bytes.size())));
    };
    const QString error = UnifiedDiff(path, to.fileName(), fileName).write(write);
    return error.isEmpty() || fail(fileName, { RVFilePosition(), error });
}

/// Collects the edits that mend the findings in a file. Returns the problem if the file cannot be read.
std::optional<Problem> FixRun::collect(RVCatalogueReader *reader, const QString &fileName, Mending *mending)
{
    reader->setCheck(myConfigurations.check(fileName));
    myOptions.limitThreads(reader);
    const qint64 size = reader->size();
    const auto add = [&](const QList<RVCatalogueFinding> &found) {
        mending->findings += found.size();
        for (const RVCatalogueFinding &finding : found)
            mending->editor.add(finding.fix());
        myProgressBar.show(fileName, reader->bytesRead(), size);
        return true;
    };
    reader->map(allFindings, add);
    add(reader->findings());
    if (reader->hasError())
        return Problem { reader->errorPosition(), reader->errorString() };
    return std::nullopt;
}

bool FixRun::copyInput()
{
    myInputCopy = std::make_unique<QTemporaryFile>();
    const std::unique_ptr<QIODevice> input = myConsole->openInput();
    bool isWritten = openUnbuffered(myInputCopy.get());
    for (QByteArray piece = input->read(WRITE_SIZE); isWritten && !piece.isEmpty(); piece = input->read(WRITE_SIZE))
        isWritten = writeWhole(myInputCopy.get(), piece);
    if (isWritten && myInputCopy->seek(0))
        return true;
    return fail(u"-"_s, { RVFilePosition(), u"cannot write: "_s + myInputCopy->errorString() });
}

bool FixRun::fail(const QString &fileName, const Problem &problem)
{
    myProgressBar.hide();
    myConsole->flush();
    myConsole->report(fileName, { problem.position, u"error: "_s + problem.text });
    return false;
}

void FixRun::tellMended(const QString &fileName, const Mending &mending)
{
    myProgressBar.hide();
    if (myOptions.isQuiet)
        return;
    QTextStream out(myConsole->messages);
    out << "mended " << mending.editor.count() << " of " << mending.findings
        << (mending.findings == 1 ? " finding" : " findings") << " in " << fileName;
    if (mending.editor.leftOut() > 0)
        out << "; run it again to mend " << mending.editor.leftOut() << " more";
    out << '\n';
}
