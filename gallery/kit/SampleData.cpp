#include "kit/SampleData.h"

#include "ThemeResources.h"

#include <QStandardItemModel>

using BRELK::ThemeResources::getIcon;

namespace Gallery {

namespace {

struct Specimen
{
    const char* name;
    const char* material;
    double density;
    bool measured;
};

constexpr Specimen Specimens[] = {
    {"Bracket A", "Aluminium", 2.70, true}, {"Bracket B", "Aluminium", 2.71, true},
    {"Femur", "Bone", 1.85, false},         {"Gear", "Steel", 7.85, true},
    {"Housing", "Polyamide", 1.14, false},  {"Turbine blade", "Nickel alloy", 8.19, true},
};

QStandardItem* makeItem(const char* icon, const QString& text)
{
    return new QStandardItem(getIcon(QLatin1String(icon)), text);
}

} // namespace

QString titleOf(const QString& icon)
{
    QString title = icon.section(QLatin1Char('.'), 1).replace(QLatin1Char('.'), QLatin1Char(' '));
    if (!title.isEmpty())
        title[0] = title.at(0).toUpper();
    return title;
}

QStandardItemModel* makeTableModel(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({QStringLiteral("Specimen"), QStringLiteral("Material"),
                                      QStringLiteral("Density"), QStringLiteral("Measured")});
    for (const Specimen& specimen : Specimens) {
        QStandardItem* name = makeItem("mesh.triangle", QString::fromLatin1(specimen.name));
        auto* material = new QStandardItem(QString::fromLatin1(specimen.material));
        auto* density = new QStandardItem(QString::number(specimen.density, 'f', 2));
        density->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        auto* measured = new QStandardItem;
        measured->setCheckable(true);
        measured->setCheckState(specimen.measured ? Qt::Checked : Qt::Unchecked);
        model->appendRow({name, material, density, measured});
    }
    return model;
}

QStandardItemModel* makeTreeModel(QObject* parent)
{
    auto* model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels({QStringLiteral("Project"), QStringLiteral("Kind")});
    const auto append = [](QStandardItem* parentItem, const char* icon, const QString& text,
                           const QString& kind) {
        QStandardItem* item = makeItem(icon, text);
        parentItem->appendRow({item, new QStandardItem(kind)});
        return item;
    };
    QStandardItem* root = append(model->invisibleRootItem(), "treeview.scene",
                                 QStringLiteral("Turbine"), QStringLiteral("Scene"));
    QStandardItem* volumes =
        append(root, "layer.stack", QStringLiteral("Volumes"), QStringLiteral("Group"));
    append(volumes, "volume.voxels", QStringLiteral("Scan 2024-05-17"), QStringLiteral("Volume"));
    append(volumes, "volume.voxels", QStringLiteral("Scan 2024-06-02"), QStringLiteral("Volume"));
    QStandardItem* surfaces =
        append(root, "layer.stack", QStringLiteral("Surfaces"), QStringLiteral("Group"));
    append(surfaces, "mesh.triangle", QStringLiteral("Blade"), QStringLiteral("Surface"));
    append(root, "chart.line", QStringLiteral("Report"), QStringLiteral("Chart"));
    QStandardItem* archive = append(model->invisibleRootItem(), "treeview.scene",
                                    QStringLiteral("Archive"), QStringLiteral("Scene"));
    append(archive, "volume.voxels", QStringLiteral("Scan 2023"), QStringLiteral("Volume"));
    return model;
}

} // namespace Gallery
