#include "kit/Decoration.h"

#include "ThemeColorHelper.h"
#include "ThemeResources.h"

#include <QApplication>
#include <QLabel>

using namespace BRELK;

namespace Gallery::Decoration {

QColor color(const QString& name, QPalette::ColorRole fallback)
{
    const QColor themed = ThemeResources::getColor(name);
    return themed.isValid() ? themed : QApplication::palette().color(fallback);
}

QColor text()
{
    return color(QStringLiteral("ForegroundColor"), QPalette::WindowText);
}

QColor quietText()
{
    const QBrush quiet = ThemeResources::getBrush(QStringLiteral("ForegroundDisabledBrush"));
    return quiet.style() == Qt::SolidPattern ? quiet.color()
                                             : QApplication::palette().color(QPalette::WindowText);
}

QColor accent()
{
    return color(QStringLiteral("MainColor"), QPalette::Highlight);
}

QColor border()
{
    const QBrush line = ThemeResources::getBrush(QStringLiteral("CardBorderBrush"));
    return line.style() == Qt::SolidPattern ? line.color()
                                            : QApplication::palette().color(QPalette::Mid);
}

QColor surface()
{
    return color(QStringLiteral("BackgroundColor"), QPalette::Window);
}

QFont font(const QString& name)
{
    const QVariant themed = ThemeResources::getThemeVar(
        ThemeResources::getFontsVarPrefix() % QLatin1Char('/') % name, QVariant());
    return themed.isValid() ? themed.value<QFont>() : QApplication::font();
}

QIcon icon(const QString& name, const QColor& ink)
{
    return ThemeColorHelper::getModifiedIconWithForegroundBrush(ThemeResources::getIcon(name), ink);
}

int radius(const QString& name)
{
    return static_cast<int>(ThemeResources::getCornerRadius(name));
}

void dress(QLabel& label, const QColor& ink, const QFont& font)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ink);
    label.setPalette(palette);
    label.setFont(font);
}

} // namespace Gallery::Decoration
