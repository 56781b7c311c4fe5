#include "maps.h"

#include "configuration.h"
#include "export/datasheet.h"
#include "export/maps.h"

namespace TARVOORIXM1
{

QVariantMap maps(const QString &ipcFile, const QString &ipId, const QString &dataPath,
                 const DEV::DeviceDb &devices)
{
    const Utils::Result<SystemMap> map = readSystem(ipcFile, ipId, dataPath, devices);
    if (!map)
        return {{QStringLiteral("error"), map.reason()}};
    QVariantList list;
    const QVector<DoorPicture> pictures = doorPictures(*map);
    for (const DoorPicture &made : pictures) {
        QVariantList doors;
        for (const Door &door : made.doors)
            doors.append(QVariantMap{{QStringLiteral("x"), door.box.x()},
                                     {QStringLiteral("y"), door.box.y()},
                                     {QStringLiteral("width"), door.box.width()},
                                     {QStringLiteral("height"), door.box.height()},
                                     {QStringLiteral("text"), door.text},
                                     {QStringLiteral("document"), datasheetPage(*map)},
                                     {QStringLiteral("headings"), door.headings}});
        list.append(QVariantMap{{QStringLiteral("title"), made.title},
                                {QStringLiteral("text"), made.picture.text},
                                {QStringLiteral("svg"), made.picture.svg},
                                {QStringLiteral("darkSvg"), made.dark},
                                {QStringLiteral("doors"), doors}});
    }
    return {{QStringLiteral("error"), QString()}, {QStringLiteral("maps"), list}};
}

} // namespace TARVOORIXM1
