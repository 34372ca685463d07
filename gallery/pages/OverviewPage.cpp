#include "Pages.h"
#include "ThemeResources.h"
#include "companions/Companions.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/SampleData.h"
#include "pages/Chart.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QAction* makeAction(QObject* parent, const char* icon, const QString& text)
{
    return new QAction(getIcon(QLatin1String(icon)), text, parent);
}

void addMenus(QMenuBar& bar)
{
    bar.setNativeMenuBar(false);
    QMenu* file = bar.addMenu(QStringLiteral("&File"));
    file->addAction(makeAction(file, "action.open", QStringLiteral("&Open...")));
    file->addAction(makeAction(file, "action.save", QStringLiteral("&Save")));
    file->addSeparator();
    file->addAction(makeAction(file, "action.export", QStringLiteral("&Export...")));
    QMenu* view = bar.addMenu(QStringLiteral("&View"));
    for (const char* text : {"&Grid", "&Axes", "&Legend"}) {
        QAction* action = view->addAction(QString::fromLatin1(text));
        action->setCheckable(true);
        action->setChecked(true);
    }
    bar.addMenu(QStringLiteral("&Analysis"))->addAction(QStringLiteral("Measure"));
    bar.addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("About"));
}

void addTools(QToolBar& bar)
{
    const auto add = [&bar](const char* name) {
        const QString icon = QString::fromLatin1(name);
        return bar.addAction(getIcon(icon), titleOf(icon));
    };
    for (const char* name : {"action.open", "action.save"})
        add(name);
    bar.addSeparator();
    for (const char* name : {"action.undo", "action.redo"})
        add(name);
    bar.actions().last()->setEnabled(false);
    bar.addSeparator();
    for (const char* name : {"tool.brush", "tool.eraser", "action.crop"})
        add(name)->setCheckable(true);
    bar.actions().at(6)->setChecked(true);
    bar.addSeparator();
    auto* zoom = new QComboBox;
    zoom->addItems({QStringLiteral("100 %"), QStringLiteral("200 %"), QStringLiteral("Fit")});
    bar.addWidget(zoom);
    auto* filler = new QWidget;
    filler->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(filler);
    auto* search = with(new QLineEdit, "customActionIcons");
    search->setPlaceholderText(QStringLiteral("Search"));
    search->addAction(getIcon(QStringLiteral("action.find")), QLineEdit::LeadingPosition);
    search->setFixedWidth(24 * Unit);
    bar.addWidget(search);
    bar.setMovable(false);
}

QWidget* makeProjectPane()
{
    auto* tree = new QTreeView;
    tree->setModel(makeTreeModel(tree));
    tree->hideColumn(1);
    tree->setHeaderHidden(true);
    tree->expandAll();
    const QModelIndex root = tree->model()->index(0, 0);
    tree->setCurrentIndex(tree->model()->index(0, 0, root));
    auto* filter = new QLineEdit;
    filter->setPlaceholderText(QStringLiteral("Filter"));
    QWidget* pane = column({filter, tree});
    // From right to left a splitter's first pane stands a pixel beyond the splitter.
    pane->layout()->setContentsMargins(1, 0, 1, 0);
    return pane;
}

QTableView* makeTable()
{
    auto* table = new QTableView;
    table->setModel(makeTableModel(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, 20 * Unit);
    // From right to left, a row cannot be selected as such before it is laid out.
    table->setCurrentIndex(table->model()->index(2, 0));
    return table;
}

QWidget* makeLog()
{
    auto* log =
        new QPlainTextEdit(QStringLiteral("09:41:02  Read 1024 slices in 3.1 s\n"
                                          "09:41:07  Median filter, radius 3\n"
                                          "09:41:19  Surface \"Blade\": 184 320 triangles"));
    log->setReadOnly(true);
    return log;
}

QWidget* makeTabs()
{
    auto* tabs = new QTabWidget;
    tabs->addTab(new Chart, getIcon(QStringLiteral("chart.line")), QStringLiteral("Profile"));
    tabs->addTab(new QWidget, getIcon(QStringLiteral("chart.bar")), QStringLiteral("Histogram"));
    tabs->addTab(new QWidget, getIcon(QStringLiteral("view.details")), QStringLiteral("Report"));
    return tabs;
}

QWidget* makeCenter()
{
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(makeTabs());
    splitter->addWidget(makeTable());
    splitter->addWidget(makeLog());
    splitter->setSizes({36 * Unit, 26 * Unit, 10 * Unit});
    return splitter;
}

QGroupBox* makeFilterBox()
{
    auto* box = new QGroupBox(QStringLiteral("Filter"));
    auto* form = new QFormLayout(box);
    auto* method = new QComboBox;
    method->addItems({QStringLiteral("Median"), QStringLiteral("Gaussian")});
    auto* radius = new QSpinBox;
    radius->setValue(3);
    radius->setSuffix(QStringLiteral(" px"));
    auto* strength = with(new QSlider(Qt::Horizontal), "slider_highlighted");
    strength->setValue(60);
    auto* day = new QDateEdit(QDate(2024, 5, 17));
    day->setCalendarPopup(true);
    form->addRow(QStringLiteral("&Method"), method);
    form->addRow(QStringLiteral("&Radius"), radius);
    form->addRow(QStringLiteral("&Strength"), strength);
    form->addRow(QStringLiteral("&Date"), day);
    return box;
}

QGroupBox* makeOptionBox()
{
    auto* box = new QGroupBox(QStringLiteral("Options"));
    auto* layout = new QVBoxLayout(box);
    auto* smooth = new QCheckBox(QStringLiteral("Smooth edges"));
    smooth->setChecked(true);
    layout->addWidget(smooth);
    layout->addWidget(new QCheckBox(QStringLiteral("Fill holes")));
    auto* live = with(new QCheckBox(QStringLiteral("Live preview")), "switch");
    live->setChecked(true);
    layout->addWidget(live);
    auto* fast = new QRadioButton(QStringLiteral("Fast"));
    fast->setChecked(true);
    layout->addWidget(row({fast, new QRadioButton(QStringLiteral("Exact"))}));
    return box;
}

QWidget* makeSidePane()
{
    auto* card =
        new BRELK::Components::CardWidget(QStringLiteral("Turbine"), QStringLiteral("Scan 17 May"));
    auto* progress = new QProgressBar;
    progress->setValue(64);
    card->setContents(progress);
    auto* apply = new QPushButton(QStringLiteral("Apply"));
    apply->setDefault(true);
    auto* reset = new QPushButton(QStringLiteral("Reset"));
    QWidget* pane = column({card, makeFilterBox(), makeOptionBox(), row({apply, reset})});
    static_cast<QBoxLayout*>(pane->layout())->addStretch();
    return pane;
}

QMainWindow* makeApplication()
{
    auto* window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    addMenus(*window->menuBar());
    addTools(*window->addToolBar(QStringLiteral("Tools")));

    auto* panes = new QSplitter;
    panes->addWidget(makeProjectPane());
    panes->addWidget(makeCenter());
    panes->addWidget(makeSidePane());
    panes->setStretchFactor(1, 1);
    panes->setSizes({26 * Unit, 62 * Unit, 34 * Unit});

    // The room around the panes is not the splitter's own: it forgets that from right to left.
    auto* center = new QWidget;
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(Unit, Unit, Unit, Unit);
    layout->addWidget(panes);
    window->setCentralWidget(center);

    window->statusBar()->showMessage(QStringLiteral("Six specimens, one selected"));
    auto* busy = new QProgressBar;
    busy->setValue(35);
    busy->setFixedWidth(16 * Unit);
    window->statusBar()->addPermanentWidget(busy);
    window->setMinimumHeight(88 * Unit);
    return window;
}

} // namespace

void fillOverview(Page& page)
{
    auto* panel = new Panel;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, Unit / 2, 1, Unit / 2);
    layout->addWidget(makeApplication());
    page.addWidget(panel);
}

} // namespace Gallery
