#pragma once

#include <QPainter>

namespace TARVOORIXM1
{

// Whether a pen of width 1 draws at most one pixel here. Upright lines are sharp then without
// antialiasing; thicker ones are even with it only.
inline bool isHairline(const QPainter *painter)
{
    return painter->deviceTransform().m11() <= 1;
}

} // namespace TARVOORIXM1
