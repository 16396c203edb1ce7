#include "RVFileEditor.h"

#include "RVCatalogueReader.h"
#include "RVFilePosition_p.h"
#include "RVFileStamp_p.h"
#include "RVTextBytes_p.h"
#include "RVTextEncoder_p.h"
#include "RVXmlSource_p.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <iterator>
#include <limits>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

bool isEmpty(const RVFileRange &range)
{
    return range.begin == range.end;
}

/// True for pieces that overlap. A place where text is inserted overlaps a piece that begins or ends there.
bool touch(const RVFileRange &a, const RVFileRange &b)
{
    if (isEmpty(a) || isEmpty(b))
        return !(b.end < a.begin) && !(a.end < b.begin);
    return a.begin < b.end && b.begin < a.end;
}

/// Edits in the order of the file, without overlaps.
class Edits
{
public:
    /// Adds all edits or none.
    bool add(const QList<RVFileEdit> &fix)
    {
        std::vector<RVFilePosition> added;
        for (const RVFileEdit &edit : fix) {
            if (has(edit))
                continue;
            if (edit.range.end < edit.range.begin || touches(edit.range)) {
                for (const RVFilePosition &begin : added)
                    myEdits.erase(begin);
                return false;
            }
            myEdits.emplace(edit.range.begin, edit);
            added.push_back(edit.range.begin);
        }
        return true;
    }

    bool isEmpty() const { return myEdits.empty(); }
    auto begin() const { return myEdits.begin(); }
    auto end() const { return myEdits.end(); }

    /// Begin and end of each.
    std::vector<RVFilePosition> places() const
    {
        std::vector<RVFilePosition> result;
        for (const auto &[begin, edit] : myEdits) {
            result.push_back(begin);
            result.push_back(edit.range.end);
        }
        return result;
    }

private:
    bool has(const RVFileEdit &edit) const
    {
        const auto found = myEdits.find(edit.range.begin);
        return found != myEdits.end() && found->second == edit;
    }
    bool touches(const RVFileRange &range) const
    {
        const auto next = myEdits.lower_bound(range.begin);
        if (next != myEdits.end() && touch(next->second.range, range))
            return true;
        return next != myEdits.begin() && touch(std::prev(next)->second.range, range);
    }

    std::map<RVFilePosition, RVFileEdit> myEdits;
};

/// Finds the number of bytes of UTF-8 in front of each place. The places come in the order of the file.
class PlaceFinder
{
public:
    explicit PlaceFinder(const std::vector<RVFilePosition> &places) : myPlaces(places) { }

    /// Searches the next piece of the text; an empty one ends it. False when no place is left.
    bool look(const QByteArray &text)
    {
        myText += text;
        const qsizetype size = text.isEmpty() ? myText.size() : lastLetter();
        const char next = myText.constData()[size]; // a zero ends the array
        QByteArrayView rest = QByteArrayView(myText).first(size);
        while (isLooking()) {
            const RVFilePosition &place = myPlaces[myOffsets.size()];
            const qsizetype passed = rvAdvance(&myPosition, place, rest, next);
            rest = rest.sliced(passed);
            myOffset += passed;
            if (myPosition == place)
                myOffsets.push_back(myOffset);
            else if (rest.isEmpty())
                break;
            else
                myIsPossible = false;
        }
        myText.remove(0, size);
        return isLooking() && !text.isEmpty();
    }

    const std::vector<qint64> &offsets() const { return myOffsets; }
    /// The first place that is not in the text; null if all are.
    const RVFilePosition *missing() const
    {
        return myOffsets.size() < myPlaces.size() ? &myPlaces[myOffsets.size()] : nullptr;
    }

private:
    bool isLooking() const { return myIsPossible && myOffsets.size() < myPlaces.size(); }
    /// The begin of the last letter, whose rest may follow, such as the line feed behind a carriage return.
    qsizetype lastLetter() const
    {
        constexpr int continuationBits = 0xc0;
        constexpr int continuation = 0x80;
        qsizetype place = myText.size() - 1;
        while (place > 0 && (uchar(myText.at(place)) & continuationBits) == continuation)
            --place;
        return place;
    }

    const std::vector<RVFilePosition> &myPlaces;
    std::vector<qint64> myOffsets; // of the places that were found
    QByteArray myText; // the text that was not searched yet
    RVFilePosition myPosition; // of its begin
    qint64 myOffset = 0; // the same
    bool myIsPossible = true;
};

/// Finds the places where XML reads a reference: outside of comments, instructions and CDATA sections.
class ReferenceJudge
{
public:
    /// @p text is the file up to the place in question, which is behind the last one.
    bool isRead(QByteArrayView text)
    {
        while (true) {
            const qsizetype begin = text.indexOf('<', myPlace);
            if (begin < 0)
                return true;
            const Markup markup = markupOf(text.sliced(begin));
            // A comment may begin with ">", so its end is searched behind its begin.
            const qsizetype found = text.indexOf(markup.end, begin + markup.begin.size());
            if (found < 0)
                return false;
            myPlace = found + markup.end.size();
        }
    }

private:
    struct Markup
    {
        QByteArrayView begin;
        QByteArrayView end;
    };
    static Markup markupOf(QByteArrayView text)
    {
        for (const Markup markup : { Markup { "<!--", "-->" }, { "<![CDATA[", "]]>" }, { "<?", "?>" } }) {
            if (text.startsWith(markup.begin))
                return markup;
        }
        return { "<", {} };
    }

    qsizetype myPlace = 0; // no comment, instruction or section is open up to here
};

}

class RVFileEditorPrivate
{
    Q_DECLARE_TR_FUNCTIONS(RVFileEditor)
    Q_DISABLE_COPY_MOVE(RVFileEditorPrivate)

public:
    RVFileEditorPrivate() = default;
    explicit RVFileEditorPrivate(const QString &name) : fileName(name), stamp(name) { }

    bool apply(QIODevice *from, QIODevice *to);
    bool save();

    QString fileName;
    RVFileStamp stamp;
    Edits edits;
    qsizetype count = 0;
    qsizetype leftOut = 0;
    QString error;

private:
    bool fail(const QString &text)
    {
        error = text;
        return false;
    }
    bool findPlaces(QIODevice *from);
    bool encode(QIODevice *from);
    bool checkReferences(QIODevice *from);
    bool write(QIODevice *from, QIODevice *to);
    bool writePiece(RVTextBytes *bytes, qint64 size, QIODevice *to);
    bool writeBytes(const QByteArray &bytes, QIODevice *to);
    bool writePending(QIODevice *to);
    bool readBack(QIODevice *to);
    bool replace(const QString &target, QFile *from, QTemporaryFile *to);

    QByteArray myEncoding; // a name for iconv; empty for UTF-8
    qint64 myMarkSize = 0;
    std::vector<qint64> myOffsets; // of begin and end of each edit, in the text in UTF-8
    std::vector<RVEncodedText> myTexts; // of each edit
    QCryptographicHash myText { QCryptographicHash::Blake2b_256 }; // of the text that must be read back
    qint64 myBytesRead = 0;
    QByteArray myPending; // bytes that are not written yet
};

bool RVFileEditorPrivate::apply(QIODevice *from, QIODevice *to)
{
    error.clear();
    if (!findPlaces(from) || !encode(from) || !write(from, to))
        return false;
    return readBack(to);
}

bool RVFileEditorPrivate::findPlaces(QIODevice *from)
{
    from->seek(0);
    RVXmlSource source(from);
    const std::vector<RVFilePosition> places = edits.places();
    PlaceFinder finder(places);
    while (finder.look(source.read())) { }
    if (!source.fault().isEmpty())
        return fail(source.fault());
    if (const RVFilePosition *missing = finder.missing())
        return fail(tr("there is no line %1 with a column %2").arg(missing->line).arg(missing->column));
    myEncoding = source.encoding();
    myMarkSize = source.markSize();
    myOffsets = finder.offsets();
    return true;
}

bool RVFileEditorPrivate::encode(QIODevice *from)
{
    const RVTextEncoder encoder(myEncoding);
    myTexts.clear();
    for (const auto &[begin, edit] : edits)
        myTexts.push_back(encoder.encode(edit.text));
    const auto hasReference = [](const RVEncodedText &text) { return text.reference.has_value(); };
    return std::none_of(myTexts.begin(), myTexts.end(), hasReference) || checkReferences(from);
}

// The begin of a comment is known only from the whole text.
bool RVFileEditorPrivate::checkReferences(QIODevice *from)
{
    from->seek(0);
    RVXmlSource source(from);
    QByteArray text;
    for (QByteArray piece = source.read(); !piece.isEmpty(); piece = source.read())
        text += piece;
    if (!source.fault().isEmpty())
        return fail(source.fault());
    if (text.size() < myOffsets.back())
        return fail(tr("the file was changed meanwhile; check it again"));
    ReferenceJudge judge;
    for (std::size_t i = 0; i < myTexts.size(); ++i) {
        const std::optional<char32_t> letter = myTexts[i].reference;
        if (letter && !judge.isRead(QByteArrayView(text).first(myOffsets[i * 2])))
            return fail(tr("\"%1\" cannot be written in %2")
                                .arg(QString::fromUcs4(&*letter, 1), QString::fromLatin1(myEncoding)));
    }
    return true;
}

bool RVFileEditorPrivate::write(QIODevice *from, QIODevice *to)
{
    constexpr qint64 everything = std::numeric_limits<qint64>::max();
    from->seek(0);
    myText.reset();
    myPending.clear();
    const QByteArray mark = from->read(myMarkSize);
    myBytesRead = mark.size();
    RVTextBytes bytes(from, myEncoding);
    qint64 place = 0;
    bool isDone = writeBytes(mark, to);
    for (std::size_t i = 0; isDone && i < myTexts.size(); ++i) {
        const qint64 begin = myOffsets[i * 2];
        const qint64 end = myOffsets[i * 2 + 1];
        isDone = writePiece(&bytes, begin - place, to) && writeBytes(myTexts[i].bytes, to)
                && writePiece(&bytes, end - begin, nullptr);
        myText.addData(myTexts[i].text);
        place = end;
    }
    if (!isDone || !writePiece(&bytes, everything, to) || !writePending(to))
        return false;
    return myBytesRead == from->size() || fail(tr("cannot read on: %1").arg(from->errorString()));
}

/// Copies this much of the text, or skips it if there is no output device.
bool RVFileEditorPrivate::writePiece(RVTextBytes *bytes, qint64 size, QIODevice *to)
{
    while (size > 0) {
        const RVTextPiece piece = bytes->take(size);
        if (piece.isEmpty())
            return true; // missing text is noticed at the end
        size -= piece.text.size();
        myBytesRead += piece.bytes.size();
        if (!to)
            continue;
        myText.addData(piece.text);
        if (!writeBytes(piece.bytes, to))
            return false;
    }
    return true;
}

bool RVFileEditorPrivate::writeBytes(const QByteArray &bytes, QIODevice *to)
{
    constexpr qsizetype piece = 65536; // 64 KiB
    myPending += bytes;
    return myPending.size() < piece || writePending(to);
}

// A disk that becomes full accepts some bytes first, and gives the reason only after them.
bool RVFileEditorPrivate::writePending(QIODevice *to)
{
    QByteArrayView rest = myPending;
    while (!rest.isEmpty()) {
        const qint64 written = to->write(rest.data(), rest.size());
        if (written <= 0)
            return fail(tr("cannot write: %1").arg(to->errorString()));
        rest = rest.sliced(written);
    }
    myPending.resize(0);
    return true;
}

bool RVFileEditorPrivate::readBack(QIODevice *to)
{
    if (!to->seek(0))
        return fail(tr("cannot write: %1").arg(to->errorString()));
    RVXmlSource source(to);
    QCryptographicHash text(QCryptographicHash::Blake2b_256);
    for (QByteArray piece = source.read(); !piece.isEmpty(); piece = source.read())
        text.addData(piece);
    if (!source.fault().isEmpty() || text.result() != myText.result())
        return fail(tr("the file cannot be changed in its encoding; save it in UTF-8"));
    to->seek(0);
    RVCatalogueReader reader(to);
    if (reader.finish())
        return true;
    return fail(tr("the changes would break the file in line %1, column %2: %3")
                        .arg(reader.errorPosition().line)
                        .arg(reader.errorPosition().column)
                        .arg(reader.errorString()));
}

bool RVFileEditorPrivate::save()
{
    error.clear();
    if (edits.isEmpty())
        return true;
    // To open a pipe would wait for somebody who writes to it.
    if (RVFileStamp(fileName).isSpecial())
        return fail(tr("this is no ordinary file"));
    QFile from(fileName);
    if (!from.open(QIODevice::ReadOnly))
        return fail(tr("cannot open the file: %1").arg(from.errorString()));
    if (RVFileStamp(from.handle()) != stamp)
        return fail(tr("the file was changed meanwhile; check it again"));
    if (!stamp.isOrdinary())
        return fail(tr("this is no ordinary file"));
    const QFileInfo target(QFileInfo(fileName).canonicalFilePath());
    if (!target.isWritable())
        return fail(tr("the file is write-protected"));
    QTemporaryFile to(target.path() + "/.mended-XXXXXX"_L1);
    // The editor has its own buffer, so that the reason of an error is not lost.
    if (!static_cast<QIODevice &>(to).open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return fail(tr("cannot write a new file beside the old one: %1").arg(to.errorString()));
    return apply(&from, &to) && replace(target.filePath(), &from, &to);
}

// The new file is complete on the disk before it gets the name of the old one.
bool RVFileEditorPrivate::replace(const QString &target, QFile *from, QTemporaryFile *to)
{
    // A file that others can read must not be replaced by one that they cannot.
    if (!stamp.giveAccess(from->handle(), to->handle()) || ::fsync(to->handle()) != 0)
        return fail(tr("cannot write: %1").arg(qt_error_string(errno)));
    if (RVFileStamp(fileName) != stamp)
        return fail(tr("the file was changed meanwhile; check it again"));
    const QByteArray newName = QFile::encodeName(to->fileName());
    if (std::rename(newName.constData(), QFile::encodeName(target).constData()) != 0)
        return fail(tr("cannot write: %1").arg(qt_error_string(errno)));
    return true;
}

RVFileEditor::RVFileEditor() : d(std::make_unique<RVFileEditorPrivate>()) { }

RVFileEditor::RVFileEditor(const QString &fileName) : d(std::make_unique<RVFileEditorPrivate>(fileName)) { }

RVFileEditor::~RVFileEditor() = default;

bool RVFileEditor::add(const QList<RVFileEdit> &fix)
{
    if (fix.isEmpty())
        return false;
    const bool isAdded = d->edits.add(fix);
    ++(isAdded ? d->count : d->leftOut);
    return isAdded;
}

qsizetype RVFileEditor::count() const
{
    return d->count;
}

qsizetype RVFileEditor::leftOut() const
{
    return d->leftOut;
}

bool RVFileEditor::save()
{
    return d->save();
}

bool RVFileEditor::apply(QIODevice *from, QIODevice *to)
{
    return d->apply(from, to);
}

QByteArray RVFileEditor::apply(const QByteArray &bytes)
{
    QBuffer from;
    from.setData(bytes);
    from.open(QIODevice::ReadOnly);
    QBuffer to;
    to.open(QIODevice::ReadWrite);
    return d->apply(&from, &to) ? to.data() : QByteArray();
}

QString RVFileEditor::errorString() const
{
    return d->error;
}
