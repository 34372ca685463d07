#include "SampleWidgets.h"
#include "Tasks.h"

#include <QFile>
#include <QStyleFactory>
#include <QWidget>

namespace Peers {

namespace {

/// Puts the look on a program that wears another one and shows so many widgets.
Figures worn(const Order& order)
{
    // Every look is put on as an application does it in its first second: over the default one.
    const auto application = createApplication(QStringLiteral("windows"), Dress::Plain, {});
    Figures figures;
    QWidget window;
    int widgets = 0;
    for (const int count : {0, 100, 5000}) {
        application->setStyleSheet({});
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("windows")));
        addSampleWidgets(window, count - widgets);
        widgets = count;
        window.show();
        for (QWidget* widget : window.findChildren<QWidget*>())
            widget->show();
        settle();
        const auto put = [&](bool again) {
            wear(*application, order.look, again, order.sheet);
            settle();
        };
        const QString number = QString::number(count);
        figures[QLatin1String("on ") + number] = timeOf([&] { put(false); });
        figures[QLatin1String("again ") + number] = timeOf([&] { put(true); });
    }
    return figures;
}

/// Writes the style sheet of the theme to the file of the order.
Figures writeSheet(const Order& order)
{
    const auto application = createApplication(order.look, Dress::Plain, {});
    QFile file(order.sheet);
    if (file.open(QIODevice::WriteOnly))
        file.write(application->styleSheet().toUtf8());
    return {};
}

} // namespace

void addThemeTasks(QVector<Task>& tasks)
{
    tasks += {{QStringLiteral("worn"), worn}, {QStringLiteral("sheet"), writeSheet}};
}

} // namespace Peers
