#include "companions/Companions.h"

#include "Helpers.h"

#include <QBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace BRELK::Components {

namespace {

constexpr int CardPadding = 12;
constexpr int HandleSize = 16;
constexpr int GrooveHeight = 6;
constexpr int LastPosition = 100;

} // namespace

CardWidget::CardWidget(const QString& title, const QString& subtitle)
    : m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_header = addPart("CardWidgetBase_Header");
    m_contents = addPart("CardWidgetBase_Contents");
    for (const bool isTitle : {true, false}) {
        auto* label = new QLabel(isTitle ? title : subtitle, m_header);
        label->setProperty(isTitle ? "CardWidgetBase_Title" : "CardWidgetBase_Subtitle", true);
        m_header->layout()->addWidget(label);
    }
    setProperty("headerVisible", true);
}

QWidget* CardWidget::addPart(const char* property)
{
    auto* part = new QWidget(this);
    part->setProperty(property, true);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins(CardPadding, CardPadding, CardPadding, CardPadding);
    m_layout->addWidget(part);
    return part;
}

void CardWidget::setContents(QWidget* contents)
{
    m_contents->layout()->addWidget(contents);
}

void CardWidget::setFooter(QWidget* footer)
{
    m_footer = addPart("CardWidgetBase_Footer");
    m_footer->layout()->addWidget(footer);
    setProperty("footerVisible", true);
}

void CardWidget::setCollapsed(bool collapsed)
{
    m_collapsed = collapsed;
    m_contents->setVisible(!collapsed);
    if (m_footer)
        m_footer->setVisible(!collapsed);
}

ButtonGroupWidget::ButtonGroupWidget(Qt::Orientation orientation, const QStringList& texts)
    : m_orientation(orientation)
{
    setProperty("ButtonGroupWidget_Container", true);
    setProperty("ButtonGroupWidget_Exclusive", true);
    setProperty("ButtonGroupWidget_VisibleCount", texts.size());
    auto* layout = new QBoxLayout(
        orientation == Qt::Horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int index = 0; index < texts.size(); ++index) {
        auto* button = new QPushButton(texts.at(index));
        button->setAutoDefault(false);
        button->setCheckable(true);
        button->setAutoExclusive(true);
        button->setChecked(index == 0);
        button->setProperty("Button_VisibleIndex", index);
        layout->addWidget(button);
    }
}

RangeSlider::RangeSlider()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RangeSlider::setRange(int lower, int upper)
{
    m_lower = lower;
    m_upper = upper;
    update();
}

QSize RangeSlider::sizeHint() const
{
    return {LastPosition, HandleSize + 2};
}

QBrush RangeSlider::brush(const char* property) const
{
    const QByteArray name = isEnabled() ? QByteArray(property) : QByteArray(property) + "Disabled";
    return this->property(name.constData()).value<QBrush>();
}

void RangeSlider::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    const auto draw = [&painter](const QRectF& shape, const QBrush& fill,
                                 const QPen& border = QPen(Qt::NoPen)) {
        painter.setPen(border);
        painter.setBrush(fill);
        Helpers::drawRoundedRectShape(shape, static_cast<int>(shape.height() / 2), Helpers::None,
                                      &painter);
    };
    const auto place = [this](int position) {
        const int mirrored =
            layoutDirection() == Qt::RightToLeft ? LastPosition - position : position;
        return double(width() - HandleSize) * mirrored / LastPosition;
    };
    const double left = qMin(place(m_lower), place(m_upper));
    const double right = qMax(place(m_lower), place(m_upper));
    const double grooveTop = (height() - GrooveHeight) / 2.0;
    const double handleTop = (height() - HandleSize) / 2.0;
    draw(QRectF(0, grooveTop, width(), GrooveHeight).adjusted(0.5, 0.5, -0.5, -0.5),
         brush("BackgroundBrush"), QPen(brush("BorderBrush"), 1));
    draw({left, grooveTop, right - left + HandleSize, GrooveHeight}, brush("RangeBrush"));
    for (const double x : {left, right})
        draw({x, handleTop, HandleSize, HandleSize}, brush("DefaultBrush"));
}

RoundedPicture::RoundedPicture(const QPixmap& picture) : m_picture(picture)
{
    setProperty("roundedPixmap", picture);
    setFixedSize(picture.size() / picture.devicePixelRatio());
}

void RoundedPicture::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QBrush fill(m_picture);
    fill.setTransform(
        QTransform::fromScale(1 / m_picture.devicePixelRatio(), 1 / m_picture.devicePixelRatio()));
    painter.setBrush(fill);
    painter.setPen(QPen(property("BorderBrush").value<QBrush>(), 1));
    Helpers::drawRoundedRectShape(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
                                  property("CornerRadius").toInt(), Helpers::None, &painter);
}

} // namespace BRELK::Components
