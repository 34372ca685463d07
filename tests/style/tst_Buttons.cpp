#include "Helpers.h"
#include "StateSheet.h"

#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

using namespace BRELK;
using namespace StateSheet;

namespace BRELK::Components {

class ButtonGroupWidget : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::Components

namespace {

constexpr QSize Size(80, 28);

QStyleOptionButton optionOfButton(const Open<QPushButton>& button)
{
    return optionOf<QStyleOptionButton>(button, Size);
}

Shape panelOf(const Open<QPushButton>& button)
{
    return drawn(QStyle::PE_PanelButtonCommand, optionOfButton(button), &button).value(0);
}

} // namespace

class tst_Buttons : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void states_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const char* property :
             {"", "flat", "outline", "frameless", "circular", "drawErrorIndicator", "highlighted"})
            QTest::newRow(*property ? property : "plain") << QByteArray(property);
    }

    void states()
    {
        QFETCH(QByteArray, property);
        Open<QPushButton> button(QStringLiteral("Text"));
        if (!property.isEmpty())
            button.setProperty(property, true);
        const QByteArray name = QByteArray("Buttons.") + QTest::currentDataTag();
        COMPARE_TRANSCRIPT(name, sheetOf(QStyle::CE_PushButton, optionOfButton(button), button,
                                         {AtRest, Hovered, Pressed, Checked, Focused}));
    }

    void menuArrowStandsAtTheEnd()
    {
        Open<QPushButton> button(QStringLiteral("Text"));
        QMenu menu;
        button.setMenu(&menu);
        QStyleOptionButton option = optionOfButton(button);
        const auto arrowLeft = [&] {
            for (const Shape& shape : drawn(QStyle::CE_PushButtonBevel, option, &button))
                if (shape.kind == Shape::Pixmap)
                    return shape.rect.left();
            return qreal(-1);
        };
        const qreal left = arrowLeft();
        option.direction = Qt::RightToLeft;
        const qreal mirrored = arrowLeft();
        QVERIFY(left > Size.width() / 2.0);
        QCOMPARE(mirrored, Size.width() - left - 16);
    }

    void longTextKeepsOffTheBorder()
    {
        Open<QPushButton> button(QStringLiteral("A text that is much longer than its button"));
        const auto shapes = drawn(QStyle::CE_PushButtonLabel, optionOfButton(button), &button);
        QCOMPARE(shapes.size(), 1);
        QVERIFY(shapes.at(0).text.endsWith(QChar(0x2026)));
    }

    void segmentsJoinIntoOneShape()
    {
        Components::ButtonGroupWidget group;
        group.setProperty("orientation", int(Qt::Horizontal));
        group.setProperty("ButtonGroupWidget_VisibleCount", 3);
        Open<QPushButton> button(QStringLiteral("Text"));
        button.setParent(&group);
        const auto corners = [&](int index) {
            button.setProperty("Button_VisibleIndex", index);
            return panelOf(button).squareCorners;
        };
        QCOMPARE(corners(0), int(Helpers::RightCorners));
        QCOMPARE(panelOf(button).rect, QRectF(0.5, 0.5, 79, 27));
        QCOMPARE(corners(2), int(Helpers::LeftCorners));
        // The border towards the segment before it lies outside.
        QCOMPARE(panelOf(button).rect, QRectF(-0.5, 0.5, 80, 27));

        button.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(panelOf(button).deviceRect(), QRectF(0.5, 0.5, 80, 27));

        button.setLayoutDirection(Qt::LeftToRight);
        button.setProperty("Button_VisibleIndex", -1);
        QVERIFY(drawn(QStyle::PE_PanelButtonCommand, optionOfButton(button), &button).isEmpty());
        group.setProperty("ButtonGroupWidget_VisibleCount", 1);
        QCOMPARE(corners(0), 0);
    }

    void workflowStepsShowTheirLinks()
    {
        Components::ButtonGroupWidget group;
        group.setProperty("orientation", int(Qt::Horizontal));
        group.setProperty("ButtonGroupWidget_Workflow", true);
        group.setProperty("ButtonGroupWidget_VisibleCount", 3);
        Open<QPushButton> button(QStringLiteral("Text"));
        button.setParent(&group);
        QByteArray steps;
        for (int index = 0; index < 3; ++index) {
            button.setProperty("Button_VisibleIndex", index);
            steps += "[step " + QByteArray::number(index) + "]\n"
                     + transcriptOf(
                         drawn(QStyle::PE_PanelButtonCommand, optionOfButton(button), &button));
        }
        COMPARE_TRANSCRIPT("Buttons.workflow", steps);
    }

    void arrowsNeedAWidgetThatWantsThem()
    {
        QStyleOption option;
        option.rect = QRect(0, 0, 16, 16);
        QWidget widget;
        QVERIFY(drawn(QStyle::PE_IndicatorArrowDown, option).isEmpty());
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option, &widget).size(), 1);
        widget.setProperty("no menu arrow", true);
        QVERIFY(drawn(QStyle::PE_IndicatorArrowDown, option, &widget).isEmpty());
    }
};

QTEST_MAIN(tst_Buttons)
#include "tst_Buttons.moc"
