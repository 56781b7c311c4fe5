#include "dialogdriver.h"
#include "testsupport.h"
#include "unprivileged.h"

#include <config/ipcfile.h>
#include <core/viewmanager.h>
#include <dev/devicedb.h>
#include <export/format.h>
#include <ipplugin/baseipcoreinterface.h>
#include <ipplugin/ipplugin.h>
#include <system/description.h>
#include <system/systemmap.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLibrary>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPluginLoader>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using TE::TE_IPCore_Def::BaseIPCoreInterface;
using TE::TE_IPCore_Def::IPPlugin;

// The plug-in as a host sees it: loaded from its file.
class tst_Plugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exportsTheTwoEntryPointsOnly();
    void metadataBlockIsExact();
    void instanceIsOneObject();
    void answersToItsNames();
    void tellsItsIdentity();
    void everyCallGivesANewCore();
    void anUnusableDescriptorGivesNoCore_data();
    void anUnusableDescriptorGivesNoCore();
    void asksTheHostAboutDevices();
    void emptyDeviceListsSupportEveryDevice();
    void itsDialogsBelongToTheHostsWindow();
    void scriptingIsNotProvided();
    void createsAndReopensWhatTheCommandLineMakes();
    void anUnusableFileShowsNoDialog();
    void aDangerousFileIsNotEvenRead_data();
    void aDangerousFileIsNotEvenRead();
    void movesAnIpToAnotherDevice();
    void cannotMoveWhatCannotBeRead_data();
    void cannotMoveWhatCannotBeRead();
    void tellsThatAMoveCouldNotBeWritten();
    void estimatesWhatADialogTells();
    void tellsInWhichFormatsSoftwareGetsIt();
    void makesTheFilesOfEveryFormat_data();
    void makesTheFilesOfEveryFormat();
    void makesTheFormatsThatAreAskedForAlone();
    void makesNoFilesOfWhatCannotBeRead_data();
    void makesNoFilesOfWhatCannotBeRead();
    void makesTheFilesOfAProgram();
    void refusesPrograms_data();
    void refusesPrograms();
    void startsTheConfigurationFromAProgram();
    void tellsHowAConfigurationIsMeasured_data();
    void tellsHowAConfigurationIsMeasured();
    void refusesToMeasureWithASentence_data();
    void refusesToMeasureWithASentence();
    void tellsHowASubsystemIsSimulated_data();
    void tellsHowASubsystemIsSimulated();
    void tellsWhyNothingIsSimulated_data();
    void tellsWhyNothingIsSimulated();
    void offersExamplesThatCanBeSimulated();
    void offersNoExamplesThatAreNotThere();
    void mapsShowWhatTheCommandLineShows();
    void tellsWhyThereAreNoMaps();
    void saysTheSameAsTheCommandLineOfWhatWouldBeGenerated_data();
    void saysTheSameAsTheCommandLineOfWhatWouldBeGenerated();
    void thePreviewTellsOfAPrefixThatCannotBe();
    void saysTheSameAsTheCommandLineOfWhatIsStale_data();
    void saysTheSameAsTheCommandLineOfWhatIsStale();
    void tellsWhyTheStateCannotBeTold();
    void whatItSaysIsWhatOkThenWrites();
    void saysWhyOkWouldWriteNothing();
    void needsNoLibraryThatAHostMayLack();

private:
    QVariantMap previewGeneration(const QVariantMap &configuration);
    QVariantMap generationState(const QString &file);
    // As a host calls it: by name.
    QVariantMap moveToDevice(const QString &file, const QString &device, bool write);
    QVariantMap exportSoftware(const QString &file, const QStringList &formats = {});
    QVariantMap firmwareFiles(const QString &file, const QByteArray &image);
    QVariantMap startFromFirmware(const QString &file, const QString &folder, bool write);
    QVariantMap simulationCommand(const QString &file);
    QVariantList simulationExamples();
    QVariantMap maps(const QString &file);
    QVariantMap measureCommand(const QVariantMap &configuration);
    IPPlugin *plugin() { return qobject_cast<IPPlugin *>(m_loader.instance()); }
    std::unique_ptr<BaseIPCoreInterface>
    core(const QString &dataPath = QStringLiteral(TARVO_IP_DATA_DIR));

    QPluginLoader m_loader{QStringLiteral(TARVO_PLUGIN_FILE)};
};

void tst_Plugin::init()
{
    QVERIFY2(plugin(), qPrintable(m_loader.errorString()));
}

std::unique_ptr<BaseIPCoreInterface> tst_Plugin::core(const QString &dataPath)
{
    plugin()->setDataPath(dataPath);
    const QList<BaseIPCoreInterface *> cores = plugin()->ipCoreInterfaces();
    return std::unique_ptr<BaseIPCoreInterface>(cores.value(0));
}

void tst_Plugin::exportsTheTwoEntryPointsOnly()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"),
             {QStringLiteral("-D"), QStringLiteral("--defined-only"),
              QStringLiteral("--format=posix"), QStringLiteral(TARVO_PLUGIN_FILE)});
    QVERIFY(nm.waitForFinished(-1));
    QStringList names;
    for (const QByteArray &line : nm.readAllStandardOutput().trimmed().split('\n'))
        names.append(QString::fromLatin1(line.split(' ').first()));
    names.sort();
    QCOMPARE(names, (QStringList{QStringLiteral("qt_plugin_instance"),
                                 QStringLiteral("qt_plugin_query_metadata")}));
}

void tst_Plugin::metadataBlockIsExact()
{
#ifndef TARVO_RELEASE_BUILD
    QSKIP("Only a release build has the block without debug mark.");
#endif
    QByteArray expected("QTMETADATA !");
    expected += QByteArray("\x00\x05\x0f\x00", 4);
    expected += QByteArray("\xbf\x02\x78\x22") + "TARVOORIXM1.TarvoOrixM1Package/1.0";
    expected += QByteArray("\x03\x72") + "TarvoOrixM1Package" + "\xff";
    QCOMPARE(expected.size(), 75);

    QLibrary library(QStringLiteral(TARVO_PLUGIN_FILE));
    const auto query =
        reinterpret_cast<const char *(*)()>(library.resolve("qt_plugin_query_metadata"));
    QVERIFY(query);
    QCOMPARE(QByteArray(query(), 75).toHex(' '), expected.toHex(' '));

    // Nothing follows in its section.
    QProcess objdump;
    objdump.start(QStringLiteral("objdump"),
                  {QStringLiteral("-h"), QStringLiteral("-j"), QStringLiteral(".qtmetadata"),
                   QStringLiteral(TARVO_PLUGIN_FILE)});
    QVERIFY(objdump.waitForFinished(-1));
    QVERIFY(objdump.readAllStandardOutput().contains(" .qtmetadata   0000004b "));
}

void tst_Plugin::instanceIsOneObject()
{
    QLibrary library(QStringLiteral(TARVO_PLUGIN_FILE));
    const auto instance = reinterpret_cast<QObject *(*)()>(library.resolve("qt_plugin_instance"));
    QVERIFY(instance);
    QCOMPARE(instance(), instance());
    QCOMPARE(instance(), m_loader.instance());
    QPluginLoader second(QStringLiteral(TARVO_PLUGIN_FILE));
    QCOMPARE(second.instance(), m_loader.instance());
}

void tst_Plugin::answersToItsNames()
{
    QObject *object = plugin();
    QVERIFY(object->qt_metacast("TARVOORIXM1::TarvoOrixM1Package") == object);
    QVERIFY(object->qt_metacast("tarvo.plugins.IPPlugin/1.0"));
    QVERIFY(object->qt_metacast("TE::TE_IPCore_Def::IPPlugin"));
    QVERIFY(object->qt_metacast("QObject") == object);
    QVERIFY(!object->qt_metacast("TarvoOrixM1Package"));
    QVERIFY(!object->qt_metacast("tarvo.plugins.IPPlugin/2.0"));
    QCOMPARE(QString::fromLatin1(object->metaObject()->className()),
             QStringLiteral("TARVOORIXM1::TarvoOrixM1Package"));
}

void tst_Plugin::tellsItsIdentity()
{
    QTemporaryDir dir;
    QVERIFY(TestSupport::write(
        dir.filePath(QStringLiteral("tarvo_orix_m1.ipspec")),
        R"({"debug": "own", "ipcore": {"id": "an.id", "name": "A name", "version": "3.2", "target": "t",
                                   "category": ["One", "Two"], "doc": {"summary": "A summary"}}})"));
    const auto ip = core(dir.path());
    QVERIFY(ip);
    QCOMPARE(ip->id(), QStringLiteral("an.id"));
    QCOMPARE(ip->name(), QStringLiteral("A name"));
    QCOMPARE(ip->version(), QStringLiteral("3.2"));
    QCOMPARE(ip->category(), (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    QCOMPARE(ip->summary(), QStringLiteral("A summary"));
    // Without device lists every device will do.
    QVERIFY(ip->isSupported(DEV::DeviceDb::bundled().devices().first()));

    const auto shipped = core();
    QVERIFY(shipped);
    for (const QString &text :
         {shipped->id(), shipped->name(), shipped->version(), shipped->summary()})
        QVERIFY(!text.isEmpty());
}

void tst_Plugin::everyCallGivesANewCore()
{
    const auto first = core();
    const auto second = core();
    QVERIFY(first && second && first != second);
}

void tst_Plugin::anUnusableDescriptorGivesNoCore_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("malformed") << QByteArray("{\"ipcore\": ");
    QTest::newRow("no object") << QByteArray("[]");
    QTest::newRow("binary") << QByteArray("\x00\xff\x13", 3);
    QTest::newRow("incomplete") << QByteArray(
        R"({"ipcore": {"id": "x", "name": "y", "version": "1"}})");
}

void tst_Plugin::anUnusableDescriptorGivesNoCore()
{
    QFETCH(QByteArray, text);
    QTemporaryDir dir;
    if (!text.isEmpty())
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("tarvo_orix_m1.ipspec")), text));
    plugin()->setDataPath(dir.path());
    QVERIFY(plugin()->ipCoreInterfaces().isEmpty());
}

void tst_Plugin::asksTheHostAboutDevices()
{
    QTemporaryDir dir;
    QVERIFY(TestSupport::write(
        dir.filePath(QStringLiteral("tarvo_orix_m1.ipspec")),
        R"({"ipcore": {"id": "i", "name": "n", "version": "1", "target": "t", "category": ["c"],
                                   "device": {"supported": ["TV2KR"], "unsupported": ["TV2KR-18C"]}}})"));
    const auto ip = core(dir.path());
    QVERIFY(ip);
    DEV::ChipFilter filter;
    filter.series = QStringLiteral("TV2KR");
    int supported = 0;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().filterDevice(filter)) {
        QCOMPARE(ip->isSupported(device), device.device() != QLatin1String("TV2KR-18C"));
        supported += ip->isSupported(device);
    }
    QVERIFY(supported > 0);
    QVERIFY(!ip->isSupported(
        DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV1L-9-QFN48-C6/I5"))));
    QVERIFY(!ip->isSupported({}));
    const auto shipped = core();
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices())
        QVERIFY2(shipped->isSupported(device), qPrintable(device.id()));
}

void tst_Plugin::emptyDeviceListsSupportEveryDevice()
{
    QTemporaryDir dir;
    QVERIFY(TestSupport::write(
        dir.filePath(QStringLiteral("tarvo_orix_m1.ipspec")),
        R"({"ipcore": {"id": "i", "name": "n", "version": "1", "target": "t", "category": ["c"],
                                   "device": {"supported": [], "unsupported": []}}})"));
    const auto ip = core(dir.path());
    QVERIFY(ip);
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices())
        QVERIFY2(ip->isSupported(device), qPrintable(device.id()));
    QVERIFY(!ip->isSupported({}));
}

void tst_Plugin::itsDialogsBelongToTheHostsWindow()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(
        file, "[General]\ntarget_device=TV1L-9-QFN48-C6/I5\nversion=1.0\n[Config]\n"));
    QWidget window;
    Core::ViewManager::setDialogParent(&window);
    QList<QWidget *> parents;
    const TestSupport::ModalWatcher watcher([&parents](QWidget *modal) {
        parents.append(modal->parentWidget());
        modal->close();
    });
    const auto ip = core();
    ip->createIP(dir.path(), DEV::DeviceDb::bundled().devices().first());
    ip->openIP(dir.path(), file);
    Core::ViewManager::setDialogParent(nullptr);
    QCOMPARE(parents, (QList<QWidget *>{&window, &window}));
}

void tst_Plugin::scriptingIsNotProvided()
{
    const auto ip = core();
    QVariantMap options;
    QStringList errors;
    QVERIFY(!ip->createByTcl(options, {}, errors));
    QVERIFY(!ip->openByTcl(QString(), QString(), options, errors));
    QCOMPARE(errors.size(), 2);
    QVERIFY(errors.first().contains(ip->name()));
    QVERIFY(ip->getIpinfoMap().isEmpty() && ip->getOptionMap().isEmpty() && options.isEmpty());
}

namespace
{

// Every file below a folder with its contents, the tool's log and script apart: they name the
// folder.
QMap<QString, QByteArray> treeOf(const QString &folder)
{
    QMap<QString, QByteArray> tree;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString name = QDir(folder).relativeFilePath(path);
        if (!name.startsWith(QLatin1String("temp/")) || name.endsWith(QLatin1String(".vh")) ||
            name.endsWith(QLatin1String(".v")) || name.endsWith(QLatin1String(".vg")))
            tree.insert(name, TestSupport::contentsOf(path));
    }
    return tree;
}

// Presses OK in every configuration dialog that comes up; collects the texts of everything else.
class OkPresser
{
public:
    QStringList errors;
    int dialogs = 0;

private:
    TestSupport::ModalWatcher m_watcher{[this](QWidget *modal) {
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            errors.append(box->text());
            box->close();
        } else if (auto *title = modal->findChild<QLabel *>(QStringLiteral("titleLabel"))) {
            errors.append(
                title->text() + u'\n' +
                modal->findChild<QPlainTextEdit *>(QStringLiteral("detailsEdit"))->toPlainText());
            modal->close();
            if (modal->parentWidget())
                modal->parentWidget()->close();
        } else if (auto *buttons =
                       modal->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"))) {
            ++dialogs;
            buttons->button(QDialogButtonBox::Ok)->click();
        }
    }};
};

} // namespace

void tst_Plugin::createsAndReopensWhatTheCommandLineMakes()
{
    QTemporaryDir dir;
    const DEV::DeviceArg device =
        DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
    const QString made = dir.filePath(QString::fromUtf8("a \"b\" \xc3\xb6/tarvo_orix_m1"));
    const auto ip = core();
    QVERIFY(ip);
    OkPresser presser;
    ip->createIP(QFileInfo(made).path(), device);
    QCOMPARE(presser.errors, QStringList());
    QCOMPARE(presser.dialogs, 1);
    const QMap<QString, QByteArray> first = treeOf(made);
    for (const char *name :
         {"tarvo_orix_m1.ipc", "tarvo_orix_m1.v", "tarvo_orix_m1_tmp.v", "tarvo_orix_m1.vo",
          "temp/tv_orix_m1/cm1_option_defs.v", "temp/tv_orix_m1/psram_define.v"})
        QVERIFY2(first.contains(QString::fromLatin1(name)), name);

    // The same configuration from the command line, in another folder and locale.
    const QString other = dir.filePath(QStringLiteral("cli"));
    QVERIFY(TestSupport::write(other + QLatin1String("/tarvo_orix_m1.ipc"),
                               first.value(QStringLiteral("tarvo_orix_m1.ipc"))));
    QProcess command;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    command.setProcessEnvironment(environment);
    command.start(QStringLiteral(TARVO_COMMAND),
                  {QStringLiteral("generate"), other + QLatin1String("/tarvo_orix_m1.ipc")});
    QVERIFY(command.waitForFinished(-1));
    QVERIFY2(command.exitCode() == 0, command.readAllStandardError().constData());
    const QMap<QString, QByteArray> second = treeOf(other);
    QCOMPARE(second.keys(), first.keys());
    for (auto it = first.cbegin(); it != first.cend(); ++it)
        QVERIFY2(second.value(it.key()) == it.value(), qPrintable(it.key()));

    // Opening it again and pressing OK changes nothing.
    ip->openIP(made, made + QLatin1String("/tarvo_orix_m1.ipc"));
    QCOMPARE(presser.errors, QStringList());
    QCOMPARE(presser.dialogs, 2);
    QCOMPARE(treeOf(made), first);
}

void tst_Plugin::anUnusableFileShowsNoDialog()
{
    QTemporaryDir dir;
    const auto ip = core();
    OkPresser presser;
    ip->openIP(dir.path(), dir.filePath(QStringLiteral("missing.ipc")));
    QCOMPARE(presser.errors.size(), 2); // no device, no version
    QCOMPARE(presser.dialogs, 0);
    QCOMPARE(TestSupport::entriesOf(dir.path()), QStringList());
}

void tst_Plugin::aDangerousFileIsNotEvenRead_data()
{
    QTest::addColumn<QByteArray>("text"); // none: a pipe
    QTest::addColumn<QString>("reason");
    // A list that holds a list that holds a list …
    QByteArray nested = "@Variant(";
    for (int depth = 0; depth < 30000; ++depth)
        nested += "\\0\\0\\0\\x9\\0\\0\\0\\0\\x1";
    nested += "\\0\\0\\0\\x2\\0\\0\\0\\0\\x1)";
    QTest::newRow("a value nested 30,000 deep")
        << QByteArray("[General]\nversion=1.0\n[Config]\nITCM_Size=" + nested + '\n')
        << QStringLiteral("line 4: \"Config/ITCM_Size\" is no text but an object (\"@Variant\")");
    QTest::newRow("more than a megabyte")
        << QByteArray((1 << 20) + 1, '\n') << QStringLiteral("it is larger than 1 MiB");
    QTest::newRow("a pipe without a writer")
        << QByteArray() << QStringLiteral("it is not a plain file");
}

void tst_Plugin::aDangerousFileIsNotEvenRead()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    const QString ipc = dir.filePath(QStringLiteral("x.ipc"));
    if (text.isEmpty())
        QCOMPARE(::mkfifo(QFile::encodeName(ipc).constData(), 0600), 0);
    else
        QVERIFY(TestSupport::write(ipc, text));
    const auto ip = core();
    const QList<TestSupport::SeenBox> boxes =
        TestSupport::boxesOf([&] { ip->openIP(dir.path(), ipc); });
    // Nor when it is to be moved to another device.
    QVariantMap answer;
    QVERIFY(QMetaObject::invokeMethod(
        plugin(), "moveToDevice", Q_RETURN_ARG(QVariantMap, answer), Q_ARG(QString, ipc),
        Q_ARG(QString, QStringLiteral("TV2KR-18C-QFN88P-C8/I7")), Q_ARG(bool, true)));
    QVERIFY(!answer.value(QStringLiteral("error")).toString().isEmpty());
    QVERIFY(!exportSoftware(ipc).value(QStringLiteral("error")).toString().isEmpty());
    QVERIFY(text.isEmpty() || TestSupport::contentsOf(ipc) == text);
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().title, QStringLiteral("Error"));
    QVERIFY2(boxes.first().text.contains(reason) && boxes.first().text.contains(ipc),
             qPrintable(boxes.first().text));
}

QVariantMap tst_Plugin::moveToDevice(const QString &file, const QString &device, bool write)
{
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(
        plugin(), "moveToDevice", Qt::DirectConnection, Q_RETURN_ARG(QVariantMap, answer),
        Q_ARG(QString, file), Q_ARG(QString, device), Q_ARG(bool, write));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::movesAnIpToAnotherDevice()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"));
    const QByteArray before = "[General]\nowner=me\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                              "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n"
                              "[Config]\nCAN_BUFFER_DEPTH=64\nEnable%20CAN=true\nLANG=1\n";
    QVERIFY(TestSupport::write(file, before));
    const QString small = QStringLiteral("TV1KL-5A-QFN32-C6/I5");

    const QVariantMap told = moveToDevice(file, small, false);
    QCOMPARE(told.keys(), (QStringList{QStringLiteral("changed"), QStringLiteral("device"),
                                       QStringLiteral("error"), QStringLiteral("losses")}));
    QCOMPARE(told.value(QStringLiteral("error")), QVariant(QString()));
    QCOMPARE(told.value(QStringLiteral("device")), QVariant(small));
    QCOMPARE(told.value(QStringLiteral("changed")), QVariant(true));
    const QStringList losses = told.value(QStringLiteral("losses")).toStringList();
    QCOMPARE(
        losses,
        (QStringList{
            QStringLiteral("Debug is taken out: TV1KL-5A cannot have it."),
            QStringLiteral("The ITCM shrinks from 32 KB to 8 KB: TV1KL-5A has no more for it."),
            QStringLiteral("The DTCM shrinks from 32 KB to 8 KB: TV1KL-5A has no more for it."),
            QStringLiteral("CAN is taken out: TV1KL-5A cannot have it.")}));
    QCOMPARE(TestSupport::contentsOf(file), before);

    const QVariantMap moved = moveToDevice(file, small, true);
    QCOMPARE(moved, told);
    const QByteArray after = TestSupport::contentsOf(file);
    QVERIFY2(after.contains("target_device=" + small.toUtf8() + "\n"), after.constData());
    for (const char *line : {"owner=me\n", "LANG=1\n", "CAN_BUFFER_DEPTH=64\n",
                             "Enable%20CAN=false\n", "Number%20of%20Interrupts=32\n"})
        QVERIFY2(after.contains(line), after.constData());

    const QVariantMap again = moveToDevice(file, small, true);
    QCOMPARE(again.value(QStringLiteral("changed")), QVariant(false));
    QCOMPARE(again.value(QStringLiteral("losses")).toStringList(), QStringList());
    QCOMPARE(TestSupport::contentsOf(file), after);
}

void tst_Plugin::cannotMoveWhatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("named");
    const QString known = QStringLiteral("TV1L-9-QFN48-C6/I5");
    QTest::newRow("no file") << QByteArray() << known << QStringLiteral("x.ipc");
    QTest::newRow("another version")
        << QByteArray("[General]\nversion=2.0\n") << known << QStringLiteral("version");
    QTest::newRow("another IP") << QByteArray("[General]\ntype=other.ip\nversion=1.0\n") << known
                                << QStringLiteral("other.ip");
    QTest::newRow("unknown device") << QByteArray("[General]\nversion=1.0\n")
                                    << QStringLiteral("TV9") << QStringLiteral("\"TV9\"");
    QTest::newRow("no device") << QByteArray("[General]\nversion=1.0\n") << QString()
                               << QStringLiteral("\"\"");
}

void tst_Plugin::cannotMoveWhatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, device);
    QFETCH(QString, named);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    if (!bytes.isEmpty())
        QVERIFY(TestSupport::write(file, bytes));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = moveToDevice(file, device, true);
    QVERIFY2(answer.value(QStringLiteral("error")).toString().contains(named),
             qPrintable(answer.value(QStringLiteral("error")).toString()));
    QCOMPARE(answer.value(QStringLiteral("changed")), QVariant(false));
    QCOMPARE(TestSupport::contentsOf(file), bytes);
}

void tst_Plugin::tellsThatAMoveCouldNotBeWritten()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    const QByteArray bytes("[General]\nversion=1.0\ntarget_device=TV9-unknown\n");
    QVERIFY(TestSupport::write(file, bytes));
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(file, readable));
    QVERIFY(QFile::setPermissions(dir.path(),
                                  readable | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
    QVariantMap answer;
    QList<TestSupport::SeenBox> boxes;
    {
        const TestSupport::Unprivileged user;
        if (!user.holds())
            QSKIP("File permissions do not bind here.");
        boxes = TestSupport::boxesOf(
            [&] { answer = moveToDevice(file, QStringLiteral("TV1L-9-QFN48-C6/I5"), true); });
    }
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(
        boxes.size() == 1,
        qPrintable(
            answer.value(QStringLiteral("error")).toString())); // the host's own, with the reason
    QVERIFY2(answer.value(QStringLiteral("error")).toString().contains(file),
             qPrintable(answer.value(QStringLiteral("error")).toString()));
    QCOMPARE(answer.value(QStringLiteral("changed")), QVariant(false));
    QCOMPARE(TestSupport::contentsOf(file), bytes);
}

QVariantMap tst_Plugin::exportSoftware(const QString &file, const QStringList &formats)
{
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(plugin(), "exportSoftware", Qt::DirectConnection,
                                                 Q_RETURN_ARG(QVariantMap, answer),
                                                 Q_ARG(QString, file), Q_ARG(QStringList, formats));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::estimatesWhatADialogTells()
{
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const auto ask = [this](const QString &device, const QVariantMap &options) {
        QVariantMap answer;
        const QVariantMap header{{QStringLiteral("target_device"), device}};
        const QVariantMap configuration{{QStringLiteral("file"), QStringLiteral("none.ipc")},
                                        {QStringLiteral("header"), header},
                                        {QStringLiteral("options"), options}};
        return QMetaObject::invokeMethod(plugin(), "estimate", Qt::DirectConnection,
                                         Q_RETURN_ARG(QVariantMap, answer),
                                         Q_ARG(QVariantMap, configuration))
                   ? answer
                   : QVariantMap();
    };
    const QString device = QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
    const QVariantMap answer = ask(device, {{QStringLiteral("Enable CAN"), true}});
    QCOMPARE(answer.keys(), (QStringList{QStringLiteral("blackBoxes"), QStringLiteral("blocks"),
                                         QStringLiteral("pins"), QStringLiteral("resources")}));
    const QVariantList resources = answer.value(QStringLiteral("resources")).toList();
    QCOMPARE(resources.size(), 5);
    for (int i = 0; i < resources.size(); ++i) {
        const QVariantMap resource = resources.at(i).toMap();
        const int value = resource.value(QStringLiteral("value")).toInt();
        QVERIFY(resource.value(QStringLiteral("low")).toInt() <= value);
        QVERIFY(resource.value(QStringLiteral("high")).toInt() >= value);
        QCOMPARE(resource.value(QStringLiteral("available")).toInt() == -1,
                 resource.value(QStringLiteral("resource")).toString() ==
                     QLatin1String("Tri-state drivers"));
        int sum = 0;
        const QVariantList blocks = answer.value(QStringLiteral("blocks")).toList();
        for (const QVariant &block : blocks)
            sum += block.toMap()
                       .value(QStringLiteral("resources"))
                       .toList()
                       .at(i)
                       .toMap()
                       .value(QStringLiteral("value"))
                       .toInt();
        QCOMPARE(sum, value);
    }
    QVERIFY(answer.value(QStringLiteral("pins")).toMap().value(QStringLiteral("used")).toInt() > 0);
    QCOMPARE(answer.value(QStringLiteral("blackBoxes")).toList().size(), 2);

    for (const QVariantMap &refused : {ask(QStringLiteral("TV9"), {}), ask(QString(), {}),
                                       ask(device, {{QStringLiteral("ITCM_Size"), 12}})}) {
        QCOMPARE(refused.keys(), QStringList(QStringLiteral("error")));
        QVERIFY(refused.value(QStringLiteral("error")).toString().endsWith(u'.'));
    }
}

void tst_Plugin::tellsInWhichFormatsSoftwareGetsIt()
{
    QVariantList list;
    QVERIFY(QMetaObject::invokeMethod(plugin(), "softwareFormats", Qt::DirectConnection,
                                      Q_RETURN_ARG(QVariantList, list)));
    QCOMPARE(list.size(),
             int(std::distance(TARVOORIXM1::formats().begin(), TARVOORIXM1::formats().end())));
    int row = 0;
    for (const TARVOORIXM1::Format &format : TARVOORIXM1::formats()) {
        const QVariantMap expected{{QStringLiteral("name"), QString(format.name)},
                                   {QStringLiteral("title"), QString(format.title)},
                                   {QStringLiteral("purpose"), QString(format.purpose)},
                                   {QStringLiteral("standard"), QString(format.standard)},
                                   {QStringLiteral("files"), QString(format.file)},
                                   {QStringLiteral("checkedBy"), QString(format.checkedBy)}};
        QCOMPARE(list.at(row++).toMap(), expected);
    }
}

void tst_Plugin::makesTheFilesOfEveryFormat_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::newRow("nothing on") << QByteArray();
    QTest::newRow("some blocks") << QByteArray(
        "Enable%20UART0=true\nEnable%20GPIO=true\nEnable%20SPI-Flash=true\nLANG=1\n");
}

// What the plug-in hands over is what the library makes, byte for byte.
void tst_Plugin::makesTheFilesOfEveryFormat()
{
    QFETCH(QByteArray, options);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    const QByteArray bytes = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                             "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n" +
                             options;
    QVERIFY(TestSupport::write(file, bytes));
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    plugin()->setDataPath(data);

    TARVOORIXM1::OptionMap map;
    {
        QSettings settings(file, QSettings::IniFormat);
        TARVOORIXM1::IpcFile::readOptions(settings, map);
    }
    const auto description = TARVOORIXM1::readSystemDescription(data);
    QVERIFY2(description, qPrintable(description.reason()));
    const TARVOORIXM1::SystemMap system = TARVOORIXM1::systemMap(
        map, DEV::DeviceDb::bundled().findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7")),
        *description);
    QVariantList expected;
    for (const TARVOORIXM1::Format &format : TARVOORIXM1::formats()) {
        for (const TARVOORIXM1::ExportedFile &made : format.files(system))
            expected.append(QVariantMap{{QStringLiteral("path"), made.path},
                                        {QStringLiteral("format"), QString(format.name)},
                                        {QStringLiteral("bytes"), made.bytes}});
    }
    QVERIFY(!expected.isEmpty());
    const QVariantMap answer = exportSoftware(file);
    QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
    QCOMPARE(answer.value(QStringLiteral("files")).toList(), expected);
    QCOMPARE(answer.value(QStringLiteral("manifest")),
             QVariant(QString(TARVOORIXM1::exportManifest)));
    // Nothing is written.
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList(QStringLiteral("x.ipc")));
    QCOMPARE(TestSupport::contentsOf(file), bytes);
}

void tst_Plugin::makesTheFormatsThatAreAskedForAlone()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(
        TestSupport::write(file, "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\nversion=1.0\n"));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantList made =
        exportSoftware(file, {QStringLiteral("header")}).value(QStringLiteral("files")).toList();
    QVERIFY(!made.isEmpty());
    for (const QVariant &entry : made)
        QCOMPARE(entry.toMap().value(QStringLiteral("format")), QVariant(QStringLiteral("header")));
    const QVariantMap answer =
        exportSoftware(file, {QStringLiteral("header"), QStringLiteral("marble")});
    QVERIFY(answer.value(QStringLiteral("error")).toString().contains(QLatin1String("marble")));
    QVERIFY(answer.value(QStringLiteral("files")).toList().isEmpty());
}

void tst_Plugin::makesNoFilesOfWhatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("named");
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    const QByteArray good = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\nversion=1.0\n";
    QTest::newRow("no file") << QByteArray() << data << QStringLiteral("x.ipc");
    QTest::newRow("another version")
        << QByteArray("[General]\nversion=2.0\n") << data << QStringLiteral("version");
    QTest::newRow("another IP") << QByteArray("[General]\ntype=other.ip\nversion=1.0\n") << data
                                << QStringLiteral("other.ip");
    QTest::newRow("no device") << QByteArray("[General]\nversion=1.0\n") << data
                               << QStringLiteral("names no device");
    QTest::newRow("unknown device") << QByteArray("[General]\nversion=1.0\ntarget_device=TV9-12\n")
                                    << data << QStringLiteral("TV9-12");
    QTest::newRow("no registers") << good << QStringLiteral("/nowhere/at/all")
                                  << QStringLiteral("/nowhere/at/all");
}

void tst_Plugin::makesNoFilesOfWhatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, data);
    QFETCH(QString, named);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    if (!bytes.isEmpty())
        QVERIFY(TestSupport::write(file, bytes));
    plugin()->setDataPath(data);
    const QVariantMap answer = exportSoftware(file);
    const QString error = answer.value(QStringLiteral("error")).toString();
    QVERIFY2(error.contains(named), qPrintable(error));
    QVERIFY(answer.value(QStringLiteral("files")).toList().isEmpty());
}

// Stack pointer 0x20000400, reset vector 9, two branches to themselves.
static QByteArray program()
{
    return {"\x00\x04\x00\x20\x09\x00\x00\x00\xFE\xE7\xFE\xE7", 12};
}

QVariantMap tst_Plugin::firmwareFiles(const QString &file, const QByteArray &image)
{
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(plugin(), "firmwareFiles", Qt::DirectConnection,
                                                 Q_RETURN_ARG(QVariantMap, answer),
                                                 Q_ARG(QString, file), Q_ARG(QByteArray, image));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

QVariantMap tst_Plugin::startFromFirmware(const QString &file, const QString &folder, bool write)
{
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(
        plugin(), "startFromFirmware", Qt::DirectConnection, Q_RETURN_ARG(QVariantMap, answer),
        Q_ARG(QString, file), Q_ARG(QString, folder), Q_ARG(bool, write));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

// What the command line makes of the same image and configuration.
void tst_Plugin::makesTheFilesOfAProgram()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    const QByteArray bytes = TestSupport::contentsOf(QStringLiteral(TARVO_EXAMPLE));
    QVERIFY(TestSupport::write(file, bytes));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = firmwareFiles(file, program());
    QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
    QCOMPARE(answer.value(QStringLiteral("size")), QVariant(16384));
    QCOMPARE(answer.value(QStringLiteral("used")), QVariant(12));
    QCOMPARE(answer.value(QStringLiteral("free")), QVariant(16372));
    QCOMPARE(answer.value(QStringLiteral("warnings")), QVariant(QStringList()));
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList(QStringLiteral("x.ipc")));

    const QString image = dir.filePath(QStringLiteral("app.bin"));
    QVERIFY(TestSupport::write(image, program()));
    const QString folder = dir.filePath(QStringLiteral("fw"));
    QCOMPARE(QProcess::execute(QStringLiteral(TARVO_COMMAND),
                               {QStringLiteral("firmware"), image, file, QStringLiteral("--out"),
                                folder, QStringLiteral("--json")}),
             0);
    const QVariantList files = answer.value(QStringLiteral("files")).toList();
    QCOMPARE(files.size(), 4);
    for (const QVariant &entry : files) {
        const QString name = entry.toMap().value(QStringLiteral("path")).toString();
        QVERIFY2(name.startsWith(QLatin1String("itcm")), qPrintable(name));
        QCOMPARE(entry.toMap().value(QStringLiteral("bytes")).toByteArray(),
                 TestSupport::contentsOf(folder + u'/' + name));
    }
    QVERIFY(firmwareFiles(file, QByteArray(8, '\0'))
                .value(QStringLiteral("warnings"))
                .toStringList()
                .join(u' ')
                .contains(QLatin1String("reset vector")));
}

void tst_Plugin::refusesPrograms_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("image");
    QTest::addColumn<QString>("named");
    const QByteArray good = TestSupport::contentsOf(QStringLiteral(TARVO_EXAMPLE));
    QTest::newRow("nothing") << good << QByteArray() << QStringLiteral("empty");
    QTest::newRow("a broken record")
        << good << QByteArray(":00000001FE\n") << QStringLiteral("line 1");
    QTest::newRow("no whole ELF file") << good
                                       << QByteArray("\x7F"
                                                     "ELF")
                                       << QStringLiteral("ELF");
    QTest::newRow("more than the memory")
        << good << QByteArray(20000, 'x') << QStringLiteral("16384 bytes");
    QTest::newRow("no device") << QByteArray("[General]\nversion=1.0\n") << program()
                               << QStringLiteral("names no device");
    QTest::newRow("no configuration") << QByteArray() << program() << QStringLiteral("x.ipc");
}

void tst_Plugin::refusesPrograms()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, image);
    QFETCH(QString, named);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    if (!bytes.isEmpty())
        QVERIFY(TestSupport::write(file, bytes));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = firmwareFiles(file, image);
    const QString error = answer.value(QStringLiteral("error")).toString();
    QVERIFY2(error.contains(named) && error.endsWith(u'.'), qPrintable(error));
    QCOMPARE(answer.size(), 1);
}

void tst_Plugin::startsTheConfigurationFromAProgram()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    const QByteArray bytes = "[General]\nowner=me\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                             "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\nLANG=1\n";
    QVERIFY(TestSupport::write(file, bytes));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QString own = dir.filePath(QStringLiteral("itcm"));
    const QVariantMap told = startFromFirmware(file, QString(), false);
    QCOMPARE(told, (QVariantMap{{QStringLiteral("error"), QString()},
                                {QStringLiteral("folder"), own},
                                {QStringLiteral("changed"), true}}));
    QCOMPARE(TestSupport::contentsOf(file), bytes);
    QCOMPARE(startFromFirmware(file, QStringLiteral("itcm"), true), told);
    const QByteArray after = TestSupport::contentsOf(file);
    for (const char *line : {"owner=me\n", "LANG=1\n", "TV2KR-18C-QFN88P-C8/I7\n"})
        QVERIFY2(after.contains(line), after.constData());
    // The file is the one that the command line writes.
    QVERIFY(TestSupport::write(file, bytes));
    const QString image = dir.filePath(QStringLiteral("app.bin"));
    QVERIFY(TestSupport::write(image, program()));
    QCOMPARE(QProcess::execute(QStringLiteral(TARVO_COMMAND),
                               {QStringLiteral("firmware"), image, file,
                                QStringLiteral("--initialize"), QStringLiteral("--json")}),
             0);
    QCOMPARE(TestSupport::contentsOf(file), after);
    QCOMPARE(startFromFirmware(file, QString(), true).value(QStringLiteral("changed")),
             QVariant(false));
    // From then on it has a folder of its own.
    QCOMPARE(startFromFirmware(file, QStringLiteral("/fw"), true).value(QStringLiteral("changed")),
             QVariant(true));
    QCOMPARE(startFromFirmware(file, QString(), false).value(QStringLiteral("folder")),
             QVariant(QStringLiteral("/fw")));
    const QVariantMap refused =
        startFromFirmware(dir.filePath(QStringLiteral("y.ipc")), QString(), true);
    QVERIFY(refused.value(QStringLiteral("error")).toString().contains(QLatin1String("y.ipc")));
    QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("y.ipc"))));
}

namespace
{

QVariantMap configurationWith(const QVariantMap &options,
                              const char *device = "TV2KR-18C-QFN88P-C8/I7")
{
    return {{QStringLiteral("file"), QStringLiteral("/home/somebody/ip/tarvo_orix_m1.ipc")},
            {QStringLiteral("header"),
             QVariantMap{{QStringLiteral("target_device"), QString::fromLatin1(device)},
                         {QStringLiteral("type"), QStringLiteral("tarvo.tarvo_orix_m1")},
                         {QStringLiteral("version"), QStringLiteral("1.0")}}},
            {QStringLiteral("options"), options}};
}

} // namespace

QVariantMap tst_Plugin::measureCommand(const QVariantMap &configuration)
{
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(plugin(), "measureCommand", Qt::DirectConnection,
                                                 Q_RETURN_ARG(QVariantMap, answer),
                                                 Q_ARG(QVariantMap, configuration));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::tellsHowAConfigurationIsMeasured_data()
{
    QTest::addColumn<QVariantMap>("options");
    QTest::addColumn<QString>("contents"); // where the memory's contents are looked for
    const QString key = QStringLiteral("ITCM_Initialization_AbsolutePath");
    QTest::newRow("nothing on") << QVariantMap() << QString();
    QTest::newRow("values of other types")
        << QVariantMap{{QStringLiteral("Enable UART0"), true}, {QStringLiteral("LANG"), 1}}
        << QString();
    QTest::newRow("contents by their full path")
        << QVariantMap{{key, QStringLiteral("/srv/itcm")}} << QStringLiteral("/srv/itcm");
    QTest::newRow("contents from the output folder")
        << QVariantMap{{key, QStringLiteral("../../itcm")}}
        << QStringLiteral("/home/somebody/ip/itcm");
}

// What it is given as a file says what the dialog said, in any folder.
void tst_Plugin::tellsHowAConfigurationIsMeasured()
{
    QFETCH(QVariantMap, options);
    QFETCH(QString, contents);
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = measureCommand(configurationWith(options));
    QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
    QCOMPARE(QFileInfo(answer.value(QStringLiteral("program")).toString()).canonicalFilePath(),
             QFileInfo(QStringLiteral(TARVO_COMMAND)).canonicalFilePath());
    QTemporaryDir dir;
    const QString file = dir.filePath(answer.value(QStringLiteral("file")).toString());
    QVERIFY(TestSupport::write(file, answer.value(QStringLiteral("configuration")).toByteArray()));
    {
        QSettings settings(file, QSettings::IniFormat);
        QCOMPARE(settings.value(QStringLiteral("target_device")).toString(),
                 QStringLiteral("TV2KR-18C-QFN88P-C8/I7"));
        settings.beginGroup(QStringLiteral("Config"));
        QCOMPARE(settings.childKeys(), options.keys());
        for (auto it = options.begin(); it != options.end(); ++it) {
            const bool isContents = it.key().startsWith(QLatin1String("ITCM"));
            QCOMPARE(settings.value(it.key()).toString(),
                     isContents ? contents : it.value().toString());
        }
    }
    // The program takes these arguments, and works in the folder that it is started in.
    QProcess run;
    run.setWorkingDirectory(dir.path());
    run.start(answer.value(QStringLiteral("program")).toString(),
              answer.value(QStringLiteral("arguments")).toStringList() +
                  QStringList(QStringLiteral("--no-synth")));
    QVERIFY(run.waitForFinished(-1));
    QVERIFY2(run.exitCode() == 0, run.readAllStandardError().constData());
    const QJsonObject told = QJsonDocument::fromJson(run.readAllStandardOutput()).object();
    QVERIFY(told.value(QStringLiteral("resources")).isArray());
    const QStringList made =
        QVariant(told.value(QStringLiteral("files")).toArray().toVariantList()).toStringList();
    QVERIFY(!made.isEmpty());
    for (const QString &path : made)
        QVERIFY2(QFileInfo(path).canonicalFilePath().startsWith(
                     QFileInfo(dir.path()).canonicalFilePath() + u'/'),
                 qPrintable(path));
}

void tst_Plugin::refusesToMeasureWithASentence_data()
{
    QTest::addColumn<QVariantMap>("configuration");
    QTest::addColumn<QString>("dataPath");
    QTest::addColumn<QString>("reason");
    const QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    QTest::newRow("nothing") << QVariantMap() << data << QStringLiteral("Without a known device");
    QTest::newRow("an unknown device")
        << configurationWith({}, "TV9-1") << data << QStringLiteral("Without a known device");
    QTest::newRow("no program") << configurationWith({}) << QStringLiteral("/")
                                << QStringLiteral("not installed");
}

void tst_Plugin::refusesToMeasureWithASentence()
{
    QFETCH(QVariantMap, configuration);
    QFETCH(QString, dataPath);
    QFETCH(QString, reason);
    plugin()->setDataPath(dataPath);
    const QVariantMap answer = measureCommand(configuration);
    QCOMPARE(answer.keys(), QStringList(QStringLiteral("error")));
    const QString error = answer.value(QStringLiteral("error")).toString();
    QVERIFY2(error.contains(reason), qPrintable(error));
    QVERIFY(error.endsWith(u'.'));
}

// A host that has Qt can load the plug-in.
QVariantMap tst_Plugin::simulationCommand(const QString &file)
{
    QVariantMap answer;
    const bool found =
        QMetaObject::invokeMethod(plugin(), "simulationCommand", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, answer), Q_ARG(QString, file));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

QVariantList tst_Plugin::simulationExamples()
{
    QVariantList list;
    if (!QMetaObject::invokeMethod(plugin(), "simulationExamples", Qt::DirectConnection,
                                   Q_RETURN_ARG(QVariantList, list)))
        qFatal("no method");
    return list;
}

void tst_Plugin::tellsHowASubsystemIsSimulated_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<int>("uarts");
    QTest::addColumn<int>("pins");
    QTest::newRow("nothing on") << QByteArray() << 0 << 0;
    QTest::newRow("a UART") << QByteArray("Enable%20UART0=true\n") << 1 << 0;
    QTest::newRow("the second UART alone")
        << QByteArray("Enable%20UART1=true\nEnable%20GPIO=true\n") << 2 << 16;
    QTest::newRow("two UARTs and pins")
        << QByteArray("Enable%20UART0=true\nEnable%20UART1=true\nEnable%20GPIO=true\n") << 2 << 16;
}

void tst_Plugin::tellsHowASubsystemIsSimulated()
{
    QFETCH(QByteArray, options);
    QFETCH(int, uarts);
    QFETCH(int, pins);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(TestSupport::write(file, "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                                     "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n" +
                                         options));
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = simulationCommand(file);
    QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
    QCOMPARE(QFileInfo(answer.value(QStringLiteral("program")).toString()).canonicalFilePath(),
             QFileInfo(QStringLiteral(TARVO_COMMAND)).canonicalFilePath());
    QCOMPARE(answer.value(QStringLiteral("arguments")).toStringList(),
             (QStringList{QStringLiteral("simulate"), file, QStringLiteral("--live")}));
    QCOMPARE(answer.value(QStringLiteral("uarts")), QVariant(uarts));
    QCOMPARE(answer.value(QStringLiteral("pins")), QVariant(pins));

    // The program has what it is to be called with.
    QProcess help;
    help.start(answer.value(QStringLiteral("program")).toString(),
               {QStringLiteral("simulate"), QStringLiteral("--help")});
    QVERIFY(help.waitForFinished(-1));
    const QString known = QString::fromUtf8(help.readAllStandardOutput());
    QStringList used = answer.value(QStringLiteral("arguments")).toStringList().mid(2) +
                       answer.value(QStringLiteral("wavesArguments")).toStringList();
    for (const char *choice : {"inputs", "engines"}) {
        const QVariantList rows = answer.value(QLatin1String(choice)).toList();
        QVERIFY(rows.size() > 1);
        for (const QVariant &row : rows)
            used += row.toMap().value(QStringLiteral("arguments")).toStringList();
    }
    for (const QString &option : qAsConst(used))
        QVERIFY2(known.contains(option), qPrintable(option));

    // Nothing is written.
    QCOMPARE(TestSupport::entriesOf(dir.path()), QStringList(QStringLiteral("x.ipc")));
}

void tst_Plugin::tellsWhyNothingIsSimulated_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<QString>("named");
    const QByteArray good = "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\nversion=1.0\n";
    QTest::newRow("no file") << QByteArray() << true << QStringLiteral("x.ipc");
    QTest::newRow("no device") << QByteArray("[General]\nversion=1.0\n") << true
                               << QStringLiteral("names no device");
    QTest::newRow("big-endian data") << QByteArray(good + "[Config]\nBig%20Endian=true\n") << true
                                     << QStringLiteral("big-endian");
    QTest::newRow("the program is missing") << good << false << QStringLiteral("orixm1");
}

void tst_Plugin::tellsWhyNothingIsSimulated()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isInstalled);
    QFETCH(QString, named);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    if (!bytes.isEmpty())
        QVERIFY(TestSupport::write(file, bytes));
    QString data = QStringLiteral(TARVO_IP_DATA_DIR);
    if (!isInstalled) {
        data = dir.filePath(QStringLiteral("a/b/c/d/e/f/tarvo_orix_m1"));
        QVERIFY(QDir().mkpath(QFileInfo(data).path()));
        // Not a link, whose folders above would be those of the build tree.
        QProcess copy;
        copy.start(QStringLiteral("cp"),
                   {QStringLiteral("-r"), QStringLiteral(TARVO_IP_DATA_DIR), data});
        QVERIFY(copy.waitForFinished(-1) && copy.exitCode() == 0);
    }
    plugin()->setDataPath(data);
    const QVariantMap answer = simulationCommand(file);
    const QString error = answer.value(QStringLiteral("error")).toString();
    QVERIFY2(error.contains(named), qPrintable(error));
    QCOMPARE(answer.size(), 1);
}

void tst_Plugin::offersExamplesThatCanBeSimulated()
{
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantList examples = simulationExamples();
    QVERIFY(!examples.isEmpty());
    for (const QVariant &entry : examples) {
        const QVariantMap example = entry.toMap();
        const QString configuration = example.value(QStringLiteral("configuration")).toString();
        const QVariantMap answer = simulationCommand(configuration);
        QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
        QStringList inputs;
        for (const QVariant &input : answer.value(QStringLiteral("inputs")).toList())
            inputs.append(input.toMap().value(QStringLiteral("name")).toString());
        QVERIFY(inputs.contains(example.value(QStringLiteral("input")).toString()));
        const QStringList files = example.value(QStringLiteral("files")).toStringList();
        QVERIFY(files.contains(example.value(QStringLiteral("program")).toString()));
        const QString source = QFileInfo(QStringLiteral(TARVO_EXAMPLE)).path();
        // They are the repository's own, every one of them.
        QCOMPARE(TestSupport::contentsOf(configuration),
                 TestSupport::contentsOf(source + u'/' + QFileInfo(configuration).fileName()));
        for (const QString &file : files)
            QCOMPARE(TestSupport::contentsOf(file),
                     TestSupport::contentsOf(source + QStringLiteral("/firmware/") +
                                             QFileInfo(file).fileName()));
    }
}

void tst_Plugin::offersNoExamplesThatAreNotThere()
{
    QTemporaryDir dir;
    plugin()->setDataPath(dir.path());
    QVERIFY(simulationExamples().isEmpty());
}

QVariantMap tst_Plugin::maps(const QString &file)
{
    QVariantMap answer;
    const bool found =
        QMetaObject::invokeMethod(plugin(), "maps", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, answer), Q_ARG(QString, file));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::mapsShowWhatTheCommandLineShows()
{
    const QString file = QStringLiteral(TARVO_EXAMPLE);
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = maps(file);
    QCOMPARE(answer.value(QStringLiteral("error")), QVariant(QString()));
    QProcess show;
    show.start(QStringLiteral(TARVO_COMMAND),
               {QStringLiteral("show"), file, QStringLiteral("--json")});
    QVERIFY(show.waitForFinished(-1));
    const QJsonObject system = QJsonDocument::fromJson(show.readAllStandardOutput())
                                   .object()
                                   .value(QStringLiteral("system"))
                                   .toObject();
    QStringList regions;
    for (const QJsonValue &value : system.value(QStringLiteral("regions")).toArray()) {
        const QJsonObject region = value.toObject();
        regions.append(region.value(QStringLiteral("name")).toString() + QLatin1String(", ") +
                       region.value(QStringLiteral("base")).toString() + QLatin1String(" to ") +
                       region.value(QStringLiteral("last")).toString() + QLatin1String(", "));
    }
    QStringList lines;
    for (const QJsonValue &value : system.value(QStringLiteral("interrupts")).toArray())
        lines.append(value.toObject().value(QStringLiteral("name")).toString() +
                     QLatin1String(", "));
    QVERIFY(regions.size() > 5 && lines.size() > 5);

    QStringList documents;
    for (const QVariant &entry : exportSoftware(file, {QStringLiteral("datasheet")})
                                     .value(QStringLiteral("files"))
                                     .toList())
        documents.append(entry.toMap().value(QStringLiteral("path")).toString());
    const QVariantList pictures = answer.value(QStringLiteral("maps")).toList();
    QCOMPARE(pictures.size(), 2);
    for (int i = 0; i < pictures.size(); ++i) {
        const QVariantMap picture = pictures.at(i).toMap();
        QVERIFY(picture.value(QStringLiteral("svg")).toByteArray().startsWith("<?xml"));
        QVERIFY(picture.value(QStringLiteral("darkSvg")).toByteArray().startsWith("<?xml"));
        const QStringList &expected = i == 0 ? regions : lines;
        const QVariantList doors = picture.value(QStringLiteral("doors")).toList();
        QCOMPARE(doors.size(), expected.size());
        for (int k = 0; k < doors.size(); ++k) {
            const QVariantMap door = doors.at(k).toMap();
            const QString text = door.value(QStringLiteral("text")).toString();
            QVERIFY2(text.startsWith(expected.at(k)), qPrintable(text));
            QVERIFY(documents.contains(door.value(QStringLiteral("document")).toString()));
            QVERIFY(!door.value(QStringLiteral("headings")).toStringList().isEmpty());
            for (const char *number : {"x", "y", "width", "height"})
                QCOMPARE(door.value(QLatin1String(number)).userType(), int(QMetaType::Int));
        }
    }
}

void tst_Plugin::tellsWhyThereAreNoMaps()
{
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    const QVariantMap answer = maps(QStringLiteral("/nowhere/x.ipc"));
    QVERIFY2(answer.value(QStringLiteral("error")).toString().contains(QLatin1String("x.ipc")),
             qPrintable(answer.value(QStringLiteral("error")).toString()));
    QVERIFY(!answer.contains(QStringLiteral("maps")));
}

QVariantMap tst_Plugin::previewGeneration(const QVariantMap &configuration)
{
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    QVariantMap answer;
    const bool found = QMetaObject::invokeMethod(
        plugin(), "previewGeneration", Qt::DirectConnection, Q_RETURN_ARG(QVariantMap, answer),
        Q_ARG(QVariantMap, configuration));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::saysTheSameAsTheCommandLineOfWhatWouldBeGenerated_data()
{
    QTest::addColumn<bool>("isMade");
    QTest::addColumn<bool>("isEdited");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("nothing has been generated") << false << false << QString();
    QTest::newRow("something else has been generated") << true << false << QString();
    QTest::newRow("and edited") << true << true << QString();
    QTest::newRow("nothing has been generated, with a prefix")
        << false << false << QStringLiteral("left_");
    QTest::newRow("something else has been generated, with a prefix")
        << true << false << QStringLiteral("left_");
}

void tst_Plugin::saysTheSameAsTheCommandLineOfWhatWouldBeGenerated()
{
    QFETCH(bool, isMade);
    QFETCH(bool, isEdited);
    QFETCH(QString, prefix);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"));
    const auto command = [](const QStringList &arguments, QByteArray *out = nullptr) {
        QProcess process;
        process.start(QStringLiteral(TARVO_COMMAND), arguments);
        process.waitForFinished(-1);
        if (out)
            *out = process.readAllStandardOutput();
        return process.exitCode();
    };
    const QString device = QStringLiteral("TV2KR-18C-QFN88P-C8/I7");
    QCOMPARE(command({QStringLiteral("new"), QStringLiteral("--out"), dir.path(),
                      QStringLiteral("--device"), device}),
             0);
    if (isMade)
        QCOMPARE(command({QStringLiteral("generate"), file, QStringLiteral("--no-synth")}), 0);
    if (isEdited)
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("temp/tv_orix_m1/parameter.vh")),
                                   "// mine\n"));
    QCOMPARE(command({QStringLiteral("set"), file, QStringLiteral("Enable GPIO=true")}), 0);
    if (!prefix.isEmpty())
        QCOMPARE(command({QStringLiteral("set"), file, QStringLiteral("Prefix=") + prefix}), 0);
    QByteArray told;
    QCOMPARE(command({QStringLiteral("generate"), file, QStringLiteral("--dry-run"),
                      QStringLiteral("--diff"), QStringLiteral("--no-cache")},
                     &told),
             1);
    // Beside what there is without one, or why not.
    const bool isNamed = told.contains("left_tarvo_orix_m1.v");
    QCOMPARE(isNamed, prefix == QLatin1String("left_"));

    QSettings settings(file, QSettings::IniFormat);
    TARVOORIXM1::OptionMap options;
    TARVOORIXM1::IpcFile::readOptions(settings, options);
    const QVariantMap header{{QStringLiteral("target_device"), device},
                             {QStringLiteral("type"), QStringLiteral("tarvo.tarvo_orix_m1")},
                             {QStringLiteral("version"), QStringLiteral("1.0")}};
    const QMap<QString, QByteArray> before = treeOf(dir.path());
    const QVariantMap answer = previewGeneration({{QStringLiteral("file"), file},
                                                  {QStringLiteral("header"), header},
                                                  {QStringLiteral("options"), options}});
    QCOMPARE(answer.value(QStringLiteral("error")).toString(), QString());
    QVERIFY(told.contains("ahb_option_defs.v") && told.contains("+`define TARVO_GPIO_SUPPORT"));
    QCOMPARE(answer.value(QStringLiteral("text")).toString().toUtf8(), told);
    QCOMPARE(treeOf(dir.path()), before);
}

QVariantMap tst_Plugin::generationState(const QString &file)
{
    plugin()->setDataPath(QStringLiteral(TARVO_IP_DATA_DIR));
    QVariantMap answer;
    const bool found =
        QMetaObject::invokeMethod(plugin(), "generationState", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariantMap, answer), Q_ARG(QString, file));
    return found ? answer : QVariantMap{{QStringLiteral("error"), QStringLiteral("no method")}};
}

void tst_Plugin::saysTheSameAsTheCommandLineOfWhatIsStale_data()
{
    QTest::addColumn<bool>("isMade");
    QTest::addColumn<QStringList>("changed");
    QTest::addColumn<QString>("edited");
    const QString header = QStringLiteral("temp/tv_orix_m1/parameter.vh");
    const QString netlist = QStringLiteral("tarvo_orix_m1.v");
    const QStringList gpio{QStringLiteral("Enable GPIO=true")};
    QTest::newRow("nothing has been generated") << false << QStringList() << QString();
    QTest::newRow("the include files have") << true << QStringList() << QString();
    QTest::newRow("and the configuration has changed") << true << gpio << QString();
    QTest::newRow("and a file was edited") << true << QStringList() << header;
    QTest::newRow("and both") << true << gpio << header;
    QTest::newRow("a foreign result") << true << QStringList() << netlist;
    QTest::newRow("in the other language")
        << true << QStringList{QStringLiteral("LANG=VHDL")} << QString();
}

void tst_Plugin::saysTheSameAsTheCommandLineOfWhatIsStale()
{
    QFETCH(bool, isMade);
    QFETCH(QStringList, changed);
    QFETCH(QString, edited);
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"));
    const auto command = [](const QStringList &arguments) {
        QProcess process;
        process.start(QStringLiteral(TARVO_COMMAND), arguments);
        process.waitForFinished(-1);
        return process.readAllStandardOutput();
    };
    command({QStringLiteral("new"), QStringLiteral("--out"), dir.path(), QStringLiteral("--device"),
             QStringLiteral("TV2KR-18C-QFN88P-C8/I7")});
    if (isMade)
        command({QStringLiteral("generate"), file, QStringLiteral("--no-synth")});
    if (!edited.isEmpty())
        QVERIFY(TestSupport::write(dir.filePath(edited), "// mine\n"));
    for (const QString &option : qAsConst(changed))
        command({QStringLiteral("set"), file, option});
    const QMap<QString, QByteArray> before = treeOf(dir.path());
    const QJsonObject told =
        QJsonDocument::fromJson(command({QStringLiteral("generate"), file,
                                         QStringLiteral("--check"), QStringLiteral("--json")}))
            .object();
    const QVariantMap answer = generationState(file);
    QCOMPARE(treeOf(dir.path()), before);
    QCOMPARE(answer.value(QStringLiteral("error")).toString(), QString());
    QVERIFY(!told.isEmpty());
    QCOMPARE(answer.value(QStringLiteral("state")).toString(),
             told.value(QStringLiteral("state")).toString());
    QStringList reasons;
    const QJsonArray changes = told.value(QStringLiteral("changes")).toArray();
    for (const QJsonValue &change : changes)
        reasons.append(change.toObject().value(QStringLiteral("text")).toString());
    const QJsonArray warnings = told.value(QStringLiteral("warnings")).toArray();
    for (const QJsonValue &warning : warnings)
        reasons.append(warning.toString());
    QCOMPARE(answer.value(QStringLiteral("reasons")).toStringList(), reasons);
    QStringList files;
    const QJsonArray entries = told.value(QStringLiteral("files")).toArray();
    for (const QJsonValue &entry : entries)
        files.append(dir.path() + u'/' + entry[QStringLiteral("path")].toString() + u' ' +
                     entry[QStringLiteral("state")].toString());
    QStringList answered;
    const QVariantList maps = answer.value(QStringLiteral("files")).toList();
    const QStringList watched = answer.value(QStringLiteral("watched")).toStringList();
    for (const QVariant &entry : maps) {
        const QVariantMap map = entry.toMap();
        answered.append(map.value(QStringLiteral("path")).toString() + u' ' +
                        map.value(QStringLiteral("state")).toString());
        QVERIFY(watched.contains(map.value(QStringLiteral("path")).toString()));
    }
    QVERIFY(files.size() > 8);
    QCOMPARE(answered, files);
    QVERIFY(watched.contains(file));
}

void tst_Plugin::tellsWhyTheStateCannotBeTold()
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(generationState(file).value(QStringLiteral("error")).toString().contains(file));
    QVERIFY(TestSupport::write(file, "[General]\ntype=another.ip\n"));
    QVERIFY(generationState(file).value(QStringLiteral("error")).toString().contains(file));
    QCOMPARE(generationState(file).size(), 1);
}

// The tool is missing, so that only what it makes does not come true.
// What the file whose name has this end is to hold.
static QByteArray fileOf(const QVariantMap &answer, const char *end)
{
    const QVariantList files = answer.value(QStringLiteral("files")).toList();
    for (const QVariant &file : files) {
        const QVariantMap map = file.toMap();
        if (map.value(QStringLiteral("path")).toString().endsWith(QLatin1String(end)))
            return map.value(QStringLiteral("after")).toString().toUtf8();
    }
    return {};
}

void tst_Plugin::whatItSaysIsWhatOkThenWrites()
{
    QTemporaryDir dir;
    const QByteArray path = qgetenv("PATH");
    const QString file = dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"));
    QVERIFY(QFile::copy(QStringLiteral(TARVO_EXAMPLE), file));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner));
    const QString include = dir.filePath(QStringLiteral("temp/tv_orix_m1/cm1_option_defs.v"));
    const auto ip = core();
    int told = 0;
    for (const char *story : {"new", "again", "edited"}) {
        if (qstrcmp(story, "edited") == 0)
            QVERIFY(TestSupport::write(include, "// mine"));
        const QByteArray remark = QByteArray("; ") + story + '\n';
        QVERIFY(TestSupport::write(file, remark + TestSupport::contentsOf(file)));
        QVariantMap answer;
        QPointer<QWidget> dialog;
        const TestSupport::ModalWatcher watcher([&](QWidget *modal) {
            if (modal->metaObject()->indexOfMethod("configuration()") < 0) {
                modal->close();
                if (dialog)
                    dialog->close();
                return;
            }
            dialog = modal;
            QVariantMap configuration;
            QMetaObject::invokeMethod(modal, "configuration", Qt::DirectConnection,
                                      Q_RETURN_ARG(QVariantMap, configuration));
            QVERIFY(!fileOf(previewGeneration(configuration), ".ipc").contains(remark));
            configuration.insert(QStringLiteral("keepsComments"), true);
            answer = previewGeneration(configuration);
            QVERIFY(fileOf(answer, ".ipc").contains(remark));
            auto *buttons = modal->findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
            buttons->button(QDialogButtonBox::Ok)->click();
        });
        qputenv("PATH", "/nowhere");
        ip->openIP(dir.path(), file);
        qputenv("PATH", path);
        QCOMPARE(answer.value(QStringLiteral("error")).toString(), QString());
        const QVariantList files = answer.value(QStringLiteral("files")).toList();
        QVERIFY(files.size() > 8);
        for (const QVariant &entry : files) {
            const QVariantMap map = entry.toMap();
            const QString name = map.value(QStringLiteral("path")).toString();
            if (!map.contains(QStringLiteral("after")))
                continue;
            ++told;
            const QByteArray after = map.value(QStringLiteral("after")).toString().toUtf8();
            QVERIFY2(TestSupport::contentsOf(dir.filePath(name)) == after,
                     qPrintable(name + u' ' + QLatin1String(story)));
        }
    }
    QVERIFY(told > 20);
    QCOMPARE(TestSupport::contentsOf(include + QStringLiteral(".edited")), QByteArray("// mine"));
}

void tst_Plugin::thePreviewTellsOfAPrefixThatCannotBe()
{
    QTemporaryDir dir;
    const auto notesFor = [&](const char *prefix) {
        const QVariantMap answer = previewGeneration(
            {{QStringLiteral("file"), dir.filePath(QStringLiteral("tarvo_orix_m1.ipc"))},
             {QStringLiteral("header"), QVariantMap{{QStringLiteral("target_device"),
                                                     QStringLiteral("TV2KR-18C-QFN88P-C8/I7")}}},
             {QStringLiteral("options"),
              QVariantMap{{QStringLiteral("Prefix"), QString::fromLatin1(prefix)}}}});
        const QVariantList files = answer.value(QStringLiteral("files")).toList();
        int named = 0;
        for (const QVariant &file : files)
            named += file.toMap()
                         .value(QStringLiteral("path"))
                         .toString()
                         .startsWith(QLatin1String("left_"));
        return std::make_pair(named,
                              answer.value(QStringLiteral("notes")).toStringList().join(u' '));
    };
    QCOMPARE(notesFor("").first, 0);
    QVERIFY(notesFor("left_").first > 0);
    QVERIFY(!notesFor("left_").second.contains(QLatin1String("left")));
    for (const char *wrong : {"9", "left", "wire_"}) {
        const auto told = notesFor(wrong);
        QCOMPARE(told.first, 0);
        QVERIFY2(told.second.contains(QLatin1String(wrong)), qPrintable(told.second));
    }
}

void tst_Plugin::saysWhyOkWouldWriteNothing()
{
    QTemporaryDir dir;
    const QVariantMap header{
        {QStringLiteral("target_device"), QStringLiteral("TV2KR-18C-QFN88P-C8/I7")}};
    QVariantMap configuration{{QStringLiteral("file"), dir.filePath(QStringLiteral("name.ipc"))},
                              {QStringLiteral("header"), header}};
    const auto errorOf = [this](const QVariantMap &asked) {
        return previewGeneration(asked).value(QStringLiteral("error")).toString();
    };
    QCOMPARE(errorOf(configuration), QString());
    configuration[QStringLiteral("options")] =
        QVariantMap{{QStringLiteral("Internal_Instruction_Memory"), true},
                    {QStringLiteral("Initialize ITCM"), true},
                    {QStringLiteral("ITCM_Initialization_Path"), QStringLiteral("nowhere")}};
    QVERIFY2(errorOf(configuration).startsWith(QLatin1String("ITCM Initialization Path")),
             qPrintable(errorOf(configuration)));
    QVERIFY(!errorOf({}).isEmpty());
    QVERIFY(!errorOf({{QStringLiteral("file"), QStringLiteral("name.ipc")}}).isEmpty());
    QVERIFY(TestSupport::entriesOf(dir.path()).isEmpty());
}

void tst_Plugin::needsNoLibraryThatAHostMayLack()
{
    QProcess objdump;
    objdump.start(QStringLiteral("objdump"),
                  {QStringLiteral("-p"), QStringLiteral(TARVO_PLUGIN_FILE)});
    QVERIFY(objdump.waitForFinished(-1));
    const QString text = QString::fromLatin1(objdump.readAllStandardOutput());
    static const QRegularExpression needed(QStringLiteral("NEEDED +(\\S+)"));
    static const QRegularExpression known(QStringLiteral(
        "^(libQt5|libTarvoHost|libstdc\\+\\+|libm\\.|libgcc_s|libc\\.|libasan|libubsan|ld-linux)"));
    int count = 0;
    for (auto matches = needed.globalMatch(text); matches.hasNext(); ++count) {
        const QString library = matches.next().captured(1);
        QVERIFY2(known.match(library).hasMatch(), qPrintable(library));
    }
    QVERIFY(count > 5);
}

TARVO_TEST_MAIN(QApplication, tst_Plugin)

#include "tst_plugin.moc"
