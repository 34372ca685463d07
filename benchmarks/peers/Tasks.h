#pragma once

#include "Looks.h"

#include <QMap>
#include <QVector>

#include <functional>

/// What a user meets, done in a process of its own in one look.
namespace Peers {

/// The processor time of this process so far, in nanoseconds, with all of its threads.
double processorTime();

/// The processor time that `work` takes.
double timeOf(const std::function<void()>& work);

/// Lets everything happen that waits to happen, painting included.
void settle();

/// What a task is told by the command line.
struct Order
{
    QString look;
    QString sheet; ///< the file that holds the theme's style sheet
};

/// Named figures, nanoseconds unless the row says otherwise.
using Figures = QMap<QString, double>;

/// `run` makes its application, does its work and returns what it took.
struct Task
{
    QString name;
    std::function<Figures(const Order&)> run;
};

/// A row of the table: a figure of a task, and how it is written.
struct Row
{
    QString title;
    QString task;
    QString figure;
    double unit; ///< what the figures of Fusion are divided by
    QString unitName;
};

/// The figures that the process which runs a task adds to it: of the whole process until its end.
QString processTime();
QString peakMemory();

/// How many widgets there are in windows that tell whether each takes longer among many.
QVector<int> crowds();

/// Whether another look is put on so many widgets: with the largest crowd that takes a minute in
/// every look, as the toolkit compares each widget with all of its siblings.
bool isDressed(int crowd);

void addWindowTasks(QVector<Task>& tasks);
void addGalleryTasks(QVector<Task>& tasks);
void addViewTasks(QVector<Task>& tasks);
void addThemeTasks(QVector<Task>& tasks);

QVector<Task> allTasks();
QVector<Row> allRows();

} // namespace Peers
