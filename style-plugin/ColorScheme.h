#pragma once

#include <QString>

class QApplication;
class QPalette;

namespace BRELK {

/// Tells the libraries of KDE, whose views and editors take their colors from a scheme of their
/// own, which one fits a palette. A scheme that the program has chosen stays.
class ColorScheme
{
public:
    void offer(QApplication& app, const QPalette& palette);
    /// Whether the program went back to the desktop's scheme, as those do that let the user choose
    /// one and nobody has.
    bool isDropped(const QApplication& app) const;
    void takeBack(QApplication& app);

private:
    QString m_path; ///< of the scheme on offer
};

} // namespace BRELK
