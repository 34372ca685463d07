#pragma once

class QString;

namespace BRELK {

/// Says that there is no theme `name`, and which there are.
void reportMissingTheme(const QString& name);

} // namespace BRELK
