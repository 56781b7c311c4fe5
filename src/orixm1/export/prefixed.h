#pragma once

#include "format.h"

#include <QSet>

namespace TARVOORIXM1
{

// The map under a prefix, which prefixMistake() accepts or which is empty: names of its RTL, of
// the models of the processor and of the black boxes have it in front, in the texts too. All
// formats of the result stand beside those of any map with another prefix, or with none, in one
// folder, one design and one program. A map that has a prefix already is not given another.
SystemMap prefixed(const SystemMap &map, const QString &prefix);

// Files in C as the map's prefix wants them: its header's names, `names`, and those of the files
// have it in front.
QVector<ExportedFile> prefixedC(const SystemMap &map, const QVector<ExportedFile> &files,
                                const QSet<QByteArray> &names);

// The name of the manifest beside the exports of a map; one for each prefix.
QString exportManifestOf(const SystemMap &map);

} // namespace TARVOORIXM1
