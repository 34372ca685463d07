#include "ThemeIcons.h"

#include "EmbeddedIcons.h"
#include "Kept.h"
#include "RecoloredIcons.h"
#include "ThemeNames.h"
#include "ThemeResources.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>

namespace BRELK::ThemeIcons {

namespace {

using RecoloredIcons::Recoloring;

/// What the theme says about an icon in a brush.
struct Finding
{
    QIcon handMade; ///< null if there is none
    bool disabled = false; ///< whether the brush's name says so
};

/// The brush is known by its value: its name follows from that.
struct FindingKey
{
    QString icon; ///< name; empty for one that was not found in the icon theme
    QBrush brush;

    friend bool operator==(const FindingKey& one, const FindingKey& other)
    {
        return one.icon == other.icon && one.brush == other.brush;
    }

    friend uint qHash(const FindingKey& key, uint seed)
    {
        return ::qHash(key.icon, seed) ^ key.brush.color().rgba();
    }
};

Finding find(const FindingKey& key)
{
    QString brushName = ThemeResources::getBrushKey(key.brush);
    brushName.replace(QLatin1String("BrushDisabled"), QLatin1String("DisabledBrush"));
    Finding finding;
    finding.disabled = brushName.contains(ThemeNames::Disabled.text);
    // Qt shortens names at hyphens until it finds an icon; only the exact name is the theme
    // author's own.
    const QString themedName = key.icon + QLatin1Char('.') + brushName;
    if (key.icon.isEmpty() || brushName.isEmpty() || !EmbeddedIcons::mayBeHandMade(themedName))
        return finding;
    const QIcon themed = QIcon::fromTheme(themedName);
    if (themed.name() == themedName)
        finding.handMade = themed;
    return finding;
}

/// What was found in the current theme. Looking for a brush's name and an icon's file takes far
/// longer than painting the icon.
class Findings : public QObject
{
public:
    /// Good until the next call.
    const Finding& of(const FindingKey& key)
    {
        constexpr int BytesOfNames = 256;
        forgetOtherThemes();
        if (const Finding* known = m_findings.find(key))
            return *known;
        return *m_findings.keep(key, std::make_unique<Finding>(find(key)), BytesOfNames);
    }

    /// Asking the application each time whether it has other variables takes as long as all else.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange && watched == m_application)
            m_findings.clear();
        return false;
    }

private:
    void forgetOtherThemes()
    {
        if (!m_application && QCoreApplication::instance()) {
            m_application = QCoreApplication::instance();
            m_application->installEventFilter(this);
            m_findings.clear();
        }
        if (const QString iconTheme = QIcon::themeName(); iconTheme != m_iconTheme) {
            m_findings.clear();
            m_iconTheme = iconTheme;
        }
    }

    QPointer<QCoreApplication> m_application;
    QString m_iconTheme;
    Kept::Store<FindingKey, Finding> m_findings;
};

const Finding& findingOf(const QString& icon, const QBrush& brush)
{
    static Findings sFindings;
    return sFindings.of({icon, brush});
}

Recoloring recoloring(const QBrush& brush, bool disabled)
{
    static const QBrush sReference{QColor(EmbeddedIcons::ReferenceColor)};
    return {sReference, brush, disabled};
}

/// Icons of desktop names are offered in the theme's foreground, and never have dots in their name.
QIcon inReferenceColor(const QIcon& icon, const QString& name)
{
    const QColor offered = EmbeddedIcons::offeredColor();
    const QColor reference(EmbeddedIcons::ReferenceColor);
    if (name.isEmpty() || name.contains(QLatin1Char('.')) || offered == reference)
        return icon;
    return RecoloredIcons::icon(icon, {offered, reference, false});
}

} // namespace

QIcon colored(const QIcon& icon, const QBrush& brush)
{
    const QString name = icon.name();
    const Finding& finding = findingOf(name, brush);
    if (!finding.handMade.isNull())
        return finding.handMade;
    return RecoloredIcons::icon(inReferenceColor(icon, name), recoloring(brush, finding.disabled));
}

QPixmap colored(const QPixmap& picture, const QBrush& brush)
{
    return RecoloredIcons::pixmap(picture, recoloring(brush, findingOf({}, brush).disabled));
}

QPixmap pixmap(const QPainter& painter, const QIcon& icon, const QBrush& brush, const QSize& size,
               QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1;
    // The brush tells the mode already.
    const QIcon::Mode shown = RecoloredIcons::hasOwn(icon, mode, state) ? mode : QIcon::Normal;
    if (brush.style() == Qt::NoBrush)
        return RecoloredIcons::pixmap(icon, {}, size, shown, state, ratio);
    const QString name = icon.name();
    const Finding& finding = findingOf(name, brush);
    if (!finding.handMade.isNull())
        return RecoloredIcons::pixmap(finding.handMade, {}, size, QIcon::Normal, state, ratio);
    return RecoloredIcons::pixmap(inReferenceColor(icon, name), recoloring(brush, finding.disabled),
                                  size, shown, state, ratio);
}

} // namespace BRELK::ThemeIcons
