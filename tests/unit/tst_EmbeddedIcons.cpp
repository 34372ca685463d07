#include "ThemeResources.h"

#include <QDir>
#include <QImageReader>
#include <QRegularExpression>
#include <QResource>
#include <QtTest>

using namespace BRELK;

namespace {

/// The lines of one of the tables that the icons and cursors are drawn from, without the head.
QVector<QStringList> table(const char* name)
{
    QFile file(QLatin1String(VARN_ICON_TABLES "/") + QLatin1String(name));
    QVector<QStringList> rows;
    if (file.open(QIODevice::ReadOnly))
        for (const QByteArray& line : file.readAll().trimmed().split('\n').mid(1))
            rows.append(QString::fromUtf8(line).split(QLatin1Char('\t')));
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
    const QVector<QStringList> m_icons = table("manifest.tsv");

private Q_SLOTS:

    void initTestCase()
    {
        QDir::addSearchPath(ThemeResources::iconsPrefix(), QStringLiteral(":/Icons"));
        QDir::addSearchPath(ThemeResources::cursorsPrefix(), QStringLiteral(":/Cursors"));
    }

    void areAllThereAndDifferent()
    {
        QCOMPARE(m_icons.size(), 710);
        QCOMPARE(ThemeResources::getIcons(QRegularExpression(QStringLiteral("."))).size(), 710);
        QHash<QByteArray, QString> seen;
        for (const QStringList& row : m_icons) {
            const QImage picture = rendered(row.first(), 48);
            const auto* bits = reinterpret_cast<const char*>(picture.constBits());
            QString& other = seen[QByteArray(bits, int(picture.sizeInBytes()))];
            QVERIFY2(other.isEmpty(), qPrintable(row.first() + QLatin1String(" is ") + other));
            other = row.first();
        }
    }

    void areVisibleAtSixteenPixels()
    {
        for (const QStringList& row : m_icons) {
            const QImage picture = rendered(row.first(), 16);
            int solid = 0;
            for (int pixel = 0; pixel < 16 * 16; ++pixel)
                solid += qAlpha(picture.pixel(pixel % 16, pixel / 16)) >= 96;
            QVERIFY2(solid >= 8, qPrintable(row.first()));
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
            for (const QStringList& row : m_icons)
                QCOMPARE(QIcon::fromTheme(row.first()).name(), row.first());
        }
    }

    void cursorsLoadTheirFirstImageAndHotSpot()
    {
        const QVector<QStringList> cursors = table("cursors.tsv");
        QCOMPARE(cursors.size(), QDir(QStringLiteral(":/Cursors")).entryList().size());
        for (const QStringList& row : cursors) {
            const QCursor cursor = ThemeResources::getCursor(row.at(0));
            QCOMPARE(cursor.hotSpot(), QPoint(row.at(1).toInt(), row.at(2).toInt()));
            QCOMPARE(cursor.pixmap().size(), QSize(32, 32));
            QImageReader reader(QStringLiteral(":/Cursors/%1.cur").arg(row.at(0)));
            QVERIFY(reader.jumpToImage(1));
            QCOMPARE(reader.read().size(), QSize(64, 64));
        }
    }
};

QTEST_MAIN(tst_EmbeddedIcons)
#include "tst_EmbeddedIcons.moc"
