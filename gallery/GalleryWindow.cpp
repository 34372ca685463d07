#include "GalleryWindow.h"

#include "Header.h"
#include "Pages.h"
#include "ThemeFactory.h"
#include "ThemeRepositories.h"
#include "ThemeResources.h"
#include "ThemeSwitcher.h"
#include "kit/Page.h"

#include <QApplication>
#include <QDebug>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QListWidget>
#include <QProcess>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>

namespace Gallery {

namespace {

constexpr int NavigationWidth = 28 * Unit;
constexpr QSize UsualSize(170 * Unit, 110 * Unit);

QFrame* makeLine(QFrame::Shape shape)
{
    auto* line = new QFrame;
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

GalleryWindow::GalleryWindow(const Settings& settings)
    : m_settings(settings), m_navigation(new QListWidget), m_pages(new QStackedWidget)
{
    auto* header = new Header(settings);
    connect(header, &Header::themeChosen, this, [this](const QString& directory) {
        BRELK::ThemeSwitcher::getInstance().stopFollowingDesktop();
        m_settings.followDesktop = false;
        const QFileInfo theme(directory);
        BRELK::ThemeFactory::getInstance().setThemesRepositoryPath(theme.absolutePath());
        if (BRELK::ThemeSwitcher::getInstance().switchTo(theme.fileName()))
            m_settings.theme = theme.fileName();
    });
    connect(header, &Header::desktopChosen, this, &GalleryWindow::followDesktop);
    if (settings.followDesktop)
        followDesktop();
    connect(header, &Header::scaleChosen, this, [this](double scale) {
        Settings changed = m_settings;
        changed.scale = scale;
        restart(changed);
    });
    connect(header, &Header::rightToLeftChosen, this, [this](bool rightToLeft) {
        m_settings.rightToLeft = rightToLeft;
        QGuiApplication::setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    });

    connect(&BRELK::ThemeSwitcher::getInstance(), &BRELK::ThemeSwitcher::switched, this,
            &GalleryWindow::rebuildPages);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header, 0, 0, 1, 3);
    layout->addWidget(makeLine(QFrame::HLine), 1, 0, 1, 3);
    layout->addWidget(makeNavigation(), 2, 0);
    layout->addWidget(makeLine(QFrame::VLine), 2, 1);
    layout->addWidget(m_pages, 2, 2);
    layout->setColumnStretch(2, 1);
    layout->setRowStretch(2, 1);
    resize(UsualSize.boundedTo(screen()->availableSize()));
    m_navigation->setCurrentRow(qMax(0, pageNames().indexOf(settings.page)));
    m_navigation->setFocus();
}

QWidget* GalleryWindow::makeNavigation()
{
    for (const PageEntry& entry : allPages()) {
        m_navigation->addItem(
            new QListWidgetItem(BRELK::ThemeResources::getIcon(entry.icon), entry.title));
        auto* area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        m_pages->addWidget(area);
    }
    m_navigation->setFixedWidth(NavigationWidth);
    m_navigation->setFrameShape(QFrame::NoFrame);
    m_navigation->setSpacing(2);
    m_navigation->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_navigation->setAccessibleName(QStringLiteral("Pages"));
    connect(m_navigation, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);

    const auto step = [this](int distance) {
        const int count = m_navigation->count();
        m_navigation->setCurrentRow((m_navigation->currentRow() + distance + count) % count);
    };
    auto* next = new QShortcut(QKeySequence(QStringLiteral("Ctrl+PgDown")), this);
    connect(next, &QShortcut::activated, this, [step] { step(1); });
    auto* previous = new QShortcut(QKeySequence(QStringLiteral("Ctrl+PgUp")), this);
    connect(previous, &QShortcut::activated, this, [step] { step(-1); });
    return m_navigation;
}

void GalleryWindow::showPage(int index)
{
    const PageEntry& entry = allPages().at(index);
    auto* area = qobject_cast<QScrollArea*>(m_pages->widget(index));
    if (!area->widget())
        area->setWidget(buildPage(entry));
    m_pages->setCurrentIndex(index);
    m_settings.page = entry.name;
    setWindowTitle(entry.title);
}

void GalleryWindow::followDesktop()
{
    m_settings.followDesktop = true;
    const QFileInfo light(BRELK::ThemeRepositories::find(QStringLiteral("Light")));
    BRELK::ThemeFactory::getInstance().setThemesRepositoryPath(
        m_settings.repository.value_or(light.absolutePath()));
    BRELK::ThemeSwitcher::getInstance().followDesktop(QStringLiteral("Light"),
                                                      QStringLiteral("Dark"));
}

/// Pages keep values of the theme: in samples, swatches and the words about them.
void GalleryWindow::rebuildPages()
{
    for (int index = 0; index < m_pages->count(); ++index)
        delete qobject_cast<QScrollArea*>(m_pages->widget(index))->takeWidget();
    showPage(m_pages->currentIndex());
}

void GalleryWindow::restart(const Settings& settings)
{
    if (QProcess::startDetached(QCoreApplication::applicationFilePath(), settings.toArguments()))
        QCoreApplication::quit();
    else
        qWarning() << "The gallery could not be started again.";
}

} // namespace Gallery
