#include "DesktopFollower.h"

#include "AppliedThemes.h"
#include "DesktopScheme.h"
#include "ThemeSwitcher.h"

#include <QCoreApplication>

#include <utility>

namespace BRELK {

DesktopFollower::DesktopFollower(const QString& light, const QString& dark)
    : m_listener(listenToDesktop(QCoreApplication::instance(), [this, light, dark](bool isDark) {
        m_wanted = isDark ? dark : light;
        obey();
    }))
{ }

DesktopFollower::~DesktopFollower()
{
    delete m_listener;
}

void DesktopFollower::obey()
{
    if (m_wanted.isEmpty() || appliedThemes().switching)
        return;
    const QString wanted = std::exchange(m_wanted, {});
    if (wanted != std::exchange(m_obeyed, wanted))
        ThemeSwitcher::getInstance().switchTo(wanted);
}

} // namespace BRELK
