#include "ThemeColorHelper.h"

#include "ColorDerivations.h"
#include "ThemeIcons.h"
#include "ThemeResources.h"
#include "ThemeValues.h"

namespace BRELK::ThemeColorHelper {

QColor disabled(const QColor& color, bool foreground)
{
    std::optional<DisabledFactors>& factors = themeValues().disabledFactors;
    if (!factors)
        factors = {ThemeResources::getDisabledFactor(ThemeNames::LightForegroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::LightBackgroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::DarkForegroundFactor),
                   ThemeResources::getDisabledFactor(ThemeNames::DarkBackgroundFactor)};

    return foreground ? disabledBy(color, factors->lightForeground, factors->darkForeground)
                      : disabledBy(color, factors->lightBackground, factors->darkBackground);
}

QIcon getModifiedIconWithForegroundBrush(QIcon icon, QBrush brush)
{
    return ThemeIcons::colored(icon, brush);
}

} // namespace BRELK::ThemeColorHelper
