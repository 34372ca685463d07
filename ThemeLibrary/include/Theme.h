#pragma once

#include "ThemeLibraryGlobal.h"

#include <QString>

class QApplication;

namespace BRELK {

/// A look that can be given to a running application.
class VARN_COMMON_THEME_EXPORT Theme
{
public:
    virtual ~Theme();

    /// The theme's name as its author wrote it; empty when the theme could not be read.
    virtual QString getName() const = 0;

    /// Gives `app` this theme. Call it once, on the GUI thread, before widgets are built: the style
    /// keeps theme values from their first use. `ThemeSwitcher` applies another theme later.
    /// Problems are reported through the debug logger.
    virtual void customize(QApplication* app) = 0;
};

} // namespace BRELK
