#pragma once

#include "format.h"

namespace TARVOORIXM1
{

// The subsystem as a component in IP-XACT, with the definitions of its buses and a catalogue of
// all: "ipxact/tarvo_orix_m1.xml", … in IEEE 1685-2014, "ipxact-2022/…" in IEEE 1685-2022. The
// component names the files of "rtl" and of what is made for software, beside the folder.
QVector<ExportedFile> ipxact2014Files(const SystemMap &map);
QVector<ExportedFile> ipxact2022Files(const SystemMap &map);

} // namespace TARVOORIXM1
