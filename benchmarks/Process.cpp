#include "Process.h"

#include <QFile>

#include <cstdlib>
#include <iostream>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

}

Process::Process(const Command &command, int input, int output)
    : myName(command.front()),
      myStart(std::chrono::steady_clock::now())
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str())); // which posix_spawn() does not change
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    if (posix_spawn(&myId, arguments.front(), &actions, nullptr, arguments.data(), environ) != 0)
        fail("cannot start " + myName);
    posix_spawn_file_actions_destroy(&actions);
}

ProcessUsage Process::wait()
{
    int status = 0;
    rusage usage {};
    if (wait4(myId, &status, 0, &usage) != myId || status != 0)
        fail(myName + " failed");
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - myStart;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): glibc declares it like this
    return { elapsed.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime), double(usage.ru_maxrss) / 1024 };
}

ProcessUsage runProcess(const Command &command, const QString &outputFileName)
{
    QFile input(QStringLiteral("/dev/null"));
    QFile output(outputFileName);
    if (!input.open(QIODevice::ReadOnly) || !output.open(QIODevice::WriteOnly))
        fail("cannot write " + outputFileName.toStdString());
    return Process(command, input.handle(), output.handle()).wait();
}

void fail(const std::string &message)
{
    std::cerr << message << '\n';
    std::exit(EXIT_FAILURE);
}
