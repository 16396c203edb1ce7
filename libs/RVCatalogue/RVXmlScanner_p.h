#ifndef RVXMLSCANNER_P_H
#define RVXMLSCANNER_P_H

#include "RVFilePosition.h"
#include "RVFileRange.h"
#include "RVXmlSource_p.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QCoreApplication>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QIODevice;
// NOLINTBEGIN(bugprone-reserved-identifier): the names are libxml2's
struct _xmlError;
struct _xmlParserCtxt;
// NOLINTEND(bugprone-reserved-identifier)

/// A start tag, valid as long as its handler runs.
struct RVXmlTag
{
    QByteArrayView text; ///< as it stands in the file, in UTF-8, from "<" to ">"
    QByteArrayView name;
    const unsigned char *const *attributes; ///< five pointers each; name spaces are not among them
    int givenAttributes; ///< the number of those in the tag, in the same order
    int allAttributes; ///< the number with those that only the document type gives
    RVFilePosition position;

    /// An attribute as the parser reads it.
    /// @{
    QByteArray attributeName(int index) const;
    QByteArrayView attributeValue(int index) const;
    /// @}
};

/// A comment, valid as long as its handler runs.
struct RVXmlComment
{
    QByteArrayView text; ///< between `<!--` and `-->` as it stands in the file, in UTF-8
    RVFileRange range; ///< from `<!--` to `-->`
};

/// Receives the elements that RVXmlScanner finds.
class RVXmlHandler
{
    Q_DISABLE_COPY_MOVE(RVXmlHandler)

public:
    RVXmlHandler() = default;
    virtual ~RVXmlHandler();

    virtual void startElement(const RVXmlTag &tag) = 0;
    virtual void endElement() = 0;
    /// Handles a comment; the default does nothing.
    virtual void comment(const RVXmlComment &comment);
    /// True while the events belong to one piece of the file, which may have at most 1 MiB.
    virtual bool isInPiece() const = 0;
};

/**
 * Finds the elements of an XML file, piece by piece. It refuses files that are not well-formed. To limit memory and
 * time, it also refuses entities, deep nesting and large pieces. libxml2 parses; this class makes the texts and the
 * places of errors.
 */
class RVXmlScanner
{
    Q_DECLARE_TR_FUNCTIONS(RVCatalogueReader)
    Q_DISABLE_COPY_MOVE(RVXmlScanner)

public:
    /// @p device and @p handler outlive the scanner.
    RVXmlScanner(QIODevice *device, RVXmlHandler *handler);
    ~RVXmlScanner();

    /// The message about a file that could not be opened.
    static QString openError(const QIODevice &file);

    /// Parses the next piece of the file; false at the end and after an error.
    bool scan();

    bool isAtEnd() const { return myIsAtEnd; } ///< True also after an error.
    QString errorString() const { return myError; } ///< Empty without an error.
    RVFilePosition errorPosition() const { return myErrorPosition; }
    qint64 bytesRead() const { return mySource.bytesRead(); }

private:
    struct Events;
    struct OpenElement
    {
        qsizetype nameBegin; // in myOpenNames, up to its end
        qint64 line;
    };
    struct FreeParser
    {
        void operator()(_xmlParserCtxt *parser) const;
    };

    void parse(QByteArrayView text);
    void bite(QByteArrayView text);
    bool isXml(QByteArrayView text);
    void end();
    void startElement(const unsigned char *const *attributes, int givenAttributes, int allAttributes);
    void endElement();
    void comment();
    void passOver();
    void refuseEntity();
    void refuseUnknownEntity(const QString &name, QByteArrayView before);
    void judge(const _xmlError &error);
    void moveTo(qint64 index);
    qint64 parsed() const;
    QByteArrayView textBefore(qint64 index) const;
    QByteArrayView textFrom(qint64 index) const;
    RVFilePosition position(qint64 index) const;
    void beginPiece(qint64 index);
    void checkPiece(qint64 end);
    void fail(const QString &error, const RVFilePosition &position);
    void failAt(const QString &error, qint64 index);
    void failEarly();
    QString parserError(const _xmlError &error, QByteArrayView before) const;
    QByteArrayView innermostName() const;
    QString wrongEnd(QByteArrayView text) const;
    std::optional<QString> wrongLetter(QByteArrayView text) const;

    RVXmlSource mySource;
    RVXmlHandler *myHandler;
    std::unique_ptr<_xmlParserCtxt, FreeParser> myParser;
    QByteArray myWindow; // the text since the last event of the previous piece
    qint64 myWindowBegin = 0; // in the whole text
    qsizetype myEvent = 0; // the last one, in the window
    RVFilePosition myPosition; // of the last event
    qint64 myPieceBegin = 0;
    RVFilePosition myPiecePosition;
    std::vector<OpenElement> myOpenElements;
    QByteArray myOpenNames; // of all of them, one behind the other
    QString myError;
    RVFilePosition myErrorPosition;
    qint64 myFed = 0; // the number of bytes given to the parser
    bool myHasMarkup = false;
    bool myHasElements = false;
    bool myIsEnding = false;
    bool myIsAtEnd = false;
};

#endif
