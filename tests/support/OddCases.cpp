#include "OddCases.h"

#include "ProbeTheme.h"
#include "Transcript.h"

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

template <class Option, class Enum>
void OddCases::setEnum(QStyleOption& option, Enum Option::*field, int count)
{
    if (auto* own = qstyleoption_cast<Option*>(&option))
        own->*field = Enum(m_random.bounded(count));
}

void OddCases::spoilFields(QStyleOption& option)
{
    setFields(option, &QStyleOptionComplex::subControls, &QStyleOptionComplex::activeSubControls);
    setFields(option, &QStyleOptionFrame::lineWidth, &QStyleOptionFrame::midLineWidth,
              &QStyleOptionFrame::features);
    setEnum(option, &QStyleOptionFrame::frameShape, 7);
    setFields(option, &QStyleOptionTabWidgetFrame::lineWidth,
              &QStyleOptionTabWidgetFrame::tabBarSize, &QStyleOptionTabWidgetFrame::tabBarRect,
              &QStyleOptionTabWidgetFrame::selectedTabRect);
    setEnum(option, &QStyleOptionTabWidgetFrame::shape, 8);
    setFields(option, &QStyleOptionTabBarBase::tabBarRect,
              &QStyleOptionTabBarBase::selectedTabRect);
    setEnum(option, &QStyleOptionTabBarBase::shape, 8);
    setFields(option, &QStyleOptionHeader::section, &QStyleOptionHeader::text,
              &QStyleOptionHeader::icon, &QStyleOptionHeader::textAlignment);
    setEnum(option, &QStyleOptionHeader::position, 4);
    setEnum(option, &QStyleOptionHeader::sortIndicator, 3);
    setEnum(option, &QStyleOptionHeader::orientation, 4);
    setFields(option, &QStyleOptionButton::features, &QStyleOptionButton::text,
              &QStyleOptionButton::icon, &QStyleOptionButton::iconSize);
    setFields(option, &QStyleOptionTab::text, &QStyleOptionTab::icon, &QStyleOptionTab::row,
              &QStyleOptionTab::iconSize, &QStyleOptionTab::leftButtonSize,
              &QStyleOptionTab::rightButtonSize, &QStyleOptionTab::cornerWidgets);
    setEnum(option, &QStyleOptionTab::shape, 8);
    setEnum(option, &QStyleOptionTab::position, 4);
    setFields(option, &QStyleOptionToolBar::features, &QStyleOptionToolBar::lineWidth);
    setEnum(option, &QStyleOptionToolBar::toolBarArea, 9);
    setFields(option, &QStyleOptionProgressBar::minimum, &QStyleOptionProgressBar::maximum,
              &QStyleOptionProgressBar::progress, &QStyleOptionProgressBar::text,
              &QStyleOptionProgressBar::textVisible, &QStyleOptionProgressBar::textAlignment,
              &QStyleOptionProgressBar::invertedAppearance, &QStyleOptionProgressBar::bottomToTop);
    setEnum(option, &QStyleOptionProgressBar::orientation, 4);
    setFields(option, &QStyleOptionMenuItem::checked, &QStyleOptionMenuItem::menuHasCheckableItems,
              &QStyleOptionMenuItem::menuRect, &QStyleOptionMenuItem::text,
              &QStyleOptionMenuItem::icon, &QStyleOptionMenuItem::maxIconWidth,
              &QStyleOptionMenuItem::tabWidth);
    setEnum(option, &QStyleOptionMenuItem::menuItemType, 8);
    setEnum(option, &QStyleOptionMenuItem::checkType, 3);
    setFields(option, &QStyleOptionDockWidget::title, &QStyleOptionDockWidget::closable,
              &QStyleOptionDockWidget::verticalTitleBar);
    setFields(option, &QStyleOptionViewItem::displayAlignment,
              &QStyleOptionViewItem::decorationAlignment, &QStyleOptionViewItem::decorationSize,
              &QStyleOptionViewItem::features, &QStyleOptionViewItem::icon,
              &QStyleOptionViewItem::text, &QStyleOptionViewItem::backgroundBrush);
    setEnum(option, &QStyleOptionViewItem::decorationPosition, 4);
    setEnum(option, &QStyleOptionViewItem::textElideMode, 4);
    setEnum(option, &QStyleOptionViewItem::checkState, 3);
    setEnum(option, &QStyleOptionViewItem::viewItemPosition, 5);
    setFields(option, &QStyleOptionToolBox::text, &QStyleOptionToolBox::icon);
    setFields(option, &QStyleOptionSlider::minimum, &QStyleOptionSlider::maximum,
              &QStyleOptionSlider::sliderPosition, &QStyleOptionSlider::sliderValue,
              &QStyleOptionSlider::singleStep, &QStyleOptionSlider::pageStep,
              &QStyleOptionSlider::tickInterval, &QStyleOptionSlider::upsideDown);
    setEnum(option, &QStyleOptionSlider::orientation, 4);
    setEnum(option, &QStyleOptionSlider::tickPosition, 4);
    setFields(option, &QStyleOptionSpinBox::frame, &QStyleOptionSpinBox::stepEnabled);
    setEnum(option, &QStyleOptionSpinBox::buttonSymbols, 3);
    setFields(option, &QStyleOptionToolButton::features, &QStyleOptionToolButton::text,
              &QStyleOptionToolButton::icon, &QStyleOptionToolButton::iconSize);
    setEnum(option, &QStyleOptionToolButton::arrowType, 5);
    setEnum(option, &QStyleOptionToolButton::toolButtonStyle, 5);
    setFields(option, &QStyleOptionComboBox::editable, &QStyleOptionComboBox::frame,
              &QStyleOptionComboBox::currentText, &QStyleOptionComboBox::currentIcon,
              &QStyleOptionComboBox::iconSize);
    setFields(option, &QStyleOptionTitleBar::text, &QStyleOptionTitleBar::icon,
              &QStyleOptionTitleBar::titleBarState, &QStyleOptionTitleBar::titleBarFlags);
    setFields(option, &QStyleOptionGroupBox::features, &QStyleOptionGroupBox::text,
              &QStyleOptionGroupBox::textAlignment, &QStyleOptionGroupBox::lineWidth);
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
        paintOn(writer);
    } else if (kind == 3) {
        drawnAtRatio(ratio, [&](QPainter* painter) {
            setUp(*painter);
            paint(*painter);
        });
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
