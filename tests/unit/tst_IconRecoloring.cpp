#include "Helpers.h"
#include "PictureDifference.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

using namespace BRELK;

namespace {

const QColor Reference(0xE5, 0xEE, 0xF4);
const QColor Replacement(20, 110, 40);
const QColor Other(0x2B, 0x86, 0xDB);

/// What an icon was last asked for.
struct Request
{
    QSize size;
    QIcon::Mode mode = QIcon::Active;
    QIcon::State state = QIcon::Off;
};

using Drawing = std::function<void(QPainter&)>;

/// An icon drawn at any size, in units of which 16 are its side.
class DrawnIconEngine : public QIconEngine
{
public:
    explicit DrawnIconEngine(Drawing drawing, Request* request = nullptr)
        : m_drawing(std::move(drawing)), m_request(request)
    { }

    QIconEngine* clone() const override { return new DrawnIconEngine(*this); }

    QString iconName() const override { return QStringLiteral("drawn"); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size.width() / 16.0, size.height() / 16.0);
        m_drawing(painter);
        if (m_request)
            *m_request = {size, mode, state};
        return QPixmap::fromImage(image);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

private:
    Drawing m_drawing;
    Request* m_request;
};

QIcon drawnIcon(const Drawing& drawing, Request* request = nullptr)
{
    return QIcon(new DrawnIconEngine(drawing, request));
}

/// A ring in `color` across a filled triangle in `other`, all edges soft.
Drawing ringOn(const QColor& color, const QColor& other)
{
    return [=](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(other);
        const QPointF triangle[] = {{1, 15}, {8, 3}, {15, 15}};
        painter.drawPolygon(triangle, 3);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(color, 3));
        painter.drawEllipse(QRectF(3, 3, 8, 8));
    };
}

QIcon recolored(const QIcon& icon, const QBrush& brush = Replacement, bool disabled = false)
{
    return Helpers::getModifiedIconWithForegroundBrush(icon, Reference, brush, disabled);
}

QImage imageOf(const QIcon& icon, int size)
{
    return icon.pixmap(QSize(size, size)).toImage();
}

QPixmap filled(const QColor& color, int side = 16)
{
    QPixmap pixmap(side, side);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

class tst_IconRecoloring : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void looksAsIfDrawnInTheReplacement()
    {
        const auto furthest = [](const QColor& other, const QColor& replacement) {
            const QIcon actual = recolored(drawnIcon(ringOn(Reference, other)), replacement);
            const QIcon expected = drawnIcon(ringOn(replacement, other));
            int largest = 0;
            for (const int size : {16, 20, 24, 33, 64})
                largest = qMax(largest,
                               largestDifference(imageOf(actual, size), imageOf(expected, size)));
            return largest;
        };
        QVERIFY(furthest(Qt::transparent, Replacement) <= 2);
        QVERIFY(furthest(Qt::transparent, QColor(20, 110, 40, 100)) <= 2);
        QVERIFY(furthest(Other, Replacement) <= 12);
        QVERIFY(furthest(Qt::black, Replacement) <= 12);
    }

    void otherColorsStay()
    {
        // White fades into this blue by way of colors close to the reference.
        const QIcon blueAndWhite = drawnIcon(ringOn(Qt::white, Other));
        for (const int size : {16, 24, 64})
            QVERIFY(largestDifference(imageOf(recolored(blueAndWhite), size),
                                      imageOf(blueAndWhite, size))
                    <= 1);

        // The reference is one of the shades of this picture.
        const QIcon shades = drawnIcon([](QPainter& painter) {
            QLinearGradient sky(0, 0, 16, 0);
            sky.setColorAt(0, Reference.darker(115));
            sky.setColorAt(0.5, Reference);
            sky.setColorAt(1, Qt::white);
            painter.fillRect(0, 0, 16, 16, sky);
        });
        QVERIFY(largestDifference(imageOf(recolored(shades), 64), imageOf(shades, 64)) <= 1);

        const QIcon same[] = {
            recolored(shades, QBrush()),
            Helpers::getModifiedIconWithForegroundBrush(shades, Qt::NoBrush, Replacement, false)};
        for (const QIcon& unchanged : same)
            QVERIFY(largestDifference(imageOf(unchanged, 64), imageOf(shades, 64)) <= 1);

        // A gray between the reference and black, next to both, is no blend of them.
        const QColor gray(115, 119, 122);
        const QIcon stripes = drawnIcon([&](QPainter& painter) {
            painter.fillRect(0, 0, 16, 5, Reference);
            painter.fillRect(0, 5, 16, 6, gray);
            painter.fillRect(0, 11, 16, 5, Qt::black);
        });
        const QImage image = imageOf(recolored(stripes), 16);
        QCOMPARE(image.pixelColor(8, 2), Replacement);
        QCOMPARE(image.pixelColor(8, 8), gray);
        QCOMPARE(image.pixelColor(8, 13), QColor(Qt::black));
    }

    void gradientsRunAcrossTheIcon()
    {
        QLinearGradient gradient(0, 0, 1, 0);
        gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        for (const int size : {16, 64}) {
            const QImage image = imageOf(recolored(filled(Reference, 64), gradient), size);
            QVERIFY(image.pixelColor(0, 0).red() > 240);
            QVERIFY(std::abs(image.pixelColor(size / 2, 0).red() - 127) < 10);
            QVERIFY(image.pixelColor(size - 1, size - 1).blue() > 240);
        }
    }

    void disabledIconsAreFadedAndGray()
    {
        const QIcon icon = drawnIcon([](QPainter& painter) {
            painter.fillRect(0, 0, 8, 16, Reference);
            painter.fillRect(8, 0, 8, 16, Other);
        });
        const QImage image = imageOf(recolored(icon, Replacement, true), 16);
        const QColor faded = image.pixelColor(2, 8);
        const QColor gray = image.pixelColor(13, 8);
        QVERIFY(faded.alpha() < 200 && faded.alpha() > 100);
        QVERIFY(std::abs(faded.green() - Replacement.green()) <= 1);
        QCOMPARE(gray.alpha(), faded.alpha());
        QVERIFY(gray.red() == gray.green() && gray.green() == gray.blue());

        const QPixmap asked = recolored(icon).pixmap(16, QIcon::Disabled);
        QCOMPARE(asked.toImage().pixelColor(2, 8).alpha(), faded.alpha());
    }

    void sourceIsAskedInDevicePixelsAndNormalMode()
    {
        Request request;
        const QIcon icon = recolored(drawnIcon(ringOn(Reference, Other), &request));
        QVERIFY(request.size.isEmpty());
        QImage canvas(60, 60, QImage::Format_ARGB32_Premultiplied);
        canvas.setDevicePixelRatio(1.5);
        QPainter painter(&canvas);
        icon.paint(&painter, QRect(2, 2, 16, 16), Qt::AlignCenter, QIcon::Disabled, QIcon::On);
        QCOMPARE(request.size, QSize(24, 24));
        QCOMPARE(request.mode, QIcon::Normal);
        QCOMPARE(request.state, QIcon::On);

        QCOMPARE(recolored(filled(Reference)).actualSize(QSize(40, 40)), QSize(16, 16));
        QCOMPARE(recolored(filled(Reference)).availableSizes(), {QSize(16, 16)});
    }

    void equalArgumentsGiveTheSameIcon()
    {
        const QIcon icon = drawnIcon(ringOn(Reference, Other));
        const QIcon first = recolored(icon);
        QCOMPARE(recolored(icon).cacheKey(), first.cacheKey());
        QCOMPARE(first.name(), QStringLiteral("drawn"));
        QVERIFY(recolored(icon, Qt::red).cacheKey() != first.cacheKey());
        QVERIFY(recolored(icon, Replacement, true).cacheKey() != first.cacheKey());
        QVERIFY(recolored(filled(Reference)).cacheKey() != first.cacheKey());

        QVERIFY(recolored(QIcon()).isNull());
    }
};

QTEST_MAIN(tst_IconRecoloring)
#include "tst_IconRecoloring.moc"
