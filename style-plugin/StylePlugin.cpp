#include "BaseStyle.h"
#include "BaseTheme.h"
#include "ColorScheme.h"
#include "ProgramLooks.h"
#include "ProgramPalette.h"
#include "ThemeRepositories.h"

#include <QApplication>
#include <QChildEvent>
#include <QDebug>
#include <QEvent>
#include <QIcon>
#include <QPointer>
#include <QStylePlugin>

// The key "varn" gives the theme that VARN_THEME names, of the repository VARN_THEME_REPOSITORY;
// "varn-dark" and the like a theme that is installed.

using namespace BRELK;

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
    return chosen.isEmpty() ? ThemeRepositories::all() : QStringList{chosen};
}

bool isThemed(const QStyle& style)
{
    // A style sheet, or a style of the desktop's, wraps it.
    return qobject_cast<const BaseStyle*>(&style) || style.findChild<BaseStyle*>();
}

/// The theme of this process: a style plugin may be asked for its style again and again. The
/// program wears it, beyond single widgets, while it has a style of it as its own.
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
                leave();
        });
        return style;
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ApplicationPaletteChange && m_isWorn)
            judgePalette();
        // The program takes the style that it is given as its child.
        if (event->type() == QEvent::ChildAdded) {
            // Asked for its style before it has one, it would make one.
            if (auto* style = qobject_cast<QStyle*>(static_cast<QChildEvent*>(event)->child()))
                setWorn(isThemed(m_isWorn ? *QApplication::style() : *style));
        }
        return false;
    }

private:
    QApplication& app() const { return *static_cast<QApplication*>(parent()); }

    QStyle* applied(const QString& name)
    {
        const QString path = ThemeRepositories::find(name, repositories());
        if (path.isEmpty()) {
            qDebug().noquote() << QString(QLatin1String("There is no theme ") % name
                                          % QLatin1String(" in ")
                                          % repositories().join(QLatin1String(", ")));
            return nullptr;
        }
        m_before = ProgramLooks::current();
        BaseTheme theme(path);
        QStyle* style = theme.createStyle(&app());
        if (!style)
            return nullptr;
        // Programs put icons of their own into line edits, and know nothing of this property.
        app().setProperty(CustomActionIcons, true);
        if (!m_before.iconTheme.isEmpty())
            QIcon::setThemeName(m_before.iconTheme);
        m_palette = ProgramPalette::withReadableGroups(style->standardPalette());
        if (auto* themed = qobject_cast<BaseStyle*>(style))
            themed->setPalette(m_palette);
        ProgramLooks::matchIcons(m_palette);
        m_themed = ProgramLooks::current();
        m_before.replace(m_themed);
        app().installEventFilter(this);
        return style;
    }

    void setWorn(bool isWorn)
    {
        if (isWorn == m_isWorn)
            return;
        m_isWorn = isWorn;
        if (isWorn) {
            m_themed.replace(m_before);
            m_worn = m_palette;
            judgePalette();
        } else {
            m_before.replace(m_themed);
            m_scheme.takeBack(app());
        }
    }

    QStyle* again() const
    {
        auto* style = new BaseStyle;
        style->setPalette(m_palette);
        return style;
    }

    /// A program that insists on half a palette has it.
    void judgePalette()
    {
        const QPalette palette = QApplication::palette();
        const bool isOfProgram = palette.resolve() != 0;
        const bool isHalf = palette != m_refused && !ProgramPalette::isWhole(palette, m_palette);
        if (isOfProgram && (isHalf || m_scheme.isDropped(app()))) {
            m_refused = palette;
            m_scheme.offer(app(), m_palette);
            QApplication::setPalette({});
            return;
        }
        const QPalette& worn = isOfProgram ? palette : m_palette;
        m_scheme.offer(app(), worn);
        ProgramPalette::handOn(m_worn, worn);
        m_worn = worn;
    }

    void leave()
    {
        app().removeEventFilter(this);
        app().setProperty(CustomActionIcons, {});
        setWorn(false);
    }

    ProgramLooks m_before;
    ProgramLooks m_themed;
    QPalette m_palette; ///< of the theme
    QPalette m_worn; ///< that or one of the program's
    QPalette m_refused;
    ColorScheme m_scheme;
    int m_styles = 0; ///< that live
    bool m_isWorn = false;
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
