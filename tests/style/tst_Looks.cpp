#include "LookSheet.h"
#include "PictureDifference.h"
#include "SpyStyle.h"
#include "StateSheet.h"

// What the elements look like that the style paints or measures itself, in transcripts.

using namespace StateSheet;

namespace {

/// The elements of these kinds that the style paints or measures itself.
QVector<Element> ownElements(const QByteArrayList& kinds)
{
    QVector<Element> own;
    for (const Element& element : elements())
        if (kinds.contains(element.name.left(2)) && !isLeftToBase(element))
            own.append(element);
    return own;
}

/// What an element measures and paints.
QByteArray lookOf(const Element& element, const Settings& settings, const State& state)
{
    const Sample sample = sampleNamed(element.name, settings, state);
    QByteArray measured;
    const QByteArray painted = drawn([&](QPainter* painter) {
        measured = element.use(*QApplication::style(), sample, painter);
    });
    return measured + painted;
}

/// A recording, painted anew each time it is played, of what is to be seen on a fine screen.
class FinePicture : public QPicture
{
protected:
    int metric(PaintDeviceMetric metric) const override
    {
        const int scale = metric == PdmDevicePixelRatio || metric == PdmDevicePixelRatioScaled;
        return QPicture::metric(metric) << scale;
    }
};

constexpr int Fine = 2; ///< the ratio of such a screen

QImage onFineScreen(const QSize& size, const std::function<void(QPainter*)>& paint, bool recorded)
{
    QImage image(size * Fine, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    if (!recorded)
        image.setDevicePixelRatio(Fine);
    QPainter painter(&image);
    if (!recorded) {
        paint(&painter);
        return image;
    }
    FinePicture picture;
    QPainter recorder(&picture);
    paint(&recorder);
    recorder.end();
    painter.drawPicture(0, 0, picture);
    return image;
}

/// What is painted as a pixmap, and where.
QByteArrayList iconsOf(const QByteArray& look)
{
    QByteArrayList icons;
    for (const QByteArray& line : look.split('\n'))
        if (line.startsWith("pixmap"))
            icons.append(line.left(line.indexOf(" brush")));
    return icons;
}

void addLook(LookSheet& sheet, const Element& element, const QByteArray& words = {},
             const Settings& settings = {}, LookSheet::Written written = LookSheet::Here)
{
    LookSheet::States states;
    for (const State& state : {Hovered, Pressed, Checked, Focused, Disabled, RightToLeft})
        states.append({state.name, lookOf(element, settings, state)});
    sheet.add(element.name + words, lookOf(element, settings, AtRest), states,
              sampleNamed(element.name, settings).option->rect.width(), written);
}

/// The metrics by their values.
QByteArray toText(const QMap<int, QByteArrayList>& metrics)
{
    QByteArray text;
    for (auto value = metrics.cbegin(); value != metrics.cend(); ++value)
        text += QByteArray::number(value.key()) + ": " + value->join(' ') + '\n';
    return text;
}

/// `row` with each of the alternatives in its braces.
QByteArrayList alternatives(const QByteArray& row)
{
    const int open = row.indexOf('{');
    const int close = row.indexOf('}', open);
    if (open < 0 || close < 0)
        return {row.simplified()};
    QByteArrayList rows;
    for (const QByteArray& word : row.mid(open + 1, close - open - 1).split(','))
        rows += alternatives(row.left(open) + word + row.mid(close + 1));
    return rows;
}

} // namespace

class tst_Looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::useFont();
        applyProbeTheme();
    }

    void ofElements_data()
    {
        QTest::addColumn<QByteArray>("prefix");
        for (const char* prefix : {"PE", "CE", "CC", "SE", "CT"})
            QTest::newRow(prefix) << QByteArray(prefix);
    }

    void ofElements()
    {
        QFETCH(QByteArray, prefix);
        LookSheet sheet;
        for (const Element& element : ownElements({prefix}))
            addLook(sheet, element);
        COMPARE_TRANSCRIPT("Elements." + prefix, sheet.text());
    }

    /// In the usual and in a large font, and the hints in which the style has a mind of its own.
    void metricsAndHints()
    {
        const QStyle& style = *QApplication::style();
        QWidget large;
        QFont font = large.font();
        font.setPixelSize(2 * font.pixelSize());
        large.setFont(font);
        QMap<int, QByteArrayList> metrics;
        QMap<int, QByteArrayList> grown;
        for (const auto metric : all<QStyle::PixelMetric>()) {
            const int value = style.pixelMetric(metric);
            metrics[value] += nameOf(metric) + 3;
            if (const int larger = style.pixelMetric(metric, nullptr, &large); larger != value)
                grown[larger] += nameOf(metric) + 3;
        }
        QByteArray hints;
        const BRELK::BaseStyle plain;
        for (const auto hint : all<QStyle::StyleHint>())
            if (const int value = style.styleHint(hint);
                value != plain.baseStyle()->styleHint(hint))
                hints += QByteArray(nameOf(hint)) + ' ' + QByteArray::number(value) + '\n';
        COMPARE_TRANSCRIPT("MetricsAndHints", "# metrics\n" + toText(metrics)
                                                  + "# in a large font\n" + toText(grown)
                                                  + "# hints\n" + hints);
    }

    /// Drawings are kept as pixels and as laid-out lines, and nobody may see that.
    void onFineScreensAsPaintedAnew()
    {
        constexpr int Rounding = 8;
        // Their pens are a pixel wide, of the screen or of the recording.
        const QByteArrayList pens{"PE_IndicatorSpinUp", "PE_IndicatorSpinDown", "CC_SpinBox"};
        for (const Element& element : ownElements({"PE", "CE", "CC"}))
            for (const State& state : {AtRest, Checked, Disabled}) {
                const Sample sample = sampleNamed(element.name, {}, state);
                const QSize size = sample.option->rect.size();
                const auto paint = [&](QPainter* painter) {
                    element.use(*QApplication::style(), sample, painter);
                };
                if (element.name == QByteArray("CE_Header"))
                    continue; // its sort mark is Fusion's
                QCOMPARE(iconsOf(drawnAtRatio(Fine, paint)), iconsOf(drawn(paint)));
                QVERIFY2(!drawnAtRatio(Fine, paint).contains("blurred"), element.name);
                if (pens.contains(element.name))
                    continue;
                const QImage expected = onFineScreen(size, paint, true);
                for (int time = 0; time < 2; ++time)
                    QVERIFY2(largestDifference(onFineScreen(size, paint, false), expected)
                                 <= Rounding,
                             element.name);
            }
    }

    void withSettings_data()
    {
        QTest::addColumn<QByteArrayList>("rows");
        QFile file(QStringLiteral(VARN_LOOKS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QMap<QByteArray, QByteArrayList> rows;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.contains(": ") && !line.startsWith('#'))
                rows[line.left(line.indexOf(':'))] += alternatives(line.mid(line.indexOf(':') + 1));
        for (auto row = rows.cbegin(); row != rows.cend(); ++row)
            QTest::newRow(row.key()) << row.value();
    }

    /// A row names elements and, behind a bar, the settings that they are shown with.
    void withSettings()
    {
        QFETCH(QByteArrayList, rows);
        LookSheet sheet;
        QSet<QByteArray> plain;
        for (const QByteArray& row : rows) {
            const QByteArrayList names = row.split('|').first().simplified().split(' ');
            for (const Element& element : elements()) {
                if (!names.contains(element.name))
                    continue;
                if (!plain.contains(element.name))
                    addLook(sheet, element, {}, {}, LookSheet::Elsewhere);
                plain.insert(element.name);
                addLook(sheet, element, row.mid(row.indexOf('|') + 1),
                        settingsOf(row.split('|').last()));
            }
        }
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet.text());
    }
};

QTEST_MAIN(tst_Looks)
#include "tst_Looks.moc"
