#include "Helpers.h"
#include "Kept.h"
#include "Pictures.h"
#include "RecoloredIcons.h"
#include "Texts.h"

#include <QtGui>
#include <QtTest>

#include <functional>

using namespace BRELK;

namespace {

/// Everything that what is kept may depend on. A test changes one thing at a time.
struct Look
{
    QString text = QStringLiteral("&Text!");
    QFont font;
    int dotsPerInch = 96;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int flags = Qt::TextShowMnemonic;

    QRectF rect{10.5, 10.5, 40, 20};
    int radius = 5;
    Helpers::StraightCornerFlags straightCorners = Helpers::None;
    QPen pen = QPen(Qt::white, 1);
    QBrush brush = QColor(40, 90, 160);

    QRect place{60, 10, 16, 16};
    Pictures::Kind kind = Pictures::Kind::CheckMark;
    bool antialiased = true;

    QIcon icon;
    QString iconTheme;
    RecoloredIcons::Recoloring recoloring{QColor(Qt::red), QColor(Qt::green), false};
    QSize iconSize{16, 16};
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;

    qreal ratio = 1;
    QPointF shift;
    QPointF stretch{1, 1};
};

QPixmap square(const QColor& color, int side = 32)
{
    QPixmap pixmap(side, side);
    pixmap.fill(color);
    QPainter(&pixmap).fillRect(0, 0, side / 2, side / 2, Qt::red);
    return pixmap;
}

/// Draws a picture that nobody else has; with a name, as if it came from a file of the icon theme.
class FreshIconEngine : public QIconEngine
{
public:
    explicit FreshIconEngine(const QColor& color, const QString& name = {})
        : m_color(color), m_name(name)
    { }

    QIconEngine* clone() const override { return new FreshIconEngine(*this); }

    QString iconName() const override { return m_name; }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State state) override
    {
        const QColor color = state == QIcon::On ? m_color.darker() : m_color;
        const bool isOther = QIcon::themeName() == QLatin1String("other");
        return square(isOther ? color.lighter() : color, size.width());
    }

    void paint(QPainter*, const QRect&, QIcon::Mode, QIcon::State) override { }

private:
    QColor m_color;
    QString m_name;
};

QIcon fileIcon(const QColor& color)
{
    return QIcon(new FreshIconEngine(color, QStringLiteral("from.file")));
}

QImage drawn(const Look& look)
{
    QIcon::setThemeName(look.iconTheme);
    QImage image(QSize(200, 120) * look.ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(look.ratio);
    image.setDotsPerMeterY(qRound(look.dotsPerInch / 0.0254));
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.translate(look.shift);
    painter.scale(look.stretch.x(), look.stretch.y());
    painter.setRenderHint(QPainter::Antialiasing, look.antialiased);
    painter.setLayoutDirection(look.direction);
    painter.setFont(look.font);
    painter.setPen(Qt::white);
    Texts::draw(painter, QRect(10, 60, 80, 40), look.flags, look.text);
    Helpers::drawRoundedBox(look.rect, look.radius, look.straightCorners, look.pen, look.brush,
                            &painter);
    Pictures::draw(painter, look.kind, look.place, look.brush, [&](QPainter& onto) {
        onto.setPen(QPen(look.brush, look.kind == Pictures::Kind::CheckMark ? 1 : 3));
        onto.drawLine(QPointF(look.place.topLeft()) + QPointF(1, 2), look.place.bottomRight());
    });
    painter.drawPixmap(110, 10,
                       RecoloredIcons::pixmap(look.icon, look.recoloring, look.iconSize, look.mode,
                                              look.state, look.ratio));
    return image;
}

using Change = std::function<void(Look&)>;

/// Says when it goes.
struct Guest
{
    explicit Guest(int& count) : guests(count) { ++guests; }

    ~Guest() { --guests; }

    int& guests;
};

int s_guests = 0;
int s_guestsAfterFirst = 1; ///< of two applications

Kept::Store<int, Guest>& guestRooms()
{
    static Kept::Store<int, Guest> sRooms;
    return sRooms;
}

void invite(int number, qint64 bytes)
{
    guestRooms().keep(number, std::make_unique<Guest>(s_guests), bytes);
}

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_Kept : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void nothingOutlivesTheApplication()
    {
        QCOMPARE(s_guestsAfterFirst, 0);
        invite(1, 10);
        Q_EMIT qGuiApp->fontDatabaseChanged();
        QCOMPARE(s_guests, 0);
    }

    void bytesAreBounded()
    {
        constexpr int Bytes = 100000;
        invite(0, Bytes);
        for (int number = 1; number < 1000; ++number) {
            invite(number, Bytes);
            QVERIFY(guestRooms().find(0)); // what is used stays
        }
        QVERIFY(!guestRooms().find(1));
        QVERIFY(s_guests > 10 && s_guests < 100);
        const int small = s_guests;
        for (int number = 1000; number < 1010; ++number)
            invite(number, 100 * Bytes);
        QCOMPARE(s_guests, small + 1); // the last of the large ones
        Kept::forgetAll();
        QCOMPARE(s_guests, 0);
    }

    void changesAreSeen_data()
    {
        QTest::addColumn<Change>("change");
        const auto row = [](const char* name, Change change) { QTest::newRow(name) << change; };
        row("text", [](Look& look) { look.text = QStringLiteral("&Tent!"); });
        row("font", [](Look& look) { look.font.setBold(true); });
        row("resolution", [](Look& look) { look.dotsPerInch = 144; });
        row("direction", [](Look& look) { look.direction = Qt::RightToLeft; });
        row("mnemonics", [](Look& look) { look.flags = 0; });
        row("forced direction", [](Look& look) { look.flags |= Qt::TextForceRightToLeft; });
        row("width", [](Look& look) { look.rect.setWidth(41); });
        row("height", [](Look& look) { look.rect.setHeight(21); });
        row("radius", [](Look& look) { look.radius = 6; });
        row("corners", [](Look& look) { look.straightCorners = Helpers::TopLeftCorner; });
        row("pen", [](Look& look) { look.pen.setWidthF(2); });
        row("pen's color", [](Look& look) { look.pen.setColor(Qt::yellow); });
        row("brush", [](Look& look) { look.brush = QColor(40, 90, 161); });
        row("subpixel", [](Look& look) { look.shift = {0.25, 0}; });
        row("subpixel down", [](Look& look) { look.shift = {0, 0.25}; });
        row("stretched", [](Look& look) { look.stretch = {1.5, 1}; });
        row("stretched down", [](Look& look) { look.stretch = {1, 1.5}; });
        row("kind", [](Look& look) { look.kind = Pictures::Kind::RadioMark; });
        row("size of drawing", [](Look& look) { look.place.setSize({17, 16}); });
        row("antialiasing", [](Look& look) { look.antialiased = false; });
        row("icon", [](Look& look) { look.icon = square(Qt::blue); });
        row("fresh icon", [](Look& look) { look.icon = QIcon(new FreshIconEngine(Qt::blue)); });
        row("icon from a file", [](Look& look) { look.icon = fileIcon(Qt::blue); });
        row("icon's size", [](Look& look) { look.iconSize = {15, 15}; });
        row("icon's mode", [](Look& look) { look.mode = QIcon::Disabled; });
        row("icon's state", [](Look& look) { look.state = QIcon::On; });
        row("icon theme", [](Look& look) { look.iconTheme = QStringLiteral("other"); });
        row("reference", [](Look& look) { look.recoloring.reference = QColor(Qt::gray); });
        row("replacement", [](Look& look) { look.recoloring.replacement = QColor(Qt::cyan); });
        row("disabled", [](Look& look) { look.recoloring.disabled = true; });
        row("ratio", [](Look& look) { look.ratio = 2; });
        row("ratio, same pixels", [](Look& look) {
            look.ratio = 2;
            look.iconSize = {8, 8};
        });
    }

    /// What is kept of one look is not taken for another.
    void changesAreSeen()
    {
        QFETCH(Change, change);
        QIcon icon(square(Qt::gray));
        icon.addPixmap(square(Qt::magenta), QIcon::Normal, QIcon::On);
        for (const QIcon& first :
             {icon, QIcon(new FreshIconEngine(Qt::gray)), fileIcon(Qt::gray)}) {
            Look look;
            look.icon = first;
            Look changed = look;
            change(changed);
            if (!first.availableSizes().isEmpty() && changed.iconTheme != look.iconTheme)
                continue;
            Kept::forgetAll();
            const QImage expected = drawn(changed);
            Kept::forgetAll();
            const QImage before = drawn(look);
            QVERIFY(before != expected);
            QCOMPARE(drawn(changed), expected);
            QCOMPARE(drawn(look), before);
        }
    }
};

int main(int argc, char** argv)
{
    {
        const QGuiApplication first(argc, argv);
        invite(1, 10);
    }
    s_guestsAfterFirst = s_guests;
    const QGuiApplication second(argc, argv);
    tst_Kept test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Kept.moc"
