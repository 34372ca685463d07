#include "Helpers.h"
#include "MessageRecorder.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

using namespace BRELK;

namespace {

constexpr int Side = 100;

QImage canvas(qreal scale = 1)
{
    const int side = qRound(Side * scale);
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(QColor(30, 60, 30));
    return image;
}

/// The largest difference of a channel; of shapes with a square corner only outside `corners`, the
/// corner pixels, where the toolkit's own outline is not square.
int difference(const QImage& one, const QImage& other, const QRegion& corners)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            if (!corners.contains(QPoint(x, y)))
                largest =
                    std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                              std::abs(qBlue(a) - qBlue(b))});
        }
    return largest;
}

/// The pixels of the border where two straight edges meet.
QRegion cornerPixels(const QRectF& rect, qreal penWidth, const QTransform& toDevice)
{
    QRegion region;
    for (const QPointF& corner :
         {rect.topLeft(), rect.topRight(), rect.bottomRight(), rect.bottomLeft()}) {
        const QRectF square(corner - QPointF(penWidth, penWidth) / 2, QSizeF(penWidth, penWidth));
        region += toDevice.mapRect(square).toAlignedRect().adjusted(-1, -1, 1, 1);
    }
    return region;
}

/// The toolkit's own rounded rectangle, with its own rectangle in the quadrants with square
/// corners. Lines of one pixel of the device are a hair wider, so that their curves are not pale.
void drawExpected(const QRectF& rect, qreal radius, Helpers::StraightCornerFlags straight,
                  QPainter* to)
{
    QPainter& painter = *to;
    const QRect device = painter.deviceTransform().mapRect(rect).toAlignedRect();
    const QPoint center = device.center();
    const QRect all = device.adjusted(-9, -9, 9, 9);
    const std::pair<Helpers::StraightCornerFlag, QRect> quadrants[] = {
        {Helpers::TopLeftCorner, QRect(all.topLeft(), center)},
        {Helpers::TopRightCorner, QRect(center.x() + 1, all.y(), Side, center.y() - all.y() + 1)},
        {Helpers::BottomRightCorner, QRect(center + QPoint(1, 1), all.bottomRight())},
        {Helpers::BottomLeftCorner,
         QRect(all.x(), center.y() + 1, center.x() - all.x() + 1, Side)}};
    QRegion square;
    for (const auto& [flag, quadrant] : quadrants)
        if (straight & flag)
            square += quadrant;
    const QRegion round = QRegion(all) - square;
    const qreal largest = std::min(rect.width(), rect.height()) / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    if (painter.pen().style() != Qt::NoPen && painter.deviceTransform().m11() <= 1)
        painter.setPen(QPen(painter.pen().brush(), std::max(painter.pen().widthF(), 1.001)));
    for (const auto& [region, cornerRadius] :
         {std::pair(round, std::min(radius, largest)), std::pair(square, 0.0)}) {
        painter.save();
        const QTransform transform = painter.transform();
        painter.setTransform(painter.deviceTransform().inverted(), true);
        painter.setClipRegion(region);
        painter.setTransform(transform);
        painter.drawRoundedRect(rect, cornerRadius, cornerRadius);
        painter.restore();
    }
}

QBrush gradient(QGradient::CoordinateMode mode)
{
    QLinearGradient gradient(0, 0, mode == QGradient::LogicalMode ? 90 : 1, 0.5);
    gradient.setCoordinateMode(mode);
    gradient.setColorAt(0, QColor(250, 40, 40, 200));
    gradient.setColorAt(1, QColor(40, 40, 250));
    return gradient;
}

} // namespace

class tst_RoundedShapes : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void looksLikeThePaintersOwn_data()
    {
        QTest::addColumn<QPen>("pen");
        QTest::addColumn<QBrush>("brush");
        const QBrush solid(QColor(40, 90, 160));
        const QPen white(Qt::white);
        QTest::newRow("pen and brush") << white << solid;
        QTest::newRow("translucent")
            << QPen(QColor(255, 255, 255, 120)) << QBrush(QColor(200, 20, 20, 100));
        QTest::newRow("no pen") << QPen(Qt::NoPen) << solid;
        QTest::newRow("pen without brush") << QPen(QBrush(), 1) << solid;
        QTest::newRow("no brush") << white << QBrush();
        QTest::newRow("wide pen") << QPen(QColor(255, 255, 255, 120), 5) << solid;
        QTest::newRow("pattern") << white << QBrush(Qt::red, Qt::DiagCrossPattern);
        QTest::newRow("gradient of the shape") << white << gradient(QGradient::ObjectBoundingMode);
        QTest::newRow("gradient of the canvas") << white << gradient(QGradient::LogicalMode);
    }

    void looksLikeThePaintersOwn()
    {
        QFETCH(QPen, pen);
        QFETCH(QBrush, brush);
        // Levels of 255; what the rounding of two blends instead of one can come to, and the
        // rasterizer's of positions.
        constexpr int Tolerance = 8;
        const QRectF rects[] = {{2.5, 3.5, 90, 17}, {4.5, 2.5, 15, 15}, {5.3, 7.8, 83.4, 61.1}};
        const Helpers::StraightCornerFlags straightCorners[] = {
            Helpers::None, Helpers::TopCorners, Helpers::RightCorners | Helpers::BottomLeftCorner,
            Helpers::AllCorners};
        for (const qreal scale : {1.0, 1.25, 1.5, 2.0})
            for (const QRectF& rect : rects)
                for (const int radius : {0, 4, 14})
                    for (const auto straight : straightCorners) {
                        QTransform toDevice;
                        const auto picture = [&](auto draw) {
                            QImage image = canvas(scale);
                            QPainter painter(&image);
                            painter.translate(1, 2);
                            painter.setPen(pen);
                            painter.setBrush(brush);
                            toDevice = painter.deviceTransform();
                            draw(rect, radius, straight, &painter);
                            return image;
                        };
                        const QImage actual = picture(Helpers::drawRoundedRectShape);
                        const QImage expected = picture(drawExpected);
                        const bool anySquare = radius == 0 || straight & Helpers::AllCorners;
                        const QRegion corners =
                            anySquare ? cornerPixels(rect, std::max(pen.widthF(), 1.0), toDevice)
                                      : QRegion();
                        if (difference(actual, expected, corners) > Tolerance) {
                            qDebug() << "scale" << scale << rect << "radius" << radius << straight;
                            QCOMPARE(actual, expected);
                        }
                    }
    }

    void degenerateInputDrawsNothing()
    {
        const MessageRecorder messages;
        QImage image = canvas();
        QPainter painter(&image);
        painter.setBrush(Qt::red);
        const qreal huge = std::numeric_limits<qreal>::infinity();
        const qreal none = std::numeric_limits<qreal>::quiet_NaN();
        for (const QRectF& rect : {QRectF(), QRectF(5, 5, 0, 9), QRectF(5, 5, 9, -3),
                                   QRectF(5, 5, huge, 9), QRectF(none, 5, 9, 9)})
            Helpers::drawRoundedRectShape(rect, 4, Helpers::None, &painter);
        QPainter inactive;
        Helpers::drawRoundedRectShape(QRectF(5, 5, 9, 9), 4, Helpers::None, &inactive);
        Helpers::drawRoundedRectShape(QRectF(5, 5, 9, 9), 4, Helpers::None, nullptr);
        QCOMPARE(image, canvas());

        Helpers::drawRoundedRectShape(QRectF(-1e9, -1e9, 2e9, 2e9), 4, Helpers::None, &painter);
        for (const int radius : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
            Helpers::drawRoundedRectShape(QRectF(5.5, 5.5, 20, 20), radius, Helpers::None,
                                          &painter);
        painter.scale(1e-9, 1e-9);
        Helpers::drawRoundedBox(QRectF(0, 0, 9, 9), 4, Helpers::None, Qt::NoPen, Qt::red, &painter);
        QCOMPARE(messages.take(), QStringList());
    }

    void brightnessWeighsChannels()
    {
        QCOMPARE(Helpers::getPerceivedBrightness(Qt::white), 255);
        QCOMPARE(Helpers::getPerceivedBrightness(QColor(130, 130, 130, 10)), 130);
        QCOMPARE(Helpers::getPerceivedBrightness(QColor::fromHsv(120, 255, 255)), 149);
        QCOMPARE(Helpers::getPerceivedBrightness(QColor()), 0);
    }
};

QTEST_MAIN(tst_RoundedShapes)
#include "tst_RoundedShapes.moc"
