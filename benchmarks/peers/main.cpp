#include "Child.h"
#include "Tasks.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <QTextStream>

#include <algorithm>
#include <unistd.h>

// What a user of a program meets, in every look that is installed: each task runs in a process of
// its own, the looks take turns, and every figure is compared with Fusion's of the same round.

namespace {

using namespace Peers;

struct Call
{
    QString task;
    Order order;
    int rounds = 5;
    QStringList looks;
    QRegularExpression rows;
};

Call readArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Prints what a user meets in each look as a ratio to Fusion: the median over all rounds "
        "and half of the range of the middle half."));
    parser.addHelpOption();
    const QString name = QStringLiteral("name");
    const QCommandLineOption task(QStringLiteral("task"), QStringLiteral("run one task"), name);
    const QCommandLineOption look(QStringLiteral("look"), QStringLiteral("in this look"), name);
    const QCommandLineOption sheet(
        QStringLiteral("sheet"), QStringLiteral("the theme's style sheet"), QStringLiteral("file"));
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("rounds, 5"),
                                    QStringLiteral("count"), QStringLiteral("5"));
    const QCommandLineOption looks(QStringLiteral("looks"), QStringLiteral("these looks only"),
                                   QStringLiteral("a,b"));
    const QCommandLineOption rows(QStringLiteral("rows"), QStringLiteral("matching rows only"),
                                  QStringLiteral("regexp"));
    parser.addOptions({task, look, sheet, rounds, looks, rows});
    if (!parser.parse(arguments)) {
        QTextStream(stderr) << parser.errorText() << '\n';
        std::exit(2);
    }
    if (parser.isSet(QStringLiteral("help"))) {
        char program[] = "varn-peers";
        char* names[] = {program, nullptr};
        int count = 1;
        const QCoreApplication application(count, names); // the help names its program
        QTextStream(stdout) << parser.helpText();
        std::exit(0);
    }
    Call call{parser.value(task),
              {parser.value(look), parser.value(sheet)},
              qMax(1, parser.value(rounds).toInt()),
              allLooks(),
              QRegularExpression(parser.value(rows))};
    if (parser.isSet(looks))
        call.looks = QStringList(fusion()) + parser.value(looks).split(QLatin1Char(','));
    call.looks.removeDuplicates();
    return call;
}

/// One task in this process; its end is that of the process: nobody waits for an application to be
/// taken apart.
[[noreturn]] void runTask(const Call& call)
{
    const QVector<Task> tasks = allTasks();
    const auto task = std::find_if(tasks.begin(), tasks.end(),
                                   [&](const Task& other) { return other.name == call.task; });
    if (task == tasks.end())
        _exit(2);
    QTextStream out(stdout);
    const Figures figures = task->run(call.order);
    for (auto figure = figures.begin(); figure != figures.end(); ++figure)
        out << figure.key() << '\t' << QString::number(figure.value(), 'f', 1) << '\n';
    out.flush();
    _exit(0);
}

/// [task][look][round]
using Results = QMap<QString, QMap<QString, QVector<Figures>>>;

Results measure(const Call& call, const QVector<Row>& rows)
{
    QStringList tasks;
    for (const Row& row : rows)
        tasks.append(row.task);
    tasks.removeDuplicates();
    Results results;
    QTextStream progress(stderr);
    for (int round = 0; round < call.rounds; ++round) {
        for (const QString& task : qAsConst(tasks)) {
            progress << "\rround " << round + 1 << " of " << call.rounds << ": " << task
                     << "          " << Qt::flush;
            for (const QString& look : call.looks)
                results[task][look].append(runInProcess(task, {look, call.order.sheet}));
        }
    }
    progress << '\n';
    return results;
}

double quantile(const QVector<double>& sorted, double share)
{
    const double place = share * (sorted.size() - 1);
    const int below = int(place);
    const int above = qMin(below + 1, int(sorted.size()) - 1);
    return sorted.at(below) + (place - below) * (sorted.at(above) - sorted.at(below));
}

/// "0.85 ±3 %": the median, and half of the range of the middle half as a share of it.
QString cell(QVector<double> ratios)
{
    if (ratios.isEmpty())
        return QStringLiteral("–");
    std::sort(ratios.begin(), ratios.end());
    const double median = quantile(ratios, 0.5);
    const double spread = (quantile(ratios, 0.75) - quantile(ratios, 0.25)) / 2;
    return QString::number(median, 'f', 2) % QStringLiteral(" ±")
           % QString::number(median > 0 ? 100 * spread / median : 0, 'f', 0) % QLatin1Char('%');
}

QVector<double> ratiosTo(const QVector<Figures>& fusion, const QVector<Figures>& look,
                         const QString& figure)
{
    QVector<double> ratios;
    for (int round = 0; round < look.size(); ++round) {
        const double base = fusion.at(round).value(figure);
        if (base > 0 && look.at(round).contains(figure))
            ratios.append(look.at(round).value(figure) / base);
    }
    return ratios;
}

QVector<double> sortedFigures(const QVector<Figures>& rounds, const QString& figure)
{
    QVector<double> figures;
    for (const Figures& round : rounds) {
        if (round.contains(figure))
            figures.append(round.value(figure));
    }
    std::sort(figures.begin(), figures.end());
    return figures;
}

/// A figure as it is; of counts, zero is a figure too.
QString absolute(const QVector<Figures>& rounds, const Row& row)
{
    const QVector<double> figures = sortedFigures(rounds, row.figure);
    if (figures.isEmpty())
        return QStringLiteral("–");
    const double median = quantile(figures, 0.5) / row.unit;
    return QString::number(median, 'f', median < 10 && row.unit > 1 ? 2 : 0) % QLatin1Char(' ')
           % row.unitName;
}

void print(const Call& call, const QVector<Row>& rows, const Results& results)
{
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << "| |";
    for (const QString& look : call.looks)
        out << ' ' << look << " |";
    out << "\n|---|" << QStringLiteral("--:|").repeated(call.looks.size()) << '\n';
    for (const Row& row : rows) {
        const auto& task = results[row.task];
        const bool isCount = row.unit == 1;
        out << "| " << row.title << " |";
        for (const QString& look : call.looks) {
            const bool isBase = isCount || look == fusion();
            out << ' '
                << (isBase ? absolute(task[look], row)
                           : cell(ratiosTo(task[fusion()], task[look], row.figure)))
                << " |";
        }
        out << '\n';
    }
}

/// The same surroundings for everybody.
void prepareSurroundings()
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen")
                                                                    : qgetenv("QT_QPA_PLATFORM"));
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_LOGGING_RULES", "*.debug=false;default.warning=false;qt.qpa.*=false");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const Call call = readArguments(arguments);
    if (!call.task.isEmpty())
        runTask(call);

    prepareSurroundings();
    QVector<Row> rows;
    for (const Row& row : allRows()) {
        if (call.rows.match(row.title).hasMatch())
            rows.append(row);
    }
    QTemporaryFile sheet;
    if (!sheet.open())
        return 1;
    Call whole = call;
    whole.order.sheet = sheet.fileName();
    runInProcess(QStringLiteral("sheet"), {QStringLiteral("theme"), sheet.fileName()});
    print(whole, rows, measure(whole, rows));
    return 0;
}
