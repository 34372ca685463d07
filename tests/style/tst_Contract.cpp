#include "BaseStyle.h"
#include "MessageRecorder.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"
#include "StateSheet.h"

// What holds for every element that the toolkit has, whoever paints or measures it. The program is
// built twice: with a theme that has every name, and with one that has none.

using namespace BRELK;
using StyleOptions::Element;
using StyleOptions::Sample;
using StyleOptions::sampleNamed;

namespace {

/// One way in which a call may differ from a widget's own, and what it is that differs.
struct Departure
{
    enum Aspect { Nothing, Look, Rect, HugeRect, Widget, Type };

    Aspect aspect;
    const char* name;
    void (*apply)(Sample&);
};

constexpr Departure Departures[] = {
    {Departure::Nothing, "as it is", [](Sample&) {}},
    {Departure::Look, "disabled",
     [](Sample& sample) {
         sample.widget->setEnabled(false);
         sample.option->state &= ~QStyle::State_Enabled;
         sample.option->palette.setCurrentColorGroup(QPalette::Disabled);
     }},
    {Departure::Look, "every state",
     [](Sample& sample) { sample.option->state = QStyle::State(~0); }},
    {Departure::Look, "right to left",
     [](Sample& sample) {
         sample.widget->setLayoutDirection(Qt::RightToLeft);
         sample.option->direction = Qt::RightToLeft;
     }},
    {Departure::Look, "palette without brushes",
     [](Sample& sample) {
         for (int role = 0; role < QPalette::NColorRoles; ++role)
             sample.option->palette.setBrush(QPalette::ColorRole(role), Qt::NoBrush);
     }},
    {Departure::Rect, "empty rect", [](Sample& sample) { sample.option->rect = QRect(); }},
    {Departure::Rect, "negative rect",
     [](Sample& sample) { sample.option->rect = QRect(10, 10, -20, -30); }},
    {Departure::Rect, "one pixel", [](Sample& sample) { sample.option->rect = QRect(3, 4, 1, 1); }},
    {Departure::HugeRect, "wide rect",
     [](Sample& sample) { sample.option->rect = QRect(-10, 0, 1000000, 24); }},
    {Departure::HugeRect, "tall rect",
     [](Sample& sample) { sample.option->rect = QRect(0, -10, 24, 1000000); }},
    {Departure::Widget, "no widget",
     [](Sample& sample) {
         if (auto* item = qstyleoption_cast<QStyleOptionViewItem*>(sample.option.get()))
             item->widget = nullptr;
         sample.widget.reset();
     }},
    {Departure::Widget, "foreign widget",
     [](Sample& sample) { sample.widget = std::make_shared<QWidget>(); }},
    // Options are cast by type, and not cast when theirs is older than the one asked for.
    {Departure::Type, "foreign option",
     [](Sample& sample) { sample.option->type = QStyleOption::SO_CustomBase; }},
    {Departure::Type, "older option", [](Sample& sample) { sample.option->version = 0; }},
};

/// What a painter is left with.
QVariantMap stateOf(const QPainter& painter)
{
    return {{QStringLiteral("pen"), painter.pen()},
            {QStringLiteral("brush"), painter.brush()},
            {QStringLiteral("background"), painter.background()},
            {QStringLiteral("background mode"), painter.backgroundMode()},
            {QStringLiteral("brush origin"), painter.brushOrigin()},
            {QStringLiteral("font"), painter.font()},
            {QStringLiteral("transform"), painter.worldTransform()},
            {QStringLiteral("clip"), painter.hasClipping() ? painter.clipRegion() : QRegion()},
            {QStringLiteral("hints"), int(painter.renderHints())},
            {QStringLiteral("opacity"), painter.opacity()},
            {QStringLiteral("composition"), painter.compositionMode()},
            {QStringLiteral("direction"), painter.layoutDirection()}};
}

/// What the toolkit has warned of since `messages` was asked last. It always warns of what the
/// platform without a screen lacks.
QString warnings(MessageRecorder& messages)
{
    QStringList texts;
    for (const QString& text : messages.take())
        if (!text.startsWith(QLatin1String("This plugin does not")))
            texts.append(text);
    return texts.join(QLatin1String("; "));
}

/// Uses an element and tells how the painter was not left as it was found, or else what the toolkit
/// warned of.
QString faultIn(const QStyle& style, const Element& element, const Sample& sample,
                MessageRecorder& messages)
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 3));
    painter.setBrush(Qt::cyan);
    painter.setFont(QFont(QStringLiteral("Serif"), 7));
    painter.translate(1, 2);
    painter.setClipRect(QRect(2, 2, 40, 40));
    painter.setOpacity(0.75);
    const QVariantMap before = stateOf(painter);
    element.use(style, sample, &painter);
    const QVariantMap after = stateOf(painter);
    for (const QString& key : before.keys())
        if (after.value(key) != before.value(key))
            return QLatin1String("changes the painter's ") + key;
    return warnings(messages);
}

/// What an element paints in the middle of a picture: its option stands there, or the painter does.
QImage painted(const QStyle& style, const Element& element, const Departure& departure, bool moved)
{
    constexpr QPoint Place(60, 30);
    const Sample own = sampleNamed(element.name);
    Sample sample = own;
    departure.apply(sample);
    QImage image(260, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::gray);
    QPainter painter(&image);
    if (!moved) {
        painter.translate(Place);
    } else {
        sample.option->rect.translate(Place);
        if (auto* frame = qstyleoption_cast<QStyleOptionTabWidgetFrame*>(sample.option.get()))
            frame->selectedTabRect.translate(Place);
        if (auto* base = qstyleoption_cast<QStyleOptionTabBarBase*>(sample.option.get()))
            base->selectedTabRect.translate(Place);
    }
    element.use(style, sample, &painter);
    return image;
}

} // namespace

class tst_Contract : public QObject
{
    Q_OBJECT

private:
    BaseStyle* m_style = nullptr;

private Q_SLOTS:

    void initTestCase() { m_style = StateSheet::applyProbeTheme(WITH_THEME); }

    void elements_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < StyleOptions::elements().size(); ++index)
            QTest::newRow(StyleOptions::elements().at(index).name) << index;
    }

    /// In every combination that departs from a widget's own call in up to two ways at once.
    void elements()
    {
        QFETCH(int, index);
        const Element& element = StyleOptions::elements().at(index);
        // Of those that are left to the base style only a crash is a fault; it paints some of them
        // into a pixmap of their size first.
        const bool leftToBase = isLeftToBase(element);
        MessageRecorder messages;
        for (const Departure& first : Departures)
            for (const Departure& second : Departures) {
                const bool alone = first.aspect == Departure::Nothing;
                const bool huge =
                    second.aspect == Departure::HugeRect || first.aspect == Departure::HugeRect;
                if ((leftToBase && huge) || !(alone || first.aspect < second.aspect))
                    continue;
                const Sample own = sampleNamed(element.name);
                Sample sample = own;
                first.apply(sample);
                second.apply(sample);
                const QString fault = faultIn(*m_style, element, sample, messages);
                if (!fault.isEmpty() && !leftToBase)
                    QFAIL(qPrintable(QLatin1String(first.name) + QLatin1String(", ")
                                     + QLatin1String(second.name) + QLatin1String(": ") + fault));
            }
    }

    void elementsArePaintedWhereTheyStand_data() { elements_data(); }

    /// As a delegate paints them, which passes what it likes as widget.
    void elementsArePaintedWhereTheyStand()
    {
        QFETCH(int, index);
        const Element& element = StyleOptions::elements().at(index);
        if (isLeftToBase(element))
            return;
        for (const Departure& departure : Departures)
            if (departure.aspect == Departure::Nothing || departure.aspect == Departure::Look
                || departure.aspect == Departure::Widget)
                QVERIFY2(painted(*m_style, element, departure, false)
                             == painted(*m_style, element, departure, true),
                         departure.name);
    }

    void metricsAndHintsNeedNeitherOptionNorWidget()
    {
        MessageRecorder messages;
        const QWidget widget;
        for (const auto metric : StyleOptions::all<QStyle::PixelMetric>()) {
            m_style->pixelMetric(metric);
            m_style->pixelMetric(metric, nullptr, &widget);
        }
        for (const auto hint : StyleOptions::all<QStyle::StyleHint>()) {
            m_style->styleHint(hint);
            m_style->styleHint(hint, nullptr, &widget);
        }
        for (const auto pixmap : StyleOptions::all<QStyle::StandardPixmap>()) {
            m_style->standardIcon(pixmap);
            m_style->standardPixmap(pixmap, nullptr, &widget);
        }
        QCOMPARE(warnings(messages), QString());
    }
};

QTEST_MAIN(tst_Contract)
#include "tst_Contract.moc"
