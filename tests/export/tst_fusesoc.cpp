// The FuseSoC core and its generator: the core read as FuseSoC reads it, its targets run with the
// tools that they are for, and the script called as FuseSoC calls it.

#include "../orixm1/export/handedon.h"

#include <config/ipcfile.h>
#include <export/fusesoc.h>

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

using namespace TARVOORIXM1;

namespace
{

QStringList texts(const QJsonValue &list)
{
    QStringList found;
    const QJsonArray array = list.toArray();
    for (const QJsonValue &value : array)
        found.append(value.toString());
    return found;
}

// A file of a fileset.
struct CoreFile {
    QString path;
    QString type;
    QString copyTo;
    bool isIncluded = false;
};

QVector<CoreFile> filesOf(const QJsonObject &set)
{
    QVector<CoreFile> files;
    const QJsonArray list = set.value(QLatin1String("files")).toArray();
    for (const QJsonValue &entry : list) {
        CoreFile file;
        file.type = set.value(QLatin1String("file_type")).toString();
        file.path = entry.isString() ? entry.toString() : entry.toObject().keys().value(0);
        const QJsonObject attributes = entry.toObject().value(file.path).toObject();
        file.isIncluded = attributes.value(QLatin1String("is_include_file")).toBool();
        file.copyTo = attributes.value(QLatin1String("copyto")).toString();
        files.append(file);
    }
    return files;
}

// What the stand-in of the processor says at the end of its script.
bool hasPassed(const QString &said)
{
    return said.startsWith(QLatin1String("PASS\n")) && !said.contains(QLatin1String("exit "));
}

QStringList namesIn(const QString &folder)
{
    QStringList names;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        names.append(QDir(folder).relativeFilePath(iterator.next()));
    names.sort();
    return names;
}

} // namespace

class tst_Fusesoc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void coreIsValid_data() { HandedOn::addConfigurations(); }
    void coreIsValid();
    void schemaTakesTheCores();
    void everyFileIsExported_data() { HandedOn::addConfigurations(); }
    void everyFileIsExported();
    void generatorCoreNamesItsScript();
    void noCoreWithoutRtl();
    void toolsTakeTheFilesOfEachTarget_data();
    void toolsTakeTheFilesOfEachTarget();
    void generatorMakesTheCoreOfAConfiguration();
    void generatorReplacesWhatItMadeBefore();
    void generatorSaysWhatIsWrong_data();
    void generatorSaysWhatIsWrong();

private:
    SystemMap mapOf(const OptionMap &options) const
    {
        return systemMap(options, HandedOn::device(), m_description);
    }
    static QByteArray bytesOf(const SystemMap &map, const char *path);
    static QJsonObject readCore(const QByteArray &bytes, QString *complaint,
                                const QString &schema = {});
    static QVector<CoreFile> filesOfTarget(const QJsonObject &core, const QString &target);
    // Calls the generator in `folder` for a request with these lines.
    QString generated(const QByteArray &request, const QString &folder,
                      const QString &program = QStringLiteral(TARVO_COMMAND)) const;

    SystemDescription m_description;
    QTemporaryDir m_dir;
    QString m_script;
};

void tst_Fusesoc::initTestCase()
{
    const auto description = readSystemDescription(QStringLiteral(TARVO_IP_DATA_DIR));
    QVERIFY2(description, qPrintable(description.reason()));
    m_description = *description;
    m_script = m_dir.filePath(QStringLiteral("generator.py"));
    QVERIFY(TestSupport::write(m_script, bytesOf(mapOf({}), "fusesoc/orixm1_generator.py")));
    QVERIFY(
        TestSupport::write(m_dir.filePath(QStringLiteral("a root/config/sub.ipc")),
                           "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                           "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n"
                           "Enable%20UART0=true\nEnable%20GPIO=true\nEnabel%20GPIO%20IO=true\n"));
    QVERIFY(TestSupport::write(m_dir.filePath(QStringLiteral("a root/config/wrong.ipc")),
                               "[General]\ntarget_device=TV2KR-18C-QFN88P-C8/I7\n"
                               "type=tarvo.tarvo_orix_m1\nversion=1.0\n\n[Config]\n"
                               "Number%20of%20Interrupts=77\n"));
}

QByteArray tst_Fusesoc::bytesOf(const SystemMap &map, const char *path)
{
    const QVector<ExportedFile> files = fusesocFiles(map);
    for (const ExportedFile &file : files) {
        if (file.path == QLatin1String(path))
            return file.bytes;
    }
    return {};
}

// The object of a core, as YAML has it; held against a schema if one is named.
QJsonObject tst_Fusesoc::readCore(const QByteArray &bytes, QString *complaint,
                                  const QString &schema)
{
    static const char reader[] = "import json, sys, yaml\n"
                                 "text = sys.stdin.read()\n"
                                 "assert text.startswith('CAPI=2:\\n')\n"
                                 "core = yaml.safe_load(text.split('\\n', 1)[1])\n"
                                 "if sys.argv[1]:\n"
                                 "    import jsonschema\n"
                                 "    jsonschema.validate(core, json.load(open(sys.argv[1])))\n"
                                 "json.dump(core, sys.stdout)\n";
    QProcess python;
    python.start(QStringLiteral("python3"),
                 {QStringLiteral("-c"), QString::fromLatin1(reader), schema});
    python.write(bytes);
    python.closeWriteChannel();
    if (!python.waitForFinished(-1) || python.exitCode() != 0)
        *complaint = QString::fromUtf8(python.readAllStandardError()) + python.errorString();
    return QJsonDocument::fromJson(python.readAllStandardOutput()).object();
}

QVector<CoreFile> tst_Fusesoc::filesOfTarget(const QJsonObject &core, const QString &target)
{
    QVector<CoreFile> files;
    const QJsonObject object =
        core.value(QLatin1String("targets")).toObject().value(target).toObject();
    for (const QString &set : texts(object.value(QLatin1String("filesets"))))
        files += filesOf(core.value(QLatin1String("filesets")).toObject().value(set).toObject());
    return files;
}

void tst_Fusesoc::coreIsValid()
{
    QFETCH(OptionMap, options);
    QString complaint;
    const QJsonObject core = readCore(bytesOf(mapOf(options), "tarvo_orix_m1.core"), &complaint);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    QCOMPARE(core.value(QLatin1String("name")).toString(),
             QStringLiteral("tarvo:orixm1:tarvo_orix_m1:1.0"));
    const QJsonObject sets = core.value(QLatin1String("filesets")).toObject();
    const QJsonObject targets = core.value(QLatin1String("targets")).toObject();
    for (const char *target : {"default", "synth", "sim", "sim_verilator", "lint"})
        QVERIFY2(targets.contains(QLatin1String(target)), target);
    QStringList unused = sets.keys();
    for (const QString &target : targets.keys()) {
        const QJsonObject object = targets.value(target).toObject();
        QVERIFY(!object.value(QLatin1String("toplevel")).toString().isEmpty());
        for (const QString &set : texts(object.value(QLatin1String("filesets")))) {
            QVERIFY2(sets.contains(set), qPrintable(set));
            unused.removeAll(set);
        }
        for (const QString &parameter : texts(object.value(QLatin1String("parameters"))))
            QVERIFY(core.value(QLatin1String("parameters")).toObject().contains(parameter));
    }
    QCOMPARE(unused, QStringList());
}

void tst_Fusesoc::schemaTakesTheCores()
{
    const QString schema =
        qEnvironmentVariable("TARVO_SCHEMAS_DIR", QStringLiteral(TARVO_SCHEMAS_DIR)) +
        QLatin1String("/capi2.schema.json");
    if (!QFileInfo(schema).isFile())
        QSKIP("TARVO_SCHEMAS_DIR names no folder with the schema of cores");
    QString complaint;
    for (const auto &[phrase, options] : HandedOn::configurations()) {
        readCore(bytesOf(mapOf(options), "tarvo_orix_m1.core"), &complaint, schema);
        QVERIFY2(complaint.isEmpty(), qPrintable(phrase + complaint));
    }
    const QByteArray generator = bytesOf(mapOf({}), "fusesoc/orixm1_generator.core");
    readCore(generator, &complaint, schema);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    readCore(QByteArray(generator).replace("command:", "comand:"), &complaint, schema);
    QVERIFY(!complaint.isEmpty());
}

void tst_Fusesoc::everyFileIsExported()
{
    QFETCH(OptionMap, options);
    const SystemMap map = mapOf(options);
    QStringList exported;
    QStringList hardware; // has to be in the core
    for (const Format &format : formats()) {
        for (const ExportedFile &file : format.files(map)) {
            exported.append(file.path);
            if (format.name == QLatin1String("rtl") || format.name == QLatin1String("sdc"))
                hardware.append(file.path);
        }
    }
    QString complaint;
    const QJsonObject core = readCore(bytesOf(map, "tarvo_orix_m1.core"), &complaint);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    QStringList named;
    const QJsonObject sets = core.value(QLatin1String("filesets")).toObject();
    for (const QString &set : sets.keys()) {
        for (const CoreFile &file : filesOf(sets.value(set).toObject())) {
            QVERIFY2(exported.contains(file.path), qPrintable(file.path));
            QVERIFY2(!named.contains(file.path), qPrintable(file.path));
            named.append(file.path);
            QVERIFY(!file.type.isEmpty());
        }
    }
    for (const QString &path : qAsConst(hardware))
        QVERIFY2(named.contains(path), qPrintable(path));
}

void tst_Fusesoc::generatorCoreNamesItsScript()
{
    QString complaint;
    const QJsonObject core =
        readCore(bytesOf(mapOf({}), "fusesoc/orixm1_generator.core"), &complaint);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    const QJsonObject generator = core.value(QLatin1String("generators"))
                                      .toObject()
                                      .value(QLatin1String("orixm1"))
                                      .toObject();
    QCOMPARE(generator.value(QLatin1String("interpreter")).toString(), QStringLiteral("python3"));
    const QByteArray command = generator.value(QLatin1String("command")).toString().toUtf8();
    const QByteArray script = bytesOf(mapOf({}), QByteArray("fusesoc/" + command).constData());
    QVERIFY(script.startsWith("#!/usr/bin/env python3\n"));
    QVERIFY(!core.contains(QLatin1String("targets")));
}

void tst_Fusesoc::noCoreWithoutRtl()
{
    SystemDescription bare = m_description;
    bare.debugRtl.clear();
    bare.noDebugRtl.clear();
    QVERIFY(fusesocFiles(systemMap({}, HandedOn::device(), bare)).isEmpty());
    QVERIFY(!fusesocFiles(mapOf({})).isEmpty());
}

void tst_Fusesoc::toolsTakeTheFilesOfEachTarget_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("configuration");
    for (const char *target : {"default", "synth", "sim", "lint"}) {
        for (const char *configuration : {"sensor-node", "everything"}) {
            QTest::addRow("%s, %s", target, configuration)
                << QString::fromLatin1(target) << QString::fromLatin1(configuration);
        }
    }
    QTest::newRow("sim_verilator, sensor-node")
        << QStringLiteral("sim_verilator") << QStringLiteral("sensor-node");
}

// In a folder of its own beside a copy of all that is exported, with relative paths, as FuseSoC has
// it. Somewhere above there is a blank in a name.
void tst_Fusesoc::toolsTakeTheFilesOfEachTarget()
{
    QFETCH(QString, target);
    QFETCH(QString, configuration);
    QSettings settings(QStringLiteral(TARVO_EXPORT_GOLDEN_DIR "/") + configuration +
                           QLatin1String("/config.ipc"),
                       QSettings::IniFormat);
    OptionMap options;
    IpcFile::readOptions(settings, options);
    const SystemMap map =
        systemMap(options, IpcFile::readDevice(settings, DEV::DeviceDb::bundled()), m_description);
    const QTemporaryDir dir;
    const QString exported = dir.filePath(QStringLiteral("a copy/core"));
    const QString work = dir.filePath(QStringLiteral("a copy/build/work"));
    QVERIFY(QDir().mkpath(work));
    for (const Format &format : formats())
        QVERIFY(HandedOn::writeFiles(format.files(map), exported));
    QString complaint;
    const QJsonObject core = readCore(
        TestSupport::contentsOf(exported + QLatin1String("/tarvo_orix_m1.core")), &complaint);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    const QJsonObject object =
        core.value(QLatin1String("targets")).toObject().value(target).toObject();
    const QJsonObject choice = object.value(QLatin1String("flow_options")).toObject();
    QStringList sources;
    QStringList waivers;
    QStringList folders;
    for (const CoreFile &file : filesOfTarget(core, target)) {
        const QString path = QLatin1String("../../core/") + file.path;
        if (!file.copyTo.isEmpty()) {
            const QString place = work + u'/' + file.copyTo;
            QVERIFY(QDir().mkpath(QFileInfo(place).path()) &&
                    QFile::copy(exported + u'/' + file.path, place));
        }
        if (file.isIncluded)
            folders.append(QFileInfo(path).path());
        else if (file.type == QLatin1String("vlt"))
            waivers.append(path);
        else if (file.type.startsWith(QLatin1String("verilogSource")) ||
                 file.type.startsWith(QLatin1String("systemVerilogSource")))
            sources.append(path);
    }
    folders.removeDuplicates();
    const QString top = object.value(QLatin1String("toplevel")).toString();
    const QString tool = choice.value(QLatin1String("tool")).toString();
    QStringList plusArguments;
    for (const QString &name : texts(object.value(QLatin1String("parameters"))))
        plusArguments.append(u'+' + name + u'=' +
                             core.value(QLatin1String("parameters"))
                                 .toObject()
                                 .value(name)
                                 .toObject()
                                 .value(QLatin1String("default"))
                                 .toString());
    const auto run = [&work](const QString &program, const QStringList &arguments) {
        return HandedOn::said(program, arguments, work);
    };
    if (tool == QLatin1String("verilator")) {
        const bool runs = choice.value(QLatin1String("mode")) == QLatin1String("binary");
        QStringList arguments = texts(choice.value(QLatin1String("verilator_options")));
        arguments.append(runs ? QStringLiteral("--binary") : QStringLiteral("--lint-only"));
        for (const QString &folder : qAsConst(folders))
            arguments.append(QLatin1String("+incdir+") + folder);
        arguments += QStringList{QStringLiteral("--top-module"), top} + waivers + sources;
        if (!runs) {
            QCOMPARE(run(QStringLiteral("verilator"), arguments), QString());
            return;
        }
        // Its make cannot build in a folder with a blank in its name.
        const QTemporaryDir made;
        arguments += QStringList{
            QStringLiteral("--Mdir"),     made.path(),
            QStringLiteral("-o"),         QStringLiteral("made"),
            QStringLiteral("-MAKEFLAGS"), QStringLiteral("OPT_FAST=-O0 OPT_GLOBAL=-O0")};
        run(QStringLiteral("verilator"), arguments);
        const QString played = run(made.filePath(QStringLiteral("made")), plusArguments);
        QVERIFY2(hasPassed(played), qPrintable(played));
        return;
    }
    QStringList arguments = texts(choice.value(QLatin1String("iverilog_options")));
    if (arguments.isEmpty())
        arguments.append(QStringLiteral("-g2005"));
    for (const QString &folder : qAsConst(folders))
        arguments.append(QLatin1String("-I") + folder);
    arguments +=
        QStringList{QStringLiteral("-s"), top, QStringLiteral("-o"), QStringLiteral("made")};
    QCOMPARE(run(QStringLiteral("iverilog"), arguments + sources), QString());
    if (tool != QLatin1String("icarus"))
        return;
    const QString played =
        run(QStringLiteral("vvp"),
            QStringList{QStringLiteral("-n"), QStringLiteral("made")} + plusArguments);
    QVERIFY2(hasPassed(played), qPrintable(played));
}

QString tst_Fusesoc::generated(const QByteArray &request, const QString &folder,
                               const QString &program) const
{
    const QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("request.yml"));
    if (!TestSupport::write(file, request) || !QDir().mkpath(folder))
        return QStringLiteral("cannot be prepared");
    QProcess python;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ORIXM1"), program);
    environment.insert(QStringLiteral("PYTHONDONTWRITEBYTECODE"), QStringLiteral("1"));
    python.setProcessEnvironment(environment);
    python.setWorkingDirectory(folder);
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start(QStringLiteral("python3"), {m_script, file});
    if (!python.waitForFinished(-1))
        return python.errorString();
    const QString said = QString::fromUtf8(python.readAll());
    return python.exitCode() == 0 ? said : said + QStringLiteral("exit %1").arg(python.exitCode());
}

void tst_Fusesoc::generatorMakesTheCoreOfAConfiguration()
{
    const QString folder = m_dir.filePath(QStringLiteral("made here"));
    const QByteArray request =
        "cores: {}\nfiles_root: " + m_dir.filePath(QStringLiteral("a root")).toUtf8() +
        "\ngapi: '1.0'\nparameters:\n  ipc: config/sub.ipc\n"
        "vlnv: somebody:else:sub-made:0.1\n";
    QCOMPARE(generated(request, folder), QString());
    QString complaint;
    const QByteArray bytes = TestSupport::contentsOf(folder + QLatin1String("/tarvo_orix_m1.core"));
    const QJsonObject core = readCore(bytes, &complaint);
    QVERIFY2(complaint.isEmpty(), qPrintable(complaint));
    QCOMPARE(core.value(QLatin1String("name")).toString(),
             QStringLiteral("somebody:else:sub-made:0.1"));
    // What it names and nothing else, with the bytes of an export.
    const SystemMap map = mapOf({{QStringLiteral("Enable UART0"), true},
                                 {QStringLiteral("Enable GPIO"), true},
                                 {QStringLiteral("Enabel GPIO IO"), true}});
    QMap<QString, QByteArray> exported;
    for (const Format &format : formats()) {
        for (const ExportedFile &file : format.files(map))
            exported.insert(file.path, file.bytes);
    }
    QVERIFY(exported.contains(QStringLiteral("rtl/apb_uart.v")));
    for (const QString &name : namesIn(folder)) {
        if (!name.endsWith(QLatin1String(".core")))
            QCOMPARE(TestSupport::contentsOf(folder + u'/' + name), exported.value(name));
        QVERIFY2(!name.startsWith(QLatin1String("fusesoc")) &&
                     !name.endsWith(QLatin1String(".json")),
                 qPrintable(name));
    }
    const QJsonObject sets = core.value(QLatin1String("filesets")).toObject();
    for (const QString &set : sets.keys()) {
        for (const CoreFile &file : filesOf(sets.value(set).toObject()))
            QVERIFY2(QFileInfo(folder + u'/' + file.path).isFile(), qPrintable(file.path));
    }
}

void tst_Fusesoc::generatorReplacesWhatItMadeBefore()
{
    const QString folder = m_dir.filePath(QStringLiteral("twice"));
    const QByteArray request = "files_root: " + m_dir.filePath(QStringLiteral("a root")).toUtf8() +
                               "\ngapi: 1.0\nparameters: {ipc: config/sub.ipc}\nvlnv: a:b:c:0\n";
    QCOMPARE(generated(request, folder), QString());
    const QStringList names = namesIn(folder);
    QVERIFY(TestSupport::write(folder + QLatin1String("/rtl/left.v"), "over\n"));
    QCOMPARE(generated(request, folder), QString());
    QCOMPARE(namesIn(folder), names);
}

void tst_Fusesoc::generatorSaysWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("expected");
    const QString command = QStringLiteral(TARVO_COMMAND);
    const QByteArray good = "gapi: '1.0'\nfiles_root: @\nvlnv: a:b:c:0\n";
    const auto row = [](const char *name, const QByteArray &request, const QString &program,
                        const char *expected) {
        QTest::newRow(name) << request << program << QString::fromLatin1(expected);
    };
    row("no program", good + "parameters: {ipc: config/sub.ipc}\n",
        QStringLiteral("orixm1-nowhere"), "the program \"orixm1-nowhere\" is not there");
    row("no such configuration", good + "parameters: {ipc: config/none.ipc}\n", command,
        "there is no configuration \"@/config/none.ipc\"");
    row("a folder for a configuration", good + "parameters: {ipc: config}\n", command,
        "there is no configuration \"@/config\"");
    row("a wrong configuration", good + "parameters: {ipc: config/wrong.ipc}\n", command,
        "\"77\" is out of its domain");
    row("no parameter", good, command, "parameter \"ipc\" is missing");
    row("a misspelt parameter", good + "parameters: {icp: config/sub.ipc}\n", command,
        "unknown parameter \"icp\"; there are: ipc, orixm1");
    row("a number for a path", good + "parameters: {ipc: 3}\n", command,
        "parameter \"ipc\" is no path");
    row("parameters in a list", good + "parameters: [ipc]\n", command,
        "\"parameters\" is no mapping");
    row("another interface", "gapi: '2.0'\nfiles_root: @\nvlnv: a:b:c:0\n", command,
        "gapi is \"2.0\"; this generator knows \"1.0\"");
    row("no name", "gapi: '1.0'\nfiles_root: @\nparameters: {ipc: config/sub.ipc}\n", command,
        "has no \"vlnv\"");
    row("no YAML", "a: [b\n", command, "cannot be read");
    row("an empty request", "", command, "is no request of FuseSoC");
    row("a program that fails", good + "parameters: {ipc: config/sub.ipc}\n",
        QStringLiteral("false"), "is wrong");
}

void tst_Fusesoc::generatorSaysWhatIsWrong()
{
    QFETCH(QByteArray, request);
    QFETCH(QString, program);
    QFETCH(QString, expected);
    const QString root = m_dir.filePath(QStringLiteral("a root"));
    const QTemporaryDir folder;
    const QString said =
        generated(QByteArray(request).replace('@', root.toUtf8()), folder.path(), program);
    QVERIFY2(said.startsWith(QLatin1String("orixm1_generator: ")), qPrintable(said));
    QVERIFY2(said.contains(expected.replace(u'@', root)), qPrintable(said));
    QVERIFY2(said.endsWith(QLatin1String("exit 1")), qPrintable(said));
    QVERIFY2(!said.contains(QLatin1String("Traceback")), qPrintable(said));
    QCOMPARE(namesIn(folder.path()), QStringList());
    QVERIFY(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

TARVO_TEST_MAIN(QCoreApplication, tst_Fusesoc)
#include "tst_fusesoc.moc"
