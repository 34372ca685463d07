// Draws contact sheets of the icons and cursors through Qt's image plugins, as applications see
// them.
//
//   varn-icon-sheets RESOURCES OUTPUT
//
// One picture for each icon group: every icon at 16, 24 and 48 pixels on the grounds of the Dark
// and Light themes, the reference color shown as the text color there; and one of the cursors, in
// both their sizes on black, gray and white.

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QMap>
#include <QPainter>
#include <QSet>
#include <QTextStream>

#include <algorithm>

namespace {

struct Ground
{
    QColor background;
    QByteArray foreground;
};

const Ground grounds[] = {{QColor(0x1E, 0x23, 0x2A), "#E5EEF4"},
                          {QColor(0xF7, 0xF9, 0xFB), "#1E232A"}};
const QColor cursorGrounds[] = {QColor(Qt::black), QColor(0x80, 0x80, 0x80), QColor(Qt::white)};
const QColor pageColor(0xD5, 0xDB, 0xE1);
constexpr int iconSizes[] = {16, 24, 48};
constexpr int gap = 6;
constexpr int iconPanelWidth = 16 + 24 + 48 + 4 * gap;
constexpr int cursorPanelWidth = 32 + 64 + 3 * gap;
constexpr int captionHeight = 16;
constexpr int columns = 4;

// A kind of sheet: the size of a cell without its caption, and how to fill it from a file.
struct Sheet
{
    QSize cell;
    void (*draw)(QPainter& painter, const QString& path, QPoint corner);
};

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage rendered(QByteArray svg, int size)
{
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize({size, size});
    return reader.read();
}

void drawIcon(QPainter& painter, const QString& path, QPoint corner)
{
    const QByteArray svg = contentsOf(path);
    for (const Ground& ground : grounds) {
        const QRect panel(corner, QSize(iconPanelWidth, 48 + 2 * gap));
        painter.fillRect(panel, ground.background);
        int x = panel.x() + gap;
        for (const int size : iconSizes) {
            const QByteArray text = QByteArray(svg).replace("#E5EEF4", ground.foreground);
            painter.drawImage(x, panel.y() + (panel.height() - size) / 2, rendered(text, size));
            x += size + gap;
        }
        corner.rx() += panel.width();
    }
}

void drawCursor(QPainter& painter, const QString& path, QPoint corner)
{
    for (const QColor& ground : cursorGrounds) {
        const QRect panel(corner, QSize(cursorPanelWidth, 64 + 2 * gap));
        painter.fillRect(panel, ground);
        QImageReader reader(path);
        int x = panel.x() + gap;
        for (QImage image = reader.read(); !image.isNull(); image = reader.read()) {
            painter.drawImage(x, panel.y() + (panel.height() - image.height()) / 2, image);
            x += image.width() + gap;
            if (!reader.jumpToNextImage())
                break;
        }
        corner.rx() += panel.width();
    }
}

// The picture with the palette of its own most frequent colors, a third of the size as a file.
QImage withPalette(const QImage& image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            ++counts[line[x]];
    }
    QVector<QRgb> colors = counts.keys().toVector();
    std::sort(colors.begin(), colors.end(), [&counts](QRgb left, QRgb right) {
        return counts[left] != counts[right] ? counts[left] > counts[right] : left < right;
    });
    return image.convertToFormat(QImage::Format_Indexed8, colors.mid(0, 256));
}

bool saveSheet(const QString& path, const QStringList& files, const Sheet& sheet)
{
    const QSize cell = sheet.cell + QSize(gap, captionHeight + gap);
    const int rows = (files.size() + columns - 1) / columns;
    const int used = qMin(columns, files.size());
    QImage page(used * cell.width() + gap, rows * cell.height() + gap, QImage::Format_RGB32);
    page.fill(pageColor);
    QPainter painter(&page);
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    for (int i = 0; i < files.size(); ++i) {
        const QPoint corner(gap + i % columns * cell.width(), gap + i / columns * cell.height());
        sheet.draw(painter, files.at(i), corner);
        const QRect caption(corner.x(), corner.y() + sheet.cell.height(), cell.width(),
                            captionHeight);
        painter.drawText(caption, Qt::AlignVCenter, QFileInfo(files.at(i)).completeBaseName());
    }
    painter.end();
    return withPalette(page).save(path, "PNG", 0);
}

QStringList filesIn(const QString& directory)
{
    QStringList files;
    const QFileInfoList entries = QDir(directory).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& entry : entries)
        files.append(entry.filePath());
    return files;
}

bool saveSheets(const QDir& resources, const QDir& output)
{
    const Sheet iconSheet{{2 * iconPanelWidth, 48 + 2 * gap}, drawIcon};
    const Sheet cursorSheet{{3 * cursorPanelWidth, 64 + 2 * gap}, drawCursor};
    QMap<QString, QStringList> groups;
    const QStringList icons = filesIn(resources.filePath(QStringLiteral("Icons")));
    for (const QString& file : icons)
        groups[QFileInfo(file).fileName().section(QLatin1Char('.'), 0, 0)].append(file);

    bool saved = output.mkpath(QStringLiteral("."))
                 && saveSheet(output.filePath(QStringLiteral("cursors.png")),
                              filesIn(resources.filePath(QStringLiteral("Cursors"))), cursorSheet);
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        saved = saved
                && saveSheet(output.filePath(group.key() + QLatin1String(".png")), group.value(),
                             iconSheet);
    return saved;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: varn-icon-sheets RESOURCES OUTPUT\n";
        return 2;
    }
    return saveSheets(QDir(arguments.at(1)), QDir(arguments.at(2))) ? 0 : 1;
}
