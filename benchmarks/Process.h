#ifndef PROCESS_H
#define PROCESS_H

#include <QString>
#include <QtGlobal>

#include <chrono>
#include <string>
#include <vector>

#include <sys/types.h>

/// A program, with its path and arguments.
using Command = std::vector<std::string>;

/// The resources that a process used from its start to its end.
struct ProcessUsage
{
    double seconds = 0; ///< The elapsed time.
    double processorSeconds = 0; ///< The time of all its threads, in the program and in the system.
    double peakMegabytes = 0;
};

/**
 * Another program, which reads from one file descriptor and writes to another.
 *
 * The peak of a process is never below that of its parent, so the measuring program stays small.
 */
class Process
{
    Q_DISABLE_COPY_MOVE(Process)

public:
    Process(const Command &command, int input, int output);
    ~Process() = default;

    /// Waits for the end, once. If the program fails, this one fails as well.
    ProcessUsage wait();

private:
    std::string myName;
    pid_t myId = 0;
    std::chrono::steady_clock::time_point myStart;
};

/// Runs a program from its start to its end. Nothing can be read from its standard input.
ProcessUsage runProcess(const Command &command, const QString &outputFileName = QStringLiteral("/dev/null"));

/// Ends this program with a message.
[[noreturn]] void fail(const std::string &message);

#endif
