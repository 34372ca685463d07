#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"

#include <QCheckBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRubberBand>
#include <QSplitter>
#include <QStatusBar>
#include <QTextEdit>
#include <QToolBox>
#include <QVBoxLayout>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QLabel* makeFiller(const QString& text)
{
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumSize(10 * Unit, 6 * Unit);
    return label;
}

QGroupBox* makeGroupBox(const QString& title)
{
    auto* box = new QGroupBox(title);
    auto* layout = new QVBoxLayout(box);
    layout->addWidget(new QCheckBox(QStringLiteral("Smooth edges")));
    layout->addWidget(new QCheckBox(QStringLiteral("Fill holes")));
    box->setMinimumWidth(22 * Unit);
    return box;
}

QGroupBox* makeCheckableGroupBox(bool checked)
{
    QGroupBox* box = makeGroupBox(QStringLiteral("Filter"));
    box->setCheckable(true);
    box->setChecked(checked);
    return box;
}

void addGroupBoxes(Section& section)
{
    QGroupBox* flat = makeGroupBox({});
    flat->setFlat(true);
    flat->setTitle(QStringLiteral("Filter")); // measures the box, which becoming flat does not
    QGroupBox* disabled = makeGroupBox(QStringLiteral("Filter"));
    disabled->setEnabled(false);
    QGroupBox* centered = makeGroupBox(QStringLiteral("Filter"));
    centered->setAlignment(Qt::AlignHCenter);
    section.add(row({captioned(QStringLiteral("Plain"), makeGroupBox(QStringLiteral("Filter"))),
                     captioned(QStringLiteral("Flat"), flat),
                     captioned(QStringLiteral("Disabled"), disabled),
                     captioned(QStringLiteral("Centered"), centered)}));
    section.add(row({captioned(QStringLiteral("Checked"), makeCheckableGroupBox(true)),
                     captioned(QStringLiteral("Unchecked"), makeCheckableGroupBox(false)),
                     captioned(QStringLiteral("Without title"), makeGroupBox({}))}));
}

QToolBox* makeToolBox()
{
    auto* box = new QToolBox;
    box->addItem(makeFiller(QStringLiteral("Settings of the import")),
                 getIcon(QStringLiteral("action.import")), QStringLiteral("Import"));
    box->addItem(makeFiller(QStringLiteral("Settings of the filters")),
                 getIcon(QStringLiteral("action.filter")), QStringLiteral("Filters"));
    box->addItem(makeFiller(QStringLiteral("Settings of the export")), QStringLiteral("Export"));
    box->setFixedHeight(26 * Unit);
    return box;
}

QSplitter* makeSplitter(Qt::Orientation orientation)
{
    auto* splitter = new QSplitter(orientation);
    splitter->addWidget(makeFiller(QStringLiteral("First")));
    splitter->addWidget(makeFiller(QStringLiteral("Second")));
    splitter->setFrameShape(QFrame::StyledPanel);
    splitter->setMinimumWidth(24 * Unit);
    splitter->setFixedHeight(16 * Unit);
    return splitter;
}

void addSplitters(Section& section)
{
    section.add(
        row({captioned(QStringLiteral("Plain"), makeSplitter(Qt::Horizontal)),
             captioned(QStringLiteral("Upright"), makeSplitter(Qt::Vertical)),
             captioned(QStringLiteral("\"filled\""), with(makeSplitter(Qt::Horizontal), "filled")),
             captioned(QStringLiteral("\"small\""), with(makeSplitter(Qt::Horizontal), "small"))}));
}

QDockWidget* makeDock(const QString& title)
{
    auto* dock = new QDockWidget(title);
    dock->setWidget(makeFiller(QStringLiteral("Contents")));
    return dock;
}

QMainWindow* makeDocks()
{
    auto* window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    window->setCentralWidget(new QTextEdit(QStringLiteral("Central widget")));
    window->addDockWidget(Qt::LeftDockWidgetArea, makeDock(QStringLiteral("Plain")));
    QDockWidget* upright = makeDock(QStringLiteral("Upright title"));
    upright->setFeatures(upright->features() | QDockWidget::DockWidgetVerticalTitleBar);
    window->addDockWidget(Qt::LeftDockWidgetArea, upright);
    QDockWidget* first = makeDock(QStringLiteral("First tab"));
    QDockWidget* second = makeDock(QStringLiteral("Second tab"));
    window->addDockWidget(Qt::RightDockWidgetArea, first);
    window->tabifyDockWidget(first, second);
    QDockWidget* fixed = makeDock(QStringLiteral("Not closable, a title that is too long for it"));
    fixed->setFeatures(QDockWidget::DockWidgetMovable);
    window->addDockWidget(Qt::RightDockWidgetArea, fixed);
    window->statusBar()->showMessage(QStringLiteral("Status bar"));
    window->setFixedHeight(40 * Unit);
    return window;
}

QMdiArea* makeMdiArea()
{
    auto* area = new QMdiArea;
    area->setFixedHeight(40 * Unit);
    const auto add = [area](const QString& title, const QRect& geometry) {
        auto* editor = new QTextEdit(title);
        QMdiSubWindow* window = area->addSubWindow(editor);
        window->setWindowTitle(title);
        window->setWindowIcon(getIcon(QStringLiteral("chart.line")));
        window->setGeometry(geometry);
        return window;
    };
    add(QStringLiteral("Inactive window"), {2 * Unit, 2 * Unit, 40 * Unit, 20 * Unit});
    add(QStringLiteral("Minimized"), {0, 0, 30 * Unit, 20 * Unit})->showMinimized();
    QMdiSubWindow* shaded =
        add(QStringLiteral("Can be shaded"), {50 * Unit, 2 * Unit, 40 * Unit, 20 * Unit});
    shaded->setWindowFlags(shaded->windowFlags() | Qt::WindowShadeButtonHint
                           | Qt::WindowContextHelpButtonHint);
    area->setActiveSubWindow(
        add(QStringLiteral("Active window"), {18 * Unit, 10 * Unit, 40 * Unit, 22 * Unit}));
    return area;
}

QLabel* makeFrame(QFrame::Shape shape, QFrame::Shadow shadow, const QString& text)
{
    auto* frame = makeFiller(text);
    frame->setFrameStyle(int(shape) | int(shadow));
    frame->setLineWidth(2);
    return frame;
}

void addFrames(Section& section)
{
    section.add(
        row({makeFrame(QFrame::StyledPanel, QFrame::Plain, QStringLiteral("Styled panel")),
             makeFrame(QFrame::Panel, QFrame::Raised, QStringLiteral("Raised panel")),
             makeFrame(QFrame::Panel, QFrame::Sunken, QStringLiteral("Sunken panel")),
             makeFrame(QFrame::Box, QFrame::Plain, QStringLiteral("Plain box")),
             makeFrame(QFrame::Box, QFrame::Raised, QStringLiteral("Raised box")),
             makeFrame(QFrame::WinPanel, QFrame::Raised, QStringLiteral("Raised window"))}));
    auto* field = makeFiller(QStringLiteral("Rubber band"));
    field->setFixedSize(24 * Unit, 10 * Unit);
    auto* band = new QRubberBand(QRubberBand::Rectangle, field);
    band->setGeometry(2 * Unit, 2 * Unit, 14 * Unit, 6 * Unit);
    band->show();
    auto* line = makeFrame(QFrame::HLine, QFrame::Sunken, {});
    auto* status = new QStatusBar;
    status->showMessage(QStringLiteral("Ready"));
    status->addPermanentWidget(new QLabel(QStringLiteral("512 x 512")));
    section.add(row({field, line}));
    section.add(status, true);
}

} // namespace

void fillContainers(Page& page)
{
    addGroupBoxes(page.addSection(QStringLiteral("Group boxes")));
    page.addSection(QStringLiteral("Tool boxes")).add(pair(makeToolBox(), makeToolBox()), true);
    addSplitters(page.addSection(QStringLiteral("Splitters")));
    page.addSection(QStringLiteral("Docks")).add(makeDocks(), true);
    page.addSection(QStringLiteral("Windows within a window")).add(makeMdiArea(), true);
    addFrames(page.addSection(QStringLiteral("Frames, rubber bands and status bars")));
}

} // namespace Gallery
