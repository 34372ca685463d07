#include "Helpers.h"
#include "ThemeResources.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

#include <cmath>

using namespace BRELK;

namespace {

const QColor reference(0xE5, 0xEE, 0xF4);

using Row = QHash<QByteArray, QString>;

// The rows of one of the tables that the icons and cursors are drawn from.
QVector<Row> table(const QString& name)
{
    QFile file(QStringLiteral(VARN_ICON_TABLES "/") + name);
    QVector<Row> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    const QList<QByteArray> head = file.readLine().trimmed().split('\t');
    while (!file.atEnd()) {
        const QList<QByteArray> cells = file.readLine().trimmed().split('\t');
        Row row;
        for (int i = 0; i < qMin(head.size(), cells.size()); ++i)
            row.insert(head.at(i), QString::fromUtf8(cells.at(i)));
        rows.append(row);
    }
    return rows;
}

QImage rendered(const QString& name, int size)
{
    return ThemeResources::getPixmap(name, {size, size})
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

// How many pixels differ clearly, among those that `counts` wants. Edges drawn the other way round
// are antialiased a little differently.
template <class Counts>
int differences(const QImage& left, const QImage& right, int tolerance, Counts counts)
{
    int different = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = qPremultiply(left.pixel(x, y));
            const QRgb b = qPremultiply(right.pixel(x, y));
            int strongest = 0;
            for (const int shift : {0, 8, 16, 24})
                strongest =
                    qMax(strongest, std::abs(int(a >> shift & 0xFF) - int(b >> shift & 0xFF)));
            different += strongest > tolerance && counts(QPoint(x, y));
        }
    }
    return different;
}

int differences(const QImage& left, const QImage& right, int tolerance)
{
    return differences(left, right, tolerance, [](QPoint) { return true; });
}

// Whether a pixel and those around it have one color: edges blend two.
bool isInside(const QImage& picture, QPoint place)
{
    const QRect around = QRect(place - QPoint(1, 1), QSize(3, 3)) & picture.rect();
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(place))
                return false;
        }
    }
    return true;
}

constexpr int edgeTolerance = 40;
constexpr int strayPixels = 8;

} // namespace

class tst_EmbeddedIcons : public QObject
{
    Q_OBJECT

private:
    QVector<Row> m_icons = table(QStringLiteral("manifest.tsv"));
    QHash<QString, QImage> m_pictures; // at 48 pixels

    // The icon that shows a base glyph with `modifiers` only, if there is one.
    QString plainIcon(const QString& base, const QString& modifiers) const
    {
        for (const Row& row : m_icons) {
            if (row["base"] == base && row["modifiers"] == modifiers)
                return row["name"];
        }
        return {};
    }

    // The picture of the upright icon, turned or mirrored as a modifier says.
    static QImage moved(const QImage& picture, const QString& modifier)
    {
        if (modifier == QLatin1String("flip.h"))
            return picture.mirrored(true, false);
        return picture.transformed(QTransform().rotate(modifier.mid(3).toInt()));
    }

private Q_SLOTS:

    void initTestCase()
    {
        QDir::addSearchPath(ThemeResources::iconsPrefix(), QStringLiteral(":/Icons"));
        QDir::addSearchPath(ThemeResources::cursorsPrefix(), QStringLiteral(":/Cursors"));
        for (const Row& row : qAsConst(m_icons))
            m_pictures.insert(row["name"], rendered(row["name"], 48));
    }

    void areAllThere()
    {
        QCOMPARE(ThemeResources::getIcons(QRegularExpression(QStringLiteral("."))).size(), 710);
        QCOMPARE(m_pictures.size(), 710);
        for (auto icon = m_pictures.cbegin(); icon != m_pictures.cend(); ++icon)
            QVERIFY2(!icon.value().isNull(), qPrintable(icon.key()));
    }

    void areVisibleAtSixteenPixels()
    {
        for (const Row& row : qAsConst(m_icons)) {
            const QImage picture = rendered(row["name"], 16);
            int solid = 0;
            int traces = 0;
            for (int y = 0; y < 16; ++y) {
                for (int x = 0; x < 16; ++x) {
                    solid += qAlpha(picture.pixel(x, y)) >= 96;
                    traces += qAlpha(picture.pixel(x, y)) > 0;
                }
            }
            QVERIFY2(solid >= 8 && traces < 200, qPrintable(row["name"]));
        }
    }

    void keepTheirMargin()
    {
        const QRect inner = QRect(0, 0, 48, 48).marginsRemoved({3, 3, 3, 3});
        for (auto icon = m_pictures.cbegin(); icon != m_pictures.cend(); ++icon) {
            for (int y = 0; y < 48; ++y) {
                for (int x = 0; x < 48; ++x)
                    QVERIFY2(inner.contains(x, y) || qAlpha(icon.value().pixel(x, y)) == 0,
                             qPrintable(icon.key()));
            }
        }
    }

    void areAllDifferent()
    {
        QHash<QByteArray, QString> seen;
        for (auto icon = m_pictures.cbegin(); icon != m_pictures.cend(); ++icon) {
            const QImage& picture = icon.value();
            const auto* const bits = reinterpret_cast<const char*>(picture.constBits());
            const QByteArray pixels(bits, int(picture.sizeInBytes()));
            QVERIFY2(!seen.contains(pixels),
                     qPrintable(icon.key() + QLatin1String(" is ") + seen.value(pixels)));
            seen.insert(pixels, icon.key());
        }
    }

    void turnedAndMirroredVariantsMatchTheirBase()
    {
        const QRegularExpression lastMove(QStringLiteral("^(.* )?(rot(?:90|180|270)|flip\\.h)$"));
        int compared = 0;
        for (const Row& row : qAsConst(m_icons)) {
            const QRegularExpressionMatch match = lastMove.match(row["modifiers"]);
            if (!match.hasMatch())
                continue;
            const QString rest = match.captured(1).trimmed();
            const QString base =
                plainIcon(row["base"], rest.isEmpty() ? QStringLiteral("-") : rest);
            if (base.isEmpty())
                continue;
            const QImage expected = moved(m_pictures.value(base), match.captured(2));
            QVERIFY2(differences(m_pictures.value(row["name"]), expected, edgeTolerance)
                         <= strayPixels,
                     qPrintable(row["name"]));
            ++compared;
        }
        QVERIFY(compared >= 35);
    }

    void badgesLeaveTheRestOfTheirBaseAlone()
    {
        int compared = 0;
        for (const Row& row : qAsConst(m_icons)) {
            QStringList words = row["modifiers"].split(QLatin1Char(' '));
            if (!words.takeLast().startsWith(QLatin1String("badge.")))
                continue;
            const QString rest = words.join(QLatin1Char(' '));
            const QString base =
                plainIcon(row["base"], rest.isEmpty() ? QStringLiteral("-") : rest);
            if (base.isEmpty())
                continue;
            const auto clearOfTheBadge = [](QPoint place) {
                return std::hypot(place.x() + .5 - 35, place.y() + .5 - 35) > 2 * 8.25;
            };
            QVERIFY2(differences(m_pictures.value(row["name"]), m_pictures.value(base),
                                 edgeTolerance, clearOfTheBadge)
                         <= strayPixels,
                     qPrintable(row["name"]));
            ++compared;
        }
        QVERIFY(compared >= 40);
    }

    void takeOnAnotherColor()
    {
        const QColor red(0xC0, 0x20, 0x10);
        const auto recolored = [&red](const QString& name) {
            return Helpers::getModifiedIconWithForegroundBrush(ThemeResources::getIcon(name),
                                                               reference, red, false)
                .pixmap(48, 48)
                .toImage()
                .convertToFormat(QImage::Format_ARGB32);
        };
        for (const Row& row : qAsConst(m_icons)) {
            const QImage original = m_pictures.value(row["name"]);
            const QImage picture = recolored(row["name"]);
            QCOMPARE(picture.size(), original.size());
            QImage allRed = original;
            QPainter painter(&allRed);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(allRed.rect(), red);
            painter.end();
            // Edges blend the two colors, so only the inside of an area shows its own.
            const auto hasItsOwnColor = [&](QPoint place) {
                const QRgb color = original.pixel(place);
                return qAlpha(color) == 255 && color != reference.rgba()
                       && isInside(original, place);
            };
            if (row["class"] == QLatin1String("reference"))
                QVERIFY2(differences(picture, allRed, 2) == 0, qPrintable(row["name"]));
            else if (row["class"] == QLatin1String("mixed"))
                QVERIFY2(differences(picture, original, edgeTolerance) > strayPixels,
                         qPrintable(row["name"]));
            QVERIFY2(differences(picture, original, 2, hasItsOwnColor) == 0,
                     qPrintable(row["name"]));
        }
    }

    void areFoundByNameInTheShippedThemes()
    {
        const QStringList themes = QDir(QStringLiteral(VARN_THEME_REPOSITORY))
                                       .entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QVERIFY(!themes.isEmpty());
        for (const QString& theme : themes) {
            const QString bundle =
                QStringLiteral(VARN_THEME_REPOSITORY "/%1/Images/%1/scalable/icons.rcc");
            QVERIFY2(QResource::registerResource(bundle.arg(theme)), qPrintable(theme));
            QIcon::setThemeName(theme);
            for (const Row& row : qAsConst(m_icons))
                QCOMPARE(QIcon::fromTheme(row["name"]).name(), row["name"]);
        }
    }

    void cursorsLoadTheirFirstImageAndHotSpot()
    {
        const QVector<Row> cursors = table(QStringLiteral("cursors.tsv"));
        QCOMPARE(cursors.size(), 28);
        QCOMPARE(QDir(QStringLiteral(":/Cursors")).entryList().size(), 28);
        for (const Row& row : cursors) {
            const QCursor cursor = ThemeResources::getCursor(row["name"]);
            const QPoint hotSpot(row["hotspot.x"].toInt(), row["hotspot.y"].toInt());
            QVERIFY2(cursor.hotSpot() == hotSpot, qPrintable(row["name"]));
            QCOMPARE(cursor.pixmap().size(), QSize(32, 32));
            QImageReader reader(QStringLiteral(":/Cursors/%1.cur").arg(row["name"]));
            QVERIFY(reader.jumpToImage(1));
            QCOMPARE(reader.read().size(), QSize(64, 64));
        }
    }

    void cursorsShowOnAnyGround()
    {
        for (const Row& row : table(QStringLiteral("cursors.tsv"))) {
            const QImage image = ThemeResources::getCursor(row["name"]).pixmap().toImage();
            int black = 0;
            int white = 0;
            int covered = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor color = image.pixelColor(x, y);
                    covered += color.alpha() > 0;
                    black += color.alpha() > 230 && color.lightness() < 40;
                    white += color.alpha() > 230 && color.lightness() > 215;
                }
            }
            if (row["name"] == QLatin1String("_blank"))
                QCOMPARE(covered, 0);
            else
                QVERIFY2(black >= 12 && white >= 20, qPrintable(row["name"]));
        }
    }
};

QTEST_MAIN(tst_EmbeddedIcons)
#include "tst_EmbeddedIcons.moc"
