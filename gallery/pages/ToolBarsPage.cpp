#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/SampleData.h"
#include "kit/StateGrid.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QToolButton* makeButton(Qt::ToolButtonStyle style = Qt::ToolButtonIconOnly)
{
    auto* button = new QToolButton;
    button->setIcon(getIcon(QStringLiteral("action.crop")));
    button->setText(QStringLiteral("Crop"));
    button->setToolButtonStyle(style);
    return button;
}

QToolButton* makeAutoRaise()
{
    QToolButton* button = makeButton();
    button->setAutoRaise(true);
    return button;
}

QToolButton* makeChecked()
{
    QToolButton* button = makeAutoRaise();
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

QToolButton* makeMenuButton(QToolButton::ToolButtonPopupMode mode)
{
    QToolButton* button = makeButton(Qt::ToolButtonTextBesideIcon);
    auto* menu = new QMenu(button);
    menu->addAction(QStringLiteral("Crop to selection"));
    menu->addAction(QStringLiteral("Crop to contents"));
    button->setMenu(menu);
    button->setPopupMode(mode);
    return button;
}

QToolButton* makeArrow()
{
    auto* button = new QToolButton;
    button->setArrowType(Qt::DownArrow);
    return button;
}

QToolButton* makeCircular()
{
    QToolButton* button = with(makeButton(), "circular");
    button->setFixedSize(4 * Unit, 4 * Unit);
    return button;
}

void addToolButtons(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Icon"), [] { return makeButton(); });
    grid->addRow(QStringLiteral("Auto-raise"), makeAutoRaise);
    grid->addRow(QStringLiteral("Checked"), makeChecked);
    grid->addRow(QStringLiteral("Text"), [] { return makeButton(Qt::ToolButtonTextOnly); });
    grid->addRow(QStringLiteral("Text beside icon"),
                 [] { return makeButton(Qt::ToolButtonTextBesideIcon); });
    grid->addRow(QStringLiteral("Text under icon"),
                 [] { return makeButton(Qt::ToolButtonTextUnderIcon); });
    grid->addRow(QStringLiteral("Menu at once"),
                 [] { return makeMenuButton(QToolButton::InstantPopup); });
    grid->addRow(QStringLiteral("Menu part"),
                 [] { return makeMenuButton(QToolButton::MenuButtonPopup); });
    grid->addRow(QStringLiteral("Menu after a while"),
                 [] { return makeMenuButton(QToolButton::DelayedPopup); });
    grid->addRow(QStringLiteral("Arrow"), makeArrow);
    grid->addRow(QStringLiteral("Circular"), makeCircular);
    grid->addRow(QStringLiteral("No menu arrow"),
                 [] { return with(makeMenuButton(QToolButton::InstantPopup), "no menu arrow"); });
    section.add(grid);
}

QToolBar* makeToolBar(Qt::Orientation orientation, Qt::ToolButtonStyle style)
{
    auto* bar = new QToolBar;
    bar->setOrientation(orientation);
    bar->setToolButtonStyle(style);
    const auto add = [bar](const char* name) {
        const QString icon = QString::fromLatin1(name);
        return bar->addAction(getIcon(icon), titleOf(icon));
    };
    for (const char* name : {"action.new", "action.open", "action.save"})
        add(name);
    bar->addSeparator();
    for (const char* name : {"tool.brush", "tool.eraser"})
        add(name)->setCheckable(true);
    bar->actions().at(4)->setChecked(true);
    bar->addSeparator();
    add("action.delete")->setEnabled(false);
    return bar;
}

QToolBar* makeMixedBar()
{
    QToolBar* bar = makeToolBar(Qt::Horizontal, Qt::ToolButtonIconOnly);
    bar->addSeparator();
    auto* zoom = new QComboBox;
    zoom->addItems({QStringLiteral("50 %"), QStringLiteral("100 %"), QStringLiteral("200 %")});
    bar->addWidget(zoom);
    auto* search = with(new QLineEdit, "customActionIcons");
    search->setPlaceholderText(QStringLiteral("Search"));
    search->addAction(getIcon(QStringLiteral("action.find")), QLineEdit::LeadingPosition);
    search->setMaximumWidth(20 * Unit);
    bar->addWidget(search);
    return bar;
}

void addToolBars(Section& section)
{
    section.add(
        captioned(QStringLiteral("Icons"), makeToolBar(Qt::Horizontal, Qt::ToolButtonIconOnly)),
        true);
    section.add(captioned(QStringLiteral("Text beside icons"),
                          makeToolBar(Qt::Horizontal, Qt::ToolButtonTextBesideIcon)),
                true);
    section.add(captioned(QStringLiteral("Text under icons"),
                          makeToolBar(Qt::Horizontal, Qt::ToolButtonTextUnderIcon)),
                true);
    section.add(captioned(QStringLiteral("With other widgets"), makeMixedBar()), true);
    QToolBar* narrow = makeToolBar(Qt::Horizontal, Qt::ToolButtonIconOnly);
    narrow->setFixedWidth(14 * Unit);
    section.add(row(
        {captioned(QStringLiteral("Upright"), makeToolBar(Qt::Vertical, Qt::ToolButtonIconOnly)),
         captioned(QStringLiteral("Upright, with text"),
                   makeToolBar(Qt::Vertical, Qt::ToolButtonTextBesideIcon)),
         captioned(QStringLiteral("Too narrow"), narrow)}));
}

} // namespace

void fillToolBars(Page& page)
{
    addToolBars(page.addSection(QStringLiteral("Tool bars")));
    addToolButtons(page.addSection(QStringLiteral("Tool buttons")));
}

} // namespace Gallery
