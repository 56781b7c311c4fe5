#pragma once

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// Number of slips between two texts, letter case apart: a letter changed, missing, too many, or two
// neighbours exchanged.
int slips(const QString &a, const QString &b);

// The one of `known` that is spelled most alike, letter case apart, for "did you mean"; the first
// of several, and an empty text if none is near (more than a third of `text` differs).
QString nearestText(const QString &text, const QStringList &known);

} // namespace TARVOORIXM1
