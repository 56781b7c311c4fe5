#include "maps.h"

#include "config/latin1literal.h"
#include "datasheet.h"
#include "datasheetpictures.h"
#include "registers/registerdocs.h"

#include <algorithm>

namespace TARVOORIXM1
{

namespace
{

// Where the headings lead, in words.
QString destination(const QStringList &headings)
{
    const QString chapter = headings.first();
    if (chapter == DatasheetChapter::registers)
        return QStringLiteral("opens its registers");
    if (chapter == DatasheetChapter::ports)
        return QStringLiteral("opens its ports");
    if (chapter == DatasheetChapter::blackBoxes)
        return QStringLiteral("opens the black boxes");
    return chapter == DatasheetChapter::interrupts ? QStringLiteral("opens the interrupts")
                                                   : QStringLiteral("opens the memory map");
}

Door doorOf(const SystemMap &map, const Place &place, const Region &region)
{
    const QStringList headings = datasheetPlaceOf(map, region);
    return {place.box,
            region.name + ", "_l1 + hexAddress(region.base) + " to "_l1 + hexAddress(region.last) +
                ", "_l1 + destination(headings),
            headings};
}

Door doorOf(const SystemMap &map, const Place &place, const InterruptLine &line)
{
    const QStringList headings = datasheetPlaceOf(map, line);
    const QString number = line.number == InterruptLine::nonMaskable
                               ? QStringLiteral("NMI")
                               : "interrupt "_l1 + QString::number(line.number);
    return {place.box,
            line.name + ", "_l1 + number + ", "_l1 +
                (line.lost.isEmpty() ? QString() : "lost: "_l1 + line.lost + ", "_l1) +
                destination(headings),
            headings};
}

// `entries` are those of the map that the picture shows.
template <typename Entry>
DoorPicture doorPicture(const SystemMap &map, QLatin1String title, const QVector<Entry> &entries,
                        PlacedPicture (*draw)(const SystemMap &, const PictureStyle &))
{
    const PlacedPicture drawn = draw(map, {Paper::Light, true});
    DoorPicture result{title, drawn.picture, draw(map, {Paper::Dark, true}).picture.svg, {}};
    for (const Place &place : drawn.places) {
        const auto entry =
            std::find_if(entries.begin(), entries.end(),
                         [&place](const Entry &candidate) { return candidate.name == place.name; });
        if (entry != entries.end())
            result.doors.append(doorOf(map, place, *entry));
    }
    return result;
}

} // namespace

QVector<DoorPicture> doorPictures(const SystemMap &map)
{
    return {doorPicture(map, DatasheetChapter::memory, map.regions, &memoryPicture),
            doorPicture(map, DatasheetChapter::interrupts, map.interrupts, &interruptPicture)};
}

} // namespace TARVOORIXM1
