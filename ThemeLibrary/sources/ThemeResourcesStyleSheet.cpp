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
    QString result;
    int from = 0;
    for (auto matches = sPlaceholder.globalMatch(styleSheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QVariant value = findVariable(variables, match.captured(2), {});
        if (!value.isValid())
            continue;
        result += styleSheet.midRef(from, match.capturedStart() - from) + toQssString(value);
        from = match.capturedEnd();
    }
    return result + styleSheet.midRef(from);
}

} // namespace BRELK::ThemeResources
