#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <BaseStyle.h>
#include <Helpers.h>
#include <ThemeFactory.h>
#include <ThemeQApplication.h>
#include <ThemeResources.h>
#include <memory>

/// Exits with 0 when the library gave it a theme, and the style plugin is there.
int main(int argc, char** argv)
{
    BRELK::ThemeQApplication app(argc, argv, "Dark", THEMES_DIR);
    QPushButton button(BRELK::ThemeResources::getIcon("action.close"), "Close");
    button.show();
    QTimer::singleShot(0, &app, &QApplication::quit);
    const bool ran = app.exec() == 0;
    const QIcon drawn = QIcon::fromTheme("action.close");
    const QColor background = BRELK::BaseStyle::getColor("BackgroundColor", true);
    const bool themed = app.getCurrentTheme() && !button.icon().isNull() && !drawn.isNull()
                        && BRELK::Helpers::getPerceivedBrightness(background) < 128
                        && app.palette().color(QPalette::Window) == background;
    const std::unique_ptr<QStyle> style(QStyleFactory::create("varn"));
    return ran && themed && style ? 0 : 1;
}
