#pragma once

#include <QWidget>

namespace Gallery {

/// A line chart in the theme's series colors.
class Chart : public QWidget
{
public:
    Chart();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Gallery
