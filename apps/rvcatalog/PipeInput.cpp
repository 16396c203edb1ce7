#include "PipeInput.h"

#include "Interruption.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace {

constexpr int FOREVER = -1;

/// True if there is data to read, or if no more data will come.
bool hasInput(int descriptor, int milliseconds)
{
    pollfd inputs[] = { { descriptor, POLLIN, {} }, { Interruption::descriptor(), POLLIN, {} } };
    // A signal that ends the waiting ends the reading as well.
    return ::poll(inputs, std::size(inputs), milliseconds) != 0;
}

}

PipeInput::PipeInput(int descriptor, Ownership ownership) : myDescriptor(descriptor), myOwnership(ownership)
{
    setOpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

PipeInput::~PipeInput()
{
    if (myOwnership == Owned)
        ::close(myDescriptor);
}

bool PipeInput::atEnd() const
{
    return myIsAtEnd;
}

bool PipeInput::waitForReadyRead(int milliseconds)
{
    return hasInput(myDescriptor, milliseconds);
}

qint64 PipeInput::readData(char *data, qint64 size)
{
    if (size == 0)
        return 0;
    qint64 result = readOnce(data, size);
    while (result < 0 && (errno == EINTR || errno == EAGAIN))
        result = readOnce(data, size);
    if (result < 0)
        setErrorString(qt_error_string(errno));
    myIsAtEnd = result == 0;
    return result;
}

qint64 PipeInput::readOnce(char *data, qint64 size) const
{
    hasInput(myDescriptor, FOREVER);
    return Interruption::signal() == 0 ? ::read(myDescriptor, data, std::size_t(size)) : 0;
}

qint64 PipeInput::writeData(const char *, qint64)
{
    return -1;
}
