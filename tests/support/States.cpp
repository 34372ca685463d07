#include "States.h"

#include "BaseStyle.h"
#include "ProbeTheme.h"

#include <QApplication>
#include <QFont>

void applyProbeStyle()
{
    ProbeTheme::publish();
    auto* style = new BRELK::BaseStyle;
    style->setPalette(ProbeTheme::palette());
    QApplication::setStyle(style);
    QApplication::setPalette(ProbeTheme::palette());
    QFont font = QApplication::font();
    font.setPixelSize(ProbeTheme::BaseFont);
    QApplication::setFont(font);
}
