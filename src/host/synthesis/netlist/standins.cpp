#include "standins.h"

#include "verilogscan.h"

#include <algorithm>
#include <iterator>

namespace Synthesis
{

namespace
{

enum class Role { Ahb, Apb, Other };

struct Pin {
    Role role;
    const char *name;
    const char *direction;
    int width;
};

// A slave has all pins of its bus.
constexpr Pin pins[] = {
    {Role::Ahb, "HCLK", "input", 1},    {Role::Ahb, "HRESETn", "input", 1},
    {Role::Ahb, "HSEL", "input", 1},    {Role::Ahb, "HTRANS", "input", 2},
    {Role::Ahb, "HREADY", "input", 1},  {Role::Ahb, "HREADYOUT", "output", 1},
    {Role::Ahb, "HRESP", "output", 1},  {Role::Apb, "PCLK", "input", 1},
    {Role::Apb, "PSEL", "input", 1},    {Role::Apb, "PENABLE", "input", 1},
    {Role::Apb, "PREADY", "output", 1}, {Role::Apb, "PSLVERR", "output", 1},
};

bool hasPin(const QVector<Port> &ports, const Pin &pin)
{
    return std::any_of(ports.begin(), ports.end(), [&pin](const Port &port) {
        return port.name == pin.name && port.direction == pin.direction &&
               port.width == pin.width && port.lowest == 0 && !port.isRising &&
               port.isVector == (pin.width > 1);
    });
}

// Of a block whose pins get in the way of the stand-in's own names, nothing is known.
Role roleOf(const QVector<Port> &ports)
{
    if (std::any_of(ports.begin(), ports.end(),
                    [](const Port &port) { return port.name.toLower().startsWith("stand_in"); }))
        return Role::Other;
    for (const Role role : {Role::Ahb, Role::Apb}) {
        if (std::all_of(std::begin(pins), std::end(pins),
                        [&](const Pin &pin) { return pin.role != role || hasPin(ports, pin); }))
            return role;
    }
    return Role::Other;
}

bool isAnswer(Role role, const Port &port)
{
    return std::any_of(std::begin(pins), std::end(pins),
                       [&](const Pin &pin) { return pin.role == role && port.name == pin.name; });
}

QByteArray missing(const QByteArray &module)
{
    return "no model of " + module + " is there";
}

constexpr char refused[] = ", so that an access gets an error response";
constexpr char leftOpen[] = ", so that its outputs are open";

// As the contents of a string.
QByteArray quoted(QByteArray text)
{
    return text.replace('\\', "\\\\").replace('"', "\\\"").replace('%', "%%");
}

} // namespace

QByteArray verilogStandIn(const QByteArray &module, const QVector<Port> &ports)
{
    const Role role = roleOf(ports);
    const QByteArray message = "$display(\"%m: " + quoted(missing(module));
    // With the address, where there is one.
    QByteArray end = "\");\n";
    for (const Port &port : ports) {
        if (port.direction == "input" && (port.name == "HADDR" || port.name == "PADDR"))
            end = " (address %h)\", " + port.name + ");\n";
    }
    QByteArray text;
    switch (role) {
    case Role::Ahb:
        text = "    reg [1:0] stand_in = 2'b00; // the cycles of the error response\n"
               "    wire stand_in_access = (HSEL & HTRANS[1] & HREADY) === 1'b1;\n"
               "    always @(posedge HCLK or negedge HRESETn)\n"
               "        if (!HRESETn) stand_in <= 2'b00;\n"
               "        else begin\n"
               "            stand_in <= {stand_in[0], stand_in_access};\n"
               "            if (stand_in_access) " +
               message + refused + end +
               "        end\n"
               "    assign HREADYOUT = !stand_in[0];\n"
               "    assign HRESP = |stand_in;\n";
        break;
    case Role::Apb:
        text = "    always @(posedge PCLK) if ((PSEL & PENABLE) === 1'b1) " + message + refused +
               end +
               "    assign PREADY = 1'b1;\n"
               "    assign PSLVERR = 1'b1;\n";
        break;
    case Role::Other:
        return "    initial " + message + leftOpen + "\");\n";
    }
    for (const Port &port : ports) {
        if (port.direction == "output" && !isAnswer(role, port))
            text += "    assign " + verilogName(port.name) + " = {" +
                    QByteArray::number(port.width) + "{1'b0}};\n";
    }
    return text;
}

QByteArray vhdlStandIn(const QByteArray &name, const QVector<Port> &ports,
                       const QByteArrayList &names)
{
    Role role = roleOf(ports);
    for (int i = 0; i < ports.size(); ++i) {
        if (isAnswer(role, ports.at(i)) && names.at(i) != ports.at(i).name)
            role = Role::Other;
    }
    QByteArray shown = name;
    const QByteArray report =
        "report \"" + missing(shown.replace('"', "\"\"")) + "%1\" severity warning;\n";
    QByteArray text = "architecture empty of " + name + " is\n";
    switch (role) {
    case Role::Ahb:
        text +=
            "    signal stand_in : std_logic_vector(1 downto 0) := \"00\"; -- the cycles of the "
            "error response\n"
            "begin\n"
            "    process (HCLK, HRESETn)\n"
            "    begin\n"
            "        if HRESETn = '0' then\n"
            "            stand_in <= \"00\";\n"
            "        elsif rising_edge(HCLK) then\n"
            "            stand_in <= stand_in(0) & '0';\n"
            "            if to_x01(HSEL and HTRANS(1) and HREADY) = '1' then\n"
            "                stand_in <= stand_in(0) & '1';\n"
            "                " +
            QByteArray(report).replace("%1", refused) +
            "            end if;\n"
            "        end if;\n"
            "    end process;\n"
            "    HREADYOUT <= not stand_in(0);\n"
            "    HRESP <= stand_in(1) or stand_in(0);\n";
        break;
    case Role::Apb:
        text += "begin\n"
                "    process (PCLK)\n"
                "    begin\n"
                "        if rising_edge(PCLK) and to_x01(PSEL and PENABLE) = '1' then\n"
                "            " +
                QByteArray(report).replace("%1", refused) +
                "        end if;\n"
                "    end process;\n"
                "    PREADY <= '1';\n"
                "    PSLVERR <= '1';\n";
        break;
    case Role::Other:
        return text + "begin\n    assert false " + QByteArray(report).replace("%1", leftOpen) +
               "end architecture;\n";
    }
    for (int i = 0; i < ports.size(); ++i) {
        const Port &port = ports.at(i);
        if (port.direction == "output" && !isAnswer(role, port))
            text +=
                "    " + names.at(i) + " <= " + (port.isVector ? "(others => '0')" : "'0'") + ";\n";
    }
    return text + "end architecture;\n";
}

} // namespace Synthesis
