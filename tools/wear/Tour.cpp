#include "Tour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <unistd.h>

namespace {

constexpr int Pace = 400; // ms
constexpr int Patience = 8; // steps, for a window to come and to settle
constexpr int MostPages = 12;
constexpr int MostKeys = 40; // that lead to an action
constexpr int Focused = 3; // times that the focus moves on
constexpr int Greetings = 3; // dialogs that come before a program is at work
constexpr int Surroundings = 8; // of a popup
constexpr int LeastWidth = 100; // of a dialog: smaller windows serve other ends
const QString Tab = QStringLiteral("Tab");
const QString Alt = QStringLiteral("Alt_L");
const QString Down = QStringLiteral("Down");
const QString Right = QStringLiteral("Right");
const QString Return = QStringLiteral("Return");
const QSize Small(420, 320);
const QSize Usual(960, 680);
const QSize Large(1200, 880);

template <class Widget>
QList<Widget*> visible(const QWidget* parent)
{
    QList<Widget*> found = parent ? parent->findChildren<Widget*>() : QList<Widget*>();
    found.erase(std::remove_if(found.begin(), found.end(),
                               [](const Widget* widget) { return !widget->isVisible(); }),
                found.end());
    return found;
}

QWidget* largestWindow()
{
    QWidget* largest = nullptr;
    const auto weight = [](const QWidget* widget) {
        const bool isMain = qobject_cast<const QMainWindow*>(widget);
        return (isMain ? 10 : 1) * widget->width() * widget->height();
    };
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowType() != Qt::Popup
            && (!largest || weight(widget) > weight(largest)))
            largest = widget;
    }
    return largest;
}

/// The dialog on top, if any.
QWidget* dialog(const QWidget* except)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    windows.prepend(QApplication::activeWindow());
    for (QWidget* widget : qAsConst(windows)) {
        if (widget && widget != except && widget->isVisible() && widget->width() > LeastWidth
            && (widget->windowType() == Qt::Dialog || widget->windowType() == Qt::Window))
            return widget;
    }
    return nullptr;
}

void closePopups()
{
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

void closeDialogs(const QWidget* except)
{
    closePopups();
    QWidget* widget = dialog(except);
    if (auto* box = qobject_cast<QDialog*>(widget))
        box->reject();
    else if (widget)
        widget->close();
}

/// The button that agrees with a dialog: one that refuses its first dialog would end the program.
QAbstractButton* agreeingButton(const QWidget* dialog)
{
    for (QPushButton* button : visible<QPushButton>(dialog)) {
        if (button->isDefault() && button->isEnabled())
            return button;
    }
    for (const QDialogButtonBox* box : visible<QDialogButtonBox>(dialog)) {
        for (QAbstractButton* button : box->buttons()) {
            const QDialogButtonBox::ButtonRole role = box->buttonRole(button);
            if (role == QDialogButtonBox::AcceptRole || role == QDialogButtonBox::YesRole)
                return button;
        }
    }
    return nullptr;
}

void answerGreeting()
{
    closePopups();
    QWidget* greeting = QApplication::activeModalWidget();
    if (!greeting)
        greeting = qobject_cast<QDialog*>(largestWindow());
    if (QAbstractButton* button = agreeingButton(greeting))
        button->click();
    else if (greeting)
        greeting->close();
}

/// Presses keys as a person would, by the names that X has for them.
void type(const QStringList& keys)
{
    QProcess::startDetached(QStringLiteral("xdotool"), QStringList(QStringLiteral("key")) + keys);
}

QList<QAction*> menuActions(const QWidget* window)
{
    QList<QAction*> actions;
    for (const QMenuBar* bar : visible<QMenuBar>(window)) {
        for (const QAction* menu : bar->actions())
            actions += menu->menu() ? menu->menu()->actions() : QList<QAction*>();
    }
    return actions;
}

QAction* findAction(const QWidget* window, const char* pattern, QAction::MenuRole role)
{
    const QRegularExpression name{QLatin1String(pattern)};
    QAction* found = nullptr;
    // Not all actions of menus are children of the window.
    for (QAction* action : menuActions(window) + window->findChildren<QAction*>()) {
        if (action->menu() || !action->isEnabled() || !action->isVisible())
            continue;
        if (role != QAction::NoRole && action->menuRole() == role)
            return action;
        if (!found && name.match(action->text().remove(QLatin1Char('&'))).hasMatch())
            found = action;
    }
    return found;
}

QWidget* contextWidget(const QWidget* window)
{
    const auto views = visible<QAbstractItemView>(window);
    if (!views.isEmpty())
        return views.first()->viewport();
    return QApplication::focusWidget();
}

} // namespace

Tour::Tour(const QString& pictures) : m_pictures(pictures), m_patience(Patience)
{
    // Programs that this one starts are not led.
    qunsetenv("QT_QPA_GENERIC_PLUGINS");
    connect(&m_timer, &QTimer::timeout, this, &Tour::start);
    m_timer.start(Pace);
}

void Tour::start()
{
    QWidget* window = qobject_cast<QApplication*>(qApp) ? largestWindow() : nullptr;
    if (!window || --m_patience > 0)
        return;
    m_timer.disconnect();
    connect(&m_timer, &QTimer::timeout, this, &Tour::advance);
    m_window = window;
    picture(QStringLiteral("start"));
    for (int greeting = 0; greeting < Greetings; ++greeting)
        m_steps.push_back([] { QTimer::singleShot(0, qApp, answerGreeting); });
    m_steps.push_back([this] {
        m_window = largestWindow();
        closeDialogs(m_window);
    });
    m_steps.push_back([this] { plan(); });
}

void Tour::plan()
{
    m_window = largestWindow();
    if (!m_window)
        _exit(1);
    visit(QStringLiteral("window"), [this] { m_window->resize(Usual); });
    visitMenus();
    visit(QStringLiteral("context"), [this] {
        if (QWidget* widget = contextWidget(m_window)) {
            const QPoint center = widget->rect().center();
            QApplication::postEvent(widget, new QContextMenuEvent(QContextMenuEvent::Mouse, center,
                                                                  widget->mapToGlobal(center)));
        }
    });
    visitByKeys(QStringLiteral("keys"));
    visitDialog(
        QStringLiteral("open"),
        findAction(m_window, "^Open\\b(?! (Containing|Recent|With|Terminal))", QAction::NoRole));
    visitDialog(
        QStringLiteral("settings"),
        findAction(m_window,
                   "^(Preferences|Settings|Options|Configure (?!Language|Keyboard|Toolbars)|"
                   "Program settings|Editor)",
                   QAction::PreferencesRole));
    visitDialog(QStringLiteral("about"), findAction(m_window, "^About(?! Qt)", QAction::AboutRole));
    visit(QStringLiteral("small"), [this] { m_window->resize(Small); });
    visit(QStringLiteral("large"), [this] { m_window->resize(Large); });
    m_steps.push_back([] { _exit(0); });
}

void Tour::advance()
{
    if (!m_window)
        m_window = largestWindow();
    if (m_steps.empty() || !m_window)
        _exit(1);
    const Step step = m_steps.front();
    m_steps.pop_front();
    step();
}

void Tour::visit(const QString& name, const Step& step)
{
    m_steps.push_back(step);
    m_steps.push_back([this, name] { picture(name); });
}

/// What shows without a mouse: the focus as it moves on, the bar of menus, two of the menus.
void Tour::visitByKeys(const QString& name)
{
    m_steps.push_back([] { closePopups(); });
    const auto visitKeys = [&](const QString& station, const QStringList& keys) {
        visit(name + QLatin1Char('-') + station, [keys] { type(keys); });
    };
    for (int step = 1; step <= Focused; ++step)
        visitKeys(QString::number(step), {Tab});
    visitKeys(QStringLiteral("bar"), {Alt});
    visitKeys(QStringLiteral("menu"), {Down, Down});
    visitKeys(QStringLiteral("next"), {Right, Down});
    m_steps.push_back([] { closePopups(); });
}

/// Leads the keyboard through the menus to an action; one that is not reached is triggered.
void Tour::reach(const QString& name, const QPointer<QAction>& action, int patience)
{
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!action || patience == 0) {
        closePopups();
        // Queued, for it may not return before a dialog is closed.
        if (action)
            QMetaObject::invokeMethod(action, "trigger", Qt::QueuedConnection);
        return;
    }
    if (menu && menu->activeAction() == action) {
        picture(name + QLatin1String("-reached"));
        type({Return});
        return;
    }
    if (!menu)
        type({Alt, Down});
    else
        type({menu->actions().contains(action) ? Down : Right});
    m_steps.push_front([=] { reach(name, action, patience - 1); });
}

void Tour::visitMenus()
{
    const auto bars = visible<QMenuBar>(m_window);
    QMenuBar* bar = bars.value(0);
    for (QAction* action : bar ? bar->actions() : QList<QAction*>()) {
        const QString name = action->text().remove(QRegularExpression(QStringLiteral("\\W")));
        if (action->menu() && action->isVisible())
            visit(QLatin1String("menu-") + name, [bar, action] {
                closePopups();
                bar->setActiveAction(action);
            });
    }
    m_steps.push_back([] { closePopups(); });
}

void Tour::visitDialog(const QString& name, QAction* action)
{
    if (!action)
        return;
    visit(name,
          [=] { reach(name, action, menuActions(m_window).contains(action) ? MostKeys : 0); });
    m_steps.push_back([this, name] { visitPages(name); });
    m_steps.push_back([this] { closeDialogs(m_window); });
    m_steps.push_back([this] { closeDialogs(m_window); });
}

/// The pages of the dialog that is open: of its tabs, or of a list that leads through a stack.
void Tour::visitPages(const QString& name)
{
    const std::deque<Step> after = std::move(m_steps);
    m_steps.clear();
    const QWidget* box = dialog(m_window);
    const auto tabs = visible<QTabWidget>(box);
    const auto stacks = visible<QStackedWidget>(box);
    const bool hasPages =
        std::any_of(stacks.begin(), stacks.end(),
                    [](const QStackedWidget* stack) { return stack->count() > 1; });
    const auto views = visible<QAbstractItemView>(box);
    const auto page = [&name](int index) {
        return QString(name + QLatin1Char('-') + QString::number(index));
    };
    if (!tabs.isEmpty()) {
        const QPointer<QTabWidget> widget = tabs.first();
        for (int index = 1; index < std::min(widget->count(), MostPages); ++index)
            visit(page(index), [widget, index] {
                if (widget)
                    widget->setCurrentIndex(index);
            });
    } else if (hasPages && !views.isEmpty() && views.first()->model()) {
        const QPointer<QAbstractItemView> view = views.first();
        for (int row = 1; row < std::min(view->model()->rowCount(), MostPages); ++row)
            visit(page(row), [view, row] {
                if (view)
                    view->setCurrentIndex(view->model()->index(row, 0));
            });
    }
    for (int step = 1; box && step <= Focused; ++step)
        visit(name + QLatin1String("-keys-") + QString::number(step), [] { type({Tab}); });
    m_steps.insert(m_steps.end(), after.begin(), after.end());
}

void Tour::picture(const QString& name) const
{
    QWidget* shown = QApplication::activePopupWidget();
    const int margin = shown ? Surroundings : 0;
    if (!shown)
        shown = dialog(m_window);
    const QRect area = (shown ? shown : m_window.data())->frameGeometry();
    QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x() - margin, area.y() - margin, area.width() + 2 * margin,
                     area.height() + 2 * margin)
        .save(m_pictures + name + QLatin1String(".png"));
}
