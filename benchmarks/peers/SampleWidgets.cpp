#include "SampleWidgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDial>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QToolButton>

#include <vector>

namespace Peers {

namespace {

template <class Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

template <class Widget>
QWidget* makeWithText(QWidget* parent)
{
    auto* widget = new Widget(parent);
    widget->setText(QStringLiteral("Specimen"));
    return widget;
}

const std::vector<QWidget* (*)(QWidget*)>& kinds()
{
    static const std::vector<QWidget* (*)(QWidget*)> sKinds{
        makeWithText<QPushButton>,
        makeWithText<QCheckBox>,
        makeWithText<QRadioButton>,
        makeWithText<QToolButton>,
        makeWithText<QLabel>,
        makeWithText<QLineEdit>,
        make<QComboBox>,
        make<QSpinBox>,
        make<QDoubleSpinBox>,
        make<QDateEdit>,
        make<QSlider>,
        make<QDial>,
        make<QProgressBar>,
        make<QScrollBar>,
        make<QGroupBox>,
        make<QFrame>,
        make<QTabBar>,
        make<QListWidget>,
        make<QPlainTextEdit>,
        makeWithText<QPushButton>,
    };
    return sKinds;
}

} // namespace

void addSampleWidgets(QWidget& parent, int count)
{
    constexpr int Columns = 40;
    constexpr QSize Size(100, 30);
    for (int i = 0; i < count; ++i) {
        QWidget* widget = kinds().at(size_t(i) % kinds().size())(&parent);
        widget->setGeometry({{i % Columns * Size.width(), i / Columns * Size.height()}, Size});
    }
    parent.resize(Columns * Size.width(), (count / Columns + 1) * Size.height());
}

} // namespace Peers
