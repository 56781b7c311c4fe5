#include "catalogue/ipcatalogue.h"
#include "catalogue/pluginlist.h"
#include "language/languages.h"
#include "project/project.h"
#include "render/diagramrenderer.h"
#include "widgets/fontconfiguration.h"
#include "widgets/programstyle.h"
#include "widgets/symbolicon.h"
#include "window/exitguard.h"
#include "window/mainwindow.h"
#include "window/options.h"

#include <core/idecore.h>
#include <dev/devicedb.h>
#include <utils/interrupt.h>
#include <utils/utf8names.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QTextCodec>
#include <QTimer>

#include <cstdio>
#include <cstring>
#include <optional>

using namespace Workbench;

namespace
{

int fail(const QString &message)
{
    std::fprintf(stderr, "tarvo-workbench: %s\n", message.toUtf8().constData());
    return 1;
}

bool given(int argc, char *argv[], const char *option)
{
    const size_t length = std::strlen(option);
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], option, length) == 0 &&
            (argv[i][length] == '\0' || argv[i][length] == '='))
            return true;
    }
    return false;
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void loadPlugins(IpCatalogue &catalogue, const Options &options, const QSettings &settings)
{
    // The build tree and an installation are laid out alike.
    const QString root =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/.."));
    catalogue.setDataFolders({root + QLatin1String("/share/tarvo")});
    catalogue.setProbeCache(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                            QLatin1String("/plugins.json"));
    catalogue.loadFolder(root + QLatin1String("/" TARVO_PLUGIN_SUBDIR), false);
    const QStringList chosen = PluginList::folders(settings);
    for (const QString &folder : chosen)
        catalogue.loadFolder(folder, true);
    for (const QString &folder : options.pluginDirs)
        catalogue.loadFolder(folder, true);
}

// The first device in database order that has this id or name; null for an empty one.
DEV::DeviceArg findDevice(const QString &idOrName)
{
    if (idOrName.isEmpty())
        return {};
    DEV::ChipFilter filter;
    filter.id = idOrName;
    return Core::IdeCore::deviceDataBase()->filterDevice(filter).value(0);
}

void createIp(MainWindow &window, const IpCatalogue &catalogue, const Options &options, int ip,
              const QString &dir, const DEV::DeviceArg &device)
{
    const Project *project = window.project();
    const bool inProject =
        project && options.dir.isEmpty() &&
        QFileInfo(dir).canonicalFilePath() == QFileInfo(project->path()).canonicalFilePath();
    window.createIp(ip, inProject ? project->freeIpFolder(catalogue.targetOf(ip)) : dir,
                    device.isNull() && project ? project->device() : device);
}

// Opens what the command line names, or what was open last. A project is there before the window
// is, which then begins with it; what may need a question or a dialog comes when the window is
// shown. False if there is something wrong that no window needs to open for.
bool prepare(const Options &options, const IpCatalogue &catalogue, MainWindow &window, int *status)
{
    *status = 2;
    int ip = -1;
    DEV::DeviceArg device;
    const QString dir =
        QFileInfo(options.dir.isEmpty() ? QDir::currentPath() : options.dir).absoluteFilePath();
    QString projectFile;
    if (!options.newIp.isEmpty()) {
        ip = catalogue.indexOf(options.newIp);
        projectFile = Project::fileAbove(dir);
        if (ip < 0) {
            QStringList names;
            for (const IpEntry &entry : catalogue.entries())
                names.append(entry.name);
            fail(QStringLiteral("No plug-in offers the IP \"%1\"; there are: %2")
                     .arg(options.newIp, names.join(QLatin1String(", "))));
            return false;
        }
        device = findDevice(options.device);
        if (!options.device.isEmpty() && device.isNull()) {
            fail(QStringLiteral("Unknown device \"%1\".").arg(options.device));
            return false;
        }
        if (options.device.isEmpty() && projectFile.isEmpty()) {
            fail(QStringLiteral("--new-ip needs --device, because \"%1\" is in no project.")
                     .arg(QDir::toNativeSeparators(dir)));
            return false;
        }
    }
    for (const QString &file : options.files) {
        if (!QFileInfo::exists(file)) {
            fail(QStringLiteral("\"%1\" does not exist.").arg(file));
            return false;
        }
        if (file.endsWith(QLatin1String(".ipc")) && projectFile.isEmpty())
            projectFile = Project::fileAbove(QFileInfo(file).absolutePath());
    }
    *status = 0;
    QStringList files;
    for (const QString &file : options.files)
        files.append(QFileInfo(file).absoluteFilePath());
    if (projectFile.isEmpty() && files.isEmpty() && ip < 0 && !options.isFresh)
        window.restoreSession();
    if (projectFile.isEmpty() && !files.isEmpty() &&
        files.first().endsWith(QLatin1String(".") + QLatin1String(ProjectFile::suffix)))
        projectFile = files.takeFirst();
    const bool isOpen = !projectFile.isEmpty() && window.beginWith(projectFile);
    QTimer::singleShot(0, &window, [=, &window, &catalogue] {
        if (!isOpen && !projectFile.isEmpty())
            window.openProject(projectFile);
        for (const QString &file : files)
            window.openPath(file);
        if (ip >= 0)
            createIp(window, catalogue, options, ip, dir, device);
    });
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    // File names and arguments are UTF-8 in every locale.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const bool rendering = given(argc, argv, "--render-diagram");
    const bool asked =
        given(argc, argv, "--help") || given(argc, argv, "-h") || given(argc, argv, "--version");
    if (rendering || asked) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.*=false"));
    }
    for (const QString &mistake : {Utils::nonUtf8Argument(argc, argv),
                                   argc > 1 ? Utils::nonUtf8CurrentFolder() : QString()}) {
        if (!mistake.isEmpty())
            return fail(mistake);
    }
    Options options;
    int status = 0;
    // Usage mistakes are told without a display too.
    if (!hasDisplay() && !given(argc, argv, "-platform")) {
        if (options.parse(argc, argv, &status) == Options::Leave)
            return status;
        return fail(QStringLiteral(
            "There is no display to open the window on; only --render-diagram works without one."));
    }

    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    std::future<void> fonts = readFontConfiguration();
    QApplication::setStyle(new ProgramStyle);
    QApplication::setOrganizationName(QStringLiteral("tarvo"));
    QApplication::setApplicationName(QStringLiteral("tarvo-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("tarvo-workbench"));
    if (options.parse(argc, argv, &status) == Options::Leave)
        return status;

    // QSettings would wait for ever for what a pipe has to say.
    if (const QFileInfo file(options.settings); file.exists() && !file.isFile())
        return fail(QStringLiteral("\"%1\" cannot hold the settings: it is not a plain file.")
                        .arg(QDir::toNativeSeparators(options.settings)));
    QSettings settings(options.settings.isEmpty()
                           ? QSettings(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("tarvo"), QStringLiteral("workbench"))
                                 .fileName()
                           : QFileInfo(options.settings).absoluteFilePath(),
                       QSettings::IniFormat);
    ExitGuard guard;
    // What is printed is English.
    std::optional<Languages> languages;
    if (!rendering)
        languages.emplace(options.language.isEmpty()
                              ? settings.value(QStringLiteral("language")).toString()
                              : options.language);
    IpCatalogue catalogue;
    loadPlugins(catalogue, options, settings);
    if (rendering) {
        ExitGuard::setDeadline(options.timeLimit, options.renderDiagram);
        DiagramRenderer renderer(catalogue);
        QString error;
        return renderer.render(options.renderDiagram, options.output, &error) ? 0 : fail(error);
    }

    fonts.wait();
    QApplication::setWindowIcon(applicationIcon());
    MainWindow window(catalogue, settings);
    guard.setLastDeed([&window] { window.keepUnsaved(); });
    if (!prepare(options, catalogue, window, &status))
        return status;
    const Utils::Interrupt interrupt;
    QObject::connect(&interrupt, &Utils::Interrupt::received, &window, &MainWindow::shutDown);
    window.show();
    bool closed = false;
    QObject::connect(&window, &MainWindow::closed, &window, [&closed] { closed = true; });
    status = QApplication::exec();
    guard.setLastDeed(nullptr);
    if (closed)
        return status;
    // Somebody else has ended the event loop.
    window.keepUnsaved();
    return fail(QStringLiteral("A plug-in has ended the program."));
}
