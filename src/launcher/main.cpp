#include <core/idecore.h>
#include <dev/devicedb.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPluginLoader>

#include <memory>

namespace
{

int fail(const QString &message)
{
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Error"), message, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orixm1-dialog"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens the configuration dialog of Tarvo_ORIX_M1."));
    parser.addHelpOption();
    const QCommandLineOption device(
        QStringLiteral("device"), QStringLiteral("Device id or name of a new IP."),
        QStringLiteral("ID|NAME"), QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    const QCommandLineOption dir(QStringLiteral("dir"),
                                 QStringLiteral("Folder that a new IP is created in."),
                                 QStringLiteral("DIR"), QDir::currentPath());
    parser.addOptions({device, dir});
    parser.addPositionalArgument(
        QStringLiteral("FILE.ipc"),
        QStringLiteral("Configuration to open again; without it a new IP is created."),
        QStringLiteral("[FILE.ipc]"));
    parser.process(application);

    const QString root = QDir::cleanPath(QApplication::applicationDirPath() + QLatin1String("/.."));
    const QDir libraries(root + QLatin1String("/" TARVO_PLUGIN_SUBDIR));
    QPluginLoader loader(libraries.filePath(QStringLiteral("libTarvoOrixM1.so")));
    auto *plugin = qobject_cast<TE::TE_IPCore_Def::IPPlugin *>(loader.instance());
    if (!plugin)
        return fail(QLatin1String("The plug-in cannot be loaded: ") + loader.errorString());
    plugin->setDataPath(root + QLatin1String("/share/tarvo/tarvo_orix_m1"));
    const auto cores = plugin->ipCoreInterfaces();
    if (cores.isEmpty())
        return fail(QLatin1String("The plug-in finds no usable descriptor in \"") +
                    plugin->dataPath() + QLatin1String("\"."));
    const std::unique_ptr<TE::TE_IPCore_Def::BaseIPCoreInterface> core(cores.first());

    if (!parser.positionalArguments().isEmpty()) {
        const QFileInfo file(parser.positionalArguments().constFirst());
        core->openIP(file.absolutePath(), file.absoluteFilePath());
        return 0;
    }
    DEV::ChipFilter filter;
    filter.id = parser.value(device);
    const QList<DEV::DeviceArg> found = Core::IdeCore::deviceDataBase()->filterDevice(filter);
    if (found.isEmpty())
        return fail(QLatin1String("Unknown device \"") + filter.id + QLatin1String("\"."));
    if (!core->isSupported(found.first()))
        return fail(found.first().id() + QLatin1String(" is not supported by ") + core->name());
    core->createIP(QFileInfo(parser.value(dir)).absoluteFilePath(), found.first());
    return 0;
}
