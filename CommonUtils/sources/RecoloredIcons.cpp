#include "RecoloredIcons.h"

#include "AskedInDevicePixels.h"
#include "Helpers.h"
#include "Kept.h"
#include "PixelRecoloring.h"

#include <QIconEngine>
#include <QPainter>

#include <cmath>
#include <optional>

namespace BRELK::RecoloredIcons {

namespace {

/// What the pictures of `icon` weigh that do not change in size.
qint64 weight(const QIcon& icon)
{
    qint64 bytes = 0;
    for (const QIcon::State state : {QIcon::Off, QIcon::On})
        for (const QSize& size : icon.availableSizes(QIcon::Normal, state))
            bytes += qint64(size.width()) * size.height() * qint64(sizeof(QRgb));
    return bytes;
}

/// The color to replace; transparent if there is none, or nothing to replace it with.
QRgb referenceColor(const Recoloring& recoloring)
{
    return recoloring.reference.style() == Qt::SolidPattern
                   && recoloring.replacement.style() != Qt::NoBrush
               ? recoloring.reference.color().rgb()
               : 0;
}

bool operator==(const Recoloring& one, const Recoloring& other)
{
    return one.disabled == other.disabled && one.reference == other.reference
           && one.replacement == other.replacement;
}

/// Gradients and textures share black as their color; the comparison tells them apart.
uint hashOf(const Recoloring& recoloring)
{
    return recoloring.replacement.color().rgba() * 31U + recoloring.disabled;
}

struct IconKey
{
    qint64 icon;
    Recoloring recoloring;

    friend bool operator==(const IconKey& one, const IconKey& other)
    {
        return one.icon == other.icon && one.recoloring == other.recoloring;
    }

    friend uint qHash(const IconKey& key, uint seed)
    {
        return ::qHash(key.icon, seed) ^ hashOf(key.recoloring);
    }
};

/// All that the picture of an icon depends on. What it is made from is told by one of the last: an
/// icon from a file, with the icon theme, a picture that stays somewhere, or its content.
struct PictureKey
{
    Recoloring recoloring;
    QSize size;
    QIcon::Mode mode;
    QIcon::State state;
    qreal ratio;
    qint64 icon = 0;
    QString iconTheme = {};
    qint64 source = 0;
    std::optional<QImage> content = {};

    friend bool operator==(const PictureKey& one, const PictureKey& other)
    {
        return one.icon == other.icon && one.source == other.source && one.size == other.size
               && one.mode == other.mode && one.state == other.state && one.ratio == other.ratio
               && one.recoloring == other.recoloring && one.iconTheme == other.iconTheme
               && one.content == other.content;
    }

    friend uint qHash(const PictureKey& key, uint seed)
    {
        const uint hash = ::qHash(key.icon ^ key.source, seed) ^ hashOf(key.recoloring)
                          ^ uint(key.size.width()) << 4 ^ uint(key.size.height());
        return key.content
                   ? hash ^ qHashBits(key.content->constBits(), size_t(key.content->sizeInBytes()))
                   : hash;
    }
};

class RecoloredIconEngine : public QIconEngine
{
public:
    RecoloredIconEngine(const QIcon& icon, const Recoloring& recoloring)
        : m_icon(icon), m_recoloring(recoloring), m_name(icon.name())
    { }

    QIconEngine* clone() const override { return new RecoloredIconEngine(*this); }

    QString iconName() const override { return m_name; }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override
    {
        return m_icon.availableSizes(mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State state) override
    {
        const AskedInDevicePixels asked;
        return m_icon.actualSize(size, QIcon::Normal, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return RecoloredIcons::pixmap(m_icon, m_recoloring, size, mode, state);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QTransform transform = painter->deviceTransform();
        const qreal scale = std::sqrt(std::abs(transform.determinant()));
        const QSize size = (QSizeF(rect.size()) * scale).toSize();
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }

    void virtual_hook(int id, void* data) override
    {
        if (id == IsNullHook)
            *static_cast<bool*>(data) = m_icon.isNull();
        else
            QIconEngine::virtual_hook(id, data);
    }

private:
    QIcon m_icon;
    Recoloring m_recoloring;
    QString m_name;
};

Kept::Store<PictureKey, QPixmap>& pictures()
{
    static Kept::Store<PictureKey, QPixmap> sPictures;
    return sPictures;
}

bool isRecolored(const Recoloring& recoloring)
{
    return referenceColor(recoloring) || recoloring.disabled;
}

QPixmap made(const PictureKey& key, const QPixmap& source)
{
    const Recoloring& recoloring = key.recoloring;
    QPixmap picture = QPixmap::fromImage(recoloredImage(
        source.toImage(), referenceColor(recoloring), recoloring.replacement, recoloring.disabled));
    const QSize wanted = key.size * key.ratio;
    const bool isFine = picture.width() >= wanted.width() || picture.height() >= wanted.height();
    picture.setDevicePixelRatio(
        isFine ? key.ratio : qMax(1.0, key.ratio * picture.width() / qMax(1, wanted.width())));
    return picture;
}

QPixmap keptOrMade(const PictureKey& key, const QPixmap& source)
{
    if (const QPixmap* known = pictures().find(key))
        return *known;
    auto picture = std::make_unique<QPixmap>(made(key, source));
    const qint64 bytes = qint64(picture->width()) * picture->height() * picture->depth() / 8;
    const qint64 content = key.content ? key.content->sizeInBytes() : 0;
    return *pictures().keep(key, std::move(picture), bytes + content);
}

/// Whether `icon` is drawn from files that the icon theme names, and so is the same as long as that
/// is: names with points are given to files. What programs draw themselves has no name, or one
/// without.
bool isFromFile(const QIcon& icon)
{
    return icon.name().contains(QLatin1Char('.'));
}

} // namespace

QIcon icon(const QIcon& icon, const Recoloring& recoloring)
{
    if (icon.isNull())
        return icon;
    constexpr qint64 MostBytes = 1 << 18; // of the pictures that are kept with it
    static Kept::Store<IconKey, QIcon> sIcons;
    const IconKey key{icon.cacheKey(), recoloring};
    if (const QIcon* known = sIcons.find(key))
        return *known;
    const QIcon recolored(new RecoloredIconEngine(icon, recoloring));
    const qint64 bytes = weight(icon);
    if (bytes <= MostBytes)
        sIcons.keep(key, std::make_unique<QIcon>(recolored), bytes);
    return recolored;
}

bool hasOwn(const QIcon& icon, QIcon::Mode mode, QIcon::State state)
{
    // Icons of the icon theme tell the same sizes for all modes.
    if (mode == QIcon::Normal || !icon.name().isEmpty())
        return false;
    const auto has = [&](QIcon::Mode itsMode, QIcon::State itsState) {
        return !icon.availableSizes(itsMode, itsState).isEmpty();
    };
    // What the toolkit looks for next.
    const QIcon::State other = state == QIcon::On ? QIcon::Off : QIcon::On;
    return has(mode, state) || (!has(QIcon::Normal, state) && has(mode, other));
}

QPixmap pixmap(const QIcon& icon, const Recoloring& recoloring, const QSize& size, QIcon::Mode mode,
               QIcon::State state, qreal ratio)
{
    constexpr int MostContent = 64 * 64; ///< pixels
    constexpr QSize Largest(2048, 2048);
    const bool disabled = recoloring.disabled || mode == QIcon::Disabled;
    const QIcon::Mode ownMode = disabled ? QIcon::Disabled : mode;
    const bool isOwn = hasOwn(icon, ownMode, state);
    PictureKey key{isOwn ? Recoloring() : recoloring, size, isOwn ? ownMode : QIcon::Normal, state,
                   ratio};
    key.recoloring.disabled = disabled && !isOwn;
    if (isFromFile(icon)) {
        key.icon = icon.cacheKey();
        key.iconTheme = QIcon::themeName();
        if (const QPixmap* known = pictures().find(key))
            return *known;
    }
    QPixmap source;
    {
        const AskedInDevicePixels inDevicePixels;
        source = icon.pixmap(size.boundedTo(Largest) * ratio, key.mode, state);
    }
    if (source.isNull() || (!key.icon && !isRecolored(key.recoloring) && ratio == 1))
        return source;
    if (!key.icon && !source.isDetached())
        key.source = source.cacheKey();
    else if (!key.icon && source.width() * source.height() <= MostContent)
        key.content = source.toImage();
    else if (!key.icon)
        return made(key, source);
    return keptOrMade(key, source);
}

QPixmap pixmap(const QPixmap& source, const Recoloring& recoloring)
{
    if (source.isNull())
        return source;
    PictureKey key{recoloring, {}, QIcon::Normal, QIcon::Off, source.devicePixelRatioF()};
    key.source = source.cacheKey();
    return keptOrMade(key, source);
}

} // namespace BRELK::RecoloredIcons

namespace BRELK {

QIcon Helpers::getModifiedIconWithForegroundBrush(QIcon icon, QBrush reference, QBrush replacement,
                                                  bool disabled)
{
    return RecoloredIcons::icon(icon, {reference, replacement, disabled});
}

} // namespace BRELK
