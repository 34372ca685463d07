#include "kit/Page.h"

#include "Helpers.h"
#include "kit/Decoration.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace Gallery {

namespace {

QWidget* lineUp(QBoxLayout::Direction direction, int spacing,
                std::initializer_list<QWidget*> widgets)
{
    auto* line = new QWidget;
    auto* layout = new QBoxLayout(direction, line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    return line;
}

/// A label that begins at the side where lines begin, whatever the script of its text.
class Words : public QLabel
{
public:
    explicit Words(const QString& text) : QLabel(text) { align(); }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            align();
        QLabel::changeEvent(event);
    }

private:
    void align()
    {
        const auto side = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
        setAlignment(side | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
};

QLabel* makeText(const QString& text, const QColor& ink, const QString& font)
{
    auto* label = new Words(text);
    Decoration::dress(*label, ink, Decoration::font(font));
    return label;
}

} // namespace

QLabel* makeLabel(const QString& text)
{
    return makeText(text, Decoration::text(), QStringLiteral("base"));
}

QLabel* makeCaption(const QString& text)
{
    return makeText(text, Decoration::quietText(), QStringLiteral("small"));
}

QWidget* captioned(const QString& caption, QWidget* widget)
{
    QWidget* group = lineUp(QBoxLayout::TopToBottom, Unit / 2, {makeCaption(caption), widget});
    static_cast<QBoxLayout*>(group->layout())->addStretch();
    return group;
}

QWidget* row(std::initializer_list<QWidget*> widgets)
{
    QWidget* line = lineUp(QBoxLayout::LeftToRight, 2 * Unit, widgets);
    static_cast<QBoxLayout*>(line->layout())->addStretch();
    return line;
}

QWidget* column(std::initializer_list<QWidget*> widgets)
{
    return lineUp(QBoxLayout::TopToBottom, Unit, widgets);
}

QWidget* halves(QWidget* first, QWidget* second)
{
    QWidget* line = lineUp(QBoxLayout::LeftToRight, 3 * Unit, {first, second});
    auto* layout = static_cast<QBoxLayout*>(line->layout());
    layout->setStretch(0, 1);
    layout->setStretch(1, 1);
    return line;
}

QWidget* pair(QWidget* enabled, QWidget* disabled)
{
    disabled->setEnabled(false);
    return halves(captioned(QStringLiteral("Enabled"), enabled),
                  captioned(QStringLiteral("Disabled"), disabled));
}

Section::Section(const QString& title, const QString& description)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(3 * Unit, 2 * Unit, 3 * Unit, 3 * Unit);
    layout->setSpacing(Unit / 2);
    layout->addWidget(makeText(title, Decoration::text(), QStringLiteral("medium")));
    if (!description.isEmpty()) {
        QLabel* words = makeCaption(description);
        words->setWordWrap(true);
        layout->addWidget(words);
    }
    layout->addSpacing(Unit);
    m_contents = new QVBoxLayout;
    m_contents->setSpacing(2 * Unit);
    layout->addLayout(m_contents);
}

void Section::add(QWidget* widget, bool stretched)
{
    m_contents->addWidget(widget, 0, stretched ? Qt::Alignment() : Qt::AlignLeft);
}

void Panel::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(Decoration::border());
    painter.setBrush(Decoration::surface());
    BRELK::Helpers::drawRoundedRectShape(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
                                         Decoration::radius(QStringLiteral("LargeSize")),
                                         BRELK::Helpers::None, &painter);
}

Page::Page(const QString& title, const QString& description) : m_sections(new QVBoxLayout(this))
{
    m_sections->setContentsMargins(4 * Unit, 3 * Unit, 4 * Unit, 4 * Unit);
    m_sections->setSpacing(2 * Unit);
    QLabel* words = makeText(description, Decoration::quietText(), QStringLiteral("base"));
    words->setWordWrap(true);
    QWidget* heading =
        lineUp(QBoxLayout::TopToBottom, Unit / 2,
               {makeText(title, Decoration::text(), QStringLiteral("large")), words});
    m_sections->addWidget(heading);
    m_sections->addStretch();
}

Section& Page::addSection(const QString& title, const QString& description)
{
    auto* section = new Section(title, description);
    addWidget(section);
    return *section;
}

void Page::addWidget(QWidget* widget)
{
    m_sections->insertWidget(m_sections->count() - 1, widget);
}

} // namespace Gallery
