#pragma once

#include <QString>
#include <QStringList>

namespace TARVOORIXM1
{

// Number of slips between two texts, letter case apart: a letter changed, missing, too many, or two
// neighbours exchanged.
int slips(const QString &a, const QString &b);

// Those of `known` that are spelled most alike, if no more than a third of `text` differs; none for
// a text of more than 100 characters, which resembles nothing.
QStringList nearestTexts(const QString &text, const QStringList &known);

} // namespace TARVOORIXM1
