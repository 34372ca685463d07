#include "Pages.h"
#include "ThemeResources.h"
#include "kit/Decoration.h"
#include "kit/Page.h"
#include "kit/Properties.h"
#include "kit/Swatch.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>

namespace Gallery {

namespace {

constexpr QSize ColorSize(14 * Unit, 4 * Unit);
constexpr QSize BrushSize(12 * Unit, 2 * Unit);
constexpr int ColorColumns = 5;

/// The names and values of the theme's variables of `group`, as of now.
QVariantMap variables(const QString& group)
{
    return BRELK::ThemeResources::getThemeVar(group, QVariant()).toMap();
}

QString disabledTwin(const QString& name)
{
    return name % QLatin1String("Disabled");
}

/// The names of `group` that are no twin for disabled widgets.
QStringList namesWithoutTwins(const QVariantMap& group)
{
    QStringList names;
    for (auto entry = group.begin(); entry != group.end(); ++entry) {
        const bool isTwin = entry.key().endsWith(QLatin1String("Disabled"))
                            && group.contains(entry.key().chopped(8));
        if (!isTwin)
            names.append(entry.key());
    }
    return names;
}

QString describe(const QColor& color)
{
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QWidget* makeColorCell(const QString& name, const QColor& color)
{
    auto* swatch = new Swatch(color, Decoration::radius(QStringLiteral("BaseSize")), ColorSize);
    QLabel* title = makeCaption(name);
    Decoration::dress(*title, Decoration::text(), title->font());
    return column({swatch, title, makeCaption(describe(color))});
}

void addColors(Section& section)
{
    const QVariantMap colors = variables(BRELK::ThemeResources::getColorsVarPrefix());
    auto* sheet = new QWidget;
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2 * Unit);
    int index = 0;
    for (const QString& name : namesWithoutTwins(colors)) {
        QWidget* cell = makeColorCell(name, colors.value(name).value<QColor>());
        cell->layout()->setSpacing(2);
        grid->addWidget(cell, index / ColorColumns, index % ColorColumns);
        ++index;
    }
    section.add(sheet, true);
}

QString describe(const QBrush& brush)
{
    if (brush.style() == Qt::NoBrush)
        return QStringLiteral("none");
    if (!brush.gradient())
        return describe(brush.color());
    QStringList colors;
    for (const QGradientStop& stop : brush.gradient()->stops())
        colors.append(describe(stop.second));
    return colors.join(QLatin1String(" ... "));
}

QStandardItem* makeBrushItem(const QBrush& brush, qreal devicePixelRatio)
{
    auto* item = new QStandardItem(describe(brush));
    item->setIcon(swatchPixmap(brush, BrushSize, devicePixelRatio));
    item->setEditable(false);
    return item;
}

QTableView* makeBrushTable()
{
    auto* table = new QTableView;
    auto* model = new QStandardItemModel(table);
    const QVariantMap brushes = variables(BRELK::ThemeResources::getBrushesVarPrefix());
    const qreal ratio = table->devicePixelRatioF();
    for (const QString& name : namesWithoutTwins(brushes)) {
        auto* title = new QStandardItem(name);
        title->setEditable(false);
        model->appendRow({title, makeBrushItem(brushes.value(name).value<QBrush>(), ratio),
                          makeBrushItem(brushes.value(disabledTwin(name)).value<QBrush>(), ratio)});
    }
    model->setHorizontalHeaderLabels(
        {QStringLiteral("Brush"), QStringLiteral("Value"), QStringLiteral("When disabled")});
    auto* filter = new QSortFilterProxyModel(table);
    filter->setSourceModel(model);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    table->setModel(filter);
    table->setIconSize(BrushSize);
    table->setFixedHeight(64 * Unit);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setColumnWidth(0, 54 * Unit);
    table->setColumnWidth(1, 26 * Unit);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

void addBrushes(Section& section)
{
    QTableView* table = makeBrushTable();
    auto* search = with(new QLineEdit, "customActionIcons");
    search->setPlaceholderText(QStringLiteral("Search brushes"));
    search->setClearButtonEnabled(true);
    search->setFixedWidth(32 * Unit);
    QObject::connect(search, &QLineEdit::textChanged, table, [table](const QString& text) {
        qobject_cast<QSortFilterProxyModel*>(table->model())->setFilterFixedString(text);
    });
    section.add(search);
    section.add(table, true);
}

void addFonts(Section& section)
{
    const QStringList names{QStringLiteral("small"), QStringLiteral("base"),
                            QStringLiteral("medium"), QStringLiteral("large")};
    for (const QString& name : names) {
        const QFont font = Decoration::font(name);
        auto* sample = new QLabel(QStringLiteral("The quick brown fox jumps over the lazy dog"));
        sample->setFont(font);
        const QString values = name % QLatin1String(": ") % font.family() % QLatin1String(", ")
                               % QString::number(font.pointSizeF()) % QLatin1String(" pt");
        section.add(captioned(values, sample));
    }
}

QWidget* makeNumberCell(const QString& name, const QString& value, const QBrush& brush, int radius)
{
    const QSize size(10 * Unit, 6 * Unit);
    return captioned(QString(name % QLatin1String(": ") % value), new Swatch(brush, radius, size));
}

void addNumbers(Section& section)
{
    const QVariantMap opacities = variables(BRELK::ThemeResources::getOpacitiesVarPrefix());
    auto* cells = new QWidget;
    auto* grid = new QGridLayout(cells);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2 * Unit);
    int column = 0;
    for (const char* size : {"SmallSize", "BaseSize", "MediumSize", "LargeSize"}) {
        const QString name = QString::fromLatin1(size);
        const int radius = Decoration::radius(name);
        grid->addWidget(makeNumberCell(name, QString::number(radius), Decoration::accent(), radius),
                        0, column++);
    }
    column = 0;
    for (auto opacity = opacities.begin(); opacity != opacities.end(); ++opacity) {
        QColor color = Decoration::accent();
        color.setAlphaF(opacity.value().toDouble());
        grid->addWidget(makeNumberCell(opacity.key(), opacity.value().toString(), color, 0), 1,
                        column++);
    }
    section.add(cells);
}

} // namespace

void fillThemeValues(Page& page)
{
    addColors(page.addSection(QStringLiteral("Colors")));
    addFonts(page.addSection(QStringLiteral("Fonts")));
    addNumbers(page.addSection(QStringLiteral("Corner radii and opacities")));
    addBrushes(page.addSection(QStringLiteral("Brushes")));
}

} // namespace Gallery
