#include "Pages.h"
#include "companions/Companions.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/StateGrid.h"

#include <QDial>
#include <QGridLayout>
#include <QLCDNumber>
#include <QLabel>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

namespace Gallery {

namespace {

constexpr int SliderLength = 18 * Unit;

QSlider* makeSlider(Qt::Orientation orientation = Qt::Horizontal)
{
    auto* slider = new QSlider(orientation);
    slider->setRange(0, 100);
    slider->setValue(40);
    slider->setTickInterval(20);
    if (orientation == Qt::Horizontal)
        slider->setFixedWidth(SliderLength);
    else
        slider->setFixedHeight(SliderLength);
    return slider;
}

QSlider* makeTicked(QSlider::TickPosition ticks)
{
    QSlider* slider = makeSlider();
    slider->setTickPosition(ticks);
    return slider;
}

QSlider* makeInverted()
{
    QSlider* slider = with(makeSlider(), "slider_highlighted");
    slider->setInvertedAppearance(true);
    return slider;
}

void addSliders(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Plain"), [] { return makeSlider(); });
    grid->addRow(QStringLiteral("Highlighted"),
                 [] { return with(makeSlider(), "slider_highlighted"); });
    grid->addRow(QStringLiteral("Inverted"), makeInverted);
    grid->addRow(QStringLiteral("High contrast"), [] {
        return with(with(makeSlider(), "slider_high_contrast"), "slider_highlighted");
    });
    grid->addRow(QStringLiteral("Ticks below"), [] { return makeTicked(QSlider::TicksBelow); });
    grid->addRow(QStringLiteral("Ticks above"), [] { return makeTicked(QSlider::TicksAbove); });
    grid->addRow(QStringLiteral("Ticks on both sides"),
                 [] { return makeTicked(QSlider::TicksBothSides); });
    section.add(grid);
}

QWidget* makeRangeSlider(bool enabled)
{
    auto* slider = new BRELK::Components::RangeSlider;
    slider->setRange(25, 70);
    slider->setFixedWidth(SliderLength);
    slider->setEnabled(enabled);
    return slider;
}

QWidget* makeUprightSliders()
{
    QSlider* ticked = makeSlider(Qt::Vertical);
    ticked->setTickPosition(QSlider::TicksBothSides);
    return row(
        {makeSlider(Qt::Vertical), with(makeSlider(Qt::Vertical), "slider_highlighted"), ticked});
}

QDial* makeDial(bool notches)
{
    auto* dial = new QDial;
    dial->setRange(0, 100);
    dial->setValue(35);
    dial->setNotchesVisible(notches);
    dial->setFixedSize(9 * Unit, 9 * Unit);
    return dial;
}

QLCDNumber* makeDigits()
{
    auto* digits = new QLCDNumber;
    digits->display(42.5);
    digits->setFixedSize(14 * Unit, 5 * Unit);
    return digits;
}

void addMore(Section& section)
{
    QWidget* disabledSliders = makeUprightSliders();
    disabledSliders->setEnabled(false);
    section.add(row({captioned(QStringLiteral("Upright"), makeUprightSliders()),
                     captioned(QStringLiteral("Upright, disabled"), disabledSliders),
                     captioned(QStringLiteral("Range"), makeRangeSlider(true)),
                     captioned(QStringLiteral("Range, disabled"), makeRangeSlider(false))}));
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Dial"), [] { return makeDial(false); });
    grid->addRow(QStringLiteral("Dial with notches"), [] { return makeDial(true); });
    grid->addRow(QStringLiteral("Digits"), makeDigits);
    section.add(grid);
}

QProgressBar* makeProgress(int value)
{
    auto* bar = new QProgressBar;
    bar->setValue(value);
    bar->setFixedWidth(2 * SliderLength);
    return bar;
}

QProgressBar* makeBusy()
{
    QProgressBar* bar = makeProgress(0);
    bar->setRange(0, 0);
    return bar;
}

QProgressBar* makeBare()
{
    QProgressBar* bar = makeProgress(60);
    bar->setTextVisible(false);
    bar->setFixedHeight(Unit);
    return bar;
}

QProgressBar* makeInvertedProgress()
{
    QProgressBar* bar = makeProgress(30);
    bar->setInvertedAppearance(true);
    return bar;
}

QProgressBar* makeOwnColor()
{
    QProgressBar* bar = makeProgress(75);
    QPalette palette = bar->palette();
    palette.setColor(QPalette::Highlight, QColor(QStringLiteral("mediumseagreen")));
    bar->setPalette(palette);
    return bar;
}

QWidget* makeUprightBars()
{
    auto* bars = new QWidget;
    auto* layout = new QHBoxLayout(bars);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const int value : {10, 45, 100}) {
        QProgressBar* bar = makeProgress(value);
        bar->setOrientation(Qt::Vertical);
        bar->setFixedSize(3 * Unit, SliderLength);
        layout->addWidget(bar);
    }
    return bars;
}

void addProgress(Section& section)
{
    auto* grid = new StateGrid({State::Normal, State::Disabled});
    for (const int value : {0, 8, 50, 100}) {
        grid->addRow(QString(QString::number(value) % QLatin1String(" %")),
                     [value] { return makeProgress(value); });
    }
    grid->addRow(QStringLiteral("Busy"), makeBusy);
    grid->addRow(QStringLiteral("Without text"), makeBare);
    grid->addRow(QStringLiteral("Inverted"), makeInvertedProgress);
    grid->addRow(QStringLiteral("Color of its own"), makeOwnColor);
    grid->addRow(QStringLiteral("Upright"), makeUprightBars);
    section.add(grid);
}

template <class Bar = QScrollBar>
QScrollBar* makeScrollBar()
{
    auto* bar = new Bar(Qt::Horizontal);
    bar->setRange(0, 100);
    bar->setPageStep(40);
    bar->setValue(30);
    bar->setFixedWidth(SliderLength);
    return bar;
}

QScrollArea* makeScrollArea()
{
    auto* area = new QScrollArea;
    auto* contents = new QLabel(QStringLiteral("Larger than its view"));
    contents->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    contents->setMargin(Unit);
    contents->setFixedSize(60 * Unit, 30 * Unit);
    area->setWidget(contents);
    area->setFixedHeight(14 * Unit);
    return area;
}

void addScrollBars(Section& section)
{
    auto* grid = new StateGrid;
    grid->addRow(QStringLiteral("Plain"), makeScrollBar<>);
    grid->addRow(QStringLiteral("Minimized"), makeScrollBar<BRELK::Components::MinimizedScrollBar>);
    section.add(grid);
    section.add(pair(makeScrollArea(), makeScrollArea()), true);
}

} // namespace

void fillRanges(Page& page)
{
    addSliders(
        page.addSection(QStringLiteral("Sliders"), QStringLiteral("With \"slider_highlighted\" and "
                                                                  "\"slider_high_contrast\".")));
    addMore(page.addSection(QStringLiteral("Upright sliders, ranges and dials")));
    addProgress(page.addSection(QStringLiteral("Progress bars")));
    addScrollBars(page.addSection(QStringLiteral("Scroll bars")));
}

} // namespace Gallery
