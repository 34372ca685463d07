#pragma once

#include "ThemeConfigurationReader.h"
#include "ThemeDocument.h"

#include <QPalette>

namespace ThemeTool {

/// A theme as it would look, read without applying it.
class ReadTheme
{
public:
    /// Reads the theme in `directory`, whatever is wrong with it.
    explicit ReadTheme(const QString& directory);
    Q_DISABLE_COPY(ReadTheme)

    const QString& getDirectory() const { return m_directory; }

    /// What theme.xml calls it.
    const QString& getName() const { return m_name; }

    const BRELK::ThemeConfigurationReader& getConfiguration() const { return m_configuration; }

    const QPalette& getPalette() const { return m_palette; }

    /// What the readers report.
    const QVector<BRELK::ThemeProblem>& getProblems() const { return m_recorder.getProblems(); }

    /// The brush or color `name`, internal or not; with a dot, that of a palette: "Inactive.Text".
    /// Invalid when there is none, and for gradients.
    QColor getColor(const QString& name) const;

private:
    QColor disabled(const QColor& color, bool foreground) const;
    QPalette readPalette() const;

    QString m_directory;
    BRELK::ThemeProblemRecorder m_recorder;
    QString m_name;
    BRELK::ThemeConfigurationReader m_configuration;
    QPalette m_palette;
};

/// What the palette of `ReadTheme` has where the theme maps no role.
constexpr QRgb UnmappedColor = 0xff010203;

} // namespace ThemeTool
