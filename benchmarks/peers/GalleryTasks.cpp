#include "Pages.h"
#include "Tasks.h"
#include "kit/Page.h"

#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <vector>

namespace Peers {

namespace {

using Pages = std::vector<std::unique_ptr<QWidget>>;

constexpr int PageWidth = 1200;

Pages exposedPages()
{
    Pages pages;
    for (const Gallery::PageEntry& entry : Gallery::allPages()) {
        std::unique_ptr<QWidget> page(Gallery::buildPage(entry));
        page->setAttribute(Qt::WA_DontShowOnScreen);
        page->resize(PageWidth, page->layout()->totalSizeHint().height());
        page->show();
        settle();
        pages.push_back(std::move(page));
    }
    return pages;
}

/// Paints every page over the last one, as a window paints over what it showed.
void paint(const Pages& pages, QImage& image)
{
    for (const auto& page : pages)
        page->render(&image);
}

/// An image for each page would cost the system more than painting costs the style: half of the
/// time at scale 2 is spent on handing out its memory.
QImage imageForAll(const Pages& pages, qreal scale)
{
    QSize size;
    for (const auto& page : pages)
        size = size.expandedTo(page->size());
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    return image;
}

double timeOfPainting(const Pages& pages, qreal scale)
{
    QImage image = imageForAll(pages, scale);
    paint(pages, image); // fills caches
    return timeOf([&] { paint(pages, image); });
}

Figures gallery(const Order& order)
{
    const auto application = createApplication(order.look, Dress::Themed, order.sheet);
    const Pages pages = exposedPages();
    return {{QStringLiteral("scale1"), timeOfPainting(pages, 1)},
            {QStringLiteral("scale2"), timeOfPainting(pages, 2)}};
}

/// What a layout and a paint event ask of a style beside painting.
void ask(const QWidget& widget)
{
    widget.sizeHint();
    widget.minimumSizeHint();
    const QStyle& style = *widget.style();
    QStyleOption option;
    option.initFrom(&widget);
    for (const auto metric :
         {QStyle::PM_DefaultFrameWidth, QStyle::PM_ButtonMargin, QStyle::PM_LayoutLeftMargin,
          QStyle::PM_LayoutHorizontalSpacing, QStyle::PM_SmallIconSize, QStyle::PM_ScrollBarExtent})
        style.pixelMetric(metric, &option, &widget);
    for (const auto hint : {QStyle::SH_ItemView_ActivateItemOnSingleClick,
                            QStyle::SH_UnderlineShortcut, QStyle::SH_Widget_Animation_Duration})
        style.styleHint(hint, &option, &widget);
    for (const auto rect : {QStyle::SE_FrameContents, QStyle::SE_ShapedFrameContents})
        style.subElementRect(rect, &option, &widget);
}

Figures hints(const Order& order)
{
    constexpr int Rounds = 20;
    const auto application = createApplication(order.look, Dress::Themed, order.sheet);
    const Pages pages = exposedPages();
    QList<QWidget*> widgets;
    for (const auto& page : pages)
        widgets += page->findChildren<QWidget*>();
    const double time = timeOf([&] {
        for (int round = 0; round < Rounds; ++round) {
            for (const QWidget* widget : qAsConst(widgets))
                ask(*widget);
        }
    });
    return {{QStringLiteral("each"), time / Rounds / widgets.size()}};
}

} // namespace

void addGalleryTasks(QVector<Task>& tasks)
{
    tasks += {{QStringLiteral("gallery"), gallery}, {QStringLiteral("hints"), hints}};
}

} // namespace Peers
