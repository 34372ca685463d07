#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCoreApplication;

namespace Gallery {

/// What a run of the gallery was asked for.
struct Settings
{
    QString theme; ///< a directory of a repository
    std::optional<QString> repository; ///< takes the place of those of this machine
    QString page;
    QString renderDirectory; ///< empty: show the window
    std::optional<QString> styleSheet; ///< takes the place of the application style sheet
    QString via; ///< a theme to switch to and back from before pictures are taken
    bool followDesktop = false; ///< its preference for light or dark
    double scale = 1;
    bool rightToLeft = false;
    bool listPages = false;

    /// The directories of the themes to choose from.
    QStringList themes() const;

    /// The command-line arguments that ask for the same.
    QStringList toArguments() const;
};

/// What must be known before the application object exists.
struct StartUp
{
    QString theme;
    QString repository; ///< that has the theme, or else the first of this machine
};

/// Reads the few options that Qt must know of before the application object is built, hands them to
/// it through the environment, and finds the themes beside the program.
StartUp prepareStart(int argc, char** argv);

/// Reads the command line of `application`. `--help` and mistakes print their text and end the
/// process.
Settings readSettings(const QCoreApplication& application);

} // namespace Gallery
