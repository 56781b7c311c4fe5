#include "runsummary.h"

#include "tr.h"

#include <synthesis/runreport.h>

namespace Workbench
{

QString shownSummary(const Synthesis::RunReport &report)
{
    QStringList used;
    for (const Synthesis::ResourceUse &use : report.resources) {
        if (use.used == 0)
            continue;
        QString part = QString::number(use.used) + u' ' + use.resource;
        if (use.available >= 0)
            part += QStringLiteral(" (%1 %)").arg(use.percent());
        used.append(part);
    }
    const QString list = used.join(QLatin1String(", "));
    // The host's sentence on these figures.
    if (used.isEmpty() || !report.summary.startsWith(QStringLiteral("Used %1.").arg(list)))
        return report.summary;
    QString text = Tr::tr("Used %1.").arg(list);
    QStringList missing;
    for (const Synthesis::CellCount &cell : report.cells) {
        if (cell.isBlackBox)
            missing.append(QString::number(cell.count) + u' ' + cell.cell);
    }
    if (!missing.isEmpty())
        text += u' ' + Tr::tr("Not counted are the contents of black boxes: %1.")
                           .arg(missing.join(QLatin1String(", ")));
    return text;
}

} // namespace Workbench
