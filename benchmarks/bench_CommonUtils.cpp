#include "Helpers.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <benchmark/benchmark.h>

using namespace BRELK;

namespace {

enum Brush { Solid, PenOnly, BrushOnly, Translucent, Gradient, BrushCount };

constexpr const char* BrushNames[] = {"solid", "pen only", "brush only", "translucent", "gradient"};

/// Width, height and radius of the shapes.
constexpr int Sizes[][3] = {{100, 28, 0}, {100, 28, 4}, {100, 28, 14}, {16, 16, 0},
                            {16, 16, 4},  {16, 16, 8},  {400, 300, 0}, {400, 300, 14}};

QBrush brushOf(int kind)
{
    if (kind != Gradient)
        return kind == PenOnly ? QBrush(Qt::NoBrush)
                               : QBrush(QColor(40, 90, 160, kind == Translucent ? 120 : 255));
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0, QColor(40, 90, 160));
    gradient.setColorAt(1, QColor(160, 90, 40));
    return gradient;
}

using Draw = void (*)(QPainter&, const QRectF&, int radius);

void byHelper(QPainter& painter, const QRectF& rect, int radius)
{
    Helpers::drawRoundedRectShape(rect, radius, Helpers::None, &painter);
}

void byPainter(QPainter& painter, const QRectF& rect, int radius)
{
    painter.drawRoundedRect(rect, radius, radius);
}

void byPath(QPainter& painter, const QRectF& rect, int radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    painter.drawPath(path);
}

/// On a canvas with `scale` device pixels a logical one.
void drawShape(benchmark::State& state, Draw draw, double scale)
{
    const auto& size = Sizes[state.range(0)];
    const int kind = int(state.range(1));
    QImage canvas(int(420 * scale), int(320 * scale), QImage::Format_RGB32);
    canvas.setDevicePixelRatio(scale);
    canvas.fill(Qt::black);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(kind == BrushOnly ? QPen(Qt::NoPen) : QPen(QColor(200, 200, 210)));
    painter.setBrush(brushOf(kind));
    const QRectF rect = QRectF(3, 5, size[0], size[1]).adjusted(0.5, 0.5, -0.5, -0.5);
    for (auto _ : state)
        draw(painter, rect, size[2]);
    state.SetLabel(QStringLiteral("%1x%2 r%3 %4")
                       .arg(size[0])
                       .arg(size[1])
                       .arg(size[2])
                       .arg(QLatin1String(BrushNames[kind]))
                       .toStdString());
}

void allShapes(benchmark::internal::Benchmark* shapes)
{
    for (int kind = 0; kind < BrushCount; ++kind)
        for (int size = 0; size < int(std::size(Sizes)); ++size)
            shapes->Args({size, kind});
}

void oneShape(benchmark::internal::Benchmark* shapes)
{
    shapes->Args({1, Solid});
}

BENCHMARK_CAPTURE(drawShape, helper, byHelper, 1)->Apply(allShapes);
BENCHMARK_CAPTURE(drawShape, drawRoundedRect, byPainter, 1)->Apply(allShapes);
BENCHMARK_CAPTURE(drawShape, drawPath, byPath, 1)->Apply(allShapes);
BENCHMARK_CAPTURE(drawShape, helper at scale 1.5, byHelper, 1.5)->Apply(oneShape);
BENCHMARK_CAPTURE(drawShape, drawRoundedRect at scale 1.5, byPainter, 1.5)->Apply(oneShape);
BENCHMARK_CAPTURE(drawShape, helper at scale 2, byHelper, 2)->Apply(oneShape);
BENCHMARK_CAPTURE(drawShape, drawRoundedRect at scale 2, byPainter, 2)->Apply(oneShape);

/// A shape no two of which are alike, so that nothing is found in a cache.
void drawShapeCold(benchmark::State& state)
{
    QImage canvas(420, 320, QImage::Format_RGB32);
    QPainter painter(&canvas);
    painter.setBrush(Qt::darkBlue);
    unsigned color = 0;
    for (auto _ : state) {
        painter.setPen(QColor(QRgb(color++)));
        byHelper(painter, QRectF(3.5, 5.5, 99, 27), 4);
    }
}

BENCHMARK(drawShapeCold);

QIcon lineIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xE5, 0xEE, 0xF4), 2.6));
    painter.drawEllipse(4, 4, 24, 24);
    painter.setPen(QPen(QColor(0x2B, 0x86, 0xDB), 2.6));
    painter.drawLine(9, 23, 23, 9);
    return pixmap;
}

QIcon recolored(const QIcon& icon, const QColor& color)
{
    return Helpers::getModifiedIconWithForegroundBrush(icon, QColor(0xE5, 0xEE, 0xF4), color,
                                                       false);
}

void recolorIconWarm(benchmark::State& state)
{
    const QIcon icon = lineIcon();
    for (auto _ : state)
        benchmark::DoNotOptimize(recolored(icon, Qt::darkBlue));
}

BENCHMARK(recolorIconWarm);

void iconPixmapWarm(benchmark::State& state)
{
    const QIcon icon = recolored(lineIcon(), Qt::darkBlue);
    for (auto _ : state)
        benchmark::DoNotOptimize(icon.pixmap(32));
}

BENCHMARK(iconPixmapWarm);

void recoloredPixmapCold(benchmark::State& state)
{
    const QIcon icon = lineIcon();
    unsigned color = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(recolored(icon, QColor(QRgb(color++))).pixmap(32));
}

BENCHMARK(recoloredPixmapCold);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
