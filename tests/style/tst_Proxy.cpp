#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"
#include "StyleOptions.h"

#include <QApplication>
#include <QPainter>
#include <QtTest>

// A style that wraps this one can override every piece: all of them are asked through the proxy.

using namespace BRELK;
using StyleOptions::Element;
using StyleOptions::Sample;

namespace {

/// The style, noting what reaches it in another way than through the spy around it.
class WatchedStyle : public NotingStyle<BaseStyle>
{
public:
    const SpyStyle* spy = nullptr;
    mutable QByteArrayList bypassed;

protected:
    /// The spy notes a call just before it passes it on.
    void note(const QByteArray& element, const QStyleOption*, const QWidget*) const override
    {
        const bool isPassedOn = spy->callsSoFar != m_passedOn && !spy->calls.isEmpty()
                                && spy->calls.last().element == element;
        m_passedOn = spy->callsSoFar;
        if (!isPassedOn)
            bypassed.append(element);
    }

private:
    mutable int m_passedOn = 0;
};

/// Its own padding is no metric that others could know.
const QByteArrayList NotForOthers{"custom", "SE_CheckBoxIndicator", "CC_ScrollBar 80"};

} // namespace

class tst_Proxy : public QObject
{
    Q_OBJECT

private:
    WatchedStyle* m_style = nullptr;
    RecordingBase* m_base = nullptr;
    SpyStyle* m_spy = nullptr;

    /// Uses the element in the states that `state` adds, and gives the pieces asked for.
    QByteArrayList use(const Element& element, QStyle::State state)
    {
        QImage image(200, 40, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        const Sample sample = element.sample();
        sample.option->state |= state;
        m_spy->take();
        m_style->bypassed.clear();
        element.use(*m_spy, sample, &painter);
        return m_spy->take();
    }

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish();
        m_style = new WatchedStyle;
        m_base = new RecordingBase;
        m_style->setBaseStyle(m_base);
        m_spy = new SpyStyle(m_style);
        m_style->spy = m_spy;
        QApplication::setStyle(m_spy);
    }

    void nothingBypassesTheProxy()
    {
        for (const Element& element : StyleOptions::elements())
            for (const QStyle::State state : {QStyle::State(), QStyle::State(~0)}) {
                use(element, state);
                for (const QByteArray& piece : qAsConst(m_style->bypassed))
                    QVERIFY2(NotForOthers.contains(piece),
                             QByteArray(element.name + " asks for " + piece).constData());
            }
    }

    void controlsAreComposedOfPieces_data()
    {
        QTest::addColumn<QByteArrayList>("pieces");
        const auto row = [](const char* element, const char* pieces) {
            QTest::newRow(element) << QByteArray(pieces).split(',');
        };
        row("CE_PushButton", "CE_PushButtonBevel,SE_PushButtonContents,CE_PushButtonLabel,"
                             "SE_PushButtonFocusRect,PE_FrameFocusRect");
        row("CC_SpinBox", "CC_SpinBox 1,CC_SpinBox 2,CC_SpinBox 4,PE_PanelButtonBevel,"
                          "PE_IndicatorSpinUp,PE_IndicatorSpinDown");
        row("CC_ComboBox", "CC_ComboBox 4,PE_PanelButtonCommand,PE_IndicatorArrowDown");
        row("CC_Slider", "CC_Slider 1,CC_Slider 2,PM_SliderTickmarkOffset");
        row("CC_ToolButton", "CC_ToolButton 1,CC_ToolButton 2,PE_PanelButtonTool,"
                             "CE_ToolButtonLabel,PE_IndicatorArrowDown");
        row("CC_TitleBar", "CC_TitleBar 80,PE_PanelButtonBevel");
        row("PE_IndicatorBranch", "PE_IndicatorArrowDown");
    }

    void controlsAreComposedOfPieces()
    {
        QFETCH(QByteArrayList, pieces);
        for (const Element& element : StyleOptions::elements()) {
            if (element.name != QTest::currentDataTag())
                continue;
            m_base->painted.clear();
            const QByteArrayList asked =
                use(element, QStyle::State_Raised | QStyle::State_HasFocus | QStyle::State_Children
                                 | QStyle::State_Open);
            QVERIFY(!m_base->painted.contains(element.name));
            for (const QByteArray& piece : qAsConst(pieces))
                QVERIFY2(asked.contains(piece), piece.constData());
        }
    }
};

QTEST_MAIN(tst_Proxy)
#include "tst_Proxy.moc"
