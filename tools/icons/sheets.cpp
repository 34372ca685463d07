// Draws contact sheets of icons and cursors with Qt's own SVG renderer, the one that applications
// see.
//
//   varn-icon-sheets RESOURCES OUTPUT
//
// One picture for each icon group: every icon at 16, 24 and 48 pixels on the grounds of the Dark
// and Light themes, the reference color shown as the text color there; and one for the cursors, on
// black, grey and white.

#include <QDir>
#include <QGuiApplication>
#include <QMap>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

struct Ground
{
    QColor background;
    QByteArray foreground;
};

const Ground grounds[] = {{QColor(0x1E, 0x23, 0x2A), "#E5EEF4"},
                          {QColor(0xF7, 0xF9, 0xFB), "#1E232A"}};
constexpr int iconSizes[] = {16, 24, 48};
constexpr int gap = 6;
constexpr int panelWidth = 16 + 24 + 48 + 4 * gap;
constexpr int panelHeight = 48 + 2 * gap;
constexpr int captionHeight = 16;
constexpr int columns = 4;
const QColor pageColor(0xD5, 0xDB, 0xE1);

void drawIcon(QPainter& painter, const QByteArray& svg, const Ground& ground, const QPoint& corner)
{
    painter.fillRect(QRect(corner, QSize(panelWidth, panelHeight)), ground.background);
    QSvgRenderer renderer(QByteArray(svg).replace("#E5EEF4", ground.foreground));
    int x = corner.x() + gap;
    for (const int size : iconSizes) {
        const QRect place(x, corner.y() + (panelHeight - size) / 2, size, size);
        renderer.render(&painter, place);
        x += size + gap;
    }
}

void drawCursor(QPainter& painter, const QPixmap& cursor, const QPoint& corner)
{
    int x = corner.x();
    for (const QColor& ground : {QColor(Qt::black), QColor(Qt::gray), QColor(Qt::white)}) {
        const QRect panel(x, corner.y(), 2 * panelWidth / 3, panelHeight);
        painter.fillRect(panel, ground);
        painter.drawPixmap(panel.center() - cursor.rect().center(), cursor);
        x += panel.width();
    }
}

using DrawCell = void (*)(QPainter&, const QString& path, const QPoint& corner);

void drawIconCell(QPainter& painter, const QString& path, const QPoint& corner)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    const QByteArray svg = file.readAll();
    drawIcon(painter, svg, grounds[0], corner);
    drawIcon(painter, svg, grounds[1], corner + QPoint(panelWidth, 0));
}

void drawCursorCell(QPainter& painter, const QString& path, const QPoint& corner)
{
    drawCursor(painter, QPixmap(path), corner);
}

// Few colors are in use, so a palette keeps most pixels as they are and makes the file a third of
// the size.
bool saveSheet(const QString& path, const QStringList& files, DrawCell drawCell)
{
    const QSize cell(2 * panelWidth + gap, panelHeight + captionHeight + gap);
    const int rows = (files.size() + columns - 1) / columns;
    const int used = qMin(columns, files.size());
    QImage sheet(used * cell.width() + gap, rows * cell.height() + gap, QImage::Format_RGB32);
    sheet.fill(pageColor);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::black);
    QFont font = painter.font();
    font.setPixelSize(11);
    painter.setFont(font);
    for (int i = 0; i < files.size(); ++i) {
        const QPoint corner(gap + i % columns * cell.width(), gap + i / columns * cell.height());
        drawCell(painter, files.at(i), corner);
        const QRect caption(corner + QPoint(0, panelHeight), QSize(2 * panelWidth, captionHeight));
        painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter,
                         QFileInfo(files.at(i)).completeBaseName());
    }
    painter.end();
    return sheet.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither).save(path, "PNG", 0);
}

QStringList filesIn(const QString& directory)
{
    QStringList files;
    const QFileInfoList entries = QDir(directory).entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& entry : entries)
        files.append(entry.filePath());
    return files;
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
    const QDir resources(arguments.at(1));
    const QDir output(arguments.at(2));
    QMap<QString, QStringList> groups;
    const QStringList icons = filesIn(resources.filePath(QStringLiteral("Icons")));
    for (const QString& file : icons)
        groups[QFileInfo(file).fileName().section(QLatin1Char('.'), 0, 0)].append(file);

    bool saved =
        output.mkpath(QStringLiteral("."))
        && saveSheet(output.filePath(QStringLiteral("cursors.png")),
                     filesIn(resources.filePath(QStringLiteral("Cursors"))), drawCursorCell);
    for (auto group = groups.cbegin(); group != groups.cend(); ++group)
        saved = saved
                && saveSheet(output.filePath(group.key() + QLatin1String(".png")), group.value(),
                             drawIconCell);
    return saved ? 0 : 1;
}
