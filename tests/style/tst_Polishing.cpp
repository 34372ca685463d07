#include "StandIns.h"
#include "StateSheet.h"

namespace {

QByteArray toText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QBrush: return ProbeTheme::nameOf(value.value<QBrush>());
    case QMetaType::QColor: return ProbeTheme::nameOf(value.value<QColor>());
    case QMetaType::QFont: return ProbeTheme::nameOf(value.value<QFont>());
    default: break;
    }
    QByteArray text = value.toByteArray();
    for (const QColor& color : value.value<QList<QColor>>())
        text += ProbeTheme::nameOf(color) + ' ';
    return text.trimmed();
}

/// All that polishing may change, in lines.
QByteArrayList describe(const QWidget& widget)
{
    QByteArrayList lines{"font " + ProbeTheme::nameOf(widget.font()),
                         "flags " + QByteArray::number(int(widget.windowFlags()), 16),
                         "height " + QByteArray::number(widget.minimumHeight())};
    for (const QByteArray& name : widget.dynamicPropertyNames())
        lines += name + ": " + toText(widget.property(name));
    if (widget.hasMouseTracking())
        lines += "tracks the mouse";
    if (widget.testAttribute(Qt::WA_Hover))
        lines += "tracks hovering";
    if (widget.testAttribute(Qt::WA_StyledBackground))
        lines += "paints its background";
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        QByteArray line = roles.valueToKey(role);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            line += ' ' + toText(widget.palette().brush(group, QPalette::ColorRole(role)));
        lines += line;
    }
    if (const auto* area = qobject_cast<const QScrollArea*>(&widget))
        lines += QByteArray("viewport ") + roles.valueToKey(area->viewport()->backgroundRole());
    if (const auto* bar = qobject_cast<const QProgressBar*>(&widget))
        lines += "text direction " + QByteArray::number(bar->textDirection());
    if (widget.layout())
        lines += "spacing " + QByteArray::number(widget.layout()->spacing());
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        lines += "margin " + QByteArray::number(edit->textMargins().left());
    return lines;
}

/// What polishing does to a widget with these properties in a parent, and what unpolishing takes
/// back of it.
QByteArray polished(QWidget&& widget, const QVariantMap& properties = {})
{
    QByteArray text = widget.metaObject()->className();
    QByteArrayList changes;
    for (auto entry = properties.cbegin(); entry != properties.cend(); ++entry) {
        widget.setProperty(entry.key().toLatin1(), entry.value());
        text += ' ' + entry.key().toLatin1();
    }
    widget.setAttribute(Qt::WA_Hover, false);
    const QByteArrayList before = describe(widget);
    widget.ensurePolished();
    QApplication::style()->polish(&widget); // twice, as applying a theme does
    const QByteArrayList after = describe(widget);
    QApplication::style()->unpolish(&widget);
    const QByteArrayList taken = describe(widget);
    for (const QByteArray& line : after)
        if (!before.contains(line))
            changes += line + (taken.contains(line) ? "" : " (until unpolished)");
    return text + ": " + changes.join("; ") + '\n';
}

QByteArray polished(QWidget&& widget, const char* property)
{
    return polished(std::move(widget), {{QLatin1String(property), true}});
}

} // namespace

class tst_Polishing : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void everyRule()
    {
        using namespace BRELK;
        QByteArray sheet =
            polished(QWidget()) + polished(QProgressBar()) + polished(QListView())
            + polished(QTreeView()) + polished(QTableView())
            + polished(QListView(), "customItemDelegate")
            + polished(QTreeView(), "customItemViewPalette") + polished(QLabel())
            + polished(QTabBar()) + polished(QTabWidget()) + polished(QGroupBox())
            + polished(QStatusBar()) + polished(QScrollArea()) + polished(QMainWindow())
            + polished(QDockWidget()) + polished(QToolBox())
            + polished(QWidget(nullptr, Qt::Popup | Qt::NoDropShadowWindowHint))
            + polished(Components::CardWidget()) + polished(Components::ButtonGroupWidget())
            + polished(Components::RangeSlider()) + polished(PeriodicTable::PeriodicTableView());
        for (const char* property :
             {"CardWidgetBase_Header", "CardWidgetBase_Contents", "CardWidgetBase_Footer",
              "CardWidgetBase_Title", "CardWidgetBase_Subtitle", "ButtonGroupWidget_Container",
              "ColorButtonWidget_Container", "Pill_Font"})
            sheet += polished(QWidget(), property);
        for (const QPixmap& pixmap : {QPixmap(), QPixmap(4, 4)})
            sheet += polished(QWidget(), {{QStringLiteral("roundedPixmap"), pixmap}});

        QMainWindow window;
        QMainWindow inner(&window);
        inner.setWindowFlags(Qt::Widget);
        sheet += polished(std::move(inner));
        QSpinBox spinBox;
        QComboBox comboBox;
        sheet += polished(QLineEdit(&spinBox)) + polished(QLineEdit(&comboBox));
        Components::CardWidget card;
        for (const bool minimized : {false, true}) {
            card.minimized = minimized;
            sheet += polished(QLabel(&card), "CardWidgetBase_Title");
        }
        COMPARE_TRANSCRIPT("Polishing.rules", sheet);
        QApplication::style()->polish(static_cast<QWidget*>(nullptr)); // is none
        QApplication::style()->unpolish(static_cast<QWidget*>(nullptr));
    }

    void tabFontFollowsApplicationThenWidget()
    {
        const auto font = [](const QByteArrayList& application, const QByteArrayList& own) {
            for (const QByteArray& property : application)
                qApp->setProperty(property, true);
            QTabBar bar;
            for (const QByteArray& property : own)
                bar.setProperty(property, true);
            bar.ensurePolished();
            for (const QByteArray& property : application)
                qApp->setProperty(property, QVariant());
            return ProbeTheme::nameOf(bar.font());
        };
        QCOMPARE(font({"appBaseTabSize", "appLargeTabSize"}, {}), "base");
        QCOMPARE(font({"appLargeTabSize"}, {"smallTabSize", "baseTabSize"}), "small");
        QCOMPARE(font({}, {"smallTabSize", "largeTabSize"}), "large");
        // There is no medium size to ask for.
        QCOMPARE(font({"appMediumTabSize", "appSmallTabSize"}, {"mediumTabSize"}), "small");
    }

    void shadowsAreCastWithoutHidingTheWindow()
    {
        QWidget window(nullptr, Qt::Popup | Qt::NoDropShadowWindowHint);
        window.show();
        QVERIFY(window.isVisible());
        QVERIFY(!(window.windowFlags() & Qt::NoDropShadowWindowHint));
    }

    void whatTheApplicationSetStays()
    {
        QLCDNumber number;
        number.setSegmentStyle(QLCDNumber::Outline);
        QStatusBar bar;
        bar.setMinimumHeight(90);
        QToolBox box;
        box.addItem(new QWidget, {});
        auto* tab = box.findChild<QAbstractButton*>();
        tab->setMinimumHeight(90);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(Qt::gray);
        QListView list;
        list.setPalette(Qt::green);
        for (QWidget* widget : {static_cast<QWidget*>(&number), static_cast<QWidget*>(&bar),
                                static_cast<QWidget*>(tab), static_cast<QWidget*>(&list)})
            QApplication::style()->polish(widget);
        QApplication::setPalette(before);
        QCOMPARE(number.segmentStyle(), QLCDNumber::Outline);
        QCOMPARE(bar.minimumHeight(), 90);
        QCOMPARE(tab->minimumHeight(), 90);
        QCOMPARE(list.palette().base(), QPalette(Qt::green).base());
    }

    void calendarsAreRead()
    {
        QCalendarWidget calendar;
        QTextCharFormat own;
        own.setForeground(Qt::green);
        calendar.setWeekdayTextFormat(Qt::Sunday, own);
        QApplication::style()->polish(&calendar);
        const auto color = [&](Qt::DayOfWeek day) {
            return ProbeTheme::nameOf(calendar.weekdayTextFormat(day).foreground());
        };
        QCOMPARE(color(Qt::Saturday), "StatusDangerColor");
        QCOMPARE(color(Qt::Sunday), "#00ff00");
        for (const bool enabled : {false, true}) {
            calendar.setEnabled(enabled);
            const auto* bar =
                calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"));
            QCOMPARE(bar->backgroundRole(), enabled ? QPalette::Highlight : QPalette::Button);
            QCOMPARE(color(Qt::Saturday), enabled ? "StatusDangerColor" : "palette.Disabled.Text");
        }
        QApplication::style()->unpolish(&calendar);
        calendar.setPalette(Qt::gray);
        QCOMPARE(color(Qt::Saturday), "#ff0000");
    }
};

QTEST_MAIN(tst_Polishing)
#include "tst_Polishing.moc"
