#include <testsupport.h>
#include <unprivileged.h>

#include <dev/devicedb.h>

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

Q_DECLARE_METATYPE(DEV::ChipFilter)

using DEV::ChipFilter;
using DEV::DeviceArg;
using DEV::DeviceDb;

namespace
{

// Every device that a rule names.
const char *const deviceNames[] = {
    "TV1KL-5A",    "TV1KL-5B",    "TV1KL-9A",    "TV1L-9",     "TV1L-9C",    "TV1LR-9",
    "TV1LR-9C",    "TV2K-18",     "TV2K-18C",    "TV2K-55",    "TV2K-55C",   "TV2KL-18X",
    "TV2KL-55C",   "TV2KL-9X",    "TV2KLR-18C",  "TV2KR-18",   "TV2KR-18C",  "TV3K-10A",
    "TV3K-20A",    "TV3K-50A",    "TV3KR-20A",   "TV5K-138B",  "TV5K-138C",  "TV5K-25A",
    "TV5K-25B",    "TV5K-60B",    "TV5KLRT-15A", "TV5KLT-15A", "TV5KR-25A",  "TV5KR-25B",
    "TV5KRT-15A",  "TV5KRT-15B",  "TV5KS-138B",  "TV5KS-138C", "TV5KS-25A",  "TV5KS-25B",
    "TV5KST-138B", "TV5KST-138C", "TV5KT-138",   "TV5KT-138B", "TV5KT-138C", "TV5KT-15A",
    "TV5KT-15B",   "TV5KT-60B",   "TV5KT-60ES",  "TV5KT-75B",  "TV5KT-75C",
};

const QByteArray packages = "{\"packageCodes\": {\"QFN88P\": \"QN88P\", \"PBGA256\": \"PG256\"}}";

QByteArray series(const QByteArray &devices)
{
    return "{\"series\": \"TV9\", \"devices\": [" + devices + "]}";
}

QByteArray entry(const QByteArray &device, const QByteArray &version)
{
    return "{\"device\": \"" + device + "\", \"version\": \"" + version +
           "\", \"packages\": [\"QFN88P\", \"PBGA256\"], \"speeds\": [\"C8/I7\"]}";
}

// Empty if it cannot be read; the reason is in `*error` then.
DeviceDb databaseIn(const QString &folder, QString *error = nullptr)
{
    const Utils::Result<DeviceDb> read = DeviceDb::fromFolder(folder);
    if (!read && error)
        *error = read.reason();
    return read ? *read : DeviceDb();
}

QSet<QString> packagesOf(const QString &device)
{
    ChipFilter filter;
    filter.device = device;
    QSet<QString> found;
    const QList<DeviceArg> records = DeviceDb::bundled().filterDevice(filter);
    for (const DeviceArg &record : records)
        found.insert(record.package());
    return found;
}

// The same rule as the database's, written another way: what the part number must match.
QRegularExpression partNumberPattern(const DeviceArg &record)
{
    QString code = record.package();
    code.replace(QRegularExpression(QStringLiteral("^eLQFP")), QStringLiteral("EQ"))
        .replace(QRegularExpression(QStringLiteral("^LQFP")), QStringLiteral("LQ"))
        .replace(QRegularExpression(QStringLiteral("^QFN")), QStringLiteral("QN"))
        .replace(QRegularExpression(QStringLiteral("^([MPU])BGA")), QStringLiteral("\\1G"));
    const QString size = record.device()
                             .mid(record.series().size() + 1)
                             .remove(QRegularExpression(QStringLiteral("[A-Z]+$")));
    return QRegularExpression(QLatin1Char('^') + record.series() + QLatin1String("-LV") + size +
                              code + QRegularExpression::escape(record.speed()) + QLatin1Char('$'));
}

} // namespace

class TestDeviceDb : public QObject
{
    Q_OBJECT

private:
    // A folder of device files with the packages file and one more.
    static QString folderWith(const QTemporaryDir &dir, const QByteArray &text)
    {
        const bool good =
            TestSupport::write(dir.filePath(QStringLiteral("packages.json")), packages) &&
            TestSupport::write(dir.filePath(QStringLiteral("tv9.json")), text);
        return good ? dir.path() : QString();
    }

private Q_SLOTS:
    void holdsEveryDevice_data()
    {
        QTest::addColumn<QString>("name");
        QCOMPARE(std::size(deviceNames), size_t(47));
        for (const char *name : deviceNames)
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void holdsEveryDevice()
    {
        QFETCH(QString, name);
        ChipFilter filter;
        filter.device = name;
        const QList<DeviceArg> found = DeviceDb::bundled().filterDevice(filter);
        QSet<QString> foundPackages;
        QSet<QString> speeds;
        for (const DeviceArg &record : found) {
            QCOMPARE(record.device(), name);
            foundPackages.insert(record.package());
            speeds.insert(record.speed());
        }
        QVERIFY2(foundPackages.size() >= 2, qPrintable(name));
        QVERIFY2(speeds.size() >= 2, qPrintable(name));
        // Every package comes in every speed grade.
        QCOMPARE(found.size(), foundPackages.size() * speeds.size());
    }

    void holdsNothingElse()
    {
        QSet<QString> names;
        for (const char *name : deviceNames)
            names.insert(QString::fromLatin1(name));
        QSet<QString> held;
        const QList<DeviceArg> devices = DeviceDb::bundled().devices();
        for (const DeviceArg &record : devices)
            held.insert(record.device());
        QCOMPARE(held, names);
    }

    void idsAndPartNumbersOfADeviceAreUnique()
    {
        QSet<QString> ids;
        QSet<QString> parts;
        const QList<DeviceArg> devices = DeviceDb::bundled().devices();
        for (const DeviceArg &record : devices) {
            QVERIFY2(!ids.contains(record.id()), qPrintable(record.id()));
            ids.insert(record.id());
            // A part number leaves the version out.
            const QString part = QString(record.deviceNVersion() + u' ' + record.partNumber());
            QVERIFY2(!parts.contains(part), qPrintable(part));
            parts.insert(part);
        }
        QVERIFY(ids.size() > 47 * 4 - 1);
    }

    void recordsAreConsistent()
    {
        const QList<DeviceArg> devices = DeviceDb::bundled().devices();
        for (const DeviceArg &record : devices) {
            QVERIFY(!record.isNull());
            QCOMPARE(QString(record.deviceN() + record.deviceNVersion()), record.device());
            QCOMPARE(record.id(),
                     QString(record.device() + u'-' + record.package() + u'-' + record.speed()));
            QVERIFY2(record.deviceN().back().isDigit(), qPrintable(record.deviceN()));
            for (const QChar letter : record.deviceNVersion())
                QVERIFY2(letter.isUpper(), qPrintable(record.device()));
            QVERIFY(!record.package().isEmpty() && !record.speed().isEmpty());
        }
    }

    void partNumbersFollowThePattern()
    {
        const QList<DeviceArg> devices = DeviceDb::bundled().devices();
        for (const DeviceArg &record : devices) {
            const QRegularExpression pattern = partNumberPattern(record);
            QVERIFY2(pattern.match(record.partNumber()).hasMatch(),
                     qPrintable(QString(record.partNumber() + u' ' + pattern.pattern())));
        }
    }

    void partNumbersOfKnownDevices_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("part");
        const auto row = [](const char *name, const char *id, const char *part) {
            QTest::newRow(name) << QString::fromLatin1(id) << QString::fromLatin1(part);
        };
        row("QFN", "TV2KR-18C-QFN88P-C8/I7", "TV2KR-LV18QN88PC8/I7");
        row("no version letter", "TV2KR-18-QFN88P-C8/I7", "TV2KR-LV18QN88PC8/I7");
        row("eLQFP", "TV2KR-18C-eLQFP144P-C7/I6", "TV2KR-LV18EQ144PC7/I6");
        row("eLQFP with flash", "TV2KR-18C-eLQFP144PF-ES", "TV2KR-LV18EQ144PFES");
        row("version of two letters", "TV5KT-60ES-PBGA256-C2/I1", "TV5KT-LV60PG256C2/I1");
        row("size of one digit", "TV1LR-9C-MBGA100P-C6/I5", "TV1LR-LV9MG100PC6/I5");
    }

    void partNumbersOfKnownDevices()
    {
        QFETCH(QString, id);
        QFETCH(QString, part);
        const DeviceArg record = DeviceDb::bundled().findDevice(id);
        QVERIFY2(!record.isNull(), qPrintable(id));
        QCOMPARE(record.partNumber(), part);
    }

    void packagesWithEmbeddedMemoryExist()
    {
        const QSet<QString> needed = {QStringLiteral("QFN88"), QStringLiteral("QFN88P"),
                                      QStringLiteral("QFN88PF"), QStringLiteral("eLQFP144P"),
                                      QStringLiteral("eLQFP144PF")};
        QVERIFY(packagesOf(QStringLiteral("TV2KR-18C")).contains(needed));
        const QSet<QString> small = packagesOf(QStringLiteral("TV2KLR-18C"));
        QVERIFY(small.contains(QStringLiteral("QFN88")));
        QVERIFY(small.size() >= 2);
    }

    void findsByExactId_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<bool>("exists");
        QTest::newRow("an id") << QStringLiteral("TV2KR-18C-QFN88P-C8/I7") << true;
        QTest::newRow("a name") << QStringLiteral("TV2KR-18C") << false;
        QTest::newRow("an id in lower case") << QStringLiteral("tv2kr-18c-qfn88p-c8/i7") << false;
        QTest::newRow("an id with a blank") << QStringLiteral("TV2KR-18C-QFN88P-C8/I7 ") << false;
        QTest::newRow("a part number") << QStringLiteral("TV2KR-LV18QN88PC8/I7") << false;
        QTest::newRow("nothing") << QString() << false;
    }

    void findsByExactId()
    {
        QFETCH(QString, id);
        QFETCH(bool, exists);
        const DeviceArg record = DeviceDb::bundled().findDevice(id);
        QCOMPARE(!record.isNull(), exists);
        QCOMPARE(record.id(), exists ? id : QString());
    }

    void filters_data()
    {
        QTest::addColumn<ChipFilter>("filter");
        QTest::addColumn<int>("count");
        const auto row = [](const char *name, const char *field, const QString &value, int count) {
            ChipFilter filter;
            const QString text = QString::fromLatin1(field);
            if (text == QLatin1String("id"))
                filter.id = value;
            else if (text == QLatin1String("series"))
                filter.series = value;
            else if (text == QLatin1String("device"))
                filter.device = value;
            else if (text == QLatin1String("package"))
                filter.package = value;
            else if (text == QLatin1String("speed"))
                filter.speed = value;
            else
                filter.partNumber = value;
            QTest::newRow(name) << filter << count;
        };
        const QString id = QStringLiteral("TV9K-1A-QFN88P-C8/I7");
        QTest::newRow("nothing asked") << ChipFilter() << 6;
        row("id", "id", id, 1);
        row("name as id", "id", QStringLiteral("TV9K-1A"), 2);
        row("name without version as id", "id", QStringLiteral("TV9K-1"), 0);
        row("part of an id", "id", QStringLiteral("TV9K-1A-QFN88P"), 0);
        row("id in lower case", "id", id.toLower(), 0);
        row("series", "series", QStringLiteral("TV9K"), 4);
        row("part of a series", "series", QStringLiteral("TV9"), 0);
        row("device", "device", QStringLiteral("TV9K-1B"), 2);
        row("id as device", "device", id, 0);
        row("package", "package", QStringLiteral("PBGA256"), 3);
        row("unknown package", "package", QStringLiteral("QFN88"), 0);
        row("speed", "speed", QStringLiteral("C8/I7"), 6);
        row("half a speed grade", "speed", QStringLiteral("C8"), 0);
        row("part number", "part", QStringLiteral("TV9K-LV1QN88PC8/I7"), 2);
        ChipFilter both;
        both.id = QStringLiteral("TV9K-1A");
        both.package = QStringLiteral("QFN88P");
        QTest::newRow("name and package") << both << 1;
        both.series = QStringLiteral("TV9KR");
        QTest::newRow("fields that exclude each other") << both << 0;
    }

    void filters()
    {
        QFETCH(ChipFilter, filter);
        QFETCH(int, count);
        const QTemporaryDir dir;
        QString error;
        const DeviceDb db =
            databaseIn(folderWith(dir, series(entry("TV9K-1A", "A") + ',' + entry("TV9K-1B", "B") +
                                              ',' + entry("TV9KR-2", ""))),
                       &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(db.filterDevice(filter).size(), count);
        QVERIFY(DeviceDb().filterDevice(filter).isEmpty());
    }

    void filterKeepsTheOrderOfTheDatabase()
    {
        ChipFilter filter;
        filter.speed = QStringLiteral("C8/I7");
        const QList<DeviceArg> found = DeviceDb::bundled().filterDevice(filter);
        QVERIFY(found.size() > 10);
        const QList<DeviceArg> all = DeviceDb::bundled().devices();
        int last = -1;
        for (const DeviceArg &record : found) {
            const int at = all.indexOf(record);
            QVERIFY(at > last);
            last = at;
        }
    }

    void anOwnFolderOverridesTheBundledDevices()
    {
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, series(entry("TV9K-1A", "A")));
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("a first.json")),
                                   series(entry("TV9KR-2", ""))));
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("notes.txt")), "no JSON"));
        QString error = QStringLiteral("untouched");
        const DeviceDb db = databaseIn(folder, &error);
        QCOMPARE(error, QStringLiteral("untouched"));
        QStringList ids;
        const QList<DeviceArg> devices = db.devices();
        for (const DeviceArg &record : devices)
            ids.append(record.id());
        QCOMPARE(ids, (QStringList{QStringLiteral("TV9KR-2-QFN88P-C8/I7"),
                                   QStringLiteral("TV9KR-2-PBGA256-C8/I7"),
                                   QStringLiteral("TV9K-1A-QFN88P-C8/I7"),
                                   QStringLiteral("TV9K-1A-PBGA256-C8/I7")}));
        QVERIFY(db.findDevice(QStringLiteral("TV2KR-18C-QFN88P-C8/I7")).isNull());
        QVERIFY(DeviceDb::bundled().findDevice(QStringLiteral("TV9KR-2-QFN88P-C8/I7")).isNull());
    }

    void readsResources()
    {
        const QTemporaryDir folder;
        TestSupport::write(folder.filePath(QStringLiteral("packages.json")), packages);
        TestSupport::write(
            folder.filePath(QStringLiteral("tv9.json")),
            series("{\"device\": \"TV9-1\", \"packages\": [\"QFN88P\"], \"speeds\": [\"C8\"], "
                   "\"resources\": {\"lut4\": 7, \"blockRam\": 0}},"
                   "{\"device\": \"TV9-2\", \"packages\": [\"QFN88P\"], \"speeds\": [\"C8\"]}"));
        QString error;
        const DeviceDb db = databaseIn(folder.path(), &error);
        QCOMPARE(error, QString());
        const DEV::DeviceResources some = db.devices().at(0).resources();
        QCOMPARE(some.lut4, 7);
        QCOMPARE(some.flipFlops, -1);
        QCOMPARE(some.carry, -1);
        QCOMPARE(some.blockRam, 0);
        QCOMPARE(db.devices().at(1).resources().lut4, -1);
    }

    void namesABrokenDeviceFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *name, const QByteArray &text, const char *reason) {
            QTest::newRow(name) << text << QString::fromLatin1(reason);
        };
        row("empty", "", "");
        row("cut", series(entry("TV9K-1A", "A")).chopped(3), "");
        row("no JSON", "devices: none", "");
        row("a mistake further down", "{\n\"devices\":\n[}",
            "line 3, column 2: a value is missing here");
        row("nested without end", QByteArray(100000, '['),
            "line 1, column 1025: the text is nested too deeply");
        // 317 packages in 317 speed grades.
        QByteArray many = "\"QFN88P\"";
        for (int i = 1; i < 317; ++i)
            many += ",\"QFN88P\"";
        row("more devices than anyone has",
            series("{\"device\": \"TV9-1\", \"packages\": [" + many + "], \"speeds\": [" + many +
                   "]}"),
            "with \"TV9-1\" there are more than 100000 devices");
        row("an array", "[]", "lists no devices");
        row("no devices", "{}", "lists no devices");
        row("an empty list of devices", series(""), "lists no devices");
        row("devices that are no list", "{\"devices\": \"all\"}", "lists no devices");
        row("an entry that is no object", series("1"), "lacks");
        row("no name", series("{\"packages\": [\"QFN88P\"], \"speeds\": [\"C8/I7\"]}"), "lacks");
        row("no packages", series("{\"device\": \"TV9-1\", \"speeds\": [\"C8/I7\"]}"), "lacks");
        row("no speeds", series("{\"device\": \"TV9-1\", \"packages\": [\"QFN88P\"]}"), "lacks");
        const auto withResources = [](const char *resources) {
            return series(
                "{\"device\": \"TV9-1\", \"packages\": [\"QFN88P\"], \"speeds\": [\"C8\"], "
                "\"resources\": " +
                QByteArray(resources) + "}");
        };
        row("resources that are no object", withResources("[1]"), "\"TV9-1\": the resources");
        row("an unknown resource", withResources("{\"lut5\": 1}"), "no resource \"lut5\"");
        row("half a resource", withResources("{\"lut4\": 1.5}"), "\"lut4\" is no count");
        row("less than no resource", withResources("{\"lut4\": -1}"), "\"lut4\" is no count");
        row("a resource that is a text", withResources("{\"carry\": \"1\"}"),
            "\"carry\" is no count");
        row("a speed that is no text",
            series("{\"device\": \"TV9-1\", \"packages\": [\"QFN88P\"], \"speeds\": [8]}"),
            "speed");
        row("an empty speed",
            series("{\"device\": \"TV9-1\", \"packages\": [\"QFN88P\"], \"speeds\": [\"\"]}"),
            "speed");
        row("another version than in the name", series(entry("TV9K-1A", "B")), "TV9K-1A");
        row("a version that is the whole size", series(entry("TV9K-1A", "1A")), "TV9K-1A");
        row("a name without a hyphen", series(entry("TV9K1A", "A")), "TV9K1A");
        row("a name without a series", series(entry("-1A", "A")), "-1A");
        row("an unknown package",
            series("{\"device\": \"TV9-1\", \"packages\": [\"X99\"], \"speeds\": [\"C8/I7\"]}"),
            "X99");
        row("the same device twice", series(entry("TV9-1", "") + ',' + entry("TV9-1", "")),
            "occurs twice");
    }

    void namesABrokenDeviceFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, reason);
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, text);
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("a good one.json")),
                                   series(entry("TV9KR-2", ""))));
        QString error;
        QVERIFY(databaseIn(folder, &error).isEmpty());
        QVERIFY2(error.contains(dir.filePath(QStringLiteral("tv9.json"))), qPrintable(error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(databaseIn(folder).isEmpty());
    }

    void tellsWhereAMistakeIs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message"); // behind the path
        const auto row = [](const char *name, const QByteArray &text, const char *message) {
            QTest::newRow(name) << text << QString::fromLatin1(message);
        };
        // A file with one entry, whose members begin in line 4.
        const auto device = [](const QByteArray &lines) -> QByteArray {
            return "{\n  \"devices\": [\n    {\n" + lines + "\n    }\n  ]\n}\n";
        };
        const QByteArray good = "      \"device\": \"TV9-1\",\n"
                                "      \"packages\": [\"QFN88P\"],\n"
                                "      \"speeds\": [\"C8\"]";
        row("a comma is missing", device("      \"device\" \"TV9-1\""),
            "line 4, column 16: a colon is missing here");
        row("no UTF-8", device("      \"device\": \"\xff\""), "line 4, column 18: ");
        row("no list", "{\n  \"devices\": \"all\"\n}", "line 2, column 14: it lists no devices");
        row("nothing", " {}", "line 1, column 2: it lists no devices");
        row("an entry that is no object", "{\"devices\": [\n 7]}",
            "line 2, column 2: an entry lacks its device name, packages or speeds");
        row("no name", device("      \"packages\": [\"QFN88P\"]"),
            "line 3, column 5: an entry lacks its device name, packages or speeds");
        row("a name that is a number", device("      \"device\": 9"),
            "line 4, column 17: an entry lacks its device name, packages or speeds");
        row("speeds that are a text",
            device("      \"device\": \"TV9-1\",\n      \"packages\": [\"QFN88P\"],\n"
                   "      \"speeds\": \"C8\""),
            "line 6, column 17: an entry lacks its device name, packages or speeds");
        row("the second entry",
            "{\"devices\": [\n" + entry("TV9K-1A", "A") + ",\n" + entry("TV9K-1A", "B") + "]}",
            "line 3, column 12: the device name \"TV9K-1A\" does not fit its version");
        row("a member whose name is written with escapes",
            device("      \"\\u0064evice\": \"TV9\",\n      \"packages\": [\"QFN88P\"],\n"
                   "      \"speeds\": [\"C8\"]"),
            "line 4, column 22: the device name \"TV9\" is not a series, a hyphen and a size");
        row("the later of two members of a name",
            device("      \"device\": \"TV9-1\", \"packages\": [\"QFN88P\"],\n"
                   "      \"speeds\": [\"C8\"],\n      \"packages\": [\"QFN88P\", \"X9\"]"),
            "line 6, column 30: the package \"X9\" has no code");
        row("a speed that is no text",
            device("      \"device\": \"TV9-1\", \"packages\": [\"QFN88P\"],\n"
                   "      \"speeds\": [\"C8\", 7]"),
            "line 5, column 24: a speed grade of \"TV9-1\" is no text");
        row("resources that are a list", device(good + ",\n      \"resources\": [1]"),
            "line 7, column 20: \"TV9-1\": the resources are no object with counts");
        row("a negative resource",
            device(good + ",\n      \"resources\": {\"lut4\": 5,\n        \"carry\": -1}"),
            "line 8, column 18: \"TV9-1\": the number of \"carry\" is no count");
        row("an unknown resource behind characters of two bytes",
            device(good + ",\n      \"resources\": {\"\xc3\xbc\": 5}"),
            "line 7, column 26: \"TV9-1\": there is no resource \"\xfc\"");
        row("the same device twice",
            "{\"devices\": [\n" + entry("TV9-1", "") + ",\n" + entry("TV9-1", "") + "]}",
            "line 3, column 12: the id \"TV9-1-QFN88P-C8/I7\" occurs twice");
    }

    void tellsWhereAMistakeIs()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        const QTemporaryDir dir;
        QString error;
        QVERIFY(databaseIn(folderWith(dir, text), &error).isEmpty());
        const QString start = QLatin1String("Device file \"") +
                              dir.filePath(QStringLiteral("tv9.json")) + QLatin1String("\": ");
        QVERIFY2(error.startsWith(start + message), qPrintable(error));
        QVERIFY2(message.endsWith(u' ') || error == QString(start + message + u'.'),
                 qPrintable(error));
    }

    void tellsWhereAMistakeInThePackagesFileIs()
    {
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, series(entry("TV9-1", "")));
        QString error;
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("packages.json")),
                                   "{\n\"packageCodes\": {\n\"QFN88P\": \"QN88P\",\n\"X9\": 9}}"));
        QVERIFY(databaseIn(folder, &error).isEmpty());
        QVERIFY2(error.contains(QLatin1String("line 4, column 7: the package \"X9\" has no code.")),
                 qPrintable(error));
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("packages.json")),
                                   "{\n\"packageCodes\": []}"));
        QVERIFY(databaseIn(folder, &error).isEmpty());
        QVERIFY2(error.contains(QLatin1String("line 2, column 17: it lists no package codes.")),
                 qPrintable(error));
    }

    void namesABrokenPackagesFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("cut") << packages.chopped(2);
        QTest::newRow("an array") << QByteArray("[]");
        QTest::newRow("no codes") << QByteArray("{}");
        QTest::newRow("codes that are no object") << QByteArray("{\"packageCodes\": [\"QN88\"]}");
        QTest::newRow("a code that is no text")
            << QByteArray("{\"packageCodes\": {\"QFN88P\": 8}}");
        QTest::newRow("an empty code") << QByteArray("{\"packageCodes\": {\"QFN88P\": \"\"}}");
    }

    void namesABrokenPackagesFile()
    {
        QFETCH(QByteArray, text);
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, series(entry("TV9K-1A", "A")));
        const QString file = dir.filePath(QStringLiteral("packages.json"));
        QVERIFY(TestSupport::write(file, text));
        QString error;
        QVERIFY(databaseIn(folder, &error).isEmpty());
        QVERIFY2(error.contains(file), qPrintable(error));
    }

    void namesAMissingPackagesFile()
    {
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, series(entry("TV9K-1A", "A")));
        const QString file = dir.filePath(QStringLiteral("packages.json"));
        QVERIFY(QFile::remove(file));
        QString error;
        QVERIFY(databaseIn(folder, &error).isEmpty());
        QVERIFY2(error.contains(file), qPrintable(error));
    }

    void namesAFolderThatCannotBeUsed()
    {
        const QTemporaryDir dir;
        const QString missing = dir.filePath(QStringLiteral("missing \"%1\""));
        QString error;
        QVERIFY(databaseIn(missing, &error).isEmpty());
        QVERIFY2(error.contains(missing), qPrintable(error));
        QVERIFY(databaseIn(dir.path(), &error).isEmpty());
        QVERIFY2(error.contains(dir.path()) && error.contains(QStringLiteral("no device file")),
                 qPrintable(error));
        QVERIFY(TestSupport::write(dir.filePath(QStringLiteral("packages.json")), packages));
        error.clear();
        QVERIFY(databaseIn(dir.path(), &error).isEmpty());
        QVERIFY2(error.contains(dir.path()) && error.contains(QStringLiteral("no device file")),
                 qPrintable(error));
        error.clear();
        QVERIFY(databaseIn(dir.filePath(QStringLiteral("packages.json")), &error).isEmpty());
        QVERIFY(error.contains(QStringLiteral("packages.json")));
        error.clear();
        QVERIFY(databaseIn(QString(), &error).isEmpty());
        QVERIFY(!error.isEmpty());
    }

    void namesADeviceFileThatCannotBeRead_data()
    {
        QTest::addColumn<bool>("dangling");
        QTest::newRow("a link to nothing") << true;
        QTest::newRow("a forbidden file") << false;
    }

    void namesADeviceFileThatCannotBeRead()
    {
        QFETCH(bool, dangling);
        const QTemporaryDir dir;
        const QString folder = folderWith(dir, series(entry("TV9K-1A", "A")));
        const QString other = dir.filePath(QStringLiteral("tv9r.json"));
        if (dangling) {
            QVERIFY(QFile::link(QStringLiteral("nowhere"), other));
        } else {
            QVERIFY(TestSupport::write(other, series(entry("TV9R-1", ""))));
            QCOMPARE(chmod(QFile::encodeName(other).constData(), 0), 0);
        }
        QCOMPARE(chmod(QFile::encodeName(dir.path()).constData(), 0755), 0);
        QString error;
        bool empty = false;
        {
            const TestSupport::Unprivileged user;
            if (!dangling && !user.holds())
                QSKIP("root cannot give up its rights here, and permissions do not bind it");
            empty = databaseIn(folder, &error).isEmpty();
        }
        QVERIFY(empty);
        QVERIFY2(error.contains(other), qPrintable(error));
    }

    void aDefaultDeviceIsNull()
    {
        QVERIFY(DeviceArg().isNull());
        QVERIFY(DeviceArg().id().isEmpty() && DeviceArg().series().isEmpty());
        QVERIFY(DeviceArg() == DeviceArg());
        QVERIFY(DeviceArg() != DeviceDb::bundled().devices().constFirst());
        QVERIFY(!QVariant().value<DeviceArg>().id().size());
        const DeviceArg first = DeviceDb::bundled().devices().constFirst();
        QVERIFY(QVariant::fromValue(first).value<DeviceArg>() == first);
    }
};

TARVO_TEST_MAIN(QCoreApplication, TestDeviceDb)
#include "tst_devicedb.moc"
