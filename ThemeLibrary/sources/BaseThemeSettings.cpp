#include "BaseThemeSettings.h"

#include "ThemeDocument.h"

namespace BRELK {

BaseThemeSettings::BaseThemeSettings(const QString& filePath)
{
    ThemeFileBudget budget;
    const ThemeDocument document(filePath, budget);
    m_status = Status(document.getStatus());
    document.reportFailure();
    m_document = document.getContent();
    m_themeRootNode = m_document.firstChildElement(QStringLiteral("theme"));
}

QString BaseThemeSettings::getName() const
{
    return m_themeRootNode.firstChildElement(QStringLiteral("name")).text();
}

} // namespace BRELK
