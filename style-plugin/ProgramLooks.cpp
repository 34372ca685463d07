#include "ProgramLooks.h"

#include <QApplication>
#include <QIcon>
#include <QToolTip>

namespace BRELK {

namespace {

QString chosenIconTheme()
{
    const QString name = QIcon::themeName();
    QIcon::setThemeName({});
    const bool isOfDesktop = QIcon::themeName() == name;
    if (isOfDesktop)
        return {};
    QIcon::setThemeName(name);
    return name;
}

} // namespace

ProgramLooks ProgramLooks::current()
{
    return {QApplication::font(), QToolTip::palette(), chosenIconTheme()};
}

void ProgramLooks::replace(const ProgramLooks& others) const
{
    const ProgramLooks now = current();
    if (now.font == others.font)
        QApplication::setFont(font);
    if (now.toolTips == others.toolTips)
        QToolTip::setPalette(toolTips);
    if (now.iconTheme == others.iconTheme)
        QIcon::setThemeName(iconTheme);
}

} // namespace BRELK
