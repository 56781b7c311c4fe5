#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// What turns one text into another, as a unified diff with three lines of context, line by line;
// nothing if they are equal. Meant for files of some hundred lines: of longer ones everything that
// lies between their equal beginnings and ends counts as changed.
QStringList unifiedDiff(const QByteArray &before, const QByteArray &after,
                        const QString &beforeName, const QString &afterName);

} // namespace TARVOORIXM1
