#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QStyleOption>
#include <QtTest>

#include <memory>

using namespace BRELK;

class tst_BaseStyle : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<BaseStyle> m_style;

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish({{QStringLiteral("brushes/MainBrushDisabled"), QVariant()},
                             {QStringLiteral("colors/MainColorDisabled"), QVariant()}});
        m_style = std::make_unique<BaseStyle>();
    }

    void cleanupTestCase() { m_style.reset(); }

    void missingTwinsAreNotReplaced()
    {
        const auto brushName = [](const char* name, bool enabled) {
            return ProbeTheme::nameOf(BaseStyle::getBrush(QString::fromLatin1(name), enabled));
        };
        QCOMPARE(brushName("ForegroundBrush", true), "ForegroundBrush");
        QCOMPARE(brushName("ForegroundBrush", false), "ForegroundBrushDisabled");
        QCOMPARE(brushName("MainBrush", true), "MainBrush");
        QCOMPARE(brushName("MainBrush", false), "none");
        QVERIFY(BaseStyle::getColor(QStringLiteral("MainColor"), true).isValid());
        QVERIFY(!BaseStyle::getColor(QStringLiteral("MainColor"), false).isValid());
    }

    void cachedBrushesKeepTheFirstTheme()
    {
        QCOMPARE(ProbeTheme::nameOf(BaseStyle::getBorderBrush(false)), "CardBorderBrushDisabled");
        QCOMPARE(ProbeTheme::nameOf(m_style->grooveBackgroundBrush(true)), "GrooveBackgroundBrush");
        const QVariant first = qApp->property("theme_var");
        ProbeTheme::publishEmpty();
        QCOMPARE(ProbeTheme::nameOf(BaseStyle::getBorderBrush(true)), "CardBorderBrush");
        QCOMPARE(ProbeTheme::nameOf(m_style->grooveBackgroundBrush(false)),
                 "GrooveBackgroundBrushDisabled");
        QCOMPARE(&BaseStyle::getBorderBrush(true), &BaseStyle::getBorderBrush(true));
        qApp->setProperty("theme_var", first);
    }

    void paletteIsTheStylesUntilItIsSet()
    {
        BaseStyle style;
        const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
        QCOMPARE(style.getPalette(), fusion->standardPalette());

        QSignalSpy changed(&style, &BaseStyle::paletteChanged);
        style.setPalette(style.getPalette());
        QCOMPARE(changed.size(), 0);
        const QPalette probe = ProbeTheme::palette();
        QVERIFY(style.setProperty("palette", probe));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().value<QPalette>(), probe);
        QCOMPARE(style.standardPalette(), probe);

        QPalette polished(Qt::green);
        style.polish(polished);
        QCOMPARE(polished, probe);
        QCOMPARE(ProbeTheme::nameOf(style.lightOutlineBrush(polished)), "palette.Midlight");
    }

    void tabsLightUpUnderThePointerOrWithFocusByKeyboard()
    {
        constexpr QStyle::State Enabled = QStyle::State_Enabled;
        const auto state = [this](QStyle::State of) {
            QStyleOptionTab option;
            option.state = of;
            return m_style->getTabBackgroundState(option);
        };
        QCOMPARE(state(Enabled | QStyle::State_Selected | QStyle::State_MouseOver),
                 BaseStyle::TabBackground_Selected);
        QCOMPARE(state(Enabled | QStyle::State_MouseOver), BaseStyle::TabBackground_Highlighted);
        QCOMPARE(state(QStyle::State_MouseOver), BaseStyle::TabBackground_Unselected);
        QCOMPARE(state(Enabled | QStyle::State_HasFocus), BaseStyle::TabBackground_Unselected);
        QCOMPARE(state(Enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange),
                 BaseStyle::TabBackground_Highlighted);
    }

    void defaultAndFlatButtonsAreOptionsOfButtons()
    {
        QStyleOptionButton button;
        button.features = QStyleOptionButton::DefaultButton | QStyleOptionButton::Flat;
        button.state = QStyle::State_None;
        const QStyleOption* option = &button;
        QVERIFY(BaseStyle::isFlatButton(option));
        QVERIFY(!BaseStyle::isDefaultButton(option));
        button.state = QStyle::State_Enabled;
        QVERIFY(BaseStyle::isDefaultButton(option));

        QStyleOptionToolButton tool;
        tool.state = QStyle::State_Enabled | QStyle::State_MouseOver;
        QVERIFY(!BaseStyle::isFlatButton(&tool) && !BaseStyle::isDefaultButton(&tool));
        QVERIFY(BaseStyle::isButtonHovered(&tool));
        tool.state |= QStyle::State_Sunken;
        QVERIFY(BaseStyle::isHovered(&tool) && !BaseStyle::isButtonHovered(&tool));
    }

    void grips()
    {
        const auto paint = [this](Qt::Orientation orientation, int from, int to) {
            QImage image(12, 12, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            m_style->drawGrips(painter, orientation, from, to, 3, 4, 3, 2);
            return image;
        };
        QCOMPARE(paint(Qt::Vertical, 5, 5), paint(Qt::Horizontal, 9, 2)); // nothing
        const QColor light(255, 255, 255, 90);
        const QImage horizontal = paint(Qt::Horizontal, 1, 6);
        QVERIFY(horizontal.pixelColor(2, 4) != light); // the dark dot is two pixels wide
        QCOMPARE(horizontal.pixelColor(3, 5), light);
        QCOMPARE(horizontal.pixelColor(7, 5), light);
        const QImage vertical = paint(Qt::Vertical, 1, 6);
        QVERIFY(vertical.pixelColor(3, 1) != light);
        QCOMPARE(vertical.pixelColor(4, 2), light); // always one pixel
    }
};

QTEST_MAIN(tst_BaseStyle)
#include "tst_BaseStyle.moc"
