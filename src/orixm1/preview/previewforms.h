#pragma once

#include "preview.h"

#include <QStringList>
#include <QVariantMap>

namespace TARVOORIXM1
{

// The lines of a preview for people: how many files there are of each state, the files, notes and
// differences; with `withDiff` what changes in the files, as one patch with the folder's paths.
QStringList previewLines(const Preview &preview, bool withDiff);

// What changes in a file, as a unified diff; nothing where that is not known, or too long.
QStringList diffOf(const PreviewFile &file);

// The same for a host: "error", or "text" (previewLines() with the diff), "files", "differences"
// and "notes", as docs/host-interface.md describes them.
QVariantMap previewAnswer(const Preview &preview);

} // namespace TARVOORIXM1
