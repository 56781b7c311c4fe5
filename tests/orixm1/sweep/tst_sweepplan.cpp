#include <testsupport.h>

#include <config/optionkeys.h>
#include <config/optiontable.h>
#include <sweep/configure.h>
#include <sweep/plan.h>

#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace TARVOORIXM1;

namespace
{

const QStringList resources = {QStringLiteral("LUT4"), QStringLiteral("Flip-flops")};

SweepPlanText readText(const QByteArray &text)
{
    return readSweepPlan(text, DEV::DeviceDb::bundled(), resources);
}

QStringList namesOf(const QByteArray &text)
{
    QStringList names;
    const QVector<SweepPoint> points = sweepPoints(readText(text).plan, {});
    for (const SweepPoint &point : points)
        names.append(point.name);
    return names;
}

DEV::DeviceArg device(const char *id)
{
    return DEV::DeviceDb::bundled().findDevice(QLatin1String(id));
}

SweepPoint pointWith(const char *id, const OptionMap &settings)
{
    SweepPoint point;
    point.device = device(id);
    point.settings = settings;
    return point;
}

const char *const large = "TV2KR-18C-QFN88P-C8/I7";
const char *const small = "TV1KL-5A-QFN32-C6/I5";

} // namespace

class tst_SweepPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEachMistakeWithItsPlace_data();
    void tellsEachMistakeWithItsPlace();
    void tellsAllMistakesOfAPlan();
    void goesThroughGridListAndDevices();
    void aPatternOfManyStarsTakesNoTime();
    void namesADeviceOnce_data();
    void namesADeviceOnce();
    void keepsNamesWhenThePlanGrows();
    void namesAreNamesOfFolders();
    void partsOfNamesDiffer();
    void leavesOutWhatIsExcluded();
    void doesNotMakeFitWhatADeviceCannotHave();
    void tellsWhatNoDeviceCouldHave();
    void choosingOneMemoryGivesUpTheOther();
    void readsItsExample();
};

void tst_SweepPlan::tellsEachMistakeWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("line");
    QTest::addColumn<QString>("said"); // text and fix
    const auto row = [](const char *name, const char *text, const char *key, int line,
                        const char *said) {
        QTest::newRow(name) << QByteArray(text) << QString::fromLatin1(key) << line
                            << QString::fromLatin1(said);
    };
    row("no JSON", "{\n\"devices\": [,]}", "", 2, "is no JSON: ");
    row("a list", "[]", "", 1, "no JSON object");
    row("an unknown member", "{\"devices\": [\"TV2KR-18C\"],\n\"grids\": {}}", "grids", 2,
        "Unknown key \"grids\". Did you mean \"grid\"?");
    row("no device", "{\"grid\": {}}", "", 1, "no device. Name some in \"devices\"");
    row("a device as a text", "{\"devices\": \"TV2KR-18C\"}", "devices", 1, "a text, not a list");
    row("no device in the list", "{\"devices\": []}", "devices", 1, "The list is empty");
    row("a number for a device", "{\"devices\": [7]}", "devices[0]", 1, "a number, not a text");
    row("an unknown device", "{\"devices\": [\"TV2KR-18C\",\n \"TV2KR-18D\"]}", "devices[1]", 2,
        "Unknown device \"TV2KR-18D\". Did you mean \"TV2KR-18\"?");
    row("a pattern without a device", "{\"devices\": [\"XY*\"]}", "devices[0]", 1,
        "No device matches \"XY*\". \"orixm1 devices\"");
    row("an unknown option", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\n\"ITCM Size\": [1]}}",
        "grid.ITCM Size", 2, "Unknown option \"ITCM Size\". Did you mean \"ITCM_Size\"?");
    row("a value that is no list", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": 1}}",
        "grid.ITCM_Size", 1, "a number, not a list of values");
    row("an empty list of values", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": []}}",
        "grid.ITCM_Size", 1, "The list is empty");
    row("a value twice", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": [1, 2, 1]}}",
        "grid.ITCM_Size[2]", 1, "twice");
    row("a text for a number", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": [\"1\"]}}",
        "grid.ITCM_Size[0]", 1, "of type int. Write 1 without quotation marks");
    row("a broken number", "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": [1.5]}}",
        "grid.ITCM_Size[0]", 1, "1.5 is no int");
    row("a number for a switch", "{\"devices\": [\"TV2KR-18C\"], \"options\": {\"Enable CAN\": 1}}",
        "options.Enable CAN", 1, "1 is no bool, as \"Enable CAN\" is. It is true or false.");
    row("a number for a text",
        "{\"devices\": [\"TV2KR-18C\"], \"options\": {\"CAN_BUFFER_DEPTH\": 256}}",
        "options.CAN_BUFFER_DEPTH", 1, "Write \"256\".");
    row("a number out of its domain",
        "{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"ITCM_Size\": [10]}}", "grid.ITCM_Size[0]", 1,
        "0 to 9");
    row("a text out of its domain",
        "{\"devices\": [\"TV2KR-18C\"], \"options\": {\"ETHERNET_INTERFACE\": \"RGMI\"}}",
        "options.ETHERNET_INTERFACE", 1, "Did you mean \"RGMII\"?");
    row("a device as an option",
        "{\"devices\": [\"TV2KR-18C\"], \"options\": {\"ip_device\": \"x\"}}", "options.ip_device",
        1, "cannot be set by a plan. Devices stand in \"devices\".");
    row("a key in options and grid",
        "{\"devices\": [\"TV2KR-18C\"], \"options\": {\"ITCM_Size\": 1},\n\"grid\": "
        "{\"ITCM_Size\": [1]}}",
        "grid.ITCM_Size", 2, "stands in \"options\" as well");
    row("a key in list and grid",
        "{\"devices\": [\"TV2KR-18C\"], \"list\": [{\"ITCM_Size\": 1}],\n\"grid\": "
        "{\"ITCM_Size\": [1]}}",
        "grid.ITCM_Size", 2, "stands in \"list\" as well");
    row("a name of two entries",
        "{\"devices\": [\"TV2KR-18C\"], \"list\": [{\"name\": \"a\", \"ITCM_Size\": 1},\n"
        "{\"name\": \"a\", \"ITCM_Size\": 2}]}",
        "list[1].name", 2, "has the name \"a\" already");
    row("a name that leaves the folder",
        "{\"devices\": [\"TV2KR-18C\"], \"list\": [{\"name\": \"../a\", \"ITCM_Size\": 1}]}",
        "list[0].name", 1, "cannot be a part of a folder's name");
    row("the same entry twice",
        "{\"devices\": [\"TV2KR-18C\"], \"list\": [{\"ITCM_Size\": 1},\n{\"ITCM_Size\": 1}]}",
        "list[1]", 2, "stands before");
    row("an exclusion of everything", "{\"devices\": [\"TV2KR-18C\"], \"exclude\": [{}]}",
        "exclude[0]", 1, "leaves out every point");
    row("an exclusion of an unknown device",
        "{\"devices\": [\"TV2KR-18C\"], \"exclude\": [{\"device\": \"TV2KR-18D\"}]}",
        "exclude[0].device", 1, "Unknown device");
    row("an unknown resource",
        "{\"devices\": [\"TV2KR-18C\"], \"picture\": {\"x\": \"LUT5\", \"y\": \"LUT4\"}}",
        "picture.x", 1, "Did you mean \"LUT4\"?");
    row("a picture without a height",
        "{\"devices\": [\"TV2KR-18C\"], \"picture\": {\"x\": \"LUT4\"}}", "picture", 1,
        "lacks \"y\"");
    row("a base that is no text", "{\"base\": 1}", "base", 1, "a number, not a text");
    row("too many points",
        "{\"devices\": [\"*-*-*\"], \"grid\": {\"ITCM_Size\": [0,1,2,3,4,5,6,7,8,9], "
        "\"DTCM_Size\": [0,1,2,3,4,5,6,7,8,9], \"ETHERNET_INPUT_DELAY\": [0,1,2,3,4]}}",
        "", 1, "more than 100000 points");
}

void tst_SweepPlan::tellsEachMistakeWithItsPlace()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, key);
    QFETCH(int, line);
    QFETCH(QString, said);
    const SweepPlanText read = readText(text);
    QCOMPARE(read.mistakes.size(), 1);
    const PlanMistake &mistake = read.mistakes.first();
    QCOMPARE(mistake.key, key);
    QCOMPARE(mistake.line, line);
    QVERIFY(mistake.column >= 1);
    const QString told = mistake.text + QLatin1Char(' ') + mistake.fix;
    QVERIFY2(told.contains(said), qPrintable(told));
}

void tst_SweepPlan::tellsAllMistakesOfAPlan()
{
    const SweepPlanText read = readText("{\"devices\": [\"none\"],\n\"grid\": {\"a\": [1],\n"
                                        "\"ITCM_Size\": [true]}}");
    QCOMPARE(read.mistakes.size(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(read.mistakes.at(i).line, i + 1);
}

void tst_SweepPlan::goesThroughGridListAndDevices()
{
    const SweepPlanText read =
        readText("{\"devices\": [\"TV2KR-18C-QFN88P-C8/I7\", \"TV1KL-5A-QFN32-C6/I5\"],"
                 "\"options\": {\"Enable RTC\": true},"
                 "\"list\": [{\"name\": \"a\"}, {\"Enable SPI\": true}],"
                 "\"grid\": {\"ITCM_Size\": [1, 2, 3], \"Enable I2C\": [false, true]}}");
    QVERIFY(read.mistakes.isEmpty());
    QCOMPARE(sweepPointCount(read.plan), 24);
    const QVector<SweepPoint> points = sweepPoints(read.plan, {});
    QCOMPARE(points.size(), 24);
    QSet<QString> names;
    for (const SweepPoint &point : points) {
        names.insert(point.name);
        QCOMPARE(point.settings.value(Key::enableRtc), QVariant(true));
        QVERIFY(point.settings.contains(Key::itcmSize) && point.settings.contains(Key::enableI2c));
    }
    QCOMPARE(names.size(), 24);
    QCOMPARE(points.first().name,
             QStringLiteral("TV2KR-18C-QFN88P-C8-I7.a.Enable_I2C=false.ITCM_Size=1"));
    QCOMPARE(points.last().name,
             QStringLiteral("TV1KL-5A-QFN32-C6-I5.Enable_SPI=true.Enable_I2C=true.ITCM_Size=3"));
    QCOMPARE(variedKeys(read.plan), QStringList({Key::enableSpi, Key::enableI2c, Key::itcmSize}));
}

void tst_SweepPlan::namesADeviceOnce_data()
{
    QTest::addColumn<QByteArray>("devices");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("a name") << QByteArray("\"TV2KR-18C\"") << 1 << 1;
    QTest::newRow("in lower case") << QByteArray("\"tv2kr-18c\"") << 1 << 1;
    QTest::newRow("a name and its first id")
        << QByteArray("\"TV2KR-18C\", \"TV2KR-18C-QFN88-C9/I8\"") << 1 << 1;
    QTest::newRow("a name and a pattern of names")
        << QByteArray("\"TV2KR-18C\", \"TV2KR-18*\"") << 2 << 2;
    QTest::newRow("a pattern of ids") << QByteArray("\"TV2KR-18C-QFN88P-*\"") << 2 << 20;
    QTest::newRow("every name") << QByteArray("\"*\"") << 20 << 100;
}

void tst_SweepPlan::namesADeviceOnce()
{
    QFETCH(QByteArray, devices);
    QFETCH(int, least);
    QFETCH(int, most);
    const SweepPlanText read = readText("{\"devices\": [" + devices + "]}");
    QVERIFY(read.mistakes.isEmpty());
    QSet<QString> ids;
    for (const DEV::DeviceArg &entry : read.plan.devices)
        ids.insert(entry.id());
    QCOMPARE(ids.size(), read.plan.devices.size());
    QVERIFY2(ids.size() >= least && ids.size() <= most, qPrintable(QString::number(ids.size())));
}

void tst_SweepPlan::keepsNamesWhenThePlanGrows()
{
    const QStringList before = namesOf("{\"devices\": [\"TV2KR-18C\"], \"options\": {},"
                                       "\"grid\": {\"ITCM_Size\": [2, 3]}}");
    const QStringList after =
        namesOf("{\"devices\": [\"TV5K-25A\", \"TV2KR-18C\"], \"options\": {\"Enable RTC\": true},"
                "\"grid\": {\"ITCM_Size\": [1, 3, 2]}}");
    QCOMPARE(before.size(), 2);
    QCOMPARE(after.size(), 6);
    for (const QString &name : before)
        QVERIFY2(after.contains(name), qPrintable(name));
}

void tst_SweepPlan::namesAreNamesOfFolders()
{
    QByteArray settings;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Bool)
            settings += (settings.isEmpty() ? "\"" : ", \"") + option.key.toLatin1() + "\": true";
    }
    const QStringList names =
        namesOf("{\"devices\": [\"*\"], \"list\": [{" + settings + "}, {" + settings +
                ", \"ITCM_Initialization_Path\": \"a/\\u00fc b\"}, "
                "{\"ITCM_Initialization_Path\": \"../x:y\"}, "
                "{\"ITCM_Initialization_Path\": \"../x;y\"}]}");
    QVERIFY(names.size() > 20);
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[A-Za-z0-9][A-Za-z0-9._=-]{0,119}")));
    for (const QString &name : names)
        QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
}

void tst_SweepPlan::partsOfNamesDiffer()
{
    QStringList names;
    for (const Option &option : optionTable()) {
        if (option.isOption && option.type == OptionType::Int)
            names += namesOf("{\"devices\": [\"TV2KR-18C\"], \"options\": {}, \"grid\": {\"" +
                             option.key.toLatin1() + "\": [1]}}");
        for (const QString &choice : option.choices) {
            if (option.isOption && option.type == OptionType::String)
                names += namesOf("{\"devices\": [\"TV2KR-18C\"], \"grid\": {\"" +
                                 option.key.toLatin1() + "\": [\"" + choice.toLatin1() + "\"]}}");
        }
    }
    const QVector<SweepPoint> devices =
        sweepPoints(readText("{\"devices\": [\"*-*-*\"]}").plan, {});
    for (const SweepPoint &point : devices)
        names.append(point.name);
    QVERIFY(names.size() > DEV::DeviceDb::bundled().devices().size());
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

void tst_SweepPlan::leavesOutWhatIsExcluded()
{
    const SweepPlan plan =
        readText("{\"devices\": [\"TV2KR-18C\", \"TV5K-25A\"], \"exclude\": ["
                 "{\"device\": \"TV5K*\", \"ITCM_Size\": [1, 2]}, {\"Enable SPI\": true}]}")
            .plan;
    const DEV::DeviceArg one = plan.devices.first();
    const DEV::DeviceArg two = plan.devices.last();
    const OptionMap size{{Key::itcmSize, 2}};
    QVERIFY(!isExcluded(plan, one, size));
    QVERIFY(isExcluded(plan, two, size));
    QVERIFY(!isExcluded(plan, two, {{Key::itcmSize, 3}}));
    // As read from a file, and what is left open.
    QVERIFY(isExcluded(plan, one, {{Key::enableSpi, QStringLiteral("true")}}));
    QVERIFY(!isExcluded(plan, one, {}));
}

void tst_SweepPlan::doesNotMakeFitWhatADeviceCannotHave()
{
    const QString folder = QStringLiteral("/nowhere/points/a");
    const OptionMap can{{Key::enableCan, true}, {Key::canBufferDepth, QStringLiteral("256")}};
    const SweepBase base{device(large), can, QStringLiteral("/nowhere")};

    PointConfiguration made = configure(pointWith(large, {}), base, folder, {});
    QVERIFY2(made.impossible.isEmpty(), qPrintable(made.impossible));
    QVERIFY(made.mistake.isEmpty());

    made = configure(pointWith(small, {}), base, folder, {});
    QVERIFY2(made.impossible.contains(QLatin1String("TV1KL-5A cannot have CAN")),
             qPrintable(made.impossible));
    QVERIFY2(made.mistake.isEmpty(), qPrintable(made.mistake));

    // Without a base, too; and what the point itself does not ask for is no obstacle.
    made = configure(pointWith(small, can), {}, folder, {});
    QVERIFY2(made.impossible.contains(QLatin1String("cannot have CAN")),
             qPrintable(made.impossible));
    made = configure(pointWith(small, {}), {}, folder, {});
    QVERIFY2(made.impossible.isEmpty(), qPrintable(made.impossible));

    made = configure(pointWith(large, {{Key::itcmSize, 9}}), {}, folder, {});
    QVERIFY2(made.impossible.contains(QLatin1String("is more than TV2KR-18C has")),
             qPrintable(made.impossible));
}

void tst_SweepPlan::tellsWhatNoDeviceCouldHave()
{
    const PointConfiguration made =
        configure(pointWith(large, {{Key::initializeItcm, true},
                                    {Key::itcmInitializationPath, QStringLiteral("none")}}),
                  {}, QStringLiteral("/nowhere/points/a"), QStringLiteral("/nowhere"));
    QVERIFY(made.impossible.isEmpty());
    QVERIFY2(made.mistake.contains(QLatin1String("does not exist")), qPrintable(made.mistake));
    // Seen from the point's folder.
    QCOMPARE(made.options.value(Key::itcmInitializationPath).toString(),
             QStringLiteral("../../none"));
    QCOMPARE(made.options.value(Key::itcmInitializationAbsolutePath).toString(),
             QStringLiteral("/nowhere/none"));
}

void tst_SweepPlan::choosingOneMemoryGivesUpTheOther()
{
    const SweepBase base{device(large),
                         {{Key::internalDataMemory, QStringLiteral("true")}},
                         QStringLiteral("/nowhere")};
    const PointConfiguration made = configure(pointWith(large, {{Key::externalDataMemory, true}}),
                                              base, QStringLiteral("/nowhere/points/a"), {});
    QCOMPARE(made.options.value(Key::internalDataMemory), QVariant(false));
    QCOMPARE(made.options.value(Key::externalDataMemory), QVariant(true));
}

void tst_SweepPlan::readsItsExample()
{
    const QByteArray text =
        TestSupport::contentsOf(QStringLiteral(TARVO_EXAMPLES_DIR "/sweep.json"));
    const SweepPlanText read = readText(text);
    QVERIFY(read.mistakes.isEmpty());
    QCOMPARE(read.plan.base, QStringLiteral("sensor-node.ipc"));
    QVERIFY(sweepPointCount(read.plan) > 8);
    QVERIFY(!read.plan.exclude.isEmpty() && !read.plan.pictureX.isEmpty());
}

void tst_SweepPlan::aPatternOfManyStarsTakesNoTime()
{
    const QByteArray stars = QByteArray("*-").repeated(200) + "*";
    const SweepPlanText none = readText("{\"devices\": [\"" + stars + "\"]}");
    QCOMPARE(none.mistakes.size(), 1);
    const QByteArray many = QByteArray("*").repeated(20000);
    QCOMPARE(readText("{\"devices\": [\"TV5K-25A" + many + "\"]}").plan.devices.size(), 1);
    const SweepPlanText excluding =
        readText("{\"devices\": [\"TV5K-25A\"], \"exclude\": [{\"device\": \"" + many + "?\"}]}");
    QVERIFY(excluding.mistakes.isEmpty());
    QVERIFY(isExcluded(excluding.plan, device(large), {}));
}

TARVO_TEST_MAIN(QCoreApplication, tst_SweepPlan)
#include "tst_sweepplan.moc"
