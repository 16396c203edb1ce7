#ifndef SOURCELINES_H
#define SOURCELINES_H

#include <QFile>
#include <QString>
#include <QStringDecoder>

#include <optional>

/// The lines of a text file, read again to show a place in it. Access in the order of the lines is fast.
class SourceLines
{
    Q_DISABLE_COPY_MOVE(SourceLines)

public:
    explicit SourceLines(const QString &fileName);

    /// The line with that number, from 1, without its end. Null if the file has no such line, cannot be read twice
    /// because it is a pipe, has an encoding that Qt does not know, or has a line of a million letters.
    QString line(qint64 number);

private:
    bool begin();
    bool readLine();
    bool readPiece();
    std::optional<qsizetype> findLength();

    QFile myFile;
    QStringDecoder myDecoder;
    QString myText; // the text that was read
    qsizetype myBegin = 0; // of the text behind the line
    QString myLine;
    qint64 myNumber = 0; // of the line
};

#endif
