#include "Baseline.h"

#include "FileContent.h"
#include "FindingFingerprint.h"

#include <RVCatalogueCheck.h>
#include <RVCatalogueFinding.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr auto VERSION = "version"_L1;
constexpr auto FINDINGS = "findings"_L1;
constexpr auto FILE_KEY = "file"_L1;
constexpr auto RULE = "rule"_L1;
constexpr auto PRODUCT = "product"_L1;
constexpr auto TEXT = "text"_L1;
constexpr auto COUNT = "count"_L1;

constexpr int THIS_VERSION = 1;
/// The largest file. It has more findings than can be mended one by one.
constexpr qint64 LARGEST_FILE = 1 << 28;
/// The name of the standard input and output.
constexpr auto STREAM = "-"_L1;

RVFilePosition positionAt(const QByteArray &text, qsizetype offset)
{
    const QByteArray before = text.left(offset);
    const QString line = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
    return { before.count('\n') + 1, line.size() + 1 };
}

/// All bytes; of a file that is too large, a few more than the largest one has. A pipe gives them in pieces.
QByteArray bytesOf(QIODevice *device)
{
    constexpr qint64 largestPiece = 1 << 16;
    QByteArray result;
    while (result.size() <= LARGEST_FILE) {
        const QByteArray piece = device->read(largestPiece);
        if (piece.isEmpty())
            break;
        result += piece;
    }
    return result;
}

/// The folder of a file, without symbolic links if it exists.
QString folderOf(const QString &fileName)
{
    const QFileInfo folder(QFileInfo(fileName).absolutePath());
    return folder.exists() ? folder.canonicalFilePath() : folder.absoluteFilePath();
}

QByteArray entryText(const QString &catalogue, const QStringList &key, qint64 count)
{
    QJsonObject entry { { FILE_KEY, catalogue }, { RULE, key.at(0) }, { TEXT, key.at(2) } };
    if (!key.at(1).isEmpty())
        entry.insert(PRODUCT, key.at(1));
    if (count > 1)
        entry.insert(COUNT, count);
    return QJsonDocument(entry).toJson(QJsonDocument::Compact);
}

}

Baseline::Baseline(const QString &fileName) : myFileName(fileName) { }

bool Baseline::read(const Console &console)
{
    QFile file(myFileName);
    const std::unique_ptr<QIODevice> pipe = console.openInput(myFileName);
    if (!pipe && !file.open(QIODevice::ReadOnly))
        return fail(console, u"cannot open the baseline: "_s + file.errorString());
    const QByteArray text = bytesOf(pipe ? pipe.get() : &file);
    if (file.error() != QFileDevice::NoError)
        return fail(console, u"cannot read the baseline: "_s + file.errorString());
    if (text.size() > LARGEST_FILE)
        return fail(console, u"the baseline is larger than 256 MiB"_s);
    return readEntries(text, console);
}

bool Baseline::write(const Console &console) const
{
    QByteArray text = "{\n  \"version\": " + QByteArray::number(THIS_VERSION) + ",\n  \"findings\": [";
    QByteArray separator = "\n    ";
    for (auto counts = myCounts.begin(); counts != myCounts.end(); ++counts) {
        for (auto count = counts->begin(); count != counts->end(); ++count) {
            text += separator + entryText(counts.key(), count.key(), count->known);
            separator = ",\n    ";
        }
    }
    text += "\n  ]\n}\n";
    if (myFileName == STREAM) {
        console.write(text.toStdString());
        return console.flush();
    }
    const QString error = writeContent(myFileName, text);
    return error.isEmpty() || fail(console, u"cannot write the baseline: "_s + error);
}

// "--write-baseline *.xml" lacks the name of the baseline, and would lose the first catalogue.
bool Baseline::isReplaceable(const Console &console) const
{
    QFile file(myFileName);
    if (myFileName == STREAM || !QFileInfo(myFileName).isFile() || !file.open(QIODevice::ReadOnly))
        return true;
    QTextStream text(&file);
    text.skipWhiteSpace();
    const QString first = text.read(1);
    return first.isEmpty() || first == u'{' || fail(console, u"this is no baseline, so it is not replaced"_s);
}

void Baseline::add(const QString &catalogue, const RVCatalogueFinding &finding)
{
    ++myCounts[name(catalogue)][key(finding)].known;
}

bool Baseline::take(const QString &catalogue, const RVCatalogueFinding &finding)
{
    const auto counts = myCounts.find(name(catalogue));
    if (counts == myCounts.end())
        return false;
    const auto count = counts->find(key(finding));
    if (count == counts->end() || count->left == 0)
        return false;
    --count->left;
    return true;
}

void Baseline::finish(const QString &catalogue, const RVCatalogueCheck &check)
{
    const auto counts = myCounts.find(name(catalogue));
    if (counts == myCounts.end())
        return;
    for (auto count = counts->begin(); count != counts->end(); ++count) {
        const RVCatalogueRule rule = RVCatalogueRule::find(count.key().at(0));
        if (rule.isNull() || check.isEnabled(rule))
            myMended += count->left;
        count->left = count->known; // for a catalogue that is checked again
    }
}

qint64 Baseline::size() const
{
    qint64 result = 0;
    for (const Counts &counts : myCounts) {
        for (const Count &count : counts)
            result += count.known;
    }
    return result;
}

// A baseline is the same on every machine and in every working folder, which may be known by a symbolic link as well.
QString Baseline::name(const QString &catalogue) const
{
    if (catalogue == STREAM)
        return catalogue;
    QString &name = myNames[catalogue];
    if (name.isEmpty())
        name = QDir(folderOf(myFileName))
                       .relativeFilePath(folderOf(catalogue) + u'/' + QFileInfo(catalogue).fileName());
    return name;
}

bool Baseline::fail(const Console &console, const QString &text) const
{
    console.report(myFileName, u"error: "_s + text);
    return false;
}

bool Baseline::readEntries(const QByteArray &text, const Console &console)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        console.report(myFileName,
                       Problem { positionAt(text, error.offset), u"error: this is no JSON: "_s + error.errorString() });
        return false;
    }
    const QJsonObject root = document.object();
    if (root.value(VERSION) != THIS_VERSION || !root.value(FINDINGS).isArray())
        return fail(console, u"this is no baseline of version %1"_s.arg(THIS_VERSION));
    const QJsonArray entries = root.value(FINDINGS).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QString reason = readEntry(entries.at(i).toObject());
        if (!reason.isEmpty())
            return fail(console, u"finding %1 of the baseline %2"_s.arg(QString::number(i + 1), reason));
    }
    return true;
}

// A text may end with the name of another catalogue.
QStringList Baseline::key(const RVCatalogueFinding &finding) const
{
    QString text = findingTextWithoutLines(finding);
    for (const RVRelatedPlace &place : finding.relatedPlaces()) {
        if (!place.fileName.isEmpty() && text.endsWith(place.fileName))
            text.replace(text.size() - place.fileName.size(), place.fileName.size(), name(place.fileName));
    }
    return { finding.rule().name(), finding.productType(), text };
}

// Returns the fault of an entry; empty if there is none. Equal entries, which a merge can leave, count together.
QString Baseline::readEntry(const QJsonObject &entry)
{
    for (const QLatin1StringView key : { FILE_KEY, RULE, TEXT }) {
        if (!entry.value(key).isString())
            return u"has no \"%1\""_s.arg(key);
    }
    if (entry.contains(PRODUCT) && !entry.value(PRODUCT).isString())
        return u"has a \"product\" that is no text"_s;
    const qint64 number = entry.contains(COUNT) ? entry.value(COUNT).toInteger() : 1;
    if (number < 1 || number > std::numeric_limits<int>::max())
        return u"has a \"count\" that is no number above 0"_s;
    const QStringList key { entry.value(RULE).toString(), entry.value(PRODUCT).toString(),
                            entry.value(TEXT).toString() };
    Count &count = myCounts[entry.value(FILE_KEY).toString()][key];
    count.known += number;
    count.left += number;
    return QString();
}
