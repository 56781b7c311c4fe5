#include "arbitrary.h"
#include "testsupport.h"

#include "reference.h"

#include <config/ipcfile.h>
#include <config/optionvalue.h>
#include <generate/defines.h>
#include <generate/sourcefiles.h>
#include <rules/corepins.h>
#include <rules/devicerules.h>
#include <rules/dialogdefaults.h>
#include <rules/pins.h>
#include <utils/inifile.h>

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace TARVOORIXM1;

// What must hold for every configuration and device. The seed of a failure is printed; RC_PARAMS
// repeats it.
class tst_GenerateProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithThePlainStatement();
    void defaultSizesAgreeForEveryDevice();
    void anAbsentKeyIsItsDefault();
    void onlyTheMapAndTheDeviceCount();
    void storingAndReadingChangesNothing();
    void sourcesNeverHoldTwoVariants();
};

void tst_GenerateProperties::agreesWithThePlainStatement()
{
    QVERIFY(rc::check([] {
        const OptionMap options = Arbitrary::options();
        const DEV::DeviceArg device = *Arbitrary::device();
        const QMap<QString, QStringList> expected = Reference::includeFiles(options, device);
        const QVector<IncludeFile> files = buildIncludeFiles(options, device);
        RC_ASSERT(files.size() == expected.size());
        for (const IncludeFile &file : files) {
            if (file.lines != expected.value(file.name))
                RC_FAIL(QString(device.id() + u'\n' + file.name + u'\n' + file.lines.join(u'\n') +
                                QLatin1String("\n---\n") + expected.value(file.name).join(u'\n'))
                            .toStdString());
        }
    }));
}

void tst_GenerateProperties::defaultSizesAgreeForEveryDevice()
{
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    QVERIFY(!devices.isEmpty());
    for (const DEV::DeviceArg &device : devices)
        QVERIFY2(defaultTcmSizeIndex(device.device()) == Reference::defaultSize(device.device()),
                 qPrintable(device.device()));
}

// For each key, generation and pins are the same without it and with its default; another value
// makes them others, so that every key is looked at somewhere.
void tst_GenerateProperties::anAbsentKeyIsItsDefault()
{
    OptionMap on;
    for (const Option &option : optionTable()) {
        if (option.type == OptionType::Bool)
            on.insert(option.key, true);
    }
    OptionMap external = on;
    external[Key::internalInstructionMemory] = false;
    external[Key::internalDataMemory] = false;
    const OptionMap bases[] = {{}, on, external};
    const auto other = [](const Option &option, const QVariant &byDefault) -> QVariant {
        if (option.type == OptionType::Bool)
            return !byDefault.toBool();
        if (option.choices.isEmpty())
            return option.type == OptionType::Int ? QVariant(byDefault.toInt() + 1)
                                                  : QVariant(QStringLiteral("/other"));
        return option.choices.first() == byDefault.toString() ? option.choices.last()
                                                              : option.choices.first();
    };
    for (const char *name : {"TV1KL-5A", "TV2KR-18C", "TV5KT-138B", "unknown"}) {
        const QString device = QString::fromLatin1(name);
        const DEV::DeviceArg target(device, device, QString(), QStringLiteral("QFN88P"),
                                    QStringLiteral("C8/I7"), QString());
        const auto generated = [&](const OptionMap &options) {
            QStringList lines;
            for (const IncludeFile &file : buildIncludeFiles(options, target))
                lines += file.name + u':' + file.lines.join(u'\n');
            lines += buildSourceFiles(options,
                                      {{InfoKey::debug, QStringLiteral(":/a")},
                                       {InfoKey::noDebug, QStringLiteral(":/b")}},
                                      device, QStringLiteral("/t"));
            for (const Utils::PinFigure &pin : corePins(coreSwitches(options)))
                lines += pin.name();
            for (const BlockPins &block : peripheralPins(options, device)) {
                for (const Utils::PinFigure &pin : block.pins)
                    lines += pin.name();
            }
            return lines;
        };
        for (const Option &option : optionTable()) {
            const QVariant byDefault = generationDefault(option.key, device);
            // The prefix names further outputs only.
            if (!byDefault.isValid() || option.key == Key::namePrefix)
                continue;
            bool isLookedAt = false;
            for (const OptionMap &base : bases) {
                OptionMap options = base;
                options.remove(option.key);
                const QStringList absent = generated(options);
                options.insert(option.key, byDefault);
                QVERIFY2(generated(options) == absent, qPrintable(device + u' ' + option.key));
                QCOMPARE(valueOf(options, option.key), byDefault);
                options.insert(option.key, other(option, byDefault));
                isLookedAt |= generated(options) != absent;
            }
            QVERIFY2(isLookedAt, qPrintable(device + u' ' + option.key));
        }
    }
}

void tst_GenerateProperties::onlyTheMapAndTheDeviceCount()
{
    QVERIFY(rc::check([] {
        OptionMap options = Arbitrary::options();
        const DEV::DeviceArg device = *Arbitrary::device();
        const auto text = [&] {
            QString all;
            for (const IncludeFile &file : buildIncludeFiles(options, device))
                all += file.name + file.lines.join(u'\n');
            return all;
        };
        const QString before = text();
        for (const QLatin1String key :
             {Key::ipDevice, Key::ipDeviceId, Key::synthesisTool, Key::lang, Key::createInPath})
            options.insert(key, Arbitrary::text());
        RC_ASSERT(text() == before);
    }));
}

void tst_GenerateProperties::storingAndReadingChangesNothing()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("x.ipc"));
    QVERIFY(rc::check([&] {
        const OptionMap options = Arbitrary::options();
        const DEV::DeviceArg device = *Arbitrary::device();
        const QVariantMap ipInfo{{InfoKey::id, QStringLiteral("an.id")}};
        RC_ASSERT(bool(Utils::writeIniFile(path, IpcFile::header(device.id(), ipInfo),
                                           IpcFile::configGroup, options)));
        // One process gives back cached values, so read the bytes through a path that was never
        // seen before.
        static int serial = 0;
        const QString copy = dir.filePath(QString::number(++serial) + QLatin1String(".ipc"));
        RC_ASSERT(QFile::copy(path, copy));
        QSettings settings(copy, QSettings::IniFormat);
        RC_ASSERT(IpcFile::isVersionAccepted(settings));
        RC_ASSERT(IpcFile::readDevice(settings, DEV::DeviceDb::bundled()) == device);
        OptionMap read;
        IpcFile::readOptions(settings, read);
        RC_ASSERT(read.keys() == options.keys());
        for (auto it = options.cbegin(); it != options.cend(); ++it)
            RC_ASSERT(read.value(it.key()).toString() == it.value().toString());
        const auto first = buildIncludeFiles(options, device);
        const auto second = buildIncludeFiles(read, device);
        for (int i = 0; i < first.size(); ++i)
            RC_ASSERT(first.at(i).lines == second.at(i).lines);
        QFile::remove(copy);
    }));
}

void tst_GenerateProperties::sourcesNeverHoldTwoVariants()
{
    QTemporaryDir dir;
    for (const char *name :
         {"itcm.v", "dtcm.v", "itcm_3k.v", "dtcm_3k.v", "itcm_5k.v", "dtcm_5k.v"})
        QVERIFY(TestSupport::write(dir.filePath(QLatin1String("no_debug/") + QLatin1String(name)),
                                   "x"));
    for (const char *name : {"itcmdbg.v", "itcmdbg_2kc.v"})
        QVERIFY(
            TestSupport::write(dir.filePath(QLatin1String("debug/") + QLatin1String(name)), "x"));
    const QVariantMap ipInfo{{InfoKey::debug, dir.filePath(QStringLiteral("debug"))},
                             {InfoKey::noDebug, dir.filePath(QStringLiteral("no_debug"))}};
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    for (const DEV::DeviceArg &device : devices) {
        for (const bool debug : {false, true}) {
            const QStringList sources = buildSourceFiles({{Key::enableDebug, debug}}, ipInfo,
                                                         device.device(), QStringLiteral("/t"));
            QCOMPARE(sources.filter(QStringLiteral("itcm")).size(), 1);
            QCOMPARE(sources.filter(QStringLiteral("dtcm")).size(), debug ? 0 : 1);
        }
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_GenerateProperties)

#include "tst_generateproperties.moc"
