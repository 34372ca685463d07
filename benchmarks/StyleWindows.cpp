#include "StyleCases.h"
#include "StyleSubjects.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeWidget>

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

void fillMenu(QMenu& menu)
{
    for (const char* name : {"&New\tCtrl+N", "&Open...\tCtrl+O", "&Save\tCtrl+S"})
        menu.addAction(ProbeTheme::pixmap(), text(name));
    menu.addSeparator();
    menu.addMenu(text("&Recent"))->addAction(text("One"));
    for (const char* name : {"Show &grid", "Show &rulers"}) {
        QAction* action = menu.addAction(text(name));
        action->setCheckable(true);
        action->setChecked(true);
    }
    menu.addSeparator();
    menu.addAction(text("Print..."))->setEnabled(false);
    menu.addAction(text("&Quit\tCtrl+Q"));
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
        bar->addAction(ProbeTheme::pixmap(), text(name));
    bar->addSeparator();
    bar->resize(500, 40);
    return paintWhole(bar);
}

QWidget* createForm()
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->addRow(text("Name"), new QLineEdit(text("Specimen")));
    auto* kinds = new QComboBox;
    kinds->addItems({text("Steel"), text("Copper")});
    form->addRow(text("Kind"), kinds);
    auto* editable = new QComboBox;
    editable->setEditable(true);
    form->addRow(text("Maker"), editable);
    form->addRow(text("Count"), new QSpinBox);
    form->addRow(text("Length"), new QDoubleSpinBox);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    form->addRow(text("Force"), slider);
    auto* progress = new QProgressBar;
    progress->setValue(60);
    form->addRow(text("Done"), progress);
    auto* choices = new QGroupBox(text("Options"));
    auto* rows = new QVBoxLayout(choices);
    rows->addWidget(new QCheckBox(text("Keep the log")));
    auto* chosen = new QRadioButton(text("Fast"));
    chosen->setChecked(true);
    rows->addWidget(chosen);
    rows->addWidget(new QRadioButton(text("Thorough")));
    form->addRow(choices);
    auto* buttons = new QHBoxLayout;
    for (const char* name : {"Help", "Reset", "Cancel", "Apply"})
        buttons->addWidget(new QPushButton(text(name)));
    form->addRow(buttons);
    return page;
}

QWidget* createTable()
{
    auto* table = new QTableWidget(20, 4);
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column, new QTableWidgetItem(text("Value")));
    }
    table->selectRow(2);
    return table;
}

QWidget* createTree()
{
    auto* tree = new QTreeWidget;
    for (const char* name : {"Specimens", "Series", "Reports"}) {
        auto* branch = new QTreeWidgetItem(tree, {text(name)});
        for (const char* leaf : {"First", "Second", "Third"})
            new QTreeWidgetItem(branch, {text(leaf)});
    }
    tree->expandAll();
    return tree;
}

std::shared_ptr<QMainWindow> createWindow()
{
    auto window = std::make_shared<QMainWindow>();
    for (const char* title : {"&File", "&Edit", "&View", "&Help"})
        fillMenu(*window->menuBar()->addMenu(text(title)));
    QToolBar* bar = window->addToolBar(text("Tools"));
    for (const char* name : {"New", "Open", "Save", "Cut", "Copy", "Paste"})
        bar->addAction(ProbeTheme::pixmap(), text(name));

    auto* tabs = new QTabWidget;
    tabs->addTab(createForm(), text("Form"));
    tabs->addTab(new QTextEdit, text("Notes"));
    auto* center = new QWidget;
    auto* layout = new QHBoxLayout(center);
    layout->addWidget(tabs);
    layout->addWidget(createTable());
    window->setCentralWidget(center);

    auto* dock = new QDockWidget(text("Project"));
    dock->setWidget(createTree());
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->statusBar()->showMessage(text("Ready"));
    window->resize(1100, 700);
    window->show();
    QCoreApplication::processEvents();
    return window;
}

} // namespace

void addWindows(std::vector<Case>& cases)
{
    cases.push_back({"windows/Menu/painted", paintMenu});
    cases.push_back({"windows/Tabs/painted", paintTabs});
    cases.push_back({"windows/GroupBoxes/painted", paintGroupBoxes});
    cases.push_back({"windows/ToolBar/painted", paintToolBar});
    cases.push_back({"windows/MainWindow/scale1", [] { return paintWhole(createWindow(), 1); }});
    cases.push_back({"windows/MainWindow/scale2", [] { return paintWhole(createWindow(), 2); }});
}

} // namespace StyleBenchmark
