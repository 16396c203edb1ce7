#include "ObservedFile.h"

#include "FileCopy.h"

ObservedFile::ObservedFile(const QString &fileName, const std::function<bool(int)> &progressed)
    : QFile(fileName),
      myProgressed(progressed)
{ }

qint64 ObservedFile::readData(char *data, qint64 maxSize)
{
    const qint64 total = size();
    if (!myProgressed(total > 0 ? int(qMin(qint64(100), myRead * 100 / total)) : 0))
        return -1;
    const qint64 count = QFile::readData(data, maxSize);
    if (count > 0) {
        myRead += count;
        if (myCopy)
            myCopy->append(data, count);
    }
    return count;
}
