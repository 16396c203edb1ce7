#include "FileCopy.h"

#include <QDir>

using namespace Qt::StringLiterals;

FileCopy::FileCopy(const QString &source) : mySource(source), myFile(QDir::tempPath() + "/rvbrowser-XXXXXX.xml"_L1) { }

void FileCopy::append(const char *bytes, qint64 size)
{
    if (!myError.isEmpty())
        return;
    const bool isOpen = myFile.isOpen() || myFile.open();
    if (!isOpen || myFile.write(bytes, size) != size)
        fail();
}

void FileCopy::finish()
{
    if (myFile.isOpen() && !myFile.flush())
        fail();
}

void FileCopy::fail()
{
    myError = myFile.errorString();
    if (myFile.isOpen())
        myFile.remove();
}
