#ifndef OBSERVEDFILE_H
#define OBSERVEDFILE_H

#include <QFile>

#include <functional>

class FileCopy;

/// A file that tells with every read how far it was read. If the answer is false, the file ends for its reader.
class ObservedFile : public QFile
{
public:
    ObservedFile(const QString &fileName, const std::function<bool(int percent)> &progressed);

    /// Gets all that is read from now on; it outlives the file. Null for none.
    void setCopy(FileCopy *copy) { myCopy = copy; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    std::function<bool(int)> myProgressed;
    qint64 myRead = 0;
    FileCopy *myCopy = nullptr;
};

#endif
