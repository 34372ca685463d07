#pragma once

#include <functional>
#include <string>
#include <vector>

/// What the style benchmark does with one style. The same cases run under each of the compared
/// ones.
namespace StyleBenchmark {

/// Something to do again and again, and how many things (rows, widgets) it does at once.
struct Work
{
    std::function<void()> run;
    double units = 1;
};

/// Named "group/control/state". `prepare` needs an application in the style to be measured; what
/// it makes lives as long as the work it returns.
struct Case
{
    std::string name;
    std::function<Work()> prepare;
};

/// Every control in its states, one style call each: what is pressed, chosen, typed in or moved,
/// and what holds others or belongs to windows.
void addControls(std::vector<Case>& cases);
/// Metrics, hints, sizes and rectangles.
void addGeometry(std::vector<Case>& cases);
/// Polishing one widget of each kind.
void addPolishing(std::vector<Case>& cases);
/// Scrolling large views and moving the mouse over them, by visible row.
void addViews(std::vector<Case>& cases);
/// Whole widgets and a whole window, as they paint themselves.
void addWindows(std::vector<Case>& cases);

std::vector<Case> allCases();

} // namespace StyleBenchmark
