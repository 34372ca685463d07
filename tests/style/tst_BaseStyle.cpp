#include "ProxyStyle_p.h"
#include "StateSheet.h"

using namespace BRELK;

/// What applications ask of the style itself, and the icons that it gives them.
class tst_BaseStyle : public QObject
{
    Q_OBJECT

private:
    BaseStyle* m_style = nullptr;

private Q_SLOTS:

    void initTestCase() { m_style = StateSheet::applyProbeTheme(); }

    void paletteIsTheStylesUntilItIsSet()
    {
        BaseStyle style;
        QCOMPARE(style.getPalette(), style.baseStyle()->standardPalette());
        QSignalSpy changed(&style, &BaseStyle::paletteChanged);
        style.setPalette(style.getPalette());
        QCOMPARE(changed.size(), 0);
        const QPalette probe = ProbeTheme::palette();
        QVERIFY(style.setProperty("palette", probe));
        QCOMPARE(changed.takeFirst().first().value<QPalette>(), probe);
        QPalette polished(Qt::green);
        style.polish(polished);
        QCOMPARE(polished, probe);
        QCOMPARE(style.standardPalette(), probe);
        QCOMPARE(ProbeTheme::nameOf(style.lightOutlineBrush(polished)), "palette.Midlight");
    }

    void standardIcons()
    {
        QByteArray names;
        for (const auto pixmap : StyleOptions::all<QStyle::StandardPixmap>()) {
            const QIcon icon = m_style->standardIcon(pixmap, nullptr, nullptr);
            if (!icon.name().isEmpty())
                names +=
                    QByteArray(StyleOptions::nameOf(pixmap)) + ' ' + icon.name().toLatin1() + '\n';
        }
        COMPARE_TRANSCRIPT("BaseStyle.icons", names);
        QCOMPARE(m_style->standardPixmap(QStyle::SP_TitleBarMinButton, nullptr, nullptr).size(),
                 QSize(16, 16));
    }

    void highlightedIcons()
    {
        QWidget widget;
        QVERIFY(m_style->standardIcon(QStyle::SP_CustomBase, nullptr, &widget).isNull());
        for (const char* name : {"status.checked.circular.colored", "action.close"}) {
            widget.setProperty("highlightedIcon", QString::fromLatin1(name));
            const QIcon icon = m_style->standardIcon(QStyle::SP_CustomBase, nullptr, &widget);
            QCOMPARE(ProbeTheme::nameOf(icon.pixmap(32).toImage()), "MainBrush");
        }
    }

    void extensionIconsKeepTheirFirstColors()
    {
        const auto colorOf = [&](QStyle::StandardPixmap extension, const QSize& size) {
            const QIcon icon = m_style->standardIcon(extension, nullptr, nullptr);
            return icon.availableSizes() == QList<QSize>{size}
                       ? ProbeTheme::nameOf(icon.pixmap(size).toImage().pixelColor(0, 0))
                       : "another";
        };
        for (const QPalette& next : {ProbeTheme::palette(), QPalette(Qt::red)}) {
            m_style->setPalette(next);
            QCOMPARE(colorOf(QStyle::SP_ToolBarHorizontalExtensionButton, {8, 5}), "palette.Text");
            QCOMPARE(colorOf(QStyle::SP_ToolBarVerticalExtensionButton, {5, 8}), "palette.Text");
        }
        m_style->setPalette(ProbeTheme::palette());
        const auto imageOf = [&](const QStyleOption* option) {
            return m_style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, option)
                .pixmap(8, 5)
                .toImage();
        };
        QStyleOption leftwards;
        leftwards.direction = Qt::RightToLeft;
        QCOMPARE(imageOf(&leftwards), imageOf(nullptr).mirrored(true, false));
    }

    void disabledPixmapsAreRecoloredForLabelsOnly()
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(QColor(0xE5, 0xEE, 0xF4));
        QStyleOption option;
        const auto color = [&](QObject&& object, QIcon::Mode mode) {
            option.styleObject = &object;
            const QPixmap made = m_style->generatedIconPixmap(mode, pixmap, &option);
            const QPixmap again = m_style->generatedIconPixmap(mode, pixmap, &option);
            return made.cacheKey() != again.cacheKey() ? "made again"
                                                       : ProbeTheme::nameOf(made.toImage());
        };
        QCOMPARE(color(QLabel(), QIcon::Disabled), "ForegroundBrushDisabled");
        QCOMPARE(color(QLabel(), QIcon::Selected), "#e5eef4");
        QCOMPARE(color(QPushButton(), QIcon::Disabled), "#e5eef4");

        QLabel label;
        option.styleObject = &label;
        pixmap.setDevicePixelRatio(2);
        const QPixmap fine = m_style->generatedIconPixmap(QIcon::Disabled, pixmap, &option);
        QCOMPARE(fine.size() / fine.devicePixelRatio(), QSize(8, 8));
    }

    void cacheKeys()
    {
        QStyleOptionSpinBox spinBox;
        spinBox.frame = true;
        spinBox.stepEnabled = QAbstractSpinBox::StepUpEnabled;
        const auto name = [](const QStyleOption& option) {
            return ProxyStyle_p::uniqueName(QStringLiteral("x"), &option, QSize(16, 0x12345678));
        };
        QCOMPARE(name(spinBox).size(), 1 + 56 + 17);
        QCOMPARE(name(spinBox).mid(1 + 40, 16), QStringLiteral("0100000087654321"));
        QCOMPARE(name(spinBox).right(9), QStringLiteral("100000001"));
        QStyleOption option;
        const QString plain = name(option);
        option.palette.setColor(QPalette::Text, Qt::red);
        QVERIFY(name(option) != plain);
    }
};

QTEST_MAIN(tst_BaseStyle)
#include "tst_BaseStyle.moc"
