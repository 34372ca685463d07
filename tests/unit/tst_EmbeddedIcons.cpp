#include "BaseStyle.h"
#include "BaseTheme.h"
#include "TemporaryRepository.h"
#include "ThemeColorHelper.h"
#include "ThemeResources.h"

#include <QtTest>
#include <QtWidgets>

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

/// That of the most opaque pixel.
QColor strongestColor(const QIcon& icon)
{
    const QImage picture = icon.pixmap(48).toImage();
    QColor strongest(Qt::transparent);
    for (int pixel = 0; pixel < picture.width() * picture.height(); ++pixel) {
        const QColor color = picture.pixelColor(pixel % picture.width(), pixel / picture.width());
        if (color.alpha() > strongest.alpha())
            strongest = color;
    }
    return strongest;
}

/// Icons of themes are red squares here, those of programs blue ones.
QString ownerOf(const QIcon& icon)
{
    const QColor color = strongestColor(icon);
    if (color == Qt::red || color == Qt::blue)
        return color == Qt::red ? QStringLiteral("theme") : QStringLiteral("program");
    return color.alpha() == 0 ? QStringLiteral("none") : QStringLiteral("library");
}

} // namespace

class tst_EmbeddedIcons : public QObject
{
    Q_OBJECT

private:
    /// Whose icons are found: by search path, by name, by a desktop's name, and as a mark of the
    /// style.
    static QString found()
    {
        const QIcon icons[] = {ThemeResources::getIcon(QStringLiteral("action.close")),
                               QIcon::fromTheme(QStringLiteral("action.close")),
                               QIcon::fromTheme(QStringLiteral("document-save")),
                               BaseStyle().standardIcon(QStyle::SP_TitleBarCloseButton)};
        QStringList owners;
        for (const QIcon& icon : icons)
            owners += ownerOf(icon);
        return owners.join(QLatin1Char(' '));
    }

    QString foundAfterApplying(const char* theme) const
    {
        QDir::setSearchPaths(ThemeResources::iconsPrefix(), {});
        BaseTheme(m_files.addTheme(QLatin1String(theme), theme)).customize(qApp);
        return found();
    }

    const QVector<QStringList> m_icons = table("manifest.tsv");
    const TemporaryRepository m_files;

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

    void areFoundUnderAnyIconTheme()
    {
        QIcon::setThemeSearchPaths(
            {m_files.path(QStringLiteral("program")), QStringLiteral(":/icons")});
        const QByteArray index = "[Icon Theme]\nName=T\n[scalable]\nSize=16\nType=Scalable\n";
        const QString own = QStringLiteral("%1/Images/%1/scalable/action.close.svg");
        const QString ownIndex = QStringLiteral("%1/Images/%1/index.theme");
        m_files.write(QStringLiteral("program/P/index.theme"), index);
        m_files.write(QStringLiteral("program/P/scalable/document-save.svg"), svgSquare("#0000ff"));

        QCOMPARE(foundAfterApplying("Bare"), QStringLiteral("library library library library"));
        QCOMPARE(QIcon::fromTheme(QStringLiteral("folder-music")).name(), QStringLiteral("folder"));
        for (const QStringList& row : m_icons)
            QCOMPARE(QIcon::fromTheme(row.first()).name(), row.first());
        QIcon::setThemeName(QStringLiteral("P"));
        QCOMPARE(found(), QStringLiteral("library library program library"));
        QIcon::setFallbackSearchPaths({});
        QCOMPARE(found(), QStringLiteral("library none program library"));
        QIcon::setThemeName({});
        QCOMPARE(found(), QStringLiteral("library none none library"));

        m_files.write(own.arg(QLatin1String("Folder")), svgSquare("#ff0000"));
        QCOMPARE(foundAfterApplying("Folder"), QStringLiteral("theme theme library theme"));
        m_files.write(own.arg(QLatin1String("Index")), svgSquare("#ff0000"));
        m_files.write(ownIndex.arg(QLatin1String("Index")), index);
        QCOMPARE(foundAfterApplying("Index"), QStringLiteral("theme theme library theme"));

        QFile bundle(QStringLiteral(VARN_ICON_BUNDLE));
        QVERIFY(bundle.open(QIODevice::ReadOnly));
        m_files.write(QStringLiteral("Bundle/Images/Bundle/scalable/icons.rcc"), bundle.readAll());
        QCOMPARE(foundAfterApplying("Bundle"), QStringLiteral("library theme theme theme"));
    }

    void ofDesktopNamesAreInTheColorOfWords()
    {
        foundAfterApplying("White");
        const QIcon icon = QIcon::fromTheme(QStringLiteral("edit-copy"));
        QCOMPARE(strongestColor(icon), QColor(Qt::white));
        QCOMPARE(strongestColor(
                     ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, QBrush(Qt::red))),
                 QColor(Qt::red));
        QCOMPARE(strongestColor(QIcon::fromTheme(QStringLiteral("action.copy"))),
                 QColor(0xE5, 0xEE, 0xF4));
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
