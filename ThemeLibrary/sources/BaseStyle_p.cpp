#include "BaseStyle_p.h"

#include "ProxyStyle_p.h"

#include <QStyleOption>

namespace BRELK::ProxyStyle_p {

namespace {

using Field = HexString<unsigned>;

} // namespace

QString uniqueName(const QString& key, const QStyleOption* option, const QSize& size)
{
    const auto* complex = qstyleoption_cast<const QStyleOptionComplex*>(option);
    const unsigned activeParts = complex ? unsigned(complex->activeSubControls) : 0;
    const auto common = key % Field(unsigned(option->state)) % Field(unsigned(option->direction))
                        % Field(activeParts)
                        % HexString<quint64>(quint64(option->palette.cacheKey()))
                        % Field(unsigned(size.width())) % Field(unsigned(size.height()));

    if (const auto* spinBox = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
        return common % Field(unsigned(spinBox->buttonSymbols))
               % Field(unsigned(spinBox->stepEnabled)) % QLatin1Char(spinBox->frame ? '1' : '0');
    }
    return common;
}

bool isInstanceOf(QObject* object, QAccessible::Role role)
{
    const QAccessibleInterface* accessible =
        object ? QAccessible::queryAccessibleInterface(object) : nullptr;
    return accessible && accessible->role() == role;
}

} // namespace BRELK::ProxyStyle_p
