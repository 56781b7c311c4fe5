#pragma once

#include <QFont>
#include <QList>
#include <QSizeF>
#include <QString>

namespace TARVOORIXM1
{

// A text that is broken between words, and the room that it has, in scene units.
struct BlockLabel {
    QString text;
    QSizeF room;
};

// Those of the diagram's blocks.
QList<BlockLabel> diagramLabels();

// `font` in the largest size, up to its own and from 4 on, in which all labels fit. In scene units,
// as blocks are, so that they fit at every scale and resolution.
QFont fittingFont(const QFont &font, const QList<BlockLabel> &labels);

} // namespace TARVOORIXM1
