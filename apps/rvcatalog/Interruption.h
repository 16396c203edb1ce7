#ifndef INTERRUPTION_H
#define INTERRUPTION_H

#include <QtGlobal>

/// Lets SIGINT and SIGTERM ask the process to stop, while an object exists, so that it can complete its output. A
/// further signal ends the process at once if it comes 0.4 seconds later or more. Ignored signals stay ignored. Any
/// thread.
class Interruption
{
    Q_DISABLE_COPY_MOVE(Interruption)

public:
    Interruption();
    ~Interruption();

    /// The signal that came; 0 without one.
    static int signal();
    /// The exit code that shells use for a program which @p signal has ended.
    static constexpr int exitCode(int signal) { return 128 + signal; }
    /// A file descriptor that becomes readable when a signal comes; -1 without an Interruption object.
    static int descriptor();
};

#endif
