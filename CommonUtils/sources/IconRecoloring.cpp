#include "Helpers.h"
#include "PixelRecoloring.h"

#include <QCache>
#include <QCoreApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>

#include <cmath>

namespace BRELK {

namespace {

constexpr int MostIcons = 512;
constexpr int MostKeys = 64; ///< of one icon
constexpr int LargestSide = 2048;

/// The icon inside is asked in device pixels, as this engine is; without the guard `QIcon` would
/// scale by the device pixel ratio once more.
class DevicePixels
{
public:
    DevicePixels() : m_highDpi(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false);
    }

    ~DevicePixels() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, m_highDpi); }

    Q_DISABLE_COPY_MOVE(DevicePixels)

private:
    bool m_highDpi;
};

/// What makes two recolored icons the same. The icon theme is part of it because icons found in it
/// by name change with it.
struct Recoloring
{
    QIcon icon;
    QBrush reference;
    QBrush replacement;
    bool disabled = false;
    QString iconTheme = QIcon::themeName();

    /// The color to replace; transparent if there is none, or nothing to replace it with.
    QRgb referenceColor() const
    {
        return reference.style() == Qt::SolidPattern && replacement.style() != Qt::NoBrush
                   ? reference.color().rgb()
                   : 0;
    }

    friend bool operator==(const Recoloring& one, const Recoloring& other)
    {
        return one.icon.cacheKey() == other.icon.cacheKey() && one.disabled == other.disabled
               && one.reference == other.reference && one.replacement == other.replacement
               && one.iconTheme == other.iconTheme;
    }

    friend uint qHash(const Recoloring& recoloring, uint seed = 0)
    {
        // Gradients and textures share black as their color; the comparison tells them apart.
        return ::qHash(recoloring.icon.cacheKey(), seed)
               ^ (recoloring.replacement.color().rgba() * 31U + recoloring.disabled);
    }
};

class RecoloredIconEngine : public QIconEngine
{
public:
    explicit RecoloredIconEngine(const Recoloring& recoloring)
        : m_recoloring(recoloring), m_name(recoloring.icon.name())
    { }

    QIconEngine* clone() const override { return new RecoloredIconEngine(*this); }

    QString iconName() const override { return m_name; }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State state) const override
    {
        return m_recoloring.icon.availableSizes(QIcon::Normal, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State state) override
    {
        const DevicePixels devicePixels;
        return m_recoloring.icon.actualSize(size, QIcon::Normal, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const bool disabled = m_recoloring.disabled || mode == QIcon::Disabled;
        forgetOldKeys();
        QPixmapCache::Key& key = m_keys[quint64(size.width()) << 32 | quint64(size.height()) << 2
                                        | quint64(state == QIcon::On) << 1 | quint64(disabled)];
        QPixmap result;
        if (!QPixmapCache::find(key, &result)) {
            result = QPixmap::fromImage(drawn(size, state, disabled));
            if (!result.isNull())
                key = QPixmapCache::insert(result);
        }
        return result;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QTransform transform = painter->deviceTransform();
        const qreal scale = std::sqrt(std::abs(transform.determinant()));
        const QSize size = (QSizeF(rect.size()) * scale).toSize();
        const QSize largest(LargestSide, LargestSide);
        painter->drawPixmap(rect, pixmap(size.boundedTo(largest), mode, state));
    }

    void virtual_hook(int id, void* data) override
    {
        if (id == IsNullHook)
            *static_cast<bool*>(data) = m_recoloring.icon.isNull();
        else
            QIconEngine::virtual_hook(id, data);
    }

private:
    /// Icons of the icon theme change with it. Few icons are shown in more than a few sizes.
    void forgetOldKeys()
    {
        const QString iconTheme = QIcon::themeName();
        if (iconTheme == m_iconTheme && m_keys.size() < MostKeys)
            return;
        m_iconTheme = iconTheme;
        m_keys.clear();
    }

    QImage drawn(const QSize& size, QIcon::State state, bool disabled) const
    {
        const DevicePixels devicePixels;
        QImage icon = m_recoloring.icon.pixmap(size, QIcon::Normal, state).toImage();
        icon.setDevicePixelRatio(1);
        if (icon.isNull())
            return icon;
        QImage fill(icon.size(), QImage::Format_ARGB32_Premultiplied);
        fill.fill(Qt::transparent);
        QPainter(&fill).fillRect(fill.rect(), m_recoloring.replacement);
        return recoloredImage(icon, m_recoloring.referenceColor(), fill, disabled);
    }

    Recoloring m_recoloring;
    QString m_name;
    QString m_iconTheme;
    QHash<quint64, QPixmapCache::Key> m_keys; ///< of the sizes and states that were asked for
};

} // namespace

QIcon Helpers::getModifiedIconWithForegroundBrush(QIcon icon, QBrush reference, QBrush replacement,
                                                  bool disabled)
{
    if (icon.isNull())
        return icon;
    static QCache<Recoloring, QIcon> sIcons(MostIcons);
    const Recoloring recoloring{icon, reference, replacement, disabled};
    if (const QIcon* known = sIcons.object(recoloring))
        return *known;
    const QIcon recolored(new RecoloredIconEngine(recoloring));
    sIcons.insert(recoloring, new QIcon(recolored));
    return recolored;
}

} // namespace BRELK
