#include "Header.h"

#include "ThemeSwitcher.h"
#include "kit/Decoration.h"
#include "kit/Page.h"
#include "kit/Properties.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>

namespace Gallery {

namespace {

/// Adds `field` behind a label that names it, for the eye, the keyboard and screen readers.
void addField(QBoxLayout& bar, const QString& name, QWidget* field)
{
    QLabel* label = makeLabel(name);
    label->setBuddy(field);
    bar.addSpacing(2 * Unit);
    bar.addWidget(label);
    bar.addWidget(field);
}

} // namespace

Header::Header(const Settings& settings)
{
    auto* bar = new QHBoxLayout(this);
    bar->setContentsMargins(3 * Unit, Unit, 3 * Unit, Unit);
    bar->setSpacing(Unit);
    auto* title = new QLabel(QStringLiteral("Gallery"));
    const auto dress = [title] {
        Decoration::dress(*title, Decoration::text(), Decoration::font(QStringLiteral("large")));
    };
    dress();
    connect(&BRELK::ThemeSwitcher::getInstance(), &BRELK::ThemeSwitcher::switched, this, dress);
    bar->addWidget(title);
    bar->addStretch();
    addThemes(*bar, settings);
    addScales(*bar, settings.scale);
    addDirection(*bar, settings.rightToLeft);
}

void Header::addThemes(QBoxLayout& bar, const Settings& settings)
{
    auto* themes = new QComboBox;
    for (const QString& directory : settings.themes())
        themes->addItem(QFileInfo(directory).fileName(), directory);
    themes->setEnabled(themes->count() > 0);
    themes->setCurrentIndex(themes->findText(settings.theme));
    themes->insertSeparator(themes->count());
    themes->addItem(QStringLiteral("Follow the desktop"));
    if (settings.followDesktop)
        themes->setCurrentIndex(themes->count() - 1);
    addField(bar, QStringLiteral("&Theme"), themes);
    connect(themes, QOverload<int>::of(&QComboBox::activated), this, [this, themes](int index) {
        if (index == themes->count() - 1)
            Q_EMIT desktopChosen();
        else
            Q_EMIT themeChosen(themes->itemData(index).toString());
    });
}

void Header::addScales(QBoxLayout& bar, double current)
{
    auto* scales = new QComboBox;
    for (const double scale : {1.0, 1.25, 1.5, 2.0})
        scales->addItem(QString(QString::number(100 * scale) % QLatin1String(" %")), scale);
    if (scales->findData(current) < 0)
        scales->addItem(QString(QString::number(100 * current) % QLatin1String(" %")), current);
    scales->setCurrentIndex(scales->findData(current));
    addField(bar, QStringLiteral("&Scale"), scales);
    connect(scales, QOverload<int>::of(&QComboBox::activated), this,
            [this, scales, current](int index) {
                const double chosen = scales->itemData(index).toDouble();
                if (!qFuzzyCompare(chosen, current))
                    Q_EMIT scaleChosen(chosen);
            });
}

void Header::addDirection(QBoxLayout& bar, bool rightToLeft) const
{
    auto* direction = with(new QCheckBox(QStringLiteral("&Right to left")), "switch");
    direction->setChecked(rightToLeft);
    bar.addSpacing(2 * Unit);
    bar.addWidget(direction);
    connect(direction, &QCheckBox::toggled, this, &Header::rightToLeftChosen);
}

} // namespace Gallery
