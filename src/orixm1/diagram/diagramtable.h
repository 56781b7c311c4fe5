#pragma once

#include <QLatin1String>
#include <QPoint>

namespace TARVOORIXM1
{

// One item of the block diagram. Coordinates are scene units, y downwards; an item with a parent
// counts from the parent's corner.
struct DiagramRow {
    enum Kind { Block, Line, Text };
    enum Parent { Scene, Frame, SubSystem };
    enum Fill { Nothing, White, LightBlue };
    enum Color { Black, Red };

    Kind kind;
    Parent parent;
    int x;
    int y;
    QLatin1String text = QLatin1String(); // of a text item, or a block's label

    // Blocks. One with a slot is clickable: a double-click runs that slot of the view.
    int width = 0;
    int height = 0;
    Fill fill = Nothing;
    const char *slot = nullptr;
    QLatin1String key = QLatin1String(); // the option that the block's look follows
    int ports = 0; // if not 0, any of the options key + 1 to key + ports switches the block on
    QLatin1String toolTip = QLatin1String();

    // Lines: the first pointCount points, from the line's own position.
    QPoint points[3] = {};
    int pointCount = 0;
    bool dashed = false;
    Color color = Black;
    int startHead = 4; // see LineHead
    int endHead = 4;
    QLatin1String dropOf = QLatin1String(); // the block that is shown and hidden with this line
};

// A range over all items; items that lie above others come later.
struct DiagramRows {
    const DiagramRow *first;
    const DiagramRow *last;
    const DiagramRow *begin() const { return first; }
    const DiagramRow *end() const { return last; }
};

DiagramRows diagramRows();

} // namespace TARVOORIXM1
