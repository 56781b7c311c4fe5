#include "firmware.h"

#include "config/ipcfile.h"
#include "config/latin1literal.h"
#include "configuration.h"
#include "firmware/itcmfiles.h"

#include <dev/devicedb.h>
#include <ipcore/ipcore.h>

#include <QDir>
#include <QFileInfo>

namespace TARVOORIXM1
{

namespace
{

QVariantMap startAnswer(const QString &error, const QString &folder = QString(),
                        bool changed = false)
{
    return {{QStringLiteral("error"), error},
            {QStringLiteral("folder"), folder},
            {QStringLiteral("changed"), changed}};
}

} // namespace

QVariantMap firmwareFiles(const QString &ipcFile, const QByteArray &image, const QString &ipId,
                          const QString &dataPath, const DEV::DeviceDb &devices)
{
    const auto refusal = [](const QString &error) {
        return QVariantMap{{QStringLiteral("error"), error}};
    };
    const Utils::Result<SystemMap> map = readSystem(ipcFile, ipId, dataPath, devices);
    if (!map)
        return refusal(map.reason());
    const Utils::Result<FirmwareImage> program = readImage(image);
    if (!program)
        return refusal("The image cannot be used: "_l1 + program.reason() + u'.');
    const Utils::Result<ItcmFiles> made = itcmFiles(*program, *map);
    if (!made)
        return refusal("The image does not fit: "_l1 + made.reason() + u'.');
    QVariantList files;
    for (int lane = 0; lane < ItcmFiles::count; ++lane)
        files.append(QVariantMap{{QStringLiteral("path"), ItcmFiles::fileName(lane)},
                                 {QStringLiteral("bytes"), made->texts[size_t(lane)]}});
    return {{QStringLiteral("error"), QString()},   {QStringLiteral("files"), files},
            {QStringLiteral("size"), made->size},   {QStringLiteral("used"), made->used},
            {QStringLiteral("free"), made->free()}, {QStringLiteral("warnings"), made->warnings}};
}

QVariantMap startFromFirmware(const QString &ipcFile, const QString &folder, bool write,
                              const QString &ipId, const DEV::DeviceDb &devices)
{
    const Utils::Result<Configuration> read = readConfiguration(ipcFile, ipId, devices);
    if (!read)
        return startAnswer(read.reason());
    const QString ipcFolder = QFileInfo(ipcFile).absolutePath();
    const QString place = folder.isEmpty()
                              ? itcmFolder(read->options, ipcFolder)
                              : QDir::cleanPath(QDir(ipcFolder).absoluteFilePath(folder));
    const OptionMap options = withItcmFiles(read->options, place, ipcFolder);
    const bool changed = options != read->options;
    if (write && changed) {
        IPCore::writeIPConfig(
            ipcFile, IpcFile::movedHeader(read->others, read->type, read->deviceText), options);
        // The host tells nobody whether it could write.
        const Utils::Result<Configuration> written = readConfiguration(ipcFile, ipId, devices);
        if (!written || withItcmFiles(written->options, place, ipcFolder) != written->options)
            return startAnswer(shownPath(ipcFile) + " could not be written."_l1, place);
    }
    return startAnswer(QString(), place, changed);
}

} // namespace TARVOORIXM1
