#include "Rendering.h"

#include "Pages.h"
#include "Settings.h"
#include "ThemeSwitcher.h"
#include "kit/Page.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QProgressBar>
#include <QTextStream>
#include <QVBoxLayout>

#include <algorithm>

namespace Gallery {

namespace {

constexpr int PageWidth = 140 * Unit;

/// Gives everything that happens after a window is shown the time to happen.
void settle()
{
    constexpr int Rounds = 4;
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Stops bars that move by themselves.
void holdStill(const QWidget& window)
{
    for (QProgressBar* bar : window.findChildren<QProgressBar*>()) {
        if (bar->minimum() == bar->maximum())
            bar->setStyleSheet(QStringLiteral("QProgressBar { widget-animation-duration: 0; }"));
    }
}

QSize pageSize(const QLayout& layout)
{
    const int width = qMax(PageWidth, layout.totalMinimumSize().width());
    return {width, layout.hasHeightForWidth() ? layout.totalHeightForWidth(width)
                                              : layout.totalSizeHint().height()};
}

QPixmap picture(const PageEntry& entry, const Settings& settings)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(buildPage(entry));
    holdStill(window);
    // Specimens share the focus of this widget, which shows nothing.
    QWidget focus(&window);
    focus.setFocusPolicy(Qt::StrongFocus);
    focus.resize(0, 0);

    window.setAttribute(Qt::WA_DontShowOnScreen);
    window.ensurePolished();
    window.resize(pageSize(*layout));
    window.show();
    QApplication::setActiveWindow(&window);
    settle();
    window.resize(pageSize(*layout)); // widgets may have changed their minds when they were shown
    settle();
    focus.setFocus(Qt::TabFocusReason);
    settle();
    if (!settings.via.isEmpty()) {
        auto& switcher = BRELK::ThemeSwitcher::getInstance();
        for (const QString& theme : {settings.via, settings.theme}) {
            switcher.switchTo(theme);
            settle();
        }
    }
    return window.grab();
}

bool write(const PageEntry& entry, const Settings& settings)
{
    const QDir directory(settings.renderDirectory);
    const QString path = directory.absoluteFilePath(entry.name % QLatin1String(".png"));
    const bool written = picture(entry, settings).save(path);
    if (written)
        QTextStream(stdout) << path << '\n';
    else
        qWarning().noquote() << QString(QLatin1String("Cannot write ") % path);
    return written;
}

/// Stops the text cursor, and makes dates and numbers those of one place.
void beSameEverywhere()
{
    QApplication::setCursorFlashTime(0);
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

} // namespace

bool renderPages(const Settings& settings)
{
    beSameEverywhere();
    QDir().mkpath(settings.renderDirectory);
    const QVector<PageEntry>& pages = allPages();
    return std::all_of(pages.begin(), pages.end(), [&](const PageEntry& entry) {
        const bool isMeant = settings.page.isEmpty() || settings.page == entry.name;
        return !isMeant || write(entry, settings);
    });
}

} // namespace Gallery
