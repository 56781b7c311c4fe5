#include "diagramtable.h"

#include "config/blocks.h"
#include "config/latin1literal.h"
#include "lineitem.h"

#include <iterator>
#include <vector>

namespace TARVOORIXM1
{

namespace
{

constexpr auto Scene = DiagramRow::Scene;
constexpr auto Frame = DiagramRow::Frame;
constexpr auto SubSystem = DiagramRow::SubSystem;

constexpr DiagramRow text(DiagramRow::Parent parent, int x, int y, QLatin1String content)
{
    return {DiagramRow::Text, parent, x, y, content};
}

constexpr DiagramRow block(DiagramRow::Parent parent, int x, int y, int width, int height,
                           DiagramRow::Fill fill, QLatin1String label)
{
    return {DiagramRow::Block, parent, x, y, label, width, height, fill};
}

constexpr DiagramRow arrow(DiagramRow::Parent parent, int x, int y, int startHead, int endHead,
                           QPoint second, QPoint third = QPoint())
{
    DiagramRow row = {DiagramRow::Line, parent, x, y};
    row.points[1] = second;
    row.points[2] = third;
    row.pointCount = third == QPoint() ? 2 : 3;
    row.startHead = startHead;
    row.endHead = endHead;
    return row;
}

constexpr DiagramRow dashed(DiagramRow row, DiagramRow::Color color)
{
    row.dashed = true;
    row.color = color;
    return row;
}

// The frame and the sub-system are the first two rows: they are the parents that rows name.
constexpr DiagramRow core[] = {
    block(Scene, 0, 0, 1000, 560, DiagramRow::Nothing, ""_l1),
    block(Frame, 250, 30, 500, 160, DiagramRow::LightBlue, ""_l1),
    text(Frame, 10, 5, "Cortex-M1"_l1),

    // The core and its memories
    {DiagramRow::Block, SubSystem, 150, 50, "Cortex-M1"_l1, 200, 60, DiagramRow::White,
     "onCortexM1()"},
    block(SubSystem, 45, 65, 60, 30, DiagramRow::Nothing, "ITCM"_l1),
    block(SubSystem, 395, 65, 60, 30, DiagramRow::Nothing, "DTCM"_l1),
    arrow(SubSystem, 0, 25, NoHead, HeadDown, {170, 0}, {170, 25}),
    text(SubSystem, 40, 25, "IRQ[31:0]"_l1),
    dashed(arrow(SubSystem, 500, 25, NoHead, HeadDown, {-170, 0}, {-170, 25}), DiagramRow::Black),
    text(SubSystem, 400, 25, "DEBUG"_l1),
    arrow(SubSystem, 250, 110, NoHead, HeadDown, {0, 50}),
    text(SubSystem, 250, 120, "AHB-Lite"_l1),

    // The AHB bus
    dashed(arrow(Frame, 0, 220, NoHead, NoHead, {1000, 0}), DiagramRow::Red),
    text(Frame, 10, 225, "AHB Bus"_l1),
    arrow(Scene, 500, 190, HeadUp, HeadDown, {0, 60}),
};

// The bridge and the APB bus
constexpr DiagramRow bridge[] = {
    dashed(arrow(Scene, 0, 350, NoHead, NoHead, {1000, 0}), DiagramRow::Red),
    text(Scene, 10, 355, "APB Bus"_l1),
    arrow(Scene, 500, 250, HeadUp, HeadDown, {0, 130}),
    block(Scene, 460, 380, 80, 40, DiagramRow::White, "AHB2APB"_l1),
    arrow(Scene, 500, 420, HeadUp, HeadDown, {0, 30}),
};

// What hangs from a bus: its branch, a drop from there down to the middle of each box's top edge,
// and then the boxes.
void appendBoxes(std::vector<DiagramRow> &rows, Bus bus, int branch)
{
    constexpr int length = 30;
    constexpr int height = 40;
    std::vector<DiagramRow> drops;
    std::vector<DiagramRow> boxes;
    for (const Block &block : blocks()) {
        for (int i = 0; block.bus == bus && i < int(std::size(block.boxes)); ++i) {
            const DiagramBox &box = block.boxes[i];
            if (box.label.size() == 0)
                continue;
            drops.push_back(
                arrow(Scene, box.x + box.width / 2, branch, HeadUp, HeadDown, {0, length}));
            drops.back().dropOf = box.label;
            DiagramRow row = {DiagramRow::Block, Scene,     box.x,  branch + length,
                              box.label,         box.width, height, DiagramRow::White};
            row.slot = block.slot ? block.slot : "onBlock()";
            if (box.showsState) {
                row.key = block.switches[i].name;
                row.ports = block.hasPorts() ? block.switches.size() : 0;
            }
            row.toolTip = box.toolTip;
            boxes.push_back(row);
        }
    }
    rows.push_back(arrow(Scene, drops.front().x, branch, NoHead, NoHead,
                         {drops.back().x - drops.front().x, 0}));
    rows.insert(rows.end(), drops.begin(), drops.end());
    rows.insert(rows.end(), boxes.begin(), boxes.end());
}

std::vector<DiagramRow> allRows()
{
    std::vector<DiagramRow> rows(std::begin(core), std::end(core));
    appendBoxes(rows, Bus::Ahb, 250);
    rows.insert(rows.end(), std::begin(bridge), std::end(bridge));
    appendBoxes(rows, Bus::Apb, 450);
    return rows;
}

} // namespace

DiagramRows diagramRows()
{
    static const std::vector<DiagramRow> rows = allRows();
    return {rows.data(), rows.data() + rows.size()};
}

} // namespace TARVOORIXM1
