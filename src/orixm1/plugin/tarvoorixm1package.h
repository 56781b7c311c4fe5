#pragma once

#include <ipplugin/ipplugin.h>

#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace TARVOORIXM1
{

// The root object of the plug-in library.
class TarvoOrixM1Package : public TE::TE_IPCore_Def::IPPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "TARVOORIXM1.TarvoOrixM1Package/1.0")
    Q_INTERFACES(TE::TE_IPCore_Def::IPPlugin)

public:
    QList<TE::TE_IPCore_Def::BaseIPCoreInterface *> ipCoreInterfaces() override;

    // For hosts that ask for it by name. Moves the configuration in an .ipc file to the device with
    // this id, or, without `write`, only tells what that would cost: {"error": text, empty if all
    // went well; "device": the id; "losses": sentences; "changed": whether the file changes}.
    Q_INVOKABLE QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId,
                                         bool write);

    // For hosts that ask for it by name: the forms in which software gets a configuration, see
    // softwareFormats() in exportsoftware.h, and their files, see exportSoftware() there. Nothing
    // is written.
    Q_INVOKABLE QVariantList softwareFormats() const;
    Q_INVOKABLE QVariantMap exportSoftware(const QString &ipcFile,
                                           const QStringList &formats) const;

    // For hosts that ask for it by name: the way of a program into the memory from which the
    // processor starts, see firmware.h. The first writes nothing, the second only with `write`.
    Q_INVOKABLE QVariantMap firmwareFiles(const QString &ipcFile, const QByteArray &image) const;
    Q_INVOKABLE QVariantMap startFromFirmware(const QString &ipcFile, const QString &folder,
                                              bool write);

    // For hosts that ask for it by name: how a program is run on a configured subsystem before
    // there is hardware, and what can be tried at once; see simulationcommand.h. Nothing is
    // written.
    Q_INVOKABLE QVariantMap simulationCommand(const QString &ipcFile) const;
    Q_INVOKABLE QVariantList simulationExamples() const;

    // For hosts that ask for it by name: pictures of a configured subsystem whose places lead into
    // the files of exportSoftware(); see maps.h. Nothing is written.
    Q_INVOKABLE QVariantMap maps(const QString &ipcFile) const;

    // For hosts that ask for it by name: how a configuration is synthesised to see what it takes of
    // its device; see measurecommand.h. Nothing is written.
    Q_INVOKABLE QVariantMap measureCommand(const QVariantMap &configuration) const;

    // For hosts that ask for it by name: what OK would do in the dialog, whose configuration() this
    // is; see previewgeneration.h. Nothing is written.
    Q_INVOKABLE QVariantMap previewGeneration(const QVariantMap &configuration) const;

    // For hosts that ask for it by name: whether what was generated from an .ipc file is still what
    // a generation would make; see generationanswer.h. Nothing is written.
    Q_INVOKABLE QVariantMap generationState(const QString &ipcFile) const;

    // For hosts that ask for it by name: what a configuration, as configuration() of a dialog tells
    // it, will take of its device, without a run; see estimateanswer.h.
    Q_INVOKABLE QVariantMap estimate(const QVariantMap &configuration) const;
};

} // namespace TARVOORIXM1
