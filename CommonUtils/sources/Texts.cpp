#include "Texts.h"

#include "Kept.h"
#include "PainterSaver.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>

namespace BRELK::Texts {

namespace {

constexpr int LongestLine = 128;
/// Labels tell the direction of their text themselves.
constexpr int ForcedDirections = Qt::TextForceLeftToRight | Qt::TextForceRightToLeft;
/// Flags that only say where a line goes, or that change nothing in one that is alone.
constexpr int SimpleFlags = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask | Qt::TextSingleLine
                            | Qt::TextShowMnemonic | Qt::TextDontClip | ForcedDirections
                            | Qt::TextWordWrap | Qt::TextExpandTabs;

struct LineKey
{
    QString text;
    QFont font;
    int resolution;
    bool mnemonics; ///< "&" underlines what follows
    Qt::LayoutDirection direction;

    friend bool operator==(const LineKey& a, const LineKey& b)
    {
        return a.text == b.text && a.font == b.font && a.resolution == b.resolution
               && a.mnemonics == b.mnemonics && a.direction == b.direction;
    }

    friend uint qHash(const LineKey& key, uint seed) { return ::qHash(key.text, seed); }
};

struct Line
{
    QTextLayout layout;
    QSizeF size;
};

/// Takes the marks of mnemonics out of `text` and returns what is underlined for them.
QVector<QTextLayout::FormatRange> takeMnemonics(QString& text)
{
    constexpr QLatin1Char Mark('&');
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    QVector<QTextLayout::FormatRange> formats;
    for (int i = text.indexOf(Mark); i >= 0; i = text.indexOf(Mark, i + 1)) {
        text.remove(i, 1);
        if (i < text.size() && text.at(i) != Mark)
            formats.append({i, 1, underlined});
    }
    return formats;
}

std::unique_ptr<Line> layOut(const LineKey& key)
{
    constexpr qreal NoEnd = 0x01000000;
    auto line = std::make_unique<Line>();
    QString text = key.text;
    if (key.mnemonics)
        line->layout.setFormats(takeMnemonics(text));
    line->layout.setText(text);
    line->layout.setFont(key.font);
    line->layout.setCacheEnabled(true);
    QTextOption option(Qt::AlignLeft);
    option.setTextDirection(key.direction);
    line->layout.setTextOption(option);
    line->layout.beginLayout();
    QTextLine only = line->layout.createLine();
    only.setLineWidth(NoEnd);
    line->layout.endLayout();
    line->size = {only.horizontalAdvance(), only.ascent() + only.descent()};
    return line;
}

Qt::LayoutDirection directionOf(const QPainter& painter, int flags)
{
    if (flags & ForcedDirections)
        return flags & Qt::TextForceLeftToRight ? Qt::LeftToRight : Qt::RightToLeft;
    return painter.layoutDirection();
}

bool isSimple(const QPainter& painter, int flags, const QString& text)
{
    if ((flags & ~SimpleFlags) || flags & Qt::AlignJustify || text.isEmpty()
        || text.size() > LongestLine || !painter.paintEngine()
        || painter.paintEngine()->type() != QPaintEngine::Raster)
        return false;
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character < QLatin1Char(' ') || character == QChar(0x9c)
               || character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
    });
}

const Line& lineOf(const QPainter& painter, int flags, const QString& text)
{
    constexpr int BytesOfLine = 1024; // measured, as that of a character
    constexpr int BytesOfCharacter = 24;
    static Kept::Store<LineKey, Line> sLines;
    const LineKey key{text, painter.font(), painter.device()->logicalDpiY(),
                      bool(flags & Qt::TextShowMnemonic), directionOf(painter, flags)};
    if (const Line* known = sLines.find(key))
        return *known;
    return *sLines.keep(key, layOut(key), BytesOfLine + text.size() * BytesOfCharacter);
}

/// As `QStyle::visualAlignment` has it.
bool isRightAligned(Qt::LayoutDirection direction, int flags)
{
    const bool hasSide =
        flags & (Qt::AlignLeft | Qt::AlignRight) || !(flags & Qt::AlignHorizontal_Mask);
    const bool isMirrored = hasSide && direction == Qt::RightToLeft && !(flags & Qt::AlignAbsolute);
    return bool(flags & Qt::AlignRight) != isMirrored;
}

/// Where a box of `size` goes in `rect`: along the line in fractions of a pixel, as the painter
/// itself does it, and across it on a whole one, as line edits do it. So at every scale the texts
/// of a row stand on one line. Labels have their place from the painter in both directions.
QRectF aligned(const QSizeF& size, Qt::LayoutDirection direction, int flags, const QRectF& rect)
{
    QRectF box(rect.topLeft(), size);
    if (isRightAligned(direction, flags))
        box.moveRight(rect.right());
    else if (flags & Qt::AlignHCenter)
        box.moveLeft(rect.left() + (rect.width() - size.width()) / 2);
    if (flags & Qt::AlignBottom)
        box.moveBottom(rect.bottom());
    else if (flags & Qt::AlignVCenter && flags & ForcedDirections)
        box.moveTop(rect.top() + (rect.height() - size.height()) / 2);
    else if (flags & Qt::AlignVCenter)
        box.moveTop(rect.top() + qFloor((rect.height() - size.height() + 1) / 2));
    return box;
}

/// Whether a text that may be wrapped stands on one line; a blank at its end would not count there.
bool fitsUnwrapped(const QSizeF& size, const QString& text, int width)
{
    return size.width() < width && !text.at(text.size() - 1).isSpace();
}

} // namespace

void draw(QPainter& painter, const QRect& rect, int flags, const QString& text)
{
    if (!isSimple(painter, flags, text)) {
        painter.drawText(rect, flags, text);
        return;
    }
    const Line& line = lineOf(painter, flags, text);
    if (flags & Qt::TextWordWrap && !fitsUnwrapped(line.size, text, rect.width())) {
        painter.drawText(rect, flags, text);
        return;
    }
    const QRectF bounds = aligned(line.size, directionOf(painter, flags), flags, rect);
    const bool clipped = !(flags & Qt::TextDontClip) && !QRectF(rect).contains(bounds);
    if (!clipped) {
        line.layout.lineAt(0).draw(&painter, bounds.topLeft());
        return;
    }
    const PainterSaver saver(painter);
    painter.setClipRect(QRectF(rect), Qt::IntersectClip);
    line.layout.lineAt(0).draw(&painter, bounds.topLeft());
}

int width(const QPainter& painter, int flags, const QString& text)
{
    if (isSimple(painter, flags, text))
        return qCeil(lineOf(painter, flags, text).size.width());
    return text.isEmpty() ? 0 : painter.fontMetrics().size(flags, text).width();
}

QString fitted(const QPainter& painter, const QString& text, Qt::TextElideMode mode, int width,
               int flags)
{
    // Whoever made the room may have rounded the width of the text down.
    if (isSimple(painter, flags, text) && lineOf(painter, flags, text).size.width() < width + 1)
        return text;
    const QFontMetrics metrics = painter.fontMetrics();
    if (!text.contains(QLatin1Char('\n')))
        return metrics.elidedText(text, mode, width, flags);
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = metrics.elidedText(line, mode, width, flags);
    return lines.join(QLatin1Char('\n'));
}

} // namespace BRELK::Texts
