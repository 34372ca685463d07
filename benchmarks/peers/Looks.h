#pragma once

#include <QApplication>
#include <QStringList>

#include <memory>

/// The looks that are compared, and applications that wear them.
namespace Peers {

/// What an application is given beside its look.
enum class Dress {
    Plain, ///< nothing: a program that knows no theme, unless its look is one
    Themed, ///< values, icons and font of the theme, which the gallery needs in every look
};

/// Qt's Fusion style, which the others are compared with.
QString fusion();

/// "fusion", "theme" (with its style sheet), "style" (the theme without sheet), "sheet" (Fusion
/// under the theme's sheet), "proxy" (an empty QProxyStyle over Fusion), and every other style that
/// is installed.
QStringList allLooks();

/// An application in `look`. The theme's style sheet is read from the file `sheet`.
std::unique_ptr<QApplication> createApplication(const QString& look, Dress dress,
                                                const QString& sheet);

/// Gives `look` to an application that wears something else, as a program's settings dialog would;
/// `again` makes it differ a little from the first time.
void wear(QApplication& application, const QString& look, bool again, const QString& sheet);

} // namespace Peers
