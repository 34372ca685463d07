#include "BaseStyle.h"
#include "ComboBoxDefaultItemDelegate.h"
#include "ProbeTheme.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QListView>
#include <QMainWindow>
#include <QProgressBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTableView>
#include <QToolBox>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

using namespace BRELK;

// Stand-ins for the widgets of other libraries, which the style knows by their names.
namespace BRELK::Components {

class CardWidget : public QWidget
{
    Q_OBJECT
};

class ButtonGroupWidget : public QWidget
{
    Q_OBJECT
};

class RangeSlider : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::Components

namespace BRELK::PeriodicTable {

class PeriodicTableView : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::PeriodicTable

/// A card: `QWidget` has a property "minimized" of its own that cannot be set.
class Card : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool minimized MEMBER minimized)

public:
    bool minimized = false;
};

namespace {

QByteArray nameIn(const QWidget& widget, QPalette::ColorGroup group, QPalette::ColorRole role)
{
    return ProbeTheme::nameOf(widget.palette().brush(group, role));
}

/// The names of the brushes and colors that a widget was given in its dynamic properties, and its
/// other values as text: "BorderBrush=CardBorderBrush".
QByteArrayList handedTo(const QWidget& widget)
{
    QByteArrayList texts;
    const QByteArrayList names = widget.dynamicPropertyNames();
    for (const QByteArray& name : names) {
        const QVariant value = widget.property(name.constData());
        const QByteArray text =
            value.userType() == QMetaType::QBrush   ? ProbeTheme::nameOf(value.value<QBrush>())
            : value.userType() == QMetaType::QColor ? ProbeTheme::nameOf(value.value<QColor>())
                                                    : value.toString().toUtf8();
        texts.append(name + '=' + text);
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

QByteArrayList lines(const char* text)
{
    QByteArrayList words = QByteArray(text).simplified().split(' ');
    std::sort(words.begin(), words.end());
    return words;
}

} // namespace

class tst_Polishing : public QObject
{
    Q_OBJECT

private:
    /// Twice, as applying a theme does.
    template <class Widget>
    static void polish(Widget& widget)
    {
        widget.ensurePolished();
        QApplication::style()->polish(&widget);
    }

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish();
        QApplication::setStyle(new BaseStyle);
    }

    void itemViewsAreDrawnByKind()
    {
        QListView list;
        QTreeView tree;
        QTableView table;
        const auto properties = [](QAbstractItemView& view) {
            polish(view);
            QByteArrayList names;
            for (const char* name : {"highlightItemsOnMouseHover", "drawItemsSeparators",
                                     "drawChildIndicatorInListView", "hideFocusRect"})
                if (view.property(name).toBool())
                    names.append(name);
            if (view.hasMouseTracking())
                names.append("tracking");
            return names.join(' ');
        };
        QCOMPARE(properties(list),
                 "highlightItemsOnMouseHover drawItemsSeparators drawChildIndicatorInListView "
                 "hideFocusRect tracking");
        QCOMPARE(properties(tree), "drawItemsSeparators hideFocusRect");
        QCOMPARE(properties(table), "highlightItemsOnMouseHover hideFocusRect tracking");

        QListView custom;
        custom.setProperty("customItemDelegate", true);
        QCOMPARE(properties(custom), "");
        QCOMPARE(nameIn(custom, QPalette::Active, QPalette::Base), "ItemViewBackgroundBrush");
    }

    void itemViewsHaveTheThemesBase()
    {
        QTreeView view;
        const QBrush text = view.palette().brush(QPalette::Text);
        polish(view);
        QCOMPARE(nameIn(view, QPalette::Active, QPalette::Base), "ItemViewBackgroundBrush");
        QCOMPARE(nameIn(view, QPalette::Inactive, QPalette::Base), "ItemViewBackgroundBrush");
        QCOMPARE(nameIn(view, QPalette::Disabled, QPalette::Base),
                 "ItemViewBackgroundBrushDisabled");
        QCOMPARE(view.palette().brush(QPalette::Text), text);

        QTreeView custom;
        custom.setProperty("customItemViewPalette", true);
        const QPalette before = custom.palette();
        polish(custom);
        QCOMPARE(custom.palette(), before);
    }

    void labelsFadeWhenDisabled()
    {
        QLabel label;
        const QBrush text = label.palette().brush(QPalette::Active, QPalette::WindowText);
        polish(label);
        QCOMPARE(nameIn(label, QPalette::Disabled, QPalette::WindowText),
                 "ForegroundBrushDisabled");
        QCOMPARE(label.palette().brush(QPalette::Active, QPalette::WindowText), text);

        QLabel subtitle;
        subtitle.setProperty("CardWidgetBase_Subtitle", true);
        polish(subtitle);
        QCOMPARE(nameIn(subtitle, QPalette::Active, QPalette::WindowText),
                 "ForegroundDisabledBrush");
        QCOMPARE(nameIn(subtitle, QPalette::Disabled, QPalette::WindowText),
                 "ForegroundDisabledBrushDisabled");
    }

    void tabFontFollowsApplicationThenWidget_data()
    {
        QTest::addColumn<QByteArrayList>("application");
        QTest::addColumn<QByteArrayList>("widget");
        QTest::addColumn<QByteArray>("font");
        const auto row = [](const char* title, const QByteArrayList& application,
                            const QByteArrayList& widget, const char* font) {
            QTest::newRow(title) << application << widget << QByteArray(font);
        };
        row("neither", {}, {}, "medium");
        row("application", {"appBaseTabSize", "appLargeTabSize"}, {}, "base");
        row("application small", {"appSmallTabSize", "appBaseTabSize"}, {}, "small");
        row("application large", {"appLargeTabSize"}, {}, "large");
        row("widget", {"appLargeTabSize"}, {"smallTabSize", "baseTabSize"}, "small");
        row("widget base", {"appSmallTabSize"}, {"baseTabSize"}, "base");
        row("large wins", {}, {"smallTabSize", "largeTabSize"}, "large");
        row("no medium size", {"appMediumTabSize", "appSmallTabSize"}, {"mediumTabSize"}, "small");
    }

    void tabFontFollowsApplicationThenWidget()
    {
        QFETCH(QByteArrayList, application);
        QFETCH(QByteArrayList, widget);
        QFETCH(QByteArray, font);
        for (const QByteArray& property : qAsConst(application))
            qApp->setProperty(property, true);
        QTabBar bar;
        QTabWidget tabs;
        for (QWidget* target : {static_cast<QWidget*>(&bar), static_cast<QWidget*>(&tabs)}) {
            for (const QByteArray& property : qAsConst(widget))
                target->setProperty(property, true);
            polish(*target);
            QCOMPARE(ProbeTheme::nameOf(target->font()), font);
            QCOMPARE(ProbeTheme::nameOf(target->property("_q_styleSheetWidgetFont").value<QFont>()),
                     font);
        }
        for (const QByteArray& property : qAsConst(application))
            qApp->setProperty(property, QVariant());
    }

    void toolkitWidgetsGetTheirAttributes()
    {
        QProgressBar progressBar;
        polish(progressBar);
        QCOMPARE(progressBar.textDirection(), QProgressBar::BottomToTop);

        QStatusBar statusBar;
        polish(statusBar);
        QCOMPARE(statusBar.minimumHeight(), 34);

        QScrollArea scrollArea;
        polish(scrollArea);
        QCOMPARE(scrollArea.viewport()->backgroundRole(), QPalette::Light);

        QMainWindow window;
        QMainWindow inner(&window);
        inner.setWindowFlags(Qt::Widget);
        QDockWidget dock;
        for (QWidget* widget : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&inner),
                                static_cast<QWidget*>(&dock)}) {
            widget->setAttribute(Qt::WA_StyledBackground, false);
            polish(*widget);
        }
        QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(!inner.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(dock.testAttribute(Qt::WA_StyledBackground));
    }

    void toolBoxesAreClosedUp()
    {
        QToolBox toolBox;
        toolBox.addItem(new QWidget, QStringLiteral("Page"));
        polish(toolBox);
        QCOMPARE(toolBox.layout()->contentsMargins(), QMargins());
        QCOMPARE(toolBox.layout()->spacing(), 0);
        const auto buttons = toolBox.findChildren<QAbstractButton*>();
        QCOMPARE(buttons.size(), 1);
        polish(*buttons.first());
        QCOMPARE(buttons.first()->minimumHeight(), 42);
    }

    void hoverIsTrackedUntilUnpolished()
    {
        QTabBar bar;
        QGroupBox group;
        for (QWidget* widget : {static_cast<QWidget*>(&bar), static_cast<QWidget*>(&group)}) {
            widget->setAttribute(Qt::WA_Hover, false);
            polish(*widget);
            QVERIFY(widget->testAttribute(Qt::WA_Hover));
            QApplication::style()->unpolish(widget);
            QVERIFY(!widget->testAttribute(Qt::WA_Hover));
        }
        QListView view;
        polish(view);
        QApplication::style()->unpolish(&view);
        QVERIFY(view.property("hideFocusRect").toBool());
    }

    void cardPartsPaintTheirBackground()
    {
        for (const char* part :
             {"CardWidgetBase_Header", "CardWidgetBase_Contents", "CardWidgetBase_Footer"}) {
            QWidget widget;
            polish(widget);
            QVERIFY(!widget.testAttribute(Qt::WA_StyledBackground));
            widget.setProperty(part, true);
            polish(widget);
            QVERIFY2(widget.testAttribute(Qt::WA_StyledBackground), part);
        }
    }

    void cardTitlesShrinkWithTheirCard()
    {
        Card card;
        QLabel title(&card);
        title.setProperty("CardWidgetBase_Title", true);
        polish(title);
        QCOMPARE(ProbeTheme::nameOf(title.font()), "medium");
        card.setProperty("minimized", true);
        polish(title);
        QCOMPARE(ProbeTheme::nameOf(title.font()), "base");
        const auto fontIn = [&](const char* property) {
            return ProbeTheme::nameOf(title.property(property).value<QFont>());
        };
        QCOMPARE(fontIn("CardWidgetBase_Title_MinimizedFont"), "base");
        QCOMPARE(fontIn("CardWidgetBase_Title_DefaultFont"), "medium");

        QLabel alone;
        const QFont before = alone.font();
        alone.setProperty("CardWidgetBase_Title", true);
        polish(alone);
        QCOMPARE(alone.font(), before);
    }

    void pillsAreSmallAndBold()
    {
        QLabel pill;
        pill.setProperty("Pill_Font", true);
        polish(pill);
        QCOMPARE(ProbeTheme::nameOf(pill.font()), "small bold");
    }

    void companionWidgetsAreHandedTheThemesValues()
    {
        Components::CardWidget card;
        polish(card);
        QCOMPARE(handedTo(card), lines("BackgroundBrush=ForegroundMouseOverBrush "
                                       "BackgroundBrushDisabled=ForegroundMouseOverBrushDisabled"));

        Components::ButtonGroupWidget group;
        polish(group);
        QCOMPARE(handedTo(group),
                 lines("BackgroundBrush=ListBackgroundBrush "
                       "BackgroundBrushDisabled=ListBackgroundBrushDisabled "
                       "BorderBrush=ListBorderBrush BorderBrushDisabled=ListBorderBrushDisabled "
                       "WorkflowLinkBrush=PrioritySecondaryUpLevel1Brush "
                       "WorkflowLinkBrushDisabled=PrioritySecondaryUpLevel1BrushDisabled"));

        Components::RangeSlider slider;
        polish(slider);
        QCOMPARE(handedTo(slider),
                 lines("orientation=1 invertedAppearance=false invertedControls=false "
                       "tracking=true tickPosition=0 SunkenBrush=SliderThumbNailPressedBrush "
                       "HoverBrush=SliderThumbNailHoverBrush DefaultBrush=InputForegroundBrush "
                       "DefaultBrushDisabled=InputForegroundBrushDisabled "
                       "BackgroundBrush=InputBackgroundBrush "
                       "BackgroundBrushDisabled=InputBackgroundBrushDisabled "
                       "BorderBrush=InputBorderBrush "
                       "BorderBrushDisabled=InputBorderBrushDisabled "
                       "RangeBrush=MainBrush RangeBrushDisabled=MainBrushDisabled CornerRadius=4"));

        for (const char* property :
             {"ButtonGroupWidget_Container", "ColorButtonWidget_Container"}) {
            QWidget container;
            container.setProperty(property, true);
            polish(container);
            QCOMPARE(container.property("CornerRadius").toInt(), ProbeTheme::BaseRadius);
        }

        QWidget picture;
        picture.setProperty("roundedPixmap", QPixmap());
        polish(picture);
        QVERIFY(!picture.property("CornerRadius").isValid());
        picture.setProperty("roundedPixmap", QPixmap(4, 4));
        polish(picture);
        QCOMPARE(picture.property("CornerRadius").toInt(), ProbeTheme::MediumRadius);
        QCOMPARE(ProbeTheme::nameOf(picture.property("BorderBrush").value<QBrush>()),
                 "BackgroundSubLevel1Brush");
    }

    void periodicTablesAreHandedColors()
    {
        PeriodicTable::PeriodicTableView view;
        polish(view);
        const auto list = view.property("PeriodicTableDelegate_ColorList").value<QList<QColor>>();
        QCOMPARE(list.size(), 11);
        QCOMPARE(ProbeTheme::nameOf(list.first()), "Series01Color");
        QCOMPARE(ProbeTheme::nameOf(list.last()), "Series11Color");
        view.setProperty("PeriodicTableDelegate_ColorList", QVariant());
        QCOMPARE(handedTo(view),
                 lines("PeriodicTableDelegate_BackgroundColor=StatusConfigColor "
                       "PeriodicTableDelegate_BorderColor=StatusConfigColor "
                       "PeriodicTableDelegate_ForegroundColor=ForegroundColor "
                       "PeriodicTableDelegate_ForegroundSubLevelColor=ForegroundSubLevel1Color "
                       "PeriodicTableDelegate_ForegroundUpLevelColor=ForegroundUpLevel1Color"));
    }

    void windowsCastTheirShadow()
    {
        QWidget window(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        window.show();
        polish(window);
        QVERIFY(!(window.windowFlags() & Qt::NoDropShadowWindowHint));
        QVERIFY(window.windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(window.isVisible());
    }

    void comboBoxesKeepTheirOwnDelegate()
    {
        QComboBox comboBox;
        polish(comboBox);
        auto* delegate = qobject_cast<ComboBoxDefaultItemDelegate*>(comboBox.itemDelegate());
        QVERIFY(delegate);
        polish(comboBox);
        QCOMPARE(comboBox.itemDelegate(), delegate);

        QStyledItemDelegate own;
        comboBox.setItemDelegate(&own);
        polish(comboBox);
        QCOMPARE(comboBox.itemDelegate(), &own);
    }

    void plainWidgetsAreLeftAlone()
    {
        QWidget widget;
        widget.resize(10, 10);
        const QPalette palette = widget.palette();
        const QFont font = widget.font();
        const Qt::WindowFlags flags = widget.windowFlags();
        polish(widget);
        QCOMPARE(handedTo(widget), QByteArrayList());
        QCOMPARE(widget.palette(), palette);
        QCOMPARE(widget.font(), font);
        QCOMPARE(widget.windowFlags(), flags);
        QApplication::style()->polish(static_cast<QWidget*>(nullptr));
        QApplication::style()->unpolish(static_cast<QWidget*>(nullptr));
    }
};

QTEST_MAIN(tst_Polishing)
#include "tst_Polishing.moc"
