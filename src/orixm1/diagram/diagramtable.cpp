#include "diagramtable.h"

#include "config/latin1literal.h"
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

constexpr DiagramRow text(DiagramRow::Parent parent, int x, int y, QLatin1String content)
{
    return {DiagramRow::Text, parent, x, y, content};
}

constexpr DiagramRow block(DiagramRow::Parent parent, int x, int y, int width, int height,
                           DiagramRow::Fill fill, QLatin1String label)
{
    return {DiagramRow::Block, parent, x, y, label, width, height, fill};
}

constexpr DiagramRow button(DiagramRow::Parent parent, int x, int y, int width, int height,
                            QLatin1String label, const char *slot,
                            QLatin1String key = QLatin1String(), int ports = 0)
{
    return {DiagramRow::Block, parent, x,   y,    label, width, height,
            DiagramRow::White, slot,   key, ports};
}

constexpr DiagramRow withToolTip(DiagramRow row, QLatin1String toolTip)
{
    row.toolTip = toolTip;
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
constexpr DiagramRow drop(int x, int y, QLatin1String label)
{
    DiagramRow row = arrow(Scene, x, y, HeadUp, HeadDown, {0, 30});
    row.dropOf = label;
    return row;
}

constexpr QLatin1String psramNote = "Note: Support Part Number:\n"
                                    "    TV2KR-LV18QN88PES\n"
                                    "    TV2KR-LV18QN88PC8/I7\n"
                                    "    TV2KR-LV18QN88PC7/I6\n"
                                    "    TV2KR-LV18EQ144PES\n"
                                    "    TV2KR-LV18EQ144PC9/I8\n"
                                    "    TV2KR-LV18EQ144PC8/I7\n"
                                    "    TV2KR-LV18EQ144PC7/I6"_l1;

// The frame and the sub-system are the first two rows: they are the parents that rows name.
constexpr DiagramRow rows[] = {
    block(Scene, 0, 0, 1000, 560, DiagramRow::Nothing, ""_l1),
    block(Frame, 250, 30, 500, 160, DiagramRow::LightBlue, ""_l1),
    text(Frame, 10, 5, "Cortex-M1"_l1),

    // The core and its memories
    button(SubSystem, 150, 50, 200, 60, "Cortex-M1"_l1, "onCortexM1()"),
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
    arrow(Scene, 200, 250, NoHead, NoHead, {540, 0}),
    drop(200, 250, "GPIO"_l1),
    drop(280, 250, "CAN"_l1),
    drop(370, 250, "Ethernet"_l1),
    drop(450, 250, "DDR3"_l1),
    drop(560, 250, "PSRAM"_l1),
    drop(650, 250, "SPI-Flash"_l1),
    drop(740, 250, "AHB Master [1-6]"_l1),
    button(Scene, 170, 280, 60, 40, "GPIO"_l1, "onGpio()", Key::enableGpio),
    button(Scene, 250, 280, 60, 40, "CAN"_l1, "onCan()", Key::enableCan),
    button(Scene, 340, 280, 60, 40, "Ethernet"_l1, "onEhternet()", Key::enableEthernet),
    button(Scene, 420, 280, 60, 40, "DDR3"_l1, "onDDR3()", Key::enableDdr3),
    withToolTip(button(Scene, 530, 280, 60, 40, "PSRAM"_l1, "onPsram()"), psramNote),
    button(Scene, 610, 280, 80, 40, "SPI-Flash"_l1, "onSpiFlash()", Key::enableSpiFlash),
    button(Scene, 700, 280, 80, 40, "AHB Master [1-6]"_l1, "onAHB2Extension()",
           Key::enableAhbMaster, Key::ahbMasterCount),

    // The bridge and the APB bus
    dashed(arrow(Scene, 0, 350, NoHead, NoHead, {1000, 0}), DiagramRow::Red),
    text(Scene, 10, 355, "APB Bus"_l1),
    arrow(Scene, 500, 250, HeadUp, HeadDown, {0, 130}),
    block(Scene, 460, 380, 80, 40, DiagramRow::White, "AHB2APB"_l1),
    arrow(Scene, 500, 420, HeadUp, HeadDown, {0, 30}),
    arrow(Scene, 60, 450, NoHead, NoHead, {880, 0}),
    drop(60, 450, "UART0"_l1),
    drop(140, 450, "UART1"_l1),
    drop(220, 450, "Timer0"_l1),
    drop(300, 450, "Timer1"_l1),
    drop(380, 450, "Watch Dog"_l1),
    drop(460, 450, "RTC"_l1),
    drop(540, 450, "TRNG"_l1),
    drop(620, 450, "Dual Timer"_l1),
    drop(700, 450, "I2C"_l1),
    drop(780, 450, "SPI"_l1),
    drop(860, 450, "SD-Card"_l1),
    drop(940, 450, "APB Master [1-16]"_l1),
    button(Scene, 30, 480, 60, 40, "UART0"_l1, "onUart()", Key::enableUart0),
    button(Scene, 110, 480, 60, 40, "UART1"_l1, "onUart()", Key::enableUart1),
    button(Scene, 190, 480, 60, 40, "Timer0"_l1, "onTimer()", Key::enableTimer0),
    button(Scene, 270, 480, 60, 40, "Timer1"_l1, "onTimer()", Key::enableTimer1),
    button(Scene, 350, 480, 60, 40, "Watch Dog"_l1, "onWatchDog()", Key::enableWatchDog),
    button(Scene, 430, 480, 60, 40, "RTC"_l1, "onRtc()", Key::enableRtc),
    button(Scene, 510, 480, 60, 40, "TRNG"_l1, "onTRNG()", Key::enableTrng),
    button(Scene, 590, 480, 60, 40, "Dual Timer"_l1, "onDualTimer()", Key::enableDualTimer),
    button(Scene, 670, 480, 60, 40, "I2C"_l1, "onI2C()", Key::enableI2c),
    button(Scene, 750, 480, 60, 40, "SPI"_l1, "onSPI()", Key::enableSpi),
    button(Scene, 830, 480, 60, 40, "SD-Card"_l1, "onSDCard()", Key::enableSdCard),
    button(Scene, 905, 480, 70, 40, "APB Master [1-16]"_l1, "onAPB2Extension()",
           Key::enableApbMaster, Key::apbMasterCount),
};

} // namespace

DiagramRows diagramRows()
{
    return {std::begin(rows), std::end(rows)};
}

} // namespace TARVOORIXM1
