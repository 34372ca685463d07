#pragma once

#include "ThemeLibraryGlobal.h"

#include <QBrush>
#include <QList>
#include <QPalette>
#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionTab;
class QStyleOptionTitleBar;
class QStyleOptionToolButton;

namespace BRELK {

/// The widget style: measures and paints every standard widget from the current theme's variables.
///
/// It is a proxy over "fusion", which answers what the style leaves to it. The values it
/// reads are kept until `ThemeSwitcher` applies another theme, so a theme is to be applied before
/// the first style is built. A style handed to `QApplication::setStyle` belongs to the application.
class VARN_COMMON_THEME_EXPORT BaseStyle : public QProxyStyle
{
    Q_OBJECT
    Q_PROPERTY(QPalette palette READ getPalette WRITE setPalette NOTIFY paletteChanged)

public:
    enum ButtonBackgroundState : unsigned {
        ButtonBackground_Normal = 0,
        ButtonBackground_Down = 1,
        ButtonBackground_Highlighted = 2
    };

    enum TabBackgroundState : unsigned {
        TabBackground_Selected = 0,
        TabBackground_Unselected = 1,
        TabBackground_Highlighted = 2
    };

    /// Metrics beyond Qt's own, answered by `pixelMetric`.
    enum BRELK_PixelMetric : unsigned {
        BRELK_PM_ListViewPadding = 0xf0000001 ///< padding at both ends of a list row, in pixels
    };
    Q_ENUM(BRELK_PixelMetric)

    /// The three brushes of a button-like control.
    struct ButtonBrushes
    {
        QBrush backgroundBrush;
        QBrush borderBrush;
        QBrush foregroundBrush;
    };

    BaseStyle();
    ~BaseStyle() override;

    /// The palette that the style gives to the application and to widgets: at first the one of
    /// "fusion".
    const QPalette& getPalette() const { return m_palette; }

    // Defined in BaseStyle.cpp
    bool event(QEvent* event) override;

    // Defined in EventFilter.cpp and Polishing.cpp; the rest of polishing in BaseStyle.cpp
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Fits `widget` to the theme; safe to call again. Of what it sets, unpolishing takes back
    /// the hover attribute of tab bars and group boxes and what it does to calendars, digits and
    /// status bars; the rest stays. A null widget is ignored.
    void polish(QWidget* widget) override;
    void unpolish(QWidget* widget) override;
    void polish(QApplication* app) override;
    void unpolish(QApplication* app) override;
    /// Replaces the whole of `palette` with the style's.
    void polish(QPalette& palette) override;
    QPalette standardPalette() const override;

    // Defined in BaseStyle.cpp
    /// Disabled text is not etched: only its brush tells.
    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text,
                      QPalette::ColorRole role = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter* painter, const QRect& rect, int alignment,
                        const QPixmap& pixmap) const override;
    // Defined in Dispatch.cpp, which names the function of the family
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;

    // Defined in Metrics.cpp and StyleHints.cpp
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;

    // Defined in StandardIcons.cpp
    /// The icons of the icon theme, else of the library, for those of Qt's that the theme has names
    /// for. `SP_CustomBase` gives the icon that the widget names in its property "highlightedIcon",
    /// in the theme's main color; null without it.
    QIcon standardIcon(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption* option = nullptr,
                           const QWidget* widget = nullptr) const override;
    /// A label's pixmap in the disabled foreground; every other pixmap as it is.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
    /// The image `xpm` in the text color of `palette`, and in its highlighted text color when
    /// selected.
    QIcon generateToolBarExpandButtonIcon(const char* const* xpm, const QPalette& palette) const;

    /// Whether Alt was pressed in the window of `widget` since it was opened.
    bool hasSeenAlt(const QWidget* widget) const;

    /// Whether Alt is held.
    bool altDown() const { return m_alt_down; }

    /// The palette's Midlight brush.
    const QBrush& lightOutlineBrush(const QPalette& palette) const;
    /// The theme brush "GrooveBackgroundBrush" or its twin; the reference stays, and shows another
    /// brush when `ThemeSwitcher` has applied another theme.
    const QBrush& grooveBackgroundBrush(bool enabled) const;

    /// Pressed or checked is down; else a button under the mouse that is not flat is highlighted.
    ButtonBackgroundState getButtonBackgroundState(const QStyleOption& option) const;
    /// Selected wins, also when disabled; else an enabled tab under the mouse or with keyboard
    /// focus is highlighted.
    TabBackgroundState getTabBackgroundState(const QStyleOptionTab& option) const;

    /// Paints a row of grip dots of `size` pixels from `from` up to but not including `to`, `step`
    /// apart, at `pos` across.
    void drawGrips(QPainter& painter, Qt::Orientation orientation, int from, int to, int pos,
                   int step, int size, int darkSize) const;

    // Defined in the family of what they draw: CheckBoxes, ButtonGroups, TitleBars, ToolButtons and
    // Frames
    /// The tick of a check box, in `brush`.
    void drawCheckMark(QPainter* painter, const QRect& rect, QBrush brush) const;
    /// The dot of a radio button, in `brush`.
    void drawRadioMark(QPainter* painter, const QRect& rect, QBrush brush) const;
    /// One button of a button group, in the painter's pen and brush: a segment, or a step of a
    /// workflow with the dots of its links. Leaves the pen and brush it used.
    void drawButtonGroup(const QRectF& rect, QPainter* painter, const QStyleOption* option,
                         int radius, ButtonBrushes brushes, const QWidget* widget) const;
    /// One button of a title bar. Only the active sub-control is drawn enabled.
    void drawTitleBarButton(QPainter* painter, const QStyleOptionTitleBar* option, SubControl part,
                            StandardPixmap icon, const QWidget* widget) const;
    /// The arrow that a tool button shows in place of an icon, by the elements of `style`; nothing
    /// for `Qt::NoArrow`.
    void drawToolButtonArrow(const QStyle* style, const QStyleOptionToolButton* option,
                             const QRect& rect, QPainter* painter, const QWidget* widget) const;
    /// `palette` with the light role lightened and the dark role darkened, for raised and sunken
    /// frames.
    QPalette generateShadeBorderPalette(const QPalette& palette) const;
    /// `palette` with the roles of a two-line frame.
    QPalette generateWinBorderPalette(const QPalette& palette) const;

    /// The theme brush `name`, or with `enabled` false its twin `name` + "Disabled"; `Qt::NoBrush`
    /// when the theme lacks it.
    static QBrush getBrush(QString name, bool enabled);
    /// The theme color `name`, or with `enabled` false its twin `name` + "Disabled"; invalid when
    /// the theme lacks it.
    static QColor getColor(QString name, bool enabled);
    /// The theme brush "CardBorderBrush" or its twin, kept as the above.
    static const QBrush& getBorderBrush(bool enabled);

    // Defined in ButtonBrushes.cpp
    /// The brushes of a button-like control in its state, from theme brushes whose names are
    /// composed of what the widget is and how it stands. `option` must not be null; without a
    /// widget its properties count as absent.
    static const ButtonBrushes buttonBrushes(const QStyleOption* option, const QWidget* widget);

    /// What an option, which must not be null, says of its control, as the others do below.
    static bool isPressed(const QStyleOption& option);
    static bool isPressed(const QStyleOption* option);
    static bool isChecked(const QStyleOption& option);
    static bool isChecked(const QStyleOption* option);
    /// Pressed or checked.
    static bool isDown(const QStyleOption& option);
    /// Enabled and under the mouse.
    static bool isHovered(const QStyleOption* option);
    static bool isFlatButton(const QStyleOptionButton* option);
    /// False for an option that is no button option.
    static bool isFlatButton(const QStyleOption* option);
    /// A default button that is enabled.
    static bool isDefaultButton(const QStyleOptionButton* option);
    /// False for an option that is no button option.
    static bool isDefaultButton(const QStyleOption* option);
    /// Hovered, not pressed and not flat.
    static bool isButtonHovered(const QStyleOption* option);

Q_SIGNALS:
    void paletteChanged(const QPalette& palette);

public Q_SLOTS:
    /// Emits `paletteChanged` once when `palette` differs. An application that already has the
    /// style takes the new palette when it is polished next.
    void setPalette(const QPalette& palette);

private:
    void forgetWindow(const QObject* window);

    QPalette m_palette;
    QBrush m_expanderHeaderBrush;
    QBrush m_windowBackgroundBrush;
    bool m_alt_down = false;
    QList<const QWidget*> m_seenAlt;
};

} // namespace BRELK
