#include "SampleWindow.h"
#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGroupBox>
#include <QMainWindow>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>

// Whole widgets as they paint themselves, and a window with some of everything.

namespace StyleBenchmark {

namespace {

QString text(const char* latin1)
{
    return QLatin1String(latin1);
}

Work paintWhole(const std::shared_ptr<QWidget>& widget, qreal scale = 1)
{
    widget->ensurePolished();
    auto canvas = std::make_shared<Canvas>(widget->size(), scale);
    return {[=] { widget->render(&canvas->painter); }};
}

Work paintMenu()
{
    auto menu = std::make_shared<QMenu>();
    fillMenu(*menu);
    menu->resize(menu->sizeHint());
    return paintWhole(menu);
}

Work paintTabs()
{
    auto tabs = std::make_shared<QTabWidget>();
    for (const char* name : {"General", "Display", "Network", "Advanced", "About"})
        tabs->addTab(new QWidget, text(name));
    tabs->resize(800, 80); // room for all tabs in every look
    return paintWhole(tabs);
}

Work paintGroupBoxes()
{
    auto widget = std::make_shared<QWidget>();
    auto* layout = new QVBoxLayout(widget.get());
    for (const char* title : {"Size", "Color", "Place"})
        layout->addWidget(new QGroupBox(text(title)));
    widget->resize(300, 400);
    return paintWhole(widget);
}

Work paintToolBar()
{
    auto bar = std::make_shared<QToolBar>();
    for (const char* name : {"New", "Open", "Save", "Cut", "Copy", "Paste", "Undo", "Redo"})
        bar->addAction(picture(), text(name));
    bar->addSeparator();
    bar->resize(500, 40);
    return paintWhole(bar);
}

Work paintWindow(qreal scale)
{
    const std::shared_ptr<QMainWindow> window = createWindow();
    window->show();
    QCoreApplication::processEvents();
    return paintWhole(window, scale);
}

} // namespace

void addWindows(std::vector<Case>& cases)
{
    cases.push_back({"windows/Menu/painted", paintMenu});
    cases.push_back({"windows/Tabs/painted", paintTabs});
    cases.push_back({"windows/GroupBoxes/painted", paintGroupBoxes});
    cases.push_back({"windows/ToolBar/painted", paintToolBar});
    cases.push_back({"windows/MainWindow/scale1", [] { return paintWindow(1); }});
    cases.push_back({"windows/MainWindow/scale2", [] { return paintWindow(2); }});
}

} // namespace StyleBenchmark
