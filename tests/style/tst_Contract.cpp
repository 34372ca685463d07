#include "BaseStyle.h"
#include "MessageRecorder.h"
#include "ProbeTheme.h"
#include "SpyStyle.h"
#include "StateSheet.h"

#include <QPicture>

// What holds for every element that the toolkit has, whoever paints or measures it. The program is
// built twice: with a theme that has every name, and with one that has none.

using namespace BRELK;
using namespace StyleOptions;

namespace {

/// A way in which a call may differ from a widget's own.
struct Departure
{
    const char* name;
    State state = AtRest;
    void (*apply)(Sample&) = [](Sample&) {};
};

const Departure Departures[] = {
    {"as it is"},
    {"disabled", Disabled},
    {"right to left", RightToLeft},
    {"every state", {"", QStyle::State(~0)}},
    {"no widget", AtRest,
     [](Sample& sample) {
         if (auto* item = qstyleoption_cast<QStyleOptionViewItem*>(sample.option.get()))
             item->widget = nullptr;
         sample.widget.reset();
     }},
    {"foreign widget", AtRest, [](Sample& sample) { sample.widget = std::make_shared<QWidget>(); }},
};

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

/// What an element paints in the middle of a picture: its option stands there, or the painter does.
QImage painted(const QStyle& style, const Element& element, const Departure& departure, bool moved)
{
    constexpr QPoint Place(60, 30);
    const Sample own = sampleNamed(element.name, {}, departure.state);
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

    void elementsArePaintedWhereTheyStand_data()
    {
        QTest::addColumn<int>("index");
        for (int index = 0; index < StyleOptions::elements().size(); ++index)
            QTest::newRow(StyleOptions::elements().at(index).name) << index;
    }

    /// As a delegate paints them, which passes what it likes as widget.
    void elementsArePaintedWhereTheyStand()
    {
        QFETCH(int, index);
        const Element& element = StyleOptions::elements().at(index);
        if (isLeftToBase(element))
            return;
        for (const Departure& departure : Departures)
            QVERIFY2(painted(*m_style, element, departure, false)
                         == painted(*m_style, element, departure, true),
                     departure.name);
    }

    /// On a recording, where all of it could be seen.
    void nothingIsPaintedPieceByPiece()
    {
        constexpr uint MostBytes = 1 << 23;
        for (const Element& element : StyleOptions::elements())
            for (const QSize& size : {QSize(1 << 24, 20), QSize(20, 1 << 24)})
                for (const bool horizontal : {true, false}) {
                    const Sample sample = sampleNamed(element.name);
                    sample.option->rect = QRect(QPoint(), size);
                    sample.option->state.setFlag(QStyle::State_Horizontal, horizontal);
                    QPicture picture;
                    QPainter painter(&picture);
                    if (!isLeftToBase(element))
                        element.use(*m_style, sample, &painter);
                    painter.end();
                    QVERIFY2(picture.size() < MostBytes, element.name);
                }
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
