#include "BaseThemeSettings.h"

#include <QFile>

namespace BRELK {

BaseThemeSettings::BaseThemeSettings(const QString& filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        m_status = FILE_NOT_FOUND_ERROR;
        return;
    }
    if (!m_document.setContent(&file))
        m_status = READ_ERROR;
    m_themeRootNode = m_document.firstChildElement(QStringLiteral("theme"));
}

QString BaseThemeSettings::getName() const
{
    return m_themeRootNode.firstChildElement(QStringLiteral("name")).text();
}

} // namespace BRELK
