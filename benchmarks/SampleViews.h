#pragma once

#include <memory>

class QAbstractItemModel;
class QListView;
class QTableView;
class QTreeView;
class QWidget;

namespace StyleBenchmark {

/// A view with the model that it shows.
template <class View>
struct Shown
{
    std::shared_ptr<QAbstractItemModel> model;
    std::shared_ptr<View> view;
};

/// Shows `window` and waits until it is painted.
void expose(QWidget& window);

/// Views that are shown: so many rows of 10 columns, 50,000 rows in 500 branches, and 100,000 rows
/// with an icon each. No two texts are the same.
Shown<QTableView> table(int rows);
Shown<QTreeView> tree();
Shown<QListView> iconList();

} // namespace StyleBenchmark
