#include "../generate/reference.h"
#include "testsupport.h"

#include <dev/devicedb.h>
#include <rules/devicerules.h>
#include <rules/tcmsizes.h>

#include <QMap>
#include <QtTest>

using namespace TARVOORIXM1;

namespace
{

QStringList split(const char *list)
{
    return QString::fromLatin1(list).split(u'/');
}

QStringList knownNames()
{
    QStringList names;
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices()) {
        if (!names.contains(device.device()))
            names.append(device.device());
    }
    return names;
}

// The known names, and others that look like them.
QStringList triedNames()
{
    QStringList names = knownNames();
    for (const QString &name : knownNames())
        names << name.toLower() << name + u'X' << name + u' ' << name.chopped(1)
              << name.section(u'-', 0, 0) << name + u'/' + name;
    names << QString() << QStringLiteral("TV5KX-1") << QStringLiteral("TV3KX-1")
          << QStringLiteral("TV2KX-1") << QStringLiteral("TV1KX-1") << QStringLiteral("XTV5K-25A");
    names.removeDuplicates();
    return names;
}

bool isWide(const QString &device)
{
    return device.startsWith(QLatin1String("TV5K")) || device.startsWith(QLatin1String("TV3K"));
}

} // namespace

using Rule = bool (*)(const QString &);
Q_DECLARE_METATYPE(Rule)

class tst_DeviceRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listMembership_data();
    void listMembership();
    void availableBlocks_data();
    void availableBlocks();
    void psram_data();
    void psram();
    void sizeLists_data();
    void sizeLists();
    void everyKnownDeviceHasSizesAndItsDefaultIsOne();
    void everyKnownDeviceStandsInOneRow();
    void rulesHoldForTheirDevicesOnly_data();
    void rulesHoldForTheirDevicesOnly();
    void familiesFollowFromTheNamesBeginning();
    void ddr3VariantsBelongToTheirDevices();
    void psramVariantsBelongToTheirPackages();
    void sourcesAreLeftOutByDevice();
};

void tst_DeviceRules::listMembership_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<bool>("member");
    QTest::newRow("first") << QStringLiteral("A") << QByteArray("A/B/C") << true;
    QTest::newRow("last") << QStringLiteral("C") << QByteArray("A/B/C") << true;
    QTest::newRow("prefix of a member") << QStringLiteral("A") << QByteArray("AB/B") << false;
    QTest::newRow("member is a prefix") << QStringLiteral("AB") << QByteArray("A/B") << false;
    QTest::newRow("letter case") << QStringLiteral("a") << QByteArray("A/B") << false;
    QTest::newRow("two members") << QStringLiteral("A/B") << QByteArray("A/B") << false;
    QTest::newRow("no name") << QString() << QByteArray("A/B") << false;
    QTest::newRow("empty element") << QStringLiteral("") << QByteArray("A//B") << true;
}

void tst_DeviceRules::listMembership()
{
    QFETCH(QString, device);
    QFETCH(QByteArray, list);
    QTEST(isInDeviceList(device, QLatin1String(list)), "member");
}

void tst_DeviceRules::availableBlocks_data()
{
    QTest::addColumn<bool>("ddr3");
    QTest::addColumn<bool>("others"); // Ethernet, CAN, SPI-Flash
    QTest::newRow("TV1KL-5A") << false << false;
    QTest::newRow("TV1KL-5B") << false << false;
    for (const char *device : {"TV1L-9", "TV1L-9C", "TV1LR-9", "TV1LR-9C", "TV5KRT-15A",
                               "TV5KRT-15B", "TV5KT-15B", "TV5KLT-15A", "TV5KLRT-15A", "TV5KT-15A"})
        QTest::newRow(device) << false << true;
    for (const char *device : {"TV1KL-9A", "TV2KR-18C", "TV3K-10A", "TV5KT-138", "tv1l-9"})
        QTest::newRow(device) << true << true;
}

void tst_DeviceRules::availableBlocks()
{
    QFETCH(bool, ddr3);
    QFETCH(bool, others);
    const QString device = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(isDdr3Available(device), ddr3);
    QCOMPARE(!isSmallDevice(device), others);
}

void tst_DeviceRules::psram_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("package");
    QTest::addColumn<bool>("available");
    for (const char *package : {"QFN88P", "QFN88PF", "eLQFP144P", "eLQFP144PF"})
        QTest::addRow("TV2KR-18C %s", package)
            << QStringLiteral("TV2KR-18C") << QString::fromLatin1(package) << true;
    QTest::newRow("TV2KR-18C QFN88")
        << QStringLiteral("TV2KR-18C") << QStringLiteral("QFN88") << false;
    QTest::newRow("TV2KR-18 QFN88P")
        << QStringLiteral("TV2KR-18") << QStringLiteral("QFN88P") << false;
    QTest::newRow("TV2KLR-18C QFN88")
        << QStringLiteral("TV2KLR-18C") << QStringLiteral("QFN88") << true;
    QTest::newRow("TV2KLR-18C QFN88P")
        << QStringLiteral("TV2KLR-18C") << QStringLiteral("QFN88P") << false;
    QTest::newRow("letter case") << QStringLiteral("TV2KLR-18C") << QStringLiteral("qfn88")
                                 << false;
}

void tst_DeviceRules::psram()
{
    QFETCH(QString, device);
    QFETCH(QString, package);
    QTEST(isPsramAvailable(DEV::DeviceArg(device, device, QString(), package,
                                          QStringLiteral("C8/I7"), QString())),
          "available");
}

void tst_DeviceRules::sizeLists_data()
{
    QTest::addColumn<QString>("largest");
    QTest::addColumn<QString>("defaultSize");
    QTest::addColumn<QString>("reduced");
    const auto rows = [](const char *devices, const char *largest, const char *defaultSize,
                         const char *reduced) {
        for (const QString &device : QString::fromLatin1(devices).split(u'/'))
            QTest::newRow(qPrintable(device))
                << QString::fromLatin1(largest) << QString::fromLatin1(defaultSize)
                << QString::fromLatin1(reduced);
    };
    rows("TV1KL-5A/TV1KL-5B", "8 KB", "8 KB", "16 KB");
    rows("TV1L-9/TV1LR-9/TV1L-9C/TV1LR-9C/TV2KL-9X/TV1KL-9A/TV2KL-18X", "32 KB", "16 KB", "16 KB");
    rows("TV2K-18/TV2KR-18/TV2K-18C/TV2KR-18C/TV2KLR-18C", "64 KB", "32 KB", "16 KB");
    rows("TV2K-55/TV2K-55C/TV2KL-55C/TV3K-50A", "256 KB", "64 KB", "16 KB");
    rows("TV5K-25A/TV5K-25B/TV5KS-25B/TV5KR-25B/TV5KS-25A/TV5KR-25A", "64 KB", "32 KB", "32 KB");
    rows("TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A", "64 KB", "32 KB",
         "8 KB");
    rows("TV5KT-75B/TV5KT-75C", "256 KB", "128 KB", "256 KB");
    rows("TV5KT-60ES/TV5KT-60B/TV5K-60B", "128 KB", "64 KB", "64 KB");
    rows("TV5KT-138/TV5KT-138B/TV5KST-138B/TV5K-138C/TV5KS-138C/TV5KST-138C/TV5KT-138C/TV5K-138B/"
         "TV5KS-138B",
         "512 KB", "128 KB", "128 KB");
    rows("TV3K-20A/TV3KR-20A/TV3K-10A", "64 KB", "32 KB", "32 KB");
    rows("TV9X-1", "", "", "16 KB");
}

void tst_DeviceRules::sizeLists()
{
    QFETCH(QString, largest);
    QFETCH(QString, defaultSize);
    QFETCH(QString, reduced);
    const QStringList all{QStringLiteral("1 KB"),   QStringLiteral("2 KB"),
                          QStringLiteral("4 KB"),   QStringLiteral("8 KB"),
                          QStringLiteral("16 KB"),  QStringLiteral("32 KB"),
                          QStringLiteral("64 KB"),  QStringLiteral("128 KB"),
                          QStringLiteral("256 KB"), QStringLiteral("512 KB")};
    const TcmSizes sizes = tcmSizes(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(sizes.full, all.mid(0, all.indexOf(largest) + 1));
    QCOMPARE(sizes.largest, largest);
    QCOMPARE(sizes.defaultSize, defaultSize);
    QCOMPARE(sizes.reduced, all.mid(0, all.indexOf(reduced) + 1));
}

void tst_DeviceRules::everyKnownDeviceHasSizesAndItsDefaultIsOne()
{
    const QList<DEV::DeviceArg> devices = DEV::DeviceDb::bundled().devices();
    QVERIFY(!devices.isEmpty());
    for (const DEV::DeviceArg &device : devices) {
        const TcmSizes sizes = tcmSizes(device.device());
        QVERIFY2(sizes.full.value(defaultTcmSizeIndex(device.device())) == sizes.defaultSize,
                 qPrintable(device.device()));
    }
}

void tst_DeviceRules::everyKnownDeviceStandsInOneRow()
{
    QMap<QString, int> rows;
    for (const DeviceClass &row : deviceClasses()) {
        const QStringList names = QString(row.devices).split(u'/');
        for (const QString &name : names) {
            ++rows[name];
            QVERIFY2(&deviceClass(name) == &row, qPrintable(name));
        }
    }
    QStringList known = knownNames();
    QVERIFY(known.size() > 40);
    known.sort();
    QCOMPARE(rows.keys(), known);
    for (auto it = rows.cbegin(); it != rows.cend(); ++it)
        QVERIFY2(it.value() == 1, qPrintable(it.key()));
}

void tst_DeviceRules::rulesHoldForTheirDevicesOnly_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QStringList>("devices");
    QTest::newRow("small") << Rule(isSmallDevice) << split("TV1KL-5A/TV1KL-5B");
    QTest::newRow("debug is locked") << Rule(isDebugUnavailable) << split("TV1L-9/TV1LR-9");
    QTest::newRow("no debug") << Rule([](const QString &name) { return !isDebugAvailable(name); })
                              << split("TV1KL-5A/TV1KL-5B/TV1L-9/TV1LR-9");
    QTest::newRow("DDR3 is locked")
        << Rule(isDdr3Locked) << split("TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C");
    QTest::newRow("no DDR3") << Rule([](const QString &name) { return !isDdr3Available(name); })
                             << split("TV1KL-5A/TV1KL-5B/TV1L-9/TV1L-9C/TV1LR-9/TV1LR-9C/"
                                      "TV5KRT-15A/TV5KRT-15B/TV5KT-15B/TV5KLT-15A/TV5KLRT-15A/"
                                      "TV5KT-15A");
    QTest::newRow("external instructions only")
        << Rule(isInstructionMemoryExternalOnly)
        << split("TV5KRT-15A/TV5KLT-15A/TV5KLRT-15A/TV5KT-15A");
}

void tst_DeviceRules::rulesHoldForTheirDevicesOnly()
{
    QFETCH(Rule, rule);
    QFETCH(QStringList, devices);
    for (const QString &name : triedNames())
        QVERIFY2(rule(name) == devices.contains(name), qPrintable(name));
}

void tst_DeviceRules::familiesFollowFromTheNamesBeginning()
{
    for (const QString &name : triedNames()) {
        QVERIFY2(hasDdr3StopSignal(name) == isWide(name), qPrintable(name));
        QVERIFY2(largestRgmiiInputDelay(name) == (isWide(name) ? 255 : 127), qPrintable(name));
        const QString series = name.startsWith(QLatin1String("TV5K"))   ? QStringLiteral("5K")
                               : name.startsWith(QLatin1String("TV3K")) ? QStringLiteral("3K")
                                                                        : QStringLiteral("1L/2K");
        QCOMPARE(QString(deviceFamily(name).macDevice),
                 QString(u'"' + series + QLatin1String("_Series\"")));
        QCOMPARE(QString(deviceFamily(name).ddr3BusMacro),
                 name.startsWith(QLatin1String("TV2K")) ? QStringLiteral("VIRLA_TV2K") : QString());
    }
}

void tst_DeviceRules::ddr3VariantsBelongToTheirDevices()
{
    for (const QString &name : triedNames()) {
        const std::optional<QLatin1String> variant = ddr3Variant(name);
        QString told = QStringLiteral("nothing");
        if (variant)
            told = variant->size() > 0 ? QString(*variant) : QStringLiteral("plain");
        QVERIFY2(told == Reference::ddr3Variant(name), qPrintable(name + u' ' + told));
    }
}

void tst_DeviceRules::psramVariantsBelongToTheirPackages()
{
    struct Expected {
        bool clockReverse;
        bool singleEndedClocks;
    };
    const QMap<QString, Expected> expected = {
        {QStringLiteral("TV2KR-18C QFN88P"), {true, false}},
        {QStringLiteral("TV2KR-18C eLQFP144P"), {true, false}},
        {QStringLiteral("TV2KR-18C QFN88PF"), {false, true}},
        {QStringLiteral("TV2KR-18C eLQFP144PF"), {false, true}},
        {QStringLiteral("TV2KLR-18C QFN88"), {false, false}},
    };
    QStringList packages = {QString(), QStringLiteral("qfn88"), QStringLiteral("QFN88P/QFN88PF")};
    for (const DEV::DeviceArg &device : DEV::DeviceDb::bundled().devices())
        packages.append(device.package());
    packages.removeDuplicates();
    for (const QString &name : triedNames()) {
        for (const QString &package : qAsConst(packages)) {
            const DEV::DeviceArg device(name, name, QString(), package, QStringLiteral("C8/I7"),
                                        QString());
            const QString both = name + u' ' + package;
            const PsramVariant *variant = psramVariant(device);
            QVERIFY2((variant != nullptr) == expected.contains(both), qPrintable(both));
            QCOMPARE(isPsramAvailable(device), variant != nullptr);
            if (variant) {
                QCOMPARE(variant->clockReverse, expected.value(both).clockReverse);
                QCOMPARE(variant->singleEndedClocks, expected.value(both).singleEndedClocks);
            }
        }
    }
}

void tst_DeviceRules::sourcesAreLeftOutByDevice()
{
    const QStringList own = split("TV2K-55C/TV2K-18C/TV2KL-55C/TV2KR-18C/TV2KLR-18C");
    for (const QString &name : triedNames()) {
        QCOMPARE(QString(excludedSources(name, true)), own.contains(name)
                                                           ? QStringLiteral("itcmdbg.v")
                                                           : QStringLiteral("itcmdbg_2kc.v"));
        QStringList left = split("itcm.v/dtcm.v/itcm_3k.v/dtcm_3k.v/itcm_5k.v/dtcm_5k.v");
        const QString kept = name.startsWith(QLatin1String("TV5K"))   ? QStringLiteral("_5k")
                             : name.startsWith(QLatin1String("TV3K")) ? QStringLiteral("_3k")
                                                                      : QString();
        left.removeOne(QLatin1String("itcm") + kept + QLatin1String(".v"));
        left.removeOne(QLatin1String("dtcm") + kept + QLatin1String(".v"));
        QCOMPARE(QString(excludedSources(name, false)).split(u'/'), left);
    }
}

TARVO_TEST_MAIN(QCoreApplication, tst_DeviceRules)

#include "tst_devicerules.moc"
