#pragma once

#include "document.h"
#include "format.h"

namespace TARVOORIXM1
{

using DatasheetStyle = HtmlStyle;

// Below "datasheet": "tarvo_orix_m1.md", "tarvo_orix_m1.html" and the pictures as SVG files, which
// the first refers to and the second holds.
QVector<ExportedFile> datasheetFiles(const SystemMap &map);

// The page alone. In the style Printed its pictures are the names of the SVG files without a
// folder: whoever shows it answers them with the files that datasheetFiles() gives.
QByteArray datasheetHtml(const SystemMap &map, DatasheetStyle style);

} // namespace TARVOORIXM1
