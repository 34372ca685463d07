#include "Tasks.h"

#include <ctime>

namespace Peers {

namespace {

constexpr double Milliseconds = 1e6;
constexpr double Microseconds = 1e3;
constexpr double Mebibytes = 1024; ///< of kibibytes

Row milliseconds(const char* title, const char* task, const QString& figure)
{
    return {QLatin1String(title), QLatin1String(task), figure, Milliseconds, QStringLiteral("ms")};
}

Row microseconds(const char* title, const char* task, const char* figure)
{
    return {QLatin1String(title), QLatin1String(task), QLatin1String(figure), Microseconds,
            QStringLiteral("us")};
}

Row count(const char* title, const char* task, const char* figure)
{
    return {QLatin1String(title), QLatin1String(task), QLatin1String(figure), 1, {}};
}

Row perWidget(const char* title, const char* figure, int count)
{
    const QString number = QString::number(count);
    return {QLatin1String(title) % QStringLiteral(", each of ") % number,
            QStringLiteral("crowd ") % number, QLatin1String(figure), Microseconds * count,
            QStringLiteral("us")};
}

} // namespace

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
}

double timeOf(const std::function<void()>& work)
{
    const double start = processorTime();
    work();
    return processorTime() - start;
}

void settle()
{
    constexpr int Rounds = 4;
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

QString processTime()
{
    return QStringLiteral("process");
}

QString peakMemory()
{
    return QStringLiteral("memory");
}

QVector<Task> allTasks()
{
    QVector<Task> tasks;
    addWindowTasks(tasks);
    addGalleryTasks(tasks);
    addViewTasks(tasks);
    addThemeTasks(tasks);
    return tasks;
}

QVector<int> crowds()
{
    return {1'000, 5'000, 20'000};
}

bool isDressed(int crowd)
{
    return crowd <= 5'000;
}

QVector<Row> allRows()
{
    QVector<Row> rows{
        milliseconds("start to the first full paint", "start", processTime()),
        {QStringLiteral("peak memory, all gallery pages"), QStringLiteral("gallery"), peakMemory(),
         Mebibytes, QStringLiteral("MiB")},
        milliseconds("full paint of the gallery, scale 1", "gallery", QStringLiteral("scale1")),
        milliseconds("full paint of the gallery, scale 2", "gallery", QStringLiteral("scale2")),
        microseconds("create, show, destroy, per widget", "widgets", "each"),
        microseconds("hints, rectangles, metrics, per widget", "hints", "each"),
        microseconds("table of 100,000 x 10, by line", "table 100000", "line"),
        microseconds("table, by page", "table 100000", "page"),
        microseconds("table of 1,000 rows, by line", "table 1000", "line"),
        microseconds("table of 1,000,000 rows, by line", "table 1000000", "line"),
        microseconds("tree of 50,000 rows, by line", "tree", "line"),
        microseconds("tree, by page", "tree", "page"),
        microseconds("icon list of 100,000, by line", "icons", "line"),
        microseconds("icon list, by page", "icons", "page"),
        microseconds("mouse move", "mouse", "move"),
        count("repaints of windows by 200 moves", "mouse", "repaints"),
        microseconds("a character typed", "typing", "character"),
        microseconds("a window resized", "resizing", "step"),
        microseconds("a menu or combo box opened", "popups", "each"),
        milliseconds("look put on, no widget", "worn", QStringLiteral("on 0")),
        milliseconds("look put on, 100 widgets", "worn", QStringLiteral("on 100")),
        milliseconds("look put on, 5,000 widgets", "worn", QStringLiteral("on 5000")),
        milliseconds("another one put on, 5,000 widgets", "worn", QStringLiteral("again 5000")),
        count("paint events in 2 s of idling", "idle", "paints"),
    };
    for (const int count : crowds()) {
        rows += perWidget("made and shown", "made", count);
        rows += perWidget("painted", "painted", count);
        if (isDressed(count))
            rows += perWidget("given another look", "worn", count);
        rows += perWidget("destroyed", "destroyed", count);
    }
    return rows;
}

} // namespace Peers
