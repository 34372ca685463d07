#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "ProxyStyle_p.h"
#include "States.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

using namespace BRELK;

class tst_StandardIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        applyProbeStyle();
        m_style = qobject_cast<BaseStyle*>(QApplication::style());
    }

    void names()
    {
        const auto name = [&](QStyle::StandardPixmap pixmap) {
            return m_style->standardIcon(pixmap, nullptr, nullptr).name();
        };
        QCOMPARE(name(QStyle::SP_TitleBarNormalButton), QStringLiteral("action.app.maximize"));
        QCOMPARE(name(QStyle::SP_TitleBarMaxButton), QStringLiteral("action.app.maximize"));
        QCOMPARE(name(QStyle::SP_LineEditClearButton), QStringLiteral("action.close"));
        QCOMPARE(name(QStyle::SP_CommandLink), QStringLiteral("arrow.right.small"));
        QCOMPARE(m_style->standardPixmap(QStyle::SP_TitleBarMinButton, nullptr, nullptr).size(),
                 QSize(16, 16));
    }

    void highlightedIcons()
    {
        const auto icon = [&](const QWidget* widget) {
            return m_style->standardIcon(QStyle::SP_CustomBase, nullptr, widget);
        };
        QVERIFY(icon(nullptr).isNull());
        QWidget widget;
        QVERIFY(icon(&widget).isNull());
        for (const char* name : {"status.checked.circular.colored", "action.close"}) {
            widget.setProperty("highlightedIcon", QString::fromLatin1(name));
            QCOMPARE(ProbeTheme::nameOf(icon(&widget).pixmap(32).toImage()), "MainBrush");
        }
    }

    void extensionIconsKeepTheirFirstColors()
    {
        const auto color = [&] {
            return m_style
                ->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr)
                .pixmap(8, 5)
                .toImage()
                .pixelColor(0, 0);
        };
        const QColor first = color();
        QCOMPARE(ProbeTheme::nameOf(first), "palette.Text");
        m_style->setPalette(QPalette(Qt::red));
        QCOMPARE(color(), first);
        m_style->setPalette(ProbeTheme::palette());
    }

    void disabledPixmapsAreRecoloredForLabelsOnly()
    {
        QPixmap pixmap(16, 16);
        pixmap.fill(QColor(0xE5, 0xEE, 0xF4));
        QLabel label;
        QPushButton button;
        QStyleOption option;
        const auto colorFor = [&](QObject* object, QIcon::Mode mode) {
            option.styleObject = object;
            const QPixmap made = m_style->generatedIconPixmap(mode, pixmap, &option);
            return ProbeTheme::nameOf(made.toImage());
        };
        QCOMPARE(colorFor(&label, QIcon::Disabled), "ForegroundBrushDisabled");
        QCOMPARE(colorFor(&label, QIcon::Selected), "#e5eef4");
        QCOMPARE(colorFor(&button, QIcon::Disabled), "#e5eef4");
    }

    void cacheKeys()
    {
        const QString key = QStringLiteral("x");
        QStyleOption option;
        const QString plain = ProxyStyle_p::uniqueName(key, &option, QSize(16, 0x12345678));
        QCOMPARE(plain.size(), 1 + 56);
        QCOMPARE(plain.right(16), QStringLiteral("0100000087654321"));
        option.palette.setColor(QPalette::Text, Qt::red);
        QVERIFY(ProxyStyle_p::uniqueName(key, &option, QSize(16, 0x12345678)) != plain);

        QStyleOptionSpinBox spinBox;
        spinBox.frame = true;
        spinBox.stepEnabled = QAbstractSpinBox::StepUpEnabled;
        const QString name = ProxyStyle_p::uniqueName(key, &spinBox, QSize(16, 16));
        QCOMPARE(name.size(), 1 + 56 + 17);
        QCOMPARE(name.right(9), QStringLiteral("100000001"));
    }

    void roles()
    {
        QPushButton button;
        QVERIFY(ProxyStyle_p::isInstanceOf(&button, QAccessible::PushButton));
        QVERIFY(!ProxyStyle_p::isInstanceOf(&button, QAccessible::CheckBox));
        QObject object;
        QVERIFY(!ProxyStyle_p::isInstanceOf(&object, QAccessible::PushButton));
        QVERIFY(!ProxyStyle_p::isInstanceOf(nullptr, QAccessible::PushButton));
    }

private:
    BaseStyle* m_style = nullptr;
};

QTEST_MAIN(tst_StandardIcons)
#include "tst_StandardIcons.moc"
