#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/Specimen.h"
#include "kit/StateGrid.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QTabBar* makeTabBar()
{
    auto* bar = new QTabBar;
    for (const char* text : {"Volume", "Surface", "Report"})
        bar->addTab(QString::fromLatin1(text));
    bar->setCurrentIndex(1);
    bar->setDrawBase(false);
    return bar;
}

QTabBar* makeIconBar()
{
    QTabBar* bar = makeTabBar();
    bar->setTabIcon(0, getIcon(QStringLiteral("layer.stack")));
    bar->setTabIcon(1, getIcon(QStringLiteral("chart.line")));
    bar->setTabIcon(2, getIcon(QStringLiteral("action.print")));
    return bar;
}

QTabBar* makeClosable()
{
    QTabBar* bar = makeTabBar();
    bar->setTabsClosable(true);
    bar->setTabEnabled(2, false);
    return bar;
}

QTabBar* makeShaped(QTabBar::Shape shape)
{
    QTabBar* bar = makeTabBar();
    bar->setShape(shape);
    return bar;
}

/// `bar` at its own size, with a caption.
QWidget* natural(const QString& caption, QTabBar* bar)
{
    return captioned(caption, row({bar}));
}

void addStates(Section& section)
{
    const auto add = [&section](const QString& title, const std::function<QTabBar*()>& make) {
        QTabBar* hovered = make();
        forceAt(*hovered, State::Hovered, [hovered] { return hovered->tabRect(0).center(); });
        QTabBar* focused = make();
        force(*focused, State::Focused);
        QTabBar* disabled = make();
        disabled->setEnabled(false);
        section.add(
            halves(natural(title, make()), natural(title % QLatin1String(": disabled"), disabled)),
            true);
        section.add(halves(natural(title % QLatin1String(": first tab hovered"), hovered),
                           natural(title % QLatin1String(": focused"), focused)),
                    true);
    };
    add(QStringLiteral("Plain"), makeTabBar);
    add(QStringLiteral("With icons"), makeIconBar);
    add(QStringLiteral("Closable, last tab disabled"), makeClosable);
    add(QStringLiteral("Current tab highlighted"),
        [] { return with(makeTabBar(), "currentTabHighlighted"); });
}

void addSizes(Section& section)
{
    for (const char* size : {"smallTabSize", "baseTabSize", "mediumTabSize", "largeTabSize"}) {
        section.add(captioned(QString(QLatin1Char('"') % QLatin1String(size) % QLatin1Char('"')),
                              with(makeIconBar(), size)));
    }
}

QTabWidget* makeTabWidget(QTabWidget::TabPosition position)
{
    auto* tabs = new QTabWidget;
    tabs->setTabPosition(position);
    for (const char* text : {"Volume", "Surface", "Report"}) {
        auto* page = new QLabel(QString::fromLatin1(text));
        page->setAlignment(Qt::AlignCenter);
        tabs->addTab(page, QString::fromLatin1(text));
    }
    tabs->setFixedHeight(30 * Unit);
    return tabs;
}

void addSides(Section& section)
{
    const auto beside = [&section](const QString& firstLabel, QTabWidget* first,
                                   const QString& secondLabel, QTabWidget* second) {
        section.add(halves(captioned(firstLabel, first), captioned(secondLabel, second)), true);
    };
    section.add(pair(makeTabWidget(QTabWidget::North), makeTabWidget(QTabWidget::North)), true);
    beside(QStringLiteral("West"), makeTabWidget(QTabWidget::West), QStringLiteral("East"),
           makeTabWidget(QTabWidget::East));
    QTabWidget* many = makeTabWidget(QTabWidget::South);
    for (int number = 1; number < 12; ++number)
        many->addTab(new QWidget, QString(QLatin1String("Slice ") % QString::number(number)));
    beside(QStringLiteral("South"), makeTabWidget(QTabWidget::South),
           QStringLiteral("More than fit"), many);
    QTabWidget* document = makeTabWidget(QTabWidget::North);
    document->setDocumentMode(true);
    document->setTabsClosable(true);
    document->setMovable(true);
    beside(QStringLiteral("Stretched"), with(makeTabWidget(QTabWidget::North), "stretched"),
           QStringLiteral("Document mode, closable, movable"), document);
}

void addShapes(Section& section)
{
    section.add(row(
        {captioned(QStringLiteral("Rounded"), makeShaped(QTabBar::RoundedNorth)),
         captioned(QStringLiteral("Rounded, below"), makeShaped(QTabBar::RoundedSouth)),
         captioned(QStringLiteral("Triangular"), makeShaped(QTabBar::TriangularNorth)),
         captioned(QStringLiteral("Triangular, below"), makeShaped(QTabBar::TriangularSouth))}));
    section.add(
        row({captioned(QStringLiteral("Rounded, left"), makeShaped(QTabBar::RoundedWest)),
             captioned(QStringLiteral("Rounded, right"), makeShaped(QTabBar::RoundedEast)),
             captioned(QStringLiteral("Triangular, left"), makeShaped(QTabBar::TriangularWest)),
             captioned(QStringLiteral("Triangular, right"), makeShaped(QTabBar::TriangularEast))}));
}

} // namespace

void fillTabs(Page& page)
{
    addStates(page.addSection(QStringLiteral("States")));
    addSizes(page.addSection(QStringLiteral("Sizes"),
                             QStringLiteral("Chosen with a property of the tab bar or, for all "
                                            "of them, of the application.")));
    addSides(page.addSection(QStringLiteral("Tab widgets")));
    addShapes(page.addSection(QStringLiteral("Shapes")));
}

} // namespace Gallery
