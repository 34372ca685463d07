#include "SpyStyle.h"
#include "StateSheet.h"

// What the elements look like that the style paints or measures itself, in transcripts.

using namespace StateSheet;
using StyleOptions::Element;
using StyleOptions::Settings;

namespace {

constexpr State RightToLeft{"right to left"};

/// What an element measures and paints.
QByteArray lookOf(const Element& element, const Settings& settings, const State& state,
                  int fontSize)
{
    QFont font = QApplication::font();
    font.setPixelSize(fontSize);
    QApplication::setFont(font);
    const Sample sample = StyleOptions::sampleNamed(element.name, settings);
    if (state.name == RightToLeft.name) {
        sample.widget->setLayoutDirection(Qt::RightToLeft);
        sample.option->direction = Qt::RightToLeft;
    }
    sample.widget->setEnabled(state.removed == QStyle::State_None);
    setState(*sample.option, state);
    QByteArray measured;
    const QByteArray painted = drawn([&](QPainter* painter) {
        measured = element.use(*QApplication::style(), sample, painter);
    });
    return measured + painted;
}

/// With "~" for what depends on the font.
QByteArray lookOf(const Element& element, const Settings& settings, const State& state)
{
    QByteArrayList lines = lookOf(element, settings, state, 18).split('\n');
    const QByteArrayList others = lookOf(element, settings, state, 12).split('\n');
    if (lines.size() != others.size())
        return "~\n";
    for (int i = 0; i < lines.size(); ++i) {
        QByteArrayList words = lines.at(i).split(' ');
        const QByteArrayList otherWords = others.at(i).split(' ');
        for (int word = 0; word < words.size(); ++word)
            if (words.at(word) != otherWords.value(word))
                words[word] = "~";
        lines[i] = words.join(' ');
    }
    return lines.join('\n');
}

/// In each state, as far as it differs from the one at rest.
QByteArray looksOf(const Element& element, const Settings& settings = {})
{
    const QByteArray atRest = lookOf(element, settings, AtRest);
    QByteArray sheet = atRest;
    for (const State& state : {Hovered, Pressed, Checked, Focused, Disabled, RightToLeft})
        if (const QByteArray look = lookOf(element, settings, state); look != atRest)
            sheet += QByteArray("[") + state.name + "]\n" + look;
    return sheet;
}

Settings settingsOf(const QByteArray& words)
{
    Settings settings;
    for (const QByteArray& word : words.simplified().split(' ')) {
        const QList<QByteArray> pair = word.split('=');
        settings.insert(pair.first(), pair.size() == 2 ? QVariant(QString::fromLatin1(pair.last()))
                                                       : QVariant(true));
    }
    return settings;
}

} // namespace

class tst_Looks : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { applyProbeTheme(); }

    void ofElements_data()
    {
        QTest::addColumn<QByteArray>("prefix");
        for (const char* prefix : {"PE", "CE", "CC", "SE", "CT"})
            QTest::newRow(prefix) << QByteArray(prefix);
    }

    void ofElements()
    {
        QFETCH(QByteArray, prefix);
        QByteArray sheet;
        for (const Element& element : StyleOptions::elements())
            if (element.name.startsWith(prefix) && !isLeftToBase(element))
                sheet += "# " + element.name + '\n' + looksOf(element);
        COMPARE_TRANSCRIPT("Elements." + prefix, sheet);
    }

    void withSettings_data()
    {
        QTest::addColumn<QByteArrayList>("rows");
        QFile file(QStringLiteral(VARN_LOOKS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QMap<QByteArray, QByteArrayList> rows;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (line.contains(": ") && !line.startsWith('#'))
                rows[line.left(line.indexOf(':'))] += line.mid(line.indexOf(':') + 2);
        for (auto row = rows.cbegin(); row != rows.cend(); ++row)
            QTest::newRow(row.key()) << row.value();
    }

    /// A row names elements and, behind a bar, the settings that they are shown with.
    void withSettings()
    {
        QFETCH(QByteArrayList, rows);
        QByteArray sheet;
        for (const QByteArray& row : rows) {
            const QByteArrayList elements = row.split('|').first().simplified().split(' ');
            for (const Element& element : StyleOptions::elements())
                if (elements.contains(element.name))
                    sheet += "# " + element.name + row.mid(row.indexOf('|') + 1) + '\n'
                             + looksOf(element, settingsOf(row.split('|').last()));
        }
        COMPARE_TRANSCRIPT(QTest::currentDataTag(), sheet);
    }
};

QTEST_MAIN(tst_Looks)
#include "tst_Looks.moc"
