#pragma once

#include <QDomDocument>
#include <QString>

namespace BRELK {

/// Reads a theme's descriptor: an XML file with the root "theme", whose child "name" names the
/// theme.
class BaseThemeSettings
{
public:
    enum Status : unsigned { NO_ERROR = 0, FILE_NOT_FOUND_ERROR = 1, READ_ERROR = 2 };

    explicit BaseThemeSettings(const QString& filePath);

    /// The text of "name"; empty when the file or the element is missing.
    QString getName() const;

    /// `FILE_NOT_FOUND_ERROR` when the file cannot be opened, `READ_ERROR` when it is not
    /// well-formed XML.
    Status getStatus() const { return m_status; }

private:
    QDomDocument m_document;
    QDomElement m_themeRootNode;
    Status m_status = NO_ERROR;
};

} // namespace BRELK
