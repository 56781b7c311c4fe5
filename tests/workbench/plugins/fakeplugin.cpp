// Plug-ins for the tests, one for each way in which a plug-in can behave: the library's name says
// which.

#include <core/viewmanager.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>

#include <QCoreApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QThread>
#include <QTimer>
#include <QVariantMap>

#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <stdexcept>
#include <unistd.h>

using TE::TE_IPCore_Def::BaseIPCoreInterface;
using TE::TE_IPCore_Def::IPPlugin;

namespace
{

// "empty" of "libempty.so"
QByteArray kindOfLibrary()
{
    Dl_info info = {};
    if (::dladdr(reinterpret_cast<const void *>(&kindOfLibrary), &info) == 0 || !info.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).baseName().mid(3).toLatin1();
}

bool is(const char *kind)
{
    return kindOfLibrary() == kind;
}

// Does what the plug-in's name says if it is the place's turn: "blocking-listing" blocks when it
// is asked for its IPs.
void misbehave(const char *place)
{
    const QByteArray kind = kindOfLibrary();
    if (!kind.endsWith(QByteArray("-") + place))
        return;
    if (kind.startsWith("blocking"))
        QThread::sleep(1000);
    else if (kind.startsWith("exiting"))
        std::exit(0);
    else if (kind.startsWith("leaving"))
        ::_exit(0);
    else if (kind.startsWith("crashing"))
        ::raise(SIGABRT);
    else if (kind.startsWith("printing"))
        for (;;)
            std::puts("and so on");
}

struct AtLoad {
    AtLoad() { misbehave("loading"); }
} atLoad;

// A dialog that offers what the host may ask for.
class BlinkerDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BlinkerDialog(const QString &file)
        : QDialog(Core::ViewManager::dialogParent())
        , m_file(file)
    {
    }

    QVariantMap options;
    QVariantMap header;

    Q_INVOKABLE QVariantMap configuration() const
    {
        return {{QStringLiteral("file"), m_file},
                {QStringLiteral("header"), header},
                {QStringLiteral("options"), options}};
    }
    Q_INVOKABLE void change() { options.insert(QStringLiteral("Lamps"), 7); }
#ifdef FAKE_MEASURES
Q_SIGNALS:
    void configurationChanged();

public:
#endif
#ifdef FAKE_DRAWS
    Q_INVOKABLE bool saveDiagram(const QString &path, QString *) const
    {
        misbehave("drawing");
        if (is("lying-drawing"))
            return true;
        QFile file(path);
        if (is("garbling-drawing"))
            return file.open(QIODevice::WriteOnly) && file.write("no picture") > 0;
        return file.open(QIODevice::WriteOnly) && file.write("<svg/>") > 0;
    }
#endif

private:
    QString m_file;
};

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
        const QDir folder(createInDir + QStringLiteral("/blinker"));
        BlinkerDialog dialog(folder.filePath(QStringLiteral("blinker.ipc")));
        dialog.setWindowTitle(QStringLiteral("Blinker"));
        dialog.header = {{QStringLiteral("type"), id()},
                         {QStringLiteral("target_device"), device.id()}};
        acceptIfAsked(&dialog);
        misbehave("creating");
        if (is("exiting-dialog"))
            QTimer::singleShot(0, &dialog, [] { std::exit(0); });
        if (is("quitting-dialog"))
            QTimer::singleShot(0, &dialog, [] { QCoreApplication::exit(0); });
        if (dialog.exec() != QDialog::Accepted)
            return;
        folder.mkpath(QStringLiteral("."));
        QSettings file(folder.filePath(QStringLiteral("blinker.ipc")), QSettings::IniFormat);
        file.setValue(QStringLiteral("type"), id());
        file.setValue(QStringLiteral("target_device"), device.id());
    }
    void openIP(QString createInDir, QString ipcFile) override
    {
        if (is("throwingdialog"))
            throw 42;
        misbehave("opening");
        BlinkerDialog dialog(createInDir + u'/' + QFileInfo(ipcFile).fileName());
        dialog.setWindowTitle(ipcFile);
        {
            QSettings file(ipcFile, QSettings::IniFormat);
            for (const char *key : {"type", "target_device"})
                dialog.header.insert(QLatin1String(key), file.value(QLatin1String(key)));
            file.beginGroup(QStringLiteral("Config"));
            const QStringList keys = file.childKeys();
            for (const QString &key : keys)
                dialog.options.insert(key, file.value(key));
        }
        acceptIfAsked(&dialog);
        if (dialog.exec() == QDialog::Accepted)
            QFile::copy(ipcFile, ipcFile + QStringLiteral(".opened"));
    }
    bool initialize() override { return true; }
    QString version() override
    {
        misbehave("describing");
        return QStringLiteral("2.1");
    }
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
        misbehave("supporting");
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
        misbehave("starting");
        if (is("throwing"))
            throw std::runtime_error("out of lamps");
    }
    QList<BaseIPCoreInterface *> ipCoreInterfaces() override
    {
        if (is("throwingcores"))
            throw std::runtime_error("no cores");
        if (is("empty"))
            return {};
        misbehave("listing");
        if (is("null"))
            return {nullptr};
        if (is("nullandgood"))
            return {nullptr, new Blinker};
        if (is("twice")) {
            auto *core = new Blinker;
            return {core, core};
        }
        return {new Blinker};
    }

#ifdef FAKE_EXPORTS
    // A header that counts the lamps, a document with a picture, and a format without files.
    Q_INVOKABLE QVariantList softwareFormats() const
    {
        if (is("throwing-exporting"))
            throw std::runtime_error("the lamp is hot");
        if (is("garbling-exporting"))
            return {QVariantMap{{QStringLiteral("name"), QVariantList{1, 2}}}};
        const auto format = [](const char *name, const char *title, const char *files) {
            return QVariantMap{
                {QStringLiteral("name"), QString::fromLatin1(name)},
                {QStringLiteral("title"), QString::fromLatin1(title)},
                {QStringLiteral("purpose"), QStringLiteral("Tells programs about the lamps.")},
                {QStringLiteral("standard"), QStringLiteral("C99")},
                {QStringLiteral("files"), QString::fromLatin1(files)},
                {QStringLiteral("checkedBy"), QStringLiteral("gcc")}};
        };
        return {format("header", "Lamp header", "lamp.h"),
                format("sheet", "Lamp sheet", "sheet/lamp.html"), format("dark", "Darkness", "")};
    }
    Q_INVOKABLE QVariantMap exportSoftware(const QString &ipcFile, const QStringList &formats) const
    {
        if (is("late-exporting"))
            throw 42;
        if (is("refusing-exporting"))
            return {{QStringLiteral("error"), QStringLiteral("These lamps are on strike.")}};
        QString lamps;
        QString device;
        {
            QSettings file(ipcFile, QSettings::IniFormat);
            lamps = file.value(QStringLiteral("Config/Lamps")).toString();
            device = file.value(QStringLiteral("target_device")).toString();
        }
        QVariantList files;
        const auto add = [&](const char *format, const char *path, const QByteArray &bytes) {
            if (formats.contains(QLatin1String(format)))
                files.append(QVariantMap{{QStringLiteral("path"), QString::fromLatin1(path)},
                                         {QStringLiteral("format"), QString::fromLatin1(format)},
                                         {QStringLiteral("bytes"), bytes}});
        };
        if (is("outside-exporting"))
            add("header", "../lamp.h", "outside");
        if (is("huge-exporting"))
            add("header", "huge.h", QByteArray(100 << 20, 'x'));
        add("header", "lamp.h",
            "#define LAMPS " + lamps.toUtf8() + "\n/* " + device.toUtf8() + " */\n");
        add("sheet", "sheet/lamp.html",
            "<html><head><title>The lamp sheet</title></head><body><h1>Lamps</h1><p>There are " +
                lamps.toUtf8() +
                " of them.</p><img src=\"lamp.svg\"><p><a href=\"../lamp.h\">Header</a></p>"
                "</body></html>");
        add("sheet", "sheet/lamp.svg",
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\">"
            "<rect width=\"200\" height=\"100\" fill=\"#00ff00\"/>"
            "<text x=\"20\" y=\"50\">bulb</text></svg>");
        return {{QStringLiteral("error"), QString()}, {QStringLiteral("files"), files}};
    }
#endif

#ifdef FAKE_TAKES
    // A memory of 16 bytes in two files, which it takes from "glow" beside the configuration.
    Q_INVOKABLE QVariantMap firmwareFiles(const QString &, const QByteArray &image) const
    {
        if (is("throwing-taking"))
            throw std::runtime_error("the lamp is hot");
        if (is("garbling-taking"))
            return {{QStringLiteral("files"), 3}};
        const int size = 16;
        if (image.size() > size)
            return {{QStringLiteral("error"), QStringLiteral("The lamp is too small.")}};
        QStringList warnings;
        if (image.startsWith('?'))
            warnings.append(QStringLiteral("The lamp may stay dark."));
        const auto file = [&](const char *name, const QByteArray &bytes) {
            return QVariantMap{{QStringLiteral("path"), QString::fromLatin1(name)},
                               {QStringLiteral("bytes"), bytes}};
        };
        return {{QStringLiteral("error"), QString()},
                {QStringLiteral("files"),
                 QVariantList{file("glow0", image.left(8)),
                              file(is("outside-taking") ? "../glow1" : "glow1", image.mid(8))}},
                {QStringLiteral("size"), size},
                {QStringLiteral("used"), image.size()},
                {QStringLiteral("free"), size - image.size()},
                {QStringLiteral("warnings"), warnings}};
    }
    Q_INVOKABLE QVariantMap startFromFirmware(const QString &ipcFile, const QString &folder,
                                              bool write)
    {
        const QString key = QStringLiteral("Config/Glow");
        QSettings file(ipcFile, QSettings::IniFormat);
        const QString before = file.value(key).toString();
        QString place = folder;
        if (place.isEmpty())
            place = before.isEmpty() ? QFileInfo(ipcFile).absolutePath() + QStringLiteral("/glow")
                                     : before;
        if (write && is("stuck-taking"))
            return {{QStringLiteral("error"), QStringLiteral("The lamp is screwed down.")}};
        if (write)
            file.setValue(key, place);
        return {{QStringLiteral("error"), QString()},
                {QStringLiteral("folder"), place},
                {QStringLiteral("changed"), place != before}};
    }
#endif

#ifdef FAKE_SIMULATES
    // Runs the program that the environment names, with as many UARTs as the configuration has
    // lamps.
    Q_INVOKABLE QVariantMap simulationCommand(const QString &ipcFile) const
    {
        if (is("throwing-simulating"))
            throw std::runtime_error("the lamp is hot");
        if (is("garbling-simulating"))
            return {{QStringLiteral("program"), 3}};
        if (is("refusing-simulating"))
            return {{QStringLiteral("error"), QStringLiteral("These lamps are real ones only.")}};
        const auto kind = [](const char *name, const char *title, bool several) {
            return QVariantMap{{QStringLiteral("name"), QString::fromLatin1(name)},
                               {QStringLiteral("title"), QString::fromLatin1(title)},
                               {QStringLiteral("purpose"), QString()},
                               {QStringLiteral("arguments"),
                                QStringList(QLatin1String("--") + QLatin1String(name))},
                               {QStringLiteral("patterns"),
                                QStringList(QLatin1String("*.") + QLatin1String(name))},
                               {QStringLiteral("several"), several}};
        };
        QSettings file(ipcFile, QSettings::IniFormat);
        return {{QStringLiteral("error"), QString()},
                {QStringLiteral("program"), qEnvironmentVariable("FAKE_SIMULATOR")},
                {QStringLiteral("arguments"), QStringList{QStringLiteral("shine"), ipcFile}},
                {QStringLiteral("inputs"),
                 QVariantList{kind("c", "C files", true), kind("elf", "Program", false)}},
                {QStringLiteral("engines"),
                 QVariantList{kind("slow", "Slow lamp", false), kind("fast", "Fast lamp", false)}},
                {QStringLiteral("wavesArguments"), QStringList(QStringLiteral("--waves"))},
                {QStringLiteral("wavesSuffix"), QStringLiteral("waves")},
                {QStringLiteral("uarts"), file.value(QStringLiteral("Config/Lamps")).toInt()},
                {QStringLiteral("pins"), 16},
                {QStringLiteral("clock"), 50000000}};
    }
    Q_INVOKABLE QVariantList simulationExamples() const
    {
        const QString folder = qEnvironmentVariable("FAKE_EXAMPLES");
        if (folder.isEmpty())
            return {};
        const QString program = folder + QStringLiteral("/hello.c");
        return {QVariantMap{
            {QStringLiteral("title"), QStringLiteral("A lamp that speaks")},
            {QStringLiteral("purpose"), QStringLiteral("Says hello.")},
            {QStringLiteral("configuration"), QString(folder + QStringLiteral("/speaking.ipc"))},
            {QStringLiteral("files"), QStringList{program, folder + QStringLiteral("/other.c")}},
            {QStringLiteral("input"), QStringLiteral("c")},
            {QStringLiteral("program"), program}}};
    }
#endif

#ifdef FAKE_MEASURES
    // A lamp is a LUT.
    Q_INVOKABLE QVariantMap estimate(const QVariantMap &configuration) const
    {
        const int lamps = configuration.value(QStringLiteral("options"))
                              .toMap()
                              .value(QStringLiteral("Lamps"))
                              .toInt();
        return {{QStringLiteral("resources"),
                 QVariantList{QVariantMap{{QStringLiteral("resource"), QStringLiteral("LUT4")},
                                          {QStringLiteral("value"), lamps},
                                          {QStringLiteral("low"), lamps},
                                          {QStringLiteral("high"), lamps + 1},
                                          {QStringLiteral("available"), 5}}}}};
    }
#endif

#ifdef FAKE_MOVES
    // What has more lamps than the name of the new device has letters loses them.
    Q_INVOKABLE QVariantMap moveToDevice(const QString &ipcFile, const QString &deviceId,
                                         bool write)
    {
        if (is("throwing-moving"))
            throw std::runtime_error("stuck");
        QVariantMap result{{QStringLiteral("error"), QString()},
                           {QStringLiteral("device"), deviceId},
                           {QStringLiteral("changed"), true},
                           {QStringLiteral("losses"), QStringList()}};
        QSettings file(ipcFile, QSettings::IniFormat);
        if (file.value(QStringLiteral("Config/Lamps")).toInt() > deviceId.size())
            result[QStringLiteral("losses")] =
                QStringList{QStringLiteral("The third lamp is left out.")};
        if (is("refusing-moving"))
            result[QStringLiteral("error")] = QStringLiteral("No lamp fits this device.");
        else if (write)
            file.setValue(QStringLiteral("target_device"), deviceId);
        return result;
    }
#endif
};

#include "fakeplugin.moc"
