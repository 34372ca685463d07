#include "OddCases.h"

#include "ProbeTheme.h"

#include <QtWidgets>

#include <limits>

using StyleOptions::Sample;

namespace {

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Most = std::numeric_limits<int>::max();

/// The names of all properties that the style reads, from the file that has them.
const QByteArrayList& propertyNames()
{
    static const QByteArrayList sNames = [] {
        QFile file(QStringLiteral(VARN_PROPERTIES));
        file.open(QIODevice::ReadOnly);
        QByteArrayList names = file.readAll().split('"');
        for (int i = names.size() - 1; i >= 0; --i)
            if (i % 2 == 0 || names.at(i).endsWith(".h"))
                names.removeAt(i);
        return names;
    }();
    return sNames;
}

const StyleOptions::Element& anyElement(QRandomGenerator& random)
{
    return StyleOptions::elements().at(random.bounded(StyleOptions::elements().size()));
}

} // namespace

int OddCases::number()
{
    const int ordinary = m_random.bounded(-100, 200);
    const int bearable = oneOf({ordinary, ordinary, ordinary, 0, 1, -1, 2, 1 << 12, -(1 << 12)});
    if (!m_far || !rarely())
        return bearable;
    return oneOf({Most, Least, Most - 1, Least + 1, Most / 2, Least / 2, 1 << 15, 1 << 16, 1 << 20,
                  -(1 << 20), 1 << 24, 1 << 25, int(m_random.generate())});
}

/// One whose size is a number too.
QRect OddCases::rect()
{
    QRect rect;
    for (int tries = 0; tries == 0 || qint64(rect.right()) - rect.left() >= Most
                        || qint64(rect.bottom()) - rect.top() >= Most;
         ++tries) {
        const int left = number();
        const int top = number();
        const auto sum = [](qint64 a, qint64 b) { return int(qBound<qint64>(Least, a + b, Most)); };
        rect.setCoords(left, top, sum(left, number()), sum(top, number()));
    }
    return rect;
}

QString OddCases::text()
{
    return oneOf({QString(), QStringLiteral("Text"), QStringLiteral("&"), QStringLiteral("&&a&b&"),
                  QStringLiteral("Two\nlines\tand\vmore\r\n"), QString(5000, QLatin1Char('w')),
                  QStringLiteral("<b>rich</b> <img src='none'>"), QString(1, QChar(0)),
                  QString(3, QChar(0xd800)), QStringLiteral("\u05e9\u05dc\u05d5\u202e\u0e01\u0301"),
                  QString(QChar(m_random.bounded(0x10000)))});
}

QIcon OddCases::icon()
{
    const int kind = m_random.bounded(4);
    if (kind == 0)
        return {};
    if (kind == 1)
        return QIcon(QStringLiteral(":/Icons/action.close.svg"));
    QPixmap pixmap(kind == 2 ? QSize(1, 300) : QSize(64, 64));
    pixmap.fill(QColor::fromRgba(m_random.generate()));
    pixmap.setDevicePixelRatio(oneOf({1.0, 1.5, 2.0}));
    return pixmap;
}

QBrush OddCases::brush()
{
    const QColor color = QColor::fromRgba(m_random.generate());
    switch (m_random.bounded(6)) {
    case 0: return Qt::NoBrush;
    case 1: return QBrush(QLinearGradient(rect().topLeft(), rect().topLeft()));
    case 2: return QBrush(QRadialGradient(0.5, 0.5, number()));
    case 3: return QPixmap(ProbeTheme::pixmap());
    case 4: return {color, Qt::BrushStyle(m_random.bounded(int(Qt::DiagCrossPattern) + 1))};
    default: return color;
    }
}

QPalette OddCases::palette()
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        if (!rarely())
            palette.setBrush(QPalette::ColorGroup(m_random.bounded(int(QPalette::NColorGroups))),
                             QPalette::ColorRole(role), brush());
    return palette;
}

QVariant OddCases::variant()
{
    switch (m_random.bounded(14)) {
    case 0: return {};
    case 1: return false;
    case 2: return number();
    case 3: return oneOf({1e300, qQNaN(), -qInf()});
    case 4: return text();
    case 5: return brush();
    case 6: return icon();
    case 7: return palette();
    case 8: return QColor(Qt::red);
    case 9: return QVariantMap{{text(), rect()}};
    case 10: // some of the words that the properties are about
        return QLatin1String(oneOf({"Danger", "Success", "Warning", "Error", "Info", "Primary",
                                    "Secondary", "First", "Last", "Round", "Square"}));
    default: return true;
    }
}

template <class Option, class... Fields>
void OddCases::setFields(QStyleOption& option, Fields Option::*... fields)
{
    if (auto* own = qstyleoption_cast<Option*>(&option))
        (set(own->*fields), ...);
}

void OddCases::spoilFields(QStyleOption& option)
{
    using Frame = QStyleOptionFrame;
    setFields(option, &QStyleOptionComplex::subControls, &QStyleOptionComplex::activeSubControls);
    setFields(option, &Frame::lineWidth, &Frame::midLineWidth, &Frame::features,
              &Frame::frameShape);
    using Pane = QStyleOptionTabWidgetFrame;
    setFields(option, &Pane::lineWidth, &Pane::tabBarSize, &Pane::tabBarRect,
              &Pane::selectedTabRect, &Pane::shape);
    using Base = QStyleOptionTabBarBase;
    setFields(option, &Base::tabBarRect, &Base::selectedTabRect, &Base::shape);
    using Header = QStyleOptionHeader;
    setFields(option, &Header::section, &Header::text, &Header::icon, &Header::textAlignment,
              &Header::position, &Header::sortIndicator, &Header::orientation);
    using Button = QStyleOptionButton;
    setFields(option, &Button::features, &Button::text, &Button::icon, &Button::iconSize);
    using Tab = QStyleOptionTab;
    setFields(option, &Tab::text, &Tab::icon, &Tab::row, &Tab::iconSize, &Tab::leftButtonSize,
              &Tab::rightButtonSize, &Tab::cornerWidgets, &Tab::shape, &Tab::position);
    using ToolBar = QStyleOptionToolBar;
    setFields(option, &ToolBar::features, &ToolBar::lineWidth, &ToolBar::toolBarArea);
    using Bar = QStyleOptionProgressBar;
    setFields(option, &Bar::minimum, &Bar::maximum, &Bar::progress, &Bar::text, &Bar::textVisible,
              &Bar::textAlignment, &Bar::invertedAppearance, &Bar::bottomToTop, &Bar::orientation);
    using Entry = QStyleOptionMenuItem;
    setFields(option, &Entry::checked, &Entry::menuHasCheckableItems, &Entry::menuRect,
              &Entry::text, &Entry::icon, &Entry::maxIconWidth, &Entry::tabWidth,
              &Entry::menuItemType, &Entry::checkType);
    using Dock = QStyleOptionDockWidget;
    setFields(option, &Dock::title, &Dock::closable, &Dock::verticalTitleBar);
    using Item = QStyleOptionViewItem;
    setFields(option, &Item::displayAlignment, &Item::decorationAlignment, &Item::decorationSize,
              &Item::features, &Item::icon, &Item::text, &Item::backgroundBrush,
              &Item::decorationPosition, &Item::textElideMode, &Item::checkState,
              &Item::viewItemPosition);
    setFields(option, &QStyleOptionToolBox::text, &QStyleOptionToolBox::icon);
    using Slider = QStyleOptionSlider;
    setFields(option, &Slider::minimum, &Slider::maximum, &Slider::sliderPosition,
              &Slider::sliderValue, &Slider::singleStep, &Slider::pageStep, &Slider::tickInterval,
              &Slider::upsideDown, &Slider::notchTarget, &Slider::dialWrapping,
              &Slider::orientation, &Slider::tickPosition);
    using SpinBox = QStyleOptionSpinBox;
    setFields(option, &SpinBox::frame, &SpinBox::stepEnabled, &SpinBox::buttonSymbols);
    using Tool = QStyleOptionToolButton;
    setFields(option, &Tool::features, &Tool::text, &Tool::icon, &Tool::iconSize, &Tool::arrowType,
              &Tool::toolButtonStyle);
    using Combo = QStyleOptionComboBox;
    setFields(option, &Combo::editable, &Combo::frame, &Combo::currentText, &Combo::currentIcon,
              &Combo::iconSize);
    using Title = QStyleOptionTitleBar;
    setFields(option, &Title::text, &Title::icon, &Title::titleBarState, &Title::titleBarFlags);
    using Group = QStyleOptionGroupBox;
    setFields(option, &Group::features, &Group::text, &Group::textAlignment, &Group::lineWidth);
}

void OddCases::spoilWidget(Sample& sample)
{
    const int kind = m_random.bounded(5);
    if (kind == 0)
        sample.widget.reset();
    else if (kind == 1)
        sample.widget = StyleOptions::sampleNamed(anyElement(m_random).name).widget;
    else if (kind == 2)
        sample.widget->resize(rect().size());
    for (int count = m_random.bounded(4); sample.widget && count > 0; --count)
        sample.widget->setProperty(propertyNames().at(m_random.bounded(propertyNames().size())),
                                   variant());
    if (auto* item = qstyleoption_cast<QStyleOptionViewItem*>(sample.option.get()))
        item->widget = sample.widget.get();
}

void OddCases::spoilType(const QByteArray& name, Sample& sample)
{
    const auto isComplex = [](const QByteArray& element) { return element.startsWith("CC_"); };
    if (const auto& other = anyElement(m_random); isComplex(other.name) || !isComplex(name)) {
        const Sample whole = StyleOptions::sampleNamed(other.name);
        sample.option = whole.option;
        sample.parent = whole.widget; // what the option tells of lives there
    }
    if (rarely())
        sample.option->version = 0;
    if (rarely())
        sample.option->type = oneOf({QStyleOption::SO_Default, QStyleOption::SO_CustomBase});
}

void OddCases::spoil(const QByteArray& name, Sample& sample)
{
    QStyleOption& option = *sample.option;
    switch (m_random.bounded(8)) {
    case 0: option.state = QStyle::State(QFlag(int(m_random.generate()))); break;
    case 1: option.direction = oneOf({Qt::LeftToRight, Qt::RightToLeft}); break;
    case 2: option.palette = palette(); break;
    case 3: option.palette.setCurrentColorGroup(QPalette::ColorGroup(m_random.bounded(3))); break;
    case 4: spoilFields(option); break;
    case 5:
        if (sample.widget)
            spoilWidget(sample);
        break;
    case 6: spoilType(name, sample); break;
    default: option.rect = rect();
    }
    if (rarely())
        spoil(name, sample);
}

void OddCases::setUp(QPainter& painter)
{
    painter.setPen(QPen(brush(), oneOf({0.0, 0.5, 1.0, 3.0, 1e6}),
                        Qt::PenStyle(m_random.bounded(int(Qt::CustomDashLine)))));
    painter.setBrush(brush());
    painter.setFont(QFont(QStringLiteral("Serif"), oneOf({1, 7, 40})));
    painter.setRenderHints(QPainter::RenderHints(QFlag(m_random.bounded(16))), rarely());
    painter.setOpacity(oneOf({1.0, 0.75, 0.0}));
    painter.setLayoutDirection(oneOf({Qt::LeftToRight, Qt::RightToLeft, Qt::LayoutDirectionAuto}));
    if (!m_far)
        return;
    const qreal factor = oneOf({1.0, 0.5, 1.25, 3.0, -1.0, 0.0, 1e-3, 1e-9, 30.0});
    switch (m_random.bounded(8)) {
    case 0: painter.scale(factor, factor); break;
    case 1: painter.scale(factor, 1); break;
    case 2: painter.rotate(number()); break;
    case 3: painter.shear(factor, 0.5); break;
    case 4: painter.translate(number(), number() / 3.0); break;
    case 5: painter.setTransform({1, 0, 0.01 * factor, 0, 1, 0.002, 5, 5, 1}); break;
    default: break;
    }
    switch (m_random.bounded(6)) {
    case 0: painter.setClipRect(rect()); break;
    case 1: painter.setClipRegion(QRegion(rect()) ^ QRegion(5, 5, 60, 40, QRegion::Ellipse)); break;
    case 2:
        QPainterPath path;
        path.addEllipse(rect());
        painter.setClipPath(path);
    }
}

void OddCases::paintAnywhere(const std::function<void(QPainter&)>& paint)
{
    const qreal ratio = oneOf({1.0, 1.5, 2.0});
    const auto paintOn = [&](QPaintDevice& device) {
        QPainter painter(&device);
        setUp(painter);
        paint(painter);
    };
    const int kind = m_far ? m_random.bounded(8) : 7;
    if (kind == 0) {
        QPixmap pixmap(90, 60);
        pixmap.setDevicePixelRatio(ratio);
        paintOn(pixmap);
    } else if (kind == 1) {
        QPicture picture;
        paintOn(picture);
    } else if (kind == 2) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(96); // what it cannot do is painted into pictures of the whole page
        paintOn(writer);
    } else if (kind == 3) {
        QBitmap bitmap(90, 60);
        paintOn(bitmap);
    } else {
        QImage image(
            90, 60,
            oneOf({QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32, QImage::Format_RGB16,
                   QImage::Format_Mono, QImage::Format_Grayscale8, QImage::Format_RGBA64}));
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::gray);
        paintOn(image);
    }
}
