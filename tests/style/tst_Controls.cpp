#include "EventCounter.h"
#include "StateSheet.h"

#include <limits>

// Controls, views and windows: what their looks do not tell.

using namespace StateSheet;

namespace {

constexpr QSize BoxSize(120, 24);

/// A row of a view as the view's delegate would pass it.
QStyleOptionViewItem rowOf(const QAbstractItemView& view, QStyle::State state = {})
{
    QStyleOptionViewItem row;
    row.initFrom(&view);
    row.rect = QRect(0, 0, 200, 28);
    row.state = QStyle::State_Enabled | QStyle::State_Active | state;
    row.widget = &view;
    row.text = QStringLiteral("Row");
    row.features = QStyleOptionViewItem::HasDisplay;
    row.showDecorationSelected = true;
    return row;
}

} // namespace

class tst_Controls : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

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

    void arrowsNeedAWidget()
    {
        QStyleOption option;
        option.rect = QRect(0, 0, 16, 16);
        QWidget widget;
        QCOMPARE(drawn(QStyle::PE_IndicatorArrowDown, option), "");
        QVERIFY(!drawn(QStyle::PE_IndicatorArrowDown, option, &widget).isEmpty());
        option.state |= QStyle::State_Children; // a branch draws its arrow itself
        QVERIFY(!drawn(QStyle::PE_IndicatorBranch, option).isEmpty());
    }

    void rangesHaveNoLimits()
    {
        constexpr int Huge = std::numeric_limits<int>::max();
        Open<QSlider> slider(Qt::Horizontal);
        slider.setRange(0, Huge);
        slider.setTickPosition(QSlider::TicksBelow);
        slider.setTickInterval(1);
        QVERIFY(drawn(QStyle::CC_Slider, optionOf<QStyleOptionSlider>(slider, BoxSize), &slider)
                    .count('\n')
                < 10);
        auto wide = optionOf<QStyleOptionSlider>(slider, BoxSize);
        wide.minimum =
            -1; // twice so many steps are none in an int, and the toolkit divides by that
        QVERIFY(!drawn(QStyle::CC_Slider, wide, &slider).isEmpty());
        QVERIFY(!drawn(QStyle::CC_ScrollBar, wide).isEmpty());

        Open<QDial> dial;
        dial.setNotchesVisible(true);
        auto notched = optionOf<QStyleOptionSlider>(dial, {60, 60});
        notched.minimum = 10;
        notched.maximum = 0;
        notched.tickInterval = -1; // from which the toolkit counts less than no notches
        QVERIFY(!drawn(QStyle::CC_Dial, notched, &dial).isEmpty());

        Open<QProgressBar> bar;
        bar.setRange(std::numeric_limits<int>::min(), Huge);
        bar.setValue(0);
        const auto option = optionOf<QStyleOptionProgressBar>(bar, QSize(101, 21));
        QVERIFY(drawn(QStyle::CE_ProgressBarContents, option, &bar).contains(" 0.5,0.5 50x20 "));
    }

    void onlyABusyBarInSightMoves()
    {
        QWidget window;
        auto* bar = new QProgressBar(&window);
        bar->setRange(0, 0);
        window.show();
        EventCounter paints;
        QTRY_VERIFY(paints.of(bar) > 2);
        bar->setRange(0, 100);
        paints.settle();
        QTest::qWait(150);
        QCOMPARE(paints.all(), 0);
    }

    void stretchedTabBarsFillTheirSide()
    {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QTabWidget widget;
            widget.setLayoutDirection(direction);
            widget.setProperty("stretched", true);
            widget.addTab(new QWidget, QStringLiteral("Page"));
            widget.resize(300, 200);
            widget.show();
            QCOMPARE(widget.tabBar()->x(), 0);
            QCOMPARE(widget.tabBar()->width(), 300);
        }
    }

    void partsDoNotDependOnTheText()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.features |=
            QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasCheckIndicator;
        row.decorationSize = {16, 16};
        QStyleOptionViewItem longer = row;
        longer.text = QStringLiteral("A text that is wider than the row, and on\ntwo lines");
        for (const auto part : {QStyle::SE_ItemViewItemCheckIndicator,
                                QStyle::SE_ItemViewItemDecoration, QStyle::SE_ItemViewItemText})
            QCOMPARE(list.style()->subElementRect(part, &longer, &list),
                     list.style()->subElementRect(part, &row, &list));
    }

    void textsEndWhereTheirRoomDoes()
    {
        QListView list;
        list.ensurePolished();
        QStyleOptionViewItem row = rowOf(list);
        row.textElideMode = Qt::ElideRight;
        row.text = QStringLiteral("One text of many words that does not fit into its row");
        const auto isElided = [&] {
            return drawn(QStyle::CE_ItemViewItem, row, &list).contains("\u2026\"");
        };
        row.rect.setWidth(200);
        QVERIFY(isElided());
        row.features |= QStyleOptionViewItem::WrapText;
        row.rect.setHeight(5 * row.fontMetrics.height());
        QVERIFY(!isElided());
        row.rect.setSize({80, 5 * row.fontMetrics.height() / 2});
        QVERIFY(isElided());
    }

    void selectionTellsFocus()
    {
        QListView list;
        list.show();
        list.activateWindow();
        list.setFocus();
        QTRY_VERIFY(list.hasFocus());
        QVERIFY(drawn(QStyle::PE_PanelItemViewItem, rowOf(list, QStyle::State_Selected), &list)
                    .contains("brush MainBrush"));
    }

    void listsTellOfChildren()
    {
        QStandardItemModel model(2, 1);
        model.setItem(0, new QStandardItem(QStringLiteral("Parent")));
        model.setItem(1, new QStandardItem(QStringLiteral("Parent")));
        model.item(0)->appendRow(new QStandardItem(QStringLiteral("Child")));
        QListView list;
        list.setModel(&model);
        list.ensurePolished();
        QStyleOptionViewItem childless = rowOf(list);
        childless.index = model.index(1, 0);
        QVERIFY(!drawn(QStyle::CE_ItemViewItem, childless, &list).contains("pixmap chevron"));
        QVERIFY(list.sizeHintForIndex(model.index(0, 0)).width()
                > list.sizeHintForIndex(model.index(1, 0)).width());
    }

    void aMoveOfTheMouseRepaintsRowsOnly()
    {
        QStandardItemModel model(200, 3);
        QTableView table;
        table.setModel(&model);
        table.setSelectionBehavior(QAbstractItemView::SelectRows);
        table.resize(400, 300);
        table.show();

        struct Painted : QObject
        {
            QRegion region;

            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::Paint)
                    region += static_cast<QPaintEvent*>(event)->region();
                return false;
            }
        } painted;

        const auto centre = [&](int row, int column) {
            return table.visualRect(model.index(row, column)).center();
        };
        QTest::mouseMove(table.viewport(), centre(1, 0));
        QTest::qWait(50);
        table.viewport()->installEventFilter(&painted);
        QTest::mouseMove(table.viewport(), centre(3, 0));
        QTest::qWait(50);
        QVERIFY(painted.region.contains(centre(3, 0)));
        for (const int untouched : {0, 2, 5})
            QVERIFY(!painted.region.contains(centre(untouched, 1)));
    }

    void errorToolTipsHaveADangerBorder()
    {
        const Sample sample = StyleOptions::sampleNamed("PE_PanelTipLabel");
        QToolTip::showText({}, QStringLiteral("<p class='errorTooltip'>Wrong</p>"));
        QVERIFY(drawn(QStyle::PE_PanelTipLabel, *sample.option).contains("pen StatusDangerColor"));
        QToolTip::hideText();
    }

    void styleSheetsLeaveToolBoxLabelsToTheStyle()
    {
        QToolBox box;
        box.addItem(new QWidget, ProbeTheme::pixmap(), {});
        box.setStyleSheet(QStringLiteral("QLabel { color: red; }"));
        box.resize(200, 100);
        box.show();
        const QImage image = box.grab(QRect(0, 0, 200, 40)).toImage();
        QVERIFY(ProbeTheme::nameOf(image.pixelColor(18, 20)).endsWith("ButtonText"));
    }
};

QTEST_MAIN(tst_Controls)
#include "tst_Controls.moc"
