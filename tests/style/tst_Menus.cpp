#include "States.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

namespace {

constexpr QRect RowRect(0, 0, 200, 28);

QStyleOptionMenuItem row(const QString& text)
{
    QStyleOptionMenuItem item;
    item.rect = RowRect;
    item.text = text;
    item.tabWidth = 60;
    item.maxIconWidth = 16;
    item.state = QStyle::State_Enabled;
    item.palette = QApplication::palette();
    item.checkType = QStyleOptionMenuItem::NotCheckable;
    item.menuItemType = QStyleOptionMenuItem::Normal;
    return item;
}

const Shape* textOf(const QVector<Shape>& shapes, const QString& text)
{
    for (const Shape& shape : shapes)
        if (shape.kind == Shape::Text && shape.text == text)
            return &shape;
    return nullptr;
}

} // namespace

class tst_Menus : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeStyle(); }

    void states()
    {
        const QVector<PaintedState> states = {
            {"normal"},
            {"selected", QStyle::State_Selected},
            {"disabled", {}, QStyle::State_Enabled},
            {"open", QStyle::State_Selected | QStyle::State_Sunken}};
        QByteArray text;
        for (const PaintedState& state : states) {
            QStyleOptionMenuItem item = row(QStringLiteral("Open"));
            item.state = (item.state | state.added) & ~state.removed;
            if (!(item.state & QStyle::State_Enabled))
                item.palette.setCurrentColorGroup(QPalette::Disabled);
            text += QByteArray("# item, ") + state.name + '\n'
                    + transcriptOf(drawn(QStyle::CE_MenuItem, item));
        }
        COMPARE_TRANSCRIPT("Menus.states",
                           text + transcriptOfStates(QStyle::CE_MenuBarItem, states)
                               + transcriptOfStates(QStyle::PE_PanelMenu, {states.first()}));
    }

    void marks()
    {
        QByteArray text;
        for (const bool checked : {false, true}) {
            for (const auto type :
                 {QStyleOptionMenuItem::Exclusive, QStyleOptionMenuItem::NonExclusive}) {
                QStyleOptionMenuItem item = row(QStringLiteral("Grid"));
                item.checkType = type;
                item.checked = checked;
                text += "# type " + QByteArray::number(type)
                        + (checked ? ", checked\n" : ", unchecked\n")
                        + transcriptOf(drawn(QStyle::CE_MenuItem, item));
            }
        }
        COMPARE_TRANSCRIPT("Menus.marks", text);
    }

    void columnsAreMirrored()
    {
        const QMenu menu;
        QStyleOptionMenuItem item = row(QStringLiteral("More"));
        item.menuItemType = QStyleOptionMenuItem::SubMenu;
        const auto arrow = [&] {
            return drawn(QStyle::CE_MenuItem, item, &menu).last().deviceRect().center().x();
        };
        const qreal leftToRight = arrow();
        item.direction = Qt::RightToLeft;
        QVERIFY(leftToRight > RowRect.center().x());
        QCOMPARE(qRound(arrow()), qRound(RowRect.width() - leftToRight));
    }

    void textAndShortcutAreDrawnApart()
    {
        const QVector<Shape> shapes =
            drawn(QStyle::CE_MenuItem, row(QStringLiteral("Open\tCtrl+O")));
        QVERIFY(textOf(shapes, QStringLiteral("Open")));
        QVERIFY(textOf(shapes, QStringLiteral("Ctrl+O")));
    }

    void defaultActionsAreBold()
    {
        QStyleOptionMenuItem item = row(QStringLiteral("Save"));
        item.menuItemType = QStyleOptionMenuItem::DefaultItem;
        const QVector<Shape> shapes = drawn(QStyle::CE_MenuItem, item);
        QVERIFY(textOf(shapes, QStringLiteral("Save"))->font.contains("bold"));
    }

    void disabledItemsDoNotBreakTheBarsSurface()
    {
        QMenuBar bar;
        QStyleOptionMenuItem item = row(QStringLiteral("Edit"));
        item.state = QStyle::State_None;
        for (const QStyle::ControlElement element :
             {QStyle::CE_MenuBarItem, QStyle::CE_MenuBarEmptyArea})
            QCOMPARE(drawn(element, item, &bar).at(0).brush, "BackgroundSubLevel2Brush");
        bar.setEnabled(false);
        QCOMPARE(drawn(QStyle::CE_MenuBarEmptyArea, item, &bar).at(0).brush,
                 "BackgroundSubLevel2BrushDisabled");
    }

    void tearOffsHaveTheColorOfTheMenu()
    {
        const QMenu menu;
        QStyleOptionMenuItem item = row({});
        item.menuItemType = QStyleOptionMenuItem::TearOff;
        QCOMPARE(drawn(QStyle::CE_MenuTearoff, item, &menu).at(0).brush,
                 "BackgroundSubLevel1Brush");
    }
};

QTEST_MAIN(tst_Menus)
#include "tst_Menus.moc"
