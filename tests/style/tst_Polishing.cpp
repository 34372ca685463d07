#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QTableView>
#include <QTreeView>
#include <QtTest>

using namespace BRELK;

// Stands in for a widget of another library, which the style knows by its name.
namespace BRELK::Components {

class CardWidget : public QWidget
{
    Q_OBJECT
};

} // namespace BRELK::Components

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
        const auto properties = [](QAbstractItemView&& view, bool custom = false) -> QByteArray {
            view.setProperty("customItemDelegate", custom);
            polish(view);
            QByteArrayList names;
            for (const char* name : {"highlightItemsOnMouseHover", "drawItemsSeparators",
                                     "drawChildIndicatorInListView", "hideFocusRect"})
                if (view.property(name).toBool())
                    names.append(name);
            return names.join(' ') + (view.hasMouseTracking() ? " tracking" : "");
        };
        QCOMPARE(properties(QListView()),
                 "highlightItemsOnMouseHover drawItemsSeparators drawChildIndicatorInListView "
                 "hideFocusRect tracking");
        QCOMPARE(properties(QTreeView()), "drawItemsSeparators hideFocusRect");
        QCOMPARE(properties(QTableView()), "highlightItemsOnMouseHover hideFocusRect tracking");
        QCOMPARE(properties(QListView(), true), "");
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

    void tabFontFollowsApplicationThenWidget()
    {
        const auto font = [](const QByteArrayList& application, const QByteArrayList& own) {
            for (const QByteArray& property : application)
                qApp->setProperty(property, true);
            QTabBar bar;
            for (const QByteArray& property : own)
                bar.setProperty(property, true);
            polish(bar);
            for (const QByteArray& property : application)
                qApp->setProperty(property, QVariant());
            return ProbeTheme::nameOf(bar.font());
        };
        QCOMPARE(font({}, {}), "medium");
        QCOMPARE(font({"appBaseTabSize", "appLargeTabSize"}, {}), "base");
        QCOMPARE(font({"appLargeTabSize"}, {"smallTabSize", "baseTabSize"}), "small");
        QCOMPARE(font({}, {"smallTabSize", "largeTabSize"}), "large");
        // There is no medium size to ask for.
        QCOMPARE(font({"appMediumTabSize", "appSmallTabSize"}, {"mediumTabSize"}), "small");
    }

    void onlyMainWindowsThatAreWindowsPaintTheirBackground()
    {
        QMainWindow window;
        QMainWindow inner(&window);
        inner.setWindowFlags(Qt::Widget);
        for (QMainWindow* each : {&window, &inner}) {
            each->setAttribute(Qt::WA_StyledBackground, false);
            polish(*each);
        }
        QVERIFY(window.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(!inner.testAttribute(Qt::WA_StyledBackground));
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

    void companionWidgetsAreHandedTheThemesValues()
    {
        const auto brush = [](const QWidget& widget, const char* property) {
            return ProbeTheme::nameOf(widget.property(property).value<QBrush>());
        };
        Components::CardWidget card;
        polish(card);
        QCOMPARE(brush(card, "BackgroundBrush"), "ForegroundMouseOverBrush");
        QCOMPARE(brush(card, "BackgroundBrushDisabled"), "ForegroundMouseOverBrushDisabled");

        QWidget picture;
        picture.setProperty("roundedPixmap", QPixmap());
        polish(picture);
        QVERIFY(!picture.property("CornerRadius").isValid());
        picture.setProperty("roundedPixmap", QPixmap(4, 4));
        polish(picture);
        QCOMPARE(picture.property("CornerRadius").toInt(), ProbeTheme::MediumRadius);
        QCOMPARE(brush(picture, "BorderBrush"), "BackgroundSubLevel1Brush");
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

    void plainWidgetsAreLeftAlone()
    {
        QWidget widget;
        widget.resize(10, 10);
        const QPalette palette = widget.palette();
        const QFont font = widget.font();
        const Qt::WindowFlags flags = widget.windowFlags();
        polish(widget);
        QCOMPARE(widget.dynamicPropertyNames(), QByteArrayList());
        QCOMPARE(widget.palette(), palette);
        QCOMPARE(widget.font(), font);
        QCOMPARE(widget.windowFlags(), flags);
        QApplication::style()->polish(static_cast<QWidget*>(nullptr));
        QApplication::style()->unpolish(static_cast<QWidget*>(nullptr));
    }
};

QTEST_MAIN(tst_Polishing)
#include "tst_Polishing.moc"
