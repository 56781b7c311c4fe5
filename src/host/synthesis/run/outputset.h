#pragma once

#include "scratchfolder.h"

#include <QByteArray>
#include <QVector>

namespace Synthesis
{

// A finished file of a run: where it is to be (full path), and its contents.
struct Output {
    QString path;
    QByteArray bytes;
};

// Puts finished files at their places: all of them are on the disk before the first one gets its
// place, so that a run that is killed leaves nothing beside its outputs; if one cannot have its
// place, all get their old contents back. A file that holds the same bytes already is not touched.
// Empty on success, otherwise one sentence.
QString placeOutputs(const QVector<Output> &outputs, const ScratchFolder &scratch);

} // namespace Synthesis
