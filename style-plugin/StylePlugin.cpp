#include "BaseStyle.h"
#include "BaseTheme.h"
#include "ColorScheme.h"
#include "ThemeRepositories.h"

#include <QApplication>
#include <QDebug>
#include <QFont>
#include <QIcon>
#include <QPointer>
#include <QStylePlugin>
#include <QToolTip>

// The key "varn" gives the theme that VARN_THEME names, of the repository VARN_THEME_REPOSITORY;
// "varn-dark" and the like a theme that is installed.

namespace {

constexpr char DefaultTheme[] = "Dark";
constexpr char CustomActionIcons[] = "customActionIcons";

QString themeOf(const QString& key)
{
    const QString named = key.section(QLatin1Char('-'), 1);
    if (!named.isEmpty())
        return named;
    const QString chosen = qEnvironmentVariable("VARN_THEME");
    return chosen.isEmpty() ? QLatin1String(DefaultTheme) : chosen;
}

QStringList repositories()
{
    const QString chosen = qEnvironmentVariable("VARN_THEME_REPOSITORY");
    return chosen.isEmpty() ? BRELK::ThemeRepositories::all() : QStringList{chosen};
}

/// What an application had before it was given a theme, and has again without one.
struct Looks
{
    QFont font = QApplication::font();
    QPalette toolTips = QToolTip::palette();
    QString iconTheme = QIcon::themeName();

    void restore() const
    {
        QApplication::setFont(font);
        QToolTip::setPalette(toolTips);
        QIcon::setThemeName(iconTheme);
        qApp->setProperty(CustomActionIcons, {});
    }
};

/// The theme of this process: a style plugin may be asked for its style again and again.
class Session : public QObject
{
public:
    explicit Session(QApplication& app) : QObject(&app) { }

    QStyle* createStyle(const QString& theme)
    {
        QStyle* style = m_styles == 0 ? applied(theme) : again();
        if (!style)
            return nullptr;
        ++m_styles;
        connect(style, &QObject::destroyed, this, [this] {
            if (--m_styles == 0 && !QCoreApplication::closingDown())
                m_before.restore();
        });
        return style;
    }

private:
    QStyle* applied(const QString& name)
    {
        auto& app = *static_cast<QApplication*>(parent());
        const QString path = BRELK::ThemeRepositories::find(name, repositories());
        if (path.isEmpty()) {
            qDebug().noquote() << QString(QLatin1String("There is no theme ") % name
                                          % QLatin1String(" in ")
                                          % repositories().join(QLatin1String(", ")));
            return nullptr;
        }
        m_before = {};
        // Programs put icons of their own into line edits, and know nothing of this property.
        app.setProperty(CustomActionIcons, true);
        BRELK::BaseTheme theme(path);
        QStyle* style = theme.createStyle(&app);
        if (style) {
            m_palette = style->standardPalette();
            offerColorScheme(app, m_palette);
        }
        return style;
    }

    QStyle* again() const
    {
        auto* style = new BRELK::BaseStyle;
        style->setPalette(m_palette);
        return style;
    }

    Looks m_before;
    QPalette m_palette;
    int m_styles = 0; ///< that live
};

} // namespace

class VarnStylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "keys.json")

public:
    QStyle* create(const QString& key) override
    {
        auto* app = qobject_cast<QApplication*>(QCoreApplication::instance());
        if (!app)
            return nullptr;
        if (!m_session)
            m_session = new Session(*app);
        return m_session->createStyle(themeOf(key));
    }

private:
    QPointer<Session> m_session;
};

#ifdef QT_STATICPLUGIN
Q_IMPORT_PLUGIN(VarnStylePlugin)

/// Pulls this file out of the archive.
extern "C" void varnStylePlugin() { }
#endif

#include "StylePlugin.moc"
