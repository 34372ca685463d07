#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Page.h"
#include "kit/Picture.h"
#include "kit/Properties.h"
#include "kit/SampleData.h"
#include "kit/StateGrid.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontComboBox>
#include <QTreeWidget>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

constexpr int FieldWidth = 19 * Unit;
constexpr int PopupRows = 6;

QComboBox* makeComboBox()
{
    auto* box = new QComboBox;
    box->addItems({QStringLiteral("Linear"), QStringLiteral("Cubic"), QStringLiteral("Lanczos"),
                   QStringLiteral("Nearest neighbor")});
    box->setFixedWidth(FieldWidth);
    return box;
}

QComboBox* makeEditable()
{
    QComboBox* box = makeComboBox();
    box->setEditable(true);
    return box;
}

QComboBox* makeWithIcons()
{
    auto* box = new QComboBox;
    for (const char* name : {"chart.line", "chart.bar", "chart.pie", "chart.scatter"}) {
        const QString icon = QString::fromLatin1(name);
        box->addItem(getIcon(icon), titleOf(icon));
    }
    box->insertSeparator(2);
    box->setFixedWidth(FieldWidth);
    return box;
}

QComboBox* makeFrameless()
{
    QComboBox* box = makeComboBox();
    box->setFrame(false);
    return box;
}

QComboBox* makePlaceholder()
{
    QComboBox* box = makeComboBox();
    box->setPlaceholderText(QStringLiteral("Choose a method"));
    box->setCurrentIndex(-1);
    return box;
}

QComboBox* makeLong()
{
    QComboBox* box = makeComboBox();
    box->insertItem(0, QStringLiteral("A method with a name that is too long"));
    box->setCurrentIndex(0);
    return box;
}

QComboBox* makeEditableWithIcons()
{
    QComboBox* box = makeWithIcons();
    box->setEditable(true);
    return box;
}

void addStates(Section& section)
{
    auto* grid = new StateGrid({State::Normal, State::Hovered, State::Focused, State::Disabled});
    grid->addRow(QStringLiteral("Plain"), makeComboBox);
    grid->addRow(QStringLiteral("Editable"), makeEditable);
    grid->addRow(QStringLiteral("With icons"), makeWithIcons);
    grid->addRow(QStringLiteral("Editable, icons"), makeEditableWithIcons);
    grid->addRow(QStringLiteral("Placeholder"), makePlaceholder);
    grid->addRow(QStringLiteral("No frame"), makeFrameless);
    grid->addRow(QStringLiteral("Error"),
                 [] { return with(makeComboBox(), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("Editable, error"),
                 [] { return with(makeEditable(), "drawErrorIndicator"); });
    grid->addRow(QStringLiteral("Long text"), makeLong);
    section.add(grid);
}

QComboBox* makeCheckList()
{
    QComboBox* box = makeComboBox();
    for (int index = 0; index < box->count(); ++index)
        box->setItemData(index, index % 2 ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    return box;
}

QComboBox* makeTreeBox()
{
    auto* box = new QComboBox;
    auto* tree = new QTreeWidget(box);
    for (const QString& layer : {QStringLiteral("Bone"), QStringLiteral("Tissue")}) {
        auto* item = new QTreeWidgetItem(tree, {layer});
        new QTreeWidgetItem(item, {QStringLiteral("Surface")});
        new QTreeWidgetItem(item, {QStringLiteral("Volume")});
    }
    tree->setHeaderHidden(true);
    tree->expandAll();
    box->setModel(tree->model());
    box->setView(tree);
    box->setFixedWidth(FieldWidth);
    return box;
}

/// The open list of `box` as a picture, its second item hovered.
QWidget* popupOf(QComboBox* box)
{
    QAbstractItemView* view = box->view();
    QWidget* popup = view->window();
    popup->ensurePolished();
    popup->resize(FieldWidth, view->sizeHintForRow(0) * PopupRows + 2 * Unit);
    view->setCurrentIndex(box->model()->index(1, 0));
    return new Picture(popup, box);
}

void addPopups(Section& section)
{
    section.add(row({captioned(QStringLiteral("Texts"), popupOf(makeComboBox())),
                     captioned(QStringLiteral("Icons and a separator"), popupOf(makeWithIcons())),
                     captioned(QStringLiteral("Check marks"), popupOf(makeCheckList())),
                     captioned(QStringLiteral("In a tree"), popupOf(makeTreeBox()))}));
}

} // namespace

void fillComboBoxes(Page& page)
{
    addStates(page.addSection(QStringLiteral("States")));
    addPopups(page.addSection(QStringLiteral("Open lists"), QStringLiteral("As pictures.")));
    Section& more = page.addSection(QStringLiteral("More"));
    auto* fonts = new QFontComboBox;
    fonts->setFixedWidth(26 * Unit);
    more.add(row({captioned(QStringLiteral("Fonts"), fonts),
                  captioned(QStringLiteral("In a tree"), makeTreeBox()),
                  captioned(QStringLiteral("Check marks"), makeCheckList())}));
}

} // namespace Gallery
