// A plug-in that needs a function which no library has.

#include <QObject>
#include <QtPlugin>

void functionThatIsNowhere();

class MissingSymbol : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "fake.plugins.MissingSymbol/1.0")

public:
    MissingSymbol() { functionThatIsNowhere(); }
};

#include "missingsymbol.moc"
