#include "ComboBoxDefaultItemDelegate.h"
#include "MessageRecorder.h"
#include "StateSheet.h"

using namespace BRELK;

namespace {

using Delegate = ComboBoxDefaultItemDelegate;

constexpr int Separator = 1;

/// A combo box with a separator between its items.
std::unique_ptr<QComboBox> comboBox()
{
    auto box = std::make_unique<QComboBox>();
    box->addItems({QStringLiteral("One"), QStringLiteral("Two")});
    box->insertSeparator(Separator);
    return box;
}

Delegate* delegateOf(QComboBox& box)
{
    box.ensurePolished();
    return qobject_cast<Delegate*>(box.itemDelegate());
}

QModelIndex row(const QComboBox& box, int row)
{
    return box.model()->index(row, 0);
}

void paintRow(const QAbstractItemDelegate& delegate, const QStyleOptionViewItem& option,
              const QModelIndex& index)
{
    QImage image(200, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    delegate.paint(&painter, option, index);
}

/// Opens the popup, lets it be painted, and gives the height of each of the rows.
QVector<int> popupRows(QComboBox& box)
{
    box.show();
    box.showPopup();
    box.view()->window()->grab();
    QVector<int> heights;
    for (int i = 0; i < box.count(); ++i)
        heights.append(box.view()->visualRect(row(box, i)).height());
    box.hidePopup();
    return heights;
}

} // namespace

class tst_ComboBoxDefaultItemDelegate : public QObject
{
    Q_OBJECT

private:
    QPointer<QStyle> m_style;

private Q_SLOTS:

    void initTestCase() { m_style = StateSheet::applyProbeTheme(); }

    void separatorsAreMarkedExactly()
    {
        QStandardItemModel model(3, 1);
        const QModelIndex index = model.index(Separator, 0);
        model.itemFromIndex(index)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsEditable);
        Delegate::setSeparator(&model, index);
        QVERIFY(Delegate::isSeparator(index));
        QVERIFY(!Delegate::isSeparator(model.index(0, 0)));
        QCOMPARE(index.flags(), Qt::ItemIsEditable);
        model.setData(index, QStringLiteral("Separator"), Qt::AccessibleDescriptionRole);
        QVERIFY(!Delegate::isSeparator(index));

        Delegate::setSeparator(nullptr, QModelIndex());
        Delegate::setSeparator(&model, QModelIndex());
    }

    void separatorsSpanThePopup()
    {
        const auto box = comboBox();
        box->setLayoutDirection(Qt::RightToLeft);
        box->resize(150, 30);
        const Delegate* delegate = delegateOf(*box);
        QVERIFY(delegate);
        const QVector<int> heights = popupRows(*box);
        const int frame =
            box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, box.get());
        QCOMPARE(heights.at(Separator), frame);
        QVERIFY(heights.at(0) > heights.at(Separator));

        QStyleOptionViewItem option;
        option.widget = box->view();
        option.rect = QRect(0, 10, 20, frame);
        QCOMPARE(delegate->sizeHint(option, row(*box, Separator)), QSize(frame, frame));
        const QByteArray line = drawn(
            [&](QPainter* painter) { delegate->paint(painter, option, row(*box, Separator)); });
        QVERIFY2(line.startsWith("rect 0,10 " + QByteArray::number(box->view()->viewport()->width())
                                 + "x1 "),
                 line);
    }

    void otherDelegatesStay()
    {
        QFontComboBox fonts;
        QVERIFY(!delegateOf(fonts));
        QStyledItemDelegate own;
        const auto box = comboBox();
        box->setItemDelegate(&own);
        QVERIFY(!delegateOf(*box));
    }

    void theModelAndTheParentMayChange()
    {
        QWidget first;
        QWidget second;
        auto* box = new QComboBox(&first);
        const QPointer<Delegate> delegate = delegateOf(*box);
        QVERIFY(delegate);
        box->setParent(&second);
        QApplication::style()->polish(box);
        QCOMPARE(delegateOf(*box), delegate.data());

        QStandardItemModel late(3, 1);
        late.setData(late.index(0, 0), QStringLiteral("One"));
        Delegate::setSeparator(&late, late.index(Separator, 0));
        box->setModel(&late);
        const QVector<int> heights = popupRows(*box);
        QVERIFY(heights.at(0) > heights.at(Separator));

        delete box;
        QVERIFY(!delegate);
    }

    void aDelegateMayOutliveItsComboBox()
    {
        auto box = comboBox();
        const Delegate delegate(nullptr, box.get());
        box.reset();
        QStandardItemModel model(1, 1);
        Delegate::setSeparator(&model, model.index(0, 0));
        QVERIFY(!delegate.sizeHint({}, model.index(0, 0)).isEmpty());
        paintRow(delegate, {}, model.index(0, 0));
    }

    /// The last test: it takes the style away.
    void comboBoxesOutliveTheStyle()
    {
        MessageRecorder messages;
        const auto box = comboBox();
        const auto styled = comboBox();
        auto* ownStyle = new BaseStyle;
        styled->setStyle(ownStyle);
        QVERIFY(delegateOf(*box));
        QVERIFY(delegateOf(*styled));
        QApplication::setStyle(QStringLiteral("fusion"));
        QVERIFY(!m_style);
        delete ownStyle;
        for (QComboBox* each : {box.get(), styled.get()}) {
            const QVector<int> heights = popupRows(*each);
            QVERIFY(heights.at(0) > heights.at(Separator));
            each->setEditable(true);
            popupRows(*each);
        }
        for (const QString& message : messages.take())
            QVERIFY2(message.contains(QLatin1String("This plugin does not support")),
                     qPrintable(message));
    }
};

QTEST_MAIN(tst_ComboBoxDefaultItemDelegate)
#include "tst_ComboBoxDefaultItemDelegate.moc"
