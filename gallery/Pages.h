#pragma once

#include <QString>
#include <QVector>

namespace Gallery {

class Page;

/// What the gallery knows of a page before it is built.
struct PageEntry
{
    QString name; ///< for the command line and for file names
    QString title;
    QString description;
    QString icon;
    void (*fill)(Page&);
};

/// All pages in the order of the navigation.
const QVector<PageEntry>& allPages();

/// The names of all pages.
QStringList pageNames();

/// A new page, without parent.
Page* buildPage(const PageEntry& entry);

void fillOverview(Page& page);
void fillButtons(Page& page);
void fillChoices(Page& page);
void fillTextInputs(Page& page);
void fillComboBoxes(Page& page);
void fillSpinBoxes(Page& page);
void fillRanges(Page& page);
void fillTabs(Page& page);
void fillMenus(Page& page);
void fillToolBars(Page& page);
void fillViews(Page& page);
void fillContainers(Page& page);
void fillCards(Page& page);
void fillDialogs(Page& page);
void fillIcons(Page& page);
void fillThemeValues(Page& page);

} // namespace Gallery
