#include "DesktopScheme.h"

namespace BRELK {

QObject* listenToDesktop(QObject*, std::function<void(bool dark)>)
{
    return nullptr;
}

} // namespace BRELK
