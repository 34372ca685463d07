#pragma once

#include <QCoreApplication>

namespace BRELK {

/// While this lives an icon is asked in device pixels; without it `QIcon` would scale by the ratio
/// of the application once more.
class AskedInDevicePixels
{
public:
    AskedInDevicePixels() : m_highDpi(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, false);
    }

    ~AskedInDevicePixels() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, m_highDpi); }

    Q_DISABLE_COPY_MOVE(AskedInDevicePixels)

private:
    bool m_highDpi;
};

} // namespace BRELK
