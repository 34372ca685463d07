#include "ColorArithmetic.h"

#include <QtTest>

#include <random>

using namespace BRELK;
using namespace BRELK::ColorArithmetic;

namespace {

struct Reference
{
    Oklch color;
    QColor shown;
};

/// Color samples of the tests of CSS Color 4.
const Reference References[] = {{{0.51975, 0.17686, 142.495}, "#008000"},
                                {{0.62796, 0.25768, 29.234}, "#ff0000"},
                                {{0.45201, 0.31321, 264.052}, "#0000ff"},
                                {{0.5, 0.2, 0}, QColor(180, 6, 95)},
                                {{0.5, 0.2, 270}, QColor(59, 81, 211)},
                                {{0.8, 0.15, 160}, QColor(82, 219, 156)},
                                {{0.55, 0.15, 345}, QColor(172, 71, 133)},
                                {{1, 0, 0}, "#ffffff"},
                                {{0, 0, 0}, "#000000"},
                                {{0.59987, 0, 0}, "#808080"}};

/// What one level of a channel may make of a contrast.
constexpr double Rounding = 1.03;

double hueDistance(double one, double other)
{
    return std::abs(std::remainder(one - other, 360));
}

} // namespace

class tst_ColorArithmetic : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void convertsAsPublished()
    {
        for (const auto& [color, shown] : References) {
            QCOMPARE(fromOklch(color).name(), shown.name());
            const Oklch back = toOklch(shown);
            QVERIFY(std::abs(back.lightness - color.lightness) < 0.003);
            QVERIFY(std::abs(back.chroma - color.chroma) < 0.003);
            QVERIFY(color.chroma == 0 || hueDistance(back.hue, color.hue) < 1.5);
        }
        for (int i = 0; i < 4096; ++i) {
            const QColor color =
                QColor::fromRgb((i & 15) * 17, ((i >> 4) & 15) * 17, (i >> 8) * 17);
            QCOMPARE(fromOklab(toOklab(color)), color);
        }
    }

    /// Hue and lightness stay, chroma gives way.
    void mapsIntoTheGamut()
    {
        for (int step = 3; step < 20; ++step)
            for (int hue = 0; hue < 360; hue += 5) {
                const Oklch wanted{step / 20.0, 0.4, double(hue)};
                const Oklch found = toOklch(fromOklch(wanted));
                QVERIFY(std::abs(found.lightness - wanted.lightness) < 0.03);
                QVERIFY(found.chroma < 0.021
                        || hueDistance(found.hue, wanted.hue) * found.chroma < 1.5);
                QVERIFY(found.chroma < 0.4);
            }
        QCOMPARE(fromOklch({1.2, 0.3, 40}), QColor(Qt::white));
        QCOMPARE(fromOklch({-1, 0.3, 40}), QColor(Qt::black));
    }

    void contrastIsThatOfTheGuidelines()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QVERIFY(std::abs(contrast("#777777", Qt::white) - 4.478) < 0.001);
        QCOMPARE(contrast(QColor(0, 0, 0, 0), Qt::white), 1.0);
    }

    /// Any color on any grounds: the contrast is met where it can be, hue stays, and a step less of
    /// lightness would not do.
    void contrastIsMetByTheSmallestChange()
    {
        std::mt19937 random(1);
        const auto any = [&random] { return QColor::fromRgb(random() & 0xffffff); };
        for (int i = 0; i < 2000; ++i) {
            const QColor color = any();
            const QVector<QColor> grounds{any(), any()};
            const double wanted = 1.1 + int(random() % 60) / 10.0;
            const QColor found = withContrast(color, grounds, wanted);
            const double best =
                std::max(leastContrast(Qt::white, grounds), leastContrast(Qt::black, grounds));
            if (leastContrast(color, grounds) >= wanted) {
                QCOMPARE(found, color);
            } else if (leastContrast(found, grounds) < wanted) {
                QVERIFY(best < wanted + 0.01 || wanted < 4.6);
                QVERIFY(found == QColor(Qt::white) || found == QColor(Qt::black));
            } else {
                const double start = toOklab(color).lightness;
                const double change = toOklab(found).lightness - start;
                for (const double share : {0.3, 0.6, 0.9}) {
                    const QColor less = withLightness(color, start + change * share);
                    const QColor opposite = withLightness(color, start - change * share);
                    QVERIFY(leastContrast(less, grounds) < wanted * Rounding);
                    QVERIFY(leastContrast(opposite, grounds) < wanted * Rounding);
                }
            }
        }
    }

    void readableAndMixed()
    {
        QCOMPARE(moreReadable(Qt::white, Qt::black, {QColor("#33CCFF")}), QColor(Qt::black));
        QCOMPARE(moreReadable(Qt::white, Qt::black, {QColor("#2B66D9")}), QColor(Qt::white));
        QCOMPARE(mixed(Qt::black, Qt::white, 0), QColor(Qt::black));
        QCOMPARE(mixed(Qt::black, Qt::white, 0.59987).name(), QColor("#808080").name());
        QCOMPARE(mixed(Qt::red, Qt::white, 1), QColor(Qt::white));
        QCOMPARE(toOklch(withChromaScaled("#2B66D9", 0)).chroma, 0.0);
        QCOMPARE(withLightness(QColor(10, 20, 30, 40), 0.5).alpha(), 40);
    }
};

QTEST_APPLESS_MAIN(tst_ColorArithmetic)
#include "tst_ColorArithmetic.moc"
