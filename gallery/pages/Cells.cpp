#include "Cells.h"

#include "kit/Page.h"

#include <QHeaderView>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTableView>

namespace Gallery {

namespace {

/// What a delegate paints with: the cell, the widget that it passes, and the painter.
struct Cell
{
    const QStyleOptionViewItem& item;
    const QWidget* widget;
    QPainter& painter;

    const QStyle& style() const { return *item.widget->style(); }

    template <class Option>
    Option option() const
    {
        constexpr int Margin = 4;
        Option option;
        option.QStyleOption::operator=(item);
        option.rect.adjust(Margin, Margin, -Margin, -Margin);
        option.state &= ~QStyle::State(QStyle::State_HasFocus | QStyle::State_Selected);
        return option;
    }
};

void paintButton(const Cell& cell)
{
    auto button = cell.option<QStyleOptionButton>();
    button.text = QStringLiteral("Apply");
    button.state |= QStyle::State_Raised;
    cell.style().drawControl(QStyle::CE_PushButton, &button, &cell.painter, cell.widget);
}

template <QStyle::ControlElement Element>
void paintChoice(const Cell& cell)
{
    auto button = cell.option<QStyleOptionButton>();
    button.text = QStringLiteral("Shown");
    button.state |= QStyle::State_On;
    cell.style().drawControl(Element, &button, &cell.painter, cell.widget);
}

template <bool IsEditable>
void paintComboBox(const Cell& cell)
{
    auto comboBox = cell.option<QStyleOptionComboBox>();
    comboBox.editable = IsEditable;
    comboBox.currentText = QStringLiteral("Steel");
    comboBox.subControls = QStyle::SC_ComboBoxArrow | QStyle::SC_ComboBoxFrame;
    cell.style().drawComplexControl(QStyle::CC_ComboBox, &comboBox, &cell.painter, cell.widget);
    cell.style().drawControl(QStyle::CE_ComboBoxLabel, &comboBox, &cell.painter, cell.widget);
}

void paintSpinBox(const Cell& cell)
{
    auto spinBox = cell.option<QStyleOptionSpinBox>();
    spinBox.frame = true;
    spinBox.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    spinBox.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    cell.style().drawComplexControl(QStyle::CC_SpinBox, &spinBox, &cell.painter, cell.widget);
}

template <QStyle::ComplexControl Control>
void paintRange(const Cell& cell)
{
    auto slider = cell.option<QStyleOptionSlider>();
    slider.orientation = Qt::Horizontal;
    slider.state |= QStyle::State_Horizontal;
    slider.maximum = 10;
    slider.pageStep = 2;
    slider.sliderPosition = slider.sliderValue = 4;
    slider.tickPosition = QSlider::TicksBelow;
    slider.subControls = QStyle::SC_All;
    cell.style().drawComplexControl(Control, &slider, &cell.painter, cell.widget);
}

void paintProgress(const Cell& cell)
{
    auto bar = cell.option<QStyleOptionProgressBar>();
    bar.state |= QStyle::State_Horizontal;
    bar.maximum = 10;
    bar.progress = 6;
    bar.textVisible = true;
    bar.textAlignment = Qt::AlignCenter;
    bar.text = QStringLiteral("60 %");
    cell.style().drawControl(QStyle::CE_ProgressBar, &bar, &cell.painter, cell.widget);
}

void paintToolButton(const Cell& cell)
{
    auto button = cell.option<QStyleOptionToolButton>();
    button.text = QStringLiteral("Tool");
    button.font = cell.item.font;
    button.toolButtonStyle = Qt::ToolButtonTextOnly;
    button.state |= QStyle::State_Raised;
    button.features = QStyleOptionToolButton::MenuButtonPopup;
    button.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    cell.style().drawComplexControl(QStyle::CC_ToolButton, &button, &cell.painter, cell.widget);
}

void paintLineEdit(const Cell& cell)
{
    auto frame = cell.option<QStyleOptionFrame>();
    frame.lineWidth = 1;
    // Under a style sheet the toolkit takes this widget for granted.
    cell.style().drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &cell.painter, cell.item.widget);
}

void paintGroupBox(const Cell& cell)
{
    auto groupBox = cell.option<QStyleOptionGroupBox>();
    groupBox.text = QStringLiteral("Group");
    groupBox.lineWidth = 1;
    groupBox.textColor = groupBox.palette.color(QPalette::WindowText);
    groupBox.subControls =
        QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxCheckBox;
    cell.style().drawComplexControl(QStyle::CC_GroupBox, &groupBox, &cell.painter, cell.widget);
}

struct Control
{
    const char* name;
    void (*paint)(const Cell&);
};

constexpr Control Controls[] = {{"Push button", paintButton},
                                {"Check box", paintChoice<QStyle::CE_CheckBox>},
                                {"Radio button", paintChoice<QStyle::CE_RadioButton>},
                                {"Combo box", paintComboBox<false>},
                                {"Editable combo box", paintComboBox<true>},
                                {"Spin box", paintSpinBox},
                                {"Line edit", paintLineEdit},
                                {"Tool button", paintToolButton},
                                {"Slider", paintRange<QStyle::CC_Slider>},
                                {"Scroll bar", paintRange<QStyle::CC_ScrollBar>},
                                {"Progress bar", paintProgress},
                                {"Group box", paintGroupBox}};

/// The columns of the table: how the delegate calls the style.
enum Column { WithView, WithoutWidget, Disabled, RightToLeft, ColumnCount };

class ControlDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem item = option;
        if (index.column() == Disabled) {
            item.state &= ~QStyle::State_Enabled;
            item.palette.setCurrentColorGroup(QPalette::Disabled);
        } else if (index.column() == RightToLeft) {
            item.direction = Qt::RightToLeft;
        }
        const QWidget* widget = index.column() == WithoutWidget ? nullptr : option.widget;
        painter->save();
        Controls[index.row()].paint({item, widget, *painter});
        painter->restore();
    }
};

} // namespace

QWidget* makeControlCells()
{
    constexpr int Rows = std::size(Controls);
    auto* table = new QTableView;
    auto* model = new QStandardItemModel(Rows, ColumnCount, table);
    model->setHorizontalHeaderLabels({QStringLiteral("With the view"),
                                      QStringLiteral("Without a widget"),
                                      QStringLiteral("Disabled"), QStringLiteral("Right to left")});
    for (int row = 0; row < Rows; ++row)
        model->setHeaderData(row, Qt::Vertical, QString::fromUtf8(Controls[row].name));
    table->setModel(model);
    table->setItemDelegate(new ControlDelegate(table));
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->verticalHeader()->setDefaultSectionSize(5 * Unit);
    table->horizontalHeader()->setDefaultSectionSize(20 * Unit);
    table->setFixedHeight((5 * Rows + 6) * Unit);
    return table;
}

} // namespace Gallery
