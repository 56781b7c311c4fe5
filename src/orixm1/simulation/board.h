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
// rate that the program has set, and what comes from outside is sent at it while the receiver is
// on; UART1 receives what it sends until then. GPIO pins that the subsystem does not drive are
// driven from outside, or 8 to 15 follow 0 to 7. MISO follows MOSI, extension ports are memories of
// 4 KB that repeat. On the I2C bus, at the SPI-Flash and in the socket of the card are the devices
// of "simulation/board" in the IP's data folder, which are compiled behind the board. Every other
// input has its idle level.
//
// Everything moves with the clock, so that Verilator takes it; there "board" has a port for that,
// and otherwise makes it. What the board says and hears beside the subsystem goes through functions
// of the program that runs the simulation (BoardHost).
//
// Plusargs: +mark=TEXT, +timeout=CYCLES (from the end of the power-on reset), +waves=FILE, and
// +waves-from=, +waves-to=, +waves-at= for a part of them (WaveWindow of the model),
// +uarts=crossed (each UART receives what the other one sends), and those of BoardHost. On standard
// output events are told, a line each that begins with the byte 0x1E and the mark:
//   MARK uart N XX        UART N has sent the byte XX (hexadecimal)
//   MARK gpio LEVELS DRIVEN   the pins have changed (hexadecimal); the subsystem drives some
//   MARK time CYCLES      with +progress, up to ten times a second
//   MARK lockup CYCLES    the processor is locked up
//   MARK empty PATH       a licensed block was accessed the first time; see withAnswers()
//   MARK done             the program has ended; the model's verdict stands before it
//   MARK end RESULT CYCLES   last of all; RESULT is passed, failed or timeout
QByteArray boardOf(const SystemMap &map);

// The stand-in of a licensed block so that it tells the first access to it, on a board; any other
// source as it is.
QByteArray withAnswers(const QByteArray &source);

// The Verilog of the top module with the instance bus_watch ("simulation/checkers" in the IP's data
// folder) in it, which holds the buses to their rules and tells what breaks one. Every other text
// is returned as it is.
QByteArray withBusWatch(const QByteArray &source);

} // namespace TARVOORIXM1
