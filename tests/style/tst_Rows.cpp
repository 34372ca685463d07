#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QtTest>

#include <cstdio>
#include <functional>

// The controls of one row are of one height, and their texts stand on one line. The program is run
// at several resolutions.

using namespace BRELK;

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
Control spinBox(QAbstractSpinBox* widget)
{
    return {widget, [widget](const QString& text) { widget->setSpecialValueText(text); }};
}

Control dateEdit(bool calendar)
{
    auto* widget = new QDateEdit;
    widget->setDate(widget->minimumDate());
    widget->setCalendarPopup(calendar);
    return spinBox(widget);
}

/// The lowest line of pixels, in the window, that `text` changes in `control`: where letters
/// without descenders stand. -1 if none is.
int baselineOf(const Control& control, const QString& text)
{
    control.widget->setFixedSize(control.widget->size());
    const QImage with = control.widget->grab().toImage();
    control.setText(QStringLiteral(" "));
    const QImage without = control.widget->grab().toImage();
    control.setText(text);
    for (int y = with.height() - 1; y >= 0; --y)
        for (int x = 0; x < with.width(); ++x)
            if (with.pixel(x, y) != without.pixel(x, y))
                return control.widget->y() + y;
    return -1;
}

} // namespace

class tst_Rows : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        ProbeTheme::publish();
        QApplication::setStyle(new BaseStyle);
    }

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
        const QVector<Control> controls = {withText<QPushButton>(), withText<QLineEdit>(),
                                           comboBox(false),         comboBox(true),
                                           spinBox(new QSpinBox),   dateEdit(false),
                                           dateEdit(true),          withText<QToolButton>()};
        auto* row = new QHBoxLayout(&window);
        for (const Control& control : controls) {
            control.setText(text);
            row->addWidget(control.widget);
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const QWidget* first = controls.first().widget;
        const int height = first->sizeHint().height();
        const int baseline = baselineOf(controls.first(), text);
        for (const Control& control : controls) {
            const char* name = control.widget->metaObject()->className();
            QVERIFY2(control.widget->sizeHint().height() == height, name);
            QVERIFY2(control.widget->height() == height, name);
            const int own = baselineOf(control, text);
            QVERIFY2(own >= 0 && own == baseline,
                     qPrintable(QStringLiteral("%1: text stands at %2 and not at %3")
                                    .arg(QLatin1String(name))
                                    .arg(own - first->y())
                                    .arg(baseline - first->y())));
        }
        std::printf("%d points: height %d, baseline %d\n", points, height, baseline - first->y());
    }
};

QTEST_MAIN(tst_Rows)
#include "tst_Rows.moc"
