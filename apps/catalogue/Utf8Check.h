#ifndef UTF8CHECK_H
#define UTF8CHECK_H

#include "FilePosition.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// Finds the first place of a file that is not UTF-8. The file comes in pieces, which may begin and end anywhere.
class Utf8Check
{
public:
    void read(QByteArrayView piece);

    /// None as long as everything was UTF-8, and where the file is in UTF-16.
    std::optional<FilePosition> fault() const { return myFault; }

private:
    void advance(uchar letter, int length);

    QByteArray myRest; // a letter that has not come to its end
    FilePosition myPosition;
    std::optional<FilePosition> myFault;
    bool myIsOther = false; // another encoding, by the first bytes
    bool myIsAtBegin = true;
};

#endif
