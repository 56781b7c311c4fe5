#include "fuzz.h"

#include <dev/devicedb.h>

#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString packages =
        Fuzz::file(QStringLiteral("packages.json"),
                   R"({"packageCodes": {"QFN88": "QN88", "QFN88P": "QN88P"}})");
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    Fuzz::file(QStringLiteral("series.json"), bytes);
    const Utils::Result<DEV::DeviceDb> read = DEV::DeviceDb::fromFolder(Fuzz::folder());
    if (!read) {
        REQUIRE(read.reason().contains(QLatin1String("series.json")));
        REQUIRE(Fuzz::lineIn(read.reason()) >= 1);
        REQUIRE(Fuzz::lineIn(read.reason()) <= Fuzz::lineCount(bytes));
        REQUIRE(read.reason().contains(QLatin1String(", column ")));
        return 0;
    }
    const DEV::DeviceDb &db = *read;
    REQUIRE(!db.isEmpty() && read.reason().isEmpty());
    QSet<QString> ids;
    const QList<DEV::DeviceArg> devices = db.devices();
    for (const DEV::DeviceArg &device : devices) {
        REQUIRE(!device.isNull() && !device.device().isEmpty() && !device.partNumber().isEmpty());
        REQUIRE(device.device().startsWith(device.deviceN()));
        REQUIRE(!ids.contains(device.id()));
        ids.insert(device.id());
    }
    REQUIRE(db.findDevice(devices.last().id()).id() == devices.last().id());
    DEV::ChipFilter filter;
    filter.id = devices.first().device();
    REQUIRE(!db.filterDevice(filter).isEmpty());
    return 0;
}
