#pragma once

#include "ThemeLibraryGlobal.h"

#include <QComboBox>
#include <QPointer>
#include <QStyledItemDelegate>

namespace BRELK {

/// The delegate that the style gives to combo boxes in place of Qt's default one: it draws items as
/// item views do, and separator rows as a line across the popup.
///
/// A row is a separator when its `Qt::AccessibleDescriptionRole` is exactly "separator", as
/// `QComboBox::insertSeparator` marks it.
class VARN_COMMON_THEME_EXPORT ComboBoxDefaultItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// A delegate of `parent` for the popup of `comboBox`, which it does not own and may outlive.
    ComboBoxDefaultItemDelegate(QObject* parent, QComboBox* comboBox);

    /// False for an invalid index.
    static bool isSeparator(const QModelIndex& index);

    /// Marks the row as a separator. In a `QStandardItemModel` it also becomes neither selectable
    /// nor enabled. A null model or an invalid index is ignored.
    static void setSeparator(QAbstractItemModel* model, const QModelIndex& index);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    QStyle& comboBoxStyle() const;

    QPointer<QComboBox> m_comboBox;
};

} // namespace BRELK
