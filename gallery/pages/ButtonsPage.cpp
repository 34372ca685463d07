#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/StateGrid.h"

#include <QCommandLinkButton>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPushButton>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

QPushButton* makeButton(const QString& text = QStringLiteral("Apply"))
{
    auto* button = new QPushButton(text);
    button->setAutoDefault(false);
    return button;
}

QPushButton* makeToggle(bool checked)
{
    QPushButton* button = makeButton(QStringLiteral("Follow"));
    button->setCheckable(true);
    button->setChecked(checked);
    return button;
}

QPushButton* makeIconButton(const QString& text)
{
    QPushButton* button = makeButton(text);
    button->setIcon(getIcon(QStringLiteral("action.save")));
    return button;
}

QPushButton* makeDefaultButton()
{
    QPushButton* button = makeButton(QStringLiteral("Save"));
    button->setDefault(true);
    return button;
}

QPushButton* makeMenuButton()
{
    QPushButton* button = makeButton(QStringLiteral("Export"));
    auto* menu = new QMenu(button);
    menu->addAction(QStringLiteral("As picture"));
    menu->addAction(QStringLiteral("As table"));
    button->setMenu(menu);
    return button;
}

QPushButton* makeFlatButton()
{
    QPushButton* button = makeButton(QStringLiteral("Details"));
    button->setFlat(true);
    return button;
}

void addUsual(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Plain"), [] { return makeButton(); });
    grid->addRow(QStringLiteral("Default"), makeDefaultButton);
    grid->addRow(QStringLiteral("Flat"), makeFlatButton);
    grid->addRow(QStringLiteral("With icon"),
                 [] { return makeIconButton(QStringLiteral("Save")); });
    grid->addRow(QStringLiteral("Icon only"), [] { return makeIconButton({}); });
    grid->addRow(QStringLiteral("With menu"), makeMenuButton);
    grid->addRow(QStringLiteral("Checkable"), [] { return makeToggle(false); });
    grid->addRow(QStringLiteral("Checked"), [] { return makeToggle(true); });
    section.add(grid);
}

/// A row for `property` with each of `values`.
void addKinds(StateGrid& grid, const char* property, const QStringList& values)
{
    for (const QString& value : values) {
        grid.addRow(value, [property, value] { return with(makeButton(), property, value); });
    }
}

void addKinds(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Highlighted"), [] { return with(makeButton(), "highlighted"); });
    grid->addRow(QStringLiteral("Highlighted, checked"),
                 [] { return with(makeToggle(true), "highlighted"); });
    addKinds(*grid, "Order", {QStringLiteral("Primary"), QStringLiteral("Secondary")});
    addKinds(*grid, "Status",
             {QStringLiteral("Success"), QStringLiteral("Warning"), QStringLiteral("Danger"),
              QStringLiteral("Info")});
    addKinds(*grid, "ButtonType", {QStringLiteral("Tarrin"), QStringLiteral("UserConnector")});
    section.add(grid);
}

QPushButton* makeCircularButton()
{
    QPushButton* button = with(makeIconButton({}), "circular");
    button->setFixedSize(4 * Unit, 4 * Unit);
    return button;
}

void addShapes(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Outline"), [] { return with(makeButton(), "outline"); });
    grid->addRow(QStringLiteral("Outline, checked"),
                 [] { return with(makeToggle(true), "outline"); });
    grid->addRow(QStringLiteral("Circular"), makeCircularButton);
    grid->addRow(QStringLiteral("Frameless"), [] { return with(makeButton(), "frameless"); });
    grid->addRow(QStringLiteral("Error"), [] { return with(makeButton(), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("Flat, highlighted"),
                 [] { return with(makeFlatButton(), "highlighted"); });
    grid->addRow(QStringLiteral("Blinking, lit"),
                 [] { return with(with(makeButton(), "blinking"), "blink_checked"); });
    section.add(grid);
}

void addTextsAndSizes(Section& section)
{
    QPushButton* narrow = makeButton(QStringLiteral("A text that is longer than its button"));
    narrow->setFixedWidth(18 * Unit);
    QPushButton* tall = makeButton(QStringLiteral("Two lines\nof text"));
    tall->setFixedHeight(6 * Unit);
    QPushButton* large = makeIconButton(QStringLiteral("Large icon"));
    large->setIconSize({4 * Unit, 4 * Unit});
    QPushButton* mnemonic = makeButton(QStringLiteral("&Mnemonic"));
    section.add(row({narrow, tall, large, mnemonic}));
}

QCommandLinkButton* makeCommandLink()
{
    auto* link = new QCommandLinkButton(QStringLiteral("Open a project"),
                                        QStringLiteral("Where you left off"));
    link->setIcon(getIcon(QStringLiteral("action.open")));
    link->setMinimumWidth(23 * Unit);
    return link;
}

void addCommandLinks(Section& section)
{
    auto* grid = new StateGrid({State::Normal, State::Hovered, State::Focused, State::Disabled});
    grid->addRow(QStringLiteral("Command link"), makeCommandLink);
    section.add(grid);
}

void addButtonBox(Section& section)
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Help | QDialogButtonBox::RestoreDefaults
                                     | QDialogButtonBox::Apply | QDialogButtonBox::Cancel
                                     | QDialogButtonBox::Ok);
    section.add(box, true);
}

} // namespace

void fillButtons(Page& page)
{
    addUsual(page.addSection(QStringLiteral("Push buttons")));
    addKinds(page.addSection(
        QStringLiteral("Kinds"),
        QStringLiteral("Chosen with the dynamic properties \"highlighted\", \"Order\", \"Status\" "
                       "and \"ButtonType\".")));
    addShapes(
        page.addSection(QStringLiteral("Shapes and marks"),
                        QStringLiteral("Chosen with \"outline\", \"circular\", \"frameless\", "
                                       "\"drawErrorIndicator\" and \"blinking\".")));
    addTextsAndSizes(page.addSection(QStringLiteral("Texts and sizes")));
    addCommandLinks(page.addSection(QStringLiteral("Command links")));
    addButtonBox(page.addSection(QStringLiteral("Buttons of a dialog")));
}

} // namespace Gallery
