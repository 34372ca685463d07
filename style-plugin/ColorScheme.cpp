#include "ColorScheme.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QPalette>
#include <QSaveFile>
#include <QStandardPaths>

namespace BRELK {

namespace {

constexpr char PathProperty[] = "KDE_COLOR_SCHEME_PATH";

struct Set
{
    const char* name;
    QPalette::ColorRole background;
    QPalette::ColorRole alternate;
    QPalette::ColorRole foreground;
};

constexpr Set Sets[] = {
    {"Window", QPalette::Window, QPalette::AlternateBase, QPalette::WindowText},
    {"View", QPalette::Base, QPalette::AlternateBase, QPalette::Text},
    {"Button", QPalette::Button, QPalette::Button, QPalette::ButtonText},
    {"Selection", QPalette::Highlight, QPalette::Highlight, QPalette::HighlightedText},
    {"Tooltip", QPalette::ToolTipBase, QPalette::ToolTipBase, QPalette::ToolTipText},
    {"Header", QPalette::Window, QPalette::Window, QPalette::WindowText},
    {"Complementary", QPalette::Window, QPalette::AlternateBase, QPalette::WindowText}};

QByteArray schemeOf(const QPalette& palette)
{
    QByteArray text = "[General]\nName=Varn\nColorScheme=Varn\n";
    const auto entry = [&](const char* key, const QColor& color) {
        text += key + QByteArray("=") + QByteArray::number(color.red()) + ','
                + QByteArray::number(color.green()) + ',' + QByteArray::number(color.blue()) + '\n';
    };
    for (const Set& set : Sets) {
        const bool isSelection = set.background == QPalette::Highlight;
        const QColor words = palette.color(set.foreground);
        const QColor quiet =
            isSelection ? words : palette.color(QPalette::Disabled, QPalette::WindowText);
        text += "\n[Colors:" + QByteArray(set.name) + "]\n";
        entry("BackgroundNormal", palette.color(set.background));
        entry("BackgroundAlternate", palette.color(set.alternate));
        entry("ForegroundNormal", words);
        entry("ForegroundActive", words);
        entry("ForegroundInactive", quiet);
        entry("ForegroundLink", isSelection ? words : palette.color(QPalette::Link));
        entry("ForegroundVisited", isSelection ? words : palette.color(QPalette::LinkVisited));
        entry("DecorationFocus", palette.color(QPalette::Highlight));
        entry("DecorationHover", palette.color(QPalette::Highlight));
    }
    return text;
}

} // namespace

void ColorScheme::offer(QApplication& app, const QPalette& palette)
{
    const QString current = app.property(PathProperty).toString();
    if (!current.isEmpty() && current != m_path)
        return;
    const QByteArray scheme = schemeOf(palette);
    const QByteArray hash = QCryptographicHash::hash(scheme, QCryptographicHash::Sha1).toHex();
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
                         + QLatin1String("/varn"));
    const QString path =
        directory.absoluteFilePath(QLatin1String(hash.left(8)) + QLatin1String(".colors"));
    if (!QFile::exists(path)) {
        directory.mkpath(QStringLiteral("."));
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(scheme) != scheme.size()
            || !file.commit())
            return;
    }
    m_path = path;
    app.setProperty(PathProperty, m_path);
}

bool ColorScheme::isDropped(const QApplication& app) const
{
    return !m_path.isEmpty() && app.property(PathProperty).toString().isEmpty();
}

void ColorScheme::takeBack(QApplication& app)
{
    if (!m_path.isEmpty() && app.property(PathProperty).toString() == m_path)
        app.setProperty(PathProperty, {});
    m_path.clear();
}

} // namespace BRELK
