#ifndef RVXMLSOURCE_P_H
#define RVXMLSOURCE_P_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <memory>

class QIODevice;

/**
 * The text of an XML file, in UTF-8 whatever the file is written in. A byte order mark or the declaration in its first
 * line says what that is, UTF-8 otherwise; iconv does the rest.
 *
 * UTF-8 goes through as it is, for the parser to judge. Bytes that no letter has in another encoding end the text,
 * after all that stands before them.
 */
class RVXmlSource
{
    Q_DECLARE_TR_FUNCTIONS(RVCatalogueReader)
    Q_DISABLE_COPY_MOVE(RVXmlSource)

public:
    /// @p device outlives the source.
    explicit RVXmlSource(QIODevice *device);
    ~RVXmlSource();

    /// The next piece of the text without the byte order mark; empty at the end, and when there is a fault.
    QByteArray read();
    /// The reason why the text ended before the file did; empty while it did not.
    QString fault() const { return myFault; }
    /// The message about a text that is not written in its encoding.
    QString wrongEncodingText() const;
    qint64 bytesRead() const { return myBytesRead; }
    /// Both are known once something was read.
    /// @{
    /// The encoding by a name that iconv knows; empty for UTF-8.
    QByteArray encoding() const { return myConverter ? myEncoding : QByteArray(); }
    qint64 markSize() const { return myMarkSize; } ///< Of the byte order mark in bytes; 0 where there is none.
    /// @}

private:
    class Converter;
    /// The source from which the encoding is known.
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
    QByteArray myRest; // a letter that has not come to its end
    QString myFault;
    qint64 myBytesRead = 0;
    qint64 myMarkSize = 0;
    bool myHasBegun = false;
};

#endif
