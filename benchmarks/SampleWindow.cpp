#include "SampleWindow.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
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

namespace StyleBenchmark {

namespace {

QString text(const char* latin1)
{
    return QLatin1String(latin1);
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

} // namespace

QPixmap picture()
{
    constexpr int Size = 16;
    constexpr QColor Ink(0xE5, 0xEE, 0xF4);
    QPixmap pixmap(Size, Size);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(pixmap.rect().adjusted(2, 2, -2, -2), Ink);
    return pixmap;
}

void fillMenu(QMenu& menu)
{
    for (const char* name : {"&New\tCtrl+N", "&Open...\tCtrl+O", "&Save\tCtrl+S"})
        menu.addAction(picture(), text(name));
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

std::unique_ptr<QMainWindow> createWindow()
{
    auto window = std::make_unique<QMainWindow>();
    for (const char* title : {"&File", "&Edit", "&View", "&Help"})
        fillMenu(*window->menuBar()->addMenu(text(title)));
    QToolBar* bar = window->addToolBar(text("Tools"));
    for (const char* name : {"New", "Open", "Save", "Cut", "Copy", "Paste"})
        bar->addAction(picture(), text(name));

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
    return window;
}

} // namespace StyleBenchmark
