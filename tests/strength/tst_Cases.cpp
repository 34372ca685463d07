#include "MessageRecorder.h"
#include "OddCases.h"
#include "SpyStyle.h"
#include "StateSheet.h"

#include <ctime>

// Whatever the style is asked for: nothing crashes, the painter is left as it was found, and the
// toolkit warns of nothing. VARN_CASES says how often it is asked, and VARN_CASE the number of the
// first row, each of which asks ten times.

using namespace BRELK;
using StyleOptions::Element;
using StyleOptions::Sample;

namespace {

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
            {QStringLiteral("clip"), QVariant::fromValue(painter.clipPath().boundingRect())},
            {QStringLiteral("clipped"), painter.hasClipping()},
            {QStringLiteral("hints"), int(painter.renderHints())},
            {QStringLiteral("opacity"), painter.opacity()},
            {QStringLiteral("composition"), painter.compositionMode()},
            {QStringLiteral("direction"), painter.layoutDirection()}};
}

/// How the painter was not left as it was found, when `element` had been used.
QString changeBy(const Element& element, const QStyle& style, const Sample& sample,
                 QPainter& painter)
{
    const QVariantMap before = stateOf(painter);
    element.use(style, sample, &painter);
    const QVariantMap after = stateOf(painter);
    for (const QString& key : before.keys())
        if (after.value(key) != before.value(key))
            return QLatin1String("changes the painter's ") + key;
    return {};
}

} // namespace

class tst_Cases : public QObject
{
    Q_OBJECT

private:
    BaseStyle* m_style = nullptr;
    QVector<bool> m_isBase; ///< what elements are left to the base style

    /// Uses an element a few times, each time in an odder way.
    QString faultIn(int number) const
    {
        constexpr int Uses = 10;
        constexpr std::clock_t Long = 10 * CLOCKS_PER_SEC;
        const int index = number % StyleOptions::elements().size();
        const Element& element = StyleOptions::elements().at(index);
        // Of those that are left to the base style only a crash is a fault; it paints some of them
        // into a pixmap of their size first.
        const bool isBase = m_isBase.at(index);
        OddCases odd(quint32(number), !isBase);
        MessageRecorder messages;
        QVector<Sample> samples{StyleOptions::sampleNamed(element.name)};
        for (int use = 0; use < Uses; ++use) {
            samples.append(samples.last());
            odd.spoil(element.name, samples.last());
            QString change;
            const std::clock_t start = std::clock();
            odd.paintAnywhere([&](QPainter& painter) {
                change = changeBy(element, *m_style, samples.last(), painter);
            });
            QStringList faults = messages.take();
            if (!change.isEmpty())
                faults.append(change);
            if (std::clock() - start > Long)
                faults.append(QStringLiteral("takes long"));
            if (!isBase && !faults.isEmpty())
                return QLatin1String(element.name) + QLatin1String(": ")
                       + faults.join(QLatin1String("; "));
        }
        return {};
    }

private Q_SLOTS:

    void initTestCase()
    {
        m_style = StateSheet::applyProbeTheme(!qEnvironmentVariableIsSet("VARN_NO_THEME"));
        for (const Element& element : StyleOptions::elements())
            m_isBase.append(isLeftToBase(element));
    }

    void nothingBreaksTheStyle_data()
    {
        constexpr int UsesOfCase = 10;
        constexpr int Few = 100;
        const int first = qMax(1, qEnvironmentVariableIntValue("VARN_CASE"));
        const int asked = qEnvironmentVariableIntValue("VARN_CASES") / UsesOfCase;
        QTest::addColumn<int>("number");
        for (int number = first; number < first + (asked ? asked : Few); ++number)
            QTest::newRow(QByteArray::number(number)) << number;
    }

    void nothingBreaksTheStyle()
    {
        QFETCH(int, number);
        const QString fault = faultIn(number);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
};

QTEST_MAIN(tst_Cases)
#include "tst_Cases.moc"
