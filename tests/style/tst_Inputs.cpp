#include "StateSheet.h"

using namespace StateSheet;

// Stands in for a widget of another library, which the style knows by its name.
namespace BRELK::Components {

class ButtonGroupWidget : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::Components

namespace {

constexpr QSize ButtonSize(80, 28);
constexpr QSize BoxSize(120, 24);

/// The name of a transcript: of a widget without properties it ends in "plain".
void addRow(const char* family, const char* property, const QByteArray& sheet)
{
    QTest::addRow("%s.%s", family, *property ? property : "plain") << sheet;
}

template <class Button>
QByteArray indicatorSheet(QStyle::PrimitiveElement indicator, const char* property,
                          const QVector<State>& states)
{
    Open<Button> button;
    button.setProperty(property, true);
    const QStyle& style = *button.style();
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &button),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, &button));
    return sheetOf(indicator, optionOf<QStyleOptionButton>(button, size), button, states);
}

QByteArray comboBoxSheet(const char* property, bool value)
{
    Open<QComboBox> box;
    box.addItem(QStringLiteral("Text"));
    box.resize(BoxSize);
    box.setProperty(property, value);
    const auto option = optionOf<QStyleOptionComboBox>(box, BoxSize);
    return sheetOf(QStyle::CC_ComboBox, option, box, {AtRest, Hovered, Pressed, Focused})
           + "[label]\n"
           + sheetOf(QStyle::CE_ComboBoxLabel, option, box, {AtRest, Hovered, Pressed});
}

QByteArray spinBoxSheet(const char* property, const QVariant& value)
{
    Open<QSpinBox> box;
    box.setProperty(property, value);
    box.resize(100, 24);
    box.setValue(50);
    const auto option = optionOf<QStyleOptionSpinBox>(box, QSize(100, 24));
    const auto paintedAt = [&](QStyle::SubControl active, QStyle::State state) {
        QStyleOptionSpinBox copy = option;
        copy.activeSubControls = active;
        copy.state |= state;
        return drawn(QStyle::CC_SpinBox, copy, &box);
    };
    return sheetOf(QStyle::CC_SpinBox, option, box, {AtRest, Focused}) + "[upper button hovered]\n"
           + paintedAt(QStyle::SC_SpinBoxUp, Hovered.added) + "[lower button pressed]\n"
           + paintedAt(QStyle::SC_SpinBoxDown, Pressed.added);
}

/// The segments of a group as they stand in it, in both directions, and one that is alone.
QByteArray segments(Qt::Orientation orientation)
{
    BRELK::Components::ButtonGroupWidget group;
    group.setProperty("orientation", int(orientation));
    Open<QPushButton> button(QStringLiteral("Text"));
    button.setParent(&group);
    QByteArray text;
    const auto add = [&](int index, int count) {
        group.setProperty("ButtonGroupWidget_VisibleCount", count);
        button.setProperty("Button_VisibleIndex", index);
        const auto option = optionOf<QStyleOptionButton>(button, ButtonSize);
        text += "[" + QByteArray::number(index) + " of " + QByteArray::number(count) + "]\n"
                + drawn(QStyle::PE_PanelButtonCommand, option, &button);
    };
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        button.setLayoutDirection(direction);
        for (const int index : {0, 1, 2, -1})
            add(index, 3);
    }
    add(0, 1);
    return text;
}

QByteArray workflowSteps()
{
    BRELK::Components::ButtonGroupWidget group;
    group.setProperty("orientation", int(Qt::Horizontal));
    group.setProperty("ButtonGroupWidget_Workflow", true);
    group.setProperty("ButtonGroupWidget_VisibleCount", 3);
    Open<QPushButton> button(QStringLiteral("Text"));
    button.setParent(&group);
    QByteArray steps;
    for (int index = 0; index < 3; ++index) {
        button.setProperty("Button_VisibleIndex", index);
        const auto option = optionOf<QStyleOptionButton>(button, ButtonSize);
        steps += "[step " + QByteArray::number(index) + "]\n"
                 + drawn(QStyle::PE_PanelButtonCommand, option, &button);
    }
    return steps;
}

/// A button with a menu, in both directions.
QByteArray menuButton(const QString& text)
{
    Open<QPushButton> button(text);
    QMenu menu;
    button.setMenu(&menu);
    auto option = optionOf<QStyleOptionButton>(button, ButtonSize);
    const QByteArray leftToRight = drawn(QStyle::CE_PushButton, option, &button);
    option.direction = Qt::RightToLeft;
    return leftToRight + "[right to left]\n" + drawn(QStyle::CE_PushButton, option, &button);
}

} // namespace

class tst_Inputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        for (const char* property : {"", "flat", "outline", "frameless", "circular",
                                     "drawErrorIndicator", "highlighted"}) {
            Open<QPushButton> button(QStringLiteral("Text"));
            button.setProperty(property, true);
            addRow("Buttons", property,
                   sheetOf(QStyle::CE_PushButton, optionOf<QStyleOptionButton>(button, ButtonSize),
                           button, {AtRest, Hovered, Pressed, Checked, Focused}));
        }
        addRow("Buttons", "menu", menuButton(QStringLiteral("Text")));
        addRow("Buttons", "segments", segments(Qt::Horizontal));
        addRow("Buttons", "uprightSegments", segments(Qt::Vertical));
        addRow("Buttons", "workflow", workflowSteps());

        for (const char* property : {"", "switch", "drawErrorIndicator"})
            addRow("CheckBoxes", property,
                   indicatorSheet<QCheckBox>(QStyle::PE_IndicatorCheckBox, property,
                                             {AtRest, Hovered, Pressed, Checked, Partly}));
        addRow("CheckBoxes", "radio",
               indicatorSheet<QRadioButton>(QStyle::PE_IndicatorRadioButton, "none",
                                            {AtRest, Hovered, Pressed, Checked}));

        for (const char* property : {"", "readOnly", "drawErrorIndicator"}) {
            Open<QLineEdit> edit;
            edit.setProperty(property, true);
            addRow("LineEdits", property,
                   sheetOf(QStyle::PE_PanelLineEdit,
                           optionOf<QStyleOptionFrame>(edit, QSize(100, 28)), edit,
                           {AtRest, Hovered, Focused}));
        }

        addRow("ComboBoxes", "", comboBoxSheet("none", true));
        addRow("ComboBoxes", "editable", comboBoxSheet("editable", true));
        addRow("ComboBoxes", "frameless", comboBoxSheet("frame", false));

        addRow("SpinBoxes", "", spinBoxSheet("none", true));
        addRow("SpinBoxes", "signs", spinBoxSheet("buttonSymbols", QAbstractSpinBox::PlusMinus));
        addRow("SpinBoxes", "error", spinBoxSheet("drawErrorIndicator", true));
        addRow("SpinBoxes", "frameless", spinBoxSheet("frame", false));
        addRow("SpinBoxes", "greatest", spinBoxSheet("maximum", 50));
    }

    void states()
    {
        QFETCH(QByteArray, sheet);
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet);
    }

    void longTextsAreElided()
    {
        QVERIFY(menuButton(QStringLiteral("A text that is too long for it")).contains("\u2026"));
    }

    void fieldsTakeTheRoomThatIsLeft()
    {
        Open<QSpinBox> spinBox;
        spinBox.setButtonSymbols(QAbstractSpinBox::NoButtons);
        const auto spin = optionOf<QStyleOptionSpinBox>(spinBox, QSize(100, 24));
        QCOMPARE(partsOf(QStyle::CC_SpinBox, spin, spinBox),
                 "CC_SpinBox 4: 0,0 100x24\nCC_SpinBox 8: 1,1 100x22\n");
        Open<QComboBox> comboBox;
        comboBox.setEditable(true);
        QCOMPARE(partsOf(QStyle::CC_ComboBox, optionOf<QStyleOptionComboBox>(comboBox, BoxSize),
                         comboBox),
                 "CC_ComboBox 1: 0,0 120x24\nCC_ComboBox 2: 3,3 96x18\n"
                 "CC_ComboBox 4: 100,0 18x24\nCC_ComboBox 8: 0,0 120x24\n");
    }

    void labelsFitIntoTheirSizeHint()
    {
        const auto room = [](const QAbstractButton& button, QStyle::SubElement contents) {
            QStyleOptionButton option;
            option.initFrom(&button);
            option.rect.setSize(button.sizeHint());
            return button.style()->subElementRect(contents, &option, &button).width()
                   - option.fontMetrics.horizontalAdvance(button.text());
        };
        QVERIFY(room(QCheckBox(QStringLiteral("Text")), QStyle::SE_CheckBoxContents) > 0);
        QVERIFY(room(QRadioButton(QStringLiteral("Text")), QStyle::SE_RadioButtonContents) > 0);
    }

    void applicationsColorsAreKept()
    {
        Open<QLineEdit> edit;
        QPalette palette = edit.palette();
        palette.setColor(QPalette::Base, Qt::red);
        edit.setPalette(palette);
        QVERIFY(drawn(QStyle::PE_PanelLineEdit, optionOf<QStyleOptionFrame>(edit, BoxSize), &edit)
                    .contains("brush #ff0000"));

        Open<QComboBox> box;
        box.setPlaceholderText(QStringLiteral("Text"));
        auto option = optionOf<QStyleOptionComboBox>(box, BoxSize);
        option.currentText = box.placeholderText();
        QVERIFY(
            drawn(QStyle::CE_ComboBoxLabel, option, &box).contains("pen palette.PlaceholderText"));
    }

    void popupIsAsWideAsItsLongestItem()
    {
        const QString text = QStringLiteral("An item that is very much longer than the box");
        QComboBox box;
        box.addItem(QStringLiteral("a"));
        box.setFixedWidth(60);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->window()->width(), 60);
        box.hidePopup();
        box.addItem(text);
        box.showPopup();
        QVERIFY(box.view()->viewport()->width() >= box.fontMetrics().horizontalAdvance(text));
        box.hidePopup();
    }

    void bordersFillWholePixelsAtAnyScale()
    {
        constexpr int AlmostWhite = 240;
        QLineEdit field;
        for (const qreal scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
            for (const QPoint& place : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 3)}) {
                QImage image(QSize(160, 100), QImage::Format_RGB32);
                image.setDevicePixelRatio(scale);
                image.fill(Qt::white);
                QStyleOptionFrame option;
                option.initFrom(&field);
                option.rect = QRect(place, QSize(41, 27));
                option.lineWidth = 1;
                QPainter painter(&image);
                field.style()->drawPrimitive(QStyle::PE_FrameLineEdit, &option, &painter, &field);
                painter.end();
                int borderPixels = 0;
                const int y = qRound((place.y() + 14) * scale);
                for (int x = 0; x < image.width(); ++x)
                    borderPixels += qRed(image.pixel(x, y)) < AlmostWhite;
                QCOMPARE(borderPixels, 2 * int(scale));
            }
        }
    }

    void errorIsMarkedOnce_data()
    {
        QTest::addColumn<bool>("rightToLeft");
        QTest::newRow("left to right") << false;
        QTest::newRow("right to left") << true;
    }

    void errorIsMarkedOnce()
    {
        QFETCH(bool, rightToLeft);
        Open<QComboBox> box;
        box.setEditable(true);
        box.setProperty("drawErrorIndicator", true);
        box.resize(BoxSize);
        auto option = optionOf<QStyleOptionComboBox>(box, BoxSize);
        option.direction = rightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
        const QByteArray shapes = drawn(QStyle::CC_ComboBox, option, &box);
        QCOMPARE(shapes.count("brush StatusDangerColor"), 1);
    }

    void arrowsNeedAWidgetThatWantsThem()
    {
        QStyleOption option;
        option.rect = QRect(0, 0, 16, 16);
        QWidget widget;
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option), "");
        QVERIFY(!drawn(QStyle::PE_IndicatorArrowDown, option, &widget).isEmpty());
        widget.setProperty("no menu arrow", true);
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option, &widget), "");
    }
};

QTEST_MAIN(tst_Inputs)
#include "tst_Inputs.moc"
