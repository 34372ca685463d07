#include "StateSheet.h"

#include <functional>
#include <memory>

namespace {

/// Shows another picture when its color changes.
class LiveIconEngine : public QIconEngine
{
public:
    explicit LiveIconEngine(const QColor& color) : m_color(color) { }

    QIconEngine* clone() const override { return new LiveIconEngine(*this); }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        QPixmap pixmap(size);
        pixmap.fill(m_color);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        painter->fillRect(rect, m_color);
    }

private:
    const QColor& m_color;
};

/// A picture large enough to be seen in any widget that shows icons of 16 pixels.
bool shows(const QImage& image, const QColor& color)
{
    constexpr int Side = 10;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    return count >= Side * Side;
}

constexpr QSize RoomForAll(200, 100);

using MakeWidget = std::function<QWidget*(const QIcon&)>;

} // namespace

Q_DECLARE_METATYPE(MakeWidget)

/// Applications' own icons, wherever the style shows them.
class tst_Icons : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void areShownAsTheyAre_data()
    {
        QTest::addColumn<MakeWidget>("make");
        const auto row = [](const char* name, MakeWidget make) { QTest::newRow(name) << make; };
        const auto button = [](auto* made, const QIcon& icon) {
            made->setIcon(icon);
            return made;
        };
        row("push button", [=](const QIcon& icon) { return button(new QPushButton, icon); });
        row("check box", [=](const QIcon& icon) { return button(new QCheckBox, icon); });
        row("tool button", [=](const QIcon& icon) { return button(new QToolButton, icon); });
        row("list", [](const QIcon& icon) {
            auto* list = new QListWidget;
            list->addItem(new QListWidgetItem(icon, {}));
            return list;
        });
        row("tabs", [](const QIcon& icon) {
            auto* tabs = new QTabBar;
            tabs->addTab(icon, QStringLiteral("Tab"));
            return tabs;
        });
        row("combo box", [](const QIcon& icon) {
            auto* comboBox = new QComboBox;
            comboBox->addItem(icon, QStringLiteral("Item"));
            return comboBox;
        });
        row("menu", [](const QIcon& icon) {
            auto* menu = new QMenu;
            menu->addAction(icon, QStringLiteral("Item"));
            return menu;
        });
    }

    void areShownAsTheyAre()
    {
        QFETCH(MakeWidget, make);
        QColor color(1, 200, 3);
        const std::unique_ptr<QWidget> live(make(QIcon(new LiveIconEngine(color))));
        live->resize(RoomForAll);
        QVERIFY(shows(live->grab().toImage(), color));
        color = QColor(100, 2, 30);
        QVERIFY2(shows(live->grab().toImage(), color), "the icon has changed");

        QIcon icon(ProbeTheme::pixmap(Qt::red));
        icon.addPixmap(ProbeTheme::pixmap(Qt::green), QIcon::Disabled);
        icon.addPixmap(ProbeTheme::pixmap(Qt::blue), QIcon::Selected);
        const std::unique_ptr<QWidget> widget(make(icon));
        widget->resize(RoomForAll);
        QVERIFY(shows(widget->grab().toImage(), Qt::red));
        if (auto* list = qobject_cast<QListWidget*>(widget.get())) {
            list->setCurrentRow(0);
            QVERIFY(shows(widget->grab().toImage(), Qt::blue));
        }
        widget->setEnabled(false);
        for (QAction* action : widget->actions())
            action->setEnabled(false);
        const QImage disabled = widget->grab().toImage();
        QVERIFY(shows(disabled, Qt::green) && !shows(disabled, Qt::red));
    }
};

QTEST_MAIN(tst_Icons)
#include "tst_Icons.moc"
