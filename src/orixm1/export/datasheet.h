#pragma once

#include "document.h"
#include "format.h"

#include <QStringList>

namespace TARVOORIXM1
{

using DatasheetStyle = HtmlStyle;

// The page among datasheetFiles().
QString datasheetPage(const SystemMap &map);

// The chapters that other places lead to.
namespace DatasheetChapter
{
inline constexpr QLatin1String memory("Memory map");
inline constexpr QLatin1String interrupts("Interrupts");
inline constexpr QLatin1String ports("Ports");
inline constexpr QLatin1String registers("Registers");
inline constexpr QLatin1String blackBoxes("Black boxes");
} // namespace DatasheetChapter

// Below "datasheet": "tarvo_orix_m1.md", "tarvo_orix_m1.html" and the pictures as SVG files, which
// the first refers to and the second holds.
QVector<ExportedFile> datasheetFiles(const SystemMap &map);

// Where the page tells most of a region or of an interrupt: headings, each below the one before.
QStringList datasheetPlaceOf(const SystemMap &map, const Region &region);
QStringList datasheetPlaceOf(const SystemMap &map, const InterruptLine &line);

// The page alone. In the style Printed its pictures are the names of the SVG files without a
// folder: whoever shows it answers them with the files that datasheetFiles() gives.
QByteArray datasheetHtml(const SystemMap &map, DatasheetStyle style);

} // namespace TARVOORIXM1
