#include "KeywordTexts.h"
#include "SubCommands.h"
#include "Suggestion.h"

#include <RVCatalogueAttribute.h>

#include <QCommandLineParser>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QStringList attributeNames()
{
    QStringList names;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::all())
        names += attribute.name();
    return names;
}

/// The attribute with that name; null, with a message, if there is none.
RVCatalogueAttribute findAttribute(const QString &name, const Console &console)
{
    const RVCatalogueAttribute attribute = RVCatalogueAttribute::find(name);
    if (attribute.isNull())
        QTextStream(console.messages) << "rvcatalog: there is no attribute \"" << name
                                      << "\"; there are: " << attributeNames().join(", "_L1)
                                      << didYouMean(name, attributeNames()) << '\n';
    return attribute;
}

/// The lines of the standard input, or the one text that was given.
QStringList givenTexts(const QString &text, const Console &console)
{
    if (text != "-"_L1)
        return { text };
    QTextStream in(console.openInput()->readAll());
    QStringList result;
    for (QString line = in.readLine(); !line.isNull(); line = in.readLine())
        result += line;
    return result;
}

/// Names the pieces that are no keywords, and returns the exit code.
int reportUnknown(const RVCatalogueAttribute &attribute, const QList<KeywordDecoding> &decodings,
                  const Console &console)
{
    int result = EXIT_FINE;
    for (const KeywordDecoding &decoding : decodings) {
        for (const QString &piece : decoding.meaning.unknownPieces) {
            result = EXIT_PROBLEMS;
            QTextStream(console.messages) << "rvcatalog: "
                                          << (piece.isEmpty() ? u"an empty piece is no keyword of "_s
                                                              : u"\"%1\" is no keyword of "_s.arg(piece))
                                          << attribute.name() << "; it stands for the default value\n";
        }
    }
    return result;
}

}

int keywordsCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Lists the keywords of an attribute, or of all attributes: the value, the main keyword, its aliases, and\n"
            "the display name. The attributes are:\n%1."_s.arg(attributeNames().join(", "_L1)));
    parser.addPositionalArgument(u"ATTRIBUTE"_s, u"The attribute; without it, all attributes."_s, u"[ATTRIBUTE]"_s);
    const QCommandLineOption format = formatOption({ u"text"_s, u"json"_s });
    parser.addOption(format);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 0, 1, console, &exitCode))
        return exitCode;

    QList<RVCatalogueAttribute> attributes = RVCatalogueAttribute::all();
    if (!parser.positionalArguments().isEmpty())
        attributes = { findAttribute(parser.positionalArguments().constFirst(), console) };
    if (attributes.constFirst().isNull())
        return EXIT_UNREADABLE;
    if (parser.value(format) == "json"_L1)
        console.write(keywordsJson(attributes));
    else
        writeKeywords(attributes, console);
    return EXIT_FINE;
}

int decodeCommand(const QStringList &arguments, const Console &console)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
            u"Reads a list of keywords separated by commas as the ordering application does, and names the unknown\n"
            "keywords, which stand for the default value of the attribute. The attributes are:\n%1."_s.arg(
                    attributeNames().join(", "_L1)));
    parser.addPositionalArgument(u"ATTRIBUTE"_s, u"The attribute."_s);
    parser.addPositionalArgument(u"TEXT"_s,
                                 u"The keywords; \"-\" reads lists from the standard input, one from each line."_s);
    const QCommandLineOption format = formatOption({ u"text"_s, u"json"_s });
    parser.addOption(format);
    int exitCode = EXIT_FINE;
    if (!parseArguments(parser, arguments, 2, 2, console, &exitCode))
        return exitCode;
    const RVCatalogueAttribute attribute = findAttribute(parser.positionalArguments().at(0), console);
    if (attribute.isNull())
        return EXIT_UNREADABLE;

    QList<KeywordDecoding> decodings;
    for (const QString &text : givenTexts(parser.positionalArguments().at(1), console))
        decodings += { text, attribute.decode(text) };
    if (parser.value(format) == "json"_L1)
        console.write(decodingsJson(attribute, decodings));
    else
        writeDecodings(decodings, console);
    console.flush();
    return reportUnknown(attribute, decodings, console);
}
