#pragma once

#include "design.h"

#include <QByteArray>
#include <QVector>

namespace Synthesis
{

// Pieces of VHDL texts.
namespace VhdlText
{

// Makes the types of the ports known.
inline constexpr char context[] = "library ieee;\nuse ieee.std_logic_1164.all;\n";

// "(7 downto 0)", or "(0 to 7)".
QByteArray slice(int left, int right, bool isRising);

// Of a port or a signal: "std_logic_vector(7 downto 0)".
QByteArray typeOf(const Port &port);
// "in", "out" or "inout".
QByteArray modeOf(const Port &port);

// The ports of an entity or a component; nothing without ports.
QByteArray portClause(const QVector<Port> &ports);

// Of '0', '1', 'x' or 'z'.
char logicValue(char bit);
// "'0'"
QByteArray literal(char bit);
// Of bits from the highest one down: in lines of 64 digits, in hexadecimal where all bits are
// known.
QByteArray vectorLiteral(const QByteArray &bits);
// Of any bytes.
QByteArray textLiteral(const QByteArray &text);

// Each line that is not empty behind `by`.
QByteArray indented(const QByteArray &text, const QByteArray &by);

} // namespace VhdlText

} // namespace Synthesis
