#include "StyleWorkers.h"

#include "StyleCases.h"
#include "ThemeQApplication.h"

#include <QStyleFactory>

#include <algorithm>
#include <ctime>
#include <memory>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace StyleBenchmark {

namespace {

constexpr double BatchNanoseconds = 1e6;

/// Time that other processes take does not count.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
}

double timeOf(const Work& work, int runs)
{
    const double start = processorTime();
    for (int i = 0; i < runs; ++i)
        work.run();
    return (processorTime() - start) / runs;
}

/// Runs one case at a time, prepared when it is first asked for.
class Runner
{
public:
    double measure(int index)
    {
        if (index != m_index)
            start(index);
        return timeOf(m_work, m_runs) / m_work.units;
    }

private:
    void start(int index)
    {
        m_work = {};
        m_work = m_cases.at(size_t(index)).prepare();
        m_index = index;
        m_work.run(); // fills caches
        const double once = std::max(timeOf(m_work, 2), 1.0);
        m_runs = std::max(1, int(BatchNanoseconds / once));
    }

    std::vector<Case> m_cases = allCases();
    Work m_work;
    int m_index = -1;
    int m_runs = 1;
};

std::unique_ptr<QApplication> createApplication(Look look, const std::string& theme,
                                                const std::string& repository)
{
    static int sCount = 1;
    static char sName[] = "bench_Style";
    static char* sArguments[] = {sName, nullptr};
    // Without the style, palette and sheets the theme still brings its font and its icons: texts
    // cost the same in all looks.
    if (look == Look::Fusion)
        qputenv("BRELK_USE_NATIVE_STYLE", "1");
    auto application = std::make_unique<BRELK::ThemeQApplication>(
        sCount, sArguments, QString::fromStdString(theme), QString::fromStdString(repository));
    if (look == Look::Fusion)
        QApplication::setStyle(QStringLiteral("fusion"));
    if (look == Look::Style)
        application->setStyleSheet(QString());
    return application;
}

[[noreturn]] void serve(int socket, Look look, const std::string& theme,
                        const std::string& repository)
{
    const std::unique_ptr<QApplication> application = createApplication(look, theme, repository);
    Runner runner;
    int index = 0;
    while (application && read(socket, &index, sizeof index) == sizeof index) {
        const double time = runner.measure(index);
        if (write(socket, &time, sizeof time) != sizeof time)
            break;
    }
    _exit(0); // what the parent would clean up at its end is not this process's
}

} // namespace

Worker::Worker(Look look, const std::string& theme, const std::string& repository)
{
    int sockets[2] = {-1, -1};
    socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets);
    m_process = fork();
    if (m_process == 0) {
        close(sockets[0]);
        serve(sockets[1], look, theme, repository);
    }
    close(sockets[1]);
    m_socket = sockets[0];
}

Worker::~Worker()
{
    close(m_socket);
    if (m_process > 0)
        waitpid(m_process, nullptr, 0);
}

double Worker::measure(int index) const
{
    double time = -1;
    if (send(m_socket, &index, sizeof index, MSG_NOSIGNAL) != sizeof index
        || recv(m_socket, &time, sizeof time, MSG_WAITALL) != sizeof time)
        return -1;
    return time;
}

} // namespace StyleBenchmark
