#include "RecoloredIcons.h"

#include "AskedInDevicePixels.h"
#include "Helpers.h"
#include "Kept.h"
#include "PixelRecoloring.h"

#include <QIconEngine>
#include <QPainter>

#include <cmath>

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

/// Made from a picture that stays somewhere, or else from one with the same content.
struct PictureKey
{
    qint64 picture;
    QImage content;
    Recoloring recoloring;
    qreal ratio;

    friend bool operator==(const PictureKey& one, const PictureKey& other)
    {
        return one.picture == other.picture && one.recoloring == other.recoloring
               && one.ratio == other.ratio && one.content == other.content;
    }

    friend uint qHash(const PictureKey& key, uint seed)
    {
        return ::qHash(key.picture, seed) ^ hashOf(key.recoloring)
               ^ qHashBits(key.content.constBits(), size_t(key.content.sizeInBytes()));
    }
};

/// All that the picture of an icon from a file depends on.
struct AskedPicture
{
    qint64 icon; ///< 0 for other icons
    QString iconTheme;
    Recoloring recoloring;
    QSize size;
    QIcon::Mode mode;
    QIcon::State state;
    qreal ratio;

    friend bool operator==(const AskedPicture& one, const AskedPicture& other)
    {
        return one.icon == other.icon && one.iconTheme == other.iconTheme
               && one.recoloring == other.recoloring && one.size == other.size
               && one.mode == other.mode && one.state == other.state && one.ratio == other.ratio;
    }

    friend uint qHash(const AskedPicture& picture, uint seed)
    {
        return ::qHash(picture.icon, seed) ^ hashOf(picture.recoloring)
               ^ uint(picture.size.width() << 4 ^ picture.size.height());
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
        constexpr QSize Largest(2048, 2048);
        const QTransform transform = painter->deviceTransform();
        const qreal scale = std::sqrt(std::abs(transform.determinant()));
        const QSize size = (QSizeF(rect.size()) * scale).toSize();
        painter->drawPixmap(rect, pixmap(size.boundedTo(Largest), mode, state));
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

QPixmap made(const QPixmap& source, const Recoloring& recoloring, qreal ratio)
{
    const QImage image = source.toImage();
    QPixmap result = QPixmap::fromImage(recoloredImage(
        image, referenceColor(recoloring), recoloring.replacement, recoloring.disabled));
    result.setDevicePixelRatio(ratio);
    return result;
}

qint64 bytesOf(const QPixmap& picture)
{
    return qint64(picture.width()) * picture.height() * picture.depth() / 8;
}

QPixmap kept(const PictureKey& key, const QPixmap& source)
{
    static Kept::Store<PictureKey, QPixmap> sPictures;
    if (const QPixmap* known = sPictures.find(key))
        return *known;
    auto picture = std::make_unique<QPixmap>(made(source, key.recoloring, key.ratio));
    const qint64 bytes = bytesOf(*picture) + key.content.sizeInBytes();
    return *sPictures.keep(key, std::move(picture), bytes);
}

/// Whether `icon` is drawn from files that the icon theme names, and so is the same as long as that
/// is: names with points are given to files. What programs draw themselves has no name, or one
/// without.
bool isFromFile(const QIcon& icon)
{
    return icon.name().contains(QLatin1Char('.'));
}

QPixmap drawn(const QIcon& icon, const AskedPicture& picture)
{
    constexpr int MostContent = 64 * 64; ///< pixels
    Recoloring recoloring = picture.recoloring;
    recoloring.disabled = recoloring.disabled || picture.mode == QIcon::Disabled;
    const QIcon::Mode mode = recoloring.disabled ? QIcon::Disabled : picture.mode;
    const bool isOwn = hasOwn(icon, mode, picture.state);
    if (isOwn)
        recoloring = {};
    const QSize wanted = picture.size * picture.ratio;
    QPixmap source;
    {
        const AskedInDevicePixels inDevicePixels;
        source = icon.pixmap(wanted, isOwn ? mode : QIcon::Normal, picture.state);
    }
    const bool isFine = source.width() >= wanted.width() || source.height() >= wanted.height();
    const qreal ratio = isFine
                            ? picture.ratio
                            : qMax(1.0, picture.ratio * source.width() / qMax(1, wanted.width()));
    if (source.isNull() || (!referenceColor(recoloring) && !recoloring.disabled && ratio == 1))
        return source;
    // What is kept by another key, and what nobody else has, is drawn anew.
    if (picture.icon)
        return made(source, recoloring, ratio);
    if (!source.isDetached())
        return kept({source.cacheKey(), {}, recoloring, ratio}, source);
    if (source.width() * source.height() <= MostContent)
        return kept({0, source.toImage(), recoloring, ratio}, source);
    return made(source, recoloring, ratio);
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
    if (!isFromFile(icon))
        return drawn(icon, {0, {}, recoloring, size, mode, state, ratio});
    static Kept::Store<AskedPicture, QPixmap> sPictures;
    const AskedPicture asked{
        icon.cacheKey(), QIcon::themeName(), recoloring, size, mode, state, ratio};
    if (const QPixmap* known = sPictures.find(asked))
        return *known;
    const QPixmap picture = drawn(icon, asked);
    return picture.isNull()
               ? picture
               : *sPictures.keep(asked, std::make_unique<QPixmap>(picture), bytesOf(picture));
}

QPixmap pixmap(const QPixmap& source, const Recoloring& recoloring)
{
    if (source.isNull())
        return source;
    return kept({source.cacheKey(), {}, recoloring, source.devicePixelRatioF()}, source);
}

} // namespace BRELK::RecoloredIcons

namespace BRELK {

QIcon Helpers::getModifiedIconWithForegroundBrush(QIcon icon, QBrush reference, QBrush replacement,
                                                  bool disabled)
{
    return RecoloredIcons::icon(icon, {reference, replacement, disabled});
}

} // namespace BRELK
