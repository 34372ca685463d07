#include "BaseStyle.h"
#include "MessageRecorder.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"
#include "StyleOptions.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QtTest>

#include <algorithm>
#include <array>
#include <cstdio>

// What holds for every element that the toolkit has, whoever paints or measures it. The program is
// built twice: with a theme that has every name, and with one that has none.

using namespace BRELK;

namespace {

using StyleOptions::Sample;

/// One way in which a call may differ from a widget's own.
struct Variation
{
    const char* name;
    void (*apply)(Sample&);
};

void setRect(Sample& sample, const QRect& rect)
{
    sample.option->rect = rect;
}

/// Options are cast by type, and not cast when theirs is older than the one asked for.
void setType(Sample& sample, int type)
{
    sample.option->type = type;
}

void asIs(Sample&) { }

constexpr Variation Widgets[] = {
    {"own widget", asIs},
    {"no widget",
     [](Sample& sample) {
         if (auto* item = qstyleoption_cast<QStyleOptionViewItem*>(sample.option.get()))
             item->widget = nullptr;
         sample.widget.reset();
     }},
    {"foreign widget", [](Sample& sample) { sample.widget = std::make_shared<QWidget>(); }},
};

constexpr Variation Types[] = {
    {"own option", asIs},
    {"foreign option", [](Sample& sample) { setType(sample, QStyleOption::SO_CustomBase); }},
    {"older option", [](Sample& sample) { sample.option->version = 0; }},
};

constexpr Variation Rects[] = {
    {"own rect", asIs},
    {"empty rect", [](Sample& sample) { setRect(sample, QRect()); }},
    {"negative rect", [](Sample& sample) { setRect(sample, QRect(10, 10, -20, -30)); }},
    {"one pixel", [](Sample& sample) { setRect(sample, QRect(3, 4, 1, 1)); }},
};

/// Not for the base style, which paints some elements into a pixmap of their size first.
constexpr Variation HugeRects[] = {
    {"wide rect", [](Sample& sample) { setRect(sample, QRect(-10, 0, 1000000, 24)); }},
    {"tall rect", [](Sample& sample) { setRect(sample, QRect(0, -10, 24, 1000000)); }},
};

constexpr Variation Looks[] = {
    {"own state", asIs},
    {"disabled",
     [](Sample& sample) {
         if (sample.widget)
             sample.widget->setEnabled(false);
         sample.option->state &= ~QStyle::State_Enabled;
         sample.option->palette.setCurrentColorGroup(QPalette::Disabled);
     }},
    {"every state", [](Sample& sample) { sample.option->state = QStyle::State(~0); }},
    {"right to left",
     [](Sample& sample) {
         if (sample.widget)
             sample.widget->setLayoutDirection(Qt::RightToLeft);
         sample.option->direction = Qt::RightToLeft;
     }},
    {"palette without brushes",
     [](Sample& sample) {
         for (int role = 0; role < QPalette::NColorRoles; ++role)
             sample.option->palette.setBrush(QPalette::ColorRole(role), Qt::NoBrush);
     }},
};

/// What a painter is left with.
struct PainterState
{
    explicit PainterState(const QPainter& painter)
        : pen(painter.pen())
        , brush(painter.brush())
        , background(painter.background())
        , origin(painter.brushOrigin())
        , font(painter.font())
        , transform(painter.worldTransform())
        , clip(painter.hasClipping() ? painter.clipRegion() : QRegion())
        , hints(painter.renderHints())
        , opacity(painter.opacity())
        , backgroundMode(painter.backgroundMode())
        , composition(painter.compositionMode())
        , direction(painter.layoutDirection())
    { }

    /// What differs, in words.
    QByteArray difference(const PainterState& other) const
    {
        QByteArrayList names;
        const auto note = [&](bool same, const char* name) {
            if (!same)
                names.append(name);
        };
        note(pen == other.pen, "pen");
        note(brush == other.brush, "brush");
        note(background == other.background && backgroundMode == other.backgroundMode,
             "background");
        note(origin == other.origin, "brush origin");
        note(font == other.font, "font");
        note(transform == other.transform, "transform");
        note(clip == other.clip, "clip");
        note(hints == other.hints, "hints");
        note(qFuzzyCompare(opacity, other.opacity), "opacity");
        note(composition == other.composition, "composition");
        note(direction == other.direction, "direction");
        return names.join(", ");
    }

    QPen pen;
    QBrush brush;
    QBrush background;
    QPointF origin;
    QFont font;
    QTransform transform;
    QRegion clip;
    QPainter::RenderHints hints;
    qreal opacity;
    Qt::BGMode backgroundMode;
    QPainter::CompositionMode composition;
    Qt::LayoutDirection direction;
};

int s_combinations = 0;

QByteArray nameOf(std::initializer_list<const Variation*> variations)
{
    QByteArrayList names;
    for (const Variation* variation : variations)
        names.append(variation->name);
    return names.join(", ");
}

/// Calls `check` with a new sample in every combination that departs from a widget's own call in up
/// to two ways at once; it tells what is wrong, or nothing.
template <class Enum, class Check>
QByteArray inAllCombinations(Enum element, bool hugeToo, Check check)
{
    constexpr int MostDepartures = 2;
    QVector<const Variation*> rects;
    for (const Variation& rect : Rects)
        rects.append(&rect);
    for (const Variation& rect : HugeRects)
        if (hugeToo)
            rects.append(&rect);
    for (const Variation& look : Looks)
        for (const Variation* rect : qAsConst(rects))
            for (const Variation& type : Types)
                for (const Variation& widget : Widgets) {
                    const std::array all{&look, rect, &widget, &type};
                    const auto departures =
                        std::count_if(all.begin(), all.end(), [](const Variation* variation) {
                            return variation->apply != &asIs;
                        });
                    if (departures > MostDepartures)
                        continue;
                    Sample sample = StyleOptions::sampleFor(element);
                    const auto keepAlive = sample.widget;
                    for (const Variation* each : all)
                        each->apply(sample);
                    ++s_combinations;
                    const QByteArray fault = check(sample);
                    if (!fault.isEmpty())
                        return nameOf({&widget, &type, rect, &look}) + ": " + fault;
                }
    return {};
}

/// What the toolkit has warned of since `messages` was asked last. It always warns of what the
/// platform without a screen lacks.
QByteArray warnings(MessageRecorder& messages)
{
    QStringList texts = messages.take();
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [](const QString& text) {
                                   return text.startsWith(QLatin1String("This plugin does not"));
                               }),
                texts.end());
    return texts.join(QLatin1String("; ")).toUtf8();
}

/// Paints with what `draw` is given, and tells how the painter was not left as it was found.
template <class Draw>
QByteArray paint(MessageRecorder& messages, Draw draw)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 3));
    painter.setBrush(Qt::cyan);
    painter.setFont(QFont(QStringLiteral("Serif"), 7));
    painter.translate(1, 2);
    painter.setClipRect(QRect(2, 2, 40, 40));
    painter.setOpacity(0.75);
    const PainterState before(painter);
    draw(&painter);
    const QByteArray difference = PainterState(painter).difference(before);
    painter.end();
    if (!difference.isEmpty())
        return "changes the painter's " + difference;
    return warnings(messages);
}

const QStyleOptionComplex* complexOption(const Sample& sample)
{
    return static_cast<const QStyleOptionComplex*>(sample.option.get());
}

template <class Enum>
void addRows()
{
    QTest::addColumn<int>("element");
    const QVector<Enum> elements = StyleOptions::all<Enum>();
    for (const Enum element : elements)
        QTest::newRow(StyleOptions::nameOf(element)) << int(element);
}

} // namespace

class tst_Contract : public QObject
{
    Q_OBJECT

private:
    BaseStyle* m_style = nullptr;

    template <class Enum, class Draw>
    static bool isLeftToBase(Enum element, Draw draw)
    {
        BaseStyle style;
        auto* base = new RecordingBase;
        style.setBaseStyle(base);
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        draw(style, StyleOptions::sampleFor(element), &painter);
        return base->painted.contains(StyleOptions::nameOf(element));
    }

    /// What is wrong with painting an element. Of those that are left to the base style, only a
    /// crash is.
    template <class Enum, class Draw>
    QByteArray paintFault(Enum element, Draw draw) const
    {
        MessageRecorder messages;
        const bool leftToBase = isLeftToBase(element, draw);
        return inAllCombinations(element, !leftToBase, [&](const Sample& sample) {
            const QByteArray fault =
                paint(messages, [&](QPainter* painter) { draw(*m_style, sample, painter); });
            return leftToBase ? QByteArray() : fault;
        });
    }

private Q_SLOTS:

    void initTestCase()
    {
#ifdef WITHOUT_THEME
        ProbeTheme::publishEmpty();
#else
        ProbeTheme::publish();
#endif
        m_style = new BaseStyle;
        QApplication::setStyle(m_style);
    }

    void cleanupTestCase()
    {
        std::printf("%d combinations\n", s_combinations);
    }

    void primitives_data()
    {
        addRows<QStyle::PrimitiveElement>();
    }

    void primitives()
    {
        QFETCH(int, element);
        const auto primitive = QStyle::PrimitiveElement(element);
        const auto draw = [&](const BaseStyle& style, const Sample& sample, QPainter* painter) {
            style.drawPrimitive(primitive, sample.option.get(), painter, sample.widget.get());
        };
        const QByteArray fault = paintFault(primitive, draw);
        QVERIFY2(fault.isEmpty(), fault.constData());
    }

    void controls_data()
    {
        addRows<QStyle::ControlElement>();
    }

    void controls()
    {
        QFETCH(int, element);
        const auto control = QStyle::ControlElement(element);
        const auto draw = [&](const BaseStyle& style, const Sample& sample, QPainter* painter) {
            style.drawControl(control, sample.option.get(), painter, sample.widget.get());
        };
        const QByteArray fault = paintFault(control, draw);
        QVERIFY2(fault.isEmpty(), fault.constData());
    }

    void complexControls_data()
    {
        addRows<QStyle::ComplexControl>();
    }

    void complexControls()
    {
        QFETCH(int, element);
        const auto control = QStyle::ComplexControl(element);
        const QVector<QStyle::SubControl> parts = StyleOptions::subControlsOf(control);
        const auto draw = [&](const BaseStyle& style, const Sample& sample, QPainter* painter) {
            const QStyleOptionComplex* option = complexOption(sample);
            const QWidget* widget = sample.widget.get();
            for (const QStyle::SubControl part : parts)
                style.subControlRect(control, option, part, widget);
            style.hitTestComplexControl(control, option, QPoint(5, 5), widget);
            style.drawComplexControl(control, option, painter, widget);
        };
        const QByteArray fault = paintFault(control, draw);
        QVERIFY2(fault.isEmpty(), fault.constData());
    }

    void subElements_data()
    {
        addRows<QStyle::SubElement>();
    }

    void subElements()
    {
        QFETCH(int, element);
        const auto subElement = QStyle::SubElement(element);
        MessageRecorder messages;
        const QByteArray fault = inAllCombinations(subElement, true, [&](const Sample& sample) {
            m_style->subElementRect(subElement, sample.option.get(), sample.widget.get());
            return warnings(messages);
        });
        QVERIFY2(fault.isEmpty(), fault.constData());
    }

    void contents_data()
    {
        addRows<QStyle::ContentsType>();
    }

    void contents()
    {
        QFETCH(int, element);
        const auto type = QStyle::ContentsType(element);
        MessageRecorder messages;
        const QByteArray fault = inAllCombinations(type, true, [&](const Sample& sample) {
            for (const QSize contents : {QSize(40, 16), QSize(), QSize(20000, 20000)}) {
                m_style->sizeFromContents(type, sample.option.get(), contents, sample.widget.get());
                m_style->sizeFromContents(type, nullptr, contents, nullptr);
            }
            return warnings(messages);
        });
        QVERIFY2(fault.isEmpty(), fault.constData());
    }

    void metricsAndHintsNeedNeitherOptionNorWidget()
    {
        MessageRecorder messages;
        const QWidget widget;
        for (const auto metric : StyleOptions::all<QStyle::PixelMetric>()) {
            m_style->pixelMetric(metric);
            m_style->pixelMetric(metric, nullptr, &widget);
            ++s_combinations;
        }
        QVERIFY(m_style->pixelMetric(QStyle::PixelMetric(BaseStyle::BRELK_PM_ListViewPadding)) > 0);
        for (const auto hint : StyleOptions::all<QStyle::StyleHint>()) {
            m_style->styleHint(hint);
            m_style->styleHint(hint, nullptr, &widget);
            ++s_combinations;
        }
        for (const auto pixmap : StyleOptions::all<QStyle::StandardPixmap>()) {
            m_style->standardIcon(pixmap);
            m_style->standardPixmap(pixmap, nullptr, &widget);
            ++s_combinations;
        }
        QCOMPARE(warnings(messages), QByteArray());
    }
};

QTEST_MAIN(tst_Contract)
#include "tst_Contract.moc"
