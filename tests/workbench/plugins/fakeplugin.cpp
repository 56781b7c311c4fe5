// Plug-ins for the tests, one for each way in which a plug-in can behave: FAKE_KIND says which.

#include <core/viewmanager.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTimer>

#include <cstring>
#include <stdexcept>

using TE::TE_IPCore_Def::BaseIPCoreInterface;
using TE::TE_IPCore_Def::IPPlugin;

namespace
{

bool is(const char *kind)
{
    return std::strcmp(FAKE_KIND, kind) == 0;
}

// For tests that have no hands in the program's process.
void acceptIfAsked(QDialog *dialog)
{
    if (qEnvironmentVariableIsSet("FAKE_ACCEPT"))
        QTimer::singleShot(0, dialog, &QDialog::accept);
}

// Supports the devices of one series. Its dialog has no contents; accepted, it writes "blinker.ipc"
// into a folder of its own.
class Blinker : public BaseIPCoreInterface
{
public:
    void createIP(QString createInDir, DEV::DeviceArg device) override
    {
        if (is("throwingdialog"))
            throw std::runtime_error("the lamp is broken");
        QDialog dialog(Core::ViewManager::dialogParent());
        dialog.setWindowTitle(QStringLiteral("Blinker"));
        acceptIfAsked(&dialog);
        if (dialog.exec() != QDialog::Accepted)
            return;
        const QDir folder(createInDir + QStringLiteral("/blinker"));
        folder.mkpath(QStringLiteral("."));
        QSettings file(folder.filePath(QStringLiteral("blinker.ipc")), QSettings::IniFormat);
        file.setValue(QStringLiteral("type"), id());
        file.setValue(QStringLiteral("target_device"), device.id());
    }
    void openIP(QString, QString ipcFile) override
    {
        if (is("throwingdialog"))
            throw 42;
        QDialog dialog(Core::ViewManager::dialogParent());
        dialog.setWindowTitle(ipcFile);
        acceptIfAsked(&dialog);
        if (dialog.exec() == QDialog::Accepted)
            QFile::copy(ipcFile, ipcFile + QStringLiteral(".opened"));
    }
    bool initialize() override { return true; }
    QString version() override { return QStringLiteral("2.1"); }
    QString id() override { return QStringLiteral("fake.blinker"); }
    QString name() override
    {
        if (is("throwingname"))
            throw std::runtime_error("no name today");
        return QStringLiteral("Blinker");
    }
    QStringList category() override
    {
        return {QStringLiteral("Soft IP Core"), QStringLiteral("Lamps")};
    }
    QString summary() override { return QStringLiteral("Makes a lamp blink."); }
    bool isSupported(DEV::DeviceArg device) override
    {
        return device.series() == QLatin1String("TV5K");
    }
};

} // namespace

class FakePlugin : public IPPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "fake.plugins.FakePlugin/1.0")
    Q_INTERFACES(TE::TE_IPCore_Def::IPPlugin)

public:
    FakePlugin()
    {
        if (is("throwing"))
            throw std::runtime_error("out of lamps");
    }
    QList<BaseIPCoreInterface *> ipCoreInterfaces() override
    {
        if (is("throwingcores"))
            throw std::runtime_error("no cores");
        if (is("empty"))
            return {};
        return {new Blinker};
    }
};

#include "fakeplugin.moc"
