#include <QtWidgets>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

namespace {

void print(const char* key, const QString& value)
{
    std::printf("%s %s\n", key, qPrintable(value));
}

/// Enough to tell a theme's color from the toolkit's and the program's.
QString kindOf(const QColor& color)
{
    constexpr int Middle = 128;
    if (color == QColor(Qt::red))
        return QStringLiteral("red");
    return color.lightness() < Middle ? QStringLiteral("dark") : QStringLiteral("light");
}

/// Words on their grounds: "quiet" are those that differ from the words of active windows, "lost"
/// those that can hardly be told from the ground.
void printGroup(const char* name, const QPalette& palette, QPalette::ColorGroup group)
{
    constexpr int LeastDifference = 60; // of 255
    using Pair = std::pair<QPalette::ColorRole, QPalette::ColorRole>;
    QStringList pairs;
    for (const auto& [role, groundRole] :
         {Pair{QPalette::WindowText, QPalette::Window}, Pair{QPalette::Text, QPalette::Base},
          Pair{QPalette::ButtonText, QPalette::Button}, Pair{QPalette::Link, QPalette::Base},
          Pair{QPalette::HighlightedText, QPalette::Highlight}}) {
        const QColor words = palette.color(group, role);
        const QColor ground = palette.color(group, groundRole);
        const bool isLost = std::abs(qGray(words.rgb()) - qGray(ground.rgb())) < LeastDifference;
        const bool isQuiet = words != palette.color(QPalette::Active, role);
        pairs += QLatin1String(isLost    ? "lost"
                               : isQuiet ? "quiet"
                                         : "usual")
                 % QLatin1String(" on ") % kindOf(ground);
    }
    print(name, pairs.join(QLatin1String(", ")));
}

void printLooks(const char* moment)
{
    const QSettings scheme(qApp->property("KDE_COLOR_SCHEME_PATH").toString(),
                           QSettings::IniFormat);
    const QStringList ground =
        scheme.value(QStringLiteral("Colors:View/BackgroundNormal")).toStringList();
    const QString kindOfScheme =
        ground.size() < 3 ? QStringLiteral("none")
                          : kindOf({ground[0].toInt(), ground[1].toInt(), ground[2].toInt()});
    print(moment, QApplication::style()->objectName());
    print("window",
          kindOf(QApplication::palette().color(QPalette::Window)) % QLatin1String(" tool tip ")
              % kindOf(QToolTip::palette().color(QPalette::ToolTipBase)) % QLatin1String(" scheme ")
              % kindOfScheme % QLatin1String(" font ")
              % QString::number(QApplication::font().pointSizeF()) % QLatin1String(" icons ")
              % QIcon::themeName() % QLatin1String(" or ") % QIcon::fallbackThemeName());
    printGroup("inactive", QApplication::palette(), QPalette::Inactive);
    printGroup("disabled", QApplication::palette(), QPalette::Disabled);
    print("sheet", qApp->styleSheet());
}

/// The palette that the program sets while it runs: white grounds of views, or of everything, as
/// KDE's programs do when they go back to the desktop's scheme.
void setPalette(const QString& kind)
{
    const bool isHalf = kind == QLatin1String("half");
    QPalette palette = isHalf ? QApplication::palette() : QPalette(QColor(Qt::white));
    if (kind == QLatin1String("desktop"))
        qApp->setProperty("KDE_COLOR_SCHEME_PATH", QString());
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    QApplication::setPalette(palette);
}

} // namespace

/// A program that was built without the library and prints what it looks like. PLAIN_SHEET is its
/// style sheet, PLAIN_STYLE the style that it wraps into its own after that, PLAIN_PALETTE the
/// color of its palette, PLAIN_LATER what it sets later, PLAIN_ICONS its icon theme.
int main(int argc, char** argv)
{
    print("before", QStyleFactory::create(QStringLiteral("varn")) ? QStringLiteral("a style")
                                                                  : QStringLiteral("none"));
    if (qEnvironmentVariableIsSet("PLAIN_PALETTE"))
        QApplication::setPalette(QPalette(QColor(qEnvironmentVariable("PLAIN_PALETTE"))));
    const QTemporaryDir icons;
    QDir(icons.path()).mkdir(QStringLiteral("Some-dark"));
    QFile(icons.filePath(QStringLiteral("Some-dark/index.theme"))).open(QIODevice::WriteOnly);
    QIcon::setThemeSearchPaths({icons.path()});
    QIcon::setFallbackThemeName(QStringLiteral("Some"));
    QIcon::setThemeName(qEnvironmentVariable("PLAIN_ICONS"));
    const QApplication app(argc, argv);
    if (qEnvironmentVariableIsSet("PLAIN_SHEET"))
        qApp->setStyleSheet(qEnvironmentVariable("PLAIN_SHEET"));
    // As the desktop's own styles do.
    if (qEnvironmentVariableIsSet("PLAIN_STYLE"))
        QApplication::setStyle(new QProxyStyle(qEnvironmentVariable("PLAIN_STYLE")));
    printLooks("style");

    QLabel label;
    QListView view;
    label.ensurePolished();
    view.ensurePolished();
    if (qEnvironmentVariableIsSet("PLAIN_LATER"))
        setPalette(qEnvironmentVariable("PLAIN_LATER"));
    const auto pair = [](const QWidget& widget) {
        return QString(kindOf(widget.palette().color(widget.foregroundRole()))
                       % QLatin1String(" on ")
                       % kindOf(widget.palette().color(widget.backgroundRole())));
    };
    print("label", pair(label));
    print("view", pair(*view.viewport()));

    QPushButton button;
    QPalette palette = button.palette();
    palette.setColor(QPalette::Button, Qt::green);
    button.setPalette(palette);
    QFont font = button.font();
    font.setPointSize(30);
    button.setFont(font);
    button.ensurePolished();
    print("own", button.palette().color(QPalette::Button).name() + QLatin1Char(' ')
                     + QString::number(button.font().pointSize()));

    QLineEdit lineEdit;
    QPixmap square(16, 16);
    square.fill(Qt::red);
    lineEdit.addAction(square, QLineEdit::LeadingPosition);
    auto* action = lineEdit.findChild<QToolButton*>();
    action->grab();
    print("line edit", kindOf(action->icon().pixmap(16).toImage().pixelColor(0, 0)));

    const QPointer<QStyle> second = QStyleFactory::create(QStringLiteral("varn"));
    print("second", second ? second->objectName() + QLatin1Char(' ')
                                 + kindOf(second->standardPalette().color(QPalette::Window))
                           : QStringLiteral("none"));
    print("font", QString::number(QApplication::font().pointSizeF()));
    if (second)
        second->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    print("deleted", second ? QStringLiteral("no") : QStringLiteral("yes"));
    QApplication::setStyle(QStringLiteral("windows"));
    printLooks("afterwards");
    return 0;
}
