#pragma once

#include "system/systemmap.h"

#include <QByteArray>

namespace TARVOORIXM1
{

// The board that a simulated subsystem stands on: a Verilog module "board" without ports, which
// holds the top module as "dut" with the processor's model as its "u_core". A pure function of the
// map; it compiles for every configuration.
//
// Clock of 50 MHz, power-on reset, pull-ups where ports need them. The UARTs' lines are read at the
// rate that the program has set; UART1 receives what it sends, UART0 receives nothing. Pins 8 to 15
// of the GPIO follow pins 0 to 7 unless they are driven, MISO follows MOSI, extension ports are
// memories of 4 KB that repeat. Every other input has its idle level.
//
// Everything moves with the clock, so that Verilator takes it; there "board" has a port for that,
// and otherwise makes it. What the board says and hears beside the subsystem goes through functions
// of the program that runs the simulation (BoardHost).
//
// Plusargs: +mark=TEXT, +timeout=CYCLES (from the end of the power-on reset), +waves=FILE, and
// +waves-from=, +waves-to=, +waves-at= for a part of them (WaveWindow of the model). On
// standard output events are told, a line each that begins with the byte 0x1E and the mark:
//   MARK uart N XX        UART N has sent the byte XX (hexadecimal)
//   MARK lockup CYCLES    the processor is locked up
//   MARK empty PATH       a licensed block was accessed the first time; see withAnswers()
//   MARK done             the program has ended; the model's verdict stands before it
//   MARK end RESULT CYCLES   last of all; RESULT is passed, failed or timeout
QByteArray boardOf(const SystemMap &map);

// A source of the subsystem in which a licensed block, of which there is only the declaration,
// answers each access with an error, on a board; any other source as it is.
QByteArray withAnswers(const QByteArray &source);

} // namespace TARVOORIXM1
