#include "Pages.h"
#include "ThemeColorHelper.h"
#include "ThemeResources.h"
#include "kit/Decoration.h"
#include "kit/Page.h"
#include "kit/Properties.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStyle>

namespace Gallery {

namespace {

constexpr int GridWidth = 17 * Unit;
constexpr int LabelHeight = 3 * Unit;

QStandardItemModel* makeIconModel(QObject* parent)
{
    QStringList names =
        BRELK::ThemeResources::getIcons(QRegularExpression(QStringLiteral("\\.(svg|png)$")));
    names.sort();
    auto* model = new QStandardItemModel(parent);
    for (const QString& name : names) {
        auto* item = new QStandardItem(BRELK::ThemeResources::getIcon(name), name);
        item->setToolTip(name);
        item->setEditable(false);
        model->appendRow(item);
    }
    return model;
}

QListView* makeIconGrid()
{
    auto* grid = with(new QListView, "flatView");
    auto* filter = new QSortFilterProxyModel(grid);
    filter->setSourceModel(makeIconModel(grid));
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    grid->setModel(filter);
    grid->setViewMode(QListView::IconMode);
    grid->setMovement(QListView::Static);
    grid->setResizeMode(QListView::Adjust);
    grid->setFont(BRELK::ThemeResources::getFont(QStringLiteral("small")));
    grid->setTextElideMode(Qt::ElideMiddle);
    grid->setFixedHeight(80 * Unit);
    grid->setAccessibleName(QStringLiteral("Icons"));
    return grid;
}

void setIconSize(QListView& grid, int size)
{
    grid.setIconSize({size, size});
    grid.setGridSize({qMax(GridWidth, size + 2 * Unit), size + 2 * Unit + LabelHeight});
}

QComboBox* makeSizes(QListView& grid)
{
    auto* sizes = new QComboBox;
    for (const int size : {16, 24, 32, 48, 96})
        sizes->addItem(QString(QString::number(size) % QLatin1String(" px")), size);
    QObject::connect(sizes, QOverload<int>::of(&QComboBox::currentIndexChanged), &grid,
                     [&grid, sizes] { setIconSize(grid, sizes->currentData().toInt()); });
    sizes->setCurrentIndex(1);
    sizes->setAccessibleName(QStringLiteral("Size of the icons"));
    return sizes;
}

QLineEdit* makeFilter(QListView& grid, QLabel& count)
{
    auto* field = with(new QLineEdit, "customActionIcons");
    field->setPlaceholderText(QStringLiteral("Search icons"));
    field->setClearButtonEnabled(true);
    field->addAction(BRELK::ThemeResources::getIcon(QStringLiteral("action.find")),
                     QLineEdit::LeadingPosition);
    field->setFixedWidth(32 * Unit);
    auto* model = qobject_cast<QSortFilterProxyModel*>(grid.model());
    const auto showCount = [&count, model] {
        count.setText(QString(QString::number(model->rowCount()) % QLatin1String(" icons")));
    };
    QObject::connect(field, &QLineEdit::textChanged, &grid,
                     [model, showCount](const QString& text) {
                         model->setFilterFixedString(text);
                         showCount();
                     });
    showCount();
    return field;
}

void addIcons(Section& section)
{
    QListView* grid = makeIconGrid();
    QLabel* count = makeCaption({});
    QObject::connect(grid, &QListView::activated, grid, [count](const QModelIndex& index) {
        QGuiApplication::clipboard()->setText(index.data().toString());
        count->setText(
            QString(QLatin1String("Copied \"") % index.data().toString() % QLatin1Char('"')));
    });
    section.add(row({makeFilter(*grid, *count), makeSizes(*grid), count}));
    section.add(grid, true);
}

/// Cells of pictures with names below them.
class Sheet : public QWidget
{
public:
    explicit Sheet(int columns) : m_columns(columns), m_grid(new QGridLayout(this))
    {
        m_grid->setContentsMargins(0, 0, 0, 0);
        m_grid->setSpacing(Unit);
    }

    QWidget* add(const QPixmap& picture, const QString& name)
    {
        auto* image = new QLabel;
        image->setPixmap(picture);
        image->setAlignment(Qt::AlignCenter);
        image->setMinimumHeight(5 * Unit);
        QLabel* caption = makeCaption(name);
        caption->setAlignment(Qt::AlignCenter);
        QWidget* cell = column({image, caption});
        m_grid->addWidget(cell, m_count / m_columns, m_count % m_columns);
        ++m_count;
        return cell;
    }

private:
    int m_columns;
    int m_count = 0;
    QGridLayout* m_grid;
};

void addCursors(Section& section)
{
    auto* sheet = new Sheet(7);
    const QString pattern = QStringLiteral("*.cur");
    QStringList names;
    for (const QString& path : QDir::searchPaths(BRELK::ThemeResources::cursorsPrefix())) {
        for (const QString& file : QDir(path).entryList({pattern}, QDir::Files))
            names.append(file.chopped(pattern.size() - 1));
    }
    names.sort();
    names.removeDuplicates();
    for (const QString& name : names) {
        const QCursor cursor = BRELK::ThemeResources::getCursor(name);
        sheet->add(cursor.pixmap(), name)->setCursor(cursor);
    }
    section.add(sheet, true);
}

void addStandardIcons(Section& section)
{
    constexpr int PrefixLength = 3; // "SP_"
    auto* sheet = new Sheet(6);
    const auto names = QMetaEnum::fromType<QStyle::StandardPixmap>();
    for (int index = 0; index < names.keyCount(); ++index) {
        const auto id = static_cast<QStyle::StandardPixmap>(names.value(index));
        if (id == QStyle::SP_CustomBase)
            continue;
        const QIcon icon = BRELK::ThemeColorHelper::getModifiedIconWithForegroundBrush(
            section.style()->standardIcon(id, nullptr, &section), Decoration::text());
        sheet->add(icon.pixmap(3 * Unit, 3 * Unit),
                   QString::fromLatin1(names.key(index) + PrefixLength));
    }
    section.add(sheet, true);
}

} // namespace

void fillIcons(Page& page)
{
    addIcons(page.addSection(QStringLiteral("Icons"),
                             QStringLiteral("Double-click an icon to copy its name.")));
    addStandardIcons(page.addSection(QStringLiteral("The style's standard icons")));
    addCursors(page.addSection(QStringLiteral("Cursors"),
                               QStringLiteral("Rest the mouse on one to try it.")));
}

} // namespace Gallery
