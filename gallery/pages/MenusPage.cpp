#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Picture.h"
#include "kit/SampleData.h"
#include "kit/Specimen.h"

#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolTip>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QAction* addAction(QMenu& menu, const QString& text, const char* icon, const QString& keys)
{
    QAction* action = menu.addAction(getIcon(QLatin1String(icon)), text);
    action->setShortcut(QKeySequence(keys));
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
}

QMenu* makeFileMenu()
{
    auto* menu = new QMenu(QStringLiteral("&File"));
    addAction(*menu, QStringLiteral("&New"), "action.new", QStringLiteral("Ctrl+N"));
    addAction(*menu, QStringLiteral("&Open..."), "action.open", QStringLiteral("Ctrl+O"));
    QMenu* recent = menu->addMenu(getIcon(QStringLiteral("action.open.recent")),
                                  QStringLiteral("Open &recent"));
    recent->addAction(QStringLiteral("sample-17.vol"));
    recent->addAction(QStringLiteral("sample-16.vol"));
    menu->addSeparator();
    menu->setDefaultAction(
        addAction(*menu, QStringLiteral("&Save"), "action.save", QStringLiteral("Ctrl+S")));
    QAction* print =
        addAction(*menu, QStringLiteral("&Print..."), "action.print", QStringLiteral("Ctrl+P"));
    print->setEnabled(false);
    menu->addSeparator();
    addAction(*menu, QStringLiteral("&Quit"), "action.exit", QStringLiteral("Ctrl+Q"));
    return menu;
}

QMenu* makeViewMenu()
{
    auto* menu = new QMenu(QStringLiteral("&View"));
    for (const char* text : {"Show &grid", "Show &axes", "Show &ruler"})
        menu->addAction(QString::fromLatin1(text))->setCheckable(true);
    menu->actions().first()->setChecked(true);
    menu->actions().last()->setChecked(true);
    menu->actions().last()->setEnabled(false);
    menu->addSection(QStringLiteral("Projection"));
    auto* group = new QActionGroup(menu);
    for (const char* text : {"&Perspective", "&Orthographic"}) {
        QAction* action = group->addAction(QString::fromLatin1(text));
        action->setCheckable(true);
        menu->addAction(action);
    }
    group->actions().first()->setChecked(true);
    menu->addSeparator();
    menu->addMenu(QStringLiteral("&Tools"))->addAction(QStringLiteral("Measure"));
    return menu;
}

QMenu* makeCheckedIcons()
{
    auto* menu = new QMenu;
    for (const char* name : {"view.list", "view.icons", "view.details"}) {
        const QString icon = QString::fromLatin1(name);
        menu->addAction(getIcon(icon), titleOf(icon))->setCheckable(true);
    }
    menu->actions().at(1)->setChecked(true);
    menu->addSeparator();
    menu->addAction(QStringLiteral("No icon here"));
    return menu;
}

QWidget* pictureOf(QMenu* menu, int current = -1)
{
    if (current >= 0)
        menu->setActiveAction(menu->actions().at(current));
    menu->ensurePolished();
    menu->adjustSize();
    return new Picture(menu, menu);
}

QMenu* makeTearOff()
{
    QMenu* menu = makeViewMenu();
    menu->setTearOffEnabled(true);
    return menu;
}

void addOpenMenus(Section& section)
{
    section.add(row(
        {captioned(QStringLiteral("Icons, shortcuts, default action"), pictureOf(makeFileMenu())),
         captioned(QStringLiteral("One item hovered"), pictureOf(makeFileMenu(), 1)),
         captioned(QStringLiteral("Marks and sections"), pictureOf(makeViewMenu(), 1)),
         captioned(QStringLiteral("Tear-off"), pictureOf(makeTearOff()))}));
    section.add(
        row({captioned(QStringLiteral("Checked icons"), pictureOf(makeCheckedIcons())),
             captioned(QStringLiteral("Checked icon hovered"), pictureOf(makeCheckedIcons(), 1))}));
}

QMenuBar* makeMenuBar()
{
    auto* bar = new QMenuBar;
    bar->setNativeMenuBar(false);
    for (QMenu* menu : {makeFileMenu(), makeViewMenu()}) {
        menu->setParent(bar, menu->windowFlags());
        bar->addMenu(menu);
    }
    bar->addAction(QStringLiteral("&Help"))->setIcon(getIcon(QStringLiteral("action.help")));
    bar->addAction(QStringLiteral("&Disabled"))->setEnabled(false);
    return bar;
}

/// A menu bar with one of its menus hovered.
QMenuBar* makeActiveMenuBar()
{
    QMenuBar* bar = makeMenuBar();
    forceAt(*bar, State::Hovered,
            [bar] { return bar->actionGeometry(bar->actions().at(1)).center(); });
    return bar;
}

QPushButton* makeMenuButton(const QString& text, QMenu* menu)
{
    auto* button = new QPushButton(text);
    menu->setParent(button, menu->windowFlags());
    button->setMenu(menu);
    return button;
}

/// What a tool tip looks like: the toolkit makes the real one only while the mouse rests.
class TipSample : public QLabel
{
public:
    explicit TipSample(const QString& text) : QLabel(text)
    {
        setPalette(QToolTip::palette());
        setForegroundRole(QPalette::ToolTipText);
        setFont(QToolTip::font());
        setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QStylePainter painter(this);
        QStyleOptionFrame option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
        painter.end();
        QLabel::paintEvent(event);
    }
};

void addToolTips(Section& section)
{
    auto* plain = new QPushButton(QStringLiteral("Rest the mouse here"));
    plain->setToolTip(QStringLiteral("Applies the filter to the <b>current</b> volume."));
    auto* error = new QPushButton(QStringLiteral("And here"));
    error->setToolTip(QStringLiteral("<!-- errorTooltip -->The radius must be positive."));
    section.add(row({plain, error, new TipSample(QStringLiteral("A tool tip of one line")),
                     new TipSample(QStringLiteral("A tool tip\nof two lines"))}));
}

} // namespace

void fillMenus(Page& page)
{
    addOpenMenus(page.addSection(QStringLiteral("Open menus"), QStringLiteral("As pictures.")));
    Section& bars = page.addSection(QStringLiteral("Menu bars"));
    bars.add(captioned(QStringLiteral("Normal"), makeMenuBar()), true);
    bars.add(captioned(QStringLiteral("One menu hovered"), makeActiveMenuBar()), true);
    page.addSection(QStringLiteral("Try them"))
        .add(row({makeMenuButton(QStringLiteral("File"), makeFileMenu()),
                  makeMenuButton(QStringLiteral("View"), makeTearOff()),
                  makeMenuButton(QStringLiteral("Icons"), makeCheckedIcons())}));
    addToolTips(page.addSection(QStringLiteral("Tool tips"),
                                QStringLiteral("A text with \"errorTooltip\" in it has a border "
                                               "of the danger color.")));
}

} // namespace Gallery
