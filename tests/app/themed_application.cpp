#include "BaseStyle.h"
#include "Theme.h"
#include "ThemeQApplication.h"
#include "ThemeResources.h"

#include <QStyle>

#include <cstdio>

using namespace BRELK;

namespace {

void print(const char* key, const QString& value)
{
    std::printf("%s %s\n", key, qPrintable(value));
}

void printState(const ThemeQApplication& app)
{
    const Theme* theme = app.getCurrentTheme();
    const QVariant color = ThemeResources::getThemeVar(QStringLiteral("colors/MainColor"), {});
    const bool styled = QApplication::style()->findChild<BaseStyle*>();
    print("theme", theme ? theme->getName() : QStringLiteral("none"));
    print("repository", app.getThemeRepository());
    print("color", color.value<QColor>().name());
    print("style", styled ? QStringLiteral("the theme's") : QStringLiteral("another"));
}

} // namespace

/// Starts as an application does and prints what came of it. TEST_THEME and TEST_REPOSITORY go to
/// the constructor; TEST_NEXT_THEME is applied afterwards.
int main(int argc, char** argv)
{
    ThemeQApplication app(argc, argv, qEnvironmentVariable("TEST_THEME"),
                          qEnvironmentVariable("TEST_REPOSITORY"));
    printState(app);
    if (qEnvironmentVariableIsSet("TEST_NEXT_THEME")) {
        const bool found = app.setTheme(qEnvironmentVariable("TEST_NEXT_THEME"));
        print("next", found ? QStringLiteral("found") : QStringLiteral("missing"));
        printState(app);
    }
    return 0;
}
