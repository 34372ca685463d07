#include "StateSheet.h"

#include <functional>

// The controls of one row are of one height, and their texts stand on one line. The program is run
// at several resolutions.

namespace {

struct Control
{
    QWidget* widget;
    std::function<void(const QString&)> setText;
};

template <class Widget>
Control withText()
{
    auto* widget = new Widget;
    return {widget, [widget](const QString& text) { widget->setText(text); }};
}

Control comboBox(bool editable)
{
    auto* widget = new QComboBox;
    widget->addItem(QString());
    widget->setEditable(editable);
    return {widget, [widget](const QString& text) { widget->setItemText(0, text); }};
}

/// Shows a text in place of its least value.
Control spinBox(QAbstractSpinBox* widget, bool calendar = false)
{
    widget->setProperty("date", widget->property("minimumDate"));
    widget->setProperty("calendarPopup", calendar);
    return {widget, [widget](const QString& text) { widget->setSpecialValueText(text); }};
}

constexpr int WideEnough = 160; ///< for texts not to be scrolled

/// The pixels of `control` that `text`, which is best without descenders, changes.
QRect inkOf(const Control& control, const QString& text)
{
    control.widget->setFixedSize(control.widget->size());
    const QImage with = control.widget->grab().toImage();
    control.setText(QStringLiteral(" "));
    const QImage without = control.widget->grab().toImage();
    control.setText(text);
    QRect ink;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            if (with.pixel(x, y) != without.pixel(x, y))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

bool isInput(const QWidget* widget)
{
    return !qobject_cast<const QAbstractButton*>(widget);
}

} // namespace

class tst_Rows : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { StateSheet::applyProbeTheme(); }

    void controlsOfARowLineUp_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<bool>("rightToLeft");
        QTest::addColumn<QString>("styleSheet");
        for (const int points : {8, 9, 10, 14, 20})
            for (const bool rightToLeft : {false, true})
                for (const char* sheet : {"", "QHeaderView { border: none; }"})
                    QTest::addRow("%d points%s%s", points, rightToLeft ? ", right to left" : "",
                                  *sheet ? ", under a style sheet" : "")
                        << points << rightToLeft << QString::fromLatin1(sheet);
    }

    void controlsOfARowLineUp()
    {
        QFETCH(int, points);
        QFETCH(bool, rightToLeft);
        QFETCH(QString, styleSheet);
        qApp->setStyleSheet(styleSheet);
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);

        const QString text = QStringLiteral("Text");
        QWidget window;
        window.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        const QVector<Control> controls = {withText<QPushButton>(),
                                           withText<QLineEdit>(),
                                           comboBox(false),
                                           comboBox(true),
                                           spinBox(new QSpinBox),
                                           spinBox(new QDateEdit),
                                           spinBox(new QDateEdit, true),
                                           withText<QToolButton>()};
        auto* row = new QHBoxLayout(&window);
        for (const Control& control : controls) {
            control.setText(text);
            control.widget->setMinimumWidth(WideEnough);
            row->addWidget(control.widget);
        }
        window.show();

        const int height = controls.first().widget->sizeHint().height();
        const int baseline = inkOf(controls.first(), text).bottom();
        const int indent = inkOf(controls.at(1), text).left();
        for (const Control& control : controls) {
            const char* name = control.widget->metaObject()->className();
            QVERIFY2(control.widget->sizeHint().height() == height, name);
            QVERIFY2(control.widget->height() == height, name);
            const QRect ink = inkOf(control, text);
            QVERIFY2(!ink.isEmpty() && ink.bottom() == baseline, name);
            QVERIFY2(rightToLeft || !isInput(control.widget) || ink.left() == indent, name);
        }
    }
};

QTEST_MAIN(tst_Rows)
#include "tst_Rows.moc"
