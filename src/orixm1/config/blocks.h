#pragma once

#include "latin1literal.h"
#include "optionmap.h"
#include "rows.h"

#include <QLatin1String>
#include <QString>

namespace TARVOORIXM1
{

struct PinGroup;

// A bool option that a block's dialog shows as a check box. Of a port of an extension bus, the key
// is followed by the port's number, and %1 stands for it in the other texts.
struct SwitchRow {
    QLatin1String name;       // the option key, or what stands before the port's number in it
    QLatin1String macroText;  // what generation defines when it is on
    QLatin1String meaning;    // for the list of options
    bool byDefault = false;   // what the dialog takes for an absent key; generation takes false
    bool isInterface = false; // how the block is connected: counts while its first switch is on
    int port = 0;             // of an extension bus; 0: none

    QString key() const;
    QString macro() const;
    QString description() const;
};

// A box of the diagram, that a line joins to its bus. It shows whether the switch of the same place
// in the block's table is on, or any switch of an extension bus.
struct DiagramBox {
    QLatin1String label = QLatin1String(); // empty: no box
    int x = 0;                             // of its left edge
    int width = 60;
    bool showsState = true;
    QLatin1String toolTip = QLatin1String();
};

enum class Bus { Ahb, Apb };

// Which signal of its check boxes draws a dialog's figure anew.
enum class Redraw { OnToggle, OnClick, Never };

// An optional block of the subsystem: everything about it that is not its form, whose check boxes
// bring their own texts, or its RTL. The register files name its switches.
struct Block {
    QLatin1String dialog; // name of its class; stands for the block
    QLatin1String title;  // of the dialog's window and label
    Bus bus = Bus::Ahb;
    Rows<SwitchRow> switches;
    Rows<PinGroup> pins; // in the order in which a figure shows them
    DiagramBox boxes[2]; // a block that exists twice has two
    QLatin1String summary;
    const char *slot = nullptr; // of the diagram's view, if what opens the dialog has a fixed name
    Redraw redraw = Redraw::OnToggle;
    // Of the option, if any, whose choice the pins follow.
    QLatin1String choiceKey = QLatin1String();

    // The bus in words.
    QLatin1String module() const;
    // Whether the block leads its bus out: all its switches are ports then.
    bool hasPorts() const { return switches[0].port > 0; }
    // Whether it hangs on the bus of the APB peripherals, which is there with the first of them.
    bool isApbPeripheral() const { return bus == Bus::Apb && !hasPorts(); }
};

// All blocks from left to right as the diagram shows them, those on the AHB bus first.
Rows<Block> blocks();
// The same in the order of the generated lines and of the options.
Rows<Block> generatedBlocks();
// The one with this dialog, which must exist.
const Block &block(QLatin1String dialog);
// The one that a box of the diagram stands for; null if there is none of this label.
const Block *blockOfBox(const QString &label);

// What the register files and the interrupts name as a switch: the key of a bool option, or this
// name for all that switch a block of the internal APB bus on.
inline constexpr QLatin1String anyApbPeripheral = "any APB peripheral"_l1;
bool isSwitch(const QString &name);
// Of a name that is none: false.
bool isSwitchedOn(const OptionMap &options, const QString &name);

} // namespace TARVOORIXM1
