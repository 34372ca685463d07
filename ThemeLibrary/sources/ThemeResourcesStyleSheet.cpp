#include "ThemeResources.h"
#include "ThemeResources_p.h"

#include <QRegularExpression>

namespace BRELK::ThemeResources {

namespace {

/// QVariant knows the text of every value that a style sheet can hold, and none for a brush.
QString toQssString(const QVariant& value)
{
    return value.toString();
}

} // namespace

QString customizeStyleSheet(const QString& styleSheet)
{
    static const QRegularExpression sPlaceholder(
        QStringLiteral("(@)([\\w%1]+)(@)").arg(QLatin1Char('/')));

    const QVariantMap variables = themeVariables();
    QString result = styleSheet;
    int from = 0;
    for (auto match = sPlaceholder.match(result); match.hasMatch();
         match = sPlaceholder.match(result, from)) {
        const QVariant value = findVariable(variables, match.captured(2), {});
        if (value.isValid()) {
            const QString text = toQssString(value);
            result.replace(match.capturedStart(), match.capturedLength(), text);
            from = match.capturedStart() + text.size();
        } else {
            from = match.capturedEnd();
        }
    }
    return result;
}

} // namespace BRELK::ThemeResources
