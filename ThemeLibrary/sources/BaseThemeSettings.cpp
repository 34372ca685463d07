#include "BaseThemeSettings.h"

#include "ThemeDocument.h"

namespace BRELK {

BaseThemeSettings::BaseThemeSettings(const QString& filePath)
{
    ThemeFileBudget budget;
    const ThemeDocument document(filePath, budget);
    m_status = Status(document.getStatus());
    document.reportFailure();
    if (!m_document.setContent(document.getText()) && m_status == NO_ERROR)
        m_status = READ_ERROR;
    m_themeRootNode = m_document.firstChildElement(QStringLiteral("theme"));
}

QString BaseThemeSettings::getName() const
{
    return m_themeRootNode.firstChildElement(QStringLiteral("name")).text();
}

} // namespace BRELK
