#ifndef SOURCELINES_H
#define SOURCELINES_H

#include <QFile>
#include <QString>
#include <QStringDecoder>

/// The lines of a text file, read again to show a place in it. It is quick where lines are asked for in their order.
class SourceLines
{
    Q_DISABLE_COPY_MOVE(SourceLines)

public:
    explicit SourceLines(const QString &fileName);

    /// The line of that number, from 1, without its end; null where the file has none, cannot be read twice because it
    /// is a pipe, or has an encoding that Qt does not know, or a line of a million letters.
    QString line(qint64 number);

private:
    bool begin();
    bool readLine();
    bool readPiece();
    qsizetype findEnd();

    QFile myFile;
    QStringDecoder myDecoder;
    QString myText; // that was read
    qsizetype myBegin = 0; // of what follows the line
    QString myLine;
    qint64 myNumber = 0; // of the line
};

#endif
