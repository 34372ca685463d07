#pragma once

#include "Settings.h"

#include <QWidget>

class QListWidget;
class QStackedWidget;

namespace Gallery {

/// The gallery: a list of pages, the page, and above them the switches for theme, direction and
/// scale. Pages are built when they are shown first.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(const Settings& settings);

private:
    QWidget* makeNavigation();
    void showPage(int index);
    void followDesktop();
    void rebuildPages();
    /// Starts the program anew, as a theme and a scale are chosen once in the life of a process.
    void restart(const Settings& settings);

    Settings m_settings;
    QListWidget* m_navigation;
    QStackedWidget* m_pages;
};

} // namespace Gallery
