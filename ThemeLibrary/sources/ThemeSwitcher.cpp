#include "ThemeSwitcher.h"

#include "AppliedThemes.h"
#include "BaseStyles.h"
#include "DesktopFollower.h"
#include "HeldPaints.h"
#include "Kept.h"
#include "Theme.h"
#include "ThemeFactory.h"
#include "ThemeFileIcons.h"
#include "ThemeQApplication.h"
#include "ThemeQApplication_p.h"
#include "ThemeResources_p.h"
#include "ThemeValues.h"

#include <QApplication>
#include <QDebug>
#include <QEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPixmapCache>
#include <QPointer>
#include <QStyle>
#include <QToolButton>
#include <QVector>
#include <QWidget>

#include <utility>

namespace BRELK {

namespace {

using Widgets = QVector<QPointer<QWidget>>;

/// Keeps from widgets that the style changes, until it has changed for good.
class StyleChangeBarrier : public QObject
{
public:
    StyleChangeBarrier() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::StyleChange;
    }
};

/// A label's color of enabled words is explicit since the style has set that of disabled ones.
/// Where it is the theme's it is not the application's choice, and would stay when the theme goes.
void forgetThemedWords(QWidget& widget, const QBrush& themed)
{
    constexpr uint Words = 1U << QPalette::WindowText;
    QPalette palette = widget.palette();
    if (!(palette.resolve() & Words)
        || palette.brush(QPalette::Active, QPalette::WindowText) != themed)
        return;
    palette.resolve(palette.resolve() & ~Words);
    widget.setPalette(palette);
}

/// The ground of an area of windows is a copy of its palette's.
void renewGround(QWidget& widget, const QBrush& before)
{
    if (auto* area = qobject_cast<QMdiArea*>(&widget); area && area->background() == before)
        area->setBackground(area->palette().brush(QPalette::Dark));
}

/// The buttons of a calendar would give themselves these words as they are painted, and then be
/// painted once more.
void renewCalendarWords(QWidget& widget)
{
    const auto* button = qobject_cast<QToolButton*>(&widget);
    if (!button || !button->objectName().startsWith(QLatin1String("qt_calendar_"))
        || button->underMouse() || button->isDown())
        return;
    QPalette palette = widget.palette();
    palette.setColor(QPalette::ButtonText, palette.color(QPalette::HighlightedText));
    widget.setPalette(palette);
}

bool isSheetStyle(const QStyle* style)
{
    return style->inherits("QStyleSheetStyle");
}

/// Whether the widget holds the application's style, or a style sheet's around `below` it, as if
/// that were its own: it would keep it, and those inside it too. Boxes of buttons and wizards give
/// theirs to their parts, and so may anybody.
bool holdsStyle(const QWidget& widget, const QStyle* style, const BaseStyle* below)
{
    return widget.testAttribute(Qt::WA_SetStyle)
           && (widget.style() == style
               || (below && isSheetStyle(widget.style())
                   && BaseStyles::below(*widget.style()) == below));
}

/// Makes all that hold the application's style follow it. Who holds it is asked before anybody
/// changes: a widget that changes gives those inside it styles of their own.
void letGoOfStyle(const QStyle* style)
{
    const BaseStyle* below = BaseStyles::below(*style);
    Widgets holders;
    for (QWidget* widget : QApplication::allWidgets())
        if (holdsStyle(*widget, style, below))
            holders.append(widget);
    for (QWidget* widget : qAsConst(holders))
        if (widget)
            widget->setStyle(nullptr);
}

/// Unpolishes all widgets, so that what follows costs them nothing, and returns those that were
/// polished.
Widgets unpolishAll(const QPalette& themed)
{
    QStyle* style = QApplication::style();
    const QBrush words = themed.brush(QPalette::Active, QPalette::WindowText);
    letGoOfStyle(style);
    Widgets polished;
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->windowType() == Qt::Desktop || !widget->testAttribute(Qt::WA_WState_Polished))
            continue;
        style->unpolish(widget);
        widget->setAttribute(Qt::WA_WState_Polished, false);
        if (qobject_cast<QLabel*>(widget))
            forgetThemedWords(*widget, words);
        polished.append(widget);
    }
    return polished;
}

/// Keeps the application's style, and the one below its style sheet, until control returns to the
/// event loop: callers may stand in one of its functions, and widgets hold it until they are told.
class StyleKeeper
{
public:
    StyleKeeper()
        : m_installed(QApplication::style())
        , m_style(isSheetStyle(m_installed)
                      ? m_installed->findChild<QStyle*>(QString(), Qt::FindDirectChildrenOnly)
                      : m_installed.data())
        , m_owner(m_style ? m_style->parent() : nullptr)
        , m_holder(new QWidget)
    {
        m_holder->setStyle(m_installed); // a style sheet's style goes when nobody holds it
        if (m_style)
            m_style->setParent(nullptr);
    }

    ~StyleKeeper()
    {
        // Not the style: it passes events on, and its base style would go in its place.
        m_holder->deleteLater();
        if (m_style)
            m_style->setParent(m_installed == QApplication::style() ? m_owner : m_holder);
    }

    StyleKeeper(const StyleKeeper&) = delete;
    StyleKeeper& operator=(const StyleKeeper&) = delete;

private:
    const QPointer<QStyle> m_installed;
    const QPointer<QStyle> m_style;
    QObject* m_owner;
    QWidget* m_holder;
};

void tell(QObject& object)
{
    QEvent event(QEvent::StyleChange);
    QCoreApplication::sendEvent(&object, &event);
}

/// A menu bar that is told forgets its active item, so one with an open menu is told later.
void tell(QMenuBar& bar)
{
    QAction* active = bar.activeAction();
    if (active && active->menu() && active->menu()->isVisible()) {
        auto* closed = new QObject(&bar);
        QObject::connect(
            active->menu(), &QMenu::aboutToHide, closed,
            [&bar, closed] {
                delete closed;
                tell(static_cast<QObject&>(bar));
            },
            Qt::QueuedConnection);
        return;
    }
    const QRect place = bar.geometry();
    tell(static_cast<QObject&>(bar));
    bar.setGeometry(place); // it has made itself as wide as its parent
    if (!active || bar.activeAction() || !bar.actions().contains(active))
        return;
    const QPoint center = bar.actionGeometry(active).center();
    QMouseEvent move(QEvent::MouseMove, center, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&bar, &move);
}

/// As QApplication::setStyle() ends.
void polishAll(const Widgets& widgets, const QPalette& before)
{
    QStyle* style = QApplication::style();
    for (QWidget* widget : widgets) {
        if (!widget)
            continue;
        widget->setAttribute(Qt::WA_WState_Polished);
        if (widget->style() == style)
            style->polish(widget);
        else
            widget->setStyleSheet(widget->styleSheet());
        renewGround(*widget, before.brush(QPalette::Dark));
    }
    Widgets all;
    for (QWidget* widget : QApplication::allWidgets())
        all.append(widget);
    for (QWidget* widget : qAsConst(all)) {
        if (!widget || widget->windowType() == Qt::Desktop
            || widget->testAttribute(Qt::WA_SetStyle))
            continue;
        const QPoint place = widget->pos();
        renewCalendarWords(*widget);
        if (auto* bar = qobject_cast<QMenuBar*>(widget))
            tell(*bar);
        else
            tell(*widget);
        if (!widget)
            continue;
        if (!widget->isWindow()
            && widget->isMinimized()) // a window within another leaves its place
            widget->move(place);
        widget->update();
    }
}

void apply(Theme& theme)
{
    if (auto* application = qobject_cast<ThemeQApplication*>(QCoreApplication::instance()))
        application->setTheme(theme);
    else
        theme.customize(qApp);
}

/// The application's style sheet, of which the library's part is another one now.
QString renewed(QString sheet, const QString& before, const QString& after)
{
    if (before.isEmpty())
        return after + sheet;
    const int place = sheet.indexOf(before);
    return place < 0 ? sheet : sheet.replace(place, before.size(), after);
}

/// Lets go of the theme before and applies `theme`. Returns whether that has changed anything.
bool replaceThemeBy(Theme& theme)
{
    AppliedThemes& applied = appliedThemes();
    const QVariantMap variables = ThemeResources::themeVariables();
    const QString sheet = qApp->styleSheet();
    const QString librarySheet = std::exchange(applied.styleSheet, {});
    const ThemePaths paths = std::exchange(applied.paths, {});

    letGoOfThemeValues();
    apply(theme);
    // The same theme over again leaves the variables alone, one that cannot be read the paths too.
    if (ThemeResources::themeVariables().isSharedWith(variables)
        && applied.paths.iconThemes.isEmpty()) {
        applied.paths = paths;
        applied.styleSheet = librarySheet;
        return false;
    }
    removePaths(paths);
    ThemeFileIcons::lookAgain();
    Kept::forgetAll();
    QPixmapCache::clear();
    if (const QString all = renewed(sheet, librarySheet, applied.styleSheet);
        all != qApp->styleSheet())
        qApp->setStyleSheet(all);
    return true;
}

} // namespace

ThemeSwitcher& ThemeSwitcher::getInstance()
{
    static ThemeSwitcher sInstance;
    return sInstance;
}

ThemeSwitcher::ThemeSwitcher() = default;
ThemeSwitcher::~ThemeSwitcher() = default;

bool ThemeSwitcher::switchTo(Theme& theme)
{
    bool& switching = appliedThemes().switching;
    if (switching || !qobject_cast<QApplication*>(QCoreApplication::instance())) {
        qDebug().noquote() << (switching ? "A theme is being switched to already"
                                         : "No application to switch the theme of");
        return false;
    }
    switching = true;
    const QPointer<QWidget> focus = QApplication::focusWidget();
    const QPalette palette = QApplication::style()->standardPalette();
    const Widgets polished = unpolishAll(palette);
    const StyleKeeper keeper;
    const bool changed = [&theme] {
        const StyleChangeBarrier barrier;
        return replaceThemeBy(theme);
    }();
    polishAll(polished, palette);
    HeldPaints::start();
    if (focus && !focus->hasFocus()) // wizards build themselves anew
        focus->setFocus(Qt::OtherFocusReason);
    switching = false;
    if (changed)
        Q_EMIT switched();
    if (m_follower)
        m_follower->obey();
    return changed;
}

bool ThemeSwitcher::switchTo(const QString& name)
{
    ThemeFactory& factory = ThemeFactory::getInstance();
    std::unique_ptr<Theme>& theme =
        m_themes[factory.getThemesRepositoryPath() + QLatin1Char('/') + name];
    if (!theme)
        theme.reset(factory.getTheme(name));
    if (!theme) {
        reportMissingTheme(name);
        return false;
    }
    return switchTo(*theme);
}

void ThemeSwitcher::followDesktop(const QString& light, const QString& dark)
{
    stopFollowingDesktop();
    if (QCoreApplication::instance())
        m_follower = std::make_unique<DesktopFollower>(light, dark);
}

void ThemeSwitcher::stopFollowingDesktop()
{
    m_follower.reset();
}

} // namespace BRELK
