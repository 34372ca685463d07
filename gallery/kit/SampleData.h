#pragma once

#include <QString>

class QObject;
class QStandardItemModel;

namespace Gallery {

/// What an icon such as "action.save" is called in a menu: "Save".
QString titleOf(const QString& icon);

/// A small table of specimens, with icons, numbers and check boxes.
QStandardItemModel* makeTableModel(QObject* parent);

/// A small tree of a project.
QStandardItemModel* makeTreeModel(QObject* parent);

} // namespace Gallery
