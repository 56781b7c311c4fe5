#include "diagramtable.h"

#include "config/optionkeys.h"
#include "lineitem.h"

#include <iterator>

namespace TARVOORIXM1
{

namespace
{

constexpr auto Scene = DiagramRow::Scene;
constexpr auto Frame = DiagramRow::Frame;
constexpr auto SubSystem = DiagramRow::SubSystem;

constexpr DiagramRow text(DiagramRow::Parent parent, int x, int y, const char *content)
{
    return {DiagramRow::Text, parent, x, y, QLatin1String(content)};
}

constexpr DiagramRow block(DiagramRow::Parent parent, int x, int y, int width, int height,
                           DiagramRow::Fill fill, const char *label)
{
    return {DiagramRow::Block, parent, x, y, QLatin1String(label), width, height, fill};
}

constexpr DiagramRow button(DiagramRow::Parent parent, int x, int y, int width, int height,
                            const char *label, const char *slot,
                            QLatin1String key = QLatin1String(), int ports = 0)
{
    return {DiagramRow::Block, parent, x,   y,    QLatin1String(label), width, height,
            DiagramRow::White, slot,   key, ports};
}

constexpr DiagramRow withToolTip(DiagramRow row, const char *toolTip)
{
    row.toolTip = QLatin1String(toolTip);
    return row;
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

// From a branch down to the middle of a block's top edge.
constexpr DiagramRow drop(int x, int y, const char *label)
{
    DiagramRow row = arrow(Scene, x, y, HeadUp, HeadDown, {0, 30});
    row.dropOf = QLatin1String(label);
    return row;
}

constexpr const char *psramNote = "Note: Support Part Number:\n"
                                  "    TV2KR-LV18QN88PES\n"
                                  "    TV2KR-LV18QN88PC8/I7\n"
                                  "    TV2KR-LV18QN88PC7/I6\n"
                                  "    TV2KR-LV18EQ144PES\n"
                                  "    TV2KR-LV18EQ144PC9/I8\n"
                                  "    TV2KR-LV18EQ144PC8/I7\n"
                                  "    TV2KR-LV18EQ144PC7/I6";

// The frame and the sub-system are the first two rows: they are the parents that rows name.
constexpr DiagramRow rows[] = {
    block(Scene, 0, 0, 1000, 560, DiagramRow::Nothing, ""),
    block(Frame, 250, 30, 500, 160, DiagramRow::LightBlue, ""),
    text(Frame, 10, 5, "Cortex-M1"),

    // The core and its memories
    button(SubSystem, 150, 50, 200, 60, "Cortex-M1", "onCortexM1()"),
    block(SubSystem, 45, 65, 60, 30, DiagramRow::Nothing, "ITCM"),
    block(SubSystem, 395, 65, 60, 30, DiagramRow::Nothing, "DTCM"),
    arrow(SubSystem, 0, 25, NoHead, HeadDown, {170, 0}, {170, 25}),
    text(SubSystem, 40, 25, "IRQ[31:0]"),
    dashed(arrow(SubSystem, 500, 25, NoHead, HeadDown, {-170, 0}, {-170, 25}), DiagramRow::Black),
    text(SubSystem, 400, 25, "DEBUG"),
    arrow(SubSystem, 250, 110, NoHead, HeadDown, {0, 50}),
    text(SubSystem, 250, 120, "AHB-Lite"),

    // The AHB bus
    dashed(arrow(Frame, 0, 220, NoHead, NoHead, {1000, 0}), DiagramRow::Red),
    text(Frame, 10, 225, "AHB Bus"),
    arrow(Scene, 500, 190, HeadUp, HeadDown, {0, 60}),
    arrow(Scene, 200, 250, NoHead, NoHead, {540, 0}),
    drop(200, 250, "GPIO"),
    drop(280, 250, "CAN"),
    drop(370, 250, "Ethernet"),
    drop(450, 250, "DDR3"),
    drop(560, 250, "PSRAM"),
    drop(650, 250, "SPI-Flash"),
    drop(740, 250, "AHB Master [1-6]"),
    button(Scene, 170, 280, 60, 40, "GPIO", "onGpio()", Key::enableGpio),
    button(Scene, 250, 280, 60, 40, "CAN", "onCan()", Key::enableCan),
    button(Scene, 340, 280, 60, 40, "Ethernet", "onEhternet()", Key::enableEthernet),
    button(Scene, 420, 280, 60, 40, "DDR3", "onDDR3()", Key::enableDdr3),
    withToolTip(button(Scene, 530, 280, 60, 40, "PSRAM", "onPsram()"), psramNote),
    button(Scene, 610, 280, 80, 40, "SPI-Flash", "onSpiFlash()", Key::enableSpiFlash),
    button(Scene, 700, 280, 80, 40, "AHB Master [1-6]", "onAHB2Extension()", Key::enableAhbMaster,
           Key::ahbMasterCount),

    // The bridge and the APB bus
    dashed(arrow(Scene, 0, 350, NoHead, NoHead, {1000, 0}), DiagramRow::Red),
    text(Scene, 10, 355, "APB Bus"),
    arrow(Scene, 500, 250, HeadUp, HeadDown, {0, 130}),
    block(Scene, 460, 380, 80, 40, DiagramRow::White, "AHB2APB"),
    arrow(Scene, 500, 420, HeadUp, HeadDown, {0, 30}),
    arrow(Scene, 60, 450, NoHead, NoHead, {880, 0}),
    drop(60, 450, "UART0"),
    drop(140, 450, "UART1"),
    drop(220, 450, "Timer0"),
    drop(300, 450, "Timer1"),
    drop(380, 450, "Watch Dog"),
    drop(460, 450, "RTC"),
    drop(540, 450, "TRNG"),
    drop(620, 450, "Dual Timer"),
    drop(700, 450, "I2C"),
    drop(780, 450, "SPI"),
    drop(860, 450, "SD-Card"),
    drop(940, 450, "APB Master [1-16]"),
    button(Scene, 30, 480, 60, 40, "UART0", "onUart()", Key::enableUart0),
    button(Scene, 110, 480, 60, 40, "UART1", "onUart()", Key::enableUart1),
    button(Scene, 190, 480, 60, 40, "Timer0", "onTimer()", Key::enableTimer0),
    button(Scene, 270, 480, 60, 40, "Timer1", "onTimer()", Key::enableTimer1),
    button(Scene, 350, 480, 60, 40, "Watch Dog", "onWatchDog()", Key::enableWatchDog),
    button(Scene, 430, 480, 60, 40, "RTC", "onRtc()", Key::enableRtc),
    button(Scene, 510, 480, 60, 40, "TRNG", "onTRNG()", Key::enableTrng),
    button(Scene, 590, 480, 60, 40, "Dual Timer", "onDualTimer()", Key::enableDualTimer),
    button(Scene, 670, 480, 60, 40, "I2C", "onI2C()", Key::enableI2c),
    button(Scene, 750, 480, 60, 40, "SPI", "onSPI()", Key::enableSpi),
    button(Scene, 830, 480, 60, 40, "SD-Card", "onSDCard()", Key::enableSdCard),
    button(Scene, 905, 480, 70, 40, "APB Master [1-16]", "onAPB2Extension()", Key::enableApbMaster,
           Key::apbMasterCount),
};

} // namespace

DiagramRows diagramRows()
{
    return {std::begin(rows), std::end(rows)};
}

} // namespace TARVOORIXM1
