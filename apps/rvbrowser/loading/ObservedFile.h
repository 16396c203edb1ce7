#ifndef OBSERVEDFILE_H
#define OBSERVEDFILE_H

#include <QFile>

#include <functional>

class FileCopy;

/// A file that reports with every read how far it was read, and that has no more bytes once the answer is false.
class ObservedFile : public QFile
{
public:
    /// @p progressed gets from 0 to 100 percent, on the thread that reads.
    ObservedFile(const QString &fileName, const std::function<bool(int percent)> &progressed);

    /// @p copy gets all that is read from now on, and outlives the file. Null ends that.
    void setCopy(FileCopy *copy) { myCopy = copy; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    std::function<bool(int)> myProgressed;
    qint64 myRead = 0;
    FileCopy *myCopy = nullptr;
};

#endif
