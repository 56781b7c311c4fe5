#include "ipcore.h"

#include "errordialog.h"
#include "synthesismonitor.h"
#include "tr.h"
#include "usermessages.h"
#include "writinglocks.h"

#include <core/project.h>
#include <core/projectmanager.h>
#include <core/viewmanager.h>
#include <synthesis/simulationmodel.h>
#include <utils/descriptor.h>
#include <utils/fileutils.h>
#include <utils/inifile.h>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace IPCore
{

namespace
{

void report(QWidget *parent, const QString &message)
{
    QMessageBox box(QMessageBox::Critical, Tr::tr("Error"), message, QMessageBox::Ok,
                    parent ? parent : Core::ViewManager::dialogParent());
    // Messages hold paths of the user, which must never be taken for mark-up.
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Ok)->setText(Tr::tr("OK")); // whatever language Qt speaks
    const WritingLocks::Pause pause;
    box.exec();
}

ConfigKeeper &configKeeper()
{
    static ConfigKeeper keeper;
    return keeper;
}

bool names(const QString &entry, const DEV::DeviceArg &device)
{
    if (entry.endsWith(u'*'))
        return device.device().startsWith(entry.chopped(1));
    return entry == device.device() || entry == device.deviceN() || entry == device.series();
}

bool anyNames(const QStringList &entries, const DEV::DeviceArg &device)
{
    for (const QString &entry : entries) {
        if (names(entry, device))
            return true;
    }
    return false;
}

// Without dots; the root folder is its own parent, which QDir::cleanPath() does not know.
QString absolutePath(const QString &path)
{
    QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (absolute.startsWith(QLatin1String("/../")))
        absolute.remove(0, 3);
    return absolute == QLatin1String("/..") ? QStringLiteral("/") : absolute;
}

} // namespace

QVariantMap processIPInfoSpec(const QString &path, QString *error)
{
    const Utils::Result<QVariantMap> read = Utils::readDescriptor(path);
    if (!read) {
        if (error)
            *error = read.reason();
        return {};
    }
    QVariantMap ipInfo = *read;
    const auto help = ipInfo.find(QStringLiteral("ipcore.doc.help"));
    if (help != ipInfo.end() && !help->toString().isEmpty())
        *help = QFileInfo(path).absoluteDir().absoluteFilePath(help->toString());
    if (!ipInfo.isEmpty())
        addProductFolder(QFileInfo(path).absolutePath());
    return ipInfo;
}

bool checkCommonInfo(const QVariantMap &ipInfo)
{
    for (const char *key :
         {"ipcore.id", "ipcore.name", "ipcore.version", "ipcore.category", "ipcore.target"}) {
        const QVariant value = ipInfo.value(QLatin1String(key));
        if (value.toStringList().join(QString()).isEmpty() && value.toString().isEmpty())
            return false;
    }
    return true;
}

bool isSupported(const DEV::DeviceArg &device, const QStringList &unsupported,
                 const QStringList &supported)
{
    if (device.isNull() || anyNames(unsupported, device))
        return false;
    return supported.isEmpty() || anyNames(supported, device);
}

void writeIPConfig(const QString &path, const QVariantMap &header, const QVariantMap &options)
{
    // A copy, because the keeper may take its own registration back.
    const ConfigKeeper keep = configKeeper();
    if (keep && QFileInfo::exists(path))
        keep(path);
    const Utils::Result<void> written =
        Utils::rewriteIniFile(path, header, QStringLiteral("Config"), options);
    if (!written)
        report(nullptr, written.reason());
}

void setConfigKeeper(const ConfigKeeper &keeper)
{
    configKeeper() = keeper;
}

bool makeDirs(const QString &path, const QString &ipName)
{
    QString error;
    if (Utils::FileUtils::makePath(path, &error) && WritingLocks::take(path, &error))
        return true;
    report(nullptr, Tr::tr("%1 cannot be generated. %2").arg(ipName, error));
    return false;
}

bool generateFile(const QString &path, const QStringList &lines, QWidget *parent,
                  const QString &header)
{
    QString error;
    QStringList text = lines;
    if (!header.isEmpty())
        text.prepend(header.endsWith(u'\n') ? header.chopped(1) : header);
    if (Utils::FileUtils::writeLines(path, text, &error))
        return true;
    WritingLocks::giveBack(QFileInfo(path).absolutePath());
    report(parent, error);
    return false;
}

int decode(const QString &outDir, const QString &netlist, const QString &destination,
           QString &message)
{
    if (!QFileInfo(outDir).isDir()) {
        message = Tr::tr("The output folder \"%1\" does not exist.")
                      .arg(QDir::toNativeSeparators(outDir));
        return -1;
    }
    return Synthesis::writeSimulationModel(netlist, destination, &message);
}

void showErrorMsgs(const QString &title, const QStringList &details)
{
    if (SynthesisMonitor::instance().isCancellation(title))
        return;
    ErrorDialog dialog(title, detailsForUser(title, details), Core::ViewManager::dialogParent());
    dialog.exec();
}

void addFilesToProject(const QStringList &paths)
{
    if (Core::Project *project = Core::ProjectManager::currentProject())
        project->addFiles(paths);
}

bool isSubDirFile(const QString &dir, const QString &path)
{
    if (dir.isEmpty() || path.isEmpty())
        return false;
    QString folder = absolutePath(dir);
    if (!folder.endsWith(u'/'))
        folder += u'/';
    const QString file = absolutePath(path);
    return file.size() > folder.size() && file.startsWith(folder);
}

} // namespace IPCore
