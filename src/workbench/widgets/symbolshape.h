#pragma once

namespace Workbench
{

// What a symbol draws, as icons/symbolshapes.awk has taken it from its file: reading that takes
// longer than drawing it, and many are in the first window.
struct SymbolStep {
    // 'S' begins a shape with strokes that are x wide, filled if y is 1; 'M' moves, 'L' draws a
    // line, 'Z' back to where it began; 'R' and 'C' are a rectangle and a circle, whose size is in
    // the next step.
    char kind;
    double x;
    double y;
};

struct SymbolShapes {
    const char *name;
    const char *colour; // as in SVG
    const SymbolStep *steps;
    int count;
};

} // namespace Workbench
