#include "BaseStyle.h"
#include "EmbeddedIcons.h"
#include "Helpers.h"
#include "Kept.h"
#include "OwnColors.h"
#include "ThemeIcons.h"
#include "ThemeValues.h"
#include "WidgetProperties.h"

#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>

// The icons that Qt asks the style for, and how a pixmap looks when disabled.

namespace BRELK {

namespace {

constexpr int TitleBarIconSize = 16;

// clang-format off
const char* const toolbarHorizontal[] = {
    "8 5 3 1",
    "            c None",
    ".            c #000000",
    "+            c none",
    "..++..++",
    "+..++..+",
    "++..++..",
    "+..++..+",
    "..++..++"};

const char* const toolbarVertical[] = {
    "5 8 3 1",
    "            c None",
    ".            c #000000",
    "+            c none",
    ".+++.",
    "..+..",
    "+...+",
    "++.++",
    ".+++.",
    "..+..",
    "+...+",
    "++.++"};

QString titleBarIconName(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_TitleBarCloseButton:
    case QStyle::SP_DockWidgetCloseButton:
    case QStyle::SP_DialogCloseButton:     return QStringLiteral("action.close");
    // Deliberate: restoring shows the icon of maximizing.
    case QStyle::SP_TitleBarMaxButton:
    case QStyle::SP_TitleBarNormalButton:  return QStringLiteral("action.app.maximize");
    case QStyle::SP_TitleBarMinButton:     return QStringLiteral("action.app.minimize");
    default:                               return {};
    }
}

QString iconName(QStyle::StandardPixmap pixmap)
{
    switch (pixmap) {
    case QStyle::SP_LineEditClearButton:   return QStringLiteral("action.close");
    case QStyle::SP_MessageBoxInformation: return QStringLiteral("status.info.circular.colored");
    case QStyle::SP_MessageBoxWarning:     return QStringLiteral("status.warning.circular.colored");
    case QStyle::SP_MessageBoxCritical:    return QStringLiteral("status.danger.circular.colored");
    case QStyle::SP_MessageBoxQuestion:    return QStringLiteral("status.help.circular.colored");
    case QStyle::SP_TrashIcon:             return QStringLiteral("action.delete");
    case QStyle::SP_ArrowUp:               return QStringLiteral("arrow.up.small");
    case QStyle::SP_ArrowDown:             return QStringLiteral("arrow.down.small");
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowBack:             return QStringLiteral("arrow.left.small");
    case QStyle::SP_ArrowRight:
    case QStyle::SP_ArrowForward:
    case QStyle::SP_CommandLink:           return QStringLiteral("arrow.right.small");
    default:                               return titleBarIconName(pixmap);
    }
}

// clang-format on

QPixmap tinted(QImage image, const QColor& color)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    return QPixmap::fromImage(image);
}

/// Deliberate: where the rest of a tool bar lies to the left, its button points there.
QIcon pointingOn(const QIcon& icon, const QStyleOption* option)
{
    if (!option || option->direction != Qt::RightToLeft)
        return icon;
    QIcon mirrored;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected})
        for (const QSize& size : icon.availableSizes(mode))
            mirrored.addPixmap(
                QPixmap::fromImage(icon.pixmap(size, mode).toImage().mirrored(true, false)), mode);
    return mirrored;
}

/// The icon that a widget names in its property "highlightedIcon", in the theme's main color.
QIcon highlightedIcon(const QStyleOption* option, const QWidget* widget)
{
    const QString name =
        WidgetProperties::value(widget, WidgetProperties::HighlightedIcon).toString();
    if (name.isEmpty())
        return {};
    const bool enabled = !option || option->state & QStyle::State_Enabled;
    const QBrush mainBrush = themeValues().brushes.value(ThemeNames::MainBrush, enabled);
    const QIcon icon = EmbeddedIcons::StyleIcon(name);
    if (name != QLatin1String("status.checked.circular.colored"))
        return ThemeIcons::colored(icon, mainBrush);
    const QColor reference(0xF6, 0xB4, 0x36);
    return Helpers::getModifiedIconWithForegroundBrush(icon, reference, mainBrush, false);
}

/// Title bars ask for these whenever they are painted, and making one takes 370,000 instructions:
/// more than all else in a title bar.
bool isForTitleBars(QStyle::StandardPixmap pixmap)
{
    return pixmap == QStyle::SP_TitleBarMenuButton || pixmap == QStyle::SP_TitleBarContextHelpButton
           || pixmap == QStyle::SP_TitleBarShadeButton
           || pixmap == QStyle::SP_TitleBarUnshadeButton;
}

} // namespace

QIcon BaseStyle::standardIcon(StandardPixmap pixmap, const QStyleOption* option,
                              const QWidget* widget) const
{
    const auto extensionIcon = [this](QIcon& icon, const char* const* xpm) {
        if (OwnColors::isForAll(*this, QPalette::Text))
            return generateToolBarExpandButtonIcon(xpm, QApplication::palette());
        if (icon.isNull())
            icon = generateToolBarExpandButtonIcon(xpm, m_palette);
        return icon;
    };
    const QString name = iconName(pixmap);
    if (!name.isEmpty())
        return EmbeddedIcons::StyleIcon(name);
    switch (pixmap) {
    case SP_ToolBarHorizontalExtensionButton:
        return pointingOn(extensionIcon(themeValues().horizontalExtension, toolbarHorizontal),
                          option);
    case SP_ToolBarVerticalExtensionButton:
        return extensionIcon(themeValues().verticalExtension, toolbarVertical);
    case SP_CustomBase: return highlightedIcon(option, widget);
    default: break;
    }
    if (!isForTitleBars(pixmap))
        return QProxyStyle::standardIcon(pixmap, option, widget);
    constexpr int BytesOfIcon = 16384; // up to 64 pixels
    static Kept::Store<int, QIcon> sIcons;
    if (const QIcon* known = sIcons.find(pixmap))
        return *known;
    return *sIcons.keep(pixmap,
                        std::make_unique<QIcon>(QProxyStyle::standardIcon(pixmap, option, widget)),
                        BytesOfIcon);
}

QPixmap BaseStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption* option,
                                  const QWidget* widget) const
{
    const QString name = titleBarIconName(pixmap);
    if (!name.isEmpty())
        return QIcon(EmbeddedIcons::StyleIcon(name))
            .pixmap(TitleBarIconSize, QIcon::Normal, QIcon::Off);
    return QProxyStyle::standardPixmap(pixmap, option, widget);
}

QPixmap BaseStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                       const QStyleOption* option) const
{
    // Other widgets than labels get their icons ready for the state before they are painted.
    if (!option || mode != QIcon::Disabled || !qobject_cast<const QLabel*>(option->styleObject))
        return pixmap;
    return ThemeIcons::colored(pixmap,
                               themeValues().brushes.value(ThemeNames::ForegroundBrush, false));
}

QIcon BaseStyle::generateToolBarExpandButtonIcon(const char* const* xpm,
                                                 const QPalette& palette) const
{
    const QImage image = QImage(xpm).convertToFormat(QImage::Format_ARGB32);
    QIcon icon;
    icon.addPixmap(tinted(image, palette.color(QPalette::Text)), QIcon::Normal);
    icon.addPixmap(tinted(image, palette.color(QPalette::HighlightedText)), QIcon::Selected);
    return icon;
}

} // namespace BRELK
