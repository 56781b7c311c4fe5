#pragma once

#include <QJsonObject>
#include <QString>

namespace Synthesis
{

// What keeps the modules of a design in the synthesis tool's JSON form from being read, as a
// clause; empty if nothing does. Ports have a direction and 1 to 1,048,576 bits, ranges begin
// within 30 bits, and a bit is "0", "1", "x", "z" or the number of a net.
QString designMistake(const QJsonObject &modules);

} // namespace Synthesis
