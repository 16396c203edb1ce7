#ifndef TERMINAL_H
#define TERMINAL_H

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

/// A terminal of which the test is the user.
class Terminal
{
    Q_DISABLE_COPY_MOVE(Terminal)

public:
    Terminal() : myUser(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (::grantpt(myUser) == 0 && ::unlockpt(myUser) == 0)
            myProgram = ::open(::ptsname(myUser), O_RDWR | O_NOCTTY);
    }
    ~Terminal()
    {
        ::close(myUser);
        ::close(myProgram);
    }

    /// The side of a program; negative if there is no terminal.
    int descriptor() const { return myProgram; }
    /// The output so far. The terminal splits it into its own pieces.
    QByteArray shown()
    {
        char piece[4096];
        for (auto size = ::read(myUser, piece, sizeof piece); size > 0; size = ::read(myUser, piece, sizeof piece))
            myShown.append(piece, size);
        return myShown;
    }

private:
    int myUser;
    int myProgram = -1;
    QByteArray myShown;
};

#endif
