#include "Pages.h"

#include "kit/Page.h"

namespace Gallery {

namespace {

QVector<PageEntry> makePages()
{
    const auto text = [](const char* words) { return QString::fromUtf8(words); };
    const auto page = [&text](const char* name, const char* title, const char* description,
                              const char* icon, void (*fill)(Page&)) {
        return PageEntry{text(name), text(title), text(description), text(icon), fill};
    };
    return {
        page("overview", "Overview", "How widgets look together, in a small application.",
             "action.home", fillOverview),
        page("buttons", "Buttons", "Push buttons of every kind, shape and state; command links.",
             "action.run", fillButtons),
        page("choices", "Check boxes and switches",
             "Check boxes, radio buttons and switches: one of many, many of many, on or off.",
             "status.checked", fillChoices),
        page("text", "Text input", "Line edits and text editors.", "action.edit", fillTextInputs),
        page("combo-boxes", "Combo boxes", "Plain and editable, with icons, long lists and errors.",
             "view.list", fillComboBoxes),
        page("spin-boxes", "Spin boxes and dates", "Numbers, dates and times, and the calendar.",
             "view.calendar", fillSpinBoxes),
        page("ranges", "Sliders and progress", "Sliders, dials, progress bars and scroll bars.",
             "action.settings", fillRanges),
        page("tabs", "Tabs", "Tab bars on all sides, in three sizes and two shapes.", "view.tabs",
             fillTabs),
        page("menus", "Menus", "Menus and menu bars with marks, shortcuts and submenus.",
             "action.menu", fillMenus),
        page("tool-bars", "Tool bars", "Tool bars and tool buttons.", "tool.brush", fillToolBars),
        page("views", "Item views", "Lists, tables, trees and column views.", "view.tree",
             fillViews),
        page("containers", "Containers",
             "Group boxes, tool boxes, splitters, docks and windows within windows.", "view.dock",
             fillContainers),
        page("cards", "Cards and button groups",
             "Widgets that steer the style through dynamic properties and class names.",
             "layer.stack", fillCards),
        page("dialogs", "Dialogs", "The toolkit's own dialogs.", "message.help", fillDialogs),
        page("icons", "Icons and cursors", "Every icon and cursor by its name.", "image.picture",
             fillIcons),
        page("theme", "Theme values", "Colors, brushes, fonts and radii of the current theme.",
             "view.theme.dark", fillThemeValues),
    };
}

} // namespace

const QVector<PageEntry>& allPages()
{
    static const QVector<PageEntry> sPages = makePages();
    return sPages;
}

QStringList pageNames()
{
    QStringList names;
    for (const PageEntry& entry : allPages())
        names.append(entry.name);
    return names;
}

Page* buildPage(const PageEntry& entry)
{
    auto* page = new Page(entry.title, entry.description);
    entry.fill(*page);
    return page;
}

} // namespace Gallery
