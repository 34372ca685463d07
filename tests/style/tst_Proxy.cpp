#include "BaseStyle.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"
#include "StyleOptions.h"

#include <QApplication>
#include <QPainter>
#include <QtTest>

#include <cstdio>

// A style that wraps this one can override every piece: all of them are asked through the proxy.

using namespace BRELK;
using StyleOptions::Sample;

namespace {

/// The style, noting what reaches it in another way than through the spy around it.
class WatchedStyle : public BaseStyle
{
public:
    const SpyStyle* spy = nullptr;
    mutable QByteArrayList bypassed;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(element));
        BaseStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(element));
        BaseStyle::drawControl(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(control));
        BaseStyle::drawComplexControl(control, option, painter, widget);
    }

    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(element));
        return BaseStyle::subElementRect(element, option, widget);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(control, part));
        return BaseStyle::subControlRect(control, option, part, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override
    {
        enter(StyleOptions::nameOf(metric));
        return BaseStyle::pixelMetric(metric, option, widget);
    }

private:
    /// The spy notes a call just before it passes it on.
    void enter(const QByteArray& element) const
    {
        const bool isPassedOn = spy->callsSoFar != m_passedOn && !spy->calls.isEmpty()
                                && spy->calls.last().element == element;
        m_passedOn = spy->callsSoFar;
        if (!isPassedOn)
            bypassed.append(element);
    }

    mutable int m_passedOn = 0;
};

} // namespace

class tst_Proxy : public QObject
{
    Q_OBJECT

private:
    WatchedStyle* m_style = nullptr;
    RecordingBase* m_base = nullptr;
    SpyStyle* m_spy = nullptr;
    QSet<QByteArray> m_pieces;

    /// Calls `ask` with a sample of the element, plain and in every state at once.
    template <class Enum, class Ask>
    void check(Enum element, Ask ask)
    {
        QImage image(200, 40, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (const bool everyState : {false, true}) {
            const Sample sample = StyleOptions::sampleFor(element);
            if (everyState)
                sample.option->state = QStyle::State(~0);
            m_spy->calls.clear();
            m_style->bypassed.clear();
            ask(sample, &painter);
            const QByteArrayList pieces = m_spy->take();
            m_pieces += QSet<QByteArray>(pieces.begin(), pieces.end());
            // The style's own padding is no metric that others could know.
            m_style->bypassed.removeAll("custom");
            for (const char* own : {"SE_CheckBoxIndicator", "CC_ScrollBar 80"})
                m_style->bypassed.removeAll(own);
            QVERIFY2(m_style->bypassed.isEmpty(), m_style->bypassed.join(", ").constData());
        }
    }

    template <class Enum>
    static void addRows()
    {
        QTest::addColumn<int>("element");
        for (const Enum element : StyleOptions::all<Enum>())
            QTest::newRow(StyleOptions::nameOf(element)) << int(element);
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

    void cleanupTestCase()
    {
        std::printf("%d pieces asked through the proxy\n", int(m_pieces.size()));
    }

    void primitives_data() { addRows<QStyle::PrimitiveElement>(); }

    void primitives()
    {
        QFETCH(int, element);
        const auto primitive = QStyle::PrimitiveElement(element);
        check(primitive, [&](const Sample& sample, QPainter* painter) {
            m_spy->drawPrimitive(primitive, sample.option.get(), painter, sample.widget.get());
        });
    }

    void controls_data() { addRows<QStyle::ControlElement>(); }

    void controls()
    {
        QFETCH(int, element);
        const auto control = QStyle::ControlElement(element);
        check(control, [&](const Sample& sample, QPainter* painter) {
            m_spy->drawControl(control, sample.option.get(), painter, sample.widget.get());
        });
    }

    void complexControls_data() { addRows<QStyle::ComplexControl>(); }

    void complexControls()
    {
        QFETCH(int, element);
        const auto control = QStyle::ComplexControl(element);
        check(control, [&](const Sample& sample, QPainter* painter) {
            const auto* option = static_cast<const QStyleOptionComplex*>(sample.option.get());
            m_spy->drawComplexControl(control, option, painter, sample.widget.get());
            for (const QStyle::SubControl part : StyleOptions::subControlsOf(control))
                m_spy->subControlRect(control, option, part, sample.widget.get());
        });
    }

    void subElements_data() { addRows<QStyle::SubElement>(); }

    void subElements()
    {
        QFETCH(int, element);
        const auto subElement = QStyle::SubElement(element);
        check(subElement, [&](const Sample& sample, QPainter*) {
            m_spy->subElementRect(subElement, sample.option.get(), sample.widget.get());
        });
    }

    void contents_data() { addRows<QStyle::ContentsType>(); }

    void contents()
    {
        QFETCH(int, element);
        const auto type = QStyle::ContentsType(element);
        check(type, [&](const Sample& sample, QPainter*) {
            m_spy->sizeFromContents(type, sample.option.get(), QSize(40, 16), sample.widget.get());
        });
    }

    void controlsAreComposedOfPieces_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QByteArrayList>("pieces");
        const auto row = [](const char* element, const QByteArrayList& pieces) {
            QTest::newRow(element) << QByteArray(element) << pieces;
        };
        row("CE_PushButton", {"CE_PushButtonBevel", "SE_PushButtonContents", "CE_PushButtonLabel",
                              "SE_PushButtonFocusRect", "PE_FrameFocusRect"});
        row("CC_SpinBox", {"CC_SpinBox 1", "CC_SpinBox 2", "CC_SpinBox 4", "PE_PanelButtonBevel",
                           "PE_IndicatorSpinUp", "PE_IndicatorSpinDown"});
        row("CC_ComboBox", {"CC_ComboBox 4", "PE_PanelButtonCommand", "PE_IndicatorArrowDown"});
        row("CC_Slider", {"CC_Slider 1", "CC_Slider 2", "PM_SliderTickmarkOffset"});
        row("CC_ToolButton", {"CC_ToolButton 1", "CC_ToolButton 2", "PE_PanelButtonTool",
                              "CE_ToolButtonLabel", "PE_IndicatorArrowDown"});
        row("CC_TitleBar", {"CC_TitleBar 80", "PE_PanelButtonBevel"});
        row("PE_IndicatorBranch", {"PE_IndicatorArrowDown"});
    }

    void controlsAreComposedOfPieces()
    {
        QFETCH(QByteArray, element);
        QFETCH(QByteArrayList, pieces);
        QImage image(200, 40, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        const auto draw = [&](auto part, auto paint) {
            if (element != StyleOptions::nameOf(part))
                return;
            const Sample sample = StyleOptions::sampleFor(part);
            sample.option->state |= QStyle::State_Raised | QStyle::State_HasFocus
                                    | QStyle::State_Children | QStyle::State_Open;
            paint(part, sample);
        };
        m_spy->take();
        m_base->painted.clear();
        for (const auto primitive : StyleOptions::all<QStyle::PrimitiveElement>())
            draw(primitive, [&](auto part, const Sample& sample) {
                m_spy->drawPrimitive(part, sample.option.get(), &painter, sample.widget.get());
            });
        for (const auto control : StyleOptions::all<QStyle::ControlElement>())
            draw(control, [&](auto part, const Sample& sample) {
                m_spy->drawControl(part, sample.option.get(), &painter, sample.widget.get());
            });
        for (const auto control : StyleOptions::all<QStyle::ComplexControl>())
            draw(control, [&](auto part, const Sample& sample) {
                m_spy->drawComplexControl(
                    part, static_cast<const QStyleOptionComplex*>(sample.option.get()), &painter,
                    sample.widget.get());
            });
        if (m_base->painted.contains(element))
            QSKIP("is left to the base style");
        const QByteArrayList asked = m_spy->take();
        for (const QByteArray& piece : qAsConst(pieces))
            QVERIFY2(asked.contains(piece), piece.constData());
    }
};

QTEST_MAIN(tst_Proxy)
#include "tst_Proxy.moc"
