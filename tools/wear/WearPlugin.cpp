#include "Tour.h"

#include <QGenericPlugin>

/// Loaded by QT_QPA_GENERIC_PLUGINS=varn_wear; WEAR_PICTURES is how the names of its pictures
/// begin.
class WearPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "wear.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        return new Tour(qEnvironmentVariable("WEAR_PICTURES"));
    }
};

#include "WearPlugin.moc"
