#include "SubCommands.h"

#include <RVCatalogueAttribute.h>

#include <QCommandLineParser>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString hexadecimal(qint64 value)
{
    return "0x"_L1 + QString::number(value, 16).toUpper();
}

QString attributeNames()
{
    QStringList names;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::all())
        names += attribute.name();
    return names.join(", "_L1);
}

/// The attribute of that name; null, with a message, where there is none.
RVCatalogueAttribute findAttribute(const QString &name, const Console &console)
{
    const RVCatalogueAttribute attribute = RVCatalogueAttribute::find(name);
    if (attribute.isNull())
        QTextStream(console.messages) << "rvcatalog: there is no attribute \"" << name
                                      << "\"; there are: " << attributeNames() << '\n';
    return attribute;
}

/// Writes rows in columns that are as wide as their widest text.
void writeTable(QTextStream &out, const QList<QStringList> &rows)
{
    QList<qsizetype> widths(rows.first().size());
    for (const QStringList &row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += row.at(i).leftJustified(widths.at(i) + 2);
        while (line.endsWith(u' '))
            line.chop(1);
        out << line << '\n';
    }
}

void writeKeywords(QTextStream &out, const RVCatalogueAttribute &attribute)
{
    QList<QStringList> rows = { { u"VALUE"_s, u"KEYWORD"_s, u"ALIASES"_s, u"NAME"_s } };
    for (const RVCatalogueAttributeValue &value : attribute.values())
        rows += { hexadecimal(value.value), value.keyword, value.aliases.join(", "_L1), value.displayName };
    out << attribute.name() << '\n';
    writeTable(out, rows);
}

void writeDecoding(QTextStream &out, const RVCatalogueAttributeDecoding &decoding)
{
    out << "Value     " << hexadecimal(decoding.value) << '\n';
    if (!decoding.keyword.isEmpty())
        out << "Keyword   " << decoding.keyword << '\n';
    if (!decoding.keywords.isEmpty())
        out << "Bits      " << decoding.keywords.join(", "_L1) << '\n';
    if (!decoding.displayName.isEmpty())
        out << "Name      " << decoding.displayName << '\n';
}

}

int keywordsCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists the keywords of an attribute, or of all attributes: value, the keyword that is written, the "
            u"aliases\n"
            "that are read as well, and the display name where there is one. The attributes are:\n%1."_s.arg(
                    attributeNames()));
    parser.addPositionalArgument(u"ATTRIBUTE"_s, u"The attribute; all where it is missing."_s, u"[ATTRIBUTE]"_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, 1, console, &exitCode))
        return exitCode;

    QList<RVCatalogueAttribute> attributes = RVCatalogueAttribute::all();
    if (!parser.positionalArguments().isEmpty())
        attributes = { findAttribute(parser.positionalArguments().constFirst(), console) };
    if (attributes.constFirst().isNull())
        return EXIT_UNREADABLE;
    QTextStream out(console.output);
    for (const RVCatalogueAttribute &attribute : attributes) {
        if (attribute != attributes.constFirst())
            out << '\n';
        writeKeywords(out, attribute);
    }
    return EXIT_FINE;
}

int decodeCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Reads a list of keywords separated by commas as the ordering application does, and names the pieces "
            u"that\n"
            "are not known, which stand for the default value of the attribute. The attributes are:\n%1."_s.arg(
                    attributeNames()));
    parser.addPositionalArgument(u"ATTRIBUTE"_s, u"The attribute."_s);
    parser.addPositionalArgument(u"TEXT"_s, u"The keywords."_s);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, console, &exitCode))
        return exitCode;
    const RVCatalogueAttribute attribute = findAttribute(parser.positionalArguments().at(0), console);
    if (attribute.isNull())
        return EXIT_UNREADABLE;

    const RVCatalogueAttributeDecoding decoding = attribute.decode(parser.positionalArguments().at(1));
    QTextStream out(console.output);
    writeDecoding(out, decoding);
    out.flush();
    for (const QString &piece : decoding.unknownPieces) {
        QTextStream(console.messages) << "rvcatalog: "
                                      << (piece.isEmpty() ? u"an empty piece is no keyword of "_s
                                                          : u"\"%1\" is no keyword of "_s.arg(piece))
                                      << attribute.name() << "; it stands for the default value\n";
    }
    return decoding.unknownPieces.isEmpty() ? EXIT_FINE : EXIT_PROBLEMS;
}
