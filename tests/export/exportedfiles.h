#pragma once

#include "checkers.h"

#include <export/format.h>

namespace Exported
{

// What all formats make of a map. A path that two of them give, or that leads out of the folder, is
// told in `*complaints`.
inline Files filesOf(const TARVOORIXM1::SystemMap &map, QStringList *complaints)
{
    Files files;
    for (const TARVOORIXM1::Format &format : TARVOORIXM1::formats()) {
        const QVector<TARVOORIXM1::ExportedFile> made = format.files(map);
        for (const TARVOORIXM1::ExportedFile &file : made) {
            if (files.contains(file.path))
                complaints->append(file.path + QLatin1String(": two formats give it"));
            files.insert(file.path, file.bytes);
        }
    }
    return files;
}

// Whether it is a copy of what stands in the data folder, or a part of a generation: no golden file
// repeats it.
inline bool isCopy(const QString &path)
{
    return path.startsWith(QLatin1String("rtl/")) ||
           path.startsWith(QLatin1String("sim/cortex_m1_core_bfm."));
}

// What holds for the bytes of every file.
inline QStringList textComplaints(const Files &files)
{
    QStringList complaints;
    for (auto it = files.begin(); it != files.end(); ++it) {
        const QByteArray &bytes = it.value();
        const auto complain = [&](const char *what) {
            complaints.append(it.key() + QLatin1String(": ") + QLatin1String(what));
        };
        // The include files of a generation may be empty.
        const bool isRtl = it.key().startsWith(QLatin1String("rtl/"));
        if (bytes.isEmpty() && isRtl)
            continue;
        if (bytes.isEmpty())
            complain("empty");
        if (!bytes.endsWith('\n') || bytes.endsWith("\n\n"))
            complain("does not end with one line feed");
        if (bytes.contains('\r') || bytes.contains('\0'))
            complain("holds a carriage return or a zero");
        if (QString::fromUtf8(bytes).toUtf8() != bytes)
            complain("is not UTF-8");
        if (bytes.contains(" \n") && !it.key().endsWith(QLatin1String(".md")))
            complain("has blanks at the end of a line");
    }
    return complaints;
}

} // namespace Exported
