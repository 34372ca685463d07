#include "Child.h"

#include <QFile>

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Peers {

namespace {

double nanoseconds(const timeval& time)
{
    return double(time.tv_sec) * 1e9 + double(time.tv_usec) * 1e3;
}

QByteArray everything(int descriptor)
{
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    return file.readAll();
}

/// Lines of a name, a tabulator and a number.
Figures readFigures(const QByteArray& lines)
{
    Figures figures;
    for (const QByteArray& line : lines.split('\n')) {
        const int tab = line.indexOf('\t');
        if (tab > 0)
            figures[QString::fromUtf8(line.left(tab))] = line.mid(tab + 1).toDouble();
    }
    return figures;
}

/// The process, whose standard output goes to `output`; negative when there is none.
pid_t spawn(const QVector<QByteArray>& arguments, int output)
{
    QVector<char*> pointers;
    for (const QByteArray& argument : arguments)
        pointers.append(const_cast<char*>(argument.constData()));
    pointers.append(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t process = -1;
    if (posix_spawn(&process, "/proc/self/exe", &actions, nullptr, pointers.data(), environ) != 0)
        process = -1;
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

Figures runInProcess(const QString& task, const Order& order)
{
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0)
        return {};
    const pid_t process = spawn({"varn-peers", "--task", task.toUtf8(), "--look",
                                 order.look.toUtf8(), "--sheet", order.sheet.toUtf8()},
                                pipe[1]);
    close(pipe[1]);
    Figures figures = readFigures(everything(pipe[0]));
    int status = -1;
    rusage usage{};
    if (process < 0 || wait4(process, &status, 0, &usage) != process || status != 0)
        return {};
    figures[processTime()] = nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime);
    figures[peakMemory()] = double(usage.ru_maxrss);
    return figures;
}

} // namespace Peers
