#include "Helpers.h"

namespace BRELK {

QIcon Helpers::getModifiedIconWithForegroundBrush(QIcon icon, QBrush, QBrush, bool)
{
    return icon;
}

} // namespace BRELK
