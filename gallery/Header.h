#pragma once

#include "Settings.h"

#include <QWidget>

class QBoxLayout;

namespace Gallery {

/// The bar above the pages, with a switch for the theme, the direction and the scale.
class Header : public QWidget
{
    Q_OBJECT

public:
    explicit Header(const Settings& settings);

Q_SIGNALS:
    void themeChosen(const QString& directory);
    void desktopChosen(); ///< the theme Light or Dark, as the desktop prefers
    void rightToLeftChosen(bool rightToLeft);
    void scaleChosen(double scale);

private:
    void addThemes(QBoxLayout& bar, const Settings& settings);
    void addDirection(QBoxLayout& bar, bool rightToLeft) const;
    void addScales(QBoxLayout& bar, double current);
};

} // namespace Gallery
