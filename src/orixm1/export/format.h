#pragma once

#include "config/rows.h"
#include "system/systemmap.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

// A file of a format.
struct ExportedFile {
    QString path; // below the folder that is exported to: "drivers/uart.c"
    QByteArray bytes;
};

// A form in which the subsystem is handed on.
struct Format {
    QLatin1String name;      // as an argument of the command line: "svd"
    QLatin1String file;      // its file, or the most important ones: "tarvo_orix_m1.svd"
    QLatin1String title;     // "Register description"
    QLatin1String purpose;   // whom it serves and with what, a sentence
    QLatin1String standard;  // "CMSIS-SVD 1.3"; may be empty
    QLatin1String checkedBy; // the tools that accept each file without a word
    // The format's files, in a fixed order: a pure function, equal bytes for equal maps on every
    // machine. Texts are UTF-8 with line feeds. Empty where a configuration gives nothing to hand
    // on.
    QVector<ExportedFile> (*files)(const SystemMap &map);
};

// The file beside an export that says what was written, for the next one.
inline constexpr QLatin1String exportManifest("orixm1-export.json");

// All formats, in the order in which documents and windows list them.
Rows<Format> formats();

// The format of this name; null if there is none.
const Format *findFormat(const QString &name);

} // namespace TARVOORIXM1
