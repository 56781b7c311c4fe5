#include "porttext.h"

#include "config/latin1literal.h"
#include "names.h"

namespace TARVOORIXM1
{

namespace PortText
{

QString comment(const Port &port)
{
    QString text = port.bus.isEmpty() ? port.text : QString(port.text + ", of "_l1 + port.bus);
    if (port.isActiveLow && !text.contains("active low"_l1))
        text += ", active low"_l1;
    if (port.needsPullUp && !text.contains("pull"_l1))
        text += ", to be pulled up"_l1;
    return plainLine(text);
}

QString verilogRange(const Port &port)
{
    return port.isVector() ? QStringLiteral("[%1:%2]").arg(port.left).arg(port.right) : QString();
}

QString vhdlType(const Port &port)
{
    return port.isVector()
               ? QStringLiteral("std_logic_vector(%1 downto %2)").arg(port.left).arg(port.right)
               : QStringLiteral("std_logic");
}

int longestName(const SystemMap &map)
{
    int longest = 0;
    for (const Port &port : map.ports)
        longest = qMax(longest, port.name.size());
    return longest;
}

} // namespace PortText

} // namespace TARVOORIXM1
