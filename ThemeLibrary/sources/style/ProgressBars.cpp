#include "Families.h"
#include "OwnColors.h"
#include "PainterSaver.h"
#include "Shapes.h"
#include "ThemeNames.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QWindow>
#include <QtMath>

// Progress bars.

namespace BRELK::ProgressBars {

namespace {

constexpr int TextPadding = 2;

} // namespace

QSize progressBarSize(const MeasureContext& context, const QStyleOptionProgressBar& bar,
                      const QSize& contents)
{
    const QSize base = context.baseSize(QStyle::CT_ProgressBar, contents);
    const int thickness = context.rowHeight(TextPadding);
    return bar.orientation == Qt::Horizontal ? QSize(base.width(), thickness)
                                             : QSize(thickness, base.height());
}

namespace {

constexpr int DisabledHighlightAlpha = 153;

bool isBusy(int minimum, int maximum)
{
    return minimum == 0 && maximum == 0;
}

bool isOnScreen(const QWidget& widget)
{
    const QWindow* window = widget.isVisible() ? widget.window()->windowHandle() : nullptr;
    return window && window->isExposed();
}

/// Asked of the widget's style, so that a style sheet can set "widget-animation-duration" to 0.
bool mayMove(const QWidget& widget)
{
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

/// Moves the band of a busy progress bar for as long as it is busy and can be seen, then goes.
class BusyAnimation : public QObject
{
public:
    /// The animation of `object`, begun when needed; null when it is not to be animated.
    static const BusyAnimation* of(QObject* object)
    {
        auto* bar = qobject_cast<QProgressBar*>(object);
        if (!bar || !isOnScreen(*bar) || !mayMove(*bar))
            return nullptr;
        const QObject* running = runningFor(*bar);
        return running ? static_cast<const BusyAnimation*>(running) : new BusyAnimation(*bar);
    }

    static QObject* runningFor(const QWidget& bar)
    {
        return bar.findChild<QObject*>(QLatin1String(Name), Qt::FindDirectChildrenOnly);
    }

    /// Where the band stands, from 0 to 1, slowing down at both ends.
    qreal position() const
    {
        const qreal turn = qreal(m_clock.elapsed() % Period) / Period;
        return (1 - qCos(turn * 2 * M_PI)) / 2;
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (isOnScreen(m_bar) && isBusy(m_bar.minimum(), m_bar.maximum()))
            m_bar.update();
        else
            delete this;
    }

private:
    static constexpr int FramesPerSecond = 30;
    static constexpr int Period = 1600; ///< milliseconds for the way there and back
    static constexpr char Name[] = "_varn_busyAnimation";

    explicit BusyAnimation(QProgressBar& bar) : QObject(&bar), m_bar(bar)
    {
        setObjectName(QLatin1String(Name));
        m_clock.start();
        startTimer(1000 / FramesPerSecond);
    }

    QProgressBar& m_bar;
    QElapsedTimer m_clock;
};

/// In the middle of its way when it does not move.
qreal busyPosition(QObject* bar)
{
    const BusyAnimation* animation = BusyAnimation::of(bar);
    return animation ? animation->position() : 0.5;
}

/// A progress bar as if it grew from left to right: `start` and `end` along its length, and which
/// side that is.
struct Filling
{
    qreal start = 0;
    qreal end = 0;
};

Filling filling(const QStyleOptionProgressBar& bar, qreal length)
{
    if (isBusy(bar.minimum, bar.maximum)) {
        const qreal band = length / 3;
        const qreal start = busyPosition(bar.styleObject) * (length - band);
        return {start, start + band};
    }
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    const qint64 done =
        qBound(qint64(0), qint64(bar.progress) - bar.minimum, qMax(range, qint64(0)));
    return {0, range > 0 ? length * qreal(done) / qreal(range) : 0};
}

bool growsBackwards(const QStyleOptionProgressBar& bar)
{
    if (bar.orientation == Qt::Vertical)
        return !bar.invertedAppearance; // from the bottom
    return bar.invertedAppearance != (bar.direction == Qt::RightToLeft);
}

/// The filled part of `rect`.
QRectF filledRect(const QStyleOptionProgressBar& bar, const QRectF& rect)
{
    const bool horizontal = bar.orientation == Qt::Horizontal;
    const qreal length = horizontal ? rect.width() : rect.height();
    Filling part = filling(bar, length);
    if (growsBackwards(bar))
        part = {length - part.end, length - part.start};
    return horizontal
               ? QRectF(rect.x() + part.start, rect.y(), part.end - part.start, rect.height())
               : QRectF(rect.x(), rect.y() + part.start, rect.width(), part.end - part.start);
}

/// The growing end is square until it reaches the round end of the groove.
Helpers::StraightCornerFlags growingCorners(const QStyleOptionProgressBar& bar, const QRectF& rect,
                                            const QRectF& filled, int radius)
{
    const bool horizontal = bar.orientation == Qt::Horizontal;
    const qreal room = horizontal ? rect.width() - filled.width() : rect.height() - filled.height();
    if (isBusy(bar.minimum, bar.maximum) || room < radius)
        return Helpers::None;
    if (horizontal)
        return growsBackwards(bar) ? Helpers::LeftCorners : Helpers::RightCorners;
    return growsBackwards(bar) ? Helpers::TopCorners : Helpers::BottomCorners;
}

QBrush fillBrush(const PaintContext& context)
{
    const QPalette& palette = context.option.palette;
    QColor highlight = palette.color(QPalette::Highlight);
    const QColor themed =
        context.style.getPalette().color(palette.currentColorGroup(), QPalette::Highlight);
    // An application's own highlight color is kept.
    if (highlight == themed || highlight == themeValues().colors.value(ThemeNames::MainColor))
        return context.brush(ThemeNames::MainBrush);
    if (!context.enabled())
        highlight.setAlpha(DisabledHighlightAlpha);
    return highlight;
}

/// Text in one brush where it lies in `clip`.
void drawTextIn(const PaintContext& context, const QRect& clip, const QRect& rect,
                const QString& text, QPalette::ColorRole role)
{
    if (!clip.intersects(rect))
        return;
    const PainterSaver saver(context.painter);
    context.painter.setClipRect(clip, Qt::IntersectClip);
    // The filled part is as bright in windows in the back, and a tint where nothing is enabled.
    QBrush brush = context.option.palette.brush(
        context.enabled() ? QPalette::Active : QPalette::Disabled, role);
    if (!OwnColors::has(context, role)) {
        if (!context.enabled())
            brush = context.brush(ThemeNames::ForegroundBrush);
    } else { // which need not be made for this ground
        const QBrush ground = role == QPalette::Text
                                  ? context.style.grooveBackgroundBrush(context.enabled())
                                  : fillBrush(context);
        brush = OwnColors::readable(ground, {brush, context.style.getPalette().brush(role)});
    }
    Shapes::drawText(context, rect, Qt::AlignCenter | Qt::TextSingleLine, text, brush);
}

} // namespace

void endAnimation(QWidget& bar)
{
    delete BusyAnimation::runningFor(bar);
}

void paintGroove(const PaintContext& context)
{
    Shapes::drawBox(context, context.option.rect, Shapes::cornerRadius(ThemeNames::BaseSize),
                    context.style.grooveBackgroundBrush(context.enabled()),
                    context.borderBrush().color());
}

void paintContents(const PaintContext& context, const QStyleOptionProgressBar& bar)
{
    const QRectF rect = bar.rect;
    const QRectF grown = filledRect(bar, rect.adjusted(0, 0, -1, -1));
    if (grown.width() < 1 || grown.height() < 1)
        return;
    const QRectF filled = grown.adjusted(0, 0, 1, 1); // with its border
    const int radius = Shapes::cornerRadius(ThemeNames::BaseSize);
    Shapes::drawBox(context, filled, radius, fillBrush(context), context.borderBrush().color(),
                    growingCorners(bar, rect, filled, radius));
}

void paintLabel(const PaintContext& context, const QStyleOptionProgressBar& bar)
{
    if (!bar.textVisible || bar.text.isEmpty())
        return;
    QRect rect = bar.rect;
    QRect filled = filledRect(bar, bar.rect).toAlignedRect();
    const PainterSaver saver(context.painter);
    if (bar.orientation == Qt::Vertical) {
        // Turned so that the text reads upwards or downwards; the bar is laid on its side with it.
        const bool upwards = bar.bottomToTop;
        QTransform turn;
        turn.translate(rect.center().x() + 0.5, rect.center().y() + 0.5);
        turn.rotate(upwards ? -90 : 90);
        turn.translate(-rect.center().x() - 0.5, -rect.center().y() - 0.5);
        context.painter.setTransform(turn, true);
        rect = turn.inverted().mapRect(QRectF(rect)).toRect();
        filled = turn.inverted().mapRect(QRectF(filled)).toRect();
    }
    if (isBusy(bar.minimum, bar.maximum))
        filled = {};
    drawTextIn(context, filled, rect, bar.text, QPalette::HighlightedText);
    for (const QRect& part : QRegion(rect) - filled)
        drawTextIn(context, part, rect, bar.text, QPalette::Text);
}

} // namespace BRELK::ProgressBars
