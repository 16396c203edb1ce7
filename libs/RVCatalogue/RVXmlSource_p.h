#ifndef RVXMLSOURCE_P_H
#define RVXMLSOURCE_P_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

class QIODevice;

/**
 * The text of an XML file, converted to UTF-8 from every encoding. A byte order mark or the declaration in the first
 * line names the encoding, which otherwise is UTF-8; iconv converts.
 *
 * UTF-8 passes unchanged, and the parser checks it. In other encodings, invalid bytes end the text, after everything
 * before them.
 */
class RVXmlSource
{
    Q_DECLARE_TR_FUNCTIONS(RVCatalogueReader)
    Q_DISABLE_COPY_MOVE(RVXmlSource)

public:
    /// @p device outlives the source.
    explicit RVXmlSource(QIODevice *device);
    ~RVXmlSource();

    /// The next piece of the text without the byte order mark; empty at the end and after a fault.
    QByteArray read();
    /// The reason why the text ended before the file; empty without a fault.
    QString fault() const { return myFault; }
    /// The message about a text that is not written in its encoding.
    QString wrongEncodingText() const;
    qint64 bytesRead() const { return myBytesRead; }
    /// Both are known after the first read.
    /// @{
    /// The encoding by a name that iconv knows; empty for UTF-8.
    QByteArray encoding() const { return myConverter ? myEncoding : QByteArray(); }
    qint64 markSize() const { return myMarkSize; } ///< The size of the byte order mark in bytes; 0 if there is none.
    /// @}

private:
    class Converter;
    /// The source that shows the encoding.
    enum class Origin {
        Default,
        Declaration,
        FirstBytes,
    };

    QByteArray readDevice(qint64 size);
    QByteArray readBegin();
    void decideOnEncoding(QByteArray *bytes);
    void beginAsDeclared(const QByteArray &bytes);
    void beginAs(const QByteArray &encoding, const QByteArray &bytes);
    QByteArray decoded(const QByteArray &bytes) const;
    QByteArray converted(const QByteArray &bytes);

    QIODevice *myDevice;
    std::unique_ptr<Converter> myConverter; // none for UTF-8
    QByteArray myEncoding; // as declared, or as found
    Origin myOrigin = Origin::Default;
    QByteArray myRest; // the bytes of an incomplete letter
    QString myFault;
    qint64 myBytesRead = 0;
    qint64 myMarkSize = 0;
    bool myHasBegun = false;
};

#endif
