#pragma once

class QObject;
class QStandardItemModel;

namespace Gallery {

/// A small table of specimens, with icons, numbers and check boxes.
QStandardItemModel* makeTableModel(QObject* parent);

/// A small tree of a project.
QStandardItemModel* makeTreeModel(QObject* parent);

} // namespace Gallery
