#include "BaseStyle_p.h"

#include "ProxyStyle_p.h"

#include <QStyleOption>

namespace BRELK::ProxyStyle_p {

namespace {

using Field = HexString<unsigned>;

/// What follows the key, in characters.
constexpr int CommonLength = 56;
constexpr int SpinBoxLength = 17;

} // namespace

QString uniqueName(const QString& key, const QStyleOption* option, const QSize& size)
{
    const auto* complex = qstyleoption_cast<const QStyleOptionComplex*>(option);
    const auto* spinBox = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    const unsigned activeParts = complex ? unsigned(complex->activeSubControls) : 0;

    QString name;
    name.reserve(key.size() + CommonLength + (spinBox ? SpinBoxLength : 0));
    name += key % Field(unsigned(option->state)) % Field(unsigned(option->direction))
            % Field(activeParts) % HexString<quint64>(quint64(option->palette.cacheKey()))
            % Field(unsigned(size.width())) % Field(unsigned(size.height()));
    if (spinBox) {
        name += Field(unsigned(spinBox->buttonSymbols)) % Field(unsigned(spinBox->stepEnabled))
                % QLatin1Char(spinBox->frame ? '1' : '0');
    }
    return name;
}

bool isInstanceOf(QObject* object, QAccessible::Role role)
{
    const QAccessibleInterface* accessible =
        object ? QAccessible::queryAccessibleInterface(object) : nullptr;
    return accessible && accessible->role() == role;
}

} // namespace BRELK::ProxyStyle_p
