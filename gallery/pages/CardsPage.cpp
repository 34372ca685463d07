#include "Pages.h"
#include "companions/Companions.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "pages/Chart.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Gallery {

namespace {

using BRELK::Components::ButtonGroupWidget;
using BRELK::Components::CardWidget;

CardWidget* makeCard()
{
    auto* card = new CardWidget(QStringLiteral("Turbine"), QStringLiteral("Scan of 17 May"));
    card->setContents(new QLabel(QStringLiteral("1024 slices of\n2048 x 2048 voxels")));
    card->setMinimumWidth(24 * Unit);
    return card;
}

CardWidget* makeCardWithFooter()
{
    CardWidget* card = makeCard();
    card->setFooter(new QPushButton(QStringLiteral("Open")));
    return card;
}

CardWidget* makeCollapsed()
{
    CardWidget* card = makeCard();
    card->setCollapsed(true);
    return card;
}

CardWidget* makeWith(const char* property)
{
    CardWidget* card = makeCardWithFooter();
    card->setProperty(property, true);
    return card;
}

/// A card that stands on its header.
CardWidget* makeInverted()
{
    CardWidget* card = makeWith("invertedAppearance");
    if (auto* layout = qobject_cast<QBoxLayout*>(card->layout()))
        layout->setDirection(QBoxLayout::BottomToTop);
    return card;
}

void addCards(Section& section)
{
    CardWidget* disabled = makeCardWithFooter();
    disabled->setEnabled(false);
    section.add(row({captioned(QStringLiteral("Header and contents"), makeCard()),
                     captioned(QStringLiteral("With footer"), makeCardWithFooter()),
                     captioned(QStringLiteral("Disabled"), disabled),
                     captioned(QStringLiteral("Collapsed"), makeCollapsed())}));
    section.add(row({captioned(QStringLiteral("\"expandable\""), makeWith("expandable")),
                     captioned(QStringLiteral("\"invertedAppearance\""), makeInverted()),
                     captioned(QStringLiteral("\"CardWidget_NoCornerRadius\""),
                               makeWith("CardWidget_NoCornerRadius"))}));
}

ButtonGroupWidget* makeGroup(Qt::Orientation orientation, int count)
{
    const QStringList texts{QStringLiteral("Axial"), QStringLiteral("Coronal"),
                            QStringLiteral("Sagittal"), QStringLiteral("3D")};
    return new ButtonGroupWidget(orientation, texts.mid(0, count));
}

ButtonGroupWidget* makeWorkflow(bool exclusive)
{
    ButtonGroupWidget* group =
        with(with(makeGroup(Qt::Horizontal, 4), "ButtonGroupWidget_Workflow"),
             "ButtonGroupWidget_Exclusive", exclusive);
    group->setMinimumWidth(44 * Unit);
    return group;
}

void addGroups(Section& section)
{
    ButtonGroupWidget* disabled = makeGroup(Qt::Horizontal, 4);
    disabled->setEnabled(false);
    section.add(row({captioned(QStringLiteral("Four buttons"), makeGroup(Qt::Horizontal, 4)),
                     captioned(QStringLiteral("Disabled"), disabled)}));
    section.add(row({captioned(QStringLiteral("Two"), makeGroup(Qt::Horizontal, 2)),
                     captioned(QStringLiteral("One"), makeGroup(Qt::Horizontal, 1)),
                     captioned(QStringLiteral("Upright"), makeGroup(Qt::Vertical, 3))}));
    section.add(row({captioned(QStringLiteral("Workflow, one at a time"), makeWorkflow(true)),
                     captioned(QStringLiteral("Workflow, any"), makeWorkflow(false))}));
}

QLabel* makePill(const QString& text)
{
    return with(new QLabel(text), "Pill_Font");
}

QWidget* makeRoundedPicture()
{
    return new BRELK::Components::RoundedPicture(Chart().grab().scaled(
        18 * Unit, 10 * Unit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace

void fillCards(Page& page)
{
    addCards(page.addSection(QStringLiteral("Cards"),
                             QStringLiteral("Header, contents and footer are marked with "
                                            "\"CardWidgetBase_Header\", \"..._Contents\" and "
                                            "\"..._Footer\".")));
    addGroups(page.addSection(QStringLiteral("Button groups")));
    page.addSection(QStringLiteral("Labels"))
        .add(row({captioned(QStringLiteral("\"Pill_Font\""), makePill(QStringLiteral("NEW"))),
                  captioned(QStringLiteral("\"roundedPixmap\""), makeRoundedPicture())}));
}

} // namespace Gallery
