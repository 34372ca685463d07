#include "ThemeResources.h"

#include <QDir>
#include <QImageReader>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

using namespace BRELK;

namespace {

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
            const auto* bits = reinterpret_cast<const char*>(icon.value().constBits());
            QString& other = seen[QByteArray(bits, int(icon.value().sizeInBytes()))];
            QVERIFY2(other.isEmpty(), qPrintable(icon.key() + QLatin1String(" is ") + other));
            other = icon.key();
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
