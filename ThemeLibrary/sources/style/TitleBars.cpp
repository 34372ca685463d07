#include "Families.h"
#include "Foregrounds.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeIcons.h"
#include "ThemeNames.h"

#include <QMdiSubWindow>

// The title bars of sub-windows and docks, and the frames of windows.

namespace BRELK::TitleBars {

QRect controlRect(const StyleContext& context, const QStyleOptionComplex& controls,
                  QStyle::SubControl part)
{
    return context.baseRect(QStyle::CC_MdiControls, controls, part);
}

namespace {

constexpr int CaptionRoom = 14; ///< kept free at the ends of a caption
constexpr int MenuIconSize = 16;

/// A title-bar button: when it is there, and what it shows.
struct TitleButton
{
    QStyle::SubControl part;
    QStyle::StandardPixmap icon;
    bool (*isShown)(const QStyleOptionTitleBar&);
};

template <Qt::WindowType Flag>
bool has(const QStyleOptionTitleBar& bar)
{
    return bar.titleBarFlags & Flag;
}

template <Qt::WindowState State>
bool is(const QStyleOptionTitleBar& bar)
{
    return bar.titleBarState & State;
}

bool canMinimize(const QStyleOptionTitleBar& bar)
{
    return has<Qt::WindowMinimizeButtonHint>(bar) && !is<Qt::WindowMinimized>(bar);
}

bool canMaximize(const QStyleOptionTitleBar& bar)
{
    return has<Qt::WindowMaximizeButtonHint>(bar) && !is<Qt::WindowMaximized>(bar);
}

bool canRestore(const QStyleOptionTitleBar& bar)
{
    return (has<Qt::WindowMinimizeButtonHint>(bar) && is<Qt::WindowMinimized>(bar))
           || (has<Qt::WindowMaximizeButtonHint>(bar) && is<Qt::WindowMaximized>(bar));
}

// Deliberate: shade and unshade are both shown whenever both are asked for.
constexpr TitleButton TitleButtons[] = {
    {QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton, canMinimize},
    {QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton, canMaximize},
    {QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton, has<Qt::WindowSystemMenuHint>},
    {QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton, canRestore},
    {QStyle::SC_TitleBarContextHelpButton, QStyle::SP_TitleBarContextHelpButton,
     has<Qt::WindowContextHelpButtonHint>},
    {QStyle::SC_TitleBarShadeButton, QStyle::SP_TitleBarShadeButton,
     has<Qt::WindowShadeButtonHint>},
    {QStyle::SC_TitleBarUnshadeButton, QStyle::SP_TitleBarUnshadeButton,
     has<Qt::WindowShadeButtonHint>},
};

QRect partRect(const PaintContext& context, const QStyleOptionTitleBar& bar,
               QStyle::SubControl part)
{
    return context.part(QStyle::CC_TitleBar, bar, part);
}

/// Whether the title bar of the active window is told from others by its ground, on which its
/// white caption is read.
bool hasActiveGround(const QStyleOptionTitleBar& bar)
{
    const QColor ground = bar.palette.color(QPalette::Light);
    return !Shapes::isLight(ground) && ground != bar.palette.color(QPalette::Window);
}

/// Whether it takes the accent for its ground instead.
bool isOnAccent(const QStyleOptionTitleBar& bar)
{
    return bar.titleBarState & QStyle::State_Active && !hasActiveGround(bar);
}

/// Deliberate: the accent, or a shade of it that the white caption is read on.
void paintActiveGround(const PaintContext& context, const QStyleOptionTitleBar& bar)
{
    constexpr int Shade = 300;
    const QColor accent = bar.palette.color(QPalette::Highlight);
    context.painter.fillRect(bar.rect.adjusted(1, 1, -1, -1),
                             Shapes::isLight(accent) ? accent.darker(Shade) : accent);
}

QColor captionColor(const QStyleOptionTitleBar& bar)
{
    return bar.titleBarState & QStyle::State_Active ? QColor(Qt::white)
                                                    : bar.palette.color(QPalette::Text);
}

void paintCaption(const PaintContext& context, const QStyleOptionTitleBar& bar)
{
    const QRect label = partRect(context, bar, QStyle::SC_TitleBarLabel);
    const QRect rect = label.adjusted(1, 1, 1, 1);
    const QString text =
        bar.fontMetrics.elidedText(bar.text, Qt::ElideRight, label.width() - CaptionRoom);
    Shapes::drawText(context, rect, Qt::AlignCenter, text, captionColor(bar));
}

void paintSystemMenu(const PaintContext& context, const QStyleOptionTitleBar& bar)
{
    const QRect rect = partRect(context, bar, QStyle::SC_TitleBarSysMenu);
    if (!rect.isValid())
        return;
    const bool isOwn = !bar.icon.isNull();
    const QIcon icon =
        isOwn ? bar.icon
              : context.proxy().standardIcon(QStyle::SP_TitleBarMenuButton, &bar, context.widget);
    QBrush brush = isOwn ? QBrush(captionColor(bar)) : QBrush();
    const QSize size = isOwn ? rect.size() : QSize(MenuIconSize, MenuIconSize);
    if (isOwn && isOnAccent(bar)) { // Deliberate: icons have parts in the accent, too.
        Shapes::drawBox(context, rect.adjusted(-1, -1, 1, 1),
                        Shapes::cornerRadius(ThemeNames::BaseSize), bar.palette.window(), QBrush());
        brush = bar.palette.windowText();
    }
    Shapes::drawIcon(context, icon, brush, rect, size);
}

/// The theme has no icon for these, and the toolkit's have colors of their own.
bool isToolkitIcon(QStyle::StandardPixmap icon)
{
    return icon == QStyle::SP_TitleBarContextHelpButton || icon == QStyle::SP_TitleBarShadeButton
           || icon == QStyle::SP_TitleBarUnshadeButton;
}

/// A vertical dock title reads from the bottom to the top: the painter is turned so that it can be
/// drawn lying.
QRect turnUpright(QPainter& painter, const QRect& rect)
{
    painter.translate(rect.left(), rect.top() + rect.height());
    painter.rotate(-90);
    return {0, 0, rect.height(), rect.width()};
}

} // namespace

void paintWindowFrame(const PaintContext& context)
{
    Shapes::drawBox(context, context.option.rect, 0, Qt::NoBrush, context.borderBrush().color());
}

void paintDockTitle(const PaintContext& context, const QStyleOptionDockWidget& dock)
{
    const PainterSaver saver(context.painter);
    QRect text = context.part(QStyle::SE_DockWidgetTitleBarText);
    context.painter.fillRect(dock.rect, dock.palette.brush(QPalette::Window));
    if (dock.verticalTitleBar) {
        Shapes::drawLine(context, dock.rect.topRight(), dock.rect.bottomRight(),
                         context.borderBrush());
        const int margin = context.metric(QStyle::PM_DockWidgetTitleMargin);
        text = turnUpright(context.painter, dock.rect).adjusted(margin, 0, 0, 0);
        text.setWidth(context.part(QStyle::SE_DockWidgetTitleBarText).height() - margin);
    } else {
        Shapes::drawLine(context, dock.rect.bottomLeft(), dock.rect.bottomRight(),
                         context.borderBrush());
    }
    const auto flags = QStyle::visualAlignment(dock.direction, Qt::AlignLeft | Qt::AlignVCenter);
    Shapes::drawText(context, text, int(flags) | Qt::TextShowMnemonic, dock.title,
                     dock.palette.brush(QPalette::WindowText));
}

/// Windows within windows go on with the palette that they were made in.
QStyleOptionTitleBar inPresentPalette(const PaintContext& context, QStyleOptionTitleBar bar)
{
    if (!qobject_cast<const QMdiSubWindow*>(context.widget))
        return bar;
    const QPalette::ColorGroup group = bar.palette.currentColorGroup();
    bar.palette = context.widget->palette();
    bar.palette.setCurrentColorGroup(group);
    return bar;
}

void paintTitleBar(const PaintContext& context, const QStyleOptionTitleBar& option)
{
    const QStyleOptionTitleBar titleBar = inPresentPalette(context, option);
    const PainterSaver saver(context.painter);
    const bool active = titleBar.titleBarState & QStyle::State_Active;
    Shapes::drawBox(context, titleBar.rect, 0,
                    titleBar.palette.color(active ? QPalette::Light : QPalette::Window),
                    context.borderBrush().color());
    if (isOnAccent(titleBar))
        paintActiveGround(context, titleBar);
    paintCaption(context, titleBar);
    for (const TitleButton& button : TitleButtons) {
        if (titleBar.subControls & button.part && button.isShown(titleBar))
            context.style.drawTitleBarButton(&context.painter, &titleBar, button.part, button.icon,
                                             context.widget);
    }
    if (titleBar.subControls & QStyle::SC_TitleBarSysMenu
        && has<Qt::WindowSystemMenuHint>(titleBar))
        paintSystemMenu(context, titleBar);
}

void paintMdiControls(const PaintContext& context, const QStyleOptionComplex& controls)
{
    context.drawByBase(QStyle::CC_MdiControls, controls);
    // Deliberate: the base style's icons are drawn over. It shows them as it gets them, which is
    // too pale on light buttons.
    constexpr std::pair<QStyle::SubControl, QStyle::StandardPixmap> Icons[] = {
        {QStyle::SC_MdiCloseButton, QStyle::SP_TitleBarCloseButton},
        {QStyle::SC_MdiNormalButton, QStyle::SP_TitleBarNormalButton},
        {QStyle::SC_MdiMinButton, QStyle::SP_TitleBarMinButton}};
    const auto button = optionFrom<QStyleOptionButton>(controls);
    const QBrush brush = Foregrounds::of({context.style, button, context.widget});
    for (const auto& [part, icon] : Icons) {
        if (controls.subControls & part)
            Shapes::drawIcon(context, context.proxy().standardIcon(icon, &controls, context.widget),
                             brush, context.part(QStyle::CC_MdiControls, controls, part),
                             MenuIconSize);
    }
}

} // namespace BRELK::TitleBars

namespace BRELK {

void BaseStyle::drawTitleBarButton(QPainter* painter, const QStyleOptionTitleBar* option,
                                   SubControl part, StandardPixmap icon,
                                   const QWidget* widget) const
{
    if (!painter || !option)
        return;
    const QRect rect = proxy()->subControlRect(CC_TitleBar, option, part, widget);
    if (!rect.isValid())
        return;
    QStyleOptionButton button;
    button.rect = rect;
    button.palette = option->palette;
    button.state = State_None;
    // Deliberate: a button that is not the active one is drawn without State_Enabled.
    if (option->activeSubControls & part)
        button.state =
            option->state
            & (State_MouseOver | State_Sunken | State_HasFocus | State_Active | State_Enabled);
    proxy()->drawPrimitive(PE_PanelButtonBevel, &button, painter, widget);

    const QBrush foreground = Foregrounds::of({*this, button, widget});
    const QIcon given = standardIcon(icon, nullptr, widget);
    const int size = proxy()->pixelMetric(PM_TitleBarButtonIconSize, option, widget);
    QPixmap pixmap = ThemeIcons::pixmap(*painter, given, foreground, {size, size});
    if (TitleBars::isToolkitIcon(icon) && !pixmap.isNull()) {
        QPainter tint(&pixmap);
        tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tint.fillRect(pixmap.rect(), foreground);
    }
    proxy()->drawItemPixmap(painter, rect, Qt::AlignCenter, pixmap);
}

} // namespace BRELK
