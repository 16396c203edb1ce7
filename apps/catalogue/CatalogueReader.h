#ifndef CATALOGUEREADER_H
#define CATALOGUEREADER_H

#include "CatalogueBatch.h"
#include "FilePosition.h"
#include "Utf8Check.h"

#include <QCoreApplication>
#include <QDomDocument>
#include <QIODevice>
#include <QString>
#include <QXmlStreamReader>

#include <optional>

/// Passes a device on to the parser, but not without bound: neither more than `LIMIT` bytes for one piece of the
/// file, nor the declaration of an entity.
class BoundedInput : public QIODevice
{
public:
    static constexpr qint64 LIMIT = qint64(1024) * 1024;

    explicit BoundedInput(QIODevice *source);

    bool isSequential() const override { return true; }
    /// Counts from 0 again: a piece of the file is done.
    void startPiece() { myPieceSize = 0; }
    /// Entities can be declared before the root element only.
    void leaveProlog() { myInProlog = false; }
    /// Why the input ended before its time; empty while it did not.
    QString refusal() const { return myRefusal; }
    qint64 totalSize() const { return myTotalSize; }
    /// Where the last tag of the prolog begins, which is the root's once that was read.
    FilePosition rootPosition() const { return myTagPosition; }
    /// The first place that was not UTF-8 in what was read.
    std::optional<FilePosition> utf8Fault() const { return myUtf8Check.fault(); }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    qint64 readSource(char *data, qint64 maxSize);
    bool isEnough(const char *data, qint64 size) const;
    qint64 sizeBeforeEntity(const char *data, qint64 size);
    void count(uchar byte);

    QIODevice *mySource;
    QByteArray myProlog; // what was read of it, without the zero bytes of UTF-16
    QString myRefusal;
    Utf8Check myUtf8Check;
    FilePosition myPosition; // in the prolog
    FilePosition myTagPosition;
    qint64 myPieceSize = 0;
    qint64 myTotalSize = 0;
    bool myInProlog = true;
};

/**
 * Reads an XML file in one pass and hands out one element after the other, each as a document of its own, or several
 * in a batch, so that memory does not grow with their number.
 *
 * Elements of the wanted name count wherever they stand, and what is around them may have any name. A file that is not
 * well-formed, ends too early, nests deeper than 256 levels, has an element larger than 1 MiB or declares entities ends
 * the reading with one error; what was handed out before stands.
 */
class CatalogueReader
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueReader)

public:
    /// @p device stays the caller's and outlives the reader.
    CatalogueReader(QIODevice *device, const QString &elementName);

    /// The next element; null at the end of the file and after an error. The previous one becomes invalid.
    QDomElement next();
    /// Appends the elements that follow to the batch, until it has @p textSize code units or more. False, with nothing
    /// appended, at the end of the file and after an error.
    bool read(CatalogueBatch *batch, qsizetype textSize);
    /// The root element as it starts, without its content; null after an error. Instead of next(), and once.
    QDomElement rootStart();
    /// Reads on to the end; false where the rest is not well-formed.
    bool finish();

    /// Where the element that next() returned last begins; where the tag that rootStart() read ends.
    FilePosition position() const { return myPosition; }
    bool atEnd() const { return myXml.atEnd(); } ///< Also after an error.
    qint64 bytesRead() const { return myInput.totalSize(); }
    bool hasError() const { return myXml.hasError(); }
    QString errorString() const;
    FilePosition errorPosition() const;

private:
    FilePosition currentPosition() const;
    FilePosition nextPosition() const;
    std::optional<FilePosition> encodingFault() const;
    bool findElement();
    QXmlStreamReader::TokenType readToken();
    QDomElement appendElement(QDomNode parent);
    QDomElement readContent(const QDomElement &element);
    bool readContent(CatalogueBatch *batch);

    BoundedInput myInput;
    QXmlStreamReader myXml;
    QString myElementName;
    QDomDocument myDocument;
    FilePosition myPosition;
    int myDepth = 0;
    bool myIsUtf8 = true; // as declared
};

#endif
