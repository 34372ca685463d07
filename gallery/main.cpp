#include "GalleryWindow.h"
#include "Pages.h"
#include "Rendering.h"
#include "Settings.h"
#include "ThemeQApplication.h"

#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const Gallery::StartUp startUp = Gallery::prepareStart(argc, argv);

    // This is all that an application needs to be themed; it comes before any widget.
    BRELK::ThemeQApplication application(argc, argv, startUp.theme, startUp.repository);

    QCoreApplication::setApplicationName(QStringLiteral("varn-gallery"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Gallery"));
    const Gallery::Settings settings = Gallery::readSettings(application);
    if (settings.listPages) {
        QTextStream(stdout) << Gallery::pageNames().join(QLatin1Char('\n')) << '\n';
        return 0;
    }
    if (settings.rightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    if (settings.styleSheet)
        application.setStyleSheet(*settings.styleSheet);
    if (!settings.renderDirectory.isEmpty())
        return Gallery::renderPages(settings) ? 0 : 1;

    Gallery::GalleryWindow window(settings);
    window.show();
    return QApplication::exec();
}
