#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QPainter>
#include <QSignalSpy>
#include <QStyleFactory>
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
        const QString brush = QStringLiteral("MainBrush");
        QCOMPARE(ProbeTheme::nameOf(BaseStyle::getBrush(brush, true)), "MainBrush");
        QCOMPARE(ProbeTheme::nameOf(BaseStyle::getBrush(brush, false)), "none");
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
        QCOMPARE(paint(Qt::Vertical, 1, 6).pixelColor(4, 2), light); // always one pixel
    }
};

QTEST_MAIN(tst_BaseStyle)
#include "tst_BaseStyle.moc"
