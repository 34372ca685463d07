#include "Helpers.h"
#include "ThemeResources.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

#include <algorithm>

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

// How many pixels differ clearly, among those that `counts` wants.
template <class Counts>
int differences(const QImage& left, const QImage& right, int tolerance, Counts counts)
{
    int different = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x) {
            const QRgb a = qPremultiply(left.pixel(x, y));
            const QRgb b = qPremultiply(right.pixel(x, y));
            const auto strongest =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
            different += strongest > tolerance && counts(QPoint(x, y));
        }
    return different;
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

} // namespace

class tst_EmbeddedIcons : public QObject
{
    Q_OBJECT

private:
    QVector<Row> m_icons = table(QStringLiteral("manifest.tsv"));
    QHash<QString, QImage> m_pictures; // at 48 pixels

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
    }

    void areVisibleAtSixteenPixels()
    {
        for (const Row& row : qAsConst(m_icons)) {
            const QImage picture = rendered(row["name"], 16);
            int solid = 0;
            for (int y = 0; y < 16; ++y)
                for (int x = 0; x < 16; ++x)
                    solid += qAlpha(picture.pixel(x, y)) >= 96;
            QVERIFY2(solid >= 8, qPrintable(row["name"]));
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

    void takeOnAnotherColor()
    {
        const QColor red(0xC0, 0x20, 0x10);
        for (const Row& row : qAsConst(m_icons)) {
            const QImage original = m_pictures.value(row["name"]);
            const QIcon icon = Helpers::getModifiedIconWithForegroundBrush(
                ThemeResources::getIcon(row["name"]), reference, red, false);
            const QImage picture =
                icon.pixmap(48, 48).toImage().convertToFormat(QImage::Format_ARGB32);
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
            const auto anywhere = [](QPoint) { return true; };
            if (row["class"] == QLatin1String("reference"))
                QVERIFY2(differences(picture, allRed, 2, anywhere) == 0, qPrintable(row["name"]));
            else if (row["class"] == QLatin1String("mixed"))
                QVERIFY2(differences(picture, original, 40, anywhere) > 8, qPrintable(row["name"]));
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
};

QTEST_MAIN(tst_EmbeddedIcons)
#include "tst_EmbeddedIcons.moc"
