#include "superseded.h"

#include <QFileInfo>
#include <QSet>

namespace Workbench
{

QStringList superseded(const QStringList &files, Language last)
{
    const QSet<QString> all(files.begin(), files.end());
    const bool isVhdl = last == Language::Vhdl;
    const QStringList oldSuffixes = isVhdl
                                        ? QStringList{QStringLiteral("v")}
                                        : QStringList{QStringLiteral("vhd"), QStringLiteral("vho")};
    QStringList old;
    for (const QString &file : files) {
        const QFileInfo info(file);
        const QString stem = info.path() + u'/' + info.completeBaseName();
        if (oldSuffixes.contains(info.suffix()) && all.contains(stem + QLatin1String(".v")) &&
            all.contains(stem + QLatin1String(".vhd")))
            old.append(file);
    }
    return old;
}

} // namespace Workbench
