#include "ComboBoxDefaultItemDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QStandardItemModel>
#include <QStyle>

namespace BRELK {

namespace {

QString separatorMark()
{
    return QStringLiteral("separator");
}

} // namespace

ComboBoxDefaultItemDelegate::ComboBoxDefaultItemDelegate(QObject* parent, QComboBox* comboBox)
    : QStyledItemDelegate(parent), m_comboBox(comboBox)
{ }

bool ComboBoxDefaultItemDelegate::isSeparator(const QModelIndex& index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == separatorMark();
}

void ComboBoxDefaultItemDelegate::setSeparator(QAbstractItemModel* model, const QModelIndex& index)
{
    if (!model)
        return;
    model->setData(index, separatorMark(), Qt::AccessibleDescriptionRole);
    const auto* standardModel = qobject_cast<QStandardItemModel*>(model);
    QStandardItem* item = standardModel ? standardModel->itemFromIndex(index) : nullptr;
    if (item)
        item->setFlags(item->flags() & ~(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
}

void ComboBoxDefaultItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    if (!isSeparator(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOption line;
    line.rect = option.rect;
    if (const auto* view = qobject_cast<const QAbstractItemView*>(option.widget))
        line.rect.setWidth(view->viewport()->width());
    comboBoxStyle().drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &line, painter, m_comboBox);
}

QSize ComboBoxDefaultItemDelegate::sizeHint(const QStyleOptionViewItem& option,
                                            const QModelIndex& index) const
{
    if (!isSeparator(index))
        return QStyledItemDelegate::sizeHint(option, index);
    const int side = comboBoxStyle().pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, m_comboBox);
    return {side, side};
}

QStyle& ComboBoxDefaultItemDelegate::comboBoxStyle() const
{
    return m_comboBox ? *m_comboBox->style() : *QApplication::style();
}

} // namespace BRELK
