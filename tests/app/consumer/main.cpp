#include <QPushButton>
#include <QTimer>

#include <BaseStyle.h>
#include <Helpers.h>
#include <ThemeFactory.h>
#include <ThemeQApplication.h>
#include <ThemeResources.h>

/// Exits with 0 when the installed library gave it an installed theme.
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
    return ran && themed ? 0 : 1;
}
