// A Qt plug-in that has nothing to do with IPs.

#include <QObject>
#include <QtPlugin>

class OtherPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "fake.plugins.OtherPlugin/1.0")
};

#include "otherplugin.moc"
