#pragma once

#include <QRegularExpression>
#include <QString>
#include <QVector>

namespace ThemeTool {

/// Something that is wrong with a theme.
struct Finding
{
    QString file;
    int line = 0;
    int column = 0;
    bool isError = true;
    QString text;
};

/// All that is wrong with the theme in `directory`, in the order of its files' lines. Names that
/// match `own` are an application's, which asks for them; an empty pattern matches none.
QVector<Finding> checkTheme(const QString& directory, const QRegularExpression& own = {});

/// The one of `names` that was probably meant by `name`; empty when none is near.
QString likelyName(const QString& name, const QStringList& names);

} // namespace ThemeTool
