#pragma once

class QApplication;
class QPalette;

/// Tells the libraries of KDE, whose views and editors take their colors from a scheme of their
/// own, to take those of `palette`. A scheme that the program has chosen stays.
void offerColorScheme(QApplication& app, const QPalette& palette);
