#ifndef PIPEINPUT_H
#define PIPEINPUT_H

#include <QIODevice>

/// The input from a pipe or a terminal as soon as it arrives: a read returns the available data and waits only if there
/// is none. An interruption ends the waiting like the end of the input.
class PipeInput : public QIODevice
{
    Q_DISABLE_COPY_MOVE(PipeInput)

public:
    enum Ownership { Borrowed, Owned };

    /// An owned @p descriptor is closed by the destructor.
    PipeInput(int descriptor, Ownership ownership);
    ~PipeInput() override;

    bool isSequential() const override { return true; }
    bool atEnd() const override;
    /// True if a read would not wait.
    bool waitForReadyRead(int milliseconds) override;

protected:
    qint64 readData(char *data, qint64 size) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    qint64 readOnce(char *data, qint64 size) const;

    int myDescriptor;
    Ownership myOwnership;
    bool myIsAtEnd = false;
};

#endif
