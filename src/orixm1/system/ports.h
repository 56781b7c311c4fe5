#pragma once

#include "config/optionmap.h"
#include "regions.h"

#include <QString>
#include <QVector>

namespace TARVOORIXM1
{

enum class PortDirection { Input, Output, Inout };

enum class PortRole {
    Clock,     // drives logic, or is driven for the logic at a bus port
    Reset,     // likewise
    BusSignal, // of an AHB-Lite or APB port that is led out
    Interrupt,
    Debug,
    Status,     // tells something of the processor or of a block
    Peripheral, // goes to or comes from what a block serves
    Unused,     // there for its place in a connector; connected to nothing or driven constantly
};

// As people read them: "input", "inout"; "clock", "bus".
QString directionName(PortDirection direction);
QString roleName(PortRole role);

// A port of the subsystem's top module.
struct Port {
    QString name;  // "UART0TXD", without the range
    int left = -1; // bounds of a vector; -1: a single line
    int right = -1;
    PortDirection direction = PortDirection::Input;
    PortRole role = PortRole::Peripheral;
    QString block;  // title of what it belongs to: "UART", "Cortex-M1"
    QString bus;    // name of the region whose bus it leads out: "AHB1", "EXTFLASH"
    QString signal; // the bus's own name of the signal: "HADDR"; empty: none
    bool isActiveLow = false;
    bool needsPullUp = false; // outside of the device, or of the user's logic
    bool idlesHigh = false;   // an input that is 1 where nothing happens, active low or not
    QString clock; // name of the clock's or strobe's port that it belongs to; empty: asynchronous
    QString text;  // a phrase
    // Path of the synchronizer that takes the port's signal to HCLK, "u_uart0.u_sync_rxd"; empty:
    // none does.
    QString synchronizer;

    bool isVector() const { return left >= 0; }
    int width() const { return isVector() ? left - right + 1 : 1; } // lines
};

// A clock or a reset that comes from outside.
struct ExternalSource {
    QString port;
    bool isActiveLow = false;
    QString text; // what it serves and what holds for it, a phrase
};

// A licensed module that the netlist holds as a name with pins: its contents are added later, and
// no figure of resources counts them.
struct BlackBox {
    QString module; // "CortexM1Core"
    QString region; // name of the region that it answers; empty: none
    QString text;   // a phrase
};

// The ports of a configuration, whose regions are `regions`, in the order of the top module.
QVector<Port> portsOf(const OptionMap &options, const QString &device,
                      const QVector<Region> &regions);

// Those of them that bring a clock or a reset. A clock that is sampled counts as well; its text
// says so.
QVector<ExternalSource> clocksAmong(const QVector<Port> &ports);
QVector<ExternalSource> resetsAmong(const QVector<Port> &ports);

// The black boxes of a configuration, the processor first.
QVector<BlackBox> blackBoxesOf(const OptionMap &options, const QString &device);

} // namespace TARVOORIXM1
