#ifndef INTERRUPTION_H
#define INTERRUPTION_H

#include <QtGlobal>

/// While one exists, SIGINT and SIGTERM do not end the process but ask it to stop: what is written can be brought to a
/// clean end. Such a signal that comes 0.4 seconds later, or still later, ends it at once. A signal that the process
/// ignores stays so. Any thread.
class Interruption
{
    Q_DISABLE_COPY_MOVE(Interruption)

public:
    Interruption();
    ~Interruption();

    /// The signal that came; 0 while none did.
    static int signal();
    /// The exit code that shells use for a program which @p signal has ended.
    static constexpr int exitCode(int signal) { return 128 + signal; }
    /// Can be read from once a signal came; -1 while there is no interruption.
    static int descriptor();
};

#endif
