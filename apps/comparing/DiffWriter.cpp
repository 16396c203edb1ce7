#include "DiffWriter.h"

#include "ComparedProduct.h"
#include "DiffTexts.h"
#include "PrintableText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LINE_WIDTH = 80;

/// Fills lines with the words of a text that begins with a marker, the first behind so many blanks; a word that is too
/// long is broken.
QStringList wrapped(const QString &text, qsizetype indentation)
{
    constexpr qsizetype marker = 2;
    const QString blanks(indentation, u' ');
    QStringList lines;
    for (QString rest = text; !rest.isEmpty();) {
        const qsizetype room = LINE_WIDTH - indentation - (lines.isEmpty() ? 0 : marker);
        qsizetype end = rest.size();
        if (end > room) {
            end = rest.lastIndexOf(u' ', room);
            if (end < marker)
                end = rest.at(room - 1).isHighSurrogate() ? room - 1 : room;
        }
        lines += blanks + (lines.isEmpty() ? ""_L1 : "  "_L1) + rest.first(end);
        rest = rest.sliced(end);
        if (rest.startsWith(u' '))
            rest.remove(0, 1);
    }
    return lines;
}

/// Writes each product and its changes in lines that fit on a terminal.
class TextDiffWriter : public DiffWriter
{
public:
    TextDiffWriter(bool hasColor, const Output &output) : DiffWriter(output), myHasColor(hasColor) { }

    void product(const ComparedProduct &product) override
    {
        const RVChangeKind kind = product.kind;
        QString text = DiffTexts::marker(kind) + u' ' + DiffTexts::product(product);
        if (kind != RVChangeKind::Changed)
            text += ", "_L1 + DiffTexts::article(product.articleId);
        writeLines(wrapped(text, 0), kind, true);
        for (const RVProductChange &change : product.changes)
            writeChange(change);
    }

    void end(const RVComparisonCounts &counts) override { write(DiffTexts::summary(counts) + u'\n'); }

private:
    void writeChange(const RVProductChange &change) const
    {
        constexpr qsizetype indentation = 2;
        const RVChangeKind kind = change.kind();
        const QString label = DiffTexts::marker(kind) + u' ' + printableText(change.label()) + u':';
        const QString oldText = printableText(change.oldValue().text);
        const QString newText = printableText(change.newValue().text);
        if (kind != RVChangeKind::Changed)
            return writeLines(wrapped(label + u' ' + oldText + newText, indentation), kind);
        constexpr auto arrow = " -> "_L1;
        if (indentation + label.size() + 1 + oldText.size() + arrow.size() + newText.size() <= LINE_WIDTH) {
            write(QString(indentation, u' ') + label + u' ' + colored(oldText, RVChangeKind::Removed) + arrow
                  + colored(newText, RVChangeKind::Added) + u'\n');
            return;
        }
        writeLines(wrapped(label, indentation), kind);
        writeLines(wrapped("- "_L1 + oldText, indentation * 2), RVChangeKind::Removed);
        writeLines(wrapped("+ "_L1 + newText, indentation * 2), RVChangeKind::Added);
    }

    void writeLines(const QStringList &lines, RVChangeKind kind, bool isBold = false) const
    {
        for (const QString &line : lines)
            write(colored(line, kind, isBold) + u'\n');
    }

    QString colored(const QString &text, RVChangeKind kind, bool isBold = false) const
    {
        const QString color = kind == RVChangeKind::Added ? u"32"_s
                : kind == RVChangeKind::Removed           ? u"31"_s
                                                          : QString();
        if (!myHasColor || (color.isEmpty() && !isBold))
            return text;
        const QString bold = isBold ? u"1"_s : QString();
        const QString separator = isBold && !color.isEmpty() ? u";"_s : QString();
        return "\033["_L1 + bold + separator + color + u'm' + text + "\033[m"_L1;
    }

    bool myHasColor;
};

/// Writes one object: the products, one on each line, then the sums. No text in it depends on the language.
class JsonDiffWriter : public DiffWriter
{
public:
    explicit JsonDiffWriter(const Output &output) : DiffWriter(output) { }

    void begin(const QString &oldName, const QString &newName) override
    {
        QString names = json(QJsonObject { { u"new"_s, newName }, { u"old"_s, oldName } });
        names.chop(1);
        write(names + R"(,"products":[)"_L1);
    }

    void product(const ComparedProduct &product) override
    {
        write((myIsFirst ? u"\n"_s : u",\n"_s) + json(object(product)));
        myIsFirst = false;
    }

    void end(const RVComparisonCounts &counts) override
    {
        write("\n],\n\"summary\":"_L1
              + json(QJsonObject { { u"added"_s, counts.added },
                                   { u"changed"_s, counts.changed },
                                   { u"equal"_s, counts.equal },
                                   { u"removed"_s, counts.removed },
                                   { u"renamed"_s, counts.renamed } })
              + "}\n"_L1);
    }

private:
    static QString json(const QJsonObject &object)
    {
        return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }

    static QJsonObject object(const ComparedProduct &product)
    {
        QJsonArray changes;
        for (const RVProductChange &change : product.changes)
            changes += object(change);
        const bool isAdded = product.kind == RVChangeKind::Added;
        const bool isRemoved = product.kind == RVChangeKind::Removed;
        return { { u"article_id"_s, product.articleId.isValid() ? product.articleId.id() : QJsonValue() },
                 { u"change"_s, rvChangeKindName(product.kind) },
                 { u"changes"_s, changes },
                 { u"name"_s, product.name },
                 { u"new"_s, isRemoved ? QJsonValue() : version(product.newType, product.newPosition) },
                 { u"old"_s, isAdded ? QJsonValue() : version(product.oldType, product.oldPosition) },
                 { u"renamed"_s, product.isRenamed },
                 { u"type"_s, product.type().toString() } };
    }

    static QJsonValue version(const RVProductType &type, const RVFilePosition &position)
    {
        return QJsonObject { { u"column"_s, position.column },
                             { u"line"_s, position.line },
                             { u"type"_s, type.toString() } };
    }

    static QJsonObject object(const RVProductChange &change)
    {
        return { { u"change"_s, rvChangeKindName(change.kind()) },
                 { u"item"_s, change.item().isEmpty() ? QJsonValue() : QJsonValue(change.item()) },
                 { u"new"_s, change.newValue().value },
                 { u"old"_s, change.oldValue().value },
                 { u"subject"_s, change.subject() } };
    }

    bool myIsFirst = true;
};

/// Writes a table for a comment in a review.
class MarkdownDiffWriter : public DiffWriter
{
public:
    explicit MarkdownDiffWriter(const Output &output) : DiffWriter(output) { }

    void product(const ComparedProduct &product) override
    {
        if (myIsFirst)
            writeHead();
        myIsFirst = false;
        const QString name = DiffTexts::product(product);
        const QString article = DiffTexts::article(product.articleId);
        if (product.kind == RVChangeKind::Added)
            writeRow({ name, DiffTexts::kind(product), QString(), article });
        if (product.kind == RVChangeKind::Removed)
            writeRow({ name, DiffTexts::kind(product), article, QString() });
        for (const RVProductChange &change : product.changes)
            writeRow({ name, change.label(), change.oldValue().text, change.newValue().text });
    }

    void end(const RVComparisonCounts &counts) override
    {
        write((myIsFirst ? QString() : u"\n"_s) + DiffTexts::summary(counts) + u'\n');
    }

private:
    void writeHead() const
    {
        writeRow({ DiffTexts::tr("Product"), DiffTexts::tr("Change"), DiffTexts::tr("Old"), DiffTexts::tr("New") });
        write(u"| --- | --- | --- | --- |\n"_s);
    }

    void writeRow(const QStringList &cells) const
    {
        QString row = u"|"_s;
        for (const QString &cell : cells)
            row += u' ' + escaped(printableText(cell)) + " |"_L1;
        write(row + u'\n');
    }

    static QString escaped(const QString &text)
    {
        static constexpr QStringView marks = u"\\`*_[]<>|~&#!$";
        QString result;
        for (const QChar character : text) {
            if (marks.contains(character))
                result += u'\\';
            result += character;
        }
        return result;
    }

    bool myIsFirst = true;
};

}

std::unique_ptr<DiffWriter> DiffWriter::create(const QString &format, bool hasColor, const Output &output)
{
    if (format == "text"_L1)
        return std::make_unique<TextDiffWriter>(hasColor, output);
    if (format == "json"_L1)
        return std::make_unique<JsonDiffWriter>(output);
    if (format == "markdown"_L1)
        return std::make_unique<MarkdownDiffWriter>(output);
    return nullptr;
}

DiffWriter::~DiffWriter() = default;
