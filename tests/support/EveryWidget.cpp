#include "EveryWidget.h"

#include <QtWidgets>

namespace EveryWidget {

namespace {

QString text(const char* text)
{
    return QString::fromLatin1(text);
}

void addBars(QMainWindow& window)
{
    QMenu* menu = window.menuBar()->addMenu(text("Menu"));
    QToolBar* bar = window.addToolBar(text("Bar"));
    for (const QString& name : {text("action.close"), text("action.delete"), text("edit-copy")}) {
        QAction* action = menu->addAction(QIcon::fromTheme(name), name);
        action->setEnabled(name != text("action.delete"));
        action->setChecked(name == text("action.close"));
        bar->addAction(action);
    }
    auto* dock = new QDockWidget(text("Dock"));
    dock->setWidget(new QPlainTextEdit(text("Words")));
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    window.statusBar()->showMessage(text("Status"));
}

template <class View>
View* filled(View* view)
{
    auto* model = new QStandardItemModel(3, 2, view);
    for (int row = 0; row < model->rowCount(); ++row)
        for (int column = 0; column < model->columnCount(); ++column)
            model->setItem(row, column, new QStandardItem(text("Item")));
    view->setModel(model);
    view->setCurrentIndex(model->index(1, 0));
    return view;
}

QLayout* inputs()
{
    auto* layout = new QVBoxLayout;
    auto* edit = new QLineEdit(text("Words"));
    edit->setClearButtonEnabled(true);
    auto* combo = new QComboBox;
    combo->addItems({text("One"), text("Two")});
    auto* disabled = new QLabel(text("Disabled"));
    disabled->setEnabled(false);
    auto* check = new QCheckBox(text("Check"));
    check->setChecked(true);
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    auto* progress = new QProgressBar;
    progress->setValue(60);
    for (QWidget* widget : std::initializer_list<QWidget*>{
             new QPushButton(text("Button")), edit, combo, disabled, check, slider, progress,
             new QSpinBox, new QCommandLinkButton(text("Link")), new QDateEdit,
             new QLabel(text("Label")), new QRadioButton(text("Radio"))})
        layout->addWidget(widget);
    return layout;
}

QLayout* containers()
{
    auto* layout = new QVBoxLayout;
    auto* tabs = new QTabWidget;
    tabs->addTab(new QTextEdit(text("Page")), text("First"));
    tabs->addTab(filled(new QTableView), text("Second"));
    tabs->setCurrentIndex(1);
    auto* group = new QGroupBox(text("Group"));
    (new QVBoxLayout(group))->addWidget(filled(new QTreeView));
    auto* area = new QMdiArea;
    area->addSubWindow(new QCalendarWidget)->setWindowTitle(text("Sub"));
    auto* wizard = new QWizard;
    wizard->setWindowFlags(Qt::Widget);
    auto* page = new QWizardPage;
    page->setTitle(text("Title"));
    wizard->addPage(page);
    auto* box = new QMessageBox(QMessageBox::Warning, text("Box"), text("Message"),
                                QMessageBox::Ok | QMessageBox::Cancel);
    box->setWindowFlags(Qt::Widget);
    for (QWidget* widget : std::initializer_list<QWidget*>{tabs, group, area, wizard, box})
        layout->addWidget(widget);
    return layout;
}

} // namespace

std::unique_ptr<QMainWindow> shown()
{
    auto window = std::make_unique<QMainWindow>();
    addBars(*window);
    auto* layout = new QHBoxLayout;
    layout->addLayout(inputs());
    layout->addLayout(containers());
    layout->addWidget(filled(new QListView));
    window->setCentralWidget(new QWidget);
    window->centralWidget()->setLayout(layout);
    window->resize(1000, 1100);
    window->show();
    QMenuBar* bar = window->menuBar();
    const QPoint first = bar->actionGeometry(bar->actions().first()).center();
    QMouseEvent move(QEvent::MouseMove, first, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(bar, &move);
    return window;
}

} // namespace EveryWidget
